// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Hand.h"

#include "support/ActiveWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QProcess>
#include <QStyleHints>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <map>
#include <vector>
namespace hand
{
namespace
{

constexpr int kPatience = 5000;

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

/// Has xdotool act and waits until `count` events of the kind have come in. A manager that still holds a window that
/// has just closed keeps a click for itself: when nothing at all has come in, this presses again, as a user would.
void Do(const QStringList& words, QEvent::Type awaited, int count = 1)
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
    const int unblocked = arrivals.Count(QEvent::WindowUnblocked);
    // A box that the press opened keeps the release from its window.
    const auto arrived = [&] {
        return arrivals.Count(awaited) >= before + count || arrivals.Count(QEvent::WindowBlocked) > blocked;
    };
    for (int i = 0; i < attempts; ++i) {
        Raw(words);
        // A dialog that the press closed may take the release along: no window has the keyboard for a moment.
        if (QTest::qWaitFor(arrived, kPatience) || arrivals.Count(QEvent::WindowUnblocked) != unblocked) {
            return;
        }
        if (seen() != seenBefore) {
            break;
        }
    }
    QFAIL(qPrintable(QLatin1String("no event came of ") + words.join(QLatin1Char(' '))));
}

QStringList PointAt(QWidget& widget, QPoint position)
{
    const QPoint inWindow = widget.mapTo(widget.window(), position);
    return {QStringLiteral("mousemove"), QStringLiteral("--window"), QString::number(widget.window()->winId()),
            QString::number(inWindow.x()), QString::number(inWindow.y())};
}

QString ButtonNumber(Qt::MouseButton button)
{
    return QString::number(button == Qt::LeftButton ? 1 : button == Qt::MiddleButton ? 2 : 3);
}

QWindow* WindowOf(QWidget& widget)
{
    return widget.window()->windowHandle();
}

QPoint InWindow(QWidget& widget, QPoint position)
{
    return widget.mapTo(widget.window(), position);
}

QString KeyName(Qt::Key key)
{
    static const std::map<Qt::Key, const char*> names = {
        {Qt::Key_Return, "Return"}, {Qt::Key_Enter, "KP_Enter"}, {Qt::Key_Escape, "Escape"},
        {Qt::Key_Tab, "Tab"},       {Qt::Key_Insert, "Insert"},  {Qt::Key_Backspace, "BackSpace"},
        {Qt::Key_Delete, "Delete"}, {Qt::Key_Left, "Left"},      {Qt::Key_Right, "Right"},
        {Qt::Key_Up, "Up"},         {Qt::Key_Down, "Down"},      {Qt::Key_Home, "Home"},
        {Qt::Key_End, "End"},       {Qt::Key_Space, "space"},    {Qt::Key_F1, "F1"},
        {Qt::Key_F4, "F4"},         {Qt::Key_F10, "F10"},        {Qt::Key_PageDown, "Next"},
        {Qt::Key_PageUp, "Prior"}};
    const auto found = names.find(key);
    return found != names.end() ? QString::fromLatin1(found->second) : QString(QChar(static_cast<int>(key))).toLower();
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
    // A window that has just closed must not be in the way.
    QGuiApplication::sync();
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
        // From a pixel aside, since a pointer that is there already would not move.
        Raw(PointAt(widget, position + QPoint(1, 0)));
        Do(PointAt(widget, position), QEvent::MouseMove);
    } else {
        QTest::mouseMove(WindowOf(widget), InWindow(widget, position));
    }
}

void Press(QWidget& widget, QPoint position, Qt::MouseButton button)
{
    const SingleClicks single;
    if (OnX11()) {
        AwaitAgreement();
        Do(PointAt(widget, position) + QStringList{QStringLiteral("mousedown"), ButtonNumber(button)},
           QEvent::MouseButtonPress);
    } else {
        QTest::mousePress(WindowOf(widget), button, Qt::NoModifier, InWindow(widget, position));
    }
}

void Release(QWidget& widget, QPoint position, Qt::MouseButton button)
{
    if (OnX11()) {
        Do(PointAt(widget, position) + QStringList{QStringLiteral("mouseup"), ButtonNumber(button)},
           QEvent::MouseButtonRelease);
    } else {
        QTest::mouseRelease(WindowOf(widget), button, Qt::NoModifier, InWindow(widget, position));
    }
}

void Click(QWidget& widget, QPoint position, Qt::MouseButton button)
{
    const SingleClicks single;
    if (OnX11()) {
        AwaitAgreement();
        Do(PointAt(widget, position) + QStringList{QStringLiteral("mousedown"), ButtonNumber(button),
                                                   QStringLiteral("mouseup"), ButtonNumber(button)},
           QEvent::MouseButtonRelease);
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
        Do(PointAt(widget, position) + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"),
                                                   QStringLiteral("2"), QStringLiteral("--delay"), QStringLiteral("20"),
                                                   QStringLiteral("1")},
           QEvent::MouseButtonRelease, 2);
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
        Do(PointAt(widget, position) + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"),
                                                   QString::number(qAbs(notches)), QStringLiteral("--delay"),
                                                   QStringLiteral("20"), QString::number(notches > 0 ? 4 : 5)},
           QEvent::Wheel, qAbs(notches));
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
        QWindow* window = QGuiApplication::focusWindow();
        QVERIFY(window != nullptr);
        QTest::keyClick(window, key, modifiers);
        return;
    }
    QString chord;
    const std::pair<Qt::KeyboardModifier, const char*> names[] = {
        {Qt::ControlModifier, "ctrl+"}, {Qt::AltModifier, "alt+"}, {Qt::ShiftModifier, "shift+"}};
    for (const auto& [modifier, name] : names) {
        if (modifiers.testFlag(modifier)) {
            chord += QLatin1String(name);
        }
    }
    AwaitAgreement();
    Do({QStringLiteral("key"), chord + KeyName(key)}, QEvent::KeyRelease);
}

void Type(const QString& text)
{
    if (OnX11()) {
        AwaitAgreement();
        Do({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("4"), QStringLiteral("--"), text},
           QEvent::KeyRelease, static_cast<int>(text.size()));
        return;
    }
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, QGuiApplication::focusWindow(), Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
    }
}

} // namespace hand
