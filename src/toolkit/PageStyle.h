// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace zelvia
{

/// Qt's Fusion style, but for the icon that a menu bar asks for at its creation: looking for it in the themes would
/// load every plugin for pictures at the start.
class PageStyle : public QProxyStyle
{
    Q_OBJECT

public:
    PageStyle();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace zelvia
