// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarDates.h"

#include "core/Conversions.h"
#include "diary/CalendarModel.h"

namespace zelvia::Module1
{
namespace
{

constexpr i16 kRaces = 100;
constexpr int kFirstYear = 2007;

using Campo = CorrezioneData::Campo;

Text Told(TextView what, i16 numero, TextView detail)
{
    return Text(what) + PlainText(numero) + " : " + Text(detail);
}

void CorrectDay(DataGara& data, i16 numero, std::vector<CorrezioneData>& correzioni)
{
    constexpr TextView wrong = " ERRORE AL N° "_t;
    const auto cut = [&](int days) {
        const Text last = PlainText(i16(days));
        correzioni.push_back({Told(wrong, numero, " MAX " + last + " GIORNI "), Campo::Giorno, last});
        data.giorno = days;
    };
    for (const int shortMonth : {4, 6, 9, 11}) {
        if (data.mese == shortMonth && data.giorno > 30) {
            cut(30);
        }
    }
    const bool leap = RoundTo<i32>(data.anno).value() % 4 == 0;
    if (leap && data.mese == 2 && data.giorno > 29) {
        cut(29);
    }
    if (!leap && data.mese == 2 && data.giorno > 28) {
        cut(28);
    }
}

} // namespace

std::vector<CorrezioneData> CorreggiData(const DataGara& data, i16 numero, i16 annoCorrente)
{
    std::vector<CorrezioneData> correzioni;
    DataGara corretta = data;
    CorrectDay(corretta, numero, correzioni);
    if (corretta.giorno < 1 && corretta.mese < 1 && corretta.anno < 1) {
        return correzioni;
    }
    constexpr TextView missing = " MANCA AL N° "_t;
    if (corretta.giorno < 1) {
        correzioni.push_back({Told(missing, numero, "  GIORNO   ")});
    }
    if (corretta.mese < 1) {
        correzioni.push_back({Told(missing, numero, "  MESE   ")});
    }
    if (corretta.anno < kFirstYear) {
        const Text anno = PlainText(annoCorrente);
        correzioni.push_back({Told(" MODIFICA AL N° "_t, numero, "  ANNO " + anno + "  "), Campo::Anno, anno});
    }
    return correzioni;
}

std::vector<std::pair<i16, i16>> DateDoppie()
{
    std::vector<std::pair<i16, i16>> coppie;
    for (i16 i = 1; i <= kRaces; i += 1) {
        if (GiornoGara[i] == 0) {
            continue;
        }
        for (i16 j = i + 1; j <= kRaces; j += 1) {
            if (GiornoGara[i] == GiornoGara[j] && MeseGara[i] == MeseGara[j] && AnnoGara[i] == AnnoGara[j]) {
                coppie.emplace_back(i, j);
            }
        }
    }
    return coppie;
}

Text MessaggioDateDoppie(i16 prima, i16 seconda)
{
    return PlainText(GiornoGara[prima]) + "-" + PlainText(MeseGara[prima]) + "-" + PlainText(AnnoGara[prima]) +
           Text("   DATA PRESENTE AL  N° "_t) + PlainText(prima) + Text("  E AL N° "_t) + PlainText(seconda) + "  ";
}

i16 GaraDelGiorno(i16 giorno, i16 mese, i16 anno)
{
    for (i16 i = 1; i <= kRaces; i += 1) {
        if (GiornoGara[i] == giorno && MeseGara[i] == mese && AnnoGara[i] == anno) {
            return i;
        }
    }
    return 0;
}

} // namespace zelvia::Module1
