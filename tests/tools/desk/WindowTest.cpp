// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the tools: its pages, its folder, its keys, and how it closes.
#include "support/WindowTest.h"

#include "support/BoxScript.h"
#include "support/Hand.h"
#include "tools/desk/OutcomeTable.h"
#include "tools/desk/WindowDesk.h"
#include "tools/strumenti/Actions.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTextBrowser>
#include <QUrl>

#include <atomic>
#include <filesystem>
#include <thread>

namespace fs = std::filesystem;

namespace zelvia::test
{

class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesOfTheActions();
    void theKeysTurnThePages();
    void tabGoesAsTheEyeDoes();
    void closing_data();
    void closing();
    void thePageOfTheLastTime();
    void theSizeOfTheLastTime();
    void anotherFolder();
    void theGuide();
    void whatIsWrittenIsWrittenToItsEnd();
    void whatWaitsIsWrittenToo();
    void whatFailsIsRead();
    void reading();
    void escapeStopsTheReadingFirst();
    void filesDroppedAnywhere();
    void twoWindows();
    void everythingHasAName();
};

namespace
{

QListWidget& List(WindowDesk& desk)
{
    return desk.Part<QListWidget>("pages");
}

QString Heading(WindowDesk& desk)
{
    return desk.Part<QLabel>("heading").text();
}

/// A task that ends when it is let go.
class Held
{
public:
    ToolRunner::Task Task(bool counts, int status = kDone)
    {
        return [this, counts, status](Terminal& terminal) {
            running_ = true;
            while (!gone_) {
                if (counts) {
                    terminal.err << "Letti 25 file su 100.\n";
                }
                std::this_thread::yield();
            }
            return status;
        };
    }
    bool IsRunning() const { return running_; }
    void LetGo() { gone_ = true; }

private:
    std::atomic<bool> running_{false};
    std::atomic<bool> gone_{false};
};

} // namespace

void WindowTest::pagesOfTheActions()
{
    WindowDesk desk;
    desk.Open("anno");
    int pages = 0;
    for (const Action& action : Actions()) {
        for (const PageRow& row : PageRows()) {
            pages += row.action == action.name ? 1 : 0;
        }
    }
    QCOMPARE(List(desk).count(), pages);
    QVERIFY(pages >= 5);
    for (int i = 0; i < pages; ++i) {
        List(desk).setCurrentRow(i);
        QVERIFY(!Heading(desk).isEmpty());
    }
    QCOMPARE(desk.Window().windowTitle(), QStringLiteral("Strumenti di Zelvia"));
}

/// First what can be chosen, then what stands below it.
void WindowTest::tabGoesAsTheEyeDoes()
{
    WindowDesk desk;
    desk.Open("anno");
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    List(desk).setFocus();
    for (const char* stop : {"year", "races", "notes", "look", "run"}) {
        hand::Key(Qt::Key_Tab);
        QTRY_COMPARE_WITH_TIMEOUT(QApplication::focusWidget()->objectName(), QLatin1String(stop), kDeskPatience);
    }
}

void WindowTest::theKeysTurnThePages()
{
    WindowDesk desk;
    desk.Open("anno");
    QCOMPARE(Heading(desk), QStringLiteral("Anno nuovo"));
    hand::Key(Qt::Key_PageDown, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(Heading(desk), QStringLiteral("Anni passati"), kDeskPatience);
    hand::Key(Qt::Key_PageUp, Qt::ControlModifier);
    hand::Key(Qt::Key_PageUp, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(List(desk).currentRow(), List(desk).count() - 1, kDeskPatience);
    List(desk).setFocus();
    hand::Key(Qt::Key_Home);
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE_WITH_TIMEOUT(Heading(desk), QStringLiteral("Controlla e ripara"), kDeskPatience);
    hand::Click(*List(desk).viewport(), List(desk).visualItemRect(List(desk).item(0)).center());
    QTRY_COMPARE_WITH_TIMEOUT(Heading(desk), QStringLiteral("Anno nuovo"), kDeskPatience);
}

void WindowTest::closing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << int(Qt::NoModifier);
    QTest::newRow("Ctrl+W") << int(Qt::Key_W) << int(Qt::ControlModifier);
}

void WindowTest::closing()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    hand::Key(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTRY_VERIFY_WITH_TIMEOUT(!desk.IsOpen(), kDeskPatience);
}

void WindowTest::thePageOfTheLastTime()
{
    WindowDesk desk;
    desk.Open("copie");
    desk.Open("");
    QCOMPARE(Heading(desk), QStringLiteral("Copie"));
    desk.Open("anni");
    desk.Open("nessuna");
    QCOMPARE(Heading(desk), QStringLiteral("Anni passati"));
    desk.tools.home.Write("stato/zelvia/pagina-strumenti", std::string(100, 'x'));
    desk.Open("");
    QCOMPARE(Heading(desk), QStringLiteral("Anno nuovo"));
}

void WindowTest::theSizeOfTheLastTime()
{
    WindowDesk desk;
    desk.Open("anno");
    constexpr QSize size(980, 640);
    desk.Window().resize(size);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Window().size(), size, kDeskPatience);
    desk.Window().close();
    desk.Open("anno");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Window().size(), size, kDeskPatience);
}

void WindowTest::anotherFolder()
{
    WindowDesk desk;
    fs::copy(desk.tools.Native(), desk.tools.home.Native("Altra"), fs::copy_options::recursive);
    fs::rename(desk.tools.home.Native("Altra/ZelviaFile/prova.zlv"),
               desk.tools.home.Native("Altra/ZelviaFile/mio.zlv"));
    desk.Open("anni");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table().topLevelItemCount(), 1, kDeskPatience);
    QCOMPARE(desk.Table().topLevelItem(0)->text(0), QStringLiteral("prova"));
    BoxScript script;
    const QString other = QString::fromStdString(desk.tools.home.Native("Altra"));
    const DialogWork typing = [&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Scegliere la cartella di Zelvia"));
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setFocus();
        name->selectAll();
        hand::Type(other);
        hand::Key(Qt::Key_Return);
    };
    script.Expect(typing);
    hand::Key(Qt::Key_C, Qt::AltModifier);
    TRY_SCRIPT(script);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QLineEdit>("folder").text(), other, kDeskPatience);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table().topLevelItem(0)->text(0), QStringLiteral("mio"), kDeskPatience);
    QCOMPARE(desk.Part<QComboBox>("diary").itemText(1), QStringLiteral("mio"));
}

void WindowTest::theGuide()
{
    WindowDesk desk;
    QFile guide(QStringLiteral(ZELVIA_GUIDE));
    QVERIFY(guide.copy(QString::fromStdString(desk.tools.Native("Guida.hlp"))));
    desk.Open("copie");
    hand::Key(Qt::Key_F1);
    const auto shown = [] {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("HelpWindow") && window->isVisible()) {
                return window->findChild<QTextBrowser*>(QStringLiteral("page"))->source().toString();
            }
        }
        return QString();
    };
    QTRY_VERIFY2_WITH_TIMEOUT(shown().endsWith(QStringLiteral("strumenti.html#finestra-copie")), qPrintable(shown()),
                              kDeskPatience);
}

void WindowTest::whatIsWrittenIsWrittenToItsEnd()
{
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    Held held;
    int status = -1;
    desk.Shared().Runner().Run(ToolRunner::Kind::Writes, *this, held.Task(false),
                               [&](const ToolOutcome& outcome) { status = outcome.status; });
    QTRY_VERIFY_WITH_TIMEOUT(held.IsRunning(), kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Window().findChild<QWidget*>(QStringLiteral("progress"))->isVisible(), kDeskPatience);
    QVERIFY(!desk.Button("cancel").isEnabled());
    hand::Key(Qt::Key_Escape);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QLabel>("doing").text(),
                              QStringLiteral("La finestra si chiude appena è tutto scritto."), kDeskPatience);
    QVERIFY(desk.IsOpen());
    held.LetGo();
    QTRY_VERIFY_WITH_TIMEOUT(!desk.IsOpen(), kDeskPatience);
    QTRY_COMPARE_WITH_TIMEOUT(status, kDone, kDeskPatience);
}

/// What was asked for before the window was closed is done, though something else is still read.
void WindowTest::whatWaitsIsWrittenToo()
{
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    Held reading;
    std::atomic<bool> written{false};
    desk.Shared().Runner().Run(ToolRunner::Kind::Reads, *this, reading.Task(false), [](const ToolOutcome&) {});
    QTRY_VERIFY_WITH_TIMEOUT(reading.IsRunning(), kDeskPatience);
    desk.Shared().Runner().Run(
        ToolRunner::Kind::Writes, desk.Window(),
        [&](Terminal&) {
            written = true;
            return kDone;
        },
        [](const ToolOutcome&) {});
    hand::Key(Qt::Key_W, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QLabel>("doing").text(),
                              QStringLiteral("La finestra si chiude appena è tutto scritto."), kDeskPatience);
    QVERIFY(desk.IsOpen());
    reading.LetGo();
    QTRY_VERIFY_WITH_TIMEOUT(!desk.IsOpen(), kDeskPatience);
    QVERIFY(written);
}

/// The window stays when what was to be written before it closes was not.
void WindowTest::whatFailsIsRead()
{
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    Held held;
    bool ended = false;
    desk.Shared().Runner().Run(ToolRunner::Kind::Writes, *this, held.Task(false, kNotDone),
                               [&](const ToolOutcome&) { ended = true; });
    QTRY_VERIFY_WITH_TIMEOUT(held.IsRunning(), kDeskPatience);
    hand::Key(Qt::Key_W, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QLabel>("doing").text(),
                              QStringLiteral("La finestra si chiude appena è tutto scritto."), kDeskPatience);
    held.LetGo();
    QTRY_VERIFY_WITH_TIMEOUT(ended, kDeskPatience);
    QVERIFY(desk.IsOpen());
    hand::Key(Qt::Key_W, Qt::ControlModifier);
    QTRY_VERIFY_WITH_TIMEOUT(!desk.IsOpen(), kDeskPatience);
}

void WindowTest::reading()
{
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    Held held;
    ToolOutcome ended;
    ended.status = -1;
    desk.Shared().Runner().Run(ToolRunner::Kind::Reads, *this, held.Task(true),
                               [&](const ToolOutcome& outcome) { ended = outcome; });
    const auto* bar = desk.Window().findChild<QProgressBar*>(QStringLiteral("bar"));
    QTRY_COMPARE_WITH_TIMEOUT(bar->value(), 25, kDeskPatience);
    QTRY_COMPARE_WITH_TIMEOUT(bar->maximum(), 100, kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(bar->isVisible(), kDeskPatience);
    QCOMPARE(desk.Part<QLabel>("doing").text(), QStringLiteral("Letti 25 file su 100."));
    hand::Click(desk.Button("cancel"));
    QTRY_VERIFY_WITH_TIMEOUT(ended.cancelled, kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(!bar->isVisible(), kDeskPatience);
    held.LetGo();
}

void WindowTest::escapeStopsTheReadingFirst()
{
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    Held held;
    bool cancelled = false;
    desk.Shared().Runner().Run(ToolRunner::Kind::Reads, *this, held.Task(true),
                               [&](const ToolOutcome& outcome) { cancelled = outcome.cancelled; });
    const auto* progress = desk.Window().findChild<QWidget*>(QStringLiteral("progress"));
    QTRY_VERIFY_WITH_TIMEOUT(progress->isVisible(), kDeskPatience);
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(cancelled, kDeskPatience);
    QVERIFY(desk.IsOpen());
    QTRY_VERIFY_WITH_TIMEOUT(!progress->isVisible(), kDeskPatience);
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!desk.IsOpen(), kDeskPatience);
    held.LetGo();
}

/// They come to the page that imports them.
void WindowTest::filesDroppedAnywhere()
{
    WindowDesk desk;
    desk.tools.home.Write("giorni.csv", "date,km\n2026-03-01,5.000\n");
    desk.Open("copie");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(desk.tools.home.Native("giorni.csv")))});
    QWidget& list = *List(desk).viewport();
    const QPoint place = list.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&list, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&list, &drop);
    QTRY_COMPARE_WITH_TIMEOUT(Heading(desk), QStringLiteral("Dall'orologio"), kDeskPatience);
    const auto& found = desk.Part<QTableView>("activities");
    QTRY_COMPARE_WITH_TIMEOUT(found.model()->rowCount(), 1, kDeskPatience);
    QCOMPARE(found.model()->index(0, 1).data().toString(), QStringLiteral("01/03/2026"));
}

/// Neither keeps the other from its work: the lock is held only while something runs.
void WindowTest::twoWindows()
{
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    QCOMPARE(desk.tools.Run({"anno", "2030", "--si"}).status, 0);
    Desk second(desk.tools.Native(), "");
    DeskWindow other(second, "anni");
    other.show();
    const auto* table = other.findChild<OutcomeTable*>(QStringLiteral("table"));
    QTRY_COMPARE_WITH_TIMEOUT(table->topLevelItemCount(), 2, kDeskPatience);
    desk.Button("look").click();
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
}

void WindowTest::everythingHasAName()
{
    WindowDesk desk;
    desk.Open("anno");
    for (int row = 0; row < List(desk).count(); ++row) {
        List(desk).setCurrentRow(row);
        for (QWidget* widget : desk.Window().findChildren<QWidget*>()) {
            const bool reached = widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                                 !widget->objectName().startsWith(QLatin1String("qt_"));
            const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!reached || (told != nullptr && !told->text(QAccessible::Name).isEmpty()),
                     qPrintable(Heading(desk) + QLatin1Char(' ') + QLatin1String(widget->metaObject()->className()) +
                                QLatin1Char(' ') + widget->objectName()));
        }
    }
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::WindowTest)
#include "WindowTest.moc"
