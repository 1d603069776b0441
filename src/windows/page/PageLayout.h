// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

/// Where everything of the page stands, in logical pixels from the corner of the page's desk.
namespace zelvia::PageLayout
{

inline constexpr QRect kDesk{0, 0, 1200, 648};
inline constexpr QRect kLeftPage{24, 12, 576, 624};
inline constexpr QRect kRightPage{600, 12, 576, 624};

// Left page: the head, then one row a field.
inline constexpr QRect kDate{49, 34, 440, 43};
inline constexpr int kCaptionLeft = 56;
inline constexpr int kCaptionWidth = 108;
inline constexpr int kValueLeft = 168;
inline constexpr int kValueWidth = 232;
inline constexpr int kRowsTop = 94;
inline constexpr int kRowStep = 29;
inline constexpr int kRowHeight = 26;
inline constexpr int kRowRight = 576;
inline constexpr int kSpinLeft = 412;
inline constexpr int kSpinStep = 24;
inline constexpr int kListHeight = 152;

/// Rows of the left page.
enum Row {
    Percorso,
    Lunghezza,
    Km,
    Andatura,
    Terreno,
    Tipo,
    OraInizio,
    OraFine,
    Tempo,
    Media,
    Stagione,
    Meteo,
    Temperatura,
    Corridori,
    Peso,
    Ripetizioni,
    Parziali,
    kRows ///< How many there are.
};

constexpr int RowTop(int row)
{
    return kRowsTop + row * kRowStep;
}
constexpr QRect Caption(int row)
{
    return {kCaptionLeft, RowTop(row), kCaptionWidth, kRowHeight};
}
constexpr QRect Value(int row)
{
    return {kValueLeft, RowTop(row), kValueWidth, kRowHeight};
}
/// The `index`-th spin control, from 0 on, of a row.
constexpr QRect Spin(int row, int index)
{
    return {kSpinLeft + index * kSpinStep, RowTop(row), 20, kRowHeight};
}
/// A list opens under its row, or over it where the page ends.
constexpr QRect List(int row)
{
    const int below = RowTop(row) + kRowHeight + 1;
    const int top = below + kListHeight <= kLeftPage.bottom() - 8 ? below : RowTop(row) - kListHeight - 1;
    return {kValueLeft, top, kValueWidth, kListHeight};
}

// The three values of the repetitions and the two of the splits share a row.
inline constexpr QRect kVolte{168, RowTop(Ripetizioni), 34, kRowHeight};
inline constexpr QRect kPer{204, RowTop(Ripetizioni), 18, kRowHeight};
inline constexpr QRect kDistanza{226, RowTop(Ripetizioni), 62, kRowHeight};
inline constexpr QRect kIn{292, RowTop(Ripetizioni), 20, kRowHeight};
inline constexpr QRect kQuante{316, RowTop(Ripetizioni), 84, kRowHeight};
inline constexpr QRect kTempoKM{168, RowTop(Parziali), 54, kRowHeight};
inline constexpr QRect kTempoMinuti{226, RowTop(Parziali), 174, kRowHeight};
inline constexpr QRect kListaKM{168, RowTop(Parziali) - 154, 232, 152};
inline constexpr QRect kImmetti{410, RowTop(Parziali) - 32, 162, 30};

// Right page: the slip of the plan or the race, the notes, the counters.
inline constexpr QRect kSlip{628, 28, 524, 240};
inline constexpr int kSlipCaptionLeft = 648;
inline constexpr int kSlipCaptionWidth = 140;
inline constexpr int kSlipValueLeft = 792;
inline constexpr int kSlipValueWidth = 344;
inline constexpr int kSlipTop = 42;

constexpr int SlipRow(int row, int step)
{
    return row == 0 ? kSlipTop : kSlipTop + 36 + (row - 1) * step;
}
inline constexpr int kPlanStep = 30;
inline constexpr int kRaceStep = 26;

inline constexpr QRect kOrderedHeads{636, 36, 508, 24};
inline constexpr QRect kOrderedList{636, 60, 508, 204};

inline constexpr int kNotesTop = 306;
inline constexpr int kNoteStep = 29;
constexpr QRect Note(int line)
{
    return {648, kNotesTop + (line - 3) * kNoteStep, 480, kRowHeight};
}
inline constexpr QRect kNotesHead{636, 278, 200, 26};

inline constexpr int kCountersTop = 552;
constexpr QRect CounterPicture(int index)
{
    return {636 + index * 128, kCountersTop, 42, 42};
}
constexpr QRect CounterValue(int index)
{
    return {682 + index * 128, kCountersTop, 78, 42};
}
constexpr QRect CounterCaption(int index)
{
    return {636 + index * 128, kCountersTop + 43, 124, 18};
}
inline constexpr QRect kFileName{160, 600, 300, 24};
inline constexpr QRect kFileCaption{56, 600, 100, 24};

} // namespace zelvia::PageLayout
