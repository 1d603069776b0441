// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Text.h"
#include "tools/years/AllDiaries.h"
#include "tools/yearswindow/Figure.h"

#include <optional>
#include <vector>

namespace zelvia
{

/// What was read, and the day it is.
struct YearsRead {
    AllDiaries all;
    std::vector<DiaryDay> days; ///< Of all years.
    CalendarDate today;
};

enum class FigureKind { Weeks, Months, Years, Curve, Paces, Distances, Routes, Weights, Loads };

/// What is to be shown of a kind; each takes what it needs.
struct FigureChoices {
    static constexpr int kAll = 0;
    static constexpr int kNone = -1;

    int year = kAll;   ///< kAll where a kind shows all years at once.
    int other = kNone; ///< The year beside it, or kAll for all others.
    Text route;        ///< Empty for all.
    std::optional<int> goal;
};

/// What the window asks for when a kind is chosen.
struct FigureKindRow {
    FigureKind kind;
    const char* title; ///< To be translated in the context "YearsFigures".
    bool year;         ///< Needs a year.
    bool allYears;     ///< May show all of them.
    bool other;        ///< May show another year beside it.
    bool route;
};
const std::vector<FigureKindRow>& FigureKinds();

Figure FigureOf(FigureKind kind, const YearsRead& read, const FigureChoices& choices);

/// Where one stands with the goal of a year, in a sentence or two.
QString StandingText(const YearsRead& read, int year, int kilometres);

} // namespace zelvia
