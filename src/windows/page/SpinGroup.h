// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <functional>
#include <vector>

namespace zelvia
{

class Control;
class frmMain;
class UpDown;
struct GroupRow;
struct NumberRow;
struct ValueRow;

/// The spins of a numeric field, which the click on a value shows, and which go again when the control that holds the
/// focus loses it.
class SpinGroup
{
public:
    SpinGroup(frmMain& page, const NumberRow& row, const GroupRow& group);
    SpinGroup(const SpinGroup&) = delete;
    SpinGroup& operator=(const SpinGroup&) = delete;

    void Show(bool visible);

    std::function<void()> Opened; ///< What else opening does, once the focus is given.
    std::function<void()> Closed; ///< What closing does, once the controls are hidden.

private:
    void Connect(const ValueRow& value);
    void Open(const Text& opening);
    void Close();

    frmMain& page_;
    std::vector<UpDown*> spins_;     ///< From left to right.
    std::vector<Control*> controls_; ///< In the order in which they appear.
    Control* focus_;                 ///< The one that takes the focus.
};

} // namespace zelvia
