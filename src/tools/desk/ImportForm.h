// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "diary/SelectionLists.h"
#include "tools/desk/ImportSplits.h"
#include "tools/exchange/DayColumns.h"
#include "tools/strumenti/ImportSources.h"

#include <QWidget>

#include <functional>
#include <map>
#include <optional>
#include <vector>

class QComboBox;
class QDateEdit;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace zelvia
{

/// One activity, as it would be written and beside that what its day holds now. Every value can be changed.
class ImportForm : public QWidget
{
    Q_OBJECT

public:
    /// What can be chosen for a day.
    using Lists = std::map<SelectionList, std::vector<Text>>;

    ImportForm();

    /// Shows a row, null for none. A field that is being changed stays when it is the same row.
    void Show(const Candidate* candidate, int row, const Lists& lists);

Q_SIGNALS:
    void Corrected(const DayCorrections& corrections);
    void Refused(const QString& why);

private:
    /// A field, and the label of what the diary holds.
    struct Line {
        QWidget* field;
        QLabel* held;
    };

    QHBoxLayout* MakeValues();
    void LayOut();
    void OrderTabs();
    void AddLine(QGridLayout& grid, const QString& caption, QWidget& field, QWidget& named,
                 std::optional<DayColumn> column);
    QLineEdit* MakeTime(const char* name, const QString& caption, void (ImportForm::*take)());
    QSpinBox* MakeNumber(const char* name, const QString& caption, int most, std::optional<int> DayCorrections::*said);
    QComboBox* MakeList(const char* name, const QString& caption, std::optional<Text> DayCorrections::*said);

    /// Tells what was said of the day.
    void Say(const std::function<void(DayCorrections&)>& said);
    std::optional<int> Typed(QLineEdit& edit, int effective);
    void TakeStart();
    void TakeEnd();
    void TakeClock();

    void ShowFields(const Lists& lists, bool again);
    void ShowClock();
    void ShowHeld();
    void ShowRemarks();

    Candidate shown_;
    int row_ = -1;
    bool filling_ = false;
    QDateEdit* day_;
    QLineEdit* start_;
    QLineEdit* end_;
    QComboBox* clock_;
    QSpinBox* km_;
    QSpinBox* metres_;
    QComboBox* route_;
    QComboBox* type_;
    QComboBox* season_;
    ImportSplits* splits_;
    QLabel* remarks_;
    QPushButton* back_;
    std::map<DayColumn, Line> lines_;
};

} // namespace zelvia
