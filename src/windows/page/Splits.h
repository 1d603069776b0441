// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zelvia
{

class frmMain;
class SpinGroup;

/// The kilometre splits: their list, their spins and the button that enters one.
class Splits
{
public:
    Splits(frmMain& page, SpinGroup& group);

    void cmdListaKM_Click();

    // The keys of the list, whose group's button holds the focus.
    void ChooseLine(int step);
    void RemoveLine();
    void OpenMenu();

private:
    frmMain& page_;
    SpinGroup& group_;
};

} // namespace zelvia
