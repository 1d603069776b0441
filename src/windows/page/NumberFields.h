// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "windows/page/SpinGroup.h"

#include <memory>
#include <vector>

namespace zelvia
{

class frmMain;
struct GroupRow;

/// The fields of the page that are entered with spin controls: what each label shows of its spins, which spins a click
/// on it opens, and what follows when they close.
class NumberFields
{
public:
    explicit NumberFields(frmMain& page);
    NumberFields(const NumberFields&) = delete;
    NumberFields& operator=(const NumberFields&) = delete;

    /// The group of the kilometre splits.
    SpinGroup& Splits() const { return *groups_.back(); }

private:
    void Wire(SpinGroup& group, const GroupRow& row);
    void ConnectDistance();
    void ShowDistance(i32 metri);
    /// Works out what the times and the distance give.
    void Recompute(bool withoutDistance);

    frmMain& page_;
    std::vector<std::unique_ptr<SpinGroup>> groups_;
};

} // namespace zelvia
