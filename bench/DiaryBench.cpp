// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Reads and writes a year's diary: the sample one, one with every field filled, and the sample with one note that
// grows.
#include "bench/Measure.h"
#include "core/Files.h"
#include "core/MessageBox.h"
#include "diary/Fields.h"
#include "diary/Module1.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

constexpr int kRounds = 400;
constexpr std::size_t kNotes[] = {10, 1'000, 100'000, 1'000'000}; ///< Bytes of the note.

std::string BytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

double ReadLines(const std::string& path)
{
    std::size_t read = 0;
    const double time = MillisecondsOf([&] { read = BytesByLines(path); });
    if (read == 0) {
        std::cerr << "diary_bench: nothing in " << path << '\n';
        std::exit(1);
    }
    return time;
}

double WriteAtOnce(const std::string& path, const std::string& bytes)
{
    bool complete = false;
    const double time = MillisecondsOf([&] {
        std::FILE* file = std::fopen(path.c_str(), "wb");
        complete = file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
        complete = complete && std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0;
        complete = file != nullptr && std::fclose(file) == 0 && complete;
    });
    if (!complete) {
        std::cerr << "diary_bench: cannot write " << path << '\n';
        std::exit(1);
    }
    return time;
}

void FillEveryField()
{
    for (int day = 1; day <= 366; ++day) {
        VisitDiaryValues(Module1::Giorni[day], [](auto& value) {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) {
                value = "Km 12  -  0:04:35  -  4:35";
            } else if constexpr (!std::is_same_v<std::decay_t<decltype(value)>, CalendarDate>) {
                value = 1234;
            }
        });
    }
}

/// Measures the year in Giorni, on files in `folder`.
void Measure(const std::string& year, const std::string& folder)
{
    const std::string native = folder + "/misura.zlv";
    const std::string other = folder + "/confronto.zlv";
    const Text path = SystemPath(native);
    Module1::SalvaDiario(path);
    const std::string bytes = BytesOf(native);

    const Samples load = Alternate(
        kRounds, [&] { return MillisecondsOf([&] { Module1::CaricaDiario(path); }); },
        [&] { return ReadLines(native); });
    PrintMedians(("CaricaDiario against getline, " + year).c_str(), load, "ms", "ratio <= 1.0");

    const Samples save = Alternate(
        kRounds, [&] { return MillisecondsOf([&] { Module1::SalvaDiario(path); }); },
        [&] { return WriteAtOnce(other, bytes); });
    PrintMedians(("SalvaDiario against fwrite and fsync, " + year).c_str(), save, "ms", "ratio <= 2.0");

    if (BytesOf(native) != BytesOf(other)) {
        std::cerr << "diary_bench: the diary written is not the diary read\n";
        std::exit(1);
    }
}

} // namespace

/// Takes the sample diary and a folder to write into.
int main(int argc, char* argv[])
{
    if (argc < 3) {
        return 2;
    }
    SetMsgBoxHandler([](const MsgRequest& request) {
        std::cerr << request.text << '\n';
        std::exit(1);
        return MsgAnswer::OK;
    });
    Module1::AzzeraAnno();
    Module1::CaricaDiario(SystemPath(argv[1]));
    Measure("sample", argv[2]);
    for (const std::size_t length : kNotes) {
        Module1::Giorni[100].Note[3] = Text(length, 'n');
        Measure("note " + std::to_string(length), argv[2]);
    }
    FillEveryField();
    Measure("full", argv[2]);
    return 0;
}
