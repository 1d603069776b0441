// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Control.h"

#include <QLabel>

namespace zelvia
{

/// A text on the page. It takes no focus from the mouse; one that acts when clicked can be reached with Tab and acts
/// on Enter and Space too.
class Label : public QLabel, public Control
{
    Q_OBJECT

public:
    Label(QWidget* parent, const QString& name);

    Text Caption() const;
    void SetCaption(TextView caption);

    /// Gives the label a click, and with it its place among the keys.
    void OnClick(std::function<void()> click);

    /// The label's own pointer: MousePointer::Default or MousePointer::Custom with the cursor given.
    void SetPointer(const QCursor& cursor) { setCursor(cursor); }
    void SetDefaultPointer() { unsetCursor(); }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void()> click_;
    bool pressed_ = false;
};

} // namespace zelvia
