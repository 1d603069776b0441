// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Control.h"
#include "toolkit/QtText.h"

#include <QLabel>

#include <functional>
#include <optional>
#include <utility>

namespace zelvia
{

/// Whether the keyboard can do what a click does.
enum class KeyReach { Reachable, MouseOnly };

/// A text on the page. It takes no focus from the mouse; one that acts when clicked can be reached with Tab and acts
/// on Enter and Space too.
class Label : public QLabel, public Control
{
    Q_OBJECT

public:
    Label(QWidget* parent, const QString& name);

    Text Caption() const { return FromQString(text()); }
    void SetCaption(TextView caption);

    /// Gives the label a click and, unless another control does the same for the keyboard, a place in the order of Tab.
    void OnClick(std::function<void()> click, KeyReach reach = KeyReach::Reachable);

    /// Underlines one of the numbers in the text, counted from 0: what the keys act on at present. -1 for none; of a
    /// number that is entered in two places only the last `digits`.
    void UnderlineNumber(int number, int digits = 0);

    /// Has a value that says nothing written faintly, as long as no key acts on it: zeros alone, or the text `blank`.
    void FadeBlank(TextView blank = {});
    bool Faint() const;

    /// Paints the label in the place of its text; the area is all of it.
    using Drawing = std::function<void(QPainter& painter, const QRectF& area)>;
    void SetArtwork(Drawing artwork) { artwork_ = std::move(artwork); }
    /// Paints a mark at the right end, `width` heights wide. The text leaves that place free.
    void SetMark(Drawing mark, qreal width = 1);
    QRectF MarkArea() const;
    /// Where the text is drawn: left of the mark, and with room for the first letter of a slanted hand, which begins
    /// before its place.
    QRect TextArea() const;

    /// The text as it is painted: with an ellipsis where it is too long. The tooltip then shows it in full.
    QString Shown() const;

    /// The text has become another one.
    std::function<void()> Changed;

    /// True when the keyboard can do what a click does.
    bool Acts() const { return click_ && focusPolicy() != Qt::NoFocus; }
    /// Does what a click does.
    void Press();

    /// A button was released over the label.
    std::function<void(Qt::MouseButton button, const QPoint& globalPosition)> MouseUp;

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintText();
    void PaintUnderline();

    int underlined_ = -1;
    int underlinedDigits_ = 0;
    std::optional<QString> blank_; ///< What is written faintly besides zeros.
    Drawing artwork_, mark_;
    qreal markWidth_ = 0; ///< As a part of the height.
    std::function<void()> click_;
    bool pressed_ = false;
};

} // namespace zelvia
