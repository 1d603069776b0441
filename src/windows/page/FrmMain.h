// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/CMouse.h"
#include "core/Date.h"
#include "diary/CategoryStatistics.h"
#include "diary/FileCommands.h"
#include "diary/Module1.h"
#include "diary/SelectionLists.h"
#include "diary/TimeAndPace.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/Form.h"
#include "toolkit/Timer.h"
#include "windows/guide/HelpViewer.h"
#include "windows/page/FrmInfo.h"
#include "windows/page/NoteLines.h"
#include "windows/page/NumberFields.h"
#include "windows/page/OrderedTimes.h"
#include "windows/page/PageControls.h"
#include "windows/page/Slips.h"
#include "windows/page/Splits.h"
#include "windows/plan/TableWindows.h"
#include "windows/races/FrmCalendario.h"
#include "windows/routes/FrmDesPercorso.h"
#include "windows/statistics/FrmGrafici.h"
#include "windows/statistics/FrmRicercheStatistiche.h"
#include "windows/statistics/FrmStatistiche1.h"

#include <memory>
#include <optional>

class QMenu;
class QMenuBar;

namespace zelvia
{

class CampoLista;

/// The program's main window: a page of a printed diary that shows one day. It starts the run, moves the date, carries
/// a day between its record and the controls, and owns the file commands; it ends the run when it closes.
class frmMain : public Form, public PageControls, public RoutePage, public TablePage, public DiaryPage
{
    Q_OBJECT

    FileCommands files_{*this};

public:
    frmMain();
    ~frmMain() override;

    /// The start of the program. False when another instance is running: the run is then to end without a word.
    bool FormLoad();

    Control& FocusSink() override { return *pctGiornoAnno; }

    // State of the open diary, and the range of the page.
    static constexpr CalendarDate DataMinima = kFirstDate;
    static constexpr CalendarDate DataMassima = kLastDate;
    i16& GiornoMese = Module1::session.GiornoMese;
    i16& MeseCorrente = Module1::session.MeseCorrente;
    i16& AnnoCorrente = Module1::session.AnnoCorrente;
    i16& UltimoPeso = Module1::session.UltimoPeso;
    i32& KmAnno = Module1::session.KmAnno;
    i16& GiorniCorseAnno = Module1::session.GiorniCorseAnno;
    i16& GareAnno = Module1::session.GareAnno;
    Text& NomeFile = Module1::session.NomeFile;
    Text& NomeBaseFile = Module1::session.NomeBaseFile;
    Text& EsitoDir = Module1::session.EsitoDir;
    i16& NoteAperte = Module1::session.NoteAperte;
    i16& ListaAperta = Module1::session.ListaAperta;
    int& NuovoAnnullato = files_.NuovoAnnullato;
    i16 LunghezzaNota; ///< Length of the note being typed.

    CommonDialog dlgCommonDialog;

    // Dates.
    /// Brings everything that depends on DataCorrente up to date.
    void Data() override;
    void upGiorno_DownClick() { MoveDate(*upGiorno, "d", -1); }
    void upGiorno_UpClick() { MoveDate(*upGiorno, "d", 1); }
    void upMese_DownClick() { MoveDate(*upMese, "m", -1); }
    void upMese_UpClick() { MoveDate(*upMese, "m", 1); }
    void lblData_Click();
    void tmrFocus_Timer();

    // The day on the page and in its record.
    void VisualizzaGiorno() override;
    void AzzeraCampi() override;
    void AssegnaCampi() override;
    /// 1 when the controls differ from the record of GiornoCorrente, else 0.
    void ControllaSave(i16& esito);
    /// Counts the year up to the day shown, from the records.
    void DatiAnno() override;

    // Panels of the right page.
    void AssegnaTabella() { slips_.AssegnaTabella(); }
    void AzzeraDatiTabella() { slips_.AzzeraDatiTabella(); }
    void NessunaTabella() override { slips_.NessunaTabella(); }
    void TabAllenamentiVisibili() { slips_.ShowTablePanel(true); }
    void TabAllenamentiNonVisibili() { slips_.ShowTablePanel(false); }
    void MostraRiquadriGara() { slips_.ShowRacePanel(true); }
    void NascondiRiquadriGara() { slips_.ShowRacePanel(false); }
    void AssegnaGara() override { slips_.AssegnaGara(); }
    void GiornodellaGara(i16& indice) { slips_.GiornodellaGara(indice); }

    // Files.
    void CaricaNomeFile() { files_.CaricaNomeFile(); }
    void SalvaNomeFile() { files_.SalvaNomeFile(); }
    void NomeFleListe() { files_.NomeFleListe(); }
    void mnuFileOpen_Click() { files_.mnuFileOpen_Click(); }
    void mnuFileNuovo_Click() { files_.mnuFileNuovo_Click(); }
    void mnuFileSave_Click() { files_.mnuFileSave_Click(); }
    void mnuFileSaveAs_Click() { files_.mnuFileSaveAs_Click(); }
    void ChiediSalvataggio(i16& annullato) { files_.ChiediSalvataggio(annullato); }
    void NuovoFile(const Text& percorso) { files_.NuovoFile(percorso); }
    void SalvaFileNuovo(const Text& percorso) { files_.SalvaFileNuovo(percorso); }
    void mnuFilePrint_Click();
    void mnuFileExit_Click();

    // Selection lists.
    void InizializzaListe() { files_.InizializzaListe(); }
    void SalvaListaPercorso() { files_.SalvaLista(SelectionList::Percorso); }
    void SalvaListaLunghezza() { files_.SalvaLista(SelectionList::Lunghezza); }
    void SalvaListaModo() { files_.SalvaLista(SelectionList::Modo); }
    void SalvaListaFondo() { files_.SalvaLista(SelectionList::Fondo); }
    void SalvaListaTipo() { files_.SalvaLista(SelectionList::Tipo); }
    void SalvaListaTempoAtm() { files_.SalvaLista(SelectionList::TempoAtm); }
    void SalvaListaTemperatura() { files_.SalvaLista(SelectionList::Temperatura); }
    void CaricaListaPercorso() { files_.CaricaLista(SelectionList::Percorso); }
    void CaricaListaLunghezza() { files_.CaricaLista(SelectionList::Lunghezza); }
    void CaricaListaModo() { files_.CaricaLista(SelectionList::Modo); }
    void CaricaListaFondo() { files_.CaricaLista(SelectionList::Fondo); }
    void CaricaListaTipo() { files_.CaricaLista(SelectionList::Tipo); }
    void CaricaListaTempoAtm() { files_.CaricaLista(SelectionList::TempoAtm); }
    void CaricaListaTeperatura() { files_.CaricaLista(SelectionList::Temperatura); }

    void ImmisPercorso() { Immis(SelectionList::Percorso); }
    void ImmisLunghezza() { Immis(SelectionList::Lunghezza); }
    void ImmisModo() { Immis(SelectionList::Modo); }
    void ImmisFondo() { Immis(SelectionList::Fondo); }
    void ImmisTipo() { Immis(SelectionList::Tipo); }
    void ImmisStagione() { Immis(SelectionList::Stagione); }
    void ImmisTempoAtm() { Immis(SelectionList::TempoAtm); }
    void ImmisTemperatura() { Immis(SelectionList::Temperatura); }
    /// Adds the box's trimmed text to the list if it is new there; 1 when the list held it already, else 0.
    i16 AggiungiLista(TextBox& txt, SelectionList lista);
    /// Has Tab go on behind `field` once that is closed and the focus lies in the sink.
    void FollowInTabOrder(QWidget& field);
    /// Gives the focus to the control of a field that opens. The hand comes with it, behind the closing of another
    /// field.
    void EnterField(Control& control);
    /// Fills in what is known of a route from the last day of the year that holds it.
    void CopyLastRun(const Text& percorso);
    /// Shows or hides the two entries of the pop-up that belong to the route.
    void ShowRouteEntries(bool visible);
    void mnuCancella_Click();
    void mnuListaWOrdinata_Click();
    void mnuDescrizionePercorso_Click();

    // Routes.
    /// Reserves a description for the text of the route's edit box, and opens it.
    void SalvaNomePercorso();
    /// The place of PercorsoCorrente among the descriptions, 0 when it has none.
    i16 NumeroPercorso();
    void SetDistance(i32 km, i32 metri) override;

    // Statistics.
    /// The window of the statistics, created when there is none.
    frmStatistiche1& StatisticsWindow();
    void StatisPercorso() { Statis(Categoria::Percorso); }
    void StatisLunghezza() { Statis(Categoria::Lunghezza); }
    void StatisAndatura() { Statis(Categoria::Andatura); }
    void StatisFondo() { Statis(Categoria::Fondo); }
    void StatisTipo() { Statis(Categoria::Tipo); }
    void StatisStagione() { Statis(Categoria::Stagione); }
    void StatisMeteo() { Statis(Categoria::Meteo); }
    void StatisTemperatura() { Statis(Categoria::Temperatura); }
    void StatisCorridori() { Statis(Categoria::Corridori); }
    void StatisPeso() { Statis(Categoria::Peso); }
    void StatisKm() { Statis(Categoria::Km); }
    void StatisRipetizioni() { Statis(Categoria::Ripetizioni); }
    void mnuPercorso_Click() { ShowStatistic(&frmMain::StatisPercorso); }
    void mnuLunghezza_Click() { ShowStatistic(&frmMain::StatisLunghezza); }
    void mnuAndatura_Click() { ShowStatistic(&frmMain::StatisAndatura); }
    void mnuFondo_Click() { ShowStatistic(&frmMain::StatisFondo); }
    void mnuTipo_Click() { ShowStatistic(&frmMain::StatisTipo); }
    void mnuStagione_Click() { ShowStatistic(&frmMain::StatisStagione); }
    void mnuMeteo_Click() { ShowStatistic(&frmMain::StatisMeteo); }
    void mnuTemperatura_Click() { ShowStatistic(&frmMain::StatisTemperatura); }
    void mnuCorridori_Click() { ShowStatistic(&frmMain::StatisCorridori); }
    void mnuPeso_Click() { ShowStatistic(&frmMain::StatisPeso); }
    void mnuKm_Click() { ShowStatistic(&frmMain::StatisKm); }
    void mnuRipetizioni_Click() { ShowStatistic(&frmMain::StatisRipetizioni); }

    // Training tables.
    void SetActiveTableName(TextView nome) override { lblTabNomeFile->SetCaption(nome); }
    void RequestTableReading() override { lblTimerTab->SetCaption("1"); }

    // Time and pace.
    /// 0 when nothing can be computed, 1 for time and average, 2 for the time only.
    i16 ControlloTempiKm();
    void TempoImpiegato();
    void tempo();
    void MediaKm(i32 ore, i32 minuti, i32 secondi);
    void ListavOrdinata(const Text& percorso) { times_.ListavOrdinata(percorso); }
    void ListavOrdinataDue(const Text& percorso) { times_.ListavOrdinataDue(percorso); }
    void lstListaOrdinata_LostFocus() { times_.Close(); }

    // Notes and splits.
    void mnuNote_Click() { notes_->mnuNote_Click(); }
    void cmdListaKM_Click() { splits_->cmdListaKM_Click(); }

    // Options and help.
    void mnuAzzeraGiorno_Click();
    void mnuListaPrecedente_Click();
    void mnuListaIniziale_Click();
    void mnuAllenamenti_Click();
    void mnuGare_Click();
    void mnuMedie_Click();
    void mnuHelpContents_Click();
    void mnuHelpSearchForHelpOn_Click();
    void mnuHelpAbout_Click();

    /// The dispatcher of a button bar: runs the menu handler that goes with a button's key; any other key does nothing.
    void DispatchCommand(TextView key);

    /// Gives the fifteen captions of the fields the hand, or their default pointer back.
    void CursoreMano();
    void CursoreNormale();

    Timer* tmrFocus;
    QMenu* mnuCancelladallaLista;
    Text FileGuida; ///< The program's help file.

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void OnUnload() override;

private:
    void BuildMenus(QMenuBar& bar);
    void ConnectControls();
    void ConnectLists();

    // Dates.
    /// Closes the open field for a step of the date; false when that opened a route's description.
    bool LeaveFieldForDate();
    void MoveDate(const UpDown& spin, TextView interval, int step);

    // Files.
    void ShowDiaryName() override { lblNomeFile->SetCaption(NomeBaseFile); }
    void ShowTableName() override { slips_.ShowTableName(); }
    void ShowActiveTable() override { slips_.ShowActiveTable(); }
    void ShowList(SelectionList lista) override;
    void ShowOtherDiary() override;
    bool CalendarStays() override;
    void SetBusy(bool busy) override;
    Text& ChosenName() override { return dlgCommonDialog.FileName; }
    void ChooseFile(const FileChoice& choice) override;

    void ShowHelp(int comando, const QString& argomento = {});

    // Entry.
    void Immis(SelectionList lista);
    void RemoveSelected(SelectionList lista);
    /// The route's box holds a name that its list does not.
    bool NewRouteTyped();
    /// Closes the route's field if its box has the focus.
    void LeaveRouteBox();
    ClockTime StartTime() const;
    ClockTime EndTime() const;
    ClockTime ShowTimeTaken();
    void ShowRoute(const Text& nome);

    // Statistics.
    /// Counts the category up to the day shown, from the records, into that window.
    void Statis(Categoria categoria);
    /// The command of a statistic: commits the day, counts and shows.
    void ShowStatistic(void (frmMain::*statis)());

    BoundedArray<std::unique_ptr<CampoLista>, 1, 8> campiLista_;
    std::optional<NumberFields> numbers_;
    std::optional<Splits> splits_;
    std::optional<NoteLines> notes_;
    OrderedTimes times_{*this};
    Slips slips_{*this, [this] { times_.Raise(); }};
    TableWindows tables_;
    HelpViewer guida_;
    FormSlot<frmInfo> info_;
    FormSlot<frmDesPercorso> desPercorso_;
    FormSlot<frmCalendario> calendario_;
    FormSlot<frmGrafici> grafici_;
    FormSlot<frmRicercheStatistiche> ricerche_;
    FormSlot<frmStatistiche1> statistiche_;
};

} // namespace zelvia
