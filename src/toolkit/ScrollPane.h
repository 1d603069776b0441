// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace zelvia
{

/// Shows a widget in the space of a window, and scrolls where it is larger. What has the focus is kept in view; the
/// keys are the window's.
class ScrollPane : public QScrollArea
{
    Q_OBJECT

public:
    ScrollPane(QWidget* parent, QWidget* content);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Show(const QRect& place);
};

} // namespace zelvia
