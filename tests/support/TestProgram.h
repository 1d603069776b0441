// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>

#include <map>
#include <string_view>

namespace zelvia::test
{

/// One of the things that a test program can be run as: PROGRAM NAME [ARGUMENTS]. The routine sees the program's name
/// and the arguments after its own.
class TestRoutine
{
public:
    using Run = int (*)(int argc, char* argv[]);

    TestRoutine(std::string_view name, Run run) { All().emplace(name, run); }

    static std::map<std::string_view, Run>& All()
    {
        static std::map<std::string_view, Run> routines;
        return routines;
    }
};

/// The name that a test class runs under: without its namespaces and the "Test" at its end.
constexpr std::string_view TestName(std::string_view testClass)
{
    testClass.remove_prefix(testClass.rfind(':') + 1);
    testClass.remove_suffix(std::string_view("Test").size());
    return testClass;
}

} // namespace zelvia::test

/// Lets the test program run a test class that has no windows.
#define ZELVIA_TEST(TestClass)                                                                                         \
    static const zelvia::test::TestRoutine thisTest(zelvia::test::TestName(#TestClass), [](int argc, char* argv[]) {   \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    });
