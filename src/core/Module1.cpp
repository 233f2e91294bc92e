// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"

#include "core/cVocabList.h"

cVocabList &Module1::gVocabList()
{
    static cVocabList list;
    return list;
}

cVocabList &Module1::gImportList()
{
    static cVocabList list;
    return list;
}

cVocabList &Module1::gExportList()
{
    static cVocabList list;
    return list;
}
