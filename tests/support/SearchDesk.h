// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/DayPage.h"
#include "support/Hand.h"
#include "windows/statistics/FrmGrafici.h"
#include "windows/statistics/FrmRicercheStatistiche.h"

#include <QByteArrayList>

namespace zelvia::test
{

/// The sample diary's page with the windows of its searches and charts, worked by hand.
class SearchDesk : public DayPage
{
public:
    explicit SearchDesk(CalendarDate today = CalendarDate(2026, 5, 20)) : DayPage(today) {}

    /// Opens the search from the page's menu.
    void OpenSearch() const;
    void StartSearch();

    frmRicercheStatistiche* Search() const { return Shown<frmRicercheStatistiche>(); }
    frmGrafici* Charts() const { return Shown<frmGrafici>(); }
    frmRicercheStatistiche* operator->() const { return Search(); }

    void ClickCategory(Categoria category) const { hand::Click(*Search()->ControlsFor(category).cmd); }
    Label& Condition(Categoria category) const { return *Search()->ControlsFor(category).lbl; }
    /// A double click on a value of the list.
    void Choose(const QString& value) const;
    /// Turns a condition on and chooses its value.
    void Demand(Categoria category, const QString& value) const;
    /// Opens the period and types its six parts; empty ones stay.
    void TypePeriod(const QByteArray& boxes) const;
    void Write(PeriodBox::Box field, const QString& text) const;
    void Run() const { hand::Click(*Search()->cmdAvvia); }

    /// The boxes of the period separated by "|".
    QByteArray Period() const;
    static QByteArrayList Entries(const ListBox& list);
    /// The four totals separated by "|", or that they are hidden.
    QByteArray Totals() const;
    bool ShowsResult() const;

    /// The name of the control that has the focus.
    static QByteArray Focused();
    /// Waits until a window has the keyboard.
    static void AwaitFront(QWidget& window);
    /// Waits until the boxes of the script have come and the search has the keyboard again.
    void AwaitBoxes() const;

private:
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

} // namespace zelvia::test
