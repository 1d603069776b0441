// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"

/// Every message box of the program, but for the reports of run-time errors.
namespace zelvia::Messages
{

// clang-format off
/// A row for each: name, text, icon, and the buttons where there is more than OK. The blanks belong to the texts.
#define ZELVIA_MESSAGES(ROW) \
    /* The diary's file, and names of files. */ \
    ROW(kSaveDiary, "IL FILE NON E' STATO SALVATO, SALVARE IL FILE ?             ", Information, YesNoCancel) \
    ROW(kSavesElsewhere, " IL FILE NON PUO' ESSERE SALVATO IN UN ALTRA CARTELLA   ", Critical) \
    ROW(kOpensElsewhere, " NON SI POSSONO APRIRE FILE DI ALTRE CARTELLE   ", Critical) \
    ROW(kFolderIsAFile, " LA CARTELLA DEL DIARIO AVREBBE IL NOME DI UN FILE CHE C'E' GIA' :  {}   ", Critical) \
    ROW(kNoSuchFolder, " LA CARTELLA NON ESISTE   ", Critical) \
    ROW(kNameHasOddCharacters, " IL NOME CONTIENE CARATTERI NON AMMESSI   ", Critical) \
    ROW(kNameIsHidden, " IL NOME NON PUO' COMINCIARE CON UN PUNTO   ", Critical) \
    ROW(kNameTooLong, " IL NOME E' TROPPO LUNGO   ", Critical) \
    /* The page. */ \
    ROW(kBlankDay, "AZZERARE I DATI DEL GIORNO ?              ", Information, OKCancel) \
    ROW(kFirstLists, "RIPRISTINARE LE LISTE INIZIALI ?              ", Information, OKCancel) \
    ROW(kSavedLists, "RIPRISTINARE LE LISTE PRECEDENTI ?              ", Information, OKCancel) \
    ROW(kEndBeforeStart, "L'ORA FINE E' MINORE DELL'ORA INIZIO         ", Exclamation) \
    ROW(kEndSecondsBeforeStart, "L'ORA FINE E' MINORE DELL'ORA INIZIO        ", Exclamation) \
    ROW(kEndEqualsStart, "L'ORA FINE E' UGUALE ALL'ORA INIZIO        ", Exclamation) \
    ROW(kPaceTooSlow, "OLTRE 60 MINUTI                 ", Exclamation) \
    ROW(kSplitWithoutKm, " INSERIRE:  KM                ", Exclamation) \
    ROW(kSplitWithoutTime, " INSERIRE:  TEMPI                ", Exclamation) \
    ROW(kSplitInList, " GIA'  NELLA  LISTA                ", Exclamation) \
    ROW(kTooManyRoutes, " DESCRIZIONE MAX PER 200 PERCORSI ", Critical) \
    ROW(kRoutesNotRead, "ERRORE : {} Liste Percorso", None) \
    ROW(kNoGuide, "Impossibile visualizzare il Sommario della Guida. Nessun file della Guida associato al progetto.", \
        Information) \
    ROW(kGuideNotRead, "{}", None) \
    /* Training tables. */ \
    ROW(kPlanEnds, "  FINE ALLENAMENTI  -  LA TABELLA :  {} -  VIENE DISATTIVATA      ", Information) \
    ROW(kChooseTable, "SELEZIONARE UNA TABELLA       ", Exclamation) \
    ROW(kDeleteTable, " CANCELLARE LA TABELLA {} ?", Information, YesNoCancel) \
    ROW(kTableSavesElsewhere, " LA TABELLA NON PUO' ESSERE SALVATA IN UN ALTRA CARTELLA   ", Critical) \
    ROW(kPlanWithoutStart, " INSERIRE ' DATA INIZIO ' ALLENAMENTO     ", Exclamation) \
    ROW(kReplaceActiveTable, " DISATTIVARE LA TABELLA ATTUALMENTE ATTIVA, ED ATTIVARE QUESTA ?  ", \
        Information, OKCancel) \
    ROW(kRowNeedsTwoValues, "GIORNO {} : IMMETTERE 2 VALORI PER CALCOLARNE IL 3°       ", Exclamation) \
    ROW(kRowTooSlow, "GIORNO {}: OLTRE 60 MINUTI                 ", Exclamation) \
    /* Limits of boxes. */ \
    ROW(kDayLimit, "MAX 31 GIORNI                 ", Exclamation) \
    ROW(kMonthLimit, "MAX 12 MESI                   ", Exclamation) \
    ROW(kYearLimit, "MAX ANNO 2099                 ", Exclamation) \
    ROW(kHoursLimit, "MAX 24 ORE                ", Exclamation) \
    ROW(kMinutesLimit, "MAX 59 MINUTI                ", Exclamation) \
    ROW(kPaceMinutesLimit, "MAX 60 MINUTI                 ", Exclamation) \
    ROW(kSecondsLimit, "MAX 59 SECONDI                ", Exclamation) \
    ROW(kRepetitionLimit, "MAX 9.999                   ", Exclamation) \
    ROW(kRunnersLimit, "MAX 999.999                   ", Exclamation) \
    /* Dates of a table and of a search. */ \
    ROW(kStartMax30, "DATA INIZIO  MAX 30 GIORNI                 ", Exclamation) \
    ROW(kStartMax29, "DATA INIZIO  MAX 29 GIORNI                 ", Exclamation) \
    ROW(kStartMax28, "DATA INIZIO  MAX 28 GIORNI                 ", Exclamation) \
    ROW(kStartMinDay, "DATA INIZIO  MIN GIORNO 1                 ", Exclamation) \
    ROW(kStartMinMonth, "DATA INIZIO  MIN MESE  1               ", Exclamation) \
    ROW(kPlanMinYear, "DATA INIZIO MIN ANNO 2008                 ", Exclamation) \
    ROW(kStartMinYear, "DATA INIZIO  ANNO 2007                 ", Exclamation) \
    ROW(kEndMax30, "DATA FINE  MAX 30 GIORNI                 ", Exclamation) \
    ROW(kEndMax28, "DATA FINE  MAX 28 GIORNI                 ", Exclamation) \
    ROW(kEndMinDay, "DATA FINE  MIN GIORNO 1                 ", Exclamation) \
    ROW(kEndMinMonth, "DATA FINE  MIN MESE  1                ", Exclamation) \
    ROW(kEndMinYear, "DATA FINE  ANNO 2007                 ", Exclamation) \
    ROW(kPeriodReversed, "DATA FINE MINORE DELLA DATA INIZIO                 ", Exclamation) \
    /* Races: the number is that of the row. */ \
    ROW(kSaveRaces, " SALVO IL CALENDARIO GARE ?              ", Information, OKCancel) \
    ROW(kRacesNotSaved, " IL CALENDARIO GARE NON E' STATO SALVATO, SALVARE ?           ", Information, YesNoCancel) \
    ROW(kRaceMax30, " ERRORE AL N° {} :  MAX 30 GIORNI ", Exclamation) \
    ROW(kRaceMax29, " ERRORE AL N° {} :  MAX 29 GIORNI ", Exclamation) \
    ROW(kRaceMax28, " ERRORE AL N° {} :  MAX 28 GIORNI ", Exclamation) \
    ROW(kRaceWithoutDay, " MANCA AL N° {} :   GIORNO   ", Exclamation) \
    ROW(kRaceWithoutMonth, " MANCA AL N° {} :   MESE   ", Exclamation) \
    ROW(kRaceYear, " MODIFICA AL N° {} :   ANNO {}  ", Exclamation) \
    ROW(kRacesOnOneDay, "{}   DATA PRESENTE AL  N° {}  E AL N° {}  ", Critical)
// clang-format on

#define ZELVIA_MESSAGE(name, text, icon, ...)                                                                          \
    inline constexpr Message name{#name, text##_t, MsgIcon::icon __VA_OPT__(, MsgButtons::__VA_ARGS__)};
ZELVIA_MESSAGES(ZELVIA_MESSAGE)
#undef ZELVIA_MESSAGE

/// All of them, in the order of their rows.
#define ZELVIA_MESSAGE(name, ...) &name,
inline constexpr const Message* kAll[] = {ZELVIA_MESSAGES(ZELVIA_MESSAGE)};
#undef ZELVIA_MESSAGE
#undef ZELVIA_MESSAGES

} // namespace zelvia::Messages
