// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/StatisticsDesk.h"

#include "support/Bytes.h"
#include "support/DiaryBytes.h"
#include "support/EntryPage.h"

#include <QMenu>
#include <QMenuBar>

namespace zelvia::test
{

StatisticsDesk::StatisticsDesk()
{
    folder.Write(QStringLiteral("ZelviaFile/prova.zlv"), DiaryBytes::Blank(2026).Bytes());
}

frmStatistiche1* StatisticsDesk::Window() const
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<frmStatistiche1*>(widget);
        if (window != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

void StatisticsDesk::TakePageToFront() const
{
    Page().raise();
    Page().activateWindow();
    EntryPage::AwaitFront(Page());
}

void StatisticsDesk::Choose(const char* entry) const
{
    TakePageToFront();
    TakeEntry("mnuStatistiche", entry);
    QTRY_VERIFY(Window() != nullptr);
    EntryPage::AwaitFront(*Window());
}

void StatisticsDesk::Leave() const
{
    const QPointer<frmStatistiche1> window = Window();
    hand::Click(*window->cmdEsci);
    QTRY_VERIFY(window.isNull());
}

void StatisticsDesk::Select(int row) const
{
    ListBox& list = *Window()->lstStatistica;
    QVERIFY(row >= 0 && row < list.count());
    list.scrollToItem(list.item(row));
    hand::Click(*list.viewport(), list.visualItemRect(list.item(row)).center());
    QTRY_COMPARE(list.ListIndex(), row);
}

void StatisticsDesk::OpenTimes(int row) const
{
    Select(row);
    PressTimes();
    QTRY_COMPARE(Focused(), QByteArray("lvListaOrdinata"));
    QVERIFY(Window()->lvListaOrdinata->isVisible());
}

QByteArrayList StatisticsDesk::Lines() const
{
    QByteArrayList lines;
    for (const Text& line : Window()->lstStatistica->Items()) {
        lines << Bytes(line);
    }
    return lines;
}

QByteArrayList StatisticsDesk::Times() const
{
    const QAbstractItemModel& model = *Window()->lvListaOrdinata->model();
    QByteArrayList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QByteArrayList columns;
        for (int column = 0; column < model.columnCount(); ++column) {
            columns << model.index(row, column).data().toString().toLatin1();
        }
        rows << columns.join('|');
    }
    return rows;
}

QByteArray StatisticsDesk::Focused()
{
    return EntryPage::Focused();
}

void StatisticsDesk::PutRun(int slot, TextView route, TextView time, TextView average)
{
    RecordGiorno& day = Module1::Giorni[slot];
    day.Percorso = Text(route);
    day.TempoImpiegato = Text(time);
    day.MediaKm = Text(average);
}

} // namespace zelvia::test
