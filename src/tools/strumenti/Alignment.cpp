// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/Alignment.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace zelvia
{
namespace
{

using Index = std::ptrdiff_t;

enum class Step : std::uint8_t { None, Take, Drop, Fill };

/// The cheapest way through both, within a band around the diagonal: the files are long and little is wrong with them.
class Band
{
public:
    Band(const std::vector<SourceLine>& lines, const std::vector<LinePattern>& patterns)
        : lines_(lines), patterns_(patterns), rows_(std::ssize(lines)), columns_(std::ssize(patterns)),
          reach_(std::abs(rows_ - columns_) + 50), width_(2 * reach_ + 1),
          steps_(static_cast<std::size_t>((rows_ + 1) * width_), Step::None)
    {
        std::vector<int> above;
        for (Index row = 0; row <= rows_; ++row) {
            above = Row(row, above);
        }
    }

    std::vector<SourceLine> Way() const
    {
        std::vector<SourceLine> way;
        Index row = rows_;
        Index column = columns_;
        while (row > 0 || column > 0) {
            const Step step = steps_[Place(row, column)];
            if (step == Step::Take) {
                way.push_back(lines_[static_cast<std::size_t>(row - 1)]);
            } else if (step == Step::Fill) {
                way.push_back(
                    {patterns_[static_cast<std::size_t>(column - 1)].blank, {}, 0, SourceLine::Encoding::Own});
            }
            row -= step == Step::Fill ? 0 : 1;
            column -= step == Step::Drop ? 0 : 1;
        }
        std::reverse(way.begin(), way.end());
        return way;
    }

private:
    static constexpr int kFar = std::numeric_limits<int>::max() / 2;
    static constexpr int kUnlike = 3;
    static constexpr int kGap = 2;
    static constexpr int kEmptyLine = 1;

    std::size_t Place(Index row, Index column) const
    {
        return static_cast<std::size_t>(row * width_ + column - row + reach_);
    }

    std::vector<int> Row(Index row, const std::vector<int>& above)
    {
        std::vector<int> costs(static_cast<std::size_t>(width_), kFar);
        for (Index i = 0; i < width_; ++i) {
            const Index column = row - reach_ + i;
            if (column >= 0 && column <= columns_) {
                costs[static_cast<std::size_t>(i)] = Cost(row, column, i, above, costs);
            }
        }
        return costs;
    }

    int Cost(Index row, Index column, Index i, const std::vector<int>& above, const std::vector<int>& costs)
    {
        int best = row == 0 && column == 0 ? 0 : kFar;
        const auto consider = [&](int cost, Step step) {
            if (cost < best) {
                best = cost;
                steps_[Place(row, column)] = step;
            }
        };
        if (row > 0 && column > 0) {
            const bool like = LooksLike(patterns_[static_cast<std::size_t>(column - 1)].kind,
                                        lines_[static_cast<std::size_t>(row - 1)].text);
            consider(above[static_cast<std::size_t>(i)] + (like ? 0 : kUnlike), Step::Take);
        }
        if (row > 0 && i + 1 < width_) {
            const bool empty = lines_[static_cast<std::size_t>(row - 1)].text.empty();
            consider(above[static_cast<std::size_t>(i + 1)] + (empty ? kEmptyLine : kGap), Step::Drop);
        }
        if (column > 0 && i > 0) {
            consider(costs[static_cast<std::size_t>(i - 1)] + kGap, Step::Fill);
        }
        return best;
    }

    const std::vector<SourceLine>& lines_;
    const std::vector<LinePattern>& patterns_;
    Index rows_;
    Index columns_;
    Index reach_;
    Index width_;
    std::vector<Step> steps_;
};

} // namespace

std::vector<SourceLine> Align(const std::vector<SourceLine>& lines, const std::vector<LinePattern>& patterns)
{
    return Band(lines, patterns).Way();
}

} // namespace zelvia
