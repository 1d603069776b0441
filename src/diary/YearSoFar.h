// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zelvia
{

/// Counts the runs, races and kilometres of the open diary from 1 January to the day on the page, and finds the last
/// weight, all into the session. Raises error 6 where a sum overflows, with the sums as far as they got.
void CountYearSoFar();

} // namespace zelvia
