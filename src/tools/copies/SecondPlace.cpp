// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/SecondPlace.h"

#include "core/StateFolder.h"
#include "core/Tr.h"
#include "diary/Workspace.h"
#include "tools/copies/SafeFiles.h"

#include <algorithm>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* kCopies = "Zelvia-copie";

/// The file that names the place.
fs::path NameFile()
{
    fs::path file = StateFile("secondo-posto");
    if (file.empty()) {
        throw FileFailure(Tools::Tr("la cartella personale non è nota (HOME)"));
    }
    return file;
}

bool IsWithin(const fs::path& path, const fs::path& folder)
{
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

} // namespace

fs::path SecondPlace()
{
    const fs::path file = NameFile();
    if (!fs::exists(file)) {
        return {};
    }
    const std::string bytes = ReadFile(file);
    return bytes.substr(0, bytes.find('\n'));
}

void NameSecondPlace(const fs::path& place)
{
    const fs::path file = NameFile();
    if (!fs::is_directory(place)) {
        throw FileFailure(Tools::Tr("la cartella «%1» non c'è: il secondo posto dev'esserci già", place));
    }
    if (IsWithin(place, file.parent_path())) {
        throw FileFailure(Tools::Tr("in «%1» stanno già le prime copie: il secondo posto dev'essere un altro", place));
    }
    if (std::find(place.begin(), place.end(), kDiaryFolder) != place.end()) {
        throw FileFailure(Tools::Tr(
            "«%1» sta fra i diari: ogni copia conterrebbe quelle di prima; il secondo posto dev'essere un altro",
            place));
    }
    if (place.string().find('\n') != std::string::npos) {
        throw FileFailure(Tools::Tr("nel nome di «%1» c'è un carattere di controllo", place));
    }
    // Said now rather than at the first copy.
    MakeFolders(place / kCopies);
    const fs::path probe = place / kCopies / (".prova-" + RandomDigits());
    WriteNewFile(probe, "");
    fs::remove(probe);
    ReplaceOwnFile(file, place.string() + "\n");
    SyncFolder(file.parent_path());
}

void ForgetSecondPlace()
{
    fs::remove(NameFile());
}

fs::path CopiesIn(const fs::path& place)
{
    const fs::path folder = place.filename() == kCopies ? place : place / kCopies;
    const fs::file_status status = fs::symlink_status(folder);
    if (fs::is_symlink(status)) {
        throw FileFailure(Tools::Tr("«%1» è un collegamento, e non viene seguito", folder));
    }
    if (!fs::is_directory(status)) {
        throw FileFailure(Tools::Tr("«%1» non c'è: la chiavetta o la cartella è staccata", folder));
    }
    return folder;
}

CopyOutcome BringToSecondPlace(const CopyStore& first, const fs::path& folder)
{
    const fs::path place = SecondPlace();
    if (place.empty()) {
        return CopyOutcome::NothingThere;
    }
    const std::vector<Copy> copies = first.List();
    const auto newest =
        std::find_if(copies.rbegin(), copies.rend(), [&](const Copy& copy) { return copy.folder == folder; });
    return newest == copies.rend() ? CopyOutcome::NothingThere : CopyStore(CopiesIn(place)).Take(*newest);
}

} // namespace zelvia
