// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/SpinGroup.h"

#include "core/RunTimeError.h"
#include "toolkit/SpinKeys.h"
#include "windows/page/FrmMain.h"
#include "windows/page/PageFields.h"

namespace zelvia
{

SpinGroup::SpinGroup(frmMain& page, const NumberRow& row, const GroupRow& group) : page_(page)
{
    for (const SpinRow& spin : group.spins) {
        spins_.push_back(page_.*spin.member);
        controls_.push_back(page_.*spin.member);
    }
    const UpDown& first = *spins_[group.focus];
    focus_ = spins_[group.focus];
    if (group.then == Then::Splits) {
        controls_.insert(controls_.end(), {page_.lstListaKM, page_.cmdListaKM});
        focus_ = page_.cmdListaKM;
    }
    for (const ValueRow& value : group.values) {
        Connect(value);
    }
    (page_.*row.label)
        ->OnClick(
            [this, title = "lbl" + Text(row.name)] {
                Trap(title + " - ERRORE : ", [this] { page_.FocusSink().SetFocus(); });
            },
            KeyReach::MouseOnly);
    focus_->LostFocus = [this] { Close(); };
    new SpinKeys(focus_->Widget(), spins_, first, [this] { page_.FocusSink().SetFocus(); });
}

void SpinGroup::Connect(const ValueRow& value)
{
    const Text click = "lbl" + Text(value.click.empty() ? value.name : value.click);
    const Text opening(value.opening.empty() ? value.name : value.opening);
    Label& label = *(page_.*value.label);
    label.OnClick([this, &label, &probe = *spins_[value.probe], click, opening] {
        Trap(click + " - ERRORE : ", [&] {
            if (probe.Visible()) {
                page_.FocusSink().SetFocus();
            } else {
                page_.FollowInTabOrder(label);
                Open(opening);
            }
        });
    });
}

void SpinGroup::Show(bool visible)
{
    for (Control* control : controls_) {
        control->SetVisible(visible);
    }
}

void SpinGroup::Open(const Text& opening)
{
    Trap(opening + " - ERRORE : ", [this] {
        Show(true);
        try {
            page_.EnterField(*focus_);
        } catch (...) {
            // Without the focus nothing would ever close it.
            Show(false);
            throw;
        }
        if (Opened) {
            Opened();
        }
    });
}

void SpinGroup::Close()
{
    Show(false);
    if (Closed) {
        Closed();
    }
    page_.CursoreNormale();
}

} // namespace zelvia
