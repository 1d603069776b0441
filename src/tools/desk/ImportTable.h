// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/ImportSources.h"

#include <QAbstractTableModel>
#include <QTableView>

#include <vector>

namespace zelvia
{

/// The activities of an import, one a row.
class ImportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Written, Day, Start, End, Km, Time, Splits, Route, Status, Present, Remarks, File, Columns };

    explicit ImportModel(QObject* parent) : QAbstractTableModel(parent) {}

    const std::vector<Candidate>& Rows() const { return rows_; }
    Candidate& Row(int row) { return rows_[static_cast<std::size_t>(row)]; }

    void Append(std::vector<Candidate>&& rows);
    /// The same rows, looked at again; `compared`: beside their days.
    void Show(std::vector<Candidate>&& rows, bool compared);
    /// What the rows show has changed.
    void Tell(bool compared);
    /// Takes out the rows of tables.
    void DropTables();
    void Clear();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// The runner wants the row written, or not.
    void Ticked(int row, bool wanted);

private:
    QString Text(const Candidate& candidate, int column) const;
    QVariant Look(const Candidate& candidate, int column, int role) const;

    std::vector<Candidate> rows_;
    bool compared_ = false;
};

/// Shows them. Space ticks the rows that are selected.
class ImportTable : public QTableView
{
    Q_OBJECT

public:
    explicit ImportTable(ImportModel& model);

    /// The row that is chosen, -1 for none.
    int Current() const { return currentIndex().row(); }

    /// A few rows: it takes what room is left, and does not push the page beyond its pane.
    QSize sizeHint() const override { return {256, 110}; }

Q_SIGNALS:
    void RowChosen(int row);
    /// The runner wants these rows written, or not.
    void Ticked(const std::vector<int>& rows, bool wanted);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
};

} // namespace zelvia
