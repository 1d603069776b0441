// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RunTimeError.h"

#include "core/MessageBox.h"

namespace zelvia
{

Text DescriptionOf(int number)
{
    switch (number) {
    case Errore::ArgomentoNonValido: return "Argomento non valido";
    case Errore::Overflow: return "Numero oltre i limiti";
    case Errore::MemoriaEsaurita: return "Memoria esaurita";
    case Errore::Indice: return "Indice oltre i limiti";
    case Errore::DivisionePerZero: return "Divisione per zero";
    case Errore::TipoNonCorrispondente: return "Tipo non corrispondente";
    case Errore::NomeFileNonValido: return "Nome di file non valido";
    case Errore::FileNonTrovato: return "File non trovato";
    case Errore::Periferica: return "Errore della periferica";
    case Errore::DiscoPieno: return "Disco pieno";
    case Errore::FineFile: return "Lettura oltre la fine del file";
    case Errore::TroppiFile: return "Troppi file aperti";
    case Errore::AutorizzazioneNegata: return "Autorizzazione negata";
    case Errore::AccessoPercorso: return "Errore di accesso al file o alla cartella";
    case Errore::PercorsoNonTrovato: return "Cartella non trovata";
    case Errore::ImmagineNonValida: return "Immagine non valida";
    case Errore::Stampante: return "Errore della stampante";
    case Errore::Annullato: return "Operazione annullata";
    default: return "Errore interno";
    }
}

ErroreRunTime::ErroreRunTime(int number) : ErroreRunTime(number, DescriptionOf(number)) {}

ErroreRunTime CurrentError()
{
    try {
        throw;
    } catch (const ErroreRunTime& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return ErroreRunTime(Errore::MemoriaEsaurita);
    } catch (...) {
        return ErroreRunTime(Errore::Interno);
    }
}

void ReportError(TextView title, const ErroreRunTime& error)
{
    ShowBox({Text(title) + std::to_string(error.Number()) + " " + error.Description()});
}

} // namespace zelvia
