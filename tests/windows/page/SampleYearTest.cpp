// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A year of the sample diary, turned page by page and saved: every byte of the set.
#include "support/DayPage.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

QStringList SetOfSample()
{
    return {QStringLiteral("CalendarioGare"),  QStringLiteral("Fondo.lsx"),      QStringLiteral("ListePercorso"),
            QStringLiteral("Lunghezza.lsx"),   QStringLiteral("Modo.lsx"),       QStringLiteral("Percorso.lsx"),
            QStringLiteral("Temperatura.lsx"), QStringLiteral("TempoAtm.lsx"),   QStringLiteral("Tipo.lsx"),
            QStringLiteral("nometab"),         QStringLiteral("Base 10 km.tab"), QStringLiteral("Mezza maratona.tab")};
}

/// Compares line by line first, so that a failure names the day.
void CompareDiaries(const QByteArray& got, const DiaryBytes& expected)
{
    const DiaryBytes saved(got);
    QVERIFY(saved.Complete());
    for (int slot = 1; slot <= DiaryBytes::kDays; ++slot) {
        for (int line = 1; line <= DiaryBytes::kLines; ++line) {
            QVERIFY2(saved.Line(slot, line) == expected.Line(slot, line),
                     qPrintable(QStringLiteral("day %1, line %2").arg(slot).arg(line)));
        }
    }
    QVERIFY(got == expected.Bytes());
}

} // namespace

class SampleYearTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDayTurnedUpAndDown_data();
    void everyDayTurnedUpAndDown();
    void openAndSaveTouchesOneDay_data();
    void openAndSaveTouchesOneDay();
};

void SampleYearTest::everyDayTurnedUpAndDown_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("days");
    QTest::newRow("the sample's own year") << 2026 << 365;
    QTest::newRow("a leap year stamps every day anew") << 2028 << 366;
}

void SampleYearTest::everyDayTurnedUpAndDown()
{
    QFETCH(int, year);
    QFETCH(int, days);
    DiaryBytes expected(SampleFile(QStringLiteral("ZelviaFile/prova.zlv")));
    QVERIFY(expected.Complete());
    for (int slot = 1; slot <= days; ++slot) {
        expected.Visit(slot, QDate(year, 1, 1).addDays(slot - 1));
    }

    DayPage page(CalendarDate(year, 1, 1));
    page.Start();
    page.GoTo(days);
    QVERIFY(Module1::FileModificato == 0);
    page.GoTo(1);
    QVERIFY(Module1::FileModificato == 0);
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);

    CompareDiaries(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")), expected);
    QStringList files = SetOfSample();
    files.sort();
    QCOMPARE(page.folder.Files(QStringLiteral("prova")), files);
    for (const QString& file : files) {
        QVERIFY2(page.folder.Read(QStringLiteral("prova/") + file) == SampleFile(QStringLiteral("prova/") + file),
                 qPrintable(file));
    }
}

void SampleYearTest::openAndSaveTouchesOneDay_data()
{
    QTest::addColumn<QDate>("today");
    QTest::newRow("a day with an outing") << QDate(2026, 3, 1);
    QTest::newRow("a day without") << QDate(2026, 3, 2);
    QTest::newRow("a day to come") << QDate(2026, 12, 31);
    QTest::newRow("another year's date") << QDate(2027, 3, 1);
}

void SampleYearTest::openAndSaveTouchesOneDay()
{
    QFETCH(QDate, today);
    DiaryBytes expected(SampleFile(QStringLiteral("ZelviaFile/prova.zlv")));
    expected.Visit(today.dayOfYear(), today);

    DayPage page(CalendarDate(today.year(), static_cast<unsigned>(today.month()), static_cast<unsigned>(today.day())));
    page.Start();
    page.script.Expect(page.OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("prova.zlv")));
    page.Menu("mnuFile", Qt::Key_A);
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    CompareDiaries(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")), expected);
    for (const QString& file : SetOfSample()) {
        QVERIFY2(page.folder.Read(QStringLiteral("prova/") + file) == SampleFile(QStringLiteral("prova/") + file),
                 qPrintable(file));
    }
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SampleYearTest)
#include "SampleYearTest.moc"
