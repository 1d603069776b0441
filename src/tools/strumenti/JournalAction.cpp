// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoxTexts.h"
#include "core/Conversions.h"
#include "core/Date.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/SelectionLists.h"
#include "diary/UnsavedRecords.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/Actions.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;
using namespace Module1;

constexpr std::string_view kOtherWords[] = {"liste", "percorsi", "calendario"};

/// A word of the command line as the journal's pieces are called.
std::string PieceWord(const std::string& word)
{
    if (std::find(std::begin(kOtherWords), std::end(kOtherWords), word) != std::end(kOtherWords)) {
        return word;
    }
    const auto tryDate = [&](auto&& read) {
        return TrapValueWith(
            std::string(), [&] { return Format(read(), "yyyy-mm-dd"); }, [](const ErroreRunTime&) {});
    };
    std::string iso = tryDate([&] { return IsoDate(word); });
    if (iso.empty()) {
        iso = tryDate([&] { return DateValue(word); });
    }
    if (iso.empty()) {
        throw Misuse{Tools::Tr(
            "«%1» non è una data come 2026-05-20 o 20/05/2026, né «liste», «percorsi» o «calendario».", word)};
    }
    return iso;
}

/// The journal of the chosen diary, or of all of the folder.
UnsavedRecords Read(Context& context)
{
    UnsavedRecords unsaved = ReadUnsaved(SystemPath(context.Folder().string()));
    if (unsaved.busy) {
        throw FileFailure(Tools::Tr("il giornale è aperto: chiudere il diario e riprovare"));
    }
    if (const auto& chosen = context.Chosen().diary) {
        std::erase_if(unsaved.diaries, [&](const UnsavedDiary& diary) { return diary.name != *chosen; });
    }
    if (unsaved.unreadable > 0) {
        context.Err() << (unsaved.unreadable == 1
                              ? Tools::Tr("Del giornale 1 riga è rovinata e non conta.")
                              : Tools::Tr("Del giornale %1 righe sono rovinate e non contano.", unsaved.unreadable))
                      << "\n";
    }
    return unsaved;
}

bool IsEmpty(const UnsavedRecords& unsaved)
{
    return unsaved.diaries.empty();
}

void Show(Context& context, const UnsavedRecords& unsaved)
{
    Table table{{{"date", Tools::Mark("Giorno")},
                 {"field", Tools::Mark("Campo")},
                 {"before", Tools::Mark("Nel diario")},
                 {"after", Tools::Mark("Non salvato")}},
                {}};
    for (const UnsavedDiary& diary : unsaved.diaries) {
        if (!context.Chosen().tsv && unsaved.diaries.size() > 1) {
            table.rows.push_back({"«" + diary.name + "»", "", "", ""});
        }
        for (const UnsavedRecord& record : diary.records) {
            for (const ChangedField& field : FieldsOf(record)) {
                table.rows.push_back({field.date, field.name, field.before, field.after});
            }
        }
    }
    context.Print(table);
}

/// Says why a record can't be brought back as it is.
void TellConflict(Context& context, const UnsavedDiary& diary, const UnsavedRecord& record)
{
    const std::string name = diary.name.empty() ? ToUtf8(diary.journal.file) : diary.name;
    context.Err() << "«" << name << "», " << TitleOf(record) << ": ";
    if (diary.missing || diary.name.empty()) {
        context.Err() << Tools::Tr("il diario non c'è più, o non è in questa cartella.") << "\n";
    } else {
        context.Err() << Tools::Tr("nel file c'è ormai altro, che resta com'è; --sovrascrivi lo sostituisce.") << "\n";
    }
}

/// Keeps of each diary what the words name (all for none) and can be brought back; says what can't.
int Choose(Context& context, UnsavedRecords& unsaved, const std::vector<std::string>& words)
{
    int leftAlone = 0;
    for (UnsavedDiary& diary : unsaved.diaries) {
        const bool gone = diary.missing || diary.name.empty();
        std::erase_if(diary.records, [&](const UnsavedRecord& record) {
            const bool wanted = words.empty() || std::find(words.begin(), words.end(), WordOf(record)) != words.end();
            const bool stays = wanted && (gone || (record.conflict && !context.Chosen().overwrite));
            if (stays) {
                TellConflict(context, diary, record);
                ++leftAlone;
            }
            return stays || !wanted;
        });
    }
    std::erase_if(unsaved.diaries, [](const UnsavedDiary& diary) { return diary.records.empty(); });
    return leftAlone;
}

void RefuseUnknown(const UnsavedRecords& unsaved, const std::vector<std::string>& words)
{
    for (const std::string& word : words) {
        const bool known = std::any_of(unsaved.diaries.begin(), unsaved.diaries.end(), [&](const UnsavedDiary& diary) {
            return std::any_of(diary.records.begin(), diary.records.end(),
                               [&](const UnsavedRecord& record) { return WordOf(record) == word; });
        });
        if (!known) {
            throw FileFailure(Tools::Tr("nel giornale non c'è niente di «%1»", word));
        }
    }
}

/// The blank year of a diary that was never saved.
void BlankYear(const UnsavedRecord& day)
{
    const CalendarDate first(IsoDate(day.after.at(1)).Year().value(), 1, 1);
    for (int i = 1; i <= 366; ++i) {
        Giorni[i] = RecordGiorno();
        Giorni[i].NumGiorno = i;
        Giorni[i].Data = first.PlusDays(i - 1);
    }
}

/// Prepares the files of a diary with the records in them.
class Preparation
{
public:
    Preparation(Context& context, FileSet& files, const UnsavedDiary& diary)
        : context_(context), files_(files), diary_(diary)
    {
    }

    void Run()
    {
        const BoxTexts boxes;
        try {
            PrepareDays();
            PrepareLists();
            PrepareWhole(RecordKind::Route, "ListePercorso", SalvaPercorsi);
            PrepareWhole(RecordKind::Race, "CalendarioGare", ScriviCalendario);
        } catch (const ErroreRunTime& error) {
            RaiseUnwritten(error.Description());
        }
        if (!boxes.All().empty()) {
            RaiseUnwritten(boxes.All().front());
        }
    }

private:
    [[noreturn]] void RaiseUnwritten(const Text& why) const
    {
        throw FileFailure(Tools::Tr("nel diario «%1» non si può riportare tutto («%2»)", diary_.name, ToUtf8(why)));
    }

    std::vector<UnsavedRecord> Of(RecordKind kind) const
    {
        std::vector<UnsavedRecord> records;
        std::copy_if(diary_.records.begin(), diary_.records.end(), std::back_inserter(records),
                     [&](const UnsavedRecord& record) { return record.key.kind == kind; });
        return records;
    }

    void PrepareDays()
    {
        const std::vector<UnsavedRecord> days = Of(RecordKind::Day);
        if (days.empty()) {
            return;
        }
        if (fs::exists(context_.Folder() / DiaryFile(diary_.name))) {
            context_.Load(diary_.name);
        } else {
            BlankYear(days.front());
        }
        for (const UnsavedRecord& day : days) {
            Restore(day.key, day.after);
        }
        SalvaDiario(SystemPath(files_.PlaceOf(DiaryFile(diary_.name)).string()));
    }

    fs::path Companion(const std::string& file) const { return DiaryFolder(diary_.name) / file; }

    void PrepareLists()
    {
        for (const UnsavedRecord& list : Of(RecordKind::List)) {
            const std::string file = std::string(ListName(static_cast<SelectionList>(list.key.index))) + ".lsx";
            WriteEntries(SystemPath(files_.PlaceOf(Companion(file)).string()), list.after);
        }
    }

    /// A file of which some records change and the others stay.
    void PrepareWhole(RecordKind kind, const std::string& file, void (*write)())
    {
        const std::vector<UnsavedRecord> records = Of(kind);
        if (records.empty()) {
            return;
        }
        if (!ReadRecords(diary_.journal, kind)) {
            throw FileFailure(Tools::Tr("«%1» non si legge: «zelvia-strumenti controlla» dice dove", Companion(file)));
        }
        for (const UnsavedRecord& record : records) {
            Restore(record.key, record.after);
        }
        CartellaDiario = SystemPath(files_.PlaceOf(Companion(file)).parent_path().string());
        write();
    }

    Context& context_;
    FileSet& files_;
    const UnsavedDiary& diary_;
};

/// Takes what was brought back, or all of the diaries, out of the journal.
bool TakeOut(Context& context, const UnsavedRecords& taken, bool whole)
{
    JournalContent content = ReadJournal(taken.file->Read());
    for (const UnsavedDiary& diary : taken.diaries) {
        for (JournalDiary& kept : content.diaries) {
            if (kept.file != diary.journal.file) {
                continue;
            }
            for (const UnsavedRecord& record : diary.records) {
                kept.changes.erase(record.key);
            }
            if (whole) {
                kept.changes.clear();
            }
        }
    }
    const Text bytes = JournalBytes(content);
    const bool done = bytes.empty() ? taken.file->Remove() : taken.file->Rewritten(bytes) != nullptr;
    taken.file->Sync();
    if (!done) {
        context.Err() << Tools::Tr("Non si è potuto aggiornare il giornale.") << "\n";
    }
    return done;
}

int BringBack(Context& context, const std::vector<std::string>& words)
{
    UnsavedRecords unsaved = Read(context);
    RefuseUnknown(unsaved, words);
    const int leftAlone = Choose(context, unsaved, words);
    const int status = leftAlone > 0 ? kNotDone : kDone;
    if (IsEmpty(unsaved)) {
        context.Told() << Tools::Tr("Non c'è niente da riportare.") << "\n";
        return context.Chosen().rehearsal ? kDone : status;
    }
    Show(context, unsaved);
    if (const auto answered = context.AskFirst(Tools::Tr("Riportare nel diario?"))) {
        return *answered;
    }
    FileSet files(context.Folder(), "giornale");
    for (const UnsavedDiary& diary : unsaved.diaries) {
        Preparation(context, files, diary).Run();
    }
    const int applied = context.Apply(files);
    if (applied == kDone) {
        TakeOut(context, unsaved, false);
    }
    context.Told() << Tools::Tr("Fatto.") << "\n";
    return std::max(applied, status);
}

int Forget(Context& context)
{
    const UnsavedRecords unsaved = Read(context);
    if (IsEmpty(unsaved) && unsaved.unreadable == 0) {
        context.Told() << Tools::Tr("Il giornale è vuoto.") << "\n";
        return kDone;
    }
    Show(context, unsaved);
    if (const auto answered = context.AskFirst(Tools::Tr("Dimenticare tutto questo?"))) {
        return *answered;
    }
    if (!TakeOut(context, unsaved, true)) {
        return kNotDone;
    }
    context.Told() << Tools::Tr("Fatto.") << "\n";
    return kDone;
}

int List(Context& context)
{
    const UnsavedRecords unsaved = Read(context);
    Show(context, unsaved);
    for (const UnsavedDiary& diary : unsaved.diaries) {
        for (const UnsavedRecord& record : diary.records) {
            if (record.conflict) {
                TellConflict(context, diary, record);
            }
        }
    }
    if (IsEmpty(unsaved) && !context.Chosen().tsv) {
        context.Told() << Tools::Tr("Tutto è stato salvato.") << "\n";
    }
    return kDone;
}

} // namespace

int RunJournal(Context& context, Arguments& arguments)
{
    std::vector<std::string> words = arguments.TakeWords(0, std::numeric_limits<std::size_t>::max());
    if (words.empty()) {
        return List(context);
    }
    const std::string verb = words.front();
    words.erase(words.begin());
    if (verb == "riprendi") {
        std::transform(words.begin(), words.end(), words.begin(), PieceWord);
        return BringBack(context, words);
    }
    if (verb != "dimentica" || !words.empty()) {
        throw Misuse{Tools::Tr("«giornale» va da solo, con «riprendi [DATA ...]» o con «dimentica».")};
    }
    return Forget(context);
}

} // namespace zelvia
