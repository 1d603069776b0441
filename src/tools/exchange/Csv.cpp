// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/exchange/Csv.h"

#include "core/Text.h"
#include "core/Tr.h"
#include "tools/copies/SafeFiles.h"

#include <algorithm>

namespace zelvia
{
namespace
{

/// What separates the cells: of the three that are in use the most frequent one of the first line.
char SeparatorOf(std::string_view bytes)
{
    const std::string_view line = bytes.substr(0, bytes.find_first_of("\r\n"));
    char separator = ',';
    for (const char candidate : {';', '\t'}) {
        if (std::count(line.begin(), line.end(), candidate) > std::count(line.begin(), line.end(), separator)) {
            separator = candidate;
        }
    }
    return separator;
}

bool IsText(std::string_view bytes)
{
    for (std::size_t i = 0; i < bytes.size();) {
        const char32_t codePoint = NextCodePoint(bytes, i);
        if (codePoint == 0 || codePoint == 0xFFFD) {
            return false;
        }
    }
    return true;
}

class Reader
{
public:
    Reader(std::string_view bytes, char separator) : rest_(bytes), separator_(separator) {}

    std::vector<std::vector<std::string>> Read()
    {
        std::vector<std::vector<std::string>> rows;
        while (!rest_.empty()) {
            std::vector<std::string> row = Row();
            if (row.size() > 1 || !row.front().empty()) {
                rows.push_back(std::move(row));
            }
        }
        return rows;
    }

private:
    std::vector<std::string> Row()
    {
        std::vector<std::string> row;
        for (;;) {
            row.push_back(rest_.starts_with('"') ? Quoted() : Plain());
            if (!rest_.starts_with(separator_)) {
                break;
            }
            rest_.remove_prefix(1);
        }
        for (const char end : {'\r', '\n'}) {
            rest_.remove_prefix(rest_.starts_with(end) ? 1 : 0);
        }
        return row;
    }

    std::string Plain()
    {
        const char ends[] = {separator_, '\r', '\n'};
        const std::size_t length = std::min(rest_.find_first_of(std::string_view(ends, sizeof ends)), rest_.size());
        std::string cell(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return cell;
    }

    std::string Quoted()
    {
        std::string cell;
        for (rest_.remove_prefix(1);; rest_.remove_prefix(1)) {
            const std::size_t quote = rest_.find('"');
            if (quote == std::string_view::npos) {
                throw FileFailure(Tools::Tr("una virgoletta non è chiusa"));
            }
            cell += rest_.substr(0, quote);
            rest_.remove_prefix(quote + 1);
            if (!rest_.starts_with('"')) {
                return cell + Plain();
            }
            cell += '"';
        }
    }

    std::string_view rest_;
    char separator_;
};

} // namespace

std::string CsvLine(const std::vector<std::string>& cells)
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        line += i > 0 ? "," : "";
        if (cells[i].find_first_of(",\"\r\n") == std::string::npos) {
            line += cells[i];
            continue;
        }
        line += '"';
        for (const char c : cells[i]) {
            line += c == '"' ? "\"\"" : std::string(1, c);
        }
        line += '"';
    }
    return line + "\r\n";
}

std::vector<std::vector<std::string>> ReadCsv(std::string_view bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    bytes.remove_prefix(bytes.starts_with(mark) ? mark.size() : 0);
    if (!IsText(bytes)) {
        throw FileFailure(Tools::Tr("il file non è un testo in UTF-8"));
    }
    return Reader(bytes, SeparatorOf(bytes)).Read();
}

} // namespace zelvia
