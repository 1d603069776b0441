// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The menus, the dispatcher of commands, help, the window about the program, the end.
#include "support/DayPage.h"
#include "support/WindowTest.h"

#include <QMenu>
#include <QMenuBar>

namespace zelvia::test
{
namespace
{

struct MenuRow {
    const char* name;
    const char* title;
    const char* entries; ///< Name and caption of each.
    const char* separators;
};

constexpr MenuRow kMenus[] = {
    {"mnuFile", "&File",
     "mnuFileOpen=&Apri;mnuFileNuovo=&Nuovo;mnuFileSave=&Salva;mnuFileSaveAs=Sal&va con nome;mnuFilePrint=S&tampa;"
     "mnuFileExit=&Esci",
     "mnuFileBar0;mnuFileBar2;mnuFileBar3;mnuFileBar4"},
    {"mnuOpzioni", "&Opzioni",
     "mnuNote=&Note;mnuAzzeraGiorno=Az&zera Giorno;mnuListaPrecedente=Ripristina &Lista Precedente;"
     "mnuListaIniziale=Ripristina Lista &Iniziale",
     ""},
    {"mnuTabelle", "&Tabelle", "mnuAllenamenti=&Allenamenti;mnuGare=&Gare", ""},
    {"mnuStatistiche", "&Statistiche",
     "mnuMedie=&Medie;mnuPercorso=Perc&orso;mnuLunghezza=&Lunghezza;mnuKm=&Km;mnuAndatura=&Andatura;"
     "mnuFondo=Terre&no;mnuTipo=&Tipo;mnuStagione=Sta&gione;mnuMeteo=&Meteo;mnuTemperatura=T&emperatura;"
     "mnuCorridori=&Corridori;mnuPeso=Pe&so;mnuRipetizioni=&Ripetizioni",
     "mnuStatBar"},
    {"mnuHelp", "&?", "mnuHelpContents=&Sommario;mnuHelpSearchForHelpOn=&Cerca argomento;mnuHelpAbout=&Informazioni su",
     "mnuHelpBar0"},
    {"mnuCancelladallaLista", "&Cancella dalla Lista",
     "mnuCancella=&Cancella;mnuListaWOrdinata=&Tempi;mnuDescrizionePercorso=&Descrizione", ""},
};

const QString kNoHelpSet =
    QStringLiteral("Impossibile visualizzare il Sommario della Guida. Nessun file della Guida associato al progetto.");

ExpectedBox Question(const char* text)
{
    return {QLatin1String(text), QMessageBox::Information, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel};
}

/// The window of that name, or null.
QWidget* Window(const QString& name)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name) {
            return window;
        }
    }
    return nullptr;
}

/// Notes the windows of the program that close, in order.
class Closings : public QObject
{
public:
    Closings() { qApp->installEventFilter(this); }
    const QStringList& Names() const { return names_; }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Close && qobject_cast<Form*>(receiver) != nullptr) {
            names_ << receiver->objectName();
        }
        return false;
    }

private:
    QStringList names_;
};

QWidget* InfoWindow()
{
    QWidget* found = nullptr;
    int count = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("frmInfo")) {
            found = window;
            ++count;
        }
    }
    return count == 1 ? found : nullptr;
}

} // namespace

class MenusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data();
    void entries();
    void menuBar();
    void menusOpenByTheirKeys_data();
    void menusOpenByTheirKeys();
    void helpBoxes_data();
    void helpBoxes();
    void helpByItsKey();
    void dispatcher_data();
    void dispatcher();
    void dispatcherSaves();
    void infoWindow();
    void exitUnloads_data();
    void exitUnloads();
    void exitUnloadsEveryWindowInOrder();
};

namespace
{

/// The usual key of a command.
QKeySequence KeyOf(const QString& command)
{
    static const QMap<QString, QKeyCombination> keys = {
        {QStringLiteral("mnuFileOpen"), Qt::CTRL | Qt::Key_O},
        {QStringLiteral("mnuFileNuovo"), Qt::CTRL | Qt::Key_N},
        {QStringLiteral("mnuFileSave"), Qt::CTRL | Qt::Key_S},
        {QStringLiteral("mnuFileSaveAs"), Qt::CTRL | Qt::SHIFT | Qt::Key_S},
        {QStringLiteral("mnuFilePrint"), Qt::CTRL | Qt::Key_P},
        {QStringLiteral("mnuFileExit"), Qt::CTRL | Qt::Key_Q},
        {QStringLiteral("mnuHelpContents"), QKeyCombination(Qt::Key_F1)}};
    return keys.contains(command) ? QKeySequence(keys.value(command)) : QKeySequence();
}

} // namespace

void MenusTest::entries_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < std::size(kMenus); ++i) {
        QTest::newRow(kMenus[i].name) << static_cast<int>(i);
    }
}

void MenusTest::entries()
{
    QFETCH(int, row);
    const MenuRow& expected = kMenus[row];
    const DayPage page;
    const frmMain window;
    const auto* menu = window.findChild<QMenu*>(QLatin1String(expected.name));
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->title(), QLatin1String(expected.title));
    QStringList shown;
    QStringList separators;
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator()) {
            separators << action->objectName();
            continue;
        }
        shown << action->objectName() + QLatin1Char('=') + action->text();
        QCOMPARE(action->shortcut(), KeyOf(action->objectName()));
        QVERIFY(action->isEnabled());
    }
    QCOMPARE(shown.join(QLatin1Char(';')), QLatin1String(expected.entries));
    QCOMPARE(separators.join(QLatin1Char(';')), QLatin1String(expected.separators));
    if (!menu->actions().isEmpty()) {
        QVERIFY(!menu->actions().first()->isSeparator());
        QVERIFY(!menu->actions().last()->isSeparator());
    }
}

void MenusTest::menuBar()
{
    const DayPage page;
    const frmMain window;
    QStringList names;
    for (const QAction* action : window.findChild<QMenuBar*>()->actions()) {
        names << action->menu()->objectName();
    }
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("mnuFile mnuOpzioni mnuTabelle mnuStatistiche mnuHelp"));
}

void MenusTest::menusOpenByTheirKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("mnuFile") << int(Qt::Key_F);
    QTest::newRow("mnuOpzioni") << int(Qt::Key_O);
    QTest::newRow("mnuTabelle") << int(Qt::Key_T);
    QTest::newRow("mnuStatistiche") << int(Qt::Key_S);
    QTest::newRow("mnuHelp") << int(Qt::Key_Question);
}

void MenusTest::menusOpenByTheirKeys()
{
    QFETCH(int, key);
    DayPage page;
    page.Start();
    QTest::keyClick(page->windowHandle(), Qt::Key(key), Qt::AltModifier);
    auto* menu = page->findChild<QMenu*>(QLatin1String(QTest::currentDataTag()));
    QTRY_VERIFY(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_Escape);
    QTRY_VERIFY(!menu->isVisible());
    VERIFY_SCRIPT(page.script);
}

void MenusTest::helpBoxes_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("information");
    const struct {
        const char* entry;
        Qt::Key key;
    } commands[] = {{"contents", Qt::Key_S}, {"search", Qt::Key_C}};
    for (const auto& command : commands) {
        QTest::addRow("%s, none set", command.entry) << int(command.key) << "none" << kNoHelpSet << true;
        QTest::addRow("%s, missing", command.entry) << int(command.key) << "missing"
                                                    << "File non trovato" << false;
        QTest::addRow("%s, damaged", command.entry) << int(command.key) << "damaged"
                                                    << "Il file della Guida è danneggiato" << false;
    }
}

void MenusTest::helpBoxes()
{
    QFETCH(int, entry);
    QFETCH(QString, file);
    QFETCH(QString, text);
    QFETCH(bool, information);
    DayPage page;
    page.Start();
    QCOMPARE(page->FileGuida, page.folder.System(QStringLiteral("Guida.hlp")));
    if (file == QLatin1String("none")) {
        page->FileGuida.clear();
    } else if (file == QLatin1String("damaged")) {
        page.folder.Write(QStringLiteral("Guida.hlp"), "no help");
    }
    ExpectedBox box = Report(text);
    box.icon = information ? QMessageBox::Information : QMessageBox::NoIcon;
    page.script.Expect(box);
    page.Menu("mnuHelp", Qt::Key(entry));
    VERIFY_SCRIPT(page.script);
}

void MenusTest::helpByItsKey()
{
    DayPage page;
    page.Start();
    page->FileGuida.clear();
    ExpectedBox box = Report(kNoHelpSet);
    box.icon = QMessageBox::Information;
    page.script.Expect(box);
    QTest::keyClick(page->windowHandle(), Qt::Key_F1);
    VERIFY_SCRIPT(page.script);
}

void MenusTest::dispatcher_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("Open") << "open";
    QTest::newRow("Nuovo") << "new";
    QTest::newRow("Help") << "help";
    QTest::newRow("AzzeraGiorno") << "AZZERARE I DATI DEL GIORNO ?              ";
    QTest::newRow("ListaPrecedente") << "RIPRISTINARE LE LISTE PRECEDENTI ?              ";
    QTest::newRow("ListaIniziale") << "RIPRISTINARE LE LISTE INIZIALI ?              ";
    for (const char* unknown : {"", "open", "Open ", "Salva", "mnuFileOpen", "Fondo"}) {
        QTest::addRow("%s", unknown) << QString();
    }
}

void MenusTest::dispatcher()
{
    QFETCH(QString, expected);
    DayPage page;
    page.Start();
    if (expected == QLatin1String("open")) {
        page.script.Expect(page.OpenDialog(QStringLiteral("prova.zlv")));
    } else if (expected == QLatin1String("new")) {
        page.script.Expect(page.NewDialog());
    } else if (expected == QLatin1String("help")) {
        page.script.Expect(Report(QStringLiteral("File non trovato")));
    } else if (!expected.isEmpty()) {
        page.script.Expect(Question(qPrintable(expected)));
    }
    page->DispatchCommand(QTest::currentDataTag());
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")) ==
            SampleFile(QStringLiteral("ZelviaFile/prova.zlv")));
}

void MenusTest::dispatcherSaves()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page->upKM->SetValue(17);
    page->DispatchCommand("Save");
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")) !=
            SampleFile(QStringLiteral("ZelviaFile/prova.zlv")));
    QVERIFY(Module1::FileModificato == 0);
}

void MenusTest::infoWindow()
{
    DayPage page;
    page.Start();
    QVERIFY(InfoWindow() == nullptr);
    page.Menu("mnuHelp", Qt::Key_I);
    QPointer<QWidget> info = InfoWindow();
    QVERIFY(!info.isNull());
    QVERIFY(info->isVisible());
    QCOMPARE(info->windowTitle(), QStringLiteral("Informazioni su Zelvia"));
    QVERIFY(!info->isModal());
    const auto* about = info->findChild<QWidget*>(QStringLiteral("pctInfo"));
    QVERIFY(about->isVisible());
    const QString folder = page.folder.Native(QString());
    const QString data = folder.endsWith(QLatin1Char('/')) ? folder.chopped(1) : folder;
    QCOMPARE(about->accessibleDescription(),
             QStringLiteral("Versione 1.0.0. Licenza GNU GPL, versione 3 o successiva. I dati sono in ") + data);
    QCOMPARE(about->toolTip(), data);
    QVERIFY(info->findChild<QWidget*>(QStringLiteral("Picture1"))->isVisible());
    auto* ok = info->findChild<Button*>(QStringLiteral("cmdOK"));
    QCOMPARE(ok->text(), QStringLiteral("O.K."));
    page.Menu("mnuHelp", Qt::Key_I);
    QCOMPARE(InfoWindow(), info.data());
    QVERIFY(QTest::qWaitForWindowExposed(info));
    page.Click(*ok);
    QTRY_VERIFY(info.isNull());

    // What is still open goes with the page.
    page.Menu("mnuHelp", Qt::Key_I);
    info = InfoWindow();
    QVERIFY(!info.isNull());
    page->close();
    QTRY_VERIFY(page.Gone());
    QTRY_VERIFY(info.isNull());
    VERIFY_SCRIPT(page.script);
}

void MenusTest::exitUnloads_data()
{
    QTest::addColumn<bool>("byMenu");
    QTest::newRow("by the menu") << true;
    QTest::newRow("by the close box") << false;
}

void MenusTest::exitUnloads()
{
    QFETCH(bool, byMenu);
    DayPage page;
    page.Start();
    page->upKM->SetValue(99);
    Module1::FileModificato = 1;
    const QStringList files = page.folder.Files();
    if (byMenu) {
        page.Menu("mnuFile", Qt::Key_E);
    } else {
        page->windowHandle()->close();
    }
    QTRY_VERIFY(page.Gone());
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.folder.Files(), files);
    for (const QString& file : files) {
        if (file.contains(QLatin1Char('/'))) {
            QVERIFY2(page.folder.Read(file) == SampleFile(file), qPrintable(file));
        }
    }
}

void MenusTest::exitUnloadsEveryWindowInOrder()
{
    DayPage page;
    page.Start();
    page.TakeEntry("mnuStatistiche", "mnuMedie");
    page.TakeEntry("mnuStatistiche", "mnuTipo");
    page.Click(*Window(QStringLiteral("frmStatistiche1"))->findChild<QWidget*>(QStringLiteral("cmGrafico")));
    page.Menu("mnuTabelle", Qt::Key_A);
    page.Click(*Window(QStringLiteral("frmTabAllenamenti"))->findChild<QWidget*>(QStringLiteral("cmdNuovaTab")));
    page.Menu("mnuTabelle", Qt::Key_G);
    page.Menu("mnuHelp", Qt::Key_I);
    // Last, since it blocks the page.
    page->mnuDescrizionePercorso_Click();
    const QStringList inOrder = {QStringLiteral("frmAllenamento"),         QStringLiteral("frmTabAllenamenti"),
                                 QStringLiteral("frmDesPercorso"),         QStringLiteral("frmCalendario"),
                                 QStringLiteral("frmStatistiche1"),        QStringLiteral("frmGrafici"),
                                 QStringLiteral("frmRicercheStatistiche"), QStringLiteral("frmInfo")};
    for (const QString& name : inOrder) {
        QTRY_VERIFY2(Window(name) != nullptr && Window(name)->isVisible(), qPrintable(name));
    }
    const Closings closings;
    page->close();
    QCOMPARE(closings.Names(), QStringList(QStringLiteral("frmMain")) + inOrder);
    QTRY_VERIFY(page.Gone());
    for (const QString& name : inOrder) {
        QTRY_VERIFY2(Window(name) == nullptr, qPrintable(name));
    }
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::MenusTest)
#include "MenusTest.moc"
