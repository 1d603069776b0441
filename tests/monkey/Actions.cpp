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

namespace
{

constexpr const char* kPage = "frmMain";

} // namespace

Actions::Actions(Desk& desk, Dice& dice, Trail& trail, Boxes& boxes)
    : desk_(desk), dice_(dice), trail_(trail), boxes_(boxes),
      hand_(desk, dice, trail), table_{{"click anywhere", 12, nullptr, &Actions::ClickAnywhere},
                                       {"right click", 4, nullptr, &Actions::RightClick},
                                       {"double click", 3, nullptr, &Actions::DoubleClick},
                                       {"drag", 2, nullptr, &Actions::DragAcross},
                                       {"wheel", 2, nullptr, &Actions::TurnWheel},
                                       {"key", 14, nullptr, &Actions::PressKey},
                                       {"keys", 4, nullptr, &Actions::PressKeys},
                                       {"type", 8, nullptr, &Actions::TypeText},
                                       {"paste", 1, nullptr, &Actions::PasteText},
                                       {"write a box", 8, nullptr, &Actions::WriteBox},
                                       {"fill a row", 5, nullptr, &Actions::FillRow},
                                       {"button", 10, nullptr, &Actions::PressButton},
                                       {"spin", 8, nullptr, &Actions::UseSpin},
                                       {"hold a spin", 1, nullptr, &Actions::HoldSpin},
                                       {"list", 8, nullptr, &Actions::UseList},
                                       {"list menu", 3, nullptr, &Actions::OpenListMenu},
                                       {"close a window", 3, nullptr, &Actions::CloseWindow},
                                       {"change windows", 4, nullptr, &Actions::ChangeWindow},
                                       {"another program", 1, nullptr, &Actions::OtherProgram},
                                       {"tick", 3, nullptr, &Actions::Tick},
                                       {"clock", 1, nullptr, &Actions::MoveClock},
                                       {"printer", 1, nullptr, &Actions::BreakPrinter},
                                       {"step the date", 6, kPage, &Actions::StepDate},
                                       {"walk the dates", 3, kPage, &Actions::WalkDates},
                                       {"open a field", 10, kPage, &Actions::OpenField},
                                       {"enter a field", 6, kPage, &Actions::EnterField},
                                       {"enter a run", 5, kPage, &Actions::EnterRun},
                                       {"enter splits", 3, kPage, &Actions::EnterSplits},
                                       {"enter a number", 5, kPage, &Actions::EnterNumber},
                                       {"write a note", 3, kPage, &Actions::WriteNote},
                                       {"menu", 14, kPage, &Actions::OpenMenu},
                                       {"exit", 1, kPage, &Actions::Exit},
                                       {"choose a table", 25, "frmTabAllenamenti", &Actions::ChooseTable},
                                       {"row menu", 8, "frmAllenamento", &Actions::OpenRowMenu},
                                       {"activate a table", 8, "frmAllenamento", &Actions::ActivateTable},
                                       {"write a race", 10, "frmCalendario", &Actions::WriteRace},
                                       {"search", 25, "frmRicercheStatistiche", &Actions::Search},
                                       {"help", 20, "HelpWindow", &Actions::UseHelp}}
{
    for (const Action& action : table_) {
        weights_ += action.weight;
    }
}

/// By the weights, of the actions that are for this window; now and then the page is worked on from behind another one.
Actions::Action& Actions::Throw(const QWidget& window)
{
    for (;;) {
        int thrown = dice_.Below(weights_);
        auto action = table_.begin();
        while (thrown >= action->weight) {
            thrown -= action->weight;
            ++action;
        }
        const bool fromBehind = dice_.OneIn(6);
        if (action->home == nullptr || window.objectName() == QLatin1String(action->home) ||
            (fromBehind && action->home == kPage)) {
            return *action;
        }
    }
}

void Actions::Run()
{
    if (QWidget* window = AnyWindow()) {
        Action& action = Throw(*window);
        trail_.Note(QLatin1String(action.name) + QLatin1Char(':'));
        ++action.done;
        (this->*action.run)(*window);
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

/// The label of a field on the page.
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
    ListControls& field = page->listFields[number];
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
    if (page == nullptr || !page->notes[line].lbl->isVisible()) {
        return;
    }
    hand_.Click(*page->notes[line].lbl);
    for (int i = 0; i < lines; ++i) {
        hand_.Type(AnyText(dice_));
        hand_.Key(Qt::Key_Return);
    }
}

/// Opens a group of spin controls and works it with keys.
void Actions::UseGroup(Label& value, int keys)
{
    static constexpr Qt::Key worked[] = {Qt::Key_Up,   Qt::Key_Up,    Qt::Key_1, Qt::Key_4,
                                         Qt::Key_Down, Qt::Key_Right, Qt::Key_9, Qt::Key_Left};
    hand_.Click(value);
    desk_.Settle();
    for (int i = 0; i < keys; ++i) {
        hand_.Key(dice_.Of(worked));
    }
}

/// A distance and the times of a run, in any order.
void Actions::EnterRun(QWidget& /*window*/)
{
    const int first = dice_.Below(3);
    const int keys = dice_.Between(1, 8);
    for (int i = 0; i < 3; ++i) {
        frmMain* page = desk_.Page();
        if (page == nullptr) {
            return;
        }
        Label* values[] = {page->lblImmisMetri, page->lblImmisOraInizio, page->lblImmisOraFine};
        UseGroup(*values[(first + i) % 3], keys);
        desk_.Settle();
    }
    hand_.Key(Qt::Key_Escape);
}

/// Runners, weight or repetitions.
void Actions::EnterNumber(QWidget& /*window*/)
{
    const int which = dice_.Below(5);
    const int keys = dice_.Between(1, 6);
    const frmMain* page = desk_.Page();
    if (page == nullptr) {
        return;
    }
    Label* values[] = {page->lblImmisCorridori, page->lblImmisPeso, page->lblRipetizioniVolte,
                       page->lblRipetizioniQuante, page->lblRipetizioniDistanza};
    UseGroup(*values[which], keys);
}

void Actions::EnterSplits(QWidget& /*window*/)
{
    const int keys = dice_.Between(2, 8);
    const QPointer<frmMain> page = desk_.Page();
    if (page.isNull()) {
        return;
    }
    UseGroup(*page->lblImmisTempoKM, keys);
    desk_.Settle();
    for (int i = 0; i < 2 && !page.isNull() && page->cmdListaKM->isVisible(); ++i) {
        hand_.Click(*page->cmdListaKM);
        desk_.Settle();
        hand_.Key(Qt::Key_Up);
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
