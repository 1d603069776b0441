// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Chart.h"

#include "core/Conversions.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

namespace zelvia
{
namespace
{

constexpr double kPixelsPerMetre = 96 / 0.0254;
constexpr int kPictureScale = 2; ///< Pixels of the copied picture to a logical one.

/// Bars are described by name and count; a point's label is its value.
Text Spoken(const ChartData& data)
{
    Text spoken;
    const auto add = [&spoken](const Text& part) { spoken += (spoken.empty() ? "" : "; ") + part; };
    if (data.chartType == ChartType::Bars) {
        for (int column = 1; column <= data.ColumnCount(); ++column) {
            add(data.ColumnLabel(column) + ": " + PlainText(data.Data(1, column)));
        }
        return spoken.empty() ? "Nessun valore" : spoken;
    }
    for (int row = 1; row <= data.RowCount(); ++row) {
        add(data.RowLabel(row));
    }
    return spoken.empty() ? "Nessun valore" : data.ColumnLabel(1) + ": " + spoken;
}

} // namespace

Chart::Chart(QWidget* parent, const QString& name) : QWidget(parent), Control(this)
{
    setObjectName(name);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("Grafico"));
}

void Chart::Show(const ChartData& shown)
{
    data_ = shown;
    setAccessibleName(shown.TitleText.empty() ? QStringLiteral("Grafico") : ToQString(shown.TitleText));
    setAccessibleDescription(ToQString(Spoken(shown)));
    update();
}

void Chart::EditCopy(const QSize& size) const
{
    QImage picture(size * kPictureScale, QImage::Format_RGB32);
    picture.fill(Qt::white);
    const int perMetre = qRound(kPixelsPerMetre * kPictureScale);
    picture.setDotsPerMeterX(perMetre);
    picture.setDotsPerMeterY(perMetre);
    QPainter painter(&picture);
    painter.scale(kPictureScale, kPictureScale);
    DrawChart(painter, QRect({}, size), data_);
    painter.end();
    QGuiApplication::clipboard()->setImage(picture);
}

void Chart::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawChart(painter, rect(), data_);
    if (hasFocus()) {
        DrawFocusRing(painter, rect(), palette().color(QPalette::Window));
    }
}

} // namespace zelvia
