// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The start, and the files that belong to a diary.
#include "core/Conversions.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/CalendarModel.h"
#include "diary/FileCommands.h"
#include "diary/Journal.h"
#include "diary/Module1.h"
#include "diary/ProgramFiles.h"
#include "diary/RouteModel.h"
#include "diary/Workspace.h"

#include <algorithm>

namespace zelvia
{

using namespace Module1;

namespace
{

constexpr TextView kDefaultDiary = "\\ZelviaFile\\prova.zlv";

Text StartPointer()
{
    return ProgramFolder() + "\\" + Text(kStartPointer);
}

} // namespace

void FileCommands::Start()
{
    AzzeraAnno();
    AzzeraPercorsi();
    AzzeraCalendario();
    AzzeraStato();
    NuovoAnnullato = 0;
    SetToday();
    page_.Data();
    CaricaNomeFile();
    CaricaDiario(session.NomeFile);
    NomeFleListe();
    page_.ShowDiaryName();
    SetUpFolder();
    InizializzaListe();
    page_.VisualizzaGiorno();
    page_.DatiAnno();
    LoadCompanions();
    Journal::Instance().Opened();
}

void FileCommands::SetToday()
{
    DataCorrente = std::clamp(Date(), kFirstDate, kLastDate);
}

void FileCommands::CaricaNomeFile()
{
    TrapWith(
        [this] {
            session.NomeFile = StartDiary().empty() ? ReadPointer(StartPointer()) : StartDiary();
            if (session.NomeFile.empty()) {
                session.NomeFile = ProgramFolder() + Text(kDefaultDiary);
            }
            page_.ChosenName() = session.NomeFile;
        },
        [this](const ErroreRunTime& error) {
            if (error.Number() == Errore::FileNonTrovato) {
                NuovoFile(session.NomeFile);
            } else {
                ReportError("CaricaNomeFile - ERRORE : ", error);
            }
        });
}

void FileCommands::SalvaNomeFile()
{
    Trap("SalvaNomeFile - ERRORE : ", [] { WritePointer(StartPointer(), session.NomeFile); });
}

void FileCommands::NomeFleListe()
{
    Trap("NomeFleListe - ERRORE : ", [] {
        const auto slash = InStrRev(session.NomeFile, "\\");
        if (slash > 0 && InStr(Mid(session.NomeFile, slash + 1), ".") > 0) {
            session.NomeBaseFile = NomeSenzaCartella(session.NomeFile);
        }
    });
}

void FileCommands::SetUpFolder()
{
    CartellaDiario = CAPTIONDIR(session.NomeFile);
    session.EsitoDir = FindFolder(CartellaDiario);
    // Without a folder's name there is nothing to make; the writes and reads that follow report.
    if (session.EsitoDir.empty() && !CartellaDiario.empty()) {
        MakeFolder(CartellaDiario);
    }
    WriteFirstSet();
}

void FileCommands::WriteFirstSet()
{
    if (!FilesIn(CartellaDiario).empty()) {
        return;
    }
    SalvaPercorsi();
    ScriviCalendario();
    SalvaNomeTabella();
    InizializzaListe();
    SalvaListe();
}

void FileCommands::LoadTable()
{
    CaricaNomeTabella();
    if (!NomeTabellaAttiva.empty()) {
        page_.ShowActiveTable();
    }
}

void FileCommands::LoadCompanions()
{
    CaricaListe();
    LoadTable();
    CaricaPercorsi();
    AzzeraCalendario();
    LeggiCalendario();
    page_.AssegnaGara();
}

void FileCommands::InizializzaListe()
{
    Trap("InizializzaListe - ERRORE : ", [this] {
        for (const SelectionList list : kAllLists) {
            const auto entries = FirstEntries(list);
            EntriesOf(list).assign(entries.begin(), entries.end());
            page_.ShowList(list);
        }
    });
}

void FileCommands::SalvaLista(SelectionList list)
{
    Trap("SalvaLista" + Text(ListName(list)) + " - ERRORE : ", [&] {
        WriteEntries(ListPath(list), EntriesOf(list));
        Journal::Instance().Saved(RecordKind::List, static_cast<int>(list));
    });
}

void FileCommands::CaricaLista(SelectionList list)
{
    // The name of the temperatures' routine lacks a letter, and so does its report.
    const Text name = list == SelectionList::Temperatura ? "Teperatura" : Text(ListName(list));
    const auto read = [&] {
        ReadEntries(ListPath(list), EntriesOf(list));
        page_.ShowList(list);
    };
    TrapWith(read, [&](const ErroreRunTime& error) {
        // As far as it was read.
        page_.ShowList(list);
        ReportError("CaricaLista" + name + " - ERRORE : ", error);
    });
}

void FileCommands::SalvaListe()
{
    for (const SelectionList list : kFiledLists) {
        SalvaLista(list);
    }
}

void FileCommands::CaricaListe()
{
    for (const SelectionList list : kFiledLists) {
        CaricaLista(list);
    }
}

void FileCommands::SaveCompanions()
{
    SalvaListe();
    SalvaPercorsi();
    ScriviCalendario();
}

} // namespace zelvia
