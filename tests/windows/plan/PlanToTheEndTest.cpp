// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A training table from its first box to its last day, all of it by hand: written, computed, saved and activated in the
// editor, then met day by day on the page until it is used up.
#include "support/PlanDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

constexpr int kFirst = 61; // 2 March 2026
const QString kFile = QStringLiteral("prova/Piano.tab");

/// The keys of a number.
QList<Qt::Key> Digits(int number)
{
    QList<Qt::Key> keys;
    for (const QChar digit : QString::number(number)) {
        keys << Qt::Key(Qt::Key_0 + digit.digitValue());
    }
    return keys;
}

class Runner : public PlanDesk
{
public:
    Runner() : PlanDesk(CalendarDate(2026, 3, 1)) {}

    /// Opens a group of spin controls by its value, presses keys and closes it.
    void Turn(Label& value, UpDown& focus, const QList<Qt::Key>& keys) const;
    void RunDistance(int km, int metres = 0) const;
    /// From seven o'clock on.
    void RunTime(int minutes, int seconds = 0) const;
    /// Types into the field of a list.
    void Enter(SelectionList field, const QString& text) const;
    /// Turns the page by the arrow of the day.
    void NextDay() const;
    void DayBefore() const;
    /// The panel shows the table and a row, and this row is the next to be met.
    void Verify(const QByteArray& row, int next) const;
};

void Runner::Turn(Label& value, UpDown& focus, const QList<Qt::Key>& keys) const
{
    hand::Click(value);
    QTRY_COMPARE(Focused(), focus.objectName().toLatin1());
    QTRY_VERIFY(focus.hasFocus());
    for (const Qt::Key key : keys) {
        hand::Key(key);
    }
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(!focus.isVisible());
}

void Runner::RunDistance(int km, int metres) const
{
    Turn(*Page().lblImmisMetri, *Page().upMetri, Digits(metres) + QList<Qt::Key>{Qt::Key_Left} + Digits(km));
}

void Runner::RunTime(int minutes, int seconds) const
{
    constexpr int hour = 60;
    constexpr int seven = 7;
    Turn(*Page().lblImmisOraInizio, *Page().upOraInizio, Digits(seven));
    const QList<Qt::Key> right = {Qt::Key_Right};
    Turn(*Page().lblImmisOraFine, *Page().upOraFine,
         Digits(seven + minutes / hour) + right + Digits(minutes % hour) + right + Digits(seconds));
    // The route's times have come up over the panel.
    ListBox& times = *Page().lstListaOrdinata;
    QTRY_VERIFY(times.isVisible());
    hand::Click(*times.viewport());
    QTRY_VERIFY(times.hasFocus());
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(!times.isVisible());
}

void Runner::Enter(SelectionList field, const QString& text) const
{
    const ListControls& controls = Page().ListField(field);
    hand::Click(*controls.lblImmis);
    QTRY_VERIFY(controls.txt->hasFocus());
    hand::Type(text);
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!controls.txt->isVisible());
    QCOMPARE(controls.lblImmis->text(), text);
}

void Runner::NextDay() const
{
    const int before = Module1::GiornoCorrente.value();
    UpDown& arrow = *Page().upGiorno;
    hand::Click(arrow, {arrow.width() / 2, arrow.height() / 4});
    QTRY_COMPARE(int{Module1::GiornoCorrente.value()}, before + 1);
}

void Runner::DayBefore() const
{
    const int before = Module1::GiornoCorrente.value();
    UpDown& arrow = *Page().upGiorno;
    hand::Click(arrow, {arrow.width() / 2, arrow.height() * 3 / 4});
    QTRY_COMPARE(int{Module1::GiornoCorrente.value()}, before - 1);
}

void Runner::Verify(const QByteArray& row, int next) const
{
    QCOMPARE(Panel(), "Piano|" + row);
    QCOMPARE(int{Module1::IndiceTabella.value()}, next);
    QCOMPARE(Pointer(), PointerTo("Piano.tab"));
}

// The panel's texts of the rows.
const QByteArray kRow1 = "10,0|0:50:0|5:0|||0 x 0  @  0:0";
const QByteArray kRow2 = "5,0|0:22:30|4:30|||0 x 0  @  0:0";
const QByteArray kRest = "0,0|0:0:0|0:0|||0 x 0  @  0:0";
const QByteArray kRow4 = "12,0|1:0:0|5:0|||0 x 0  @  0:0";
const QByteArray kRow5 = "0,0|0:0:0|0:0|Media|Strada Bianca|0 x 0  @  0:0";
const QByteArray kRow6 = "0,0|0:0:0|0:0|||5 x 1000  @  4:10";
const QByteArray kRow31 = "1,500|0:0:0|0:0|||0 x 0  @  0:0";

} // namespace

class PlanToTheEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPlanFromItsFirstBoxToItsLastDay();

private:
    static void WriteThePlan(const Runner& desk);
    static void ComputeAndAccept(Runner& desk);
    static void SaveAndActivate(Runner& desk);
    static void MeetTheWork(const Runner& desk);
    static void MeetTheRests(const Runner& desk);
    static void MeetTheLast(Runner& desk);
};

void PlanToTheEndTest::WriteThePlan(const Runner& desk)
{
    const struct {
        Column column;
        int row;
        const char* text;
    } boxes[] = {
        // A time for a distance: the average is missing.
        {Km, 1, "10"},
        {Minuti, 1, "50"},
        // A distance at an average: the time is missing.
        {Km, 2, "5"},
        {MediaMinuti, 2, "4"},
        {MediaSecondi, 2, "30"},
        // A time at an average: the distance is missing. Row 3 is a rest.
        {Ore, 4, "1"},
        {MediaMinuti, 4, "5"},
        {Andatura, 5, "MEDIA"},
        {Fondo, 5, "Strada BIANCA"},
        {RipetVolte, 6, "5"},
        {RipetDistanza, 6, "1000"},
        {RipetQuante, 6, "4"},
        {RipetTempi, 6, "10"},
        {Km, 31, "1"},
        {Metri, 31, "500"},
    };
    for (const auto& box : boxes) {
        desk.Write(desk.Box(box.column, box.row), QLatin1String(box.text));
    }
    desk.WriteStart("2", "3", "2026");
}

void PlanToTheEndTest::ComputeAndAccept(Runner& desk)
{
    const frmAllenamento& editor = *desk.Editor();
    // The last row has only a distance.
    desk.script.Expect(Warning(QStringLiteral("GIORNO 31 : IMMETTERE 2 VALORI PER CALCOLARNE IL 3°       ")));
    hand::Click(*editor.cmdCalcoloMedie);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Row(1), QByteArray("10|||50||5|0|000,00||||||"));
    QCOMPARE(desk.Row(2), QByteArray("5||0|22|30|4|30|||||||"));
    QCOMPARE(desk.Row(3), QByteArray("|||||||||||||"));
    QCOMPARE(desk.Row(4), QByteArray("12|0|1|||5||||||||"));
    QCOMPARE(desk.Row(5), QByteArray("||||||||Media|Strada Bianca||||"));
    QCOMPARE(desk.Row(6), QByteArray("||||||||||5|1.000|4|10"));
    QVERIFY(!editor.cmdAttiva->isEnabled());
    hand::Click(*editor.cmdOK);
    QTRY_VERIFY(editor.cmdAttiva->isEnabled());
    VERIFY_SCRIPT(desk.script);
}

void PlanToTheEndTest::SaveAndActivate(Runner& desk)
{
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("Piano")));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.folder.Read(kFile), TableBytes(QDate(2026, 3, 2))
                                          .SetRow(1, "10||0|50|0|5|0|0")
                                          .SetRow(2, "5||0|22|30|4|30")
                                          .SetRow(4, "12|0|1|0|0|5|0")
                                          .SetRow(5, "||||||||Media|Strada Bianca")
                                          .SetRow(6, "||||||||||5|1000|4|10")
                                          .SetRow(31, "1|500")
                                          .Bytes());
    QCOMPARE(desk.Pointer(), PlanDesk::kNoPointer);
    hand::Click(*desk.Editor()->cmdAttiva);
    QTRY_COMPARE(desk.Pointer(), desk.PointerTo("Piano.tab"));
    QVERIFY(desk.Editor()->cmdDisattiva->isEnabled());
    desk.LeaveEditor();
    QCOMPARE(desk.Entries(), QByteArrayList{"Piano.tab"});
    QCOMPARE(desk.List()->flbListaTabelle->ListIndex(), 0);
    desk.LeaveList();
    QTRY_COMPARE(desk.Request(), QByteArray("0"));
    VERIFY_SCRIPT(desk.script);
}

/// 2 to 8 March: six rows of work and a rest between them.
void PlanToTheEndTest::MeetTheWork(const Runner& desk)
{
    const frmMain& page = desk.Page();
    desk.Verify(kNeutral, 1);
    hand::Click(*page.lblData);
    QTRY_VERIFY(page.upGiorno->isVisible());
    desk.NextDay();
    QCOMPARE(int{Module1::GiornoCorrente.value()}, kFirst);
    desk.Verify(kRow1, 1);
    desk.RunDistance(10);
    desk.RunTime(50);
    QCOMPARE(desk.Caption("lblOutMediaKM"), QStringLiteral("5:00"));
    desk.NextDay();
    desk.Verify(kRow2, 2);
    // Back on the day that met it, the row shows still.
    desk.DayBefore();
    desk.Verify(kRow1, 2);
    desk.NextDay();
    // A kilometre too little: the row stays for another day.
    desk.RunDistance(4);
    desk.RunTime(18);
    desk.NextDay();
    desk.Verify(kRow2, 2);
    desk.RunDistance(5);
    desk.RunTime(22, 30);
    desk.NextDay();
    desk.Verify(kRest, 4);
    desk.NextDay();
    desk.Verify(kRow4, 4);
    desk.RunDistance(12);
    desk.RunTime(60);
    desk.NextDay();
    desk.Verify(kRow5, 5);
    desk.Enter(SelectionList::Modo, QStringLiteral("media"));
    desk.Enter(SelectionList::Fondo, QStringLiteral("strada bianca"));
    desk.NextDay();
    desk.Verify(kRow6, 6);
    desk.Turn(*page.lblRipetizioniVolte, *page.upRipetizioni, Digits(5));
    desk.Turn(*page.lblRipetizioniDistanza, *page.upRipetizioniDistanza, Digits(1000));
    desk.Turn(*page.lblRipetizioniQuante, *page.upRipetizioniQuante,
              Digits(4) + QList<Qt::Key>{Qt::Key_Right} + Digits(10));
    desk.NextDay();
}

/// Rows 7 to 30, each used up by a day off.
void PlanToTheEndTest::MeetTheRests(const Runner& desk)
{
    QCOMPARE(int{Module1::GiornoCorrente.value()}, kFirst + 7);
    for (int row = 7; row <= 30; ++row) {
        desk.Verify(kRest, row + 1);
        desk.NextDay();
    }
}

void PlanToTheEndTest::MeetTheLast(Runner& desk)
{
    desk.Verify(kRow31, 31);
    desk.NextDay();
    desk.Verify(kRow31, 31);
    desk.RunDistance(1, 500);
    desk.script.Expect(EndOfTable(QStringLiteral("Piano")));
    const QByteArray before = desk.folder.Read(kFile);
    desk.NextDay();
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Pointer(), PlanDesk::kNoPointer);
    QCOMPARE(desk.Panel(), QByteArray("|") + kNeutral);
    QCOMPARE(desk.folder.Read(kFile), before);
    // Without it the days go by as they are.
    for (int day = 0; day < 3; ++day) {
        desk.DayBefore();
        QCOMPARE(desk.Panel(), QByteArray("|") + kNeutral);
    }
    QCOMPARE(PlanDesk::Active(), QByteArray());
}

void PlanToTheEndTest::aPlanFromItsFirstBoxToItsLastDay()
{
    Runner desk;
    desk.Begin();
    desk.OpenList();
    desk.OpenNew();
    const auto steps = {+[](Runner& runner) { WriteThePlan(runner); },
                        &ComputeAndAccept,
                        &SaveAndActivate,
                        +[](Runner& runner) { MeetTheWork(runner); },
                        +[](Runner& runner) { MeetTheRests(runner); },
                        &MeetTheLast};
    for (const auto& step : steps) {
        step(desk);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PlanToTheEndTest)
#include "PlanToTheEndTest.moc"
