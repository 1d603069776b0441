// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

namespace zelvia
{

class frmMain;

/// The pop-up of the lists. Two of its entries belong to the route.
class ListMenu : public QMenu
{
public:
    explicit ListMenu(frmMain& page);

    void mnuCancella_Click();
    /// A button was released over a list: the right one opens the pop-up, for the list of the routes with its entries.
    void OnListMouseUp(Qt::MouseButton button, const QPoint& position, bool ofRoutes);
    /// Shows or hides the entries of the route.
    void ShowRouteEntries(bool visible);

private:
    frmMain& page_;
};

} // namespace zelvia
