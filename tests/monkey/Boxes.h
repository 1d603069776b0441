// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monkey/Desk.h"
#include "monkey/Dice.h"
#include "monkey/KnownBoxes.h"
#include "monkey/Trail.h"

#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QObject>

#include <functional>
#include <map>

namespace zelvia::monkey
{

/// Answers whatever comes up over the windows, at random: message boxes, file dialogs and menus. A box that
/// the program has no reason to show is a problem.
class Boxes : public QObject
{
    Q_OBJECT

public:
    Boxes(Desk& desk, Dice& dice, Trail& trail);

    /// Runs when a box or a dialog has come up, before it is answered.
    std::function<void()> Meanwhile;

    /// What went wrong, or nothing.
    const QString& Problem() const { return problem_; }

    /// What has been chosen and typed so far; see Situation.
    Situation situation;

    /// Begins a new action.
    void Forget();
    /// Leaves the menus of the menu bar open while keys go on to them.
    bool menusWait = false;
    /// True when the last dialog of that title in this action has been accepted.
    bool Chosen(const QString& title) const { return chosen_.contains(title); }

    std::map<QByteArray, long> counts; ///< Of boxes by text, of dialogs by title, of menus by name.

private:
    void LookLater();
    void Look();
    void Meet(QWidget& window);
    void Answer(QMenu& menu);
    void Answer(QMessageBox& box);
    void Answer(QFileDialog& dialog);
    QString NameFor(const QFileDialog& dialog);
    void CheckAlone(const QWidget& window);
    void Fail(const QString& problem);

    Desk& desk_;
    Dice& dice_;
    Trail& trail_;
    QPointer<QWidget> seen_;
    QPointer<QWidget> inHand_;
    QStringList chosen_;
    int dialogs_ = 0; ///< Answers given to file dialogs in this action.
    QString problem_;
};

} // namespace zelvia::monkey
