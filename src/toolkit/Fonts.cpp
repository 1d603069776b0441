// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Fonts.h"

#include "toolkit/QtText.h"

#include <QStringList>

#include <vector>

namespace zelvia
{
namespace
{

// Each has every character of Windows-1252. Of 142 million instructions of the start the two take 9 more than the
// regular and italic of Liberation Serif; P052 for print would take 18 more than Caladea, whose outlines are TrueType.
constexpr TextView kPrintFace = "Caladea";
constexpr TextView kPenFace = "Z003";

/// Families of the same widths as a font, the generic one last.
std::vector<const char*> KinOf(TextView family)
{
    if (family == "Times New Roman" || family == "Liberation Serif") {
        return {"Liberation Serif", "Times New Roman", "Nimbus Roman", "serif"};
    }
    if (family == kPrintFace) {
        return {"Cambria", "serif"};
    }
    if (family == "Book Antiqua") {
        return {"P052", "Palatino Linotype", "URW Palladio L", "TeX Gyre Pagella", "Liberation Serif", "serif"};
    }
    if (family == kPenFace) {
        return {"URW Chancery L", "serif"};
    }
    if (family == "MS Sans Serif") {
        return {"Liberation Sans", "Arial", "DejaVu Sans", "sans-serif"};
    }
    // In these the degree sign is as wide as a digit.
    return {"Liberation Mono", "DejaVu Sans Mono", "monospace"};
}

} // namespace

QFont PageFont(TextView family, int pixels)
{
    QStringList families{ToQString(family)};
    for (const char* kin : KinOf(family)) {
        families << QLatin1String(kin);
    }
    families.removeDuplicates();
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(pixels);
    // Each of these holds every character a diary can: Qt need not look for other fonts for missing ones.
    font.setStyleStrategy(QFont::NoFontMerging);
    return font;
}

QFont PrintFont(int pixels, bool bold)
{
    QFont font = PageFont(kPrintFace, pixels);
    // Said outright: a painter takes what is left open from the font of its widget.
    font.setItalic(false);
    font.setBold(bold);
    return font;
}

QFont PenFont(int pixels)
{
    QFont font = PageFont(kPenFace, pixels);
    // Its only face is a slanted one: asked for upright it would still be found, asked for so it is exact.
    font.setItalic(true);
    return font;
}

} // namespace zelvia
