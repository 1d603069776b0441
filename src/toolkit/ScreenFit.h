// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace zelvia
{

/// Makes a window of a fixed size that the screen has no room for as large as it can be: its contents scroll, and the
/// buttons in line with the last one, which closes it, stay in sight below them. `still` stays where it is.
/// To be called before the window is shown, with all its contents.
void FitToScreen(QWidget& window, const QWidget& still);

} // namespace zelvia
