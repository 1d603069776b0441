// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/FigureTable.h"

namespace zelvia
{
namespace
{

/// True for what lines up on its last digit.
bool IsNumber(const QString& cell)
{
    return !cell.isEmpty() && std::all_of(cell.begin(), cell.end(), [](QChar c) {
        return c.isDigit() || c == QLatin1Char(',') || c == QLatin1Char('.') || c == QLatin1Char(':');
    });
}

} // namespace

void FigureTable::Show(const Figure& figure)
{
    beginResetModel();
    heads_ = figure.heads;
    rows_ = figure.rows;
    endResetModel();
}

QString FigureTable::Text() const
{
    QString text = heads_.join(QLatin1Char('\t')) + QLatin1Char('\n');
    for (const QStringList& row : rows_) {
        text += row.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

int FigureTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int FigureTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(heads_.size());
}

QVariant FigureTable::data(const QModelIndex& index, int role) const
{
    const QString cell = rows_.value(index.row()).value(index.column());
    switch (role) {
    case Qt::DisplayRole: return cell;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | (IsNumber(cell) ? Qt::AlignRight : Qt::AlignLeft));
    default: return {};
    }
}

QVariant FigureTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return heads_.value(section);
    }
    return {};
}

} // namespace zelvia
