// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageKeys.h"

#include "toolkit/Events.h"
#include "toolkit/FocusController.h"
#include "toolkit/Keys.h"
#include "windows/page/FrmMain.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenuBar>

#include <algorithm>

namespace zelvia
{
namespace
{

/// The ranking, and the notes when all are open.
void CloseOverlays(frmMain& page)
{
    page.lstListaOrdinata_LostFocus();
    if (page.NoteAperte == 1) {
        page.mnuNote_Click();
    }
}

QRect PlaceOn(const QWidget& page, const QWidget& widget)
{
    return {widget.mapTo(&page, QPoint()), widget.size()};
}

} // namespace

PageKeys::PageKeys(frmMain& page) : page_(page)
{
    page_.cmdListaKM->installEventFilter(this);
    // Until a field has been open, Tab starts at the top of the page.
    page_.FollowInTabOrder(*page_.lblNumGare);
    ListBox& ranking = *page_.lstListaOrdinata;
    ranking.GotFocus = [this, &ranking] { page_.FollowInTabOrder(ranking); };
    ranking.LostFocus = [this] { page_.lstListaOrdinata_LostFocus(); };
    ranking.KeyPress = [this](int keyAscii) {
        if (keyAscii == kEscape) {
            page_.lstListaOrdinata_LostFocus();
        }
    };
}

const std::vector<QWidget*>* PageKeys::FieldOf(const QWidget* widget) const
{
    const auto holds = [widget](const std::vector<QWidget*>& field) {
        return std::find(field.begin(), field.end(), widget) != field.end();
    };
    const auto found = std::find_if(page_.fields.begin(), page_.fields.end(), holds);
    return found != page_.fields.end() ? &*found : nullptr;
}

/// The list of a field that has the focus, or null.
ListBox* PageKeys::FocusedList() const
{
    for (const ListControls& field : page_.listFields) {
        if (field.lst->hasFocus()) {
            return field.lst;
        }
    }
    return nullptr;
}

bool PageKeys::MoveFocus(bool next, const std::function<bool()>& step)
{
    ListBox* list = FocusedList();
    if (list != nullptr && !next) {
        return step();
    }
    const QWidget* start = page_.focusWidget();
    const std::vector<QWidget*>* left = dynamic_cast<const Label*>(start) == nullptr ? FieldOf(start) : nullptr;
    if (list != nullptr) {
        Fire([list] { list->KeyPress(list->ListIndex() >= 0 ? kEnter : kEscape); });
        FocusController::Instance().Flush();
    }
    const ListBox& ranking = *page_.lstListaOrdinata;
    // A ranking that has the focus closes when it is left.
    const bool covers = ranking.isVisible() && start != &ranking;
    const auto underRanking = [&](const QWidget* widget) {
        return covers && widget != &ranking && PlaceOn(page_, ranking).intersects(PlaceOn(page_, *widget));
    };
    const auto covered = [](const std::vector<QWidget*>& field, const QWidget* widget) {
        return std::any_of(field.begin(), field.end(), [widget](const QWidget* other) {
            return other != widget && other->isVisible() && dynamic_cast<const TextBox*>(other) != nullptr;
        });
    };
    for (std::size_t moves = 0; moves < page_.fields.size(); ++moves) {
        if (!step()) {
            return false;
        }
        if (underRanking(page_.focusWidget())) {
            continue;
        }
        const std::vector<QWidget*>* field = FieldOf(page_.focusWidget());
        if (field == nullptr || (field != left && !covered(*field, page_.focusWidget()))) {
            break;
        }
    }
    return true;
}

void PageKeys::EnterMenuBar()
{
    auto* bar = page_.findChild<QMenuBar*>();
    bar->setActiveAction(bar->actions().front());
}

bool PageKeys::EnterList(int step)
{
    for (const SelectionList list : kAllLists) {
        if (page_.ListField(list).txt->hasFocus()) {
            page_.Field(list).EnterList(step);
            return true;
        }
    }
    return false;
}

bool PageKeys::Handle(const QKeyEvent& key)
{
    switch (Chord(key).toCombined()) {
    case Qt::Key_Escape: Fire([this] { CloseOverlays(page_); }); return true;
    case Qt::Key_PageUp: page_.upGiorno->StepDown(1); return true;
    case Qt::Key_PageDown: page_.upGiorno->StepUp(1); return true;
    case (Qt::CTRL | Qt::Key_PageUp).toCombined(): page_.upMese->StepDown(1); return true;
    case (Qt::CTRL | Qt::Key_PageDown).toCombined(): page_.upMese->StepUp(1); return true;
    case Qt::Key_Up: return EnterList(-1) || page_.Notes().MoveAlong(-1);
    case Qt::Key_Down: return EnterList(1) || page_.Notes().MoveAlong(1);
    case Qt::Key_F10: EnterMenuBar(); return true;
    default: return false;
    }
}

/// The keys of the splits' list, while the button of their group has the focus.
bool PageKeys::HandleSplitKey(const QKeyEvent& key)
{
    switch (Chord(key).toCombined()) {
    case (Qt::CTRL | Qt::Key_Up).toCombined(): page_.TimesPerKm().ChooseLine(-1); return true;
    case (Qt::CTRL | Qt::Key_Down).toCombined(): page_.TimesPerKm().ChooseLine(1); return true;
    case Qt::Key_Delete: Fire([this] { page_.TimesPerKm().RemoveLine(); }); return true;
    default: return false;
    }
}

bool PageKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && HandleSplitKey(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        Fire([this] { page_.TimesPerKm().OpenMenu(); });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zelvia
