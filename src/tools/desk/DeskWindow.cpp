// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/DeskWindow.h"

#include "diary/Workspace.h"
#include "toolkit/Fonts.h"
#include "toolkit/KeptSize.h"
#include "toolkit/PagePalette.h"
#include "tools/copies/CopyStore.h"
#include "tools/copies/WorkspaceData.h"
#include "tools/desk/GuideFile.h"
#include "tools/desk/ImportPage.h"
#include "tools/desk/PathField.h"
#include "tools/strumenti/Actions.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSaveFile>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <functional>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

/// The file that keeps which page was up last; empty when the home is not known.
QString PageFile()
{
    const fs::path copies = CopyFolder();
    return copies.empty() ? QString() : QString::fromStdString((copies.parent_path() / "pagina-strumenti").string());
}

std::string PageOfLastTime()
{
    constexpr qint64 longest = 32;
    QFile file(PageFile());
    return file.open(QIODevice::ReadOnly) ? file.read(longest).trimmed().toStdString() : std::string();
}

void KeepPage(std::string_view action)
{
    QDir().mkpath(QFileInfo(PageFile()).path());
    QSaveFile file(PageFile());
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray(action.data(), static_cast<qsizetype>(action.size())) + '\n');
        file.commit();
    }
}

bool HasAction(std::string_view name)
{
    const auto actions = Actions();
    return std::any_of(actions.begin(), actions.end(), [&](const Action& action) { return action.name == name; });
}

/// The diaries of a folder by their names, as they are found on the disk: the window holds no lock.
QStringList DiariesToChoose(const fs::path& folder)
{
    QStringList diaries;
    std::error_code failed;
    if (fs::is_directory(folder / kDiaryFolder, failed)) {
        try {
            for (const std::string& file : FilesBelow(folder / kDiaryFolder)) {
                const QString name = QString::fromStdString(file);
                if (name.endsWith(QLatin1String(".zlv"), Qt::CaseInsensitive)) {
                    diaries << name.chopped(4);
                }
            }
        } catch (const fs::filesystem_error&) {
            // The pages say what is wrong with it.
        }
    }
    return diaries;
}

} // namespace

DeskWindow::DeskWindow(Desk& desk, const std::string& page)
    : desk_(desk), folder_(new QLineEdit), diary_(new QComboBox), list_(new QListWidget), stack_(new QStackedWidget),
      progress_(new QWidget), bar_(new QProgressBar), doing_(new QLabel), cancel_(new QPushButton(tr("&Ferma")))
{
    setObjectName(QStringLiteral("DeskWindow"));
    setWindowTitle(tr("Strumenti di Zelvia"));
    auto* all = new QVBoxLayout(this);
    BuildFolderLine(*all);
    BuildPages(*all);
    BuildProgress(*all);
    BuildKeys();
    setAcceptDrops(RowOfPage("importa") >= 0);
    ShowFolder();
    constexpr QSize designed(1060, 700);
    new KeptSize(*this, designed);
    connect(&desk_, &Desk::Changed, this, [this] {
        ShowFolder();
        OpenPage(list_->currentRow());
    });
    connect(list_, &QListWidget::currentRowChanged, this, &DeskWindow::OpenPage);
    const int row = RowOfPage(page);
    list_->setCurrentRow(std::max(row >= 0 ? row : RowOfPage(PageOfLastTime()), 0));
    list_->setFocus();
}

void DeskWindow::BuildFolderLine(QVBoxLayout& all)
{
    folder_->setObjectName(QStringLiteral("folder"));
    folder_->setReadOnly(true);
    folder_->setAccessibleName(tr("Cartella di Zelvia"));
    diary_->setObjectName(QStringLiteral("diary"));
    diary_->setAccessibleName(tr("Diario"));
    constexpr int wide = 210;
    diary_->setFixedWidth(wide);
    auto* folderCaption = new QLabel(tr("Cartella:"));
    auto* choose = new QPushButton(tr("&Cartella…"));
    choose->setObjectName(QStringLiteral("chooseFolder"));
    choose->setToolTip(tr("Sceglie un'altra cartella di Zelvia"));
    auto* diaryCaption = new QLabel(tr("D&iario:"));
    diaryCaption->setBuddy(diary_);
    auto* line = new QHBoxLayout;
    line->addWidget(folderCaption);
    line->addWidget(folder_, 1);
    line->addWidget(choose);
    line->addWidget(diaryCaption);
    line->addWidget(diary_);
    all.addLayout(line);
    connect(choose, &QPushButton::clicked, this, &DeskWindow::ChooseFolder);
    connect(diary_, &QComboBox::activated, this, [this](int row) {
        desk_.Choose(desk_.Folder(), row == 0 ? std::string() : diary_->itemText(row).toStdString());
    });
}

void DeskWindow::BuildPages(QVBoxLayout& all)
{
    constexpr int listWidth = 190;
    constexpr int listPixels = 17;
    list_->setObjectName(QStringLiteral("pages"));
    list_->setAccessibleName(tr("Strumenti"));
    list_->setFont(PrintFont(listPixels));
    list_->setFixedWidth(listWidth);
    QPalette printed = palette();
    printed.setColor(QPalette::Text, Ink::PrintDark);
    list_->setPalette(printed);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const PageRow& row : PageRows()) {
        if (HasAction(row.action)) {
            rows_.push_back(&row);
            auto* item = new QListWidgetItem(QCoreApplication::translate("DeskPages", row.title), list_);
            constexpr int high = 34;
            item->setSizeHint(QSize(0, high));
        }
    }
    pages_.resize(rows_.size());
    stack_->setObjectName(QStringLiteral("stack"));
    auto* line = new QHBoxLayout;
    line->addWidget(list_);
    line->addWidget(stack_, 1);
    all.addLayout(line, 1);
}

void DeskWindow::BuildProgress(QVBoxLayout& all)
{
    progress_->setObjectName(QStringLiteral("progress"));
    bar_->setObjectName(QStringLiteral("bar"));
    bar_->setAccessibleName(tr("Avanzamento"));
    bar_->setTextVisible(false);
    constexpr int barWidth = 200;
    bar_->setFixedWidth(barWidth);
    doing_->setObjectName(QStringLiteral("doing"));
    doing_->setTextFormat(Qt::PlainText);
    cancel_->setObjectName(QStringLiteral("cancel"));
    cancel_->setToolTip(tr("Ferma la lettura: finché non si scrive niente è possibile"));
    // Its room stays when it is hidden, so nothing moves.
    QSizePolicy policy = progress_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(policy);
    auto* line = new QHBoxLayout(progress_);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(bar_);
    line->addWidget(doing_, 1);
    line->addWidget(cancel_);
    progress_->hide();
    all.addWidget(progress_);
    constexpr std::chrono::milliseconds soon(250);
    patience_.setSingleShot(true);
    patience_.setInterval(soon);
    connect(&patience_, &QTimer::timeout, progress_, &QWidget::show);
    connect(cancel_, &QPushButton::clicked, &desk_.Runner(), &ToolRunner::Cancel);
    connect(&desk_.Runner(), &ToolRunner::StateChanged, this, &DeskWindow::FollowRunner);
    connect(&desk_.Runner(), &ToolRunner::Told, this, &DeskWindow::FollowTold);
}

void DeskWindow::BuildKeys()
{
    const auto turn = [this](int step) {
        const int count = list_->count();
        list_->setCurrentRow((list_->currentRow() + step + count) % count);
    };
    const struct {
        QKeySequence keys;
        std::function<void()> act;
    } rows[] = {
        {Qt::Key_Escape, [this] { StopOrClose(); }},
        {Qt::CTRL | Qt::Key_W, [this] { close(); }},
        {Qt::Key_F1, [this] { ShowGuide(); }},
        {Qt::CTRL | Qt::Key_PageDown, [turn] { turn(1); }},
        {Qt::CTRL | Qt::Key_PageUp, [turn] { turn(-1); }},
    };
    for (const auto& row : rows) {
        auto* action = new QAction(this);
        action->setShortcut(row.keys);
        connect(action, &QAction::triggered, this, row.act);
        addAction(action);
    }
}

/// What is seen to be read is stopped first.
void DeskWindow::StopOrClose()
{
    if (progress_->isVisible() && cancel_->isEnabled()) {
        desk_.Runner().Cancel();
    } else {
        close();
    }
}

void DeskWindow::ShowFolder()
{
    folder_->setText(QString::fromStdString(desk_.Folder().string()));
    folder_->setCursorPosition(0);
    folder_->setToolTip(folder_->text());
    ListDiaries();
}

void DeskWindow::ListDiaries()
{
    const QStringList entries = QStringList{tr("quello che si apre all'avvio")} + DiariesToChoose(desk_.Folder());
    QStringList listed;
    for (int i = 0; i < diary_->count(); ++i) {
        listed << diary_->itemText(i);
    }
    if (listed != entries) {
        diary_->clear();
        diary_->addItems(entries);
    }
    const auto chosen = entries.indexOf(QString::fromStdString(desk_.Diary()), 1);
    diary_->setCurrentIndex(desk_.Diary().empty() ? 0 : static_cast<int>(chosen));
}

void DeskWindow::ChooseFolder()
{
    const QString folder = AskForFolder(*this, tr("Scegliere la cartella di Zelvia"), folder_->text());
    if (!folder.isEmpty()) {
        desk_.Choose(ResolvedFolder(folder.toStdString()), {});
    }
}

int DeskWindow::RowOfPage(const std::string& action) const
{
    const auto row =
        std::find_if(rows_.begin(), rows_.end(), [&](const PageRow* one) { return one->action == action; });
    return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

/// The page of the row, made if it has not been up yet, with what is on the disk now.
void DeskWindow::OpenPage(int row)
{
    if (row < 0) {
        return;
    }
    const auto place = static_cast<std::size_t>(row);
    if (pages_[place] == nullptr) {
        pages_[place] = rows_[place]->make(desk_);
        pages_[place]->setObjectName(
            QString::fromUtf8(rows_[place]->action.data(), static_cast<qsizetype>(rows_[place]->action.size())));
        // On a screen that is too small for it a page scrolls.
        auto* pane = new QScrollArea;
        pane->setFrameShape(QFrame::NoFrame);
        pane->setFocusPolicy(Qt::NoFocus);
        pane->setWidgetResizable(true);
        pane->setWidget(pages_[place]);
        stack_->addWidget(pane);
    }
    stack_->setCurrentWidget(pages_[place]->parentWidget()->parentWidget());
    KeepPage(rows_[place]->action);
    pages_[place]->Refresh();
}

void DeskWindow::FollowRunner()
{
    const ToolRunner& runner = desk_.Runner();
    if (!runner.IsBusy()) {
        patience_.stop();
        progress_->hide();
        ListDiaries();
    }
    // What went wrong has to be read.
    closing_ = closing_ && !runner.HasFailed();
    if (closing_) {
        close();
    }
    if (closing_ || !runner.IsBusy()) {
        return;
    }
    bar_->setRange(0, 0);
    doing_->setText(runner.IsWriting() ? tr("Sto scrivendo…") : tr("Sto leggendo…"));
    cancel_->setEnabled(!runner.IsWriting());
    patience_.start();
}

/// What an action says while it runs; one that counts moves the bar.
void DeskWindow::FollowTold(const QString& line)
{
    static const QRegularExpression counted(QStringLiteral("\\b(\\d+)\\b.* su (\\d+)\\b"));
    const QRegularExpressionMatch match = counted.match(line);
    if (match.hasMatch()) {
        bar_->setRange(0, match.captured(2).toInt());
        bar_->setValue(match.captured(1).toInt());
        doing_->setText(line);
    }
}

void DeskWindow::ShowGuide()
{
    const int row = list_->currentRow();
    const auto place = static_cast<std::size_t>(row);
    const QString topic =
        row < 0 ? objectName()
                : QStringLiteral("strumenti-") + QString::fromUtf8(rows_[place]->action.data(),
                                                                   static_cast<qsizetype>(rows_[place]->action.size()));
    OpenGuide(guide_, desk_.Folder(), topic);
}

void DeskWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!LocalFiles(*event->mimeData()).empty()) {
        event->acceptProposedAction();
    }
}

/// Wherever files are dropped, they are for the page that imports them.
void DeskWindow::dropEvent(QDropEvent* event)
{
    const int row = RowOfPage("importa");
    list_->setCurrentRow(row);
    static_cast<ImportPage*>(pages_[static_cast<std::size_t>(row)])->Add(LocalFiles(*event->mimeData()));
    event->acceptProposedAction();
}

/// What is to be written is written to its end; what is only read is given up.
void DeskWindow::closeEvent(QCloseEvent* event)
{
    if (desk_.Runner().HasToWrite()) {
        closing_ = true;
        patience_.stop();
        progress_->show();
        doing_->setText(tr("La finestra si chiude appena è tutto scritto."));
        event->ignore();
        return;
    }
    desk_.Runner().Cancel();
    guide_.Close();
    event->accept();
}

} // namespace zelvia
