// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/SearchDesk.h"

#include "support/Bytes.h"
#include "support/EntryPage.h"
#include "toolkit/FocusController.h"

#include <QMenu>
#include <QMenuBar>

namespace zelvia::test
{

void SearchDesk::OpenSearch() const
{
    TakeEntry("mnuStatistiche", "mnuMedie");
    QTRY_VERIFY(Search() != nullptr);
    AwaitFront(*Search());
}

void SearchDesk::StartSearch()
{
    Start();
    OpenSearch();
}

void SearchDesk::AwaitFront(QWidget& window)
{
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    EntryPage::AwaitFront(window);
}

void SearchDesk::AwaitBoxes() const
{
    TRY_SCRIPT(script);
    EntryPage::AwaitFront(*Search());
}

void SearchDesk::Choose(const QString& value) const
{
    ListBox& list = *Search()->lstStatistiche;
    const QList<QListWidgetItem*> found = list.findItems(value, Qt::MatchExactly);
    QVERIFY2(found.size() == 1, qPrintable(value));
    list.scrollToItem(found.first());
    hand::DoubleClick(*list.viewport(), list.visualItemRect(found.first()).center());
}

void SearchDesk::Demand(Categoria category, const QString& value) const
{
    ClickCategory(category);
    QTRY_VERIFY(Condition(category).isVisible());
    Choose(value);
    QTRY_COMPARE(Condition(category).text(), value);
}

void SearchDesk::TypePeriod(const QByteArray& boxes) const
{
    if (!Search()->lblDalTit->Visible()) {
        hand::Click(*Search()->cmdPeriodo);
        QTRY_COMPARE(Focused(), QByteArray("txtGiornoInizio"));
    }
    const QByteArrayList parts = boxes.split('|');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        if (!parts[i].isEmpty()) {
            Write(static_cast<PeriodBox::Box>(i), QString::fromLatin1(parts[i]));
        }
    }
}

void SearchDesk::Write(PeriodBox::Box field, const QString& text) const
{
    TextBox& box = *Search()->periodBoxes[field];
    hand::Click(box);
    QTRY_VERIFY2(box.hasFocus(), qPrintable(box.objectName()));
    box.selectAll();
    hand::Key(Qt::Key_Backspace);
    hand::Type(text);
}

QByteArray SearchDesk::Period() const
{
    QByteArrayList parts;
    for (const TextBox* box : Search()->periodBoxes) {
        parts << box->text().toLatin1();
    }
    return parts.join('|');
}

QByteArrayList SearchDesk::Entries(const ListBox& list)
{
    QByteArrayList entries;
    for (const Text& entry : list.Items()) {
        entries << Bytes(entry);
    }
    return entries;
}

QByteArray SearchDesk::Totals() const
{
    QByteArrayList totals;
    for (const Label* label : {Search()->lblTcorse, Search()->lblTkm, Search()->lblTtempi, Search()->lblTmedia}) {
        totals << (label->isVisible() ? label->text().toLatin1() : QByteArray("hidden"));
    }
    return totals.join('|');
}

bool SearchDesk::ShowsResult() const
{
    return Search()->lstMedie->isVisible() && Search()->lblTitoliMedie->isVisible() &&
           Search()->lblTitoliMedie2->isVisible();
}

QByteArray SearchDesk::Focused()
{
    FocusController::Instance().Flush();
    const Control* control = FocusController::Instance().Current();
    return control == nullptr ? QByteArray("none") : control->Widget().objectName().toLatin1();
}

} // namespace zelvia::test
