// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/DayPage.h"
#include "support/Hand.h"

#include <QByteArrayList>

namespace zelvia
{
class frmDesPercorso;
} // namespace zelvia

namespace zelvia::test
{

/// Where Tab leads from and what Enter and Space do: the ways that open a field.
enum class Way { Mouse, Enter, Space };

/// A page of an empty year 2026, whose lists hold three short entries each and whose routes have a description.
class EntryPage : public DayPage
{
public:
    /// 20 May, slot 140.
    EntryPage();

    /// The field of a list by its number, 1 to 8.
    ListControls& Field(int number) const { return Page().listFields[number]; }
    /// The texts that the list of a field holds at the start.
    static QStringList Entries(int number);
    QStringList ListOf(int number) const;

    /// Opens the field of a value label.
    void Open(Label& label, Way way = Way::Mouse) const;
    void Open(int number) const { Open(*Field(number).lblImmis); }
    bool IsOpen(int number) const;
    /// Types over what the edit box of an open field holds.
    static void TypeOver(TextBox& box, const QString& text);

    /// A point of a row of a list, in the coordinates of its viewport.
    static QPoint RowAt(ListBox& list, int row);
    void ClickRow(ListBox& list, int row) const { hand::Click(*list.viewport(), RowAt(list, row)); }
    /// A right click over a list; presses `key` in the pop-up that comes up, and waits for the page to be in front
    /// again unless the entry opens a window. The names of the entries it shows.
    QByteArrayList PopUp(ListBox& list, Qt::Key key, bool comesBack = true) const;

    /// The name of the control that has the focus.
    static QByteArray Focused();
    /// How many captions show the hand pointer.
    int Hands() const;

    /// The window of a route's description, or null.
    frmDesPercorso* RouteWindow() const;
    /// Waits for that window and closes it.
    void CloseRouteWindow() const;
    /// Waits until the page is in front again, after a window or a pop-up over it has gone.
    void TakeFront() const;
    /// Waits until a window has the keyboard, for the program and for the display's manager.
    static void AwaitFront(const QWidget& window);
};

/// The file of the descriptions, written line by line: the names take the first places, each with a first stretch
/// "t" of 1 km and as many metres as its place says.
QByteArray RouteFileOf(const QByteArrayList& names);
/// 200 names, "R1" to "R200".
QByteArrayList TwoHundredNames();

} // namespace zelvia::test
