// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestProgram.h"

#include "support/ShownTexts.h"

#include <cerrno>
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
    zelvia::test::ShownTexts::Begin(std::string(program_invocation_short_name) + '_' + argv[1]);
    argv[1] = argv[0];
    return routine->second(argc - 1, argv + 1);
}
