// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QLabel>

#include <chrono>
#include <memory>

namespace zelvia
{

/// Tells how far a routine is, on a slip over the active window, once it takes longer than a second. The routine runs
/// on; the slip goes with this.
class Progress
{
public:
    explicit Progress(std::chrono::milliseconds patience = std::chrono::seconds(1));

    /// Shows the text, if it is time to.
    void Tell(const QString& text);

private:
    std::chrono::milliseconds patience_;
    QElapsedTimer running_;
    std::unique_ptr<QLabel> slip_;
};

} // namespace zelvia
