// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/SpinGroup.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

SpinGroup::SpinGroup(frmMain& page, const NumberRow& row, const GroupRow& group)
    : page_(page), then_(group.then), value_(*(page.*group.values.front().label))
{
    if (then_ == Then::Distance) {
        controls_.push_back(page_.pctUnita);
    }
    for (const SpinRow& spin : group.spins) {
        spins_.push_back(page_.*spin.member);
        controls_.push_back(page_.*spin.member);
    }
    const UpDown& first = *spins_[group.focus];
    focus_ = spins_[group.focus];
    if (then_ == Then::Splits) {
        controls_.insert(controls_.end(), {page_.lstListaKM, page_.cmdListaKM});
        focus_ = page_.cmdListaKM;
    }
    for (const ValueRow& value : group.values) {
        values_.push_back(page_.*value.label);
        ConnectClick(value);
    }
    (page_.*row.label)
        ->OnClick(
            [this, title = "lbl" + Text(row.name)] {
                Trap(title + " - ERRORE : ", [this] { page_.FocusSink().SetFocus(); });
            },
            KeyReach::MouseOnly);
    focus_->LostFocus = [this] { Close(); };
    SpinKeys::Actions actions;
    actions.leave = [this] { page_.FocusSink().SetFocus(); };
    actions.active = [this](int spin) { Underline(spin); };
    if (then_ != Then::Splits) {
        // There Enter is the button's.
        actions.next = [this] { page_.FocusNextValue(); };
    }
    keys_.emplace(focus_->Widget(), spins_, first, std::move(actions));
    then_ == Then::Distance ? ConnectDistance() : ConnectSpins();
}

void SpinGroup::ConnectClick(const ValueRow& value)
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

/// The label shows the first as plain digits, the others with two, a colon between them.
void SpinGroup::ConnectSpins()
{
    for (UpDown* spin : spins_) {
        spin->Change = [this] {
            Text text = PlainText(spins_.front()->Value());
            for (std::size_t i = 1; i < spins_.size(); ++i) {
                text += ":" + Format(spins_[i]->Value(), "00");
            }
            value_.SetCaption(text);
        };
    }
}

/// The metres are entered with two spins: a step of the tens sets the single ones back.
void SpinGroup::ConnectDistance()
{
    page_.upKM->Change = [this] { ShowDistance(page_.upMetri->Value()); };
    page_.upMetri->Change = [this] {
        page_.upMetro->SetValue(0);
        ShowDistance(page_.upMetri->Value());
    };
    page_.upMetro->Change = [this] { ShowDistance(page_.upMetri->Value() + page_.upMetro->Value()); };
}

void SpinGroup::ShowDistance(i32 metres)
{
    value_.SetCaption(PlainText(page_.upKM->Value()) + "," + Format(metres, "000"));
}

void SpinGroup::Show(bool visible)
{
    for (Control* control : controls_) {
        control->SetVisible(visible);
    }
}

/// Underlines in the label what the spin at this place enters; -1 for no spin.
void SpinGroup::Underline(int spin)
{
    for (Label* label : values_) {
        label->UnderlineNumber(-1);
    }
    constexpr int tens = 1;
    if (then_ == Then::Distance && spin > tens) {
        value_.UnderlineNumber(tens, 1);
    } else if (spin > 0 && values_.size() > 1) {
        values_.back()->UnderlineNumber(spin - 1);
    } else {
        value_.UnderlineNumber(spin);
    }
}

void SpinGroup::Open(const Text& opening)
{
    Trap(opening + " - ERRORE : ", [this] {
        try {
            Show(true);
            page_.EnterField(*focus_);
        } catch (...) {
            // Without the focus nothing would ever close it.
            Show(false);
            throw;
        }
        if (then_ == Then::LastWeight) {
            page_.upPeso->SetValue(page_.UltimoPeso);
        }
    });
}

void SpinGroup::Close()
{
    Show(false);
    if (then_ == Then::Distance || then_ == Then::Times) {
        const i16 result = page_.ControlloTempiKm();
        if (result == 1) {
            page_.TempoImpiegato();
        } else if (result == 2 && then_ == Then::Times) {
            page_.tempo();
        }
    }
    page_.CursoreNormale();
}

} // namespace zelvia
