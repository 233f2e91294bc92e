// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/UnsavedCopy.h"

#include "core/Module1.h"
#include "platform/Guarded.h"
#include "platform/Paths.h"
#include "runtime/BinaryFile.h"
#include "runtime/SameFile.h"

#include <QDir>
#include <QFileInfo>

using namespace Module1;

namespace {

constexpr int Delay = 100; // milliseconds, for further changes to come into the same copy
const QString Extension = QStringLiteral(".lwx");
// In bytes. A file's name has 255, of which " (not saved) 999.lwx" takes 20.
constexpr qsizetype LongestTitle = 235;

QString listTitle()
{
    if (gFileTitle.isEmpty())
        return QStringLiteral("Untitled");
    QString title = gFileTitle;
    if (title.endsWith(Extension, Qt::CaseInsensitive))
        title.chop(Extension.size());
    while (QFile::encodeName(title).size() > LongestTitle)
        title.chop(title.back().isLowSurrogate() ? 2 : 1);
    return title;
}

bool isTaken(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink(); // a broken link, too
}

// "Animals (not saved).lwx", "Animals (not saved) 2.lwx", …
QString freePath(const QString &folder, const QString &title)
{
    const QString start = folder + QLatin1Char('/') + title + QStringLiteral(" (not saved)");
    QString path = start + Extension;
    for (int number = 2; isTaken(path); ++number)
        path = start + QLatin1Char(' ') + QString::number(number) + Extension;
    return path;
}

} // namespace

UnsavedCopy::UnsavedCopy(QObject *window) : m_timer(window)
{
    m_timer.setObjectName(QStringLiteral("tmrUnsavedCopy"));
    m_timer.setSingleShot(true);
    m_timer.setInterval(Delay);
    m_timer.callOnTimeout([this] { timedOut(); });
    gVocabList().setChangeHook([this](cVocabList::Change change) { listChanged(change); });
}

UnsavedCopy::~UnsavedCopy()
{
    gVocabList().setChangeHook({});
}

void UnsavedCopy::giveUp()
{
    m_timer.stop();
    remove();
}

void UnsavedCopy::listChanged(cVocabList::Change change)
{
    if (change == cVocabList::Change::OfEntries) {
        if (!m_timer.isActive())
            m_timer.start();
        return;
    }
    // Without gChanged the person was not asked about saving.
    const bool isWanted = change == cVocabList::Change::Replaced && !gChanged;
    // A copy that the person has opened, or saved a list over, is no longer a copy.
    if (isWanted || isSameFile(m_path, gFileName))
        m_path.clear();
    giveUp();
}

void UnsavedCopy::timedOut()
{
    if (isHandlerAtWork()) {
        m_timer.start();
        return;
    }
    // An export, or an import that adds nothing, clears gChanged without saving the list.
    if (!gChanged && m_path.isEmpty())
        return;
    try {
        write();
    } catch (const std::exception &) {
        // The disk is full or not writable, or there is not enough memory.
    }
}

void UnsavedCopy::write()
{
    const QByteArray bytes = gVocabList().fileBytes();
    const QString title = listTitle();
    QString path = m_path;
    if (title != m_title || !isOwnFile()) {
        const QString folder = pathOf(Place::WordLists);
        QDir().mkpath(folder);
        path = freePath(folder, title);
    }
    BinaryFile::replace(path, bytes);
    if (path != m_path)
        remove();
    m_path = path;
    m_title = title;
    m_written = QFileInfo(path).lastModified();
}

void UnsavedCopy::remove()
{
    if (isOwnFile())
        QFile::remove(m_path);
    m_path.clear();
}

// False where the person has removed it or written over it.
bool UnsavedCopy::isOwnFile() const
{
    return !m_path.isEmpty() && QFileInfo(m_path).lastModified() == m_written;
}
