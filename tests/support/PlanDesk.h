// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/DayPage.h"
#include "support/DiaryBytes.h"
#include "support/TableBytes.h"
#include "support/TableDesk.h"

namespace zelvia::test
{

// What the panel shows after the name while no row is to be shown, and after a diary was opened or made.
inline constexpr const char* kNeutral = "0,0|0:0:0|0:0|||0 x 0  @  0:0";
inline constexpr const char* kNeutralOfADiary = "0|0:00|0:00|||0 x 000     @ 0.00 ";

/// The panel's texts after the name for a row that asks for kilometres alone.
QByteArray Kilometres(int km);

/// A page of a year without an outing, in whose folder no training table lies yet. The program has just begun: no table
/// was ever in memory.
class PlanDesk : public TableDesk
{
public:
    explicit PlanDesk(CalendarDate today = CalendarDate(2026, 5, 20));

    /// The diary as Begin() lays it down.
    DiaryBytes diary;
    void Run(int slot, int km, int metres = 0);
    /// Writes the diary, and shows the page.
    void Begin();

    /// Lays a second diary of the same days beside it, with a pointer of those bytes.
    void PutSecondDiary(const QByteArray& pointer) const;
    /// Opens the second diary from the menu.
    void OpenSecondDiary();

    /// Writes a file of the diary's folder.
    void PutTable(const QString& name, const TableBytes& table) const;
    /// Has the diary's pointer name a table of its folder.
    void Activate(const char* table) const;
    QByteArray Pointer() const { return folder.Read(QStringLiteral("prova/nometab")); }
    /// The pointer's bytes for a table of the diary's folder.
    QByteArray PointerTo(const char* table) const { return PointerOf(PathOf(table)); }
    static QByteArray PointerOf(const QByteArray& path) { return '"' + path + "\"\r\n"; }
    static inline const QByteArray kNoPointer = "\"\"\r\n";

    /// The table that the program holds for the active one.
    static QByteArray Active() { return QByteArray::fromStdString(Module1::NomeTabellaAttiva); }

    /// The panel's texts from the name of the table on, separated by "|".
    QByteArray Panel() const;
    /// Its texts after the name.
    QByteArray PanelRow() const { return Panel().mid(Panel().indexOf('|') + 1); }
    /// How many of the panel's seven pictures and seven labels show.
    int PanelParts() const;
    /// The request that the page read the table again, "1" or "0".
    QByteArray Request() const { return Caption("lblTimerTab").toLatin1(); }

    /// Asks the page to read the table again and waits for the tick that does it.
    void ReadAgain() const;
    /// Opens a table that is not the active one, accepts and activates it.
    void ActivateByHand(const char* table) const;
};

/// The box that reports the end of a table.
ExpectedBox EndOfTable(const QString& name);
/// The question before a table of the list is deleted.
ExpectedBox DeleteQuestion(const QString& entry, QMessageBox::StandardButton press);

} // namespace zelvia::test
