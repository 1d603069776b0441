// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace zelvia
{

/// The texts of the tools, in the user's language where there is a translation. The diary's own texts are always
/// Italian.
namespace Tools
{

/// Gives the translation of an Italian text, empty when there is none. Both are UTF-8.
using Translator = std::function<std::string(const char* italian)>;

/// To be called before the first thread that uses texts. Until then they stay Italian.
void SetTranslator(Translator translator);

/// Marks a text of a table for translation, and leaves it as it is.
constexpr const char* Mark(const char* italian)
{
    return italian;
}

std::string Tr(const char* italian);

/// The text with `parts` in the places %1 to %9.
std::string Fill(const std::string& text, const std::vector<std::string>& parts);

template <typename Part>
std::string PartOf(const Part& part)
{
    if constexpr (std::is_integral_v<Part>) {
        return std::to_string(part);
    } else {
        return std::string(part);
    }
}

/// The parts are texts in UTF-8, whole numbers or paths.
template <typename... Parts>
std::string Tr(const char* italian, const Parts&... parts)
{
    return Fill(Tr(italian), {PartOf(parts)...});
}

} // namespace Tools

} // namespace zelvia
