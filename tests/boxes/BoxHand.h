// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "boxes/BoxInput.h"
#include "support/EntryPage.h"

#include <QByteArrayList>

#include <algorithm>
#include <iterator>

namespace zelvia::test
{

/// Types or pastes an input over what the line of text that has the focus holds.
void EnterInto(QLineEdit& box, const BadInput& input);
/// Gives a box the focus and enters the input.
void Fill(TextBox& box, const BadInput& input);
/// Types over what a box with the focus holds.
void Correct(TextBox& box, const QString& text);

/// Leaves a box by Tab. Where the outcome says so the box comes up and keeps the focus, and is then put right.
void LeaveByTab(DayPage& page, TextBox& box, const Outcome& outcome, const ExpectedBox& refusal);

/// Presses keys that are none of a list or of a spin control: letters, signs, digits, pasting and deleting ones.
void PressForeignKeys(const QString& text = QStringLiteral("z-9,.e+"));

/// The guide, as the build makes it.
QByteArray GuideBytes();

/// Fails with the place of the first difference.
void CompareFile(const QByteArray& written, const QByteArray& expected);

/// A name with the number of its controls: "txtKm x 31".
QByteArray Counted(const QByteArray& name, int count);
/// The controls of a window that take an input, elements of an array under one name, sorted.
QByteArrayList BoxesOf(const QWidget& window);
QByteArrayList Sorted(QByteArrayList names);

/// Pastes a long text into every box of a window; the names of those that take more or fewer characters than
/// `limitOf` their name without the index.
QByteArrayList BoxesOfOtherLength(const QWidget& window, const std::function<int(const QByteArray& name)>& limitOf);

/// A row of data for each box of numbers of a window's table, or for each of texts: its place in the table.
template <typename Rows>
void AddBoxRows(const Rows& rows, bool numbers)
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const auto& row : rows) {
        if ((row.kind != nullptr) == numbers) {
            QTest::newRow(row.name) << index;
        }
        ++index;
    }
}

/// How many characters the box of that name takes by the table, -1 when it is not there.
template <typename Rows>
int LimitIn(const Rows& rows, const QByteArray& name)
{
    const auto found =
        std::find_if(std::begin(rows), std::end(rows), [&](const auto& row) { return name == row.name; });
    return found == std::end(rows) ? -1 : found->limit;
}

} // namespace zelvia::test
