// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/Boxes.h"

#include "monkey/Texts.h"
#include "support/Hand.h"

#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace zelvia::monkey
{
namespace
{

constexpr int kLookEvery = 1;
constexpr int kMostDialogs = 3; ///< That are accepted in one action: a refused name brings its dialog up again.

const QString kTableDialog = QStringLiteral("Salva Tabella con nome");

struct DialogData {
    QString title;
    QString filter;
    QFileDialog::AcceptMode mode;
};

const DialogData kDialogs[] = {
    {QStringLiteral("Apri"), QStringLiteral("File Zelvia (*. zlv)"), QFileDialog::AcceptOpen},
    {QStringLiteral("Salva con nome"), QStringLiteral("File Zelvia (*.zlv)"), QFileDialog::AcceptSave},
    {QStringLiteral("Nuovo file"), QStringLiteral("File Zelvia (*.zlv)"), QFileDialog::AcceptSave},
    {kTableDialog, QStringLiteral("File Tabella (*.tab)"), QFileDialog::AcceptSave},
};

/// Names for a diary or a table, without their extension.
const QString kNames[] = {QStringLiteral("prova"), QStringLiteral("uno"),         QStringLiteral("due"),
                          QStringLiteral("Città"), QStringLiteral("l'anno 2027"), QStringLiteral("UNO")};

bool IsOfMenuBar(const QMenu& menu)
{
    const QList<QObject*> holders = menu.menuAction()->associatedObjects();
    return std::any_of(holders.begin(), holders.end(),
                       [](QObject* holder) { return qobject_cast<QMenuBar*>(holder) != nullptr; });
}

QString Key(QString text)
{
    static const QRegularExpression changing(QStringLiteral("\\d+|LA TABELLA .*"));
    return text.replace(changing, QStringLiteral("…")).simplified();
}

} // namespace

Boxes::Boxes(Desk& desk, Dice& dice, Trail& trail) : situation{desk}, desk_(desk), dice_(dice), trail_(trail)
{
    LookLater();
}

void Boxes::LookLater()
{
    QTimer::singleShot(kLookEvery, Qt::PreciseTimer, this, &Boxes::Look);
}

void Boxes::Forget()
{
    situation.strange = false;
    chosen_.clear();
    dialogs_ = 0;
}

void Boxes::Fail(const QString& problem)
{
    if (problem_.isEmpty()) {
        problem_ = problem;
    }
}

void Boxes::Look()
{
    // The next look is asked for first: an answer may bring up the next box before it returns.
    LookLater();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu != nullptr && menusWait && IsOfMenuBar(*menu)) {
        return;
    }
    QWidget* window = menu;
    if (window == nullptr) {
        window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    }
    if (window == nullptr || !window->isVisible() || window == inHand_) {
        seen_.clear();
        return;
    }
    // Met on the second look: whatever was on its way when it came up has then arrived.
    if (std::exchange(seen_, window) != window) {
        return;
    }
    seen_.clear();
    if (qobject_cast<QMenu*>(window) == nullptr && !window->isActiveWindow()) {
        window->activateWindow();
        return;
    }
    const QPointer<QWidget> outer = std::exchange(inHand_, window);
    Meet(*window);
    inHand_ = outer;
}

void Boxes::Meet(QWidget& window)
{
    if (auto* menu = qobject_cast<QMenu*>(&window)) {
        Answer(*menu);
        return;
    }
    CheckAlone(window);
    if (Meanwhile) {
        Meanwhile();
    }
    if (auto* box = qobject_cast<QMessageBox*>(&window)) {
        Answer(*box);
    } else if (auto* dialog = qobject_cast<QFileDialog*>(&window)) {
        Answer(*dialog);
    } else {
        Fail(QStringLiteral("a dialog of another kind: ") + window.windowTitle());
        window.close();
    }
}

/// One box or dialog at a time, but for the questions of a file dialog over it.
void Boxes::CheckAlone(const QWidget& window)
{
    for (const QWidget* other : QApplication::topLevelWidgets()) {
        if (other == &window || !other->isVisible() || qobject_cast<const QDialog*>(other) == nullptr) {
            continue;
        }
        const auto* box = qobject_cast<const QMessageBox*>(&window);
        if (box == nullptr || box->parentWidget() != other) {
            Fail(QStringLiteral("%1 over %2").arg(window.windowTitle(), other->windowTitle()));
        }
    }
}

void Boxes::Answer(QMenu& menu)
{
    QList<QAction*> entries;
    for (QAction* action : menu.actions()) {
        if (action->isVisible() && action->isEnabled() && !action->isSeparator() && action->menu() == nullptr) {
            entries << action;
        }
    }
    ++counts["menu " + menu.objectName().toLatin1()];
    const int way = dice_.Below(10);
    int entry = dice_.Below(static_cast<int>(entries.size()));
    // Once in a while only: what a run of the program has led to takes its time.
    const bool leave = dice_.OneIn(4);
    if (!leave && entry < entries.size() && entries[entry]->objectName() == QLatin1String("mnuFileExit")) {
        entry = 0;
    }
    if (way == 0 || entries.isEmpty()) {
        trail_.Note(QStringLiteral("[menu: Escape]"));
        QTest::keyClick(&menu, Qt::Key_Escape);
    } else if (way == 1) {
        trail_.Note(QStringLiteral("[menu: beside it]"));
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, {-3, -3});
    } else {
        const QAction* action = entries[entry];
        trail_.Note(
            QStringLiteral("[menu: %1]").arg(action->objectName().isEmpty() ? action->text() : action->objectName()));
        if (way == 2) {
            menu.setActiveAction(entries[entry]);
            QTest::keyClick(&menu, Qt::Key_Return);
        } else {
            QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, menu.actionGeometry(entries[entry]).center());
        }
    }
    // A press that the menu had no use for.
    if (qApp->activePopupWidget() == &menu && menu.isVisible()) {
        menu.close();
    }
}

void Boxes::Answer(QMessageBox& box)
{
    ++counts["box " + Key(box.text()).toUtf8()];
    const QString wrong = WrongWith(box, situation);
    if (!wrong.isEmpty()) {
        Fail(wrong);
    }
    const QList<QAbstractButton*> buttons = box.buttons();
    const int way = dice_.Below(8);
    QAbstractButton* button = buttons[dice_.Below(static_cast<int>(buttons.size()))];
    trail_.Note(QStringLiteral("[%1: %2]")
                    .arg(box.text().simplified(), way == 0   ? QStringLiteral("Escape")
                                                  : way == 1 ? QStringLiteral("Return")
                                                             : button->text()));
    if (way == 0) {
        QTest::keyClick(&box, Qt::Key_Escape);
    } else if (way == 1) {
        QTest::keyClick(&box, Qt::Key_Return);
    } else {
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

QString Boxes::NameFor(const QFileDialog& dialog)
{
    const int kind = dice_.Below(20);
    const QString name = dice_.Of(kNames);
    const bool table = dialog.windowTitle() == kTableDialog;
    switch (kind) {
    case 0: return desk_.folder.Native(QStringLiteral("altrove/") + name);
    case 1: return desk_.folder.Native(table ? QStringLiteral("altro.tab") : QStringLiteral("nomeload"));
    case 2: return name + (table ? QStringLiteral(".tab") : QStringLiteral(".zlv"));
    case 3: situation.strange = true; return QStringLiteral("日本");
    case 4: return {};
    case 5: situation.strange = true; return QStringLiteral("manca/") + name;
    case 6: return QString(300, QLatin1Char('n'));
    default: return name;
    }
}

void Boxes::Answer(QFileDialog& dialog)
{
    ++counts["dialog " + dialog.windowTitle().toUtf8()];
    const auto known = std::find_if(std::begin(kDialogs), std::end(kDialogs),
                                    [&](const DialogData& data) { return data.title == dialog.windowTitle(); });
    auto* filters = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    if (known == std::end(kDialogs) || known->mode != dialog.acceptMode() || filters->currentText() != known->filter) {
        Fail(QStringLiteral("a dialog that is not known: ") + dialog.windowTitle());
    }
    auto* buttons = dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const bool cancel = dice_.OneIn(6);
    const QString name = NameFor(dialog);
    // The program asks again for a name that it refuses; the last answer counts.
    chosen_.removeAll(dialog.windowTitle());
    if (cancel || ++dialogs_ > kMostDialogs) {
        trail_.Note(QStringLiteral("[%1: cancelled]").arg(dialog.windowTitle()));
        QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        return;
    }
    trail_.Note(QStringLiteral("[%1: %2]")
                    .arg(dialog.windowTitle(), name.size() > 60 ? QStringLiteral("a long name") : Spelt(name)));
    line->setFocus();
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Backspace);
    hand::Type(name);
    if (line->completer() != nullptr) {
        line->completer()->popup()->hide();
    }
    QAbstractButton* accept = buttons->button(dialog.acceptMode() == QFileDialog::AcceptOpen ? QDialogButtonBox::Open
                                                                                             : QDialogButtonBox::Save);
    const QPointer<QFileDialog> open = &dialog;
    const QString title = dialog.windowTitle();
    if (accept != nullptr && accept->isEnabled()) {
        QTest::mouseClick(accept, Qt::LeftButton);
    }
    if (open.isNull() || open->result() == QDialog::Accepted) {
        chosen_ << title;
    } else if (open->isVisible()) {
        open->reject();
    }
}

} // namespace zelvia::monkey
