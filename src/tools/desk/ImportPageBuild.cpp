// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ImportColumns.h"
#include "tools/desk/ImportPage.h"
#include "tools/exchange/CellTexts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>

#include <array>
#include <chrono>
#include <cstdlib>

namespace zelvia
{
namespace
{

/// What the zones of the world are ahead of UTC, in minutes.
constexpr std::array kZones = {-720, -660, -600, -570, -540, -480, -420, -360, -300, -240, -210, -180, -120,
                               -60,  0,    60,   120,  180,  210,  240,  270,  300,  330,  345,  360,  390,
                               420,  480,  525,  540,  570,  600,  630,  660,  720,  765,  780,  840};

QString ZoneText(int minutes)
{
    const int size = std::abs(minutes);
    return QStringLiteral("UTC%1%2:%3")
        .arg(minutes < 0 ? QStringLiteral("−") : QStringLiteral("+"))
        .arg(size / kMinute)
        .arg(size % kMinute, 2, 10, QLatin1Char('0'));
}

} // namespace

void ImportPage::Build()
{
    setAcceptDrops(true);
    told_->setObjectName(QStringLiteral("told"));
    told_->setTextFormat(Qt::PlainText);
    told_->setWordWrap(true);
    summary_->setObjectName(QStringLiteral("summary"));
    summary_->setTextFormat(Qt::PlainText);
    summary_->setWordWrap(true);
    again_->setObjectName(QStringLiteral("again"));
    again_->setToolTip(tr("Confronta di nuovo con il diario"));
    write_->setObjectName(QStringLiteral("write"));
    write_->setToolTip(tr("Fa una copia di sicurezza, poi scrive nel diario ciò che è spuntato"));
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(table_);
    splitter->addWidget(form_);
    splitter->setStretchFactor(0, 1);
    auto* end = new QHBoxLayout;
    end->addWidget(summary_, 1);
    end->addWidget(again_);
    end->addWidget(write_);
    Body().addLayout(BuildChoices());
    Body().addWidget(columns_);
    Body().addWidget(splitter, 1);
    Body().addWidget(told_);
    Body().addLayout(end);
}

QLayout* ImportPage::BuildChoices()
{
    auto* files = new QPushButton(tr("Fil&e…"));
    files->setObjectName(QStringLiteral("chooseFiles"));
    files->setToolTip(tr("Sceglie i file da leggere"));
    auto* folder = new QPushButton(tr("Car&tella…"));
    folder->setObjectName(QStringLiteral("chooseFolder"));
    folder->setToolTip(tr("Sceglie una cartella, di cui si leggono tutti i file FIT, TCX e GPX"));
    clear_->setObjectName(QStringLiteral("clear"));
    clear_->setToolTip(tr("Toglie tutto dall'elenco; i file e il diario restano come sono"));
    zone_->setObjectName(QStringLiteral("zone"));
    zone_->setAccessibleName(tr("Fuso orario"));
    zone_->setToolTip(tr("Che ora valeva dove si è corso, per tutte le attività"));
    zone_->addItem(tr("Ora dell'orologio"));
    for (const int minutes : kZones) {
        zone_->addItem(ZoneText(minutes), minutes * kMinute);
    }
    clock_->setObjectName(QStringLiteral("allClocks"));
    clock_->setAccessibleName(tr("Pause di tutte le attività"));
    clock_->setToolTip(tr("Se la fine comprende le pause, per tutte le attività"));
    clock_->addItem(tr("Con le pause"));
    clock_->addItem(tr("Senza le pause"));
    all_->setObjectName(QStringLiteral("all"));
    all_->setToolTip(tr("Non solo le corse: anche bicicletta, nuoto, camminate"));
    auto* line = new QHBoxLayout;
    line->addWidget(files);
    line->addWidget(folder);
    line->addWidget(clear_);
    line->addStretch();
    line->addWidget(zone_);
    line->addWidget(clock_);
    line->addWidget(all_);
    connect(files, &QPushButton::clicked, this, &ImportPage::ChooseFiles);
    connect(folder, &QPushButton::clicked, this, &ImportPage::ChooseFolder);
    return line;
}

void ImportPage::Connect()
{
    connect(clear_, &QPushButton::clicked, this, &ImportPage::Clear);
    connect(zone_, &QComboBox::currentIndexChanged, this, &ImportPage::ProposeAnew);
    connect(clock_, &QComboBox::currentIndexChanged, this, &ImportPage::ProposeAnew);
    connect(all_, &QCheckBox::clicked, this, &ImportPage::Compare);
    connect(columns_, &ImportColumns::Answered, this, &ImportPage::ReadTablesAgain);
    connect(table_, &ImportTable::RowChosen, this, &ImportPage::ShowRow);
    connect(table_, &ImportTable::Ticked, this, &ImportPage::Tick);
    connect(form_, &ImportForm::Corrected, this, &ImportPage::Correct);
    connect(form_, &ImportForm::Refused, this, [this](const QString& why) { Say(why, true); });
    connect(again_, &QPushButton::clicked, this, &ImportPage::Refresh);
    connect(write_, &QPushButton::clicked, this, &ImportPage::AskToWrite);
    constexpr std::chrono::milliseconds often(100);
    fetching_.setInterval(often);
    connect(&fetching_, &QTimer::timeout, this, &ImportPage::FetchFound);
    // A reading that was dropped before its turn is not reported.
    connect(
        &OnDesk().Runner(), &ToolRunner::StateChanged, this,
        [this] {
            if (!OnDesk().Runner().IsBusy() && reading_) {
                EndReading({kNotDone, true, {}, {}});
            }
        },
        Qt::QueuedConnection);
}

} // namespace zelvia
