// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Composes the module of what is loaded late, and nothing else.
#include "toolkit/ChartDrawing.h"
#include "toolkit/LateParts.h"
#include "toolkit/SheetPlayer.h"
#include "windows/guide/HelpWindow.h"

namespace
{

class Parts : public zelvia::LateParts
{
public:
    void PlaySheet(const zelvia::Sheet& sheet) const override { zelvia::PlaySheet(sheet); }

    void DrawChart(QPainter& painter, const QRectF& area, const zelvia::ChartData& data) const override
    {
        zelvia::DrawChart(painter, area, data);
    }

    std::unique_ptr<zelvia::GuideWindow> OpenGuide(const QString& path) const override
    {
        return std::make_unique<zelvia::HelpWindow>(std::make_unique<zelvia::HelpFile>(path));
    }
};

} // namespace

extern "C" Q_DECL_EXPORT const zelvia::LateParts* ZelviaLateParts();

const zelvia::LateParts* ZelviaLateParts()
{
    static const Parts parts;
    return &parts;
}
