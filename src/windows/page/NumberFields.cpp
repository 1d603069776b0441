// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/NumberFields.h"

#include "core/Conversions.h"
#include "windows/page/FrmMain.h"
#include "windows/page/SpinGroup.h"

#include <functional>

namespace zelvia
{

using P = PageControls;
using Spin = UpDown* P::*;

/// What follows a field: nothing, a computation when it closes, or a value when it opens.
enum class Then { Nothing, Distance, Times, LastWeight };

/// A label of the page and its spins from left to right: the first as plain digits, the others with two, a colon
/// between them.
struct NumberRow {
    Label* P::*value;
    const char* title; ///< The names that its click and its opening report under.
    const char* opening;
    Label* P::*caption;
    const char* captionTitle;
    std::vector<Spin> spins;
    Spin tested; ///< Visible when the field counts as open.
    Spin focus;
    Then then = Then::Nothing;
};

namespace
{

const NumberRow kRows[] = {
    {&P::lblImmisMetri,
     "lblImmisMetri",
     "ImmisMetri",
     &P::lblKm,
     "lblKm",
     {&P::upKM, &P::upMetri, &P::upMetro},
     &P::upMetri,
     &P::upMetri,
     Then::Distance},
    {&P::lblImmisOraInizio,
     "lblImmisOraInizio",
     "ImmisOraInizio",
     &P::lblOraInizio,
     "lblOraInizio",
     {&P::upOraInizio, &P::upMinutiInizio, &P::upSecondiInizio},
     &P::upMinutiInizio,
     &P::upOraInizio,
     Then::Times},
    {&P::lblImmisOraFine,
     "lblOrafine",
     "ImmisOraFine",
     &P::lblOraFine,
     "lblOraFine",
     {&P::upOraFine, &P::upMinutiFine, &P::upSecondiFine},
     &P::upMinutiFine,
     &P::upOraFine,
     Then::Times},
    {&P::lblImmisCorridori,
     "lblImmisCorridori",
     "ImmisCorridori",
     &P::lblCorridori,
     "lblCorridori",
     {&P::upCorridori},
     &P::upCorridori,
     &P::upCorridori},
    {&P::lblImmisPeso,
     "lblImmisPeso",
     "ImmisPeso",
     &P::lblPeso,
     "lblPeso",
     {&P::upPeso},
     &P::upPeso,
     &P::upPeso,
     Then::LastWeight},
    {&P::lblRipetizioniVolte,
     "lblRipetizioniVolte",
     "RipetizioniVolte",
     &P::lblRipetizioni,
     "lblRipetizioni",
     {&P::upRipetizioni},
     &P::upRipetizioni,
     &P::upRipetizioni},
    {&P::lblRipetizioniQuante,
     "lblRipetizioniQuante",
     "RipetizioniQuante",
     &P::lblRipetizioni,
     "lblRipetizioni",
     {&P::upRipetizioniQuante, &P::upRipetizioniTempi},
     &P::upRipetizioniQuante,
     &P::upRipetizioniQuante},
    {&P::lblRipetizioniDistanza,
     "lblRipetizioniDistanza",
     "RipetizioniDistanza",
     &P::lblRipetizioni,
     "lblRipetizioni",
     {&P::upRipetizioniDistanza},
     &P::upRipetizioniDistanza,
     &P::upRipetizioniDistanza},
};

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
    for (const NumberRow& row : kRows) {
        AddGroup(row);
    }
    ConnectDistance();
    AddSplits();
}

NumberFields::~NumberFields() = default;

void NumberFields::AddGroup(const NumberRow& row)
{
    Label* const value = page_.*row.value;
    std::vector<UpDown*> spins;
    for (const Spin spin : row.spins) {
        spins.push_back(page_.*spin);
    }
    for (UpDown* spin : spins) {
        spin->Change = [value, spins] { value->SetCaption(Spelt(spins)); };
    }
    SpinGroup::Parts parts{{{value, page_.*row.tested, row.title, row.opening}},
                           page_.*row.caption,
                           row.captionTitle,
                           {spins.begin(), spins.end()},
                           page_.*row.focus,
                           {},
                           {}};
    switch (row.then) {
    case Then::Nothing: break;
    case Then::Distance: parts.closed = [this] { Recompute(false); }; break;
    case Then::Times: parts.closed = [this] { Recompute(true); }; break;
    case Then::LastWeight: parts.opened = [this] { page_.upPeso->SetValue(page_.UltimoPeso); }; break;
    }
    groups_.push_back(std::make_unique<SpinGroup>(page_, std::move(parts)));
}

void NumberFields::AddSplits()
{
    groups_.push_back(std::make_unique<SpinGroup>(
        page_,
        SpinGroup::Parts{{{page_.lblImmisTempoKM, page_.upTempoKM, "lblImmisTempoKm", "ImmisTempoKm"},
                          {page_.lblImmisTempoMinuti, page_.upTempoMinuti, "lblImmisTempoMinuti", "ImmisTempoMinuti"}},
                         page_.lblTempoKm,
                         "lblTempoKm",
                         {page_.upTempoKM, page_.upTempoOre, page_.upTempoMinuti, page_.upTempoSecondi,
                          page_.lstListaKM, page_.cmdListaKM},
                         page_.cmdListaKM,
                         {},
                         {}}));
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
    const i16 esito = page_.ControlloTempiKm();
    if (esito == 1) {
        page_.TempoImpiegato();
    } else if (esito == 2 && withoutDistance) {
        page_.tempo();
    }
}

} // namespace zelvia
