// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The messages and reports of errors that an undamaged folder can bring about.
#include "monkey/KnownBoxes.h"

#include "core/Files.h"
#include "core/Messages.h"
#include "diary/Module1.h"
#include "monkey/Desk.h"
#include "support/BoxScript.h"
#include "support/MessagePattern.h"
#include "toolkit/QtText.h"

#include <QFileDialog>
#include <QRegularExpression>

#include <algorithm>
#include <string>

namespace zelvia::monkey
{
namespace
{

/// Reports, those of the guide among them, have their reasons.
bool IsDue(const Message& message)
{
    return message.icon != MsgIcon::None && &message != &Messages::kNoGuide;
}

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

/// True when the program holds the name of a table that has been deleted, or that is in another diary's folder. One
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
    // The reader of the routes reports no number.
    const QString routes = ToQString(Filled(Messages::kRoutesNotRead, {DescriptionOf(76)}).text);
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
    for (const Message* message : Messages::kAll) {
        if (IsDue(*message) && test::PatternOf(*message).match(box.text()).hasMatch()) {
            const test::ExpectedBox known = test::BoxOf(*message);
            return box.icon() == known.icon && box.standardButtons() == known.buttons
                       ? QString()
                       : QStringLiteral("icon or buttons: ") + described;
        }
    }
    if (box.icon() == QMessageBox::NoIcon && box.standardButtons() == QMessageBox::Ok &&
        IsKnownReport(box.text(), situation)) {
        return {};
    }
    return QStringLiteral("not known here: ") + described;
}

} // namespace zelvia::monkey
