// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/YearsWindow.h"

#include "toolkit/KeptSize.h"
#include "toolkit/QtText.h"
#include "toolkit/WindowPlaces.h"
#include "tools/copies/SafeFiles.h"
#include "tools/years/Bests.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

QLabel* TextLine(const char* name)
{
    auto* line = new QLabel;
    line->setObjectName(QLatin1String(name));
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    return line;
}

/// Chooses the entry of a box that stands for `value`; the first one when there is none.
void ChooseEntry(QComboBox& box, const QVariant& value)
{
    box.setCurrentIndex(std::max(box.findData(value), 0));
}

} // namespace

YearsWindow::YearsWindow(const fs::path& folder)
    : folder_(folder), goals_({}, folder), kinds_(new QListWidget), year_(new QComboBox), other_(new QComboBox),
      route_(new QComboBox), goal_(new QSpinBox), view_(new FigureView), table_(new QTableView),
      value_(TextLine("value")), standing_(TextLine("standing")), leftOut_(TextLine("leftOut")),
      said_(TextLine("said")), progress_(new QProgressBar), whole_(nullptr)
{
    setObjectName(QStringLiteral("YearsWindow"));
    setWindowTitle(tr("Tutti gli anni"));
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* rows = new QVBoxLayout(this);
    auto* line = new QHBoxLayout;
    auto* right = new QVBoxLayout;
    rows->addLayout(line, 1);
    line->addWidget(kinds_);
    line->addLayout(right, 1);
    BuildChoices(*right);
    BuildFigure(*right);
    BuildButtons(*rows);
    BuildKeys();
    ShowBoxes();
    constexpr QSize designed(1180, 720);
    new KeptSize(*this, designed);
    connect(&loader_, &YearsLoader::Progressed, this, [this](int read, int of) {
        progress_->setMaximum(of);
        progress_->setValue(read);
    });
    connect(&loader_, &YearsLoader::Loaded, this,
            [this](const std::shared_ptr<const AllDiaries>& all) { TakeRead(*all); });
    connect(&loader_, &YearsLoader::Failed, this, [this](const QString& why) {
        TakeRead({});
        Say(tr("La cartella dei diari non si legge: %1").arg(why));
    });
    Load();
}

void YearsWindow::Load()
{
    progress_->setMaximum(0);
    progress_->show();
    loader_.Load(folder_);
}

void YearsWindow::TakeRead(const AllDiaries& all)
{
    read_ = {all, all.Days(), Date()};
    progress_->hide();
    Say({});
    try {
        goals_ = Goals(GoalFile(), folder_);
    } catch (const std::exception& failure) {
        Say(tr("Gli obiettivi non si leggono: %1").arg(QString::fromStdString(failure.what())));
    }
    const bool kept = read_.all.Find(choices_.year) != nullptr;
    if (!kept && !read_.all.years.empty()) {
        // This year or, when it has no diary, the one before it that has.
        choices_.year = read_.all.years.front().year;
        for (const DiaryYear& year : read_.all.years) {
            choices_.year = year.year <= read_.today.Year().value() ? year.year : choices_.year;
        }
    }
    ShowLeftOut();
    ShowChoices();
    Q_EMIT Ready();
}

void YearsWindow::ShowLeftOut()
{
    QStringList lines;
    for (const DiaryLeftOut& one : read_.all.leftOut) {
        lines << tr("Il diario «%1» non è contato: %2.")
                     .arg(QString::fromStdString(one.diary), QString::fromStdString(one.why));
    }
    leftOut_->setText(lines.join(QLatin1Char('\n')));
    leftOut_->setVisible(!lines.isEmpty());
}

const FigureKindRow& YearsWindow::Kind() const
{
    return FigureKinds()[static_cast<std::size_t>(std::max(kinds_->currentRow(), 0))];
}

/// The boxes that the kind needs. All of them side by side would not fit a small screen.
void YearsWindow::ShowBoxes()
{
    const FigureKindRow& kind = Kind();
    const bool curve = kind.kind == FigureKind::Curve;
    QWidget* const boxes[] = {year_, other_, route_, goal_};
    const bool needed[] = {kind.year, kind.other, kind.route, curve};
    for (qsizetype i = 0; i < captions_.size(); ++i) {
        captions_[i]->setVisible(needed[i]);
        boxes[i]->setVisible(needed[i]);
    }
    standing_->setVisible(curve);
}

void YearsWindow::ShowChoices()
{
    ShowBoxes();
    FillYears(Kind().allYears);
    FillOthers();
    FillRoutes();
    TakeChoices();
    ShowFigure();
}

void YearsWindow::FillYears(bool withAll)
{
    const QSignalBlocker still(*year_);
    year_->clear();
    if (withAll) {
        year_->addItem(tr("tutti gli anni"), FigureChoices::kAll);
    }
    for (auto year = read_.all.years.rbegin(); year != read_.all.years.rend(); ++year) {
        year_->addItem(QString::number(year->year), year->year);
    }
    ChooseEntry(*year_, withAll ? span_ : choices_.year);
}

void YearsWindow::FillOthers()
{
    const QSignalBlocker still(*other_);
    other_->clear();
    other_->addItem(tr("nessun altro"), FigureChoices::kNone);
    other_->addItem(tr("tutti gli altri"), FigureChoices::kAll);
    for (auto year = read_.all.years.rbegin(); year != read_.all.years.rend(); ++year) {
        if (year->year != choices_.year) {
            other_->addItem(QString::number(year->year), year->year);
        }
    }
    ChooseEntry(*other_, choices_.other);
}

void YearsWindow::FillRoutes()
{
    const QSignalBlocker still(*route_);
    route_->clear();
    route_->addItem(tr("tutti i percorsi"), QString());
    QString last;
    for (const RoutePace& pace : PacesByRoute(read_.days)) {
        const QString route = ToQString(pace.route);
        if (route != last) {
            route_->addItem(route, route);
        }
        last = route;
    }
    ChooseEntry(*route_, ToQString(choices_.route));
}

void YearsWindow::TakeChoices()
{
    (Kind().allYears ? span_ : choices_.year) = year_->currentData().toInt();
    choices_.other = other_->currentData().toInt();
    choices_.route = FromQString(route_->currentData().toString());
}

void YearsWindow::Choose()
{
    TakeChoices();
    if (sender() == year_) {
        // The year itself is not among the others.
        FillOthers();
        TakeChoices();
    }
    ShowFigure();
}

void YearsWindow::ShowFigure()
{
    FigureChoices shown = choices_;
    shown.year = Kind().allYears ? span_ : choices_.year;
    shown.goal = goals_.Of(shown.year);
    const Figure figure = read_.all.years.empty() ? Figure{} : FigureOf(Kind().kind, read_, shown);
    view_->Show(figure);
    model_.Show(figure);
    table_->setAccessibleName(tr("Tabella: %1").arg(figure.title));
    constexpr int looked = 60; // Rows that tell how wide the columns are.
    table_->horizontalHeader()->setResizeContentsPrecision(looked);
    table_->resizeColumnsToContents();
    for (QWidget* widget : onFigure_) {
        widget->setEnabled(!figure.IsEmpty());
    }
    ShowGoal();
}

void YearsWindow::ShowGoal()
{
    const QSignalBlocker still(*goal_);
    const std::optional<int> goal = goals_.Of(choices_.year);
    goal_->setValue(goal.value_or(0));
    goal_->setEnabled(!read_.all.years.empty());
    standing_->setText(goal ? StandingText(read_, choices_.year, *goal) : tr("Nessun obiettivo per quest'anno."));
}

void YearsWindow::KeepGoal(int kilometres)
{
    try {
        // Read anew: another window may have kept one, and a file that could not be read must not be replaced.
        Goals goals(GoalFile(), folder_);
        goals.Set(choices_.year, kilometres > 0 ? std::optional(kilometres) : std::nullopt);
        goals_ = std::move(goals);
        Say({});
    } catch (const std::exception& failure) {
        Say(tr("L'obiettivo non è stato salvato: %1").arg(QString::fromStdString(failure.what())));
    }
    ShowFigure();
}

void OpenAllYears(const fs::path& folder)
{
    static QPointer<YearsWindow> window;
    static fs::path shown;
    if (window.isNull() || shown != folder) {
        delete window;
        window = new YearsWindow(folder);
        window->setAttribute(Qt::WA_DeleteOnClose);
        // What it reads beside itself ends before the program does.
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, window, [] { delete window; });
        shown = folder;
    }
    WindowPlaces::Instance().ShowInFront(*window);
}

} // namespace zelvia
