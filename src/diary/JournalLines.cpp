// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/JournalLines.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace zelvia
{
namespace
{

constexpr TextView kVersion = "1";
constexpr std::size_t kDigits = 16;
constexpr std::pair<char, char> kEscapes[] = {{'\t', 't'}, {'\n', 'n'}, {'\r', 'r'}, {'\\', '\\'}};

Text Escaped(TextView text)
{
    Text escaped;
    for (const char c : text) {
        const auto* const row =
            std::find_if(std::begin(kEscapes), std::end(kEscapes), [c](const auto& pair) { return pair.first == c; });
        if (row == std::end(kEscapes)) {
            escaped += c;
        } else {
            escaped += {'\\', row->second};
        }
    }
    return escaped;
}

Text Unescaped(TextView text)
{
    Text plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || ++i == text.size()) {
            plain += text[std::min(i, text.size() - 1)];
            continue;
        }
        const auto* const row = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                             [c = text[i]](const auto& pair) { return pair.second == c; });
        plain += row == std::end(kEscapes) ? text[i] : row->first;
    }
    return plain;
}

/// A whole line of its parts.
Text Line(char letter, const std::vector<Text>& parts)
{
    Text payload(1, letter);
    for (const Text& part : parts) {
        payload += "\t" + Escaped(part);
    }
    return CheckedLine(payload);
}

std::vector<Text> PartsOf(TextView payload)
{
    std::vector<Text> parts;
    for (std::size_t start = 0; start <= payload.size();) {
        const std::size_t end = std::min(payload.find('\t', start), payload.size());
        parts.push_back(Unescaped(payload.substr(start, end - start)));
        start = end + 1;
    }
    return parts;
}

/// The parts of a line whose checksum is right, its letter first.
std::optional<std::vector<Text>> CheckedParts(TextView line)
{
    if (line.size() < kDigits + 2 || line[kDigits] != '\t' ||
        line.substr(0, kDigits) != Hexadecimal(ChecksumOf(line.substr(kDigits + 1)))) {
        return std::nullopt;
    }
    return PartsOf(line.substr(kDigits + 1));
}

/// Takes one part after the other.
class Parts
{
public:
    explicit Parts(std::vector<Text> parts) : parts_(std::move(parts)) {}

    bool Good() const { return good_; }
    bool Ends() const { return good_ && next_ == parts_.size(); }

    Text Take()
    {
        good_ = good_ && next_ < parts_.size();
        return good_ ? std::move(parts_[next_++]) : Text();
    }

    int TakeNumber()
    {
        const Text text = Take();
        int number = 0;
        const char* const end = text.data() + text.size();
        good_ = good_ && std::from_chars(text.data(), end, number).ptr == end && number >= 0 && !text.empty();
        return number;
    }

    Values TakeValues()
    {
        const auto count = static_cast<std::size_t>(TakeNumber());
        good_ = good_ && count <= parts_.size() - next_;
        Values values;
        for (std::size_t i = 0; good_ && i < count; ++i) {
            values.push_back(Take());
        }
        return values;
    }

private:
    std::vector<Text> parts_;
    std::size_t next_ = 0;
    bool good_ = true;
};

/// A change that follows another one of the same record.
void Follow(std::map<RecordKey, JournalChange>& changes, RecordKey key, JournalChange change)
{
    const auto earlier = changes.find(key);
    if (earlier != changes.end() && earlier->second.after == change.before) {
        change.before = earlier->second.before;
    }
    if (change.before == change.after) {
        changes.erase(key);
    } else {
        changes[key] = std::move(change);
    }
}

/// Reads line after line into the content.
class Reading
{
public:
    void Take(TextView line)
    {
        auto checked = CheckedParts(line);
        if (!checked || checked->front().size() != 1) {
            ++content_.unreadable;
            return;
        }
        const char letter = checked->front().front();
        Parts parts(std::move(*checked));
        parts.Take();
        if (!TakeParts(letter, parts)) {
            ++content_.unreadable;
        }
    }

    JournalContent End()
    {
        EndSession();
        return std::move(content_);
    }

private:
    bool TakeParts(char letter, Parts& parts)
    {
        switch (letter) {
        case 'S': return TakeSession(parts);
        case 'V': return TakeSaved(parts);
        case 'O':
            EndSession();
            for (JournalDiary& diary : content_.diaries) {
                for (auto& [key, change] : diary.changes) {
                    change.offered = true;
                }
            }
            return true;
        default: return TakeChange(letter, parts);
        }
    }

    bool TakeSession(Parts& parts)
    {
        EndSession();
        JournalDiary diary;
        const Text version = parts.Take();
        diary.folder = parts.Take();
        diary.file = parts.Take();
        diary.companions = parts.Take();
        diary.fresh = parts.Take() == "1";
        if (!parts.Ends() || version != kVersion) {
            return false;
        }
        session_ = std::move(diary);
        return true;
    }

    bool TakeSaved(Parts& parts)
    {
        const Text letter = parts.Take();
        const int index = parts.TakeNumber();
        if (!parts.Ends() || letter.size() != 1 || !session_) {
            return false;
        }
        std::erase_if(session_->changes, [&](const auto& row) {
            return static_cast<char>(row.first.kind) == letter.front() && (index == 0 || row.first.index == index);
        });
        return true;
    }

    bool TakeChange(char letter, Parts& parts)
    {
        const RecordKey key{static_cast<RecordKind>(letter), parts.TakeNumber()};
        JournalChange change;
        change.before = parts.TakeValues();
        change.after = parts.TakeValues();
        if (!parts.Ends() || !IsRecord(key) || !session_) {
            return false;
        }
        Follow(session_->changes, key, std::move(change));
        return true;
    }

    void EndSession()
    {
        if (!session_) {
            return;
        }
        JournalDiary session = std::move(*session_);
        session_.reset();
        const auto known =
            std::find_if(content_.diaries.begin(), content_.diaries.end(), [&](const JournalDiary& diary) {
                return diary.file == session.file && diary.folder == session.folder;
            });
        if (known == content_.diaries.end()) {
            content_.diaries.push_back(std::move(session));
            return;
        }
        known->companions = session.companions;
        known->fresh = session.fresh;
        for (auto& [key, change] : session.changes) {
            Follow(known->changes, key, std::move(change));
        }
    }

    JournalContent content_;
    std::optional<JournalDiary> session_;
};

} // namespace

Text Hexadecimal(std::uint64_t number)
{
    Text digits(kDigits, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, number >>= 4U) {
        *digit = "0123456789abcdef"[number & 0xFU];
    }
    return digits;
}

std::uint64_t ChecksumOf(TextView bytes)
{
    std::uint64_t checksum = 0xcbf29ce484222325;
    for (const char byte : bytes) {
        checksum = (checksum ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    }
    return checksum;
}

Text CheckedLine(TextView payload)
{
    return Hexadecimal(ChecksumOf(payload)) + "\t" + Text(payload) + "\n";
}

Text SessionLine(const JournalDiary& diary)
{
    return Line('S', {Text(kVersion), diary.folder, diary.file, diary.companions, diary.fresh ? "1" : "0"});
}

Text ChangeLine(RecordKey key, const Values& before, const Values& after)
{
    std::vector<Text> parts{std::to_string(key.index)};
    for (const Values* values : {&before, &after}) {
        parts.push_back(std::to_string(values->size()));
        parts.insert(parts.end(), values->begin(), values->end());
    }
    return Line(static_cast<char>(key.kind), parts);
}

Text SavedLine(RecordKind kind, int index)
{
    return Line('V', {Text(1, static_cast<char>(kind)), std::to_string(index)});
}

Text OfferedLine()
{
    return Line('O', {});
}

JournalContent ReadJournal(TextView bytes)
{
    Reading reading;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        // The blank line that a new session puts after a truncated one.
        if (end > 0) {
            reading.Take(bytes.substr(0, end));
        }
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return reading.End();
}

Text JournalBytes(const JournalContent& content)
{
    Text offered;
    Text others;
    for (const JournalDiary& diary : content.diaries) {
        Text* last = nullptr;
        for (Text* bytes : {&offered, &others}) {
            for (const auto& [key, change] : diary.changes) {
                if (change.offered != (bytes == &offered)) {
                    continue;
                }
                if (last != bytes) {
                    *bytes += SessionLine(diary);
                    last = bytes;
                }
                *bytes += ChangeLine(key, change.before, change.after);
            }
        }
    }
    return offered + (offered.empty() ? "" : OfferedLine()) + others;
}

} // namespace zelvia
