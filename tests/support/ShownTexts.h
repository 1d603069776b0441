// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"

#include <QTest>

#include <cstdlib>
#include <fstream>
#include <string>

namespace zelvia::test
{

/// Notes the boxes and dialogs that a test brings up, for the check of tests/texts: a file of the test's name in the
/// folder that ZELVIA_SHOWN_TEXTS names, a line for each, its parts separated by tabs. Without that folder nothing is
/// noted.
class ShownTexts
{
public:
    /// Begins the notes of a test, so that nothing is left of an earlier run.
    static void Begin(const std::string& test)
    {
        if (const char* folder = std::getenv("ZELVIA_SHOWN_TEXTS")) {
            Instance().test_ = test;
            Instance().file_.open(std::string(folder) + '/' + test);
        }
    }

    static void NoteBox(const std::string& text, const char* icon, const std::string& buttons)
    {
        Instance().Note("box\t\"" + text + "\"\t" + icon + '\t' + buttons);
    }

    static void NoteBox(const MsgRequest& request)
    {
        static constexpr const char* icons[] = {"-", "critical", "exclamation", "information"};
        static constexpr const char* buttons[] = {"OK", "OK Cancel", "Yes No Cancel"};
        NoteBox(ToUtf8(request.text), icons[static_cast<int>(request.icon)],
                buttons[static_cast<int>(request.buttons)]);
    }

    static void NoteDialog(const std::string& title, const std::string& filter)
    {
        Instance().Note("dialog\t\"" + title + "\"\t\"" + filter + "\"\t-");
    }

private:
    static ShownTexts& Instance()
    {
        static ShownTexts texts;
        return texts;
    }

    void Note(std::string line)
    {
        for (char& character : line) {
            character = character == '\n' ? ' ' : character;
        }
        const char* const function = QTest::currentTestFunction();
        const char* const row = QTest::currentDataTag();
        file_ << line << '\t' << test_ << ':' << (function != nullptr ? function : "")
              << (row != nullptr ? std::string(":") + row : std::string()) << std::endl;
    }

    std::string test_;
    std::ofstream file_;
};

} // namespace zelvia::test
