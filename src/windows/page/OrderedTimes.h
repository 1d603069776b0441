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
    void ListavOrdinata(const Text& percorso);
    /// The same from the stored days only.
    void ListavOrdinataDue(const Text& percorso);
    void Close();
    /// Puts it over what was shown last, as long as it is open.
    void Raise();

private:
    void Begin();
    void AddRun(i16 giorno, const Text& tempoRun, const Text& media, CalendarDate dataRun);
    void AddRunsOf(const Text& percorso, i16 ultimo);
    void Fill(bool posizione);

    PageControls& page_;
    std::optional<ListaOrdinata> times_; ///< Alive while it is open.
};

} // namespace zelvia
