// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/DeskPages.h"

#include <QtGlobal>

#include <array>

namespace zelvia
{

std::span<const PageRow> PageRows()
{
    static constexpr std::array rows = {
        PageRow{"anno", QT_TRANSLATE_NOOP("DeskPages", "Anno nuovo"), MakeNewYearPage},
        PageRow{"anni", QT_TRANSLATE_NOOP("DeskPages", "Anni passati"), MakeYearsPage},
        PageRow{"ripara", QT_TRANSLATE_NOOP("DeskPages", "Controlla e ripara"), MakeCheckPage},
        PageRow{"giornale", QT_TRANSLATE_NOOP("DeskPages", "Giornale"), MakeJournalPage},
        PageRow{"copie", QT_TRANSLATE_NOOP("DeskPages", "Copie"), MakeCopiesPage},
        PageRow{"unisci", QT_TRANSLATE_NOOP("DeskPages", "Due computer"), MakeMergePage},
        PageRow{"importa", QT_TRANSLATE_NOOP("DeskPages", "Dall'orologio"), MakeImportPage},
        PageRow{"esporta", QT_TRANSLATE_NOOP("DeskPages", "Esporta"), MakeExportPage},
        PageRow{"libro", QT_TRANSLATE_NOOP("DeskPages", "Libro"), MakeBookPage},
    };
    return rows;
}

} // namespace zelvia
