// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Application.h"
#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "tools/yearswindow/YearsWindow.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <functional>

namespace zelvia
{

void YearsWindow::Label(QBoxLayout& line, QWidget& box, const QString& caption)
{
    auto* label = new QLabel(caption);
    label->setBuddy(&box);
    line.addWidget(label);
    line.addWidget(&box);
    captions_ << label;
    box.setAccessibleName(QString(caption).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
}

void YearsWindow::BuildChoices(QBoxLayout& all)
{
    constexpr int listWidth = 190;
    constexpr int listPixels = 17;
    kinds_->setObjectName(QStringLiteral("kinds"));
    kinds_->setAccessibleName(tr("Grafici"));
    kinds_->setFont(PrintFont(listPixels));
    kinds_->setFixedWidth(listWidth);
    QPalette printed = palette();
    printed.setColor(QPalette::Text, Ink::PrintDark);
    kinds_->setPalette(printed);
    for (const FigureKindRow& kind : FigureKinds()) {
        auto* item = new QListWidgetItem(QCoreApplication::translate("YearsFigures", kind.title), kinds_);
        constexpr int high = 34;
        item->setSizeHint(QSize(0, high));
    }
    kinds_->setCurrentRow(0);

    year_->setObjectName(QStringLiteral("year"));
    other_->setObjectName(QStringLiteral("other"));
    route_->setObjectName(QStringLiteral("route"));
    goal_->setObjectName(QStringLiteral("goal"));
    goal_->setRange(0, Goals::kHighest);
    constexpr int step = 50;
    goal_->setSingleStep(step);
    goal_->setSpecialValueText(tr("nessuno"));
    goal_->setSuffix(tr(" km"));
    goal_->setGroupSeparatorShown(true);
    goal_->setKeyboardTracking(false);
    auto* line = new QHBoxLayout;
    Label(*line, *year_, tr("&Anno:"));
    Label(*line, *other_, tr("A con&fronto:"));
    Label(*line, *route_, tr("&Percorso:"));
    Label(*line, *goal_, tr("&Obiettivo dell'anno:"));
    line->addStretch();
    all.addLayout(line);
    connect(kinds_, &QListWidget::currentRowChanged, this, &YearsWindow::ShowChoices);
    for (QComboBox* box : {year_, other_, route_}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        connect(box, &QComboBox::currentIndexChanged, this, &YearsWindow::Choose);
    }
    connect(goal_, &QSpinBox::valueChanged, this, &YearsWindow::KeepGoal);
}

void YearsWindow::BuildFigure(QBoxLayout& all)
{
    view_->setObjectName(QStringLiteral("figure"));
    table_->setObjectName(QStringLiteral("table"));
    table_->setModel(&model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    constexpr int rowHeight = 24;
    table_->verticalHeader()->setDefaultSectionSize(rowHeight);
    table_->horizontalHeader()->setHighlightSections(false);
    auto* splitter = new QSplitter;
    splitter->setObjectName(QStringLiteral("splitter"));
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(view_);
    splitter->addWidget(table_);
    constexpr int tableWidth = 376;
    constexpr int figureWidth = 584;
    splitter->setSizes({figureWidth, tableWidth});
    splitter->setStretchFactor(0, 1);
    all.addWidget(splitter, 1);
    value_->setAccessibleName(tr("Valore"));
    value_->setMinimumHeight(value_->fontMetrics().height());
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setAccessibleName(tr("Lettura dei diari"));
    progress_->setFormat(tr("Diario %v di %m"));
    for (QWidget* widget : std::initializer_list<QWidget*>{value_, standing_, leftOut_, said_, progress_}) {
        all.addWidget(widget);
    }
    connect(view_, &FigureView::PointedAt, value_, &QLabel::setText);
    connect(view_, &FigureView::Zoomed, this, [this] { whole_->setEnabled(!view_->IsWhole()); });
}

void YearsWindow::BuildButtons(QBoxLayout& all)
{
    const struct {
        const char* name;
        QString caption;
        QString tip;
        std::function<void()> act;
    } rows[] = {
        {"zoomIn", tr("&Ingrandisci"), tr("Mostra un tratto più breve («+»)"), [this] { view_->ZoomIn(); }},
        {"zoomOut", tr("Ri&duci"), tr("Mostra un tratto più lungo («-»)"), [this] { view_->ZoomOut(); }},
        {"whole", tr("T&utto"), tr("Mostra di nuovo tutto («0»)"), [this] { view_->ShowWhole(); }},
        {"copy", tr("&Copia grafico"), tr("Mette il grafico negli appunti (Ctrl+C)"), [this] { CopyPicture(); }},
        {"copyTable", tr("Copia &tabella"), tr("Mette la tabella negli appunti (Ctrl+Maiusc+C)"),
         [this] { CopyTable(); }},
        {"save", tr("&Salva…"), tr("Salva il grafico come immagine (Ctrl+S)"), [this] { SavePicture(); }},
        {"print", tr("Sta&mpa"), tr("Stampa il grafico (Ctrl+P)"), [this] { Print(); }},
        {"exit", tr("&Esci"), tr("Chiude la finestra (Ctrl+W)"), [this] { close(); }},
    };
    auto* line = new QHBoxLayout;
    for (const auto& row : rows) {
        auto* button = new QPushButton(row.caption);
        button->setObjectName(QLatin1String(row.name));
        button->setToolTip(row.tip);
        connect(button, &QPushButton::clicked, this, row.act);
        line->addWidget(button);
        const QLatin1String name(row.name);
        if (name == QLatin1String("whole")) {
            whole_ = button;
            line->addStretch();
        } else if (name != QLatin1String("exit")) {
            onFigure_ << button;
        }
    }
    all.addLayout(line);
}

void YearsWindow::BuildKeys()
{
    const struct {
        QKeySequence keys;
        std::function<void()> act;
    } rows[] = {
        {Qt::CTRL | Qt::Key_C, [this] { CopyPicture(); }},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_C, [this] { CopyTable(); }},
        {Qt::CTRL | Qt::Key_S, [this] { SavePicture(); }},
        {Qt::CTRL | Qt::Key_P, [this] { Print(); }},
        {Qt::CTRL | Qt::Key_W, [this] { close(); }},
        {Qt::Key_F5, [this] { Load(); }},
        {Qt::Key_F1,
         [this] {
             if (const auto& help = Application::Instance().HelpKey) {
                 help(objectName());
             }
         }},
    };
    for (const auto& row : rows) {
        auto* action = new QAction(this);
        action->setShortcut(row.keys);
        connect(action, &QAction::triggered, this, row.act);
        addAction(action);
    }
}

} // namespace zelvia
