// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monkey/Boxes.h"
#include "monkey/Desk.h"
#include "monkey/Dice.h"
#include "monkey/Hand.h"
#include "monkey/Trail.h"

#include <QByteArray>

#include <vector>

namespace zelvia::monkey
{

/// All that the monkey can do, a table of actions with their weights.
class Actions
{
public:
    Actions(Desk& desk, Dice& dice, Trail& trail, Boxes& boxes);

    /// Throws for an action and does it.
    void Run();

    struct Count {
        const char* name;
        long done;
    };
    std::vector<Count> Counts() const;

private:
    struct Action {
        const char* name;
        int weight;
        const char* home; ///< The window that it is for, null for any.
        void (Actions::*run)(QWidget& window);
        long done = 0;
    };

    Action& Throw(const QWidget& window);

    QWidget* AnyWindow();

    // On any window.
    void ClickAnywhere(QWidget& window);
    void RightClick(QWidget& window);
    void DoubleClick(QWidget& window);
    void DragAcross(QWidget& window);
    void TurnWheel(QWidget& window);
    void PressKey(QWidget& window);
    void PressKeys(QWidget& window);
    void TypeText(QWidget& window);
    void PasteText(QWidget& window);
    void WriteBox(QWidget& window);
    void FillRow(QWidget& window);
    void PressButton(QWidget& window);
    void UseSpin(QWidget& window);
    void HoldSpin(QWidget& window);
    void UseList(QWidget& window);
    void OpenListMenu(QWidget& window);
    void CloseWindow(QWidget& window);
    void ChangeWindow(QWidget& window);
    void OtherProgram(QWidget& window);

    // On the page.
    void StepDate(QWidget& window);
    void WalkDates(QWidget& window);
    void OpenField(QWidget& window);
    void EnterField(QWidget& window);
    void WriteNote(QWidget& window);
    void OpenMenu(QWidget& window);
    void EnterRun(QWidget& window);
    void EnterSplits(QWidget& window);
    void EnterNumber(QWidget& window);

    // On other windows.
    void ChooseTable(QWidget& window);
    void OpenRowMenu(QWidget& window);
    void ActivateTable(QWidget& window);
    void WriteRace(QWidget& window);
    void Search(QWidget& window);
    void UseHelp(QWidget& window);

    // On no window.
    void Tick(QWidget& window);
    void MoveClock(QWidget& window);
    void BreakPrinter(QWidget& window);
    void Exit(QWidget& window);

    void UseGroup(Label& value, int keys);
    void PressIf(Button& button);
    QString FittingText(const QWidget& box);
    void TypeOver(TextBox& box, const QString& text);
    QWidget* AnyControl(const QWidget& window);

    Desk& desk_;
    Dice& dice_;
    Trail& trail_;
    Boxes& boxes_;
    Hand hand_;
    std::vector<Action> table_;
    int weights_ = 0;
};

} // namespace zelvia::monkey
