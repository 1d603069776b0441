// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontMetrics>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>

namespace zelvia::test
{

/// Whether a box has room for its hand from the accent of a capital to the foot of a "g".
inline bool ShowsWholeHand(const QLineEdit& box)
{
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box);
    const QRect room =
        box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box).marginsRemoved(box.textMargins());
    return room.height() >= QFontMetrics(box.font()).tightBoundingRect(QStringLiteral("\u00C0g")).height();
}

} // namespace zelvia::test
