// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/desk/Desk.h"

#include <QString>
#include <QVBoxLayout>
#include <QWidget>

namespace zelvia
{

/// A page of the window: its heading, what it is for, and below that whatever the page puts into Body.
class DeskPage : public QWidget
{
    Q_OBJECT

public:
    DeskPage(Desk& desk, const QString& heading, const QString& purpose);

    /// Reads anew what the page shows: when it comes up, and when another folder or diary is chosen while it is up.
    virtual void Refresh() = 0;

protected:
    Desk& OnDesk() const { return desk_; }
    QVBoxLayout& Body() { return *body_; }

private:
    Desk& desk_;
    QVBoxLayout* body_;
};

} // namespace zelvia
