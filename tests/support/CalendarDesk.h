// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/CalendarBytes.h"
#include "support/EntryPage.h"
#include "windows/races/FrmCalendario.h"

namespace zelvia::test
{

using CalendarGrid::RaceColumn;

/// A page of an empty year 2026 on 20 May with the window of its race calendar, worked by hand.
class CalendarDesk : public EntryPage
{
public:
    /// The diary's calendar holds what `file` holds.
    explicit CalendarDesk(const CalendarBytes& file = {});

    /// Opens the calendar from the page's menu.
    void OpenCalendar() const;
    void StartOpen();

    frmCalendario* Window() const;
    TextBox& Box(RaceColumn box, int row) const { return *Window()->Box(box, row); }
    /// Clicks into a box and types over what it holds.
    void Write(RaceColumn box, int row, const QString& text) const;
    void WriteDate(int row, const QByteArray& day, const QByteArray& month, const QByteArray& year) const;
    /// Types a whole row from its first box on, Enter after each value; values are separated by "|".
    void WriteRow(int row, const char* values) const;
    /// The boxes of a row separated by "|".
    QByteArray Row(int row) const;
    QByteArray Dashes(int row) const { return Window()->lblGiornoGara[row]->text().toLatin1(); }
    QByteArray FirstNumber() const { return Window()->lblNumeroGara[1]->text().toLatin1(); }

    /// A click on the arrow of the pages.
    void NextPage() const;
    void PreviousPage() const;
    /// "Salva", its question answered.
    void Save(QMessageBox::StandardButton press = QMessageBox::Ok);

    /// "Esci", and waits until the window has gone.
    void Leave() const;
    /// "Esci", and waits for the boxes of the script; the window stays.
    void TryToLeave() const;
    /// As Leave, with the question whether to save.
    void LeaveAnswering(QMessageBox::StandardButton press);

    QByteArray File() const { return folder.Read(QStringLiteral("prova/CalendarioGare")); }
    void WriteFile(const QByteArray& bytes) const { folder.Write(QStringLiteral("prova/CalendarioGare"), bytes); }
};

ExpectedBox Stop(const QString& text);

/// The fifteen columns of a row of the calendar in memory but for its number, as CalendarBytes takes them.
QByteArray RaceInMemory(int row);

} // namespace zelvia::test
