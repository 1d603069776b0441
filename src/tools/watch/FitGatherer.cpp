// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/FitGatherer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace zelvia
{
namespace
{

constexpr std::int64_t kEpoch = 631065600; ///< Second 0 of the file, 31/12/1989, since 1970.

// Messages and their fields, as the format numbers them.
constexpr std::uint16_t kFileId = 0;
constexpr std::uint16_t kSport = 12;
constexpr std::uint16_t kSession = 18;
constexpr std::uint16_t kLap = 19;
constexpr std::uint16_t kRecord = 20;
constexpr std::uint16_t kEvent = 21;
constexpr std::uint16_t kActivity = 34;

constexpr double kActivityFile = 4; ///< The type of a file that holds activities.

constexpr std::array<std::string_view, 18> kSports = {
    "generic",    "running", "cycling",   "transition", "fitness_equipment", "swimming",
    "basketball", "soccer",  "tennis",    "football",   "training",          "walking",
    "skiing",     "alpine",  "snowboard", "rowing",     "mountaineering",    "hiking"};

std::string SportName(std::optional<double> number)
{
    if (!number) {
        return {};
    }
    const bool named = *number >= 0 && *number < static_cast<double>(kSports.size());
    return std::string(named ? kSports[static_cast<std::size_t>(*number)] : "other");
}

std::optional<double> Scaled(std::optional<double> value, double scale)
{
    return value ? std::optional(*value / scale) : std::nullopt;
}

std::optional<std::size_t> Count(std::optional<double> value)
{
    constexpr double most = 65535;
    return value && *value >= 0 && *value <= most ? std::optional(static_cast<std::size_t>(*value)) : std::nullopt;
}

std::optional<Place> PlaceOf(const FitMessage& message, std::uint8_t latitude, std::uint8_t longitude)
{
    constexpr double degree = 2147483648.0 / 180; // A half circle has 2 to the 31 parts.
    const auto north = Scaled(message.Value(latitude), degree);
    const auto east = Scaled(message.Value(longitude), degree);
    return north && east ? std::optional(Place{*north, *east}) : std::nullopt;
}

} // namespace

void FitGatherer::Take(const FitMessage& message)
{
    switch (message.Number()) {
    case kFileId: fileType_ = message.Value(0); break;
    case kSport: sport_ = SportName(message.Value(0)); break;
    case kSession: sessions_.push_back(SummaryOf(message, 5)); break;
    case kLap: laps_.push_back(SummaryOf(message, 25)); break;
    case kRecord: TakeRecord(message); break;
    case kEvent: TakeEvent(message); break;
    case kActivity: TakeOffset(message); break;
    default: break;
    }
}

std::vector<Activity> FitGatherer::Activities()
{
    if (fileType_.value_or(kActivityFile) != kActivityFile) {
        return {};
    }
    std::stable_sort(records_.begin(), records_.end(),
                     [](const Record& one, const Record& other) { return one.time < other.time; });
    if (sessions_.empty()) {
        sessions_.push_back({});
        sessions_.back().sport = sport_;
    }
    std::vector<Activity> activities;
    for (std::size_t i = 0; i < sessions_.size(); ++i) {
        if (auto activity = ActivityOf(sessions_[i], i == 0)) {
            activities.push_back(std::move(*activity));
        }
    }
    return activities;
}

FitGatherer::Summary FitGatherer::SummaryOf(const FitMessage& message, std::uint8_t sport)
{
    Summary summary;
    if (const auto start = message.Value(2)) {
        summary.start = static_cast<std::int64_t>(*start) + kEpoch;
    }
    summary.elapsed = Scaled(message.Value(7), 1000);
    summary.moving = Scaled(message.Value(8), 1000);
    summary.metres = Scaled(message.Value(9), 100);
    summary.sport = SportName(message.Value(sport));
    if (message.Number() == kSession) {
        summary.firstLap = Count(message.Value(25));
        summary.lapCount = Count(message.Value(26));
    }
    summary.place = PlaceOf(message, 3, 4);
    if (!summary.start && message.Timestamp() && summary.elapsed) {
        summary.start = *message.Timestamp() + kEpoch - std::llround(*summary.elapsed);
    }
    return summary;
}

void FitGatherer::TakeRecord(const FitMessage& message)
{
    const auto time = message.Timestamp();
    std::optional<double> metres = Scaled(message.Value(5), 100);
    if (const std::string_view packed = message.Bytes(8); packed.size() == 3) {
        // Twelve bits of speed, then twelve of the distance in sixteenths of a metre, which begin again at 0.
        const auto byte = [&](std::size_t place) {
            return static_cast<unsigned>(static_cast<unsigned char>(packed[place]));
        };
        const unsigned sixteenths = (byte(1) >> 4U) | (byte(2) << 4U);
        packedSixteenths_ += (sixteenths - static_cast<unsigned>(packedSixteenths_)) & 0xFFFU;
        metres = metres ? metres : std::optional(static_cast<double>(packedSixteenths_) / 16);
    }
    if (time) {
        records_.push_back({*time + kEpoch, metres, PlaceOf(message, 0, 1)});
    }
}

void FitGatherer::TakeEvent(const FitMessage& message)
{
    constexpr double timer = 0;
    if (!message.Timestamp() || message.Value(0) != timer) {
        return;
    }
    constexpr double start = 0;
    constexpr std::array<double, 4> stops = {1, 4, 8, 9};
    const double type = message.Value(1).value_or(-1);
    const bool runs = type == start;
    if (runs || std::find(stops.begin(), stops.end(), type) != stops.end()) {
        events_.push_back({*message.Timestamp() + kEpoch, runs});
    }
}

/// The same moment by UTC and by the watch's own clock. A watch that did not know UTC gives no offset.
void FitGatherer::TakeOffset(const FitMessage& message)
{
    const auto local = message.Value(5);
    if (!local || !message.Timestamp()) {
        return;
    }
    constexpr double most = 15 * 3600;
    const double offset = *local - static_cast<double>(*message.Timestamp());
    if (std::abs(offset) <= most) {
        constexpr double step = 900; // Zones differ by quarters of an hour; some watches are a second out.
        offset_ = static_cast<int>(std::lround(offset / step) * static_cast<long>(step));
    }
}

std::optional<Activity> FitGatherer::ActivityOf(const Summary& session, bool first)
{
    Activity activity;
    const std::vector<Summary> laps = LapsOf(session);
    const auto start = StartOf(session, laps);
    if (!start) {
        return std::nullopt;
    }
    activity.start = *start;
    activity.offset = offset_;
    activity.sport = !session.sport.empty() || laps.empty() ? session.sport : laps.front().sport;
    AddLaps(activity, laps);
    activity.elapsed = session.elapsed.value_or(ElapsedOf(activity));
    AddPauses(activity);
    AddTrack(activity, first);
    activity.moving = std::min(session.moving.value_or(MovingOf(activity)), activity.elapsed);
    DropContradictingPauses(activity);
    activity.metres = session.metres.value_or(MetresOf(activity));
    activity.place = session.place ? session.place : PlaceOfStart(activity);
    return IsPlausible(activity) ? std::optional(std::move(activity)) : std::nullopt;
}

/// By their numbers when the file tells these, else by time.
std::vector<FitGatherer::Summary> FitGatherer::LapsOf(const Summary& session) const
{
    if (sessions_.size() == 1) {
        return laps_;
    }
    if (session.firstLap && session.lapCount && *session.firstLap <= laps_.size() &&
        *session.lapCount <= laps_.size() - *session.firstLap) {
        const auto begin = laps_.begin() + static_cast<std::ptrdiff_t>(*session.firstLap);
        return {begin, begin + static_cast<std::ptrdiff_t>(*session.lapCount)};
    }
    std::vector<Summary> laps;
    const std::int64_t start = session.start.value_or(0);
    std::copy_if(laps_.begin(), laps_.end(), std::back_inserter(laps), [&](const Summary& lap) {
        return lap.start && *lap.start >= start &&
               static_cast<double>(*lap.start - start) < session.elapsed.value_or(0);
    });
    return laps;
}

std::optional<std::int64_t> FitGatherer::StartOf(const Summary& session, const std::vector<Summary>& laps) const
{
    if (session.start) {
        return session.start;
    }
    if (!laps.empty() && laps.front().start) {
        return laps.front().start;
    }
    return records_.empty() ? std::nullopt : std::optional(records_.front().time);
}

void FitGatherer::AddLaps(Activity& activity, const std::vector<Summary>& laps)
{
    for (const Summary& lap : laps) {
        const double elapsed = lap.elapsed.value_or(lap.moving.value_or(0));
        activity.laps.push_back(
            {lap.start.value_or(activity.start), elapsed, lap.moving.value_or(elapsed), lap.metres.value_or(0)});
    }
}

/// From the start to the last lap's end or the last point.
double FitGatherer::ElapsedOf(const Activity& activity) const
{
    double elapsed = 0;
    for (const Lap& lap : activity.laps) {
        elapsed = std::max(elapsed, static_cast<double>(lap.start - activity.start) + lap.elapsed);
    }
    return records_.empty() ? elapsed : std::max(elapsed, static_cast<double>(records_.back().time - activity.start));
}

void FitGatherer::AddPauses(Activity& activity) const
{
    constexpr double running = -1;
    double stopped = running;
    double last = 0;
    for (const TimerEvent& event : events_) {
        const auto at = static_cast<double>(event.time - activity.start);
        if (!event.runs) {
            stopped = stopped < 0 ? at : stopped;
            continue;
        }
        if (stopped >= last && at > stopped && at <= activity.elapsed) {
            activity.pauses.push_back({stopped, at});
            last = at;
        }
        stopped = running;
    }
}

/// The distance of a later one of several activities goes on from that of the one before, or begins again.
void FitGatherer::AddTrack(Activity& activity, bool first) const
{
    double before = 0;
    std::optional<double> base = first ? std::optional(0.0) : std::nullopt;
    std::vector<TrackPoint> track;
    for (const Record& record : records_) {
        const auto seconds = static_cast<double>(record.time - activity.start);
        if (!record.metres) {
            continue;
        }
        if (seconds < 0) {
            before = *record.metres;
            continue;
        }
        base = base.value_or(*record.metres >= before ? before : 0);
        track.push_back({seconds, *record.metres - *base});
    }
    activity.track = PlausibleTrack(track, activity.elapsed);
}

double FitGatherer::MovingOf(const Activity& activity)
{
    double moving = activity.elapsed;
    for (const Pause& pause : activity.pauses) {
        moving -= pause.to - pause.from;
    }
    return std::max(moving, 0.0);
}

double FitGatherer::MetresOf(const Activity& activity)
{
    double metres = 0;
    for (const Lap& lap : activity.laps) {
        metres += lap.metres;
    }
    return activity.track.empty() ? metres : std::max(metres, activity.track.back().metres);
}

std::optional<Place> FitGatherer::PlaceOfStart(const Activity& activity) const
{
    const auto record = std::find_if(records_.begin(), records_.end(), [&](const Record& one) {
        return one.place && one.time >= activity.start &&
               static_cast<double>(one.time - activity.start) <= activity.elapsed;
    });
    return record == records_.end() ? std::nullopt : record->place;
}

} // namespace zelvia
