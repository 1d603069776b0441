// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sample year from the menu of the page to the times of a value, against a plain computation from its file.
#include "diary/PlainStatistics.h"
#include "support/StatisticsDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

const std::pair<const char*, const char*> kEntries[] = {{"mnuPercorso", "Percorso"},
                                                        {"mnuLunghezza", "Lunghezza"},
                                                        {"mnuAndatura", "Andatura"},
                                                        {"mnuFondo", "Terreno"},
                                                        {"mnuTipo", "Tipo"},
                                                        {"mnuStagione", "Stagione"},
                                                        {"mnuMeteo", "Meteo"},
                                                        {"mnuTemperatura", "Temperatura"},
                                                        {"mnuCorridori", "Corridori"},
                                                        {"mnuPeso", "Peso"},
                                                        {"mnuKm", "Km"},
                                                        {"mnuRipetizioni", "Ripetizioni"}};

/// The days of the file up to the one on show, this one as its commit leaves it.
std::vector<PlainDay> SampleDays(const QDate& shown)
{
    DiaryBytes diary(SampleFile(QStringLiteral("ZelviaFile/prova.zlv")));
    diary.Visit(shown.dayOfYear(), shown);
    std::vector<PlainDay> days;
    for (int slot = 1; slot <= shown.dayOfYear(); ++slot) {
        days.push_back(PlainDayOf(diary, slot));
    }
    return days;
}

} // namespace

class StatisticsSampleYearTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromTheMenuToTheTimes_data();
    void fromTheMenuToTheTimes();
    void noRowSelectedUnderRepetitions();
};

void StatisticsSampleYearTest::fromTheMenuToTheTimes_data()
{
    QTest::addColumn<QByteArray>("entry");
    for (const auto& [entry, title] : kEntries) {
        QTest::newRow(title) << QByteArray(entry);
    }
}

void StatisticsSampleYearTest::fromTheMenuToTheTimes()
{
    QFETCH(QByteArray, entry);
    const QByteArray title = QTest::currentDataTag();
    const std::vector<PlainDay> days = SampleDays(QDate(2026, 12, 31));
    const std::vector<PlainRow> rows = Ranked(title, days);
    StatisticsDesk desk(CalendarDate(2026, 12, 31));
    desk.Start();
    desk.Choose(entry.constData());
    QCOMPARE(desk.Window()->lblTitolo->text(), QString::fromLatin1(title));
    QVERIFY(rows.size() > 2);
    QCOMPARE(desk.Lines(), LinesOf(title, rows));

    const int last = static_cast<int>(desk.Lines().size()) - 1;
    for (const int row : {0, 1, last}) {
        desk.OpenTimes(row);
        const QByteArrayList times = TimesOf(title, rows[static_cast<std::size_t>(row)].value, days);
        QVERIFY(!times.isEmpty());
        QCOMPARE(desk.Times(), times);
        hand::Key(Qt::Key_Escape);
        QTRY_VERIFY(!desk.Window()->lvListaOrdinata->isVisible());
    }
    desk.Leave();
    VERIFY_SCRIPT(desk.script);
}

/// The two routines that can't find their piece count as 0, so the days without repetitions are listed.
void StatisticsSampleYearTest::noRowSelectedUnderRepetitions()
{
    StatisticsDesk desk(CalendarDate(2026, 5, 20));
    desk.Start();
    desk.Choose("mnuRipetizioni");
    for (const char* routine : {"ScomponiDistanza", "ScomponiQuante"}) {
        desk.script.Expect(Report(QLatin1String(routine) + QStringLiteral(" - ERRORE : 5 Argomento non valido")));
    }
    QCOMPARE(desk.Window()->lstStatistica->ListIndex(), -1);
    desk.PressTimes();
    TRY_SCRIPT(desk.script);
    // 79 days with a time, and 13 without one that take the time before them.
    QTRY_COMPARE(desk.Times().size(), 92);
    const QByteArrayList times = desk.Times();
    QCOMPARE(
        std::count_if(times.begin(), times.end(), [](const QByteArray& row) { return row.split('|')[2].isEmpty(); }),
        13);
    QCOMPARE(times, TimesOf("Ripetizioni", "", SampleDays(QDate(2026, 5, 20))));
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::StatisticsSampleYearTest)
#include "StatisticsSampleYearTest.moc"
