// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bad input to the boxes of the race calendar.
#include "boxes/BoxHand.h"
#include "core/Messages.h"
#include "support/Bytes.h"
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

constexpr int kRows = 20;
constexpr int kFreeRow = 20;
const QString kThousands = QStringLiteral("MAX 999.999                   ");

struct BoxRow {
    const char* name;
    RaceColumn box;
    int limit;
    const NumberKind* kind; ///< None for texts.
    QString message;        ///< Of a number beyond the limit.
};

const BoxRow kBoxes[] = {
    {"txtGiornoGara", RaceColumn::Giorno, 2, &kTwoCharactersToALimit, QStringLiteral("MAX 31 GIORNI                 ")},
    {"txtMeseGara", RaceColumn::Mese, 2, &kTwoCharactersToALimit, QStringLiteral("MAX 12 MESI                   ")},
    {"txtAnnoGara", RaceColumn::Anno, 4, &kYear, QStringLiteral("MAX ANNO 2099                 ")},
    {"txtGare", RaceColumn::Gara, 31, nullptr, {}},
    {"txtLocalita", RaceColumn::Localita, 20, nullptr, {}},
    {"txtKm", RaceColumn::Km, 2, &kTwoCharacters, {}},
    {"txtMetri", RaceColumn::Metri, 3, &kThreeDigits, {}},
    {"txtPartecipanti", RaceColumn::Partecipanti, 7, &kThousandsTo999999, kThousands},
    {"txtRisultato", RaceColumn::Risultato, 7, &kThousandsTo999999, kThousands},
    {"txtOre", RaceColumn::Ore, 2, &kTwoCharactersToALimit, QStringLiteral("MAX 24 ORE                ")},
    {"txtMinuti", RaceColumn::Minuti, 2, &kTwoDigitsToALimit, QStringLiteral("MAX 59 MINUTI                ")},
    {"txtSecondi", RaceColumn::Secondi, 2, &kTwoDigitsToALimit, QStringLiteral("MAX 59 SECONDI                ")},
    {"txtCategoria", RaceColumn::Categoria, 8, nullptr, {}},
    {"txtRisultatoCat", RaceColumn::RisultatoCat, 7, &kThousandsTo999999, kThousands},
};

/// A box of the free row, other than the one tried.
RaceColumn OtherThan(RaceColumn box)
{
    return box == RaceColumn::Categoria ? RaceColumn::Gara : RaceColumn::Categoria;
}

int LineOf(RaceColumn box)
{
    return box + 2;
}

/// The calendar with one box of the rows from the first on tried.
class Desk : public CalendarDesk
{
public:
    void Begin(const BoxRow& row)
    {
        row_ = &row;
        StartOpen();
    }

    /// The other two parts of a date that no other row has.
    void CompleteDate(int row)
    {
        const std::pair<RaceColumn, int> parts[] = {
            {RaceColumn::Giorno, row}, {RaceColumn::Mese, 1 + row % 7}, {RaceColumn::Anno, 2026 + row / 7}};
        for (const auto& [box, value] : parts) {
            if (box != row_->box) {
                Box(box, row).setText(QString::number(value));
                file_.SetLine(row, LineOf(box), QByteArray::number(value));
            }
        }
    }

    void Hold(int row, const QByteArray& line) { file_.SetLine(row, LineOf(row_->box), line); }

    /// Fills a box of another row, saves with those messages, and reads the file again.
    void GoOn(const QStringList& messages)
    {
        const RaceColumn other = OtherThan(row_->box);
        Fill(Box(other, kFreeRow), {"", Entry::Typed, QStringLiteral("altra")});
        file_.SetLine(kFreeRow, LineOf(other), "\"altra\"");
        script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
        for (const QString& message : messages) {
            script.Expect(Warning(message));
        }
        hand::Click(*Window()->cmdSalva);
        TRY_SCRIPT(script);
        CompareFile(File(), file_.Bytes());
        AwaitFront(*Window());
        // The closing checks the dates once more; what was put right stays so.
        for (const QString& message : messages) {
            if (row_->box != RaceColumn::Anno) {
                script.Expect(Warning(message));
            }
        }
        Leave();
        OpenCalendar();
    }

    /// What the model holds for the box tried.
    QByteArray Held(int row) const { return RaceInMemory(row).split('|')[row_->box]; }

private:
    CalendarBytes file_;
    const BoxRow* row_ = nullptr;
};

/// What the saving says of a part of a date, and makes of it.
struct Repair {
    QString message;
    int value;
};

Repair RepairOf(RaceColumn box, int row, int value)
{
    if (box == RaceColumn::Giorno && value < 1) {
        return {QStringLiteral(" MANCA AL N° %1 :   GIORNO   ").arg(row), value};
    }
    if (box == RaceColumn::Mese && value < 1) {
        return {QStringLiteral(" MANCA AL N° %1 :   MESE   ").arg(row), value};
    }
    if (box == RaceColumn::Anno && value < 2007) {
        return {QStringLiteral(" MODIFICA AL N° %1 :   ANNO 2026  ").arg(row), 2026};
    }
    return {{}, value};
}

} // namespace

class CalendarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxHasItsRow();
    void numbers_data() { AddBoxRows(kBoxes, true); }
    void numbers();
    void texts_data() { AddBoxRows(kBoxes, false); }
    void texts();
    void keysThatAreNoneOfThePage();
};

void CalendarTest::everyBoxHasItsRow()
{
    CalendarDesk desk;
    desk.StartOpen();
    QByteArrayList named{Counted("upPaginaGare", 1)};
    for (const BoxRow& row : kBoxes) {
        named << Counted(row.name, kRows);
    }
    QCOMPARE(BoxesOf(*desk.Window()), Sorted(named));
    const auto limitOf = [](const QByteArray& name) { return LimitIn(kBoxes, name); };
    QCOMPARE(BoxesOfOtherLength(*desk.Window(), limitOf), QByteArrayList());
    VERIFY_SCRIPT(desk.script);
}

void CalendarTest::numbers()
{
    QFETCH(int, index);
    const BoxRow& row = kBoxes[index];
    const bool isDate = row.box == RaceColumn::Giorno || row.box == RaceColumn::Mese || row.box == RaceColumn::Anno;
    Desk desk;
    desk.Begin(row);
    QStringList messages;
    QByteArrayList values;
    for (int i = 1; i <= int(kNumberInputs); ++i) {
        const BadInput& input = NumberInputs()[static_cast<std::size_t>(i - 1)];
        const Outcome& outcome = (*row.kind)[static_cast<std::size_t>(i - 1)];
        TextBox& box = desk.Box(row.box, i);
        if (isDate) {
            desk.CompleteDate(i);
        }
        Fill(box, input);
        QTRY_COMPARE(box.text(), outcome.Shown());
        LeaveByTab(desk, box, outcome, Warning(row.message));
        int value = outcome.refused ? 1 : outcome.value;
        if (isDate) {
            const Repair repair = RepairOf(row.box, i, value);
            value = repair.value;
            if (!repair.message.isEmpty()) {
                messages << repair.message;
            }
        }
        values << QByteArray::number(value);
        desk.Hold(i, values.last());
    }
    desk.GoOn(messages);
    for (int i = 1; i <= int(kNumberInputs); ++i) {
        QCOMPARE(desk.Held(i), values[i - 1]);
    }
    VERIFY_SCRIPT(desk.script);
}

void CalendarTest::texts()
{
    QFETCH(int, index);
    const BoxRow& row = kBoxes[index];
    Desk desk;
    desk.Begin(row);
    QByteArrayList values;
    for (const BadInput& input : TextInputs()) {
        const int i = static_cast<int>(values.size()) + 1;
        TextBox& box = desk.Box(row.box, i);
        Fill(box, input);
        const QByteArray shown = Shown(input, row.limit).toUtf8();
        QTRY_COMPARE(box.text(), QString::fromUtf8(shown));
        LeaveByTab(desk, box, {shown.constData(), 0}, {});
        values << Bytes(FromQString(QString::fromUtf8(shown)));
        desk.Hold(i, '"' + values.last() + '"');
    }
    desk.GoOn({});
    for (int i = 1; i <= values.size(); ++i) {
        QCOMPARE(desk.Held(i), values[i - 1]);
        QCOMPARE(Bytes(desk.Box(row.box, i).Content()), values[i - 1]);
    }
    VERIFY_SCRIPT(desk.script);
}

void CalendarTest::keysThatAreNoneOfThePage()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Window()->upPaginaGare->SetFocus();
    QTRY_VERIFY(desk.Window()->upPaginaGare->hasFocus());
    PressForeignKeys();
    QCOMPARE(desk.Window()->upPaginaGare->Value().value(), 0);
    QCOMPARE(desk.FirstNumber(), QByteArray("1"));
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::CalendarTest)
#include "CalendarTest.moc"
