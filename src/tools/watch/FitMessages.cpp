// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/FitMessages.h"

#include <bit>

namespace zelvia
{
namespace
{

// Bits of the byte in front of each message.
constexpr unsigned kCompressed = 0x80;
constexpr unsigned kDefines = 0x40;
constexpr unsigned kDeveloper = 0x20;
constexpr unsigned kLocalType = 0x0F;

constexpr std::size_t kLocalTypes = 16;

/// An unsigned number of `size` bytes.
std::uint64_t BitsOf(std::string_view bytes, std::size_t size, bool bigEndian)
{
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t place = bigEndian ? i : size - 1 - i;
        value = (value << 8) | static_cast<unsigned char>(bytes[place]);
    }
    return value;
}

/// How the numbers of a field are written.
struct BaseType {
    std::uint8_t size = 0; ///< 0 for what is no number.
    enum { None, Unsigned, Signed, Zero, Float } kind = None;
};

/// The kinds by the lower five bits of the type.
constexpr std::array<BaseType, 17> kTypes = {{{1, BaseType::Unsigned},
                                              {1, BaseType::Signed},
                                              {1, BaseType::Unsigned},
                                              {2, BaseType::Signed},
                                              {2, BaseType::Unsigned},
                                              {4, BaseType::Signed},
                                              {4, BaseType::Unsigned},
                                              {},
                                              {4, BaseType::Float},
                                              {8, BaseType::Float},
                                              {1, BaseType::Zero},
                                              {2, BaseType::Zero},
                                              {4, BaseType::Zero},
                                              {},
                                              {8, BaseType::Signed},
                                              {8, BaseType::Unsigned},
                                              {8, BaseType::Zero}}};

/// The value of the bits of a number; none for those that stand for "not known".
std::optional<double> NumberOf(std::uint64_t bits, BaseType type)
{
    const unsigned width = type.size * 8U;
    const std::uint64_t ones = ~std::uint64_t{0} >> (64U - width);
    const std::uint64_t sign = std::uint64_t{1} << (width - 1);
    const bool known =
        type.kind == BaseType::Zero ? bits != 0 : bits != (type.kind == BaseType::Signed ? ones >> 1U : ones);
    double value = static_cast<double>(bits);
    if (type.kind == BaseType::Signed) {
        value = static_cast<double>(static_cast<std::int64_t>((bits ^ sign) - sign));
    } else if (type.kind == BaseType::Float) {
        value = type.size == 4 ? static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)))
                               : std::bit_cast<double>(bits);
    }
    constexpr double limit = 1e15; // Beyond any time or distance, and exact in the types that it is computed in.
    return known && value > -limit && value < limit ? std::optional(value) : std::nullopt;
}

/// Reads messages one after the other.
class Messages
{
public:
    explicit Messages(std::string_view data) : rest_(data) {}

    bool Read(const std::function<void(const FitMessage&)>& take)
    {
        while (!rest_.empty()) {
            const unsigned head = Byte();
            if (!((head & kCompressed) == 0 && (head & kDefines) != 0 ? Define(head) : Message(head, take))) {
                return false;
            }
        }
        return true;
    }

private:
    unsigned Byte()
    {
        const unsigned byte = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return byte;
    }

    bool Define(unsigned head)
    {
        constexpr std::size_t fixed = 5; // A reserved byte, the byte order, the message's number, the count of fields.
        if (rest_.size() < fixed) {
            return false;
        }
        FitDefinition definition;
        definition.bigEndian = rest_[1] != 0;
        definition.message = static_cast<std::uint16_t>(BitsOf(rest_.substr(2), 2, definition.bigEndian));
        const std::size_t count = static_cast<unsigned char>(rest_[fixed - 1]);
        rest_.remove_prefix(fixed);
        const bool good = Fields(count, [&](const FitDefinition::Field& field) {
            definition.fields.push_back(field);
            definition.fields.back().offset = definition.size;
            definition.size += field.size;
        });
        if (!good || ((head & kDeveloper) != 0 && !DeveloperFields(definition))) {
            return false;
        }
        definitions_[head & kLocalType] = std::move(definition);
        return true;
    }

    /// They stand behind the others, and only their sizes matter.
    bool DeveloperFields(FitDefinition& definition)
    {
        if (rest_.empty()) {
            return false;
        }
        return Fields(Byte(), [&](const FitDefinition::Field& field) { definition.size += field.size; });
    }

    template <typename Take>
    bool Fields(std::size_t count, Take&& take)
    {
        constexpr std::size_t each = 3;
        if (rest_.size() < count * each) {
            return false;
        }
        for (std::size_t i = 0; i < count; ++i) {
            const auto number = static_cast<std::uint8_t>(Byte());
            const auto size = static_cast<std::uint8_t>(Byte());
            take(FitDefinition::Field{number, size, static_cast<std::uint8_t>(Byte()), 0});
        }
        return true;
    }

    bool Message(unsigned head, const std::function<void(const FitMessage&)>& take)
    {
        const bool compressed = (head & kCompressed) != 0;
        const std::size_t type = compressed ? (head >> 5U) & 3U : head & kLocalType;
        const std::optional<FitDefinition>& definition = definitions_[type];
        if (!definition || rest_.size() < definition->size) {
            return false;
        }
        const std::string_view bytes = rest_.substr(0, definition->size);
        rest_.remove_prefix(definition->size);
        const FitMessage message(*definition, bytes, std::nullopt);
        std::optional<std::uint32_t> timestamp;
        if (compressed) {
            // The lower five bits of the time; it is the next one after the last with these.
            last_ += ((head & 0x1FU) - last_) & 0x1FU;
            timestamp = last_;
        } else if (const auto value = message.Value(FitMessage::kTimestamp);
                   value && *value >= 0 && *value <= UINT32_MAX) {
            last_ = static_cast<std::uint32_t>(*value);
            timestamp = last_;
        }
        take(FitMessage(*definition, bytes, timestamp));
        return true;
    }

    std::string_view rest_;
    std::array<std::optional<FitDefinition>, kLocalTypes> definitions_;
    std::uint32_t last_ = 0;
};

} // namespace

std::string_view FitMessage::Bytes(std::uint8_t field) const
{
    for (const FitDefinition::Field& one : definition_.fields) {
        if (one.number == field) {
            return bytes_.substr(one.offset, one.size);
        }
    }
    return {};
}

std::optional<double> FitMessage::Value(std::uint8_t field) const
{
    for (const FitDefinition::Field& one : definition_.fields) {
        if (one.number != field) {
            continue;
        }
        const std::size_t kind = one.type & 0x1FU;
        const BaseType type = kind < kTypes.size() ? kTypes[kind] : BaseType{};
        if (type.size == 0 || one.size < type.size) {
            return std::nullopt;
        }
        return NumberOf(BitsOf(bytes_.substr(one.offset), type.size, definition_.bigEndian), type);
    }
    return std::nullopt;
}

bool ReadFitMessages(std::string_view data, const std::function<void(const FitMessage&)>& take)
{
    return Messages(data).Read(take);
}

} // namespace zelvia
