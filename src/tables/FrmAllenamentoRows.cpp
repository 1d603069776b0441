// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's data: its boxes and the columns in memory.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "tables/FrmAllenamento.h"
#include "tables/TableModel.h"
#include "tables/TextRoutines.h"

#include <utility>

namespace zelvia
{

using namespace Module1;
using namespace TableGrid;

namespace
{

struct NumberColumn {
    Column column;
    ColonnaTabella<i16>* values;
    TextView pattern; ///< Empty for plain digits.
};

const NumberColumn kNumbers[] = {
    {Km, &TabKm, {}},
    {Metri, &TabMetri, "000"},
    {Ore, &TabOre, {}},
    {Minuti, &TabMinuti, "00"},
    {Secondi, &TabSecondi, "00"},
    {MediaMinuti, &TabMediaMinuti, {}},
    {MediaSecondi, &TabMediaSecondi, "00"},
    {MediaMillesimi, &TabMediaMillesimi, "000"},
    {RipetVolte, &TabRipetVolte, {}},
    {RipetDistanza, &TabRipetDistanza, {}},
    {RipetQuante, &TabRipetQuante, {}},
    {RipetTempi, &TabRipetTempi, "00"},
};

struct TextColumn {
    Column column;
    ColonnaTabella<Text>* values;
};

const TextColumn kTexts[] = {{Andatura, &TabAndatura}, {Fondo, &TabFondo}};

const CalendarDate kNoStartDate(2000, 1, 1);

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
    for (const NumberColumn& colonna : kNumbers) {
        (*colonna.values)[destinazione] =
            dotIsThousands ? Number(colonna.column, row) : RoundTo<i16>(Val(Content(colonna.column, row)));
    }
    for (const TextColumn& colonna : kTexts) {
        (*colonna.values)[destinazione] = Content(colonna.column, row);
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
    for (const NumberColumn& colonna : kNumbers) {
        (*colonna.values)[riga] = 0;
    }
    for (const TextColumn& colonna : kTexts) {
        (*colonna.values)[riga].clear();
    }
}

void frmAllenamento::ShowRow(int riga)
{
    for (const NumberColumn& colonna : kNumbers) {
        const i16 value = (*colonna.values)[riga];
        if (value == 0) {
            continue;
        }
        Text testo = colonna.pattern.empty() ? PlainText(value) : Format(value, colonna.pattern);
        if (colonna.column == RipetDistanza) {
            testo = ConPuntoMigliaia(testo);
        } else if (colonna.column == RipetVolte) {
            StripOf(LblRipetizioni, riga)->SetCaption(kRepetitionStrip);
        }
        Box(colonna.column, riga)->SetContent(testo);
    }
    for (const TextColumn& colonna : kTexts) {
        if (!(*colonna.values)[riga].empty()) {
            Box(colonna.column, riga)->SetContent((*colonna.values)[riga]);
        }
    }
}

void frmAllenamento::EmptyBlankBoxes(int riga)
{
    for (const NumberColumn& colonna : kNumbers) {
        if ((*colonna.values)[riga] == 0) {
            Box(colonna.column, riga)->SetContent({});
        }
    }
    for (const TextColumn& colonna : kTexts) {
        if ((*colonna.values)[riga].empty()) {
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
    for (const NumberColumn& colonna : kNumbers) {
        if (Number(colonna.column, riga) != (*colonna.values)[riga]) {
            return true;
        }
    }
    for (const TextColumn& colonna : kTexts) {
        if (Content(colonna.column, riga) != (*colonna.values)[riga]) {
            return true;
        }
    }
    return false;
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
