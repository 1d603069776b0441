// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DiaryBytes.h"
#include "support/FixedClock.h"
#include "support/TestProgram.h"
#include "tools/start/StartDesk.h"

#include <QTest>

#include <cstddef>
#include <filesystem>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class BeforeStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { desk_ = std::make_unique<StartDesk>(); }
    void cleanup() { desk_.reset(); }

    void AWholeDiaryIsOpenedInSilence();
    void AnUnchangedDiaryIsNotReadAgain();
    void ConflictCopiesAreSaidOnce();
    void AFolderWithoutDiaries();
    void AQuoteInANoteIsMended();
    void WhatCanBeMendedIsSaidAtEachStart();
    void WhatCantBeMendedIsSaidOnce();
    void ManyFindingsAreCounted();
    void EndsOfLinesThatTheProgramReads();
    void ListsAndPointersToo_data();
    void ListsAndPointersToo();
    void OnlyWhatWasShownIsMended();
    void ADiaryThatWasNeverSaved();
    void TheToolsAreOpened();
    void AnOpenedDiaryIsNotMended();
    void AChangedDiaryIsMendedAsItIs();
    void ADiaryOfAnotherFolder();
    void AFailedCopyStopsNothing();
    void TheNewYearIsOffered_data();
    void TheNewYearIsOffered();
    void TheNewYearIsMade();
    void AFailedNewYearStopsNothing();
    void ARunningProgramIsLeftAlone();
    void ToolsAtWorkAreNamed();

private:
    QByteArray Sample() const { return Bytes(desk_->Read(kDiary)); }
    /// Puts a value into the sample diary.
    void Set(int slot, int line, const QByteArray& value) const
    {
        DiaryBytes diary(Sample());
        diary.SetLine(slot, line, value);
        desk_->Write(kDiary, diary.Bytes().toStdString());
    }

    static constexpr const char* kDiary = "ZelviaFile/prova.zlv";
    static constexpr int kNote = 129;
    std::unique_ptr<StartDesk> desk_;
};

namespace
{

const QString kQuote = QStringLiteral(
    "Nel diario «prova» c'è qualcosa che non va:\n\n"
    "• 03/03/2026, Note, riga 1: virgolette nel testo «il \"Giro\"»: il programma finirebbe lì il testo, leggerebbe "
    "male "
    "ciò che segue e lo perderebbe al salvataggio; diventano tipografiche.\n\n"
    "«Ripara» ne mette a posto 1 su 1; i file di prima restano in una copia di sicurezza.|Ripara|Strumenti…|Apri "
    "lo stesso");
const QString kRange = QStringLiteral("Nel diario «prova» c'è qualcosa che non va:\n\n"
                                      "• 03/03/2026, Km: «501» è fuori dai limiti, 0 e 500: il programma lo prende "
                                      "com'è; diventa 500, se lo si vuole: negli "
                                      "strumenti.\n|Strumenti…|Apri lo stesso");

QString NewYear(int year, int newest)
{
    return QStringLiteral("È cominciato il %1, e il diario più recente è del %2.\n\nPreparare il diario del %1, con le "
                          "liste, i percorsi e le tabelle di adesso e il calendario delle gare vuoto? Quello di prima "
                          "resta com'è e si riapre con «Apri».|Prepara|Non ora")
        .arg(year)
        .arg(newest);
}

} // namespace

void BeforeStartTest::AWholeDiaryIsOpenedInSilence()
{
    const QByteArray before = desk_->Everything();
    desk_->Open();
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList());
    QCOMPARE(desk_->Everything(), before);
    QCOMPARE(desk_->Copies(), 1);
    QVERIFY(desk_->Lock() != nullptr);
}

void BeforeStartTest::AnUnchangedDiaryIsNotReadAgain()
{
    constexpr const char* memory = "stato/zelvia/avvio";
    Set(62, DiaryBytes::Km, "501");
    desk_->Open();
    QCOMPARE(desk_->said, QStringList(kRange));
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
    // That this was said is forgotten; that there was nothing to say the last time is not.
    QByteArrayList lines = Bytes(desk_->home.Read(memory)).split('\n');
    lines.removeIf([](const QByteArray& line) { return line.startsWith("difetti\t"); });
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines[0].startsWith("guardato\t"));
    desk_->home.Write(memory, lines.join('\n').toStdString());
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
    // Another file of the diary has changed.
    desk_->Write("prova/Tipo.lsx", desk_->Read("prova/Tipo.lsx"));
    desk_->Open();
    QCOMPARE(desk_->said, QStringList(kRange));
}

void BeforeStartTest::ConflictCopiesAreSaidOnce()
{
    constexpr const char* conflict = "ZelviaFile/prova.sync-conflict-20261101-101010-ABCDEFG.zlv";
    const auto question = [](const QString& points) {
        return QStringLiteral(
                   "Due computer hanno scritto negli stessi file, e il servizio che tiene uguali le cartelle ne ha "
                   "lasciato qui le seconde versioni:\n\n%1\n«Due computer», negli strumenti, le unisce ai file del "
                   "diario giorno per giorno. Fino ad allora il diario si apre senza ciò che vi è "
                   "scritto.|Strumenti…|Apri lo stesso")
            .arg(points);
    };
    const QString first = QStringLiteral("• %1.\n").arg(QString::fromUtf8(conflict));
    desk_->Write(conflict, desk_->Read(kDiary));
    const QByteArray before = desk_->Everything();
    desk_->Open({QStringLiteral("Apri lo stesso")});
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList(question(first)));
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
    QCOMPARE(desk_->Everything(), before);
    desk_->Write("prova/Tipo (conflicted copy 2026-11-01).lsx", "");
    desk_->Open({QStringLiteral("Strumenti…")});
    QCOMPARE(desk_->said,
             QStringList({question(first + QStringLiteral("• prova/Tipo (conflicted copy 2026-11-01).lsx.\n")),
                          QStringLiteral("tools")}));
    // Once they have gone, the same ones are new.
    fs::remove(desk_->Native("prova/Tipo (conflicted copy 2026-11-01).lsx"));
    fs::remove(desk_->Native(conflict));
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
    desk_->Write(conflict, desk_->Read(kDiary));
    desk_->Open();
    QCOMPARE(desk_->said, QStringList(question(first)));
}

void BeforeStartTest::AFolderWithoutDiaries()
{
    fs::remove_all(desk_->Native("ZelviaFile"));
    fs::remove_all(desk_->Native("prova"));
    const FixedClock january(CalendarDate(2027, 1, 1));
    desk_->Open();
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList());
}

void BeforeStartTest::AQuoteInANoteIsMended()
{
    const QByteArray sample = Sample();
    Set(62, kNote, "\"il \"Giro\"\"");
    const QByteArray damaged = Sample();
    desk_->Open({QStringLiteral("Ripara")});
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList(kQuote));
    DiaryBytes mended(sample);
    mended.SetLine(62, kNote, "\"il \x93Giro\x94\"");
    QCOMPARE(Sample(), mended.Bytes());
    QCOMPARE(desk_->Copies(), 1);
    for (const auto& entry : fs::directory_iterator(desk_->home.Native("stato/zelvia/copie"))) {
        if (entry.is_directory()) {
            QCOMPARE(Bytes(ReadWhole((entry.path() / kDiary).string())), damaged);
        }
    }
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
}

void BeforeStartTest::WhatCanBeMendedIsSaidAtEachStart()
{
    Set(62, kNote, "\"il \"Giro\"\"");
    const QByteArray before = desk_->Everything();
    for (const char* answer : {"Apri lo stesso", ""}) {
        desk_->Open({QString::fromUtf8(answer)});
        QVERIFY(desk_->opens);
        QCOMPARE(desk_->said, QStringList(kQuote));
        QCOMPARE(desk_->Everything(), before);
    }
}

void BeforeStartTest::WhatCantBeMendedIsSaidOnce()
{
    Set(62, DiaryBytes::Km, "501");
    desk_->Open({QStringLiteral("Apri lo stesso")});
    QCOMPARE(desk_->said, QStringList(kRange));
    desk_->Open();
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList());
    // Something else is wrong now.
    Set(62, kNote, "\"il \"Giro\"\"");
    desk_->Open({QStringLiteral("Ripara")});
    QCOMPARE(desk_->said.size(), 1);
    QVERIFY(desk_->said[0].contains(QStringLiteral("«Ripara» ne mette a posto 1 su 2;")));
    // What is left was said.
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
}

void BeforeStartTest::ManyFindingsAreCounted()
{
    for (int slot = 1; slot <= 7; ++slot) {
        Set(slot, DiaryBytes::Km, "501");
    }
    desk_->Open();
    QCOMPARE(desk_->said.size(), 1);
    QCOMPARE(desk_->said[0].count(QStringLiteral("•")), 5);
    QVERIFY(desk_->said[0].endsWith(QStringLiteral("… e altri 2.\n|Strumenti…|Apri lo stesso")));
}

void BeforeStartTest::EndsOfLinesThatTheProgramReads()
{
    const QByteArray sample = Sample();
    desk_->Write(kDiary, QByteArray(sample).replace("\r\n", "\n").toStdString());
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
    desk_->Write(kDiary, QByteArray(sample).replace("\r\n", "\r\r\n").toStdString());
    desk_->Open({QStringLiteral("Ripara")});
    QCOMPARE(desk_->said.size(), 1);
    QCOMPARE(Sample(), sample);
}

void BeforeStartTest::ListsAndPointersToo_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("line");
    QTest::addRow("a list") << "prova/Tipo.lsx" << QByteArray("\"la \"mia\"\"\r\n")
                            << "• prova/Tipo.lsx, voce 1, riga 1: virgolette nel testo «la \"mia\"»: il programma";
    QTest::addRow("the pointer") << "nomeload" << QByteArray() << "• nomeload, riga 1: il file è vuoto";
    QTest::addRow("the active table") << "prova/nometab" << QByteArray("\"C:\\X\\prova\\Base 10 km.tab\"\n")
                                      << "• prova/nometab, riga 1: ";
}

void BeforeStartTest::ListsAndPointersToo()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, line);
    desk_->Write(file.toStdString(), bytes.toStdString());
    desk_->Open({QStringLiteral("Ripara")});
    QCOMPARE(desk_->said.size(), 1);
    QVERIFY2(desk_->said[0].contains(line), qPrintable(desk_->said[0]));
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
}

/// The pointer comes from another computer; which diary it means is known only once it is repaired.
void BeforeStartTest::OnlyWhatWasShownIsMended()
{
    Set(62, kNote, "\"il \"Giro\"\"");
    const QByteArray damaged = Sample();
    desk_->Write("nomeload", "\"C:\\X\\ZelviaFile\\prova.zlv\"\r\n");
    desk_->Open({QStringLiteral("Ripara"), QStringLiteral("Apri lo stesso")});
    QCOMPARE(desk_->said.size(), 2);
    QCOMPARE(desk_->said[1], kQuote);
    QVERIFY2(desk_->said[0].startsWith(QStringLiteral("C'è qualcosa che non va:\n\n• nomeload, riga 1: ")),
             qPrintable(desk_->said[0]));
    QVERIFY(desk_->Read("nomeload").ends_with("\\Zelvia\\ZelviaFile\\prova.zlv\"\r\n"));
    QCOMPARE(Sample(), damaged);
}

void BeforeStartTest::ADiaryThatWasNeverSaved()
{
    fs::remove(desk_->Native(kDiary));
    desk_->Write("prova/Tipo.lsx", "\"la \"mia\"\"\r\n");
    desk_->Open({QStringLiteral("Ripara")});
    QCOMPARE(desk_->said.size(), 1);
    QCOMPARE(Bytes(desk_->Read("prova/Tipo.lsx")), QByteArray("\"la \x93mia\x94\"\r\n"));
}

void BeforeStartTest::TheToolsAreOpened()
{
    Set(62, DiaryBytes::Km, "501");
    desk_->Open({QStringLiteral("Strumenti…"), QStringLiteral("Apri lo stesso")});
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList({kRange, QStringLiteral("tools"), kRange}));
}

void BeforeStartTest::AnOpenedDiaryIsNotMended()
{
    Set(62, kNote, "\"il \"Giro\"\"");
    const QByteArray before = desk_->Everything();
    std::unique_ptr<Descriptor> lock;
    // The lock is free while the box is up; the program may start.
    desk_->meanwhile = [&] { lock = desk_->Lock(); };
    desk_->Open({QStringLiteral("Ripara")});
    QVERIFY(lock != nullptr);
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->Everything(), before);
    QCOMPARE(
        desk_->said,
        QStringList({kQuote, QStringLiteral("La riparazione non è riuscita; il diario si apre lo stesso.\nil diario "
                                            "di «%1» è aperto, o ci lavora un altro comando: chiuderlo e riprovare.")
                                 .arg(QString::fromStdString(desk_->Native()))}));
}

void BeforeStartTest::AChangedDiaryIsMendedAsItIs()
{
    Set(62, kNote, "\"il \"Giro\"\"");
    DiaryBytes other(Sample());
    other.SetLine(63, kNote, "\"altro\"");
    desk_->meanwhile = [&] { desk_->Write(kDiary, other.Bytes().toStdString()); };
    desk_->Open({QStringLiteral("Ripara")});
    other.SetLine(62, kNote, "\"il \x93Giro\x94\"");
    QCOMPARE(Sample(), other.Bytes());
    QCOMPARE(desk_->Copies(), 2);
}

void BeforeStartTest::ADiaryOfAnotherFolder()
{
    desk_->home.Write("altrove.zlv", "");
    desk_->Write("nomeload", "\"" + desk_->home.Path("altrove.zlv") + "\"\r\n");
    desk_->Open();
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList());
}

void BeforeStartTest::AFailedCopyStopsNothing()
{
    desk_->home.Write("stato", "");
    Set(62, kNote, "\"il \"Giro\"\"");
    desk_->Open();
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said.size(), 2);
    QVERIFY(desk_->said[0].startsWith(
        QStringLiteral("La copia di sicurezza del diario non è riuscita; il diario si apre lo stesso.\n«")));
    QCOMPARE(desk_->said[1], kQuote);
}

void BeforeStartTest::TheNewYearIsOffered_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<bool>("offered");
    // The sample diary is of 2026.
    QTest::addRow("in its own year") << 2026 << 1 << false;
    QTest::addRow("at its end") << 2026 << 12 << false;
    QTest::addRow("in January") << 2027 << 1 << true;
    QTest::addRow("in February") << 2027 << 2 << false;
    QTest::addRow("years later") << 2031 << 1 << true;
    QTest::addRow("in the last year") << 2099 << 1 << true;
    QTest::addRow("behind the last year") << 2100 << 1 << false;
    QTest::addRow("with the clock set back") << 2001 << 1 << false;
}

void BeforeStartTest::TheNewYearIsOffered()
{
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(bool, offered);
    const FixedClock clock(CalendarDate(year, static_cast<unsigned>(month), 15));
    const QByteArray before = desk_->Everything();
    desk_->Open({QStringLiteral("Non ora")});
    QCOMPARE(desk_->said, offered ? QStringList(NewYear(year, 2026)) : QStringList());
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
    QCOMPARE(desk_->Everything(), before);
    // A year later it is another question.
    const FixedClock later(CalendarDate(year + 1, 1, 1));
    desk_->Open();
    QCOMPARE(desk_->said.size(), year + 1 > 2026 && year + 1 <= 2099 ? 1 : 0);
}

void BeforeStartTest::TheNewYearIsMade()
{
    const FixedClock january(CalendarDate(2027, 1, 3));
    desk_->Open({QStringLiteral("Prepara")});
    QVERIFY(desk_->opens);
    QCOMPARE(Bytes(desk_->Read("ZelviaFile/2027.zlv")), DiaryBytes::Blank(2027).Bytes());
    QVERIFY(desk_->Read("nomeload").ends_with("\\ZelviaFile\\2027.zlv\"\r\n"));
    QCOMPARE(Bytes(desk_->Read("2027/Tipo.lsx")), Bytes(desk_->Read("prova/Tipo.lsx")));
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
}

void BeforeStartTest::AFailedNewYearStopsNothing()
{
    const FixedClock january(CalendarDate(2027, 1, 3));
    std::unique_ptr<Descriptor> lock;
    desk_->meanwhile = [&] { lock = desk_->Lock(); };
    desk_->Open({QStringLiteral("Prepara")});
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said.size(), 2);
    QVERIFY(desk_->said[1].startsWith(
        QStringLiteral("Il diario del 2027 non è pronto; si apre quello di prima.\nzelvia-strumenti: il diario di «")));
    QVERIFY(!desk_->Has("ZelviaFile/2027.zlv"));
}

void BeforeStartTest::ARunningProgramIsLeftAlone()
{
    Set(62, kNote, "\"il \"Giro\"\"");
    const auto lock = desk_->Lock();
    QVERIFY(lock != nullptr);
    struct stat status {
    };
    QCOMPARE(::fstat(lock->Number(), &status), 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string name =
        QStringLiteral("zelvia-%1-%2").arg(status.st_dev, 0, 16).arg(status.st_ino, 0, 16).toStdString();
    name.copy(address.sun_path + 1, name.size());
    const Descriptor socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    QCOMPARE(::bind(socket.Number(), reinterpret_cast<const sockaddr*>(&address),
                    static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size())),
             0);
    desk_->Open();
    QVERIFY(!desk_->opens);
    QCOMPARE(desk_->said, QStringList());
    QCOMPARE(desk_->Copies(), 0);
}

void BeforeStartTest::ToolsAtWorkAreNamed()
{
    const auto lock = desk_->Lock();
    desk_->Open();
    QVERIFY(!desk_->opens);
    QCOMPARE(desk_->said, QStringList(QStringLiteral("Gli strumenti di Zelvia stanno lavorando ai diari di «%1»: il "
                                                     "diario si apre quando hanno finito. Riprovare fra poco.")
                                          .arg(QString::fromStdString(desk_->Native()))));
}

ZELVIA_TEST(BeforeStartTest)

#include "BeforeStartTest.moc"
