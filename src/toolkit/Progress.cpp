// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Progress.h"

#include <QApplication>

namespace zelvia
{

Progress::Progress(std::chrono::milliseconds patience) : patience_(patience)
{
    running_.start();
}

void Progress::Tell(const QString& text)
{
    if (running_.elapsed() < patience_.count()) {
        return;
    }
    if (slip_ == nullptr) {
        slip_ = std::make_unique<QLabel>(nullptr, Qt::ToolTip);
        slip_->setObjectName(QStringLiteral("progress"));
        slip_->setTextFormat(Qt::PlainText);
        slip_->setFrameShape(QFrame::StyledPanel);
        slip_->setMargin(12);
    }
    slip_->setText(text);
    slip_->adjustSize();
    if (const QWidget* over = QApplication::activeWindow()) {
        QRect place = slip_->frameGeometry();
        place.moveCenter(over->frameGeometry().center());
        slip_->move(place.topLeft());
    }
    slip_->show();
    // Lets the display show it, and nothing be typed or pressed.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace zelvia
