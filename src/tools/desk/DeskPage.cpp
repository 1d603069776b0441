// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/DeskPage.h"

#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Pixels.h"

#include <QLabel>
#include <QPainter>

namespace zelvia
{
namespace
{

/// A heading with the two red lines below it that the head of the diary's page has.
class Heading : public QLabel
{
public:
    explicit Heading(const QString& text) : QLabel(text)
    {
        constexpr int pixels = 26;
        constexpr int room = 9;
        setObjectName(QStringLiteral("heading"));
        setTextFormat(Qt::PlainText);
        setFont(PrintFont(pixels, true));
        setContentsMargins(0, 0, 0, room);
        QPalette printed = PagePalette();
        printed.setColor(QPalette::WindowText, Ink::PrintDark);
        setPalette(printed);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QLabel::paintEvent(event);
        QPainter painter(this);
        const Pixels pixels(painter);
        for (const int above : {5, 2}) {
            painter.fillRect(pixels.Of(QRectF(0, height() - above, width(), 1)), Ink::Accent);
        }
    }
};

} // namespace

DeskPage::DeskPage(Desk& desk, const QString& heading, const QString& purpose) : desk_(desk)
{
    constexpr int margin = 20;
    constexpr int gap = 12;
    auto* text = new QLabel(purpose);
    text->setObjectName(QStringLiteral("purpose"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    setAccessibleName(heading);
    setAccessibleDescription(purpose);
    body_ = new QVBoxLayout;
    body_->setSpacing(gap);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margin, margin / 2, margin, margin / 2);
    all->setSpacing(gap);
    all->addWidget(new Heading(heading));
    all->addWidget(text);
    all->addLayout(body_, 1);
}

} // namespace zelvia
