// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageMarks.h"

#include "core/Conversions.h"
#include "windows/page/PageArt.h"
#include "windows/page/PageControls.h"

#include <QAbstractItemModel>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>

#include <cmath>
#include <numbers>
#include <span>

namespace zelvia
{
namespace
{

struct Word {
    QLatin1String word;
    unsigned sign;
};

constexpr Word kWeather[] = {{QLatin1String("sole"), Weather::Sun},     {QLatin1String("nuvoloso"), Weather::Cloud},
                             {QLatin1String("pioggia"), Weather::Rain}, {QLatin1String("neve"), Weather::Snow},
                             {QLatin1String("ghiaccio"), Weather::Ice}, {QLatin1String("nebbia"), Weather::Fog},
                             {QLatin1String("vento"), Weather::Wind}};
constexpr Word kTerrain[] = {{QLatin1String("strada"), Terrain::Road},  {QLatin1String("sentiero"), Terrain::Path},
                             {QLatin1String("salita"), Terrain::Climb}, {QLatin1String("montagna"), Terrain::Mountain},
                             {QLatin1String("pista"), Terrain::Track},  {QLatin1String("spiaggia"), Terrain::Beach},
                             {QLatin1String("sabbia"), Terrain::Beach}};

unsigned SignsIn(const QString& entry, std::span<const Word> words)
{
    unsigned signs = 0;
    qsizetype from = 0;
    for (qsizetype to = 0; to <= entry.size(); ++to) {
        if (to < entry.size() && entry[to] != u'/' && entry[to] != u' ') {
            continue;
        }
        const QStringView word = QStringView(entry).sliced(from, to - from);
        for (const Word& known : words) {
            signs |= word.compare(known.word, Qt::CaseInsensitive) == 0 ? known.sign : 0;
        }
        from = to + 1;
    }
    return signs;
}

/// A drawing of the signs that `read` finds in the label's text.
Label::Drawing MarkOf(const Label& label, unsigned (*read)(const QString&),
                      void (*draw)(QPainter&, const QRectF&, unsigned))
{
    return [&label, read, draw](QPainter& painter, const QRectF& area) {
        if (const unsigned signs = read(label.text())) {
            draw(painter, area, signs);
        }
    };
}

void AddSplitsMark(PageControls& controls)
{
    Label& label = *controls.lblImmisTempoMinuti;
    const ListBox& list = *controls.lstListaKM;
    label.SetMark(
        [&list](QPainter& painter, const QRectF& area) {
            QFont font = PrintFont(qRound(area.height() / 2));
            painter.setFont(font);
            painter.setPen(Ink::Print);
            painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, SplitsMark(list.ListCount()));
        },
        3.4);
    const auto repaint = [&label] { label.update(); };
    const QAbstractItemModel* lines = list.model();
    QObject::connect(lines, &QAbstractItemModel::rowsInserted, &label, repaint);
    QObject::connect(lines, &QAbstractItemModel::rowsRemoved, &label, repaint);
    QObject::connect(lines, &QAbstractItemModel::modelReset, &label, repaint);
}

} // namespace

unsigned WeatherIn(const QString& entry)
{
    return SignsIn(entry, kWeather);
}

unsigned TerrainIn(const QString& entry)
{
    return SignsIn(entry, kTerrain);
}

QString SplitsMark(int splits)
{
    return splits == 0   ? QString()
           : splits == 1 ? QStringLiteral("1 parziale")
                         : QStringLiteral("%1 parziali").arg(splits);
}

void AddMarks(PageControls& controls)
{
    constexpr qreal width = 1.25;
    Label& weather = *controls.ListField(SelectionList::TempoAtm).lblImmis;
    weather.SetMark(MarkOf(weather, WeatherIn, DrawWeather), width);
    Label& terrain = *controls.ListField(SelectionList::Fondo).lblImmis;
    terrain.SetMark(MarkOf(terrain, TerrainIn, DrawTerrain), width);
    AddSplitsMark(controls);
    controls.ListField(SelectionList::Tipo).lblImmis->Changed = [&controls] { ShowRaceDay(controls); };
}

void ShowRaceDay(PageControls& controls)
{
    const Text type = Trim(controls.ListField(SelectionList::Tipo).lblImmis->Caption());
    const bool race = SameText(type, "Gara") || controls.lblGara->Visible();
    if (race != controls.pctCoccarda->Visible()) {
        controls.pctCoccarda->SetVisible(race);
    }
}

} // namespace zelvia
