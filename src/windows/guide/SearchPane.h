// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QUrl>
#include <QWidget>

class QHelpSearchEngine;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace zelvia
{

/// The search engine's query for a text as typed or copied: every word without the punctuation around it, also as the
/// beginning of a longer word. Empty for a text without a word.
QString SearchQuery(const QString& text);

/// The search of the whole guide: a box for the words and the pages that hold them all. The word index is built in the
/// background; a search made before it is ready is answered then.
class SearchPane : public QWidget
{
    Q_OBJECT

public:
    explicit SearchPane(QHelpSearchEngine& engine, QWidget* parent = nullptr);

    /// Gives the box the focus and selects its text.
    void TakeFocus();

    QLineEdit* words;
    QListWidget* results;
    QLabel* state;

Q_SIGNALS:
    /// A page found by `text` was chosen.
    void Chosen(const QUrl& page, const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Search();
    void ShowResults();
    void Choose(const QListWidgetItem* item);

    QHelpSearchEngine& engine_;
    QTimer typing_; ///< Runs while the user types.
    bool indexed_ = false;
};

} // namespace zelvia
