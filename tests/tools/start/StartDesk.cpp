// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/start/StartDesk.h"

#include "tools/start/CopyAtTheEnd.h"

#include <fcntl.h>
#include <sys/file.h>

namespace zelvia::test
{

Start StartDesk::Prepared()
{
    said.clear();
    Speaker speaker;
    speaker.tell = [this](const std::string& text) { said.push_back(QString::fromStdString(text)); };
    speaker.ask = [this](const std::string& text, const std::vector<std::string>& buttons,
                         const std::string& /*command*/) -> std::optional<std::size_t> {
        QString question = QString::fromStdString(text);
        QStringList names;
        for (const std::string& button : buttons) {
            names.push_back(QString::fromStdString(button));
        }
        said.push_back(question + QLatin1Char('|') + names.join(QLatin1Char('|')));
        if (meanwhile) {
            meanwhile();
        }
        if (answers_.empty()) {
            return std::nullopt;
        }
        const auto pressed = names.indexOf(answers_.front());
        answers_.pop_front();
        return pressed < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(pressed));
    };
    speaker.openTools = [this](const std::filesystem::path& /*folder*/) { said.push_back(QStringLiteral("tools")); };
    return {Native(), speaker, StartMemory(StartMemoryFile())};
}

void StartDesk::Open(const QStringList& answers)
{
    answers_.assign(answers.begin(), answers.end());
    Start start = Prepared();
    opens = PrepareStart(start);
}

void StartDesk::End()
{
    Start start = Prepared();
    CopyAtTheEnd(start);
}

std::unique_ptr<Descriptor> StartDesk::Lock() const
{
    auto lock =
        std::make_unique<Descriptor>(::open(Native(".zelvia.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    return ::flock(lock->Number(), LOCK_EX | LOCK_NB) == 0 ? std::move(lock) : nullptr;
}

} // namespace zelvia::test
