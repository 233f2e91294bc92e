// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/Handbook.h"

#include "help/dlgHandbook.h"
#include "platform/Browser.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QWidget>

#include <array>

namespace {

struct WindowPage
{
    const char *window;
    const char *page;
};

// A test compares this table with the forms and the pages.
constexpr std::array Pages{
    WindowPage{"frmMain", "index"},
    WindowPage{"frmTanglewit", "game"},
    WindowPage{"dlgIncorrectAnswer", "game"},
    WindowPage{"dlgGameOver", "game"},
    WindowPage{"dlgQuickFlash", "flash-cards"},
    WindowPage{"dlgWordExist", "importing"},
    WindowPage{"dlgExport", "exporting"},
    WindowPage{"frmPrint", "printing"},
    WindowPage{"CommonDialog", "files"},
    WindowPage{"MsgBox", "messages"},
    WindowPage{"dlgAbout", "index"},
    WindowPage{"dlgHandbook", ""},
};

QString pageOfWindow(const QString &name, bool &found)
{
    for (const auto &[window, page] : Pages)
        if ((found = name == QLatin1String(window)))
            return QLatin1String(page);
    return {};
}

} // namespace

QString handbookPageOf(const QWidget &control)
{
    bool found = false;
    QString page;
    for (const QWidget *part = &control; part && !found; part = part->parentWidget())
        if (part->isWindow())
            page = pageOfWindow(part->objectName(), found);
    return page;
}

void openHandbook(const QString &page, QWidget *window)
{
    const QString folder = pathOf(Place::Handbook);
    const QString file = folder + QLatin1Char('/') + page + QStringLiteral(".html");
    if (!QFile::exists(file))
        MsgBox(QStringLiteral("The handbook is not installed. Its folder would be:\n") + folder);
    else if (!openInBrowser(file))
        dlgHandbook(file, window).exec();
}
