// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Hand.h"

#include "support/ActiveWindow.h"
#include "support/ServerInput.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QPointer>
#include <QProcess>
#include <QStyleHints>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <array>
#include <map>
#include <utility>
#include <vector>
namespace hand
{
namespace
{

constexpr int kPatience = 5000;
constexpr int kReleasePatience = 500;

/// Counts what reaches the windows of this program.
class Arrivals : public QObject
{
public:
    static Arrivals& Instance()
    {
        static QPointer<Arrivals> arrivals;
        if (arrivals.isNull()) {
            arrivals = new Arrivals(qApp);
            qApp->installEventFilter(arrivals);
        }
        return *arrivals;
    }

    int Count(QEvent::Type type) const
    {
        const auto found = counts_.find(type);
        return found == counts_.end() ? 0 : found->second;
    }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (receiver->isWindowType() && !IsModifier(*event)) {
            ++counts_[event->type()];
        }
        return false;
    }

private:
    explicit Arrivals(QObject* parent) : QObject(parent) {}

    static bool IsModifier(const QEvent& event)
    {
        if (event.type() != QEvent::KeyRelease) {
            return false;
        }
        const int key = static_cast<const QKeyEvent&>(event).key();
        return (key >= Qt::Key_Shift && key <= Qt::Key_Alt) || key == Qt::Key_AltGr || key == 0;
    }

    std::map<QEvent::Type, int> counts_;
};

/// What a press brings beside what is awaited of it.
std::vector<QEvent::Type> KindOf(QEvent::Type awaited)
{
    switch (awaited) {
    case QEvent::KeyRelease: return {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease};
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        return {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease};
    default: return {awaited};
    }
}

/// Acts and waits until `count` events of the kind have come in. A manager that still holds a window that has just
/// closed keeps a click for itself: when nothing at all has come in, this acts again, as a user would.
void Do(QEvent::Type awaited, int count, const std::function<void()>& act)
{
    constexpr int attempts = 3;
    Arrivals& arrivals = Arrivals::Instance();
    const auto seen = [&] {
        int all = 0;
        for (const QEvent::Type type : KindOf(awaited)) {
            all += arrivals.Count(type);
        }
        return all;
    };
    const int before = arrivals.Count(awaited);
    const int seenBefore = seen();
    const int blocked = arrivals.Count(QEvent::WindowBlocked);
    const int hidden = arrivals.Count(QEvent::Hide);
    // A box that the press opened keeps the release from its window.
    const auto arrived = [&] {
        return arrivals.Count(awaited) >= before + count || arrivals.Count(QEvent::WindowBlocked) > blocked;
    };
    for (int i = 0; i < attempts; ++i) {
        // A window that has just closed must not be in the way.
        QGuiApplication::sync();
        act();
        // A dialog or a menu that the press closed may take the release along: no window has the keyboard for a moment.
        const QDeadlineTimer release(kReleasePatience);
        const auto closed = [&] { return arrivals.Count(QEvent::Hide) != hidden && release.hasExpired(); };
        if (Await([&] { return arrived() || closed(); }, kPatience)) {
            return;
        }
        if (seen() != seenBefore) {
            break;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no event %1 came in").arg(awaited)));
}

void PointAt(QWidget& widget, QPoint position)
{
    MovePointer(*widget.window(), widget.mapTo(widget.window(), position));
}

/// The same with the pointer at a place of a widget.
void DoAt(QWidget& widget, QPoint position, QEvent::Type awaited, int count, const std::function<void()>& act)
{
    Do(awaited, count, [&] {
        PointAt(widget, position);
        act();
    });
}

int NumberOf(Qt::MouseButton button)
{
    return button == Qt::LeftButton ? 1 : button == Qt::MiddleButton ? 2 : 3;
}

/// Presses and releases a button of the mouse, some times.
void Clicks(int number, int count = 1)
{
    constexpr unsigned pause = 20;
    for (int i = 0; i < count; ++i) {
        MoveButton(number, true, i > 0 ? pause : 0);
        MoveButton(number, false);
    }
}

QWindow* WindowOf(QWidget& widget)
{
    return widget.window()->windowHandle();
}

QPoint InWindow(QWidget& widget, QPoint position)
{
    return widget.mapTo(widget.window(), position);
}

/// While it lives no two presses make a double click.
class SingleClicks
{
public:
    SingleClicks() { QApplication::setDoubleClickInterval(0); }
    ~SingleClicks() { QApplication::setDoubleClickInterval(before_); }

private:
    int before_ = QApplication::doubleClickInterval();
};

struct ModifierKey {
    Qt::KeyboardModifier modifier;
    Qt::Key key;
};

/// In the order in which they are pressed.
constexpr std::array<ModifierKey, 3> kModifierKeys = {
    {{Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}}};

/// Each step goes to the window that has the focus by then: what runs in between may close a menu.
void Step(bool press, Qt::Key key, Qt::KeyboardModifiers held)
{
    if (QWindow* window = QGuiApplication::focusWindow(); window != nullptr) {
        const char character = QTest::keyToAscii(key);
        const QString text = character == 0 ? QString() : QString(QLatin1Char(character));
        QTest::simulateEvent(window, press, key, held, text, false);
    }
}

/// Presses the key with its modifiers and lets go of them.
void StrikeOffscreen(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    AwaitKeyboard();
    QVERIFY(QGuiApplication::focusWindow() != nullptr);
    Qt::KeyboardModifiers held;
    for (const auto& [modifier, modifierKey] : kModifierKeys) {
        if ((modifiers & modifier) != 0) {
            Step(true, modifierKey, held);
            held |= modifier;
        }
    }
    Step(true, key, modifiers);
    Step(false, key, modifiers);
    for (const auto& [modifier, modifierKey] : kModifierKeys) {
        if ((modifiers & modifier) != 0) {
            Step(false, modifierKey, held);
            held &= ~Qt::KeyboardModifiers(modifier);
        }
    }
}

} // namespace

bool OnX11()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

QPoint Middle(const QWidget& widget)
{
    return widget.rect().center();
}

void Raw(const QStringList& words)
{
    QProcess xdotool;
    xdotool.start(QStringLiteral("xdotool"), words);
    QVERIFY2(xdotool.waitForFinished(kPatience) && xdotool.exitCode() == 0, qPrintable(words.join(QLatin1Char(' '))));
}

void KeyForManager(const QStringList& words, const std::function<bool()>& done)
{
    constexpr int attempts = 5;
    constexpr int patience = 2000;
    for (int i = 0; i < attempts && !done(); ++i) {
        Raw(words);
        (void)QTest::qWaitFor(done, patience);
    }
    QVERIFY2(done(), qPrintable(words.join(QLatin1Char(' '))));
}

void MoveTo(QWidget& widget, QPoint position)
{
    if (OnX11()) {
        // From a pixel aside, since a pointer that is there already would not move. Again before each new attempt.
        const auto aside = [&] { PointAt(widget, position + QPoint(1, 0)); };
        aside();
        bool again = false;
        Do(QEvent::MouseMove, 1, [&] {
            if (std::exchange(again, true)) {
                aside();
            }
            PointAt(widget, position);
        });
    } else {
        QTest::mouseMove(WindowOf(widget), InWindow(widget, position));
    }
}

void Press(QWidget& widget, QPoint position, Qt::MouseButton button)
{
    const SingleClicks single;
    if (OnX11()) {
        AwaitAgreement();
        DoAt(widget, position, QEvent::MouseButtonPress, 1, [&] { MoveButton(NumberOf(button), true); });
    } else {
        QTest::mousePress(WindowOf(widget), button, Qt::NoModifier, InWindow(widget, position));
    }
}

void Release(QWidget& widget, QPoint position, Qt::MouseButton button)
{
    if (OnX11()) {
        DoAt(widget, position, QEvent::MouseButtonRelease, 1, [&] { MoveButton(NumberOf(button), false); });
    } else {
        QTest::mouseRelease(WindowOf(widget), button, Qt::NoModifier, InWindow(widget, position));
    }
}

void Click(QWidget& widget, QPoint position, Qt::MouseButton button)
{
    const SingleClicks single;
    if (OnX11()) {
        AwaitAgreement();
        DoAt(widget, position, QEvent::MouseButtonRelease, 1, [&] { Clicks(NumberOf(button)); });
    } else {
        QTest::mouseClick(WindowOf(widget), button, Qt::NoModifier, InWindow(widget, position));
    }
}

void Click(QWidget& widget, Qt::MouseButton button)
{
    Click(widget, Middle(widget), button);
}

void DoubleClick(QWidget& widget, QPoint position)
{
    if (OnX11()) {
        AwaitAgreement();
        DoAt(widget, position, QEvent::MouseButtonRelease, 2, [&] { Clicks(NumberOf(Qt::LeftButton), 2); });
    } else {
        // The four events of it; the platform's border joins the second press to the first.
        QWindow* window = WindowOf(widget);
        const QPoint point = InWindow(widget, position);
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, point);
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, point);
        QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, point);
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, point);
    }
}

void Wheel(QWidget& widget, QPoint position, int notches)
{
    constexpr int notch = 120;
    if (OnX11()) {
        constexpr int up = 4;
        constexpr int down = 5;
        DoAt(widget, position, QEvent::Wheel, qAbs(notches), [&] { Clicks(notches > 0 ? up : down, qAbs(notches)); });
        return;
    }
    const QPoint point = InWindow(widget, position);
    for (int i = 0; i < qAbs(notches); ++i) {
        QWheelEvent event(point, widget.window()->mapToGlobal(point), QPoint(), QPoint(0, notches > 0 ? notch : -notch),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(WindowOf(widget), &event);
    }
}

void Key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (!OnX11()) {
        StrikeOffscreen(key, modifiers);
        return;
    }
    AwaitAgreement();
    Do(QEvent::KeyRelease, 1, [&] { Strike(key, modifiers); });
}

void Keys(std::initializer_list<QKeyCombination> keys)
{
    for (const QKeyCombination key : keys) {
        Key(key.key(), key.keyboardModifiers());
        // A change of focus is reported after the key.
        QCoreApplication::processEvents();
    }
}

void Type(const QString& text)
{
    if (OnX11()) {
        AwaitAgreement();
        const auto type = [&text] {
            // A character that the keyboard has no key for is typed on one that xdotool gives it for the time.
            if (!StrikeText(text)) {
                Raw({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("4"), QStringLiteral("--"),
                     text});
            }
        };
        Do(QEvent::KeyRelease, static_cast<int>(text.size()), type);
        return;
    }
    AwaitKeyboard();
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, QGuiApplication::focusWindow(), Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
    }
}

} // namespace hand
