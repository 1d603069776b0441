// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The kilometre splits of a day.
#include "support/DiaryBytes.h"
#include "support/EntryPage.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

constexpr int kHands = 15;
const QString kFirst = QStringLiteral("05      00:21:40");

bool IsOpen(const EntryPage& page)
{
    const QWidget* const controls[] = {page->upTempoKM,      page->upTempoOre, page->upTempoMinuti,
                                       page->upTempoSecondi, page->lstListaKM, page->cmdListaKM};
    return std::all_of(std::begin(controls), std::end(controls), [](const QWidget* w) { return w->isVisible(); });
}

bool IsClosed(const EntryPage& page)
{
    const QWidget* const controls[] = {page->upTempoKM,      page->upTempoOre, page->upTempoMinuti,
                                       page->upTempoSecondi, page->lstListaKM, page->cmdListaKM};
    return std::none_of(std::begin(controls), std::end(controls), [](const QWidget* w) { return w->isVisible(); });
}

void Set(const EntryPage& page, int km, int hours, int minutes, int seconds)
{
    page->upTempoKM->SetValue(km);
    page->upTempoOre->SetValue(hours);
    page->upTempoMinuti->SetValue(minutes);
    page->upTempoSecondi->SetValue(seconds);
}

QStringList Splits(const EntryPage& page)
{
    QStringList lines;
    for (int i = 0; i < page->lstListaKM->count(); ++i) {
        lines << page->lstListaKM->item(i)->text();
    }
    return lines;
}

void OpenSplits(const EntryPage& page)
{
    page.Open(*page->lblImmisTempoKM);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("cmdListaKM"));
    QTRY_VERIFY(IsOpen(page));
}

} // namespace

class SplitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensAndCloses_data();
    void opensAndCloses();
    void eachLabelTestsItsOwnControl();
    void captions_data();
    void captions();
    void refusals_data();
    void refusals();
    void anEntryIsAddedByMouseAndKeys_data();
    void anEntryIsAddedByMouseAndKeys();
    void theSecondTimeIsRefused();
    void valuesOutliveTheDay();
    void aClickInTheListKeepsAllOpen();
    void thePopUpDeletesTheSelectedSplit();
    void theDayHolds101();
    void the102ndFails_data();
    void the102ndFails();
};

void SplitsTest::opensAndCloses_data()
{
    QTest::addColumn<bool>("kmLabel");
    QTest::addColumn<int>("way");
    QTest::addColumn<QString>("closing");
    QTest::newRow("km, second click") << true << int(Way::Mouse) << "km";
    QTest::newRow("km, click on the other") << true << int(Way::Mouse) << "time";
    QTest::newRow("time, second click") << false << int(Way::Mouse) << "time";
    QTest::newRow("time, caption") << false << int(Way::Mouse) << "caption";
    QTest::newRow("km by Enter, caption") << true << int(Way::Enter) << "caption";
    QTest::newRow("time by Space, another field") << false << int(Way::Space) << "field";
}

void SplitsTest::opensAndCloses()
{
    QFETCH(bool, kmLabel);
    QFETCH(int, way);
    QFETCH(QString, closing);
    EntryPage page;
    page.Start();
    QVERIFY(IsClosed(page));
    page->ListaAperta = 3;
    page.Open(kmLabel ? *page->lblImmisTempoKM : *page->lblImmisTempoMinuti, Way(way));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("cmdListaKM"));
    QVERIFY(IsOpen(page));
    QCOMPARE(page.Hands(), kHands);
    QCOMPARE(page->cmdListaKM->text(), QStringLiteral("Immetti nella lista"));
    Label& label = closing == QLatin1String("km")        ? *page->lblImmisTempoKM
                   : closing == QLatin1String("time")    ? *page->lblImmisTempoMinuti
                   : closing == QLatin1String("caption") ? *page->lblTempoKm
                                                         : *page.Field(5).lblImmis;
    hand::Click(label);
    QTRY_VERIFY(IsClosed(page));
    // The field opened instead has the hand for itself.
    QTRY_COMPARE(page.Hands(), closing == QLatin1String("field") ? kHands : 0);
    QVERIFY(page->ListaAperta == 3);
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::eachLabelTestsItsOwnControl()
{
    EntryPage page;
    page.Start();
    const std::pair<Label*, UpDown*> rows[] = {{page->lblImmisTempoKM, page->upTempoKM},
                                               {page->lblImmisTempoMinuti, page->upTempoMinuti}};
    for (const auto& [label, spin] : rows) {
        OpenSplits(page);
        spin->SetVisible(false);
        page.Open(*label);
        QTRY_VERIFY(IsOpen(page));
        page.Open(*label);
        QTRY_VERIFY(IsClosed(page));
    }
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::captions_data()
{
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<QString>("km");
    QTest::addColumn<QString>("time");
    QTest::newRow("zeros in front") << QList<int>{3, 0, 14, 25} << "03"
                                    << "00:14:25";
    QTest::newRow("single digits") << QList<int>{9, 1, 2, 3} << "09"
                                   << "01:02:03";
    QTest::newRow("two digits") << QList<int>{10, 24, 59, 59} << "10"
                                << "24:59:59";
    QTest::newRow("three digits") << QList<int>{100, 10, 10, 10} << "100"
                                  << "10:10:10";
}

void SplitsTest::captions()
{
    QFETCH(QList<int>, values);
    QFETCH(QString, km);
    QFETCH(QString, time);
    EntryPage page;
    page.Start();
    QCOMPARE(page.Caption("lblImmisTempoKM"), QStringLiteral("0"));
    QCOMPARE(page.Caption("lblImmisTempoMinuti"), QStringLiteral("00:00:00"));
    OpenSplits(page);
    UpDown* const spins[] = {page->upTempoKM, page->upTempoOre, page->upTempoMinuti, page->upTempoSecondi};
    for (int i = 0; i < 4; ++i) {
        spins[i]->SetValue(values[i] - 1);
        page.Up(*spins[i]);
    }
    QCOMPARE(page.Caption("lblImmisTempoKM"), km);
    QCOMPARE(page.Caption("lblImmisTempoMinuti"), time);
    QVERIFY(IsOpen(page));
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::refusals_data()
{
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<QString>("text");
    const QString noKm = QStringLiteral(" INSERIRE:  KM                ");
    const QString noTime = QStringLiteral(" INSERIRE:  TEMPI                ");
    QTest::newRow("nothing") << QList<int>{0, 0, 0, 0} << noKm;
    QTest::newRow("a time alone") << QList<int>{0, 0, 5, 0} << noKm;
    QTest::newRow("km alone") << QList<int>{5, 0, 0, 0} << noTime;
    QTest::newRow("in the list") << QList<int>{5, 0, 21, 40} << QStringLiteral(" GIA'  NELLA  LISTA                ");
}

void SplitsTest::refusals()
{
    QFETCH(QList<int>, values);
    QFETCH(QString, text);
    EntryPage page;
    page.Start();
    page->lstListaKM->AddItem("01      00:04:00");
    page->lstListaKM->AddItem(FromQString(kFirst));
    OpenSplits(page);
    Set(page, values[0], values[1], values[2], values[3]);
    page.script.Expect(Warning(text));
    page.script.Meanwhile([&] { QVERIFY(IsOpen(page)); });
    hand::Click(*page->cmdListaKM);
    page.TakeFront();
    QCOMPARE(Splits(page), QStringList({QStringLiteral("01      00:04:00"), kFirst}));
    // The box is no other field: the group stays.
    QVERIFY(IsOpen(page));
    QCOMPARE(EntryPage::Focused(), QByteArray("cmdListaKM"));
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::anEntryIsAddedByMouseAndKeys_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("mouse") << int(Way::Mouse);
    QTest::newRow("Enter") << int(Way::Enter);
    QTest::newRow("Space") << int(Way::Space);
}

void SplitsTest::anEntryIsAddedByMouseAndKeys()
{
    QFETCH(int, way);
    EntryPage page;
    page.Start();
    OpenSplits(page);
    Set(page, 5, 0, 21, 40);
    const auto press = [&] {
        if (Way(way) == Way::Mouse) {
            hand::Click(*page->cmdListaKM);
        } else {
            hand::Key(Way(way) == Way::Enter ? Qt::Key_Return : Qt::Key_Space);
        }
    };
    press();
    QTRY_COMPARE(Splits(page), QStringList{kFirst});
    // The next one starts from the last; entries stay in the order of their entering.
    QCOMPARE(page->upTempoKM->Value().value(), 5);
    page.Down(*page->upTempoKM);
    press();
    QTRY_COMPARE(Splits(page), QStringList({kFirst, QStringLiteral("04      00:21:40")}));
    QVERIFY(IsOpen(page));
    page->AssegnaCampi();
    QCOMPARE(DayPage::Day().ListaKm[0], FromQString(kFirst));
    QCOMPARE(DayPage::Day().ListaKm[1], Text("04      00:21:40"));
    QCOMPARE(DayPage::Day().ListaKm[2], Text());
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::theSecondTimeIsRefused()
{
    EntryPage page;
    page.Start();
    OpenSplits(page);
    Set(page, 5, 0, 21, 40);
    hand::Click(*page->cmdListaKM);
    QTRY_COMPARE(Splits(page), QStringList{kFirst});
    page.script.Expect(Warning(QStringLiteral(" GIA'  NELLA  LISTA                ")));
    hand::Click(*page->cmdListaKM);
    page.TakeFront();
    QCOMPARE(Splits(page), QStringList{kFirst});
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::valuesOutliveTheDay()
{
    EntryPage page;
    page.Start();
    OpenSplits(page);
    Set(page, 5, 0, 21, 40);
    hand::Click(*page->cmdListaKM);
    QTRY_COMPARE(Splits(page), QStringList{kFirst});
    page.GoTo(141);
    QCOMPARE(Splits(page), QStringList());
    QCOMPARE(page.Caption("lblImmisTempoKM"), QStringLiteral("0"));
    QCOMPARE(page.Caption("lblImmisTempoMinuti"), QStringLiteral("00:00:00"));
    QCOMPARE(page->upTempoKM->Value().value(), 5);
    QCOMPARE(page->upTempoMinuti->Value().value(), 21);
    QCOMPARE(page->upTempoSecondi->Value().value(), 40);
    // The button tests the values and writes the captions.
    OpenSplits(page);
    hand::Click(*page->cmdListaKM);
    QTRY_COMPARE(Splits(page), QStringList{QStringLiteral("0      00:00:00")});
    page.Up(*page->upTempoKM);
    QCOMPARE(page.Caption("lblImmisTempoKM"), QStringLiteral("06"));
    hand::Click(*page->cmdListaKM);
    QTRY_COMPARE(Splits(page).constLast(), QStringLiteral("06      00:00:00"));
    page.GoTo(140);
    QCOMPARE(Splits(page), QStringList{kFirst});
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::aClickInTheListKeepsAllOpen()
{
    EntryPage page;
    page.Start();
    for (const char* line : {"01      00:04:00", "02      00:08:10", "03      00:12:30"}) {
        page->lstListaKM->AddItem(line);
    }
    OpenSplits(page);
    for (const int row : {1, 2, 0}) {
        page.ClickRow(*page->lstListaKM, row);
        QTRY_COMPARE(page->lstListaKM->ListIndex(), row);
        QTRY_COMPARE(EntryPage::Focused(), QByteArray("cmdListaKM"));
        QTRY_VERIFY(page->cmdListaKM->hasFocus());
        QVERIFY(IsOpen(page));
        QVERIFY(page->ListaAperta == 9);
        QCOMPARE(page.Hands(), kHands);
    }
    hand::Click(*page->lblTempoKm);
    QTRY_VERIFY(IsClosed(page));
    QVERIFY(page->ListaAperta == 9);
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::thePopUpDeletesTheSelectedSplit()
{
    EntryPage page;
    page.Start();
    page->lstListaKM->AddItem("01      00:04:00");
    page->lstListaKM->AddItem("02      00:08:10");
    page->lstListaKM->AddItem("03      00:12:30");
    OpenSplits(page);
    page.ClickRow(*page->lstListaKM, 1);
    QTRY_VERIFY(page->ListaAperta == 9);
    QCOMPARE(page.PopUp(*page->lstListaKM, Qt::Key_C), QByteArrayList{"mnuCancella"});
    QCOMPARE(Splits(page), QStringList({QStringLiteral("01      00:04:00"), QStringLiteral("03      00:12:30")}));
    QVERIFY(Module1::FileModificato == 1);
    QVERIFY(IsOpen(page));
    // Without a selection nothing goes, but the diary counts as changed again.
    Module1::FileModificato = 0;
    page.PopUp(*page->lstListaKM, Qt::Key_C);
    QCOMPARE(Splits(page).size(), 2);
    QVERIFY(Module1::FileModificato == 1);
    VERIFY_SCRIPT(page.script);
}

void SplitsTest::theDayHolds101()
{
    EntryPage page;
    page.Start();
    for (int i = 0; i <= 100; ++i) {
        page->lstListaKM->AddItem("split " + std::to_string(i));
    }
    page.Field(6).lblImmis->SetCaption("Estate");
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(DayPage::Day().ListaKm[100], Text("split 100"));
    // The file keeps the first 100.
    const DiaryBytes diary(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")));
    QVERIFY(diary.Complete());
    QCOMPARE(diary.Line(140, DiaryBytes::Splits), QByteArray("\"split 0\""));
    QCOMPARE(diary.Line(140, DiaryBytes::Splits + 99), QByteArray("\"split 99\""));
    QCOMPARE(diary.Line(140, DiaryBytes::Season), QByteArray("\"Estate\""));
}

void SplitsTest::the102ndFails_data()
{
    QTest::addColumn<bool>("changed");
    QTest::newRow("changed before") << true;
    // The comparison with the record meets the same end first.
    QTest::newRow("unchanged before") << false;
}

void SplitsTest::the102ndFails()
{
    QFETCH(bool, changed);
    EntryPage page;
    page.Start();
    for (int i = 0; i <= 101; ++i) {
        page->lstListaKM->AddItem("split " + std::to_string(i));
    }
    page->upKM->SetValue(12);
    page.Field(6).lblImmis->SetCaption("Estate");
    page->upPeso->SetValue(70);
    Module1::FileModificato = changed ? 1 : 0;
    if (!changed) {
        page.script.Expect(Report(QStringLiteral("ControllaSave - ERRORE : 9 Indice oltre i limiti")));
    }
    page.script.Expect(Report(QStringLiteral("AssegnaCampi - ERRORE : 9 Indice oltre i limiti")));
    page.Up(*page->upGiorno);
    page.TakeFront();
    VERIFY_SCRIPT(page.script);
    const RecordGiorno& day = Module1::Giorni[140];
    QVERIFY(day.Km == 12);
    QCOMPARE(day.ListaKm[100], Text("split 100"));
    QCOMPARE(day.Stagione, Text());
    QVERIFY(day.Peso == 0);
    QVERIFY(Module1::GiornoCorrente == 141);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SplitsTest)
#include "SplitsTest.moc"
