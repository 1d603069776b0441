// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The page that brings watches' files into the diaries, worked by hand and compared with the command line.
#include "core/Descriptor.h"
#include "support/ActiveWindow.h"
#include "support/DiaryBytes.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "tools/desk/ImportPage.h"
#include "tools/strumenti/ToolsDesk.h"
#include "tools/watch/WatchFigures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QSplitter>
#include <QTableWidget>
#include <QUrl>

#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class PageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AFolderAsTheCommandLineDoes();
    void Statuses();
    void WhatItReplaces();
    void BadFiles_data();
    void BadFiles();
    void TheFileDialog();
    void TheFolderDialog();
    void AZoneForAll();
    void NoPausesForAll();
    void NoPausesForOne();
    void OneNumberChanged();
    void TheStartChanged();
    void TheEndChanged();
    void WordsChanged();
    void ASplitChanged();
    void AnotherDay();
    void BackToTheProposal();
    void WrittenRightAfterTyping();
    void OneOfADay();
    void AllByKeyboard();
    void TheDiaryIsOpen();
    void TheDiaryHasChanged();
    void ATableIsAsked();
    void OtherSports();
    void AThousandCancelled();
    void MoreWhileReading();
    void AThousand();
    void EveryControlHasAName();
};

namespace
{

constexpr int kPatience = 60000;
using Column = ImportModel::Column;

/// The run of 10.208 km with pauses, on 13 June 2013, slot 164, at 5:56:35.
const std::string kRun = WatchPath("run-pauses.fit");
constexpr int kSlot = 164;

/// Lines of a day that DiaryBytes has no name for.
constexpr int kStartHour = 10;
constexpr int kEndHour = 13;

/// A home with the sample diary, and the page on it.
class Workplace
{
public:
    Workplace() : desk(files.Native(), {}), page(desk)
    {
        page.resize(1000, 700);
        page.show();
        hand::AwaitFront(page);
    }

    template <typename Control>
    Control& Part(const char* name)
    {
        auto* part = page.findChild<Control*>(QLatin1String(name));
        if (part == nullptr) {
            qFatal("no %s", name);
        }
        return *part;
    }

    /// Drops files and folders on the page, and waits until they are looked at.
    void Drop(const std::vector<std::string>& names)
    {
        StartDrop(names);
        Await();
    }

    void StartDrop(const std::vector<std::string>& names)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const std::string& name : names) {
            urls << QUrl::fromLocalFile(QString::fromStdString(name));
        }
        data.setUrls(urls);
        const QPoint place = page.rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&page, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&page, &drop);
    }

    void Await() { QTRY_VERIFY_WITH_TIMEOUT(!desk.Runner().IsBusy(), kPatience); }

    ImportTable& Table() { return Part<ImportTable>("activities"); }

    QString Cell(int row, Column column) { return Table().model()->index(row, column).data().toString(); }

    bool Ticked(int row)
    {
        return Table().model()->index(row, Column::Written).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }

    QStringList Statuses()
    {
        QStringList statuses;
        for (int row = 0; row < Table().model()->rowCount(); ++row) {
            statuses << Cell(row, Column::Status) + (Ticked(row) ? QStringLiteral("+") : QString());
        }
        return statuses;
    }

    void Choose(int row)
    {
        ClickCell(row, Column::Day);
        QTRY_COMPARE(Table().Current(), row);
    }

    void Tick(int row)
    {
        ClickCell(row, Column::Written);
        Await();
    }

    /// Types into a field in the place of what is there, and leaves it.
    void Type(QWidget& field, const QString& text)
    {
        hand::Click(field, QPoint(12, field.height() / 2));
        hand::Key(Qt::Key_A, Qt::ControlModifier);
        hand::Type(text);
        hand::Key(Qt::Key_Tab);
        Await();
    }

    void Type(const char* field, const QString& text) { Type(Part<QWidget>(field), text); }

    void Write()
    {
        hand::Click(Part<QPushButton>("write"));
        Await();
    }

    QString Text(const char* label) { return Part<QLabel>(label).text(); }

    DiaryBytes Diary(const std::string& name) const
    {
        return DiaryBytes(Bytes(files.Read("ZelviaFile/" + name + ".zlv")));
    }

    ToolsDesk files;
    Desk desk;
    ImportPage page;

private:
    void ClickCell(int row, Column column)
    {
        const QRect place = Table().visualRect(Table().model()->index(row, column));
        hand::Click(*Table().viewport(), QPoint(place.left() + 12, place.center().y()));
    }
};

/// A second home, and what a command line makes of it. The first one is the user's again afterwards.
class OtherHome
{
public:
    explicit OtherHome(const std::vector<std::string>& words)
    {
        files.Run(words);
        qputenv("HOME", home_);
        qputenv("XDG_STATE_HOME", state_);
    }

private:
    QByteArray home_ = qgetenv("HOME");
    QByteArray state_ = qgetenv("XDG_STATE_HOME");

public:
    ToolsDesk files;
};

QByteArray AfterCommand(const std::vector<std::string>& words)
{
    return OtherHome(words).files.Everything();
}

DiaryBytes DiaryAfterCommand(const std::vector<std::string>& words, const std::string& diary)
{
    return DiaryBytes(Bytes(OtherHome(words).files.Read("ZelviaFile/" + diary + ".zlv")));
}

/// Chooses a file as soon as the dialog is up; another dialog is cancelled.
void ChooseInDialog(QTimer& timer, const QString& title, const std::string& folder, const QString& name)
{
    QObject::connect(&timer, &QTimer::timeout, &timer, [&timer, title, folder, name] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        timer.stop();
        if (dialog->windowTitle() != title) {
            dialog->reject();
            return;
        }
        dialog->setDirectory(QString::fromStdString(folder));
        dialog->findChild<QLineEdit*>()->setText(name);
        hand::AwaitFront(*dialog);
        hand::Key(Qt::Key_Return);
    });
    timer.start(20);
}

/// A run of 2024 made of that many points, six kilometres and a half long.
std::string Gpx(const std::string& moment, int points)
{
    constexpr double north = 0.0585;
    const QDateTime start = QDateTime::fromString(QString::fromStdString(moment), Qt::ISODate);
    QByteArray text = "<gpx><trk><type>running</type><trkseg>";
    for (int i = 0; i < points; ++i) {
        const double part = static_cast<double>(i) / (points - 1);
        text += "<trkpt lat=\"" + QByteArray::number(45 + north * part, 'f', 6) + "\" lon=\"9\"><time>" +
                start.addSecs(static_cast<qint64>(1800 * part)).toString(Qt::ISODate).toLatin1() + "</time></trkpt>";
    }
    return (text + "</trkseg></trk></gpx>").toStdString();
}

/// A folder of a thousand runs on different days of ten years, in no order.
std::string ThousandRuns(const TempFolder& home, int points)
{
    home.MakeFolder("anni");
    QRandomGenerator random(20);
    QList<int> days;
    for (int day = 0; day < 3650; ++day) {
        days << day;
    }
    for (int i = 0; i < 1000; ++i) {
        const int day = days.takeAt(random.bounded(days.size()));
        const QString date = QDate(2010, 1, 1).addDays(day).toString(Qt::ISODate);
        home.Write("anni/" + std::to_string(i) + ".gpx", Gpx(date.toStdString() + "T08:00:00Z", points));
    }
    return home.Native("anni");
}

} // namespace

void PageTest::init()
{
    qputenv("TZ", "Europe/Rome");
    tzset();
}

void PageTest::AFolderAsTheCommandLineDoes()
{
    Workplace work;
    work.Drop({WatchPath("")});
    QCOMPARE(work.Text("summary"), QStringLiteral("Da scrivere: 8 giorni (1990, 2011, 2012, 2013, 2015, 2018, 2021). "
                                                  "Diari nuovi: 1990, 2011, 2012, 2013, 2015, 2018, 2021."));
    const QByteArray before = work.files.Everything();
    QCOMPARE(work.files.Copies(), 0);
    work.Write();
    QVERIFY(work.Text("told").startsWith(QStringLiteral("Fatto. Scritti: ")));
    QVERIFY(work.files.Everything() != before);
    QVERIFY(work.files.Everything() == AfterCommand({"importa", "--si", WatchPath("")}));
    QCOMPARE(work.files.Copies(), 1);
    // All of it is known now, and nothing is left to write.
    QVERIFY(!work.Statuses().join(QString()).contains(QLatin1Char('+')));
    QCOMPARE(work.Text("summary"), QStringLiteral("Non c'è niente da scrivere."));
    QVERIFY(!work.Part<QPushButton>("write").isEnabled());
}

void PageTest::Statuses()
{
    Workplace work;
    DiaryBytes diary = DiaryBytes::Blank(2015);
    diary.SetLine(227, DiaryBytes::Km, "5"); // 15 August, the day of run-laps.fit.
    work.files.Write("ZelviaFile/2015.zlv", diary.Bytes().toStdString());
    QCOMPARE(work.files.Run({"importa", "--si", WatchPath("run-miles.fit")}).status, 0);
    work.Drop({kRun, WatchPath("run-miles.fit"), WatchPath("run-laps.fit"), WatchPath("ride.gpx"),
               WatchPath("settings.fit")});
    QCOMPARE(work.Statuses(),
             QStringList({QStringLiteral("nuovo+"), QStringLiteral("c'è già"), QStringLiteral("c'è altro"),
                          QStringLiteral("non è una corsa"), QStringLiteral("non si legge")}));
    QCOMPARE(work.Cell(0, Column::Day), QStringLiteral("13/06/2013"));
    QCOMPARE(work.Cell(0, Column::Start), QStringLiteral("5:56:35"));
    QCOMPARE(work.Cell(0, Column::End), QStringLiteral("6:24:50"));
    QCOMPARE(work.Cell(0, Column::Km), QStringLiteral("10,208"));
    QCOMPARE(work.Cell(0, Column::Time), QStringLiteral("0:28:15"));
    QCOMPARE(work.Cell(0, Column::Splits), QStringLiteral("10"));
    QCOMPARE(work.Cell(2, Column::Present), QStringLiteral("5,000 km"));
    QCOMPARE(work.Cell(4, Column::Remarks), QStringLiteral("non contiene attività"));
    // The same file is not read twice.
    work.Drop({kRun});
    QCOMPARE(work.Statuses().size(), 5);
    QCOMPARE(work.Text("told"), QStringLiteral("Qui non c'è nessun altro file FIT, TCX o GPX."));
}

void PageTest::WhatItReplaces()
{
    const auto lay = [](const ToolsDesk& files) {
        DiaryBytes diary = DiaryBytes::Blank(2013);
        diary.SetLine(kSlot, DiaryBytes::Kind, "\"Allenamento\"");
        diary.SetLine(kSlot, DiaryBytes::Km, "5");
        diary.SetLine(kSlot, DiaryBytes::Splits + 12, "\"13      01:00:00\"");
        diary.SetLine(kSlot, DiaryBytes::Weight, "71");
        files.Write("ZelviaFile/2013.zlv", diary.Bytes().toStdString());
    };
    Workplace work;
    lay(work.files);
    work.Drop({kRun});
    QCOMPARE(work.Statuses(), QStringList(QStringLiteral("c'è altro")));
    QCOMPARE(work.Text("kmHeld"), QStringLiteral("≠ 5,000"));
    QCOMPARE(work.Text("typeHeld"), QStringLiteral("Allenamento"));
    QCOMPARE(work.Text("startHeld"), QStringLiteral("–"));
    QCOMPARE(work.Text("remarks"), QStringLiteral("L'ora è quella dell'orologio, scritta nel file. "
                                                  "Se viene scritta, nel giorno sostituisce: Km, Tempi Km."));
    QVERIFY(!work.Part<QPushButton>("write").isEnabled());
    work.Tick(0);
    QCOMPARE(work.Statuses(), QStringList(QStringLiteral("c'è altro+")));
    work.Write();
    const ToolsDesk other;
    lay(other);
    other.Run({"importa", "--si", "--sovrascrivi", kRun});
    QVERIFY(work.files.Everything() == other.Everything());
}

void PageTest::BadFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* test, const char* name, const QByteArray& bytes, const char* reason) {
        QTest::newRow(test) << QString::fromLatin1(name) << bytes << QString::fromUtf8(reason);
    };
    row("empty", "a.fit", "", "il file è vuoto");
    row("no format", "a.fit", "non è un orologio", "non è un file FIT, TCX, GPX o CSV");
    row("head alone", "a.fit", QByteArray("\x0E\x10\0\0\xFF\xFF\xFF\x7F.FIT\0\0", 14), "il file è troncato");
    row("a page", "a.tcx", "<html></html>", "non contiene attività");
    row("a table without days", "a.csv", "km\n10\n", "nella prima riga deve esserci una colonna «date»");
}

void PageTest::BadFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    Workplace work;
    work.files.home.Write(name.toStdString(), bytes.toStdString());
    const QByteArray before = work.files.Everything();
    work.Drop({work.files.home.Native(name.toStdString())});
    QCOMPARE(work.Statuses(), QStringList(QStringLiteral("non si legge")));
    QVERIFY2(work.Cell(0, Column::Remarks).startsWith(reason), qPrintable(work.Cell(0, Column::Remarks)));
    QVERIFY(!work.Part<QPushButton>("write").isEnabled());
    QCOMPARE(work.files.Everything(), before);
}

void PageTest::TheFileDialog()
{
    Workplace work;
    QTimer answer;
    ChooseInDialog(answer, QStringLiteral("Scegliere i file da importare"), WatchPath(""),
                   QStringLiteral("run-pauses.fit"));
    hand::Click(work.Part<QPushButton>("chooseFiles"));
    QTRY_COMPARE(work.Statuses(), QStringList(QStringLiteral("nuovo+")));
}

void PageTest::TheFolderDialog()
{
    Workplace work;
    QTimer answer;
    ChooseInDialog(answer, QStringLiteral("Scegliere la cartella da importare"), WatchPath(".."),
                   QStringLiteral("files"));
    hand::Click(work.Part<QPushButton>("chooseFolder"));
    QTRY_COMPARE_WITH_TIMEOUT(work.Statuses().size(), 18, kPatience);
}

void PageTest::AZoneForAll()
{
    Workplace work;
    work.Drop({kRun});
    auto& zone = work.Part<QComboBox>("zone");
    zone.setFocus();
    hand::Type(QStringLiteral("UTC+5:3"));
    QTRY_COMPARE(zone.currentText(), QStringLiteral("UTC+5:30"));
    work.Await();
    QCOMPARE(work.Cell(0, Column::Start), QStringLiteral("9:26:35"));
    QVERIFY(work.Text("remarks").startsWith(QStringLiteral("L'ora è quella del fuso scelto.")));
    work.Write();
    QVERIFY(work.files.Everything() == AfterCommand({"importa", "--si", "--fuso", "+5:30", kRun}));
}

void PageTest::NoPausesForAll()
{
    Workplace work;
    work.Drop({kRun, WatchPath("run-laps.fit")});
    auto& clocks = work.Part<QComboBox>("allClocks");
    clocks.setFocus();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(clocks.currentText(), QStringLiteral("Senza le pause"));
    work.Await();
    work.Write();
    QVERIFY(work.files.Everything() == AfterCommand({"importa", "--si", "--in-moto", kRun, WatchPath("run-laps.fit")}));
}

void PageTest::NoPausesForOne()
{
    Workplace work;
    work.Drop({kRun});
    auto& clock = work.Part<QComboBox>("clock");
    QCOMPARE(clock.currentText(), QStringLiteral("0:28:15 con le pause"));
    clock.setFocus();
    hand::Key(Qt::Key_Down);
    work.Await();
    QCOMPARE(clock.currentText(), QStringLiteral("0:24:59 senza pause"));
    QCOMPARE(work.Part<QLineEdit>("end").text(), QStringLiteral("6:21:34"));
    work.Write();
    QVERIFY(work.files.Everything() == AfterCommand({"importa", "--si", "--in-moto", kRun}));
}

void PageTest::OneNumberChanged()
{
    Workplace work;
    work.Drop({kRun});
    work.Type("km", QStringLiteral("11"));
    QCOMPARE(work.Cell(0, Column::Km), QStringLiteral("11,208"));
    work.Write();
    DiaryBytes expected = DiaryAfterCommand({"importa", "--si", kRun}, "2013");
    expected.SetLine(kSlot, DiaryBytes::Km, "11");
    expected.SetLine(kSlot, DiaryBytes::Pace, "\"2:31\""); // 1695 seconds by 11.208 km are 151.2.
    QCOMPARE(Difference(work.Diary("2013").Bytes().toStdString(), expected.Bytes().toStdString()), QByteArray());
    // It is known again though the distance is another.
    work.Drop({WatchPath("run-laps.tcx")});
    QCOMPARE(work.Cell(0, Column::Status), QStringLiteral("c'è già"));
}

void PageTest::TheStartChanged()
{
    Workplace work;
    work.Drop({kRun});
    work.Type("start", QStringLiteral("7:56:35"));
    QCOMPARE(work.Part<QLineEdit>("end").text(), QStringLiteral("8:24:50")); // The time taken stays.
    work.Type("start", QStringLiteral("8.30"));
    QCOMPARE(work.Text("told"), QStringLiteral("«8.30» non è un'ora: resta 7:56:35."));
    QCOMPARE(work.Part<QLineEdit>("start").text(), QStringLiteral("7:56:35"));
    work.Write();
    DiaryBytes expected = DiaryAfterCommand({"importa", "--si", kRun}, "2013");
    expected.SetLine(kSlot, kStartHour, "7");
    expected.SetLine(kSlot, kEndHour, "8");
    QCOMPARE(Difference(work.Diary("2013").Bytes().toStdString(), expected.Bytes().toStdString()), QByteArray());
}

void PageTest::TheEndChanged()
{
    Workplace work;
    work.Drop({kRun});
    work.Type("end", QStringLiteral("5:00"));
    QCOMPARE(work.Text("told"), QStringLiteral("La fine deve venire dopo l'inizio: resta 6:24:50."));
    work.Type("end", QStringLiteral("6:56:35"));
    QCOMPARE(work.Cell(0, Column::Time), QStringLiteral("1:00:00"));
    QCOMPARE(work.Part<QComboBox>("clock").currentText(), QStringLiteral("1:00:00"));
    work.Write();
    const DiaryBytes diary = work.Diary("2013");
    QCOMPARE(diary.Line(kSlot, DiaryBytes::Time), QByteArray("\"1:00:00\""));
    QCOMPARE(diary.Line(kSlot, DiaryBytes::Pace), QByteArray("\"5:52\"")); // 3600 by 10.208 are 352.7.
}

void PageTest::WordsChanged()
{
    Workplace work;
    work.Drop({kRun});
    QVERIFY(work.Part<QComboBox>("route").findText(QStringLiteral("Lungofiume")) >= 0); // The diary's own.
    work.Type("route", QStringLiteral("Argine \"nuovo\""));
    work.Type("type", QStringLiteral("Lento"));
    work.Type("season", QStringLiteral("Estate"));
    work.Write();
    DiaryBytes expected = DiaryAfterCommand({"importa", "--si", kRun}, "2013");
    expected.SetLine(kSlot, DiaryBytes::Route, "\"Argine 'nuovo'\"");
    expected.SetLine(kSlot, DiaryBytes::Kind, "\"Lento\"");
    expected.SetLine(kSlot, DiaryBytes::Season, "\"Estate\"");
    QCOMPARE(Difference(work.Diary("2013").Bytes().toStdString(), expected.Bytes().toStdString()), QByteArray());
}

void PageTest::ASplitChanged()
{
    Workplace work;
    work.Drop({kRun});
    auto& splits = work.Part<QTableWidget>("splits");
    QCOMPARE(splits.rowCount(), 11); // One to add.
    const auto type = [&](int row, int column, const QString& text) {
        const QRect place = splits.visualItemRect(splits.item(row, column));
        hand::DoubleClick(*splits.viewport(), place.center());
        hand::Key(Qt::Key_A, Qt::ControlModifier);
        hand::Type(text);
        hand::Key(Qt::Key_Return);
        work.Await();
    };
    type(0, 1, QStringLiteral("2:40"));
    QTRY_COMPARE(splits.item(0, 1)->text(), QStringLiteral("0:02:40"));
    type(1, 1, QStringLiteral("tardi"));
    QTRY_COMPARE(
        work.Text("told"),
        QStringLiteral("«2 tardi» non è un chilometro da 1 a 100 con il suo tempo: i Tempi Km restano come sono."));
    QTRY_COMPARE(splits.item(1, 1)->text(), QStringLiteral("0:05:04"));
    work.Write();
    DiaryBytes expected = DiaryAfterCommand({"importa", "--si", kRun}, "2013");
    expected.SetLine(kSlot, DiaryBytes::Splits, "\"01      00:02:40\"");
    QCOMPARE(Difference(work.Diary("2013").Bytes().toStdString(), expected.Bytes().toStdString()), QByteArray());
}

void PageTest::AnotherDay()
{
    Workplace work;
    work.Drop({kRun});
    auto& day = work.Part<QDateEdit>("day");
    QCOMPARE(day.text(), QStringLiteral("13/06/2013"));
    day.setFocus();
    hand::Key(Qt::Key_Home);
    hand::Key(Qt::Key_Up);
    work.Await();
    QCOMPARE(work.Cell(0, Column::Day), QStringLiteral("14/06/2013"));
    work.Write();
    const DiaryBytes diary = work.Diary("2013");
    QCOMPARE(diary.Line(kSlot, DiaryBytes::Km), QByteArray("0"));
    QCOMPARE(diary.Line(kSlot + 1, DiaryBytes::Km), QByteArray("10"));
    // The command line knows it there.
    const Outcome again = work.files.Run({"importa", "--tsv", "--si", kRun});
    QVERIFY(again.out.endsWith("\tsame\n"));
    QVERIFY(again.err.contains("è già nel giorno 14/06/2013"));
}

void PageTest::BackToTheProposal()
{
    Workplace work;
    work.Drop({kRun});
    auto& back = work.Part<QPushButton>("back");
    QVERIFY(!back.isEnabled());
    work.Type("km", QStringLiteral("12"));
    QTRY_VERIFY(back.isEnabled());
    hand::Click(back);
    work.Await();
    QCOMPARE(work.Cell(0, Column::Km), QStringLiteral("10,208"));
    QCOMPARE(work.Part<QSpinBox>("km").value(), 10);
    QVERIFY(!back.isEnabled());
}

void PageTest::WrittenRightAfterTyping()
{
    // The press on the button is what leaves the field.
    Workplace work;
    work.Drop({kRun});
    auto& km = work.Part<QSpinBox>("km");
    hand::Click(km, QPoint(12, km.height() / 2));
    hand::Key(Qt::Key_A, Qt::ControlModifier);
    hand::Type(QStringLiteral("13"));
    hand::Click(work.Part<QPushButton>("write"));
    work.Await();
    QCOMPARE(work.Diary("2013").Line(kSlot, DiaryBytes::Km), QByteArray("13"));
}

void PageTest::OneOfADay()
{
    Workplace work;
    work.files.home.Write("mattina.gpx", Gpx("2024-05-01T07:00:00Z", 2));
    work.files.home.Write("sera.gpx", Gpx("2024-05-01T17:00:00Z", 2));
    work.Drop({work.files.home.Native("mattina.gpx"), work.files.home.Native("sera.gpx")});
    QCOMPARE(work.Statuses(), QStringList({QStringLiteral("nuovo+"), QStringLiteral("c'è altro")}));
    QVERIFY(work.Cell(1, Column::Remarks).contains(QStringLiteral("un'altra uscita dello stesso giorno")));
    work.Tick(1);
    QCOMPARE(work.Statuses(), QStringList({QStringLiteral("nuovo"), QStringLiteral("nuovo+")}));
    work.Tick(1);
    QCOMPARE(work.Statuses(), QStringList({QStringLiteral("nuovo"), QStringLiteral("nuovo")}));
    work.Tick(1);
    work.Write();
    QCOMPARE(work.Diary("2024").Line(122, kStartHour), QByteArray("19")); // In Rome, in summer.
}

void PageTest::AllByKeyboard()
{
    Workplace work;
    work.Drop({kRun, WatchPath("run-laps.fit"), WatchPath("ride.gpx")});
    work.Table().setFocus();
    hand::Key(Qt::Key_Home, Qt::ControlModifier);
    hand::Key(Qt::Key_Space);
    work.Await();
    QCOMPARE(work.Statuses()[0], QStringLiteral("nuovo"));
    hand::Key(Qt::Key_Down, Qt::ShiftModifier);
    hand::Key(Qt::Key_Down, Qt::ShiftModifier);
    hand::Key(Qt::Key_Space); // The last one chosen is a ride, not ticked: all three are.
    work.Await();
    QCOMPARE(work.Statuses(),
             QStringList({QStringLiteral("nuovo+"), QStringLiteral("nuovo+"), QStringLiteral("nuovo+")}));
    hand::Key(Qt::Key_Home, Qt::ControlModifier);
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(work.Part<QDateEdit>("day").hasFocus());
    hand::Key(Qt::Key_Tab); // To the month,
    hand::Key(Qt::Key_Tab); // to the year.
    for (const char* name : {"start", "end", "clock", "km", "metres", "route", "type", "season", "splits"}) {
        hand::Key(Qt::Key_Tab);
        QTRY_VERIFY2(work.Part<QWidget>(name).hasFocus(), name);
    }
    hand::Key(Qt::Key_D, Qt::AltModifier);
    QTRY_VERIFY(work.Text("told").startsWith(QStringLiteral("Fatto. Scritti: 3.")));
}

void PageTest::TheDiaryIsOpen()
{
    Workplace work;
    const QByteArray before = work.files.Everything();
    auto lock = std::make_unique<Descriptor>(
        ::open(work.files.Native(".zelvia.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    QCOMPARE(::flock(lock->Number(), LOCK_EX | LOCK_NB), 0);
    work.Drop({kRun});
    const QString open = QStringLiteral("Il diario di «") + QString::fromStdString(work.files.Native()) +
                         QStringLiteral("» è aperto, o ci lavora un altro comando: chiuderlo e riprovare.");
    QCOMPARE(work.Text("told"), open);
    QCOMPARE(work.Statuses(), QStringList(QStringLiteral("da confrontare")));
    QVERIFY(!work.Part<QPushButton>("write").isEnabled());
    lock.reset();
    hand::Click(work.Part<QPushButton>("again"));
    work.Await();
    QCOMPARE(work.Statuses(), QStringList(QStringLiteral("nuovo+")));
    // It is opened before the button is pressed.
    lock = std::make_unique<Descriptor>(::open(work.files.Native(".zelvia.lock").c_str(), O_RDWR | O_CLOEXEC));
    QCOMPARE(::flock(lock->Number(), LOCK_EX | LOCK_NB), 0);
    work.Write();
    QCOMPARE(work.Text("told"), open);
    QCOMPARE(work.files.Everything(), before);
}

void PageTest::TheDiaryHasChanged()
{
    Workplace work;
    work.files.Write("ZelviaFile/2013.zlv", DiaryBytes::Blank(2013).Bytes().toStdString());
    work.Drop({kRun});
    DiaryBytes diary = DiaryBytes::Blank(2013);
    diary.SetLine(kSlot, DiaryBytes::Km, "5");
    work.files.Write("ZelviaFile/2013.zlv", diary.Bytes().toStdString());
    const QByteArray before = work.files.Everything();
    work.Write();
    QCOMPARE(work.Text("told"),
             QStringLiteral("Il diario è cambiato nel frattempo: niente è stato scritto, guardare di nuovo."));
    QCOMPARE(work.Statuses(), QStringList(QStringLiteral("c'è altro")));
    QCOMPARE(work.files.Everything(), before);
}

void PageTest::ATableIsAsked()
{
    const char* const table = "Quando;Chilometri;Tempo;Scarpe\r\n29/2/2024;10,5;50:00;blu\r\n2024-03-01;5;;\r\n";
    Workplace work;
    work.files.home.Write("anni.csv", table);
    work.Drop({work.files.home.Native("anni.csv")});
    QCOMPARE(work.Statuses(), QStringList(QStringLiteral("non si legge")));
    const auto answer = [&](const char* column, const QString& label) {
        auto& box = work.Part<QComboBox>(column);
        QCOMPARE(box.currentText(), QStringLiteral("non leggere"));
        box.setFocus();
        while (box.currentText() != label && box.currentIndex() + 1 < box.count()) {
            hand::Key(Qt::Key_Down);
        }
        QCOMPARE(box.currentText(), label);
        work.Await();
    };
    answer("column Quando", QStringLiteral("Data"));
    answer("column Chilometri", QStringLiteral("Km"));
    QVERIFY(work.Part<QComboBox>("column Scarpe").isVisible());
    QCOMPARE(work.Statuses(), QStringList({QStringLiteral("nuovo+"), QStringLiteral("nuovo+")}));
    QCOMPARE(work.Cell(0, Column::Km), QStringLiteral("10,500"));
    work.Write();
    const ToolsDesk other;
    other.home.Write("anni.csv", table);
    other.Run(
        {"importa", "--si", "--colonna", "Quando=date", "--colonna", "Chilometri=km", other.home.Native("anni.csv")});
    QVERIFY(work.files.Everything() == other.Everything());
}

void PageTest::OtherSports()
{
    Workplace work;
    const std::string file = WatchPath("triathlon-chained.fit");
    work.Drop({file});
    const QString rest = QStringLiteral("non è una corsa");
    QCOMPARE(work.Statuses(), QStringList({rest, rest, rest, rest, QStringLiteral("nuovo+")}));
    hand::Click(work.Part<QCheckBox>("all"), QPoint(8, work.Part<QCheckBox>("all").height() / 2));
    work.Await();
    QCOMPARE(work.Statuses()[0], QStringLiteral("nuovo+"));
    work.Write();
    QVERIFY(work.files.Everything() == AfterCommand({"importa", "--si", "--tutti", file}));
}

void PageTest::AThousandCancelled()
{
    Workplace work;
    const QByteArray before = work.files.Everything();
    work.StartDrop({ThousandRuns(work.files.home, 150)});
    QTRY_VERIFY_WITH_TIMEOUT(work.Statuses().size() > 3, kPatience);
    // The window goes on meanwhile.
    work.Choose(2);
    QCOMPARE(work.Part<QSpinBox>("km").value(), 6);
    QVERIFY(work.desk.Runner().IsBusy());
    work.desk.Runner().Cancel();
    work.Await();
    const qsizetype read = work.Statuses().size();
    QVERIFY(read > 3 && read < 1000);
    QCOMPARE(work.Text("told"), QStringLiteral("Lettura fermata: letti %1 file su 1000.").arg(read));
    QCOMPARE(work.Statuses().count(QStringLiteral("nuovo+")), read);
    QCOMPARE(work.files.Everything(), before);
}

/// What is dropped meanwhile has its turn, which is said.
void PageTest::MoreWhileReading()
{
    Workplace work;
    work.StartDrop({ThousandRuns(work.files.home, 150)});
    QTRY_VERIFY_WITH_TIMEOUT(work.Statuses().size() > 3, kPatience);
    work.StartDrop({kRun});
    QCOMPARE(work.Text("told"), QStringLiteral("I file aggiunti adesso vengono letti dopo quelli di prima."));
    QTRY_COMPARE_WITH_TIMEOUT(work.Statuses().size(), 1001, kPatience);
    work.Await();
    QCOMPARE(work.Text("told"), QString());
}

void PageTest::AThousand()
{
    Workplace work;
    const std::string folder = ThousandRuns(work.files.home, 2);
    work.Drop({folder});
    QCOMPARE(work.Statuses().count(QStringLiteral("nuovo+")), 1000);
    work.Write();
    QVERIFY(work.Text("told").startsWith(QStringLiteral("Fatto. Scritti: 1000.")));
    QVERIFY(work.files.Everything() == AfterCommand({"importa", "--si", folder}));
    for (int year = 2010; year < 2020; ++year) {
        QVERIFY(work.Diary(std::to_string(year)).Complete());
    }
}

void PageTest::EveryControlHasAName()
{
    Workplace work;
    work.Drop({kRun});
    for (const QWidget* control : work.page.findChildren<QWidget*>()) {
        const bool used = control->focusPolicy() != Qt::NoFocus && control->isVisible() &&
                          qobject_cast<const QSplitterHandle*>(control) == nullptr;
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const bool named = !control->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty());
        const bool partOfAnother = control->objectName().startsWith(QLatin1String("qt_")) ||
                                   qobject_cast<const QAbstractSpinBox*>(control->parentWidget()) != nullptr ||
                                   qobject_cast<const QComboBox*>(control->parentWidget()) != nullptr;
        QVERIFY2(!used || named || partOfAnother,
                 qPrintable(control->objectName() + QLatin1String(control->metaObject()->className())));
    }
}

ZELVIA_WINDOW_TEST(PageTest)
#include "PageTest.moc"
