// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Messages.h"

#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <algorithm>
#include <set>

using namespace zelvia;
using namespace zelvia::test;

namespace
{

constexpr auto kCritical = MsgIcon::Critical;
constexpr auto kExclamation = MsgIcon::Exclamation;
constexpr auto kInformation = MsgIcon::Information;

/// Each message as it has to be shown, to the last blank.
const MsgRequest kMessages[] = {
    {"IL FILE NON E' STATO SALVATO, SALVARE IL FILE ?             ", kInformation, MsgButtons::YesNoCancel},
    {" IL FILE NON PUO' ESSERE SALVATO IN UN ALTRA CARTELLA   ", kCritical},
    {" NON SI POSSONO APRIRE FILE DI ALTRE CARTELLE   ", kCritical},
    {" LA CARTELLA DEL DIARIO AVREBBE IL NOME DI UN FILE CHE C'E' GIA' :  {}   ", kCritical},
    {" LA CARTELLA NON ESISTE   ", kCritical},
    {" IL NOME CONTIENE CARATTERI NON AMMESSI   ", kCritical},
    {" IL NOME NON PUO' COMINCIARE CON UN PUNTO   ", kCritical},
    {" IL NOME E' TROPPO LUNGO   ", kCritical},
    {"AZZERARE I DATI DEL GIORNO ?              ", kInformation, MsgButtons::OKCancel},
    {"RIPRISTINARE LE LISTE INIZIALI ?              ", kInformation, MsgButtons::OKCancel},
    {"RIPRISTINARE LE LISTE PRECEDENTI ?              ", kInformation, MsgButtons::OKCancel},
    {"L'ORA FINE E' MINORE DELL'ORA INIZIO         ", kExclamation},
    {"L'ORA FINE E' MINORE DELL'ORA INIZIO        ", kExclamation},
    {"L'ORA FINE E' UGUALE ALL'ORA INIZIO        ", kExclamation},
    {"OLTRE 60 MINUTI                 ", kExclamation},
    {" INSERIRE:  KM                ", kExclamation},
    {" INSERIRE:  TEMPI                ", kExclamation},
    {" GIA'  NELLA  LISTA                ", kExclamation},
    {" DESCRIZIONE MAX PER 200 PERCORSI ", kCritical},
    {"ERRORE : {} Liste Percorso"},
    {"Impossibile visualizzare il Sommario della Guida. Nessun file della Guida associato al progetto.", kInformation},
    {"{}"},
    {"  FINE ALLENAMENTI  -  LA TABELLA :  {} -  VIENE DISATTIVATA      ", kInformation},
    {"SELEZIONARE UNA TABELLA       ", kExclamation},
    {" CANCELLARE LA TABELLA {} ?", kInformation, MsgButtons::YesNoCancel},
    {" LA TABELLA NON PUO' ESSERE SALVATA IN UN ALTRA CARTELLA   ", kCritical},
    {" INSERIRE ' DATA INIZIO ' ALLENAMENTO     ", kExclamation},
    {" DISATTIVARE LA TABELLA ATTUALMENTE ATTIVA, ED ATTIVARE QUESTA ?  ", kInformation, MsgButtons::OKCancel},
    {"GIORNO {} : IMMETTERE 2 VALORI PER CALCOLARNE IL 3\xB0       ", kExclamation},
    {"GIORNO {}: OLTRE 60 MINUTI                 ", kExclamation},
    {"MAX 31 GIORNI                 ", kExclamation},
    {"MAX 12 MESI                   ", kExclamation},
    {"MAX ANNO 2099                 ", kExclamation},
    {"MAX 24 ORE                ", kExclamation},
    {"MAX 59 MINUTI                ", kExclamation},
    {"MAX 60 MINUTI                 ", kExclamation},
    {"MAX 59 SECONDI                ", kExclamation},
    {"MAX 9.999                   ", kExclamation},
    {"MAX 999.999                   ", kExclamation},
    {"DATA INIZIO  MAX 30 GIORNI                 ", kExclamation},
    {"DATA INIZIO  MAX 29 GIORNI                 ", kExclamation},
    {"DATA INIZIO  MAX 28 GIORNI                 ", kExclamation},
    {"DATA INIZIO  MIN GIORNO 1                 ", kExclamation},
    {"DATA INIZIO  MIN MESE  1               ", kExclamation},
    {"DATA INIZIO MIN ANNO 2008                 ", kExclamation},
    {"DATA INIZIO  ANNO 2007                 ", kExclamation},
    {"DATA FINE  MAX 30 GIORNI                 ", kExclamation},
    {"DATA FINE  MAX 28 GIORNI                 ", kExclamation},
    {"DATA FINE  MIN GIORNO 1                 ", kExclamation},
    {"DATA FINE  MIN MESE  1                ", kExclamation},
    {"DATA FINE  ANNO 2007                 ", kExclamation},
    {"DATA FINE MINORE DELLA DATA INIZIO                 ", kExclamation},
    {" SALVO IL CALENDARIO GARE ?              ", kInformation, MsgButtons::OKCancel},
    {" IL CALENDARIO GARE NON E' STATO SALVATO, SALVARE ?           ", kInformation, MsgButtons::YesNoCancel},
    {" ERRORE AL N\xB0 {} :  MAX 30 GIORNI ", kExclamation},
    {" ERRORE AL N\xB0 {} :  MAX 29 GIORNI ", kExclamation},
    {" ERRORE AL N\xB0 {} :  MAX 28 GIORNI ", kExclamation},
    {" MANCA AL N\xB0 {} :   GIORNO   ", kExclamation},
    {" MANCA AL N\xB0 {} :   MESE   ", kExclamation},
    {" MODIFICA AL N\xB0 {} :   ANNO {}  ", kExclamation},
    {"{}   DATA PRESENTE AL  N\xB0 {}  E AL N\xB0 {}  ", kCritical},
};

QByteArray Described(const MsgRequest& request)
{
    return '"' + Bytes(request.text) + "\" " + QByteArray::number(static_cast<int>(request.icon)) + ' ' +
           QByteArray::number(static_cast<int>(request.buttons));
}

} // namespace

class MessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachToTheLetter();
    void EachHasANameOfItsOwn();
    void PartsTakeTheirPlaces();
};

void MessagesTest::EachToTheLetter()
{
    QByteArrayList rows;
    for (const Message* message : Messages::kAll) {
        rows << Described(Filled(*message, {}));
    }
    QByteArrayList wanted;
    for (const MsgRequest& request : kMessages) {
        wanted << Described(request);
    }
    std::sort(rows.begin(), rows.end());
    std::sort(wanted.begin(), wanted.end());
    QCOMPARE(rows, wanted);
}

void MessagesTest::EachHasANameOfItsOwn()
{
    std::set<TextView> names;
    for (const Message* message : Messages::kAll) {
        QVERIFY2(names.insert(message->name).second, Text(message->name).c_str());
    }
    QVERIFY(names.contains("kSaveDiary"));
    QCOMPARE(Bytes(Messages::kSaveDiary.text.substr(0, 12)), QByteArray("IL FILE NON "));
}

void MessagesTest::PartsTakeTheirPlaces()
{
    QCOMPARE(Described(Filled(Messages::kRacesOnOneDay, {"5-9-2026", "7", "21"})),
             QByteArray("\"5-9-2026   DATA PRESENTE AL  N\xB0 7  E AL N\xB0 21  \" 1 0"));
    // One that looks like a place is none.
    QCOMPARE(Described(Filled(Messages::kDeleteTable, {"{} {}.tab"})),
             QByteArray("\" CANCELLARE LA TABELLA {} {}.tab ?\" 3 2"));
    QCOMPARE(Described(Filled(Messages::kGuideNotRead, {""})), QByteArray("\"\" 0 0"));
}

ZELVIA_TEST(MessagesTest)
#include "MessagesTest.moc"
