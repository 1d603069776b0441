// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The eight numeric fields of the page: what a click opens, what the arrows do, what closing does.
#include "support/EntryPage.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

constexpr int kHands = 15;

struct Group {
    const char* value;
    const char* caption;
    QByteArrayList spins; ///< The first is the one that a second click tests.
    const char* focus;
    const char* empty; ///< The value as the window is built; showing an empty day changes no control.
};

const Group kGroups[] = {
    {"lblImmisMetri", "lblKm", {"upMetri", "upKM", "upMetro"}, "upMetri", "0,0"},
    {"lblImmisOraInizio",
     "lblOraInizio",
     {"upMinutiInizio", "upOraInizio", "upSecondiInizio"},
     "upOraInizio",
     "0:00:00"},
    {"lblImmisOraFine", "lblOraFine", {"upMinutiFine", "upOraFine", "upSecondiFine"}, "upOraFine", "0:00:00"},
    {"lblImmisCorridori", "lblCorridori", {"upCorridori"}, "upCorridori", "1"},
    {"lblImmisPeso", "lblPeso", {"upPeso"}, "upPeso", "0"},
    {"lblRipetizioniVolte", "lblRipetizioni", {"upRipetizioni"}, "upRipetizioni", "0"},
    {"lblRipetizioniQuante",
     "lblRipetizioni",
     {"upRipetizioniQuante", "upRipetizioniTempi"},
     "upRipetizioniQuante",
     "0:00"},
    {"lblRipetizioniDistanza", "lblRipetizioni", {"upRipetizioniDistanza"}, "upRipetizioniDistanza", "00"},
};

template <typename Control>
Control& Find(const EntryPage& page, const QByteArray& name)
{
    auto* control = page->findChild<Control*>(QLatin1String(name));
    if (control == nullptr) {
        qFatal("no control %s", name.constData());
    }
    return *control;
}

/// The spin controls that show, in alphabetical order.
QByteArrayList Shown(const EntryPage& page)
{
    QByteArrayList names;
    for (const UpDown* spin : page->findChildren<UpDown*>()) {
        if (spin->isVisible()) {
            names << spin->objectName().toLatin1();
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

QByteArrayList Sorted(QByteArrayList names)
{
    std::sort(names.begin(), names.end());
    return names;
}

void AddGroups()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(kGroups)); ++i) {
        QTest::newRow(kGroups[i].value) << i;
    }
}

} // namespace

class SpinsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limits_data();
    void limits();
    void opens_data();
    void opens();
    void closes_data();
    void closes();
    void aSecondClickTestsTheFirstControl_data() { AddGroups(); }
    void aSecondClickTestsTheFirstControl();
    void theArrowsLeaveTheGroupOpen_data() { AddGroups(); }
    void theArrowsLeaveTheGroupOpen();
    void valueLabels_data();
    void valueLabels();
    void singleMetresGoWithTheNextTens();
    void kilometresHideTheSingleMetres();
    void metresBeyondTheLimitSurviveTheDisplay();
    void twentyFourHoursCanBeEntered_data();
    void twentyFourHoursCanBeEntered();
    void weightOpensAtTheLatestOne_data();
    void weightOpensAtTheLatestOne();
};

void SpinsTest::limits_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("increment");
    QTest::newRow("upKM") << 0 << 500 << 1;
    QTest::newRow("upMetri") << 0 << 990 << 10;
    QTest::newRow("upMetro") << 0 << 9 << 1;
    QTest::newRow("upOraInizio") << 0 << 24 << 1;
    QTest::newRow("upMinutiInizio") << 0 << 59 << 1;
    QTest::newRow("upSecondiInizio") << 0 << 59 << 1;
    QTest::newRow("upOraFine") << 0 << 24 << 1;
    QTest::newRow("upMinutiFine") << 0 << 59 << 1;
    QTest::newRow("upSecondiFine") << 0 << 59 << 1;
    QTest::newRow("upCorridori") << 1 << 100000 << 1;
    QTest::newRow("upPeso") << 0 << 150 << 1;
    QTest::newRow("upRipetizioni") << 0 << 99 << 1;
    QTest::newRow("upRipetizioniQuante") << 0 << 60 << 1;
    QTest::newRow("upRipetizioniTempi") << 0 << 59 << 1;
    QTest::newRow("upRipetizioniDistanza") << 0 << 10000 << 100;
    QTest::newRow("upTempoKM") << 0 << 100 << 1;
    QTest::newRow("upTempoOre") << 0 << 24 << 1;
    QTest::newRow("upTempoMinuti") << 0 << 59 << 1;
    QTest::newRow("upTempoSecondi") << 0 << 59 << 1;
}

void SpinsTest::limits()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, increment);
    EntryPage page;
    page.Start();
    auto& spin = Find<UpDown>(page, QTest::currentDataTag());
    QCOMPARE(spin.property("minimum").toInt(), minimum);
    QCOMPARE(spin.property("maximum").toInt(), maximum);
    QCOMPARE(spin.property("increment").toInt(), increment);
    // One step from each end stays within; at the end a click does nothing and does not wrap round.
    spin.SetValue(maximum - increment);
    page.Up(spin);
    QCOMPARE(spin.Value().value(), maximum);
    page.Up(spin);
    QCOMPARE(spin.Value().value(), maximum);
    spin.SetValue(minimum + increment);
    page.Down(spin);
    QCOMPARE(spin.Value().value(), minimum);
    page.Down(spin);
    QCOMPARE(spin.Value().value(), minimum);
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::opens_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("way");
    for (int i = 0; i < int(std::size(kGroups)); ++i) {
        QTest::addRow("%s by mouse", kGroups[i].value) << i << int(Way::Mouse);
        QTest::addRow("%s by Enter", kGroups[i].value) << i << int(Way::Enter);
        QTest::addRow("%s by Space", kGroups[i].value) << i << int(Way::Space);
    }
}

void SpinsTest::opens()
{
    QFETCH(int, index);
    QFETCH(int, way);
    const Group& group = kGroups[index];
    EntryPage page;
    page.Start();
    QCOMPARE(Shown(page), QByteArrayList());
    QCOMPARE(page.Caption(group.value), QString::fromLatin1(group.empty));
    page.Open(Find<Label>(page, group.value), Way(way));
    QTRY_COMPARE(Shown(page), Sorted(group.spins));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(group.focus));
    QCOMPARE(page.Hands(), kHands);
    QCOMPARE(page.Caption(group.value), QString::fromLatin1(group.empty));
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::closes_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("way");
    for (int i = 0; i < int(std::size(kGroups)); ++i) {
        for (const char* way : {"second click", "caption", "Tab", "another field"}) {
            QTest::addRow("%s, %s", kGroups[i].value, way) << i << QString::fromLatin1(way);
        }
    }
}

void SpinsTest::closes()
{
    QFETCH(int, index);
    QFETCH(QString, way);
    const Group& group = kGroups[index];
    EntryPage page;
    page.Start();
    page.Open(Find<Label>(page, group.value));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(group.focus));
    const bool another = way == QLatin1String("another field");
    if (way == QLatin1String("second click")) {
        page.Open(Find<Label>(page, group.value));
    } else if (way == QLatin1String("caption")) {
        hand::Click(Find<Label>(page, group.caption));
    } else if (another) {
        page.Open(5);
    } else {
        hand::Key(Qt::Key_Tab);
    }
    QTRY_COMPARE(Shown(page), QByteArrayList());
    if (way != QLatin1String("Tab")) {
        QTRY_COMPARE(EntryPage::Focused(), another ? QByteArray("txtTipo") : QByteArray("pctGiornoAnno"));
    }
    QTRY_COMPARE(page.Hands(), another ? kHands : 0);
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::aSecondClickTestsTheFirstControl()
{
    QFETCH(int, index);
    const Group& group = kGroups[index];
    EntryPage page;
    page.Start();
    // With that one hidden the click opens again, whatever else shows.
    for (const QByteArray& name : group.spins) {
        Find<UpDown>(page, name).SetVisible(name != group.spins.constFirst());
    }
    page.Open(Find<Label>(page, group.value));
    QTRY_COMPARE(Shown(page), Sorted(group.spins));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(group.focus));
    // With that one alone visible the click closes.
    for (const QByteArray& name : group.spins) {
        Find<UpDown>(page, name).SetVisible(name == group.spins.constFirst() || name == group.focus);
    }
    page.Open(Find<Label>(page, group.value));
    QTRY_COMPARE(Shown(page), QByteArrayList());
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::theArrowsLeaveTheGroupOpen()
{
    QFETCH(int, index);
    const Group& group = kGroups[index];
    EntryPage page;
    page.Start();
    page.Open(Find<Label>(page, group.value));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(group.focus));
    for (const QByteArray& name : group.spins) {
        auto& spin = Find<UpDown>(page, name);
        const int before = spin.Value().value();
        hand::Click(spin, {spin.width() / 2, spin.height() / 4});
        QTRY_COMPARE(spin.Value().value(), before + spin.Increment());
        QCOMPARE(Shown(page), Sorted(group.spins));
        QCOMPARE(EntryPage::Focused(), QByteArray(group.focus));
    }
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::valueLabels_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QList<int>>("values"); // of the controls named below, in their order
    QTest::addColumn<QByteArrayList>("spins");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char* label, const QList<int>& values, const QByteArrayList& spins, const char* caption) {
        QTest::addRow("%s %s", label, caption)
            << QString::fromLatin1(label) << values << spins << QString::fromLatin1(caption);
    };
    const QByteArrayList distance = {"upKM", "upMetri", "upMetro"};
    row("lblImmisMetri", {10, 0, 0}, distance, "10,000");
    row("lblImmisMetri", {10, 50, 0}, distance, "10,050");
    row("lblImmisMetri", {0, 990, 9}, distance, "0,999");
    row("lblImmisMetri", {500, 100, 5}, distance, "500,105");
    row("lblImmisMetri", {0, 0, 7}, distance, "0,007");
    const QByteArrayList start = {"upOraInizio", "upMinutiInizio", "upSecondiInizio"};
    row("lblImmisOraInizio", {8, 5, 9}, start, "8:05:09");
    row("lblImmisOraInizio", {24, 59, 59}, start, "24:59:59");
    row("lblImmisOraInizio", {0, 0, 1}, start, "0:00:01");
    const QByteArrayList end = {"upOraFine", "upMinutiFine", "upSecondiFine"};
    row("lblImmisOraFine", {10, 0, 0}, end, "10:00:00");
    row("lblImmisOraFine", {0, 7, 0}, end, "0:07:00");
    row("lblImmisCorridori", {100000}, {"upCorridori"}, "100000");
    row("lblImmisPeso", {72}, {"upPeso"}, "72");
    row("lblRipetizioniVolte", {8}, {"upRipetizioni"}, "8");
    row("lblRipetizioniDistanza", {10000}, {"upRipetizioniDistanza"}, "10000");
    row("lblRipetizioniQuante", {60, 5}, {"upRipetizioniQuante", "upRipetizioniTempi"}, "60:05");
    row("lblRipetizioniQuante", {0, 59}, {"upRipetizioniQuante", "upRipetizioniTempi"}, "0:59");
}

void SpinsTest::valueLabels()
{
    QFETCH(QString, label);
    QFETCH(QList<int>, values);
    QFETCH(QByteArrayList, spins);
    QFETCH(QString, caption);
    EntryPage page;
    page.Start();
    // One step short by program, the last one by hand.
    for (int i = 0; i < values.size(); ++i) {
        auto& spin = Find<UpDown>(page, spins[i]);
        if (values[i] > spin.Minimum()) {
            spin.SetValue(values[i] - spin.Increment());
            page.Up(spin);
        }
    }
    QCOMPARE(page.Caption(label.toLatin1().constData()), caption);
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::singleMetresGoWithTheNextTens()
{
    EntryPage page;
    page.Start();
    page->upKM->SetValue(100);
    page->upMetro->SetValue(5);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("100,005"));
    page.Up(*page->upMetri);
    QCOMPARE(page->upMetro->Value().value(), 0);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("100,010"));
    // At the limit a click changes nothing, so the single metres stay.
    page->upMetri->SetValue(990);
    page.Up(*page->upMetro);
    page.Up(*page->upMetri);
    QCOMPARE(page->upMetro->Value().value(), 1);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("100,991"));
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::kilometresHideTheSingleMetres()
{
    EntryPage page;
    page.Start();
    page->upMetri->SetValue(40);
    page->upMetro->SetValue(5);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("0,045"));
    page.Up(*page->upKM);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("1,040"));
    QCOMPARE(page->upMetro->Value().value(), 5);
    page->AssegnaCampi();
    QVERIFY(DayPage::Day().Km == 1);
    QVERIFY(DayPage::Day().Metri == 45);
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::metresBeyondTheLimitSurviveTheDisplay()
{
    EntryPage page;
    page.Start();
    page->upMetri->SetValue(990);
    page->upMetro->SetValue(5);
    page.GoTo(141);
    QVERIFY(Module1::Giorni[140].Metri == 995);
    QCOMPARE(page->upMetro->Value().value(), 0);
    page.GoTo(140);
    QCOMPARE(page->upMetri->Value().value(), 995);
    QCOMPARE(page->upMetro->Value().value(), 0);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("0,995"));
    page.Up(*page->upMetri);
    QCOMPARE(page->upMetri->Value().value(), 995);
    page.GoTo(141);
    QVERIFY(Module1::Giorni[140].Metri == 995);
    page.GoTo(140);
    page.Down(*page->upMetri);
    QCOMPARE(page->upMetri->Value().value(), 985);
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::twentyFourHoursCanBeEntered_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("spin");
    QTest::newRow("start") << "lblImmisOraInizio"
                           << "upOraInizio";
    QTest::newRow("end") << "lblImmisOraFine"
                         << "upOraFine";
}

void SpinsTest::twentyFourHoursCanBeEntered()
{
    QFETCH(QString, label);
    QFETCH(QString, spin);
    EntryPage page;
    page.Start();
    page.Open(Find<Label>(page, label.toLatin1()));
    QTRY_COMPARE(EntryPage::Focused(), spin.toLatin1());
    for (int i = 0; i < 26; ++i) {
        page.Up(Find<UpDown>(page, spin.toLatin1()));
    }
    QCOMPARE(page.Caption(label.toLatin1().constData()), QStringLiteral("24:00:00"));
    page.Open(Find<Label>(page, label.toLatin1()));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    page->AssegnaCampi();
    QVERIFY((spin == QLatin1String("upOraFine") ? DayPage::Day().OraFine : DayPage::Day().OraInizio) == 24);
    // No check refuses it.
    VERIFY_SCRIPT(page.script);
}

void SpinsTest::weightOpensAtTheLatestOne_data()
{
    QTest::addColumn<int>("earlier"); // 0 is none
    QTest::addColumn<int>("today");
    QTest::addColumn<int>("later");
    QTest::addColumn<int>("opens");
    QTest::newRow("none before") << 0 << 0 << 75 << 0;
    QTest::newRow("an earlier one") << 71 << 0 << 75 << 71;
    QTest::newRow("the day's own is the latest") << 71 << 68 << 75 << 68;
}

void SpinsTest::weightOpensAtTheLatestOne()
{
    QFETCH(int, earlier);
    QFETCH(int, today);
    QFETCH(int, later);
    QFETCH(int, opens);
    EntryPage page;
    page.Start();
    Module1::Giorni[100].Peso = earlier;
    Module1::Giorni[141].Peso = today;
    Module1::Giorni[200].Peso = later;
    page.GoTo(141);
    QVERIFY(page->UltimoPeso == opens);
    // What was entered since then is replaced.
    page->upPeso->SetValue(60);
    page.Open(*page->lblImmisPeso);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upPeso"));
    QCOMPARE(page->upPeso->Value().value(), opens);
    QCOMPARE(page.Caption("lblImmisPeso"), QString::number(opens));
    // Closed without a click.
    hand::Click(*page->lblPeso);
    QTRY_VERIFY(!page->upPeso->isVisible());
    page.GoTo(142);
    QVERIFY(Module1::Giorni[141].Peso == opens);
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SpinsTest)
#include "SpinsTest.moc"
