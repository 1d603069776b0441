// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ActionPage.h"
#include "tools/desk/DeskPages.h"

#include <QCheckBox>
#include <QDate>
#include <QFormLayout>
#include <QSet>
#include <QSpinBox>

namespace zelvia
{
namespace
{

class NewYearPage : public ActionPage
{
    Q_OBJECT

public:
    explicit NewYearPage(Desk& desk)
        : ActionPage(
              desk, tr("Anno nuovo"),
              tr("Prepara il diario vuoto di un anno, con le liste, i percorsi e le tabelle di quello di adesso. Al "
                 "prossimo avvio Zelvia lo apre; quello di adesso resta dov'è.")),
          year_(new QSpinBox), races_(new QCheckBox(tr("&Tenere il calendario delle gare di adesso")))
    {
        constexpr int first = 2001;
        constexpr int last = 2099;
        year_->setObjectName(QStringLiteral("year"));
        year_->setRange(first, last);
        year_->setAccessibleName(tr("Anno"));
        year_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        races_->setObjectName(QStringLiteral("races"));
        Choices().addRow(tr("&Anno:"), year_);
        Choices().addRow(QString(), races_);
        connect(year_, &QSpinBox::valueChanged, this, [this] {
            chosen_ = true;
            Choose();
        });
        connect(races_, &QCheckBox::toggled, this, &NewYearPage::Choose);
    }

    /// The year to begin with is known once the diaries that are there are. One that the runner chose stays.
    void Refresh() override
    {
        OnDesk().Runner().Run(ToolRunner::Kind::Reads, *this, OnDesk().Command({"anni", "--tsv"}),
                              [this](const ToolOutcome& outcome) {
                                  const QSet<int> years = YearsOf(outcome.out);
                                  if (!chosen_ || years.contains(year_->value())) {
                                      const QSignalBlocker silent(year_);
                                      year_->setValue(FirstWithoutADiary(years));
                                  }
                                  ActionPage::Refresh();
                              });
    }

protected:
    std::vector<std::string> Words() const override
    {
        std::vector<std::string> words = {"anno", std::to_string(year_->value())};
        if (races_->isChecked()) {
            words.emplace_back("--gare");
        }
        return words;
    }

private:
    /// The years of a list of diaries.
    static QSet<int> YearsOf(const QString& diaries)
    {
        QSet<int> years;
        for (const QString& line : diaries.split(QLatin1Char('\n'))) {
            years.insert(line.split(QLatin1Char('\t')).value(1).toInt());
        }
        return years;
    }

    /// The first year from this one on that has no diary.
    static int FirstWithoutADiary(const QSet<int>& years)
    {
        int year = QDate::currentDate().year();
        while (years.contains(year)) {
            ++year;
        }
        return year;
    }

    QSpinBox* year_;
    QCheckBox* races_;
    bool chosen_ = false; ///< The year is one that the runner chose.
};

} // namespace

DeskPage* MakeNewYearPage(Desk& desk)
{
    return new NewYearPage(desk);
}

} // namespace zelvia

#include "NewYearPage.moc"
