// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/TextRoutines.h"

#include <array>
#include <cstddef>

/// The grid of the calendar's window as data: names, lengths, limits, messages, formats and places of its boxes.
namespace zelvia::CalendarGrid
{

using Module1::Formato;

inline constexpr int kRows = 20;
inline constexpr int kPages = 5;

/// The boxes of a row, in the order in which Enter moves on.
enum class Casella {
    Giorno,
    Mese,
    Anno,
    Gara,
    Localita,
    Km,
    Metri,
    Partecipanti,
    Risultato,
    Ore,
    Minuti,
    Secondi,
    Categoria,
    RisultatoCat
};

inline constexpr std::size_t kColumns = 14;

constexpr std::size_t IndexOf(Casella casella)
{
    return static_cast<std::size_t>(casella);
}

struct ColumnData {
    const char* name;
    int maxLength;
    bool digitsOnly;
    double limit; ///< The highest number accepted, 0 for no limit.
    TextView message;
    bool testedOnEnter; ///< Enter tests the limit itself; elsewhere the leaving that it causes does.
    Formato formato;
    int left;
    int width;
    TextView head;
    TextView spoken;
};

inline constexpr TextView kMaxGiorni = "MAX 31 GIORNI                 ";
inline constexpr TextView kMaxMesi = "MAX 12 MESI                   ";
inline constexpr TextView kMaxAnno = "MAX ANNO 2099                 ";
inline constexpr TextView kMaxMigliaia = "MAX 999.999                   ";
inline constexpr TextView kMaxOre = "MAX 24 ORE                ";
inline constexpr TextView kMaxMinuti = "MAX 59 MINUTI                ";
inline constexpr TextView kMaxSecondi = "MAX 59 SECONDI                ";

inline constexpr std::array<ColumnData, kColumns> kData = {{
    {"txtGiornoGara", 2, true, 31, kMaxGiorni, true, Formato::Nessuno, 66, 34, "gg", "giorno"},
    {"txtMeseGara", 2, true, 12, kMaxMesi, true, Formato::Nessuno, 115, 34, "mm", "mese"},
    {"txtAnnoGara", 4, true, 2099, kMaxAnno, true, Formato::Nessuno, 165, 48, "aaaa", "anno"},
    {"txtGare", 31, false, 0, {}, false, Formato::Maiuscole, 224, 252, "Gara", "nome"},
    {"txtLocalita", 20, false, 0, {}, false, Formato::Maiuscole, 486, 168, "Località"_t, "località"_t},
    {"txtKm", 2, true, 0, {}, false, Formato::Nessuno, 664, 34, "km", "chilometri"},
    {"txtMetri", 3, true, 0, {}, false, Formato::TreCifre, 706, 42, "metri", "metri"},
    {"txtPartecipanti", 7, true, 999999, kMaxMigliaia, false, Formato::Migliaia, 758, 76, "Partecipanti",
     "partecipanti"},
    {"txtRisultato", 7, true, 999999, kMaxMigliaia, false, Formato::Migliaia, 844, 76, "Risultato", "risultato"},
    {"txtOre", 2, true, 24, kMaxOre, true, Formato::Nessuno, 930, 34, "hh", "tempo, ore"},
    {"txtMinuti", 2, true, 59, kMaxMinuti, true, Formato::DueCifre, 972, 34, "mm", "tempo, minuti"},
    {"txtSecondi", 2, true, 59, kMaxSecondi, true, Formato::DueCifre, 1014, 34, "ss", "tempo, secondi"},
    {"txtCategoria", 8, false, 0, {}, false, Formato::Nessuno, 1058, 84, "Categoria", "categoria"},
    {"txtRisultatoCat", 7, true, 999999, kMaxMigliaia, false, Formato::Migliaia, 1152, 76, "categoria",
     "risultato di categoria"},
}};

constexpr const ColumnData& DataOf(Casella casella)
{
    return kData[IndexOf(casella)];
}

// The two dashes between the boxes of the date.
inline constexpr TextView kDateStrip = "      -      -    ";
inline constexpr TextView kBlankDateStrip = "                  ";

/// The labels of a row that serve the print-out, each with the box that it copies.
struct PrintLabel {
    const char* name;
    Casella box;
};

inline constexpr std::array<PrintLabel, 6> kPrintLabels = {{{"lblGara", Casella::Gara},
                                                            {"lblLocalita", Casella::Localita},
                                                            {"lblPartecipanti", Casella::Partecipanti},
                                                            {"lblRisultato", Casella::Risultato},
                                                            {"lblCategoria", Casella::Categoria},
                                                            {"lblRisulCategoria", Casella::RisultatoCat}}};

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

constexpr int RowTop(int riga)
{
    return kTop + (riga - 1) * kStep;
}

} // namespace zelvia::CalendarGrid
