// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/PageStyle.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace zelvia
{

PageStyle::PageStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon PageStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (icon != SP_ToolBarHorizontalExtensionButton) {
        return QProxyStyle::standardIcon(icon, option, widget);
    }
    constexpr int size = 8;
    QPixmap arrows(size, size);
    arrows.fill(Qt::transparent);
    QPainter painter(&arrows);
    for (const int left : {0, 4}) {
        painter.drawLine(left, 0, left + 3, 3);
        painter.drawLine(left + 3, 3, left, 6);
    }
    return QIcon(arrows);
}

} // namespace zelvia
