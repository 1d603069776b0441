// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The day shown: its date, its record and the controls, its sheet.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/YearSoFar.h"
#include "toolkit/Printer.h"
#include "windows/page/DayOnPage.h"
#include "windows/page/FrmMain.h"

#include <QAction>

namespace zelvia
{

using namespace Module1;

void frmMain::VisualizzaGiorno()
{
    Trap("VisualizzaGiorno - ERRORE : ", [this] { DayOnPage(*this).Show(Giorni[GiornoCorrente]); });
}

void frmMain::AzzeraCampi()
{
    Trap("AzzeraCampi - ERRORE : ", [this] { DayOnPage(*this).Blank(Giorni[GiornoCorrente]); });
}

void frmMain::AssegnaCampi()
{
    Trap("AssegnaCampi - ERRORE : ", [this] {
        if (FileModificato == 0) {
            ControllaSave(FileModificato);
        }
        RecordGiorno& day = Giorni[GiornoCorrente];
        day.NumGiorno = GiornoCorrente;
        day.Data = DataCorrente;
        DayOnPage(*this).Commit(day);
    });
}

void frmMain::ControllaSave(i16& result)
{
    Trap("ControllaSave - ERRORE : ", [&] {
        const DayOnPage shown(*this);
        const RecordGiorno& day = Giorni[GiornoCorrente];
        result = shown.Differs(day) ? 1 : 0;
        if (shown.SplitsDiffer(day)) {
            result = 1;
        }
    });
}

void frmMain::DatiAnno()
{
    Trap("DatiAnno - ERRORE : ", [this] {
        CountYearSoFar();
        lblNumKMPercorsi->SetCaption(Format(KmAnno, "###,###"));
        lblNumGiorniCorseAnno->SetCaption(PlainText(GiorniCorseAnno));
        lblNumGare->SetCaption(PlainText(GareAnno));
    });
}

void frmMain::Data()
{
    Trap("Data - ERRORE : ", [this] {
        if (DataCorrente.DayOfYear() != GiornoCorrente) {
            turn_.Begin(*this);
        }
        lblData->SetCaption(Format(DataCorrente, "   dddd  d  mmmm  yyyy"));
        lblIndiceMesi->SetCaption(Format(DataCorrente, "mmmm"));
        GiornoMese = DataCorrente.Day();
        MeseCorrente = DataCorrente.Month();
        AnnoCorrente = DataCorrente.Year();
        GiornoCorrente = DataCorrente.DayOfYear();
        lblNumGiornoAnno->SetCaption(PlainText(GiornoCorrente));
        dates_->SpeakDate();
        AzzeraDatiTabella();
        NascondiRiquadriGara();
        if (!NomeTabellaAttiva.empty()) {
            AssegnaTabella();
        }
        AssegnaGara();
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

void frmMain::mnuFilePrint_Click()
{
    auto* entry = findChild<QAction*>(QStringLiteral("mnuFilePrint"));
    entry->setEnabled(false);
    Trap(kPrintErrors, [this] { PrintSheet(DaySheet(DayOnPage(*this).SheetTexts())); });
    entry->setEnabled(true);
}

} // namespace zelvia
