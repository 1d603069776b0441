// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/UnsavedWork.h"

#include "core/Files.h"
#include "core/Tr.h"
#include "diary/UnsavedRecords.h"

#include <algorithm>

namespace zelvia
{
namespace
{

constexpr std::size_t kTold = 12; ///< Lines of the sentence beyond which the rest is counted.

void AddWord(std::string& text, const std::string& word)
{
    text += (text.empty() ? "" : ", ") + word;
}

/// The fields of a day without their parts: "Ora Inizio" for its hours, minutes and seconds.
std::string NamesOf(const UnsavedRecord& record)
{
    std::vector<std::string> names;
    for (const ChangedField& field : FieldsOf(record)) {
        const std::string name = field.name.substr(0, field.name.find(','));
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(name);
        }
    }
    std::string text;
    for (const std::string& name : names) {
        AddWord(text, name);
    }
    return text;
}

std::string TextOf(const UnsavedRecord& record)
{
    return record.key.kind == RecordKind::Day ? TitleOf(record) + ": " + NamesOf(record) : TitleOf(record);
}

/// A piece for each day, and one for all records of each other kind.
std::vector<UnsavedWork::Piece> PiecesOf(const UnsavedDiary& diary)
{
    std::vector<UnsavedWork::Piece> pieces;
    for (const UnsavedRecord& record : diary.records) {
        const bool first = pieces.empty() || record.key.kind == RecordKind::Day || pieces.back().word != WordOf(record);
        if (first) {
            pieces.push_back({WordOf(record), diary.name, TextOf(record), record.conflict});
        } else {
            AddWord(pieces.back().text, TextOf(record));
            pieces.back().conflict = pieces.back().conflict || record.conflict;
        }
    }
    return pieces;
}

std::string SentenceOf(const std::vector<UnsavedWork::Piece>& pieces, bool several)
{
    std::string text = Tools::Tr("L'ultima volta non è stato salvato tutto ciò che era stato scritto nel diario:");
    for (std::size_t i = 0; i < pieces.size() && i < kTold; ++i) {
        text += "\n" + (several ? pieces[i].diary + ", " : "") + pieces[i].text;
    }
    if (pieces.size() > kTold) {
        text += "\n" + Tools::Tr("e altro ancora (%1)", pieces.size() - kTold);
    }
    return text;
}

std::optional<UnsavedWork> WorkOf(const UnsavedRecords& unsaved)
{
    UnsavedWork work;
    bool offered = true;
    for (const UnsavedDiary& diary : unsaved.diaries) {
        for (UnsavedWork::Piece& piece : PiecesOf(diary)) {
            work.pieces.push_back(std::move(piece));
        }
        offered = offered && std::all_of(diary.records.begin(), diary.records.end(),
                                         [](const UnsavedRecord& record) { return record.offered; });
    }
    if (offered) {
        return std::nullopt;
    }
    work.sentence = SentenceOf(work.pieces, unsaved.diaries.size() > 1);
    return work;
}

} // namespace

std::optional<UnsavedWork> FindUnsaved(const std::filesystem::path& folder)
{
    try {
        const UnsavedRecords unsaved = ReadUnsaved(SystemPath(folder.string()));
        if (unsaved.file && unsaved.diaries.empty() && unsaved.unreadable == 0) {
            // What a power cut after the last save has left.
            unsaved.file->Remove();
        }
        return WorkOf(unsaved);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

void RememberOffered(const std::filesystem::path& folder)
{
    if (const auto file = JournalFile::Open(SystemPath(folder.string()), false)) {
        file->Append((file->EndsLine() ? "" : "\n") + OfferedLine());
        file->Sync();
    }
}

} // namespace zelvia
