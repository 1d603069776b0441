// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/RunTimeError.h"
#include "core/Text.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace zelvia::fuzz
{

/// Ends the process, which the fuzzer reports as a finding, when the condition does not hold.
void Require(bool holds, const char* what);

/// The input as a text of the system.
Text InputText(const std::uint8_t* data, std::size_t size);

/// Its lines, as many as asked for; those that are missing are empty, and the last takes what is left.
std::vector<Text> InputLines(const std::uint8_t* data, std::size_t size, std::size_t count);

/// Takes numbers off the front of an input, and then the rest; after its end all is 0.
class Bytes
{
public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    template <typename Number>
    Number Take()
    {
        Number number{};
        TakeBytes(&number, sizeof number);
        return number;
    }
    Text Rest() const { return InputText(data_, size_); }

private:
    void TakeBytes(void* target, std::size_t count);

    const std::uint8_t* data_;
    std::size_t size_;
};

/// A folder, in memory where possible, removed when the process ends.
class Scratch
{
public:
    static const Scratch& Instance();

    Text Path(const std::string& name) const;
    Text Folder() const;
    void Write(const std::string& name, TextView bytes) const;
    Text Read(const std::string& name) const;

private:
    Scratch();
    ~Scratch();
    std::string folder_;
};

/// Answers the message boxes of its lifetime.
class Boxes
{
public:
    Boxes();
    ~Boxes();
    Boxes(const Boxes&) = delete;
    Boxes& operator=(const Boxes&) = delete;

    const std::vector<Text>& Shown() const { return shown_; }

    /// At most one box came, and it is the report of one of these errors: title, number, blank, description.
    void RequireReport(TextView title, std::initializer_list<int> errors) const;

private:
    std::vector<Text> shown_;
};

/// The number of the run-time error that a block raises, 0 for none; any other exception is a finding.
template <typename Block>
int RaisedBy(Block&& block)
{
    try {
        block();
    } catch (const ErroreRunTime& error) {
        return error.Number();
    }
    return 0;
}

/// Ends the process unless `error` is 0 or one of these.
void RequireError(int error, std::initializer_list<int> errors);

/// A file of the system with the routines on it.
struct FileKind {
    const char* file;
    std::function<void()> blank;
    std::function<void()> read;
    std::function<void()> write;
    /// True when the format can hold what is in memory: no text has a double quote.
    std::function<bool()> holdable;
    /// The report of the damage found by a load is the right one, or there is none.
    std::function<void(const Boxes&)> requireReport;
    /// One in so many inputs is also written and read again.
    unsigned roundTripOneIn = 1;
};

/// Reads the input as a file of the format; the result must survive writing, reading and writing again.
void ReadAndReturn(const FileKind& kind, const std::uint8_t* data, std::size_t size);

inline bool HasQuote(TextView text)
{
    return text.find('"') != TextView::npos;
}

/// What a load reports of a file whose bytes are damaged: a premature end, another kind of value, a number too large.
inline constexpr std::initializer_list<int> kDamage = {Errore::Overflow, Errore::TipoNonCorrispondente,
                                                       Errore::FineFile};

} // namespace zelvia::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
