// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ChartData.h"
#include "core/Sheet.h"

#include <QRectF>
#include <QString>

#include <cstddef>
#include <memory>
#include <span>

class QPainter;

namespace zelvia
{

/// The window of the guide. Each of its functions also brings it to the front.
class GuideWindow
{
public:
    virtual ~GuideWindow() = default;

    /// The contents, and the first page unless the guide is open at another.
    virtual void ShowContents() = 0;
    virtual void ShowSearch() = 0;
    virtual void ShowTopic(const QString& name) = 0;
};

/// What needs libraries that the page does without: printing, charts, the guide. To load these with the program would
/// make each start longer by a fifteenth, so they come in a module of their own when one of them is first asked for.
class LateParts
{
public:
    virtual ~LateParts() = default;

    /// Prints a sheet. Raises 482 when there is no printer or it does not take the job.
    virtual void PlaySheet(const Sheet& sheet) const = 0;
    virtual void DrawChart(QPainter& painter, const QRectF& area, const ChartData& data) const = 0;
    /// The guide in the file at a path of the machine. Raises 51 when it is no help file of this program or a damaged
    /// one, 75 when there is no place for a temporary folder.
    virtual std::unique_ptr<GuideWindow> OpenGuide(const QString& path) const = 0;
};

/// The parts, loaded for good the first time. Raises 53 when the module is not to be had.
const LateParts& Late();

/// Takes the bytes of the module from the program itself, which then needs no file beside it. They must last. Without
/// them the module is looked for where the loader finds libraries.
void SetLateImage(std::span<const std::byte> image);

/// The one name that the module is asked for, a function of this type.
inline constexpr char kLateEntry[] = "ZelviaLateParts";
using LateEntry = const LateParts* (*)();

} // namespace zelvia
