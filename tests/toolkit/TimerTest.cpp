// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Timer.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/Events.h"
#include "toolkit/SampleForm.h"

using namespace zelvia;

class TimerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItTicksAgainAndAgain();
    void NoTickComesWhileARoutineRuns();
    void NoTickComesInsideATick();
    void AWaitingChangeOfFocusIsToldBeforeTheTick();
};

void TimerTest::ItTicksAgainAndAgain()
{
    Timer timer(nullptr, QStringLiteral("tmrFocus"), 10);
    QCOMPARE(timer.Interval(), 10);
    QCOMPARE(timer.objectName(), QStringLiteral("tmrFocus"));
    int ticks = 0;
    timer.Tick = [&] { ++ticks; };
    QTRY_VERIFY(ticks >= 3);
}

void TimerTest::NoTickComesWhileARoutineRuns()
{
    Timer timer(nullptr, QStringLiteral("tmrFocus"), 10);
    int ticks = 0;
    timer.Tick = [&] { ++ticks; };
    bool quiet = false;
    Fire([&] { quiet = StaysFalse([&] { return ticks > 0; }); });
    QVERIFY(quiet);
    QTRY_VERIFY(ticks > 0);
}

void TimerTest::NoTickComesInsideATick()
{
    Timer timer(nullptr, QStringLiteral("tmrFocus"), 10);
    int depth = 0;
    int deepest = 0;
    int ticks = 0;
    timer.Tick = [&] {
        deepest = std::max(deepest, ++depth);
        ++ticks;
        QVERIFY(StaysFalse([&] { return depth > 1; }, 50));
        --depth;
    };
    QTRY_VERIFY(ticks >= 2);
    QCOMPARE(deepest, 1);
}

void TimerTest::AWaitingChangeOfFocusIsToldBeforeTheTick()
{
    SampleForm form;
    form.Open();
    form.Start(*form.txtUno);
    Timer timer(&form, QStringLiteral("tmrFocus"), 10);
    timer.Tick = [&] {
        if (!form.told.contains("tick")) {
            form.Tell("tick");
        }
    };
    // The change waits for the routine's end, and the tick is overdue by then.
    Fire([&] {
        form.txtDue->SetFocus();
        QVERIFY(StaysFalse([&] { return !form.told.isEmpty(); }, 50));
    });
    QTRY_COMPARE(form.told, QByteArray("-txtUno +txtDue tick"));
}

ZELVIA_WINDOW_TEST(TimerTest)

#include "TimerTest.moc"
