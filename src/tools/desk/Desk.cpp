// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/Desk.h"

#include <QCoreApplication>
#include <QDir>

#include <utility>

namespace zelvia
{

namespace fs = std::filesystem;

Desk::Desk(fs::path folder, std::string diary)
    : Program(fs::path(QCoreApplication::applicationDirPath().toStdString()) / "zelvia"), folder_(std::move(folder)),
      diary_(std::move(diary))
{
}

void Desk::Choose(const fs::path& folder, const std::string& diary)
{
    if (folder_ != folder || diary_ != diary) {
        folder_ = folder;
        diary_ = diary;
        Q_EMIT Changed();
    }
}

std::vector<std::string> Desk::Command(const std::vector<std::string>& words) const
{
    std::vector<std::string> command = words;
    if (!folder_.empty()) {
        command.insert(command.begin(), {"--cartella", folder_.string()});
    }
    if (!diary_.empty()) {
        command.insert(command.begin(), {"--diario", diary_});
    }
    return command;
}

fs::path PathTyped(const QString& text)
{
    QString typed = text.trimmed();
    if (typed == QLatin1String("~") || typed.startsWith(QLatin1String("~/"))) {
        typed.remove(0, 1).prepend(QDir::homePath());
    }
    return typed.isEmpty() ? fs::path() : fs::path(QDir::home().absoluteFilePath(typed).toStdString());
}

} // namespace zelvia
