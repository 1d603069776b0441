// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QStyle;

namespace zelvia
{

/// The style of the program, for the application to own.
QStyle* MakePageStyle();

} // namespace zelvia
