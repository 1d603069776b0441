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

/// What the search engine is asked for a text as the user typed or copied it: every word, whatever signs stand around
/// it, the beginning of a longer word too. Empty for a text without a word.
QString SearchQuery(const QString& text);

/// The search of the whole guide: a box for the words and the pages that hold them all. The index of the words is made
/// in the background; what is asked meanwhile is answered when it is ready.
class SearchPane : public QWidget
{
    Q_OBJECT

public:
    explicit SearchPane(QHelpSearchEngine& engine, QWidget* parent = nullptr);

    /// Puts the keyboard into the box, what it holds selected.
    void TakeFocus();

    QLineEdit* words;
    QListWidget* results;
    QLabel* state;

Q_SIGNALS:
    /// A page was chosen, found by that text.
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
