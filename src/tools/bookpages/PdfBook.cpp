// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/bookpages/PdfBook.h"

#include "toolkit/PagePalette.h"
#include "tools/bookpages/BookBinder.h"
#include "tools/bookpages/BookPages.h"
#include "tools/bookpages/PageParts.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace zelvia
{
namespace
{

/// The header over the text and the number below it, both at the outer edge.
void DrawFrame(QPainter& painter, const PageFlow& flow, std::size_t index, int year)
{
    const PageFlow::Page& page = flow.Pages()[index];
    if (page.header.isEmpty()) {
        return;
    }
    const bool right = index % 2 == 0;
    const double x = right ? flow.Width() : 0;
    const Qt::Alignment alignment = right ? Qt::AlignRight : Qt::AlignLeft;
    const QString header = right ? page.header : QStringLiteral("Diario di corsa %1").arg(year);
    DrawWord(painter, x, -14, header, BookFont(11), Ink::Faded, alignment);
    DrawRule(painter, 0, -8, flow.Width(), 0.5, Ink::Rule);
    DrawWord(painter, x, flow.Height() + 28, QString::number(index + 1), BookFont(12), Ink::PrintDark, alignment);
}

void DrawPage(QPainter& painter, const PageFlow& flow, std::size_t index, int year)
{
    const BookPaper& paper = flow.Paper();
    const bool right = index % 2 == 0;
    painter.save();
    painter.translate(PixelsOf(right ? paper.inner : paper.outer, paper), PixelsOf(paper.top, paper));
    DrawFrame(painter, flow, index, year);
    for (const PageFlow::Piece& piece : flow.Pages()[index].pieces) {
        painter.save();
        painter.translate(0, piece.y);
        painter.scale(piece.scale, piece.scale);
        piece.draw(painter);
        painter.restore();
    }
    painter.restore();
}

} // namespace

QByteArray BookAsPdf(const Book& book, const BookPaper& paper, const std::function<void(int, int)>& progress)
{
    constexpr int resolution = 1200;
    constexpr double pixelsPerInch = 96;
    const PageFlow flow = LayOut(book, paper);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(paper.size));
    writer.setPageMargins({});
    writer.setResolution(resolution);
    writer.setTitle(QStringLiteral("Diario di corsa %1").arg(book.year));
    writer.setCreator(QStringLiteral("Zelvia"));
    QPainter painter(&writer);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = resolution / pixelsPerInch * paper.scale;
    painter.scale(scale, scale);
    const int pages = static_cast<int>(flow.Pages().size());
    for (int page = 0; page < pages; ++page) {
        if (page > 0) {
            writer.newPage();
        }
        DrawPage(painter, flow, static_cast<std::size_t>(page), book.year);
        progress(page + 1, pages);
    }
    painter.end();
    return BindBook(buffer.data(), flow);
}

} // namespace zelvia
