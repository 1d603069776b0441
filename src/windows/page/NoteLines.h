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
    /// Opens all lines, or closes them.
    void mnuNote_Click();

private:
    frmMain& page_;
};

} // namespace zelvia
