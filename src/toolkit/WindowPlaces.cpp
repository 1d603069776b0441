// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/WindowPlaces.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace zelvia
{
namespace
{

/// On X11 only a dialog is marked as the transient child of another window. These keep all their buttons.
constexpr Qt::WindowFlags kDialog = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                    Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;

/// What a frame adds to a window.
constexpr QSize kFrame{8, 38};

/// The place with the upper left corner on the screen and, if the window is not larger, all of it.
QPoint OnScreen(const QRect& frame, const QRect& screen)
{
    const auto within = [](int place, int least, int most) { return std::max(least, std::min(place, most)); };
    return {within(frame.left(), screen.left(), screen.right() + 1 - frame.width()),
            within(frame.top(), screen.top(), screen.bottom() + 1 - frame.height())};
}

/// The window with its frame, as the display has it: a widget keeps the geometry from before it had a frame.
QRect FrameGeometry(const QWidget& window)
{
    return window.windowHandle() != nullptr ? window.windowHandle()->frameGeometry() : window.frameGeometry();
}

} // namespace

WindowPlaces& WindowPlaces::Instance()
{
    static WindowPlaces places;
    return places;
}

void WindowPlaces::SetMain(QWidget* window)
{
    main_ = window;
    places_.clear();
    window->installEventFilter(this);
}

void WindowPlaces::ShowInFront(QWidget& window)
{
    if (main_ != nullptr && !IsMain(window)) {
        if (!window.isVisible()) {
            Place(window);
        }
        Attach(window);
    }
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

void WindowPlaces::Attach(QWidget& window) const
{
    // Over a window that blocks the main one, the guide can still be read.
    QWindow* blocking = QGuiApplication::modalWindow();
    window.winId();
    if (window.windowHandle() != blocking) {
        window.windowHandle()->setTransientParent(blocking != nullptr ? blocking : main_->windowHandle());
    }
}

/// A window that was open before comes up with its contents in the same place; a new one, not yet created for the
/// display, is given the place of its frame.
void WindowPlaces::Place(QWidget& window)
{
    if (window.windowType() != Qt::Dialog) {
        window.setWindowFlags(kDialog);
        window.installEventFilter(this);
    }
    // It gets its size with its polish.
    window.ensurePolished();
    if (const auto kept = places_.find(window.objectName()); kept != places_.end()) {
        window.setGeometry({*kept, window.size()});
        return;
    }
    const QRect over = FrameGeometry(*main_);
    QRect frame(QPoint(), window.size() + FrameOf(window));
    frame.moveCenter(over.center());
    window.move(OnScreen(frame, ScreenOf(*main_)));
}

/// What its frame will add to a window, which has the border of the main one. A window whose size stays has none below
/// it to drag, only that of its sides.
QSize WindowPlaces::FrameOf(const QWidget& window) const
{
    const QRect over = FrameGeometry(*main_);
    QSize frame = over.size() - main_->size();
    if (window.minimumSize() == window.maximumSize()) {
        const QPoint border = main_->geometry().topLeft() - over.topLeft();
        frame.setHeight(border.y() + border.x());
    }
    return frame;
}

QRect WindowPlaces::ScreenOf(const QWidget& window) const
{
    if (!screen_.isEmpty()) {
        return {QPoint(), screen_};
    }
    if (QGuiApplication::platformName() == QStringLiteral("offscreen")) {
        return {0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    }
    return window.screen()->availableGeometry();
}

QSize WindowPlaces::RoomFor(const QWidget& window) const
{
    // A window has the frame of the main one; until that is shown, one of the usual width is assumed.
    const bool known = main_ != nullptr && main_->isVisible() && FrameGeometry(*main_) != main_->geometry();
    return ScreenOf(window).size() - (known ? FrameGeometry(*main_).size() - main_->size() : kFrame);
}

/// Makes windows of their own of those that outlive the main one: the run ends with the last of them.
void WindowPlaces::Detach() const
{
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->transientParent() == main_->windowHandle()) {
            window->setTransientParent(nullptr);
        }
    }
}

bool WindowPlaces::eventFilter(QObject* watched, QEvent* event)
{
    const auto& window = static_cast<const QWidget&>(*watched);
    if (event->type() == QEvent::Hide && !event->spontaneous() && IsMain(window)) {
        Detach();
    } else if (event->type() == QEvent::Close && !IsMain(window) && !window.isMinimized()) {
        places_[window.objectName()] = window.geometry().topLeft();
    }
    return false;
}

} // namespace zelvia
