// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/GuideFile.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "translation/Translation.h"
#include "windows/guide/HelpViewer.h"

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

fs::path GuideFile(const fs::path& folder)
{
    const fs::path own = folder / "Guida.hlp";
    std::error_code ignored;
    if (fs::exists(own, ignored)) {
        return own;
    }
    for (const fs::path& place : SharedFolders()) {
        if (fs::exists(place / "Guida.hlp", ignored)) {
            return (place / "Guida.hlp").lexically_normal();
        }
    }
    return own;
}

} // namespace

void OpenGuide(HelpViewer& viewer, const fs::path& folder, const QString& topic)
{
    Trap("GUIDA - ERRORE : ",
         [&] { viewer.WinHelp(SystemPath(GuideFile(folder).string()), HelpCommand::Topic, topic); });
}

} // namespace zelvia
