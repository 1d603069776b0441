// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/CMouse.h"
#include "core/Date.h"
#include "diary/CategoryStatistics.h"
#include "diary/ListaOrdinata.h"
#include "diary/Module1.h"
#include "diary/SelectionLists.h"
#include "diary/TimeAndPace.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/Form.h"
#include "toolkit/Timer.h"
#include "windows/guide/HelpViewer.h"
#include "windows/page/FrmInfo.h"
#include "windows/page/PageControls.h"
#include "windows/plan/TablePage.h"
#include "windows/plan/TableWindows.h"
#include "windows/races/FrmCalendario.h"
#include "windows/routes/FrmDesPercorso.h"
#include "windows/routes/RoutePage.h"
#include "windows/statistics/FrmGrafici.h"
#include "windows/statistics/FrmRicercheStatistiche.h"
#include "windows/statistics/FrmStatistiche1.h"

#include <memory>
#include <optional>
#include <vector>

class QMenu;
class QMenuBar;

namespace zelvia
{

class CampoLista;
class GruppoSpin;

/// The program's main window: a page of a printed diary that shows one day. It starts the run, moves the date, carries
/// a day between its record and the controls, and owns the file commands; it ends the run when it closes.
class frmMain : public Form, public PageControls, public RoutePage, public TablePage
{
    Q_OBJECT

public:
    frmMain();
    ~frmMain() override;

    /// The start of the program. False when another instance is running: the run is then to end without a word.
    bool FormLoad();

    Control& FocusSink() override { return *pctGiornoAnno; }

    // State that other windows read. DataMinima..DataMassima is the range of the page.
    CalendarDate DataMinima;
    CalendarDate DataMassima;
    i16 GiornoMese = 1;
    i16 MeseCorrente = 1;
    i16 AnnoCorrente = 1;
    i16 UltimoPeso; ///< Last weight above 0 up to the day shown, kilograms.
    i32 KmAnno;     ///< Kilometres of the year up to the day shown.
    i16 GiorniCorseAnno;
    i16 GareAnno;
    Text NomeFile;     ///< Full path of the open diary.
    Text NomeBaseFile; ///< Its name without folder and extension.
    Text EsitoDir;
    int NuovoAnnullato = 0; ///< 1 once the dialog of a new file was cancelled; nothing clears it.
    i16 NoteAperte;
    i16 ListaAperta;   ///< Number of the list that last took the focus, 9 for the splits; 0 when none is open.
    i16 LunghezzaNota; ///< Length of the note being typed.

    CommonDialog dlgCommonDialog;

    // Dates.
    /// Brings everything that depends on DataCorrente up to date.
    void Data();
    void upGiorno_DownClick() { MoveDate(*upGiorno, "d", -1); }
    void upGiorno_UpClick() { MoveDate(*upGiorno, "d", 1); }
    void upMese_DownClick() { MoveDate(*upMese, "m", -1); }
    void upMese_UpClick() { MoveDate(*upMese, "m", 1); }
    void lblData_Click();
    void tmrFocus_Timer();

    // The day on the page and in its record.
    void VisualizzaGiorno();
    void AzzeraCampi();
    void AssegnaCampi();
    /// 1 when the controls differ from the record of GiornoCorrente, else 0.
    void ControllaSave(i16& esito);
    /// Counts the year up to the day shown, from the records.
    void DatiAnno();

    // Panels of the right page.
    /// Walks the active table up to the day shown and shows the row reached.
    void AssegnaTabella();
    void AzzeraDatiTabella();
    void NessunaTabella();
    void TabAllenamentiVisibili() { ShowTablePanel(true); }
    void TabAllenamentiNonVisibili() { ShowTablePanel(false); }
    void MostraRiquadriGara() { ShowRacePanel(true); }
    void NascondiRiquadriGara() { ShowRacePanel(false); }
    /// Shows the race of the day shown in the place of the active table, if the calendar has one.
    void AssegnaGara();
    /// Shows the race at row `indice` of the calendar.
    void GiornodellaGara(i16& indice);

    // Files.
    void CaricaNomeFile();
    /// The counterpart of CaricaNomeFile: writes NomeFile to the pointer file of the program's folder.
    void SalvaNomeFile();
    void NomeFleListe();
    void mnuFileOpen_Click();
    void mnuFileNuovo_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFilePrint_Click();
    void mnuFileExit_Click();
    /// Asks to save what changed; `annullato` becomes 1 when the user cancels.
    void ChiediSalvataggio(i16& annullato);
    void NuovoFile(const Text& percorso);
    void SalvaFileNuovo(const Text& percorso);

    // Selection lists.
    void InizializzaListe();
    void SalvaListaPercorso() { SalvaLista(ListaScelta::Percorso); }
    void SalvaListaLunghezza() { SalvaLista(ListaScelta::Lunghezza); }
    void SalvaListaModo() { SalvaLista(ListaScelta::Modo); }
    void SalvaListaFondo() { SalvaLista(ListaScelta::Fondo); }
    void SalvaListaTipo() { SalvaLista(ListaScelta::Tipo); }
    void SalvaListaTempoAtm() { SalvaLista(ListaScelta::TempoAtm); }
    void SalvaListaTemperatura() { SalvaLista(ListaScelta::Temperatura); }
    void CaricaListaPercorso() { CaricaLista(ListaScelta::Percorso); }
    void CaricaListaLunghezza() { CaricaLista(ListaScelta::Lunghezza); }
    void CaricaListaModo() { CaricaLista(ListaScelta::Modo); }
    void CaricaListaFondo() { CaricaLista(ListaScelta::Fondo); }
    void CaricaListaTipo() { CaricaLista(ListaScelta::Tipo); }
    void CaricaListaTempoAtm() { CaricaLista(ListaScelta::TempoAtm); }
    void CaricaListaTeperatura() { CaricaLista(ListaScelta::Temperatura); }

    void ImmisPercorso() { Immis(ListaScelta::Percorso); }
    void ImmisLunghezza() { Immis(ListaScelta::Lunghezza); }
    void ImmisModo() { Immis(ListaScelta::Modo); }
    void ImmisFondo() { Immis(ListaScelta::Fondo); }
    void ImmisTipo() { Immis(ListaScelta::Tipo); }
    void ImmisStagione() { Immis(ListaScelta::Stagione); }
    void ImmisTempoAtm() { Immis(ListaScelta::TempoAtm); }
    void ImmisTemperatura() { Immis(ListaScelta::Temperatura); }
    /// Adds the box's trimmed text to the list if it is new there; 1 when the list held it already, else 0.
    i16 AggiungiLista(TextBox& txt, ListBox& lst);
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
    /// Opens the sorted list of a route's times, the day on show as one of its lines.
    void ListavOrdinata(const Text& percorso);
    /// The same from the stored days only.
    void ListavOrdinataDue(const Text& percorso);
    void lstListaOrdinata_LostFocus();

    // Notes and splits.
    void lblNote_Click(int riga);
    void txtNote_Click(int riga);
    void txtNote_KeyPress(int riga, int keyAscii);
    void mnuNote_Click();
    void cmdListaKM_Click();

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
    struct KeptState;

    void BuildMenus(QMenuBar& bar);
    void ConnectControls();
    void ConnectSpins();
    void ConnectLists();
    void ConnectGroups();
    void ConnectSplits();
    void ConnectNotes();

    // Start.
    void ResetState();
    void SetUpFolder();
    /// Writes the full set into CartellaDiario when it holds no file.
    void WriteFirstSet();
    void LoadCompanions();

    // Dates.
    void SetToday();
    /// Closes the open field for a step of the date; false when that opened a route's description.
    bool LeaveFieldForDate();
    void MoveDate(const UpDown& spin, TextView interval, int step);

    // Day.
    void ShowDistance(i32 metri);

    // Panels.
    void ShowTablePanel(bool visible);
    void ShowRacePanel(bool visible);
    /// Puts the sorted list over what was shown last, as long as it is open.
    void RaiseOrderedList();
    void ShowActiveTable();
    void ShowTableRow(i16 riga);
    void EndTable();

    // Files.
    KeptState KeepAndReset();
    void PutBack(const KeptState& kept);
    /// `diario` is the one whose folder the choice has to lie in.
    void PrepareDialog(TextView title, FileDialogMode mode, const Text& diario);
    /// Raises error 32755 after the refusal's box when the dialog's FileName lies in another folder than `diario`; the
    /// dialog then holds `diario` again and `riprova` is set.
    void ApplyFolderRule(FileDialogMode mode, const Text& diario, bool& riprova);
    /// Writes the lists, the routes and the calendar.
    void SaveCompanions();
    /// True when the calendar's window is open with changes and the user wants to stay with them.
    bool CalendarStays();
    void OpenDiary();
    /// Has the other windows that are open show the calendar and the tables of the diary that is open now.
    void ShowOtherDiary();
    /// Reads the diary named by NomeFile with its companions and shows it.
    void ReadOpenedDiary();

    void SalvaLista(ListaScelta lista);
    void CaricaLista(ListaScelta lista);
    void CaricaListe();
    void SalvaListe();

    void ShowHelp(int comando, const QString& argomento = {});

    // Entry.
    void Immis(ListaScelta lista);
    void RemoveSelected(ListaScelta lista);
    /// The route's box holds a name that its list does not.
    bool NewRouteTyped();
    /// Closes the route's field if its box has the focus.
    void LeaveRouteBox();
    Orario StartTime() const;
    Orario EndTime() const;
    Orario ShowTimeTaken();
    void BeginOrderedList();
    void AddRun(i16 giorno, const Text& tempoRun, const Text& media, CalendarDate dataRun);
    void AddRunsOf(const Text& percorso, i16 ultimo);
    void FillOrderedList(bool posizione);
    void ShowRoute(const Text& nome);

    // Statistics.
    /// Counts the category up to the day shown, from the records, into that window.
    void Statis(Categoria categoria);
    /// The command of a statistic: commits the day, counts and shows.
    void ShowStatistic(void (frmMain::*statis)());

    BoundedArray<std::unique_ptr<CampoLista>, 1, 8> campiLista_;
    std::vector<std::unique_ptr<GruppoSpin>> gruppi_;
    GruppoSpin* splits_ = nullptr;           ///< The group of the kilometre splits, one of gruppi_.
    std::optional<ListaOrdinata> ListaTempi; ///< Alive while the sorted list is open.
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
