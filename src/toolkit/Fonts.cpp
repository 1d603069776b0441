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

/// Families of the same widths as a font, the generic one last.
std::vector<const char*> KinOf(TextView family)
{
    if (family == "Times New Roman" || family == "Liberation Serif") {
        return {"Liberation Serif", "Times New Roman", "Nimbus Roman", "serif"};
    }
    if (family == "Book Antiqua") {
        return {"Palatino Linotype", "P052", "URW Palladio L", "TeX Gyre Pagella", "Liberation Serif", "serif"};
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

} // namespace zelvia
