// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/Splits.h"

#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "windows/page/FrmMain.h"
#include "windows/page/SpinGroup.h"

#include <algorithm>

namespace zelvia
{
namespace
{

constexpr int kSplitsList = 9;

/// Digits with a leading 0 below 10.
Text TwoDigits(const UpDown& spin)
{
    return (spin.Value() < 10 ? "0" : "") + PlainText(spin.Value());
}

} // namespace

Splits::Splits(frmMain& page, SpinGroup& group) : page_(page), group_(group)
{
    page_.cmdListaKM->Click = [this] { cmdListaKM_Click(); };
    page_.lstListaKM->GotFocus = [this] {
        Trap("lstListaKm - ERRORE : ", [this] {
            group_.Show(true);
            page_.ListaAperta = kSplitsList;
            page_.CursoreMano();
            page_.cmdListaKM->SetFocus();
        });
    };
    page_.lstListaKM->MouseUp = [this](Qt::MouseButton button, const QPoint& position) {
        Trap("lstListaKm - ERRORE : ", [&] { page_.mnuCancelladallaLista->OnListMouseUp(button, position, false); });
    };
    page_.upTempoKM->Change = [this] {
        Trap("upTempo - ERRORE : ", [this] { page_.lblImmisTempoKM->SetCaption(TwoDigits(*page_.upTempoKM)); });
    };
    const std::pair<UpDown*, TextView> parts[] = {{page_.upTempoOre, "upTempoOre - ERRORE : "},
                                                  {page_.upTempoMinuti, "upTempoMinuti - ERRORE : "},
                                                  {page_.upTempoSecondi, "upTempoSecondi - ERRORE : "}};
    for (const auto& [spin, title] : parts) {
        spin->Change = [this, report = title] {
            Trap(report, [this] {
                page_.lblImmisTempoMinuti->SetCaption(TwoDigits(*page_.upTempoOre) + ":" +
                                                      TwoDigits(*page_.upTempoMinuti) + ":" +
                                                      TwoDigits(*page_.upTempoSecondi));
            });
        };
    }
}

void Splits::ChooseLine(int step)
{
    ListBox& list = *page_.lstListaKM;
    const int first = step < 0 ? list.ListCount() - 1 : 0;
    list.SetListIndex(list.ListIndex() < 0 ? first : std::clamp(list.ListIndex() + step, 0, list.ListCount() - 1));
    list.TellRow();
}

void Splits::RemoveLine()
{
    if (page_.lstListaKM->ListIndex() >= 0) {
        page_.ListaAperta = kSplitsList;
        page_.mnuCancella_Click();
    }
}

void Splits::OpenMenu()
{
    const ListBox& list = *page_.lstListaKM;
    page_.ListaAperta = kSplitsList;
    page_.mnuCancelladallaLista->OnListMouseUp(Qt::RightButton, list.EntryPoint(), false);
}

void Splits::cmdListaKM_Click()
{
    Trap("cmdListaKm - ERRORE : ", [this] {
        if (page_.upTempoKM->Value() == 0) {
            MsgBox(Messages::kSplitWithoutKm);
            return;
        }
        if (page_.upTempoOre->Value() + page_.upTempoMinuti->Value() + page_.upTempoSecondi->Value() == 0) {
            MsgBox(Messages::kSplitWithoutTime);
            return;
        }
        const Text split = page_.lblImmisTempoKM->Caption() + "      " + page_.lblImmisTempoMinuti->Caption();
        if (Holds(page_.lstListaKM->Items(), split)) {
            MsgBox(Messages::kSplitInList);
            return;
        }
        page_.lstListaKM->AddItem(split);
    });
}

} // namespace zelvia
