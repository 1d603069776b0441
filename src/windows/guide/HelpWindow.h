// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/guide/HelpFile.h"

#include <QWidget>

#include <memory>

class QHelpContentWidget;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QTabWidget;

namespace zelvia
{

class HelpPage;
class SearchPane;

/// The window of the guide: contents and search at the left, the page at the right. Each Show brings it to the front.
/// For the program's focus rules it is another program's window, so a field stays open while the guide is read.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    explicit HelpWindow(std::unique_ptr<HelpFile> file);
    ~HelpWindow() override;

    /// The contents, and the first page unless the guide is open at another.
    void ShowContents();
    void ShowSearch();
    void ShowTopic(const QString& name);

private:
    void BuildButtons();
    void BuildPanes();
    void BuildKeys();
    void BringToFront();
    void GoTo(const QUrl& address);
    void FollowContents(const QModelIndex& index);
    void FollowPage(const QUrl& address);
    void ShowFound(const QUrl& address, const QString& text);
    void Find(bool backwards);

    std::unique_ptr<HelpFile> file_;
    QPushButton* back_;
    QPushButton* forward_;
    QPushButton* home_;
    QLineEdit* find_;
    QLabel* notFound_;
    QTabWidget* tabs_;
    QHelpContentWidget* contents_;
    SearchPane* search_;
    HelpPage* page_;
    bool following_ = false; ///< True while the contents follow the page.
};

} // namespace zelvia
