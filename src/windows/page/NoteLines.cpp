// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/NoteLines.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{
namespace
{

constexpr int kBackspace = 8;
constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr int kFirstNote = 3;
constexpr int kLastNote = 10;

Text NoteName(TextView control, int riga)
{
    return Text(control) + "Note" + PlainText(i32(riga)) + " - ERRORE : ";
}

} // namespace

NoteLines::NoteLines(frmMain& page) : page_(page)
{
    for (int riga = kFirstNote; riga <= kLastNote; ++riga) {
        page_.note[riga].lbl->OnClick([this, riga] { lblNote_Click(riga); });
        page_.note[riga].txt->LostFocus = [this, riga] {
            Trap(NoteName("txt", riga), [&] {
                page_.note[riga].txt->SetVisible(false);
                page_.note[riga].lbl->SetCaption(page_.note[riga].txt->Content());
            });
        };
        page_.note[riga].txt->Click = [this, riga] { txtNote_Click(riga); };
        page_.note[riga].txt->KeyPress = [this, riga](int& keyAscii) { txtNote_KeyPress(riga, keyAscii); };
    }
}

void NoteLines::lblNote_Click(int riga)
{
    Trap(NoteName("lbl", riga), [&] {
        page_.note[riga].txt->SetContent(page_.note[riga].lbl->Caption());
        page_.FollowInTabOrder(*page_.note[riga].txt);
        page_.note[riga].txt->SetVisible(true);
        page_.note[riga].txt->SetFocus();
        page_.LunghezzaNota = 0;
    });
}

void NoteLines::txtNote_Click(int riga)
{
    Trap(NoteName("txt", riga), [this] {
        page_.NoteAperte = 1;
        mnuNote_Click();
    });
}

void NoteLines::txtNote_KeyPress(int riga, int keyAscii)
{
    // The handler of the seventh line goes by the name of its label.
    constexpr int misnamed = 7;
    Trap(NoteName(riga == misnamed ? "lbl" : "txt", riga), [&] {
        if (keyAscii == kBackspace) {
            return;
        }
        TextBox& txt = *page_.note[riga].txt;
        page_.LunghezzaNota = static_cast<int>(Len(txt.Content()));
        if (page_.LunghezzaNota == txt.Limit() - 1) {
            txt.SetVisible(false);
            if (riga < kLastNote) {
                page_.note[riga + 1].txt->SetVisible(true);
                page_.note[riga + 1].txt->SetFocus();
            }
        }
        if (keyAscii == kEscape || (keyAscii == kEnter && riga == kLastNote)) {
            txtNote_Click(riga);
        } else if (keyAscii == kEnter) {
            lblNote_Click(riga + 1);
        }
    });
}

void NoteLines::mnuNote_Click()
{
    Trap("mnuNote - ERRORE : ", [this] {
        if (page_.NoteAperte != 0 && page_.NoteAperte != 1) {
            return;
        }
        const bool show = page_.NoteAperte == 0;
        for (const NoteControls& nota : page_.note) {
            nota.txt->SetVisible(show);
        }
        page_.NoteAperte = show ? 1 : 0;
    });
}

} // namespace zelvia
