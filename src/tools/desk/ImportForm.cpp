// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ImportForm.h"

#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"
#include "tools/exchange/CellTexts.h"
#include "tools/strumenti/ImportTexts.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>
#include <utility>

namespace zelvia
{
namespace
{

constexpr int kLastEnd = 25 * 3600 - 1; ///< 24:59:59, the latest that the page takes.

QDate DateOf(CalendarDate date)
{
    return {date.Year().value(), date.Month().value(), date.Day().value()};
}

QString ClockOf(int seconds)
{
    return QString::fromStdString(ClockText(seconds));
}

/// True while the runner is typing there.
bool IsTyping(const QLineEdit& edit)
{
    return edit.hasFocus() && edit.isModified();
}

QString SourceText(const Candidate& candidate)
{
    if (!candidate.activity) {
        return {};
    }
    switch (candidate.proposal.source) {
    case ClockSource::File: return ImportForm::tr("L'ora è quella dell'orologio, scritta nel file.");
    case ClockSource::Given: return ImportForm::tr("L'ora è quella del fuso scelto.");
    case ClockSource::Computer: break;
    }
    return ImportForm::tr("L'ora è quella del computer in quel momento: il file dice solo l'ora UTC.");
}

/// What a field of a day says to the runner.
QString CellText(const RecordGiorno& day, DayColumn column)
{
    switch (column) {
    case DayColumn::Km: return QString::fromStdString(DistanceText(MetresOf(day)));
    case DayColumn::Time: return EndOf(day) > StartOf(day) ? ClockOf(EndOf(day) - StartOf(day)) : QString();
    default: return QString::fromStdString(CellOf(day, column));
    }
}

} // namespace

void ImportForm::Say(const std::function<void(DayCorrections&)>& said)
{
    if (filling_ || row_ < 0) {
        return;
    }
    said(shown_.corrections);
    Q_EMIT Corrected(shown_.corrections);
}

/// The time in a box, which then shows it in full; none, and the old one again, when it is no time.
std::optional<int> ImportForm::Typed(QLineEdit& edit, int effective)
{
    const auto seconds = SecondsOf(edit.text().toStdString(), true);
    if (!seconds) {
        Q_EMIT Refused(tr("«%1» non è un'ora: resta %2.").arg(edit.text(), ClockOf(effective)));
    }
    edit.setText(ClockOf(seconds.value_or(effective)));
    return seconds;
}

/// The end follows: the time taken is the watch's.
void ImportForm::TakeStart()
{
    const int start = StartOf(shown_.result);
    const int end = EndOf(shown_.result);
    if (const auto typed = Typed(*start_, start)) {
        Say([&](DayCorrections& said) {
            said.start = *typed;
            if (end > start) {
                said.end = std::min(*typed + end - start, kLastEnd);
            }
        });
    }
}

void ImportForm::TakeEnd()
{
    const int end = EndOf(shown_.result);
    const auto typed = Typed(*end_, end);
    if (typed && *typed <= StartOf(shown_.result)) {
        Q_EMIT Refused(tr("La fine deve venire dopo l'inizio: resta %1.").arg(ClockOf(end)));
        end_->setText(ClockOf(end));
    } else if (typed) {
        Say([&](DayCorrections& said) { said.end = *typed; });
    }
}

/// End and splits are then those of that clock.
void ImportForm::TakeClock()
{
    const QVariant chosen = clock_->currentData();
    if (!chosen.isValid()) {
        return; // The time that it is already.
    }
    Say([&](DayCorrections& said) {
        said.clock = static_cast<RunClock>(chosen.toInt());
        said.end.reset();
        said.splits.reset();
    });
}

void ImportForm::Show(const Candidate* candidate, int row, const Lists& lists)
{
    const bool again = candidate != nullptr && row == row_;
    setEnabled(candidate != nullptr && !IsUnreadable(*candidate));
    shown_ = candidate != nullptr ? *candidate : Candidate();
    row_ = candidate != nullptr ? row : -1;
    filling_ = true;
    ShowFields(lists, again);
    ShowClock();
    ShowHeld();
    ShowRemarks();
    splits_->Show(shown_.result, shown_.held);
    filling_ = false;
}

void ImportForm::ShowFields(const Lists& lists, bool again)
{
    const RecordGiorno& day = shown_.result;
    if (!again || !day_->hasFocus()) {
        day_->setDate(isEnabled() ? DateOf(shown_.date) : day_->minimumDate());
    }
    for (const auto& [edit, seconds] : {std::pair(start_, StartOf(day)), std::pair(end_, EndOf(day))}) {
        if (!again || !IsTyping(*edit)) {
            edit->setText(EndOf(day) > 0 ? ClockOf(seconds) : QString());
        }
    }
    for (const auto& [box, number] : {std::pair(km_, day.Km), std::pair(metres_, day.Metri)}) {
        if (!again || !box->hasFocus()) {
            box->setValue(number.value());
        }
    }
    const std::tuple<QComboBox*, SelectionList, const Text&> boxes[] = {
        {route_, SelectionList::Percorso, day.Percorso},
        {type_, SelectionList::Tipo, day.Tipo},
        {season_, SelectionList::Stagione, day.Stagione}};
    for (const auto& [box, list, value] : boxes) {
        if (again && IsTyping(*box->lineEdit())) {
            continue;
        }
        const auto entries = lists.find(list);
        box->clear();
        for (const Text& entry : entries != lists.end() ? entries->second : std::vector<Text>()) {
            box->addItem(ToQString(entry));
        }
        box->setEditText(ToQString(value));
    }
}

void ImportForm::ShowClock()
{
    const DayProposal& proposal = shown_.proposal;
    const bool paused = shown_.activity && proposal.elapsed > proposal.moving;
    const RecordGiorno& day = shown_.result;
    const int taken = std::max(EndOf(day) - StartOf(day), 0);
    clock_->clear();
    if (paused) {
        clock_->addItem(tr("%1 con le pause").arg(ClockOf(proposal.elapsed)), static_cast<int>(RunClock::Elapsed));
        clock_->addItem(tr("%1 senza pause").arg(ClockOf(proposal.moving)), static_cast<int>(RunClock::Moving));
    }
    if (!paused || (taken != proposal.elapsed && taken != proposal.moving)) {
        clock_->addItem(CellText(day, DayColumn::Time));
        clock_->setCurrentIndex(clock_->count() - 1);
    } else {
        clock_->setCurrentIndex(taken == proposal.moving ? 1 : 0);
    }
    clock_->setEnabled(paused);
}

void ImportForm::ShowHeld()
{
    for (const auto& [column, line] : lines_) {
        const QString held = CellText(shown_.held, column);
        const bool empty = held.isEmpty();
        const bool differs = !empty && held != CellText(shown_.result, column);
        line.held->setToolTip(held);
        line.held->setText(empty ? QStringLiteral("–") : differs ? QStringLiteral("≠ ") + held : held);
        QPalette inks = palette();
        inks.setColor(QPalette::WindowText, differs ? Ink::Accent : Ink::Faded);
        line.held->setPalette(inks);
        line.field->setAccessibleDescription(empty ? tr("Nel diario adesso niente")
                                                   : tr("Nel diario adesso %1").arg(held));
    }
}

void ImportForm::ShowRemarks()
{
    QStringList remarks;
    if (row_ >= 0) {
        remarks << SourceText(shown_);
        for (const std::string& remark : RemarksOn(shown_)) {
            QString text = QString::fromStdString(remark);
            text[0] = text.at(0).toUpper();
            remarks << text + QLatin1Char('.');
        }
        QStringList lost;
        for (const std::string& field : LostFields(shown_.held, shown_.result)) {
            lost << QString::fromStdString(field);
        }
        if (!lost.isEmpty()) {
            remarks << tr("Se viene scritta, nel giorno sostituisce: %1.").arg(lost.join(QStringLiteral(", ")));
        }
    }
    remarks.removeAll(QString());
    remarks_->setText(remarks.join(QLatin1Char(' ')));
    remarks_->setVisible(!remarks.isEmpty());
    back_->setEnabled(row_ >= 0 && shown_.corrections != DayCorrections());
}

} // namespace zelvia
