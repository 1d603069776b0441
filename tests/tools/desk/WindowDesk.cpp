// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/WindowDesk.h"

#include "support/ActiveWindow.h"
#include "tools/desk/OutcomeTable.h"

#include <QPlainTextEdit>
#include <QPushButton>

namespace zelvia::test
{

void WindowDesk::Open(const std::string& page)
{
    window_.reset();
    desk_ = std::make_unique<Desk>(tools.Native(), "");
    desk_->OpenAllYears = OpenAllYears;
    window_ = std::make_unique<DeskWindow>(*desk_, page);
    window_->show();
    hand::AwaitFront(*window_);
}

QString WindowDesk::Notes()
{
    return Part<QPlainTextEdit>("notes").toPlainText();
}

OutcomeTable& WindowDesk::Table(const char* name)
{
    return Part<OutcomeTable>(name);
}

QPushButton& WindowDesk::Button(const char* name)
{
    return Part<QPushButton>(name);
}

bool WindowDesk::MayRun()
{
    return Button("run").isEnabled();
}

QByteArray WindowDesk::WithoutItsPath(const ToolsDesk& tools)
{
    QByteArray path = QByteArray::fromStdString(tools.Native());
    path.replace('/', '\\');
    return tools.Everything().replace(path, "HERE");
}

} // namespace zelvia::test
