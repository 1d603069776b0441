// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RunTimeError.h"

#include "core/MessageBox.h"
#include "support/Bytes.h"
#include "support/MessageScript.h"

#include <QTest>

#include <new>
#include <stdexcept>
#include <vector>

using namespace zelvia;
using namespace zelvia::test;

class RunTimeErrorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ReportShowsTitleNumberAndDescription_data();
    void ReportShowsTitleNumberAndDescription();
    void EveryNumberHasADescriptionOfItsOwn();
    void TrapSkipsTheRestAndGoesOn();
    void TrapIsSilentWithoutAnError();
    void ForeignExceptionsBecomeRunTimeErrors();
    void TrapWithHandsTheErrorOn();
    void ErrorWithADescriptionOfItsOwn();
    void NestedTrapsReportOnce();
    void MsgBoxHandsEverythingToTheHandler();
    void MsgBoxWithoutAHandlerAnswersCautiously();
};

void RunTimeErrorTest::ReportShowsTitleNumberAndDescription_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<int>("number");
    for (const char* title : {"ERRORE : ", "**ERRORE : ", "CAPTIONDIR - ERRORE : "}) {
        for (const int number : {5, 6, 9, 11, 13, 53, 57, 61, 62, 70, 75, 76, 482, 32755}) {
            QTest::addRow("%s%d", title, number) << QByteArray(title) << number;
        }
    }
}

void RunTimeErrorTest::ReportShowsTitleNumberAndDescription()
{
    QFETCH(QByteArray, title);
    QFETCH(int, number);
    MessageScript boxes;
    boxes.Expect(TextOf(title) + std::to_string(number) + " " + DescriptionOf(number), MsgButtons::OK, MsgIcon::None);
    ReportError(TextOf(title), ErroreRunTime(number));
    QVERIFY(boxes.AllShown());
}

void RunTimeErrorTest::EveryNumberHasADescriptionOfItsOwn()
{
    QList<QByteArray> seen;
    for (const int number : {5, 6, 7, 9, 11, 13, 51, 52, 53, 57, 61, 62, 67, 70, 75, 76, 481, 482, 32755}) {
        const QByteArray description = Bytes(DescriptionOf(number));
        QVERIFY2(!description.trimmed().isEmpty(), qPrintable(QString::number(number)));
        QVERIFY2(!seen.contains(description), qPrintable(QString::number(number)));
        QCOMPARE(Bytes(ErroreRunTime(number).Description()), description);
        seen.append(description);
    }
}

void RunTimeErrorTest::TrapSkipsTheRestAndGoesOn()
{
    MessageScript boxes;
    boxes.ExpectError("Load - ERRORE : ", 13);
    int step = 0;
    Trap("Load - ERRORE : ", [&] {
        step = 1;
        throw ErroreRunTime(Errore::TipoNonCorrispondente);
    });
    QCOMPARE(step, 1);
    QVERIFY(boxes.AllShown());
}

void RunTimeErrorTest::TrapIsSilentWithoutAnError()
{
    MessageScript boxes;
    bool ran = false;
    Trap(kBareTitle, [&] { ran = true; });
    QVERIFY(ran);
    QCOMPARE(boxes.Shown(), 0);
}

void RunTimeErrorTest::ForeignExceptionsBecomeRunTimeErrors()
{
    MessageScript boxes;
    boxes.ExpectError(kBareTitle, 7);
    Trap(kBareTitle, [] { throw std::bad_alloc(); });
    boxes.ExpectError(kBareTitle, 51);
    Trap(kBareTitle, [] { throw std::logic_error("broken"); });
    boxes.ExpectError(kBareTitle, 51);
    Trap(kBareTitle, [] { throw 42; });
    QVERIFY(boxes.AllShown());
}

void RunTimeErrorTest::TrapWithHandsTheErrorOn()
{
    MessageScript boxes;
    int number = 0;
    TrapWith([] { throw ErroreRunTime(Errore::Annullato); },
             [&](const ErroreRunTime& error) { number = error.Number(); });
    QCOMPARE(number, 32755);
    QCOMPARE(boxes.Shown(), 0);
}

void RunTimeErrorTest::ErrorWithADescriptionOfItsOwn()
{
    MessageScript boxes;
    boxes.Expect("STAMPA - ERRORE : 482 fuori carta");
    Trap("STAMPA - ERRORE : ", [] { throw ErroreRunTime(Errore::Stampante, "fuori carta"); });
    QVERIFY(boxes.AllShown());
    QCOMPARE(QByteArray(ErroreRunTime(Errore::Stampante, "fuori carta").what()), QByteArray("fuori carta"));
}

void RunTimeErrorTest::NestedTrapsReportOnce()
{
    MessageScript boxes;
    boxes.ExpectError("AggiungiLista - ERRORE : ", 9);
    bool wentOn = false;
    Trap(kBareTitle, [&] {
        Trap("AggiungiLista - ERRORE : ", [] { throw ErroreRunTime(Errore::Indice); });
        wentOn = true;
    });
    QVERIFY(wentOn);
    QVERIFY(boxes.AllShown());
}

void RunTimeErrorTest::MsgBoxHandsEverythingToTheHandler()
{
    MessageScript boxes;
    const TextView text = "RIPRISTINARE LE LISTE INIZIALI ?              ";
    boxes.Expect(text, MsgButtons::OKCancel, MsgIcon::Information, MsgAnswer::Cancel);
    QVERIFY(MsgBox(text, MsgButtons::OKCancel, MsgIcon::Information) == MsgAnswer::Cancel);
    boxes.Expect("?", MsgButtons::YesNoCancel, MsgIcon::Exclamation, MsgAnswer::No);
    QVERIFY(MsgBox("?", MsgButtons::YesNoCancel, MsgIcon::Exclamation) == MsgAnswer::No);
    boxes.Expect("!", MsgButtons::OK, MsgIcon::Critical, MsgAnswer::OK, "Guida");
    QVERIFY(MsgBox("!", MsgButtons::OK, MsgIcon::Critical, "Guida") == MsgAnswer::OK);
    QVERIFY(boxes.AllShown());
}

void RunTimeErrorTest::MsgBoxWithoutAHandlerAnswersCautiously()
{
    const MsgBoxHandler before = SetMsgBoxHandler({});
    const MsgAnswer ok = MsgBox("prova", MsgButtons::OK);
    const MsgAnswer okCancel = MsgBox("prova", MsgButtons::OKCancel);
    const MsgAnswer yesNo = MsgBox("prova", MsgButtons::YesNoCancel);
    SetMsgBoxHandler(before);
    QVERIFY(ok == MsgAnswer::OK);
    QVERIFY(okCancel == MsgAnswer::Cancel);
    QVERIFY(yesNo == MsgAnswer::Cancel);
}

QTEST_APPLESS_MAIN(RunTimeErrorTest)
#include "RunTimeErrorTest.moc"
