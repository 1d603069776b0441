// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/FileWatch.h"

#include "core/Files.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/SelectionLists.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "toolkit/QtText.h"
#include "windows/page/FrmMain.h"

#include <QDirIterator>
#include <QFileInfo>

#include <functional>
#include <tuple>

namespace zelvia::monkey
{
namespace
{

using namespace Module1;
using test::LineOf;

constexpr int kDays = 366;

/// Lines of values, each ended as in a file.
class Lines
{
public:
    template <typename Value>
    void Add(const Value& value)
    {
        bytes_ += LineOf(value) + "\r\n";
    }

    const Text& Bytes() const { return bytes_; }

private:
    Text bytes_;
};

Text DiaryInMemory()
{
    Text bytes;
    for (int slot = 1; slot <= kDays; ++slot) {
        bytes += test::Lines(test::LinesOfDay(Giorni[slot]));
    }
    return bytes;
}

Text RoutesInMemory()
{
    Lines lines;
    for (int route = 1; route <= 200; ++route) {
        lines.Add(NomiPercorso[route]);
        lines.Add(DistanzePercorso[route]);
        for (int stretch = 1; stretch <= 20; ++stretch) {
            lines.Add(TrattoDescrizione[route][stretch]);
            lines.Add(TrattoKm[route][stretch]);
            lines.Add(TrattoMetri[route][stretch]);
        }
    }
    return lines.Bytes();
}

Text CalendarInMemory()
{
    Lines lines;
    for (int row = 1; row <= 100; ++row) {
        std::apply([&](const auto&... column) { (lines.Add(column[row]), ...); },
                   std::tie(NumeroGara, GiornoGara, MeseGara, AnnoGara, Gara, Localita, KmGara, MetriGara, Partecipanti,
                            Risultato, OreGara, MinutiGara, SecondiGara, Module1::Categoria, RisultatoCat));
    }
    return lines.Bytes();
}

Text TableInMemory()
{
    Lines lines;
    for (int row = 1; row <= 31; ++row) {
        std::apply([&](const auto&... column) { (lines.Add(column[row]), ...); },
                   std::tie(TabGiorno, TabKm, TabMetri, TabOre, TabMinuti, TabSecondi, TabMediaMinuti, TabMediaSecondi,
                            TabMediaMillesimi, TabAndatura, TabFondo, TabRipetVolte, TabRipetDistanza, TabRipetQuante,
                            TabRipetTempi));
    }
    lines.Add(TabDataInizio);
    return lines.Bytes();
}

/// All that the readers of the files fill.
auto ReadMemory()
{
    return std::tie(Giorni, CartellaDiario, NomiPercorso, DistanzePercorso, TrattoDescrizione, TrattoKm, TrattoMetri,
                    NumeroGara, GiornoGara, MeseGara, AnnoGara, Gara, Localita, KmGara, MetriGara, Partecipanti,
                    Risultato, OreGara, MinutiGara, SecondiGara, Module1::Categoria, RisultatoCat, TabGiorno, TabKm,
                    TabMetri, TabOre, TabMinuti, TabSecondi, TabMediaMinuti, TabMediaSecondi, TabMediaMillesimi,
                    TabAndatura, TabFondo, TabRipetVolte, TabRipetDistanza, TabRipetQuante, TabRipetTempi,
                    TabDataInizio);
}

template <typename... T>
std::tuple<T...> Copy(const std::tuple<T&...>& values)
{
    return values;
}

/// Puts it back.
class KeptMemory
{
public:
    KeptMemory() : kept_(Copy(ReadMemory())) {}
    ~KeptMemory() { ReadMemory() = kept_; }
    KeptMemory(const KeptMemory&) = delete;
    KeptMemory& operator=(const KeptMemory&) = delete;

private:
    decltype(Copy(ReadMemory())) kept_;
};

enum class Kind { Diary, List, Routes, Calendar, Table, Pointer, Other };

Kind KindOf(const QString& file)
{
    const QString name = QFileInfo(file).fileName();
    if (file.startsWith(QLatin1String("ZelviaFile/"))) {
        return Kind::Diary;
    }
    if (name.endsWith(QLatin1String(".lsx"))) {
        return Kind::List;
    }
    if (name.endsWith(QLatin1String(".tab"), Qt::CaseInsensitive)) {
        return Kind::Table;
    }
    static const std::map<QString, Kind> names = {{QStringLiteral("ListePercorso"), Kind::Routes},
                                                  {QStringLiteral("CalendarioGare"), Kind::Calendar},
                                                  {QStringLiteral("nometab"), Kind::Pointer},
                                                  {QStringLiteral("nomeload"), Kind::Pointer}};
    const auto found = names.find(name);
    return found == names.end() ? Kind::Other : found->second;
}

Text ListOnPage(const QString& file, const frmMain& page)
{
    Lines lines;
    for (const SelectionList list : kFiledLists) {
        if (QFileInfo(file).completeBaseName().toStdString() == ListName(list)) {
            for (const Text& entry : page.listFields[static_cast<int>(list)].lst->Items()) {
                lines.Add(entry);
            }
        }
    }
    return lines.Bytes();
}

} // namespace

QString FileWatch::Look(const frmMain* page)
{
    std::map<QString, Stamp> stamps;
    const qsizetype root = folder_.Native().size() + 1;
    QDirIterator walk(folder_.Native(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        const QString file = walk.filePath().mid(root);
        if (file != QLatin1String(".zelvia.lock")) {
            const QFileInfo info = walk.fileInfo();
            stamps[file] = {info.lastModified(), info.size()};
        }
    }
    QString wrong;
    QStringList written;
    if (std::exchange(known_, true)) {
        for (const auto& [file, stamp] : stamps) {
            const auto before = stamps_.find(file);
            if (before == stamps_.end() || before->second != stamp) {
                written << file;
                wrong += CheckWritten(file, page);
            }
        }
        for (const auto& [file, stamp] : stamps_) {
            if (!stamps.contains(file)) {
                changed_ << file;
            }
        }
    }
    stamps_ = std::move(stamps);
    changed_ << written;
    return wrong + ReadBack(written);
}

QString FileWatch::CheckWritten(const QString& file, const frmMain* page)
{
    ++checked;
    Text expected;
    switch (KindOf(file)) {
    case Kind::Diary: expected = DiaryInMemory(); break;
    case Kind::List:
        if (page == nullptr) {
            return file + QLatin1String(" was written without a page. ");
        }
        expected = ListOnPage(file, *page);
        break;
    case Kind::Routes: expected = RoutesInMemory(); break;
    case Kind::Calendar: expected = CalendarInMemory(); break;
    case Kind::Table: expected = TableInMemory(); break;
    case Kind::Pointer: expected = LineOf(NomeTabellaAttiva) + "\r\n"; break;
    case Kind::Other: return file + QLatin1String(" is none of the program's files. ");
    }
    const QByteArray difference = test::Difference(test::TextOf(folder_.Read(file)), expected);
    return difference.isEmpty() ? QString()
                                : file + QLatin1String(" is not what memory holds: ") + QString::fromLatin1(difference);
}

QString FileWatch::ReadBack(const QStringList& files) const
{
    if (files.isEmpty()) {
        return {};
    }
    const KeptMemory kept;
    QString wrong;
    for (const QString& file : files) {
        wrong += ReadBack(file);
    }
    return wrong;
}

QString FileWatch::ReadBack(const QString& file) const
{
    const test::MessageLog reports;
    const Text path = folder_.System(file);
    const Text copy = path + ".copy";
    CartellaDiario = path.substr(0, path.rfind('\\'));
    const Text before = test::TextOf(folder_.Read(file));
    Text after;
    const auto rewritten = [&](const std::function<void()>& write) {
        write();
        after = test::TextOf(folder_.Read(file + QLatin1String(".copy")));
        folder_.Remove(file + QLatin1String(".copy"));
    };
    switch (KindOf(file)) {
    case Kind::Diary:
        CaricaDiario(path);
        rewritten([&] { SalvaDiario(copy); });
        break;
    case Kind::List: {
        std::vector<Text> entries;
        ReadEntries(path, entries);
        rewritten([&] { WriteEntries(copy, entries); });
        break;
    }
    case Kind::Table:
        LeggiTabella(path);
        rewritten([&] { ScriviTabella(copy); });
        break;
    // These two have a name of their own: what is read is spelt out here.
    case Kind::Routes:
        CaricaPercorsi();
        after = RoutesInMemory();
        break;
    case Kind::Calendar:
        LeggiCalendario();
        after = CalendarInMemory();
        break;
    case Kind::Pointer: after = LineOf(ReadPointer(path)) + "\r\n"; break;
    case Kind::Other: return {};
    }
    if (!reports.texts.empty()) {
        return file + QLatin1String(" can't be read: ") + ToQString(reports.texts.front());
    }
    const QByteArray difference = test::Difference(after, before);
    return difference.isEmpty() ? QString()
                                : file + QLatin1String(" is not stable: ") + QString::fromLatin1(difference);
}

QString FileWatch::ReadAll()
{
    QStringList files;
    for (const auto& [file, stamp] : stamps_) {
        files << file;
    }
    return ReadBack(files);
}

QString FileWatch::DiaryDifference(const Text& path) const
{
    if (path.empty()) {
        return {};
    }
    const QString native = QString::fromStdString(NativePath(path).string());
    if (!QFileInfo::exists(native)) {
        return {};
    }
    const Text bytes = test::ReadWhole(native.toStdString());
    return QString::fromLatin1(test::Difference(DiaryInMemory(), bytes));
}

} // namespace zelvia::monkey
