// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/CommonDialog.h"
#include "toolkit/Form.h"
#include "toolkit/PageTurn.h"
#include "toolkit/Timer.h"
#include "windows/guide/HelpViewer.h"
#include "windows/page/DateArrows.h"
#include "windows/page/FrmInfo.h"
#include "windows/page/GivenNames.h"
#include "windows/page/ListMenu.h"
#include "windows/page/NoteLines.h"
#include "windows/page/OrderedTimes.h"
#include "windows/page/PageControls.h"
#include "windows/page/PageKeys.h"
#include "windows/page/PageTitle.h"
#include "windows/page/RouteField.h"
#include "windows/page/Slips.h"
#include "windows/page/SpinGroup.h"
#include "windows/page/Splits.h"
#include "windows/page/TimeTaken.h"
#include "windows/plan/TableWindows.h"
#include "windows/races/FrmCalendario.h"
#include "windows/routes/FrmDesPercorso.h"
#include "windows/statistics/FrmGrafici.h"
#include "windows/statistics/FrmRicercheStatistiche.h"
#include "windows/statistics/FrmStatistiche1.h"

#include <memory>
#include <optional>

class QMenuBar;

namespace zelvia
{

/// The program's main window: a page of a printed diary that shows one day. The run ends when it closes.
class frmMain : public Form,
                public PageControls,
                public NamedState,
                public NamedRoutines,
                public NamedCommands,
                public RoutePage,
                public TablePage
{
    Q_OBJECT

public:
    frmMain();
    ~frmMain() override;

    /// The start of the program. False when another instance is running: the run is then to end without a word.
    bool FormLoad();
    Control& FocusSink() override { return *pctGiornoAnno; }

    i16 LunghezzaNota; ///< Length of the note being typed.
    CommonDialog dlgCommonDialog;

    // The day on the page and in its record.
    /// Brings everything that depends on DataCorrente up to date.
    void Data() override;
    void lblData_Click() { dates_->lblData_Click(); }
    void tmrFocus_Timer();
    void VisualizzaGiorno() override;
    void AzzeraCampi() override;
    void AssegnaCampi() override;
    /// 1 when the controls differ from the record of GiornoCorrente, else 0.
    void ControllaSave(i16& result);
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
    void GiornodellaGara(i16& place) { slips_.GiornodellaGara(place); }

    void mnuFilePrint_Click();
    void mnuFileExit_Click() { Unload(); }

    // Fields.
    i16 AggiungiLista(TextBox& txt, SelectionList list) { return Field(list).AggiungiLista(txt); }
    /// Has Tab go on after `field` once that is closed and the focus is in the sink.
    void FollowInTabOrder(QWidget& field);
    /// Gives the focus to the control of a field that opens. The hand pointer comes with it, once another field has
    /// closed.
    void EnterField(Control& control);
    /// Goes on to the next value, as Tab does.
    void FocusNextValue() { focusNextPrevChild(true); }
    void mnuCancella_Click() { mnuCancelladallaLista->mnuCancella_Click(); }
    void mnuListaWOrdinata_Click() { route_->mnuListaWOrdinata_Click(); }
    void mnuDescrizionePercorso_Click() { route_->mnuDescrizionePercorso_Click(); }
    void SalvaNomePercorso() { route_->SalvaNomePercorso(); }
    i16 NumeroPercorso() { return route_->NumeroPercorso(); }
    RouteField& Route() { return *route_; }
    NoteLines& Notes() { return *notes_; }
    Splits& TimesPerKm() { return *splits_; }
    SelectionField& Field(SelectionList list) { return *fields_[static_cast<int>(list)]; }

    // What other windows ask for.
    void SetActiveTableName(TextView name) override { lblTabNomeFile->SetCaption(name); }
    void RequestTableReading() override { lblTimerTab->SetCaption("1"); }
    void SetDistance(i32 km, i32 metres) override;
    /// The window of the statistics, created when there is none.
    frmStatistiche1& StatisticsWindow();

    i16 ControlloTempiKm() { return time_.ControlloTempiKm(); }
    void TempoImpiegato() { time_.TempoImpiegato(); }
    void tempo() { time_.tempo(); }
    void MediaKm(i32 hours, i32 minutes, i32 seconds) { time_.MediaKm(hours, minutes, seconds); }
    void ListavOrdinata(const Text& route) { times_.ListavOrdinata(route); }
    void ListavOrdinataDue(const Text& route) { times_.ListavOrdinataDue(route); }
    void lstListaOrdinata_LostFocus() { times_.Close(); }
    void mnuNote_Click() { notes_->mnuNote_Click(); }
    void cmdListaKM_Click() { splits_->cmdListaKM_Click(); }

    // Options and help.
    void mnuAzzeraGiorno_Click();
    void mnuListaPrecedente_Click();
    void mnuListaIniziale_Click();
    void mnuAllenamenti_Click();
    void mnuGare_Click();
    void mnuMedie_Click();
    void mnuHelpContents_Click() { ShowHelp(HelpCommand::Contents); }
    void mnuHelpSearchForHelpOn_Click() { ShowHelp(HelpCommand::Search); }
    void mnuHelpAbout_Click();

    /// The dispatcher of a button bar: runs the menu handler that goes with a button's key; any other key does nothing.
    void DispatchCommand(TextView key);
    /// Gives the fifteen captions of the fields the hand pointer, or restores their default one.
    void CursoreMano();
    void CursoreNormale();

    Timer* tmrFocus;
    ListMenu* mnuCancelladallaLista;
    Text FileGuida; ///< The program's help file.

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void OnUnload() override;

private:
    void BuildMenus(QMenuBar& bar);
    void ConnectFields();
    void ShowHelp(int command, const QString& topic = {});

    // What the file commands ask for.
    void ShowDiaryName() override { lblNomeFile->SetCaption(NomeBaseFile); }
    void ShowTableName() override { slips_.ShowTableName(); }
    void ShowActiveTable() override { slips_.ShowActiveTable(); }
    void ShowList(SelectionList list) override;
    void ShowOtherDiary() override;
    bool CalendarStays() override;
    void SetBusy(bool busy) override;
    Text& ChosenName() override { return dlgCommonDialog.FileName; }
    void ChooseFile(const FileChoice& choice) override;

    // What the routines with a name of their own do.
    void SalvaLista(SelectionList list) override { files_.SalvaLista(list); }
    void CaricaLista(SelectionList list) override { files_.CaricaLista(list); }
    void Immis(SelectionList list) override { Field(list).Open(); }
    void Statis(Categoria category) override;
    /// The command of a statistic: commits the day, counts and shows.
    void ShowStatistic(Categoria category);

    BoundedArray<std::unique_ptr<SelectionField>, 1, 8> fields_;
    RouteField* route_ = nullptr; ///< One of them.
    std::vector<std::unique_ptr<SpinGroup>> numbers_;
    std::optional<Splits> splits_;
    std::optional<NoteLines> notes_;
    std::optional<DateArrows> dates_;
    std::optional<PageKeys> keys_;
    OrderedTimes times_{*this};
    TimeTaken time_{*this, times_};
    Slips slips_{*this, [this] { times_.Raise(); }};
    TableWindows tables_;
    PageTitle title_{*this};
    PageTurn turn_;
    HelpViewer guida_;
    FormSlot<frmInfo> info_;
    FormSlot<frmCalendario> calendario_;
    FormSlot<frmGrafici> grafici_;
    FormSlot<frmRicercheStatistiche> ricerche_;
    FormSlot<frmStatistiche1> statistiche_;
};

} // namespace zelvia
