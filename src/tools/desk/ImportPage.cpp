// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ImportPage.h"

#include "toolkit/PagePalette.h"
#include "tools/desk/DeskPages.h"
#include "tools/desk/ImportColumns.h"
#include "tools/desk/ImportComparison.h"
#include "tools/strumenti/ImportTexts.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace zelvia
{

ImportPage::ImportPage(Desk& desk)
    : DeskPage(
          desk, tr("Dall'orologio"),
          tr("Mette nel diario le corse di un orologio o di un telefono (FIT, TCX, GPX), o i giorni di un foglio di "
             "calcolo (CSV). I file e le cartelle si possono anche trascinare qui.")),
      model_(new ImportModel(this)), table_(new ImportTable(*model_)), form_(new ImportForm),
      columns_(new ImportColumns), zone_(new QComboBox), clock_(new QComboBox), all_(new QCheckBox(tr("&Altri sport"))),
      told_(new QLabel), summary_(new QLabel), again_(new QPushButton(tr("&Riprova"))),
      write_(new QPushButton(tr("Scrivi nel &diario"))), clear_(new QPushButton(tr("S&vuota")))
{
    Build();
    Connect();
    ShowState();
}

ImportPage::~ImportPage() = default;

void ImportPage::Refresh()
{
    Say({});
    Compare();
}

std::shared_ptr<ImportComparison> ImportPage::NewComparison() const
{
    auto comparison = std::make_shared<ImportComparison>();
    comparison->number = comparisons_;
    comparison->options.folder = OnDesk().Folder();
    comparison->options.tsv = true; // What is said is for the runner alone.
    if (!OnDesk().Diary().empty()) {
        comparison->options.diary = OnDesk().Diary();
    }
    comparison->all = all_->isChecked();
    comparison->candidates = model_->Rows();
    return comparison;
}

void ImportPage::Compare()
{
    compared_ = false;
    ++comparisons_;
    if (model_->Rows().empty() || reading_ || writing_) {
        ShowState();
        return;
    }
    const auto comparison = NewComparison();
    comparison->options.rehearsal = true;
    OnDesk().Runner().Run(
        ToolRunner::Kind::Reads, *this, [comparison](Terminal& terminal) { return comparison->Look(terminal); },
        [this, comparison](const ToolOutcome& outcome) { EndComparing(*comparison, outcome); });
}

void ImportPage::EndComparing(const ImportComparison& comparison, const ToolOutcome& outcome)
{
    if (comparison.number != comparisons_) {
        return; // Something was changed since.
    }
    const auto wanted = std::exchange(wanted_, std::nullopt);
    compared_ = outcome.status == kDone && !outcome.cancelled;
    if (compared_) {
        model_->Show(std::vector<Candidate>(comparison.candidates), true);
        lists_ = comparison.lists;
        summary_->setText(QString::fromStdString(ChangesText(comparison.changes)).simplified());
    } else {
        model_->Tell(false);
        Say(outcome.cancelled ? tr("Confronto fermato.") : outcome.told, true);
    }
    failed_ = !compared_;
    ShowState();
    ShowRow(table_->Current());
    if (wanted && compared_ && *wanted == Ticks()) {
        Write();
    } else if (wanted && compared_) {
        Say(tr("Le spunte sono cambiate: guardare e premere di nuovo."), true);
    }
}

/// Zone and clock say how activities become days.
void ImportPage::ProposeAnew()
{
    const ProposalRules rules = Rules().proposal;
    for (int row = 0; row < model_->rowCount(); ++row) {
        Propose(model_->Row(row), rules);
    }
    Compare();
}

/// Of several of a day one can be written.
void ImportPage::Tick(const std::vector<int>& rows, bool wanted)
{
    for (const int row : rows) {
        Candidate& ticked = model_->Row(row);
        if (IsUnreadable(ticked)) {
            continue;
        }
        for (int other = 0; other < model_->rowCount(); ++other) {
            Candidate& candidate = model_->Row(other);
            if (candidate.date == ticked.date && !IsUnreadable(candidate)) {
                candidate.chosen = candidate.chosen.value_or(candidate.written) && !wanted;
            }
        }
        ticked.chosen = wanted;
    }
    Compare();
}

void ImportPage::Correct(const DayCorrections& corrections)
{
    Candidate& candidate = model_->Row(table_->Current());
    if (corrections.date != candidate.corrections.date) {
        candidate.chosen.reset(); // Another day may hold something else.
    }
    candidate.corrections = corrections;
    Propose(candidate, Rules().proposal);
    Say({});
    Compare();
}

void ImportPage::ShowRow(int row)
{
    if (row < 0 || row >= model_->rowCount()) {
        form_->Show(nullptr, -1, {});
        return;
    }
    const Candidate& candidate = model_->Row(row);
    ImportForm::Lists lists = lists_[candidate.date.Year().value()];
    const auto seasons = FirstEntries(SelectionList::Stagione);
    lists[SelectionList::Stagione] = {seasons.begin(), seasons.end()};
    form_->Show(&candidate, row, lists);
}

std::vector<bool> ImportPage::Ticks() const
{
    std::vector<bool> ticks;
    for (const Candidate& candidate : model_->Rows()) {
        ticks.push_back(candidate.written);
    }
    return ticks;
}

/// A field that was just left may still be looked at.
void ImportPage::AskToWrite()
{
    if (compared_) {
        Write();
    } else {
        wanted_ = Ticks();
    }
}

void ImportPage::Write()
{
    writing_ = true;
    ShowState();
    const auto comparison = NewComparison();
    OnDesk().Runner().Run(
        ToolRunner::Kind::Writes, *this, [comparison](Terminal& terminal) { return comparison->Write(terminal); },
        [this](const ToolOutcome& outcome) { EndWriting(outcome); });
}

void ImportPage::EndWriting(const ToolOutcome& outcome)
{
    writing_ = false;
    for (int row = 0; row < model_->rowCount(); ++row) {
        model_->Row(row).chosen.reset();
    }
    Say(outcome.told, outcome.status != kDone);
    Compare();
    table_->setFocus();
}

void ImportPage::Say(const QString& text, bool failed)
{
    QPalette inks = palette();
    inks.setColor(QPalette::WindowText, failed ? Ink::Accent : Ink::PrintDark);
    told_->setPalette(inks);
    told_->setText(text.trimmed());
    told_->setVisible(!told_->text().isEmpty());
    if (!told_->text().isEmpty()) {
        QAccessibleEvent alert(told_, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void ImportPage::ShowState()
{
    const std::vector<bool> ticks = Ticks();
    failed_ = failed_ && !compared_ && !ticks.empty();
    const bool some = !failed_ && std::find(ticks.begin(), ticks.end(), true) != ticks.end();
    write_->setEnabled(some && !reading_ && !writing_);
    again_->setVisible(failed_);
    clear_->setEnabled((!ticks.empty() || reading_) && !writing_);
    for (QWidget* part : std::initializer_list<QWidget*>{table_, form_, zone_, clock_, all_, columns_}) {
        part->setEnabled(!writing_);
    }
    if (!compared_) {
        summary_->setText(ticks.empty() ? tr("Ancora nessun file.") : tr("Attività: %1").arg(ticks.size()));
    }
}

DeskPage* MakeImportPage(Desk& desk)
{
    return new ImportPage(desk);
}

} // namespace zelvia
