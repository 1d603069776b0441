// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QWidget>

#include <filesystem>

class QLabel;

namespace zelvia
{

/// A box for a file's name, and a button that chooses one.
class PathField : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { OpenFile, SaveFile };

    PathField(Kind kind, const QString& accessibleName);

    QLineEdit& Edit() { return *edit_; }
    /// Absolute; empty while nothing is typed.
    std::filesystem::path Path() const;
    /// What the dialog shows, as Qt's file dialog has it, and the end that a name typed without one gets.
    void SetFilter(const QString& filter, const QString& suffix);
    /// A caption whose key leads to the box.
    QLabel* MakeCaption(const QString& text);

Q_SIGNALS:
    void Changed();

private:
    void Choose();

    Kind kind_;
    QLineEdit* edit_;
    QString filter_;
    QString suffix_;
};

/// Asks for a folder, beginning in `start`; empty when none was chosen.
QString AskForFolder(QWidget& parent, const QString& title, const QString& start = {});

} // namespace zelvia
