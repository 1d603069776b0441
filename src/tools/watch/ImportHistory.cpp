// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/ImportHistory.h"

#include "core/Conversions.h"
#include "tools/copies/SafeFiles.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr char kTab = '\t';

std::vector<std::string_view> Cells(std::string_view line)
{
    std::vector<std::string_view> cells;
    for (;;) {
        const std::size_t tab = line.find(kTab);
        cells.push_back(line.substr(0, tab));
        if (tab == std::string_view::npos) {
            return cells;
        }
        line.remove_prefix(tab + 1);
    }
}

template <typename Number>
std::optional<Number> NumberOf(std::string_view text)
{
    Number number{};
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failed == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::optional<ImportedActivity> FromLine(std::string_view line)
{
    constexpr std::size_t columns = 7;
    const std::vector<std::string_view> cells = Cells(line);
    if (cells.size() != columns) {
        return std::nullopt;
    }
    const auto moment = NumberOf<std::int64_t>(cells[1]);
    const auto metres = NumberOf<int>(cells[3]);
    const auto latitude = NumberOf<double>(cells[4]);
    const auto longitude = NumberOf<double>(cells[5]);
    try {
        ImportedActivity activity{std::string(cells[0]), moment.value_or(0), IsoDate(cells[2]), metres.value_or(0), {},
                                  FromUtf8(cells[6])};
        if (latitude && longitude) {
            activity.place = Place{*latitude, *longitude};
        }
        return moment && metres ? std::optional(std::move(activity)) : std::nullopt;
    } catch (const ErroreRunTime&) {
        return std::nullopt; // No date.
    }
}

std::string Digits(double number)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

std::string LineOf(const ImportedActivity& activity)
{
    std::string line = activity.folder + kTab + std::to_string(activity.moment) + kTab +
                       Format(activity.date, "yyyy-mm-dd") + kTab + std::to_string(activity.metres) + kTab;
    line += activity.place ? Digits(activity.place->latitude) + kTab + Digits(activity.place->longitude)
                           : std::string(1, kTab);
    std::string route = ToUtf8(activity.route);
    std::replace_if(
        route.begin(), route.end(), [](char c) { return c == kTab || c == '\n' || c == '\r'; }, ' ');
    return line + kTab + route + "\n";
}

/// Metres between two places that are not far from each other.
double Away(const Place& one, const Place& other)
{
    constexpr double degree = 111'195; // Metres along a meridian.
    const double middle = (one.latitude + other.latitude) / 2 * 3.14159265358979 / 180;
    return std::hypot((one.latitude - other.latitude) * degree,
                      (one.longitude - other.longitude) * degree * std::cos(middle));
}

} // namespace

ImportHistory::ImportHistory(fs::path file) : file_(std::move(file))
{
    if (!fs::exists(file_)) {
        return;
    }
    const std::string bytes = ReadFile(file_);
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        if (auto activity = FromLine(rest.substr(0, end))) {
            all_.push_back(std::move(*activity));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

std::vector<ImportedActivity> ImportHistory::Of(const std::string& folder) const
{
    std::vector<ImportedActivity> own;
    std::copy_if(all_.begin(), all_.end(), std::back_inserter(own),
                 [&](const ImportedActivity& activity) { return activity.folder == folder; });
    return own;
}

void ImportHistory::Put(ImportedActivity activity)
{
    if (activity.folder.find_first_of("\t\n") != std::string::npos) {
        return;
    }
    std::erase_if(all_, [&](const ImportedActivity& one) {
        return one.folder == activity.folder && one.moment == activity.moment;
    });
    all_.push_back(std::move(activity));
}

void ImportHistory::Save() const
{
    MakeFolders(file_.parent_path());
    fs::path fresh = file_;
    fresh += ".nuovo";
    fs::remove(fresh);
    std::string bytes;
    for (const ImportedActivity& activity : all_) {
        bytes += LineOf(activity);
    }
    WriteNewFile(fresh, bytes);
    fs::rename(fresh, file_);
    SyncFolder(file_.parent_path());
}

bool IsOfLength(const Activity& activity, int metres)
{
    constexpr double least = 100;  // What a watch may be out on a short one.
    constexpr double share = 30.0; // And on a long one.
    return std::abs(metres - activity.metres) <= std::max(least, activity.metres / share);
}

Text ProposeRoute(const Activity& activity, const std::vector<RouteCandidate>& candidates)
{
    constexpr double near = 300; // Metres between two starts of the same route.
    for (const bool known : {true, false}) {
        double closest = std::numeric_limits<double>::max();
        Text name;
        for (const RouteCandidate& candidate : candidates) {
            const double out = std::abs(candidate.metres - activity.metres);
            if (candidate.name.empty() || out > closest || !IsOfLength(activity, candidate.metres)) {
                continue;
            }
            const bool here = known
                                  ? candidate.start && activity.place && Away(*candidate.start, *activity.place) <= near
                                  : !candidate.start;
            if (here) {
                closest = out;
                name = candidate.name;
            }
        }
        if (!name.empty()) {
            return name;
        }
    }
    return {};
}

} // namespace zelvia
