// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/book/BookHtml.h"

#include "core/Conversions.h"
#include "tools/book/BookSvg.h"

#include <string_view>

namespace zelvia
{
namespace
{

// The inks and papers of the page, and the same at night.
constexpr std::string_view kStyle = R"(
:root{--paper:#fbf6e7;--slip:#fffdf4;--rule:#d6c8a8;--faded:#745f42;--print:#5c462e;--dark:#3a2a1c;--accent:#9e2c20;--pen:#1a3a8c;--wash:#7f98ca;--other:#b39f78}
@media(prefers-color-scheme:dark){:root{--paper:#211b15;--slip:#2b241c;--rule:#4d4233;--faded:#b8a584;--print:#d3c3a5;--dark:#f0e6d0;--accent:#ee8b7c;--pen:#a9c0ff;--wash:#6d88c6;--other:#75674f}}
*{box-sizing:border-box}
html{color-scheme:light dark;scroll-behavior:smooth}
body{margin:0 auto;padding:0 1rem 4rem;max-width:44rem;background:var(--paper);color:var(--print);font:1rem/1.45 Caladea,Cambria,Georgia,"Noto Serif",serif;overflow-wrap:anywhere}
a{color:var(--pen);text-decoration-thickness:1px;text-underline-offset:.15em}
header{padding:3rem 0 1.5rem;text-align:center}
h1{margin:0;color:var(--accent);font-size:4.5rem;line-height:1}
h2{margin:3rem 0 1rem;padding:.3rem 0;color:var(--accent);font-size:1.7rem;line-height:1.2;border-top:3px double var(--accent);border-bottom:2px solid var(--accent)}
h3{margin:2rem 0 .6rem;color:var(--dark);font-size:1.25rem}
h3::first-letter{text-transform:uppercase}
nav ul{display:flex;flex-wrap:wrap;gap:.2rem;margin:0;padding:0;list-style:none}
nav a{display:block;padding:.5rem .7rem;color:var(--print);text-decoration:none;border:1px solid var(--rule);border-radius:.3rem;background:var(--slip)}
.days{margin-bottom:1rem}
.sum{display:flex;flex-wrap:wrap;justify-content:center;gap:.5rem 1.6rem;margin:1rem 0;padding:0}
.sum div{text-align:center}
.sum dt{color:var(--faded);font-size:.85rem}
.sum dd{margin:0;color:var(--dark);font-size:1.35rem;font-weight:bold}
article{margin:0 0 1rem;padding:.7rem .8rem;background:var(--slip);border:1px solid var(--rule);border-top:3px double var(--accent)}
article h4{display:flex;align-items:center;gap:.6rem;margin:0 0 .3rem;color:var(--dark);font-size:1.05rem;line-height:1.15}
article h4 b{min-width:2.2rem;color:var(--accent);font-size:2rem}
article h4 small{display:block;color:var(--print);font-size:.8rem;font-weight:normal}
article h4 em{margin-left:auto;padding:.1rem .5rem;color:var(--slip);background:var(--accent);font-size:.8rem;font-style:normal;border-radius:.2rem}
.km{margin:.2rem 0 .4rem;color:var(--pen);font-size:1.25rem;font-style:italic;display:flex;flex-wrap:wrap;gap:0 1.2rem}
dl.f{display:grid;grid-template-columns:repeat(auto-fill,minmax(14rem,1fr));gap:0 1.2rem;margin:0}
dl.f div{display:flex;gap:.6rem;padding:.15rem 0;border-bottom:1px solid var(--rule)}
dl.f dt{flex:0 0 6.5rem;color:var(--print)}
dl.f dd{flex:1;min-width:0;margin:0;color:var(--pen);font-style:italic}
.n{margin:.6rem 0 0}
.n b{color:var(--accent)}
.n p{margin:0;min-height:1.6em;color:var(--pen);font-style:italic;border-bottom:1px solid var(--rule)}
.s{margin:.5rem 0 0;color:var(--pen);font-style:italic}
.s b{margin-right:.5rem;color:var(--print);font-style:normal;font-weight:normal}
table{width:100%;margin:.4rem 0 1rem;border-collapse:collapse;font-variant-numeric:tabular-nums}
th{padding:.25rem .4rem;color:var(--faded);font-size:.85rem;font-weight:normal;text-align:left;border-bottom:2px solid var(--accent)}
td{padding:.25rem .4rem;color:var(--dark);vertical-align:top;border-bottom:1px solid var(--rule)}
.t{overflow-wrap:normal}
.r{text-align:right;white-space:nowrap}
tr.best td{color:var(--accent);font-weight:bold}
td:first-child,th:first-child{padding-left:0}
td:last-child,th:last-child{padding-right:0}
svg{display:block;width:100%;height:auto;margin:.4rem 0 1rem}
svg .w{fill:var(--print);font-size:10px}
svg .l{fill:var(--dark);font-size:13px}
svg .e{fill:var(--pen);font-weight:bold}
svg .r{stroke:var(--rule);stroke-width:.6}
svg .b{fill:var(--wash)}
svg .d{fill:var(--pen)}
svg .g{fill:var(--accent)}
svg .o{fill:var(--other)}
svg .c0{fill:none;stroke:var(--pen);stroke-width:2;stroke-linejoin:round}
svg .c1{fill:none;stroke:var(--other);stroke-width:1;stroke-linejoin:round}
figcaption{color:var(--faded);font-size:.85rem}
figure{margin:0}
footer{margin-top:3rem;color:var(--faded);font-size:.85rem;text-align:center}
@media(max-width:34rem){.wide thead{display:none}.wide tr{display:block;padding:.4rem 0;border-bottom:1px solid var(--rule)}.wide td{display:flex;gap:.6rem;padding:.05rem 0;border:0;text-align:left;white-space:normal}.wide td::before{content:attr(data-h);flex:0 0 5.5rem;color:var(--faded)}.wide td:empty{display:none}}
@media print{body{background:#fff;max-width:none}article{break-inside:avoid}nav{display:none}}
)";

std::string Tag(const std::string& name, const std::string& content)
{
    return "<" + name + ">" + content + "</" + name.substr(0, name.find(' ')) + ">";
}

std::string Link(const std::string& id, const std::string& text)
{
    return "<li><a href=\"#" + id + "\">" + Escaped(text) + "</a></li>";
}

std::string Facts(const std::string& style, const std::vector<BookFact>& facts)
{
    std::string html;
    for (const BookFact& fact : facts) {
        html += Tag("div", Tag("dt", Escaped(fact.caption)) + Tag("dd", Escaped(fact.value)));
    }
    return facts.empty() ? "" : Tag("dl class=\"" + style + "\"", html) + "\n";
}

// Each part as HTML.

std::string Html(const BookHeading& heading)
{
    return "<h3 id=\"" + heading.id + "\">" + Escaped(heading.title) + "</h3>\n";
}

std::string Html(const BookParagraph& paragraph)
{
    return Tag("p", Escaped(paragraph.text)) + "\n";
}

std::string Html(const BookFigures& figures)
{
    return Facts("sum", figures.facts);
}

std::string Html(const BookDots& dots)
{
    return Tag("figure",
               SvgOf(dots) + Tag("figcaption", "Un punto è una corsa: più è grande, più è lunga; in rosso le gare."));
}

std::string Html(const ChartData& chart)
{
    const std::string title = ToUtf8(chart.TitleText);
    return Tag("figure", (title.empty() ? "" : Tag("figcaption", Escaped(title))) + SvgOf(chart)) + "\n";
}

std::string Html(const BookCurves& curves)
{
    return Tag("figure", Tag("figcaption", Escaped(curves.title)) + SvgOf(curves)) + "\n";
}

std::string Head(const BookDay& day)
{
    return Tag("h4",
               Tag("b", ToUtf8(PlainText(day.date.Day()))) +
                   Tag("span", ToUtf8(Format(day.date, "dddd")) + Tag("small", ToUtf8(Format(day.date, "mmmm yyyy")))) +
                   (day.race ? Tag("em", "Gara") : ""));
}

/// "10,500 km", "Tempo 52:30"...
std::string Distance(const std::vector<BookFact>& facts)
{
    std::string html;
    for (const BookFact& fact : facts) {
        const std::string value = Escaped(fact.value);
        html += Tag("span", fact.caption == "Km" ? value + " km" : fact.caption == "Media" ? value + " al km" : value);
    }
    return facts.empty() ? "" : Tag("div class=\"km\"", html);
}

std::string Html(const BookDay& day)
{
    std::string html = Head(day) + Distance(day.head) + Facts("f", day.fields);
    std::string splits;
    for (const std::string& split : day.splits) {
        splits += (splits.empty() ? "" : " · ") + Escaped(split);
    }
    html += splits.empty() ? "" : Tag("p class=\"s\"", Tag("b", "Tempi Km") + splits);
    std::string notes;
    for (const std::string& note : day.notes) {
        notes += Tag("p", Escaped(note));
    }
    html += notes.empty() ? "" : Tag("div class=\"n\"", Tag("b", "Note") + notes);
    return "<article id=\"" + day.id + "\">" + html + "</article>\n";
}

std::string Row(const BookTable& table, const std::vector<std::string>& cells)
{
    std::string html;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const BookTable::Column& column = table.columns[i];
        const std::string heading = Escaped(column.heading);
        html += "<td" + std::string(column.right ? " class=\"r\"" : "") + " data-h=\"" + heading + "\">" +
                Escaped(cells[i]) + "</td>";
    }
    return html;
}

/// A table; of more columns than a telephone has room for each row becomes a block there.
std::string Html(const BookTable& table)
{
    constexpr std::size_t mostOnTelephone = 5;
    std::string heads;
    for (const BookTable::Column& column : table.columns) {
        heads += "<th" + std::string(column.right ? " class=\"r\"" : "") + ">" + Escaped(column.heading) + "</th>";
    }
    std::string rows;
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        rows += Tag(table.best == i ? "tr class=\"best\"" : "tr", Row(table, table.rows[i])) + "\n";
    }
    return Tag(table.columns.size() > mostOnTelephone ? "table class=\"wide\"" : "table",
               Tag("thead", Tag("tr", heads)) + "\n" + Tag("tbody", rows)) +
           "\n";
}

/// Links to the parts of a chapter.
std::string Contents(const BookChapter& chapter)
{
    std::string links;
    for (const BookPart& part : chapter.parts) {
        if (const auto* heading = std::get_if<BookHeading>(&part)) {
            links += Link(heading->id, heading->title);
        }
    }
    return links.empty() ? "" : Tag("nav class=\"days\"", Tag("ul", links)) + "\n";
}

std::string Html(const BookChapter& chapter)
{
    std::string html = "<section>\n<h2 id=\"" + chapter.id + "\">" + Escaped(chapter.title) + "</h2>\n";
    html += Contents(chapter);
    for (const BookPart& part : chapter.parts) {
        html += std::visit([](const auto& shown) { return Html(shown); }, part);
    }
    return html + "</section>\n";
}

} // namespace

std::string BookAsHtml(const Book& book)
{
    const std::string year = std::to_string(book.year);
    std::string html =
        "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"UTF-8\" />\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\" />\n<title>Il diario del " +
        year + "</title>\n<style>" + std::string(kStyle) + "</style>\n</head>\n<body>\n";
    html += Tag("header", Tag("p", "Diario di corsa") + Tag("h1", year)) + "\n";
    std::string links;
    for (const BookChapter& chapter : book.chapters) {
        links += Link(chapter.id, chapter.title);
    }
    html += Tag("nav", Tag("ul", links)) + "\n";
    for (const BookChapter& chapter : book.chapters) {
        html += Html(chapter);
    }
    return html + Tag("footer", "Zelvia, diario «" + Escaped(book.diary) + "»") + "\n</body>\n</html>\n";
}

} // namespace zelvia
