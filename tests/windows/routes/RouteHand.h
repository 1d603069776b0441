// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/EntryPage.h"
#include "windows/routes/FrmDesPercorso.h"

namespace zelvia::test
{

inline constexpr int kRoute = 1;

/// Types a name into the field of the route and confirms it.
inline void EnterRoute(const EntryPage& page, const QString& name)
{
    page.Open(kRoute);
    page.TypeOver(*page.Field(kRoute).txt, name);
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!page.IsOpen(kRoute));
}

/// Waits for the window of a description.
inline frmDesPercorso& Opened(const EntryPage& page)
{
    if (!QTest::qWaitFor([&] { return page.RouteWindow() != nullptr; })) {
        qFatal("no window of a route");
    }
    EntryPage::AwaitFront(*page.RouteWindow());
    return *page.RouteWindow();
}

/// Opens the description of an entry of the list by the pop-up.
inline void OpenEntry(const EntryPage& page, int row)
{
    page.Open(kRoute);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    page.ClickRow(*page.Field(kRoute).lst, row);
    QTRY_COMPARE(page.Field(kRoute).lst->ListIndex(), row);
    page.PopUp(*page.Field(kRoute).lst, Qt::Key_D, false);
    QTRY_VERIFY(page.RouteWindow() != nullptr);
}

inline void TypeInto(TextBox& box, const QString& text)
{
    box.SetFocus();
    QTRY_VERIFY(box.hasFocus());
    hand::Type(text);
}

} // namespace zelvia::test
