// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/CategoryStatistics.h"
#include "diary/FileCommands.h"
#include "diary/Module1.h"
#include "diary/SelectionLists.h"

namespace zelvia
{

/// The state of the open diary under the names that it has on the page.
struct NamedState {
    static constexpr CalendarDate DataMinima = kFirstDate;
    static constexpr CalendarDate DataMassima = kLastDate;
    i16& GiornoMese = Module1::session.GiornoMese;
    i16& MeseCorrente = Module1::session.MeseCorrente;
    i16& AnnoCorrente = Module1::session.AnnoCorrente;
    i16& UltimoPeso = Module1::session.UltimoPeso;
    i32& KmAnno = Module1::session.KmAnno;
    i16& GiorniCorseAnno = Module1::session.GiorniCorseAnno;
    i16& GareAnno = Module1::session.GareAnno;
    Text& NomeFile = Module1::session.NomeFile;
    Text& NomeBaseFile = Module1::session.NomeBaseFile;
    Text& EsitoDir = Module1::session.EsitoDir;
    i16& NoteAperte = Module1::session.NoteAperte;
    i16& ListaAperta = Module1::session.ListaAperta;
};

/// The file commands under the names that they have on the page.
class NamedCommands : public DiaryPage
{
public:
    void CaricaNomeFile() { files_.CaricaNomeFile(); }
    void SalvaNomeFile() { files_.SalvaNomeFile(); }
    void NomeFleListe() { files_.NomeFleListe(); }
    void InizializzaListe() { files_.InizializzaListe(); }
    void mnuFileOpen_Click() { files_.mnuFileOpen_Click(); }
    void mnuFileNuovo_Click() { files_.mnuFileNuovo_Click(); }
    void mnuFileSave_Click() { files_.mnuFileSave_Click(); }
    void mnuFileSaveAs_Click() { files_.mnuFileSaveAs_Click(); }
    void ChiediSalvataggio(i16& annullato) { files_.ChiediSalvataggio(annullato); }
    void NuovoFile(const Text& path) { files_.NuovoFile(path); }
    void SalvaFileNuovo(const Text& path) { files_.SalvaFileNuovo(path); }

protected:
    FileCommands files_{*this};

public:
    int& NuovoAnnullato = files_.NuovoAnnullato;
};

/// The routines that bear a name for each list and each category and do alike.
class NamedRoutines
{
public:
    virtual ~NamedRoutines() = default;

    void SalvaListaPercorso() { SalvaLista(SelectionList::Percorso); }
    void SalvaListaLunghezza() { SalvaLista(SelectionList::Lunghezza); }
    void SalvaListaModo() { SalvaLista(SelectionList::Modo); }
    void SalvaListaFondo() { SalvaLista(SelectionList::Fondo); }
    void SalvaListaTipo() { SalvaLista(SelectionList::Tipo); }
    void SalvaListaTempoAtm() { SalvaLista(SelectionList::TempoAtm); }
    void SalvaListaTemperatura() { SalvaLista(SelectionList::Temperatura); }

    void CaricaListaPercorso() { CaricaLista(SelectionList::Percorso); }
    void CaricaListaLunghezza() { CaricaLista(SelectionList::Lunghezza); }
    void CaricaListaModo() { CaricaLista(SelectionList::Modo); }
    void CaricaListaFondo() { CaricaLista(SelectionList::Fondo); }
    void CaricaListaTipo() { CaricaLista(SelectionList::Tipo); }
    void CaricaListaTempoAtm() { CaricaLista(SelectionList::TempoAtm); }
    void CaricaListaTeperatura() { CaricaLista(SelectionList::Temperatura); }

    void ImmisPercorso() { Immis(SelectionList::Percorso); }
    void ImmisLunghezza() { Immis(SelectionList::Lunghezza); }
    void ImmisModo() { Immis(SelectionList::Modo); }
    void ImmisFondo() { Immis(SelectionList::Fondo); }
    void ImmisTipo() { Immis(SelectionList::Tipo); }
    void ImmisStagione() { Immis(SelectionList::Stagione); }
    void ImmisTempoAtm() { Immis(SelectionList::TempoAtm); }
    void ImmisTemperatura() { Immis(SelectionList::Temperatura); }

    void StatisPercorso() { Statis(Categoria::Percorso); }
    void StatisLunghezza() { Statis(Categoria::Lunghezza); }
    void StatisAndatura() { Statis(Categoria::Andatura); }
    void StatisFondo() { Statis(Categoria::Fondo); }
    void StatisTipo() { Statis(Categoria::Tipo); }
    void StatisStagione() { Statis(Categoria::Stagione); }
    void StatisMeteo() { Statis(Categoria::Meteo); }
    void StatisTemperatura() { Statis(Categoria::Temperatura); }
    void StatisCorridori() { Statis(Categoria::Corridori); }
    void StatisPeso() { Statis(Categoria::Peso); }
    void StatisKm() { Statis(Categoria::Km); }
    void StatisRipetizioni() { Statis(Categoria::Ripetizioni); }

protected:
    virtual void SalvaLista(SelectionList list) = 0;
    virtual void CaricaLista(SelectionList list) = 0;
    /// Opens the field of a list.
    virtual void Immis(SelectionList list) = 0;
    /// Counts the category up to the day shown, from the records, into the window of the statistics.
    virtual void Statis(Categoria category) = 0;
};

} // namespace zelvia
