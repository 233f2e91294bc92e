// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CommonDialog.h"

#include "platform/Paths.h"
#include "platform/Screen.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QListView>
#include <QPixmapCache>
#include <QScopeGuard>
#include <QSettings>
#include <QTreeView>
#include <QUrl>

#include <algorithm>

namespace {

// The size and place of the dialog that was open last.
QByteArray &lastGeometry()
{
    static QByteArray geometry;
    return geometry;
}

// Names the kinds of files that the program reads and writes, whether the desktop knows them or
// not.
class FileKinds final : public QFileIconProvider
{
public:
    [[nodiscard]] QString type(const QFileInfo &info) const override
    {
        static const QHash<QString, QString> kinds{
            {QStringLiteral("lwx"), QStringLiteral("Word list")},
            {QStringLiteral("dif"), QStringLiteral("Spreadsheet data")},
            {QStringLiteral("txt"), QStringLiteral("Text file")},
            {QStringLiteral("pdf"), QStringLiteral("PDF document")}};
        const QString kind = info.isDir() ? QString() : kinds.value(info.suffix().toLower());
        return kind.isEmpty() ? QFileIconProvider::type(info) : kind;
    }
};

class FileDialog final : public QFileDialog
{
public:
    FileDialog(QWidget *parent, const QString &title) : QFileDialog(parent, title)
    {
        setObjectName(QStringLiteral("CommonDialog"));
        setIconProvider(&m_kinds);
        if (const QString lists = pathOf(Place::WordLists); QFileInfo(lists).isDir())
            setSidebarUrls(sidebarUrls() << QUrl::fromLocalFile(lists));
        const int line = fontMetrics().height();
        openWithSize(*this, {53 * line, 33 * line});
        restoreGeometry(lastGeometry());
        widenColumns();
        // Qt's label of this box is not its buddy.
        if (auto *types = findChild<QComboBox *>(QStringLiteral("fileTypeCombo")))
            types->setAccessibleName(QStringLiteral("Files of type"));
    }

protected:
    void done(int result) override
    {
        lastGeometry() = saveGeometry();
        QFileDialog::done(result);
    }

private:
    // So that names and dates are read whole. A dialog of the desktop has no such views.
    void widenColumns()
    {
        if (const auto *files = findChild<QTreeView *>(QStringLiteral("treeView")))
            files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        if (auto *places = findChild<QListView *>(QStringLiteral("sidebar"))) {
            const int wanted = places->sizeHintForColumn(0) + 2 * places->frameWidth();
            places->setMinimumWidth(std::min(wanted, width() / 4));
        }
    }

    FileKinds m_kinds;
};

// "Lists (*.lwx)|*.lwx" becomes "Lists (*.lwx) (*.lwx)": Qt takes the pattern from the last
// brackets and, told to hide the details, shows what stands before them.
QStringList nameFilters(const QString &filter)
{
    QStringList filters;
    const QStringList parts = filter.split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString pattern =
            parts[i + 1] == QLatin1String("*.*") ? QStringLiteral("*") : parts[i + 1];
        filters += QStringLiteral("%1 (%2)").arg(parts[i], pattern);
    }
    return filters;
}

// The folder itself, or where it is missing the nearest one above it.
QString existingFolder(const QString &path)
{
    QString folder = QDir(path).absolutePath();
    while (!QFileInfo(folder).isDir())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

// In a folder that is missing the name of the file alone is offered; Qt would show the path.
void offer(QFileDialog &dialog, const QString &path)
{
    const QFileInfo file(path);
    dialog.selectFile(file.dir().exists() ? path : dialog.directory().filePath(file.fileName()));
}

} // namespace

bool CommonDialog::ShowOpen(QWidget *parent)
{
    return show(parent, Purpose::Open);
}

bool CommonDialog::ShowSave(QWidget *parent)
{
    return show(parent, Purpose::Save);
}

bool CommonDialog::show(QWidget *parent, Purpose purpose)
{
    // Each file dialog makes its icons anew, and Qt caches how they are drawn under names that no
    // other dialog asks for. The cache would fill up with them, and the names would stay for good.
    const auto restore =
        qScopeGuard([limit = QPixmapCache::cacheLimit()] { QPixmapCache::setCacheLimit(limit); });
    QPixmapCache::setCacheLimit(0);
    // Qt's dialog writes the folders it has shown to the person's settings. In this place it
    // cannot.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    FileDialog dialog(parent, DialogTitle);
    dialog.setAcceptMode(purpose == Purpose::Open ? QFileDialog::AcceptOpen
                                                  : QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(nameFilters(Filter));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !OverwritePrompt);
    dialog.setDefaultSuffix(DefaultExt);
    dialog.setDirectory(existingFolder(!InitDir.isEmpty() ? InitDir : m_lastFolder));
    if (!FileName.isEmpty())
        offer(dialog, FileName);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const QFileInfo chosen(dialog.selectedFiles().constFirst());
    FileName = QDir::toNativeSeparators(chosen.absoluteFilePath());
    FileTitle = chosen.fileName();
    m_lastFolder = chosen.absolutePath();
    return true;
}
