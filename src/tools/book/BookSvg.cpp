// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/book/BookSvg.h"

#include "core/Conversions.h"
#include "tools/book/BookGeometry.h"
#include "tools/book/BookParts.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zelvia
{
namespace
{

/// The width of every drawing, in units of the drawing; on a telephone one is about a pixel.
constexpr double kWidth = 360;

/// With a point, whatever the locale: the window of the tools has the user's.
std::string Number(double value, int decimals = 1)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, decimals).ptr;
    return {text.data(), end};
}

/// An element with its attributes, numbers among them.
class Element
{
public:
    explicit Element(const std::string& name) : name_(name), text_("<" + name) {}
    Element& With(const char* attribute, double value) { return With(attribute, Number(value)); }
    Element& With(const char* attribute, const std::string& value)
    {
        text_ += std::string(" ") + attribute + "=\"" + value + "\"";
        return *this;
    }
    std::string Empty() const { return text_ + "/>"; }
    std::string Holding(const std::string& content) const { return text_ + ">" + content + "</" + name_ + ">"; }

private:
    std::string name_;
    std::string text_;
};

std::string Drawing(double height, const std::string& label, const std::string& content)
{
    return Element("svg")
               .With("viewBox", "0 0 " + Number(kWidth) + " " + Number(height))
               .With("role", "img")
               .With("aria-label", Escaped(label))
               .Holding(content) +
           "\n";
}

std::string Word(double x, double y, const char* anchor, const std::string& text, const char* style = "w")
{
    return Element("text")
        .With("x", x)
        .With("y", y)
        .With("text-anchor", anchor)
        .With("class", style)
        .Holding(Escaped(text));
}

std::string Line(double x1, double y1, double x2, double y2)
{
    return Element("line").With("x1", x1).With("y1", y1).With("x2", x2).With("y2", y2).With("class", "r").Empty();
}

/// The field of a drawing with lines across, from the lowest to the highest value.
struct Field {
    double left;
    double top;
    double right;
    double bottom;
    double lowest;
    double highest;

    double Y(double value) const { return bottom - (value - lowest) / (highest - lowest) * (bottom - top); }

    std::string Lines(double step, int decimals) const
    {
        std::string lines;
        for (int i = 0; lowest + i * step <= highest; ++i) {
            const double y = Y(lowest + i * step);
            lines += Line(left, y, right, y);
            std::string label = Number(lowest + i * step, decimals);
            std::replace(label.begin(), label.end(), '.', ',');
            lines += Word(left - 3, y + 3, "end", label);
        }
        return lines;
    }
};

double HighestBar(const ChartData& chart)
{
    double highest = 1;
    for (int i = 1; i <= chart.ColumnCount(); ++i) {
        highest = std::max(highest, chart.Data(1, i));
    }
    return highest;
}

/// Upright bars, for labels of three characters at most; of many only some have their label.
std::string UprightBars(const ChartData& chart)
{
    const Field field{30, 16, kWidth - 4, 130, 0, HighestBar(chart)};
    const int count = chart.ColumnCount();
    const int every = count > 31 ? 4 : 1;
    const double step = (field.right - field.left) / count;
    std::string content = field.Lines(AxisStep(field.highest), 0);
    for (int i = 1; i <= count; ++i) {
        const double x = field.left + (i - 1) * step;
        const double y = field.Y(chart.Data(1, i));
        const std::string label = ToUtf8(chart.ColumnLabel(i));
        content += Element("rect")
                       .With("x", x + step * 0.12)
                       .With("y", y)
                       .With("width", step * 0.76)
                       .With("height", field.bottom - y)
                       .With("class", "b")
                       .Holding("<title>" + Escaped(label) + ": " + ToUtf8(PlainText(chart.Data(1, i))) + "</title>");
        if ((i - 1) % every == 0) {
            content += Word(x + step / 2, field.bottom + 11, "middle", label);
        }
    }
    return Drawing(145, ToUtf8(chart.TitleText), content);
}

/// Bars that lie below their labels.
std::string LyingBars(const ChartData& chart)
{
    constexpr double row = 32;
    const double highest = HighestBar(chart);
    std::string content;
    for (int i = 1; i <= chart.ColumnCount(); ++i) {
        const double y = (i - 1) * row;
        const double value = chart.Data(1, i);
        content += Word(2, y + 12, "start", PlainLine(chart.ColumnLabel(i)), "l");
        content += Element("rect")
                       .With("x", 2)
                       .With("y", y + 16)
                       .With("width", (kWidth - 40) * value / highest)
                       .With("height", 9)
                       .With("class", "b")
                       .Empty();
        content += Word((kWidth - 40) * value / highest + 6, y + 25, "start", ToUtf8(PlainText(value)), "l");
    }
    return Drawing(chart.ColumnCount() * row, ToUtf8(chart.TitleText), content);
}

std::string Points(const std::vector<double>& values, const Field& field, double step)
{
    std::string points;
    for (std::size_t i = 0; i < values.size(); ++i) {
        points +=
            (i == 0 ? "" : " ") + Number(field.left + static_cast<double>(i) * step) + "," + Number(field.Y(values[i]));
    }
    return points;
}

std::string LineOf(const ChartData& chart)
{
    std::vector<double> values;
    for (int i = 1; i <= chart.RowCount(); ++i) {
        values.push_back(chart.Data(i, 1));
    }
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    const double pad = std::max(*highest - *lowest, 0.1) * 0.06;
    const Field field{34, 8, kWidth - 4, 150, *lowest - pad, *highest + pad};
    const double step = (field.right - field.left) / std::max<double>(static_cast<double>(values.size()) - 1, 1);
    return Drawing(158, "Media al km",
                   field.Lines((field.highest - field.lowest) / 5, 2) +
                       Element("polyline").With("points", Points(values, field, step)).With("class", "c0").Empty());
}

bool HasShortLabels(const ChartData& chart)
{
    constexpr std::size_t longest = 3;
    for (int i = 1; i <= chart.ColumnCount(); ++i) {
        if (chart.ColumnLabel(i).size() > longest) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        default: escaped += c;
        }
    }
    return escaped;
}

std::string SvgOf(const ChartData& chart)
{
    if (chart.chartType == ChartType::Line) {
        return LineOf(chart);
    }
    return HasShortLabels(chart) ? UprightBars(chart) : LyingBars(chart);
}

std::string SvgOf(const BookDots& dots)
{
    constexpr double left = 26;
    constexpr double top = 14;
    constexpr double row = 13;
    constexpr double step = (kWidth - left - 2) / 31;
    std::string content;
    for (const int day : {1, 5, 10, 15, 20, 25, 31}) {
        content += Word(left + (day - 0.5) * step, 8, "middle", std::to_string(day));
    }
    for (int month = 1; month <= 12; ++month) {
        const double y = top + (month - 0.5) * row;
        content += Word(left - 4, y + 3, "end", MonthName(month).substr(0, 3));
        const int days =
            CalendarDate(dots.year, static_cast<unsigned>(month), 1).PlusMonths(1).PlusDays(-1).Day().value();
        for (int day = 1; day <= days; ++day) {
            content += Element("circle")
                           .With("cx", left + (day - 0.5) * step)
                           .With("cy", y)
                           .With("r", 0.7)
                           .With("class", "o")
                           .Empty();
        }
    }
    for (const BookDots::Day& day : dots.days) {
        content += Element("circle")
                       .With("cx", left + (day.day - 0.5) * step)
                       .With("cy", top + (day.month - 0.5) * row)
                       .With("r", DotRadius(day.metres, step * 0.56))
                       .With("class", day.race ? "g" : "d")
                       .Holding("<title>" + std::to_string(day.day) + " " + MonthName(day.month) + ": " +
                                KilometresText(day.metres) + " km</title>");
    }
    return Drawing(top + 12 * row + 2, "Calendario dei giorni di corsa", content);
}

std::string SvgOf(const BookCurves& curves)
{
    const Field field{34, 6, kWidth - 30, 180, 0, HighestOf(curves)};
    const double step = (field.right - field.left) / 365;
    std::string content = field.Lines(AxisStep(field.highest), 0);
    const std::vector<int> starts = MonthStarts();
    for (std::size_t month = 0; month < starts.size(); ++month) {
        content += Word(field.left + (starts[month] + 15) * step, field.bottom + 11, "middle",
                        MonthName(static_cast<int>(month) + 1).substr(0, 1));
    }
    std::vector<double> ends;
    for (const BookCurves::Curve& curve : curves.curves) {
        ends.push_back(field.Y(curve.km.empty() ? 0 : curve.km.back()));
    }
    const std::vector<double> places = SpreadApart(ends, 9, field.bottom);
    // The book's own year comes first, and is drawn over the others.
    for (std::size_t i = curves.curves.size(); i-- > 0;) {
        const char* const style = i == 0 ? "c0" : "c1";
        content +=
            Element("polyline").With("points", Points(curves.curves[i].km, field, step)).With("class", style).Empty();
        content +=
            Word(field.right + 3, places[i] + 3, "start", std::to_string(curves.curves[i].year), i == 0 ? "w e" : "w");
    }
    return Drawing(195, curves.title, content);
}

} // namespace zelvia
