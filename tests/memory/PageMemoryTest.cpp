// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The page when memory runs out: each routine reports under its own title, and the page goes on.
#include "diary/CalendarModel.h"
#include "diary/RouteModel.h"
#include "memory/ScarceCommands.h"
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "toolkit/Events.h"

#include <QAction>

namespace zelvia::test
{
namespace
{

/// Longer than what a text holds without asking for memory.
const QString kLong = QStringLiteral("Giro lungo del fiume");

constexpr const char* kFields[] = {"Percorso", "Lunghezza", "Modo",     "Fondo",
                                   "Tipo",     "Stagione",  "TempoAtm", "Temperatura"};

} // namespace

class PageMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { page_.reset(); }

    void lists_data();
    void lists();
    void notes_data();
    void notes();
    void groups_data();
    void groups();
    void commands_data();
    void commands();
    void pointerOfTheStart();

private:
    std::map<QByteArray, Command> Commands() const;
    void OpenRoutes() const;
    void OpenGroup(Label& value) const;
    EntryPage& Page() const { return *page_; }
    void CloseField(int number) const;
    void AtRest() const;

    std::unique_ptr<EntryPage> page_;
};

void PageMemoryTest::init()
{
    page_ = std::make_unique<EntryPage>();
    Page().Start();
    for (int number = 1; number <= 8; ++number) {
        Page().SetEntries(static_cast<SelectionList>(number), {FromQString(kLong)});
    }
    // So that no window asks for its description.
    Module1::NomiPercorso[1] = FromQString(kLong);
}

void PageMemoryTest::CloseField(int number) const
{
    Page().Field(number).txt->SetVisible(false);
    Page().Field(number).lst->SetVisible(false);
    AtRest();
}

void PageMemoryTest::AtRest() const
{
    if (QWidget* description = Page().RouteWindow()) {
        description->close();
    }
    Page()->activateWindow();
    Page()->FocusSink().SetFocus();
    Settle();
}

void PageMemoryTest::lists_data()
{
    QTest::addColumn<int>("number");
    for (int number = 1; number <= 8; ++number) {
        QTest::newRow(kFields[number - 1]) << number;
    }
}

void PageMemoryTest::lists()
{
    QFETCH(int, number);
    const QByteArray name = kFields[number - 1];
    const ListControls& field = Page().Field(number);
    const bool bareKeys = name == "Temperatura";
    VerifyReports(
        {{"lblImmis" + name, "Immis" + name}, [&] { CloseField(number); }, [&] { hand::Click(*field.lblImmis); }});
    const auto open = [&] {
        CloseField(number);
        hand::Click(*field.lblImmis);
        Settle();
        field.txt->SetContent(FromQString(kLong));
    };
    VerifyReports({{"txt" + name}, open, [&] { hand::Key(Qt::Key_Return); }});
    VerifyReports({{"lbl" + name}, open, [&] { hand::Click(*field.lbl); }});
    VerifyReports({{"lst" + name}, open, [&] { Page().ClickRow(*field.lst, 0); }});
    const auto select = [&] {
        open();
        Page().ClickRow(*field.lst, 0);
        Settle();
    };
    VerifyReports({{bareKeys ? QByteArray() : "lst" + name}, select, [&] { hand::Key(Qt::Key_Escape); }});
}

void PageMemoryTest::notes_data()
{
    QTest::addColumn<int>("line");
    for (int line = 3; line <= 10; ++line) {
        QTest::addRow("%d", line) << line;
    }
}

void PageMemoryTest::notes()
{
    QFETCH(int, line);
    const QByteArray name = "Note" + QByteArray::number(line);
    const NoteControls& note = Page()->notes[line];
    const auto close = [&] {
        AtRest();
        note.txt->SetVisible(false);
        note.lbl->SetCaption(FromQString(kLong));
    };
    VerifyReports({{"lbl" + name}, close, [&] { hand::Click(*note.lbl); }});
    const auto open = [&] {
        close();
        hand::Click(*note.lbl);
        Settle();
    };
    // The keys of the seventh line report under the name of its label.
    VerifyReports({{(line == 7 ? "lbl" : "txt") + name}, open, [&] { hand::Type(QStringLiteral("a")); }});
    VerifyReports({{"txt" + name}, open, [&] { hand::Click(*Page()->lblKm); }});
}

void PageMemoryTest::groups_data()
{
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QByteArray>("click");
    QTest::addColumn<QByteArray>("opening");
    QTest::addColumn<QByteArray>("caption");
    const auto add = [](const char* label, const char* click, const char* opening, const char* caption) {
        QTest::newRow(label) << QByteArray(label) << QByteArray(click) << QByteArray(opening) << QByteArray(caption);
    };
    add("lblImmisMetri", "lblImmisMetri", "ImmisMetri", "lblKm");
    add("lblImmisOraInizio", "lblImmisOraInizio", "ImmisOraInizio", "lblOraInizio");
    add("lblImmisOraFine", "lblOrafine", "ImmisOraFine", "lblOraFine");
    add("lblImmisCorridori", "lblImmisCorridori", "ImmisCorridori", "lblCorridori");
    add("lblImmisPeso", "lblImmisPeso", "ImmisPeso", "lblPeso");
    add("lblRipetizioniVolte", "lblRipetizioniVolte", "RipetizioniVolte", "lblRipetizioni");
    add("lblRipetizioniQuante", "lblRipetizioniQuante", "RipetizioniQuante", "lblRipetizioni");
    add("lblRipetizioniDistanza", "lblRipetizioniDistanza", "RipetizioniDistanza", "lblRipetizioni");
    add("lblImmisTempoKM", "lblImmisTempoKm", "ImmisTempoKm", "lblTempoKm");
    add("lblImmisTempoMinuti", "lblImmisTempoMinuti", "ImmisTempoMinuti", "lblTempoKm");
}

void PageMemoryTest::groups()
{
    QFETCH(QByteArray, label);
    QFETCH(QByteArray, click);
    QFETCH(QByteArray, opening);
    QFETCH(QByteArray, caption);
    auto& value = *Page()->findChild<Label*>(QLatin1String(label));
    auto& words = *Page()->findChild<Label*>(QLatin1String(caption));
    VerifyReports({{click, opening}, [&] { AtRest(); }, [&] { hand::Click(value); }});
    VerifyReports({{caption}, [&] { OpenGroup(value); }, [&] { hand::Click(words); }});
}

void PageMemoryTest::OpenRoutes() const
{
    CloseField(1);
    const ListControls& field = Page().Field(1);
    Page().SetEntries(SelectionList::Percorso, {FromQString(kLong)});
    hand::Click(*field.lblImmis);
    Settle();
    field.txt->SetContent(FromQString(kLong));
    Page().ClickRow(*field.lst, 0);
    Settle();
}

void PageMemoryTest::OpenGroup(Label& value) const
{
    AtRest();
    hand::Click(value);
    Settle();
}

void PageMemoryTest::commands_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const auto& [name, command] : Commands()) {
        QTest::newRow(name.constData()) << name;
    }
}

std::map<QByteArray, Command> PageMemoryTest::Commands() const
{
    const auto atRest = [this] { AtRest(); };
    const auto choose = [this](const char* entry) {
        return [this, entry] { Page()->findChild<QAction*>(QLatin1String(entry))->trigger(); };
    };
    const auto ofTheRoutes = [this](QByteArrayList routines, const char* entry) -> Command {
        return {std::move(routines), [this] { OpenRoutes(); },
                [this, entry] { Page()->mnuCancelladallaLista->findChild<QAction*>(QLatin1String(entry))->trigger(); }};
    };
    const auto changed = [this] {
        AtRest();
        Module1::FileModificato = 1;
    };
    const auto afterLongName = [this] {
        AtRest();
        Page()->NomeFile = Module1::CartellaDiario + "\\" + FromQString(kLong) + ".zlv";
    };
    const auto withARace = [this] {
        AtRest();
        Module1::GiornoGara[1] = Page()->GiornoMese;
        Module1::MeseGara[1] = Page()->MeseCorrente;
        Module1::AnnoGara[1] = Page()->AnnoCorrente;
        Module1::Gara[1] = FromQString(kLong);
    };
    const auto withTimes = [this] {
        AtRest();
        Page()->upKM->SetValue(1);
        Page()->upOraFine->SetValue(1);
        Page().Field(1).lblImmis->SetCaption(FromQString(kLong));
        OpenGroup(*Page()->lblImmisOraFine);
    };
    const auto planToRead = [this] {
        AtRest();
        Module1::NomeTabellaAttiva = Module1::CartellaDiario + "\\" + FromQString(kLong) + ".tab";
        Page()->RequestTableReading();
    };
    const auto newRoute = [this] {
        OpenRoutes();
        Page().SetEntries(SelectionList::Percorso, {});
        Page().Field(1).txt->SetFocus();
        Settle();
        Page().Field(1).txt->SetContent(FromQString(kLong));
    };
    const auto openNote = [this] {
        AtRest();
        Page()->NoteAperte = 1;
        hand::Click(*Page()->notes[3].lbl);
        Settle();
    };
    return {
        {"step of a day", {{"Data"}, atRest, [this] { Page().Up(*Page()->upGiorno); }}},
        {"arrows of the date", {{"lblData"}, atRest, [this] { hand::Click(*Page()->lblData); }}},
        {"plan read again",
         {{"tmrFocus"}, planToRead, [this] { QTRY_COMPARE(Page().Caption("lblTimerTab"), QStringLiteral("0")); }}},
        {"click in a note", {{"mnuNote"}, openNote, [this] { hand::Click(*Page()->notes[3].txt); }}},
        {"first lists", {{"mnuListaIniziale"}, atRest, choose("mnuListaIniziale")}},
        {"lists as saved", {{"mnuListaPrecedente", "NomeFleListe"}, afterLongName, choose("mnuListaPrecedente")}},
        {"blank day", {{"mnuAzzeraGiorno"}, atRest, choose("mnuAzzeraGiorno")}},
        {"save", {{"mnuFileSave", "CAPTIONPATH"}, atRest, choose("mnuFileSave")}},
        {"save as", {{"mnuFileSaveAs"}, atRest, choose("mnuFileSaveAs")}},
        {"open", {{"mnuFileOpen"}, changed, choose("mnuFileOpen")}},
        {"new", {{"mnuFileNuovo", "SalvaFileNuovo"}, changed, choose("mnuFileNuovo")}},
        {"plans", {{"mnuAllenamenti"}, atRest, choose("mnuAllenamenti")}},
        {"races", {{"mnuGare"}, atRest, choose("mnuGare")}},
        {"about", {{"mnuHelpAbout"}, atRest, choose("mnuHelpAbout")}},
        {"split without a distance",
         {{"cmdListaKm"},
          [this] { OpenGroup(*Page()->lblImmisTempoKM); },
          [this] { hand::Click(*Page()->cmdListaKM); }}},
        {"list of the splits",
         {{"lstListaKm"},
          [this] { OpenGroup(*Page()->lblImmisTempoKM); },
          [this] { Page()->lstListaKM->setFocus(Qt::TabFocusReason); }}},
        {"description", ofTheRoutes({"mnuDescrizionePercorso"}, "mnuDescrizionePercorso")},
        {"times of a route", ofTheRoutes({"mnuListaWOrdinata"}, "mnuListaWOrdinata")},
        {"new route", {{"AggiungiLista", "SalvaNomePercorso"}, newRoute, [] { hand::Key(Qt::Key_Return); }}},
        {"time taken", {{"TempoImpiegato"}, withTimes, [this] { hand::Click(*Page()->lblOraFine); }}},
        {"hand pointer", {{"CursoreMano"}, atRest, [this] { hand::Click(*Page()->lblImmisPeso); }}},
        {"race of the day",
         {{"GiornodellaGara"},
          withARace,
          [this] {
              Page().Up(*Page()->upGiorno);
              Page().Down(*Page()->upGiorno);
          }}},
    };
}

void PageMemoryTest::commands()
{
    QFETCH(QByteArray, command);
    VerifyReports(Commands().at(command));
}

/// Nothing calls it but this test.
void PageMemoryTest::pointerOfTheStart()
{
    VerifyReports({{"SalvaNomeFile"},
                   [] {},
                   [this] {
                       const Routine routine;
                       Page()->SalvaNomeFile();
                   }});
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PageMemoryTest)
#include "PageMemoryTest.moc"
