// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QWidget>

namespace zelvia
{

/// Shows the windows that are opened from the program's main one: over it, as its transient children, and where they
/// were when they were last closed.
class WindowPlaces : public QObject
{
    Q_OBJECT

public:
    static WindowPlaces& Instance();

    /// The main window. Another one forgets the places.
    void SetMain(QWidget* window);
    bool IsMain(const QWidget& window) const { return &window == main_; }

    /// Shows a window, or brings the one that is open to the front. Without a main window the display places it.
    void ShowInFront(QWidget& window);

    /// The part of the window's screen that is free of panels. One that nobody sees has room for everything.
    QRect ScreenOf(const QWidget& window) const;
    /// The room that the screen has for what is in a window's frame.
    QSize RoomFor(const QWidget& window) const;
    /// Has a test's screen take the place of the display's.
    void SetScreen(const QSize& screen) { screen_ = screen; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    WindowPlaces() = default;
    void Attach(QWidget& window) const;
    void Place(QWidget& window);
    void Detach() const;
    QSize FrameOf(const QWidget& window) const;

    QPointer<QWidget> main_;
    QHash<QString, QPoint> places_; ///< Of the contents of a window, by its name.
    QSize screen_;
};

} // namespace zelvia
