// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>

namespace zelvia
{

/// The bytes of the module of what is loaded late, which the program carries.
std::span<const std::byte> LateImage();

} // namespace zelvia
