// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/DayPage.h"
#include "support/Hand.h"
#include "windows/plan/FrmAllenamento.h"
#include "windows/plan/FrmTabAllenamenti.h"

#include <QByteArrayList>

namespace zelvia::test
{

/// The sample diary's page with the windows of its training tables, worked by hand.
class TableDesk : public DayPage
{
public:
    explicit TableDesk(CalendarDate today = CalendarDate(2026, 5, 20)) : DayPage(today) {}

    /// Makes a table of the diary's folder the active one, before the page is loaded.
    void SetActive(const QByteArray& table) const { folder.Write(QStringLiteral("prova/nometab"), Pointer(table)); }
    /// Opens the list from the page's menu.
    void OpenList() const;
    /// Opens the editor on a table of the list, or on a new one.
    void OpenTable(const QByteArray& name) const;
    void OpenNew() const;
    /// The page, the list and a new table, or one of the list.
    void StartNew();
    void StartWith(const QByteArray& table);

    frmTabAllenamenti* List() const { return Shown<frmTabAllenamenti>(); }
    frmAllenamento* Editor() const { return Shown<frmAllenamento>(); }
    /// Brings a window to the front and waits until it has the keyboard.
    static void ToFront(QWidget& window);
    /// Waits until all boxes of the script have come and gone and the editor has the keyboard again.
    void AwaitBoxes() const;
    /// Presses "Esci" of a window and waits until it has gone.
    void Leave(Form& window, Button& exit) const;
    void LeaveEditor() const { Leave(*Editor(), *Editor()->cmdEsci); }
    /// The same by the close box.
    void CloseEditor() const;
    void LeaveList() const { Leave(*List(), *List()->cmdEsci); }

    TextBox& Box(TableGrid::Column column, int row) const { return *Editor()->Box(column, row); }
    /// Clicks into a box and types over what it holds.
    void Write(TextBox& box, const QString& text) const;
    /// Tries to leave the box that has the focus by Enter, Tab, another box and a button. Each time the message must
    /// come up once, and the box keep the focus and its text.
    void TryToLeave(TextBox& box, const QString& message);
    /// Writes the day, month and year of the start; empty ones stay.
    void WriteStart(const QByteArray& day, const QByteArray& month, const QByteArray& year) const;
    QByteArray Held(TableGrid::Column column, int row) const { return Box(column, row).text().toLatin1(); }
    /// The boxes of a row separated by "|".
    QByteArray Row(int row) const;
    /// All rows from 1 on.
    QByteArrayList Rows() const;
    /// The boxes of the start date separated by "|".
    QByteArray StartDate() const;

    /// The colour behind a row, or of its texts, as #rrggbb; "mixed" when its controls differ.
    QByteArray RowBack(int row) const;
    QByteArray RowFore(int row) const;
    /// The colour behind the caption of a row.
    QByteArray CaptionBack(int row) const;
    /// The colour that all rows have in common.
    QByteArray GridBack() const;
    /// The colour behind the start date.
    QByteArray DateBack() const;
    /// Which of cmdOK, cmdAttiva and cmdDisattiva can be pressed.
    QByteArray Enabled() const;

    /// The name of the control that has the focus.
    static QByteArray Focused();
    /// Presses Tab, or Shift and Tab, until the control of that name has the focus: no box is clicked.
    static void TabTo(const char* name, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Selects an entry of the list with the mouse.
    void Select(int entry) const;
    QByteArrayList Entries() const;
    /// A right click on the caption of a row; presses `key` in the pop-up that comes up. The entries it shows.
    QByteArrayList RowMenu(int row, Qt::Key key) const;
    /// The same for a pop-up that `open` brings up.
    QByteArrayList RowMenu(const std::function<void()>& open, Qt::Key key) const;

    QByteArray PathOf(const QByteArray& table) const;
    /// What `nometab` holds when that table is the active one, or none.
    QByteArray Pointer(const QByteArray& table) const { return '"' + PathOf(table) + "\"\r\n"; }
    QByteArray Nometab() const { return folder.Read(QStringLiteral("prova/nometab")); }
    void WriteTable(const QByteArray& name, const QByteArray& bytes) const;
    QByteArray ReadTable(const QByteArray& name) const;
    ExpectedDialog SaveTableDialog(const QString& preset, const QString& choose = {}) const;

private:
    void WaitForEditor() const;
    void WaitUntilGone(const QPointer<Form>& window) const;

    template <typename Window>
    Window* Shown() const
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* window = qobject_cast<Window*>(widget);
            if (window != nullptr && window->isVisible()) {
                return window;
            }
        }
        return nullptr;
    }
};

// The colours of the editor.
inline const QByteArray kGrey = "#c0c0c0";
inline const QByteArray kWhite = "#ffffff";
inline const QByteArray kChosen = "#8080ff";
inline const QByteArray kYellow = "#ffff00";
inline const QByteArray kPassed = "#808080";
inline const QByteArray kBlack = "#000000";

/// What `nometab` holds when no table is active.
inline const QByteArray kNoPointer = "\"\"\r\n";

} // namespace zelvia::test
