// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/guide/HelpWindow.h"

#include "toolkit/Accessible.h"
#include "toolkit/Fonts.h"
#include "toolkit/WindowPlaces.h"
#include "windows/guide/HelpPage.h"
#include "windows/guide/SearchPane.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <functional>

namespace zelvia
{
namespace
{

constexpr int kContentsPixels = 16;

QPushButton* MakeButton(const char* name, const QString& caption, const QString& tip)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tip);
    return button;
}

} // namespace

HelpWindow::HelpWindow(std::unique_ptr<HelpFile> file) : file_(std::move(file))
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Guida di Zelvia"));
    // The guide must not keep a program alive whose page is closed.
    setAttribute(Qt::WA_QuitOnClose, false);
    constexpr QSize wide(1000, 660);
    resize(wide.boundedTo(WindowPlaces::Instance().RoomFor(*this)));
    BuildPanes();
    BuildButtons();
    BuildKeys();
    GoTo(HelpFile::FirstPage());
}

HelpWindow::~HelpWindow()
{
    // The views are deleted before the file whose pages and models they show.
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void HelpWindow::BuildPanes()
{
    page_ = new HelpPage(*file_, nullptr);
    contents_ = file_->Engine().contentWidget();
    contents_->setObjectName(QStringLiteral("contents"));
    contents_->setAccessibleName(tr("Sommario"));
    contents_->setHeaderHidden(true);
    contents_->setFont(PrintFont(kContentsPixels));
    search_ = new SearchPane(*file_->Engine().searchEngine());
    tabs_ = new QTabWidget;
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->addTab(contents_, tr("&Sommario"));
    tabs_->addTab(search_, tr("&Cerca"));
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(tabs_);
    splitter->addWidget(page_);
    constexpr int contentsWidth = 310;
    splitter->setSizes({contentsWidth, width() - contentsWidth});
    splitter->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter);

    connect(file_->Engine().contentModel(), &QHelpContentModel::contentsCreated, this, [this] {
        contents_->expandToDepth(0);
        FollowPage(page_->source());
    });
    connect(contents_->selectionModel(), &QItemSelectionModel::currentChanged, this, &HelpWindow::FollowContents);
    connect(contents_, &QHelpContentWidget::linkActivated, this, &HelpWindow::GoTo);
    connect(tabs_, &QTabWidget::currentChanged, this, [this] {
        // The letter of a tab brings its pane up from anywhere; the arrows go along the tabs.
        if (!tabs_->tabBar()->hasFocus()) {
            tabs_->currentWidget() == search_ ? search_->TakeFocus() : contents_->setFocus(Qt::ShortcutFocusReason);
        }
    });
    connect(search_, &SearchPane::Chosen, this, &HelpWindow::ShowFound);
    connect(page_, &HelpPage::sourceChanged, this, &HelpWindow::FollowPage);
    file_->Engine().contentModel()->createContents(QString());
}

void HelpWindow::BuildButtons()
{
    back_ = MakeButton("back", tr("Indietro"), tr("La pagina di prima (Alt+Sinistra)"));
    forward_ = MakeButton("forward", tr("Avanti"), tr("La pagina seguente (Alt+Destra)"));
    home_ = MakeButton("home", tr("Inizio"), tr("La prima pagina (Alt+Home)"));
    auto* previous = MakeButton("findPrevious", tr("Precedente"), tr("Maiusc+F3"));
    auto* next = MakeButton("findNext", tr("Successivo"), tr("F3"));
    find_ = new QLineEdit;
    find_->setObjectName(QStringLiteral("find"));
    AddClearButton(*find_);
    notFound_ = new QLabel(tr("Non c'è"));
    notFound_->setObjectName(QStringLiteral("notFound"));
    notFound_->hide();
    auto* caption = new QLabel(tr("&Trova nella pagina:"));
    caption->setBuddy(find_);

    auto* bar = new QHBoxLayout;
    for (QWidget* widget : {back_, forward_, home_}) {
        bar->addWidget(widget);
    }
    bar->addStretch();
    for (QWidget* widget : std::initializer_list<QWidget*>{notFound_, caption, find_, previous, next}) {
        bar->addWidget(widget);
    }
    static_cast<QVBoxLayout*>(layout())->insertLayout(0, bar);

    back_->setEnabled(false);
    forward_->setEnabled(false);
    connect(page_, &HelpPage::backwardAvailable, back_, &QWidget::setEnabled);
    connect(page_, &HelpPage::forwardAvailable, forward_, &QWidget::setEnabled);
    connect(back_, &QPushButton::clicked, page_, &HelpPage::backward);
    connect(forward_, &QPushButton::clicked, page_, &HelpPage::forward);
    connect(home_, &QPushButton::clicked, this, [this] { GoTo(HelpFile::FirstPage()); });
    connect(previous, &QPushButton::clicked, this, [this] { Find(true); });
    connect(next, &QPushButton::clicked, this, [this] { Find(false); });
    connect(find_, &QLineEdit::returnPressed, this, [this] { Find(false); });
    connect(find_, &QLineEdit::textChanged, notFound_, &QWidget::hide);
}

void HelpWindow::BuildKeys()
{
    const struct {
        QKeySequence keys;
        std::function<void()> act;
    } rows[] = {
        {Qt::Key_Escape, [this] { close(); }},
        {Qt::CTRL | Qt::Key_W, [this] { close(); }},
        {Qt::Key_F1, [this] { ShowContents(); }},
        {Qt::ALT | Qt::Key_Left, [this] { page_->backward(); }},
        {Qt::ALT | Qt::Key_Right, [this] { page_->forward(); }},
        {Qt::ALT | Qt::Key_Home, [this] { GoTo(HelpFile::FirstPage()); }},
        {Qt::CTRL | Qt::Key_F,
         [this] {
             find_->setFocus(Qt::ShortcutFocusReason);
             find_->selectAll();
         }},
        {Qt::Key_F3, [this] { Find(false); }},
        {Qt::SHIFT | Qt::Key_F3, [this] { Find(true); }},
    };
    for (const auto& row : rows) {
        auto* action = new QAction(this);
        action->setShortcut(row.keys);
        connect(action, &QAction::triggered, this, row.act);
        addAction(action);
    }
}

void HelpWindow::BringToFront()
{
    WindowPlaces::Instance().ShowInFront(*this);
}

void HelpWindow::ShowContents()
{
    tabs_->setCurrentWidget(contents_);
    contents_->setFocus(Qt::OtherFocusReason);
    BringToFront();
}

void HelpWindow::ShowSearch()
{
    tabs_->setCurrentWidget(search_);
    search_->TakeFocus();
    BringToFront();
}

void HelpWindow::ShowTopic(const QString& name)
{
    tabs_->setCurrentWidget(contents_);
    // Pictures are scaled to the page as shown.
    BringToFront();
    GoTo(file_->Topic(name));
    page_->setFocus(Qt::OtherFocusReason);
}

void HelpWindow::GoTo(const QUrl& address)
{
    page_->setSource(address);
}

void HelpWindow::FollowContents(const QModelIndex& index)
{
    const QHelpContentItem* item = following_ ? nullptr : file_->Engine().contentModel()->contentItemAt(index);
    if (item != nullptr) {
        GoTo(item->url());
    }
}

/// An entry for a place on the page shown stays selected.
void HelpWindow::FollowPage(const QUrl& address)
{
    const QHelpContentItem* item = file_->Engine().contentModel()->contentItemAt(contents_->currentIndex());
    if (item != nullptr && item->url().path() == address.path()) {
        return;
    }
    following_ = true;
    contents_->setCurrentIndex(contents_->indexOf(address));
    following_ = false;
}

void HelpWindow::ShowFound(const QUrl& address, const QString& text)
{
    GoTo(address);
    find_->setText(text);
    page_->ShowWords(text);
    page_->setFocus(Qt::OtherFocusReason);
}

void HelpWindow::Find(bool backwards)
{
    const QString text = find_->text();
    notFound_->setVisible(!text.isEmpty() && !page_->FindText(text, backwards));
}

} // namespace zelvia
