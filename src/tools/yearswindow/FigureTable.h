// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/yearswindow/Figure.h"

#include <QAbstractTableModel>

namespace zelvia
{

/// The numbers of a figure as the rows of a table.
class FigureTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void Show(const Figure& figure);
    /// With its heads, tabs between the cells and a line for each row.
    QString Text() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList heads_;
    QList<QStringList> rows_;
};

} // namespace zelvia
