// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where the windows that are opened from the page come up, and how keys open, raise and close them.
#include "support/Centred.h"
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "windows/routes/FrmDesPercorso.h"

#include <QWindow>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

namespace zelvia::test
{
namespace
{

QWidget* Shown(const QString& name)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == name && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

/// The window that a window is transient for on the X server, 0 for none.
WId TransientFor(WId window)
{
    xcb_connection_t* server = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const auto asked = xcb_get_property(server, 0, static_cast<xcb_window_t>(window), XCB_ATOM_WM_TRANSIENT_FOR,
                                        XCB_ATOM_WINDOW, 0, 1);
    xcb_get_property_reply_t* property = xcb_get_property_reply(server, asked, nullptr);
    xcb_window_t parent = 0;
    if (property != nullptr && xcb_get_property_value_length(property) >= static_cast<int>(sizeof parent)) {
        std::memcpy(&parent, xcb_get_property_value(property), sizeof parent);
    }
    std::free(property);
    return parent;
}

void Await(const QWidget& window)
{
    if (!hand::OnX11()) {
        // There is no manager that would do it.
        const_cast<QWidget&>(window).activateWindow();
    }
    EntryPage::AwaitFront(window);
}

} // namespace

class WindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachOverThePage_data();
    void eachOverThePage();
    void theEditorAndTheChartToo();
    void theDescriptionOfARoute();
    void thePageStays();
    void aMinimizedOneComesBack();
    void eachShowsWhereTheKeysAre();
    void aValueStaysWhereItIs();
};

void WindowsTest::eachOverThePage_data()
{
    QTest::addColumn<QByteArray>("menu");
    QTest::addColumn<QByteArray>("entry");
    const auto row = [](const char* window, const char* menu, const char* entry) {
        QTest::newRow(window) << QByteArray(menu) << QByteArray(entry);
    };
    row("frmTabAllenamenti", "mnuTabelle", "mnuAllenamenti");
    row("frmCalendario", "mnuTabelle", "mnuGare");
    row("frmRicercheStatistiche", "mnuStatistiche", "mnuMedie");
    row("frmStatistiche1", "mnuStatistiche", "mnuPeso");
    row("frmInfo", "mnuHelp", "mnuHelpAbout");
}

void WindowsTest::eachOverThePage()
{
    QFETCH(QByteArray, menu);
    QFETCH(QByteArray, entry);
    const QString name = QLatin1String(QTest::currentDataTag());
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    const auto open = [&] {
        page.TakeEntry(menu.constData(), entry.constData());
        QTRY_VERIFY(Shown(name) != nullptr);
        Await(*Shown(name));
    };
    open();
    QWidget* window = Shown(name);
    QTRY_COMPARE(OffCentre(*window, page.Page()), 0);
    QCOMPARE(window->windowHandle()->transientParent(), page->windowHandle());
    if (hand::OnX11()) {
        QCOMPARE(TransientFor(window->winId()), page->winId());
    }

    // The command again: the same window, in front, where the user has moved it.
    const QPoint moved = MoveBy(*window, {37, 23});
    QTRY_COMPARE(PlaceOf(*window), moved);
    page->activateWindow();
    EntryPage::AwaitFront(page.Page());
    open();
    QCOMPARE(Shown(name), window);
    QCOMPARE(PlaceOf(*window), moved);

    // Closed and opened again it is there, too.
    hand::Key(Qt::Key_W, Qt::ControlModifier);
    QTRY_COMPARE(Shown(name), nullptr);
    page.TakeFront();
    open();
    QTRY_COMPARE(PlaceOf(*Shown(name)), moved);
    VERIFY_SCRIPT(page.script);
}

void WindowsTest::theEditorAndTheChartToo()
{
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    const struct {
        const char* menu;
        const char* entry;
        const char* window;
        const char* button;
        const char* opened;
    } rows[] = {{"mnuTabelle", "mnuAllenamenti", "frmTabAllenamenti", "cmdNuovaTab", "frmAllenamento"},
                {"mnuStatistiche", "mnuPeso", "frmStatistiche1", "cmGrafico", "frmGrafici"}};
    for (const auto& row : rows) {
        page.TakeEntry(row.menu, row.entry);
        QTRY_VERIFY(Shown(QLatin1String(row.window)) != nullptr);
        QWidget& opener = *Shown(QLatin1String(row.window));
        Await(opener);
        hand::Click(*opener.findChild<Button*>(QLatin1String(row.button)));
        QTRY_VERIFY(Shown(QLatin1String(row.opened)) != nullptr);
        const QWidget& opened = *Shown(QLatin1String(row.opened));
        Await(opened);
        // The border of a window that can be resized is wider below.
        constexpr int wider = 4;
        QTRY_VERIFY(OffCentre(opened, page.Page()) <= wider);
        QCOMPARE(opened.windowHandle()->transientParent(), page->windowHandle());
        hand::Key(Qt::Key_W, Qt::ControlModifier);
        QTRY_COMPARE(Shown(QLatin1String(row.opened)), nullptr);
        Await(opener);
        hand::Key(Qt::Key_W, Qt::ControlModifier);
        QTRY_COMPARE(Shown(QLatin1String(row.window)), nullptr);
        page.TakeFront();
    }
    VERIFY_SCRIPT(page.script);
}

void WindowsTest::theDescriptionOfARoute()
{
    EntryPage page;
    page.Start();
    const auto open = [&](const char* name) {
        page.Open(1);
        page.TypeOver(*page.Field(1).txt, QLatin1String(name));
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY(page.RouteWindow() != nullptr);
        Await(*page.RouteWindow());
    };
    open("Delta");
    frmDesPercorso* window = page.RouteWindow();
    QTRY_COMPARE(OffCentre(*window, page.Page()), 0);
    const QPoint moved = MoveBy(*window, {20, 31});
    QTRY_COMPARE(PlaceOf(*window), moved);
    window->txtKm[1]->SetContent("7");
    hand::Key(Qt::Key_W, Qt::ControlModifier);
    QTRY_VERIFY(page.RouteWindow() == nullptr);
    page.TakeFront();
    // As the close box does, the key stores it.
    QVERIFY(page->upKM->Value() == 7);
    open("Epsilon");
    QTRY_COMPARE(PlaceOf(*page.RouteWindow()), moved);
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void WindowsTest::thePageStays()
{
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    hand::Key(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(StaysFalse([&] { return page.Gone() || !page->isVisible(); }));
    VERIFY_SCRIPT(page.script);
}

void WindowsTest::aMinimizedOneComesBack()
{
    EntryPage page;
    page.Start();
    page.TakeEntry("mnuTabelle", "mnuGare");
    QTRY_VERIFY(Shown(QStringLiteral("frmCalendario")) != nullptr);
    QWidget* window = Shown(QStringLiteral("frmCalendario"));
    Await(*window);
    window->showMinimized();
    QTRY_VERIFY(window->isMinimized());
    page->setWindowState(Qt::WindowNoState);
    page->activateWindow();
    EntryPage::AwaitFront(page.Page());
    page.TakeEntry("mnuTabelle", "mnuGare");
    QTRY_VERIFY(!window->isMinimized());
    Await(*window);
    VERIFY_SCRIPT(page.script);
}

void WindowsTest::eachShowsWhereTheKeysAre()
{
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    page.TakeEntry("mnuHelp", "mnuHelpAbout");
    QTRY_VERIFY(Shown(QStringLiteral("frmInfo")) != nullptr);
    QWidget& window = *Shown(QStringLiteral("frmInfo"));
    Await(window);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("cmdOK"));
    const auto edge = [&] {
        const QWidget& button = *window.focusWidget();
        return window.grab().toImage().pixelColor(button.geometry().topLeft() + QPoint(button.width() / 2, 0));
    };
    QCOMPARE(edge(), QColor(26, 58, 140));
}

void WindowsTest::aValueStaysWhereItIs()
{
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    int labels = 0;
    for (Label* label : page->findChildren<Label*>()) {
        if (label->focusPolicy() != Qt::TabFocus || !label->isVisible()) {
            continue;
        }
        ++labels;
        const auto inside = [&] { return label->grab(label->rect().adjusted(2, 2, -2, -2)).toImage(); };
        const QImage before = inside();
        label->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(label->hasFocus());
        QVERIFY2(inside() == before, qPrintable(label->objectName()));
    }
    QVERIFY(labels > 20);
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::WindowsTest)
#include "WindowsTest.moc"
