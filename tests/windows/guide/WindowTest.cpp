// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the guide, worked by hand.
#include "support/WindowTest.h"

#include "support/Centred.h"
#include "support/EntryPage.h"
#include "support/TempFolder.h"
#include "windows/plan/FrmTabAllenamenti.h"
#include "windows/routes/FrmDesPercorso.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTreeView>
#include <QWindow>

namespace zelvia::test
{
namespace
{

constexpr int kPatience = 20000;

QByteArray GuideBytes()
{
    QFile file(QStringLiteral(ZELVIA_GUIDE));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", ZELVIA_GUIDE);
    }
    return file.readAll();
}

QList<QWidget*> HelpWindows()
{
    QList<QWidget*> found;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("HelpWindow")) {
            found << window;
        }
    }
    return found;
}

/// The page on a program folder that has the guide, and the guide's window with its controls.
class Reader : public EntryPage
{
public:
    Reader() { folder.Write(QStringLiteral("Guida.hlp"), GuideBytes()); }

    /// Null unless there is one window, and it is on the screen.
    static QWidget* Window()
    {
        const QList<QWidget*> windows = HelpWindows();
        return windows.size() == 1 && windows.first()->isVisible() ? windows.first() : nullptr;
    }

    template <typename Widget>
    static Widget& Part(const char* name)
    {
        return *Window()->findChild<Widget*>(QLatin1String(name));
    }
    static QTextBrowser& Shown() { return Part<QTextBrowser>("page"); }
    static QString Address() { return Shown().source().toString(QUrl::RemoveScheme | QUrl::RemoveAuthority); }
    static QTreeView& Contents() { return Part<QTreeView>("contents"); }

    /// Starts the page and opens the guide by its key.
    void Open()
    {
        Start();
        EntryPage::AwaitFront(Page());
        hand::Key(Qt::Key_F1);
        AwaitGuide();
    }
    static void AwaitGuide()
    {
        QTRY_VERIFY(Window() != nullptr);
        EntryPage::AwaitFront(*Window());
        QTRY_VERIFY(Contents().model()->rowCount() == 1);
    }

    /// Where a text is on the page shown, in the coordinates of its viewport.
    static QPoint PlaceOf(const QString& text)
    {
        QTextBrowser& page = Shown();
        page.moveCursor(QTextCursor::Start);
        if (!page.find(text)) {
            return {-1, -1};
        }
        QTextCursor cursor = page.textCursor();
        cursor.setPosition(cursor.selectionStart() + 2);
        return page.cursorRect(cursor).center();
    }
};

} // namespace

class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ItsKeyOpensTheContents();
    void TheCommandOfTheMenuOpensTheContents();
    void ASecondCallBringsTheSameWindowToTheFront();
    void TheSearchOpensWithTheKeyboardInItsBox();
    void AFoundPageShowsThePlace();
    void WordsThatStandApartShowTheirParagraph();
    void LinksAndTheWayBackByMouse();
    void LinksAndTheWayBackByKeys();
    void AddressesOutsideAreNotFollowed();
    void TheContentsAreReadWithTheArrows();
    void TheContentsFollowThePage();
    void TextIsFoundOnThePage();
    void PicturesFit();
    void KeysClose_data();
    void KeysClose();
    void ItComesUpOverThePageAndStaysWhereItWas();
    void ItIsReadOverADescription();
    void TabReachesEveryControl();
    void TheKeyInAnotherWindowOpensItsTopic_data();
    void TheKeyInAnotherWindowOpensItsTopic();
    void AFieldStaysOpenWhileTheGuideIsRead();
    void TheEndOfTheProgramClosesTheGuide();
    void RefusedFiles_data();
    void RefusedFiles();

private:
    std::unique_ptr<TempFolder> folder_; ///< Holds what the guide writes, and nothing else.
};

void WindowTest::init()
{
    qputenv("TMPDIR", "/tmp");
    folder_ = std::make_unique<TempFolder>();
}

void WindowTest::ItsKeyOpensTheContents()
{
    Reader reader;
    const QStringList files = reader.folder.Files();
    reader.Open();
    QCOMPARE(Reader::Window()->windowTitle(), QStringLiteral("Guida di Zelvia"));
    QVERIFY(!Reader::Window()->isModal());
    QCOMPARE(Reader::Address(), QStringLiteral("/guida/index.html"));
    QCOMPARE(Reader::Shown().documentTitle(), QStringLiteral("Guida di Zelvia"));
    QVERIFY(Reader::Contents().hasFocus());
    const QModelIndex guide = Reader::Contents().model()->index(0, 0);
    QCOMPARE(guide.data().toString(), QStringLiteral("Guida di Zelvia"));
    QTRY_VERIFY(Reader::Contents().isExpanded(guide));
    QVERIFY(Reader::Contents().model()->rowCount(guide) > 10);
    QCOMPARE(reader.folder.Files(), files);
    VERIFY_SCRIPT(reader.script);
}

void WindowTest::TheCommandOfTheMenuOpensTheContents()
{
    Reader reader;
    reader.Start();
    reader.Menu("mnuHelp", Qt::Key_S);
    Reader::AwaitGuide();
    QVERIFY(Reader::Contents().hasFocus());
    VERIFY_SCRIPT(reader.script);
}

void WindowTest::ASecondCallBringsTheSameWindowToTheFront()
{
    Reader reader;
    reader.Open();
    const QWidget* first = Reader::Window();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    reader->activateWindow();
    EntryPage::AwaitFront(reader.Page());
    hand::Key(Qt::Key_F1);
    Reader::AwaitGuide();
    QCOMPARE(Reader::Window(), first);
    QCOMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));

    // In the window itself the key leads back to the contents.
    hand::Key(Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(Reader::Part<QLineEdit>("find").hasFocus());
    hand::Key(Qt::Key_F1);
    QTRY_VERIFY(Reader::Contents().hasFocus());
}

void WindowTest::TheSearchOpensWithTheKeyboardInItsBox()
{
    Reader reader;
    reader.Start();
    reader.Menu("mnuHelp", Qt::Key_C);
    Reader::AwaitGuide();
    auto& words = Reader::Part<QLineEdit>("words");
    QTRY_VERIFY(words.hasFocus());
    hand::Type(QStringLiteral("peso"));
    auto& results = Reader::Part<QListWidget>("results");
    QTRY_VERIFY_WITH_TIMEOUT(results.count() > 1, kPatience);

    // The command again: the same window, what was sought ready to be typed over.
    reader->activateWindow();
    EntryPage::AwaitFront(reader.Page());
    reader.Menu("mnuHelp", Qt::Key_C);
    Reader::AwaitGuide();
    QTRY_VERIFY(words.hasFocus());
    QCOMPARE(words.selectedText(), QStringLiteral("peso"));

    // The letters of the tabs go to what they bring up.
    Reader::Shown().setFocus();
    hand::Key(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(Reader::Contents().hasFocus());
    Reader::Shown().setFocus();
    hand::Key(Qt::Key_C, Qt::AltModifier);
    QTRY_VERIFY(words.hasFocus());
}

void WindowTest::AFoundPageShowsThePlace()
{
    Reader reader;
    reader.Start();
    reader.Menu("mnuHelp", Qt::Key_C);
    Reader::AwaitGuide();
    hand::Type(QStringLiteral("capodanno"));
    auto& results = Reader::Part<QListWidget>("results");
    QTRY_COMPARE_WITH_TIMEOUT(results.count(), 1, kPatience);
    hand::Key(Qt::Key_Down);
    QTRY_VERIFY(results.hasFocus());
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/annonuovo.html"));
    QCOMPARE(Reader::Shown().textCursor().selectedText(), QStringLiteral("capodanno"));
    QVERIFY(Reader::Shown().hasFocus());

    // With the mouse.
    hand::Key(Qt::Key_Home, Qt::AltModifier);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/index.html"));
    hand::Click(*results.viewport(), results.visualItemRect(results.item(0)).center());
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/annonuovo.html"));
}

void WindowTest::WordsThatStandApartShowTheirParagraph()
{
    Reader reader;
    reader.Start();
    reader.Menu("mnuHelp", Qt::Key_C);
    Reader::AwaitGuide();
    hand::Type(QStringLiteral("inizio minore fine uguale"));
    auto& results = Reader::Part<QListWidget>("results");
    QTRY_COMPARE_WITH_TIMEOUT(results.count(), 1, kPatience);
    hand::Key(Qt::Key_Down);
    QTRY_VERIFY(results.hasFocus());
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/messaggi.html"));
    const QString selected = Reader::Shown().textCursor().selectedText();
    QVERIFY2(selected.contains(QStringLiteral("FINE MINORE DELLA DATA INIZIO")), qPrintable(selected));
    const int top = Reader::Shown().cursorRect().top();
    QVERIFY2(top >= 0 && top < Reader::Shown().viewport()->height() / 2, qPrintable(QString::number(top)));
}

void WindowTest::LinksAndTheWayBackByMouse()
{
    Reader reader;
    reader.Open();
    auto& back = Reader::Part<QPushButton>("back");
    auto& forward = Reader::Part<QPushButton>("forward");
    QVERIFY(!back.isEnabled());
    QVERIFY(!forward.isEnabled());
    hand::Click(*Reader::Shown().viewport(), Reader::PlaceOf(QStringLiteral("Il primo giorno")));
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    QVERIFY(back.isEnabled());
    hand::Click(back);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/index.html"));
    QVERIFY(!back.isEnabled());
    hand::Click(forward);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    hand::Click(Reader::Part<QPushButton>("home"));
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/index.html"));
    QVERIFY(back.isEnabled());
}

void WindowTest::LinksAndTheWayBackByKeys()
{
    Reader reader;
    reader.Open();
    for (int i = 0; i < 5 && !Reader::Shown().hasFocus(); ++i) {
        hand::Key(Qt::Key_Tab);
    }
    QVERIFY(Reader::Shown().hasFocus());
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(Reader::Shown().textCursor().selectedText(), QStringLiteral("Il primo giorno"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    hand::Key(Qt::Key_Left, Qt::AltModifier);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/index.html"));
    hand::Key(Qt::Key_Right, Qt::AltModifier);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    hand::Key(Qt::Key_Home, Qt::AltModifier);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/index.html"));
}

void WindowTest::AddressesOutsideAreNotFollowed()
{
    Reader reader;
    reader.Open();
    for (const char* address :
         {"https://example.org/", "file:///etc/hostname", "manca.html", "qthelp://altra/guida/x"}) {
        Reader::Shown().setSource(QUrl(QLatin1String(address)));
        QCOMPARE(Reader::Address(), QStringLiteral("/guida/index.html"));
    }
    QVERIFY(!Reader::Part<QPushButton>("back").isEnabled());
}

void WindowTest::TheContentsAreReadWithTheArrows()
{
    Reader reader;
    reader.Open();
    QTreeView& contents = Reader::Contents();
    QTRY_COMPARE(contents.currentIndex().data().toString(), QStringLiteral("Guida di Zelvia"));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/pagina.html"));
    hand::Key(Qt::Key_Right);
    QTRY_VERIFY(contents.isExpanded(contents.currentIndex()));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/pagina.html#data"));
    QCOMPARE(contents.currentIndex().data().toString(), QStringLiteral("Cambiare giorno"));
    QVERIFY(contents.hasFocus());
}

void WindowTest::TheContentsFollowThePage()
{
    Reader reader;
    reader.Open();
    hand::Click(*Reader::Shown().viewport(), Reader::PlaceOf(QStringLiteral("Scrivere un giorno")));
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/scrivere.html"));
    QCOMPARE(Reader::Contents().currentIndex().data().toString(), QStringLiteral("Scrivere un giorno"));
}

void WindowTest::TextIsFoundOnThePage()
{
    Reader reader;
    reader.Open();
    auto& find = Reader::Part<QLineEdit>("find");
    auto& notFound = Reader::Part<QLabel>("notFound");
    hand::Key(Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(find.hasFocus());
    hand::Type(QStringLiteral("tabelle"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(Reader::Shown().textCursor().selectedText().toLower(), QStringLiteral("tabelle"));
    const int first = Reader::Shown().textCursor().position();
    hand::Click(Reader::Part<QPushButton>("findNext"));
    QTRY_VERIFY(Reader::Shown().textCursor().position() > first);
    const int second = Reader::Shown().textCursor().position();
    hand::Click(Reader::Part<QPushButton>("findPrevious"));
    QTRY_COMPARE(Reader::Shown().textCursor().position(), first);
    // Before the first comes the last.
    hand::Click(Reader::Part<QPushButton>("findPrevious"));
    QTRY_VERIFY(Reader::Shown().textCursor().position() >= second);
    QVERIFY(!notFound.isVisible());

    hand::Click(find);
    hand::Type(QStringLiteral("zz"));
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(notFound.isVisible());
    hand::Key(Qt::Key_Backspace);
    QTRY_VERIFY(!notFound.isVisible());
}

void WindowTest::PicturesFit()
{
    Reader reader;
    reader.Open();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    const auto picture = Reader::Shown().loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("pagina.png")));
    const auto image = picture.value<QImage>();
    QVERIFY(!image.isNull());
    QVERIFY(image.deviceIndependentSize().width() > 300);
    QVERIFY(image.deviceIndependentSize().width() <= 640);
    QCOMPARE(Reader::Shown().horizontalScrollBar()->maximum(), 0);
}

void WindowTest::KeysClose_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Escape") << Qt::Key_Escape << Qt::KeyboardModifiers();
    QTest::newRow("Ctrl+W") << Qt::Key_W << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void WindowTest::KeysClose()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    Reader reader;
    reader.Open();
    const QPointer<QWidget> window = Reader::Window();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    hand::Key(key, modifiers);
    QTRY_VERIFY(Reader::Window() == nullptr);
    QVERIFY(reader->isVisible());
    reader.TakeFront();
    hand::Key(Qt::Key_F1);
    Reader::AwaitGuide();
    QCOMPARE(Reader::Window(), window.data());
    QCOMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));

    // From a box, too.
    hand::Key(Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(Reader::Part<QLineEdit>("find").hasFocus());
    hand::Key(key, modifiers);
    QTRY_VERIFY(Reader::Window() == nullptr);
}

void WindowTest::ItComesUpOverThePageAndStaysWhereItWas()
{
    Reader reader;
    reader.Open();
    QWidget& window = *Reader::Window();
    QCOMPARE(window.windowHandle()->transientParent(), reader->windowHandle());
    // The border of a window that can be resized is wider below.
    constexpr int wider = 4;
    QTRY_VERIFY(OffCentre(window, reader.Page()) <= wider);
    const QPoint moved = MoveBy(window, {-29, 17});
    QTRY_COMPARE(PlaceOf(window), moved);
    for (int i = 0; i < 2; ++i) {
        hand::Key(Qt::Key_Escape);
        QTRY_VERIFY(Reader::Window() == nullptr);
        reader.TakeFront();
        hand::Key(Qt::Key_F1);
        Reader::AwaitGuide();
        QTRY_COMPARE(PlaceOf(window), moved);
    }
}

void WindowTest::ItIsReadOverADescription()
{
    Reader reader;
    reader.Open();
    const QPointer<QWidget> guide = Reader::Window();
    reader->activateWindow();
    EntryPage::AwaitFront(reader.Page());
    reader.EntryPage::Open(*reader.Field(1).lblImmis, Way::Enter);
    reader.TypeOver(*reader.Field(1).txt, QStringLiteral("Delta"));
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(reader.RouteWindow() != nullptr);
    reader.RouteWindow()->activateWindow();
    EntryPage::AwaitFront(*reader.RouteWindow());
    // The description blocks the page and what belongs to it, the guide only until that is asked for.
    hand::Key(Qt::Key_F1);
    Reader::AwaitGuide();
    QCOMPARE(Reader::Window(), guide.data());
    hand::Key(Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(Reader::Part<QLineEdit>("find").hasFocus());
    // It outlives the description.
    reader.RouteWindow()->activateWindow();
    reader.CloseRouteWindow();
    QVERIFY(guide->isVisible());
    reader->activateWindow();
    EntryPage::AwaitFront(reader.Page());
    hand::Key(Qt::Key_F1);
    Reader::AwaitGuide();
    QCOMPARE(guide->windowHandle()->transientParent(), reader->windowHandle());
}

void WindowTest::TabReachesEveryControl()
{
    Reader reader;
    reader.Open();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    constexpr int stops = 60;
    QStringList visited;
    for (int i = 0; i < stops; ++i) {
        hand::Key(Qt::Key_Tab);
        const QWidget* focused = QApplication::focusWidget();
        QVERIFY(focused != nullptr);
        if (visited.isEmpty() || visited.last() != focused->objectName()) {
            visited << focused->objectName();
        }
        if (focused == &Reader::Contents()) {
            break;
        }
    }
    QCOMPARE(visited.last(), QStringLiteral("contents"));
    for (const char* name : {"page", "back", "home", "find", "findPrevious", "findNext"}) {
        QVERIFY2(visited.contains(QLatin1String(name)), name);
    }
}

void WindowTest::TheKeyInAnotherWindowOpensItsTopic_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("frmTabAllenamenti") << "/guida/tabelle.html#lista";
    QTest::newRow("frmDesPercorso") << "/guida/percorsi.html";
}

void WindowTest::TheKeyInAnotherWindowOpensItsTopic()
{
    QFETCH(QString, address);
    Reader reader;
    reader.Start();
    const bool route = QTest::currentDataTag() == QByteArray("frmDesPercorso");
    if (route) {
        reader.EntryPage::Open(1);
        reader.TypeOver(*reader.Field(1).txt, QStringLiteral("Delta"));
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY(reader.RouteWindow() != nullptr);
    } else {
        reader.Menu("mnuTabelle", Qt::Key_A);
    }
    const auto ofThisRow = [](const QWidget* window) {
        return window != nullptr && window->objectName() == QLatin1String(QTest::currentDataTag());
    };
    QTRY_VERIFY(ofThisRow(QApplication::activeWindow()));
    const QPointer<QWidget> window = QApplication::activeWindow();
    EntryPage::AwaitFront(*window);
    const QByteArray focused = EntryPage::Focused();
    hand::Key(Qt::Key_F1);
    Reader::AwaitGuide();
    QCOMPARE(Reader::Address(), address);
    QCOMPARE(EntryPage::Focused(), focused);

    // It can be read and closed although the other window keeps the page from being used.
    hand::Click(Reader::Part<QPushButton>("home"));
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/index.html"));
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(Reader::Window() == nullptr);
    window->close();
    QTRY_VERIFY(window.isNull());
    VERIFY_SCRIPT(reader.script);
}

// As beside another program's window: leaving the page for the guide is no leaving of the field.
void WindowTest::AFieldStaysOpenWhileTheGuideIsRead()
{
    Reader reader;
    reader.Open();
    reader->activateWindow();
    EntryPage::AwaitFront(reader.Page());
    reader->move(0, 0);
    reader.EntryPage::Open(2);
    QTRY_VERIFY(reader.IsOpen(2));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtLunghezza"));
    Reader::Window()->activateWindow();
    EntryPage::AwaitFront(*Reader::Window());
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Reader::Address(), QStringLiteral("/guida/primogiorno.html"));
    QVERIFY(reader.IsOpen(2));
    QCOMPARE(EntryPage::Focused(), QByteArray("txtLunghezza"));
    reader->activateWindow();
    EntryPage::AwaitFront(reader.Page());
    QVERIFY(reader.IsOpen(2));
    // The key of the menu is a command, and closes it.
    hand::Key(Qt::Key_F1);
    Reader::AwaitGuide();
    QVERIFY(!reader.IsOpen(2));
}

void WindowTest::TheEndOfTheProgramClosesTheGuide()
{
    qputenv("TMPDIR", folder_->Native().c_str());
    const QDir written(QString::fromStdString(folder_->Native()));
    Reader reader;
    qputenv("TMPDIR", folder_->Native().c_str());
    reader.Open();
    const QPointer<QWidget> window = Reader::Window();
    QVERIFY(!written.entryList({QStringLiteral("zelvia-guida-*")}, QDir::Dirs).isEmpty());
    reader->close();
    QTRY_VERIFY(reader.Gone());
    QVERIFY(window.isNull());
    QVERIFY(written.entryList({QStringLiteral("zelvia-guida-*")}, QDir::Dirs).isEmpty());
    VERIFY_SCRIPT(reader.script);
}

void WindowTest::RefusedFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray guide = GuideBytes();
    QByteArray other = guide;
    other.replace("zelvia.guida", "zelvia.altra");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no help file") << QByteArray("Non sono una guida");
    QTest::newRow("cut") << guide.left(guide.size() / 2);
    QTest::newRow("damaged in the middle")
        << guide.left(guide.size() / 2) + QByteArray(5000, 'x') + guide.mid(guide.size() / 2 + 5000);
    QTest::newRow("of another program") << other;
}

void WindowTest::RefusedFiles()
{
    QFETCH(QByteArray, bytes);
    Reader reader;
    reader.folder.Write(QStringLiteral("Guida.hlp"), bytes);
    reader.Start();
    for (const Qt::Key entry : {Qt::Key_S, Qt::Key_C}) {
        reader.script.Expect(Report(QStringLiteral("Il file della Guida è danneggiato")));
        reader.Menu("mnuHelp", entry);
        VERIFY_SCRIPT(reader.script);
        QVERIFY(HelpWindows().isEmpty());
    }

    // Once it is repaired the guide opens.
    reader.folder.Write(QStringLiteral("Guida.hlp"), GuideBytes());
    reader.TakeFront();
    hand::Key(Qt::Key_F1);
    Reader::AwaitGuide();
    VERIFY_SCRIPT(reader.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::WindowTest)
#include "WindowTest.moc"
