// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/RecordGiorno.h"

#include <QRect>

/// Where everything on the page is as designed, in logical pixels from the corner of the desk. PaperSheet shows it
/// larger or smaller.
namespace zelvia::PageLayout
{

inline constexpr QRect kDesk{0, 0, 1200, 648};
inline constexpr QRect kLeftPage{24, 12, 576, 624};
inline constexpr QRect kRightPage{600, 12, 576, 624};
inline constexpr QRect kLeast{20, 8, 1160, 632}; ///< What is shown of the desk at least.
inline constexpr double kLeastFactor = 0.7;
inline constexpr double kMostFactor = 2.5;

// Left page: the head, then one row a field.
inline constexpr QRect kDate{49, 33, 440, 53};
inline constexpr QRect kDayCell{492, 33, 41, 53}; ///< Of the arrows of the day.
inline constexpr QRect kMonthCell{534, 33, 41, 53};
inline constexpr int kArrowsHeight = 34; ///< Below them a cell has its name.
/// The rules that frame the date and its arrows.
struct DateRule {
    const char* name;
    QRect place;
    bool accent; ///< In the accent's ink; otherwise in that of the rules.
};
inline constexpr DateRule kDateRules[] = {
    {"chkBordoSup", {48, 28, 528, 2}, true},      {"chkBordoSup2", {48, 32, 528, 1}, true},
    {"chkBordoInf", {48, 86, 528, 2}, true},      {"chkBarraGiorno1", {48, 33, 1, 53}, false},
    {"chkBarraGiorno2", {491, 33, 1, 53}, false}, {"chkBarraGiorno3", {533, 33, 1, 53}, false},
    {"chkBarraGiorno4", {575, 33, 1, 53}, false},
};
/// The arrows of a cell.
constexpr QRect DateSpin(const QRect& cell)
{
    constexpr int width = 24;
    return {cell.left() + (cell.width() - width) / 2 + 1, cell.top() + 3, width, kArrowsHeight};
}
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
inline constexpr int kDistanceStep = 58; ///< The same where a unit follows each.
inline constexpr int kListEntries = 8;   ///< How many a list shows at most.

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
    return {kSpinLeft + index * (row == Km ? kDistanceStep : kSpinStep), RowTop(row), 20, kRowHeight};
}
inline constexpr QRect kUnits{kSpinLeft, RowTop(Km), kRowRight - kSpinLeft, kRowHeight};
/// The box of an open value reaches from rule to rule, for the hand is as high as the row; in it the text stays where
/// it was.
constexpr QRect Box(const QRect& value)
{
    return value.adjusted(-4, -2, 0, 2);
}
/// A list opens under the box of its row, or over it where the page ends.
constexpr QRect List(int row, int height)
{
    const QRect box = Box(Value(row));
    const int below = box.bottom() + 1;
    return {box.left(), below + height <= kLeftPage.bottom() - 8 ? below : box.top() - height, box.width(), height};
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
inline constexpr QRect kOrderedList{636, 57, 508, 204}; ///< Its frame is below the heads.
inline constexpr int kOrderedText = 5;                  ///< From the edge of the list to its text.

inline constexpr int kNotesTop = 306;
inline constexpr int kNoteStep = 29;
constexpr QRect Note(int line)
{
    return {648, kNotesTop + (line - kFirstNote) * kNoteStep, 480, kRowHeight};
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
// At the outer edge of the right page: the tabs of the months, and the rosette of a race over the slip's corner.
inline constexpr QRect kThumbIndex{1155, 84, 21, 12 * 44};
inline constexpr QRect kRosette{1148, 14, 24, 48};
inline constexpr QRect kFileName{kValueLeft + 2, 600, 290, 24};
inline constexpr QRect kFileCaption{56, 600, 100, 24};

} // namespace zelvia::PageLayout
