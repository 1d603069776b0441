// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ScreenFit.h"

#include "toolkit/Button.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/WindowPlaces.h"

#include <QGridLayout>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace zelvia
{
namespace
{

constexpr int kGap = 8;

/// The contents of a window at their full size, on what the window itself draws.
class Contents : public QWidget
{
public:
    explicit Contents(QWidget& window) : QWidget(&window), window_(window)
    {
        setFixedSize(window.size());
        setAutoFillBackground(true);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        window_.render(&painter, QPoint(), rect(), QWidget::RenderFlags());
        QWidget::paintEvent(event);
    }

private:
    QWidget& window_;
};

/// The buttons that share a row or a column with the last one.
std::vector<Button*> Commands(const QWidget& window)
{
    std::vector<Button*> commands;
    const QList<Button*> buttons = window.findChildren<Button*>(QString(), Qt::FindDirectChildrenOnly);
    std::copy_if(buttons.begin(), buttons.end(), std::back_inserter(commands), [&buttons](const Button* button) {
        return button->y() == buttons.last()->y() || button->x() == buttons.last()->x();
    });
    return commands;
}

/// The buttons in rows of a width; null for none.
QWidget* MakeFoot(QWidget& window, int width)
{
    const std::vector<Button*> commands = Commands(window);
    if (commands.empty()) {
        return nullptr;
    }
    auto* foot = new QWidget(&window);
    foot->setAutoFillBackground(true);
    auto* rows = new QGridLayout(foot);
    rows->setContentsMargins(kGap, kGap, kGap, kGap);
    rows->setSpacing(kGap);
    const auto widest = std::max_element(commands.begin(), commands.end(), [](const Button* one, const Button* other) {
        return one->width() < other->width();
    });
    const int alike = std::max((width - kGap) / ((*widest)->width() + kGap), 1);
    const int all = std::accumulate(commands.begin(), commands.end(), kGap,
                                    [](int sum, const Button* button) { return sum + button->width() + kGap; });
    const int columns = all <= width ? static_cast<int>(commands.size()) : alike;
    int place = 0;
    for (Button* button : commands) {
        button->setFixedSize(button->size());
        rows->addWidget(button, place / columns, place % columns);
        ++place;
    }
    return foot;
}

} // namespace

void FitToScreen(QWidget& window, const QWidget& still)
{
    const QSize room = WindowPlaces::Instance().RoomFor(window);
    if (window.minimumSize() != window.maximumSize() || window.size().boundedTo(room) == window.size()) {
        return;
    }
    QWidget* focus = window.focusWidget();
    QWidget* foot = MakeFoot(window, std::min(window.width(), room.width()));
    auto* contents = new Contents(window);
    for (QObject* child : QObjectList(window.children())) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget != nullptr && !widget->isWindow() && widget != foot && widget != contents && widget != &still) {
            widget->setParent(contents);
        }
    }
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* pane = new ScrollPane(&window, contents);
    layout->addWidget(pane, 1);
    QSize full = contents->size();
    if (foot != nullptr) {
        layout->addWidget(foot);
        full.rheight() += foot->sizeHint().height();
    }
    // Where it scrolls in one direction, the bar takes its room from the other.
    const QSize bars(pane->verticalScrollBar()->sizeHint().width(), pane->horizontalScrollBar()->sizeHint().height());
    const QSize wanted =
        full + QSize(full.height() > room.height() ? bars.width() : 0, full.width() > room.width() ? bars.height() : 0);
    window.setFixedSize(wanted.boundedTo(room));
    if (focus != nullptr) {
        focus->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace zelvia
