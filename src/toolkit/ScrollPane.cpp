// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ScrollPane.h"

#include "toolkit/Picture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>

#include <utility>

namespace zelvia
{

ScrollPane::ScrollPane(QWidget* parent, QWidget* content) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*before*/, QWidget* now) {
        if (now != nullptr) {
            FollowFocus(*now);
        }
    });
}

void ScrollPane::FollowFocus(QWidget& now)
{
    const bool fromElsewhere = std::exchange(focusWindow_, now.window()) != now.window();
    // A picture takes the focus only where nothing else has it.
    if (!widget()->isAncestorOf(&now) || qobject_cast<Picture*>(&now) != nullptr) {
        return;
    }
    auto* view = qobject_cast<QAbstractItemView*>(&now);
    if (view != nullptr) {
        connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, &ScrollPane::ShowRow,
                Qt::UniqueConnection);
    }
    // Of the list that a window opens on the row does: what is printed above it stays in sight.
    if (view != nullptr && fromElsewhere) {
        ShowRow();
    } else {
        Show(QRect(now.mapTo(widget(), QPoint()), now.size()));
    }
}

/// The row that the keys have come to. One that the mouse presses is in sight, and stays below the pointer.
void ScrollPane::ShowRow()
{
    const auto* view = qobject_cast<const QAbstractItemView*>(QApplication::focusWidget());
    if (view == nullptr || !widget()->isAncestorOf(view) || QGuiApplication::mouseButtons() != Qt::NoButton) {
        return;
    }
    const QRect row = view->visualRect(view->currentIndex()) & view->viewport()->rect();
    Show(QRect(view->viewport()->mapTo(widget(), row.topLeft()), row.size()));
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
