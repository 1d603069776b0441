// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/DaySheet.h"
#include "diary/Fields.h"
#include "windows/page/PageControls.h"

namespace zelvia
{

/// The fields of a day in the controls of the page, in the order of the diary file. An error leaves the fields after
/// it as they were.
class DayOnPage
{
public:
    explicit DayOnPage(PageControls& page) : page_(page) {}

    void ShowText(SelectionList list, TextView value);
    /// Puts the day into the controls.
    void Show(const RecordGiorno& day);
    /// Empties the controls, of the texts those that the day fills. Time and average stay those of the day.
    void Blank(const RecordGiorno& day);
    /// Puts what the controls hold into the day. Its number and its date stay.
    void Commit(RecordGiorno& day) const;
    /// True when the controls hold something else than the day, the splits left out.
    bool Differs(const RecordGiorno& day) const;
    /// Only the lines that the list has are compared: one that merely became shorter is unchanged. Raises error 9 for
    /// more lines than a day holds.
    bool SplitsDiffer(const RecordGiorno& day) const;
    /// What the labels show, whether or not it has been committed.
    DaySheetTexts SheetTexts() const;

private:
    Label& LabelOf(const ListField& field) const;
    template <typename T>
    Label& LabelOf(const NumberField<T>& field) const;
    Label& LabelOf(const TimeField& field) const;
    void ShowNote(int line, TextView value);
    void ShowTime(const TimeField& field, const RecordGiorno& day);
    void BlankTexts(const RecordGiorno& day);
    void BlankSplits();
    i32 NumberOf(NumberMember member) const;

    PageControls& page_;
};

} // namespace zelvia
