// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "toolkit/Control.h"

#include <QBasicTimer>
#include <QWidget>

#include <optional>

namespace zelvia
{

/// A spin control of two arrows: the upper half steps up, the lower half down, and again while held. It takes the focus
/// by program only; the arrow keys work while it has it, the wheel whenever the pointer is over it. At its limit a step
/// does nothing, there is no wrap-around. A value set by program is kept as it is, even beyond the limits.
class UpDown : public QWidget, public Control
{
    Q_OBJECT
    Q_PROPERTY(int value READ GetValue WRITE SetNumber)
    Q_PROPERTY(int minimum READ Minimum)
    Q_PROPERTY(int maximum READ Maximum)
    Q_PROPERTY(int increment READ Increment)

    enum class Half { None, Upper, Lower };

public:
    UpDown(QWidget* parent, const QString& name);

    void SetRange(int minimum, int maximum, int increment);
    int Minimum() const { return minimum_; }
    int Maximum() const { return maximum_; }
    int Increment() const { return increment_; }

    /// Steps as a press of the arrow does, `times` times.
    void StepUp(int times) { Step(Half::Upper, times); }
    void StepDown(int times) { Step(Half::Lower, times); }

    /// In a group whose keys go to one of several, whether they go to this one; of itself a spin shows its focus.
    void SetMarked(bool marked);
    bool Marked() const { return marked_.value_or(hasFocus()); }

    i32 Value() const { return value_; }
    void SetValue(i32 value);

    /// What screen readers say instead of a value that means nothing by itself.
    void SetSpokenValue(i32 value);
    int SpokenValue() const { return spoken_.value_or(value_).value(); }

    /// The value has changed, by the user or by program.
    std::function<void()> Change;

    /// Asked before a step by the user, while no routine runs; false refuses it.
    std::function<bool()> BeforeStep;

    /// A step by the user, whether or not the value changes.
    std::function<void()> UpClick;
    std::function<void()> DownClick;

    static constexpr int kWidth = 20;
    static constexpr int kHeight = 26;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* /*event*/) override { StopRepeat(); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void hideEvent(QHideEvent* /*event*/) override { StopRepeat(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int GetValue() const { return value_.value(); }
    void SetNumber(int value) { SetValue(value); }
    Half HalfAt(const QPointF& position) const;
    void Step(Half half);
    void Step(Half half, int times);
    void StopRepeat();

    i32 value_ = 0;
    int minimum_ = 0;
    int maximum_ = 10;
    int increment_ = 1;
    Half held_ = Half::None;
    Half hovered_ = Half::None;
    QBasicTimer repeat_;
    bool repeating_ = false;
    std::optional<bool> marked_;
    std::optional<i32> spoken_;
    int turned_ = 0; ///< Of the wheel, beyond the last whole notch.
};

} // namespace zelvia
