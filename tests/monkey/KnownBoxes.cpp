// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes that the program has, and the reports of errors that an undamaged folder can bring about.
#include "monkey/KnownBoxes.h"

#include "core/Files.h"
#include "diary/Module1.h"
#include "monkey/Desk.h"
#include "toolkit/QtText.h"

#include <QFileDialog>
#include <QRegularExpression>

#include <algorithm>
#include <string>

namespace zelvia::monkey
{
namespace
{

using Box = QMessageBox;

struct KnownBox {
    const char* pattern; ///< Of the whole text.
    Box::Icon icon;
    Box::StandardButtons buttons;
};

constexpr auto kYesNoCancel = Box::Yes | Box::No | Box::Cancel;
constexpr auto kOkCancel = Box::Ok | Box::Cancel;

const KnownBox kBoxes[] = {
    {"AZZERARE I DATI DEL GIORNO \\? {14}", Box::Information, kOkCancel},
    {"RIPRISTINARE LE LISTE INIZIALI \\? {14}", Box::Information, kOkCancel},
    {"RIPRISTINARE LE LISTE PRECEDENTI \\? {14}", Box::Information, kOkCancel},
    {"IL FILE NON E' STATO SALVATO, SALVARE IL FILE \\? {13}", Box::Information, kYesNoCancel},
    {" IL FILE NON PUO' ESSERE SALVATO IN UN ALTRA CARTELLA {3}", Box::Critical, Box::Ok},
    {" NON SI POSSONO APRIRE FILE DI ALTRE CARTELLE {3}", Box::Critical, Box::Ok},
    {" DESCRIZIONE MAX PER 200 PERCORSI ", Box::Critical, Box::Ok},
    // Splits, times and paces of the page.
    {" INSERIRE: {2}KM {16}", Box::Warning, Box::Ok},
    {" INSERIRE: {2}TEMPI {16}", Box::Warning, Box::Ok},
    {" GIA' {2}NELLA {2}LISTA {16}", Box::Warning, Box::Ok},
    {"L'ORA FINE E' MINORE DELL'ORA INIZIO {8,9}", Box::Warning, Box::Ok},
    {"L'ORA FINE E' UGUALE ALL'ORA INIZIO {8}", Box::Warning, Box::Ok},
    {"OLTRE 60 MINUTI {17}", Box::Warning, Box::Ok},
    // Tables.
    {" {2}FINE ALLENAMENTI {2}- {2}LA TABELLA : {2}.* - {2}VIENE DISATTIVATA {6}", Box::Information, Box::Ok},
    {"SELEZIONARE UNA TABELLA {7}", Box::Warning, Box::Ok},
    {" CANCELLARE LA TABELLA .* \\?", Box::Information, kYesNoCancel},
    {" LA TABELLA NON PUO' ESSERE SALVATA IN UN ALTRA CARTELLA {3}", Box::Critical, Box::Ok},
    {" INSERIRE ' DATA INIZIO ' ALLENAMENTO {5}", Box::Warning, Box::Ok},
    {" DISATTIVARE LA TABELLA ATTUALMENTE ATTIVA, ED ATTIVARE QUESTA \\? {2}", Box::Information, kOkCancel},
    {"GIORNO \\d{1,2} : IMMETTERE 2 VALORI PER CALCOLARNE IL 3° {7}", Box::Warning, Box::Ok},
    {"GIORNO \\d{1,2}: OLTRE 60 MINUTI {17}", Box::Warning, Box::Ok},
    // Limits of boxes.
    {"MAX 31 GIORNI {17}", Box::Warning, Box::Ok},
    {"MAX 12 MESI {19}", Box::Warning, Box::Ok},
    {"MAX ANNO 2099 {17}", Box::Warning, Box::Ok},
    {"MAX 24 ORE {16}", Box::Warning, Box::Ok},
    {"MAX 59 (MINUTI|SECONDI) {16}", Box::Warning, Box::Ok},
    {"MAX 60 MINUTI {17}", Box::Warning, Box::Ok},
    {"MAX 9\\.999 {19}", Box::Warning, Box::Ok},
    {"MAX 999\\.999 {19}", Box::Warning, Box::Ok},
    {"DATA INIZIO {2}MAX (28|29|30) GIORNI {17}", Box::Warning, Box::Ok},
    {"DATA FINE {2}MAX (28|30) GIORNI {17}", Box::Warning, Box::Ok},
    {"DATA (INIZIO|FINE) {2}MIN GIORNO 1 {17}", Box::Warning, Box::Ok},
    {"DATA INIZIO {2}MIN MESE {2}1 {15}", Box::Warning, Box::Ok},
    {"DATA FINE {2}MIN MESE {2}1 {16}", Box::Warning, Box::Ok},
    {"DATA INIZIO MIN ANNO 2008 {17}", Box::Warning, Box::Ok},
    {"DATA (INIZIO|FINE) {2}ANNO 2007 {17}", Box::Warning, Box::Ok},
    {"DATA FINE MINORE DELLA DATA INIZIO {17}", Box::Warning, Box::Ok},
    // Races.
    {" SALVO IL CALENDARIO GARE \\? {14}", Box::Information, kOkCancel},
    {" IL CALENDARIO GARE NON E' STATO SALVATO, SALVARE \\? {11}", Box::Information, kYesNoCancel},
    {" ERRORE AL N° \\d{1,3} :  MAX (28|29|30) GIORNI ", Box::Warning, Box::Ok},
    {" MANCA AL N° \\d{1,3} : {3}(GIORNO|MESE) {3}", Box::Warning, Box::Ok},
    {" MODIFICA AL N° \\d{1,3} : {3}ANNO \\d{4} {2}", Box::Warning, Box::Ok},
    {"\\d+-\\d+-\\d+ {3}DATA PRESENTE AL {2}N° \\d{1,3} {2}E AL N° \\d{1,3} {2}", Box::Critical, Box::Ok},
};

bool FolderMissing(const Situation& /*situation*/)
{
    return Module1::CartellaDiario.empty() || FindFolder(Module1::CartellaDiario).empty();
}

bool IsMissing(const Text& file)
{
    try {
        return !std::filesystem::exists(NativePath(file));
    } catch (const ErroreRunTime&) {
        return true;
    }
}

/// True when the program holds the name of a table that has been deleted, or that lies in another diary's folder. One
/// chosen while the editor was open waits for the next editor.
bool TableMissing(const Situation& situation)
{
    const auto* list = situation.desk.Window<frmTabAllenamenti>();
    const auto missing = [](const Text& entry) { return IsMissing(Module1::CartellaDiario + "\\" + entry); };
    if (list != nullptr) {
        const std::vector<Text> entries = list->flbListaTabelle->Items();
        if (std::any_of(entries.begin(), entries.end(), missing)) {
            return true;
        }
    }
    const auto gone = [](const Text& table) { return !table.empty() && IsMissing(table); };
    return gone(Module1::NomeTabellaAttiva) || gone(Module1::NomeTabellaAperta);
}

bool FolderOrTableMissing(const Situation& situation)
{
    return FolderMissing(situation) || TableMissing(situation);
}

bool Pasted(const Situation& situation)
{
    return situation.pasted;
}

/// A distance of five digits that the limit holds in its box: what takes no focus still reads it.
bool PastedOrWide(const Situation& situation)
{
    constexpr int widest = 32767;
    const auto* editor = situation.desk.Window<frmAllenamento>();
    bool wide = situation.pasted;
    for (int row = 1; editor != nullptr && row <= TableGrid::kRows; ++row) {
        wide = wide || editor->Box(TableGrid::RipetDistanza, row)->text().toInt() > widest;
    }
    return wide;
}

/// A name outside the set, or one in a folder that is not there: the dialog keeps it for the next save.
bool StrangeName(const Situation& situation)
{
    if (situation.strange || situation.desk.Page() == nullptr) {
        return situation.strange;
    }
    const Text& chosen = situation.desk.Page()->dlgCommonDialog.FileName;
    return !chosen.empty() && IsMissing(chosen.substr(0, chosen.rfind('\\')));
}

bool PrinterBroken(const Situation& situation)
{
    return situation.desk.printerBroken;
}

bool Always(const Situation& /*situation*/)
{
    return true;
}

bool ManySplits(const Situation& situation)
{
    constexpr int most = 101;
    return situation.desk.Page() != nullptr && situation.desk.Page()->lstListaKM->ListCount() > most;
}

bool Matches(const QString& text, const char* pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromUtf8(pattern))).match(text).hasMatch();
}

/// True when the value chosen in the statistics is none of its category: there is none, or a list of the searches has
/// taken its place.
bool NoValueChosen(const Situation& situation)
{
    const auto* statistics = situation.desk.Window<frmStatistiche1>();
    if (statistics == nullptr) {
        return false;
    }
    const QString value = ToQString(Module1::NomeCategoria[statistics->lstStatistica->ListIndex() + 1]);
    const bool distance = Module1::TitoloStatistica == "Km";
    return !Matches(value, distance ? "[ \\d]\\d+,\\d+" : "[ \\d]\\d+ x \\d+ {1,2}@ \\d+:\\d+");
}

struct KnownReport {
    const char* title; ///< Pattern of what stands before the number.
    int number;
    bool (*due)(const Situation&);
};

const KnownReport kReports[] = {
    {"STAMPA - ERRORE : ", 482, PrinterBroken},
    // A run of no seconds, and one too slow for the width of its minutes.
    {"MediaKm - ERRORE : ", 11, Always},
    {"MediaKm - ERRORE : ", 6, Always},
    {"AssegnaCampi - ERRORE : ", 9, ManySplits},
    // A diary without its folder: one made by New and never saved under another name, or opened like that.
    {"(SalvaLista|CaricaLista)\\w+ - ERRORE : ", 76, FolderMissing},
    {"ERRORE : ", 76, FolderMissing},
    {"(Load|cmdOk|mnuAllenamenti) - ERRORE : ", 76, FolderMissing},
    // A table that is no longer there.
    {"ERRORE : ", 53, TableMissing},
    {"ERRORE : ", 76, TableMissing},
    {"cmdCancellaTab - ERRORE : ", 53, TableMissing},
    {"cmdCancellaTab - ERRORE : ", 76, FolderOrTableMissing},
    // Arithmetic of the table editor, in the width of its boxes.
    {"Calcola(MediaKm|Distanza|Tempo) - ERRORE : ", 6, Always},
    {"Calcola(MediaKm|Distanza|Tempo) - ERRORE : ", 11, Always},
    {"Scomponi(Distanza|Quante) - ERRORE : ", 5, NoValueChosen},
    {"Scomponi\\w+ - ERRORE : ", 6, NoValueChosen},
    // What was pasted passes the boxes that take digits only.
    {"(AssegnaTab|ControllaSaveTab|cmdAttiva|cmdOK|cmdSalva|ControlloData|mnuInserisciRiga|mnuEliminaRiga) - ERRORE : ",
     13, Pasted},
    {"(AssegnaTab|ControllaSaveTab|cmdAttiva|cmdOK|cmdSalva|ControlloData|mnuInserisciRiga|mnuEliminaRiga) - ERRORE : ",
     6, PastedOrWide},
    {"(ERRORE : |Query - ERRORE : |ContrData - ERRORE : |CalcolaDistanza - ERRORE : |AssegnaArray - ERRORE : )", 6,
     Pasted},
    {"Ricerca Medie - ERRORE : ", 13, Pasted},
    // Names that no diary can have.
    {"mnuFile(Open|Save|SaveAs|Nuovo) - ERRORE : ", 52, StrangeName},
    {"SalvaFileNuovo - ERRORE : ", 52, StrangeName},
    {"ERRORE : ", 52, StrangeName},
    {"mnuFileSaveAs - ERRORE : ", 76, StrangeName},
    {"ERRORE : ", 76, StrangeName},
    {"SalvaLista\\w+ - ERRORE : ", 76, StrangeName},
};

bool IsKnownReport(const QString& text, const Situation& situation)
{
    const auto fits = [&](const KnownReport& report) {
        const std::string whole = report.title + std::to_string(report.number) + ' ' + DescriptionOf(report.number);
        return Matches(text, whole.c_str()) && report.due(situation);
    };
    // The routes' reader reports no number.
    const QString routes =
        QStringLiteral("ERRORE : ") + ToQString(DescriptionOf(76)) + QStringLiteral(" Liste Percorso");
    return std::any_of(std::begin(kReports), std::end(kReports), fits) || (text == routes && FolderMissing(situation));
}

} // namespace

bool IsOfDialog(const QMessageBox& box)
{
    return qobject_cast<const QFileDialog*>(box.parentWidget()) != nullptr;
}

QString WrongWith(const QMessageBox& box, const Situation& situation)
{
    if (IsOfDialog(box)) {
        return {};
    }
    const QString described = QStringLiteral("box \"%1\" \"%2\", icon %3, buttons %4")
                                  .arg(box.windowTitle(), box.text())
                                  .arg(box.icon())
                                  .arg(box.standardButtons(), 0, 16);
    if (box.windowTitle() != QLatin1String("Zelvia") || box.textFormat() != Qt::PlainText) {
        return QStringLiteral("title or format: ") + described;
    }
    for (const KnownBox& known : kBoxes) {
        if (Matches(box.text(), known.pattern)) {
            return box.icon() == known.icon && box.standardButtons() == known.buttons
                       ? QString()
                       : QStringLiteral("icon or buttons: ") + described;
        }
    }
    if (box.icon() == Box::NoIcon && box.standardButtons() == Box::Ok && IsKnownReport(box.text(), situation)) {
        return {};
    }
    return QStringLiteral("not known here: ") + described;
}

} // namespace zelvia::monkey
