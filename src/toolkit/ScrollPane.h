// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QScrollArea>

namespace zelvia
{

/// Shows a widget in the space of a window, and scrolls where it is larger. What has the focus is kept in view, and of
/// a list the row that the keys come to; the keys are the window's.
class ScrollPane : public QScrollArea
{
    Q_OBJECT

public:
    ScrollPane(QWidget* parent, QWidget* content);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FollowFocus(QWidget& now);
    void ShowRow();
    void Show(const QRect& place);

    QPointer<QWidget> focusWindow_; ///< The window that had the focus last.
};

} // namespace zelvia
