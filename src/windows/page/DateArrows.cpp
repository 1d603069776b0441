// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/DateArrows.h"

#include "core/RunTimeError.h"
#include "toolkit/FocusController.h"
#include "toolkit/QtText.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

DateArrows::DateArrows(frmMain& page) : page_(page)
{
    page_.lblData->OnClick([this] { lblData_Click(); });
    page_.lblIndiceMesi->OnClick([this] { lblData_Click(); }, KeyReach::MouseOnly);
    SpinKeys::Actions actions;
    actions.leave = [this] {
        page_.lstListaOrdinata_LostFocus();
        page_.FocusSink().SetFocus();
    };
    actions.next = [this] { page_.FocusNextValue(); };
    keys_.emplace(*page_.upGiorno, std::vector<UpDown*>{page_.upGiorno, page_.upMese}, *page_.upGiorno,
                  std::move(actions));
    for (UpDown* spin : {page_.upGiorno, page_.upMese}) {
        const TextView interval = spin == page_.upGiorno ? "d" : "m";
        spin->BeforeStep = [this] { return LeaveField(); };
        spin->DownClick = [this, spin, interval] { Move(*spin, interval, -1); };
        spin->UpClick = [this, spin, interval] { Move(*spin, interval, 1); };
    }
}

bool DateArrows::LeaveField()
{
    FocusController& focus = FocusController::Instance();
    const Control* current = focus.Current();
    const bool open = dynamic_cast<const Label*>(current) == nullptr && current != page_.upGiorno;
    if (current != nullptr && open && current->Widget().window() == &page_) {
        focus.LeaveField();
    }
    return !page_.Route().Described();
}

void DateArrows::Move(const UpDown& spin, TextView interval, int step)
{
    Trap(FromQString(spin.objectName()) + " - ERRORE : ", [&] {
        page_.lstListaOrdinata_LostFocus();
        page_.AssegnaCampi();
        page_.AzzeraCampi();

        // The edge of the year is tested on the date before the step; a step over the edge of the whole range is undone
        // there a second time.
        const bool byDays = interval == "d";
        const bool edgeOfYear = step < 0 ? page_.MeseCorrente == 1 && (!byDays || page_.GiornoMese == 1)
                                         : page_.MeseCorrente == 12 && (!byDays || page_.GiornoMese == 31);

        DataCorrente = DateAdd(interval, step, DataCorrente);
        if (step < 0 ? DataCorrente < page_.DataMinima : DataCorrente > page_.DataMassima) {
            DataCorrente = DateAdd(interval, -step, DataCorrente);
        }
        if (edgeOfYear) {
            DataCorrente = DateAdd(interval, -step, DataCorrente);
        }
        page_.Data();
        page_.VisualizzaGiorno();
        page_.DatiAnno();
    });
}

void DateArrows::SpeakDate() const
{
    page_.upGiorno->SetSpokenValue(page_.GiornoMese);
    page_.upMese->SetSpokenValue(page_.MeseCorrente);
    for (QWidget* widget : std::initializer_list<QWidget*>{page_.upGiorno, page_.upMese, page_.pctGiornoAnno}) {
        widget->setAccessibleDescription(page_.lblData->text().trimmed());
    }
}

void DateArrows::lblData_Click()
{
    Trap("lblData - ERRORE : ", [this] {
        page_.FollowInTabOrder(*page_.lblData);
        page_.upGiorno->SetVisible(true);
        page_.upMese->SetVisible(true);
        page_.upGiorno->SetFocus();
    });
}

} // namespace zelvia
