// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The race calendar's window: boxes and columns, pages, saving, closing.
#include "windows/races/FrmCalendario.h"

#include "core/Conversions.h"
#include "core/Messages.h"
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
    // Not as a turn of the page: the boxes still hold the races of the previous diary.
    const auto turned = std::exchange(upPaginaGare->Change, {});
    upPaginaGare->SetValue(0);
    upPaginaGare->Change = turned;
    ShowPage();
}

void frmCalendario::AzzeraPaginaGare()
{
    grid_.Visit([this](int column, int row) { grid_.Box(column, row)->SetContent({}); });
}

void frmCalendario::VisualizzaCalendarioGare()
{
    Trap("VisualizzaCalendarioGare - ERRORE : ", [this] {
        for (int row = 1; row <= kRows; ++row) {
            const int race = RaceOf(row);
            lblNumeroGara[row]->SetCaption(PlainText(NumeroGara[race]));
            grid_.ShowSigns(row, GiornoGara[race] > 0);
        }
        grid_.Visit([this](int column, int row) {
            grid_.Box(column, row)->SetContent(CalendarGrid::RaceText(column, RaceOf(row)));
        });
        grid_.Speak(PrimaGaraPagina.value());
        lblPaginaGare->setText(
            QStringLiteral("Pagina %1 di %2").arg(PrimaGaraPagina.value() / kRows + 1).arg(CalendarGrid::kPages));
        upPaginaGare->setAccessibleDescription(lblPaginaGare->text());
    });
}

void frmCalendario::ContrData()
{
    Trap("ContrData - ERRORE : ", [this] {
        for (int row = 1; row <= kRows; ++row) {
            const RaceDate read = {Number(RaceColumn::Giorno, row), Number(RaceColumn::Mese, row),
                                   Number(RaceColumn::Anno, row)};
            for (const DateCorrection& correction : CorrectDate(read, RaceOf(row), DataCorrente.Year())) {
                ShowBox(correction.message);
                if (correction.field != DateCorrection::Field::None) {
                    const bool day = correction.field == DateCorrection::Field::Day;
                    Box(day ? RaceColumn::Giorno : RaceColumn::Anno, row)->SetContent(correction.value);
                }
            }
        }
    });
}

void frmCalendario::AssegnaPaginaGare()
{
    ContrData();
    grid_.Visit([this](int column, int row) { grid_.Store(column, row, RaceOf(row)); });
}

void frmCalendario::ControllaSaveGar(i16& result)
{
    Trap("ControllaSaveGar - ERRORE : ", [&] {
        result = 0;
        grid_.Visit([&](int column, int row) {
            if (CalendarGrid::RaceDiffers(column, RaceOf(row), grid_.Content(column, row))) {
                result = 1;
            }
        });
    });
}

void frmCalendario::ControllaDateGare(i16& result)
{
    result = 0;
    for (const auto& [first, second] : SameDates()) {
        ShowBox(SameDatesMessage(first, second));
        result = 1;
    }
}

void frmCalendario::AllineaLbl()
{
    for (std::size_t i = 0; i < CalendarGrid::kPrintLabels.size(); ++i) {
        for (int row = 1; row <= kRows; ++row) {
            printLabels_[i][row]->SetCaption(Box(CalendarGrid::kPrintLabels[i].box, row)->Content());
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
    if (MsgBox(Messages::kSaveRaces) != MsgAnswer::OK) {
        return;
    }
    AssegnaPaginaGare();
    i16 twice;
    ControllaDateGare(twice);
    if (twice != 1) {
        ScriviCalendario();
        CalendarioModificato = 0;
    }
}

/// What the page on the screen shows, saved or not.
CalendarSheetTexts frmCalendario::SheetTexts() const
{
    CalendarSheetTexts texts{.date = DataCorrente, .title = FromQString(windowTitle()), .rows = {}};
    grid_.Visit([&](int column, int row) {
        texts.rows[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column)] = grid_.Content(column, row);
    });
    return texts;
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
    bool cancelled = false;
    Trap("Query - ERRORE : ", [&] {
        if (CalendarioModificato == 0) {
            ControllaSaveGar(CalendarioModificato);
        }
        AssegnaPaginaGare();
        if (CalendarioModificato != 1) {
            return;
        }
        const MsgAnswer answer = MsgBox(Messages::kRacesNotSaved);
        cancelled = answer == MsgAnswer::Cancel;
        if (answer != MsgAnswer::Yes) {
            return;
        }
        i16 twice;
        ControllaDateGare(twice);
        cancelled = twice == 1;
        if (!cancelled) {
            ScriviCalendario();
            CalendarioModificato = 0;
        }
    });
    return cancelled;
}

} // namespace zelvia
