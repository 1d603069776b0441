// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/SpinGroup.h"

#include "core/RunTimeError.h"
#include "toolkit/SpinKeys.h"
#include "windows/page/FrmMain.h"

#include <algorithm>

namespace zelvia
{

SpinGroup::SpinGroup(frmMain& page, Parts parts) : page_(page), parts_(std::move(parts))
{
    for (const Value& value : parts_.values) {
        value.label->OnClick([this, &value] {
            Trap(value.title + " - ERRORE : ", [&] {
                if (value.probe->Visible()) {
                    page_.FocusSink().SetFocus();
                } else {
                    page_.FollowInTabOrder(*value.label);
                    Open(value.opening);
                }
            });
        });
    }
    parts_.caption->OnClick(
        [this] { Trap(parts_.captionTitle + " - ERRORE : ", [this] { page_.FocusSink().SetFocus(); }); },
        KeyReach::MouseOnly);
    parts_.focus->LostFocus = [this] { Close(); };
    ConnectKeys();
}

void SpinGroup::ConnectKeys()
{
    std::vector<UpDown*> spins;
    for (Control* control : parts_.controls) {
        if (auto* spin = dynamic_cast<UpDown*>(control)) {
            spins.push_back(spin);
        }
    }
    std::sort(spins.begin(), spins.end(), [](const UpDown* a, const UpDown* b) { return a->x() < b->x(); });
    const auto* first = dynamic_cast<UpDown*>(parts_.focus);
    new SpinKeys(parts_.focus->Widget(), spins, first != nullptr ? *first : *spins.front(),
                 [this] { page_.FocusSink().SetFocus(); });
}

void SpinGroup::Show(bool visible)
{
    for (Control* control : parts_.controls) {
        control->SetVisible(visible);
    }
}

void SpinGroup::Open(const Text& opening)
{
    Trap(opening + " - ERRORE : ", [this] {
        Show(true);
        try {
            page_.EnterField(*parts_.focus);
        } catch (...) {
            // Without the focus nothing would ever close it.
            Show(false);
            throw;
        }
        if (parts_.opened) {
            parts_.opened();
        }
    });
}

void SpinGroup::Close()
{
    Show(false);
    if (parts_.closed) {
        parts_.closed();
    }
    page_.CursoreNormale();
}

} // namespace zelvia
