// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The actions that any window may meet.
#include "monkey/Actions.h"
#include "monkey/Texts.h"
#include "support/OtherProgram.h"

#include <QApplication>
#include <QScrollBar>
#include <QWindow>

namespace zelvia::monkey
{
namespace
{

constexpr Qt::Key kKeys[] = {Qt::Key_Tab,    Qt::Key_Tab,    Qt::Key_Tab,      Qt::Key_Backtab,   Qt::Key_Return,
                             Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape,   Qt::Key_Escape,    Qt::Key_Space,
                             Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,       Qt::Key_Down,      Qt::Key_Home,
                             Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Backspace, Qt::Key_Delete,
                             Qt::Key_Insert, Qt::Key_F1,     Qt::Key_F4,       Qt::Key_F10,       Qt::Key_Menu,
                             Qt::Key_A,      Qt::Key_G,      Qt::Key_7,        Qt::Key_Plus,      Qt::Key_Minus};

struct Chord {
    Qt::KeyboardModifier modifier;
    Qt::Key key;
};

constexpr Chord kChords[] = {{Qt::ControlModifier, Qt::Key_A},
                             {Qt::ControlModifier, Qt::Key_C},
                             {Qt::ControlModifier, Qt::Key_X},
                             {Qt::ControlModifier, Qt::Key_Z},
                             {Qt::ControlModifier, Qt::Key_Y},
                             {Qt::ShiftModifier, Qt::Key_Home},
                             {Qt::ShiftModifier, Qt::Key_End},
                             {Qt::ShiftModifier, Qt::Key_Tab},
                             {Qt::AltModifier, Qt::Key_F},
                             {Qt::AltModifier, Qt::Key_O},
                             {Qt::AltModifier, Qt::Key_T},
                             {Qt::AltModifier, Qt::Key_S},
                             {Qt::ControlModifier, Qt::Key_Backspace},
                             {Qt::ControlModifier, Qt::Key_Delete},
                             {Qt::ShiftModifier, Qt::Key_F10},
                             {Qt::ControlModifier, Qt::Key_Home}};

bool IsHelp(const QWidget& window)
{
    return qobject_cast<const Form*>(&window) == nullptr;
}

} // namespace

/// A control of the window by the dice, or the window itself. The help's inside follows threads of its own: there only
/// the window counts, so that the same throws lead on.
QWidget* Actions::AnyControl(const QWidget& window)
{
    QList<QWidget*> controls;
    if (!IsHelp(window)) {
        controls = Shown<QWidget>(
            window, [](const QWidget& control) { return dynamic_cast<const Control*>(&control) != nullptr; });
    }
    const int which = dice_.Below(static_cast<int>(controls.size()) + 1);
    return which < controls.size() ? controls[which] : const_cast<QWidget*>(&window);
}

QWidget* Actions::AnyWindow()
{
    const QList<QWidget*> windows = desk_.Windows();
    QWidget* front = desk_.Front();
    const bool another = dice_.OneIn(8);
    const int which = dice_.Below(static_cast<int>(windows.size()));
    return another || front == nullptr ? windows.value(which) : front;
}

void Actions::ClickAnywhere(QWidget& window)
{
    QWidget* control = AnyControl(window);
    hand_.ClickAt(*control, hand_.AnyPlace(*control));
}

void Actions::RightClick(QWidget& window)
{
    if (IsHelp(window)) {
        return;
    }
    QWidget* control = AnyControl(window);
    hand_.ClickAt(*control, hand_.AnyPlace(*control), dice_.OneIn(6) ? Qt::MiddleButton : Qt::RightButton);
}

void Actions::DoubleClick(QWidget& window)
{
    if (IsHelp(window)) {
        return;
    }
    QWidget* control = AnyControl(window);
    hand_.DoubleClickAt(*control, hand_.AnyPlace(*control));
}

void Actions::DragAcross(QWidget& window)
{
    if (IsHelp(window)) {
        return;
    }
    QWidget* control = AnyControl(window);
    const QPoint from = hand_.AnyPlace(*control);
    const QPoint to = hand_.AnyPlace(*control) + QPoint(dice_.Between(-30, 30), dice_.Between(-30, 30));
    const QRect inside = window.rect().translated(-control->mapTo(&window, QPoint()));
    hand_.Drag(*control, from, inside.contains(to) ? to : from);
}

void Actions::TurnWheel(QWidget& window)
{
    QWidget* control = AnyControl(window);
    const int notches = dice_.Between(1, 3);
    hand_.Wheel(*control, dice_.OneIn(2) ? notches : -notches);
}

void Actions::PressKey(QWidget& /*window*/)
{
    if (dice_.OneIn(5)) {
        const Chord& chord = dice_.Of(kChords);
        hand_.Key(chord.key, chord.modifier);
    } else {
        hand_.Key(dice_.Of(kKeys));
    }
}

void Actions::PressKeys(QWidget& window)
{
    const int times = dice_.Between(2, 6);
    boxes_.menusWait = true;
    for (int i = 0; i < times; ++i) {
        PressKey(window);
    }
    boxes_.menusWait = false;
}

void Actions::TypeText(QWidget& /*window*/)
{
    hand_.Type(AnyText(dice_));
}

void Actions::PasteText(QWidget& /*window*/)
{
    boxes_.situation.pasted = true;
    hand_.Paste(AnyClip(dice_));
}

/// Digits for the boxes that take nothing else, mostly.
QString Actions::FittingText(const QWidget& box)
{
    const auto* text = qobject_cast<const TextBox*>(&box);
    const bool digits = text != nullptr && text->Limit() > 0 && text->Limit() <= 7;
    return digits && !dice_.OneIn(8) ? AnyDigits(dice_, qMin(text->Limit(), 5)) : AnyText(dice_);
}

void Actions::TypeOver(TextBox& box, const QString& text)
{
    const QPointer<TextBox> watched = &box;
    hand_.Click(box);
    if (!watched.isNull() && watched->hasFocus()) {
        hand_.Key(Qt::Key_A, Qt::ControlModifier);
        hand_.Key(Qt::Key_Backspace);
    }
    hand_.Type(text);
}

void Actions::WriteBox(QWidget& window)
{
    const QList<TextBox*> boxes = Shown<TextBox>(window);
    const int which = dice_.Below(static_cast<int>(boxes.size()));
    if (!boxes.isEmpty()) {
        TypeOver(*boxes[which], FittingText(*boxes[which]));
    }
}

/// Types into one box after the other, Enter or Tab in between.
void Actions::FillRow(QWidget& window)
{
    const QList<TextBox*> boxes = Shown<TextBox>(window);
    const int first = dice_.Below(static_cast<int>(boxes.size()));
    const int count = dice_.Between(2, 8);
    if (boxes.isEmpty()) {
        return;
    }
    hand_.Click(*boxes[first]);
    for (int i = 0; i < count; ++i) {
        QWidget* focused = QApplication::focusWidget();
        if (focused == nullptr) {
            return;
        }
        hand_.Type(FittingText(*focused));
        hand_.Key(dice_.OneIn(4) ? Qt::Key_Tab : Qt::Key_Return);
        desk_.Settle();
    }
}

void Actions::PressButton(QWidget& window)
{
    const QList<Button*> buttons = Shown<Button>(window);
    const int which = dice_.Below(static_cast<int>(buttons.size()));
    if (!buttons.isEmpty()) {
        hand_.Click(*buttons[which]);
    }
}

void Actions::UseSpin(QWidget& window)
{
    const QList<UpDown*> spins = Shown<UpDown>(window);
    const int which = dice_.Below(static_cast<int>(spins.size()));
    const bool upper = dice_.Below(5) < 3;
    const int times = dice_.Between(1, 12);
    const bool wheel = dice_.OneIn(6);
    if (spins.isEmpty()) {
        return;
    }
    const QPointer<UpDown> spin = spins[which];
    if (wheel) {
        hand_.Wheel(*spin, upper ? times : -times);
        return;
    }
    for (int i = 0; i < times && !spin.isNull() && spin->isVisible(); ++i) {
        hand_.Step(*spin, upper);
    }
}

void Actions::HoldSpin(QWidget& window)
{
    const QList<UpDown*> spins = Shown<UpDown>(window);
    const int which = dice_.Below(static_cast<int>(spins.size()));
    const bool upper = dice_.OneIn(2);
    if (!spins.isEmpty()) {
        hand_.Hold(*spins[which], upper, dice_.Between(1, 4));
    }
}

void Actions::UseList(QWidget& window)
{
    const QList<ListBox*> lists = Shown<ListBox>(window);
    const int which = dice_.Below(static_cast<int>(lists.size()));
    const int way = dice_.Below(5);
    const int entry = dice_.Below(lists.isEmpty() ? 0 : lists[which]->count());
    if (lists.isEmpty() || lists[which]->count() == 0) {
        return;
    }
    ListBox& list = *lists[which];
    list.scrollToItem(list.item(entry));
    const QPoint place = list.visualItemRect(list.item(entry)).center();
    if (way < 2) {
        hand_.DoubleClickAt(*list.viewport(), place);
    } else {
        hand_.ClickAt(*list.viewport(), place);
        if (way == 2) {
            hand_.Key(Qt::Key_Return);
        } else if (way == 3) {
            hand_.Key(Qt::Key_Down);
        }
    }
}

void Actions::OpenListMenu(QWidget& window)
{
    const QList<ListBox*> lists = Shown<ListBox>(window);
    const int which = dice_.Below(static_cast<int>(lists.size()));
    if (!lists.isEmpty()) {
        QWidget& list = *lists[which]->viewport();
        hand_.ClickAt(list, hand_.AnyPlace(list));
        desk_.Settle();
        if (list.isVisible()) {
            hand_.ClickAt(list, hand_.AnyPlace(list), Qt::RightButton);
        }
    }
}

/// The page is closed by Exit.
void Actions::CloseWindow(QWidget& window)
{
    if (&window != desk_.Page()) {
        trail_.Note(QStringLiteral("close box of ") + window.objectName());
        window.windowHandle()->close();
    }
}

void Actions::ChangeWindow(QWidget& /*window*/)
{
    const QList<QWidget*> windows = desk_.Windows();
    const int which = dice_.Below(static_cast<int>(windows.size()));
    trail_.Note(QStringLiteral("to the front: ") + windows[which]->objectName());
    desk_.Activate(*windows[which]);
}

void Actions::OtherProgram(QWidget& window)
{
    trail_.Note(QStringLiteral("another program and back to ") + window.objectName());
    const QPointer<QWidget> watched = &window;
    ::OtherProgram::Report(nullptr);
    desk_.Settle();
    if (!watched.isNull() && watched->isVisible()) {
        ::OtherProgram::Report(watched);
    }
}

void Actions::PressIf(Button& button)
{
    if (button.isVisible() && button.isEnabled()) {
        hand_.Click(button);
    }
}

void Actions::ChooseTable(QWidget& window)
{
    const auto& list = static_cast<frmTabAllenamenti&>(window);
    const bool anew = dice_.OneIn(4);
    if (!anew) {
        UseList(window);
    }
    desk_.Settle();
    if (desk_.Window<frmTabAllenamenti>() == &list) {
        PressIf(anew ? *list.cmdNuovaTab : *list.cmdOK);
    }
}

/// By the mouse on the caption of a row, or by the menu key in one of its boxes.
void Actions::OpenRowMenu(QWidget& window)
{
    const auto& editor = static_cast<frmAllenamento&>(window);
    const int row = dice_.Between(1, TableGrid::kRows);
    if (dice_.OneIn(3)) {
        hand_.Click(*editor.Box(TableGrid::Km, row));
        desk_.Settle();
        hand_.Key(Qt::Key_Menu);
    } else {
        hand_.Click(*editor.lblGiorni[row], Qt::RightButton);
    }
}

/// A start date near the days of the diary, then the buttons that make the table the active one.
void Actions::ActivateTable(QWidget& window)
{
    const QPointer<frmAllenamento> editor = &static_cast<frmAllenamento&>(window);
    const int numbers[] = {dice_.Between(1, 31), dice_.Between(1, 12), dice_.Between(2025, 2027)};
    const bool dated = dice_.OneIn(2);
    for (std::size_t i = 0; dated && i < std::size(numbers) && !editor.isNull(); ++i) {
        TypeOver(*editor->dateBoxes[i], QString::number(numbers[i]));
        desk_.Settle();
    }
    for (Button* frmAllenamento::*button :
         {&frmAllenamento::cmdCalcoloMedie, &frmAllenamento::cmdOK, &frmAllenamento::cmdAttiva,
          &frmAllenamento::cmdDisattiva, &frmAllenamento::cmdSalva}) {
        const bool pressed = button == &frmAllenamento::cmdDisattiva ? dice_.OneIn(6) : !dice_.OneIn(3);
        if (pressed && desk_.Window<frmAllenamento>() == editor && !editor.isNull()) {
            PressIf(*(editor->*button));
            desk_.Settle();
        }
    }
}

/// A row from its day on, Enter after each value; at times on the date of the page.
void Actions::WriteRace(QWidget& window)
{
    const QPointer<frmCalendario> calendar = &static_cast<frmCalendario&>(window);
    const int row = dice_.Between(1, CalendarGrid::kRows);
    const bool onPage = dice_.OneIn(3);
    const CalendarDate date = Module1::DataCorrente;
    const int other[] = {dice_.Between(0, 31), dice_.Between(0, 12), dice_.Between(2025, 2027)};
    const int shown[] = {date.Day().value(), date.Month().value(), date.Year().value()};
    hand_.Click(*calendar->Box(CalendarGrid::RaceColumn::Giorno, row));
    hand_.Key(Qt::Key_A, Qt::ControlModifier);
    for (const int number : onPage ? shown : other) {
        hand_.Type(QString::number(number));
        hand_.Key(Qt::Key_Return);
        hand_.Key(Qt::Key_A, Qt::ControlModifier);
        desk_.Settle();
    }
    const int boxes = dice_.Between(0, 11);
    for (int i = 0; i < boxes && !calendar.isNull() && QApplication::focusWidget() != nullptr; ++i) {
        hand_.Type(FittingText(*QApplication::focusWidget()));
        hand_.Key(Qt::Key_Return);
        desk_.Settle();
    }
}

/// A category's button and a value of its list, or a period, and the search at times.
void Actions::Search(QWidget& window)
{
    const QPointer<frmRicercheStatistiche> search = &static_cast<frmRicercheStatistiche&>(window);
    const int way = dice_.Below(4);
    if (way == 0) {
        PressIf(*search->cmdPeriodo);
        desk_.Settle();
        for (int i = 0; i < 6 && !search.isNull() && search->periodBoxes[0]->isVisible(); ++i) {
            hand_.Type(FittingText(*search->periodBoxes[0]));
            hand_.Key(Qt::Key_Return);
            desk_.Settle();
        }
    } else if (way < 3) {
        const auto category = static_cast<Categoria>(dice_.Below(static_cast<int>(kAllCategories.size())));
        PressIf(*search->ControlsFor(category).cmd);
        desk_.Settle();
        if (!search.isNull() && search->lstStatistiche->isVisible()) {
            UseList(*search);
        }
    }
    desk_.Settle();
    if (dice_.OneIn(2) && !search.isNull() && search->isVisible()) {
        PressIf(*search->cmdAvvia);
    }
}

void Actions::UseHelp(QWidget& window)
{
    const int way = dice_.Below(4);
    const QString text = AnyText(dice_);
    const QPoint place = hand_.AnyPlace(window);
    switch (way) {
    case 0: hand_.Type(text); break;
    case 1: hand_.Key(Qt::Key_Return); break;
    case 2: window.windowHandle()->close(); break;
    default: hand_.ClickAt(window, place); break;
    }
}

} // namespace zelvia::monkey
