// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Sheet.h"

#include "support/SheetLines.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using zelvia::test::SheetLines;

class SheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextTakesTheFontOfItsMoment()
    {
        Sheet sheet(Orientation::Portrait, {.name = "Times New Roman", .size = 12});
        sheet.Print(3, 4, "diritto");
        sheet.SetFontItalic(true);
        sheet.SetFontSize(10);
        sheet.SetFontName("Courier New");
        sheet.Print(5, 6, "corsivo");
        QCOMPARE(SheetLines(sheet),
                 (QByteArrayList{"3,4 Times New Roman 12|diritto", "5,6 Courier New 10 italic|corsivo"}));
    }

    void numbersAndDatesAsThePrinterWritesThem()
    {
        Sheet sheet(Orientation::Landscape, {.name = "Times New Roman", .size = 8, .bold = true});
        sheet.PrintNumber(1, 2, 7);
        sheet.PrintNumber(1, 3, -12);
        sheet.Print(1, 4, CalendarDate(2008, 3, 1));
        QCOMPARE(SheetLines(sheet), (QByteArrayList{"1,2 Times New Roman 8 bold| 7 ", "1,3 Times New Roman 8 bold|-12 ",
                                                    "1,4 Times New Roman 8 bold|01/03/2008"}));
        QVERIFY(sheet.Paper() == Orientation::Landscape);
    }

    void anEmptyTextLeavesNothing()
    {
        Sheet sheet(Orientation::Portrait, {.name = "Times New Roman", .size = 8});
        sheet.Print(1, 2, "");
        QVERIFY(sheet.Operations().empty());
    }

    void aJobIsNamedAfterItsSheetAndDate()
    {
        const CalendarDate date(2026, 5, 20);
        const Sheet sheet(Orientation::Portrait, {.name = "Times New Roman", .size = 8}, JobName("giorno", date));
        QCOMPARE(QByteArray::fromStdString(sheet.Job()), QByteArray("Zelvia, giorno, 20/05/2026"));
    }

    void rulesPicturesAndPagesStandInTheirOrder()
    {
        Sheet sheet(Orientation::Portrait, {.name = "Times New Roman", .size = 8});
        sheet.Box(1, 2, 3, 4);
        sheet.NewPage();
        sheet.Line(5, 6, 7, 8);
        sheet.PaintClipboard(9, 10);
        QCOMPARE(SheetLines(sheet), (QByteArrayList{"box 1,2 3,4", "page", "line 5,6 7,8", "picture 9,10"}));
    }
};

ZELVIA_TEST(SheetTest)
#include "SheetTest.moc"
