// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/RunTimeError.h"
#include "core/Text.h"

#include <QByteArray>
#include <QtGlobal>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

namespace zelvia::test
{

/// A text of the system as QCOMPARE can print it.
inline QByteArray Bytes(TextView text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// A column of a data table as a text of the system.
inline Text TextOf(const QByteArray& bytes)
{
    return bytes.toStdString();
}

/// The whole file at a native path; a missing file fails loudly.
inline Text ReadWhole(const std::string& nativePath)
{
    std::ifstream file(nativePath, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + nativePath);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void WriteWhole(const std::string& nativePath, TextView bytes)
{
    std::ofstream file(nativePath, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + nativePath);
    }
}

/// Empty when the two are the same to the last byte, else the first line in which they differ.
inline QByteArray Difference(TextView actual, TextView expected)
{
    if (actual == expected) {
        return {};
    }
    const auto common = std::min(actual.size(), expected.size());
    const auto at = static_cast<std::size_t>(
        std::mismatch(actual.begin(), actual.begin() + static_cast<std::ptrdiff_t>(common), expected.begin()).first -
        actual.begin());
    const auto line = std::count(expected.begin(), expected.begin() + static_cast<std::ptrdiff_t>(at), '\n') + 1;
    const auto around = [at](TextView text) {
        return Bytes(text.substr(at > 20 ? at - 20 : 0, 60)).toPercentEncoding(" \"#");
    };
    return "byte " + QByteArray::number(static_cast<qulonglong>(at)) + ", line " +
           QByteArray::number(static_cast<qlonglong>(line)) + ", sizes " +
           QByteArray::number(static_cast<qulonglong>(actual.size())) + " and " +
           QByteArray::number(static_cast<qulonglong>(expected.size())) + ": " + around(actual) + " instead of " +
           around(expected);
}

/// The number of the run-time error that a block raises, 0 for none.
template <typename Block>
int RaisedBy(Block&& block)
{
    try {
        std::forward<Block>(block)();
    } catch (const ErroreRunTime& error) {
        return error.Number();
    }
    return 0;
}

} // namespace zelvia::test
