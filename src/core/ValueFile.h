// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Files.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <array>
#include <filesystem>
#include <string>

namespace zelvia
{

/// Writes one value a line: integers as plain digits, dates as #yyyy-mm-dd#, texts between double quotes as they are,
/// each line ended by CR LF. The file is created or emptied at once; there is no temporary file.
class ValueWriter
{
public:
    /// Raises what OpenFile raises.
    explicit ValueWriter(TextView path);

    /// Each raises error 61 on a full disk, 57 on another failure of the device.
    void Write(TextView text);
    void Write(i16 number) { WriteDigits(number.value()); }
    void Write(i32 number) { WriteDigits(number.value()); }
    void Write(CalendarDate date);
    void WriteBlanks(int count); ///< As many empty texts.

    /// Syncs everything to the disk, a new file's name included, and closes the file. A writer destroyed without it
    /// leaves the file as far as it was written.
    void Close();

private:
    static constexpr std::size_t kBlock = 1 << 16; ///< The bytes of one call.
    static constexpr std::size_t kShort = 16;      ///< Room for a number or a date after the block.

    void WriteDigits(int number);
    void Append(const char* bytes, std::size_t count);
    void Add(std::size_t count);
    void Flush();

    std::filesystem::path newIn_; ///< The folder in which the file was created, else empty.
    FileHandle file_;
    std::array<char, kBlock + kShort> buffer_;
    std::size_t used_ = 0;
};

/// Reads one value after the other. A value that begins with a double quote ends at the next one, line ends and commas
/// inside it included; blanks and one comma or line end after it are skipped, and anything else there is the next
/// value. Any other value ends at a comma or a line end. A line ends with CR LF, LF or CR.
/// Every Input raises error 62 after the end of the file and leaves its target as it is when it fails.
class ValueReader
{
public:
    /// Raises what OpenFile raises.
    explicit ValueReader(TextView path);

    /// Raises error 7 when the text does not end within 128 MiB.
    void Input(Text& text);

    /// Raise error 13 on anything but a number, 6 on one out of range; a fraction is rounded, ties to even.
    void Input(i16& number);
    void Input(i32& number);

    /// Raises error 13 on anything but #yyyy-mm-dd#.
    void Input(CalendarDate& date);

    bool AtEnd();

private:
    struct Value {
        TextView bytes;
        bool quoted;
    };

    bool InputQuotedLine(Text& text);
    Value Next(int tooLong);
    Value NextQuoted(int tooLong);
    Value NextPlain(int tooLong);
    void SkipBlanks();
    void SkipSeparator();
    bool More();
    std::size_t FindEnd(TextView ends, std::size_t skip, int tooLong);
    TextView NextNumber();

    template <typename Integer>
    bool InputDigitsLine(Integer& number);

    template <typename Integer>
    void InputInteger(Integer& number);

    FileHandle file_;
    std::string buffer_;
    std::size_t position_ = 0;
    bool exhausted_ = false;
};

} // namespace zelvia
