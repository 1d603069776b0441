// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PaperSheet.h"

#include "toolkit/Pixels.h"
#include "windows/page/PageArt.h"
#include "windows/page/PageLayout.h"

#include <QPaintEvent>
#include <QtMath>

#include <algorithm>

namespace zelvia
{

using namespace PageLayout;

PaperSheet::PaperSheet(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(qCeil(kLeast.width() * kLeastFactor), qCeil(kLeast.height() * kLeastFactor));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setPalette(PagePalette());
    setFont(PrintFont(15));
}

QSize PaperSheet::sizeHint() const
{
    return kDesk.size();
}

QRect PaperSheet::Place(const QRect& place) const
{
    const auto shown = [this](int designed) { return qRound(designed * factor_); };
    const QPoint corner(shown(place.left()), shown(place.top()));
    const QSize size(shown(place.right() + 1) - corner.x(), shown(place.bottom() + 1) - corner.y());
    return {corner_ + corner, size.expandedTo({1, 1})};
}

void PaperSheet::NoteDesigns()
{
    font_ = font();
    for (QObject* child : children()) {
        if (auto* widget = qobject_cast<QWidget*>(child)) {
            designs_.push_back({widget, qobject_cast<Picture*>(widget), widget->geometry(),
                                widget->testAttribute(Qt::WA_SetFont), widget->font()});
        }
    }
}

/// Shows every control in its place and its face.
void PaperSheet::Arrange()
{
    if (designs_.empty()) {
        NoteDesigns();
    }
    setFont(Enlarged(font_, factor_));
    for (const Design& design : designs_) {
        design.widget->setGeometry(Place(design.place));
        if (design.hasFont) {
            design.widget->setFont(Enlarged(design.font, factor_));
        }
        if (design.picture != nullptr) {
            design.picture->SetFactor(factor_);
        }
    }
    if (Grown) {
        Grown();
    }
}

void PaperSheet::resizeEvent(QResizeEvent* /*event*/)
{
    const double fits = std::min(width() / double(kDesk.width()), height() / double(kDesk.height()));
    const double factor = std::clamp(fits, kLeastFactor, kMostFactor);
    const QPoint corner(qRound((width() - kDesk.width() * factor) / 2),
                        qRound((height() - kDesk.height() * factor) / 2));
    if (factor != factor_ || corner != corner_) {
        factor_ = factor;
        corner_ = corner;
        Arrange();
    }
}

void PaperSheet::Draw(QPainter& painter) const
{
    const double scale = painter.deviceTransform().m11();
    MoveOntoPixels(painter);
    DrawDesk(painter, rect());
    painter.translate(QPointF(qRound(corner_.x() * scale), qRound(corner_.y() * scale)) / scale);
    painter.scale(factor_, factor_);
    DrawPage(painter);
}

void PaperSheet::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const double scale = painter.deviceTransform().m11();
    // The first page of a size goes straight onto the screen, as each one does while the window is resized; the copy
    // for the many small repaints is made with the second.
    if (shown_ != size() || shownScale_ != scale) {
        shown_ = size();
        shownScale_ = scale;
        cache_ = {};
        Draw(painter);
        return;
    }
    if (cache_.isNull()) {
        cache_ = QPixmap(qCeil(width() * scale), qCeil(height() * scale));
        cache_.setDevicePixelRatio(devicePixelRatioF());
        QPainter copy(&cache_);
        // More than 1 only for a picture of the page that is larger than the screen's.
        copy.scale(scale / devicePixelRatioF(), scale / devicePixelRatioF());
        Draw(copy);
    }
    MoveOntoPixels(painter);
    const Pixels pixels(painter);
    const QPoint corner = pixels.Of(rect()).topLeft();
    const QRect dirty = pixels.Of(event->rect()).adjusted(-1, -1, 1, 1) & QRect(corner, cache_.size());
    painter.drawPixmap(dirty, cache_, dirty.translated(-corner));
}

} // namespace zelvia
