// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/DayOnPage.h"

#include "core/Conversions.h"
#include "diary/Module1.h"

#include <algorithm>

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
            for (int line = First; line <= Last; ++line) {
                work(line);
            }
        }
    };
}

} // namespace

Label& DayOnPage::LabelOf(const ListField& field) const
{
    return *page_.ListField(field.list).lblImmis;
}

template <typename T>
Label& DayOnPage::LabelOf(const NumberField<T>& field) const
{
    return *page_.ControlsOf(field.member).label;
}

Label& DayOnPage::LabelOf(const TimeField& field) const
{
    return field.member == &RecordGiorno::MediaKm ? *page_.lblOutMediaKM : *page_.lblOutTempoImpiegato;
}

void DayOnPage::ShowText(SelectionList list, TextView value)
{
    page_.ListField(list).lblImmis->SetCaption(value);
    page_.ListField(list).txt->SetContent(value);
}

void DayOnPage::ShowNote(int line, TextView value)
{
    const Text text = Left(value, kNoteLength);
    page_.notes[line].lbl->SetCaption(text);
    page_.notes[line].txt->SetContent(text);
}

void DayOnPage::ShowTime(const TimeField& field, const RecordGiorno& day)
{
    const Text& value = day.*field.member;
    LabelOf(field).SetCaption(value.empty() ? field.none : TextView(value));
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
    return metro + page_.ControlsOf(member).spin->Value();
}

void DayOnPage::Show(const RecordGiorno& day)
{
    ForEachOnPage([&](const ListField& field) { ShowText(field.list, day.*field.member); },
                  [&]<typename T>(const NumberField<T>& field) {
                      page_.ControlsOf(field.member).spin->SetValue(day.*field.member);
                  },
                  [&](const TimeField& field) { ShowTime(field, day); },
                  [&](const SplitsField& /*field*/) {
                      BlankSplits();
                      for (const Text& split : day.ListaKm) {
                          if (!split.empty()) {
                              page_.lstListaKM->AddItem(split);
                          }
                      }
                  },
                  ForEachNote([&](int line) { ShowNote(line, day.Note[line]); }));
    // One runner is what a blank day has, and what was written on the day of a run.
    page_.lblImmisCorridori->FadeBlank(day.Tipo.empty() ? "1" : "");
}

void DayOnPage::BlankTexts(const RecordGiorno& day)
{
    ForEachOnPage(
        [&](const ListField& field) {
            if (!(day.*field.member).empty()) {
                ShowText(field.list, {});
            }
        },
        ForEachNote([&](int line) {
            if (!day.Note[line].empty()) {
                ShowNote(line, {});
            }
        }));
}

void DayOnPage::Blank(const RecordGiorno& day)
{
    static const RecordGiorno blank;
    BlankTexts(day);
    page_.upMetro->SetValue(0);
    ForEachOnPage(
        [&]<typename T>(const NumberField<T>& field) {
            page_.ControlsOf(field.member).spin->SetValue(blank.*field.member);
        },
        [&](const TimeField& field) { ShowTime(field, day); }, [&](const SplitsField& /*field*/) { BlankSplits(); });
}

void DayOnPage::Commit(RecordGiorno& day) const
{
    ForEachOnPage([&](const ListField& field) { day.*field.member = LabelOf(field).Caption(); },
                  [&]<typename T>(const NumberField<T>& field) { day.*field.member = T(NumberOf(field.member)); },
                  [&](const TimeField& field) { day.*field.member = LabelOf(field).Caption(); },
                  [&](const SplitsField& /*field*/) {
                      day.ListaKm.Clear();
                      for (int i = 0; i < page_.lstListaKM->ListCount(); ++i) {
                          day.ListaKm[i] = page_.lstListaKM->List(i);
                      }
                  },
                  ForEachNote([&](int line) { day.Note[line] = page_.notes[line].txt->Content(); }));
}

bool DayOnPage::Differs(const RecordGiorno& day) const
{
    bool differs = false;
    const auto compare = [&](const Text& stored, const Text& shown) { differs = differs || !SameText(stored, shown); };
    ForEachOnPage([&](const ListField& field) { compare(day.*field.member, LabelOf(field).Caption()); },
                  [&]<typename T>(const NumberField<T>& field) {
                      differs = differs || NumberOf(field.member) != day.*field.member;
                  },
                  ForEachNote([&](int line) { compare(day.Note[line], page_.notes[line].txt->Content()); }));
    return differs;
}

bool DayOnPage::SplitsDiffer(const RecordGiorno& day) const
{
    bool differ = false;
    for (int i = 0; i < page_.lstListaKM->ListCount(); ++i) {
        differ = !SameText(day.ListaKm[i], page_.lstListaKM->List(i)) || differ;
    }
    return differ;
}

DaySheetTexts DayOnPage::SheetTexts() const
{
    const auto shown = [](const Label* label) { return label->Caption(); };
    const auto value = [](const PageControls::SlipLine& line) { return line.label->Caption(); };
    DaySheetTexts texts;
    texts.date = Module1::DataCorrente;
    auto* text = texts.values.begin();
    ForEachPrinted([&](const auto& field) { *text++ = LabelOf(field).Caption(); });
    texts.showsRace = page_.pctCalGara->Visible();
    texts.tableName = page_.lblTabNomeFile->Caption();
    std::transform(page_.tableSlip.begin() + 1, page_.tableSlip.end(), texts.plan.begin(), value);
    std::transform(page_.raceSlip.begin(), page_.raceSlip.end(), texts.race.begin(), value);
    std::transform(page_.notes.begin(), page_.notes.end(), texts.note.begin(),
                   [&](const NoteControls& note) { return shown(note.lbl); });
    texts.counters = {shown(page_.lblNumGiornoAnno), shown(page_.lblNumGiorniCorseAnno), shown(page_.lblNumKMPercorsi),
                      shown(page_.lblNumGare)};
    return texts;
}

} // namespace zelvia
