// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/TextRoutines.h"

#include <array>
#include <cstddef>

/// The columns of the table editor's grid as data: names, lengths, limits, messages, formats and places.
namespace zelvia::TableGrid
{

inline constexpr int kRows = 31;

enum Column {
    Km,
    Metri,
    Ore,
    Minuti,
    Secondi,
    MediaMinuti,
    MediaSecondi,
    MediaMillesimi,
    Andatura,
    Fondo,
    RipetVolte,
    RipetDistanza,
    RipetQuante,
    RipetTempi,
    kColumns
};

using Module1::Formato;

struct ColumnData {
    const char* name;
    int maxLength;
    bool digitsOnly;
    double limit; ///< The highest number accepted, 0 for no limit.
    TextView message;
    Formato formato;
    int left;
    int width;
    TextView spoken;
};

inline constexpr TextView kMaxOre = "MAX 24 ORE                ";
inline constexpr TextView kMaxMinuti59 = "MAX 59 MINUTI                ";
inline constexpr TextView kMaxSecondi = "MAX 59 SECONDI                ";
inline constexpr TextView kMaxMinuti60 = "MAX 60 MINUTI                 ";
inline constexpr TextView kMaxDistanza = "MAX 9.999                   ";

inline constexpr std::array<ColumnData, kColumns> kData = {{
    {"txtKm", 2, true, 0, {}, Formato::Nessuno, 58, 30, "chilometri"},
    {"txtMetri", 3, true, 0, {}, Formato::TreCifre, 92, 38, "metri"},
    {"txtOre", 2, true, 24, kMaxOre, Formato::Nessuno, 144, 30, "ore"},
    {"txtMinuti", 2, true, 59, kMaxMinuti59, Formato::DueCifre, 178, 30, "minuti"},
    {"txtSecondi", 2, true, 59, kMaxSecondi, Formato::DueCifre, 212, 30, "secondi"},
    {"txtMediaMinuti", 2, true, 60, kMaxMinuti60, Formato::Nessuno, 256, 30, "media, minuti"},
    {"txtMediaSecondi", 2, true, 59, kMaxSecondi, Formato::DueCifre, 290, 30, "media, secondi"},
    {"txtMediaMillesimi", 3, true, 0, {}, Formato::TreCifre, 324, 52, "media, millesimi"},
    {"txtAndatura", 22, false, 0, {}, Formato::Maiuscole, 390, 176, "andatura"},
    {"txtFondo", 22, false, 0, {}, Formato::Maiuscole, 580, 176, "terreno"},
    {"txtRipetVolte", 2, true, 0, {}, Formato::Nessuno, 774, 36, "ripetizioni, volte"},
    {"txtRipetDistanza", 5, true, 9999, kMaxDistanza, Formato::Migliaia, 832, 74, "ripetizioni, metri"},
    {"txtRipetQuante", 2, true, 60, kMaxMinuti60, Formato::Nessuno, 940, 34, "ripetizioni, minuti"},
    {"txtRipetTempi", 2, true, 59, kMaxSecondi, Formato::DueCifre, 990, 34, "ripetizioni, secondi"},
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
inline constexpr int kTop = 46;
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
struct DateBoxData {
    const char* name;
    int maxLength;
    double limit;
    TextView message;
    int left;
    int width;
    TextView spoken;
};

inline constexpr std::array<DateBoxData, 3> kDateBoxes = {
    {{"txtGiornoInizio", 2, 31, "MAX 31 GIORNI                 ", kPanelLeft + 8, 32, "data di inizio, giorno"},
     {"txtMeseInizio", 2, 12, "MAX 12 MESI                   ", kPanelLeft + 56, 34, "data di inizio, mese"},
     {"txtAnnoInizio", 4, 2099, "MAX ANNO 2099                 ", kPanelLeft + 108, 52, "data di inizio, anno"}}};

} // namespace zelvia::TableGrid
