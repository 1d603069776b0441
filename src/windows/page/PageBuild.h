// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/Fields.h"
#include "windows/page/PageControls.h"
#include "windows/page/PageLayout.h"

// What the controls of the page are built with.
namespace zelvia::PageBuild
{

enum class Style { Caption, Value, Date, Counter, FileName, SlipValue, SlipHeading, Note };

QString Numbered(const char* name, int number);

Label* MakeLabel(QWidget* page, const QString& name, TextView caption, const QRect& place, Style style,
                 TextView spoken);

/// A value that is only read can be reached with Tab all the same.
void MakeReadable(Label& label);

UpDown* MakeSpin(QWidget* page, TextView name, const QRect& place, TextView tip, const QString& spoken,
                 const NumberRange& range, int start);

/// The counters of the year.
void MakeCounters(PageControls& controls, QWidget* page);

/// The slip of the active table, and that of the race of the day.
void MakeTableSlip(PageControls& controls, QWidget* page);
void MakeRaceSlip(PageControls& controls, QWidget* page);

} // namespace zelvia::PageBuild
