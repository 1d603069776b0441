// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/ImportHistory.h"

#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class ImportHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SavedAndReadBack();
    void WrongLinesAreLeftOut();
    void Routes_data();
    void Routes();
};

namespace
{

ImportedActivity Imported(const std::string& folder, std::int64_t moment, TextView route)
{
    return {folder, moment, CalendarDate(2024, 5, 1), 10'208, Place{45.5, 9.25}, Text(route)};
}

} // namespace

void ImportHistoryTest::SavedAndReadBack()
{
    const TempFolder folder;
    const std::string file = folder.Native("stato/zelvia/importati");
    {
        ImportHistory history(file);
        QVERIFY(history.Of("/casa").empty());
        history.Put(Imported("/casa", 1, "Lungo\tfiume"));
        history.Put(Imported("/altra", 1, "Parco"));
        history.Put(Imported("/casa", 2, ""));
        history.Put(Imported("/casa", 2, "Citt\xE0"));
        history.Save();
    }
    ImportHistory(file).Save();
    const std::vector<ImportedActivity> own = ImportHistory(file).Of("/casa");
    QCOMPARE(own.size(), std::size_t{2});
    QCOMPARE(Bytes(own[0].route), QByteArray("Lungo fiume"));
    QCOMPARE(Bytes(own[1].route), QByteArray("Citt\xE0"));
    QCOMPARE(own[1].moment, std::int64_t{2});
    QCOMPARE(own[1].metres, 10'208);
    QVERIFY(own[1].date == CalendarDate(2024, 5, 1));
    QCOMPARE(own[1].place.value().latitude, 45.5);
    QCOMPARE(own[1].place.value().longitude, 9.25);
}

void ImportHistoryTest::WrongLinesAreLeftOut()
{
    const TempFolder folder;
    folder.Write("importati", "\n\t\t\t\t\t\t\n/casa\t5\t2024-02-30\t1\t\t\t\n/casa\tx\t2024-02-01\t1\t\t\t\n/casa\t5\n"
                              "/casa\t7\t2024-02-01\t900\t\t\tParco\n/casa\t8\t2024-02-01\t900\t1");
    const std::vector<ImportedActivity> own = ImportHistory(folder.Native("importati")).Of("/casa");
    QCOMPARE(own.size(), std::size_t{1});
    QCOMPARE(own[0].moment, std::int64_t{7});
    QVERIFY(!own[0].place);
}

void ImportHistoryTest::Routes_data()
{
    QTest::addColumn<double>("metres");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<QString>("route");
    QTest::newRow("its length") << 10'050.0 << 50.0 << "Dieci";
    QTest::newRow("the closest") << 9'960.0 << 50.0 << "Quasi dieci";
    QTest::newRow("a thirtieth longer") << 10'344.0 << 50.0 << "Dieci";
    QTest::newRow("more than that") << 10'346.0 << 50.0 << "";
    QTest::newRow("short, 100 m longer") << 1'100.0 << 50.0 << "Pista";
    QTest::newRow("short, more than that") << 1'101.0 << 50.0 << "";
    QTest::newRow("started there before") << 10'050.0 << 45.0 << "Parco";
    QTest::newRow("200 m from there") << 10'050.0 << 45.0018 << "Parco";
    QTest::newRow("400 m from there") << 10'050.0 << 45.0036 << "Dieci";
    QTest::newRow("there, but not so far") << 1'000.0 << 45.0 << "Pista";
}

void ImportHistoryTest::Routes()
{
    QFETCH(double, metres);
    QFETCH(double, latitude);
    const std::vector<RouteCandidate> candidates = {{"Quasi dieci", 9'950, {}},
                                                    {"Dieci", 10'000, {}},
                                                    {"Pista", 1'000, {}},
                                                    {"", 10'050, {}},
                                                    {"Parco", 10'100, Place{45.0, 9.0}}};
    Activity activity;
    activity.metres = metres;
    activity.place = Place{latitude, 9.0};
    QTEST(QString::fromLatin1(Bytes(ProposeRoute(activity, candidates))), "route");
}

ZELVIA_TEST(ImportHistoryTest)
#include "ImportHistoryTest.moc"
