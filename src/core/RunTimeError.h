// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <exception>
#include <new>
#include <string>
#include <utility>

namespace zelvia
{

/// Numbers of the run-time errors that the system acts on or shows.
namespace Errore
{
inline constexpr int ArgomentoNonValido = 5;
inline constexpr int Overflow = 6;
inline constexpr int MemoriaEsaurita = 7;
inline constexpr int Indice = 9;
inline constexpr int DivisionePerZero = 11;
inline constexpr int TipoNonCorrispondente = 13;
inline constexpr int Interno = 51;
inline constexpr int NomeFileNonValido = 52;
inline constexpr int FileNonTrovato = 53;
inline constexpr int Periferica = 57;
inline constexpr int DiscoPieno = 61;
inline constexpr int FineFile = 62;
inline constexpr int TroppiFile = 67;
inline constexpr int AutorizzazioneNegata = 70;
inline constexpr int AccessoPercorso = 75;
inline constexpr int PercorsoNonTrovato = 76;
inline constexpr int ImmagineNonValida = 481;
inline constexpr int Stampante = 482;
inline constexpr int Annullato = 32755;
} // namespace Errore

/// The one exception of the system: a run-time error with the number and description that its report shows.
class ErroreRunTime : public std::exception
{
public:
    /// Uses the number's standard description.
    explicit ErroreRunTime(int number);
    ErroreRunTime(int number, Text description) : number_(number), description_(std::move(description)) {}

    int Number() const { return number_; }
    const Text& Description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    int number_;
    Text description_;
};

/// The description that goes with an error number.
Text DescriptionOf(int number);

/// The current exception as a run-time error: itself, 7 for exhausted memory, 51 for anything else.
/// To be called from a catch block only.
ErroreRunTime CurrentError();

/// Shows the uniform report: the title, the number, a blank and the description in a plain box.
void ReportError(TextView title, const ErroreRunTime& error);

/// Runs a routine's block under its error trap; the first run-time error skips the rest of the block and goes to
/// `onError`, and the caller goes on as if the routine had ended normally.
template <typename Block, typename OnError>
void TrapWith(Block&& block, OnError&& onError)
{
    try {
        std::forward<Block>(block)();
    } catch (...) {
        std::forward<OnError>(onError)(CurrentError());
    }
}

/// As TrapWith, with the uniform report under `title`.
template <typename Block>
void Trap(TextView title, Block&& block)
{
    TrapWith(std::forward<Block>(block), [&](const ErroreRunTime& error) { ReportError(title, error); });
}

/// Runs a block that yields a value under its error trap: after a run-time error, which goes to `onError`, the value is
/// the fallback. A block that assigns to an outer variable instead could be miscompiled: GCC 12 drops `value =
/// fallback` before `value = Call()`, though a call that throws assigns nothing.
template <typename Value, typename Block, typename OnError>
Value TrapValueWith(Value fallback, Block&& block, OnError&& onError)
{
    try {
        return std::forward<Block>(block)();
    } catch (...) {
        std::forward<OnError>(onError)(CurrentError());
    }
    return fallback;
}

/// As TrapValueWith, with the uniform report under `title`.
template <typename Value, typename Block>
Value TrapValue(TextView title, Value fallback, Block&& block)
{
    return TrapValueWith(std::move(fallback), std::forward<Block>(block),
                         [&](const ErroreRunTime& error) { ReportError(title, error); });
}

/// The title of reports by routines that have no name of their own.
inline constexpr TextView kBareTitle = "ERRORE : ";

} // namespace zelvia
