// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QPainter;
class QRectF;

namespace zelvia
{

struct PageControls;

/// What the words of a weather say, of those that the list begins with.
namespace Weather
{
enum Sign : unsigned { Sun = 1, Cloud = 2, Rain = 4, Snow = 8, Ice = 16, Fog = 32, Wind = 64 };
} // namespace Weather

/// What the words of a terrain say.
namespace Terrain
{
enum Sign : unsigned { Road = 1, Path = 2, Climb = 4, Mountain = 8, Track = 16, Beach = 32 };
} // namespace Terrain

/// The signs of the words in an entry, whatever their case; 0 when none is known.
unsigned WeatherIn(const QString& entry);
unsigned TerrainIn(const QString& entry);

/// "3 parziali"; nothing for none.
QString SplitsMark(int splits);

void DrawWeather(QPainter& painter, const QRectF& area, unsigned signs);
void DrawTerrain(QPainter& painter, const QRectF& area, unsigned signs);
/// The rosette of a race day.
void DrawRosette(QPainter& painter, const QRectF& area);

/// Has the values of weather, terrain and splits drawn with their marks, and the rosette follow the type of the outing.
/// None of them takes clicks or the focus.
void AddMarks(PageControls& controls);

/// Shows the rosette on a day of type "Gara" or with a race of the calendar.
void ShowRaceDay(PageControls& controls);

} // namespace zelvia
