// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"
#include "tools/desk/ActionPage.h"
#include "tools/desk/DeskPages.h"

#include <QCheckBox>
#include <QFormLayout>

namespace zelvia
{
namespace
{

class CheckPage : public ActionPage
{
    Q_OBJECT

public:
    explicit CheckPage(Desk& desk)
        : ActionPage(
              desk, tr("Controlla e ripara"),
              tr("Legge ogni file dei diari come li legge Zelvia e dice che cosa non va. Ciò che ha un solo rimedio si "
                 "ripara con «Esegui»; i file di prima restano in una copia di sicurezza.")),
          table_(AddTable(tr("Difetti"))),
          likely_(new QCheckBox(tr("&Riparare anche ciò che ha un rimedio soltanto probabile")))
    {
        likely_->setObjectName(QStringLiteral("likely"));
        Choices().addRow(likely_);
        connect(&table_, &OutcomeTable::Chosen, this, &CheckPage::Tell);
        connect(likely_, &QCheckBox::toggled, this, &CheckPage::Choose);
    }

protected:
    std::vector<std::string> Words() const override
    {
        std::vector<std::string> words = {"ripara"};
        if (likely_->isChecked()) {
            words.emplace_back("--sovrascrivi");
        }
        return words;
    }

    void Show(const ToolOutcome& outcome) override
    {
        summary_ = outcome;
        table_.ShowRows(outcome.out);
    }

    bool MayRun(const ToolOutcome& shown) const override
    {
        return shown.status == kDone && table_.RowCount() > 0 &&
               !Says(shown, Tools::Mark("Da riparare: %1. Restano come sono: %2."), "0");
    }
    bool LooksAgain() const override { return true; }

private:
    /// How much there is to mend, and the whole of the finding that is chosen.
    void Tell()
    {
        const bool good = summary_.status == kDone;
        const QString text = good && table_.RowCount() == 0 ? tr("Tutto a posto.") : summary_.told;
        Say(text + QLatin1Char('\n') + table_.ChosenCell(QStringLiteral("text")), !good);
    }

    ToolOutcome summary_;
    OutcomeTable& table_;
    QCheckBox* likely_;
};

} // namespace

DeskPage* MakeCheckPage(Desk& desk)
{
    return new CheckPage(desk);
}

} // namespace zelvia

#include "CheckPage.moc"
