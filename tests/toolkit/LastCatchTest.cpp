// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What no routine's trap takes ends at the application, which reports it once and goes on.
#include "core/RunTimeError.h"
#include "support/BoxScript.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/Application.h"
#include "toolkit/Events.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTimerEvent>

#include <memory>
#include <stdexcept>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

using namespace zelvia;
using namespace zelvia::test;

namespace
{

const QString kReport = QStringLiteral("ERRORE : 13 Tipo non corrispondente");

/// A window that throws while it handles the events of one type, once it is shown, and counts those.
class Thrower : public QWidget
{
public:
    explicit Thrower(QEvent::Type type) : type_(type)
    {
        resize(200, 100);
        setFocusPolicy(Qt::StrongFocus);
    }

    void Show()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
        throws = true;
    }

    bool throws = false;
    int met = 0;

protected:
    bool event(QEvent* event) override
    {
        const bool result = QWidget::event(event);
        if (event->type() == type_ && type_ != QEvent::Paint) {
            Meet();
        }
        return result;
    }

    /// With its painter at work, as an error in the middle of a paint.
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.fillRect(event->rect(), Qt::white);
        if (type_ == QEvent::Paint) {
            Meet();
        }
    }

private:
    void Meet()
    {
        ++met;
        if (throws) {
            throw ErroreRunTime(Errore::TipoNonCorrispondente);
        }
    }

    QEvent::Type type_;
};

/// Qt's widgets are built without exceptions: what their functions hold for an event is lost when one passes through.
class QtLeaks
{
public:
#ifdef __SANITIZE_ADDRESS__
    QtLeaks()
    {
        __lsan_disable();
    }
    ~QtLeaks()
    {
        __lsan_enable();
    }
#else
    QtLeaks() {}
    ~QtLeaks() {}
#endif
    QtLeaks(const QtLeaks&) = delete;
    QtLeaks& operator=(const QtLeaks&) = delete;
};

/// A handler whose copy fails.
struct Uncopiable {
    explicit Uncopiable(bool* copyFails) : fails(copyFails) {}
    Uncopiable(const Uncopiable& other) : fails(other.fails)
    {
        if (*fails) {
            throw std::bad_alloc();
        }
    }
    void operator()() const {}

    bool* fails;
};

} // namespace

class LastCatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APaint();
    void APaintOfTwoWindows();
    void AResize();
    void AKey();
    void APress();
    void ATimer();
    void AQueuedCall();
    void WhatIsNoRunTimeError_data();
    void WhatIsNoRunTimeError();
    void AWindowThatIsGone();
    void TheCopyOfAHandler();
    void AReportThatFails();
};

/// Were it reported from within the paint, or at each one, the program could not be used any more.
void LastCatchTest::APaint()
{
    BoxScript script;
    script.Expect(Report(kReport));
    Thrower window(QEvent::Paint);
    window.Show();
    window.repaint();
    QVERIFY(!script.Problems().isEmpty());
    TRY_SCRIPT(script);
    // Each further paint fails, and nothing is said of it.
    for (int i = 0; i < 3; ++i) {
        const int before = window.met;
        window.update();
        QTRY_VERIFY(window.met > before);
    }
    QVERIFY(StaysFalse([&] { return !script.Problems().isEmpty(); }));
    // Once it has worked the next failure is a new one.
    window.throws = false;
    window.repaint();
    window.throws = true;
    script.Expect(Report(kReport));
    window.repaint();
    TRY_SCRIPT(script);
}

void LastCatchTest::APaintOfTwoWindows()
{
    BoxScript script;
    script.Expect(Report(kReport));
    Thrower one(QEvent::Paint);
    Thrower two(QEvent::Paint);
    one.Show();
    one.throws = false;
    two.Show();
    one.throws = true;
    one.update();
    two.update();
    TRY_SCRIPT(script);
    QVERIFY(StaysFalse([&] {
        one.update();
        two.update();
        return !script.Problems().isEmpty();
    }));
}

void LastCatchTest::AResize()
{
    BoxScript script;
    script.Expect(Report(kReport));
    Thrower window(QEvent::Resize);
    window.Show();
    window.resize(300, 200);
    QVERIFY(!script.Problems().isEmpty());
    TRY_SCRIPT(script);
    window.resize(310, 210);
    QTRY_COMPARE(window.size(), QSize(310, 210));
    QVERIFY(StaysFalse([&] { return !script.Problems().isEmpty(); }));
}

/// What the user does is answered each time.
void LastCatchTest::AKey()
{
    const QtLeaks leaks;
    BoxScript script;
    script.Expect(Report(kReport));
    Thrower window(QEvent::KeyPress);
    window.Show();
    hand::Key(Qt::Key_A);
    TRY_SCRIPT(script);
    QTRY_VERIFY(window.isActiveWindow());
    script.Expect(Report(kReport));
    hand::Key(Qt::Key_B);
    TRY_SCRIPT(script);
    QCOMPARE(window.met, 2);
}

void LastCatchTest::APress()
{
    const QtLeaks leaks;
    BoxScript script;
    script.Expect(Report(kReport));
    Thrower window(QEvent::MouseButtonPress);
    window.Show();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    TRY_SCRIPT(script);
    QTRY_VERIFY(window.isActiveWindow());
    script.Expect(Report(kReport));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    TRY_SCRIPT(script);
}

void LastCatchTest::ATimer()
{
    BoxScript script;
    script.Expect(Report(kReport));
    Thrower window(QEvent::Timer);
    window.throws = true;
    window.startTimer(5);
    TRY_SCRIPT(script);
    const int before = window.met;
    QTRY_VERIFY(window.met > before + 3);
    VERIFY_SCRIPT(script);
    window.throws = false;
    const int failed = window.met;
    QTRY_VERIFY(window.met > failed);
    script.Expect(Report(kReport));
    window.throws = true;
    TRY_SCRIPT(script);
}

void LastCatchTest::AQueuedCall()
{
    BoxScript script;
    script.Expect(Report(kReport));
    bool went = false;
    QMetaObject::invokeMethod(
        qApp, [] { throw ErroreRunTime(Errore::TipoNonCorrispondente); }, Qt::QueuedConnection);
    QMetaObject::invokeMethod(
        qApp, [&] { went = true; }, Qt::QueuedConnection);
    TRY_SCRIPT(script);
    QVERIFY(went);
}

void LastCatchTest::WhatIsNoRunTimeError_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("report");
    QTest::newRow("no memory") << 0 << QStringLiteral("ERRORE : 7 Memoria esaurita");
    QTest::newRow("of the standard library") << 1 << QStringLiteral("ERRORE : 51 Errore interno");
    QTest::newRow("no exception class") << 2 << QStringLiteral("ERRORE : 51 Errore interno");
}

void LastCatchTest::WhatIsNoRunTimeError()
{
    QFETCH(int, kind);
    QFETCH(QString, report);
    BoxScript script;
    script.Expect(Report(report));
    QMetaObject::invokeMethod(
        qApp,
        [kind] {
            switch (kind) {
            case 0: throw std::bad_alloc();
            case 1: throw std::out_of_range("index");
            default: throw 1;
            }
        },
        Qt::QueuedConnection);
    TRY_SCRIPT(script);
}

/// One that begins at the same address fails again.
void LastCatchTest::AWindowThatIsGone()
{
    BoxScript script;
    script.Expect(Report(kReport));
    auto window = std::make_unique<Thrower>(QEvent::Timer);
    window->throws = true;
    window->startTimer(5);
    TRY_SCRIPT(script);
    script.Expect(Report(kReport));
    std::destroy_at(window.get());
    std::construct_at(window.get(), QEvent::Timer);
    window->throws = true;
    window->startTimer(5);
    TRY_SCRIPT(script);
}

void LastCatchTest::TheCopyOfAHandler()
{
    BoxScript script;
    script.Expect(Report(QStringLiteral("ERRORE : 7 Memoria esaurita")));
    bool fails = false;
    const std::function<void()> handler = Uncopiable(&fails);
    fails = true;
    Fire(handler);
    VERIFY_SCRIPT(script);
}

/// The box of a report may fail as well; then that is reported.
void LastCatchTest::AReportThatFails()
{
    QStringList texts;
    bool fails = true;
    const MsgBoxHandler previous = SetMsgBoxHandler([&](const MsgRequest& request) {
        texts << QString::fromStdString(request.text);
        if (std::exchange(fails, false)) {
            throw std::bad_alloc();
        }
        return MsgAnswer::OK;
    });
    Fire([] { throw ErroreRunTime(Errore::TipoNonCorrispondente); });
    QCOMPARE(texts, QStringList(kReport));
    QTRY_COMPARE(texts, QStringList({kReport, QStringLiteral("ERRORE : 7 Memoria esaurita")}));
    QVERIFY(!Routine::Running());
    SetMsgBoxHandler(previous);
}

ZELVIA_WINDOW_TEST(LastCatchTest)

#include "LastCatchTest.moc"
