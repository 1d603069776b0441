// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the boxes of the table editor let in, and what they make of it when they are left.
#include "support/TableDesk.h"
#include "support/WindowTest.h"

#include <QClipboard>

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

const QString kSigns = QStringLiteral("       x              @      .  ");
const QString kNoSigns = QString(32, QLatin1Char(' '));

} // namespace

class EditorFormatsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavingABoxWritesItAnew_data();
    void leavingABoxWritesItAnew();
    void capitalsStayAtTheHeadOfAWordOnly_data();
    void capitalsStayAtTheHeadOfAWordOnly();
    void theDotFollowsTheDigits();
    void boxesTakeWhatIsTheirs_data();
    void boxesTakeWhatIsTheirs();
    void theSignsComeAndGo();
};

void EditorFormatsTest::leavingABoxWritesItAnew_data()
{
    QTest::addColumn<int>("column");
    // Pairs of what is typed and what it becomes.
    QTest::addColumn<QByteArrayList>("pairs");
    QTest::newRow("kilometres") << int{Km} << QByteArrayList{"7", "7", "07", "07", "", ""};
    QTest::newRow("metres") << int{Metri} << QByteArrayList{"5", "005", "50", "050", "500", "500", "0", "000", "", ""};
    QTest::newRow("hours") << int{Ore} << QByteArrayList{"7", "7", "07", "07", "24", "24", "", ""};
    QTest::newRow("minutes") << int{Minuti} << QByteArrayList{"7", "07", "0", "00", "59", "59", "", ""};
    QTest::newRow("seconds") << int{Secondi} << QByteArrayList{"7", "07", "0", "00", "59", "59", "", ""};
    QTest::newRow("average minutes") << int{MediaMinuti} << QByteArrayList{"7", "7", "07", "07", "60", "60", "", ""};
    QTest::newRow("average seconds") << int{MediaSecondi} << QByteArrayList{"7", "07", "0", "00", "59", "59", "", ""};
    QTest::newRow("thousandths") << int{MediaMillesimi} << QByteArrayList{"7", "007", "70", "070", "0", "000", "", ""};
    QTest::newRow("times") << int{RipetVolte} << QByteArrayList{"7", "7", "07", "07", "0", "0", "", ""};
    QTest::newRow("distance") << int{RipetDistanza} << QByteArrayList{"400",  "400",   "1500", "1.500", "9999", "9.999",
                                                                      "0400", "0.400", "0",    "0",     "",     ""};
    QTest::newRow("each one's minutes") << int{RipetQuante} << QByteArrayList{"7", "7", "07", "07", "60", "60", "", ""};
    QTest::newRow("each one's seconds") << int{RipetTempi} << QByteArrayList{"7", "07", "0", "00", "59", "59", "", ""};
}

void EditorFormatsTest::leavingABoxWritesItAnew()
{
    QFETCH(int, column);
    QFETCH(QByteArrayList, pairs);
    TableDesk desk;
    desk.StartNew();
    const auto which = static_cast<Column>(column);
    int row = 0;
    for (qsizetype i = 0; i < pairs.size(); i += 2) {
        // Left by Tab, Enter and a click.
        for (int way = 0; way < 3; ++way) {
            TextBox& box = desk.Box(which, ++row);
            desk.Write(box, QString::fromLatin1(pairs[i]));
            QCOMPARE(box.text().toLatin1(), pairs[i]);
            if (way == 2) {
                hand::Click(*desk.Editor()->dateBoxes[1]);
            } else {
                hand::Key(way == 0 ? Qt::Key_Tab : Qt::Key_Return);
            }
            QTRY_VERIFY(TableDesk::Focused() != box.objectName().toLatin1());
            QCOMPARE(box.text().toLatin1(), pairs[i + 1]);
        }
    }
    VERIFY_SCRIPT(desk.script);
}

void EditorFormatsTest::capitalsStayAtTheHeadOfAWordOnly_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("capitals") << "PISTA ATLETICA"
                              << "Pista Atletica";
    QTest::newRow("head small") << "pISTA aTLETICA"
                                << "pista atletica";
    QTest::newRow("as it should be") << "Pista Atletica"
                                     << "Pista Atletica";
    QTest::newRow("parted by a bar") << "MEDIA/VELOCE"
                                     << "Media/Veloce";
    QTest::newRow("behind a digit") << "10KM PIANI, 2A SERIE"
                                    << "10Km Piani, 2A Serie";
    // A letter with an accent counts for none: it stays, and what follows it is the head of a word.
    QTest::newRow("accented") << QString::fromUtf8("CITTÀ PERÒS") << QString::fromUtf8("CittÀ PerÒS");
    QTest::newRow("accented head") << QString::fromUtf8("ÈRA") << QString::fromUtf8("ÈRa");
    QTest::newRow("blanks") << " A  BC "
                            << " A  Bc ";
    QTest::newRow("nothing") << ""
                             << "";
}

void EditorFormatsTest::capitalsStayAtTheHeadOfAWordOnly()
{
    QFETCH(QString, typed);
    QFETCH(QString, kept);
    TableDesk desk;
    desk.StartNew();
    const auto leave = [&](TextBox& box, const std::function<void()>& how) {
        // Pasted: not every keyboard has the accents.
        QApplication::clipboard()->setText(typed);
        desk.Write(box, QString());
        hand::Key(Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(box.text(), typed);
        how();
        QTRY_VERIFY(TableDesk::Focused() != box.objectName().toLatin1());
        QCOMPARE(box.text(), kept);
    };
    for (const Column column : {Andatura, Fondo}) {
        leave(desk.Box(column, 2), [] { hand::Key(Qt::Key_Tab); });
        leave(desk.Box(column, 3), [] { hand::Key(Qt::Key_Return); });
        leave(desk.Box(column, 4), [&] { hand::Click(desk.Box(Km, 9)); });
    }
    VERIFY_SCRIPT(desk.script);
}

void EditorFormatsTest::theDotFollowsTheDigits()
{
    TableDesk desk;
    desk.StartNew();
    TextBox& box = desk.Box(RipetDistanza, 1);
    const auto change = [&](const std::function<void()>& keys) {
        hand::Click(box);
        hand::Key(Qt::Key_End);
        keys();
        hand::Key(Qt::Key_Tab);
    };
    desk.Write(box, QStringLiteral("1500"));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(box.text(), QStringLiteral("1.500"));
    // Left as it is; full with its dot; shortened; and lengthened again.
    change([] {});
    QTRY_COMPARE(box.text(), QStringLiteral("1.500"));
    change([] { hand::Type(QStringLiteral("7")); });
    QTRY_COMPARE(box.text(), QStringLiteral("1.500"));
    change([] { hand::Key(Qt::Key_Backspace); });
    QTRY_COMPARE(box.text(), QStringLiteral("150"));
    change([] { hand::Type(QStringLiteral("8")); });
    QTRY_COMPARE(box.text(), QStringLiteral("1.508"));
    VERIFY_SCRIPT(desk.script);

    // What is refused is not dotted.
    desk.Write(box, QStringLiteral("10000"));
    desk.script.Expect(Warning(QStringLiteral("MAX 9.999                   ")));
    hand::Key(Qt::Key_Tab);
    desk.AwaitBoxes();
    QCOMPARE(box.text(), QStringLiteral("10000"));
}

void EditorFormatsTest::boxesTakeWhatIsTheirs_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("room");
    QTest::addColumn<bool>("digitsOnly");
    const std::pair<const char*, int> numbers[] = {
        {"txtKm", 2},          {"txtMetri", 3},       {"txtOre", 2},          {"txtMinuti", 2},
        {"txtSecondi", 2},     {"txtMediaMinuti", 2}, {"txtMediaSecondi", 2}, {"txtMediaMillesimi", 3},
        {"txtAndatura", 22},   {"txtFondo", 22},      {"txtRipetVolte", 2},   {"txtRipetDistanza", 5},
        {"txtRipetQuante", 2}, {"txtRipetTempi", 2},  {"txtGiornoInizio", 2}, {"txtMeseInizio", 2},
        {"txtAnnoInizio", 4}};
    int column = 0;
    for (const auto& [name, room] : numbers) {
        QTest::newRow(name) << column << room << (room != 22);
        ++column;
    }
}

void EditorFormatsTest::boxesTakeWhatIsTheirs()
{
    QFETCH(int, column);
    QFETCH(int, room);
    QFETCH(bool, digitsOnly);
    TableDesk desk;
    desk.StartNew();
    TextBox& box = column < kColumns ? desk.Box(static_cast<Column>(column), 1)
                                     : *desk.Editor()->dateBoxes[static_cast<std::size_t>(column - kColumns)];
    const QString name = QLatin1String(QTest::currentDataTag());
    QCOMPARE(box.objectName(), column < kColumns ? name + QStringLiteral("(1)") : name);

    const QString mixed = QStringLiteral("a1 .,-/x2:+*3(4e5");
    desk.Write(box, mixed);
    QCOMPARE(box.text(), digitsOnly ? QStringLiteral("12345").left(room) : mixed);
    hand::Key(Qt::Key_Backspace);
    QCOMPARE(box.text().size(), digitsOnly ? room - 1 : mixed.size() - 1);
    // Escape is no character of a box and leaves it as it is.
    hand::Key(Qt::Key_Escape);
    QCOMPARE(TableDesk::Focused(), box.objectName().toLatin1());
    QCOMPARE(box.text().size(), digitsOnly ? room - 1 : mixed.size() - 1);
    const QString digits = QStringLiteral("12345678901234567890123456789");
    desk.Write(box, digits);
    QCOMPARE(box.text(), digits.left(room));
    VERIFY_SCRIPT(desk.script);
}

void EditorFormatsTest::theSignsComeAndGo()
{
    TableDesk desk;
    desk.StartNew();
    const Label& strip = *desk.Editor()->StripOf(LblRipetizioni, 3);
    const Label& below = *desk.Editor()->StripOf(LblRipetizioni, 4);
    QCOMPARE(strip.text().trimmed(), QString());
    for (const char* blank : {"0", "00", ""}) {
        desk.Write(desk.Box(RipetVolte, 3), QLatin1String(blank));
        QCOMPARE(strip.text(), kSigns);
        hand::Key(Qt::Key_Tab);
        QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtRipetDistanza(3)"));
        QCOMPARE(strip.text(), kNoSigns);
        QCOMPARE(below.text().trimmed(), QString());
    }
    // The other boxes of the group leave it alone.
    hand::Type(QStringLiteral("400"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtRipetQuante(3)"));
    QCOMPARE(strip.text(), kNoSigns);
    // The keyboard brings it up as the mouse does.
    desk.Write(desk.Box(Fondo, 3), QString());
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtRipetVolte(3)"));
    QCOMPARE(strip.text(), kSigns);
    hand::Type(QStringLiteral("5"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtRipetDistanza(3)"));
    QCOMPARE(strip.text(), kSigns);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorFormatsTest)
#include "EditorFormatsTest.moc"
