// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/years/Goals.h"
#include "tools/yearswindow/FigureTable.h"
#include "tools/yearswindow/FigureView.h"
#include "tools/yearswindow/YearsFigures.h"
#include "tools/yearswindow/YearsLoader.h"

#include <QWidget>

#include <filesystem>

class QBoxLayout;
class QComboBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QSpinBox;
class QTableView;

namespace zelvia
{

/// The window "Tutti gli anni": figures over all diaries of a folder, each as a chart and as a table. For the program's
/// focus rules it is another program's window.
class YearsWindow : public QWidget
{
    Q_OBJECT

public:
    /// The program's folder.
    explicit YearsWindow(const std::filesystem::path& folder);

Q_SIGNALS:
    /// What was read is shown.
    void Ready();

private:
    void BuildChoices(QBoxLayout& all);
    void BuildFigure(QBoxLayout& all);
    void BuildButtons(QBoxLayout& all);
    void BuildKeys();
    void Label(QBoxLayout& line, QWidget& box, const QString& caption);

    void Load();
    void TakeRead(const AllDiaries& all);
    void ShowLeftOut();
    const FigureKindRow& Kind() const;
    void ShowBoxes();
    void ShowChoices();
    void FillYears(bool withAll);
    void FillOthers();
    void FillRoutes();
    void TakeChoices();
    void Choose();
    void ShowFigure();
    void ShowGoal();
    void KeepGoal(int kilometres);

    void CopyPicture();
    void CopyTable();
    void SavePicture();
    void Print();
    void Say(const QString& what);

    std::filesystem::path folder_;
    Goals goals_;
    YearsRead read_;
    FigureChoices choices_;
    int span_ = FigureChoices::kAll; ///< The year of the kinds that can show all.
    YearsLoader loader_;
    FigureTable model_;

    QListWidget* kinds_;
    QComboBox* year_;
    QComboBox* other_;
    QComboBox* route_;
    QSpinBox* goal_;
    QList<QWidget*> captions_;
    FigureView* view_;
    QTableView* table_;
    QLabel* value_;    ///< What is pointed at.
    QLabel* standing_; ///< Where one stands with the goal.
    QLabel* leftOut_;  ///< The diaries that are not among the figures.
    QLabel* said_;     ///< What became of a command.
    QProgressBar* progress_;
    QWidget* whole_;
    QList<QWidget*> onFigure_; ///< What needs a figure.
};

/// Shows the window for a program folder, or brings it to the front.
void OpenAllYears(const std::filesystem::path& folder);

} // namespace zelvia
