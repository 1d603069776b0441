// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QPixmap>
#include <QWidget>

#include <functional>
#include <vector>

namespace zelvia
{

class Picture;

/// The open diary on its desk, with its controls. It fills the room it is given and keeps its proportions: the places
/// and the faces of the controls are designed for a page of the size of PageLayout::kDesk, and shown larger or smaller.
/// Until it is first shown at another size, the controls are in their places as designed.
class PaperSheet : public QWidget
{
    Q_OBJECT

public:
    explicit PaperSheet(QWidget* parent);

    /// How many times larger than designed everything is shown.
    double Factor() const { return factor_; }
    /// Where something that was designed for `place` is shown.
    QRect Place(const QRect& place) const;

    QSize sizeHint() const override;

    /// The page has another factor or is in another place.
    std::function<void()> Grown;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// A control as designed.
    struct Design {
        QWidget* widget;
        Picture* picture; ///< The same, or null.
        QRect place;
        bool hasFont; ///< Otherwise it has that of the page.
        QFont font;
    };

    void NoteDesigns();
    void Arrange();
    void Draw(QPainter& painter) const;

    std::vector<Design> designs_;
    QFont font_; ///< Of the page, as designed.
    double factor_ = 1;
    QPoint corner_; ///< Of what PageLayout counts from.
    QPixmap cache_;
    QSize shown_; ///< As painted last, and at which scale of the screen.
    double shownScale_ = 0;
};

} // namespace zelvia
