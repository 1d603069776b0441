// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/FileCommands.h"
#include "tools/desk/ActionPage.h"
#include "tools/desk/DeskPages.h"

#include <QDate>
#include <QProcess>
#include <QPushButton>

namespace zelvia
{
namespace
{

/// The year whose days the page shows for a diary of that year: the same, or one from the page's first year on that has
/// the same weekdays and 29 February as a diary that is older. The calendar comes again after 28 years.
int YearOnPage(int year)
{
    constexpr int cycle = 28;
    while (year < kFirstDate.Year().value()) {
        year += cycle;
    }
    return year;
}

class YearsPage : public ActionPage
{
    Q_OBJECT

public:
    explicit YearsPage(Desk& desk)
        : ActionPage(
              desk, tr("Anni passati"),
              tr("Tutti i diari della cartella. Uno di un anno passato si apre con le sue date: l'ultimo giorno di "
                 "quell'anno vale per oggi, perciò i giorni della settimana e gli anni bisestili sono giusti.")),
          table_(AddTable(tr("Diari"))), open_(new QPushButton(tr("&Apri")))
    {
        open_->setObjectName(QStringLiteral("open"));
        open_->setToolTip(tr("Apre in Zelvia il diario scelto"));
        RunButton().hide();
        AddButton(*open_);
        connect(&table_, &OutcomeTable::Chosen, this, &YearsPage::ShowWhetherItOpens);
        connect(&table_, &OutcomeTable::itemActivated, this, &YearsPage::Open);
        connect(open_, &QPushButton::clicked, this, &YearsPage::Open);
        if (desk.OpenAllYears) {
            auto* all = new QPushButton(tr("&Tutti gli anni…"));
            all->setObjectName(QStringLiteral("allYears"));
            AddButton(*all);
            connect(all, &QPushButton::clicked, this, [this] { OnDesk().OpenAllYears(OnDesk().Folder()); });
        }
        ShowWhetherItOpens();
    }

protected:
    std::vector<std::string> Words() const override { return {}; }
    std::vector<std::string> LookWords() const override { return {"anni", "--tsv"}; }

private:
    void ShowWhetherItOpens() { open_->setEnabled(!table_.ChosenCell(QStringLiteral("diary")).isEmpty()); }

    /// Keeps a copy, as the launcher does, and starts the program beside this one.
    void Open()
    {
        const QString diary = table_.ChosenCell(QStringLiteral("diary"));
        const int year = table_.ChosenCell(QStringLiteral("year")).toInt();
        if (diary.isEmpty()) {
            return;
        }
        open_->setEnabled(false);
        OnDesk().Runner().Run(ToolRunner::Kind::Writes, *this, OnDesk().Command({"copie", "crea", "--tsv"}),
                              [this, diary, year](const ToolOutcome& outcome) {
                                  open_->setEnabled(true);
                                  outcome.status == kDone ? Start(diary, year) : Say(outcome.told, true);
                              });
    }

    void Start(const QString& diary, int year)
    {
        const QString program = QString::fromStdString(OnDesk().Program.string());
        const int shown = YearOnPage(year);
        QStringList words;
        if (year < QDate::currentDate().year()) {
            words << QStringLiteral("--oggi") << QStringLiteral("%1-12-31").arg(shown);
        }
        words << QStringLiteral("--diario") << diary << QStringLiteral("--")
              << QString::fromStdString(OnDesk().Folder().string());
        const bool started = QProcess::startDetached(program, words);
        QString opened = tr("Zelvia apre il diario «%1».").arg(diary);
        if (shown != year) {
            opened +=
                QLatin1Char(' ') + tr("La pagina non va prima del %1: mostra il %2, che ha gli stessi giorni della "
                                      "settimana.")
                                       .arg(kFirstDate.Year().value())
                                       .arg(shown);
        }
        Say(started ? opened : tr("Zelvia non si avvia («%1»): il diario non è stato aperto.").arg(program), !started);
    }

    OutcomeTable& table_;
    QPushButton* open_;
};

} // namespace

DeskPage* MakeYearsPage(Desk& desk)
{
    return new YearsPage(desk);
}

} // namespace zelvia

#include "YearsPage.moc"
