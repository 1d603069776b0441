// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/desk/Desk.h"
#include "tools/desk/DeskPages.h"
#include "windows/guide/HelpViewer.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

namespace zelvia
{

/// The window of the tools: the pages' names at the left, a page at the right, above them the folder that they work on,
/// below them what is at work.
class DeskWindow : public QWidget
{
    Q_OBJECT

public:
    /// `page` is the action whose page comes up; that of the last time for an empty or unknown one.
    DeskWindow(Desk& desk, const std::string& page);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildFolderLine(QVBoxLayout& all);
    void BuildPages(QVBoxLayout& all);
    void BuildProgress(QVBoxLayout& all);
    void BuildKeys();
    void StopOrClose();
    void ShowFolder();
    void ListDiaries();
    void ChooseFolder();
    void OpenPage(int row);
    int RowOfPage(const std::string& action) const;
    void FollowRunner();
    void FollowTold(const QString& line);
    void ShowGuide();

    Desk& desk_;
    HelpViewer guide_;
    QLineEdit* folder_;
    QComboBox* diary_;
    QListWidget* list_;
    QStackedWidget* stack_;
    QWidget* progress_;
    QProgressBar* bar_;
    QLabel* doing_;
    QPushButton* cancel_;
    QTimer patience_; ///< Runs while something is at work that may be over soon.
    std::vector<const PageRow*> rows_;
    std::vector<DeskPage*> pages_; ///< Made when they first come up.
    bool closing_ = false;
};

} // namespace zelvia
