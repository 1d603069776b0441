// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/SpinKeys.h"
#include "windows/page/PageFields.h"

#include <optional>
#include <vector>

namespace zelvia
{

class frmMain;

/// The spins of a numeric field: what its label shows of them, how a click on the label shows them, and what follows
/// when the control that holds the focus loses it and they go again.
class SpinGroup
{
public:
    SpinGroup(frmMain& page, const NumberRow& row, const GroupRow& group);
    SpinGroup(const SpinGroup&) = delete;
    SpinGroup& operator=(const SpinGroup&) = delete;

    void Show(bool visible);

private:
    void ConnectClick(const ValueRow& value);
    void ConnectSpins();
    void ConnectDistance();
    void ShowDistance(i32 metres);
    void Open(const Text& opening);
    void Close();
    void Underline(int spin);

    frmMain& page_;
    Then then_;
    Label& value_;
    std::vector<Label*> values_;     ///< `value_` and, where a second label shows more of the group, that one.
    std::vector<UpDown*> spins_;     ///< From left to right.
    std::vector<Control*> controls_; ///< In the order in which they appear.
    Control* focus_;                 ///< The one that takes the focus.
    std::optional<SpinKeys> keys_;
};

} // namespace zelvia
