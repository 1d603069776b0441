// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace zelvia::test
{

/// What is asked of the system for a file: opening it, reading, writing, closing and syncing it; listing a folder, the
/// next of its names; making a folder, opening and syncing one; deleting a file; looking at what a path leads to.
enum class Call { Open, Read, Write, Close, Sync, List, NextName, Make, SyncFolder, Delete, Look };

/// A call as it came.
struct Caught {
    std::string path; ///< From the folder on; empty for the folder itself.
    bool writes;      ///< Of a file that is open, or is to be opened, for writing.

    bool operator==(const Caught&) const = default;
};

/// The call that goes wrong.
struct Fault {
    Call call;
    int nth;
    int error;                       ///< The errno that it fails with; 0 lets it succeed.
    std::string name;                ///< Only calls on a path that ends so are counted.
    std::function<void()> meanwhile; ///< Runs just before the call, as another process would.
};

/// Makes one call of the thread that creates it fail, on whatever is in a folder, for as long as it lives. The calls
/// are caught where the program hands them to the C library, so that the program that is tested must be linked
/// together with this. A disk that is full takes the first half of what is written in the call that fails.
class FaultyDisk
{
public:
    FaultyDisk(std::string folder, Fault fault);
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// True once the call has come.
    bool Struck() const { return struck_; }
    /// The names of the files opened so far, in order, from the folder on.
    const std::vector<std::string>& Opened() const { return opened_; }
    /// The calls of the fault's kind so far, in order.
    const std::vector<Caught>& Calls() const { return calls_; }

    // For the catching functions.
    static FaultyDisk* Watching(const char* path);
    bool Fails(Call call, const std::string& path, bool writes);
    void NoteOpen(const std::string& path) { opened_.push_back(path.substr(folder_.size() + 1)); }
    int Error() const { return fault_.error; }

private:
    std::string folder_;
    Fault fault_;
    std::thread::id thread_ = std::this_thread::get_id();
    bool struck_ = false;
    std::vector<std::string> opened_;
    std::vector<Caught> calls_;
};

/// How many files this process holds open.
int OpenDescriptors();

} // namespace zelvia::test
