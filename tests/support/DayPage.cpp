// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DayPage.h"

#include "core/Files.h"
#include "diary/CategoryStatistics.h"
#include "diary/TableModel.h"
#include "support/ActiveWindow.h"

#include <QMenu>
#include <QMenuBar>
#include <QWindow>

namespace zelvia::test
{

namespace
{

QList<QPointer<Form>> OtherWindows(const frmMain* page)
{
    QList<QPointer<Form>> windows;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<Form*>(widget);
        if (window != nullptr && window != page) {
            windows.append(window);
        }
    }
    return windows;
}

} // namespace

DayPage::DayPage(CalendarDate today)
{
    SetProgramFolder(folder.System());
    SetClock([today] { return today; });
}

DayPage::~DayPage()
{
    // The windows go before the page that they belong to.
    for (const QPointer<Form>& window : OtherWindows(page_)) {
        delete window;
    }
    delete page_;
    Module1::AzzeraAnno();
    Module1::AzzeraStato();
    Module1::AzzeraTabella();
    Module1::ClearStatistic();
    Application::Instance().ReleaseInstanceLock();
    SetClock({});
    SetProgramFolder({});
}

void DayPage::Start()
{
    page_ = new frmMain;
    QVERIFY(page_->FormLoad());
    page_->show();
    page_->activateWindow();
    QVERIFY(QTest::qWaitForWindowExposed(page_));
    QVERIFY(QTest::qWaitForWindowActive(page_));
    QTRY_VERIFY(page_->isActiveWindow());
}

void DayPage::ClickAt(QWidget& widget, QPoint place) const
{
    QWidget& window = *widget.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, place));
}

void DayPage::Click(QWidget& widget) const
{
    ClickAt(widget, widget.rect().center());
}

void DayPage::Up(UpDown& spin) const
{
    spin.SetVisible(true);
    ClickAt(spin, {spin.width() / 2, spin.height() / 4});
}

void DayPage::Down(UpDown& spin) const
{
    spin.SetVisible(true);
    ClickAt(spin, {spin.width() / 2, spin.height() - spin.height() / 4});
}

QMenu* DayPage::OpenMenu(const char* menu) const
{
    auto* bar = page_->findChild<QMenuBar*>();
    auto* opened = page_->findChild<QMenu*>(QLatin1String(menu));
    if (opened == nullptr) {
        qFatal("no menu %s", menu);
    }
    // A menu closes again when the manager gives its window the keyboard only then.
    hand::AwaitAgreement();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(opened->menuAction()).center());
    if (!QTest::qWaitFor([&] { return opened->isVisible(); }) || !QTest::qWaitForWindowExposed(opened)) {
        qFatal("%s does not open", menu);
    }
    return opened;
}

void DayPage::Menu(const char* menu, Qt::Key entry) const
{
    QTest::keyClick(OpenMenu(menu), entry);
}

void DayPage::TakeEntry(const char* menu, const char* entry) const
{
    QMenu* opened = OpenMenu(menu);
    auto* action = opened->findChild<QAction*>(QLatin1String(entry));
    if (action == nullptr) {
        qFatal("no entry %s", entry);
    }
    // Two entries of a menu may share a letter.
    opened->setActiveAction(action);
    QTest::keyClick(opened, Qt::Key_Return);
}

QString DayPage::Caption(const char* name) const
{
    const auto* object = page_->findChild<QObject*>(QLatin1String(name));
    return object != nullptr ? object->property("text").toString() : QStringLiteral("nothing has this name");
}

void DayPage::GoTo(int slot) const
{
    while (Module1::GiornoCorrente < slot) {
        Up(*page_->upGiorno);
    }
    while (Module1::GiornoCorrente > slot) {
        Down(*page_->upGiorno);
    }
}

void DayPage::SetEntries(SelectionList lista, std::vector<Text> entries) const
{
    EntriesOf(lista) = std::move(entries);
    static_cast<DiaryPage&>(Page()).ShowList(lista);
}

void DayPage::AddEntry(SelectionList lista, const Text& entry) const
{
    std::vector<Text> entries = EntriesOf(lista);
    entries.push_back(entry);
    SetEntries(lista, std::move(entries));
}

ExpectedDialog DayPage::OpenDialog(const QString& preset, const QString& choose) const
{
    return {QStringLiteral("Apri"),
            QStringLiteral("File Zelvia (*. zlv)"),
            QFileDialog::AcceptOpen,
            folder.Native(QStringLiteral("ZelviaFile")),
            preset,
            choose};
}

ExpectedDialog DayPage::SaveDialog(const QString& preset, const QString& choose) const
{
    return {QStringLiteral("Salva con nome"),
            QStringLiteral("File Zelvia (*.zlv)"),
            QFileDialog::AcceptSave,
            folder.Native(QStringLiteral("ZelviaFile")),
            preset,
            choose};
}

ExpectedDialog DayPage::NewDialog(const QString& choose) const
{
    ExpectedDialog dialog = SaveDialog({}, choose);
    dialog.title = QStringLiteral("Nuovo file");
    return dialog;
}

ExpectedBox DayPage::OverwriteQuestion(const QString& title, const QString& name,
                                       QMessageBox::StandardButton press) const
{
    const QString question =
        QCoreApplication::translate("QFileDialog", "%1 already exists.\nDo you want to replace it?").arg(name);
    return {question, QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No, press, title};
}

ExpectedBox BareReport(const QString& error)
{
    return Report(QStringLiteral("ERRORE : ") + error);
}

void ExpectListsNotSaved(BoxScript& script, const QString& error)
{
    for (const QString& list : ListNames()) {
        script.Expect(Report(QStringLiteral("SalvaLista%1 - ERRORE : ").arg(list) + error));
    }
}

void ExpectListsNotLoaded(BoxScript& script, const QString& error)
{
    for (const QString& list : ListNames()) {
        // The reader of the temperatures is spelt with a letter less.
        const QString name = list == QLatin1String("Temperatura") ? QStringLiteral("Teperatura") : list;
        script.Expect(Report(QStringLiteral("CaricaLista%1 - ERRORE : ").arg(name) + error));
    }
}

ExpectedBox RoutesNotLoaded(const QString& description)
{
    return Report(QStringLiteral("ERRORE : %1 Liste Percorso").arg(description));
}

void ExpectNoFolder(BoxScript& script)
{
    for (int i = 0; i < 3; ++i) {
        script.Expect(BareReport(kNoFolder));
    }
    ExpectListsNotSaved(script, kNoFolder);
    ExpectListsNotLoaded(script, kNoFolder);
    script.Expect(BareReport(kNoFolder));
    script.Expect(RoutesNotLoaded(QStringLiteral("Cartella non trovata")));
    script.Expect(BareReport(kNoFolder));
}

} // namespace zelvia::test
