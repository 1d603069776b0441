// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/SelectionField.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "toolkit/Keys.h"
#include "toolkit/QtText.h"
#include "windows/page/FrmMain.h"
#include "windows/page/PaperSheet.h"

#include <algorithm>

namespace zelvia
{

using namespace Module1;

namespace
{

Text Title(TextView control, TextView name)
{
    return Text(control) + Text(name) + " - ERRORE : ";
}

} // namespace

SelectionField::SelectionField(frmMain& page, SelectionList list)
    : page_(page), controls_(page.ListField(list)), list_(list), name_(ListName(list))
{
    Connect();
}

void SelectionField::Connect()
{
    const auto trapped = [this](TextView control, void (SelectionField::*handler)()) {
        return [this, title = Title(control, name_), handler] { Trap(title, [&] { (this->*handler)(); }); };
    };
    controls_.lblImmis->OnClick(trapped("lblImmis", &SelectionField::Open));
    controls_.lbl->OnClick(trapped("lbl", &SelectionField::LeaveBox), KeyReach::MouseOnly);
    controls_.txt->LostFocus = trapped("txt", &SelectionField::Close);
    controls_.txt->Click = trapped("txt", &SelectionField::LeaveBox);
    controls_.txt->Change = [this] { MarkTyped(); };
    controls_.txt->KeyPress = [leave = controls_.txt->Click](int& keyAscii) {
        if (keyAscii == kEnter || keyAscii == kEscape) {
            leave();
        }
    };
    controls_.lst->GotFocus = trapped("lst", &SelectionField::OnListGotFocus);
    controls_.lst->Click = trapped("lst", &SelectionField::OnListClick);
    controls_.lst->DblClick = trapped("lst", &SelectionField::OnListDblClick);
    // The key handler of the temperatures goes by no name of its own.
    const Text keyTitle = list_ == SelectionList::Temperatura ? Text(kBareTitle) : Title("lst", name_);
    controls_.lst->KeyPress = [this, keyTitle](int keyAscii) { Trap(keyTitle, [&] { OnListKeyPress(keyAscii); }); };
    controls_.lst->MouseUp = [this](Qt::MouseButton button, const QPoint& position) {
        Trap(Title("lst", name_),
             [&] { page_.mnuCancelladallaLista->OnListMouseUp(button, position, list_ == SelectionList::Percorso); });
    };
}

void SelectionField::Open()
{
    Trap(Title("Immis", name_), [this] {
        page_.FollowInTabOrder(*controls_.lst);
        controls_.txt->SetVisible(true);
        controls_.lst->SetVisible(true);
        FitList();
        const std::vector<Text>& entries = EntriesOf(list_);
        const auto same = [this](const Text& entry) { return SameText(entry, controls_.txt->Content()); };
        MarkAt(std::find_if(entries.begin(), entries.end(), same));
        page_.EnterField(*controls_.txt);
    });
}

void SelectionField::FitList()
{
    const auto row = static_cast<std::size_t>(list_) - 1;
    ListBox& list = *controls_.lst;
    const int entries = std::clamp(list.ListCount(), 1, PageLayout::kListEntries);
    const PaperSheet& sheet = *page_.sheet;
    const int height = list.HeightOf(entries);
    const QRect place = PageLayout::List(ListRows()[row].row, qRound(height / sheet.Factor()));
    QRect shown = sheet.Place(place);
    place.top() > PageLayout::RowTop(ListRows()[row].row) ? shown.setHeight(height)
                                                          : shown.setTop(shown.bottom() + 1 - height);
    list.setGeometry(shown);
}

/// Marks an entry of the list, or none at its end. The box, which has the focus, reports it to screen readers.
void SelectionField::MarkAt(std::vector<Text>::const_iterator entry)
{
    const std::vector<Text>& entries = EntriesOf(list_);
    const bool marks = entry != entries.end();
    controls_.lst->Mark(marks ? static_cast<int>(entry - entries.begin()) : -1);
    const QString summary = controls_.lst->Summary();
    controls_.txt->setAccessibleDescription(marks ? summary + QStringLiteral("; ") + ToQString(*entry) : summary);
}

void SelectionField::MarkTyped()
{
    const std::vector<Text>& entries = EntriesOf(list_);
    const Text typed = controls_.txt->Content();
    const auto begins = [&typed](const Text& entry) { return SameText(Text(Left(entry, Len(typed))), typed); };
    MarkAt(typed.empty() ? entries.end() : std::find_if(entries.begin(), entries.end(), begins));
}

void SelectionField::EnterList(int step)
{
    ListBox& list = *controls_.lst;
    if (list.ListCount() == 0) {
        return;
    }
    const int marked = list.currentRow();
    int row = marked;
    if (marked < 0) {
        row = step > 0 ? 0 : list.ListCount() - 1;
    } else if (list.List(marked) == controls_.txt->Content()) {
        row = std::clamp(marked + step, 0, list.ListCount() - 1);
    }
    controls_.txt->SetContent(list.List(row));
    list.Choose(row);
}

void SelectionField::Close()
{
    controls_.txt->SetVisible(false);
    controls_.lst->SetVisible(false);
    page_.ListaAperta = 0;
    const i16 listed = AggiungiLista(*controls_.txt);
    const Text text = controls_.txt->Content();
    controls_.lblImmis->SetCaption(text);
    OnClosed(text, listed);
}

i16 SelectionField::AggiungiLista(TextBox& txt)
{
    i16 listed = 0;
    Trap("AggiungiLista - ERRORE : ", [&] {
        const Text text = Trim(txt.Content());
        if (text != txt.Content()) {
            txt.SetContent(text);
        }
        if (!CampoNonVuoto(text)) {
            return;
        }
        listed = Holds(EntriesOf(list_), text) ? 1 : 0;
        if (listed == 0) {
            EntriesOf(list_).push_back(text);
            controls_.lst->AddItem(text);
            FileModificato = 1;
        }
    });
    return listed;
}

void SelectionField::RemoveSelected()
{
    const int selected = controls_.lst->ListIndex();
    if (selected >= 0) {
        EntriesOf(list_).erase(EntriesOf(list_).begin() + selected);
        controls_.lst->RemoveItem(selected);
        controls_.txt->SetContent({});
        FitList();
    }
}

void SelectionField::OnClosed(const Text& /*text*/, i16 /*listed*/)
{
    page_.CursoreNormale();
}

void SelectionField::OnListGotFocus()
{
    controls_.txt->SetVisible(true);
    controls_.lst->SetVisible(true);
    page_.ListaAperta = static_cast<int>(list_);
    page_.CursoreMano();
}

void SelectionField::OnListClick()
{
    controls_.lst->viewport()->update();
    OnChosen(controls_.lst->List(controls_.lst->ListIndex()));
}

void SelectionField::OnListDblClick()
{
    const Text entry = controls_.lst->List(controls_.lst->ListIndex());
    controls_.txt->SetContent(entry);
    OnTaken(entry);
    controls_.txt->SetFocus();
    page_.FocusSink().SetFocus();
}

void SelectionField::OnListKeyPress(int keyAscii)
{
    if (keyAscii == kEnter && controls_.lst->ListIndex() >= 0) {
        controls_.lst->DblClick();
    } else if (keyAscii == kEnter || keyAscii == kEscape) {
        // With nothing selected Enter too closes the field on the text of its box.
        controls_.txt->SetFocus();
        controls_.txt->Click();
    }
}

void SelectionField::LeaveBox()
{
    page_.FocusSink().SetFocus();
}

} // namespace zelvia
