// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"
#include "tools/book/BookContent.h"
#include "tools/book/BookHtml.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/BookProgram.h"
#include "tools/strumenti/OutputFile.h"

#include <cstdio>

namespace zelvia
{
namespace
{

std::string BookFormatIn(Arguments& arguments)
{
    const auto name = arguments.TakeValue("--formato");
    if (!name) {
        throw Misuse{Tools::Tr("Manca --formato.")};
    }
    for (const char* const format : {"a4", "a5", "html"}) {
        if (*name == format) {
            return *name;
        }
    }
    throw Misuse{Tools::Tr("«%1» non è un formato: a4, a5 o html.", *name)};
}

std::string FileIn(Arguments& arguments)
{
    const auto file = arguments.TakeValue("-o");
    if (!file) {
        throw Misuse{Tools::Tr("Manca -o FILE.")};
    }
    return *file;
}

std::string AsHtml(Context& context, const std::string& diary)
{
    const Book book = MakeBook(diary, ReadAllDiaries(context.Folder()));
    for (const std::string& warning : book.warnings) {
        context.Err() << warning << ".\n";
    }
    return BookAsHtml(book);
}

std::string AsPdf(Context& context, const std::string& diary, const std::string& format)
{
    return RunBookProgram({context.Folder().string(), diary, format}, [&](std::string_view line) {
        int page = 0;
        int pages = 0;
        if (std::sscanf(std::string(line).c_str(), "pagina %d di %d", &page, &pages) != 2) {
            context.Err() << line << "\n";
        } else if (context.Progress()) {
            context.Progress()(page, pages);
        }
    });
}

} // namespace

int RunBook(Context& context, Arguments& arguments)
{
    const std::string format = BookFormatIn(arguments);
    const std::string file = FileIn(arguments);
    arguments.TakeWords(0, 0);
    const std::string diary = context.ChosenDiary();
    context.Load(diary);
    if (!HasEntries()) {
        throw FileFailure(Tools::Tr("nel diario «%1» non è scritto nessun giorno: il libro sarebbe vuoto", diary));
    }
    if (const auto status = RefuseFile(context, file)) {
        return *status;
    }
    ReplaceFile(file, format == "html" ? AsHtml(context, diary) : AsPdf(context, diary, format));
    return kDone;
}

} // namespace zelvia
