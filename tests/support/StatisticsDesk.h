// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/DayPage.h"
#include "support/Hand.h"
#include "windows/statistics/FrmStatistiche1.h"

#include <QByteArrayList>

namespace zelvia::test
{

/// A page with the window of its statistics, worked by hand.
class StatisticsDesk : public DayPage
{
public:
    /// An empty year 2026 on 20 May, slot 140.
    StatisticsDesk();
    /// The sample year.
    explicit StatisticsDesk(CalendarDate today) : DayPage(today) {}

    /// The window on show, or null.
    frmStatistiche1* Window() const;
    /// Takes the page to the front, and an entry of its menu with the mouse; waits for the window.
    void Choose(const char* entry) const;
    void TakePageToFront() const;
    /// Presses "Esci" and waits until the window has gone.
    void Leave() const;

    /// Selects a row with the mouse.
    void Select(int row) const;
    /// Presses "Tempi" with the mouse.
    void PressTimes() const { hand::Click(*Window()->cmdTempiLO); }
    /// Selects a row, presses "Tempi" and waits for the times.
    void OpenTimes(int row) const;

    QByteArrayList Lines() const;
    /// The rows of the times, their columns separated by "|".
    QByteArrayList Times() const;

    /// The name of the control that has the focus.
    static QByteArray Focused();
    static void PutRun(int slot, TextView route, TextView time, TextView average);
};

} // namespace zelvia::test
