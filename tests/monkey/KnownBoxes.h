// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>
#include <QString>

namespace zelvia::monkey
{

class Desk;

/// What has gone before and decides which reports may come.
struct Situation {
    const Desk& desk;
    bool pasted = false;  ///< Something was pasted since the windows of the grids were opened: no limit holds for it.
    bool strange = false; ///< A file name was chosen that no diary can have.
};

/// Empty when the program may show this box in that situation, else what is wrong with it.
QString WrongWith(const QMessageBox& box, const Situation& situation);

/// True for a box that Qt's file dialog brings up on its own account.
bool IsOfDialog(const QMessageBox& box);

} // namespace zelvia::monkey
