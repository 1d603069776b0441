// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"
#include "tools/copies/SafeFiles.h"
#include "tools/merge/Merge.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/FileCheck.h"
#include "tools/strumenti/MergeSources.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* kMergeLabel = "unisci";

std::string_view NameOf(Side side)
{
    return side == Side::Here ? "here" : side == Side::There ? "there" : "both";
}

std::string Value(const Text& value)
{
    return value.empty() ? Tools::Tr("niente") : "«" + ToUtf8(value) + "»";
}

/// What a value is called: the field of a day, else its line in the file.
std::string FieldName(FileKind kind, const SideChange& change, const SideField& field)
{
    if (kind == FileKind::Diary) {
        return ToUtf8(field.name);
    }
    if (kind == FileKind::List) {
        return Tools::Tr("voce");
    }
    static const std::vector<std::string> routes = RouteFields();
    static const std::vector<std::string> races = CalendarFields();
    const std::vector<std::string>& names = kind == FileKind::Routes ? routes : races;
    const std::size_t parts = kind == FileKind::Routes ? 200 : 100;
    const int place = change.here != 0 ? change.here : change.there;
    return names[static_cast<std::size_t>(place - 1) * (names.size() / parts) + static_cast<std::size_t>(field.line)];
}

/// What a part is called in a line of its own.
std::string PartName(FileKind kind, const SideChange& change)
{
    if (kind == FileKind::Races && !change.date.empty()) {
        return Tools::Tr("gara del %1/%2/%3", change.date.substr(8, 2), change.date.substr(5, 2),
                         change.date.substr(0, 4));
    }
    return kind == FileKind::Table ? Tools::Tr("tutta la tabella") : ToUtf8(change.name);
}

/// Merges one version after the other in memory, shows what that changes and asks what has to be asked.
class Merger
{
public:
    explicit Merger(Context& context) : context_(context) {}

    void Merge(const OtherVersion& version)
    {
        const auto here = Here(version.file);
        const Text there = ReadFile(version.other);
        if (IsRefused(version, here, there)) {
            ++left_;
            return;
        }
        const std::vector<Text> copies = CopiesOf(version, Folders(version));
        if (!here) {
            TakeWhole(version, copies, there);
            return;
        }
        const auto found = FindBase(version.kind, copies, *here, there);
        const std::optional<Text> base = found ? std::optional(copies[*found]) : std::nullopt;
        std::vector<SideChange> changes = CompareSides(version.kind, base, *here, there);
        if (!version.conflict && changes.empty()) {
            return;
        }
        Show(version, changes);
        std::size_t left = Decide(version, changes);
        const std::vector<SideChange> wanted = changes;
        Keep(version.file, *here, MergedFile(version.kind, base, *here, there, changes));
        left += TellFull(version, wanted, changes);
        left_ += left;
        for (const SideChange& change : changes) {
            AddRows(version, change);
            taken_ += change.taken ? 1U : 0U;
        }
        if (version.conflict && left == 0) {
            settled_.insert(*version.conflict);
        }
    }

    void Prepare(FileSet& files) const
    {
        for (const auto& [file, bytes] : changed_) {
            files.Write(file, bytes);
        }
        for (const std::string& conflict : settled_) {
            files.Remove(conflict);
        }
    }

    bool ChangesNothing() const { return changed_.empty() && settled_.empty(); }
    std::size_t Left() const { return left_; }
    std::size_t Taken() const { return taken_; }
    std::size_t Settled() const { return settled_.size(); }
    const Table& Rows() const { return table_; }

private:
    /// The file as it is by now, none when there is none.
    std::optional<Text> Here(const std::string& file) const
    {
        if (const auto merged = changed_.find(file); merged != changed_.end()) {
            return merged->second;
        }
        RefuseLinks(context_.Folder(), file);
        const fs::path path = context_.Folder() / file;
        return fs::exists(path) ? std::optional<Text>(ReadFile(path)) : std::nullopt;
    }

    /// The program folders whose copies may hold what both come from.
    std::vector<fs::path> Folders(const OtherVersion& version) const
    {
        fs::path other = version.other;
        for ([[maybe_unused]] const fs::path& part : fs::path(version.file)) {
            other = other.parent_path();
        }
        return {context_.Folder(), other};
    }

    static std::string Shown(const OtherVersion& version)
    {
        return version.conflict ? *version.conflict : version.other.string();
    }

    bool IsRefused(const OtherVersion& version, const std::optional<Text>& here, const Text& there)
    {
        const auto refuse = [&](const std::string& why) {
            context_.Err() << Tools::Tr("«%1» resta com'è: %2.", Shown(version), why) << "\n";
            return true;
        };
        if (const std::string damage = DamageOf(version.kind, Shown(version), there); !damage.empty()) {
            return refuse(Tools::Tr("è rovinato (%1)", damage));
        }
        if (!here) {
            return false;
        }
        if (const std::string damage = DamageOf(version.kind, version.file, *here); !damage.empty()) {
            return refuse(Tools::Tr("prima va riparato «%1» (%2)", version.file, damage));
        }
        if (version.kind == FileKind::Diary && YearOfDiary(*here) != YearOfDiary(there)) {
            return refuse(Tools::Tr("è del %1, e «%2» del %3", YearOfDiary(there), version.file, YearOfDiary(*here)));
        }
        return false;
    }

    /// A file that only the other side has; one that was there and has gone is not brought back.
    void TakeWhole(const OtherVersion& version, const std::vector<Text>& copies, const Text& there)
    {
        if (version.kind == FileKind::Pointer || (!version.conflict && !copies.empty())) {
            return;
        }
        context_.Told() << Tools::Tr("%1: c'è soltanto di là", version.file) << "\n";
        table_.rows.push_back({"", version.file, "", "", "", "there"});
        changed_[version.file] = there;
        ++taken_;
        if (version.conflict) {
            settled_.insert(*version.conflict);
        }
    }

    void Show(const OtherVersion& version, const std::vector<SideChange>& changes)
    {
        std::ostream& out = context_.Told();
        out << version.file << " e «" << Shown(version) << "»:\n";
        for (const SideChange& change : changes) {
            if (change.side == Side::There) {
                out << Tools::Tr("  %1: cambiato di là", PartName(version.kind, change)) << "\n";
                ShowFields(version.kind, change);
            }
        }
        const auto here = std::count_if(changes.begin(), changes.end(),
                                        [](const SideChange& change) { return change.side == Side::Here; });
        if (changes.empty()) {
            out << Tools::Tr("  nessuna differenza") << "\n";
        } else if (here > 0) {
            out << Tools::Tr("  cambiati soltanto qui, restano: %1", here) << "\n";
        }
    }

    void ShowFields(FileKind kind, const SideChange& change)
    {
        for (const SideField& field : change.fields) {
            context_.Told() << Tools::Tr("    %1: prima %2, qui %3, di là %4", FieldName(kind, change, field),
                                         Value(field.base), Value(field.here), Value(field.there))
                            << "\n";
        }
    }

    /// Shows what both have changed and asks about it. Returns how much is left undecided.
    std::size_t Decide(const OtherVersion& version, std::vector<SideChange>& changes)
    {
        std::size_t left = 0;
        for (SideChange& change : changes) {
            if (change.side != Side::Both) {
                continue;
            }
            context_.Told() << Tools::Tr("  %1: cambiato qui e di là", PartName(version.kind, change)) << "\n";
            ShowFields(version.kind, change);
            change.taken = context_.Chosen().overwrite || context_.Agrees(Tools::Tr("  Prendere quello di là?"));
            left += change.taken || context_.Asks() ? 0U : 1U;
        }
        return left;
    }

    /// Says what was wanted and has no place any more. Returns how much that is.
    std::size_t TellFull(const OtherVersion& version, const std::vector<SideChange>& wanted,
                         const std::vector<SideChange>& changes)
    {
        std::size_t full = 0;
        for (std::size_t i = 0; i < changes.size(); ++i) {
            if (wanted[i].taken && !changes[i].taken) {
                context_.Err() << Tools::Tr("In «%1» non c'è più posto per «%2», che resta di là.", version.file,
                                            ToUtf8(changes[i].name))
                               << "\n";
                ++full;
            }
        }
        return full;
    }

    void Keep(const std::string& file, const Text& here, Text merged)
    {
        if (merged != here) {
            changed_[file] = std::move(merged);
        }
    }

    void AddRows(const OtherVersion& version, const SideChange& change)
    {
        const std::string side(NameOf(change.side));
        if (version.kind == FileKind::Table) {
            table_.rows.push_back({"", version.file, "", "", "", side});
        }
        for (const SideField& field : change.fields) {
            const std::string name = FieldName(version.kind, change, field);
            table_.rows.push_back({change.date, version.kind == FileKind::Diary ? name : version.file + ", " + name,
                                   ToUtf8(field.base), ToUtf8(field.here), ToUtf8(field.there), side});
        }
    }

    Context& context_;
    std::map<std::string, Text> changed_;
    std::set<std::string> settled_; ///< Conflict copies that nothing is left of.
    std::size_t left_ = 0;
    std::size_t taken_ = 0;
    Table table_{{{"date"}, {"field"}, {"base"}, {"here"}, {"there"}, {"state"}}, {}};
};

int StatusOf(Context& context, const Merger& merger)
{
    return merger.Left() > 0 && !context.Chosen().rehearsal ? kNotDone : kDone;
}

} // namespace

int RunMerge(Context& context, Arguments& arguments)
{
    const std::vector<std::string> words = arguments.TakeWords(0, std::numeric_limits<std::size_t>::max());
    Merger merger(context);
    for (const OtherVersion& version : OtherVersions(context, words)) {
        merger.Merge(version);
    }
    if (context.Chosen().tsv) {
        context.Print(merger.Rows());
    }
    if (merger.Left() > 0 || !merger.ChangesNothing()) {
        context.Told() << Tools::Tr("Da prendere: %1. Restano da decidere: %2.", merger.Taken(), merger.Left()) << "\n";
    }
    if (merger.ChangesNothing()) {
        context.Told() << (merger.Left() > 0 ? Tools::Tr("Niente è stato cambiato.") + "\n"
                                             : Tools::Tr("Non c'è niente da unire.") + "\n");
        return StatusOf(context, merger);
    }
    if (const auto status = context.AskFirst(Tools::Tr("Unire?"))) {
        return *status;
    }
    FileSet files(context.Folder(), kMergeLabel);
    merger.Prepare(files);
    const int status = context.Apply(files);
    context.Told() << (merger.Settled() > 0
                           ? Tools::Tr("Fatto. I file in conflitto sono nell'ultima copia di sicurezza.")
                           : Tools::Tr("Fatto."))
                   << "\n";
    return std::max(status, StatusOf(context, merger));
}

} // namespace zelvia
