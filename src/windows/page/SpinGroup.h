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
class Label;

/// A numeric field of the page: a value label whose click shows controls beside it, and hides them again when the one
/// that holds the focus loses it.
class SpinGroup
{
public:
    /// A label whose click opens the group, or closes it when it is open.
    struct Value {
        Label* label;
        Control* probe; ///< Visible when the group counts as open.
        Text title;     ///< The name that the click reports under.
        Text opening;   ///< The name of the opening routine.
    };

    struct Parts {
        std::vector<Value> values;
        Label* caption; ///< A click on it closes the group.
        Text captionTitle;
        std::vector<Control*> controls; ///< In the order in which they appear.
        Control* focus;                 ///< The one that takes the focus.
        std::function<void()> opened;   ///< What else opening does, once the focus is given.
        std::function<void()> closed;   ///< What closing does, once the controls are hidden.
    };

    SpinGroup(frmMain& page, Parts parts);
    SpinGroup(const SpinGroup&) = delete;
    SpinGroup& operator=(const SpinGroup&) = delete;

    void Show(bool visible);

private:
    void Open(const Text& opening);
    void Close();
    void ConnectKeys();

    frmMain& page_;
    Parts parts_;
};

} // namespace zelvia
