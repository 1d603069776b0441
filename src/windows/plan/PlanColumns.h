// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/Limits.h"
#include "diary/TableModel.h"
#include "diary/TableSheet.h"
#include "toolkit/BoxGrid.h"
#include "toolkit/Colours.h"

#include <array>

/// The columns of the table editor's grid, and the places of the window.
namespace zelvia::TableGrid
{

using enum CellFormat;
using namespace Limits;

inline constexpr std::array<GridColumn, kColumns> kPlanColumns = {{
    {"txtKm", 2, true, kNone, Plain, 58, 30, "chilometri", CellOf<Module1::TabKm>},
    {"txtMetri", 3, true, kNone, ThreeDigits, 92, 38, "metri", CellOf<Module1::TabMetri>},
    {"txtOre", 2, true, kHours, Plain, 144, 30, "ore", CellOf<Module1::TabOre>},
    {"txtMinuti", 2, true, kMinutes, TwoDigits, 178, 30, "minuti", CellOf<Module1::TabMinuti>},
    {"txtSecondi", 2, true, kSeconds, TwoDigits, 212, 30, "secondi", CellOf<Module1::TabSecondi>},
    {"txtMediaMinuti", 2, true, kPaceMinutes, Plain, 256, 30, "media, minuti", CellOf<Module1::TabMediaMinuti>},
    {"txtMediaSecondi", 2, true, kSeconds, TwoDigits, 290, 30, "media, secondi", CellOf<Module1::TabMediaSecondi>},
    {"txtMediaMillesimi", 3, true, kNone, ThreeDigits, 324, 52, "media, millesimi", CellOf<Module1::TabMediaMillesimi>},
    {"txtAndatura", 22, false, kNone, Capitals, 390, 176, "andatura", CellOf<Module1::TabAndatura>},
    {"txtFondo", 22, false, kNone, Capitals, 580, 176, "terreno", CellOf<Module1::TabFondo>},
    {"txtRipetVolte", 2, true, kNone, Plain, 774, 36, "ripetizioni, volte", CellOf<Module1::TabRipetVolte>},
    {"txtRipetDistanza", 5, true, kRepetitionMetres, Thousands, 832, 74, "ripetizioni, metri",
     CellOf<Module1::TabRipetDistanza>},
    {"txtRipetQuante", 2, true, kPaceMinutes, Plain, 940, 34, "ripetizioni, minuti", CellOf<Module1::TabRipetQuante>},
    {"txtRipetTempi", 2, true, kSeconds, TwoDigits, 990, 34, "ripetizioni, secondi", CellOf<Module1::TabRipetTempi>},
}};

/// The coloured strips behind the boxes.
struct StripData {
    const char* name;
    int left;
    int width;
};

enum Strip { LblKmt, LblTempi, LblMedia, LblAndature, LblFondi, LblRipetizioni, kStrips };

inline constexpr std::array<StripData, kStrips> kStripData = {{{"lblKmt", 54, 80},
                                                               {"lblTempi", 140, 106},
                                                               {"lblMedia", 252, 128},
                                                               {"lblAndature", 386, 184},
                                                               {"lblFondi", 576, 184},
                                                               {"lblRipetizioni", 766, 264}}};

// The x, the @ and the point between the boxes of the repetitions, the bars between those of the date.
inline constexpr TextView kRepetitionStrip = "       x              @      .  ";
inline constexpr TextView kBlankRepetitionStrip = "                                ";
inline constexpr TextView kDateStrip = "      /      /    ";
inline constexpr TextView kBlankDateStrip = "                  ";

// Places, in logical pixels.
inline constexpr int kTop = 53;
inline constexpr int kStep = 20;
inline constexpr int kBoxHeight = 19;
inline constexpr int kPanelLeft = 1048;
inline constexpr int kWidth = 1240;
inline constexpr int kHeight = kTop + kRows * kStep + 8;

constexpr int RowTop(int row)
{
    return kTop + (row - 1) * kStep;
}

/// The three boxes of the start date.
inline constexpr std::array<GridColumn, 3> kStartColumns = {{
    {"txtGiornoInizio", 2, true, kDay, Plain, kPanelLeft + 8, 32, "data di inizio, giorno"},
    {"txtMeseInizio", 2, true, kMonth, Plain, kPanelLeft + 56, 34, "data di inizio, mese"},
    {"txtAnnoInizio", 4, true, kYear, Plain, kPanelLeft + 108, 52, "data di inizio, anno"},
}};

} // namespace zelvia::TableGrid

/// The colours of the table editor, given as red, green and blue.
namespace zelvia::TableColours
{

inline constexpr QColor Editing{0xC0, 0xC0, 0xC0}; ///< Text not yet accepted.
inline constexpr QColor Accepted{0xFF, 0xFF, 0xFF};
inline constexpr QColor Chosen{0x80, 0x80, 0xFF}; ///< The row of a right click.
inline constexpr QColor Active{0xFF, 0xFF, 0x00}; ///< The start date of the active table.
inline constexpr QColor Passed{0x80, 0x80, 0x80}; ///< Rows that the walk has left behind.
inline constexpr QColor Fore{0x00, 0x00, 0x00};   ///< Any other row: the grid is light on a dark desktop too.

} // namespace zelvia::TableColours
