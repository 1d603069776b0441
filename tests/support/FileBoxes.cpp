// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/FileBoxes.h"

namespace zelvia::test
{

QStringList FullSet()
{
    return {QStringLiteral("CalendarioGare"),  QStringLiteral("Fondo.lsx"),    QStringLiteral("ListePercorso"),
            QStringLiteral("Lunghezza.lsx"),   QStringLiteral("Modo.lsx"),     QStringLiteral("Percorso.lsx"),
            QStringLiteral("Temperatura.lsx"), QStringLiteral("TempoAtm.lsx"), QStringLiteral("Tipo.lsx"),
            QStringLiteral("nometab")};
}

QStringList ListNames()
{
    return {QStringLiteral("Percorso"),   QStringLiteral("Lunghezza"), QStringLiteral("Modo"),
            QStringLiteral("Fondo"),      QStringLiteral("Tipo"),      QStringLiteral("TempoAtm"),
            QStringLiteral("Temperatura")};
}

ExpectedBox BareReport(const QString& error)
{
    return Report(QStringLiteral("ERRORE : ") + error);
}

void ExpectListsNotSaved(BoxScript& script, const QString& error)
{
    for (const QString& list : ListNames()) {
        script.Expect(Report(QStringLiteral("SalvaLista%1 - ERRORE : ").arg(list) + error));
    }
}

void ExpectListsNotLoaded(BoxScript& script, const QString& error)
{
    for (const QString& list : ListNames()) {
        // The reader of the temperatures is spelt with a letter less.
        const QString name = list == QLatin1String("Temperatura") ? QStringLiteral("Teperatura") : list;
        script.Expect(Report(QStringLiteral("CaricaLista%1 - ERRORE : ").arg(name) + error));
    }
}

ExpectedBox RoutesNotLoaded(const QString& description)
{
    return Report(QStringLiteral("ERRORE : %1 Liste Percorso").arg(description));
}

void ExpectNoFolder(BoxScript& script)
{
    for (int i = 0; i < 3; ++i) {
        script.Expect(BareReport(kNoFolder));
    }
    ExpectListsNotSaved(script, kNoFolder);
    ExpectListsNotLoaded(script, kNoFolder);
    script.Expect(BareReport(kNoFolder));
    script.Expect(RoutesNotLoaded(QStringLiteral("Cartella non trovata")));
    script.Expect(BareReport(kNoFolder));
}

ExpectedBox SaveQuestion(QMessageBox::StandardButton press)
{
    return {QStringLiteral("IL FILE NON E' STATO SALVATO, SALVARE IL FILE ?             "), QMessageBox::Information,
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, press};
}

ExpectedBox SaveRefusal()
{
    return {QStringLiteral(" IL FILE NON PUO' ESSERE SALVATO IN UN ALTRA CARTELLA   "), QMessageBox::Critical};
}

ExpectedBox OpenRefusal()
{
    return {QStringLiteral(" NON SI POSSONO APRIRE FILE DI ALTRE CARTELLE   "), QMessageBox::Critical};
}

ExpectedBox FolderNameRefusal(const QString& name)
{
    return {QStringLiteral(" LA CARTELLA DEL DIARIO AVREBBE IL NOME DI UN FILE CHE C'E' GIA' :  %1   ").arg(name),
            QMessageBox::Critical};
}

} // namespace zelvia::test
