// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's data: its boxes and the columns in memory.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/TableModel.h"
#include "diary/TextRoutines.h"
#include "windows/plan/FrmAllenamento.h"

#include <utility>

namespace zelvia
{

using namespace Module1;
using namespace TableGrid;

namespace
{

/// The values behind a column of boxes: numbers or texts.
struct ColumnValues {
    Column column;
    ColonnaTabella<i16>* numeri;
    TextView pattern; ///< Of numbers, empty for plain digits.
    ColonnaTabella<Text>* testi = nullptr;
};

/// In the order in which a row is taken, so that a box that fails leaves those before it taken.
const ColumnValues kValues[] = {
    {Km, &TabKm, {}},
    {Metri, &TabMetri, "000"},
    {Ore, &TabOre, {}},
    {Minuti, &TabMinuti, "00"},
    {Secondi, &TabSecondi, "00"},
    {MediaMinuti, &TabMediaMinuti, {}},
    {MediaSecondi, &TabMediaSecondi, "00"},
    {MediaMillesimi, &TabMediaMillesimi, "000"},
    {Andatura, nullptr, {}, &TabAndatura},
    {Fondo, nullptr, {}, &TabFondo},
    {RipetVolte, &TabRipetVolte, {}},
    {RipetDistanza, &TabRipetDistanza, {}},
    {RipetQuante, &TabRipetQuante, {}},
    {RipetTempi, &TabRipetTempi, "00"},
};

const CalendarDate kNoStartDate(2000, 1, 1);

/// What the box of a column shows of a row; nothing for 0.
Text TextOf(const ColumnValues& colonna, int riga)
{
    if (colonna.testi != nullptr) {
        return (*colonna.testi)[riga];
    }
    const i16 value = (*colonna.numeri)[riga];
    if (value == 0) {
        return {};
    }
    const Text testo = colonna.pattern.empty() ? PlainText(value) : Format(value, colonna.pattern);
    return colonna.column == RipetDistanza ? ConPuntoMigliaia(testo) : testo;
}

} // namespace

Text frmAllenamento::Content(Column column, int riga) const
{
    return Box(column, riga)->Content();
}

i16 frmAllenamento::Number(Column column, int riga) const
{
    const Text testo = Content(column, riga);
    return RoundTo<i16>(Val(column == RipetDistanza ? SenzaPuntoMigliaia(testo) : testo));
}

int frmAllenamento::DateNumber(std::size_t index) const
{
    return RoundTo<i16>(Val(dateBoxes[index]->Content())).value();
}

CalendarDate frmAllenamento::DateOfBoxes() const
{
    return DateValue(dateBoxes[0]->Content() + "/" + dateBoxes[1]->Content() + "/" + dateBoxes[2]->Content());
}

void frmAllenamento::AssignColumns(i16 destinazione, i16 sorgente, bool dotIsThousands)
{
    const int row = sorgente.value();
    for (const ColumnValues& colonna : kValues) {
        if (colonna.testi != nullptr) {
            (*colonna.testi)[destinazione] = Content(colonna.column, row);
        } else {
            (*colonna.numeri)[destinazione] =
                dotIsThousands ? Number(colonna.column, row) : RoundTo<i16>(Val(Content(colonna.column, row)));
        }
    }
}

void frmAllenamento::AssegnaTab(i16 riga)
{
    Trap("AssegnaTab - ERRORE : ", [&] {
        AssignColumns(riga, riga, true);
        if (ContaCampiData() == 3) {
            TabDataInizio = DateOfBoxes();
        }
    });
}

void frmAllenamento::CopiaRiga(i16 destinazione, i16 sorgente)
{
    AssignColumns(destinazione, sorgente, false);
}

void frmAllenamento::AzzeraRiga(i16 riga)
{
    for (const ColumnValues& colonna : kValues) {
        if (colonna.testi != nullptr) {
            (*colonna.testi)[riga].clear();
        } else {
            (*colonna.numeri)[riga] = 0;
        }
    }
}

void frmAllenamento::ShowRow(int riga)
{
    for (const ColumnValues& colonna : kValues) {
        const Text testo = TextOf(colonna, riga);
        if (testo.empty()) {
            continue;
        }
        if (colonna.column == RipetVolte) {
            StripOf(LblRipetizioni, riga)->SetCaption(kRepetitionStrip);
        }
        Box(colonna.column, riga)->SetContent(testo);
    }
}

void frmAllenamento::EmptyBlankBoxes(int riga)
{
    for (const ColumnValues& colonna : kValues) {
        if (TextOf(colonna, riga).empty()) {
            Box(colonna.column, riga)->SetContent({});
        }
    }
}

void frmAllenamento::ShowStartDate()
{
    if (TabDataInizio > kNoStartDate) {
        lblGiorniInizio->SetCaption(kDateStrip);
        dateBoxes[0]->SetContent(PlainText(TabDataInizio.Day()));
        dateBoxes[1]->SetContent(PlainText(TabDataInizio.Month()));
        dateBoxes[2]->SetContent(PlainText(TabDataInizio.Year()));
    }
}

void frmAllenamento::TabAssegnaTxt()
{
    Trap("TabAssegnaTxt - ERRORE : ", [this] {
        for (int riga = 1; riga <= kRows; ++riga) {
            ShowRow(riga);
        }
        for (int riga = 1; riga <= kRows; ++riga) {
            EmptyBlankBoxes(riga);
        }
        ShowStartDate();
    });
}

bool frmAllenamento::RowDiffers(int riga) const
{
    bool differs = false;
    for (const ColumnValues& colonna : kValues) {
        // Each box is read, so that one that can't be is told.
        const bool same = colonna.testi != nullptr ? Content(colonna.column, riga) == (*colonna.testi)[riga]
                                                   : Number(colonna.column, riga) == (*colonna.numeri)[riga];
        differs = differs || !same;
    }
    return differs;
}

i16 frmAllenamento::ControllaSaveTab()
{
    i16 esito = 0;
    Trap("ControllaSaveTab - ERRORE : ", [&] {
        for (int riga = 1; riga <= kRows; ++riga) {
            if (RowDiffers(riga)) {
                esito = 1;
            }
        }
        if (ContaCampiData() == 3 && DateOfBoxes() != TabDataInizio) {
            esito = 1;
        }
    });
    return esito;
}

i16 frmAllenamento::ContaCampiData()
{
    ControlloData();
    i16 validi = 0;
    const std::pair<int, int> fields[] = {{DateNumber(0), 31}, {DateNumber(1), 12}, {DateNumber(2), 2099}};
    for (const auto& [value, highest] : fields) {
        if (value >= 1 && value <= highest) {
            validi += 1;
        }
    }
    return validi;
}

void frmAllenamento::ControlloData()
{
    Trap("ControlloData - ERRORE : ", [this] {
        const auto correct = [this](std::size_t index, TextView message, TextView value) {
            MsgBox(message, MsgButtons::OK, MsgIcon::Exclamation);
            dateBoxes[index]->SetContent(value);
        };
        for (const int shortMonth : {4, 6, 9, 11}) {
            if (DateNumber(1) == shortMonth && DateNumber(0) > 30) {
                correct(0, "DATA INIZIO  MAX 30 GIORNI                 ", "30");
            }
        }
        const bool leap = DateNumber(2) % 4 == 0;
        if (leap && DateNumber(1) == 2 && DateNumber(0) > 29) {
            correct(0, "DATA INIZIO  MAX 29 GIORNI                 ", "29");
        }
        if (!leap && DateNumber(1) == 2 && DateNumber(0) > 28) {
            correct(0, "DATA INIZIO  MAX 28 GIORNI                 ", "28");
        }
        if (DateNumber(0) < 1 && DateNumber(1) < 1 && DateNumber(2) < 1) {
            return;
        }
        if (DateNumber(0) < 1) {
            correct(0, "DATA INIZIO  MIN GIORNO 1                 ", "1");
        }
        if (DateNumber(1) < 1) {
            correct(1, "DATA INIZIO  MIN MESE  1               ", "1");
        }
        constexpr int firstYear = 2008;
        if (DateNumber(2) < firstYear) {
            correct(2, "DATA INIZIO MIN ANNO 2008                 ", "2008");
        }
    });
}

} // namespace zelvia
