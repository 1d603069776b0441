// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/Fields.h"
#include "windows/page/PageControls.h"
#include "windows/page/PageLayout.h"

#include <span>
#include <vector>

namespace zelvia
{

/// A text field of the page, which is entered with a selection list.
struct ListRow {
    SelectionList list;
    TextView caption;
    PageLayout::Row row;
};

/// A spin control of a field and the number that it enters. The rows leave out "up" before its name.
struct SpinRow {
    UpDown* PageControls::*member;
    TextView name;
    TextView tip;
    NumberMember number = {};
    int start = 0;
    NumberRange range = {}; ///< Where it isn't that of the number.
};

/// A label that shows a value. The rows leave out "lbl" before its name.
struct ValueRow {
    Label* PageControls::*label;
    TextView name;
    TextView text;         ///< What it shows before any day.
    TextView spoken = {};  ///< Its name for a screen reader, where it isn't the caption.
    QRect place = {};      ///< Where it isn't the whole place of the row.
    std::size_t probe = 0; ///< The spin that is visible when the value counts as open.
    TextView click = {};   ///< What its click and its opening report under, where it isn't the name.
    TextView opening = {};
};

/// What follows a group of spins: nothing, a computation when it closes, a value when it opens, or more controls.
enum class Then { Nothing, Distance, Times, LastWeight, Splits };

/// The spins that open together at the click on a value, and close together. Without spins the value is worked out.
struct GroupRow {
    std::vector<ValueRow> values;
    std::vector<SpinRow> spins = {};
    std::size_t focus = 0; ///< The spin that takes the focus.
    Then then = Then::Nothing;
};

/// A numeric field of the page. A caption is missing where it is printed on the paper.
struct NumberRow {
    PageLayout::Row row;
    Label* PageControls::*label;
    TextView name;
    TextView caption;
    std::vector<GroupRow> groups;
};

std::span<const ListRow> ListRows();
std::span<const NumberRow> NumberRows();

} // namespace zelvia
