// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/NoteLines.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/RecordGiorno.h"
#include "toolkit/Events.h"
#include "toolkit/Keys.h"
#include "windows/page/FrmMain.h"

#include <algorithm>

namespace zelvia
{
namespace
{

Text NoteName(TextView control, int line)
{
    return Text(control) + "Note" + PlainText(i32(line)) + " - ERRORE : ";
}

} // namespace

NoteLines::NoteLines(frmMain& page) : page_(page)
{
    for (int line = kFirstNote; line <= kLastNote; ++line) {
        page_.notes[line].lbl->OnClick([this, line] { lblNote_Click(line); });
        page_.notes[line].txt->LostFocus = [this, line] {
            Trap(NoteName("txt", line), [&] {
                page_.notes[line].txt->SetVisible(false);
                page_.notes[line].lbl->SetCaption(page_.notes[line].txt->Content());
            });
        };
        page_.notes[line].txt->Change = [] {}; // A routine, after which the journal looks at the page.
        page_.notes[line].txt->Click = [this, line] { txtNote_Click(line); };
        page_.notes[line].txt->KeyPress = [this, line](int& keyAscii) { txtNote_KeyPress(line, keyAscii); };
    }
}

void NoteLines::lblNote_Click(int line)
{
    Trap(NoteName("lbl", line), [&] {
        page_.notes[line].txt->SetContent(page_.notes[line].lbl->Caption());
        page_.FollowInTabOrder(*page_.notes[line].txt);
        page_.notes[line].txt->SetVisible(true);
        page_.notes[line].txt->SetFocus();
        page_.LunghezzaNota = 0;
    });
}

void NoteLines::txtNote_Click(int line)
{
    Trap(NoteName("txt", line), [this] {
        page_.NoteAperte = 1;
        mnuNote_Click();
    });
}

void NoteLines::txtNote_KeyPress(int line, int keyAscii)
{
    // The handler of the seventh line goes by the name of its label.
    constexpr int misnamed = 7;
    Trap(NoteName(line == misnamed ? "lbl" : "txt", line), [&] {
        if (keyAscii == kBackspace) {
            return;
        }
        TextBox& txt = *page_.notes[line].txt;
        page_.LunghezzaNota = static_cast<int>(Len(txt.Content()));
        if (page_.LunghezzaNota == txt.Limit() - 1) {
            txt.SetVisible(false);
            if (line < kLastNote) {
                page_.notes[line + 1].txt->SetVisible(true);
                page_.notes[line + 1].txt->SetFocus();
            }
        }
        if (keyAscii == kEscape || (keyAscii == kEnter && line == kLastNote)) {
            txtNote_Click(line);
        } else if (keyAscii == kEnter) {
            lblNote_Click(line + 1);
        }
    });
}

bool NoteLines::MoveAlong(int step)
{
    for (int line = kFirstNote; line <= kLastNote; ++line) {
        const NoteControls& note = page_.notes[line];
        if (!note.txt->hasFocus() && !note.lbl->hasFocus()) {
            continue;
        }
        const int target = std::clamp(line + step, kFirstNote, kLastNote);
        if (note.lbl->hasFocus()) {
            page_.notes[target].lbl->SetFocus();
        } else if (target != line) {
            Fire([&] { lblNote_Click(target); });
        }
        return true;
    }
    return false;
}

void NoteLines::mnuNote_Click()
{
    Trap("mnuNote - ERRORE : ", [this] {
        if (page_.NoteAperte != 0 && page_.NoteAperte != 1) {
            return;
        }
        const bool show = page_.NoteAperte == 0;
        for (const NoteControls& note : page_.notes) {
            if (show && note.lbl->hasFocus()) {
                // The box hides it; Tab goes on from there.
                page_.FollowInTabOrder(*note.lbl);
                page_.FocusSink().SetFocus();
            }
            note.txt->SetVisible(show);
        }
        page_.NoteAperte = show ? 1 : 0;
    });
}

} // namespace zelvia
