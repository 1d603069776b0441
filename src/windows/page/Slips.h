// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/page/PageControls.h"

#include <array>
#include <functional>
#include <utility>
#include <vector>

namespace zelvia
{

/// The slip on the right page: the row of the active table, or in its place the race of the day.
class Slips
{
public:
    /// `raised` runs whenever a slip may have come to cover what belongs above it.
    Slips(PageControls& page, std::function<void()> raised) : page_(page), raised_(std::move(raised)) {}

    /// Walks the active table up to the day shown and shows the row reached.
    void AssegnaTabella();
    void AzzeraDatiTabella();
    void NessunaTabella();
    void ShowTableName();
    /// Reads the active table and shows the row of the day.
    void ShowActiveTable();
    void ShowTablePanel(bool visible) { Show(page_.tableSlip, visible); }
    void ShowRacePanel(bool visible) { Show(page_.raceSlip, visible); }
    /// Shows the race of the day shown, if the calendar has one.
    void AssegnaGara();
    /// Shows the race at row `place` of the calendar.
    void GiornodellaGara(i16& place);

private:
    void Show(const std::vector<PageControls::SlipLine>& slip, bool visible);
    void ShowTable(const std::array<Text, 6>& values);
    void ShowTableRow(i16 line);
    void EndTable();

    PageControls& page_;
    std::function<void()> raised_;
};

} // namespace zelvia
