// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// How the page fills the room it is given: places, faces and what a click does, the size that is kept, small screens.
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "toolkit/WindowPlaces.h"
#include "windows/page/PaperSheet.h"

#include <QFile>
#include <QFileInfo>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>

namespace zelvia::test
{
namespace
{

QSize PageSize(double factor)
{
    return {qRound(1200 * factor), qRound(648 * factor)};
}

/// Resizes the window until the page has so much room.
void GiveRoom(const EntryPage& page, const QSize& room)
{
    const int bar = page->findChild<QMenuBar*>()->height();
    page->resize(room.width(), room.height() + bar);
    QTRY_COMPARE(page->sheet->parentWidget()->size(), room);
}

QScrollArea& Pane(const EntryPage& page)
{
    return *page->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
}

/// The part of a widget that is in the window's frame and not scrolled away.
QRect Seen(const QWidget& widget)
{
    return widget.visibleRegion().boundingRect();
}

QWidget* ShownWindow(const QString& name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [&name](const QWidget* window) {
        return window->objectName() == name && window->isVisible();
    });
    return found != windows.end() ? *found : nullptr;
}

/// A button of any window.
Button* Shown(const QByteArray& name)
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        auto* button = window->findChild<Button*>(QLatin1String(name));
        if (button != nullptr && button->isVisible()) {
            return button;
        }
    }
    return nullptr;
}

QString KeptFile()
{
    return qEnvironmentVariable("XDG_STATE_HOME") + QStringLiteral("/zelvia/frmMain");
}

} // namespace

class GrowthTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        WindowPlaces::Instance().SetScreen({});
        QFile::remove(KeptFile());
    }
    void placesAndFaces_data();
    void placesAndFaces();
    void onTheMiddleOfTheDesk();
    void limits_data();
    void limits();
    void fieldsAtEachSize_data();
    void fieldsAtEachSize();
    void anOpenListShowsWholeEntries();
    void backAsItWas();
    void aSmallerScreen_data();
    void aSmallerScreen();
    void theSizeIsKept();
    void anUntouchedSizeIsNotKept();
    void aDamagedSize_data();
    void aDamagedSize();
    void otherWindows_data();
    void otherWindows();
    void rowsComeIntoSight();
    void aStatisticOpensAtItsTitle();
};

void GrowthTest::placesAndFaces_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<QRect>("route"); // 168, 94, 232 x 26, in a face of 17 pixels
    QTest::addColumn<QRect>("box");   // 164, 92, 236 x 30
    QTest::addColumn<QRect>("note");  // 648, 306, 480 x 26
    QTest::addColumn<int>("pen");
    QTest::addColumn<int>("date"); // 24 pixels
    QTest::newRow("0.7") << 0.7 << QRect(118, 66, 162, 18) << QRect(115, 64, 165, 21) << QRect(454, 214, 336, 18) << 15
                         << 17;
    QTest::newRow("1") << 1.0 << QRect(168, 94, 232, 26) << QRect(164, 92, 236, 30) << QRect(648, 306, 480, 26) << 22
                       << 24;
    QTest::newRow("1.5") << 1.5 << QRect(252, 141, 348, 39) << QRect(246, 138, 354, 45) << QRect(972, 459, 720, 39)
                         << 33 << 36;
    QTest::newRow("2.5") << 2.5 << QRect(420, 235, 580, 65) << QRect(410, 230, 590, 75) << QRect(1620, 765, 1200, 65)
                         << 55 << 60;
}

void GrowthTest::placesAndFaces()
{
    QFETCH(double, factor);
    EntryPage page;
    page.Start();
    GiveRoom(page, PageSize(factor));
    QCOMPARE(page->sheet->Factor(), factor);
    QTEST(page.Field(1).lblImmis->geometry(), "route");
    QTEST(page.Field(1).txt->geometry(), "box");
    QTEST(page->notes[3].lbl->geometry(), "note");
    QTEST(page.Field(1).lblImmis->font().pixelSize(), "pen");
    QTEST(page->notes[3].txt->font().pixelSize(), "pen");
    QTEST(page->lblData->font().pixelSize(), "date");
}

void GrowthTest::onTheMiddleOfTheDesk()
{
    EntryPage page;
    page.Start();
    GiveRoom(page, {1500, 648});
    QCOMPARE(page->sheet->Factor(), 1.0);
    QCOMPARE(page.Field(1).lblImmis->geometry(), QRect(168 + 150, 94, 232, 26));
    GiveRoom(page, {1200, 848});
    QCOMPARE(page.Field(1).lblImmis->geometry(), QRect(168, 94 + 100, 232, 26));
}

void GrowthTest::limits_data()
{
    QTest::addColumn<QSize>("room");
    QTest::addColumn<double>("factor");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("large") << PageSize(2.6) << 2.5 << false;
    QTest::newRow("without the edge of the desk") << QSize(820, 446) << 0.7 << false;
    QTest::newRow("small") << PageSize(0.6) << 0.7 << true;
}

void GrowthTest::limits()
{
    QFETCH(QSize, room);
    QFETCH(bool, scrolls);
    EntryPage page;
    page.Start();
    const int bar = page->findChild<QMenuBar*>()->height();
    page->resize(room.width(), room.height() + bar);
    QTRY_COMPARE(Pane(page).size(), room);
    QTEST(page->sheet->Factor(), "factor");
    QTRY_COMPARE(Pane(page).verticalScrollBar()->isVisible(), scrolls);
    QTRY_COMPARE(Pane(page).horizontalScrollBar()->isVisible(), scrolls);
    if (scrolls) {
        // What gets the focus comes into sight.
        page->notes[10].lbl->SetFocus();
        QTRY_COMPARE(page->notes[10].lbl->visibleRegion().boundingRect(), page->notes[10].lbl->rect());
    }
}

void GrowthTest::fieldsAtEachSize_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<QByteArray>("note"); // At 2.5 the right page is beyond the display of the tests.
    QTest::newRow("0.7") << 0.7 << QByteArray("lblNote3");
    QTest::newRow("1") << 1.0 << QByteArray("lblNote3");
    QTest::newRow("1.3") << 1.3 << QByteArray("lblNote3");
    QTest::newRow("2.5") << 2.5 << QByteArray();
}

void GrowthTest::fieldsAtEachSize()
{
    QFETCH(double, factor);
    QFETCH(QByteArray, note);
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    GiveRoom(page, PageSize(factor));

    page.Open(2);
    QTRY_VERIFY(page.IsOpen(2));
    ListBox& list = *page.Field(2).lst;
    QCOMPARE(list.geometry().left(), page.Field(2).txt->geometry().left());
    QCOMPARE(list.width(), page.Field(2).txt->width());
    hand::DoubleClick(*list.viewport(), EntryPage::RowAt(list, 1));
    QTRY_VERIFY(!list.isVisible());
    QTRY_COMPARE(page.Field(2).lblImmis->text(), EntryPage::Entries(2)[1]);

    page.Open(*page->lblImmisMetri);
    QTRY_VERIFY(page->upKM->isVisible());
    hand::Click(*page->upKM, QPoint(page->upKM->width() / 2, page->upKM->height() / 4));
    QTRY_COMPARE(page->upKM->Value(), 1);
    hand::Click(*page->upKM, QPoint(page->upKM->width() / 2, page->upKM->height() * 3 / 4));
    QTRY_COMPARE(page->upKM->Value(), 0);
    hand::Key(Qt::Key_Escape);

    if (!note.isEmpty()) {
        auto* label = page->findChild<Label*>(QLatin1String(note));
        page.Open(*label);
        QTRY_VERIFY(page->notes[3].txt->hasFocus());
        hand::Type(QStringLiteral("lento"));
        hand::Key(Qt::Key_Escape);
        QTRY_COMPARE(label->text(), QStringLiteral("lento"));
    }
    VERIFY_SCRIPT(page.script);
}

void GrowthTest::anOpenListShowsWholeEntries()
{
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    page.Open(2);
    QTRY_VERIFY(page.IsOpen(2));
    ListBox& list = *page.Field(2).lst;
    for (const double factor : {1.3, 0.7, 1.0}) {
        GiveRoom(page, PageSize(factor));
        QCOMPARE(list.height(), list.HeightOf(3));
        QCOMPARE(list.viewport()->height(), 3 * list.sizeHintForRow(0));
        // It hangs a pixel of the design below its row, which begins at 123 and is 26 high.
        QVERIFY(std::abs(list.y() - 150 * factor) <= 1);
    }
}

void GrowthTest::backAsItWas()
{
    EntryPage page;
    page.Start();
    const QImage before = page->sheet->grab().toImage();
    GiveRoom(page, PageSize(1.3));
    GiveRoom(page, PageSize(1));
    QCOMPARE(page->sheet->grab().toImage(), before);
}

void GrowthTest::aSmallerScreen_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<bool>("whole"); // As large as designed.
    QTest::newRow("1366x768 at 1") << QSize(1366, 768) << true;
    QTest::newRow("1366x768 at 1.5") << QSize(910, 512) << false;
    QTest::newRow("1280x720") << QSize(1280, 720) << true;
    QTest::newRow("1024x600") << QSize(1024, 600) << false;
}

void GrowthTest::aSmallerScreen()
{
    QFETCH(QSize, screen);
    QFETCH(bool, whole);
    WindowPlaces::Instance().SetScreen(screen);
    EntryPage page;
    page.Start();
    QCOMPARE(page->sheet->Factor() == 1, whole);
    QVERIFY(page->width() <= screen.width());
    constexpr int title = 24;
    QVERIFY(page->height() <= screen.height() - title);
    for (QWidget* widget : {static_cast<QWidget*>(page->lblData), static_cast<QWidget*>(page->notes[10].lbl),
                            static_cast<QWidget*>(page->lblNumGare), static_cast<QWidget*>(page->lblNomeFile)}) {
        QCOMPARE(Seen(*widget).size(), widget->size());
    }
}

void GrowthTest::theSizeIsKept()
{
    {
        EntryPage page;
        page.Start();
        page->resize(1000, 600);
        QTRY_COMPARE(page->size(), QSize(1000, 600));
        QVERIFY(page->Unload());
    }
    QFile file(KeptFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("1000 600\n"));
    {
        EntryPage page;
        page.Start();
        QCOMPARE(page->size(), QSize(1000, 600));
        page->showMaximized();
        QTRY_VERIFY(page->width() > 1200);
        QVERIFY(page->Unload());
    }
    EntryPage page;
    page.Start();
    QTRY_VERIFY(page->isMaximized());
    QTRY_VERIFY(page->width() > 1200);
    page->showNormal();
    QTRY_COMPARE(page->size(), QSize(1000, 600));
}

void GrowthTest::anUntouchedSizeIsNotKept()
{
    WindowPlaces::Instance().SetScreen({1024, 600});
    EntryPage page;
    page.Start();
    QVERIFY(page->Unload());
    QVERIFY(!QFile::exists(KeptFile()));
}

void GrowthTest::aDamagedSize_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("words") << QByteArray("largo alto\n");
    QTest::newRow("no height") << QByteArray("900\n");
    QTest::newRow("negative") << QByteArray("-900 -600\n");
    QTest::newRow("beyond a number") << QByteArray("99999999999 600\n");
}

void GrowthTest::aDamagedSize()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(QDir().mkpath(QFileInfo(KeptFile()).path()));
    QFile file(KeptFile());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    EntryPage page;
    page.Start();
    QCOMPARE(page->sheet->size(), QSize(1200, 648));
}

void GrowthTest::otherWindows_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QByteArray>("menu");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArrayList>("ways"); // The button that opens the window after the first.
    QTest::addColumn<QByteArrayList>("buttons");
    const struct {
        const char* name;
        const char* menu;
        const char* entry;
        QByteArrayList ways;
        QByteArrayList buttons;
    } windows[] = {
        {"frmTabAllenamenti", "mnuTabelle", "mnuAllenamenti", {}, {"cmdOK", "cmdNuovaTab", "cmdEsci"}},
        {"frmAllenamento",
         "mnuTabelle",
         "mnuAllenamenti",
         {"cmdNuovaTab"},
         {"cmdOK", "cmdAttiva", "cmdDisattiva", "cmdCalcoloMedie", "cmdSalva", "cmdStampa", "cmdEsci"}},
        {"frmCalendario", "mnuTabelle", "mnuGare", {}, {"cmdSalva", "cmdStampa", "cmdEsci"}},
        {"frmRicercheStatistiche", "mnuStatistiche", "mnuMedie", {}, {"cmdAvvia", "cmGrafico", "cmdStampa", "cmdEsci"}},
        {"frmStatistiche1", "mnuStatistiche", "mnuPeso", {}, {"cmdTempiLO", "cmGrafico", "cmdStampa", "cmdEsci"}},
        {"frmGrafici", "mnuStatistiche", "mnuPeso", {"cmGrafico"}, {"cmdStampa", "cmdEsci"}},
        {"frmInfo", "mnuHelp", "mnuHelpAbout", {}, {"cmdOK"}},
    };
    const struct {
        const char* name;
        QSize size;
    } screens[] = {{"1366x768 at 1.5", {910, 512}}, {"1280x720", {1280, 720}}, {"1024x600", {1024, 600}}};
    for (const auto& screen : screens) {
        for (const auto& window : windows) {
            QTest::addRow("%s, %s", window.name, screen.name)
                << screen.size << QByteArray(window.menu) << QByteArray(window.entry) << window.ways << window.buttons;
        }
    }
}

void GrowthTest::otherWindows()
{
    QFETCH(QSize, screen);
    QFETCH(QByteArray, menu);
    QFETCH(QByteArray, entry);
    QFETCH(QByteArrayList, ways);
    QFETCH(QByteArrayList, buttons);
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(','), 0, 0);
    WindowPlaces::Instance().SetScreen(screen);
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    page.TakeEntry(menu.constData(), entry.constData());
    for (const QByteArray& way : ways) {
        QTRY_VERIFY(Shown(way) != nullptr);
        Shown(way)->click();
    }
    QTRY_VERIFY(ShownWindow(name) != nullptr);
    QWidget& window = *ShownWindow(name);
    QVERIFY(window.width() <= screen.width());
    constexpr int title = 20;
    QVERIFY2(window.height() <= screen.height() - title, QByteArray::number(window.height()).constData());
    for (const QByteArray& button : buttons) {
        auto* found = window.findChild<Button*>(QLatin1String(button));
        QVERIFY2(found != nullptr, button.constData());
        QCOMPARE(found->window(), &window);
        QCOMPARE(Seen(*found).size(), found->size());
    }
}

void GrowthTest::rowsComeIntoSight()
{
    WindowPlaces::Instance().SetScreen({1024, 600});
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    page.TakeEntry("mnuTabelle", "mnuGare");
    QTRY_VERIFY(ShownWindow(QStringLiteral("frmCalendario")) != nullptr);
    QWidget& window = *ShownWindow(QStringLiteral("frmCalendario"));
    auto* pane = window.findChild<QScrollArea*>();
    QVERIFY(pane != nullptr);
    QTRY_VERIFY(pane->verticalScrollBar()->isVisible() && pane->horizontalScrollBar()->isVisible());
    for (const char* name : {"txtRisultatoCat(18)", "txtGiornoGara(1)"}) {
        auto* box = window.findChild<TextBox*>(QLatin1String(name));
        QVERIFY2(box != nullptr, name);
        box->SetFocus();
        QTRY_COMPARE(box->visibleRegion().boundingRect(), box->rect());
    }
}

/// It opened scrolled down to its list. The row that the keys come to is in sight.
void GrowthTest::aStatisticOpensAtItsTitle()
{
    WindowPlaces::Instance().SetScreen({910, 512});
    EntryPage page;
    page.Start();
    EntryPage::AwaitFront(page.Page());
    page.TakeEntry("mnuStatistiche", "mnuPeso");
    QTRY_VERIFY(ShownWindow(QStringLiteral("frmStatistiche1")) != nullptr);
    QWidget& window = *ShownWindow(QStringLiteral("frmStatistiche1"));
    EntryPage::AwaitFront(window);
    auto& list = *window.findChild<ListBox*>(QStringLiteral("lstStatistica"));
    QTRY_VERIFY(list.hasFocus());
    for (const char* name : {"lblTitolo", "cmdStatitolo", "cmdStatfre"}) {
        const auto* above = window.findChild<QWidget*>(QLatin1String(name));
        QCOMPARE(Seen(*above).size(), above->size());
    }
    for (int row = list.count(); row < 40; ++row) {
        list.addItem(QString::number(row));
    }
    for (const auto& [key, row] : {std::pair(Qt::Key_End, 39), std::pair(Qt::Key_Home, 0)}) {
        hand::Key(key);
        QTRY_COMPARE(list.currentRow(), row);
        const QRect place = list.visualItemRect(list.currentItem());
        QTRY_COMPARE(list.viewport()->visibleRegion().boundingRect() & place, place);
    }
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::GrowthTest)
#include "GrowthTest.moc"
