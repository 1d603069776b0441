// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The race calendar's window: boxes and columns, pages, saving, closing.
#include "windows/races/FrmCalendario.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/CalendarDates.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "toolkit/Printer.h"
#include "toolkit/QtText.h"

#include <utility>

namespace zelvia
{

using namespace Module1;
using CalendarGrid::kRows;
using CalendarGrid::RaceColumn;

void frmCalendario::Load()
{
    CalendarioModificato = 0;
    PrimaGaraPagina = 0;
    AzzeraCalendario();
    LeggiCalendario();
    ShowPage();
    setWindowTitle(QStringLiteral("Calendario Gare       di  "));
}

void frmCalendario::ShowPage()
{
    AzzeraPaginaGare();
    VisualizzaCalendarioGare();
}

void frmCalendario::ShowOtherDiary()
{
    CalendarioModificato = 0;
    PrimaGaraPagina = 0;
    // This is no turning of the page: the boxes hold the races of the diary before.
    const auto turned = std::exchange(upPaginaGare->Change, {});
    upPaginaGare->SetValue(0);
    upPaginaGare->Change = turned;
    ShowPage();
}

void frmCalendario::AzzeraPaginaGare()
{
    grid_.Visit([this](int column, int riga) { grid_.Box(column, riga)->SetContent({}); });
}

void frmCalendario::VisualizzaCalendarioGare()
{
    Trap("VisualizzaCalendarioGare - ERRORE : ", [this] {
        for (int riga = 1; riga <= kRows; ++riga) {
            const int gara = RaceOf(riga);
            lblNumeroGara[riga]->SetCaption(PlainText(NumeroGara[gara]));
            grid_.ShowSigns(riga, GiornoGara[gara] > 0);
        }
        grid_.Visit([this](int column, int riga) {
            grid_.Box(column, riga)->SetContent(RaceText(static_cast<RaceColumn>(column), RaceOf(riga)));
        });
        grid_.Speak("Gara", PrimaGaraPagina.value());
        lblPaginaGare->setText(
            QStringLiteral("Pagina %1 di %2").arg(PrimaGaraPagina.value() / kRows + 1).arg(CalendarGrid::kPages));
    });
}

void frmCalendario::ContrData()
{
    Trap("ContrData - ERRORE : ", [this] {
        for (int riga = 1; riga <= kRows; ++riga) {
            const DataGara letta = {Number(RaceColumn::Giorno, riga), Number(RaceColumn::Mese, riga),
                                    Number(RaceColumn::Anno, riga)};
            for (const CorrezioneData& correzione : CorreggiData(letta, RaceOf(riga), DataCorrente.Year())) {
                MsgBox(correzione.messaggio, MsgButtons::OK, MsgIcon::Exclamation);
                if (correzione.campo != CorrezioneData::Campo::Nessuno) {
                    const bool day = correzione.campo == CorrezioneData::Campo::Giorno;
                    Box(day ? RaceColumn::Giorno : RaceColumn::Anno, riga)->SetContent(correzione.valore);
                }
            }
        }
    });
}

void frmCalendario::AssegnaPaginaGare()
{
    ContrData();
    grid_.Visit([this](int column, int riga) { grid_.Store(column, riga, RaceOf(riga)); });
}

void frmCalendario::ControllaSaveGar(i16& esito)
{
    Trap("ControllaSaveGar - ERRORE : ", [&] {
        esito = 0;
        grid_.Visit([&](int column, int riga) {
            if (RaceDiffers(static_cast<RaceColumn>(column), RaceOf(riga), grid_.Content(column, riga))) {
                esito = 1;
            }
        });
    });
}

void frmCalendario::ControllaDateGare(i16& esito)
{
    esito = 0;
    for (const auto& [prima, seconda] : DateDoppie()) {
        MsgBox(MessaggioDateDoppie(prima, seconda), MsgButtons::OK, MsgIcon::Critical);
        esito = 1;
    }
}

void frmCalendario::AllineaLbl()
{
    for (std::size_t i = 0; i < CalendarGrid::kPrintLabels.size(); ++i) {
        for (int riga = 1; riga <= kRows; ++riga) {
            printLabels_[i][riga]->SetCaption(Box(CalendarGrid::kPrintLabels[i].box, riga)->Content());
        }
    }
}

void frmCalendario::upPaginaGare_Change()
{
    // The flag takes the state of this page alone: what changed on an earlier one is in the columns, and forgotten.
    ControllaSaveGar(CalendarioModificato);
    AssegnaPaginaGare();
    PrimaGaraPagina = i16(upPaginaGare->Value());
    ShowPage();
}

void frmCalendario::cmdSalva_Click()
{
    if (MsgBox(" SALVO IL CALENDARIO GARE ?              ", MsgButtons::OKCancel, MsgIcon::Information) !=
        MsgAnswer::OK) {
        return;
    }
    AssegnaPaginaGare();
    i16 doppie;
    ControllaDateGare(doppie);
    if (doppie != 1) {
        ScriviCalendario();
        CalendarioModificato = 0;
    }
}

/// What the page on the screen shows, saved or not.
CalendarSheetTexts frmCalendario::SheetTexts() const
{
    CalendarSheetTexts testi{.data = DataCorrente, .titolo = FromQString(windowTitle()), .righe = {}};
    grid_.Visit([&](int column, int riga) {
        testi.righe[static_cast<std::size_t>(riga - 1)][static_cast<std::size_t>(column)] = grid_.Content(column, riga);
    });
    return testi;
}

void frmCalendario::cmdStampa_Click()
{
    PrintByButton(*cmdStampa, [this] {
        AllineaLbl();
        return CalendarSheet(SheetTexts());
    });
}

bool frmCalendario::QueryUnload()
{
    bool annullata = false;
    Trap("Query - ERRORE : ", [&] {
        if (CalendarioModificato == 0) {
            ControllaSaveGar(CalendarioModificato);
        }
        AssegnaPaginaGare();
        if (CalendarioModificato != 1) {
            return;
        }
        const MsgAnswer risposta = MsgBox(" IL CALENDARIO GARE NON E' STATO SALVATO, SALVARE ?           ",
                                          MsgButtons::YesNoCancel, MsgIcon::Information);
        annullata = risposta == MsgAnswer::Cancel;
        if (risposta != MsgAnswer::Yes) {
            return;
        }
        i16 doppie;
        ControllaDateGare(doppie);
        annullata = doppie == 1;
        if (!annullata) {
            ScriviCalendario();
            CalendarioModificato = 0;
        }
    });
    return annullata;
}

} // namespace zelvia
