// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The eight text fields of the page: opening, typing, picking from the list, closing.
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "windows/routes/FrmDesPercorso.h"

#include <array>
#include <cstddef>

namespace zelvia::test
{
namespace
{

const char* const kNames[] = {"",     "Percorso", "Lunghezza", "Modo",       "Fondo",
                              "Tipo", "Stagione", "TempoAtm",  "Temperatura"};
constexpr int kRoute = 1;
constexpr int kHands = 15; // captions that show the hand while a field is open

QByteArray Named(const char* control, int number)
{
    return QByteArray(control) + kNames[number];
}

void AddFields()
{
    QTest::addColumn<int>("number");
    for (int number = 1; number <= 8; ++number) {
        QTest::newRow(kNames[number]) << number;
    }
}

} // namespace

class ListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theControlsOfAField_data() { AddFields(); }
    void theControlsOfAField();
    void opens_data();
    void opens();
    void opensByItsRoutine_data() { AddFields(); }
    void opensByItsRoutine();
    void closes_data();
    void closes();
    void whatIsTypedJoinsTheList_data() { AddFields(); }
    void whatIsTypedJoinsTheList();
    void atMost22CharactersAreTyped_data() { AddFields(); }
    void atMost22CharactersAreTyped();
    void aSingleClickSelectsAndKeepsAllOpen_data() { AddFields(); }
    void aSingleClickSelectsAndKeepsAllOpen();
    void aDoubleClickTakesTheEntry_data() { AddFields(); }
    void aDoubleClickTakesTheEntry();
    void keysOfTheList_data();
    void keysOfTheList();
    void typingTakesTheTextsPlace_data();
    void typingTakesTheTextsPlace();
    void enterWithoutASelectionClosesOnTheText_data() { AddFields(); }
    void enterWithoutASelectionClosesOnTheText();
    void aListOfOneEntryIsPickedByKeys();
    void otherKeysAreTheLists();
    void onlyTheBoxCloses();
};

void ListsTest::theControlsOfAField()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    const ListControls& field = page.Field(number);
    QCOMPARE(field.lbl->objectName().toLatin1(), Named("lbl", number));
    QCOMPARE(field.lblImmis->objectName().toLatin1(), Named("lblImmis", number));
    QCOMPARE(field.txt->objectName().toLatin1(), Named("txt", number));
    QCOMPARE(field.lst->objectName().toLatin1(), Named("lst", number));
    QVERIFY(!field.txt->isVisible());
    QVERIFY(!field.lst->isVisible());
    // From rule to rule, and so much to the left that its text stands where the value's does.
    QCOMPARE(field.txt->geometry(), field.lblImmis->geometry().adjusted(-4, -2, 0, 2));
    QCOMPARE(page.ListOf(number), EntryPage::Entries(number));
    VERIFY_SCRIPT(page.script);
}

void ListsTest::opens_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("way");
    for (int number = 1; number <= 8; ++number) {
        QTest::addRow("%s by mouse", kNames[number]) << number << int(Way::Mouse);
        QTest::addRow("%s by Enter", kNames[number]) << number << int(Way::Enter);
        QTest::addRow("%s by Space", kNames[number]) << number << int(Way::Space);
    }
}

void ListsTest::opens()
{
    QFETCH(int, number);
    QFETCH(int, way);
    EntryPage page;
    page.Start();
    page.Field(number).lblImmis->SetCaption("Beta");
    page.Field(number).txt->SetContent("Beta");
    QCOMPARE(page.Hands(), 0);
    page.Open(*page.Field(number).lblImmis, Way(way));
    QTRY_VERIFY(page.IsOpen(number));
    QTRY_COMPARE(EntryPage::Focused(), Named("txt", number));
    QVERIFY(page.Field(number).txt->hasFocus());
    QCOMPARE(page.Field(number).txt->text(), QStringLiteral("Beta"));
    QCOMPARE(page.Hands(), kHands);
    QVERIFY(page->ListaAperta == 0);
    for (int other = 1; other <= 8; ++other) {
        QCOMPARE(page.IsOpen(other), other == number);
    }
    VERIFY_SCRIPT(page.script);
}

constexpr std::array<void (*)(frmMain&), 8> kOpeners = {
    [](frmMain& page) { page.ImmisPercorso(); }, [](frmMain& page) { page.ImmisLunghezza(); },
    [](frmMain& page) { page.ImmisModo(); },     [](frmMain& page) { page.ImmisFondo(); },
    [](frmMain& page) { page.ImmisTipo(); },     [](frmMain& page) { page.ImmisStagione(); },
    [](frmMain& page) { page.ImmisTempoAtm(); }, [](frmMain& page) { page.ImmisTemperatura(); },
};

void ListsTest::opensByItsRoutine()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    kOpeners[static_cast<std::size_t>(number - 1)](page.Page());
    QTRY_VERIFY(page.IsOpen(number));
    QTRY_COMPARE(EntryPage::Focused(), Named("txt", number));
    QCOMPARE(page.Hands(), kHands);
}

void ListsTest::closes_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("way");
    for (int number = 1; number <= 8; ++number) {
        for (const char* way : {"Enter", "keypad Enter", "Escape", "second click", "caption"}) {
            QTest::addRow("%s, %s", kNames[number], way) << number << QString::fromLatin1(way);
        }
    }
}

void ListsTest::closes()
{
    QFETCH(int, number);
    QFETCH(QString, way);
    EntryPage page;
    page.Start();
    page->ListaAperta = 9;
    page.Open(number);
    page.TypeOver(*page.Field(number).txt, QStringLiteral("gamma2"));
    QCOMPARE(page.Field(number).lblImmis->text(), QString());
    QVERIFY(Module1::FileModificato == 0);
    if (way == QLatin1String("second click")) {
        hand::Click(*page.Field(number).txt);
    } else if (way == QLatin1String("caption")) {
        hand::Click(*page.Field(number).lbl);
    } else {
        hand::Key(way == QLatin1String("Enter")    ? Qt::Key_Return
                  : way == QLatin1String("Escape") ? Qt::Key_Escape
                                                   : Qt::Key_Enter);
    }
    QTRY_VERIFY(!page.Field(number).txt->isVisible());
    QVERIFY(!page.Field(number).lst->isVisible());
    // Escape too confirms what was typed.
    QCOMPARE(page.Field(number).lblImmis->text(), QStringLiteral("gamma2"));
    QCOMPARE(page.ListOf(number), EntryPage::Entries(number) << QStringLiteral("gamma2"));
    QVERIFY(Module1::FileModificato == 1);
    QVERIFY(page->ListaAperta == 0);
    QCOMPARE(page.Hands(), 0);
    if (number == kRoute) {
        page.CloseRouteWindow();
    }
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    VERIFY_SCRIPT(page.script);
}

void ListsTest::whatIsTypedJoinsTheList()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    const QString first = EntryPage::Entries(number).constFirst();
    QStringList list = EntryPage::Entries(number);
    const struct {
        QString typed;
        QString value;
        bool added;
    } rows[] = {
        {QStringLiteral("  Delta  "), QStringLiteral("Delta"), true},
        {QStringLiteral("     "), QString(), false},
        {QString(), QString(), false},
        {first.toLower(), first.toLower(), false},
        {QStringLiteral(" ") + first.toUpper(), first.toUpper(), false},
        {first, first, false},
        {QStringLiteral("delta"), QStringLiteral("delta"), false},
        {first + QStringLiteral("!"), first + QStringLiteral("!"), true},
        {QStringLiteral("Città"), QStringLiteral("Città"), true},
        {QStringLiteral("CITTÀ"), QStringLiteral("CITTÀ"), false},
    };
    for (const auto& row : rows) {
        Module1::FileModificato = 0;
        page.Open(number);
        page.TypeOver(*page.Field(number).txt, row.typed);
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY(!page.IsOpen(number));
        if (row.added) {
            list << row.value;
            if (number == kRoute) {
                page.CloseRouteWindow();
            }
        }
        QCOMPARE(page.Field(number).lblImmis->text(), row.value);
        QCOMPARE(page.Field(number).txt->text(), row.value);
        QCOMPARE(page.ListOf(number), list);
        QVERIFY(Module1::FileModificato == (row.added ? 1 : 0));
    }
    VERIFY_SCRIPT(page.script);
}

void ListsTest::atMost22CharactersAreTyped()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    page.Open(number);
    page.TypeOver(*page.Field(number).txt, QStringLiteral("abcdefghijklmnopqrstuvwxyz"));
    QTRY_COMPARE(page.Field(number).txt->text(), QStringLiteral("abcdefghijklmnopqrstuv"));
    VERIFY_SCRIPT(page.script);
}

void ListsTest::aSingleClickSelectsAndKeepsAllOpen()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    page.Open(number);
    QTRY_COMPARE(EntryPage::Focused(), Named("txt", number));
    ListBox& list = *page.Field(number).lst;
    for (const int row : {1, 2}) {
        page.ClickRow(list, row);
        QTRY_COMPARE(EntryPage::Focused(), Named("lst", number));
        QTRY_COMPARE(list.ListIndex(), row);
        QTRY_VERIFY(page.IsOpen(number));
        QVERIFY(page->ListaAperta == number);
        QCOMPARE(page.Hands(), kHands);
        QCOMPARE(page.Field(number).txt->text(), QString());
        QCOMPARE(page.Field(number).lblImmis->text(), QString());
        QCOMPARE(Module1::PercorsoCorrente, number == kRoute ? list.List(row) : Text());
    }
    VERIFY_SCRIPT(page.script);
}

void ListsTest::aDoubleClickTakesTheEntry()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    page.Open(number);
    QTRY_COMPARE(EntryPage::Focused(), Named("txt", number));
    ListBox& list = *page.Field(number).lst;
    hand::DoubleClick(*list.viewport(), EntryPage::RowAt(list, 2));
    QTRY_VERIFY(!page.Field(number).txt->isVisible());
    QTRY_VERIFY(!list.isVisible());
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    const QString entry = EntryPage::Entries(number).at(2);
    QCOMPARE(page.Field(number).lblImmis->text(), entry);
    QCOMPARE(page.Field(number).txt->text(), entry);
    QCOMPARE(page.ListOf(number), EntryPage::Entries(number));
    QVERIFY(page->ListaAperta == 0);
    QVERIFY(Module1::FileModificato == 0);
    // The route leaves the hand where it closed on a listed text.
    QCOMPARE(page.Hands(), number == kRoute ? kHands : 0);
    VERIFY_SCRIPT(page.script);
}

void ListsTest::keysOfTheList_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("takes");
    for (int number = 1; number <= 8; ++number) {
        QTest::addRow("%s, Enter", kNames[number]) << number << true;
        QTest::addRow("%s, Escape", kNames[number]) << number << false;
    }
}

void ListsTest::keysOfTheList()
{
    QFETCH(int, number);
    QFETCH(bool, takes);
    EntryPage page;
    page.Start();
    page.Open(number);
    page.TypeOver(*page.Field(number).txt, EntryPage::Entries(number).constFirst().toLower());
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(EntryPage::Focused(), Named("lst", number));
    QTRY_VERIFY(page.IsOpen(number));
    QVERIFY(page->ListaAperta == number);
    QCOMPARE(page.Field(number).lst->ListIndex(), 0);
    QCOMPARE(page.Field(number).txt->text(), EntryPage::Entries(number).constFirst());
    const int rows[] = {1, 2, 1};
    const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up};
    for (int i = 0; i < 3; ++i) {
        hand::Key(keys[i]);
        QCOMPARE(page.Field(number).lst->ListIndex(), rows[i]);
        if (number == kRoute) {
            QCOMPARE(Module1::PercorsoCorrente, page.Field(number).lst->List(rows[i]));
        }
    }
    hand::Key(takes ? Qt::Key_Return : Qt::Key_Escape);
    QTRY_VERIFY(!page.IsOpen(number));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    QCOMPARE(page.Field(number).lblImmis->text(),
             takes ? EntryPage::Entries(number).at(1) : EntryPage::Entries(number).constFirst());
    QCOMPARE(page.ListOf(number), EntryPage::Entries(number));
    VERIFY_SCRIPT(page.script);
}

void ListsTest::typingTakesTheTextsPlace_data()
{
    opens_data();
}

void ListsTest::typingTakesTheTextsPlace()
{
    QFETCH(int, number);
    QFETCH(int, way);
    EntryPage page;
    page.Start();
    page.Field(number).lblImmis->SetCaption("Colle");
    page.Field(number).txt->SetContent("Colle");
    page.Open(*page.Field(number).lblImmis, Way(way));
    QTRY_VERIFY(page.Field(number).txt->hasFocus());
    QCOMPARE(page.Field(number).txt->selectedText(), QStringLiteral("Colle"));
    hand::Type(QStringLiteral("beta"));
    QTRY_COMPARE(page.Field(number).txt->text(), QStringLiteral("beta"));
    VERIFY_SCRIPT(page.script);
}

void ListsTest::enterWithoutASelectionClosesOnTheText()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    const QString entry = EntryPage::Entries(number).at(1);
    // A run of the route that a search would find.
    RecordGiorno& run = Module1::Giorni[100];
    run.Percorso = FromQString(entry);
    run.Lunghezza = "Lungo";
    run.Fondo = "Strada";
    run.Km = 12;
    page.Open(number);
    page.TypeOver(*page.Field(number).txt, entry);
    page.Field(number).lst->SetFocus();
    QTRY_COMPARE(EntryPage::Focused(), Named("lst", number));
    QCOMPARE(page.Field(number).lst->ListIndex(), -1);
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!page.IsOpen(number));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    QCOMPARE(page.Field(number).lblImmis->text(), entry);
    QCOMPARE(page.Field(number).txt->text(), entry);
    QCOMPARE(Module1::PercorsoCorrente, number == kRoute ? FromQString(entry) : Text());
    QCOMPARE(page->upKM->Value().value(), 0);
    for (int other = 1; other <= 8; ++other) {
        QCOMPARE(page.Field(other).lblImmis->text(), other == number ? entry : QString());
    }
    VERIFY_SCRIPT(page.script);
}

void ListsTest::aListOfOneEntryIsPickedByKeys()
{
    EntryPage page;
    page.folder.Write(QStringLiteral("prova/Tipo.lsx"), "\"Sola\"\r\n");
    page.Start();
    page.Open(5);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstTipo"));
    QCOMPARE(page.Field(5).lst->ListIndex(), 0);
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(page.Caption("lblImmisTipo"), QStringLiteral("Sola"));
    VERIFY_SCRIPT(page.script);
}

void ListsTest::otherKeysAreTheLists()
{
    EntryPage page;
    page.Start();
    page.Open(5);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    page.Field(5).lst->SetFocus();
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstTipo"));
    hand::Type(QStringLiteral("g"));
    QTRY_COMPARE(page.Field(5).lst->ListIndex(), 2);
    hand::Key(Qt::Key_Home);
    QCOMPARE(page.Field(5).lst->ListIndex(), 0);
    QVERIFY(page.IsOpen(5));
    QCOMPARE(page.Field(5).txt->text(), QString());
    VERIFY_SCRIPT(page.script);
}

void ListsTest::onlyTheBoxCloses()
{
    // A list that has the focus stays with its box when it loses it.
    EntryPage page;
    page.Start();
    page.Open(2);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtLunghezza"));
    page.ClickRow(*page.Field(2).lst, 1);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstLunghezza"));
    hand::Click(*page.Field(2).lbl);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    QVERIFY(page.IsOpen(2));
    QVERIFY(page->ListaAperta == 2);
    // The box is entered and left again.
    hand::Click(*page.Field(2).txt);
    QTRY_VERIFY(!page.IsOpen(2));
    QVERIFY(!page.Field(2).lst->isVisible());
    QVERIFY(page->ListaAperta == 0);
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::ListsTest)
#include "ListsTest.moc"
