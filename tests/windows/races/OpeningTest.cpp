// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The calendar's window as it opens.
#include "diary/CalendarModel.h"
#include "support/Bytes.h"
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

class OpeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensFromTheMenu();
    void showsTheFirstPage();
    void aSecondOpeningBringsTheSameWindow();
    void startsFromTheFile();
    void aBadFile_data();
    void aBadFile();
};

void OpeningTest::opensFromTheMenu()
{
    CalendarDesk desk;
    desk.StartOpen();
    const frmCalendario& window = *desk.Window();
    QCOMPARE(window.windowTitle(), QStringLiteral("Calendario Gare       di  "));
    QCOMPARE(window.windowModality(), Qt::NonModal);
    QVERIFY(window.width() <= 1366 && window.height() <= 740);
    QVERIFY(window.PrimaGaraPagina == 0);
    QVERIFY(window.CalendarioModificato == 0);
    const UpDown& pages = *window.upPaginaGare;
    QCOMPARE(QString::number(pages.Minimum()) + QLatin1Char('/') + QString::number(pages.Maximum()) + QLatin1Char('/') +
                 QString::number(pages.Increment()),
             QStringLiteral("0/80/20"));
    QVERIFY(pages.isVisible() && pages.Value() == 0);
    QCOMPARE(window.cmdEsci->text(), QStringLiteral("Esci"));
    QCOMPARE(window.cmdSalva->text(), QStringLiteral("Salva"));
    QCOMPARE(window.cmdStampa->text(), QStringLiteral("Stampa"));
    const std::pair<const char*, int> boxes[] = {
        {"txtGiornoGara", 2}, {"txtMeseGara", 2}, {"txtAnnoGara", 4},     {"txtGare", 31},       {"txtLocalita", 20},
        {"txtKm", 2},         {"txtMetri", 3},    {"txtPartecipanti", 7}, {"txtRisultato", 7},   {"txtOre", 2},
        {"txtMinuti", 2},     {"txtSecondi", 2},  {"txtCategoria", 8},    {"txtRisultatoCat", 7}};
    for (int row = 1; row <= 20; ++row) {
        const auto named = [row](const char* name) {
            return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(row);
        };
        for (const auto& [name, limit] : boxes) {
            const auto* box = window.findChild<TextBox*>(named(name));
            QVERIFY2(box != nullptr && box->isVisible() && window.rect().contains(box->geometry()), name);
            QCOMPARE(box->Limit(), limit);
            QVERIFY(box->accessibleName().endsWith(QStringLiteral(", riga %1").arg(row)));
        }
        QCOMPARE(window.findChild<Label*>(named("lblNumeroGara"))->text(), QString::number(row));
        for (const char* name : {"lblGiornoGara", "lblKmt", "lblTempi"}) {
            QVERIFY2(window.findChild<Label*>(named(name))->isVisible(), name);
        }
        for (const char* name :
             {"lblGara", "lblLocalita", "lblPartecipanti", "lblRisultato", "lblCategoria", "lblRisulCategoria"}) {
            const auto* label = window.findChild<Label*>(named(name));
            QVERIFY2(label != nullptr && !label->isVisible(), name);
        }
    }
    VERIFY_SCRIPT(desk.script);
}

void OpeningTest::showsTheFirstPage()
{
    CalendarBytes file;
    file.SetRow(1, "8|2|2026|Corrida della Candelora|Borgo San Pietro|10|5|1234|1131|1|5|9|MM45|16");
    file.SetRow(2, "9|2|2026|Notturna||10|||||45|30");
    file.SetRow(3, "||2026|Senza data");
    file.SetRow(20, "20|12|2026|Natale|Ponte|21|97||||||S50|12345");
    file.SetRow(21, "21|12|2026|Di un'altra pagina");
    CalendarDesk desk(file);
    desk.StartOpen();
    QCOMPARE(desk.Row(1), QByteArray("8|2|2026|Corrida della Candelora|Borgo San Pietro|10|005|1.234|1.131|1|05|09|"
                                     "MM45|16"));
    QCOMPARE(desk.Row(2), QByteArray("9|2|2026|Notturna||10|||||45|30||"));
    QCOMPARE(desk.Row(3), QByteArray("|||Senza data||||||||||"));
    QCOMPARE(desk.Row(4), QByteArray("|||||||||||||"));
    QCOMPARE(desk.Row(20), QByteArray("20|12|2026|Natale|Ponte|21|097||||||S50|12.345"));
    QCOMPARE(desk.Dashes(2), QByteArray("      -      -    "));
    QCOMPARE(desk.Dashes(3), QByteArray(18, ' '));
    QCOMPARE(desk.Dashes(4), QByteArray(18, ' '));
    VERIFY_SCRIPT(desk.script);
}

void OpeningTest::aSecondOpeningBringsTheSameWindow()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Gara, 1, QStringLiteral("corrida"));
    const frmCalendario* window = desk.Window();
    desk.Page().DispatchCommand("Gare");
    QTRY_VERIFY(desk.Window()->isActiveWindow());
    QVERIFY(desk.Window() == window);
    QCOMPARE(desk.Row(1), QByteArray("|||corrida||||||||||"));
    VERIFY_SCRIPT(desk.script);
}

void OpeningTest::startsFromTheFile()
{
    CalendarBytes file;
    file.SetRow(1, "8|2|2026|Corrida");
    CalendarDesk desk(file);
    desk.Start();
    Module1::Gara[1] = "memoria";
    Module1::GiornoGara[2] = 5;
    desk.OpenCalendar();
    QCOMPARE(desk.Row(1), QByteArray("8|2|2026|Corrida||||||||||"));
    QCOMPARE(RaceInMemory(1), QByteArray("8|2|2026|Corrida||0|0|0|0|0|0|0||0"));
    QVERIFY(Module1::GiornoGara[2] == 0);
    VERIFY_SCRIPT(desk.script);
}

void OpeningTest::aBadFile_data()
{
    CalendarBytes file;
    file.SetRow(1, "8|2|2026|Corrida|Borgo|10");
    file.SetRow(2, "9|2|2026|Notturna|Lido|9|500");
    file.SetRow(3, "10|2|2026|Stracitta|Ponte|10");
    QTest::addColumn<QByteArray>("bytes"); // None for a missing file.
    QTest::addColumn<QString>("report");
    QTest::addColumn<QByteArrayList>("rows");
    const QByteArray first = "8|2|2026|Corrida|Borgo|10||||||||";
    const QByteArray nothing = "|||||||||||||";
    QTest::newRow("missing") << QByteArray() << kNotFound << QByteArrayList{nothing, nothing, nothing};
    QTest::newRow("empty") << QByteArray("") << "62 Lettura oltre la fine del file"
                           << QByteArrayList{nothing, nothing, nothing};
    QTest::newRow("short") << file.Bytes(30) << "62 Lettura oltre la fine del file"
                           << QByteArrayList{first, "9|2|2026|Notturna|Lido|9|500|||||||", nothing};
    QTest::newRow("short within a row") << file.Bytes(20) << "62 Lettura oltre la fine del file"
                                        << QByteArrayList{first, "9|2|2026|Notturna||||||||||", nothing};
    QTest::newRow("garbled") << CalendarBytes(file).SetLine(2, 7, "nove").Bytes() << "13 Tipo non corrispondente"
                             << QByteArrayList{first, "9|2|2026|Notturna|Lido|||||||||", nothing};
    QTest::newRow("out of range") << CalendarBytes(file).SetLine(2, 4, "99999").Bytes() << "6 Numero oltre i limiti"
                                  << QByteArrayList{first, "9|2||||||||||||", nothing};
}

void OpeningTest::aBadFile()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, report);
    QFETCH(QByteArrayList, rows);
    CalendarDesk desk;
    if (bytes.isNull()) {
        desk.folder.Remove(QStringLiteral("prova/CalendarioGare"));
    } else {
        desk.WriteFile(bytes);
    }
    // Once at the start of the program, and once more when the window opens.
    desk.script.Expect(BareReport(report));
    desk.Start();
    VERIFY_SCRIPT(desk.script);
    const QByteArray name = rows[1].split('|')[3];
    QCOMPARE(Bytes(Module1::Gara[2]), name);
    Module1::Gara[3] = "memoria";
    desk.script.Expect(BareReport(report));
    desk.OpenCalendar();
    for (int row = 1; row <= 3; ++row) {
        QCOMPARE(desk.Row(row), rows[row - 1]);
        QCOMPARE(desk.Window()->lblNumeroGara[row]->text(), QString::number(row));
    }
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::OpeningTest)
#include "OpeningTest.moc"
