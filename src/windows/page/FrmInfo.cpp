// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/FrmInfo.h"

#include "windows/page/PageArt.h"

#include <QPainter>

namespace zelvia
{
namespace
{

void DrawTitle(QPainter& painter, const QRectF& area)
{
    painter.setFont(PrintFont(44, true));
    painter.setPen(Ink::PrintDark);
    painter.drawText(area.adjusted(0, 0, 0, -46), Qt::AlignCenter, QStringLiteral("Zelvia"));
    painter.setFont(PrintFont(17));
    painter.setPen(Ink::Accent);
    painter.drawText(area.adjusted(0, 74, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                     QStringLiteral("il diario di chi corre"));
}

} // namespace

frmInfo::frmInfo()
    : Form(QStringLiteral("frmInfo")), pctInfo(new Picture(this, QStringLiteral("pctInfo"), DrawTitle)),
      Picture1(new Picture(this, QStringLiteral("Picture1"), DrawShoe)),
      cmdOK(new Button(this, QStringLiteral("cmdOK"), "O.K."))
{
    setWindowTitle(QStringLiteral("Informazioni su Zelvia"));
    setPalette(PagePalette());
    setAutoFillBackground(true);
    setFixedSize(380, 250);
    pctInfo->setGeometry(130, 30, 220, 130);
    pctInfo->setAccessibleName(QStringLiteral("Zelvia, il diario di chi corre"));
    Picture1->setGeometry(30, 45, 90, 90);
    Picture1->setAccessibleName(QStringLiteral("Una scarpa da corsa"));
    cmdOK->setGeometry(140, 190, 100, 34);
    cmdOK->setFont(PrintFont(15));
    cmdOK->Click = [this] { Unload(); };
}

} // namespace zelvia
