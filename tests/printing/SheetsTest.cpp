// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sheets of the sample year, from the windows to the PDF.
#include "printing/PrintedPdf.h"
#include "support/TableDesk.h"
#include "toolkit/Printer.h"

using namespace zelvia;
using zelvia::test::PrintedPdf;
using zelvia::test::TableDesk;

namespace
{

/// The word that begins nearest to a cell.
QString At(const PrintedPdf& pdf, int x, int y)
{
    for (const auto& word : pdf.Pages()[0].words) {
        if (std::abs(word.left - (12 + 6 * x)) < 1.5 && std::abs(word.top - (12 + 12 * y)) < 3) {
            return word.text;
        }
    }
    return {};
}

} // namespace

class SheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDay()
    {
        TableDesk desk;
        desk.Start();
        desk.Menu("mnuFile", Qt::Key_T);
        const PrintedPdf pdf = PrintedPdf::Next();
        QCOMPARE(pdf.Pages().size(), 1);
        QCOMPARE(At(pdf, 40, 2), QStringLiteral("20/05/2026"));
        QCOMPARE(At(pdf, 4, 4), QStringLiteral("Percorso"));
        QCOMPARE(At(pdf, 16, 8), QStringLiteral("8,000"));
        QCOMPARE(At(pdf, 48, 4), QStringLiteral("ALLENAMENTO"));
        QCOMPARE(At(pdf, 56, 20), QStringLiteral("Bene"));
        QCOMPARE(At(pdf, 21, 40), QStringLiteral("140"));
        QCOMPARE(pdf.Fonts(), (QByteArrayList{"LiberationMono-Italic", "LiberationSerif", "LiberationSerif-Italic"}));
        QVERIFY(desk.Page().findChild<QAction*>(QStringLiteral("mnuFilePrint"))->isEnabled());
    }

    void aTrainingTable()
    {
        TableDesk desk;
        desk.Start();
        desk.OpenList();
        desk.OpenTable("Base 10 km.tab");
        desk.Click(*desk.Editor()->cmdStampa);
        const PrintedPdf pdf = PrintedPdf::Next();
        QCOMPARE(pdf.Pages().size(), 1);
        QCOMPARE(At(pdf, 26, 1), QStringLiteral("Tabella"));
        QCOMPARE(At(pdf, 33, 7), QStringLiteral("Media"));
        QCOMPARE(At(pdf, 20, 40), QStringLiteral("2026"));
        QVERIFY(desk.Editor()->cmdStampa->isEnabled());
    }
};

DAY_PAGE_TEST_MAIN(SheetsTest)
#include "SheetsTest.moc"
