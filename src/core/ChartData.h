// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundedArray.h"
#include "core/Conversions.h"
#include "core/Text.h"

#include <limits>
#include <vector>

namespace zelvia
{

/// The kinds of chart, by their numbers in the chart control.
enum class ChartType { Bars = 1, Line = 3 };

/// What a chart shows: a title and a grid of values, each column a series. Row and Column choose the cell that is set;
/// rows and columns count from 1, and a cell outside the grid raises error 9.
class ChartData
{
    static std::size_t Size(int count) { return OffsetWithin(count, 0, std::numeric_limits<int>::max()); }
    static auto& At(auto& items, int number) { return items[OffsetWithin(number, 1, static_cast<int>(items.size()))]; }

public:
    ChartType chartType = ChartType::Bars;
    Text TitleText;
    int Row = 1;
    int Column = 1;

    /// Resize the grid; remaining cells and labels keep their content, new ones are 0 and empty.
    void SetColumnCount(int count)
    {
        columnLabels_.resize(Size(count));
        columns_.resize(Size(count), std::vector<double>(rowLabels_.size()));
    }
    void SetRowCount(int count)
    {
        rowLabels_.resize(Size(count));
        for (std::vector<double>& column : columns_) {
            column.resize(Size(count));
        }
    }
    int ColumnCount() const { return static_cast<int>(columnLabels_.size()); }
    int RowCount() const { return static_cast<int>(rowLabels_.size()); }

    /// Takes a number as the Italian locale writes it. Raises error 13 for a text that is not a number.
    void SetData(TextView number) { At(At(columns_, Column), Row) = LocaleDouble(number); }
    double Data(int row, int column) const { return At(At(columns_, column), row); }

    void SetColumnLabel(TextView label) { At(columnLabels_, Column) = label; }
    void SetRowLabel(TextView label) { At(rowLabels_, Row) = label; }
    const Text& ColumnLabel(int column) const { return At(columnLabels_, column); }
    const Text& RowLabel(int row) const { return At(rowLabels_, row); }

    friend bool operator==(const ChartData&, const ChartData&) = default;

private:
    std::vector<Text> columnLabels_;
    std::vector<Text> rowLabels_;
    std::vector<std::vector<double>> columns_;
};

} // namespace zelvia
