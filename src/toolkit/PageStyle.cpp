// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/PageStyle.h"

#include "toolkit/PagePalette.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyleOption>

namespace zelvia
{

PageStyle::PageStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void PageStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    if (element != PE_FrameLineEdit) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const bool focused = option->state.testFlag(State_HasFocus);
    const QRect frame = option->rect.adjusted(0, 0, -1, -1);
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(focused ? Ink::Pen : Ink::Rule);
    painter->drawRect(frame);
    if (focused) {
        painter->drawRect(frame.adjusted(1, 1, -1, -1));
    }
    painter->restore();
}

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
