// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ScrollPane.h"

#include "toolkit/Picture.h"

#include <QApplication>
#include <QKeyEvent>

namespace zelvia
{

ScrollPane::ScrollPane(QWidget* parent, QWidget* content) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*before*/, QWidget* now) {
        // A picture takes the focus only where nothing else has it.
        if (now != nullptr && widget()->isAncestorOf(now) && qobject_cast<Picture*>(now) == nullptr) {
            Show(QRect(now->mapTo(widget(), QPoint()), now->size()));
        }
    });
}

/// Scrolls until all of a place can be seen, its upper left corner above all.
void ScrollPane::Show(const QRect& place)
{
    constexpr int margin = 8;
    ensureVisible(place.right(), place.bottom(), margin, margin);
    ensureVisible(place.left(), place.top(), margin, margin);
}

void ScrollPane::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}

} // namespace zelvia
