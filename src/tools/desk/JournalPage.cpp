// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"
#include "tools/desk/ActionPage.h"
#include "tools/desk/DeskPages.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QRadioButton>

#include <array>

namespace zelvia
{
namespace
{

class JournalPage : public ActionPage
{
    Q_OBJECT

public:
    explicit JournalPage(Desk& desk)
        : ActionPage(
              desk, tr("Giornale"),
              tr("Ciò che è stato scritto in Zelvia e non salvato: per un'interruzione, o per un'uscita senza salvare. "
                 "Si può riportare nel diario, tutto o soltanto ciò che è spuntato, o dimenticare.")),
          table_(AddTable(tr("Giorni non salvati"))),
          bring_(new QRadioButton(tr("&Riportare nel diario ciò che è spuntato"))),
          overwrite_(new QCheckBox(tr("&Anche ciò che nel frattempo è cambiato nel diario"))),
          forget_(new QRadioButton(tr("&Dimenticare tutto ciò che non è stato salvato")))
    {
        bring_->setObjectName(QStringLiteral("bring"));
        overwrite_->setObjectName(QStringLiteral("overwrite"));
        forget_->setObjectName(QStringLiteral("forget"));
        bring_->setChecked(true);
        Choices().addRow(bring_);
        Choices().addRow(overwrite_);
        Choices().addRow(forget_);
        connect(bring_, &QRadioButton::toggled, this, &JournalPage::UpdateRun);
        connect(bring_, &QRadioButton::toggled, overwrite_, &QWidget::setEnabled);
        connect(&table_, &OutcomeTable::Chosen, this, &JournalPage::UpdateRun);
    }

protected:
    std::vector<std::string> LookWords() const override { return {"giornale", "--tsv"}; }

    std::vector<std::string> Words() const override
    {
        if (forget_->isChecked()) {
            return {"giornale", "dimentica"};
        }
        std::vector<std::string> words = {"giornale", "riprendi"};
        const QStringList days = table_.Ticked();
        if (days.isEmpty()) {
            return {};
        }
        for (const QString& day : days) {
            words.push_back(day.toStdString());
        }
        if (overwrite_->isChecked()) {
            words.emplace_back("--sovrascrivi");
        }
        return words;
    }

    void Show(const ToolOutcome& outcome) override
    {
        table_.ShowGroups(ByPieces(outcome.out), QStringLiteral("date"), true);
        Say(outcome.status == kDone && table_.RowCount() == 0
                ? tr("Non c'è niente da riprendere: tutto è stato salvato.")
                : outcome.told,
            outcome.status != kDone);
    }

    bool MayRun(const ToolOutcome& shown) const override { return shown.status == kDone && table_.RowCount() > 0; }
    bool LooksAgain() const override { return true; }

private:
    /// What comes back together is called in the place of its day: of the lists, routes and races all or none.
    static QString ByPieces(const QString& tsv)
    {
        const auto start = [](const char* title) {
            return QString::fromStdString(Tools::Tr(title)).section(QStringLiteral("%1"), 0, 0);
        };
        const std::array<std::array<QString, 2>, 3> pieces = {
            {{start(Tools::Mark("lista %1")), QStringLiteral("liste")},
             {start(Tools::Mark("percorso «%1»")), QStringLiteral("percorsi")},
             {start(Tools::Mark("gara %1")), QStringLiteral("calendario")}}};
        QStringList lines = tsv.split(QLatin1Char('\n'));
        for (QString& line : lines) {
            const auto tab = line.indexOf(QLatin1Char('\t'));
            for (const auto& [field, piece] : pieces) {
                if (tab >= 0 && line.mid(tab + 1).startsWith(field)) {
                    line.replace(0, tab, piece);
                    break;
                }
            }
        }
        return lines.join(QLatin1Char('\n'));
    }

    OutcomeTable& table_;
    QRadioButton* bring_;
    QCheckBox* overwrite_;
    QRadioButton* forget_;
};

} // namespace

DeskPage* MakeJournalPage(Desk& desk)
{
    return new JournalPage(desk);
}

} // namespace zelvia

#include "JournalPage.moc"
