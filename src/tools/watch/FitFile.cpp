// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/FitFile.h"

#include "core/Tr.h"
#include "tools/watch/FitGatherer.h"

#include <algorithm>
#include <array>

namespace zelvia
{
namespace
{

/// The checksum of the format: CRC-16, a byte at a time.
std::uint16_t Checksum(std::string_view bytes)
{
    static constexpr auto table = [] {
        std::array<unsigned, 256> sums{};
        for (unsigned byte = 0; byte < sums.size(); ++byte) {
            sums[byte] = byte;
            for (int bit = 0; bit < 8; ++bit) {
                sums[byte] = (sums[byte] & 1U) != 0 ? (sums[byte] >> 1U) ^ 0xA001U : sums[byte] >> 1U;
            }
        }
        return sums;
    }();
    unsigned sum = 0;
    for (const char c : bytes) {
        sum = (sum >> 8U) ^ table[(sum ^ static_cast<unsigned char>(c)) & 0xFFU];
    }
    return static_cast<std::uint16_t>(sum);
}

std::uint32_t LittleEndian(std::string_view bytes, std::size_t size)
{
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) {
        value = (value << 8U) | static_cast<unsigned char>(bytes[i]);
    }
    return value;
}

constexpr std::size_t kShortHeader = 12;
constexpr std::size_t kChecksum = 2;

/// One of the files that stand one behind the other.
struct Part {
    std::string_view header;
    std::string_view data;
    std::size_t size = 0; ///< Up to the next one; more than there is when it is cut.
};

Part PartOf(std::string_view bytes)
{
    Part part;
    const std::size_t header = std::max<std::size_t>(static_cast<unsigned char>(bytes.front()), kShortHeader);
    const std::size_t data = LittleEndian(bytes.substr(4), 4);
    part.header = bytes.substr(0, header);
    part.data = header < bytes.size() ? bytes.substr(header, data) : std::string_view();
    part.size = header + data + kChecksum;
    if (data == 0 && bytes.size() > part.size) {
        // The watch fills the length in last.
        part.data = bytes.substr(header);
        part.size = bytes.size() + kChecksum;
    }
    return part;
}

/// What is wrong with a part before its messages are looked at; empty when nothing is.
std::string FaultOf(const Part& part, std::string_view bytes)
{
    if (part.size > bytes.size()) {
        return Tools::Tr("il file è troncato");
    }
    constexpr std::size_t longHeader = 14;
    const std::string_view head = bytes.substr(0, kShortHeader);
    const std::uint32_t headSum =
        part.header.size() >= longHeader ? LittleEndian(part.header.substr(kShortHeader), kChecksum) : 0;
    const std::string_view whole = bytes.substr(0, part.size - kChecksum);
    if ((headSum != 0 && headSum != Checksum(head)) ||
        Checksum(whole) != LittleEndian(bytes.substr(whole.size()), kChecksum)) {
        return Tools::Tr("la somma di controllo è sbagliata");
    }
    return {};
}

} // namespace

bool IsFit(std::string_view bytes)
{
    return bytes.size() >= kShortHeader && bytes.substr(8, 4) == ".FIT";
}

WatchFile ReadFit(std::string_view bytes)
{
    WatchFile file;
    while (!bytes.empty()) {
        if (!IsFit(bytes)) {
            file.faults.push_back(Tools::Tr("il resto del file non si può leggere"));
            break;
        }
        const Part part = PartOf(bytes);
        FitGatherer gatherer;
        const bool whole = ReadFitMessages(part.data, [&](const FitMessage& message) { gatherer.Take(message); });
        if (std::string fault = FaultOf(part, bytes); !fault.empty()) {
            file.faults.push_back(std::move(fault));
        } else if (!whole) {
            file.faults.push_back(Tools::Tr("il file è rovinato"));
        }
        for (Activity& activity : gatherer.Activities()) {
            file.activities.push_back(std::move(activity));
        }
        bytes.remove_prefix(std::min(part.size, bytes.size()));
    }
    return file;
}

} // namespace zelvia
