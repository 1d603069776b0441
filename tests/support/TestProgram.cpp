// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestProgram.h"

#include "support/ShownTexts.h"

#include <QTemporaryDir>

#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <string>

int main(int argc, char* argv[])
{
    using zelvia::test::TestRoutine;
    const auto routine = argc > 1 ? TestRoutine::All().find(argv[1]) : TestRoutine::All().end();
    if (routine == TestRoutine::All().end()) {
        std::cerr << program_invocation_short_name << " NAME [ARGUMENTS], one of";
        for (const auto& [name, run] : TestRoutine::All()) {
            std::cerr << ' ' << name;
        }
        std::cerr << std::endl;
        return 2;
    }
    // What a window keeps of its size is no other test's, nor the user's.
    static QTemporaryDir state;
    std::at_quick_exit([] { state.remove(); });
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    zelvia::test::ShownTexts::Begin(std::string(program_invocation_short_name) + '_' + argv[1]);
    argv[1] = argv[0];
    return routine->second(argc - 1, argv + 1);
}
