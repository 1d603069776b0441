// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/Slips.h"

#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/CalendarDates.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "diary/TableWalk.h"
#include "diary/Workspace.h"
#include "windows/page/PageMarks.h"

namespace zelvia
{

using namespace Module1;

void Slips::ShowTableName()
{
    page_.lblTabNomeFile->SetCaption(NomeSenzaCartella(NomeTabellaAttiva));
}

void Slips::AzzeraDatiTabella()
{
    ShowTablePanel(true);
    ShowTable({"0,0", "0:0:0", "0:0", "", "", "0 x 0  @  0:0"});
}

void Slips::NessunaTabella()
{
    page_.lblTabNomeFile->SetCaption("Nessuna tabella attiva");
    ShowTable({"0", "0:00", "0:00", "", "", "0 x 000     @ 0.00 "});
}

/// The values of the slip below its heading.
void Slips::ShowTable(const std::array<Text, 6>& values)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        page_.tableSlip[i + 1].label->SetCaption(values[i]);
    }
}

void Slips::ShowActiveTable()
{
    ShowTableName();
    LeggiTabella(NomeTabellaAttiva);
    AssegnaTabella();
}

void Slips::AssegnaTabella()
{
    Trap("AssegnaTabella - ERRORE : ", [this] {
        const WalkResult walk = WalkTable();
        if (walk.state == WalkResult::State::Finished) {
            EndTable();
        } else if (walk.state == WalkResult::State::UnderWay) {
            ShowTableRow(walk.row);
        }
    });
}

/// Switches the used-up table off.
void Slips::EndTable()
{
    MsgBox(Messages::kPlanEnds, NomeSenzaCartella(NomeTabellaAttiva));
    NomeTabellaAttiva.clear();
    page_.lblTabNomeFile->SetCaption("");
    AzzeraDatiTabella();
    SalvaNomeTabella();
}

void Slips::ShowTableRow(i16 line)
{
    const PlanRow row = PlanRowAt(line);
    const auto digits = [](i16 number) { return PlainText(number); };
    ShowTable({digits(row.km) + "," + digits(row.metres),
               digits(row.hours) + ":" + digits(row.minutes) + ":" + digits(row.seconds),
               digits(row.averageMinutes) + ":" + digits(row.averageSeconds), row.paceClass, row.terrain,
               digits(row.repetitions) + " x " + digits(row.repetitionMetres) + "  @  " +
                   digits(row.repetitionMinutes) + ":" + digits(row.repetitionSeconds)});
}

void Slips::Show(const std::vector<PageControls::SlipLine>& slip, bool visible)
{
    for (const PageControls::SlipLine& line : slip) {
        line.picture->SetVisible(visible);
        line.label->SetVisible(visible);
    }
    ShowRaceDay(page_);
    raised_();
}

void Slips::AssegnaGara()
{
    Trap("AssegnaGara - ERRORE : ", [this] {
        ShowRacePanel(false);
        i16 place = RaceOnDate(session.GiornoMese, session.MeseCorrente, session.AnnoCorrente);
        if (place > 0) {
            GiornodellaGara(place);
        }
    });
}

void Slips::GiornodellaGara(i16& place)
{
    Trap("GiornodellaGara - ERRORE : ", [&] {
        ShowTablePanel(false);
        ShowRacePanel(true);
        const RaceTexts texts = RaceTextsOf(place);
        page_.lblGara->SetCaption(texts.name);
        page_.lblLocalita->SetCaption(texts.place);
        page_.lblPartecipanti->SetCaption(texts.runners);
        page_.lblTempoImpiegato->SetCaption(texts.time);
        page_.lblRisultato->SetCaption(texts.placing);
        page_.lblCategoria->SetCaption(texts.category);
        page_.lblRisultatoCat->SetCaption(texts.categoryPlacing);
        page_.lblLunghezzaGara->SetCaption(texts.length);
    });
}

} // namespace zelvia
