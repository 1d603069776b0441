// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"

#include <cstddef>
#include <utility>

namespace zelvia::Tools
{
namespace
{

Translator& Present()
{
    static Translator translator;
    return translator;
}

} // namespace

void SetTranslator(Translator translator)
{
    Present() = std::move(translator);
}

std::string Tr(const char* italian)
{
    // The empty text stands for what a file of translations says about itself.
    if (!Present() || *italian == '\0') {
        return italian;
    }
    std::string text = Present()(italian);
    return text.empty() ? italian : text;
}

std::string Fill(const std::string& text, const std::vector<std::string>& parts)
{
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t place =
            text[i] == '%' && i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '1') : parts.size();
        if (place < parts.size()) {
            filled += parts[place];
            ++i;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

} // namespace zelvia::Tools
