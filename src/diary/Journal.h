// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/JournalFile.h"
#include "diary/JournalLines.h"
#include "diary/RecordValues.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace zelvia
{

/// Notes what memory holds and the files of the open diary do not, so that nothing is lost when the program ends
/// without saving, however it ends. A change is written at once and then brought to the disk by a thread of its own:
/// where the user waits, a look at all that may have changed and the writing take 40 microseconds (strumenti_Journal
/// says so). Without a place to write nothing is noted; nothing is ever reported or raised.
///
/// The file is bounded: beyond 256 KiB, or twice what is left of it, it is rewritten with one line for each record.
class Journal
{
public:
    static Journal& Instance();

    Journal() = default;
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;
    ~Journal() { End(); }

    /// From now on the open diary's changes are noted.
    void Begin() { noting_ = true; }
    bool Noting() const { return noting_; }
    /// Stops noting and returns when everything is on the disk.
    void End();

    /// A diary has been opened or begun: what memory holds is what its files hold.
    void Opened() noexcept;
    /// Notes what has changed. `shown` is the day GiornoCorrente as the page has it.
    void Look(const RecordGiorno& shown) noexcept;

    /// The user does not want to save: what was noted of the open diary goes. The next look notes what is still there.
    void Forget() noexcept;
    /// The year was written to `path`, which is the diary's file from now on.
    void SavedDays(TextView path) noexcept;
    /// What memory holds of these records was written; index 0 stands for all of the kind.
    void Saved(RecordKind kind, int index = 0) noexcept;

private:
    void KeepDay(int slot);
    void KeepCompanions();
    void LookAtDay(int slot, const RecordGiorno& day);
    void LookAt(RecordKey key);
    void Note(RecordKey key, const Values& before, const Values& after);
    void ForgetNoted(RecordKind kind, int index);
    bool Write(const Text& line);
    bool Ready();
    void Clear();
    void Bound();
    void SyncSoon();
    void SyncLoop();

    bool noting_ = false;
    int slot_ = 0;                             ///< The day looked at last.
    std::map<int, RecordGiorno> days_;         ///< The days looked at since the diary was opened or saved, as its
                                               ///< file has them.
    std::map<RecordKey, Values> companions_;   ///< Lists, routes and races as their files have them.
    std::map<RecordKey, std::uint64_t> noted_; ///< The records that differ from them, as the journal has them.
    JournalDiary diary_;

    std::shared_ptr<JournalFile> file_;
    std::size_t start_ = 0; ///< Where this session begins in the file.
    std::size_t bound_ = 0; ///< The size at which the file is rewritten.
    bool begun_ = false;    ///< The session has its line there.

    std::mutex mutex_; ///< Guards what follows.
    std::condition_variable wake_;
    std::shared_ptr<const JournalFile> unsynced_;
    bool ending_ = false;
    std::thread thread_;
};

} // namespace zelvia
