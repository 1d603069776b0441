// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/BoxScript.h"

#include "support/ShownTexts.h"
#include "toolkit/QtText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <utility>

namespace zelvia::test
{
namespace
{

constexpr int kLookEvery = 5;

QString Shown(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString Described(const QWidget& window)
{
    const auto* box = qobject_cast<const QMessageBox*>(&window);
    return box != nullptr ? QStringLiteral("box ") + Shown(box->text())
                          : QStringLiteral("window ") + Shown(window.windowTitle());
}

/// Qt's own question in a file dialog has that dialog's title and is no text of the program.
void NoteShown(const QMessageBox& box)
{
    if (box.windowTitle() != ExpectedBox().title) {
        return;
    }
    static const QMap<QMessageBox::Icon, const char*> icons = {{QMessageBox::NoIcon, "-"},
                                                               {QMessageBox::Critical, "critical"},
                                                               {QMessageBox::Warning, "exclamation"},
                                                               {QMessageBox::Information, "information"}};
    std::string buttons;
    for (const auto& [button, name] : {std::pair{QMessageBox::Yes, "Yes "}, std::pair{QMessageBox::No, "No "},
                                       std::pair{QMessageBox::Ok, "OK "}, std::pair{QMessageBox::Cancel, "Cancel "}}) {
        buttons += box.standardButtons().testFlag(button) ? name : "";
    }
    ShownTexts::NoteBox(box.text().toStdString(), icons.value(box.icon(), "?"),
                        buttons.substr(0, buttons.find_last_not_of(' ') + 1));
}

} // namespace

BoxScript::BoxScript()
{
    LookLater();
}

void BoxScript::LookLater()
{
    QTimer::singleShot(kLookEvery, this, &BoxScript::Look);
}

void BoxScript::Look()
{
    // The next look is asked for first: an answer may bring up the next box before it returns.
    LookLater();
    QWidget* window = QApplication::activeModalWidget();
    // A window of the program that blocks another one is the test's own affair.
    if (qobject_cast<QDialog*>(window) == nullptr || !window->isVisible() || window == inHand_) {
        return;
    }
    if (!window->isActiveWindow()) {
        window->activateWindow();
        return;
    }
    const QPointer<QWidget> outer = std::exchange(inHand_, window);
    Meet(*window);
    inHand_ = outer;
}

void BoxScript::Meet(QWidget& window)
{
    auto* box = qobject_cast<QMessageBox*>(&window);
    auto* dialog = qobject_cast<QFileDialog*>(&window);
    const bool fits = !steps_.empty() &&
                      (box != nullptr ? std::holds_alternative<ExpectedBox>(steps_.front().what)
                                      : dialog != nullptr && !std::holds_alternative<ExpectedBox>(steps_.front().what));
    if (!fits) {
        Note(QStringLiteral("not expected: ") + Described(window));
        window.close();
        return;
    }
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    const auto* expectedBox = std::get_if<ExpectedBox>(&step.what);
    if (expectedBox != nullptr) {
        Check(*box, *expectedBox);
    }
    const QPointer<QWidget> open = &window;
    if (step.look) {
        step.look();
    }
    if (open.isNull() || !window.isVisible()) {
        return;
    }
    if (expectedBox != nullptr) {
        Answer(*box, *expectedBox);
    } else if (const auto* work = std::get_if<DialogWork>(&step.what)) {
        Answer(*dialog, *work);
    } else {
        Answer(*dialog, std::get<ExpectedDialog>(step.what));
    }
}

void BoxScript::Check(const QMessageBox& box, const ExpectedBox& expected)
{
    const auto compare = [&](bool same, const QString& what) {
        if (!same) {
            Note(what + QStringLiteral(" of box ") + Shown(box.text()) + QStringLiteral(", expected ") +
                 Shown(expected.text));
        }
    };
    NoteShown(box);
    compare(box.text() == expected.text, QStringLiteral("text"));
    compare(box.icon() == expected.icon, QStringLiteral("icon"));
    compare(box.standardButtons() == expected.buttons, QStringLiteral("buttons"));
    compare(box.windowTitle() == expected.title, QStringLiteral("title"));
    compare(box.standardButtons().testFlag(expected.press), QStringLiteral("missing button"));
}

void BoxScript::Answer(QMessageBox& box, const ExpectedBox& expected)
{
    if (QAbstractButton* button = box.button(expected.press)) {
        QTest::mouseClick(button, Qt::LeftButton);
    } else {
        box.close();
    }
}

void BoxScript::Answer(QFileDialog& dialog, const DialogWork& work)
{
    const QPointer<QFileDialog> open = &dialog;
    work(dialog);
    if (!open.isNull() && dialog.isVisible()) {
        dialog.reject();
    }
}

void BoxScript::Answer(QFileDialog& dialog, const ExpectedDialog& expected)
{
    const auto compare = [&](const QString& got, const QString& wanted, const char* what) {
        if (got != wanted) {
            Note(QLatin1String(what) + QStringLiteral(" of a dialog: ") + Shown(got) + QStringLiteral(", expected ") +
                 Shown(wanted));
        }
    };
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    auto* filters = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    auto* buttons = dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    ShownTexts::NoteDialog(dialog.windowTitle().toStdString(), filters->currentText().toStdString());
    compare(dialog.windowTitle(), expected.title, "title");
    compare(filters->count() == 1 ? filters->currentText() : QStringLiteral("several"), expected.filter, "filter");
    compare(dialog.directory().path(), expected.directory, "directory");
    compare(QString::number(dialog.acceptMode()), QString::number(expected.mode), "mode");
    compare(name->text(), expected.preset, "preset name");
    if (expected.choose.isNull()) {
        QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        return;
    }
    // Typed, since only typing gives up the file that the dialog has selected by itself.
    name->setFocus();
    name->selectAll();
    for (const QChar character : expected.choose) {
        QTest::sendKeyEvent(QTest::Click, name, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
    if (name->completer() != nullptr) {
        name->completer()->popup()->hide();
    }
    QAbstractButton* accept =
        buttons->button(expected.mode == QFileDialog::AcceptOpen ? QDialogButtonBox::Open : QDialogButtonBox::Save);
    const bool takesIt = accept != nullptr && accept->isEnabled();
    if (takesIt != expected.takesIt) {
        Note(QStringLiteral("the dialog takes, or does not take, ") + Shown(expected.choose));
    }
    if (!takesIt || !expected.takesIt) {
        dialog.reject();
        return;
    }
    QTest::mouseClick(accept, Qt::LeftButton);
}

QString BoxScript::Problems() const
{
    QStringList all = problems_;
    for (const Step& step : steps_) {
        const auto* box = std::get_if<ExpectedBox>(&step.what);
        const auto* dialog = std::get_if<ExpectedDialog>(&step.what);
        all << QStringLiteral("did not come: ") + Shown(box != nullptr      ? box->text
                                                        : dialog != nullptr ? dialog->title
                                                                            : QStringLiteral("a dialog"));
    }
    return all.join(QLatin1Char('\n'));
}

ExpectedBox BoxOf(const Message& message, QMessageBox::StandardButton press, std::initializer_list<TextView> parts)
{
    const QMap<MsgIcon, QMessageBox::Icon> icons = {{MsgIcon::None, QMessageBox::NoIcon},
                                                    {MsgIcon::Critical, QMessageBox::Critical},
                                                    {MsgIcon::Exclamation, QMessageBox::Warning},
                                                    {MsgIcon::Information, QMessageBox::Information}};
    const QMap<MsgButtons, QMessageBox::StandardButtons> buttons = {
        {MsgButtons::OK, QMessageBox::Ok},
        {MsgButtons::OKCancel, QMessageBox::Ok | QMessageBox::Cancel},
        {MsgButtons::YesNoCancel, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel}};
    return {ToQString(Filled(message, parts).text), icons[message.icon], buttons[message.buttons], press};
}

ExpectedBox Report(const QString& text)
{
    return {text};
}

ExpectedBox Warning(const QString& text)
{
    return {text, QMessageBox::Warning};
}

} // namespace zelvia::test
