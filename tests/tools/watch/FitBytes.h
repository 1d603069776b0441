// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zelvia::test
{

/// Writes a FIT file byte for byte: definitions, messages, then the header and the checksum.
class FitBytes
{
public:
    struct Field {
        int number;
        int size;
        int type;
    };

    explicit FitBytes(bool bigEndian = false) : bigEndian_(bigEndian) {}

    /// Defines a message under a local number, with so many bytes of developer fields behind.
    FitBytes& Define(int local, int message, const std::vector<Field>& fields, int developerBytes = 0)
    {
        Byte((developerBytes > 0 ? 0x60 : 0x40) | local).Byte(0).Byte(bigEndian_ ? 1 : 0);
        Number(static_cast<std::uint64_t>(message), 2).Byte(static_cast<int>(fields.size()));
        for (const Field& field : fields) {
            Byte(field.number).Byte(field.size).Byte(field.type);
        }
        if (developerBytes > 0) {
            Byte(1).Byte(0).Byte(developerBytes).Byte(0);
        }
        return *this;
    }

    FitBytes& Byte(int value)
    {
        data_.push_back(static_cast<char>(value));
        return *this;
    }

    FitBytes& Number(std::uint64_t value, int size)
    {
        for (int i = 0; i < size; ++i) {
            const int shift = 8 * (bigEndian_ ? size - 1 - i : i);
            data_.push_back(static_cast<char>(value >> shift));
        }
        return *this;
    }

    FitBytes& Four(std::uint64_t value) { return Number(value, 4); }

    std::string Whole() const
    {
        std::string file{14, 0x10, 0, 0};
        for (int i = 0; i < 4; ++i) {
            file.push_back(static_cast<char>(data_.size() >> (8 * i)));
        }
        file += ".FIT";
        file += std::string(2, '\0');
        file += data_;
        const unsigned sum = Sum(file);
        file.push_back(static_cast<char>(sum & 0xFFU));
        file.push_back(static_cast<char>(sum >> 8U));
        return file;
    }

private:
    /// CRC-16 bit by bit, unlike the reader's.
    static unsigned Sum(const std::string& bytes)
    {
        unsigned sum = 0;
        for (const char c : bytes) {
            sum ^= static_cast<unsigned char>(c);
            for (int bit = 0; bit < 8; ++bit) {
                sum = (sum & 1U) != 0 ? (sum >> 1U) ^ 0xA001U : sum >> 1U;
            }
        }
        return sum;
    }

    bool bigEndian_;
    std::string data_;
};

} // namespace zelvia::test
