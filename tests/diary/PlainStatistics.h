// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/RecordGiorno.h"
#include "support/Bytes.h"
#include "support/DiaryBytes.h"

#include <QByteArrayList>
#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>
#include <vector>

/// The statistics computed a second time, without anything of the program: plain numbers, Qt's texts and sorting.
namespace zelvia::test
{

/// The fields of a day that the statistics look at.
struct PlainDay {
    std::array<QByteArray, 8> texts; ///< Route, length, pace kind, ground, kind, season, weather, temperature.
    int km = 0;
    int metres = 0;
    int runners = 0;
    int weight = 0;
    std::array<int, 4> repeats{}; ///< How many, metres, minutes, seconds.
    QByteArray time;
    QByteArray average;
    QByteArray date; ///< As shown.
};

/// The twelve titles; the first eight are those of the texts of PlainDay.
inline const QByteArrayList kTitles = {"Percorso", "Lunghezza",   "Andatura",  "Terreno", "Tipo", "Stagione",
                                       "Meteo",    "Temperatura", "Corridori", "Peso",    "Km",   "Ripetizioni"};

inline bool IsNumeric(const QByteArray& title)
{
    return title == "Corridori" || title == "Peso";
}

inline PlainDay PlainDayOf(const RecordGiorno& day)
{
    PlainDay plain;
    const Text* const texts[] = {&day.Percorso, &day.Lunghezza, &day.Modo,     &day.Fondo,
                                 &day.Tipo,     &day.Stagione,  &day.TempoAtm, &day.Temperatura};
    std::transform(std::begin(texts), std::end(texts), plain.texts.begin(),
                   [](const Text* text) { return Bytes(*text); });
    plain.km = day.Km.value();
    plain.metres = day.Metri.value();
    plain.runners = day.Corridori.value();
    plain.weight = day.Peso.value();
    plain.repeats = {day.Ripetizioni.value(), day.RipetizioniDistanza.value(), day.RipetizioniQuante.value(),
                     day.RipetizioniTempi.value()};
    return plain;
}

/// From the lines of a diary file.
inline PlainDay PlainDayOf(const DiaryBytes& diary, int slot)
{
    const auto text = [&](int line) {
        const QByteArray quoted = diary.Line(slot, line);
        return quoted.mid(1, quoted.size() - 2);
    };
    const auto number = [&](int line) { return diary.Line(slot, line).toInt(); };
    PlainDay plain;
    plain.texts = {text(3), text(4), text(7), text(8), text(9), text(118), text(119), text(120)};
    plain.km = number(5);
    plain.metres = number(6);
    plain.runners = number(121);
    plain.weight = number(122);
    plain.repeats = {number(123), number(124), number(125), number(126)};
    plain.time = text(16);
    plain.average = text(17);
    const QByteArray stamp = diary.Line(slot, 2); // #yyyy-mm-dd#
    plain.date = stamp.mid(9, 2) + '/' + stamp.mid(6, 2) + '/' + stamp.mid(1, 4);
    return plain;
}

inline QByteArray Spaced(int number)
{
    const QByteArray digits = QByteArray::number(number);
    return digits.size() == 1 ? ' ' + digits : digits;
}

/// The value of the day as the statistic spells it, nothing when the day does not count.
inline std::optional<QByteArray> ValueOf(const QByteArray& title, const PlainDay& day)
{
    const auto when = [](bool counted, const QByteArray& value) {
        return counted ? std::optional<QByteArray>(value) : std::nullopt;
    };
    const bool run = day.km != 0 || day.metres != 0;
    if (title == "Corridori") {
        return when(run, QByteArray::number(day.runners));
    }
    if (title == "Peso") {
        return when(day.weight != 0, QByteArray::number(day.weight));
    }
    if (title == "Km") {
        return when(run, Spaced(day.km) + ',' + QByteArray::number(day.metres));
    }
    if (title == "Ripetizioni") {
        const auto& [times, distance, minutes, seconds] = day.repeats;
        return when(times != 0, Spaced(times) + " x " + QByteArray::number(distance) +
                                    (distance >= 1000 ? " @ " : "  @ ") + QByteArray::number(minutes) + ':' +
                                    QByteArray::number(seconds));
    }
    const QByteArray& text = day.texts[static_cast<std::size_t>(kTitles.indexOf(title))];
    return when(!text.isEmpty(), text);
}

struct PlainRow {
    QByteArray value;
    int count;
};

/// The values of the days, each as first spelt, at most 60, by falling count and by their first day.
inline std::vector<PlainRow> Ranked(const QByteArray& title, const std::vector<PlainDay>& days)
{
    std::vector<PlainRow> rows;
    for (const PlainDay& day : days) {
        const auto value = ValueOf(title, day);
        if (!value) {
            continue;
        }
        const QString folded = QString::fromLatin1(*value).toLower();
        const auto same = std::find_if(rows.begin(), rows.end(), [&](const PlainRow& row) {
            return QString::fromLatin1(row.value).toLower() == folded;
        });
        if (same != rows.end()) {
            ++same->count;
        } else if (rows.size() < 60) {
            rows.push_back({*value, 1});
        }
    }
    std::stable_sort(rows.begin(), rows.end(), [](const PlainRow& a, const PlainRow& b) { return a.count > b.count; });
    return rows;
}

/// The lines that show the rows.
inline QByteArrayList LinesOf(const QByteArray& title, const std::vector<PlainRow>& rows)
{
    QByteArrayList lines;
    for (const PlainRow& row : rows) {
        if (IsNumeric(title) && row.value == "0") {
            continue;
        }
        const QByteArray name = IsNumeric(title) && !row.value.startsWith('-') ? ' ' + row.value : row.value;
        lines << name.leftJustified(30, ' ', true) + QByteArray::number(row.count).rightJustified(6) + "    ";
    }
    return lines;
}

/// Whether the row of a value leads to the day: runners and weights alone decide, and case counts. The empty value is
/// that of a day with none.
inline bool IsOf(const QByteArray& title, const QByteArray& value, const PlainDay& day)
{
    return title == "Corridori" ? QByteArray::number(day.runners) == value
                                : ValueOf(title, day).value_or(QByteArray()) == value;
}

/// The classification of the days whose value is spelt like that: place, time, average, date, separated by "|".
inline QByteArrayList TimesOf(const QByteArray& title, const QByteArray& value, const std::vector<PlainDay>& days)
{
    std::vector<std::tuple<int, int, const PlainDay*>> runs; // seconds, less the place of the day, the day
    int minutes = 0;
    for (const PlainDay& day : days) {
        if (!IsOf(title, value, day)) {
            continue;
        }
        // A run without a time has the hours and minutes of the one before it.
        const QByteArrayList parts = day.time.split(':');
        minutes = parts.size() == 3 ? parts[0].toInt() * 60 + parts[1].toInt() : minutes;
        const int seconds = minutes * 60 + (parts.size() == 3 ? parts[2].toInt() : 0);
        if (seconds > 0) {
            runs.emplace_back(seconds, -static_cast<int>(runs.size()), &day);
        }
    }
    std::sort(runs.begin(), runs.end());
    QByteArrayList rows;
    for (const auto& [seconds, order, day] : runs) {
        const QByteArray time =
            QString::asprintf("%d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60).toLatin1();
        rows << "  " + QByteArray::number(rows.size() + 1) + "\xB0|" + time + '|' + day->average + '|' + day->date;
    }
    return rows;
}

} // namespace zelvia::test
