// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ChartData.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"

namespace zelvia
{
namespace
{

/// An item by its number, which counts from 1.
template <typename Items>
auto& At(Items& items, int number)
{
    if (number < 1 || static_cast<std::size_t>(number) > items.size()) {
        throw ErroreRunTime(Errore::Indice);
    }
    return items[static_cast<std::size_t>(number - 1)];
}

std::size_t Size(int count)
{
    if (count < 0) {
        throw ErroreRunTime(Errore::Indice);
    }
    return static_cast<std::size_t>(count);
}

} // namespace

void ChartData::SetColumnCount(int count)
{
    columnLabels_.resize(Size(count));
    columns_.resize(Size(count), std::vector<double>(rowLabels_.size()));
}

void ChartData::SetRowCount(int count)
{
    rowLabels_.resize(Size(count));
    for (std::vector<double>& column : columns_) {
        column.resize(Size(count));
    }
}

void ChartData::SetData(TextView number)
{
    At(At(columns_, Column), Row) = LocaleDouble(number);
}

double ChartData::Data(int row, int column) const
{
    return At(At(columns_, column), row);
}

void ChartData::SetColumnLabel(TextView label)
{
    At(columnLabels_, Column) = label;
}

void ChartData::SetRowLabel(TextView label)
{
    At(rowLabels_, Row) = label;
}

const Text& ChartData::ColumnLabel(int column) const
{
    return At(columnLabels_, column);
}

const Text& ChartData::RowLabel(int row) const
{
    return At(rowLabels_, row);
}

} // namespace zelvia
