// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/BoxGrid.h"

#include "core/BoundedArray.h"
#include "core/MessageBox.h"
#include "toolkit/FocusController.h"
#include "toolkit/Keys.h"
#include "toolkit/QtText.h"

#include <QKeyEvent>

#include <algorithm>

namespace zelvia
{
namespace
{

/// The accessible name of a column's boxes, which that of the row may follow.
QString SpokenColumn(const GridColumn& column)
{
    const QString spoken = ToQString(column.spoken);
    return spoken.left(1).toUpper() + spoken.mid(1);
}

} // namespace

QString Indexed(const char* name, int index)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

Label* MakeLabel(QWidget* parent, const QString& name, TextView caption, const QRect& place, const QFont& font)
{
    auto* label = new Label(parent, name);
    label->SetCaption(caption);
    label->setGeometry(place);
    label->setFont(font);
    return label;
}

TextBox* MakeBox(QWidget* parent, const GridColumn& column, const GridLook& look, int row)
{
    const QString name = look.rows == 1 ? QString::fromLatin1(column.name) : Indexed(column.name, row);
    auto* box = new TextBox(parent, name, column.maxLength);
    box->setGeometry(column.left, look.top + (row - 1) * look.step, column.width, look.height);
    box->setFont(look.font);
    box->setTextMargins(look.margins);
    box->setAccessibleName(SpokenColumn(column));
    if (column.digitsOnly && look.digitsRight) {
        box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    return box;
}

void BoxGrid::Build(QWidget* parent, const GridLook& look)
{
    rows_ = look.rows;
    for (int row = 1; row <= rows_; ++row) {
        for (const GridColumn& column : columns_) {
            boxes_.push_back(MakeBox(parent, column, look, row));
        }
    }
    Visit([this](int column, int row) { Connect(column, row); });
    returnsTo_ = boxes_.front();
}

TextBox* BoxGrid::Box(int column, int row) const
{
    const std::size_t place = OffsetWithin(row, 1, rows_) * columns_.size() + OffsetWithin(column, 0, Columns() - 1);
    return boxes_[place];
}

void BoxGrid::Store(int column, int row, int place) const
{
    SetCell(Column(column).cell(place), Content(column, row), Column(column).format);
}

bool BoxGrid::Holds(int column, int row, int place) const
{
    return CellHolds(Column(column).cell(place), Content(column, row), Column(column).format);
}

void BoxGrid::Speak(int rowsBefore)
{
    Visit([&](int column, int row) {
        Box(column, row)
            ->setAccessibleName(QStringLiteral("%1, riga %2").arg(SpokenColumn(Column(column))).arg(rowsBefore + row));
    });
}

void BoxGrid::Connect(int column, int row)
{
    TextBox& box = *Box(column, row);
    box.Click = Click;
    box.Change = Edited;
    box.KeyPress = [this, column, row](int& keyAscii) {
        if (Edited) {
            Edited();
        }
        if (Column(column).digitsOnly) {
            ThrowAwayNonDigit(keyAscii);
        }
        if (keyAscii == kEnter && (!Column(column).testedOnEnter || LimitHolds(column, row))) {
            MoveOn(column, row);
        }
    };
    box.Validate = [this, column, row] { return !Leave(column, row); };
    box.GotFocus = [this, column, row] {
        returnsTo_ = Box(column, row);
        if (column == signs.column) {
            ShowSigns(row, true);
        }
    };
}

bool BoxGrid::LimitHolds(int column, int row) const
{
    const Limit& limit = Column(column).limit;
    if (limit.highest == 0 || Number(column, row) <= limit.highest) {
        return true;
    }
    MsgBox(*limit.message);
    return false;
}

/// Tests and formats a box that is being left; false when the focus has to stay.
bool BoxGrid::Leave(int column, int row) const
{
    if (!LimitHolds(column, row)) {
        return false;
    }
    TextBox& box = *Box(column, row);
    const Text text = box.Content();
    if (const Text formatted = Formatted(text, Column(column).format); formatted != text) {
        box.SetContent(formatted);
    }
    if (column == signs.column && Number(column, row) == 0) {
        ShowSigns(row, false);
    }
    return true;
}

void BoxGrid::MoveOn(int column, int row) const
{
    if (column + 1 < Columns()) {
        Box(column + 1, row)->SetFocus();
    } else if (row < rows_) {
        Box(0, row + 1)->SetFocus();
    } else if (LastEntered) {
        LastEntered();
    }
}

bool BoxGrid::MoveByKey(const QKeyEvent& key) const
{
    const auto focused = std::find(boxes_.begin(), boxes_.end(), FocusController::Instance().Current());
    const bool inside = focused != boxes_.end();
    if (key.key() == Qt::Key_F6 && key.modifiers() == Qt::NoModifier) {
        inside ? MoveBeside() : returnsTo_->SetFocus();
        return true;
    }
    return inside && MoveInColumn(static_cast<int>(focused - boxes_.begin()), key);
}

void BoxGrid::MoveBeside() const
{
    const auto takes = [](const Control* control) { return control->Visible() && control->Widget().isEnabled(); };
    if (const auto next = std::find_if(beside.begin(), beside.end(), takes); next != beside.end()) {
        (*next)->SetFocus();
    }
}

bool BoxGrid::MoveInColumn(int place, const QKeyEvent& key) const
{
    const int row = place / Columns() + 1;
    int target = 0;
    switch (Chord(key).toCombined()) {
    case Qt::Key_Up: target = std::max(row - 1, 1); break;
    case Qt::Key_Down: target = std::min(row + 1, rows_); break;
    case (Qt::CTRL | Qt::Key_Home).toCombined(): target = 1; break;
    case (Qt::CTRL | Qt::Key_End).toCombined(): target = rows_; break;
    default: return false;
    }
    if (target != row) {
        Box(place % Columns(), target)->SetFocus();
    }
    return true;
}

} // namespace zelvia
