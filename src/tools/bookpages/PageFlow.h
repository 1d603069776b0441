// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageSize>
#include <QString>

#include <functional>
#include <vector>

class QPainter;

namespace zelvia
{

/// The paper of a book. The margins are millimetres; everything is drawn in logical pixels, 96 to the inch, times
/// `scale`.
struct BookPaper {
    QPageSize::PageSizeId size;
    double scale;
    double inner; ///< Where it is bound.
    double outer;
    double top;
    double bottom;
};

inline constexpr BookPaper kA5{QPageSize::A5, 1, 20, 13, 19, 19};
inline constexpr BookPaper kA4{QPageSize::A4, 1.2, 28, 19, 25, 25};

/// A place that a reader can jump to.
struct BookMark {
    int level; ///< 0 for a chapter.
    QString title;
    int page; ///< From 0 on.
    double y; ///< From the top of its text.
};

/// Fills the pages of a book from the top of the first to the bottom of the last. Places are logical pixels within the
/// margins.
class PageFlow
{
public:
    using Draw = std::function<void(QPainter& painter)>;

    struct Piece {
        double y;
        double scale;
        Draw draw; ///< Draws from (0, 0) on.
    };
    struct Page {
        QString header; ///< Empty on a page without header and number.
        std::vector<Piece> pieces;
        std::vector<std::size_t> gaps; ///< The pieces that have room before them.
    };

    explicit PageFlow(const BookPaper& paper);

    const BookPaper& Paper() const { return paper_; }
    double Width() const { return width_; }
    double Height() const { return height_; }
    const std::vector<Page>& Pages() const { return pages_; }
    const std::vector<BookMark>& Marks() const { return marks_; }

    /// Begins a page with a header; without a text it has none.
    void NewPage(const QString& header);
    /// The same on the right side of the opened book.
    void NewRightPage(const QString& header);
    /// Begins another page of the same header unless there is room for something that high.
    void Reserve(double height);
    /// True at the top of a page.
    bool AtTop() const { return y_ == 0; }
    /// Leaves some room free, but not at the top of a page.
    void Skip(double height);
    /// Adds a piece, on another page if there is no room for it; one that is higher than a page is drawn smaller.
    void Add(double height, Draw draw);
    /// Adds a piece to a page that is there already.
    void AddTo(std::size_t page, double y, Draw draw);
    /// Marks the place of the next piece.
    void Mark(int level, const QString& title);
    /// The text at the head of the next pages.
    void SetHeader(const QString& header) { header_ = header; }

private:
    void SpreadPage();

    BookPaper paper_;
    double width_;
    double height_;
    double y_ = 0;
    QString header_;
    std::vector<Page> pages_;
    std::vector<BookMark> marks_;
};

/// Logical pixels of millimetres on a paper.
double PixelsOf(double millimetres, const BookPaper& paper);

} // namespace zelvia
