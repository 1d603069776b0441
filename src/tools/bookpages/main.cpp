// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// zelvia-libro FOLDER DIARY a4|a5: writes the book of a diary as a PDF to its output. Run by zelvia-strumenti, which
// holds the lock of the folder; it needs no display.
#include "core/Files.h"
#include "tools/book/BookContent.h"
#include "tools/bookpages/PdfBook.h"
#include "tools/strumenti/Context.h"

#include <QApplication>
#include <QHashFunctions>

#include <exception>
#include <iostream>
#include <string_view>

int main(int argc, char** argv)
{
    using namespace zelvia;
    constexpr int words = 4;
    if (argc != words) {
        return kMisused;
    }
    // What Qt warns of is nothing to the runner.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // Qt numbers the faces of a PDF in the order of a hash.
    QHashSeed::setDeterministicGlobalSeed();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    try {
        const std::filesystem::path folder = argv[1];
        SetProgramFolder(SystemPath(folder.string()));
        LoadDiary(folder, argv[2]);
        const Book book = MakeBook(argv[2], ReadAllDiaries(folder));
        for (const std::string& warning : book.warnings) {
            std::cerr << warning << ".\n";
        }
        const QByteArray pdf = BookAsPdf(book, std::string_view(argv[3]) == "a4" ? kA4 : kA5, [](int page, int pages) {
            std::cerr << "pagina " << page << " di " << pages << std::endl;
        });
        std::cout.write(pdf.constData(), pdf.size()).flush();
        return std::cout.good() ? kDone : kNotDone;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return kNotDone;
    }
}
