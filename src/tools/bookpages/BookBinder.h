// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/bookpages/PageFlow.h"

#include <QByteArray>

#include <vector>

namespace zelvia
{

/// Gives a PDF its bookmarks, for which Qt's writer has no place, and says how it is to be shown and printed: two pages
/// side by side, on both sides of the paper. The dates are taken out of it, so that the same diary makes the same file.
QByteArray BindBook(const QByteArray& pdf, const PageFlow& flow);

} // namespace zelvia
