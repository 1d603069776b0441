// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTreeWidget>

#include <vector>

namespace zelvia
{

/// What an action lists as tab-separated lines, with headings and cells in words. Rows may stand below the days that
/// they belong to, which then can be ticked.
class OutcomeTable : public QTreeWidget
{
    Q_OBJECT

public:
    explicit OutcomeTable(const QString& accessibleName);

    /// Shows a list, each row in a line; one without a head empties the table.
    void ShowRows(const QString& tsv);
    /// The same with rows of the same cell in the column `group` below a line of their own, ticked at first or not.
    /// Rows without such a cell have no such line.
    void ShowGroups(const QString& tsv, const QString& group, bool ticked);

    /// The cell of a row as it was listed; empty where there is no such row or column.
    QString Cell(int row, const QString& column) const;
    /// The same for the row that is chosen.
    QString ChosenCell(const QString& column) const;
    int RowCount() const { return static_cast<int>(rows_.size()); }

    /// The cells of the groups that are ticked, in order.
    QStringList Ticked() const;

Q_SIGNALS:
    /// Another row is chosen, or a group was ticked or not.
    void Chosen();

private:
    void Take(const QString& tsv);
    void Fill(QTreeWidgetItem& item, int row, int hidden);
    void FitColumns();

    QStringList columns_;
    std::vector<QStringList> rows_;
    bool filling_ = false;
};

/// A day written as 2027-03-01, in words; any other text as it is.
QString DayInWords(const QString& iso);

} // namespace zelvia
