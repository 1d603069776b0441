// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the actions, and those that belong to the page.
#include "monkey/Actions.h"

#include "monkey/Texts.h"

#include <QMenu>
#include <QMenuBar>
#include <QWindow>

namespace zelvia::monkey
{

Actions::Actions(Desk& desk, Dice& dice, Trail& trail, Boxes& boxes)
    : desk_(desk), dice_(dice), trail_(trail), boxes_(boxes),
      hand_(desk, dice, trail), table_{{"click anywhere", 12, &Actions::ClickAnywhere},
                                       {"right click", 4, &Actions::RightClick},
                                       {"double click", 3, &Actions::DoubleClick},
                                       {"drag", 2, &Actions::DragAcross},
                                       {"wheel", 2, &Actions::TurnWheel},
                                       {"key", 14, &Actions::PressKey},
                                       {"keys", 4, &Actions::PressKeys},
                                       {"type", 8, &Actions::TypeText},
                                       {"paste", 1, &Actions::PasteText},
                                       {"write a box", 8, &Actions::WriteBox},
                                       {"fill a row", 5, &Actions::FillRow},
                                       {"button", 10, &Actions::PressButton},
                                       {"spin", 8, &Actions::UseSpin},
                                       {"hold a spin", 1, &Actions::HoldSpin},
                                       {"list", 8, &Actions::UseList},
                                       {"list menu", 3, &Actions::OpenListMenu},
                                       {"close a window", 3, &Actions::CloseWindow},
                                       {"change windows", 4, &Actions::ChangeWindow},
                                       {"another program", 1, &Actions::OtherProgram},
                                       {"step the date", 6, &Actions::StepDate},
                                       {"walk the dates", 3, &Actions::WalkDates},
                                       {"open a field", 10, &Actions::OpenField},
                                       {"enter a field", 6, &Actions::EnterField},
                                       {"write a note", 3, &Actions::WriteNote},
                                       {"menu", 14, &Actions::OpenMenu},
                                       {"help", 1, &Actions::UseHelp},
                                       {"tick", 3, &Actions::Tick},
                                       {"clock", 1, &Actions::MoveClock},
                                       {"printer", 1, &Actions::BreakPrinter},
                                       {"exit", 1, &Actions::Exit}}
{
    for (const Action& action : table_) {
        weights_ += action.weight;
    }
}

void Actions::Run()
{
    steppedDate_ = false;
    int thrown = dice_.Below(weights_);
    QWidget* window = AnyWindow();
    if (window == nullptr) {
        return;
    }
    for (Action& action : table_) {
        thrown -= action.weight;
        if (thrown < 0) {
            trail_.Note(QLatin1String(action.name) + QLatin1Char(':'));
            ++action.done;
            (this->*action.run)(*window);
            return;
        }
    }
}

std::vector<Actions::Count> Actions::Counts() const
{
    std::vector<Count> counts;
    for (const Action& action : table_) {
        counts.push_back({action.name, action.done});
    }
    return counts;
}

void Actions::StepDate(QWidget& /*window*/)
{
    frmMain* page = desk_.Page();
    const bool months = dice_.OneIn(4);
    const bool upper = dice_.Below(5) < 3;
    if (page == nullptr) {
        return;
    }
    UpDown& spin = months ? *page->upMese : *page->upGiorno;
    if (!spin.isVisible()) {
        hand_.Click(*page->lblData);
        return;
    }
    steppedDate_ = true;
    hand_.Step(spin, upper);
}

void Actions::WalkDates(QWidget& /*window*/)
{
    frmMain* page = desk_.Page();
    const int way = dice_.Below(4);
    const int times = dice_.Between(2, 20);
    if (page == nullptr) {
        return;
    }
    if (way == 0 && page->upGiorno->isVisible()) {
        for (int i = 0; i < times && desk_.Page() != nullptr; ++i) {
            hand_.Step(*page->upGiorno, times % 2 == 0);
        }
        return;
    }
    hand_.Click(*page->lblData);
    desk_.Settle();
    static constexpr Qt::Key keys[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                                       Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown};
    for (int i = 0; i < way + 1; ++i) {
        hand_.Key(dice_.Of(keys));
    }
    if (dice_.OneIn(3)) {
        hand_.Key(Qt::Key_Escape);
    }
}

/// A label of the page that stands for a field.
void Actions::OpenField(QWidget& /*window*/)
{
    frmMain* page = desk_.Page();
    if (page == nullptr || !page->isVisible()) {
        return;
    }
    const QList<Label*> labels =
        Shown<Label>(*page, [](const Label& label) { return label.focusPolicy() == Qt::TabFocus; });
    const int which = dice_.Below(static_cast<int>(labels.size()));
    hand_.Click(*labels[which]);
    desk_.Settle();
}

/// Opens one of the eight lists and enters a text, by the keyboard or from the list.
void Actions::EnterField(QWidget& window)
{
    frmMain* page = desk_.Page();
    const int number = dice_.Between(1, 8);
    const QString text = AnyText(dice_);
    const int way = dice_.Below(3);
    if (page == nullptr) {
        return;
    }
    const QPointer<frmMain> watched = page;
    ControlliLista& field = page->campi[number];
    hand_.Click(*field.lblImmis);
    desk_.Settle();
    if (watched.isNull() || !field.txt->isVisible()) {
        return;
    }
    if (way == 0) {
        UseList(*page);
        return;
    }
    TypeOver(*field.txt, text);
    hand_.Key(way == 1 ? Qt::Key_Return : Qt::Key_Escape);
    desk_.Settle();
    Q_UNUSED(window)
}

void Actions::WriteNote(QWidget& /*window*/)
{
    frmMain* page = desk_.Page();
    const int line = dice_.Between(3, 10);
    const int lines = dice_.Between(1, 3);
    if (page == nullptr || !page->note[line].lbl->isVisible()) {
        return;
    }
    hand_.Click(*page->note[line].lbl);
    for (int i = 0; i < lines; ++i) {
        hand_.Type(AnyText(dice_));
        hand_.Key(Qt::Key_Return);
    }
}

/// A menu of the bar; what is chosen in it is the answer to a menu.
void Actions::OpenMenu(QWidget& /*window*/)
{
    frmMain* page = desk_.Page();
    if (page == nullptr || !page->isVisible()) {
        return;
    }
    auto* bar = page->findChild<QMenuBar*>();
    const QList<QAction*> menus = bar->actions();
    // Files and statistics are where most entries are.
    static constexpr int which[] = {0, 0, 1, 2, 2, 3, 3, 4};
    hand_.ClickAt(*bar, bar->actionGeometry(menus[dice_.Of(which)]).center());
}

void Actions::Tick(QWidget& /*window*/)
{
    trail_.Note(QStringLiteral("the page's timer"));
    desk_.Tick();
}

void Actions::MoveClock(QWidget& /*window*/)
{
    const int year = dice_.OneIn(3) ? dice_.Between(1999, 2101) : 2026;
    const auto month = static_cast<unsigned>(dice_.Between(1, 12));
    const auto day = static_cast<unsigned>(dice_.Between(1, 28));
    desk_.today = CalendarDate(year, month, day);
    trail_.Note(QStringLiteral("today is %1-%2-%3").arg(year).arg(month).arg(day));
}

void Actions::BreakPrinter(QWidget& /*window*/)
{
    desk_.printerBroken = dice_.OneIn(3);
    trail_.Note(desk_.printerBroken ? QStringLiteral("the printer fails") : QStringLiteral("the printer works"));
}

void Actions::Exit(QWidget& /*window*/)
{
    const bool leave = dice_.OneIn(3);
    if (frmMain* page = desk_.Page(); page != nullptr && leave) {
        trail_.Note(QStringLiteral("close box of the page"));
        page->windowHandle()->close();
    }
}

} // namespace zelvia::monkey
