// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DiaryBytes.h"
#include "support/FixedClock.h"
#include "support/TestProgram.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTest>

#include <filesystem>
#include <memory>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class CheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void TheSampleYearIsFine();
    void LinesOfADay_data();
    void LinesOfADay();
    void DaysOfADiary_data();
    void DaysOfADiary();
    void WholeFiles_data();
    void WholeFiles();
    void Pointers_data();
    void Pointers();
    void RacesOfOneDay();
    void OnlyTheDiariesNamed();
    void InWords();
    void TheOriginalIsKept();
    void IsAskedFirst();
    void AsksForWhatIsOnlyLikely();
    void DiariesOfOneFolder();
    void ConflictCopiesAreTold();
    void NamesWithoutAFolder();
    void AFileThatIsNoDiary();
    void ADiaryThatIsALink();

private:
    QByteArray Sample() const { return Bytes(desk_->Read("ZelviaFile/prova.zlv")); }
    QStringList Findings() const;
    /// Writes the diary, expects these findings and, after it was repaired, these bytes.
    void Expect(const QByteArray& bytes, const QStringList& findings, int status, const QByteArray& mended);

    std::unique_ptr<ToolsDesk> desk_;
};

namespace
{

constexpr const char* kDiary = "ZelviaFile/prova.zlv";

/// The lines first..last of a file, from 1.
QByteArray LinesOf(const QByteArray& bytes, int first, int last)
{
    return bytes.split('\n').mid(first - 1, last - first + 1).join('\n') + '\n';
}

} // namespace

void CheckTest::init()
{
    desk_ = std::make_unique<ToolsDesk>();
}

void CheckTest::cleanup()
{
    desk_.reset();
}

/// Each as file:line:day:field:kind.
QStringList CheckTest::Findings() const
{
    QStringList findings;
    for (const QByteArray& row : desk_->Run({"controlla", "--tsv"}).out.split('\n').mid(1)) {
        const QList<QByteArray> cells = row.split('\t');
        if (cells.size() == 6) {
            findings << QString::fromUtf8(cells.mid(0, 5).join(':'));
        }
    }
    return findings;
}

void CheckTest::Expect(const QByteArray& bytes, const QStringList& findings, int status, const QByteArray& mended)
{
    desk_->Write(kDiary, bytes.toStdString());
    QCOMPARE(Findings(), findings);
    const Outcome outcome = desk_->Run({"ripara", "--si"});
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.status, status);
    QCOMPARE(Difference(desk_->Read(kDiary), mended.toStdString()), QByteArray());
    QCOMPARE(desk_->Run({"controlla"}).status, status);
}

void CheckTest::TheSampleYearIsFine()
{
    const QByteArray before = desk_->Everything();
    Outcome outcome = desk_->Run({"controlla", "--tsv"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray("file\tline\tday\tfield\tkind\ttext\n"));
    QCOMPARE(outcome.err, QByteArray());
    outcome = desk_->Run({"ripara", "--si"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray("Tutto a posto.\n"));
    QCOMPARE(desk_->Everything(), before);
    QCOMPARE(desk_->Copies(), 0);
}

void CheckTest::LinesOfADay_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<QByteArray>("mended"); ///< Empty when it is to stay.
    QTest::addColumn<QByteArray>("overwritten");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char* name, int line, const char* damage, const char* mended, const char* overwritten,
                        const char* field, const char* kind) {
        QTest::newRow(name) << line << QByteArray(damage) << QByteArray(mended) << QByteArray(overwritten)
                            << QString::fromUtf8(field) << QString::fromLatin1(kind);
    };
    row("quotes in a note", 129, "\"il \"Giro\" di notte\"", "\"il \x93Giro\x94 di notte\"", "", "Note, riga 1",
        "quote");
    row("a quote at the start", 129, "\"\"Giro\" di notte\"", "\"\x93Giro\x94 di notte\"", "", "Note, riga 1", "quote");
    row("one quote in a route", 3, "\"da 5\" a 6\"", "\"da 5\x94 a 6\"", "", "Percorso", "quote");
    row("no quote at the end", 3, "\"Lago", "\"Lago\"", "", "Percorso", "quote");
    row("no quote at the start", 3, "Lago\"", "\"Lago\"", "", "Percorso", "quote");
    row("no quotes at all", 3, "Lago", "\"Lago\"", "", "Percorso", "quote");
    row("nothing in a text's place", 20, "", "\"\"", "", "Tempi Km, riga 3", "quote");
    row("a number in a text's place", 20, "12", "", "\"12\"", "Tempi Km, riga 3", "quote");
    row("UTF-8", 129, "\"perch\xC3\xA9\"", "\"perch\xE9\"", "", "Note, riga 1", "encoding");
    row("a character outside the set", 129, "\"\xE2\x82\xAC \xE2\x98\xBA\"", "", "\"\x80 ?\"", "Note, riga 1",
        "encoding");
    row("a control character", 127, "\"a\x01z\"", "", "\"a z\"", "Note fuori pagina, riga 1", "encoding");
    row("words in a number's place", 5, "sette", "", "0", "Km", "number");
    row("words in the runners' place", 121, "due", "", "1", "Corridori", "number");
    row("a number in quotes", 5, "\"12\"", "12", "", "Km", "number");
    row("a number with a comma", 5, "7,5", "", "0", "Km", "number");
    row("no number", 6, "", "", "0", "Metri", "number");
    row("too many kilometres", 5, "501", "", "500", "Km", "range");
    row("fewer than none", 122, "-1", "", "0", "Peso", "range");
    row("more than fits", 5, "99999999999999999999", "", "500", "Km", "range");
    row("no runner", 121, "0", "", "1", "Corridori", "range");
    row("an hour too many", 10, "25", "", "24", "Ora Inizio, ore", "range");
    row("the number of another day", 1, "61", "62", "", "Numero del giorno", "duplicate");
    row("a number that no day has", 1, "367", "62", "", "Numero del giorno", "range");
    row("the date of another day", 2, "#2027-03-02#", "", "#2027-03-03#", "Data", "duplicate");
    row("a date that is none", 2, "#2027-02-30#", "#2027-03-03#", "", "Data", "number");
    row("a date in another form", 2, "#03/03/2027#", "#2027-03-03#", "", "Data", "number");
}

void CheckTest::LinesOfADay()
{
    QFETCH(int, line);
    QFETCH(QByteArray, damage);
    QFETCH(QByteArray, mended);
    QFETCH(QByteArray, overwritten);
    QFETCH(QString, field);
    QFETCH(QString, kind);
    DiaryBytes diary = DiaryBytes::Blank(2027);
    diary.SetLine(62, line, damage);
    const QByteArray damaged = diary.Bytes();
    if (!mended.isEmpty()) {
        diary.SetLine(62, line, mended);
    }
    const QString finding =
        QStringLiteral("ZelviaFile/prova.zlv:%1:2027-03-03:%2:%3").arg(61 * 136 + line).arg(field, kind);
    Expect(damaged, {finding}, mended.isEmpty() ? 1 : 0, diary.Bytes());
    if (mended.isEmpty()) {
        const Outcome outcome = desk_->Run({"ripara", "--si", "--sovrascrivi"});
        QCOMPARE(outcome.status, 0);
        diary.SetLine(62, line, overwritten);
        QCOMPARE(Difference(desk_->Read(kDiary), diary.Bytes().toStdString()), QByteArray());
        QCOMPARE(Findings(), QStringList());
    }
}

void CheckTest::DaysOfADiary_data()
{
    QTest::addColumn<QByteArray>("damaged");
    QTest::addColumn<QString>("finding");
    QTest::addColumn<QByteArray>("mended");
    QTest::addColumn<QByteArray>("overwritten"); ///< Empty when it stays all the same.
    DiaryBytes diary = DiaryBytes::Blank(2027);
    for (int slot = 1; slot <= 366; ++slot) {
        diary.SetLine(slot, DiaryBytes::Route, "\"giro " + QByteArray::number(slot) + "\"");
    }
    const QByteArray whole = diary.Bytes();
    const auto upTo = [&](int line) { return LinesOf(whole, 1, line); };
    const auto from = [&](int line) { return LinesOf(whole, line, 49776); };
    const auto day = [&](int slot) { return LinesOf(whole, slot * 136 - 135, slot * 136); };
    const auto row = [&](const char* name, const QByteArray& damaged, const char* finding, const QByteArray& mended,
                         const QByteArray& overwritten = {}) {
        QTest::newRow(name) << damaged << QString::fromUtf8(finding) << mended << overwritten;
    };
    const auto blank = [&](int first, int fromLine = 1) {
        const DiaryBytes none = DiaryBytes::Blank(2027);
        DiaryBytes changed = diary;
        for (int slot = first; slot <= 366; ++slot) {
            for (int line = slot == first ? fromLine : 1; line <= 136; ++line) {
                changed.SetLine(slot, line, none.Line(slot, line));
            }
        }
        return changed.Bytes();
    };
    row("cut between two days", upTo(199 * 136), "27065:2027-07-19:Numero del giorno:missing", blank(200));
    row("cut in a day", upTo(199 * 136 + 7), "27072:2027-07-19:Terreno:missing", blank(200, 8));
    row("cut in a text", upTo(199 * 136 + 3).chopped(4), "27068:2027-07-19:Lunghezza:missing",
        blank(200, 4).replace("\"giro 200\"", "\"giro 20\""));
    row("cut in a date", upTo(199 * 136 + 2).chopped(6), "27067:2027-07-19:Percorso:missing", blank(200, 3));
    row("cut in its last line", whole.chopped(3), "49776:::line_end|49776:2028-01-01:Note, riga 8:quote", whole);
    row("without its last line end", whole.chopped(2), "49776:::line_end", whole);
    row("lines behind the end", whole + "\"x\"\r\n", "49777:::extra", whole + "\"x\"\r\n", whole);
    row("empty lines behind the end", whole + "\r\n\r\n", "49777:::extra", whole);
    row("zeros behind the end", whole + QByteArray(100, '\0'), "49777:::extra", whole);
    row("a day twice", upTo(272) + day(2) + from(273), "273:2027-01-02::duplicate", whole);
    row("a late day twice", upTo(49640) + day(365) + from(49641), "49641:2027-12-31::duplicate", whole);
    QByteArray other = day(2);
    other.replace("giro 2", "altro");
    row("a day twice, different", upTo(272) + other + from(273), "273:2027-01-02::duplicate",
        upTo(272) + other + from(273));
    row("a day missing", upTo(136) + from(273), "137:2027-01-02::missing", upTo(136) + from(273),
        QByteArray(whole).replace("\"giro 2\"", "\"\""));
    row("a line missing in a day", upTo(138) + from(140), "137:2027-01-02::missing", upTo(138) + from(140),
        QByteArray(whole).replace("\"giro 2\"\r\n\"\"\r\n", "\"\"\r\n\"\"\r\n"));
    row("a number missing in a day", upTo(140) + from(142), "137:2027-01-02::missing", upTo(140) + from(142), whole);
    row("a number too many in a day", upTo(140) + "0\r\n" + from(141), "137:2027-01-02::extra",
        upTo(140) + "0\r\n" + from(141), whole);
    row("an empty line in a day", upTo(140) + "\r\n" + from(141), "141:2027-01-02::extra", whole);
    row("a date that can't be told, and a day twice",
        QByteArray(upTo(272) + day(2) + from(273)).replace("#2027-06-01#", "2027"),
        "273:2027-01-02::duplicate|20674:2027-06-01:Data:number", whole);
    row("something before the first day", "Diario\r\n" + whole, "1:::extra", "Diario\r\n" + whole, whole);
    row("an empty file", "", "1:2026-01-01:Numero del giorno:missing", DiaryBytes::Blank(2026).Bytes());
    row("another file", "x\r\ny\r\n", "1:::missing", "x\r\ny\r\n");
}

void CheckTest::DaysOfADiary()
{
    QFETCH(QByteArray, damaged);
    QFETCH(QString, finding);
    QFETCH(QByteArray, mended);
    QFETCH(QByteArray, overwritten);
    const FixedClock clock(CalendarDate(2026, 11, 22));
    const bool sure = mended != damaged;
    QStringList findings = finding.split(QLatin1Char('|'));
    findings.replaceInStrings(QRegularExpression(QStringLiteral("^")), QStringLiteral("ZelviaFile/prova.zlv:"));
    Expect(damaged, findings, sure ? 0 : 1, mended);
    if (!sure) {
        QCOMPARE(desk_->Run({"ripara", "--si", "--sovrascrivi"}).status, overwritten.isEmpty() ? 1 : 0);
        QCOMPARE(Difference(desk_->Read(kDiary), (overwritten.isEmpty() ? damaged : overwritten).toStdString()),
                 QByteArray());
    }
}

void CheckTest::WholeFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("damaged"); ///< "-" for a file that is missing.
    QTest::addColumn<QString>("finding");
    QTest::addColumn<QByteArray>("mended");
    QTest::addColumn<QByteArray>("overwritten");
    const auto row = [](const char* name, const char* file, const QByteArray& damaged, const char* finding,
                        const QByteArray& mended, const QByteArray& overwritten = {}) {
        QTest::newRow(name) << QString::fromUtf8(file) << damaged << QString::fromUtf8(finding) << mended
                            << overwritten;
    };
    QByteArray calendar;
    for (int i = 1; i <= 100; ++i) {
        calendar += QByteArray::number(i) +
                    "\r\n0\r\n0\r\n0\r\n\"\"\r\n\"\"\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n\"\"\r\n0\r\n";
    }
    QByteArray routes;
    for (int i = 1; i <= 200; ++i) {
        routes += "\"\"\r\n0\r\n" + QByteArray("\"\"\r\n0\r\n0\r\n").repeated(20);
    }
    QByteArray table;
    for (int i = 1; i <= 31; ++i) {
        table += QByteArray::number(i) + "\r\n" + QByteArray("0\r\n").repeated(8) + "\"\"\r\n\"\"\r\n" +
                 QByteArray("0\r\n").repeated(4);
    }
    const QByteArray started = table + "#2027-03-01#\r\n";
    row("a calendar cut short", "prova/CalendarioGare", LinesOf(calendar, 1, 20), "21::riga 2, località:missing",
        calendar);
    row("a line of a calendar missing", "prova/CalendarioGare", LinesOf(calendar, 1, 4) + LinesOf(calendar, 6, 1500),
        "6::riga 1, località:missing", LinesOf(calendar, 1, 4) + LinesOf(calendar, 6, 1500), calendar);
    row("a minute too many", "prova/CalendarioGare",
        QByteArray(calendar).replace(calendar.indexOf("\"\"\r\n0\r\n2\r\n") - 3, 1, "60"), "13::riga 1, secondi:range",
        QByteArray(calendar).replace(calendar.indexOf("\"\"\r\n0\r\n2\r\n") - 3, 1, "60"),
        QByteArray(calendar).replace(calendar.indexOf("\"\"\r\n0\r\n2\r\n") - 3, 1, "59"));
    row("routes with LF", "prova/ListePercorso", QByteArray(routes).replace("\r\n", "\n"), "1:::line_end", routes);
    row("routes cut in a number", "prova/ListePercorso", LinesOf(routes, 1, 2).chopped(2),
        "3::percorso 1, tratto 1, descrizione:missing", routes);
    row("routes with a line behind", "prova/ListePercorso", routes + "\"x\"\r\n", "12401:::extra", routes + "\"x\"\r\n",
        routes);
    row("a table cut short", "prova/Base 10 km.tab", LinesOf(started, 1, 17), "18::riga 2, metri:table",
        LinesOf(started, 1, 17), table + "#2007-01-01#\r\n");
    row("a table without its date", "prova/Base 10 km.tab", table, "466::data d'inizio:table", table,
        table + "#2007-01-01#\r\n");
    row("a quote in a list", "prova/Tipo.lsx", "\"Gara\"\r\n\"la \"mia\"\"\r\n", "2::voce 2:quote",
        "\"Gara\"\r\n\"la \x93mia\x94\"\r\n");
    row("an empty line in a list", "prova/Tipo.lsx", "\"Gara\"\r\n\r\n\"Altro\"\r\n", "2:::extra",
        "\"Gara\"\r\n\"Altro\"\r\n");
    row("a list with a mark", "prova/Tipo.lsx", "\xEF\xBB\xBF\"Gara\"\r\n", "1:::encoding", "\"Gara\"\r\n");
    row("a list half in UTF-8", "prova/Tipo.lsx", "\"citt\xC3\xA0\"\r\n\"met\xE0\"\r\n", "1::voce 1:encoding",
        "\"citt\xC3\xA0\"\r\n\"met\xE0\"\r\n", "\"citt\xE0\"\r\n\"met\xE0\"\r\n");
    row("a list with CR", "prova/Tipo.lsx", "\"Gara\"\r\"Altro\"\r", "1:::line_end", "\"Gara\"\r\n\"Altro\"\r\n");
    row("a list with its ends converted twice", "prova/Tipo.lsx", "\"Gara\"\r\r\n\"Altro\"\r\r\n", "1:::line_end",
        "\"Gara\"\r\n\"Altro\"\r\n");
    row("a list missing", "prova/Tipo.lsx", "-", ":::missing", "-", "\"Allenamento\"\r\n\"Gara\"\r\n");
    row("an empty list missing", "prova/Percorso.lsx", "-", ":::missing", "-", "");
    row("a calendar missing", "prova/CalendarioGare", "-", ":::missing", "-", calendar);
    row("the routes missing", "prova/ListePercorso", "-", ":::missing", "-", routes);
}

void CheckTest::WholeFiles()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, damaged);
    QFETCH(QString, finding);
    QFETCH(QByteArray, mended);
    QFETCH(QByteArray, overwritten);
    const std::string name = file.toStdString();
    if (damaged == "-") {
        fs::remove(desk_->Native(name));
    } else {
        desk_->Write(name, damaged.toStdString());
    }
    QCOMPARE(Findings(), QStringList(file + QLatin1Char(':') + finding));
    const bool sure = mended != damaged;
    QCOMPARE(desk_->Run({"ripara", "--si"}).status, sure ? 0 : 1);
    if (!sure) {
        QCOMPARE(desk_->Has(name) ? Bytes(desk_->Read(name)) : QByteArray("-"), damaged);
        QCOMPARE(desk_->Run({"ripara", "--si", "--sovrascrivi"}).status, 0);
    }
    QCOMPARE(Difference(desk_->Read(name), (sure ? mended : overwritten).toStdString()), QByteArray());
    QCOMPARE(Findings(), QStringList());
}

void CheckTest::Pointers_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("damaged"); ///< HERE is the folder.
    QTest::addColumn<QByteArray>("mended");
    QTest::addColumn<QByteArray>("overwritten");
    const auto row = [](const char* name, const char* file, const char* damaged, const char* mended,
                        const char* overwritten = "") {
        QTest::newRow(name) << QString::fromUtf8(file) << QByteArray(damaged) << QByteArray(mended)
                            << QByteArray(overwritten);
    };
    row("of another folder", "nomeload", "\"\\casa\\ZelviaFile\\prova.zlv\"\r\n",
        "\"HERE\\ZelviaFile\\prova.zlv\"\r\n");
    row("of another folder, with slashes", "nomeload", "\"/casa/ZelviaFile/prova.zlv\"\r\n",
        "\"HERE\\ZelviaFile\\prova.zlv\"\r\n");
    row("to a diary that is nowhere", "nomeload", "\"HERE\\ZelviaFile\\2020.zlv\"\r\n", "", "\"\"\r\n");
    row("empty", "nomeload", "", "\"\"\r\n");
    row("missing", "nomeload", "-", "\"\"\r\n");
    row("of a table of another folder", "prova/nometab", "\"\\casa\\prova\\Base 10 km.tab\"\r\n",
        "\"HERE\\prova\\Base 10 km.tab\"\r\n");
    row("of a table that is nowhere", "prova/nometab", "\"HERE\\prova\\Salita.tab\"\r\n", "", "\"\"\r\n");
    row("empty one of a table", "prova/nometab", "", "\"\"\r\n");
}

void CheckTest::Pointers()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, damaged);
    QFETCH(QByteArray, mended);
    QFETCH(QByteArray, overwritten);
    const QByteArray here = Bytes(SystemPath(desk_->Native()));
    const std::string name = file.toStdString();
    const auto inPlace = [&](QByteArray bytes) { return bytes.replace("HERE", here).toStdString(); };
    if (damaged == "-") {
        fs::remove(desk_->Native(name));
    } else {
        desk_->Write(name, inPlace(damaged));
    }
    const bool isMissing = damaged == "-";
    QCOMPARE(Findings(),
             QStringList(file + (isMissing ? QStringLiteral("::::pointer") : QStringLiteral(":1:::pointer"))));
    const bool sure = !mended.isEmpty();
    QCOMPARE(desk_->Run({"ripara", "--si"}).status, sure ? 0 : 1);
    if (!sure) {
        QCOMPARE(desk_->Read(name), inPlace(damaged));
        QCOMPARE(desk_->Run({"ripara", "--si", "--sovrascrivi"}).status, 0);
    }
    QCOMPARE(Bytes(desk_->Read(name)), QByteArray::fromStdString(inPlace(sure ? mended : overwritten)));
    QCOMPARE(Findings(), QStringList());
}

void CheckTest::RacesOfOneDay()
{
    const auto race = [](int row, const char* date) {
        return QByteArray::number(row) + "\r\n" + date + "\"Giro\"\r\n\"Lago\"\r\n" + QByteArray("0\r\n").repeated(7) +
               "\"\"\r\n0\r\n";
    };
    QByteArray calendar =
        race(1, "7\r\n3\r\n2027\r\n") + race(2, "30\r\n2\r\n2027\r\n") + race(3, "7\r\n3\r\n2027\r\n");
    for (int row = 4; row <= 100; ++row) {
        calendar += race(row, "0\r\n0\r\n0\r\n");
    }
    desk_->Write("prova/CalendarioGare", calendar.toStdString());
    QCOMPARE(Findings(), (QStringList{QStringLiteral("prova/CalendarioGare:17::riga 2, giorno:range"),
                                      QStringLiteral("prova/CalendarioGare:32:2027-03-07:riga 3, giorno:duplicate")}));
    // Which race is the right one nobody can know.
    QCOMPARE(desk_->Run({"ripara", "--si", "--sovrascrivi"}).status, 1);
    QCOMPARE(Bytes(desk_->Read("prova/CalendarioGare")), calendar);
    QCOMPARE(desk_->Copies(), 0);
}

void CheckTest::OnlyTheDiariesNamed()
{
    desk_->Write("ZelviaFile/2027.zlv", DiaryBytes::Blank(2027).Bytes().toStdString());
    desk_->Write(kDiary, "x");
    QCOMPARE(desk_->Run({"controlla", "2027"}).status, 0);
    QCOMPARE(desk_->Run({"controlla", "prova"}).status, 1);
    QCOMPARE(desk_->Run({"controlla", "--diario", "2027"}).status, 0);
    QCOMPARE(desk_->Run({"controlla"}).status, 1);
    QCOMPARE(desk_->Run({"controlla", "--prova"}).status, 0);
    const Outcome outcome = desk_->Run({"controlla", "anna"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains("il diario «anna» non c'è: «zelvia-strumenti anni» mostra quelli che ci sono"));
}

void CheckTest::InWords()
{
    DiaryBytes diary = DiaryBytes::Blank(2027);
    diary.SetLine(62, 129, "\"il \"Giro\"\"");
    diary.SetLine(62, 5, "501");
    desk_->Write(kDiary, diary.Bytes().toStdString());
    const QByteArray words = "ZelviaFile/prova.zlv\n"
                             "  riga 8301, 2027-03-03, Km: «501» è fuori dai limiti, 0 e 500: il programma lo prende "
                             "com'è; diventa 500 (soltanto con --sovrascrivi)\n"
                             "  riga 8425, 2027-03-03, Note, riga 1: virgolette nel testo «il \"Giro\"»: il programma "
                             "finirebbe lì il testo, leggerebbe male ciò che segue e lo perderebbe al salvataggio; "
                             "diventano tipografiche\n";
    QCOMPARE(desk_->Run({"controlla"}).out, words);
    QCOMPARE(desk_->Run({"ripara", "--si"}).out,
             words + "Da riparare: 1. Restano come sono: 1.\n"
                     "Riparati: 1. I file di prima sono nell'ultima copia di sicurezza.\n");
}

void CheckTest::TheOriginalIsKept()
{
    const QByteArray damaged = Sample().replace("\r\n", "\n");
    desk_->Write(kDiary, damaged.toStdString());
    QCOMPARE(desk_->Run({"ripara", "--si"}).status, 0);
    QCOMPARE(desk_->Copies(), 1);
    for (const auto& entry : fs::directory_iterator(desk_->home.Native("stato/zelvia/copie"))) {
        if (entry.is_directory()) {
            QCOMPARE(Bytes(ReadWhole((entry.path() / kDiary).string())), damaged);
        }
    }
}

void CheckTest::IsAskedFirst()
{
    desk_->Write(kDiary, Sample().replace("\r\n", "\n").toStdString());
    const QByteArray before = desk_->Everything();
    QCOMPARE(desk_->Run({"ripara"}).status, 1);
    QCOMPARE(desk_->Run({"ripara", "--prova"}).status, 0);
    QCOMPARE(desk_->Answer({"ripara"}, "no").status, 1);
    QCOMPARE(desk_->Everything(), before);
    QCOMPARE(desk_->Answer({"ripara"}, "sì").status, 0);
    QVERIFY(desk_->Everything() != before);
}

void CheckTest::DiariesOfOneFolder()
{
    desk_->Write("ZelviaFile/prova.b.zlv", DiaryBytes::Blank(2027).Bytes().toStdString());
    desk_->Write("prova/Tipo.lsx", "\"la \"mia\"\"\r\n");
    QCOMPARE(Findings(), QStringList(QStringLiteral("prova/Tipo.lsx:1::voce 1:quote")));
    QCOMPARE(desk_->Run({"ripara", "--si"}).status, 0);
    QCOMPARE(Findings(), QStringList());
}

void CheckTest::AsksForWhatIsOnlyLikely()
{
    DiaryBytes diary = DiaryBytes::Blank(2027);
    diary.SetLine(62, 5, "501");
    desk_->Write(kDiary, diary.Bytes().toStdString());
    const QByteArray question = "Riparare anche ciò che ha un rimedio soltanto probabile, 1? (s/N) ";
    Outcome outcome = desk_->Answer({"ripara"}, "no");
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.out.endsWith('\n' + question + "Da riparare: 0. Restano come sono: 1.\n"));
    QCOMPARE(Bytes(desk_->Read(kDiary)), diary.Bytes());
    outcome = desk_->Answer({"ripara"}, "s");
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.endsWith(question + "Da riparare: 1. Restano come sono: 0.\nRiparare? (s/N) "
                                            "Riparati: 1. I file di prima sono nell'ultima copia di sicurezza.\n"));
    diary.SetLine(62, 5, "500");
    QCOMPARE(Bytes(desk_->Read(kDiary)), diary.Bytes());
}

void CheckTest::ConflictCopiesAreTold()
{
    constexpr const char* conflict = "ZelviaFile/prova (copia in conflitto di PC 2026-11-01).zlv";
    desk_->Write(conflict, "x\r\n");
    const Outcome outcome = desk_->Run({"controlla"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray("Tutto a posto.\n"));
    QCOMPARE(outcome.err, QByteArray("«") + conflict +
                              "» è in conflitto con «ZelviaFile/prova.zlv»: «zelvia-strumenti unisci» li unisce.\n");
    QCOMPARE(desk_->Run({"ripara", "--si"}).status, 0);
    QCOMPARE(Bytes(desk_->Read(conflict)), QByteArray("x\r\n"));
}

/// They would make the program folder itself a diary's, in which all its files are missing.
void CheckTest::NamesWithoutAFolder()
{
    const QByteArray before = desk_->Everything();
    for (const char* name : {".", "..", "../prova", ".prova"}) {
        const Outcome outcome = desk_->Run({"ripara", "--si", "--sovrascrivi", name});
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.err,
                 QByteArray("zelvia-strumenti: il diario «") + name +
                     "» non c'è: «zelvia-strumenti anni» mostra quelli che ci sono.\nNiente è stato cambiato.\n");
    }
    QCOMPARE(desk_->Everything(), before);
}

/// Not even its line ends are changed.
void CheckTest::AFileThatIsNoDiary()
{
    const Text bytes = "<html>\n<body>\r\ntesto\n";
    desk_->Write(kDiary, bytes);
    QCOMPARE(Findings(), QStringList(QStringLiteral("ZelviaFile/prova.zlv:1:::missing")));
    QCOMPARE(desk_->Run({"ripara", "--si", "--sovrascrivi"}).status, 1);
    QCOMPARE(desk_->Read(kDiary), bytes);
    QCOMPARE(desk_->Copies(), 0);
}

/// It is not followed, and not passed over in silence either.
void CheckTest::ADiaryThatIsALink()
{
    const std::string elsewhere = desk_->home.Native("altrove.zlv");
    fs::rename(desk_->Native(kDiary), elsewhere);
    fs::create_symlink(elsewhere, desk_->Native(kDiary));
    const QByteArray told =
        "«" + QByteArray(kDiary) + "» è un collegamento, che non viene seguito: al suo posto ci vuole il file.\n";
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"controlla"}, {"ripara", "--si"}, {"anni", "--tsv"}}) {
        const Outcome outcome = desk_->Run(words);
        QCOMPARE(outcome.err, told);
        QCOMPARE(outcome.status, 1);
        QVERIFY2(!outcome.out.contains("prova") && !outcome.out.contains("posto"), outcome.out.constData());
    }
}

ZELVIA_TEST(CheckTest)

#include "CheckTest.moc"
