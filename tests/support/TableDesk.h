// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/DayPage.h"
#include "support/Hand.h"
#include "tables/FrmAllenamento.h"
#include "tables/FrmTabAllenamenti.h"

#include <QByteArrayList>

namespace zelvia::test
{

/// The sample diary's page with the windows of its training tables, worked by hand.
class TableDesk : public DayPage
{
public:
    explicit TableDesk(CalendarDate today = CalendarDate(2026, 5, 20)) : DayPage(today) {}

    /// Opens the list from the page's menu.
    void OpenList() const;
    /// Opens the editor on a table of the list, or on a new one.
    void OpenTable(const char* name) const;
    void OpenNew() const;
    /// The page, the list and a new table.
    void StartNew();

    frmTabAllenamenti* List() const { return Shown<frmTabAllenamenti>(); }
    frmAllenamento* Editor() const { return Shown<frmAllenamento>(); }
    /// Presses "Esci" of a window and waits until it has gone.
    void Leave(Form& window, Button& exit) const;
    void LeaveEditor() const { Leave(*Editor(), *Editor()->cmdEsci); }
    void LeaveList() const { Leave(*List(), *List()->cmdEsci); }

    TextBox& Box(TableGrid::Column column, int row) const { return *Editor()->Box(column, row); }
    /// Clicks into a box and types over what it holds.
    void Write(TextBox& box, const QString& text) const;
    /// Writes the day, month and year of the start; empty ones stay.
    void WriteStart(const char* day, const char* month, const char* year) const;
    QByteArray Held(TableGrid::Column column, int row) const { return Box(column, row).text().toLatin1(); }
    /// The boxes of a row parted by "|".
    QByteArray Row(int row) const;
    /// The boxes of the start date parted by "|".
    QByteArray StartDate() const;

    /// The name of the control that has the focus.
    static QByteArray Focused();
    /// Selects an entry of the list with the mouse.
    void Select(int entry) const;
    QByteArrayList Entries() const;
    /// A right click on the caption of a row; presses `key` in the pop-up that comes up. The entries it shows.
    QByteArrayList RowMenu(int row, Qt::Key key) const;

    QByteArray PathOf(const char* table) const;
    ExpectedDialog SaveTableDialog(const QString& preset, const QString& choose = {}) const;

private:
    void WaitForEditor() const;

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

ExpectedBox Exclamation(const QString& text);

} // namespace zelvia::test
