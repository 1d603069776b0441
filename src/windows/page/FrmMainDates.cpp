// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The date of the page and its arrows.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "toolkit/FocusController.h"
#include "toolkit/QtText.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

void frmMain::Data()
{
    Trap("Data - ERRORE : ", [this] {
        lblData->SetCaption(Format(DataCorrente, "   dddd  d  mmmm  yyyy"));
        GiornoMese = DataCorrente.Day();
        MeseCorrente = DataCorrente.Month();
        AnnoCorrente = DataCorrente.Year();
        GiornoCorrente = DataCorrente.DayOfYear();
        lblNumGiornoAnno->SetCaption(PlainText(GiornoCorrente));
        AzzeraDatiTabella();
        NascondiRiquadriGara();
        if (!NomeTabellaAttiva.empty()) {
            AssegnaTabella();
        }
        AssegnaGara();
    });
}

bool frmMain::LeaveFieldForDate()
{
    FocusController& focus = FocusController::Instance();
    const Control* current = focus.Current();
    const bool arrows = current == upGiorno || current == upMese;
    if (current != nullptr && !arrows && current->Widget().window() == this) {
        focus.LeaveField();
    }
    return !desPercorso_.Loaded();
}

void frmMain::MoveDate(const UpDown& spin, TextView interval, int step)
{
    Trap(FromQString(spin.objectName()) + " - ERRORE : ", [&] {
        lstListaOrdinata_LostFocus();
        AssegnaCampi();
        AzzeraCampi();

        // The edge of the year is tested on the date before the step; a step over the edge of the whole range is undone
        // there a second time.
        const bool byDays = interval == "d";
        const bool edgeOfYear = step < 0 ? MeseCorrente == 1 && (!byDays || GiornoMese == 1)
                                         : MeseCorrente == 12 && (!byDays || GiornoMese == 31);

        DataCorrente = DateAdd(interval, step, DataCorrente);
        if (step < 0 ? DataCorrente < DataMinima : DataCorrente > DataMassima) {
            DataCorrente = DateAdd(interval, -step, DataCorrente);
        }
        if (edgeOfYear) {
            DataCorrente = DateAdd(interval, -step, DataCorrente);
        }
        Data();
        VisualizzaGiorno();
        DatiAnno();
    });
}

void frmMain::lblData_Click()
{
    Trap("lblData - ERRORE : ", [this] {
        FollowInTabOrder(*lblData);
        upGiorno->SetVisible(true);
        upMese->SetVisible(true);
        upGiorno->SetFocus();
    });
}

void frmMain::tmrFocus_Timer()
{
    Trap("tmrFocus - ERRORE : ", [this] {
        if (Val(lblTimerTab->Caption()) != 1) {
            return;
        }
        lblTimerTab->SetCaption("0");
        AzzeraDatiTabella();
        if (!NomeTabellaAttiva.empty()) {
            ShowActiveTable();
        }
        // The plan comes back on the next day without a race.
        if (lblGara->Visible()) {
            TabAllenamentiNonVisibili();
        }
    });
}

} // namespace zelvia
