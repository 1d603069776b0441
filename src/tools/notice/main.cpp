// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a text in a window: avviso TEXT [BUTTON...]. For what has to be said before the program is there, when no
// terminal would show it. The exit status is 10 for the first of the buttons, 11 for the second and so on. Enter
// presses the first one, and to close the window is to press the last one; so is the end of the session.
#include "core/MessageBox.h"
#include "toolkit/Application.h"
#include "toolkit/SessionEnd.h"

#include <QMessageBox>
#include <QPushButton>

namespace
{

constexpr int kFirstButton = 10;

int Ask(const QString& text, const QStringList& names)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Zelvia"), QString());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    QList<QAbstractButton*> buttons;
    for (const QString& name : names) {
        const bool last = buttons.size() + 1 == names.size();
        buttons.push_back(box.addButton(name, last ? QMessageBox::RejectRole : QMessageBox::AcceptRole));
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.first()));
    box.setEscapeButton(buttons.last());
    box.exec();
    return kFirstButton + static_cast<int>(buttons.indexOf(box.clickedButton()));
}

} // namespace

int main(int argc, char* argv[])
{
    const zelvia::Application application(argc, argv);
    const zelvia::SessionEnd end;
    if (argc > 2) {
        const QStringList words = QCoreApplication::arguments();
        return zelvia::Application::End(Ask(words[1], words.mid(2)));
    }
    if (argc != 2) {
        return 2;
    }
    zelvia::ShowBox({zelvia::FromUtf8(argv[1]), zelvia::MsgIcon::Exclamation});
    return zelvia::Application::End(0);
}
