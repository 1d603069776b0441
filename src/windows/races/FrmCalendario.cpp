// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The race calendar's window: boxes and columns, pages, saving, closing.
#include "windows/races/FrmCalendario.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/CalendarCells.h"
#include "diary/CalendarDates.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "toolkit/Printer.h"
#include "toolkit/QtText.h"

#include <utility>

namespace zelvia
{

using namespace Module1;
using CalendarGrid::Casella;
using CalendarGrid::kColumns;
using CalendarGrid::kRows;

namespace
{

/// Hands every box of the grid's rows to `visit`, row by row in the order of Enter.
template <typename Visitor>
void VisitBoxes(Visitor&& visit)
{
    for (int riga = 1; riga <= kRows; ++riga) {
        for (std::size_t column = 0; column < kColumns; ++column) {
            visit(static_cast<Casella>(column), riga);
        }
    }
}

} // namespace

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
    VisitBoxes([this](Casella casella, int riga) { Box(casella, riga)->SetContent({}); });
}

void frmCalendario::VisualizzaCalendarioGare()
{
    Trap("VisualizzaCalendarioGare - ERRORE : ", [this] {
        for (int riga = 1; riga <= kRows; ++riga) {
            const int gara = RaceOf(riga);
            lblNumeroGara[riga]->SetCaption(PlainText(NumeroGara[gara]));
            lblGiornoGara[riga]->SetCaption(GiornoGara[gara] > 0 ? CalendarGrid::kDateStrip
                                                                 : CalendarGrid::kBlankDateStrip);
        }
        VisitBoxes([this](Casella casella, int riga) {
            TextBox& box = *Box(casella, riga);
            box.SetContent(TestoCasella(casella, RaceOf(riga)));
            box.setAccessibleName(QStringLiteral("Gara %1, ").arg(RaceOf(riga)) +
                                  ToQString(CalendarGrid::DataOf(casella).spoken));
        });
        lblPaginaGare->setText(
            QStringLiteral("Pagina %1 di %2").arg(PrimaGaraPagina.value() / kRows + 1).arg(CalendarGrid::kPages));
    });
}

double frmCalendario::Number(Casella casella, int riga) const
{
    return NumeroCasella(casella, Box(casella, riga)->Content());
}

void frmCalendario::ContrData()
{
    Trap("ContrData - ERRORE : ", [this] {
        for (int riga = 1; riga <= kRows; ++riga) {
            const DataGara letta = {Number(Casella::Giorno, riga), Number(Casella::Mese, riga),
                                    Number(Casella::Anno, riga)};
            for (const CorrezioneData& correzione : CorreggiData(letta, RaceOf(riga), DataCorrente.Year())) {
                MsgBox(correzione.messaggio, MsgButtons::OK, MsgIcon::Exclamation);
                if (correzione.campo != CorrezioneData::Campo::Nessuno) {
                    const bool day = correzione.campo == CorrezioneData::Campo::Giorno;
                    Box(day ? Casella::Giorno : Casella::Anno, riga)->SetContent(correzione.valore);
                }
            }
        }
    });
}

void frmCalendario::AssegnaPaginaGare()
{
    ContrData();
    VisitBoxes(
        [this](Casella casella, int riga) { AssegnaCasella(casella, RaceOf(riga), Box(casella, riga)->Content()); });
}

void frmCalendario::ControllaSaveGar(i16& esito)
{
    Trap("ControllaSaveGar - ERRORE : ", [&] {
        esito = 0;
        VisitBoxes([&](Casella casella, int riga) {
            if (CasellaDiversa(casella, RaceOf(riga), Box(casella, riga)->Content())) {
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
    VisitBoxes([&](Casella casella, int riga) {
        testi.righe[static_cast<std::size_t>(riga - 1)][CalendarGrid::IndexOf(casella)] = Box(casella, riga)->Content();
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
