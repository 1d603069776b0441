// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Printer.h"

#include "core/RunTimeError.h"
#include "printing/PrintedPdf.h"
#include "support/WindowTest.h"

#include <QClipboard>
#include <QProcess>
#include <QTemporaryFile>

using namespace zelvia;
using zelvia::test::PrintedPdf;

namespace
{

const SheetFont kFont{.name = "Times New Roman", .size = 12};

int ErrorOf(const Sheet& sheet)
{
    try {
        PrintSheet(sheet);
    } catch (const ErroreRunTime& error) {
        return error.Number();
    }
    return 0;
}

/// Tells the queue of the test something, with one of the server's own commands.
void Queue(const char* command, const QStringList& arguments)
{
    QCOMPARE(QProcess::execute(QLatin1String(command), arguments), 0);
}

} // namespace

class PrinterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void portraitAndLandscape_data()
    {
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("portrait") << false << QSizeF(595, 842);
        QTest::newRow("landscape") << true << QSizeF(842, 595);
    }

    void portraitAndLandscape()
    {
        QFETCH(bool, landscape);
        QFETCH(QSizeF, size);
        Sheet sheet(landscape ? Orientation::Landscape : Orientation::Portrait, kFont);
        sheet.Print(0, 0, "angolo");
        sheet.Print(40, 20, "mezzo");
        sheet.Box(1, 3, 94, 38);
        PrintSheet(sheet);
        const PrintedPdf pdf = PrintedPdf::Next();
        QCOMPARE(pdf.Pages().size(), 1);
        QVERIFY(std::abs(pdf.Pages()[0].size.width() - size.width()) < 1);
        QVERIFY(std::abs(pdf.Pages()[0].size.height() - size.height()) < 1);
        QCOMPARE(pdf.Faults(sheet), QString());
        // The printable corner is 12 points in, a cell 6 by 12.
        const auto& words = pdf.Pages()[0].words;
        QCOMPARE(words.size(), 2);
        QVERIFY(std::abs(words[0].left - 12) < 1.5);
        QVERIFY(std::abs(words[0].top - 12) < 3);
        QVERIFY(std::abs(words[1].left - 252) < 1.5);
        QVERIFY(std::abs(words[1].top - 252) < 3);
    }

    void facesAndStyles()
    {
        Sheet sheet(Orientation::Portrait, kFont);
        sheet.Print(1, 1, "diritto");
        sheet.SetFontItalic(true);
        sheet.Print(1, 3, "corsivo");
        sheet.SetFontName("Courier New");
        sheet.SetFontSize(10);
        sheet.Print(1, 5, "nota");
        PrintSheet(sheet);
        const PrintedPdf pdf = PrintedPdf::Next();
        QCOMPARE(pdf.Fonts(), (QByteArrayList{"LiberationMono-Italic", "LiberationSerif", "LiberationSerif-Italic"}));
        QCOMPARE(pdf.Faults(sheet), QString());
    }

    void boldFace()
    {
        Sheet sheet(Orientation::Landscape, {.name = "Times New Roman", .size = 8, .bold = true});
        sheet.Print(125, 0, CalendarDate(2026, 5, 20));
        PrintSheet(sheet);
        QCOMPARE(PrintedPdf::Next().Fonts(), (QByteArrayList{"LiberationSerif-Bold"}));
    }

    void accentsAndSigns()
    {
        Sheet sheet(Orientation::Portrait, kFont);
        sheet.Print(4, 6, "Localit\xE0");
        sheet.Print(4, 8, "3\xB0");
        sheet.Print(4, 10, "@");
        PrintSheet(sheet);
        QCOMPARE(PrintedPdf::Next().Faults(sheet), QString());
    }

    void pages()
    {
        Sheet sheet(Orientation::Portrait, kFont);
        sheet.Print(2, 2, "prima");
        sheet.NewPage();
        sheet.Print(2, 2, "seconda");
        sheet.Line(1, 5, 85, 5);
        sheet.NewPage();
        sheet.Print(2, 2, "terza");
        PrintSheet(sheet);
        const PrintedPdf pdf = PrintedPdf::Next();
        QCOMPARE(pdf.Pages().size(), 3);
        QCOMPARE(pdf.Faults(sheet), QString());
    }

    void thePictureOfTheClipboardInItsOwnSize()
    {
        // An inch by half an inch, at 192 dots to the inch.
        QImage picture(192, 96, QImage::Format_RGB32);
        picture.fill(Qt::black);
        picture.setDotsPerMeterX(7559);
        picture.setDotsPerMeterY(7559);
        QGuiApplication::clipboard()->setImage(picture);
        Sheet sheet(Orientation::Landscape, kFont);
        sheet.PaintClipboard(15, 3);
        PrintSheet(sheet);
        constexpr int dotsPerInch = 72;
        const QImage page = PrintedPdf::Next().Picture(0, dotsPerInch);
        // From (12 + 15 * 6, 12 + 3 * 12) = (102, 48) to (174, 84).
        const auto dark = [&](int x, int y) { return qGray(page.pixel(x, y)) < 128; };
        QVERIFY(dark(104, 50));
        QVERIFY(dark(172, 82));
        QVERIFY(!dark(99, 50));
        QVERIFY(!dark(104, 45));
        QVERIFY(!dark(177, 82));
        QVERIFY(!dark(172, 87));
    }

    void anEmptyClipboardPaintsNothing()
    {
        QGuiApplication::clipboard()->clear();
        Sheet sheet(Orientation::Portrait, kFont);
        sheet.Print(2, 2, "solo");
        sheet.PaintClipboard(15, 3);
        PrintSheet(sheet);
        QCOMPARE(PrintedPdf::Next().Faults(sheet), QString());
    }

    void aQueueThatRefusesJobs()
    {
        Sheet sheet(Orientation::Portrait, kFont);
        sheet.Print(2, 2, "rifiutato");
        Queue("cupsreject", {QStringLiteral("zelvia")});
        const int before = PrintedPdf::Jobs();
        QCOMPARE(ErrorOf(sheet), 482);
        Queue("cupsaccept", {QStringLiteral("zelvia")});
        QCOMPARE(ErrorOf(sheet), 0);
        // Only the one that was taken comes out.
        QCOMPARE(PrintedPdf::Next().Faults(sheet), QString());
        QCOMPARE(PrintedPdf::Jobs(), before + 1);
    }

    void aSpoolThatIsFull()
    {
        Sheet sheet(Orientation::Portrait, kFont);
        sheet.Print(2, 2, "in attesa");
        // Three jobs that wait are as many as it takes.
        QTemporaryFile waiting;
        QVERIFY(waiting.open());
        waiting.write("%PDF-1.4\n%%EOF\n");
        waiting.close();
        for (int job = 0; job < 3; ++job) {
            Queue("lp", {QStringLiteral("-s"), QStringLiteral("-H"), QStringLiteral("hold"), waiting.fileName()});
        }
        const int before = PrintedPdf::Jobs();
        QCOMPARE(ErrorOf(sheet), 482);
        Queue("cancel", {QStringLiteral("-a"), QStringLiteral("zelvia")});
        // With room again, what is printed next comes next: the refused job was dropped.
        sheet.Print(2, 4, "dopo");
        QCOMPARE(ErrorOf(sheet), 0);
        QCOMPARE(PrintedPdf::Next().Faults(sheet), QString());
        QCOMPARE(PrintedPdf::Jobs(), before + 1);
    }

    void noRoomForTheJobItself()
    {
        Sheet sheet(Orientation::Portrait, kFont);
        sheet.Print(2, 2, "senza posto");
        const QByteArray temporary = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/nessun/posto");
        const int before = PrintedPdf::Jobs();
        QCOMPARE(ErrorOf(sheet), 482);
        temporary.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
        QCOMPARE(PrintedPdf::Jobs(), before);
    }

    void noPrinterAtAll()
    {
        Sheet sheet(Orientation::Portrait, kFont);
        sheet.Print(2, 2, "perduto");
        Queue("lpadmin", {QStringLiteral("-x"), QStringLiteral("zelvia")});
        const int before = PrintedPdf::Jobs();
        QCOMPARE(ErrorOf(sheet), 482);
        QCOMPARE(PrintedPdf::Jobs(), before);
    }
};

ZELVIA_WINDOW_TEST(PrinterTest)
#include "PrinterTest.moc"
