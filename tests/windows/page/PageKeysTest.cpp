// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The keys of the page as a whole: where Tab goes, turning the day, lists, arrows, splits and notes, the menus' keys.
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "toolkit/PageTurn.h"

#include <QChildEvent>
#include <QMenuBar>

#include <iterator>

namespace zelvia::test
{
namespace
{

constexpr int kTipo = 5;

/// What Tab stops at on a page at rest, from the top on.
const char* const kStops[] = {"lblData",
                              "lblImmisPercorso",
                              "lblImmisLunghezza",
                              "lblImmisMetri",
                              "lblImmisModo",
                              "lblImmisFondo",
                              "lblImmisTipo",
                              "lblImmisOraInizio",
                              "lblImmisOraFine",
                              "lblOutTempoImpiegato",
                              "lblOutMediaKM",
                              "lblImmisStagione",
                              "lblImmisTempoAtm",
                              "lblImmisTemperatura",
                              "lblImmisCorridori",
                              "lblImmisPeso",
                              "lblRipetizioniVolte",
                              "lblRipetizioniDistanza",
                              "lblRipetizioniQuante",
                              "lblImmisTempoKM",
                              "lblImmisTempoMinuti",
                              "lblTabNomeFile",
                              "lblKmTab",
                              "lblTempoTab",
                              "lblMediaTab",
                              "lblAndaturaTab",
                              "lblFondoTab",
                              "lblRipetizioniTab",
                              "lblNote3",
                              "lblNote4",
                              "lblNote5",
                              "lblNote6",
                              "lblNote7",
                              "lblNote8",
                              "lblNote9",
                              "lblNote10",
                              "lblNumGiornoAnno",
                              "lblNumGiorniCorseAnno",
                              "lblNumKMPercorsi",
                              "lblNumGare"};

/// Opens a value by Tab and Enter, without the mouse.
void OpenByKeys(const EntryPage& page, const QString& label)
{
    page.Open(*page->findChild<Label*>(label), Way::Enter);
}

/// Counts the old pages that fade over a window.
class Leaves : public QObject
{
public:
    explicit Leaves(QWidget& window) { window.installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        const bool polished = event->type() == QEvent::ChildPolished;
        count += polished && static_cast<QChildEvent*>(event)->child()->objectName() == QLatin1String("leaf") ? 1 : 0;
        return false;
    }
};

} // namespace

class PageKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTurnFadesOverTheNextDay();
    void TabWalksThePageFromTopToBottom();
    void ShiftTabWalksItBack();
    void AnOpenFieldHasItsValuesPlace_data();
    void AnOpenFieldHasItsValuesPlace();
    void TabPassesOverTheValuesUnderOpenNotes();
    void PageKeysTurnTheDay_data();
    void PageKeysTurnTheDay();
    void PageKeysCloseTheOpenFieldFirst();
    void PageKeysStayInAnOpenList();
    void PageKeysKeepTheFocusOfAValue();
    void AListOpensOnTheDaysValue();
    void TypingMarksTheFirstEntryThatBeginsSo_data();
    void TypingMarksTheFirstEntryThatBeginsSo();
    void ArrowsGoFromTheBoxIntoTheList_data();
    void ArrowsGoFromTheBoxIntoTheList();
    void TabInTheBoxClosesTheField();
    void TabInTheListTakesTheEntry_data();
    void TabInTheListTakesTheEntry();
    void AListShowsWholeEntries_data();
    void AListShowsWholeEntries();
    void DigitsSetTheActivePart_data();
    void DigitsSetTheActivePart();
    void EnterGoesOnToTheNextValue_data();
    void EnterGoesOnToTheNextValue();
    void TheActivePartIsUnderlined();
    void TheWheelStepsTheArrowsUnderThePointer();
    void ASplitIsChosenAndRemovedByKeys();
    void TheMenuKeyRemovesASplit();
    void ArrowsGoAlongTheNotes();
    void AGroupGoesOnWithItsPart();
    void TheRankingIsReachedAndLeft();
    void TheMenuBarIsReachedByF10();
    void ShiftF10OpensThePopUpOfAList();
    void ACommandHasItsUsualKey();
    void ACommandKeepsTheFocusOfAValue();
    void TheNotesOpenAroundTheLineWithTheFocus();
};

void PageKeysTest::aTurnFadesOverTheNextDay()
{
    EntryPage page;
    page.Start();
    Leaves leaves(page.Page());
    PageTurn::Allow(true);
    hand::Key(Qt::Key_PageDown);
    QCOMPARE(Module1::GiornoCorrente.value(), 141);
    QTRY_COMPARE(leaves.count, 1);
    hand::Key(Qt::Key_PageDown);
    QCOMPARE(Module1::GiornoCorrente.value(), 142);
    QTRY_VERIFY(page->findChild<QWidget*>(QStringLiteral("leaf")) == nullptr);
    PageTurn::Allow(false);
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TabWalksThePageFromTopToBottom()
{
    EntryPage page;
    page.Start();
    for (const char* stop : kStops) {
        hand::Keys({Qt::Key_Tab});
        QTRY_COMPARE(EntryPage::Focused(), QByteArray(stop));
    }
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(kStops[0]));
}

void PageKeysTest::ShiftTabWalksItBack()
{
    EntryPage page;
    page.Start();
    for (auto stop = std::rbegin(kStops); stop != std::rend(kStops); ++stop) {
        hand::Keys({Qt::SHIFT | Qt::Key_Tab});
        QTRY_COMPARE(EntryPage::Focused(), QByteArray(*stop));
    }
}

void PageKeysTest::AnOpenFieldHasItsValuesPlace_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* label, const char* before, const char* after) {
        QTest::newRow(label) << QString::fromLatin1(label) << QString::fromLatin1(before) << QString::fromLatin1(after);
    };
    row("lblData", "lblNumGare", "lblImmisPercorso");
    row("lblImmisLunghezza", "lblImmisPercorso", "lblImmisMetri");
    row("lblImmisMetri", "lblImmisLunghezza", "lblImmisModo");
    row("lblImmisOraFine", "lblImmisOraInizio", "lblOutTempoImpiegato");
    row("lblRipetizioniDistanza", "lblRipetizioniVolte", "lblRipetizioniQuante");
    row("lblImmisTempoKM", "lblRipetizioniQuante", "lblTabNomeFile");
    row("lblImmisTempoMinuti", "lblRipetizioniQuante", "lblTabNomeFile");
    row("lblNote5", "lblNote4", "lblNote6");
}

void PageKeysTest::AnOpenFieldHasItsValuesPlace()
{
    QFETCH(QString, label);
    QFETCH(QString, before);
    QFETCH(QString, after);
    EntryPage page;
    page.Start();
    OpenByKeys(page, label);
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), after.toLatin1());
    OpenByKeys(page, label);
    hand::Keys({Qt::SHIFT | Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), before.toLatin1());
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TabPassesOverTheValuesUnderOpenNotes()
{
    EntryPage page;
    page.Start();
    page->mnuNote_Click();
    page->notes[3].txt->SetFocus();
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtNote3"));
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtNote4"));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::PageKeysTurnTheDay_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("opens");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("date") << QStringLiteral("lblData") << false;
    QTest::newRow("arrows of the date") << QStringLiteral("lblData") << true;
    QTest::newRow("value") << QStringLiteral("lblImmisPeso") << false;
    QTest::newRow("numbers") << QStringLiteral("lblImmisOraInizio") << true;
    QTest::newRow("box") << QStringLiteral("lblImmisTipo") << true;
    QTest::newRow("splits") << QStringLiteral("lblImmisTempoKM") << true;
    QTest::newRow("note") << QStringLiteral("lblNote4") << true;
    QTest::newRow("counter") << QStringLiteral("lblNumGare") << false;
}

void PageKeysTest::PageKeysTurnTheDay()
{
    QFETCH(QString, label);
    QFETCH(bool, opens);
    const struct {
        QKeyCombination key;
        CalendarDate date;
    } turns[] = {{Qt::Key_PageUp, {2026, 5, 19}},
                 {Qt::CTRL | Qt::Key_PageUp, {2026, 4, 19}},
                 {Qt::Key_PageDown, {2026, 4, 20}},
                 {Qt::CTRL | Qt::Key_PageDown, {2026, 5, 20}}};
    EntryPage page;
    page.Start();
    for (const auto& turn : turns) {
        if (!label.isEmpty()) {
            auto* value = page->findChild<Label*>(label);
            opens ? page.Open(*value, Way::Enter) : value->SetFocus();
        }
        hand::Keys({turn.key});
        QTRY_VERIFY(Module1::DataCorrente == turn.date);
    }
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::PageKeysCloseTheOpenFieldFirst()
{
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    hand::Type(QStringLiteral("gamma"));
    hand::Keys({Qt::Key_PageDown});
    QTRY_VERIFY(Module1::GiornoCorrente == 141);
    QVERIFY(!page.IsOpen(kTipo));
    QCOMPARE(Module1::Giorni[140].Tipo, Text("gamma"));
    QCOMPARE(page.Caption("lblImmisTipo"), QString());
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::PageKeysStayInAnOpenList()
{
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    hand::Keys({Qt::Key_Down});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstTipo"));
    hand::Keys({Qt::Key_PageDown});
    QTRY_COMPARE(page.Field(kTipo).lst->ListIndex(), 2);
    QVERIFY(Module1::GiornoCorrente == 140);
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::PageKeysKeepTheFocusOfAValue()
{
    EntryPage page;
    page.Start();
    page->lblImmisPeso->SetFocus();
    hand::Keys({Qt::Key_PageDown});
    QTRY_VERIFY(Module1::GiornoCorrente == 141);
    QCOMPARE(EntryPage::Focused(), QByteArray("lblImmisPeso"));
    QVERIFY(page->lblImmisPeso->hasFocus());
}

void PageKeysTest::AListOpensOnTheDaysValue()
{
    EntryPage page;
    page.Start();
    page.Field(kTipo).lblImmis->SetCaption("beta");
    page.Field(kTipo).txt->SetContent("beta");
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    QCOMPARE(page.Field(kTipo).lst->Marked(), 1);
    QCOMPARE(page.Field(kTipo).lst->ListIndex(), -1);
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TypingMarksTheFirstEntryThatBeginsSo_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("marked");
    QTest::newRow("a letter") << QStringLiteral("g") << 2;
    QTest::newRow("some letters") << QStringLiteral("be") << 1;
    QTest::newRow("whatever the case") << QStringLiteral("ALFA") << 0;
    QTest::newRow("more than the entry") << QStringLiteral("alfab") << -1;
    QTest::newRow("no entry") << QStringLiteral("z") << -1;
}

void PageKeysTest::TypingMarksTheFirstEntryThatBeginsSo()
{
    QFETCH(QString, typed);
    QFETCH(int, marked);
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    hand::Type(typed);
    QTRY_COMPARE(page.Field(kTipo).txt->text(), typed);
    QCOMPARE(page.Field(kTipo).lst->Marked(), marked);
    QCOMPARE(page.Field(kTipo).txt->accessibleDescription(),
             QStringLiteral("3 voci") +
                 (marked < 0 ? QString() : QStringLiteral("; ") + EntryPage::Entries(kTipo).at(marked)));
    for (int i = 0; i < typed.size(); ++i) {
        hand::Keys({Qt::Key_Backspace});
    }
    QTRY_COMPARE(page.Field(kTipo).txt->text(), QString());
    QCOMPARE(page.Field(kTipo).lst->Marked(), -1);
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::ArrowsGoFromTheBoxIntoTheList_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("entry");
    const auto row = [](const char* name, const char* value, const char* typed, Qt::Key key, int entry) {
        QTest::newRow(name) << QString::fromLatin1(value) << QString::fromLatin1(typed) << int(key) << entry;
    };
    row("nothing written, down", "", "", Qt::Key_Down, 0);
    row("nothing written, up", "", "", Qt::Key_Up, 2);
    row("an entry, down", "Beta", "", Qt::Key_Down, 2);
    row("an entry, up", "Beta", "", Qt::Key_Up, 0);
    row("the last entry, down", "Gamma", "", Qt::Key_Down, 2);
    row("the first entry, up", "Alfa", "", Qt::Key_Up, 0);
    row("an entry in other letters", "beta", "", Qt::Key_Down, 1);
    row("half typed", "Alfa", "ga", Qt::Key_Down, 2);
    row("typed, not in the list", "Alfa", "zeta", Qt::Key_Down, 0);
}

void PageKeysTest::ArrowsGoFromTheBoxIntoTheList()
{
    QFETCH(QString, value);
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(int, entry);
    EntryPage page;
    page.Start();
    const ListControls& field = page.Field(kTipo);
    field.lblImmis->SetCaption(FromQString(value));
    field.txt->SetContent(FromQString(value));
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    if (!typed.isEmpty()) {
        hand::Type(typed);
    }
    hand::Keys({Qt::Key(key)});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstTipo"));
    QTRY_VERIFY(page.IsOpen(kTipo));
    QCOMPARE(field.lst->ListIndex(), entry);
    QCOMPARE(field.txt->text(), EntryPage::Entries(kTipo).at(entry));
    QCOMPARE(field.lblImmis->text(), EntryPage::Entries(kTipo).at(entry));
    QVERIFY(page->ListaAperta == kTipo);
    QCOMPARE(page.ListOf(kTipo), EntryPage::Entries(kTipo));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TabInTheBoxClosesTheField()
{
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    hand::Type(QStringLiteral("nuovo"));
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lblImmisOraInizio"));
    QTRY_VERIFY(!page.IsOpen(kTipo));
    QCOMPARE(page.Caption("lblImmisTipo"), QStringLiteral("nuovo"));
    QCOMPARE(page.ListOf(kTipo).constLast(), QStringLiteral("nuovo"));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TabInTheListTakesTheEntry_data()
{
    QTest::addColumn<bool>("selected");
    QTest::newRow("selected") << true;
    QTest::newRow("nothing selected") << false;
}

void PageKeysTest::TabInTheListTakesTheEntry()
{
    QFETCH(bool, selected);
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    hand::Type(QStringLiteral("beta"));
    if (selected) {
        hand::Keys({Qt::Key_Down, Qt::Key_Down});
        QTRY_COMPARE(page.Field(kTipo).lst->ListIndex(), 2);
    } else {
        page.Field(kTipo).lst->SetFocus();
        QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstTipo"));
    }
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lblImmisOraInizio"));
    QTRY_VERIFY(!page.IsOpen(kTipo));
    QVERIFY(page->ListaAperta == 0);
    QCOMPARE(page.Caption("lblImmisTipo"), selected ? QStringLiteral("Gamma") : QStringLiteral("beta"));
    QCOMPARE(page.ListOf(kTipo), EntryPage::Entries(kTipo));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::AListShowsWholeEntries_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("shown");
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("eight") << 8 << 8;
    QTest::newRow("nine") << 9 << 8;
}

void PageKeysTest::AListShowsWholeEntries()
{
    QFETCH(int, entries);
    QFETCH(int, shown);
    QByteArray file;
    for (int i = 0; i < entries; ++i) {
        file += "\"voce " + QByteArray::number(i) + "\"\r\n";
    }
    EntryPage page;
    page.folder.Write(QStringLiteral("prova/Tipo.lsx"), file);
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    const ListBox& list = *page.Field(kTipo).lst;
    const int entry = entries > 0 ? list.sizeHintForRow(0) : list.fontMetrics().height();
    QCOMPARE(list.viewport()->height(), shown * entry);
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::DigitsSetTheActivePart_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("rights");
    QTest::addColumn<QString>("digits");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* name, const char* label, int rights, const char* digits, const char* shown) {
        QTest::newRow(name) << QString::fromLatin1(label) << rights << QString::fromLatin1(digits)
                            << QString::fromLatin1(shown);
    };
    row("two digits", "lblImmisOraInizio", 0, "15", "15:00:00");
    row("beyond the maximum", "lblImmisOraInizio", 0, "25", "5:00:00");
    row("the maximum", "lblImmisOraInizio", 0, "24", "24:00:00");
    row("minutes", "lblImmisOraInizio", 1, "47", "0:47:00");
    row("seconds beyond", "lblImmisOraInizio", 2, "605", "0:00:05");
    row("metres", "lblImmisMetri", 0, "350", "0,350");
    row("single metres", "lblImmisMetri", 1, "7", "0,007");
    row("below the minimum", "lblImmisCorridori", 0, "05", "5");
    row("many", "lblImmisCorridori", 0, "12345", "12345");
    row("weight", "lblImmisPeso", 0, "72", "72");
    row("steps of a hundred", "lblRipetizioniDistanza", 0, "1500", "1500");
}

void PageKeysTest::DigitsSetTheActivePart()
{
    QFETCH(QString, label);
    QFETCH(int, rights);
    QFETCH(QString, digits);
    QFETCH(QString, shown);
    EntryPage page;
    page.Start();
    OpenByKeys(page, label);
    for (int i = 0; i < rights; ++i) {
        hand::Keys({Qt::Key_Right});
    }
    hand::Type(digits);
    QTRY_COMPARE(page.Caption(label.toLatin1().constData()), shown);
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::EnterGoesOnToTheNextValue_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("next");
    QTest::newRow("start") << QStringLiteral("lblImmisOraInizio") << QStringLiteral("lblImmisOraFine");
    QTest::newRow("weight") << QStringLiteral("lblImmisPeso") << QStringLiteral("lblRipetizioniVolte");
    QTest::newRow("date") << QStringLiteral("lblData") << QStringLiteral("lblImmisPercorso");
}

void PageKeysTest::EnterGoesOnToTheNextValue()
{
    QFETCH(QString, label);
    QFETCH(QString, next);
    EntryPage page;
    page.Start();
    OpenByKeys(page, label);
    hand::Keys({Qt::Key_Return});
    QTRY_COMPARE(EntryPage::Focused(), next.toLatin1());
    QVERIFY(!page->upOraInizio->isVisible());
    QVERIFY(!page->upPeso->isVisible());
    QCOMPARE(page.Hands(), 0);
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TheActivePartIsUnderlined()
{
    EntryPage page;
    page.Start();
    Label& label = *page->lblImmisOraInizio;
    const auto ink = [&label] { return label.palette().color(QPalette::WindowText).rgb(); };
    // How many pixels of the pen are on the line below the figures, left and right of the first colon.
    const auto underline = [&](bool first) {
        const int colon = label.TextArea().left() +
                          label.fontMetrics().horizontalAdvance(label.text().left(label.text().indexOf(u':')));
        const QImage image = label.grab().toImage();
        const int line = (label.height() + label.fontMetrics().ascent() - label.fontMetrics().descent()) / 2 + 3;
        int count = 0;
        for (int x = first ? 0 : colon + 1; x < (first ? colon : image.width()); ++x) {
            count += image.pixel(x, line) == ink() ? 1 : 0;
        }
        return count;
    };
    QCOMPARE(underline(true) + underline(false), 0);
    OpenByKeys(page, QStringLiteral("lblImmisOraInizio"));
    QVERIFY(underline(true) > 3);
    QCOMPARE(underline(false), 0);
    hand::Keys({Qt::Key_Right});
    QTRY_COMPARE(underline(true), 0);
    QVERIFY(underline(false) > 6);
    hand::Keys({Qt::Key_Escape});
    QTRY_COMPARE(underline(true) + underline(false), 0);
}

void PageKeysTest::TheWheelStepsTheArrowsUnderThePointer()
{
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisOraInizio"));
    hand::Wheel(*page->upSecondiInizio, hand::Middle(*page->upSecondiInizio), 2);
    QTRY_COMPARE(page.Caption("lblImmisOraInizio"), QStringLiteral("0:00:02"));
    QCOMPARE(EntryPage::Focused(), QByteArray("upOraInizio"));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::ASplitIsChosenAndRemovedByKeys()
{
    EntryPage page;
    page.Start();
    ListBox& list = *page->lstListaKM;
    for (const char* split : {"01      00:04:00", "02      00:04:10", "03      00:04:20"}) {
        list.AddItem(split);
    }
    OpenByKeys(page, QStringLiteral("lblImmisTempoKM"));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("cmdListaKM"));
    hand::Keys({Qt::Key_Delete});
    QCOMPARE(list.ListCount(), 3);
    QVERIFY(Module1::FileModificato == 0);
    hand::Keys({Qt::CTRL | Qt::Key_Down, Qt::CTRL | Qt::Key_Down});
    QTRY_COMPARE(list.ListIndex(), 1);
    QCOMPARE(EntryPage::Focused(), QByteArray("cmdListaKM"));
    hand::Keys({Qt::Key_Delete});
    QTRY_COMPARE(list.ListCount(), 2);
    QCOMPARE(list.List(1), Text("03      00:04:20"));
    QVERIFY(Module1::FileModificato == 1);
    hand::Keys({Qt::CTRL | Qt::Key_Up});
    QTRY_COMPARE(list.ListIndex(), 1);
    hand::Keys({Qt::CTRL | Qt::Key_Up, Qt::CTRL | Qt::Key_Up});
    QTRY_COMPARE(list.ListIndex(), 0);
    // The spins keep their own keys.
    hand::Keys({Qt::Key_Up});
    QTRY_COMPARE(page.Caption("lblImmisTempoKM"), QStringLiteral("01"));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TheMenuKeyRemovesASplit()
{
    EntryPage page;
    page.Start();
    page->lstListaKM->AddItem("01      00:04:00");
    OpenByKeys(page, QStringLiteral("lblImmisTempoKM"));
    hand::Keys({Qt::CTRL | Qt::Key_Down});
    QTRY_COMPARE(page->lstListaKM->ListIndex(), 0);
    QObject::connect(page->mnuCancelladallaLista, &QMenu::aboutToShow, page->mnuCancelladallaLista, [] {
        QMetaObject::invokeMethod(
            qApp, [] { hand::Keys({Qt::Key_C}); }, Qt::QueuedConnection);
    });
    hand::Keys({Qt::SHIFT | Qt::Key_F10});
    QTRY_COMPARE(page->lstListaKM->ListCount(), 0);
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::ArrowsGoAlongTheNotes()
{
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblNote4"));
    hand::Type(QStringLiteral("quattro"));
    hand::Keys({Qt::Key_Up});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtNote3"));
    QTRY_COMPARE(page.Caption("lblNote4"), QStringLiteral("quattro"));
    QVERIFY(!page->notes[4].txt->isVisible());
    hand::Keys({Qt::Key_Up});
    QCOMPARE(EntryPage::Focused(), QByteArray("txtNote3"));
    hand::Keys({Qt::Key_Down});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtNote4"));
    QCOMPARE(page->notes[4].txt->text(), QStringLiteral("quattro"));
    // Unopened lines likewise.
    hand::Keys({Qt::Key_Escape});
    page->notes[9].lbl->SetFocus();
    hand::Keys({Qt::Key_Down, Qt::Key_Down});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lblNote10"));
    hand::Keys({Qt::Key_Up});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lblNote9"));
    QVERIFY(!page->notes[9].txt->isVisible());
    VERIFY_SCRIPT(page.script);
}

/// A menu that was open meanwhile does not send the keys back to the first part.
void PageKeysTest::AGroupGoesOnWithItsPart()
{
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisOraInizio"));
    hand::Keys({Qt::Key_Right, Qt::Key_2, Qt::Key_F10});
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(page->upOraInizio->hasFocus());
    hand::Keys({Qt::Key_7});
    QTRY_COMPARE(page.Caption("lblImmisOraInizio"), QStringLiteral("0:07:00"));
    // Opened anew it begins with the first one again.
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(!page->upOraInizio->isVisible());
    OpenByKeys(page, QStringLiteral("lblImmisOraInizio"));
    hand::Keys({Qt::Key_8});
    QTRY_COMPARE(page.Caption("lblImmisOraInizio"), QStringLiteral("8:07:00"));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TheRankingIsReachedAndLeft()
{
    EntryPage page;
    page.Start();
    page->ListavOrdinataDue("Alfa");
    QTRY_VERIFY(page->lstListaOrdinata->isVisible());
    // The values under it cannot be seen.
    page->lblImmisTempoMinuti->SetFocus();
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstListaOrdinata"));
    page->notes[3].lbl->SetFocus();
    QTRY_VERIFY(!page->lstListaOrdinata->isVisible());
    page->ListavOrdinataDue("Alfa");
    hand::Keys({Qt::SHIFT | Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstListaOrdinata"));
    // It closes when it is left, so that the value before it shows again.
    hand::Keys({Qt::SHIFT | Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lblRipetizioniTab"));
    QTRY_VERIFY(!page->lstListaOrdinata->isVisible());
    page->ListavOrdinataDue("Alfa");
    page->lstListaOrdinata->SetFocus();
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstListaOrdinata"));
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(!page->lstListaOrdinata->isVisible());
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lblNote3"));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::TheMenuBarIsReachedByF10()
{
    EntryPage page;
    page.Start();
    page->lblImmisPeso->SetFocus();
    const auto* bar = page->findChild<QMenuBar*>();
    hand::Keys({Qt::Key_F10});
    QTRY_VERIFY(bar->activeAction() == bar->actions().constFirst());
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(bar->activeAction() == nullptr);
    QTRY_VERIFY(page->lblImmisPeso->hasFocus());
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::ShiftF10OpensThePopUpOfAList()
{
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblImmisTipo"));
    hand::Keys({Qt::Key_Down});
    QTRY_COMPARE(page.Field(kTipo).lst->ListIndex(), 0);
    QObject::connect(page->mnuCancelladallaLista, &QMenu::aboutToShow, page->mnuCancelladallaLista, [] {
        QMetaObject::invokeMethod(
            qApp, [] { hand::Keys({Qt::Key_C}); }, Qt::QueuedConnection);
    });
    hand::Keys({Qt::SHIFT | Qt::Key_F10});
    QTRY_COMPARE(page.ListOf(kTipo), EntryPage::Entries(kTipo).mid(1));
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::ACommandHasItsUsualKey()
{
    EntryPage page;
    page.Start();
    OpenByKeys(page, QStringLiteral("lblNote3"));
    hand::Type(QStringLiteral("di sera"));
    hand::Keys({Qt::CTRL | Qt::Key_S});
    QTRY_COMPARE(Module1::Giorni[140].Note[3], Text("di sera"));
    QTRY_VERIFY(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")).contains("\"di sera\""));
    hand::Keys({Qt::CTRL | Qt::Key_Q});
    QTRY_VERIFY(page.Gone());
    VERIFY_SCRIPT(page.script);
}

void PageKeysTest::ACommandKeepsTheFocusOfAValue()
{
    EntryPage page;
    page.Start();
    page->lblImmisPeso->SetFocus();
    Module1::FileModificato = 1;
    hand::Keys({Qt::CTRL | Qt::Key_S});
    QTRY_VERIFY(Module1::FileModificato == 0);
    QCOMPARE(EntryPage::Focused(), QByteArray("lblImmisPeso"));
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lblRipetizioniVolte"));
    VERIFY_SCRIPT(page.script);
}

/// The boxes cover the lines; Tab goes on where it was.
void PageKeysTest::TheNotesOpenAroundTheLineWithTheFocus()
{
    EntryPage page;
    page.Start();
    page->notes[6].lbl->SetFocus();
    page->mnuNote_Click();
    QTRY_VERIFY(page->notes[6].txt->isVisible());
    QTRY_VERIFY(!page->notes[6].lbl->hasFocus());
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtNote6"));
    // Esc closes them from anywhere on the page.
    page->lblImmisPeso->SetFocus();
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(!page->notes[3].txt->isVisible() && !page->notes[10].txt->isVisible());
    QVERIFY(page->lblImmisPeso->hasFocus());
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PageKeysTest)
#include "PageKeysTest.moc"
