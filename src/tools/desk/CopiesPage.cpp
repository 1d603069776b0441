// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/SecondPlace.h"
#include "tools/desk/ActionPage.h"
#include "tools/desk/DeskPages.h"
#include "tools/desk/PathField.h"
#include "tools/strumenti/Failures.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace zelvia
{
namespace
{

/// The copies above, what has changed since the chosen one below.
class CopiesPage : public ActionPage
{
    Q_OBJECT

public:
    explicit CopiesPage(Desk& desk)
        : ActionPage(
              desk, tr("Copie"),
              tr("Le copie di sicurezza di questa cartella, l'ultima per prima, e che cosa è cambiato dopo quella "
                 "scelta. Tornano i giorni spuntati, o tutto il diario; prima si fa una copia di adesso.")),
          copies_(AddTable(tr("Copie"))), changes_(AddTable(tr("Che cosa è cambiato dopo la copia"))),
          days_(new QRadioButton(tr("&Rimettere i giorni spuntati"))),
          whole_(new QRadioButton(tr("Rimettere &tutto il diario scelto in alto"))),
          make_(new QPushButton(tr("&Fai una copia adesso"))), second_(new QLabel),
          place_(new QPushButton(tr("Secondo &posto…"))), none_(new QPushButton(tr("&Nessun secondo posto")))
    {
        copies_.setObjectName(QStringLiteral("copies"));
        changes_.setObjectName(QStringLiteral("changes"));
        days_->setObjectName(QStringLiteral("days"));
        whole_->setObjectName(QStringLiteral("whole"));
        make_->setObjectName(QStringLiteral("make"));
        days_->setChecked(true);
        auto* choices = new QHBoxLayout;
        choices->addWidget(days_);
        choices->addWidget(whole_);
        choices->addStretch();
        Body().insertLayout(Body().indexOf(&changes_) + 1, choices);
        AddButton(*make_);
        Body().insertLayout(Body().indexOf(&changes_) + 2, BuildSecondPlace());
        connect(&copies_, &OutcomeTable::Chosen, this, &CopiesPage::Compare);
        connect(&changes_, &OutcomeTable::Chosen, this, &CopiesPage::UpdateRun);
        connect(days_, &QRadioButton::toggled, this, &CopiesPage::UpdateRun);
        connect(make_, &QPushButton::clicked, this, [this] { Run({"copie", "crea"}); });
    }

protected:
    std::vector<std::string> LookWords() const override { return {"copie", "elenco", "--tsv"}; }

    std::vector<std::string> Words() const override
    {
        const std::string number = Number();
        const QStringList days = changes_.Ticked();
        if (number.empty() || (!whole_->isChecked() && days.isEmpty())) {
            return {};
        }
        std::vector<std::string> words = {"copie", "rimetti", number};
        words.emplace_back(whole_->isChecked() ? "--intero" : "--giorno");
        for (const QString& day : whole_->isChecked() ? QStringList() : days) {
            words.push_back(day.toStdString());
        }
        return words;
    }

    void Show(const ToolOutcome& outcome) override
    {
        ShowSecondPlace();
        copies_.ShowRows(LastFirst(outcome.out));
        Say(outcome.status == kDone && copies_.RowCount() == 0 ? tr("Non ci sono ancora copie di questa cartella.")
                                                               : outcome.told,
            outcome.status != kDone);
    }

    bool MayRun(const ToolOutcome& shown) const override
    {
        return shown.status == kDone && compared_ == Number() && changes_.RowCount() > 0;
    }
    bool LooksAgain() const override { return true; }

private:
    QLayout* BuildSecondPlace()
    {
        second_->setObjectName(QStringLiteral("second"));
        second_->setTextFormat(Qt::PlainText);
        second_->setWordWrap(true);
        place_->setObjectName(QStringLiteral("place"));
        place_->setToolTip(tr("Sceglie un'altra cartella, anche su una chiavetta, in cui vanno anche le copie"));
        none_->setObjectName(QStringLiteral("none"));
        none_->setToolTip(tr("Le copie non vanno più in un secondo posto; quelle che ci sono restano"));
        auto* line = new QHBoxLayout;
        line->addWidget(second_, 1);
        line->addWidget(place_);
        line->addWidget(none_);
        connect(place_, &QPushButton::clicked, this, &CopiesPage::ChooseSecondPlace);
        connect(none_, &QPushButton::clicked, this, [this] { Run({"copie", "secondo-posto", "--nessuno"}); });
        return line;
    }

    void ShowSecondPlace()
    {
        std::string place;
        const auto failure = FailureOf([&] { place = SecondPlace().string(); });
        const QString shown = QString::fromStdString(failure.value_or(place));
        second_->setText(failure         ? shown
                         : place.empty() ? tr("Le copie vanno in un posto solo, su questo computer.")
                                         : tr("Le copie vanno anche in «%1».").arg(shown));
        second_->setToolTip(shown);
        none_->setEnabled(!place.empty());
    }

    void ChooseSecondPlace()
    {
        const QString folder = AskForFolder(*this, tr("Scegliere il secondo posto delle copie"), QDir::homePath());
        if (!folder.isEmpty()) {
            Run({"copie", "secondo-posto", folder.toStdString()});
        }
    }

    std::string Number() const { return copies_.ChosenCell(QStringLiteral("number")).toStdString(); }

    static QString LastFirst(const QString& tsv)
    {
        QStringList lines = tsv.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        if (!lines.isEmpty()) {
            std::reverse(lines.begin() + 1, lines.end());
        }
        return lines.join(QLatin1Char('\n'));
    }

    /// Of what is no diary only whether it is there is known.
    static QString OthersInWords(const QString& tsv)
    {
        QStringList lines = tsv.split(QLatin1Char('\n'));
        for (QString& line : lines) {
            QStringList cells = line.split(QLatin1Char('\t'));
            if (cells.size() > 2 && cells[1].isEmpty()) {
                std::replace(cells.begin() + 2, cells.end(), QStringLiteral("1"), tr("c'è"));
                line = cells.join(QLatin1Char('\t'));
            }
        }
        return lines.join(QLatin1Char('\n'));
    }

    /// Reads what has changed since the chosen copy.
    void Compare()
    {
        const std::string number = Number();
        compared_.clear();
        UpdateRun();
        if (number.empty()) {
            changes_.ShowRows({});
            return;
        }
        OnDesk().Runner().Run(
            ToolRunner::Kind::Reads, *this, OnDesk().Command({"copie", "confronta", number, "--tsv"}),
            [this, number](const ToolOutcome& outcome) {
                compared_ = number;
                changes_.ShowGroups(OthersInWords(outcome.out), QStringLiteral("date"), false);
                const bool same = outcome.status == kDone && changes_.RowCount() == 0;
                Say(same ? tr("Dopo la copia %1 non è cambiato niente.").arg(QString::fromStdString(number))
                         : ToldOf(outcome),
                    outcome.status != kDone);
                UpdateRun();
            });
    }

    OutcomeTable& copies_;
    OutcomeTable& changes_;
    QRadioButton* days_;
    QRadioButton* whole_;
    QPushButton* make_;
    QLabel* second_;
    QPushButton* place_;
    QPushButton* none_;
    std::string compared_; ///< The copy that the changes below are since.
};

} // namespace

DeskPage* MakeCopiesPage(Desk& desk)
{
    return new CopiesPage(desk);
}

} // namespace zelvia

#include "CopiesPage.moc"
