// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A day between its record and the controls: what is shown, what is stored, what counts as a change.
#include "support/DayPage.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"

#include <vector>

namespace zelvia::test
{
namespace
{

using Change = void (*)(frmMain&);
using Check = bool (*)(const RecordGiorno&);

constexpr int kSlot = 60; // 1 March of a common year: sixteen kilometres, two hundred metres, some splits

/// A change of the page, whether it marks the diary as changed, and what the record must then hold.
struct ChangeRow {
    const char* name;
    Change change;
    int modified;
    Check stored;
};

template <SelectionList lista>
void Capitals(frmMain& page)
{
    Label& label = *page.ListField(lista).lblImmis;
    label.setText(label.text().toUpper());
}

template <SelectionList lista>
void NewText(frmMain& page)
{
    page.ListField(lista).lblImmis->SetCaption("Altro");
}

template <UpDown* PageControls::*spin>
void OneMore(frmMain& page)
{
    (page.*spin)->SetValue((page.*spin)->Value() + 1);
}

const ChangeRow kChanges[] = {
    {"nothing", [](frmMain&) {}, 0, [](const RecordGiorno& day) { return day.Km == 16 && day.Metri == 200; }},
    {"Percorso, case only", Capitals<SelectionList::Percorso>, 0,
     [](const RecordGiorno& day) { return day.Percorso == "COLLE DELL'UNIVERSITÀ"_t; }},
    {"Lunghezza, case only", Capitals<SelectionList::Lunghezza>, 0,
     [](const RecordGiorno& day) { return day.Lunghezza == "LUNGO"; }},
    {"Modo, case only", Capitals<SelectionList::Modo>, 0, [](const RecordGiorno& day) { return day.Modo == "LENTA"; }},
    {"Tipo, case only", Capitals<SelectionList::Tipo>, 0,
     [](const RecordGiorno& day) { return day.Tipo == "ALLENAMENTO"; }},
    {"Percorso", NewText<SelectionList::Percorso>, 1, [](const RecordGiorno& day) { return day.Percorso == "Altro"; }},
    {"Lunghezza", NewText<SelectionList::Lunghezza>, 1,
     [](const RecordGiorno& day) { return day.Lunghezza == "Altro"; }},
    {"Modo", NewText<SelectionList::Modo>, 1, [](const RecordGiorno& day) { return day.Modo == "Altro"; }},
    {"Fondo", NewText<SelectionList::Fondo>, 1, [](const RecordGiorno& day) { return day.Fondo == "Altro"; }},
    {"Tipo", NewText<SelectionList::Tipo>, 1, [](const RecordGiorno& day) { return day.Tipo == "Altro"; }},
    {"Stagione", NewText<SelectionList::Stagione>, 1, [](const RecordGiorno& day) { return day.Stagione == "Altro"; }},
    {"TempoAtm", NewText<SelectionList::TempoAtm>, 1, [](const RecordGiorno& day) { return day.TempoAtm == "Altro"; }},
    {"Temperatura", NewText<SelectionList::Temperatura>, 1,
     [](const RecordGiorno& day) { return day.Temperatura == "Altro"; }},
    {"a text emptied", [](frmMain& page) { page.ListField(SelectionList::Tipo).lblImmis->SetCaption(""); }, 1,
     [](const RecordGiorno& day) { return day.Tipo.empty(); }},
    {"Km", OneMore<&PageControls::upKM>, 1, [](const RecordGiorno& day) { return day.Km == 17; }},
    {"Metri", [](frmMain& page) { page.upMetri->SetValue(550); }, 1,
     [](const RecordGiorno& day) { return day.Metri == 550; }},
    {"single metres", OneMore<&PageControls::upMetro>, 1, [](const RecordGiorno& day) { return day.Metri == 201; }},
    {"metres with the same sum",
     [](frmMain& page) {
         page.upMetri->SetValue(195);
         page.upMetro->SetValue(5);
     },
     0, [](const RecordGiorno& day) { return day.Metri == 200; }},
    {"OraInizio", OneMore<&PageControls::upOraInizio>, 1, [](const RecordGiorno& day) { return day.OraInizio == 7; }},
    {"MinutiInizio", OneMore<&PageControls::upMinutiInizio>, 1,
     [](const RecordGiorno& day) { return day.MinutiInizio == 56; }},
    {"SecondiInizio", OneMore<&PageControls::upSecondiInizio>, 1,
     [](const RecordGiorno& day) { return day.SecondiInizio == 1; }},
    {"OraFine", OneMore<&PageControls::upOraFine>, 1, [](const RecordGiorno& day) { return day.OraFine == 9; }},
    {"MinutiFine", OneMore<&PageControls::upMinutiFine>, 1,
     [](const RecordGiorno& day) { return day.MinutiFine == 36; }},
    {"SecondiFine", OneMore<&PageControls::upSecondiFine>, 1,
     [](const RecordGiorno& day) { return day.SecondiFine == 24; }},
    {"Corridori", OneMore<&PageControls::upCorridori>, 1, [](const RecordGiorno& day) { return day.Corridori == 7; }},
    {"Peso", OneMore<&PageControls::upPeso>, 1, [](const RecordGiorno& day) { return day.Peso == 1; }},
    {"Ripetizioni", OneMore<&PageControls::upRipetizioni>, 1,
     [](const RecordGiorno& day) { return day.Ripetizioni == 1; }},
    {"RipetizioniDistanza", OneMore<&PageControls::upRipetizioniDistanza>, 1,
     [](const RecordGiorno& day) { return day.RipetizioniDistanza == 1; }},
    {"RipetizioniQuante", OneMore<&PageControls::upRipetizioniQuante>, 1,
     [](const RecordGiorno& day) { return day.RipetizioniQuante == 1; }},
    {"RipetizioniTempi", OneMore<&PageControls::upRipetizioniTempi>, 1,
     [](const RecordGiorno& day) { return day.RipetizioniTempi == 1; }},
    {"time taken alone", [](frmMain& page) { page.lblOutTempoImpiegato->SetCaption("9:59:59"); }, 0,
     [](const RecordGiorno& day) { return day.TempoImpiegato == "9:59:59"; }},
    {"average alone", [](frmMain& page) { page.lblOutMediaKM->SetCaption("9:59"); }, 0,
     [](const RecordGiorno& day) { return day.MediaKm == "9:59"; }},
    {"last split deleted", [](frmMain& page) { page.lstListaKM->RemoveItem(page.lstListaKM->ListCount() - 1); }, 0,
     [](const RecordGiorno& day) { return day.ListaKm[1] == "10      01:01:57" && day.ListaKm[2].empty(); }},
    {"all splits deleted", [](frmMain& page) { page.lstListaKM->Clear(); }, 0,
     [](const RecordGiorno& day) { return day.ListaKm[0].empty(); }},
    {"first split deleted", [](frmMain& page) { page.lstListaKM->RemoveItem(0); }, 1,
     [](const RecordGiorno& day) { return day.ListaKm[0] == "10      01:01:57" && day.ListaKm[2].empty(); }},
    {"split added", [](frmMain& page) { page.lstListaKM->AddItem("16      01:40:23"); }, 1,
     [](const RecordGiorno& day) { return day.ListaKm[3] == "16      01:40:23"; }},
    {"first note", [](frmMain& page) { page.notes[3].txt->SetContent("piede"); }, 1,
     [](const RecordGiorno& day) { return day.Note[3] == "piede"; }},
    {"last note", [](frmMain& page) { page.notes[10].txt->SetContent("piede"); }, 1,
     [](const RecordGiorno& day) { return day.Note[10] == "piede"; }},
};

void ShowAgain(const DayPage& page, int slot)
{
    page.GoTo(slot + 1);
    page.GoTo(slot);
}

} // namespace

class CommitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesOfTheDay_data();
    void changesOfTheDay();
    void splitsComparedWithoutCase();
    void aNoteInAnotherCase();
    void visitsStampTheDateOnly();
    void notesWithoutAControlSurvive();
    void longNoteIsCutAndCounts();
    void metresComeBackAsASum_data();
    void metresComeBackAsASum();
    void blankDayShowsItsNeutralValues();
    void gapsBetweenSplitsAreClosed();
    void splitListLimits_data();
    void splitListLimits();
    void blankingLeavesWhatTheRecordHasNot();
    void aChangedDiaryStaysChanged();
};

void CommitTest::changesOfTheDay_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < std::size(kChanges); ++i) {
        QTest::newRow(kChanges[i].name) << static_cast<int>(i);
    }
}

void CommitTest::changesOfTheDay()
{
    QFETCH(int, row);
    const ChangeRow& change = kChanges[row];
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    QCOMPARE(page->lstListaKM->ListCount(), 3);
    change.change(page.Page());
    page.GoTo(kSlot + 1);
    VERIFY_SCRIPT(page.script);
    QVERIFY(Module1::FileModificato == change.modified);
    QVERIFY(change.stored(Module1::Giorni[kSlot]));
    // What was stored is what comes back, and it is no change any more.
    Module1::FileModificato = 0;
    page.GoTo(kSlot);
    page.GoTo(kSlot + 1);
    QVERIFY(Module1::FileModificato == 0);
    QVERIFY(change.stored(Module1::Giorni[kSlot]));
}

void CommitTest::splitsComparedWithoutCase()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    Module1::Giorni[kSlot].ListaKm[1] = "MEZZO giro";
    page->lstListaKM->item(1)->setText(QStringLiteral("mezzo GIRO"));
    page.GoTo(kSlot + 1);
    QVERIFY(Module1::FileModificato == 0);
    QCOMPARE(Module1::Giorni[kSlot].ListaKm[1], Text("mezzo GIRO"));
    VERIFY_SCRIPT(page.script);
}

void CommitTest::aNoteInAnotherCase()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    Module1::Giorni[kSlot].Note[7] = "Salita";
    page->notes[7].txt->SetContent("SALITA");
    page.GoTo(kSlot + 1);
    QVERIFY(Module1::FileModificato == 0);
    QCOMPARE(Module1::Giorni[kSlot].Note[7], Text("SALITA"));
    VERIFY_SCRIPT(page.script);
}

void CommitTest::visitsStampTheDateOnly()
{
    DayPage page(CalendarDate(2028, 3, 1));
    page.Start();
    Module1::Giorni[61].NumGiorno = 999;
    Module1::Giorni[61].TempoImpiegato.clear();
    Module1::Giorni[61].MediaKm.clear();
    QVERIFY(Module1::Giorni[61].Data == CalendarDate(2026, 3, 2));
    page.GoTo(62);
    QVERIFY(Module1::Giorni[61].Data == CalendarDate(2028, 3, 1));
    QVERIFY(Module1::Giorni[61].NumGiorno == 61);
    QCOMPARE(Module1::Giorni[61].TempoImpiegato, Text("0:00:00"));
    QCOMPARE(Module1::Giorni[61].MediaKm, Text("0:00"));
    QVERIFY(Module1::Giorni[62].Data == CalendarDate(2026, 3, 3));
    QVERIFY(Module1::FileModificato == 0);
    VERIFY_SCRIPT(page.script);
}

void CommitTest::notesWithoutAControlSurvive()
{
    const QString file = QStringLiteral("ZelviaFile/prova.zlv");
    DiaryBytes expected(SampleFile(file));
    expected.SetLine(kSlot, DiaryBytes::Notes, "\"prima\"");
    expected.SetLine(kSlot, DiaryBytes::Notes + 1, "\"seconda\"");
    DayPage page(CalendarDate(2026, 3, 1));
    page.folder.Write(file, expected.Bytes());
    page.Start();
    ShowAgain(page, kSlot);
    page.Menu("mnuFile", Qt::Key_S);
    expected.Visit(kSlot, QDate(2026, 3, 1));
    expected.Visit(kSlot + 1, QDate(2026, 3, 2));
    QVERIFY(page.folder.Read(file) == expected.Bytes());
    VERIFY_SCRIPT(page.script);
}

void CommitTest::longNoteIsCutAndCounts()
{
    DayPage page(CalendarDate(2026, 2, 28));
    page.Start();
    const Text whole = "12345678901234567890123456789012";
    Module1::Giorni[kSlot].Note[3] = whole;
    Module1::Giorni[kSlot].Note[4] = whole + "3";
    page.GoTo(kSlot);
    QCOMPARE(page.Caption("lblNote3"), QString::fromStdString(whole));
    QCOMPARE(page.Caption("lblNote4"), QString::fromStdString(whole));
    QCOMPARE(page.Caption("txtNote4"), QString::fromStdString(whole));
    QVERIFY(Module1::FileModificato == 0);
    page.GoTo(kSlot + 1);
    QVERIFY(Module1::FileModificato == 1);
    QCOMPARE(Module1::Giorni[kSlot].Note[4], whole);
    VERIFY_SCRIPT(page.script);
}

void CommitTest::metresComeBackAsASum_data()
{
    QTest::addColumn<int>("metri");
    QTest::addColumn<int>("metro");
    QTest::addColumn<int>("sum");
    QTest::newRow("tens only") << 550 << 0 << 550;
    QTest::newRow("both") << 540 << 9 << 549;
    QTest::newRow("beyond the tens' limit") << 990 << 5 << 995;
    QTest::newRow("units only") << 0 << 7 << 7;
}

void CommitTest::metresComeBackAsASum()
{
    QFETCH(int, metri);
    QFETCH(int, metro);
    QFETCH(int, sum);
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page->upMetri->SetValue(metri);
    page->upMetro->SetValue(metro);
    page.GoTo(kSlot + 1);
    QCOMPARE(page->upMetro->Value().value(), 0);
    page.GoTo(kSlot);
    QCOMPARE(page->upMetri->Value().value(), sum);
    QCOMPARE(page->upMetro->Value().value(), 0);
    Module1::FileModificato = 0;
    page.GoTo(kSlot + 1);
    QVERIFY(Module1::FileModificato == 0);
    QVERIFY(Module1::Giorni[kSlot].Metri == sum);
    VERIFY_SCRIPT(page.script);
}

void CommitTest::blankDayShowsItsNeutralValues()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page->lblImmisTempoKM->SetCaption("12");
    page->lblImmisTempoMinuti->SetCaption("01:02:03");
    page->notes[5].lbl->SetCaption("di ieri");
    page->notes[5].txt->SetContent("di ieri");
    page.GoTo(kSlot + 1); // 2 March of the sample is blank
    for (const char* name : {"lblImmisPercorso", "txtPercorso", "lblImmisLunghezza", "lblImmisModo", "lblImmisFondo",
                             "lblImmisTipo", "txtTipo", "lblImmisStagione", "lblImmisTempoAtm", "lblImmisTemperatura",
                             "txtTemperatura", "lblNote5", "txtNote5"}) {
        QVERIFY2(page.Caption(name).isEmpty(), name);
    }
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("0:00:00"));
    QCOMPARE(page.Caption("lblOutMediaKM"), QStringLiteral("0:00"));
    QCOMPARE(page.Caption("lblImmisTempoKM"), QStringLiteral("0"));
    QCOMPARE(page.Caption("lblImmisTempoMinuti"), QStringLiteral("00:00:00"));
    QCOMPARE(page.Caption("lblImmisCorridori"), QStringLiteral("1"));
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("0,000"));
    QCOMPARE(page->lstListaKM->ListCount(), 0);
    page.GoTo(kSlot);
    QCOMPARE(page.Caption("txtTipo"), QStringLiteral("Allenamento"));
    QCOMPARE(page.Caption("lblNote5"), QStringLiteral("di ieri"));
    VERIFY_SCRIPT(page.script);
}

void CommitTest::gapsBetweenSplitsAreClosed()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    RecordGiorno& next = Module1::Giorni[kSlot + 1];
    next.ListaKm[3] = "tre";
    next.ListaKm[100] = "cento";
    page.GoTo(kSlot + 1);
    QVERIFY(page->lstListaKM->Items() == (std::vector<Text>{"tre", "cento"}));
    page.GoTo(kSlot);
    QCOMPARE(next.ListaKm[0], Text("tre"));
    QCOMPARE(next.ListaKm[1], Text("cento"));
    QCOMPARE(next.ListaKm[100], Text());
    QVERIFY(Module1::FileModificato == 1);
    VERIFY_SCRIPT(page.script);
}

void CommitTest::splitListLimits_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("modified");
    QTest::addColumn<QStringList>("reports");
    const QString commit = QStringLiteral("AssegnaCampi - ERRORE : 9 Indice oltre i limiti");
    const QString test = QStringLiteral("ControllaSave - ERRORE : 9 Indice oltre i limiti");
    QTest::newRow("all places taken") << 101 << 0 << QStringList();
    QTest::newRow("one too many") << 102 << 0 << QStringList{test, commit};
    QTest::newRow("one too many, changed before") << 102 << 1 << QStringList{commit};
}

void CommitTest::splitListLimits()
{
    QFETCH(int, lines);
    QFETCH(int, modified);
    QFETCH(QStringList, reports);
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page->lstListaKM->Clear();
    for (int i = 0; i < lines; ++i) {
        page->lstListaKM->AddItem(std::to_string(i));
    }
    Module1::FileModificato = modified;
    for (const QString& report : reports) {
        page.script.Expect(Report(report));
    }
    page.GoTo(kSlot + 1);
    VERIFY_SCRIPT(page.script);
    // The move goes on, whatever the commit met.
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 3, 2));
    QCOMPARE(Module1::Giorni[kSlot].ListaKm[100], Text("100"));
}

void CommitTest::blankingLeavesWhatTheRecordHasNot()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    RecordGiorno& day = DayPage::Day();
    day.Modo.clear();
    day.Note[3].clear();
    day.Note[4] = "nota";
    page->notes[3].txt->SetContent("resta");
    page->notes[4].txt->SetContent("se ne va");
    page->upMetro->SetValue(4);
    page->AzzeraCampi();
    QCOMPARE(page.Caption("lblImmisModo"), QStringLiteral("Lenta"));
    QCOMPARE(page.Caption("txtModo"), QStringLiteral("Lenta"));
    QCOMPARE(page.Caption("lblImmisTipo"), QString());
    QCOMPARE(page.Caption("txtTipo"), QString());
    QCOMPARE(page.Caption("txtNote3"), QStringLiteral("resta"));
    QCOMPARE(page.Caption("txtNote4"), QString());
    QCOMPARE(page->upMetro->Value().value(), 0);
    QCOMPARE(page->upCorridori->Value().value(), 1);
    QCOMPARE(page->upPeso->Value().value(), 0);
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("1:40:23"));
    QCOMPARE(page.Caption("lblOutMediaKM"), QStringLiteral("6:11"));
    VERIFY_SCRIPT(page.script);
}

void CommitTest::aChangedDiaryStaysChanged()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page->upKM->SetValue(17);
    page.GoTo(kSlot + 3);
    page.GoTo(kSlot - 3);
    QVERIFY(Module1::FileModificato == 1);
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::CommitTest)
#include "CommitTest.moc"
