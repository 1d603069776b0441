// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/UpDown.h"

#include "toolkit/Accessible.h"
#include "toolkit/Events.h"
#include "toolkit/Pixels.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace zelvia
{
namespace
{

// Milliseconds until a held arrow repeats, and between its repeats.
constexpr int kRepeatDelay = 400;
constexpr int kRepeatInterval = 60;

// What one notch of a common wheel turns, in eighths of a degree.
constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;

} // namespace

UpDown::UpDown(QWidget* parent, const QString& name) : QWidget(parent), Control(this)
{
    setObjectName(name);
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    resize(kWidth, kHeight);
}

void UpDown::SetRange(int minimum, int maximum, int increment)
{
    minimum_ = minimum;
    maximum_ = maximum;
    increment_ = increment;
}

void UpDown::SetValue(i32 value)
{
    if (value != value_) {
        value_ = value;
        Fire(Change);
        if (!spoken_) {
            TellValue(*this, SpokenValue());
        }
    }
}

void UpDown::SetSpokenValue(i32 value)
{
    if (std::exchange(spoken_, value) != value) {
        TellValue(*this, SpokenValue());
    }
}

UpDown::Half UpDown::HalfAt(const QPointF& position) const
{
    if (!rect().contains(position.toPoint())) {
        return Half::None;
    }
    return position.y() < height() / 2.0 ? Half::Upper : Half::Lower;
}

void UpDown::Step(Half half)
{
    if (half == Half::None || (BeforeStep && !BeforeStep())) {
        return;
    }
    const int value = value_.value();
    const bool up = half == Half::Upper;
    Fire(up ? UpClick : DownClick);
    if (up ? value < maximum_ : value > minimum_) {
        SetValue(std::clamp(value + (up ? increment_ : -increment_), minimum_, maximum_));
    }
}

void UpDown::Step(Half half, int times)
{
    for (int i = 0; i < times; ++i) {
        Step(half);
    }
}

void UpDown::SetMarked(bool marked)
{
    marked_ = marked;
    update();
    if (marked) {
        TellActive(*this);
    }
}

void UpDown::StopRepeat()
{
    repeat_.stop();
    repeating_ = false;
    held_ = Half::None;
    window()->removeEventFilter(this);
    update();
}

bool UpDown::eventFilter(QObject* watched, QEvent* event)
{
    // A box that a step opened takes the release.
    if (event->type() == QEvent::WindowBlocked) {
        StopRepeat();
    }
    return QWidget::eventFilter(watched, event);
}

void UpDown::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        held_ = hovered_ = HalfAt(event->position());
        repeating_ = false;
        repeat_.start(kRepeatDelay, this);
        window()->installEventFilter(this);
        update();
        Step(held_);
    }
}

void UpDown::mouseMoveEvent(QMouseEvent* event)
{
    hovered_ = HalfAt(event->position());
    update();
}

void UpDown::leaveEvent(QEvent* /*event*/)
{
    hovered_ = Half::None;
    update();
}

void UpDown::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != repeat_.timerId() || Routine::Running()) {
        return;
    }
    if (!repeating_) {
        repeating_ = true;
        repeat_.start(kRepeatInterval, this);
    }
    if (held_ == hovered_) {
        Step(held_);
    }
}

void UpDown::wheelEvent(QWheelEvent* event)
{
    event->accept();
    // A fine wheel turns one notch in many events.
    for (turned_ += event->angleDelta().y(); std::abs(turned_) >= kNotch; turned_ -= turned_ > 0 ? kNotch : -kNotch) {
        Step(turned_ > 0 ? Half::Upper : Half::Lower);
    }
}

void UpDown::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up) {
        Step(Half::Upper);
    } else if (event->key() == Qt::Key_Down) {
        Step(Half::Lower);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void UpDown::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QColor ink = palette().color(QPalette::WindowText);
    const double factor = width() / double(kWidth);
    {
        const Pixels pixels(painter);
        const int line = pixels.Of(1.0);
        const QRect place = pixels.Of(rect());
        const qreal inset = line / 2.0;
        const QRectF frame = QRectF(place).adjusted(inset, inset, -inset, -inset);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(Marked() ? QPalette::Highlight : QPalette::Mid), line));
        painter.setBrush(palette().color(QPalette::Button));
        painter.drawRoundedRect(frame, pixels.Of(3.0), pixels.Of(3.0));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const qreal middle = frame.center().y();
    for (const Half half : {Half::Upper, Half::Lower}) {
        const bool upper = half == Half::Upper;
        const QRectF area(frame.left(), upper ? frame.top() : middle, frame.width(), frame.height() / 2);
        if (half == held_ || half == hovered_) {
            QColor tint = palette().color(QPalette::Highlight);
            tint.setAlpha(half == held_ ? 110 : 50);
            painter.setPen(Qt::NoPen);
            painter.setBrush(tint);
            painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), 2, 2);
        }
        const QPointF centre = area.center();
        const qreal wide = 4 * factor;
        const qreal rise = (upper ? -2.2 : 2.2) * factor;
        QPainterPath arrow;
        arrow.moveTo(centre.x() - wide, centre.y() - rise);
        arrow.lineTo(centre.x(), centre.y() + rise);
        arrow.lineTo(centre.x() + wide, centre.y() - rise);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ink, 1.6 * factor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(arrow);
    }
}

} // namespace zelvia
