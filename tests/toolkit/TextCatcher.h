// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPolygonF>
#include <QtMath>

#include <vector>

/// A text that was drawn: where its baseline starts, its direction and what its ink covers.
struct CaughtText {
    QString text;
    QFont font;
    QPointF start;
    int degrees; ///< Clockwise.
    QPolygonF ink;
};

/// A device that keeps the texts drawn on it and drops the rest.
class TextCatcher : public QPaintDevice
{
public:
    explicit TextCatcher(QSize size) : size_(size) {}

    QPaintEngine* paintEngine() const override { return &engine_; }
    const std::vector<CaughtText>& Texts() const { return engine_.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        constexpr int dots = 96;
        switch (metric) {
        case PdmWidth: return size_.width();
        case PdmHeight: return size_.height();
        case PdmWidthMM: return size_.width() * 254 / (10 * dots);
        case PdmHeightMM: return size_.height() * 254 / (10 * dots);
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY: return dots;
        case PdmDevicePixelRatio: return 1;
        case PdmNumColors: return 0xFFFFFF;
        case PdmDepth: return 32;
        default: return QPaintDevice::metric(metric);
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice* /*device*/) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState& /*state*/) override {}
        void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
        void drawPath(const QPainterPath& /*path*/) override {}
        void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
        void drawTextItem(const QPointF& at, const QTextItem& item) override
        {
            const QTransform transform = painter()->combinedTransform();
            const int degrees = qRound(qRadiansToDegrees(qAtan2(transform.m12(), transform.m11())));
            const QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(at);
            texts.push_back({item.text(), item.font(), transform.map(at), degrees, transform.map(QPolygonF(ink))});
        }
        Type type() const override { return User; }

        std::vector<CaughtText> texts;
    };

    QSize size_;
    mutable Engine engine_;
};
