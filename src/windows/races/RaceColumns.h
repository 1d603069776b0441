// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/CalendarModel.h"
#include "diary/CalendarSheet.h"
#include "diary/Limits.h"
#include "toolkit/BoxGrid.h"

#include <array>

/// The columns of the race calendar's grid, and the places of the window. Races count from 1 to 100.
namespace zelvia::CalendarGrid
{

using enum CellFormat;
using namespace Limits;

inline constexpr std::array<GridColumn, kColumns> kRaceColumns = {{
    {"txtGiornoGara", 2, true, kDay, Plain, 66, 34, "giorno", CellOf<Module1::GiornoGara>},
    {"txtMeseGara", 2, true, kMonth, Plain, 115, 34, "mese", CellOf<Module1::MeseGara>},
    {"txtAnnoGara", 4, true, kYear, Plain, 165, 48, "anno", CellOf<Module1::AnnoGara>},
    {"txtGare", 31, false, kNone, Capitals, 224, 252, "nome", CellOf<Module1::Gara>},
    {"txtLocalita", 20, false, kNone, Capitals, 486, 168, "località"_t, CellOf<Module1::Localita>},
    {"txtKm", 2, true, kNone, Plain, 664, 34, "chilometri", CellOf<Module1::KmGara>},
    {"txtMetri", 3, true, kNone, ThreeDigits, 706, 42, "metri", CellOf<Module1::MetriGara>},
    {"txtPartecipanti", 7, true, kRunners, Thousands, 758, 76, "partecipanti", CellOf<Module1::Partecipanti>, false},
    {"txtRisultato", 7, true, kRunners, Thousands, 844, 76, "risultato", CellOf<Module1::Risultato>, false},
    {"txtOre", 2, true, kHours, Plain, 930, 34, "tempo, ore", CellOf<Module1::OreGara>},
    {"txtMinuti", 2, true, kMinutes, TwoDigits, 972, 34, "tempo, minuti", CellOf<Module1::MinutiGara>},
    {"txtSecondi", 2, true, kSeconds, TwoDigits, 1014, 34, "tempo, secondi", CellOf<Module1::SecondiGara>},
    {"txtCategoria", 8, false, kNone, Plain, 1058, 84, "categoria", CellOf<Module1::Categoria>},
    {"txtRisultatoCat", 7, true, kRunners, Thousands, 1152, 76, "risultato di categoria", CellOf<Module1::RisultatoCat>,
     false},
}};

/// The heads of the columns, in their order.
inline constexpr std::array<TextView, kColumns> kHeads = {"gg", "mm",    "aaaa",         "Gara",      "Località"_t,
                                                          "km", "metri", "Partecipanti", "Risultato", "hh",
                                                          "mm", "ss",    "Categoria",    "categoria"};

/// What a box shows of a race: no date for one without a day.
Text RaceText(int column, int race);

/// True when the text of a box means another value than the race's, ignoring the case of texts.
bool RaceDiffers(int column, int race, TextView text);

// The two dashes between the boxes of the date.
inline constexpr TextView kDateStrip = "      -      -    ";
inline constexpr TextView kBlankDateStrip = "                  ";

/// The labels of a row that serve the print-out, each with the box that it copies.
struct PrintLabel {
    const char* name;
    RaceColumn box;
};

inline constexpr std::array<PrintLabel, 6> kPrintLabels = {{{"lblGara", RaceColumn::Gara},
                                                            {"lblLocalita", RaceColumn::Localita},
                                                            {"lblPartecipanti", RaceColumn::Partecipanti},
                                                            {"lblRisultato", RaceColumn::Risultato},
                                                            {"lblCategoria", RaceColumn::Categoria},
                                                            {"lblRisulCategoria", RaceColumn::RisultatoCat}}};

// Places, in logical pixels.
inline constexpr int kWidth = 1254;
inline constexpr int kHeight = 690;
inline constexpr int kNumberLeft = 22;
inline constexpr int kNumberWidth = 32;
inline constexpr int kDateStripLeft = 60;
inline constexpr int kDateStripWidth = 156;
inline constexpr int kUpperHeads = 76;
inline constexpr int kLowerHeads = 92;
inline constexpr int kHeadHeight = 18;
inline constexpr int kTop = 116;
inline constexpr int kStep = 26;
inline constexpr int kBoxHeight = 23;

constexpr int RowTop(int row)
{
    return kTop + (row - 1) * kStep;
}

} // namespace zelvia::CalendarGrid
