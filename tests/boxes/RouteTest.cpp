// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bad input to the boxes of a route's description.
#include "boxes/BoxHand.h"
#include "diary/RouteModel.h"
#include "diary/Workspace.h"
#include "support/Bytes.h"
#include "support/WindowTest.h"
#include "windows/routes/FrmDesPercorso.h"

#include <QClipboard>

namespace zelvia::test
{
namespace
{

constexpr int kRows = 20;
constexpr int kNewPlace = 4;

// Lines of the route file, from the place of the new route on.
constexpr int kLinesOfAPlace = 62;
constexpr int kLinesOfAStretch = 3;

struct BoxRow {
    const char* name;
    int count;
    int limit;              ///< 0 for a box that takes nothing.
    const NumberKind* kind; ///< None for texts, and for what takes nothing.
    int line;               ///< Of a stretch in the file.
};

const BoxRow kBoxes[] = {
    {"txtTratto", kRows, 80, nullptr, 0},         {"txtKm", kRows, 2, &kTwoCharacters, 1},
    {"txtMetri", kRows, 3, &kThreeCharacters, 2}, {"txtDistanzaKm", 1, 0, nullptr, -1},
    {"txtDistanzaMetri", 1, 0, nullptr, -1},
};

TextBox& Box(const frmDesPercorso& window, const char* name, int row)
{
    return *window.findChild<TextBox*>(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(row));
}

/// The route file of the three routes at the start and the new one, whose stretches hold those lines at `line`.
QByteArray FileWith(const QByteArrayList& values, int line, int metres)
{
    QByteArrayList lines = RouteFileOf({"Alfa", "Beta", "Gamma"}).split('\n');
    const qsizetype first = (kNewPlace - 1) * kLinesOfAPlace;
    lines[first] = "\"Delta\"\r";
    lines[first + 1] = QByteArray::number(metres) + '\r';
    for (qsizetype i = 0; i < values.size(); ++i) {
        lines[first + 2 + i * kLinesOfAStretch + line] = values[i] + '\r';
    }
    return lines.join('\n');
}

/// A page with the window of a new route.
class Desk : public EntryPage
{
public:
    void Begin()
    {
        Start();
        Open(1);
        TypeOver(*Field(1).txt, QStringLiteral("Delta"));
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY(RouteWindow() != nullptr);
        AwaitFront(*RouteWindow());
    }

    void Save()
    {
        Menu("mnuFile", Qt::Key_S);
        QTRY_VERIFY(Module1::FileModificato == 0);
    }

    QByteArray File() const { return folder.Read(QStringLiteral("prova/ListePercorso")); }
};

} // namespace

class RouteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxHasItsRow();
    void numbers_data();
    void numbers();
    void texts();
    void sumsTakeNothing_data();
    void sumsTakeNothing();
    void changesWithoutACharacter_data();
    void changesWithoutACharacter();
};

void RouteTest::everyBoxHasItsRow()
{
    Desk desk;
    desk.Begin();
    QByteArrayList named;
    for (const BoxRow& row : kBoxes) {
        named << Counted(row.name, row.count);
    }
    QCOMPARE(BoxesOf(*desk.RouteWindow()), Sorted(named));
    // The sums show 0.
    const auto limitOf = [](const QByteArray& name) { return std::max(LimitIn(kBoxes, name), 1); };
    QCOMPARE(BoxesOfOtherLength(*desk.RouteWindow(), limitOf), QByteArrayList());
    desk.CloseRouteWindow();
    VERIFY_SCRIPT(desk.script);
}

void RouteTest::numbers_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<QString>("distance");
    // What the values of the rows add up to.
    QTest::newRow("txtKm") << 1 << "128,000";
    QTest::newRow("txtMetri") << 2 << "1,140";
}

void RouteTest::numbers()
{
    QFETCH(int, box);
    QFETCH(QString, distance);
    const BoxRow& row = kBoxes[box];
    Desk desk;
    desk.Begin();
    const frmDesPercorso& window = *desk.RouteWindow();
    QByteArrayList values;
    for (std::size_t i = 0; i < kNumberInputs; ++i) {
        const Outcome& outcome = (*row.kind)[i];
        TextBox& filled = Box(window, row.name, static_cast<int>(i) + 1);
        Fill(filled, NumberInputs()[i]);
        QTRY_COMPARE(filled.text(), outcome.Shown());
        hand::Key(Qt::Key_Tab);
        QTRY_VERIFY2(!filled.hasFocus(), NumberInputs()[i].name);
        QCOMPARE(filled.text(), outcome.Left());
        values << QByteArray::number(outcome.value);
    }
    // Another one goes on as ever.
    Fill(*window.txtTratto[kRows], {"", Entry::Typed, QStringLiteral("arrivo")});
    QTRY_COMPARE(window.txtTratto[kRows]->text(), QStringLiteral("arrivo"));
    desk.CloseRouteWindow();
    QCOMPARE(desk.Caption("lblImmisMetri"), distance);
    desk.Save();
    QByteArray expected = FileWith(values, row.line, distance == QLatin1String("1,140") ? 1140 : 128000);
    QByteArrayList lines = expected.split('\n');
    lines[(kNewPlace - 1) * kLinesOfAPlace + 2 + (kRows - 1) * kLinesOfAStretch] = "\"arrivo\"\r";
    expected = lines.join('\n');
    CompareFile(desk.File(), expected);
    // Read back it is the same.
    Module1::AzzeraPercorsi();
    Module1::CaricaPercorsi();
    for (int i = 0; i < values.size(); ++i) {
        const i32 held = (row.line == 1 ? Module1::TrattoKm : Module1::TrattoMetri)[kNewPlace][i + 1];
        QCOMPARE(QByteArray::number(held.value()), values[i]);
    }
    desk.Up(*desk->upGiorno);
    QVERIFY(Module1::GiornoCorrente == 141);
    VERIFY_SCRIPT(desk.script);
}

void RouteTest::texts()
{
    const BoxRow& row = kBoxes[0];
    Desk desk;
    desk.Begin();
    const frmDesPercorso& window = *desk.RouteWindow();
    QByteArrayList values;
    for (const BadInput& input : TextInputs()) {
        TextBox& filled = Box(window, row.name, static_cast<int>(values.size()) + 1);
        Fill(filled, input);
        QTRY_COMPARE(filled.text(), Shown(input, row.limit));
        hand::Key(Qt::Key_Tab);
        QTRY_VERIFY2(!filled.hasFocus(), input.name);
        QCOMPARE(filled.text(), Shown(input, row.limit));
        values << '"' + Bytes(FromQString(Shown(input, row.limit))) + '"';
    }
    Fill(*window.txtKm[kRows], {"", Entry::Typed, QStringLiteral("9")});
    desk.CloseRouteWindow();
    QCOMPARE(desk.Caption("lblImmisMetri"), QStringLiteral("9,000"));
    desk.Save();
    QByteArrayList lines = FileWith(values, row.line, 9000).split('\n');
    lines[(kNewPlace - 1) * kLinesOfAPlace + 2 + (kRows - 1) * kLinesOfAStretch + 1] = "9\r";
    const QByteArray expected = lines.join('\n');
    CompareFile(desk.File(), expected);
    Module1::AzzeraPercorsi();
    Module1::CaricaPercorsi();
    for (int i = 0; i < values.size(); ++i) {
        QCOMPARE('"' + Bytes(Module1::TrattoDescrizione[kNewPlace][i + 1]) + '"', values[i]);
    }
    VERIFY_SCRIPT(desk.script);
}

void RouteTest::sumsTakeNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("kilometres") << "txtDistanzaKm";
    QTest::newRow("metres") << "txtDistanzaMetri";
}

void RouteTest::sumsTakeNothing()
{
    QFETCH(QString, name);
    Desk desk;
    desk.Begin();
    auto& sum = *desk.RouteWindow()->findChild<TextBox*>(name);
    hand::Click(sum);
    QTRY_VERIFY(sum.hasFocus());
    PressForeignKeys();
    QCOMPARE(sum.text(), QStringLiteral("0"));
    QApplication::clipboard()->setText(QStringLiteral("7"));
    sum.paste();
    QCOMPARE(sum.text(), QStringLiteral("0"));
    desk.CloseRouteWindow();
    QCOMPARE(desk.Caption("lblImmisMetri"), QStringLiteral("0,0"));
    VERIFY_SCRIPT(desk.script);
}

void RouteTest::changesWithoutACharacter_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("after");
    for (const char* name : {"txtTratto", "txtKm", "txtMetri"}) {
        for (const auto& [way, after] : {std::pair{"pasted", "77"}, std::pair{"pasted from the menu", "77"},
                                         std::pair{"cut", ""}, std::pair{"deleted", ""}, std::pair{"undone", ""}}) {
            QTest::addRow("%s, %s", name, way)
                << QString::fromLatin1(name) << QString::fromLatin1(way) << QString::fromLatin1(after);
        }
    }
}

void RouteTest::changesWithoutACharacter()
{
    QFETCH(QString, name);
    QFETCH(QString, way);
    QFETCH(QString, after);
    Desk desk;
    desk.Begin();
    TextBox& box = Box(*desk.RouteWindow(), qPrintable(name), 2);
    Fill(box, {"", Entry::Typed, QStringLiteral("5")});
    QTRY_COMPARE(box.text(), QStringLiteral("5"));
    Module1::FileModificato = 0;
    if (way.startsWith(QLatin1String("pasted"))) {
        QApplication::clipboard()->setText(QStringLiteral("77"));
    }
    box.selectAll();
    if (way == QLatin1String("pasted")) {
        hand::Key(Qt::Key_V, Qt::ControlModifier);
    } else if (way == QLatin1String("pasted from the menu")) {
        box.paste();
    } else if (way == QLatin1String("cut")) {
        hand::Key(Qt::Key_X, Qt::ControlModifier);
    } else if (way == QLatin1String("deleted")) {
        hand::Key(Qt::Key_Delete);
    } else {
        hand::Key(Qt::Key_Z, Qt::ControlModifier);
    }
    QTRY_COMPARE(box.text(), after);
    QVERIFY(Module1::FileModificato == 1);
    desk.CloseRouteWindow();
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::RouteTest)
#include "RouteTest.moc"
