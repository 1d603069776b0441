// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/bookpages/PageFlow.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace zelvia
{

double PixelsOf(double millimetres, const BookPaper& paper)
{
    constexpr double dotsPerInch = 96;
    constexpr double millimetresPerInch = 25.4;
    return millimetres / millimetresPerInch * dotsPerInch / paper.scale;
}

PageFlow::PageFlow(const BookPaper& paper) : paper_(paper)
{
    const QSizeF size = QPageSize(paper.size).size(QPageSize::Millimeter);
    width_ = PixelsOf(size.width() - paper.inner - paper.outer, paper);
    height_ = PixelsOf(size.height() - paper.top - paper.bottom, paper);
}

void PageFlow::NewPage(const QString& header)
{
    header_ = header;
    pages_.push_back({header, {}, {}});
    y_ = 0;
}

void PageFlow::NewRightPage(const QString& header)
{
    if (pages_.size() % 2 != 0) {
        pages_.emplace_back();
    }
    NewPage(header);
}

void PageFlow::Reserve(double height)
{
    if (!AtTop() && y_ + height > height_) {
        SpreadPage();
        NewPage(QString(header_));
    }
}

void PageFlow::Skip(double height)
{
    if (AtTop()) {
        return;
    }
    y_ += height;
    Page& page = pages_.back();
    if (page.gaps.empty() || page.gaps.back() != page.pieces.size()) {
        page.gaps.push_back(page.pieces.size());
    }
}

/// Gives what is left of a page to its gaps, so that it ends where others do; not so much that it looks torn apart.
void PageFlow::SpreadPage()
{
    constexpr double most = 16;
    Page& page = pages_.back();
    std::erase(page.gaps, page.pieces.size());
    const auto count = static_cast<double>(page.gaps.size());
    const double bottom = page.gaps.empty() ? height_ : y_;
    const double share = std::min(most, (height_ - bottom) / std::max(count, 1.0));
    for (const std::size_t gap : page.gaps) {
        const double from = page.pieces[gap].y;
        for (std::size_t piece = gap; piece < page.pieces.size(); ++piece) {
            page.pieces[piece].y += share;
        }
        for (BookMark& mark : marks_) {
            mark.y += mark.page + 1 == static_cast<int>(pages_.size()) && mark.y >= from ? share : 0;
        }
    }
}

void PageFlow::Add(double height, Draw draw)
{
    Reserve(height);
    const double scale = height > height_ ? height_ / height : 1;
    pages_.back().pieces.push_back({y_, scale, std::move(draw)});
    y_ += height * scale;
}

void PageFlow::AddTo(std::size_t page, double y, Draw draw)
{
    pages_[page].pieces.push_back({y, 1, std::move(draw)});
}

void PageFlow::Mark(int level, const QString& title)
{
    marks_.push_back({level, title, static_cast<int>(pages_.size()) - 1, y_});
}

} // namespace zelvia
