// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoxTexts.h"
#include "core/Conversions.h"
#include "core/Files.h"
#include "core/Tr.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"
#include "tools/copies/CopiesCommand.h"
#include "tools/copies/SafeFiles.h"
#include "tools/exchange/Calendar.h"
#include "tools/exchange/Csv.h"
#include "tools/exchange/DayColumns.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/OutputFile.h"

#include <array>
#include <chrono>
#include <ctime>
#include <sstream>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;
using namespace Module1;

/// The days of the diary in memory with an entry, in order.
std::vector<const RecordGiorno*> Entries()
{
    std::vector<const RecordGiorno*> days;
    for (int i = 1; i <= 366; ++i) {
        if (HasEntry(Giorni[i])) {
            days.push_back(&Giorni[i]);
        }
    }
    return days;
}

std::string AsCsv(Context& /*context*/)
{
    std::vector<std::string> cells;
    for (const DayColumnRow& row : DayColumns()) {
        cells.emplace_back(row.name);
    }
    std::string text = CsvLine(cells);
    for (const RecordGiorno* day : Entries()) {
        cells.clear();
        for (const DayColumnRow& row : DayColumns()) {
            cells.push_back(CellOf(*day, row.column));
        }
        text += CsvLine(cells);
    }
    return text;
}

std::string AsSplits(Context& context)
{
    std::string text = CsvLine({"date", "km", "time"});
    int unreadable = 0;
    for (const RecordGiorno* day : Entries()) {
        for (const DaySplit& split : SplitsOf(*day, unreadable)) {
            text += CsvLine({CellOf(*day, DayColumn::Date), split.km, split.time});
        }
    }
    if (unreadable > 0) {
        context.Err() << Tools::Tr("Righe dei Tempi Km che non dicono chilometro e tempo, e restano fuori: %1.",
                                   unreadable)
                      << "\n";
    }
    return text;
}

std::string JsonText(const std::string& text)
{
    std::string quoted = "\"";
    for (const char c : text) {
        constexpr std::string_view digits = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (c == '\n') {
            quoted += "\\n";
        } else if (byte < ' ') {
            quoted += std::string("\\u00") + digits[byte >> 4U] + digits[byte & 0xFU];
        } else {
            quoted += c;
        }
    }
    return quoted + "\"";
}

std::string AsJsonLines(Context& /*context*/)
{
    std::string text;
    for (const RecordGiorno* day : Entries()) {
        std::string object;
        for (const DayColumnRow& row : DayColumns()) {
            const std::string cell = CellOf(*day, row.column);
            object += (object.empty() ? "{" : ", ") + JsonText(std::string(row.name)) + ": ";
            object += !row.number ? JsonText(cell) : cell.empty() ? "null" : cell;
        }
        text += object + "}\n";
    }
    return text;
}

std::string Now()
{
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm utc{};
    std::array<char, 32> text{};
    gmtime_r(&now, &utc);
    return {text.data(), std::strftime(text.data(), text.size(), "%Y%m%dT%H%M%SZ", &utc)};
}

/// Runs a reader of the diary; a box that it brings up is said, with what can't be read.
template <typename Read>
bool ReadOrTell(Context& context, std::string_view what, Read&& read)
{
    const BoxTexts boxes;
    read();
    if (boxes.All().empty()) {
        return true;
    }
    context.Err() << Tools::Tr("%1 non si legge per intero («%2»).", what, ToUtf8(boxes.All().front())) << "\n";
    return false;
}

/// The active table, which may have been named on another computer: then one of that name in the diary's own folder.
Text ActiveTable()
{
    NomeTabellaAttiva.clear();
    CaricaNomeTabella();
    if (NomeTabellaAttiva.empty() || fs::exists(NativePath(NomeTabellaAttiva))) {
        return NomeTabellaAttiva;
    }
    return CartellaDiario + Mid(NomeTabellaAttiva, InStrRev(NomeTabellaAttiva, "\\"));
}

std::string AsCalendar(Context& context)
{
    AzzeraCalendario();
    ReadOrTell(context, Tools::Tr("Il calendario delle gare"), LeggiCalendario);
    std::vector<CalendarEvent> events = RaceEvents();
    Text table;
    ReadOrTell(context, Tools::Tr("Il nome della tabella attiva"), [&] { table = ActiveTable(); });
    if (!table.empty()) {
        AzzeraTabella();
        if (ReadOrTell(context, Tools::Tr("La tabella attiva"), [&] { LeggiTabella(table); })) {
            const auto plan = PlanEvents(ToUtf8(NomeSenzaCartella(table)));
            events.insert(events.end(), plan.begin(), plan.end());
        }
    }
    return ICalendar(events, Now());
}

struct ExportFormat {
    std::string_view name;
    std::string (*text)(Context& context);
};
constexpr std::array<ExportFormat, 4> kFormats = {
    {{"csv", AsCsv}, {"splits", AsSplits}, {"jsonl", AsJsonLines}, {"ics", AsCalendar}}};

const ExportFormat& ExportFormatIn(Arguments& arguments)
{
    const auto name = arguments.TakeValue("--formato");
    for (const ExportFormat& format : kFormats) {
        if (name == format.name) {
            return format;
        }
    }
    throw Misuse{name ? Tools::Tr("«%1» non è un formato: csv, splits, jsonl o ics.", *name)
                      : Tools::Tr("Manca --formato.")};
}

} // namespace

int RunExport(Context& context, Arguments& arguments)
{
    const ExportFormat& format = ExportFormatIn(arguments);
    const auto file = arguments.TakeValue("-o");
    arguments.TakeWords(0, 0);
    context.Load(context.ChosenDiary());
    const std::string text = format.text(context);
    if (!file) {
        context.Out() << text;
        return kDone;
    }
    if (const auto status = RefuseFile(context, *file)) {
        return *status;
    }
    ReplaceFile(*file, text);
    return kDone;
}

} // namespace zelvia
