// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// An evening with the diary by keyboard alone: a day is entered and saved, a plan changed, a race entered, the year
// searched, the day printed and the guide read. Nothing is clicked, no focus is given by the test.
#include "support/DayPage.h"
#include "support/DiaryBytes.h"
#include "support/Hand.h"
#include "support/PrinterTray.h"
#include "support/SheetLines.h"
#include "support/WindowTest.h"
#include "toolkit/FocusController.h"

#include <QFile>

namespace zelvia::test
{
namespace
{

constexpr int kBlankDay = 142; // 22 May 2026

/// The window in front if it is of that kind, or null.
template <typename Window>
Window* Front()
{
    return qobject_cast<Window*>(QApplication::activeWindow());
}

QByteArray Focused()
{
    const Control* control = FocusController::Instance().Current();
    return control == nullptr ? QByteArray() : control->Widget().objectName().toLatin1();
}

/// Presses Tab until a control has the focus.
void TabTo(const char* name)
{
    constexpr int most = 60;
    for (int i = 0; i < most && Focused() != name; ++i) {
        hand::Keys({Qt::Key_Tab});
    }
    QCOMPARE(Focused(), QByteArray(name));
}

/// Goes to a button and presses it.
void Press(const char* button)
{
    TabTo(button);
    hand::Keys({Qt::Key_Space});
}

/// Opens a menu of the bar by its letter and takes an entry.
void OpenByMenu(Qt::Key menu, std::initializer_list<QKeyCombination> entry)
{
    hand::Keys({Qt::ALT | menu});
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    hand::Keys(entry);
}

/// Goes down from the first box of a grid, which F6 leads to.
void GoToBox(const QWidget& box)
{
    constexpr int most = 40;
    if (!Focused().startsWith("txt")) {
        hand::Keys({Qt::Key_F6});
    }
    hand::Keys({Qt::CTRL | Qt::Key_Home});
    for (int i = 0; i < most && QApplication::focusWidget() != &box; ++i) {
        hand::Keys({Qt::Key_Down});
    }
    QVERIFY(QApplication::focusWidget() == &box);
}

/// Closes the window in front, whose place another one takes.
template <typename Window>
void Close(QWidget& behind)
{
    const QPointer<Window> window = Front<Window>();
    hand::Keys({Qt::CTRL | Qt::Key_W});
    QTRY_VERIFY(window.isNull());
    if (!hand::OnX11()) {
        behind.activateWindow();
    }
    QTRY_VERIFY(behind.isActiveWindow());
}

/// Goes to a value, opens it and types.
void Enter(const char* value, const QString& text)
{
    TabTo(value);
    hand::Keys({Qt::Key_Return});
    QTRY_VERIFY(Focused() != value);
    hand::Type(text);
}

} // namespace

class EveningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnEveningByKeysAlone();

private:
    void EnterTheDay();
    void SaveIt();
    void ChangeThePlan();
    void EnterARace();
    void SearchTheYear();
    void PrintTheDay();
    void ReadTheGuide();

    std::unique_ptr<DayPage> page_;
};

void EveningTest::EnterTheDay()
{
    DayPage& page = *page_;
    hand::Keys({Qt::Key_PageDown, Qt::Key_PageDown});
    QTRY_VERIFY(Module1::GiornoCorrente == kBlankDay);
    // From the list: the first letters, then the entry, then on.
    Enter("lblImmisPercorso", QStringLiteral("lungof"));
    hand::Keys({Qt::Key_Down});
    QTRY_COMPARE(Focused(), QByteArray("lstPercorso"));
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Lungofiume"));
    QTRY_COMPARE(Focused(), QByteArray("lblImmisLunghezza"));
    Enter("lblImmisMetri", QString());
    hand::Keys({Qt::Key_Left});
    hand::Type(QStringLiteral("12"));
    hand::Keys({Qt::Key_Right});
    hand::Type(QStringLiteral("500"));
    hand::Keys({Qt::Key_Return});
    QTRY_COMPARE(Focused(), QByteArray("lblImmisModo"));
    Enter("lblImmisTipo", QStringLiteral("Allenamento"));
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(Focused(), QByteArray("lblImmisOraInizio"));
    Enter("lblImmisOraInizio", QStringLiteral("18"));
    hand::Keys({Qt::Key_Right});
    hand::Type(QStringLiteral("30"));
    hand::Keys({Qt::Key_Return});
    QTRY_COMPARE(Focused(), QByteArray("lblImmisOraFine"));
    Enter("lblImmisOraFine", QStringLiteral("19"));
    hand::Keys({Qt::Key_Right});
    hand::Type(QStringLiteral("30"));
    hand::Keys({Qt::Key_Return});
    QTRY_COMPARE(Focused(), QByteArray("lblOutTempoImpiegato"));
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("1:00:00"));
    QCOMPARE(page.Caption("lblOutMediaKM"), QStringLiteral("4:48"));
    Enter("lblImmisPeso", QStringLiteral("70"));
    hand::Keys({Qt::Key_Return});
    Enter("lblNote3", QStringLiteral("vento contro"));
    hand::Keys({Qt::Key_Down});
    hand::Type(QStringLiteral("poi luna"));
    hand::Keys({Qt::Key_Escape});
    QTRY_COMPARE(page.Caption("lblNote4"), QStringLiteral("poi luna"));
}

void EveningTest::SaveIt()
{
    hand::Keys({Qt::CTRL | Qt::Key_S});
    QTRY_VERIFY(Module1::FileModificato == 0);
    const DiaryBytes saved(page_->folder.Read(QStringLiteral("ZelviaFile/prova.zlv")));
    QVERIFY(saved.Complete());
    QCOMPARE(saved.Line(kBlankDay, DiaryBytes::Route), QByteArray("\"Lungofiume\""));
    QCOMPARE(saved.Line(kBlankDay, DiaryBytes::Km), QByteArray("12"));
    QCOMPARE(saved.Line(kBlankDay, DiaryBytes::Metres), QByteArray("500"));
    QCOMPARE(saved.Line(kBlankDay, DiaryBytes::Kind), QByteArray("\"Allenamento\""));
    QCOMPARE(saved.Line(kBlankDay, DiaryBytes::Time), QByteArray("\"1:00:00\""));
    QCOMPARE(saved.Line(kBlankDay, DiaryBytes::Weight), QByteArray("70"));
    QCOMPARE(saved.Line(kBlankDay, DiaryBytes::Notes + 2), QByteArray("\"vento contro\""));
    QCOMPARE(saved.Line(kBlankDay, DiaryBytes::Notes + 3), QByteArray("\"poi luna\""));
}

void EveningTest::ChangeThePlan()
{
    OpenByMenu(Qt::Key_T, {Qt::Key_A});
    QTRY_VERIFY(Front<frmTabAllenamenti>() != nullptr);
    frmTabAllenamenti& list = *Front<frmTabAllenamenti>();
    TabTo("flbListaTabelle");
    hand::Keys({Qt::Key_Home, Qt::Key_Return});
    QTRY_VERIFY(Front<frmAllenamento>() != nullptr);
    frmAllenamento& editor = *Front<frmAllenamento>();
    QCOMPARE(editor.windowTitle(), QStringLiteral("Tabella allenamento : Base 10 km    di   "));
    GoToBox(*editor.Box(TableGrid::Km, 1));
    hand::Type(QStringLiteral("11"));
    const QString title = QStringLiteral("Salva Tabella con nome");
    const QString name = QStringLiteral("Base 10 km.tab");
    page_->script.Expect({title, QStringLiteral("File Tabella (*.tab)"), QFileDialog::AcceptSave,
                          page_->folder.Native(QStringLiteral("prova")), name, name});
    page_->script.Expect(page_->OverwriteQuestion(title, name, QMessageBox::Yes));
    hand::Keys({Qt::Key_F6});
    Press("cmdSalva");
    TRY_SCRIPT(page_->script);
    QTRY_VERIFY(page_->folder.Read(QStringLiteral("prova/Base 10 km.tab")).startsWith("1\r\n11\r\n"));
    Close<frmAllenamento>(list);
    Close<frmTabAllenamenti>(page_->Page());
}

void EveningTest::EnterARace()
{
    OpenByMenu(Qt::Key_T, {Qt::Key_G});
    QTRY_VERIFY(Front<frmCalendario>() != nullptr);
    frmCalendario& calendar = *Front<frmCalendario>();
    int row = 1;
    while (!calendar.Box(CalendarGrid::Giorno, row)->text().isEmpty()) {
        ++row;
    }
    GoToBox(*calendar.Box(CalendarGrid::Giorno, row));
    for (const char* value : {"27", "12", "2026", "Corsa dei lumi"}) {
        hand::Type(QString::fromLatin1(value));
        hand::Keys({Qt::Key_Return});
    }
    page_->script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
    hand::Keys({Qt::Key_F6});
    Press("cmdSalva");
    TRY_SCRIPT(page_->script);
    QTRY_VERIFY(page_->folder.Read(QStringLiteral("prova/CalendarioGare")).contains("\"Corsa dei lumi\""));
    Close<frmCalendario>(page_->Page());
}

void EveningTest::SearchTheYear()
{
    OpenByMenu(Qt::Key_S, {Qt::Key_Return});
    QTRY_VERIFY(Front<frmRicercheStatistiche>() != nullptr);
    const frmRicercheStatistiche& search = *Front<frmRicercheStatistiche>();
    Press("cmdPercorso");
    QTRY_VERIFY(search.lstStatistiche->ListCount() > 0);
    hand::Keys({Qt::Key_Down});
    QTRY_COMPARE(Focused(), QByteArray("lstStatistiche"));
    hand::Keys({Qt::Key_Home, Qt::Key_Return});
    Press("cmdAvvia");
    QTRY_VERIFY(search.lstMedie->isVisible() && search.lstMedie->ListCount() > 0);
    Close<frmRicercheStatistiche>(page_->Page());
}

void EveningTest::PrintTheDay()
{
    const PrinterTray tray;
    hand::Keys({Qt::CTRL | Qt::Key_P});
    QTRY_COMPARE(tray.sheets.size(), std::size_t(1));
    QVERIFY(SheetLines(tray.sheets.front()).join().contains("Lungofiume"));
}

void EveningTest::ReadTheGuide()
{
    hand::Keys({Qt::Key_F1});
    const auto guide = [] {
        const QWidget* active = QApplication::activeWindow();
        return active != nullptr && active->windowTitle() == QLatin1String("Guida di Zelvia");
    };
    QTRY_VERIFY(guide());
    hand::Keys({Qt::Key_Down, Qt::Key_Down});
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(!guide());
}

void EveningTest::AnEveningByKeysAlone()
{
    page_ = std::make_unique<DayPage>();
    QFile guide(QStringLiteral(ZELVIA_GUIDE));
    QVERIFY(guide.open(QIODevice::ReadOnly));
    page_->folder.Write(QStringLiteral("Guida.hlp"), guide.readAll());
    page_->Start();
    for (const auto step :
         {&EveningTest::EnterTheDay, &EveningTest::SaveIt, &EveningTest::ChangeThePlan, &EveningTest::EnterARace,
          &EveningTest::SearchTheYear, &EveningTest::PrintTheDay, &EveningTest::ReadTheGuide}) {
        (this->*step)();
        if (QTest::currentTestFailed()) {
            return;
        }
    }
    VERIFY_SCRIPT(page_->script);
    page_.reset();
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EveningTest)
#include "EveningTest.moc"
