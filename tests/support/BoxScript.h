// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>

#include <deque>
#include <functional>
#include <variant>

namespace zelvia::test
{

/// A message box that is to come up, in every detail, and the button to be pressed in it.
struct ExpectedBox {
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton press = QMessageBox::Ok;
    QString title = QStringLiteral("Zelvia");
};

/// The box of a message of the program, its parts in their places.
ExpectedBox BoxOf(const Message& message, QMessageBox::StandardButton press = QMessageBox::Ok,
                  std::initializer_list<TextView> parts = {});

/// A file dialog that is to come up; `choose` is the name to type, none cancels.
struct ExpectedDialog {
    QString title;
    QString filter; ///< As it is shown.
    QFileDialog::AcceptMode mode;
    QString directory;
    QString preset; ///< The name that it comes up with.
    QString choose;
    bool takesIt = true; ///< False when the name can't be accepted; the dialog is then cancelled.
};

/// Works a file dialog that is to come up. It is cancelled afterwards, unless it is gone.
using DialogWork = std::function<void(QFileDialog& dialog)>;

/// Answers the boxes and dialogs of the program, the real ones on the screen, in the order in which a test expects
/// them. One that nobody expects is noted and dismissed.
class BoxScript : public QObject
{
    Q_OBJECT

public:
    BoxScript();

    void Expect(ExpectedBox box) { steps_.push_back({std::move(box), {}}); }
    void Expect(ExpectedDialog dialog) { steps_.push_back({std::move(dialog), {}}); }
    void Expect(DialogWork work) { steps_.push_back({std::move(work), {}}); }
    void Expect(const Message& message, QMessageBox::StandardButton press = QMessageBox::Ok)
    {
        Expect(BoxOf(message, press));
    }
    /// Runs while the box or dialog expected last is up, before it is answered; a box may be answered by it.
    void Meanwhile(std::function<void()> look) { steps_.back().look = std::move(look); }

    /// What went wrong so far, and what is still missing; empty when all came as expected.
    QString Problems() const;

private:
    struct Step {
        std::variant<ExpectedBox, ExpectedDialog, DialogWork> what;
        std::function<void()> look;
    };

    void LookLater();
    void Look();
    void Meet(QWidget& window);
    void Check(const QMessageBox& box, const ExpectedBox& expected);
    void Answer(QMessageBox& box, const ExpectedBox& expected);
    void Answer(QFileDialog& dialog, const ExpectedDialog& expected);
    void Answer(QFileDialog& dialog, const DialogWork& work);
    void Note(const QString& problem) { problems_ << problem; }

    std::deque<Step> steps_;
    QStringList problems_;
    QPointer<QWidget> inHand_;
};

/// A plain box of one button, as errors are reported.
ExpectedBox Report(const QString& text);
/// The same with the exclamation mark.
ExpectedBox Warning(const QString& text);

} // namespace zelvia::test

/// Ends a test whose boxes did not come as its script says.
#define VERIFY_SCRIPT(script) QVERIFY2((script).Problems().isEmpty(), qPrintable((script).Problems()))
/// Goes on once all boxes of a script have come and been answered.
#define TRY_SCRIPT(script) QTRY_VERIFY2((script).Problems().isEmpty(), qPrintable((script).Problems()))
