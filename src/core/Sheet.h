// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <functional>
#include <span>
#include <variant>
#include <vector>

namespace zelvia
{

enum class Orientation { Portrait, Landscape };

/// A font: its name, and its size in points.
struct SheetFont {
    Text name;
    int size;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const SheetFont&, const SheetFont&) = default;
};

// The draw operations. Places are cells of the printer's character grid, 1/12 inch across and 1/6 inch down from the
// printable corner; a text hangs from the top of its cell and is neither wrapped nor clipped.

struct SheetText {
    int x;
    int y;
    Text text;
    SheetFont font;

    friend bool operator==(const SheetText&, const SheetText&) = default;
};

struct SheetLine {
    int x1;
    int y1;
    int x2;
    int y2;

    friend bool operator==(const SheetLine&, const SheetLine&) = default;
};

struct SheetBox {
    int x1;
    int y1;
    int x2;
    int y2;

    friend bool operator==(const SheetBox&, const SheetBox&) = default;
};

/// The picture on the clipboard, in its own size.
struct SheetPicture {
    int x;
    int y;
    std::function<void()> copy; ///< Puts it there when the printer reaches it; empty when it is there already.

    friend bool operator==(const SheetPicture& a, const SheetPicture& b) { return a.x == b.x && a.y == b.y; }
};

struct SheetPageBreak {
    friend bool operator==(const SheetPageBreak&, const SheetPageBreak&) = default;
};

using SheetOperation = std::variant<SheetText, SheetLine, SheetBox, SheetPicture, SheetPageBreak>;

/// A text of the sheet at its cell.
struct SheetCell {
    int x;
    int y;
    TextView text;
};

/// The name of a print job: the program, what is printed, and the date on it.
Text JobName(TextView sheet, CalendarDate date);

/// What goes to the printer: the paper is A4, the rest is a list of draw operations. A text takes the font that is set
/// when it is printed.
class Sheet
{
public:
    Sheet(Orientation orientation, SheetFont font, Text job = "Zelvia")
        : orientation_(orientation), font_(std::move(font)), job_(std::move(job))
    {
    }

    void SetFontName(TextView name) { font_.name = name; }
    void SetFontSize(int points) { font_.size = points; }
    void SetFontItalic(bool italic) { font_.italic = italic; }

    /// An empty text leaves no operation.
    void Print(int x, int y, TextView text);
    /// A date in the short form.
    void Print(int x, int y, CalendarDate date);
    void Print(std::span<const SheetCell> cells);
    /// A number with a blank or minus sign before it and a blank after it.
    void PrintNumber(int x, int y, i32 number);
    void Line(int x1, int y1, int x2, int y2) { operations_.emplace_back(SheetLine{x1, y1, x2, y2}); }
    void Box(int x1, int y1, int x2, int y2) { operations_.emplace_back(SheetBox{x1, y1, x2, y2}); }
    void PaintClipboard(int x, int y, std::function<void()> copy = {})
    {
        operations_.emplace_back(SheetPicture{x, y, std::move(copy)});
    }
    void NewPage() { operations_.emplace_back(SheetPageBreak{}); }

    Orientation Paper() const { return orientation_; }
    const Text& Job() const { return job_; }
    const std::vector<SheetOperation>& Operations() const { return operations_; }

private:
    Orientation orientation_;
    SheetFont font_;
    Text job_;
    std::vector<SheetOperation> operations_;
};

/// Point size of the texts on most sheets.
inline constexpr int kSheetTextSize = 10;

/// A sheet of that name with its date in small type at the top; the font is then that of its title.
Sheet DatedSheet(Orientation orientation, TextView name, CalendarDate date, int x, bool bold = false);

/// The column of a number: `twoDigits` from 10 on, one cell further right below 10, so that the digits line up.
/// An empty box counts as one digit.
int DigitColumn(TextView text, int twoDigits);

} // namespace zelvia
