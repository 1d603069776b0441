// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/DayOnPage.h"

#include "core/Conversions.h"
#include "diary/Fields.h"

namespace zelvia
{
namespace
{

constexpr int kNoteLength = 32;

/// Hands the fields that have a place on the page to the function for their kind.
template <typename... Functions>
void ForEachOnPage(Functions... functions)
{
    ForEachField(Overloaded{functions..., [](const auto& /*hidden*/) {}});
}

template <typename Work>
auto ForEachNote(Work work)
{
    return [work]<int First, int Last>(const NotesField<First, Last>& /*field*/) {
        if constexpr (std::is_same_v<NotesField<First, Last>, PageNotes>) {
            for (int riga = First; riga <= Last; ++riga) {
                work(riga);
            }
        }
    };
}

Label* PageControls::*LabelOf(const TimeField& field)
{
    return field.member == &RecordGiorno::MediaKm ? &PageControls::lblOutMediaKM : &PageControls::lblOutTempoImpiegato;
}

} // namespace

void DayOnPage::ShowText(SelectionList lista, TextView valore)
{
    page_.Campo(lista).lblImmis->SetCaption(valore);
    page_.Campo(lista).txt->SetContent(valore);
}

void DayOnPage::ShowNote(int riga, TextView valore)
{
    const Text line = Left(valore, kNoteLength);
    page_.note[riga].lbl->SetCaption(line);
    page_.note[riga].txt->SetContent(line);
}

void DayOnPage::ShowTime(const TimeField& field, const RecordGiorno& giorno)
{
    const Text& valore = giorno.*field.member;
    (page_.*LabelOf(field))->SetCaption(valore.empty() ? field.none : TextView(valore));
}

void DayOnPage::BlankSplits()
{
    page_.lblImmisTempoKM->SetCaption("0");
    page_.lblImmisTempoMinuti->SetCaption("00:00:00");
    page_.lstListaKM->Clear();
}

/// What the page holds for a number. The metres are entered with two spins.
i32 DayOnPage::NumberOf(NumberMember member) const
{
    const i32 metro = member == NumberMember(&RecordGiorno::Metri) ? page_.upMetro->Value() : i32(0);
    return metro + page_.SpinOf(member).Value();
}

void DayOnPage::Show(const RecordGiorno& giorno)
{
    ForEachOnPage(
        [&](const ListField& field) { ShowText(field.lista, giorno.*field.member); },
        [&]<typename T>(const NumberField<T>& field) { page_.SpinOf(field.member).SetValue(giorno.*field.member); },
        [&](const TimeField& field) { ShowTime(field, giorno); },
        [&](const SplitsField& /*field*/) {
            BlankSplits();
            for (const Text& parziale : giorno.ListaKm) {
                if (!parziale.empty()) {
                    page_.lstListaKM->AddItem(parziale);
                }
            }
        },
        ForEachNote([&](int riga) { ShowNote(riga, giorno.Note[riga]); }));
}

void DayOnPage::BlankTexts(const RecordGiorno& giorno)
{
    ForEachOnPage(
        [&](const ListField& field) {
            if (!(giorno.*field.member).empty()) {
                ShowText(field.lista, {});
            }
        },
        ForEachNote([&](int riga) {
            if (!giorno.Note[riga].empty()) {
                ShowNote(riga, {});
            }
        }));
}

void DayOnPage::Blank(const RecordGiorno& giorno)
{
    static const RecordGiorno blank;
    BlankTexts(giorno);
    page_.upMetro->SetValue(0);
    ForEachOnPage(
        [&]<typename T>(const NumberField<T>& field) { page_.SpinOf(field.member).SetValue(blank.*field.member); },
        [&](const TimeField& field) { ShowTime(field, giorno); }, [&](const SplitsField& /*field*/) { BlankSplits(); });
}

void DayOnPage::Commit(RecordGiorno& giorno) const
{
    ForEachOnPage([&](const ListField& field) { giorno.*field.member = page_.Campo(field.lista).lblImmis->Caption(); },
                  [&]<typename T>(const NumberField<T>& field) { giorno.*field.member = T(NumberOf(field.member)); },
                  [&](const TimeField& field) { giorno.*field.member = (page_.*LabelOf(field))->Caption(); },
                  [&](const SplitsField& /*field*/) {
                      giorno.ListaKm.Clear();
                      for (int i = 0; i < page_.lstListaKM->ListCount(); ++i) {
                          giorno.ListaKm[i] = page_.lstListaKM->List(i);
                      }
                  },
                  ForEachNote([&](int riga) { giorno.Note[riga] = page_.note[riga].txt->Content(); }));
}

bool DayOnPage::Differs(const RecordGiorno& giorno) const
{
    bool differs = false;
    const auto compare = [&](const Text& stored, const Text& shown) { differs = differs || !SameText(stored, shown); };
    ForEachOnPage(
        [&](const ListField& field) { compare(giorno.*field.member, page_.Campo(field.lista).lblImmis->Caption()); },
        [&]<typename T>(const NumberField<T>& field) {
            differs = differs || NumberOf(field.member) != giorno.*field.member;
        },
        ForEachNote([&](int riga) { compare(giorno.Note[riga], page_.note[riga].txt->Content()); }));
    return differs;
}

bool DayOnPage::SplitsDiffer(const RecordGiorno& giorno) const
{
    bool differ = false;
    for (int i = 0; i < page_.lstListaKM->ListCount(); ++i) {
        differ = !SameText(giorno.ListaKm[i], page_.lstListaKM->List(i)) || differ;
    }
    return differ;
}

} // namespace zelvia
