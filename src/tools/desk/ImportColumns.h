// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/exchange/DayColumns.h"

#include <QWidget>

#include <map>
#include <string>
#include <vector>

class QComboBox;
class QGridLayout;

namespace zelvia
{

/// Asks what the columns of a table hold whose heads are not known. Hidden while there is nothing to ask.
class ImportColumns : public QWidget
{
    Q_OBJECT

public:
    ImportColumns();

    /// Asks for these too; one that was asked for before keeps its answer.
    void Ask(const std::vector<std::string>& heads);
    void Clear();
    /// The answers.
    std::map<std::string, DayColumn> Columns() const;

Q_SIGNALS:
    void Answered();

private:
    QGridLayout* grid_;
    std::map<std::string, QComboBox*> boxes_;
};

} // namespace zelvia
