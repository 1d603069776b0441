// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/NumberFields.h"

#include "core/Conversions.h"
#include "windows/page/FrmMain.h"
#include "windows/page/PageFields.h"

namespace zelvia
{

namespace
{

/// The spins from left to right: the first as plain digits, the others with two, a colon between them.
Text Spelt(const std::vector<UpDown*>& spins)
{
    Text text = PlainText(spins.front()->Value());
    for (std::size_t i = 1; i < spins.size(); ++i) {
        text += ":" + Format(spins[i]->Value(), "00");
    }
    return text;
}

} // namespace

NumberFields::NumberFields(frmMain& page) : page_(page)
{
    for (const NumberRow& row : NumberRows()) {
        for (const GroupRow& group : row.groups) {
            if (!group.spins.empty()) {
                groups_.push_back(std::make_unique<SpinGroup>(page_, row, group));
                Wire(*groups_.back(), group);
            }
        }
    }
    ConnectDistance();
}

void NumberFields::Wire(SpinGroup& group, const GroupRow& row)
{
    Label* const value = page_.*row.values.front().label;
    std::vector<UpDown*> spins;
    for (const SpinRow& spin : row.spins) {
        spins.push_back(page_.*spin.member);
    }
    for (UpDown* spin : spins) {
        spin->Change = [value, spins] { value->SetCaption(Spelt(spins)); };
    }
    switch (row.then) {
    case Then::Nothing:
    case Then::Splits: break;
    case Then::Distance: group.Closed = [this] { Recompute(false); }; break;
    case Then::Times: group.Closed = [this] { Recompute(true); }; break;
    case Then::LastWeight: group.Opened = [this] { page_.upPeso->SetValue(page_.UltimoPeso); }; break;
    }
}

/// The metres are entered with two spins: a step of the tens sets the single ones back.
void NumberFields::ConnectDistance()
{
    page_.upKM->Change = [this] { ShowDistance(page_.upMetri->Value()); };
    page_.upMetri->Change = [this] {
        page_.upMetro->SetValue(0);
        ShowDistance(page_.upMetri->Value());
    };
    page_.upMetro->Change = [this] { ShowDistance(page_.upMetri->Value() + page_.upMetro->Value()); };
}

void NumberFields::ShowDistance(i32 metri)
{
    page_.lblImmisMetri->SetCaption(PlainText(page_.upKM->Value()) + "," + Format(metri, "000"));
}

void NumberFields::Recompute(bool withoutDistance)
{
    const i16 result = page_.ControlloTempiKm();
    if (result == 1) {
        page_.TempoImpiegato();
    } else if (result == 2 && withoutDistance) {
        page_.tempo();
    }
}

} // namespace zelvia
