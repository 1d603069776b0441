// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zelvia
{

class frmMain;

/// The eight lines of notes, 3..10, and their keys.
class NoteLines
{
public:
    explicit NoteLines(frmMain& page);

    void lblNote_Click(int line);
    void txtNote_Click(int line);
    void txtNote_KeyPress(int line, int keyAscii);
    /// Goes up or down by `step` lines from the one that has the focus, open or not. False when none has it.
    bool MoveAlong(int step);
    /// Opens all lines, or closes them.
    void mnuNote_Click();

private:
    frmMain& page_;
};

} // namespace zelvia
