// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace zelvia
{

/// What a FIT file tells about the messages that follow: which fields they have, and where.
struct FitDefinition {
    struct Field {
        std::uint8_t number;
        std::uint8_t size;
        std::uint8_t type;
        std::size_t offset;
    };

    std::uint16_t message = 0;
    bool bigEndian = false;
    std::vector<Field> fields;
    std::size_t size = 0; ///< Bytes of a message, those of its developer fields included.
};

/// One message of a FIT file.
class FitMessage
{
public:
    FitMessage(const FitDefinition& definition, std::string_view bytes, std::optional<std::uint32_t> timestamp)
        : definition_(definition), bytes_(bytes), timestamp_(timestamp)
    {
    }

    std::uint16_t Number() const { return definition_.message; }

    /// The number in a field, the first of several; none when the field is absent, empty or holds no number.
    std::optional<double> Value(std::uint8_t field) const;

    /// The bytes of a field, empty when it is absent.
    std::string_view Bytes(std::uint8_t field) const;

    /// Its time as the file counts it, a compressed one too.
    std::optional<std::uint32_t> Timestamp() const { return timestamp_; }

    static constexpr std::uint8_t kTimestamp = 253;

private:
    const FitDefinition& definition_;
    std::string_view bytes_;
    std::optional<std::uint32_t> timestamp_;
};

/// Hands the messages of the data part of a FIT file to `take`, in order. False when they break off: at the end of the
/// bytes, or where they make no sense.
bool ReadFitMessages(std::string_view data, const std::function<void(const FitMessage&)>& take);

} // namespace zelvia
