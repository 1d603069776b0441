// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's data: its boxes and the columns in memory.
#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/TableModel.h"
#include "windows/plan/FrmAllenamento.h"

#include <utility>

namespace zelvia
{

using namespace Module1;
using namespace TableGrid;

namespace
{

const CalendarDate kNoStartDate(2000, 1, 1);

} // namespace

int frmAllenamento::DateNumber(std::size_t index) const
{
    return Parsed<i16>(dateBoxes[index]->Content()).value();
}

CalendarDate frmAllenamento::DateOfBoxes() const
{
    return DateValue(dateBoxes[0]->Content() + "/" + dateBoxes[1]->Content() + "/" + dateBoxes[2]->Content());
}

void frmAllenamento::AssegnaTab(i16 row)
{
    Trap("AssegnaTab - ERRORE : ", [&] {
        for (int column = 0; column < kColumns; ++column) {
            grid_.Store(column, row.value(), row.value());
        }
        if (ContaCampiData() == 3) {
            TabDataInizio = DateOfBoxes();
        }
    });
}

void frmAllenamento::CopiaRiga(i16 target, i16 source)
{
    for (int column = 0; column < kColumns; ++column) {
        SetCell(grid_.Column(column).cell(target.value()), Content(column, source.value()), CellFormat::Plain);
    }
}

void frmAllenamento::AzzeraRiga(i16 row)
{
    for (const GridColumn& column : kPlanColumns) {
        SetCell(column.cell(row.value()), {}, column.format);
    }
}

void frmAllenamento::ShowRow(int row)
{
    if (TabRipetVolte[row] != 0) {
        grid_.ShowSigns(row, true);
    }
    for (int column = 0; column < kColumns; ++column) {
        grid_.Box(column, row)->SetContent(grid_.Stored(column, row));
    }
}

void frmAllenamento::ShowStartDate()
{
    if (TabDataInizio > kNoStartDate) {
        start_.ShowSigns(1, true);
        dateBoxes[0]->SetContent(PlainText(TabDataInizio.Day()));
        dateBoxes[1]->SetContent(PlainText(TabDataInizio.Month()));
        dateBoxes[2]->SetContent(PlainText(TabDataInizio.Year()));
    }
}

void frmAllenamento::TabAssegnaTxt()
{
    Trap("TabAssegnaTxt - ERRORE : ", [this] {
        for (int row = 1; row <= kRows; ++row) {
            ShowRow(row);
        }
        ShowStartDate();
    });
}

bool frmAllenamento::RowDiffers(int row) const
{
    bool differs = false;
    for (int column = 0; column < kColumns; ++column) {
        // Each box is read, so that an unreadable one is reported.
        differs = !grid_.Holds(column, row, row) || differs;
    }
    return differs;
}

i16 frmAllenamento::ControllaSaveTab()
{
    i16 result = 0;
    Trap("ControllaSaveTab - ERRORE : ", [&] {
        for (int row = 1; row <= kRows; ++row) {
            if (RowDiffers(row)) {
                result = 1;
            }
        }
        if (ContaCampiData() == 3 && DateOfBoxes() != TabDataInizio) {
            result = 1;
        }
    });
    return result;
}

i16 frmAllenamento::ContaCampiData()
{
    ControlloData();
    i16 valid = 0;
    const std::pair<int, int> fields[] = {{DateNumber(0), 31}, {DateNumber(1), 12}, {DateNumber(2), 2099}};
    for (const auto& [value, highest] : fields) {
        if (value >= 1 && value <= highest) {
            valid += 1;
        }
    }
    return valid;
}

void frmAllenamento::ControlloData()
{
    Trap("ControlloData - ERRORE : ", [this] {
        const auto correct = [this](std::size_t index, const Message& message, TextView value) {
            MsgBox(message);
            dateBoxes[index]->SetContent(value);
        };
        for (const int shortMonth : {4, 6, 9, 11}) {
            if (DateNumber(1) == shortMonth && DateNumber(0) > 30) {
                correct(0, Messages::kStartMax30, "30");
            }
        }
        const bool leap = DateNumber(2) % 4 == 0;
        if (leap && DateNumber(1) == 2 && DateNumber(0) > 29) {
            correct(0, Messages::kStartMax29, "29");
        }
        if (!leap && DateNumber(1) == 2 && DateNumber(0) > 28) {
            correct(0, Messages::kStartMax28, "28");
        }
        if (DateNumber(0) < 1 && DateNumber(1) < 1 && DateNumber(2) < 1) {
            return;
        }
        if (DateNumber(0) < 1) {
            correct(0, Messages::kStartMinDay, "1");
        }
        if (DateNumber(1) < 1) {
            correct(1, Messages::kStartMinMonth, "1");
        }
        constexpr int firstYear = 2008;
        if (DateNumber(2) < firstYear) {
            correct(2, Messages::kPlanMinYear, "2008");
        }
    });
}

} // namespace zelvia
