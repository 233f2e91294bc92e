// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/EditorModes.h"

QStringList EditorModes::look(const QStringList &buttons, Boxes boxes)
{
    const QString word =
        boxes == Boxes::Disabled ? QStringLiteral("disabled") : QStringLiteral("enabled");
    const QString others =
        boxes == Boxes::Enabled ? QStringLiteral("enabled") : QStringLiteral("disabled");
    return buttons + QStringList{QStringLiteral("txtWord: ") + word,
                                 QStringLiteral("txtDefinition: ") + others,
                                 QStringLiteral("txtSentence: ") + others};
}

QStringList EditorModes::idle()
{
    return look({QStringLiteral("cmdNewWord: &New Word default"), QStringLiteral("cmdAdd: hidden"),
                 QStringLiteral("cmdAbort: A&bort disabled"),
                 QStringLiteral("cmdDelete: &Delete disabled"),
                 QStringLiteral("cmdSearch: &Search enabled")},
                Boxes::Disabled);
}

QStringList EditorModes::newWord()
{
    return look({QStringLiteral("cmdNewWord: hidden"), QStringLiteral("cmdAdd: &Add default"),
                 QStringLiteral("cmdAbort: A&bort enabled"),
                 QStringLiteral("cmdDelete: &Delete disabled"),
                 QStringLiteral("cmdSearch: &Search disabled")},
                Boxes::Enabled);
}

QStringList EditorModes::editing()
{
    return look({QStringLiteral("cmdNewWord: hidden"), QStringLiteral("cmdAdd: &Update default"),
                 QStringLiteral("cmdAbort: A&bort enabled"),
                 QStringLiteral("cmdDelete: &Delete enabled"),
                 QStringLiteral("cmdSearch: &Search disabled")},
                Boxes::Enabled);
}

QStringList EditorModes::searching()
{
    return look({QStringLiteral("cmdNewWord: &New Word disabled"), QStringLiteral("cmdAdd: hidden"),
                 QStringLiteral("cmdAbort: A&bort enabled"),
                 QStringLiteral("cmdDelete: &Delete disabled"),
                 QStringLiteral("cmdSearch: &Search default")},
                Boxes::WordOnly);
}

QStringList EditorModes::found()
{
    return look({QStringLiteral("cmdNewWord: &New Word disabled"), QStringLiteral("cmdAdd: hidden"),
                 QStringLiteral("cmdAbort: A&bort enabled"),
                 QStringLiteral("cmdDelete: &Delete enabled"),
                 QStringLiteral("cmdSearch: &Search default")},
                Boxes::WordOnly);
}

QStringList EditorModes::filledRow(int position)
{
    const QString number = QString::number(position);
    return {number, QStringLiteral("word ") + number, QStringLiteral("definition ") + number,
            QStringLiteral("sentence ") + number};
}
