// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "LateImage.h"

// ZELVIA_LATE_IMAGE is the path of the module. Nothing but these bytes stands in the section.
asm(".pushsection .rodata.zelvia_late, \"a\"\n"
    ".balign 16\n"
    "zelvia_late_begin:\n"
    ".incbin \"" ZELVIA_LATE_IMAGE "\"\n"
    "zelvia_late_end:\n"
    ".byte 0\n"
    ".popsection\n");

extern "C" const std::byte zelvia_late_begin[];
extern "C" const std::byte zelvia_late_end[];

std::span<const std::byte> zelvia::LateImage()
{
    return {zelvia_late_begin, zelvia_late_end};
}
