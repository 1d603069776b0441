// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/FigureView.h"

#include "toolkit/Accessible.h"
#include "toolkit/PagePalette.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace zelvia
{
namespace
{

constexpr int kRing = 4;            ///< Around the figure, for the ring of the focus.
constexpr QSize kPicture(928, 590); ///< Fits the frame of a printed sheet.
constexpr double kShortest = 3;     ///< The shortest stretch.
constexpr int kPage = 10;           ///< Points.
constexpr int kToTheEnd = 1 << 20;
constexpr double kPan = 0.25;    ///< Of the stretch.
constexpr double kLeastDrag = 6; ///< Pixels; less is a click.

/// A chart whose value is what is pointed at. How it is drawn is nobody's business.
class AccessibleFigure : public QAccessibleWidget
{
public:
    explicit AccessibleFigure(FigureView& view) : QAccessibleWidget(&view, QAccessible::Chart), view_(view) {}

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? view_.Pointed() : QAccessibleWidget::text(kind);
    }

private:
    FigureView& view_;
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object)
{
    auto* view = qobject_cast<FigureView*>(object);
    return view == nullptr ? nullptr : new AccessibleFigure(*view);
}

} // namespace

FigureView::FigureView(QWidget* parent) : QWidget(parent), plot_(*this)
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    constexpr QSize smallest(320, 200);
    setMinimumSize(smallest);
}

void FigureView::Show(const Figure& figure)
{
    figure_ = figure;
    pointed_.reset();
    dragged_.reset();
    plot_.Show(figure);
    setAccessibleName(figure.title);
    Point(std::nullopt);
    Q_EMIT Zoomed();
}

QString FigureView::Pointed() const
{
    return pointed_ ? figure_.series[pointed_->series].points[pointed_->point].spoken : QString();
}

void FigureView::Point(std::optional<FigurePlace> place)
{
    pointed_ = place;
    plot_.Mark(place, Pointed());
    setAccessibleDescription(place               ? Pointed()
                             : figure_.IsEmpty() ? tr("Nessun valore")
                                                 : tr("Le frecce leggono i valori, «+» e «-» ingrandiscono"));
    TellText(*this);
    Q_EMIT PointedAt(Pointed());
}

/// Of the first series that has points: the first one of the stretch, or the last for steps backwards.
FigurePlace FigureView::FirstShown(int points) const
{
    const auto series = std::find_if(figure_.series.begin(), figure_.series.end(),
                                     [](const FigureSeries& one) { return !one.points.isEmpty(); });
    FigurePlace place{static_cast<int>(series - figure_.series.begin()), points > 0 ? -1 : 0};
    for (int i = 0; i < series->points.size(); ++i) {
        const double where = series->points[i].place;
        if (where >= Span().from && where <= Span().to && (points < 0 || place.point < 0)) {
            place.point = i;
        }
    }
    return place;
}

/// Along the series, from the first point of the stretch on; the stretch follows.
void FigureView::Step(int points)
{
    if (figure_.IsEmpty()) {
        return;
    }
    FigurePlace place = pointed_.value_or(FirstShown(points));
    // The first step only gets there.
    if (pointed_ || std::abs(points) == kToTheEnd) {
        place.point += points;
    }
    const int last = static_cast<int>(figure_.series[place.series].points.size()) - 1;
    place.point = std::clamp(place.point, 0, last);
    const double where = figure_.series[place.series].points[place.point].place;
    if (where < Span().from || where > Span().to) {
        const double half = Span().Width() / 2;
        SetSpan({where - half, where + half});
    }
    Point(place);
}

/// The point of the next series that is closest along the figure.
void FigureView::ChangeSeries(int by)
{
    const int count = static_cast<int>(figure_.series.size());
    if (!pointed_) {
        Step(1);
        return;
    }
    const double place = figure_.series[pointed_->series].points[pointed_->point].place;
    for (int tries = 1; tries < count; ++tries) {
        const int series = ((pointed_->series + by * tries) % count + count) % count;
        const QList<FigurePoint>& points = figure_.series[series].points;
        const auto closest = std::min_element(points.begin(), points.end(), [&](const auto& a, const auto& b) {
            return std::abs(a.place - place) < std::abs(b.place - place);
        });
        if (closest != points.end()) {
            Point(FigurePlace{series, static_cast<int>(closest - points.begin())});
            return;
        }
    }
}

bool FigureView::IsWhole() const
{
    return Span().Width() >= plot_.Whole().Width() - 1e-9;
}

void FigureView::ShowWhole()
{
    SetSpan(plot_.Whole());
}

/// Within the whole, and not shorter than can be looked at.
void FigureView::SetSpan(FigureSpan span)
{
    const FigureSpan whole = plot_.Whole();
    const double width = std::min(std::max(span.Width(), kShortest), whole.Width());
    const double middle = (span.from + span.to) / 2;
    const double from = std::clamp(middle - width / 2, whole.from, whole.to - width);
    plot_.SetSpan({from, from + width});
    plot_.Mark(pointed_, Pointed());
    Q_EMIT Zoomed();
}

double FigureView::Middle() const
{
    return pointed_ ? figure_.series[pointed_->series].points[pointed_->point].place : (Span().from + Span().to) / 2;
}

void FigureView::Zoom(double factor)
{
    ZoomAround(Middle(), factor);
}

/// The place stays where it is on the screen.
void FigureView::ZoomAround(double place, double factor)
{
    const FigureSpan span = Span();
    SetSpan({place - (place - span.from) * factor, place + (span.to - place) * factor});
}

void FigureView::Pan(double share)
{
    const double by = Span().Width() * share;
    SetSpan({Span().from + by, Span().to + by});
}

bool FigureView::TakeKey(int key, Qt::KeyboardModifiers modifiers)
{
    const bool shift = modifiers.testFlag(Qt::ShiftModifier);
    switch (key) {
    case Qt::Key_Left: shift ? Pan(-kPan) : Step(-1); return true;
    case Qt::Key_Right: shift ? Pan(kPan) : Step(1); return true;
    case Qt::Key_PageUp: Step(-kPage); return true;
    case Qt::Key_PageDown: Step(kPage); return true;
    case Qt::Key_Home: Step(-kToTheEnd); return true;
    case Qt::Key_End: Step(kToTheEnd); return true;
    case Qt::Key_Up: ChangeSeries(-1); return true;
    case Qt::Key_Down: ChangeSeries(1); return true;
    case Qt::Key_Escape: Point(std::nullopt); return true;
    default: return false;
    }
}

/// Characters, wherever the keyboard has them.
bool FigureView::TakeText(const QString& text)
{
    const struct {
        QLatin1Char character;
        void (FigureView::*act)();
    } rows[] = {{QLatin1Char('+'), &FigureView::ZoomIn},
                {QLatin1Char('-'), &FigureView::ZoomOut},
                {QLatin1Char('0'), &FigureView::ShowWhole}};
    for (const auto& row : rows) {
        if (text == row.character) {
            (this->*row.act)();
            return true;
        }
    }
    return false;
}

void FigureView::keyPressEvent(QKeyEvent* event)
{
    const bool other = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (other || !(TakeText(event->text()) || TakeKey(event->key(), event->modifiers()))) {
        QWidget::keyPressEvent(event);
    }
}

void FigureView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && plot_.Field().contains(event->position().toPoint())) {
        dragged_ = event->position();
    }
}

void FigureView::mouseMoveEvent(QMouseEvent* event)
{
    if (dragged_ && std::abs(event->position().x() - dragged_->x()) >= kLeastDrag) {
        plot_.SetBand(FigureSpan{plot_.PlaceAt(dragged_->x()), plot_.PlaceAt(event->position().x())});
    }
    const bool within = plot_.Field().contains(event->position().toPoint());
    const auto place = within ? plot_.Nearest(event->position()) : std::nullopt;
    if (place != pointed_) {
        Point(place);
    }
}

void FigureView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !dragged_) {
        return;
    }
    const double from = dragged_->x();
    const double to = event->position().x();
    dragged_.reset();
    plot_.SetBand(std::nullopt);
    if (std::abs(to - from) >= kLeastDrag) {
        SetSpan({plot_.PlaceAt(std::min(from, to)), plot_.PlaceAt(std::max(from, to))});
    }
}

void FigureView::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    dragged_.reset();
    ShowWhole();
}

void FigureView::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120;
    if (event->angleDelta().y() != 0) {
        ZoomAround(plot_.PlaceAt(event->position().x()), std::pow(kCloser, event->angleDelta().y() / notch));
    }
    event->accept();
}

void FigureView::leaveEvent(QEvent* event)
{
    Point(std::nullopt);
    QWidget::leaveEvent(event);
}

void FigureView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    plot_.SetGeometry(rect().adjusted(kRing, kRing, -kRing, -kRing));
    plot_.Mark(pointed_, Pointed());
}

void FigureView::paintEvent(QPaintEvent* /*event*/)
{
    if (hasFocus()) {
        QPainter painter(this);
        DrawFocusRing(painter, rect(), palette().color(QPalette::Window));
    }
}

void FigureView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void FigureView::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

QImage FigureView::Picture()
{
    return plot_.Picture(kPicture);
}

} // namespace zelvia
