// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// An active table whose file is missing or damaged: what the page reports and shows, and that it goes on.
#include "support/PlanDesk.h"
#include "support/WindowTest.h"

#include <iterator>

namespace zelvia::test
{
namespace
{

constexpr int kToday = 140; // 20 May 2026
constexpr int kRow = 10;
const QString kFile = QStringLiteral("tabelle/Piano.tab");
const QString kEndOfFile = QStringLiteral("62 Lettura oltre la fine del file");
const QString kNoNumber = QStringLiteral("13 Tipo non corrispondente");
const QString kTooLarge = QStringLiteral("6 Numero oltre i limiti");

/// Nine rests from 1 May on, which the empty days have met, and a row that asks for kilometres.
TableBytes Plan(int km)
{
    return TableBytes(QDate(2026, 5, 1)).SetRow(kRow, QByteArray::number(km));
}

// What was in memory before: nothing at the program's start, another diary's table when a diary is opened, the table
// itself at a tick.
enum Moment { ProgramStart, Opening, Tick };
constexpr int kOfTheOther = 5;
constexpr int kBefore = 7;
constexpr int kInTheFile = 8;

struct Damage {
    const char* name;
    QByteArray bytes;
    QString report; ///< Empty when the file is read to its end.
    QByteArray atStart;
    QByteArray atOpening;
    QByteArray atTick;
};

/// The row in memory stays; a table whose start is not known yet shows nothing.
Damage OldRow(const char* name, const QByteArray& bytes, const QString& report)
{
    return {name, bytes, report, kNeutral, Kilometres(kOfTheOther), Kilometres(kBefore)};
}

/// The row of the file has come, the start has not.
Damage NewRow(const char* name, const QByteArray& bytes, const QString& report)
{
    return {name, bytes, report, kNeutral, Kilometres(kInTheFile), Kilometres(kInTheFile)};
}

/// All of it has come.
Damage Whole(const char* name, const QByteArray& bytes, const QByteArray& row = Kilometres(kInTheFile))
{
    return {name, bytes, {}, row, row, row};
}

QByteArray AllBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

QList<Damage> Damages()
{
    using Table = TableBytes;
    const Table plan = Plan(kInTheFile);
    const auto with = [&](Table::Column column, const QByteArray& line) {
        return Table(plan).Set(kRow, column, line).Bytes();
    };
    const auto starting = [&](const char* line) { return Table(plan).SetStart(line).Bytes(); };
    Table misnumbered = plan;
    for (int row = 1; row <= Table::kRows; ++row) {
        misnumbered.Set(row, Table::Number, "99");
    }
    return {
        OldRow("empty", {}, kEndOfFile),
        OldRow("cut ahead of the row", plan.Cut(Table::LinesBefore(kRow, Table::Number)), kEndOfFile),
        OldRow("cut behind the row's number", plan.Cut(Table::LinesBefore(kRow, Table::Km)), kEndOfFile),
        NewRow("cut behind the kilometres", plan.Cut(Table::LinesBefore(kRow, Table::Metres)), kEndOfFile),
        NewRow("cut in the middle of a text", plan.Cut(Table::LinesBefore(kRow, Table::Pace)) + "\"Med", kEndOfFile),
        NewRow("cut ahead of the start", plan.Cut(Table::kLines - 1), kEndOfFile),
        NewRow("cut in the middle of the start", plan.Cut(Table::kLines - 1) + "#2026-0", kNoNumber),
        NewRow("a start that does not exist", starting("#2026-02-30#"), kNoNumber),
        NewRow("a start written the other way round", starting("#01/05/2026#"), kNoNumber),
        NewRow("a start that is a text", starting("\"2026-05-01\""), kNoNumber),
        OldRow("a text for a number", with(Table::Km, "otto"), kNoNumber),
        OldRow("a number in quotes", with(Table::Km, "\"8\""), kNoNumber),
        OldRow("no number", with(Table::Km, ""), kNoNumber),
        OldRow("a number too large", with(Table::Km, "40000"), kTooLarge),
        OldRow("a number too small", with(Table::Km, "-40000"), kTooLarge),
        OldRow("any bytes", AllBytes().repeated(20), kNoNumber),
        // Numbers are taken as they are, and shown so.
        Whole("numbers no field would take",
              Table(plan).SetRow(kRow, "12000|-3|25|61|99|77|-1||||99|32767|61|-32768").Bytes(),
              "12000,-3|25:61:99|77:-1|||99 x 32767  @  61:-32768"),
        Whole("rows numbered otherwise", misnumbered.Bytes()),
        Whole("lines behind the last", plan.Bytes() + "1\r\n\"x\"\r\n"),
        Whole("bare line ends", plan.Bytes().replace("\r\n", "\n")),
        Whole("one line", plan.Bytes().replace("\r\n", ",")),
        Whole("a start in an earlier year", starting("#2025-05-01#")),
        {"a start in a later year", starting("#2027-05-01#"), {}, kNeutral, kNeutralOfADiary, kNeutral},
    };
}

/// A page whose active table is beside the diary's folder.
class DamageDesk : public PlanDesk
{
public:
    DamageDesk() { folder.Write(kFile, Plan(kBefore).Bytes()); }

    QByteArray Path() const { return QByteArray::fromStdString(folder.System(kFile)); }

    /// Brings the moment about; `damage` is done ahead of it, and one report expected if there is to be one.
    template <typename Damaging>
    void Meet(int moment, Damaging&& damage, const QString& report);

    /// The table stays the active one, and the page goes from day to day as before.
    void VerifyGoingOn(int moment, const QByteArray& row);
};

template <typename Damaging>
void DamageDesk::Meet(int moment, Damaging&& damage, const QString& report)
{
    const QByteArray pointer = PointerOf(Path());
    if (moment == Opening) {
        PutTable(QStringLiteral("Prima.tab"), Plan(kOfTheOther));
        Activate("Prima.tab");
        PutSecondDiary(pointer);
        script.Expect(OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("seconda.zlv")));
    } else {
        folder.Write(QStringLiteral("prova/nometab"), pointer);
    }
    if (moment == Tick) {
        Begin();
        QCOMPARE(Panel(), QByteArray("Piano|") + Kilometres(kBefore));
    }
    damage();
    if (moment == Opening) {
        Begin();
        QCOMPARE(Panel(), QByteArray("Prima|") + Kilometres(kOfTheOther));
    }
    if (!report.isEmpty()) {
        script.Expect(BareReport(report));
    }
    switch (moment) {
    case ProgramStart: Begin(); break;
    case Opening: OpenSecondDiary(); break;
    default: ReadAgain(); break;
    }
    TRY_SCRIPT(script);
}

void DamageDesk::VerifyGoingOn(int moment, const QByteArray& row)
{
    QCOMPARE(Panel(), QByteArray("Piano|") + row);
    QVERIFY(Page().isVisible());
    QCOMPARE(Active(), Path());
    const QString pointer = moment == Opening ? QStringLiteral("seconda/nometab") : QStringLiteral("prova/nometab");
    QCOMPARE(folder.Read(pointer), PointerOf(Path()));
    // The texts of a diary just opened give way to those of a day.
    const QByteArray later = row == kNeutralOfADiary ? QByteArray(kNeutral) : row;
    GoTo(kToday + 1);
    QCOMPARE(Panel(), QByteArray("Piano|") + later);
    GoTo(kToday);
    QCOMPARE(Panel(), QByteArray("Piano|") + later);
    VERIFY_SCRIPT(script);
}

const char* const kMoments[] = {"at the start", "at opening", "at a tick"};

} // namespace

class DamagedTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noFile_data();
    void noFile();
    void damagedFile_data();
    void damagedFile();
    void cutAtEveryRow();
    void mendedItIsReadAgain();
};

void DamagedTableTest::noFile_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("report");
    for (const int moment : {ProgramStart, Opening, Tick}) {
        QTest::addRow("the file is missing %s", kMoments[moment]) << moment << 0 << kNotFound;
        QTest::addRow("its folder is missing %s", kMoments[moment]) << moment << 1 << kNoFolder;
        QTest::addRow("it is a folder %s", kMoments[moment]) << moment << 2 << kDenied;
    }
}

void DamagedTableTest::noFile()
{
    QFETCH(int, moment);
    QFETCH(int, kind);
    QFETCH(QString, report);
    DamageDesk desk;
    desk.Meet(
        moment,
        [&] {
            switch (kind) {
            case 0: desk.folder.Remove(kFile); break;
            case 1: desk.folder.Remove(QStringLiteral("tabelle")); break;
            default: desk.folder.Block(kFile); break;
            }
        },
        report);
    desk.VerifyGoingOn(moment, moment == ProgramStart ? QByteArray(kNeutral)
                               : moment == Opening    ? Kilometres(kOfTheOther)
                                                      : Kilometres(kBefore));
}

void DamagedTableTest::damagedFile_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QByteArray>("row");
    for (const Damage& damage : Damages()) {
        const QByteArray rows[] = {damage.atStart, damage.atOpening, damage.atTick};
        for (const int moment : {ProgramStart, Opening, Tick}) {
            QTest::addRow("%s, %s", damage.name, kMoments[moment])
                << moment << damage.bytes << damage.report << rows[moment];
        }
    }
}

void DamagedTableTest::damagedFile()
{
    QFETCH(int, moment);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, report);
    QFETCH(QByteArray, row);
    DamageDesk desk;
    desk.Meet(
        moment, [&] { desk.folder.Write(kFile, bytes); }, report);
    desk.VerifyGoingOn(moment, row);
}

void DamagedTableTest::cutAtEveryRow()
{
    DamageDesk desk;
    desk.folder.Write(QStringLiteral("prova/nometab"), PlanDesk::PointerOf(desk.Path()));
    desk.Begin();
    const TableBytes good = Plan(kBefore);
    const TableBytes other = Plan(kInTheFile);
    // Of 500 ms each, the ticks would take minutes: here the timer's own routine is called.
    const auto readAgain = [&](const QByteArray& bytes) {
        desk.folder.Write(kFile, bytes);
        desk->RequestTableReading();
        desk->tmrFocus_Timer();
    };
    QList<int> cuts;
    for (int lines = 0; lines < TableBytes::kLines; ++lines) {
        // At the end of every row, and at every line of the one that shows.
        const int row = lines / TableBytes::kColumns + 1;
        if (row == kRow || lines % TableBytes::kColumns == 0) {
            cuts << lines;
        }
    }
    QCOMPARE(cuts.size(), 32 + 14);
    for (const int lines : std::as_const(cuts)) {
        readAgain(good.Bytes());
        QCOMPARE(desk.PanelRow(), Kilometres(kBefore));
        desk.script.Expect(BareReport(kEndOfFile));
        readAgain(other.Cut(lines));
        VERIFY_SCRIPT(desk.script);
        const bool come = lines >= TableBytes::LinesBefore(kRow, TableBytes::Metres);
        QVERIFY2(desk.Panel() == QByteArray("Piano|") + Kilometres(come ? kInTheFile : kBefore),
                 qPrintable(QString::number(lines)));
        QCOMPARE(desk.Request(), QByteArray("0"));
    }
}

void DamagedTableTest::mendedItIsReadAgain()
{
    DamageDesk desk;
    desk.Meet(
        ProgramStart, [&] { desk.folder.Remove(kFile); }, kNotFound);
    desk.folder.Write(kFile, Plan(kInTheFile).Bytes());
    desk.ReadAgain();
    desk.VerifyGoingOn(ProgramStart, Kilometres(kInTheFile));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::DamagedTableTest)
#include "DamagedTableTest.moc"
