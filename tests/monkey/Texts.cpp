// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/Texts.h"

namespace zelvia::monkey
{
namespace
{

const QString kWords[] = {QStringLiteral("Gara"),
                          QStringLiteral("gara "),
                          QStringLiteral("Allenamento"),
                          QStringLiteral("Giro del lago"),
                          QStringLiteral("Lungo"),
                          QStringLiteral("Corto"),
                          QStringLiteral("Città alta"),
                          QStringLiteral("perché così è più"),
                          QStringLiteral("50 € & 100%"),
                          QStringLiteral("l'argine, a nord"),
                          QStringLiteral("1:05:30"),
                          QStringLiteral("10,500"),
                          QStringLiteral("#2026-02-30#"),
                          QStringLiteral("%1 <b>&amp;</b> \\ / *"),
                          QStringLiteral("Ventosa; fredda"),
                          QStringLiteral("àèéìòùÀÈÉÌÒÙ")};

QString Of(Dice& dice, const QString& characters, int length)
{
    QString text;
    for (int i = 0; i < length; ++i) {
        text += characters[dice.Below(static_cast<int>(characters.size()))];
    }
    return text;
}

} // namespace

QString AnyText(Dice& dice)
{
    static const QString letters = QStringLiteral("abcdefghilmnopqrstuvz ABCDE 0123456789 ,.;:'-_()/");
    static const QString controls = QStringLiteral("\x01\x02\t\n\x1b\x1f\x7f\u0080\u009f\u00adab1");
    static const QString foreign = QStringLiteral("жщ漢字αβ→\u200bab");
    switch (dice.Below(10)) {
    case 0: return AnyDigits(dice, dice.Between(1, 8));
    case 1: return QString(dice.Between(1, 5), QLatin1Char(' '));
    case 2: return Of(dice, QStringLiteral("àèéìòùÈ€ß°ñü "), dice.Between(1, 12));
    case 3: return Of(dice, letters, dice.Between(30, 110));
    case 4: return Of(dice, controls, dice.Between(1, 5));
    case 5: return Of(dice, foreign, dice.Between(1, 6));
    case 6: return Of(dice, letters, dice.Between(1, 12));
    default: return dice.Of(kWords);
    }
}

QString AnyDigits(Dice& dice, int length)
{
    const int kind = dice.Below(6);
    const int small = dice.Between(0, 31);
    const int year = dice.Between(2005, 2102);
    const QString any = Of(dice, QStringLiteral("0123456789"), dice.Between(1, qMax(length, 1)));
    const QString text = kind == 0   ? any
                         : kind == 1 ? QString(length, QLatin1Char('9'))
                         : kind == 2 ? QString::number(year)
                         : kind == 3 ? QString::number(small).rightJustified(2, QLatin1Char('0'))
                                     : QString::number(small);
    return text.left(qMax(length, 1));
}

QString AnyClip(Dice& dice)
{
    const QString text = AnyText(dice);
    switch (dice.Below(4)) {
    case 0: return text + QLatin1String("\r\n") + AnyText(dice);
    case 1: return AnyDigits(dice, 4);
    case 2: return QStringLiteral("-1.5e3");
    default: return text;
    }
}

QString Spelt(const QString& text)
{
    QString spelt;
    for (const QChar character : text) {
        if (character.isPrint() && character.unicode() < 0x250) {
            spelt += character;
        } else {
            spelt += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return QLatin1Char('"') + spelt + QLatin1Char('"');
}

} // namespace zelvia::monkey
