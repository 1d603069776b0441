// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Answers the message boxes that open while it lives and keeps their texts.
class BoxAnswer : public QObject
{
    Q_OBJECT

public:
    using Look = std::function<void(QMessageBox&)>;

    /// Presses `button` of each box, after `look` has had a look at it.
    explicit BoxAnswer(QMessageBox::StandardButton button = QMessageBox::Ok, Look look = {});

    /// The texts of the boxes answered, in order.
    const QStringList& Texts() const { return texts_; }

private:
    void Answer();

    QMessageBox::StandardButton button_;
    Look look_;
    QStringList texts_;
    QTimer timer_;
    bool answering_ = false;
};
