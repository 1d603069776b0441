// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/watch/Activity.h"
#include "tools/watch/FitMessages.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// Gathers what the messages of one FIT file tell, and puts its activities together.
class FitGatherer
{
public:
    void Take(const FitMessage& message);

    /// The activities of what was taken, none for a file of another kind.
    std::vector<Activity> Activities();

private:
    /// An outing or a lap, as the file sums it up.
    struct Summary {
        std::optional<std::int64_t> start;
        std::optional<double> elapsed;
        std::optional<double> moving;
        std::optional<double> metres;
        std::string sport;
        std::optional<std::size_t> firstLap;
        std::optional<std::size_t> lapCount;
        std::optional<Place> place;
    };

    struct Record {
        std::int64_t time = 0;
        std::optional<double> metres;
        std::optional<Place> place;
    };

    struct TimerEvent {
        std::int64_t time = 0;
        bool runs = false;
    };

    static Summary SummaryOf(const FitMessage& message, std::uint8_t sport);
    void TakeRecord(const FitMessage& message);
    void TakeEvent(const FitMessage& message);
    void TakeOffset(const FitMessage& message);
    std::optional<Activity> ActivityOf(const Summary& session, bool first);
    std::vector<Summary> LapsOf(const Summary& session) const;
    std::optional<std::int64_t> StartOf(const Summary& session, const std::vector<Summary>& laps) const;
    static void AddLaps(Activity& activity, const std::vector<Summary>& laps);
    double ElapsedOf(const Activity& activity) const;
    void AddPauses(Activity& activity) const;
    void AddTrack(Activity& activity, bool first) const;
    static double MovingOf(const Activity& activity);
    static double MetresOf(const Activity& activity);
    std::optional<Place> PlaceOfStart(const Activity& activity) const;

    std::optional<double> fileType_;
    std::string sport_;
    std::optional<int> offset_;
    std::vector<Summary> sessions_;
    std::vector<Summary> laps_;
    std::vector<Record> records_;
    std::vector<TimerEvent> events_;
    std::uint64_t packedSixteenths_ = 0;
};

} // namespace zelvia
