// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What comes to the page, and its reading.
#include "tools/desk/ImportColumns.h"
#include "tools/desk/ImportPage.h"
#include "tools/desk/PathField.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace zelvia
{

std::vector<std::string> LocalFiles(const QMimeData& data)
{
    std::vector<std::string> files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            files.push_back(url.toLocalFile().toStdString());
        }
    }
    return files;
}

void ImportPage::dragEnterEvent(QDragEnterEvent* event)
{
    if (!LocalFiles(*event->mimeData()).empty()) {
        event->acceptProposedAction();
    }
}

void ImportPage::dropEvent(QDropEvent* event)
{
    Add(LocalFiles(*event->mimeData()));
    event->acceptProposedAction();
}

void ImportPage::ChooseFiles()
{
    QFileDialog dialog(this, tr("Scegliere i file da importare"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters({tr("Attività e tabelle (*.fit *.FIT *.tcx *.TCX *.gpx *.GPX *.csv *.CSV *.tsv *.txt)"),
                           tr("Tutti i file (*)")});
    if (dialog.exec() == QDialog::Accepted) {
        std::vector<std::string> names;
        for (const QString& name : dialog.selectedFiles()) {
            names.push_back(name.toStdString());
        }
        Add(names);
    }
}

void ImportPage::ChooseFolder()
{
    const QString folder = AskForFolder(*this, tr("Scegliere la cartella da importare"));
    if (!folder.isEmpty()) {
        Add({folder.toStdString()});
    }
}

void ImportPage::Clear()
{
    if (reading_) {
        OnDesk().Runner().Cancel();
    }
    waiting_.clear();
    wanted_.reset();
    model_->Clear();
    columns_->Clear();
    Say({});
    ++comparisons_; // What is being looked at is no longer there.
    ShowState();
}

void ImportPage::Add(const std::vector<std::string>& names)
{
    waiting_.insert(waiting_.end(), names.begin(), names.end());
    if (reading_ && !names.empty()) {
        Say(tr("I file aggiunti adesso vengono letti dopo quelli di prima."));
        return;
    }
    Say({});
    if (!waiting_.empty()) {
        Read();
    }
}

ImportRules ImportPage::Rules() const
{
    ImportRules rules;
    rules.proposal.clock = clock_->currentIndex() == 0 ? RunClock::Elapsed : RunClock::Moving;
    if (zone_->currentIndex() > 0) {
        rules.proposal.offset = zone_->currentData().toInt();
    }
    rules.columns = columns_->Columns();
    return rules;
}

void ImportPage::Read()
{
    std::set<std::string> known;
    for (const Candidate& candidate : model_->Rows()) {
        known.insert(candidate.file);
    }
    reading_ = std::make_shared<ImportReading>(std::exchange(waiting_, {}), std::move(known), Rules());
    fetching_.start();
    ShowState();
    OnDesk().Runner().Run(
        ToolRunner::Kind::Reads, *this, [reading = reading_](Terminal& terminal) { return reading->Run(terminal); },
        [this, reading = reading_](const ToolOutcome& outcome) {
            if (reading == reading_) {
                EndReading(outcome);
            }
        });
}

void ImportPage::FetchFound()
{
    std::vector<Candidate> found = reading_->TakeFound();
    for (const Candidate& candidate : found) {
        columns_->Ask(candidate.unknown);
    }
    model_->Append(std::move(found));
    const auto& rows = model_->Rows();
    const auto first = std::find_if_not(rows.begin(), rows.end(), IsUnreadable);
    if (table_->Current() < 0 && first != rows.end()) {
        table_->selectRow(static_cast<int>(first - rows.begin()));
    }
}

void ImportPage::EndReading(const ToolOutcome& outcome)
{
    fetching_.stop();
    FetchFound();
    const ImportReading::Progress far = std::exchange(reading_, nullptr)->HowFar();
    if (outcome.cancelled) {
        waiting_.clear();
        Say(tr("Lettura fermata: letti %1 file su %2.").arg(far.done).arg(far.files));
    } else {
        Say(outcome.status != kDone ? outcome.told : QString(), outcome.status != kDone);
    }
    if (std::exchange(outdated_, false)) {
        ReadTablesAgain();
    } else if (waiting_.empty()) {
        Compare();
    } else {
        Read();
    }
}

/// The answers change what a table holds.
void ImportPage::ReadTablesAgain()
{
    if (reading_) {
        outdated_ = true;
        return;
    }
    std::set<std::string> tables;
    for (const Candidate& candidate : model_->Rows()) {
        if (IsTable(candidate.file)) {
            tables.insert(candidate.file);
        }
    }
    model_->DropTables();
    Add({tables.begin(), tables.end()});
}

} // namespace zelvia
