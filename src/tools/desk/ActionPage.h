// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/desk/DeskPage.h"
#include "tools/desk/OutcomeTable.h"

#include <QTimer>

#include <memory>
#include <string>
#include <vector>

class QFormLayout;
class QPlainTextEdit;
class QPushButton;

namespace zelvia
{

/// A page that runs one action: what is chosen above, then what the action would do with that, which is read again
/// after each choice, and the button that has it done.
class ActionPage : public DeskPage
{
    Q_OBJECT

public:
    void Refresh() override;

protected:
    ActionPage(Desk& desk, const QString& heading, const QString& purpose);

    /// What can be chosen.
    QFormLayout& Choices() { return *choices_; }
    /// For a page whose action lists something.
    OutcomeTable& AddTable(const QString& accessibleName);
    /// A button of the page's own, in the line of the others.
    void AddButton(QPushButton& button);

    QPushButton& RunButton() { return *run_; }

    /// The words that do it, without options of how to; none while something has yet to be chosen.
    virtual std::vector<std::string> Words() const = 0;
    /// The words that show what it would do; none while something has yet to be chosen.
    virtual std::vector<std::string> LookWords() const;
    /// What has yet to be chosen.
    virtual QString Missing() const { return {}; }
    /// What is said after a run that has said nothing itself.
    virtual QString Success() const { return tr("Fatto."); }
    /// What has been read is to be shown.
    virtual void Show(const ToolOutcome& outcome);
    /// True when there is something to do after that was read.
    virtual bool MayRun(const ToolOutcome& shown) const { return shown.status == kDone; }
    /// True when what there is to do has to be read again once something was done.
    virtual bool LooksAgain() const { return false; }

    /// Something else was chosen: it is read again once there is a pause.
    void Choose();
    /// Reads it now.
    void Look();
    /// The run button follows what was chosen from that which was read.
    void UpdateRun();
    /// Does something whatever was shown, and says afterwards how it went.
    void Run(const std::vector<std::string>& words);

    /// What an action has said, or that it was stopped.
    static QString ToldOf(const ToolOutcome& outcome);
    /// What is said below, after the outcome of the last run.
    void Say(const QString& text, bool failed);

    void showEvent(QShowEvent* event) override;

private:
    void RunAsShown();
    void StartRun(ToolRunner::Task task, const std::shared_ptr<bool>& changed);
    void OrderTab();
    void Looked(const ToolOutcome& outcome);
    void Ended(const ToolOutcome& outcome, bool changed);

    QFormLayout* choices_;
    QPlainTextEdit* notes_;
    QPushButton* look_;
    QPushButton* run_;
    QHBoxLayout* buttons_;
    OutcomeTable* table_ = nullptr;
    QTimer pause_;
    ToolOutcome shown_;
    QString result_;     ///< What the last run has said, until something else is chosen.
    bool fresh_ = false; ///< True when what is shown belongs to what is chosen.
    bool done_ = false;  ///< True after a run, until something else is chosen.
};

} // namespace zelvia
