// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ActionPage.h"

#include "toolkit/PagePalette.h"
#include "tools/strumenti/Actions.h"

#include <QAccessible>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>

#include <chrono>
#include <sstream>
#include <utility>

namespace zelvia
{

ActionPage::ActionPage(Desk& desk, const QString& heading, const QString& purpose)
    : DeskPage(desk, heading, purpose), choices_(new QFormLayout), notes_(new QPlainTextEdit),
      look_(new QPushButton(tr("&Mostra"))), run_(new QPushButton(tr("&Esegui"))), buttons_(new QHBoxLayout)
{
    notes_->setObjectName(QStringLiteral("notes"));
    notes_->setAccessibleName(tr("Che cosa succede"));
    notes_->setReadOnly(true);
    notes_->setTabChangesFocus(true);
    constexpr int lowest = 60;
    notes_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    notes_->setMinimumHeight(lowest);
    notes_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    look_->setObjectName(QStringLiteral("look"));
    look_->setToolTip(tr("Legge di nuovo che cosa c'è da fare, senza cambiare niente"));
    run_->setObjectName(QStringLiteral("run"));
    run_->setToolTip(tr("Fa ciò che è scritto qui sopra"));
    buttons_->addWidget(look_);
    buttons_->addStretch();
    buttons_->addWidget(run_);
    Body().addLayout(choices_);
    Body().addWidget(notes_, 1);
    Body().addLayout(buttons_);
    constexpr std::chrono::milliseconds typing(250);
    pause_.setSingleShot(true);
    pause_.setInterval(typing);
    connect(&pause_, &QTimer::timeout, this, &ActionPage::Look);
    connect(look_, &QPushButton::clicked, this, &ActionPage::Refresh);
    connect(run_, &QPushButton::clicked, this, &ActionPage::RunAsShown);
    UpdateRun();
}

void ActionPage::showEvent(QShowEvent* event)
{
    OrderTab();
    DeskPage::showEvent(event);
}

/// Tab goes as the eye does: what can be chosen is made behind all that stands below it.
void ActionPage::OrderTab()
{
    const auto below = [this](const QWidget* child) {
        return child == table_ || child == notes_ || buttons_->indexOf(child) >= 0;
    };
    QWidget* last = nullptr;
    for (QWidget* child : findChildren<QWidget*>()) {
        const bool within = table_ != nullptr && table_->isAncestorOf(child);
        const bool stop = (child->focusPolicy() & Qt::TabFocus) != 0 && child->focusProxy() == nullptr;
        if (stop && !within && !notes_->isAncestorOf(child) && !below(child)) {
            last = child;
        }
    }
    QWidgetList rest = {table_, notes_};
    for (int i = 0; i < buttons_->count(); ++i) {
        rest << buttons_->itemAt(i)->widget();
    }
    rest.removeAll(nullptr);
    for (QWidget* next : std::as_const(rest)) {
        if (last != nullptr) {
            setTabOrder(last, next);
        }
        last = next;
    }
}

OutcomeTable& ActionPage::AddTable(const QString& accessibleName)
{
    constexpr int share = 3;
    table_ = new OutcomeTable(accessibleName);
    Body().insertWidget(Body().indexOf(notes_), table_, share);
    return *table_;
}

void ActionPage::AddButton(QPushButton& button)
{
    buttons_->insertWidget(buttons_->indexOf(run_), &button);
}

std::vector<std::string> ActionPage::LookWords() const
{
    std::vector<std::string> words = Words();
    if (!words.empty()) {
        words.insert(words.end(), {"--prova", "--tsv"});
    }
    return words;
}

void ActionPage::Refresh()
{
    done_ = false;
    result_.clear();
    Look();
}

void ActionPage::Choose()
{
    done_ = false;
    fresh_ = false;
    result_.clear();
    UpdateRun();
    pause_.start();
}

void ActionPage::Look()
{
    pause_.stop();
    fresh_ = false;
    UpdateRun();
    const std::vector<std::string> words = LookWords();
    if (words.empty()) {
        Say(Missing(), false);
        return;
    }
    OnDesk().Runner().Run(ToolRunner::Kind::Reads, *this, OnDesk().Command(words),
                          [this](const ToolOutcome& outcome) { Looked(outcome); });
}

void ActionPage::Looked(const ToolOutcome& outcome)
{
    shown_ = outcome;
    shown_.told = ToldOf(outcome);
    fresh_ = !outcome.cancelled;
    look_->setText(outcome.status == kDone ? tr("&Mostra") : tr("&Riprova"));
    Show(shown_);
    UpdateRun();
}

QString ActionPage::ToldOf(const ToolOutcome& outcome)
{
    return outcome.cancelled ? tr("Fermato: niente è stato cambiato.") : outcome.told;
}

void ActionPage::Show(const ToolOutcome& outcome)
{
    if (table_ != nullptr) {
        table_->ShowRows(outcome.out);
    }
    Say(outcome.told, outcome.status != kDone);
}

void ActionPage::Say(const QString& text, bool failed)
{
    QString all = text;
    // Said for a terminal; here nothing is done before the button is pressed.
    all.remove(QStringLiteral("È una prova: niente è stato cambiato."));
    if (!result_.isEmpty()) {
        all = all.trimmed().isEmpty() ? result_ : result_ + QLatin1Char('\n') + all;
    }
    QPalette palette = this->palette();
    palette.setColor(QPalette::Text, failed ? Ink::Accent : Ink::PrintDark);
    notes_->setPalette(palette);
    notes_->setPlainText(all.trimmed());
    QAccessibleEvent told(notes_, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void ActionPage::UpdateRun()
{
    run_->setEnabled(fresh_ && !done_ && !Words().empty() && MayRun(shown_));
}

void ActionPage::Run(const std::vector<std::string>& words)
{
    std::vector<std::string> command = words;
    command.emplace_back("--tsv");
    StartRun([command = OnDesk().Command(command)](Terminal& terminal) { return RunTools(command, terminal); },
             std::make_shared<bool>(false));
}

/// Nothing is done when there is by now something else to do than what was shown.
void ActionPage::RunAsShown()
{
    std::vector<std::string> words = Words();
    words.insert(words.end(), {"--si", "--tsv"});
    const auto changed = std::make_shared<bool>(false);
    StartRun(
        [look = OnDesk().Command(LookWords()), command = OnDesk().Command(words), shown = shown_.out.toStdString(),
         changed](Terminal& terminal) {
            std::ostringstream out;
            std::ostringstream err;
            Terminal unheard{out, err, {}, {}};
            *changed = RunTools(look, unheard) == kDone && out.str() != shown;
            return *changed ? kNotDone : RunTools(command, terminal);
        },
        changed);
}

void ActionPage::StartRun(ToolRunner::Task task, const std::shared_ptr<bool>& changed)
{
    // A button that is greyed loses the focus: it goes to what is said.
    if (run_->hasFocus()) {
        notes_->setFocus();
    }
    done_ = true;
    UpdateRun();
    OnDesk().Runner().Run(ToolRunner::Kind::Writes, *this, std::move(task),
                          [this, changed](const ToolOutcome& outcome) { Ended(outcome, *changed); });
}

void ActionPage::Ended(const ToolOutcome& outcome, bool changed)
{
    result_ = changed ? tr("Nel frattempo è cambiato ciò che c'è da fare: niente è stato fatto. Guardare e premere "
                           "di nuovo.")
                      : outcome.told;
    if (changed || LooksAgain()) {
        done_ = false;
        Look();
        return;
    }
    const QString result = std::exchange(result_, {});
    Say(result.isEmpty() ? Success() : result, outcome.status != kDone);
    look_->setText(outcome.status == kDone ? tr("&Mostra") : tr("&Riprova"));
}

} // namespace zelvia
