// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/FrmInfo.h"

#include "core/Files.h"
#include "windows/page/PageArt.h"

#include <QFontMetricsF>
#include <QPainter>

namespace zelvia
{
namespace
{

constexpr QSize kSize{460, 388};
constexpr int kRuleTop = 116;
constexpr int kLineTop = 128;
constexpr int kLineStep = 24;

QString DataFolder()
{
    return QString::fromStdString(NativePath(ProgramFolder()).string());
}

/// The text under the name: the version, the licence, and where the diaries are kept.
QStringList Facts()
{
    return {QStringLiteral("Versione " ZELVIA_VERSION), QStringLiteral("Licenza GNU GPL, versione 3 o successiva"),
            QStringLiteral("I dati sono in ") + DataFolder()};
}

void DrawTitle(QPainter& painter, const QRectF& area)
{
    painter.setFont(PrintFont(44, true));
    painter.setPen(Ink::PrintDark);
    painter.drawText(QRectF(0, 0, area.width(), 64), Qt::AlignCenter, QStringLiteral("Zelvia"));
    painter.setFont(PrintFont(17));
    painter.setPen(Ink::Accent);
    painter.drawText(QRectF(0, 68, area.width(), 28), Qt::AlignHCenter | Qt::AlignTop,
                     QStringLiteral("il diario di chi corre"));
    painter.fillRect(QRectF(0, kRuleTop, area.width(), 1), Ink::Rule);
    painter.setFont(PrintFont(15));
    painter.setPen(Ink::Print);
    const QFontMetricsF metrics(painter.font());
    int top = kLineTop;
    for (const QString& fact : Facts()) {
        painter.drawText(QRectF(0, top, area.width(), kLineStep), Qt::AlignHCenter | Qt::AlignVCenter,
                         metrics.elidedText(fact, Qt::ElideMiddle, area.width()));
        top += kLineStep;
    }
}

} // namespace

frmInfo::frmInfo()
    : Form(QStringLiteral("frmInfo")), pctInfo(new Picture(this, QStringLiteral("pctInfo"), DrawTitle)),
      Picture1(new Picture(this, QStringLiteral("Picture1"), DrawShoe)),
      cmdOK(new Button(this, QStringLiteral("cmdOK"), "O.K."))
{
    setWindowTitle(QStringLiteral("Informazioni su Zelvia"));
    setAutoFillBackground(true);
    setFixedSize(kSize);
    pctInfo->setGeometry(30, 98, 400, 210);
    pctInfo->setAccessibleName(QStringLiteral("Zelvia, il diario di chi corre"));
    pctInfo->setAccessibleDescription(Facts().join(QStringLiteral(". ")));
    // A long path is shortened in the picture.
    pctInfo->setToolTip(DataFolder());
    Picture1->setGeometry(188, 16, 84, 84);
    Picture1->setAccessibleName(QStringLiteral("Una scarpa da corsa"));
    cmdOK->setGeometry(180, 328, 100, 34);
    cmdOK->setFont(PrintFont(15));
    cmdOK->Click = [this] { Unload(); };
}

} // namespace zelvia
