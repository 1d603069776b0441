// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/Desk.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/CategoryStatistics.h"
#include "diary/TableModel.h"
#include "toolkit/Application.h"
#include "toolkit/Printer.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QFile>
#include <QTest>
#include <QTimerEvent>
#include <QWindow>

#include <algorithm>
#include <cstddef>

namespace zelvia::monkey
{
namespace
{

constexpr int kPatience = 5000;

bool IsOfProgram(const QWidget& window)
{
    return qobject_cast<const Form*>(&window) != nullptr || window.objectName() == QLatin1String("HelpWindow");
}

bool IsBlocked(const QWidget& window)
{
    // The one modal window that is no dialog keeps the page from being worked on.
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != &window && modal->parentWidget() == &window;
}

} // namespace

Desk::Desk()
{
    QFile::copy(QStringLiteral(ZELVIA_GUIDE), folder.Native(QStringLiteral("Guida.hlp")));
    SetProgramFolder(folder.System());
    SetClock([this] { return today; });
    SetPrinterHandler([this](const Sheet& sheet) {
        if (printerBroken) {
            throw ErroreRunTime(Errore::Stampante);
        }
        printed += sheet.Operations().empty() ? 0 : 1;
    });
    qApp->installEventFilter(this);
}

Desk::~Desk()
{
    qApp->removeEventFilter(this);
    // The windows go before the page, those too that were never shown; and some take others with them.
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QPointer<QWidget>& window : QList<QPointer<QWidget>>(widgets.begin(), widgets.end())) {
        if (window != page_ && qobject_cast<Form*>(window) != nullptr) {
            delete window;
        }
    }
    delete page_;
    Application::Instance().ReleaseInstanceLock();
    SetPrinterHandler({});
    SetClock({});
    SetProgramFolder({});
}

void Desk::Start()
{
    Application::Instance().ReleaseInstanceLock();
    Module1::AzzeraTabella();
    Module1::ClearStatistic();
    pageTimer_.clear();
    page_ = new frmMain;
    if (!page_->FormLoad()) {
        qFatal("the folder is locked");
    }
    if (Made) {
        Made(*page_);
    }
    page_->show();
    Activate(*page_);
    QTRY_VERIFY_WITH_TIMEOUT(page_->isActiveWindow(), kPatience);
    ++runs;
    commands_ << "start";
    Settle();
}

bool Desk::Ended() const
{
    return page_.isNull() && Windows().isEmpty();
}

QList<QWidget*> Desk::Windows() const
{
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && IsOfProgram(*window)) {
            windows << window;
        }
    }
    // Qt keeps them in no order.
    std::sort(windows.begin(), windows.end(),
              [](const QWidget* a, const QWidget* b) { return a->objectName() < b->objectName(); });
    return windows;
}

QWidget* Desk::Front() const
{
    QWidget* active = QApplication::activeWindow();
    return active != nullptr && active->isVisible() && IsOfProgram(*active) ? active : nullptr;
}

void Desk::Activate(QWidget& window)
{
    window.raise();
    window.activateWindow();
    Turn();
}

void Desk::Turn()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Desk::Settle()
{
    constexpr int turns = 3;
    for (int quiet = 0; quiet < turns; ++quiet) {
        Turn();
        while (QApplication::activePopupWidget() != nullptr ||
               qobject_cast<QDialog*>(QApplication::activeModalWidget()) != nullptr) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            quiet = 0;
        }
    }
    Restack();
    GiveKeyboard();
}

void Desk::Restack()
{
    for (QWidget* window : Windows()) {
        if (!order_.contains(window)) {
            order_ << window;
            Listen(*window);
            ++windowCounts[window->objectName().toLatin1()];
        }
    }
    order_.removeIf([](const QPointer<QWidget>& window) { return window.isNull() || !window->isVisible(); });
    if (QWidget* front = Front()) {
        order_.removeAll(front);
        order_ << front;
    }
}

void Desk::GiveKeyboard()
{
    QWidget* front = Front();
    if (front != nullptr && QGuiApplication::focusWindow() == front->windowHandle() && !IsBlocked(*front)) {
        return;
    }
    for (auto window = order_.crbegin(); window != order_.crend(); ++window) {
        if (!IsBlocked(**window)) {
            Activate(**window);
            Turn();
            return;
        }
    }
}

void Desk::Listen(QWidget& window)
{
    if (heard_.contains(&window)) {
        return;
    }
    heard_.removeIf([](const QPointer<QWidget>& gone) { return gone.isNull(); });
    heard_ << &window;
    const QByteArray name = window.objectName().toLatin1();
    for (QAction* action : window.findChildren<QAction*>()) {
        connect(action, &QAction::triggered, this,
                [this, name, action] { Note(name, action->objectName().toLatin1()); });
    }
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        connect(button, &QAbstractButton::clicked, this,
                [this, name, button] { Note(name, button->objectName().toLatin1()); });
    }
}

void Desk::Note(const QByteArray& window, const QByteArray& command)
{
    if (!command.isEmpty()) {
        commands_ << window + '.' + command;
        ++commandCounts[commands_.last()];
    }
}

void Desk::Tick()
{
    if (page_.isNull()) {
        return;
    }
    if (!QTest::qWaitFor([this] { return !pageTimer_.isNull(); }, kPatience)) {
        qFatal("the page's timer does not run");
    }
    ticking_ = true;
    QTimerEvent tick(static_cast<QTimer*>(pageTimer_.data())->timerId());
    QCoreApplication::sendEvent(pageTimer_, &tick);
    ticking_ = false;
}

void Desk::Repeat(int times)
{
    repeats_ = times;
    (void)QTest::qWaitFor([this] { return repeats_ == 0; }, kPatience);
    repeats_ = 0;
}

bool Desk::eventFilter(QObject* receiver, QEvent* event)
{
    if (event->type() != QEvent::Timer) {
        return false;
    }
    if (!page_.isNull() && qobject_cast<QTimer*>(receiver) != nullptr) {
        // It lies inside the page's own timer.
        const auto* at = reinterpret_cast<const std::byte*>(receiver);
        const auto* outer = reinterpret_cast<const std::byte*>(page_->tmrFocus);
        if (at >= outer && at < outer + sizeof(Timer)) {
            pageTimer_ = receiver;
            return !ticking_;
        }
    }
    if (qobject_cast<UpDown*>(receiver) != nullptr) {
        return repeats_ == 0 || --repeats_ < 0;
    }
    return false;
}

} // namespace zelvia::monkey
