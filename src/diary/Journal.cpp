// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Journal.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace zelvia
{
namespace
{

using namespace Module1;

constexpr std::size_t kBound = std::size_t(1) << 18;
constexpr RecordKind kCompanions[] = {RecordKind::List, RecordKind::Route, RecordKind::Race};

/// A failure of the journal is never the diary's: it is passed over in silence.
template <typename Work>
void Quietly(Work&& work) noexcept
{
    try {
        std::forward<Work>(work)();
    } catch (...) { // NOLINT(bugprone-empty-catch)
    }
}

bool IsMissing(TextView path)
{
    return TrapValueWith(
        false, [&] { return !std::filesystem::exists(NativePath(path)); }, [](const ErroreRunTime&) {});
}

} // namespace

Journal& Journal::Instance()
{
    static Journal journal;
    return journal;
}

void Journal::Opened() noexcept
{
    if (!noting_) {
        return;
    }
    Quietly([this] {
        // What was not saved of another diary stays in the journal.
        begun_ = false;
        start_ = file_ ? file_->Size() : 0;
        noted_.clear();
        days_.clear();
        diary_ = {ProgramFolder(), session.NomeFile, CartellaDiario, IsMissing(session.NomeFile), {}};
        slot_ = GiornoCorrente.value();
        KeepDay(slot_);
        KeepCompanions();
    });
}

void Journal::KeepDay(int slot)
{
    if (slot >= 1) {
        days_.try_emplace(slot, Giorni[slot]);
    }
}

void Journal::KeepCompanions()
{
    companions_.clear();
    for (const RecordKind kind : kCompanions) {
        for (const RecordKey key : RecordsOf(kind)) {
            if (!Holds(key, {})) {
                companions_[key] = ValuesOf(key);
            }
        }
    }
}

void Journal::Look(const RecordGiorno& shown) noexcept
{
    if (!noting_) {
        return;
    }
    Quietly([&] {
        const int slot = GiornoCorrente.value();
        if (slot_ != slot) {
            LookAtDay(slot_, Giorni[slot_]);
            KeepDay(slot);
            slot_ = slot;
        }
        LookAtDay(slot, shown);
        for (const RecordKind kind : kCompanions) {
            for (const RecordKey key : RecordsOf(kind)) {
                LookAt(key);
            }
        }
    });
}

void Journal::LookAtDay(int slot, const RecordGiorno& day)
{
    const auto kept = days_.find(slot);
    if (kept == days_.end()) {
        return;
    }
    const RecordKey key{RecordKind::Day, slot};
    if (!SameEntry(kept->second, day)) {
        Note(key, ValuesOf(kept->second), ValuesOf(day));
    } else if (noted_.contains(key)) {
        ForgetNoted(key.kind, key.index);
    }
}

void Journal::LookAt(RecordKey key)
{
    static const Values blank;
    const auto kept = companions_.find(key);
    const Values& before = kept == companions_.end() ? blank : kept->second;
    if (!Holds(key, before)) {
        Note(key, before, ValuesOf(key));
    } else if (noted_.contains(key)) {
        ForgetNoted(key.kind, key.index);
    }
}

void Journal::Note(RecordKey key, const Values& before, const Values& after)
{
    const Text line = ChangeLine(key, before, after);
    const std::uint64_t checksum = ChecksumOf(line);
    const auto noted = noted_.find(key);
    if (noted != noted_.end() && noted->second == checksum) {
        return;
    }
    if (Write(line)) {
        noted_[key] = checksum;
        Bound();
    }
}

void Journal::ForgetNoted(RecordKind kind, int index)
{
    const auto forgotten = [&](RecordKey key) { return key.kind == kind && (index == 0 || key.index == index); };
    if (std::erase_if(noted_, [&](const auto& row) { return forgotten(row.first); }) == 0) {
        return;
    }
    if (noted_.empty()) {
        Clear();
    } else {
        Write(SavedLine(kind, index));
    }
}

void Journal::Forget() noexcept
{
    Quietly([this] {
        noted_.clear();
        Clear();
    });
}

void Journal::SavedDays(TextView path) noexcept
{
    if (!noting_) {
        return;
    }
    Quietly([&] {
        days_.clear();
        slot_ = GiornoCorrente.value();
        KeepDay(slot_);
        ForgetNoted(RecordKind::Day, 0);
        begun_ = begun_ && diary_.file == path;
        diary_.file = path;
        diary_.fresh = false;
    });
}

void Journal::Saved(RecordKind kind, int index) noexcept
{
    if (!noting_) {
        return;
    }
    Quietly([&] {
        for (const RecordKey key : RecordsOf(kind)) {
            if (index == 0 || key.index == index) {
                companions_[key] = ValuesOf(key);
            }
        }
        ForgetNoted(kind, index);
    });
}

/// True when there is a journal that this session can add to.
bool Journal::Ready()
{
    if (!file_) {
        file_ = JournalFile::Open(diary_.folder, true);
        if (!file_) {
            return false;
        }
        begun_ = false;
        bound_ = kBound;
        if (!file_->EndsLine()) {
            file_->Append("\n");
        }
        start_ = file_->Size();
    }
    if (!begun_) {
        begun_ = file_->Append(SessionLine(diary_));
    }
    return begun_;
}

bool Journal::Write(const Text& line)
{
    const bool written = Ready() && file_->Append(line);
    if (written) {
        SyncSoon();
    }
    return written;
}

/// Nothing of this session is left to be noted.
void Journal::Clear()
{
    begun_ = false;
    if (!file_) {
        return;
    }
    if (start_ > 0) {
        file_->Cut(start_);
        SyncSoon();
    } else if (file_->Remove()) {
        SyncSoon();
        file_.reset();
    }
}

void Journal::Bound()
{
    if (file_->Size() < bound_) {
        return;
    }
    const Text bytes = file_->Read();
    const Text earlier = JournalBytes(ReadJournal(TextView(bytes).substr(0, start_)));
    if (auto file = file_->Rewritten(earlier + JournalBytes(ReadJournal(TextView(bytes).substr(start_))))) {
        file_ = std::move(file);
        start_ = earlier.size();
        SyncSoon();
    }
    bound_ = std::max(kBound, 2 * file_->Size());
}

void Journal::SyncSoon()
{
    const std::lock_guard lock(mutex_);
    unsynced_ = file_;
    if (!thread_.joinable()) {
        thread_ = std::thread([this] { SyncLoop(); });
    }
    wake_.notify_one();
}

void Journal::SyncLoop()
{
    std::unique_lock lock(mutex_);
    while (!ending_ || unsynced_) {
        wake_.wait(lock, [this] { return ending_ || unsynced_; });
        if (const auto file = std::exchange(unsynced_, nullptr)) {
            lock.unlock();
            file->Sync();
            lock.lock();
        }
    }
}

void Journal::End()
{
    noting_ = false;
    if (thread_.joinable()) {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        wake_.notify_one();
        thread_.join();
        ending_ = false;
    }
    file_.reset();
}

} // namespace zelvia
