// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/QuietTexts.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString counted(int words)
{
    return words == 0   ? QStringLiteral("No words")
           : words == 1 ? QStringLiteral("1 word")
                        : QStringLiteral("%1 words").arg(words);
}

} // namespace

QuietTexts::Line QuietTexts::ofList(int words, bool isChanged, const SaveFile &file)
{
    const QString separator = QStringLiteral(" · ");
    QString text = counted(words);
    if (isChanged)
        text += separator + QStringLiteral("not saved");
    if (file.path.isEmpty())
        return file.isInCaption ? Line{text + separator, QStringLiteral("Save asks for a name")}
                                : Line{text, {}};
    const QFileInfo info(file.path);
    const QString save = QStringLiteral("Save writes ") + info.fileName();
    if (file.isInCaption)
        return {text + separator + save, {}};
    return {text + separator, save + QStringLiteral(" in ") + info.dir().dirName()};
}

QString QuietTexts::ofSameWord(int position, const VocabRecord &entry)
{
    QString text = QStringLiteral("In the list: %1 ").arg(position) + entry.Word;
    if (!entry.Definition.isEmpty())
        text += QStringLiteral(" - ") + entry.Definition;
    constexpr qsizetype most = 200; // more is not read in one line
    text = text.simplified();
    return text.size() > most ? text.left(most) + QStringLiteral("…") : text;
}

QString QuietTexts::ofHit(int hit, int hits)
{
    return QStringLiteral("%1 of %2 found. Click its row to change it.").arg(hit).arg(hits);
}

QString QuietTexts::ofTextFile(const QString &path)
{
    return QStringLiteral("Written to %1.").arg(QFileInfo(path).fileName());
}

QString QuietTexts::ofPrint(const QString &target)
{
    return QStringLiteral("Printed to %1.").arg(target);
}

QString QuietTexts::ofNoImport()
{
    return QStringLiteral("Nothing imported: the path may have one dot only, before lwx or dif.");
}

QString QuietTexts::ofImport(int added, int refused)
{
    const QString text = counted(added) + QStringLiteral(" added");
    if (refused == 0)
        return text + QLatin1Char('.');
    return text + QStringLiteral(", %1 not added: the list is full.").arg(refused);
}
