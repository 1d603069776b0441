// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "diary/Module1.h"
#include "support/FixedClock.h"

#include <cstdio>
#include <string>
#include <type_traits>
#include <vector>

namespace zelvia::test
{

inline void ForgetDays()
{
    for (RecordGiorno& giorno : Module1::Giorni) {
        giorno = RecordGiorno();
    }
    Module1::AzzeraStato();
}

/// A copy of the days 0..366.
inline std::vector<RecordGiorno> AllDays()
{
    return {Module1::Giorni.begin(), Module1::Giorni.end()};
}

inline void PutDays(const std::vector<RecordGiorno>& days)
{
    for (std::size_t i = 0; i < days.size(); ++i) {
        Module1::Giorni[static_cast<int>(i)] = days[i];
    }
}

/// The line of a file for one value, without its line end: written here anew, not by the code under test.
inline std::string LineOf(TextView text)
{
    return "\"" + std::string(text) + "\"";
}

inline std::string LineOf(CalendarDate date)
{
    char line[32];
    std::snprintf(line, sizeof line, "#%04d-%02d-%02d#", int{date.Year().value()}, int{date.Month().value()},
                  int{date.Day().value()});
    return line;
}

template <typename Integer>
std::string LineOf(CheckedInteger<Integer> number)
{
    return std::to_string(number.value());
}

inline std::string Lines(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

/// The 136 lines of a day by name, spelled out field for field.
inline std::vector<std::string> LinesOfDay(const RecordGiorno& giorno)
{
    std::vector<std::string> lines = {
        LineOf(giorno.NumGiorno), LineOf(giorno.Data),       LineOf(giorno.Percorso),     LineOf(giorno.Lunghezza),
        LineOf(giorno.Km),        LineOf(giorno.Metri),      LineOf(giorno.Modo),         LineOf(giorno.Fondo),
        LineOf(giorno.Tipo),      LineOf(giorno.OraInizio),  LineOf(giorno.MinutiInizio), LineOf(giorno.SecondiInizio),
        LineOf(giorno.OraFine),   LineOf(giorno.MinutiFine), LineOf(giorno.SecondiFine),  LineOf(giorno.TempoImpiegato),
        LineOf(giorno.MediaKm)};
    for (int i = 0; i <= 99; ++i) {
        lines.push_back(LineOf(giorno.ListaKm[i]));
    }
    for (const std::string& line :
         {LineOf(giorno.Stagione), LineOf(giorno.TempoAtm), LineOf(giorno.Temperatura), LineOf(giorno.Corridori),
          LineOf(giorno.Peso), LineOf(giorno.Ripetizioni), LineOf(giorno.RipetizioniDistanza),
          LineOf(giorno.RipetizioniQuante), LineOf(giorno.RipetizioniTempi)}) {
        lines.push_back(line);
    }
    for (int i = 1; i <= 10; ++i) {
        lines.push_back(LineOf(giorno.Note[i]));
    }
    return lines;
}

} // namespace zelvia::test
