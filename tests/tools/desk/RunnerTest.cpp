// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Actions that run beside a window, one after the other.
#include "support/WindowTest.h"
#include "tools/desk/ToolRunner.h"

#include <atomic>
#include <thread>

namespace zelvia::test
{

class RunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsSaid();
    void wrongUse();
    void oneAfterTheOther();
    void aLaterReadingReplacesTheEarlier();
    void aReceiverThatHasGone();
    void writingIsNotCancelled();
    void itsEnd_data();
    void itsEnd();
    void afterFailures_data();
    void afterFailures();
};

namespace
{

constexpr int kPatience = 20000;
using Kind = ToolRunner::Kind;

ToolRunner::Task Saying(const char* out, const char* err, int status)
{
    return [=](Terminal& terminal) {
        terminal.out << out;
        terminal.err << err;
        return status;
    };
}

} // namespace

void RunnerTest::whatIsSaid()
{
    ToolRunner runner;
    QStringList lines;
    connect(&runner, &ToolRunner::Told, this, [&](const QString& line) { lines << line; });
    bool ended = false;
    ToolOutcome got;
    runner.Run(Kind::Reads, *this, Saying("a\tb\n", "zelvia-strumenti: è andata male.\nE poi?\n", kNotDone),
               [&](const ToolOutcome& outcome) {
                   got = outcome;
                   ended = true;
               });
    QVERIFY(runner.IsBusy());
    QVERIFY(!runner.IsWriting());
    QTRY_VERIFY_WITH_TIMEOUT(ended, kPatience);
    QVERIFY(!runner.IsBusy());
    QCOMPARE(got.status, kNotDone);
    QCOMPARE(got.out, QStringLiteral("a\tb\n"));
    QCOMPARE(got.told, QStringLiteral("È andata male.\nE poi?"));
    QVERIFY(!got.cancelled);
    QTRY_COMPARE_WITH_TIMEOUT(lines, QStringList{QStringLiteral("E poi?")}, kPatience);
}

/// The text of the help is for those who type.
void RunnerTest::wrongUse()
{
    ToolRunner runner;
    QString told;
    runner.Run(Kind::Reads, *this, std::vector<std::string>{"anno", "1900"},
               [&](const ToolOutcome& outcome) { told = outcome.told; });
    QTRY_COMPARE_WITH_TIMEOUT(told, QStringLiteral("«1900» non è un anno dal 2001 al 2099."), kPatience);
}

void RunnerTest::oneAfterTheOther()
{
    ToolRunner runner;
    QObject other;
    std::atomic<int> atWork{0};
    std::atomic<int> most{0};
    QList<int> order;
    for (int i = 0; i < 6; ++i) {
        runner.Run(
            Kind::Writes, i % 2 == 0 ? *this : other,
            [&](Terminal& terminal) {
                most = std::max(most.load(), ++atWork);
                terminal.out << "x";
                --atWork;
                return kDone;
            },
            [&order, i](const ToolOutcome&) { order << i; });
    }
    QVERIFY(runner.IsWriting());
    QTRY_COMPARE_WITH_TIMEOUT(order, (QList<int>{0, 1, 2, 3, 4, 5}), kPatience);
    QCOMPARE(most.load(), 1);
}

void RunnerTest::aLaterReadingReplacesTheEarlier()
{
    ToolRunner runner;
    std::atomic<bool> running{false};
    QStringList ended;
    runner.Run(
        Kind::Reads, *this,
        [&](Terminal& terminal) {
            for (running = true;;) {
                terminal.err << "ancora\n";
                std::this_thread::yield();
            }
            return kDone;
        },
        [&](const ToolOutcome&) { ended << QStringLiteral("first"); });
    QTRY_VERIFY_WITH_TIMEOUT(running, kPatience);
    runner.Run(Kind::Reads, *this, Saying("", "", kDone),
               [&](const ToolOutcome&) { ended << QStringLiteral("second"); });
    runner.Run(Kind::Reads, *this, Saying("", "", kDone),
               [&](const ToolOutcome&) { ended << QStringLiteral("third"); });
    QTRY_COMPARE_WITH_TIMEOUT(ended, QStringList{QStringLiteral("third")}, kPatience);
    QVERIFY(!runner.IsBusy());
}

void RunnerTest::aReceiverThatHasGone()
{
    ToolRunner runner;
    bool ended = false;
    bool reached = false;
    {
        QObject page;
        runner.Run(Kind::Writes, page, Saying("", "", kDone), [&](const ToolOutcome&) { reached = true; });
    }
    runner.Run(Kind::Writes, *this, Saying("", "", kDone), [&](const ToolOutcome&) { ended = true; });
    QTRY_VERIFY_WITH_TIMEOUT(ended, kPatience);
    QVERIFY(!reached);
}

void RunnerTest::writingIsNotCancelled()
{
    ToolRunner runner;
    std::atomic<bool> go{false};
    ToolOutcome got;
    bool ended = false;
    runner.Run(
        Kind::Writes, *this,
        [&](Terminal& terminal) {
            while (!go) {
                std::this_thread::yield();
            }
            terminal.err << "scritto\n";
            return kDone;
        },
        [&](const ToolOutcome& outcome) {
            got = outcome;
            ended = true;
        });
    runner.Cancel();
    go = true;
    QTRY_VERIFY_WITH_TIMEOUT(ended, kPatience);
    QVERIFY(!got.cancelled);
    QCOMPARE(got.told, QStringLiteral("scritto"));
}

void RunnerTest::itsEnd_data()
{
    QTest::addColumn<bool>("writing");
    QTest::newRow("while it writes") << true;
    QTest::newRow("while it reads") << false;
}

/// Whatever ends the program, what was to be written is written whole.
void RunnerTest::itsEnd()
{
    QFETCH(bool, writing);
    std::atomic<bool> running{false};
    std::atomic<bool> go{false};
    std::atomic<bool> first{false};
    bool second = false;
    bool told = false;
    const auto tell = [&](const ToolOutcome&) { told = true; };
    {
        ToolRunner runner;
        runner.Run(
            writing ? Kind::Writes : Kind::Reads, *this,
            [&](Terminal& terminal) {
                running = true;
                while (!go) {
                    std::this_thread::yield();
                }
                terminal.err << "avanti\n";
                first = true;
                return kDone;
            },
            tell);
        bool read = false;
        runner.Run(
            Kind::Reads, runner,
            [&](Terminal&) {
                read = true;
                return kDone;
            },
            tell);
        runner.Run(
            Kind::Writes, *this,
            [&](Terminal& terminal) {
                terminal.err << "ecco\n";
                second = !read;
                return kDone;
            },
            tell);
        QTRY_VERIFY_WITH_TIMEOUT(running, kPatience);
        runner.Cancel();
        go = true;
    }
    QCOMPARE(first, writing);
    QVERIFY(second);
    QVERIFY(!told);
}

void RunnerTest::afterFailures_data()
{
    QTest::addColumn<bool>("ofOurs");
    QTest::newRow("a failure with words") << true;
    QTest::newRow("any other") << false;
}

void RunnerTest::afterFailures()
{
    QFETCH(bool, ofOurs);
    ToolRunner runner;
    ToolOutcome got;
    runner.Run(
        Kind::Writes, *this,
        [ofOurs](Terminal&) -> int {
            if (ofOurs) {
                throw std::runtime_error("il disco è pieno");
            }
            throw 3;
        },
        [&](const ToolOutcome& outcome) { got = outcome; });
    bool ended = false;
    runner.Run(Kind::Writes, *this, Saying("", "", kDone), [&](const ToolOutcome&) { ended = true; });
    QTRY_VERIFY_WITH_TIMEOUT(ended, kPatience);
    QCOMPARE(got.status, kNotDone);
    QCOMPARE(got.told, ofOurs ? QStringLiteral("il disco è pieno") : QStringLiteral("Errore inatteso"));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::RunnerTest)
#include "RunnerTest.moc"
