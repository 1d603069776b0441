// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/guide/SearchPane.h"

#include "toolkit/Accessible.h"
#include "toolkit/Fonts.h"

#include <QHelpSearchEngine>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace zelvia
{
namespace
{

constexpr int kAddressRole = Qt::UserRole;
constexpr int kResultsPixels = 15;
constexpr int kTypingPause = 200;
constexpr int kMostResults = 50;

/// Shorter words are searched whole: as a beginning they would find nearly all pages.
constexpr qsizetype kShortWord = 3;

} // namespace

QString SearchQuery(const QString& text)
{
    QStringList query;
    QString word;
    const auto finish = [&] {
        if (!word.isEmpty()) {
            query << QLatin1Char('"') + word + QLatin1Char('"') +
                         (word.size() < kShortWord ? QString() : QStringLiteral("*"));
            word.clear();
        }
    };
    for (const QChar character : text) {
        if (character.isLetterOrNumber()) {
            word += character;
        } else {
            finish();
        }
    }
    finish();
    return query.join(QLatin1Char(' '));
}

SearchPane::SearchPane(QHelpSearchEngine& engine, QWidget* parent)
    : QWidget(parent), words(new QLineEdit), results(new QListWidget), state(new QLabel), engine_(engine)
{
    words->setObjectName(QStringLiteral("words"));
    AddClearButton(*words);
    results->setObjectName(QStringLiteral("results"));
    results->setAccessibleName(tr("Argomenti trovati"));
    results->setFont(PrintFont(kResultsPixels));
    results->setWordWrap(true);
    results->setSpacing(2);
    state->setObjectName(QStringLiteral("state"));
    state->setTextFormat(Qt::PlainText);
    auto* caption = new QLabel(tr("&Parole da cercare:"));
    caption->setBuddy(words);
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : std::initializer_list<QWidget*>{caption, words, state, results}) {
        layout->addWidget(widget);
    }
    words->installEventFilter(this);

    typing_.setSingleShot(true);
    typing_.setInterval(kTypingPause);
    connect(&typing_, &QTimer::timeout, this, &SearchPane::Search);
    connect(words, &QLineEdit::textChanged, &typing_, qOverload<>(&QTimer::start));
    connect(words, &QLineEdit::returnPressed, this, &SearchPane::Search);
    connect(results, &QListWidget::itemActivated, this, &SearchPane::Choose);
    connect(results, &QListWidget::itemClicked, this, &SearchPane::Choose);
    connect(&engine_, &QHelpSearchEngine::searchingFinished, this, &SearchPane::ShowResults);
    connect(&engine_, &QHelpSearchEngine::indexingFinished, this, [this] {
        indexed_ = true;
        state->clear();
        Search();
    });
    state->setText(tr("Preparazione dell'indice…"));
    engine_.scheduleIndexDocumentation();
}

void SearchPane::TakeFocus()
{
    words->setFocus(Qt::OtherFocusReason);
    words->selectAll();
}

void SearchPane::Search()
{
    typing_.stop();
    const QString query = SearchQuery(words->text());
    if (!indexed_) {
        return;
    }
    if (query.isEmpty()) {
        results->clear();
        state->clear();
        return;
    }
    engine_.search(query);
}

void SearchPane::ShowResults()
{
    const QList<QHelpSearchResult> found =
        SearchQuery(words->text()).isEmpty() ? QList<QHelpSearchResult>() : engine_.searchResults(0, kMostResults);
    results->clear();
    for (const QHelpSearchResult& result : found) {
        const QString snippet = QTextDocumentFragment::fromHtml(result.snippet()).toPlainText().simplified();
        auto* item = new QListWidgetItem(result.title() + QLatin1Char('\n') + snippet, results);
        item->setData(kAddressRole, result.url());
    }
    if (found.isEmpty()) {
        state->setText(tr("Nessun argomento trovato"));
    } else if (found.size() == 1) {
        state->setText(tr("Un argomento trovato"));
    } else {
        state->setText(tr("%1 argomenti trovati").arg(found.size()));
    }
}

void SearchPane::Choose(const QListWidgetItem* item)
{
    Q_EMIT Chosen(item->data(kAddressRole).toUrl(), words->text().simplified());
}

bool SearchPane::eventFilter(QObject* watched, QEvent* event)
{
    // The Down arrow leads from the box into the list.
    if (watched == words && event->type() == QEvent::KeyPress && results->count() > 0 &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
        results->setFocus(Qt::TabFocusReason);
        results->setCurrentRow(0);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zelvia
