// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/SavedFiles.h"

#include "diary/CalendarModel.h"
#include "diary/Fields.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/SelectionLists.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/MessageScript.h"

#include <QTest>

namespace zelvia::test
{
namespace
{

using namespace Module1;

/// The list and the start's pointer have no place in the shared state: they are the page's.
std::vector<Text> list;
Text startPointer;

Text InFolder(const char* name)
{
    return CartellaDiario + "\\" + name;
}

/// Gives each value of a file one that no other has, or the same to all.
class Filler
{
public:
    Filler(std::size_t length, bool same) : length_(length), same_(same) {}

    void operator()(Text& value)
    {
        const Text number = same_ ? "prima" : "testo " + std::to_string(++count_);
        value = same_ ? number : number + Text(length_ - number.size(), 'x');
    }
    void operator()(CalendarDate& value) { value = CalendarDate(same_ ? 1950 : 2008, 3, 1); }
    template <typename Integer>
    void operator()(CheckedInteger<Integer>& value)
    {
        value = same_ ? 7 : 1000 + ++count_ % 1000;
    }

private:
    std::size_t length_;
    bool same_;
    int count_ = 0;
};

constexpr auto kDiaryValues = [](const auto& visit) {
    for (int slot = 1; slot <= 366; ++slot) {
        VisitDiaryValues(Giorni[slot], visit);
    }
};

constexpr auto kListValues = [](const auto& visit) {
    for (Text& entry : list) {
        visit(entry);
    }
};

constexpr auto kRouteValues = [](const auto& visit) {
    for (int route = 1; route <= 200; ++route) {
        visit(NomiPercorso[route]);
        visit(DistanzePercorso[route]);
        for (int stretch = 1; stretch <= 20; ++stretch) {
            visit(TrattoDescrizione[route][stretch]);
            visit(TrattoKm[route][stretch]);
            visit(TrattoMetri[route][stretch]);
        }
    }
};

constexpr auto kRaceValues = [](const auto& visit) {
    for (int row = 1; row <= 100; ++row) {
        for (auto* column : {&NumeroGara, &GiornoGara, &MeseGara, &AnnoGara}) {
            visit((*column)[row]);
        }
        visit(Gara[row]);
        visit(Localita[row]);
        visit(KmGara[row]);
        visit(MetriGara[row]);
        visit(Partecipanti[row]);
        visit(Risultato[row]);
        visit(OreGara[row]);
        visit(MinutiGara[row]);
        visit(SecondiGara[row]);
        visit(Categoria[row]);
        visit(RisultatoCat[row]);
    }
};

constexpr auto kTableValues = [](const auto& visit) {
    for (int row = 1; row <= 31; ++row) {
        for (auto* column : {&TabGiorno, &TabKm, &TabMetri, &TabOre, &TabMinuti, &TabSecondi, &TabMediaMinuti,
                             &TabMediaSecondi, &TabMediaMillesimi}) {
            visit((*column)[row]);
        }
        visit(TabAndatura[row]);
        visit(TabFondo[row]);
        for (auto* column : {&TabRipetVolte, &TabRipetDistanza, &TabRipetQuante, &TabRipetTempi}) {
            visit((*column)[row]);
        }
    }
    visit(TabDataInizio);
};

constexpr auto kActiveTableValue = [](const auto& visit) { visit(NomeTabellaAttiva); };

constexpr auto kStartPointerValue = [](const auto& visit) { visit(startPointer); };

/// Adds what goes over all values of a file, which `visitor` hands out; its texts are filled up to `length`.
template <typename Visitor>
SavedFile WithValues(SavedFile file, std::size_t length, Visitor visitor)
{
    const auto put = [=](bool same) {
        Filler fill(length, same);
        visitor([&](auto& value) { fill(value); });
    };
    file.fill = [=] { put(false); };
    file.forget = [=] { put(true); };
    file.lines = [=] {
        std::vector<std::string> lines;
        visitor([&](const auto& value) { lines.push_back(LineOf(value)); });
        return lines;
    };
    return file;
}

// The three whose traps are the page's get one of their own here.
constexpr TextView kListTitle = "lista - ";
constexpr TextView kPointerTitle = "puntatore - ";

void WriteList()
{
    Trap(kListTitle, [] { WriteEntries(ListPath(SelectionList::Percorso), list); });
}

void ReadList()
{
    Trap(kListTitle, [] { ReadEntries(ListPath(SelectionList::Percorso), list); });
}

SavedFile ListFile()
{
    SavedFile file = WithValues({.name = "Percorso.lsx",
                                 .writeTitle = Text(kListTitle),
                                 .readTitle = Text(kListTitle),
                                 .clearedWhenOpen = true,
                                 .write = WriteList,
                                 .read = ReadList},
                                300, kListValues);
    file.fill = [fill = file.fill] {
        list.assign(2500, {});
        fill();
    };
    file.forget = [forget = file.forget] {
        list.assign(3, {});
        forget();
    };
    return file;
}

SavedFile PointerFile()
{
    return WithValues({.name = "nomeload",
                       .writeTitle = Text(kPointerTitle),
                       .readTitle = Text(kPointerTitle),
                       .write = [] { Trap(kPointerTitle, [] { WritePointer(InFolder("nomeload"), startPointer); }); },
                       .read = [] { Trap(kPointerTitle, [] { startPointer = ReadPointer(InFolder("nomeload")); }); }},
                      600000, kStartPointerValue);
}

std::vector<SavedFile> Describe()
{
    return {
        WithValues({.name = "prova.zlv",
                    .readTitle = "**ERRORE : ",
                    .quietWhenMissing = true,
                    .write = [] { SalvaDiario(InFolder("prova.zlv")); },
                    .read = [] { CaricaDiario(InFolder("prova.zlv")); }},
                   16, kDiaryValues),
        ListFile(),
        WithValues({.name = "ListePercorso", .descriptionOnly = true, .write = SalvaPercorsi, .read = CaricaPercorsi},
                   150, kRouteValues),
        WithValues({.name = "CalendarioGare", .write = ScriviCalendario, .read = LeggiCalendario}, 2200, kRaceValues),
        WithValues({.name = "Base.tab",
                    .write = [] { ScriviTabella(InFolder("Base.tab")); },
                    .read = [] { LeggiTabella(InFolder("Base.tab")); }},
                   10000, kTableValues),
        WithValues({.name = "nometab", .quietWhenMissing = true, .write = SalvaNomeTabella, .read = CaricaNomeTabella},
                   600000, kActiveTableValue),
        PointerFile(),
    };
}

Text Report(const Text& title, int error)
{
    return title + std::to_string(error) + " " + DescriptionOf(error);
}

void RunWithReport(const std::function<void()>& routine, const Text& report)
{
    MessageScript boxes;
    if (!report.empty()) {
        boxes.Expect(report);
    }
    routine();
    QVERIFY(boxes.AllShown());
}

} // namespace

const std::vector<SavedFile>& SavedFiles()
{
    static const std::vector<SavedFile> files = Describe();
    return files;
}

void AddFileRows()
{
    QTest::addColumn<int>("file");
    for (std::size_t i = 0; i < SavedFiles().size(); ++i) {
        QTest::newRow(SavedFiles()[i].name) << static_cast<int>(i);
    }
}

const SavedFile& FetchedFile()
{
    QFETCH(int, file);
    return SavedFiles()[static_cast<std::size_t>(file)];
}

Text WriteReport(const SavedFile& file, int error)
{
    return error == 0 ? Text() : Report(file.writeTitle, error);
}

Text ReadReport(const SavedFile& file, int error)
{
    if (error == 0 || (error == Errore::FileNonTrovato && file.quietWhenMissing)) {
        return {};
    }
    return file.descriptionOnly ? file.readTitle + DescriptionOf(error) + " Liste Percorso"
                                : Report(file.readTitle, error);
}

void WriteFor(const SavedFile& file, int error)
{
    RunWithReport(file.write, WriteReport(file, error));
}

void ReadFor(const SavedFile& file, int error)
{
    RunWithReport(file.read, ReadReport(file, error));
}

QByteArray WrongAfterCut(const SavedFile& file, const std::vector<std::string>& filed, std::size_t available)
{
    std::size_t whole = 0;
    for (std::size_t end = 0; whole < filed.size(); ++whole) {
        end += filed[whole].size() + 2;
        if (end > available) {
            break;
        }
    }
    const std::vector<std::string> lines = file.lines();
    if (whole < lines.size() && whole < filed.size() && lines[whole] == filed[whole]) {
        ++whole;
    }
    file.forget();
    std::vector<std::string> expected(filed.begin(), filed.begin() + static_cast<std::ptrdiff_t>(whole));
    if (!file.clearedWhenOpen) {
        const std::vector<std::string> before = file.lines();
        expected.insert(expected.end(), before.begin() + static_cast<std::ptrdiff_t>(whole), before.end());
    }
    return Difference(Lines(lines), Lines(expected));
}

} // namespace zelvia::test
