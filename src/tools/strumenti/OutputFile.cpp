// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/OutputFile.h"

#include "core/Tr.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"

#include <algorithm>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

/// True for a file that the program keeps its diaries in, under whatever name it is called here.
bool IsOfTheDiaries(const fs::path& folder, const fs::path& file)
{
    const std::vector<std::string> files = WorkspaceFiles(folder);
    return std::any_of(files.begin(), files.end(), [&](const std::string& one) {
        std::error_code gone;
        return fs::equivalent(folder / one, file, gone);
    });
}

} // namespace

std::optional<int> RefuseFile(Context& context, const std::string& file)
{
    const bool isThere = fs::exists(file);
    if (isThere && !fs::is_regular_file(file)) {
        throw FileFailure(Tools::Tr("«%1» c'è già e non è un file", file));
    }
    if (isThere && IsOfTheDiaries(context.Folder(), file)) {
        throw FileFailure(Tools::Tr("«%1» è un file del diario: indicarne un altro", file));
    }
    const fs::path folder = fs::absolute(file).parent_path();
    if (!fs::is_directory(folder)) {
        throw FileFailure(Tools::Tr("la cartella «%1» non c'è", folder));
    }
    if (context.Chosen().rehearsal) {
        context.Told() << Tools::Tr("Si scriverebbe «%1».", file) << "\n";
        return context.AskFirst({});
    }
    if (!isThere || fs::file_size(file) == 0 || context.Chosen().overwrite) {
        return std::nullopt;
    }
    if (context.Agrees(Tools::Tr("C'è già «%1». Sostituirlo?", file))) {
        return std::nullopt;
    }
    throw FileFailure(Tools::Tr("«%1» c'è già; lo sostituisce --sovrascrivi", file));
}

} // namespace zelvia
