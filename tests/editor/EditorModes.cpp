// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorModes.h"

using namespace Qt::StringLiterals;

QStringList EditorModes::look(const QStringList &buttons, Boxes boxes)
{
    const QString word = boxes == Boxes::Disabled ? u"disabled"_s : u"enabled"_s;
    const QString others = boxes == Boxes::Enabled ? u"enabled"_s : u"disabled"_s;
    return buttons + QStringList{u"txtWord: "_s + word, u"txtDefinition: "_s + others,
                                 u"txtSentence: "_s + others};
}

QStringList EditorModes::idle()
{
    return look({u"cmdNewWord: &New Word default"_s, u"cmdAdd: hidden"_s,
                 u"cmdAbort: A&bort disabled"_s, u"cmdDelete: &Delete disabled"_s,
                 u"cmdSearch: &Search enabled"_s},
                Boxes::Disabled);
}

QStringList EditorModes::newWord()
{
    return look({u"cmdNewWord: hidden"_s, u"cmdAdd: &Add default"_s, u"cmdAbort: A&bort enabled"_s,
                 u"cmdDelete: &Delete disabled"_s, u"cmdSearch: &Search disabled"_s},
                Boxes::Enabled);
}

QStringList EditorModes::editing()
{
    return look({u"cmdNewWord: hidden"_s, u"cmdAdd: &Update default"_s,
                 u"cmdAbort: A&bort enabled"_s, u"cmdDelete: &Delete enabled"_s,
                 u"cmdSearch: &Search disabled"_s},
                Boxes::Enabled);
}

QStringList EditorModes::searching()
{
    return look({u"cmdNewWord: &New Word disabled"_s, u"cmdAdd: hidden"_s,
                 u"cmdAbort: A&bort enabled"_s, u"cmdDelete: &Delete disabled"_s,
                 u"cmdSearch: &Search default"_s},
                Boxes::WordOnly);
}

QStringList EditorModes::found()
{
    return look({u"cmdNewWord: &New Word disabled"_s, u"cmdAdd: hidden"_s,
                 u"cmdAbort: A&bort enabled"_s, u"cmdDelete: &Delete enabled"_s,
                 u"cmdSearch: &Search default"_s},
                Boxes::WordOnly);
}

QStringList EditorModes::filledRow(int position)
{
    const QString number = QString::number(position);
    return {number, u"word "_s + number, u"definition "_s + number, u"sentence "_s + number};
}

QStringList EditorModes::numberedRow(int number)
{
    return {QString::number(number), {}, {}, {}};
}

QStringList EditorModes::emptyRow()
{
    return {{}, {}, {}, {}};
}
