// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace zelvia
{

/// Qt's Fusion style with the printed lines of the diary around its edit boxes, and without the icon that a menu bar
/// asks for at its creation: looking for it in the themes would load every plugin for pictures at the start.
class PageStyle : public QProxyStyle
{
    Q_OBJECT

public:
    PageStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace zelvia
