// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RunTimeError.h"

#include "core/MessageBox.h"
#include "core/Numbers.h"
#include "support/Bytes.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QTest>

#include <new>
#include <stdexcept>
#include <vector>

using namespace zelvia;
using namespace zelvia::test;

namespace
{

/// A call whose outcome the optimiser can't foresee: an odd number comes back, an even one raises error 5.
i16 RefuseEven(int number)
{
    if (number % 2 == 0) {
        throw ErroreRunTime(Errore::ArgomentoNonValido);
    }
    return number;
}

i16 (*volatile Odd)(int) = RefuseEven;

} // namespace

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
    void TrapValueYieldsTheValue();
    void TrapValueYieldsTheFallbackAfterAnError();
    void TrapValueKeepsWhatTheVariableHeld();
    void TrapValueWithHandsTheErrorOn();
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
    boxes.Expect(TextOf(title) + std::to_string(number) + " " + DescriptionOf(number));
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

void RunTimeErrorTest::TrapValueYieldsTheValue()
{
    MessageScript boxes;
    QCOMPARE(TrapValue(kBareTitle, i16(7), [] { return Odd(3); }).value(), 3);
    QCOMPARE(boxes.Shown(), 0);
}

void RunTimeErrorTest::TrapValueYieldsTheFallbackAfterAnError()
{
    MessageScript boxes;
    boxes.ExpectError("ScomponiKm - ERRORE : ", 5);
    QCOMPARE(TrapValue("ScomponiKm - ERRORE : ", i16(7), [] { return Odd(4); }).value(), 7);
    boxes.ExpectError("CAPTIONDIR - ERRORE : ", 9);
    const auto fails = []() -> Text { throw ErroreRunTime(Errore::Indice); };
    QCOMPARE(Bytes(TrapValue("CAPTIONDIR - ERRORE : ", Text("prima"), fails)), QByteArray("prima"));
    QVERIFY(boxes.AllShown());
}

/// The sum would show a store that the optimiser drops.
void RunTimeErrorTest::TrapValueKeepsWhatTheVariableHeld()
{
    MessageScript boxes;
    i16 last = 0;
    int sum = 0;
    for (int number = 1; number <= 6; ++number) {
        if (number % 2 == 0) {
            boxes.ExpectError(kBareTitle, 5);
        }
        last = TrapValue(kBareTitle, last, [&] { return Odd(number); });
        sum = 10 * sum + last.value();
    }
    QCOMPARE(sum, 113355);
    QVERIFY(boxes.AllShown());
}

void RunTimeErrorTest::TrapValueWithHandsTheErrorOn()
{
    MessageScript boxes;
    int error = 0;
    const i16 value = TrapValueWith(
        i16(7), [] { return Odd(2); }, [&](const ErroreRunTime& raised) { error = raised.Number(); });
    QCOMPARE(value.value(), 7);
    QCOMPARE(error, 5);
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
    const Message asking{"kAsking", "{} ?   ", MsgIcon::Exclamation, MsgButtons::YesNoCancel};
    boxes.Expect({"a {} b ?   ", MsgIcon::Exclamation, MsgButtons::YesNoCancel}, MsgAnswer::No);
    QVERIFY(MsgBox(asking, "a {} b") == MsgAnswer::No);
    const Message telling{"kTelling", "{}/{}: ", MsgIcon::Critical};
    boxes.Expect({"1{}/: ", MsgIcon::Critical});
    QVERIFY(MsgBox(telling, Text("1{}"), TextView()) == MsgAnswer::OK);
    boxes.Expect({"!", MsgIcon::None, MsgButtons::OKCancel}, MsgAnswer::Cancel);
    QVERIFY(ShowBox({"!", MsgIcon::None, MsgButtons::OKCancel}) == MsgAnswer::Cancel);
    QVERIFY(boxes.AllShown());
}

void RunTimeErrorTest::MsgBoxWithoutAHandlerAnswersCautiously()
{
    const MsgBoxHandler before = SetMsgBoxHandler({});
    const MsgAnswer ok = ShowBox({"prova"});
    const MsgAnswer okCancel = ShowBox({"prova", MsgIcon::None, MsgButtons::OKCancel});
    const MsgAnswer yesNo = ShowBox({"prova", MsgIcon::None, MsgButtons::YesNoCancel});
    SetMsgBoxHandler(before);
    QVERIFY(ok == MsgAnswer::OK);
    QVERIFY(okCancel == MsgAnswer::Cancel);
    QVERIFY(yesNo == MsgAnswer::Cancel);
}

ZELVIA_TEST(RunTimeErrorTest)
#include "RunTimeErrorTest.moc"
