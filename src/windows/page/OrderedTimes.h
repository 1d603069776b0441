// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/ListaOrdinata.h"
#include "windows/page/PageControls.h"

#include <optional>

namespace zelvia
{

/// The sorted list of a route's times, over the page.
class OrderedTimes
{
public:
    explicit OrderedTimes(PageControls& page) : page_(page) {}

    /// Opens the list, the day on show as one of its lines.
    void ListavOrdinata(const Text& route);
    /// The same from the stored days only.
    void ListavOrdinataDue(const Text& route);
    void Close();
    /// Puts it over what was shown last, as long as it is open.
    void Raise();

private:
    void Begin();
    void AddRun(i16 day, const Text& time, const Text& pace, CalendarDate date);
    void AddRunsOf(const Text& route, i16 last);
    void Fill(bool place);

    PageControls& page_;
    std::optional<ListaOrdinata> times_; ///< Alive while it is open.
};

} // namespace zelvia
