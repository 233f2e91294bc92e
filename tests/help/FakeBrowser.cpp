// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/FakeBrowser.h"

#include "support/TestFiles.h"

#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;

FakeBrowser::FakeBrowser(Desktop desktop)
{
    qputenv("PATH", QFile::encodeName(m_data.path())); // none of the machine's browsers
    qputenv("XDG_DATA_DIRS", QFile::encodeName(m_data.path()));
    QDir(m_data.path()).mkpath(u"applications"_s);
    writeFile(m_data.filePath(u"applications/mimeinfo.cache"_s),
              desktop == Desktop::WithBrowser
                  ? "[MIME Cache]\nx-scheme-handler/http=browser.desktop;\n"
                  : "[MIME Cache]\ntext/html=office.desktop;\n");
    QDesktopServices::setUrlHandler(u"file"_s, this, "open");
}

FakeBrowser::~FakeBrowser()
{
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

void FakeBrowser::open(const QUrl &url)
{
    pages += url.fileName();
}
