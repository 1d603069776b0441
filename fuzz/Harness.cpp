// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Harness.h"

#include "core/Files.h"
#include "core/MessageBox.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>

namespace zelvia::fuzz
{
namespace
{

using File = std::unique_ptr<std::FILE, FileCloser>;

/// So that the same input is always treated the same.
unsigned Hash(const std::uint8_t* data, std::size_t size)
{
    unsigned hash = 2166136261U;
    for (std::size_t i = 0; i < size; ++i) {
        hash = (hash ^ data[i]) * 16777619U;
    }
    return hash >> 8;
}

void RequireStable(const FileKind& kind)
{
    const Scratch& scratch = Scratch::Instance();
    const Boxes boxes;
    kind.write();
    const Text first = scratch.Read(kind.file);
    kind.blank();
    kind.read();
    kind.write();
    Require(boxes.Shown().empty(), "a file that was written is read again");
    Require(scratch.Read(kind.file) == first, "a file that was read is written again as it was");
}

} // namespace

void Require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

Text InputText(const std::uint8_t* data, std::size_t size)
{
    return {data, data + size};
}

std::vector<Text> InputLines(const std::uint8_t* data, std::size_t size, std::size_t count)
{
    std::vector<Text> lines(count);
    Text rest = InputText(data, size);
    for (std::size_t i = 0; i < count; ++i) {
        const auto end = i + 1 < count ? std::min(rest.find('\n'), rest.size()) : rest.size();
        lines[i] = rest.substr(0, end);
        rest.erase(0, end + 1);
    }
    return lines;
}

void Bytes::TakeBytes(void* target, std::size_t count)
{
    const std::size_t taken = std::min(count, size_);
    if (taken > 0) {
        std::memcpy(target, data_, taken);
    }
    data_ += taken;
    size_ -= taken;
}

const Scratch& Scratch::Instance()
{
    static const Scratch scratch;
    return scratch;
}

Scratch::Scratch()
{
    namespace fs = std::filesystem;
    std::error_code none;
    const fs::path parent = fs::is_directory("/dev/shm", none) ? fs::path("/dev/shm") : fs::temp_directory_path();
    folder_ = (parent / "zelvia-fuzz-XXXXXX").string();
    Require(mkdtemp(folder_.data()) != nullptr, "a folder for the files");
}

Scratch::~Scratch()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

Text Scratch::Path(const std::string& name) const
{
    return SystemPath(folder_ + "/" + name);
}

Text Scratch::Folder() const
{
    return SystemPath(folder_);
}

void Scratch::Write(const std::string& name, TextView bytes) const
{
    const File file(std::fopen((folder_ + "/" + name).c_str(), "wb"));
    Require(file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size(), "the input as a file");
}

Text Scratch::Read(const std::string& name) const
{
    const std::string path = folder_ + "/" + name;
    Text bytes(std::filesystem::file_size(path), '\0');
    const File file(std::fopen(path.c_str(), "rb"));
    Require(file && std::fread(bytes.data(), 1, bytes.size(), file.get()) == bytes.size(), "the file that was written");
    return bytes;
}

Boxes::Boxes()
{
    SetMsgBoxHandler([this](const MsgRequest& request) {
        shown_.push_back(request.text);
        return MsgAnswer::OK;
    });
}

Boxes::~Boxes()
{
    SetMsgBoxHandler({});
}

void Boxes::RequireReport(TextView title, std::initializer_list<int> errors) const
{
    Require(shown_.size() <= 1, "one report at most");
    const auto isReport = [&](int error) {
        return shown_.front() == Text(title) + std::to_string(error) + " " + DescriptionOf(error);
    };
    Require(shown_.empty() || std::any_of(errors.begin(), errors.end(), isReport), "the report of the damage");
}

void RequireError(int error, std::initializer_list<int> errors)
{
    Require(error == 0 || std::find(errors.begin(), errors.end(), error) != errors.end(), "an error that is foreseen");
}

void ReadAndReturn(const FileKind& kind, const std::uint8_t* data, std::size_t size)
{
    Scratch::Instance().Write(kind.file, InputText(data, size));
    kind.blank();
    {
        const Boxes boxes;
        kind.read();
        kind.requireReport(boxes);
    }
    if (Hash(data, size) % kind.roundTripOneIn == 0 && kind.holdable()) {
        RequireStable(kind);
    }
}

} // namespace zelvia::fuzz
