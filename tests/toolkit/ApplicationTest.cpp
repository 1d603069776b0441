// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/MessageBox.h"
#include "support/BoxScript.h"
#include "support/WindowTest.h"
#include "toolkit/Fonts.h"
#include "toolkit/SampleForm.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLabel>

using namespace zelvia;
using namespace zelvia::test;

class ApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void QtSpeaksItalian();
    void TheLocaleIsItalianWhateverTheMachines();
    void TheTextsOfTheUserArePlainEverywhere();
    void FontsAreInLogicalPixels();
};

void ApplicationTest::QtSpeaksItalian()
{
    QStringList buttons;
    BoxScript script;
    script.Expect({QStringLiteral("PROVA"), QMessageBox::NoIcon,
                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel});
    script.Meanwhile([&] {
        for (const QAbstractButton* button : QApplication::activeModalWidget()->findChildren<QAbstractButton*>()) {
            buttons << button->text().remove(QLatin1Char('&'));
        }
    });
    ShowBox({"PROVA", MsgIcon::None, MsgButtons::YesNoCancel});
    VERIFY_SCRIPT(script);
    buttons.sort();
    QCOMPARE(buttons, QStringList({QStringLiteral("Annulla"), QStringLiteral("No"), QStringLiteral("S\u00EC")}));
    QCOMPARE(QFileDialog::tr("Look in:"), QStringLiteral("Cerca in:"));
}

void ApplicationTest::TheLocaleIsItalianWhateverTheMachines()
{
    QCOMPARE(QLocale().language(), QLocale::Italian);
    QCOMPARE(QLocale().territory(), QLocale::Italy);
    // Qt would put a display name behind the caption of every window.
    QCOMPARE(QApplication::applicationDisplayName(), QApplication::applicationName());
}

void ApplicationTest::TheTextsOfTheUserArePlainEverywhere()
{
    const Text wild = "<b>A & B</b>";
    SampleForm form;
    form.lblFermo->SetCaption(wild);
    form.txtUno->SetContent(wild);
    form.lstUno->AddItem(wild);
    QCOMPARE(form.lblFermo->Caption(), wild);
    QCOMPARE(form.lblFermo->textFormat(), Qt::PlainText);
    QCOMPARE(form.txtUno->Content(), wild);
    QCOMPARE(form.lstUno->List(form.lstUno->ListCount() - 1), wild);
    bool plain = false;
    BoxScript script;
    script.Expect(Report(QStringLiteral("<b>A & B</b>")));
    script.Meanwhile([&] {
        const auto* label = QApplication::activeModalWidget()->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        plain = label != nullptr && label->textFormat() == Qt::PlainText;
    });
    ShowBox({wild});
    VERIFY_SCRIPT(script);
    QVERIFY(plain);
}

void ApplicationTest::FontsAreInLogicalPixels()
{
    const QFont serif = PageFont("Times New Roman", 22);
    QCOMPARE(serif.pixelSize(), 22);
    QCOMPARE(serif.families().constFirst(), QStringLiteral("Times New Roman"));
    QVERIFY(serif.families().size() > 1);

    // In the face of the lists the degree sign is as wide as a digit.
    const QFontMetrics courier(PageFont("Courier", 14));
    QCOMPARE(courier.horizontalAdvance(QChar(0xB0)), courier.horizontalAdvance(QLatin1Char('0')));
    QCOMPARE(courier.horizontalAdvance(QLatin1Char('i')), courier.horizontalAdvance(QLatin1Char('W')));
}

ZELVIA_WINDOW_TEST(ApplicationTest)

#include "ApplicationTest.moc"
