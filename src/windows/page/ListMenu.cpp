// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/ListMenu.h"

#include "core/RunTimeError.h"
#include "toolkit/Menu.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

ListMenu::ListMenu(frmMain& page) : QMenu(&page), page_(page)
{
    setObjectName(QStringLiteral("mnuCancelladallaLista"));
    setTitle(QStringLiteral("&Cancella dalla Lista"));
    const auto leaveNewRoute = [this] {
        if (page_.Route().NewTyped()) {
            page_.Route().Leave();
        }
    };
    // The description takes the focus in any case, and the route's box must not close after it.
    const auto leaveRoute = [this] { page_.Route().Leave(); };
    FillMenu(
        *this,
        {{"mnuCancella", "&Cancella", [this] { mnuCancella_Click(); }},
         {"mnuListaWOrdinata", "&Tempi", [this] { page_.mnuListaWOrdinata_Click(); }, {}, leaveNewRoute},
         {"mnuDescrizionePercorso", "&Descrizione", [this] { page_.mnuDescrizionePercorso_Click(); }, {}, leaveRoute}},
        MenuKind::PopUp);
}

void ListMenu::ShowRouteEntries(bool visible)
{
    for (const char* name : {"mnuListaWOrdinata", "mnuDescrizionePercorso"}) {
        findChild<QAction*>(QLatin1String(name))->setVisible(visible);
    }
}

void ListMenu::mnuCancella_Click()
{
    Trap("mnuCancella - ERRORE : ", [this] {
        const int number = page_.ListaAperta.value();
        constexpr int splits = 9;
        if (number >= 1 && number <= 8) {
            page_.Field(static_cast<SelectionList>(number)).RemoveSelected();
        } else if (number == splits && page_.lstListaKM->ListIndex() >= 0) {
            page_.lstListaKM->RemoveItem(page_.lstListaKM->ListIndex());
        }
        Module1::FileModificato = 1;
    });
}

void ListMenu::OnListMouseUp(Qt::MouseButton button, const QPoint& position, bool ofRoutes)
{
    ShowRouteEntries(ofRoutes && button == Qt::RightButton);
    if (button == Qt::RightButton) {
        OpenPopUp(*this, position);
        ShowRouteEntries(false);
    }
}

} // namespace zelvia
