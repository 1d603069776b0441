// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Label.h"

#include "toolkit/Accessible.h"
#include "toolkit/Events.h"
#include "toolkit/Keys.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QToolTip>
#include <QtMath>

#include <algorithm>
#include <utility>

namespace zelvia
{

Label::Label(QWidget* parent, const QString& name) : QLabel(parent), Control(this)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::NoFocus);
}

void Label::SetCaption(TextView caption)
{
    // QLabel lays out the text of a focusable label in a document of its own, which plain text does not need.
    const Qt::FocusPolicy reach = focusPolicy();
    const QString before = text();
    setFocusPolicy(Qt::NoFocus);
    setText(ToQString(caption));
    setFocusPolicy(reach);
    if (text() == before) {
        return;
    }
    if (!accessibleName().isEmpty()) {
        TellText(*this);
    }
    if (Changed) {
        Changed();
    }
}

void Label::OnClick(std::function<void()> click, KeyReach reach)
{
    click_ = std::move(click);
    setFocusPolicy(reach == KeyReach::Reachable ? Qt::TabFocus : Qt::NoFocus);
    setAttribute(Qt::WA_Hover, reach == KeyReach::Reachable);
    if (reach == KeyReach::Reachable) {
        setCursor(Qt::PointingHandCursor);
    }
}

void Label::FadeBlank(TextView blank)
{
    blank_ = ToQString(blank);
    update();
}

bool Label::Faint() const
{
    const QString value = text();
    // The signs between the numbers of a value are none of it.
    const auto says = [](QChar sign) { return sign.isLetterOrNumber() && sign != u'0' && sign != u'x'; };
    return blank_ && underlined_ < 0 && (value == *blank_ || std::none_of(value.begin(), value.end(), says));
}

void Label::SetMark(Drawing mark, qreal width)
{
    mark_ = std::move(mark);
    markWidth_ = width;
    update();
}

QRectF Label::MarkArea() const
{
    const qreal width = markWidth_ * height();
    return {this->width() - width, 0, width, static_cast<qreal>(height())};
}

QRect Label::TextArea() const
{
    constexpr int parts = 8; ///< Of the height of a face: so far out such a letter begins.
    const QRect inside = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const int before = font().italic() ? qMax(font().pixelSize(), 0) / parts : 0;
    const int indented = alignment().testFlag(Qt::AlignLeft) ? qMax(indent(), before) : 0;
    return inside.adjusted(indented, 0, mark_ ? -qCeil(markWidth_ * height()) : 0, 0);
}

QString Label::Shown() const
{
    constexpr int longest = 500; ///< Nothing longer fits into any label, and measuring it would take its time.
    const QString whole = text();
    const int place = TextArea().width();
    const int pixels = font().pixelSize();
    // Hardly a character is wider than its face is high: short texts need not be measured.
    if (wordWrap() || artwork_ || (pixels > 0 && whole.size() * pixels <= place)) {
        return whole;
    }
    const QString start = whole.left(longest);
    const QFontMetrics metrics = fontMetrics();
    return start.size() == whole.size() && metrics.horizontalAdvance(whole) <= place
               ? whole
               : metrics.elidedText(start, Qt::ElideRight, place);
}

void Label::UnderlineNumber(int number, int digits)
{
    underlined_ = number;
    underlinedDigits_ = digits;
    update();
}

void Label::Press()
{
    Fire(click_);
}

void Label::mousePressEvent(QMouseEvent* event)
{
    pressed_ = event->button() == Qt::LeftButton;
    event->accept();
}

void Label::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(pressed_, false) &&
        rect().contains(event->position().toPoint())) {
        Press();
    }
    Fire([&] {
        if (MouseUp) {
            MouseUp(event->button(), event->globalPosition().toPoint());
        }
    });
    event->accept();
}

void Label::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (click_ && (ControlKey(key) == kEnter || key == Qt::Key_Space)) {
        Press();
        return;
    }
    QLabel::keyPressEvent(event);
}

// QLabel lays out the text of a label that can have the focus, when it is first shown or gets it, in a document: a
// pixel beside the place where it paints plain text itself.

bool Label::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && Shown() != text()) {
        constexpr int readable = 1000;
        // Text that looks like markup is shown verbatim.
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           Qt::convertFromPlainText(text().left(readable).trimmed()), this);
        return true;
    }
    if (event->type() != QEvent::Polish) {
        return QLabel::event(event);
    }
    const Qt::FocusPolicy reach = focusPolicy();
    setFocusPolicy(Qt::NoFocus);
    const bool done = QLabel::event(event);
    setFocusPolicy(reach);
    return done;
}

void Label::focusInEvent(QFocusEvent* event)
{
    QFrame::focusInEvent(event);
}

void Label::focusOutEvent(QFocusEvent* event)
{
    QFrame::focusOutEvent(event);
}

void Label::paintEvent(QPaintEvent* event)
{
    if (testAttribute(Qt::WA_Hover) && underMouse()) {
        QPainter painter(this);
        constexpr int faint = 28;
        QColor tint = palette().color(QPalette::Highlight);
        tint.setAlpha(faint);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(tint);
        painter.drawRoundedRect(rect(), 3, 3);
    }
    if (hasFocus()) {
        QPainter painter(this);
        DrawFocusRing(painter, rect(), palette().color(QPalette::Window));
    }
    if (wordWrap()) {
        QLabel::paintEvent(event);
    } else {
        PaintText();
    }
    if (mark_) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        mark_(painter, MarkArea());
    }
    if (underlined_ >= 0) {
        PaintUnderline();
    }
}

void Label::PaintText()
{
    QPainter painter(this);
    drawFrame(&painter);
    if (artwork_) {
        painter.setRenderHint(QPainter::Antialiasing);
        artwork_(painter, rect());
        return;
    }
    painter.setPen(Faint() ? Ink::Pencil : palette().color(foregroundRole()));
    painter.drawText(TextArea(), static_cast<int>(alignment()), Shown());
}

void Label::PaintUnderline()
{
    static const QRegularExpression digits(QStringLiteral("[0-9]+"));
    QRegularExpressionMatchIterator numbers = digits.globalMatch(text());
    QRegularExpressionMatch number = numbers.next();
    for (int i = 0; i < underlined_ && numbers.hasNext(); ++i) {
        number = numbers.next();
    }
    const qsizetype from = underlinedDigits_ > 0 ? number.capturedEnd() - underlinedDigits_ : number.capturedStart();
    const QFontMetricsF metrics(font());
    const int start = TextArea().left();
    const qreal left = start + metrics.horizontalAdvance(text().left(from));
    const qreal right = start + metrics.horizontalAdvance(text().left(number.capturedEnd()));
    constexpr qreal thickness = 2;
    const qreal baseline = (height() + metrics.ascent() - metrics.descent()) / 2;
    QPainter painter(this);
    painter.fillRect(QRectF(left, baseline + thickness, right - left, thickness),
                     palette().color(QPalette::WindowText));
}

} // namespace zelvia
