// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/SheetLines.h"

namespace zelvia::test
{
namespace
{

QByteArray Bytes(const Text& text)
{
    return QByteArray::fromStdString(text);
}

QByteArray Place(int x, int y)
{
    return QByteArray::number(x) + "," + QByteArray::number(y);
}

struct LineOf {
    QByteArray operator()(const SheetText& text) const
    {
        return Place(text.x, text.y) + " " + Bytes(text.font.name) + " " + QByteArray::number(text.font.size) +
               (text.font.bold ? " bold" : "") + (text.font.italic ? " italic" : "") + "|" + Bytes(text.text);
    }
    QByteArray operator()(const SheetLine& line) const
    {
        return "line " + Place(line.x1, line.y1) + " " + Place(line.x2, line.y2);
    }
    QByteArray operator()(const SheetBox& box) const
    {
        return "box " + Place(box.x1, box.y1) + " " + Place(box.x2, box.y2);
    }
    QByteArray operator()(const SheetPicture& picture) const { return "picture " + Place(picture.x, picture.y); }
    QByteArray operator()(const SheetPageBreak& /*pageBreak*/) const { return "page"; }
};

} // namespace

QByteArrayList SheetLines(const Sheet& sheet)
{
    QByteArrayList lines;
    for (const SheetOperation& operation : sheet.Operations()) {
        lines << std::visit(LineOf{}, operation);
    }
    return lines;
}

QByteArrayList SheetRow(const Sheet& sheet, int y)
{
    QByteArrayList row;
    for (const SheetOperation& operation : sheet.Operations()) {
        if (std::holds_alternative<SheetPageBreak>(operation)) {
            break;
        }
        if (const auto* text = std::get_if<SheetText>(&operation); text != nullptr && text->y == y) {
            row << QByteArray::number(text->x) + "|" + Bytes(text->text);
        }
    }
    return row;
}

} // namespace zelvia::test
