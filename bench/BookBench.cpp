// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the book of a year with an entry on every day, as HTML and as PDF, against a plain std::getline loop over the
// diary's file.
#include "bench/Measure.h"
#include "core/Files.h"
#include "diary/Module1.h"
#include "tools/book/BookContent.h"
#include "tools/book/BookHtml.h"
#include "tools/bookpages/PdfBook.h"
#include "tools/strumenti/Context.h"

#include <QApplication>

#include <cstdlib>
#include <iostream>
#include <string>

namespace
{

using namespace zelvia;
using namespace zelvia::bench;

constexpr int kRounds = 9;

/// Fills the days without a run with one that has most of its fields.
void FillYear()
{
    const RecordGiorno full = Module1::Giorni[7];
    for (int i = 1; i <= 366; ++i) {
        RecordGiorno& day = Module1::Giorni[i];
        if (day.Tipo.empty()) {
            day = full;
        }
    }
}

/// Measures what `make` returns the size of.
template <typename Make>
void MeasureBook(const char* name, const std::string& file, const char* figure, Make&& make)
{
    std::size_t made = 0;
    std::size_t read = 0;
    const Samples samples = Alternate(
        kRounds, [&] { return MillisecondsOf([&] { made += make(); }); },
        [&] { return MillisecondsOf([&] { read += BytesByLines(file); }); });
    if (made == 0 || read == 0) {
        std::cerr << "book_bench: nothing in " << file << '\n';
        std::exit(1);
    }
    PrintMedians(name, samples, "ms", figure);
}

} // namespace

/// Takes a program folder with the sample diary.
int main(int argc, char* argv[])
{
    if (argc < 2) {
        return 2;
    }
    const std::string folder = argv[1];
    const QApplication application(argc, argv);
    SetProgramFolder(SystemPath(folder));
    const auto load = [&] {
        LoadDiary(folder, "prova");
        FillYear();
        return MakeBook("prova", {});
    };
    const std::string file = folder + "/ZelviaFile/prova.zlv";
    MeasureBook("book of 366 days as HTML against getline", file, "ratio <= 40",
                [&] { return BookAsHtml(load()).size(); });
    MeasureBook("book of 366 days as PDF against getline", file, "ratio <= 1200",
                [&] { return static_cast<std::size_t>(BookAsPdf(load(), kA5, [](int, int) {}).size()); });
    return 0;
}
