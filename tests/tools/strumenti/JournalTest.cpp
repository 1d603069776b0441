// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What was entered and not saved is reported, restored or forgotten.
#include "diary/Journal.h"

#include "core/BoxTexts.h"
#include "core/Files.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/SelectionLists.h"
#include "diary/UnsavedWork.h"
#include "support/Bytes.h"
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <linux/capability.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zelvia;
using namespace zelvia::test;
using namespace zelvia::Module1;
namespace fs = std::filesystem;

namespace
{

constexpr int kBlankDay = 142; // 22 May 2026
constexpr const char* kHead = "date\tfield\tbefore\tafter\n";

using Change = void (*)(RecordGiorno& day);

/// The program at work in a folder, without its windows. It ends without saving.
class Program
{
public:
    explicit Program(const ToolsDesk& desk, const std::string& diary = "prova")
    {
        SetProgramFolder(SystemPath(desk.Native()));
        AzzeraStato();
        AzzeraAnno();
        session.NomeFile = SystemPath(desk.Native("ZelviaFile/" + diary + ".zlv"));
        CartellaDiario = SystemPath(desk.Native(diary));
        CaricaDiario(session.NomeFile);
        for (const SelectionList list : kFiledLists) {
            ReadEntries(ListPath(list), EntriesOf(list));
        }
        AzzeraPercorsi();
        CaricaPercorsi();
        AzzeraCalendario();
        LeggiCalendario();
        GiornoCorrente = 1;
        Journal::Instance().Begin();
        Journal::Instance().Opened();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program() { Journal::Instance().End(); }

    static void Look() { Journal::Instance().Look(Giorni[GiornoCorrente]); }

    static void Enter(int slot, const std::function<void(RecordGiorno&)>& change)
    {
        GiornoCorrente = slot;
        Look();
        change(Giorni[slot]);
        Look();
    }

    static void Save()
    {
        SalvaDiario(session.NomeFile);
        for (const SelectionList list : kFiledLists) {
            WriteEntries(ListPath(list), EntriesOf(list));
            Journal::Instance().Saved(RecordKind::List, static_cast<int>(list));
        }
        SalvaPercorsi();
        ScriviCalendario();
    }
};

void EnterWeight(const ToolsDesk& desk, int slot, int weight)
{
    const Program program(desk);
    Program::Enter(slot, [weight](RecordGiorno& day) { day.Peso = weight; });
}

/// The files of the journals.
std::vector<fs::path> Journals(const ToolsDesk& desk)
{
    const fs::path folder = desk.home.Native("stato/zelvia/giornale");
    return fs::exists(folder) ? std::vector<fs::path>(fs::directory_iterator(folder), fs::directory_iterator())
                              : std::vector<fs::path>();
}

QByteArray Listed(const ToolsDesk& desk)
{
    const Outcome outcome = desk.Run({"giornale", "--tsv"});
    return outcome.status == 0 && outcome.err.isEmpty() ? outcome.out : outcome.err;
}

DiaryBytes DiaryOf(const ToolsDesk& desk)
{
    return DiaryBytes(Bytes(desk.Read("ZelviaFile/prova.zlv")));
}

/// The permissions of files count for root as well, as long as it lives.
class PermissionsCount
{
public:
    PermissionsCount()
    {
        ::syscall(SYS_capget, &head_, kept_.data());
        auto fewer = kept_;
        fewer[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
        ::syscall(SYS_capset, &head_, fewer.data());
    }
    PermissionsCount(const PermissionsCount&) = delete;
    PermissionsCount& operator=(const PermissionsCount&) = delete;
    ~PermissionsCount() { ::syscall(SYS_capset, &head_, kept_.data()); }

private:
    __user_cap_header_struct head_{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> kept_{};
};

} // namespace

class JournalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachField_data();
    void EachField();
    void NothingEntered();
    void SavedIsGone();
    void SavedAsIsGone();
    void UndoneIsGone();
    void RefusedToSave();
    void ListsRoutesRaces();
    void OneDayOrKind();
    void IsAskedFirst();
    void OnlyShown();
    void ReadOnly();
    void Forgotten();
    void Conflict();
    void SeveralSessions();
    void ADiaryNeverSaved();
    void ADiaryThatIsGone();
    void TwoFoldersOfOneName();
    void DamagedJournals_data();
    void DamagedJournals();
    void KilledAtEachByte();
    void FullAtEachByte();
    void NoPlaceToWrite_data();
    void NoPlaceToWrite();
    void LinksAreNotFollowed();
    void IsTheOwnersAlone();
    void IsBounded();
    void OfferedOnce();
    void ClockSetBack();
    void InUse();
    void WrongWords_data();
    void WrongWords();
    void CostsLittle();
};

void JournalTest::EachField_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char* field, int line, const char* value, Change change) {
        QByteArray after(value);
        QTest::newRow(field) << change << line << QByteArray(value) << after.replace('"', "");
    };
    using R = RecordGiorno;
    row("Percorso", 3, "\"Parco\"", [](R& day) { day.Percorso = "Parco"; });
    row("Lunghezza", 4, "\"Medio\"", [](R& day) { day.Lunghezza = "Medio"; });
    row("Km", 5, "12", [](R& day) { day.Km = 12; });
    row("Metri", 6, "500", [](R& day) { day.Metri = 500; });
    row("Andatura", 7, "\"Lenta\"", [](R& day) { day.Modo = "Lenta"; });
    row("Terreno", 8, "\"Strada\"", [](R& day) { day.Fondo = "Strada"; });
    row("Tipo", 9, "\"Gara\"", [](R& day) { day.Tipo = "Gara"; });
    row("Ora Inizio, ore", 10, "18", [](R& day) { day.OraInizio = 18; });
    row("Ora Inizio, minuti", 11, "5", [](R& day) { day.MinutiInizio = 5; });
    row("Ora Inizio, secondi", 12, "59", [](R& day) { day.SecondiInizio = 59; });
    row("Ora Fine, ore", 13, "19", [](R& day) { day.OraFine = 19; });
    row("Ora Fine, minuti", 14, "30", [](R& day) { day.MinutiFine = 30; });
    row("Ora Fine, secondi", 15, "1", [](R& day) { day.SecondiFine = 1; });
    row("Tempo", 16, "\"0:50:00\"", [](R& day) { day.TempoImpiegato = "0:50:00"; });
    row("Media", 17, "\"5:00\"", [](R& day) { day.MediaKm = "5:00"; });
    row("Tempi Km, riga 1", 18, "\"1 - 0:05:00\"", [](R& day) { day.ListaKm[0] = "1 - 0:05:00"; });
    row("Tempi Km, riga 100", 117, "\"x\"", [](R& day) { day.ListaKm[99] = "x"; });
    row("Stagione", 118, "\"Estate\"", [](R& day) { day.Stagione = "Estate"; });
    row("Meteo", 119, "\"Sole\"", [](R& day) { day.TempoAtm = "Sole"; });
    row("Temperatura", 120, "\"Mite\"", [](R& day) { day.Temperatura = "Mite"; });
    row("Corridori", 121, "100000", [](R& day) { day.Corridori = 100000; });
    row("Peso", 122, "72", [](R& day) { day.Peso = 72; });
    row("Ripetizioni", 123, "8", [](R& day) { day.Ripetizioni = 8; });
    row("Ripetizioni, metri", 124, "400", [](R& day) { day.RipetizioniDistanza = 400; });
    row("Ripetizioni, minuti", 125, "1", [](R& day) { day.RipetizioniQuante = 1; });
    row("Ripetizioni, secondi", 126, "20", [](R& day) { day.RipetizioniTempi = 20; });
    row("Note fuori pagina, riga 2", 128, "\"n\"", [](R& day) { day.Note[2] = "n"; });
    row("Note, riga 1", 129, "\"Piove, ma poco\"", [](R& day) { day.Note[3] = "Piove, ma poco"; });
    row("Note, riga 8", 136, "\"\\t fine\"", [](R& day) { day.Note[10] = "\\t fine"; });
}

void JournalTest::EachField()
{
    QFETCH(Change, change);
    QFETCH(int, line);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, after);
    const ToolsDesk desk;
    DiaryBytes wanted = DiaryOf(desk);
    {
        const Program program(desk);
        Program::Enter(kBlankDay, change);
    }
    QCOMPARE(DiaryOf(desk).Bytes(), wanted.Bytes());
    QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\t") + QTest::currentDataTag() + "\t\t" + after + "\n");

    const Outcome back = desk.Run({"giornale", "riprendi", "--si"});
    QCOMPARE(back.err, QByteArray());
    QCOMPARE(back.status, 0);
    wanted.SetLine(kBlankDay, line, value);
    QCOMPARE(DiaryOf(desk).Bytes(), wanted.Bytes());
    QCOMPARE(desk.Copies(), 1);
    QCOMPARE(Listed(desk), QByteArray(kHead));
    QCOMPARE(Journals(desk).size(), std::size_t(0));
}

/// Days that were looked at and left again, as the program leaves them.
void JournalTest::NothingEntered()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        Program::Enter(kBlankDay, [](RecordGiorno& day) {
            day.TempoImpiegato = "0:00:00";
            day.MediaKm = "0:00";
        });
        Program::Enter(kBlankDay + 1, [](RecordGiorno&) {});
    }
    QCOMPARE(Journals(desk).size(), std::size_t(0));
    QCOMPARE(desk.Run({"giornale"}).out, QByteArray("Tutto è stato salvato.\n"));
}

void JournalTest::SavedIsGone()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
        EntriesOf(SelectionList::Tipo).push_back("Staffetta");
        Program::Look();
        QCOMPARE(Journals(desk).size(), std::size_t(1));
        Program::Save();
        QCOMPARE(Journals(desk).size(), std::size_t(0));
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 73; });
    }
    // What was entered after it.
    QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\tPeso\t72\t73\n"));
}

/// The file chosen has it; the next save goes there too.
void JournalTest::SavedAsIsGone()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
        SalvaDiario(SystemPath(desk.Native("ZelviaFile/altro.zlv")));
        QCOMPARE(Journals(desk).size(), std::size_t(0));
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 73; });
    }
    QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\tPeso\t72\t73\n"));
    const QByteArray before = Bytes(desk.Read("ZelviaFile/prova.zlv"));
    QCOMPARE(desk.Run({"giornale", "riprendi", "--si"}).status, 0);
    QCOMPARE(Bytes(desk.Read("ZelviaFile/prova.zlv")), before);
    QCOMPARE(DiaryBytes(Bytes(desk.Read("ZelviaFile/altro.zlv"))).Line(kBlankDay, DiaryBytes::Weight),
             QByteArray("73"));
}

void JournalTest::UndoneIsGone()
{
    const ToolsDesk desk;
    const Program program(desk);
    Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
    Program::Enter(kBlankDay + 1, [](RecordGiorno& day) { day.Peso = 73; });
    Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 0; });
    QCOMPARE(Journals(desk).size(), std::size_t(1));
    Program::Enter(kBlankDay + 1, [](RecordGiorno& day) { day.Peso = 0; });
    QCOMPARE(Journals(desk).size(), std::size_t(0));
}

void JournalTest::RefusedToSave()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
        Journal::Instance().Forget();
    }
    QCOMPARE(Journals(desk).size(), std::size_t(0));
}

void JournalTest::ListsRoutesRaces()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        EntriesOf(SelectionList::Tipo) = {"Gara", "Staffetta"};
        NomiPercorso[200] = "Argine";
        DistanzePercorso[200] = 7500;
        TrattoMetri[200][20] = 300;
        GiornoGara[100] = 6;
        MeseGara[100] = 9;
        AnnoGara[100] = 2026;
        Localita[100] = "Forl\xec";
        Program::Look();
    }
    QCOMPARE(Listed(desk), QByteArray(kHead) + "\tlista Tipo\tAllenamento\t\n"
                                               "\tlista Tipo\tCamminata\t\n"
                                               "\tlista Tipo\t\tStaffetta\n"
                                               "\tpercorso «Argine», nome\t\tArgine\n"
                                               "\tpercorso «Argine», lunghezza\t\t7500\n"
                                               "\tpercorso «Argine», tratto 20, metri\t\t300\n"
                                               "2026-09-06\tgara 100, giorno\t\t6\n"
                                               "2026-09-06\tgara 100, mese\t\t9\n"
                                               "2026-09-06\tgara 100, anno\t\t2026\n"
                                               "2026-09-06\tgara 100, località\t\tForlì\n");
    const Text diary = desk.Read("ZelviaFile/prova.zlv");
    QCOMPARE(desk.Run({"giornale", "riprendi", "--si"}).status, 0);
    QCOMPARE(Bytes(desk.Read("prova/Tipo.lsx")), QByteArray("\"Gara\"\r\n\"Staffetta\"\r\n"));
    QVERIFY(desk.Read("prova/ListePercorso").find("\"Argine\"\r\n7500\r\n\"\"\r\n0\r\n") != Text::npos);
    QVERIFY(desk.Read("prova/ListePercorso").ends_with("\"\"\r\n0\r\n300\r\n"));
    QVERIFY(
        desk.Read("prova/CalendarioGare")
            .ends_with("100\r\n6\r\n9\r\n2026\r\n\"\"\r\n\"Forl\xec\"\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n\"\"\r\n"
                       "0\r\n"));
    QCOMPARE(Bytes(desk.Read("ZelviaFile/prova.zlv")), Bytes(diary));
    QCOMPARE(Listed(desk), QByteArray(kHead));
}

void JournalTest::OneDayOrKind()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
        Program::Enter(kBlankDay + 1, [](RecordGiorno& day) { day.Peso = 73; });
        EntriesOf(SelectionList::Tipo).push_back("Staffetta");
        Program::Look();
    }
    QCOMPARE(desk.Run({"giornale", "riprendi", "2026-05-23", "--si"}).status, 0);
    QCOMPARE(DiaryOf(desk).Line(kBlankDay, DiaryBytes::Weight), QByteArray("0"));
    QCOMPARE(DiaryOf(desk).Line(kBlankDay + 1, DiaryBytes::Weight), QByteArray("73"));
    QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\tPeso\t\t72\n\tlista Tipo\t\tStaffetta\n"));
    QCOMPARE(desk.Run({"giornale", "riprendi", "liste", "--si"}).status, 0);
    QCOMPARE(desk.Run({"giornale", "riprendi", "22/05/2026", "--si"}).status, 0);
    QCOMPARE(DiaryOf(desk).Line(kBlankDay, DiaryBytes::Weight), QByteArray("72"));
    QCOMPARE(Listed(desk), QByteArray(kHead));
    const Outcome none = desk.Run({"giornale", "riprendi", "2026-05-23", "--si"});
    QCOMPARE(none.status, 1);
    QVERIFY(none.err.contains("nel giornale non c'è niente di «2026-05-23»"));
}

void JournalTest::IsAskedFirst()
{
    for (const char* verb : {"riprendi", "dimentica"}) {
        const ToolsDesk desk;
        EnterWeight(desk, kBlankDay, 72);
        const QByteArray before = desk.Everything();
        const Outcome outcome = desk.Answer({"giornale", verb}, "n");
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.out.contains("72"));
        QVERIFY(outcome.out.endsWith("Niente è stato cambiato.\n"));
        QCOMPARE(desk.Everything(), before);
        QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\tPeso\t\t72\n"));
        QCOMPARE(desk.Answer({"giornale", verb}, "s").status, 0);
        QCOMPARE(Listed(desk), QByteArray(kHead));
    }
}

void JournalTest::OnlyShown()
{
    const ToolsDesk desk;
    EnterWeight(desk, kBlankDay, 72);
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"giornale", "riprendi", "--prova"});
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.endsWith("È una prova: niente è stato cambiato.\n"));
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(desk.Copies(), 0);
}

/// Where nothing can be written it is reported, and kept.
void JournalTest::ReadOnly()
{
    const ToolsDesk desk;
    EnterWeight(desk, kBlankDay, 72);
    const fs::path journal = Journals(desk).at(0);
    fs::permissions(journal, fs::perms::owner_read);
    fs::permissions(journal.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
    const PermissionsCount all;
    const QByteArray wanted = kHead + QByteArray("2026-05-22\tPeso\t\t72\n");
    QCOMPARE(Listed(desk), wanted);
    QVERIFY(FindUnsaved(desk.Native()));
    RememberOffered(desk.Native());
    QVERIFY(FindUnsaved(desk.Native()));
    EnterWeight(desk, kBlankDay + 1, 73);
    QCOMPARE(Listed(desk), wanted);
    const Outcome outcome = desk.Run({"giornale", "dimentica", "--si"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("Non si è potuto aggiornare il giornale.\n"));
    fs::permissions(journal.parent_path(), fs::perms::owner_all);
}

void JournalTest::Forgotten()
{
    const ToolsDesk desk;
    EnterWeight(desk, kBlankDay, 72);
    const QByteArray before = desk.Everything();
    QCOMPARE(desk.Run({"giornale", "dimentica", "--si"}).status, 0);
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(Journals(desk).size(), std::size_t(0));
    QCOMPARE(desk.Run({"giornale", "dimentica", "--si"}).out, QByteArray("Il giornale è vuoto.\n"));
    // Noise alone too.
    EnterWeight(desk, kBlankDay, 72);
    WriteWhole(Journals(desk).at(0).string(), "rumore");
    QCOMPARE(desk.Run({"giornale", "dimentica", "--si"}).status, 0);
    QCOMPARE(Journals(desk).size(), std::size_t(0));
}

void JournalTest::Conflict()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
        Program::Enter(kBlankDay + 1, [](RecordGiorno& day) { day.Peso = 73; });
    }
    DiaryBytes diary = DiaryOf(desk);
    diary.SetLine(kBlankDay, DiaryBytes::Notes + 2, "\"Altro\"");
    desk.Write("ZelviaFile/prova.zlv", diary.Bytes().toStdString());

    const Outcome outcome = desk.Run({"giornale", "riprendi", "--si"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("«prova», venerdì 22 maggio 2026: nel file c'è ormai altro, che resta com'è; "
                                     "--sovrascrivi lo sostituisce.\n"));
    diary.SetLine(kBlankDay + 1, DiaryBytes::Weight, "73");
    QCOMPARE(DiaryOf(desk).Bytes(), diary.Bytes());
    const Outcome over = desk.Run({"giornale", "riprendi", "--si", "--sovrascrivi"});
    QCOMPARE(over.status, 0);
    diary.SetLine(kBlankDay, DiaryBytes::Weight, "72");
    diary.SetLine(kBlankDay, DiaryBytes::Notes + 2, "\"\"");
    QCOMPARE(DiaryOf(desk).Bytes(), diary.Bytes());
    QCOMPARE(Listed(desk), QByteArray(kHead));
}

void JournalTest::SeveralSessions()
{
    const ToolsDesk desk;
    EnterWeight(desk, kBlankDay, 72);
    EnterWeight(desk, kBlankDay + 1, 73);
    EnterWeight(desk, kBlankDay, 74);
    // A session that saves takes along nothing of the earlier ones.
    {
        const Program program(desk);
        Program::Enter(kBlankDay + 2, [](RecordGiorno& day) { day.Peso = 75; });
        Program::Save();
    }
    QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\tPeso\t\t74\n2026-05-23\tPeso\t\t73\n"));
    QCOMPARE(desk.Run({"giornale", "riprendi", "--si"}).status, 0);
    QCOMPARE(DiaryOf(desk).Line(kBlankDay, DiaryBytes::Weight), QByteArray("74"));
    QCOMPARE(DiaryOf(desk).Line(kBlankDay + 1, DiaryBytes::Weight), QByteArray("73"));
    QCOMPARE(DiaryOf(desk).Line(kBlankDay + 2, DiaryBytes::Weight), QByteArray("75"));
}

void JournalTest::ADiaryNeverSaved()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        SetClock([] { return CalendarDate(2027, 1, 1); });
        AzzeraAnno();
        SetClock({});
        session.NomeFile = SystemPath(desk.Native("ZelviaFile/nuovo.zlv"));
        CartellaDiario = SystemPath(desk.Native("nuovo"));
        Journal::Instance().Opened();
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
    }
    QCOMPARE(Listed(desk), kHead + QByteArray("2027-05-22\tPeso\t\t72\n"));
    QCOMPARE(desk.Run({"giornale", "riprendi", "--si"}).status, 0);
    DiaryBytes wanted = DiaryBytes::Blank(2027);
    wanted.SetLine(kBlankDay, DiaryBytes::Weight, "72");
    QCOMPARE(Bytes(desk.Read("ZelviaFile/nuovo.zlv")), wanted.Bytes());
}

void JournalTest::ADiaryThatIsGone()
{
    const ToolsDesk desk;
    EnterWeight(desk, kBlankDay, 72);
    fs::rename(desk.Native("ZelviaFile/prova.zlv"), desk.Native("ZelviaFile/2026.zlv"));
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"giornale", "riprendi", "--si", "--sovrascrivi"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err,
             QByteArray("«prova», venerdì 22 maggio 2026: il diario non c'è più, o non è in questa cartella.\n"));
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(desk.Run({"giornale", "dimentica", "--si"}).status, 0);
    QCOMPARE(Journals(desk).size(), std::size_t(0));
}

void JournalTest::TwoFoldersOfOneName()
{
    const ToolsDesk desk;
    const std::string other = desk.home.Native("altra/Zelvia");
    fs::create_directories(desk.home.Native("altra"));
    fs::copy(desk.Native(), other, fs::copy_options::recursive);
    EnterWeight(desk, kBlankDay, 72);
    QCOMPARE(desk.Run({"--cartella", other, "giornale", "--tsv"}).out, QByteArray(kHead));
    QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\tPeso\t\t72\n"));
}

void JournalTest::DamagedJournals_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("rest");
    QTest::newRow("last line cut") << 0 << QByteArray("2026-05-22\tPeso\t\t72\n");
    QTest::newRow("garbled in the middle") << 1 << QByteArray("2026-05-23\tPeso\t\t73\n");
    QTest::newRow("head garbled") << 2 << QByteArray();
    QTest::newRow("zeros at the end") << 3 << QByteArray("2026-05-22\tPeso\t\t72\n2026-05-23\tPeso\t\t73\n");
    QTest::newRow("nothing but noise") << 4 << QByteArray();
}

void JournalTest::DamagedJournals()
{
    QFETCH(int, kind);
    QFETCH(QByteArray, rest);
    const ToolsDesk desk;
    {
        const Program program(desk);
        Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
        Program::Enter(kBlankDay + 1, [](RecordGiorno& day) { day.Peso = 73; });
    }
    const std::string file = Journals(desk).at(0).string();
    Text bytes = ReadWhole(file);
    const std::size_t second = bytes.find('\n') + 1;
    switch (kind) {
    case 0: bytes.pop_back(), bytes.pop_back(); break;
    case 1: bytes[second + 20] ^= 1; break;
    case 2: bytes[20] ^= 1; break;
    case 3: bytes += Text(4096, '\0'); break;
    default: bytes = Text(100'000, '\xff'); break;
    }
    WriteWhole(file, bytes);
    const Outcome outcome = desk.Run({"giornale", "--tsv"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, kHead + rest);
    QVERIFY2(outcome.err.startsWith("Del giornale "), outcome.err.constData());
    // The program goes on after it.
    EnterWeight(desk, kBlankDay + 2, 75);
    QCOMPARE(desk.Run({"giornale", "--tsv"}).out, kHead + rest + "2026-05-24\tPeso\t74\t75\n");
}

/// A process that may write so many bytes of a file is killed by the call that would go beyond. Another one goes on.
void JournalTest::KilledAtEachByte()
{
    const ToolsDesk desk;
    const QByteArray none(kHead);
    const QByteArray one = none + "2026-05-22\tPeso\t\t72\n";
    const QByteArray both = one + "2026-05-23\tPeso\t\t73\n";
    int reached = 0;
    for (rlim_t bytes = 1; bytes < 4000; bytes += 43) {
        fs::remove_all(desk.home.Native("stato"));
        const pid_t child = ::fork();
        if (child == 0) {
            const rlimit limit{bytes, bytes};
            std::signal(SIGXFSZ, SIG_DFL);
            ::setrlimit(RLIMIT_FSIZE, &limit);
            const Program program(desk);
            Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
            Program::Enter(kBlankDay + 1, [](RecordGiorno& day) { day.Peso = 73; });
            ::kill(::getpid(), SIGKILL);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        const int now =
            static_cast<int>(QList<QByteArray>{none, one, both}.indexOf(desk.Run({"giornale", "--tsv"}).out));
        QVERIFY(now >= reached);
        reached = now;
        EnterWeight(desk, kBlankDay + 2, 75);
        QVERIFY(desk.Run({"giornale", "--tsv"}).out.endsWith("2026-05-24\tPeso\t74\t75\n"));
    }
    QCOMPARE(reached, 2);
}

/// What does not fit is taken back, and nothing else is lost.
void JournalTest::FullAtEachByte()
{
    const ToolsDesk desk;
    std::signal(SIGXFSZ, SIG_IGN);
    int reached = 0;
    for (rlim_t bytes = 1; bytes < 4000; bytes += 43) {
        fs::remove_all(desk.home.Native("stato"));
        const rlimit limit{bytes, RLIM_INFINITY};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        {
            const Program program(desk);
            Program::Enter(kBlankDay, [](RecordGiorno& day) { day.Peso = 72; });
            Program::Enter(kBlankDay + 1, [](RecordGiorno& day) { day.Peso = 73; });
        }
        const rlimit all{RLIM_INFINITY, RLIM_INFINITY};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &all), 0);
        const Outcome outcome = desk.Run({"giornale", "--tsv"});
        QCOMPARE(outcome.err, QByteArray());
        const int now = static_cast<int>(outcome.out.count('\n')) - 1;
        QVERIFY(now >= reached);
        reached = now;
    }
    QCOMPARE(reached, 2);
}

void JournalTest::NoPlaceToWrite_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("a file in the place of the folder") << 0;
    QTest::newRow("no home") << 1;
    QTest::newRow("not writable") << 2;
    QTest::newRow("a full disk") << 3;
}

void JournalTest::NoPlaceToWrite()
{
    QFETCH(int, kind);
    const ToolsDesk desk;
    const std::string state = desk.home.Native("stato");
    if (kind == 0) {
        WriteWhole(state, "");
    } else if (kind == 1) {
        qunsetenv("XDG_STATE_HOME");
        qunsetenv("HOME");
    } else if (kind == 2) {
        // Where root may write everywhere, nobody writes here.
        qputenv("XDG_STATE_HOME", "/proc/sys");
    } else {
        fs::create_directories(state + "/zelvia/giornale");
        const rlimit none{0, RLIM_INFINITY};
        std::signal(SIGXFSZ, SIG_IGN);
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &none), 0);
    }
    const BoxTexts boxes;
    EnterWeight(desk, kBlankDay, 72);
    if (kind == 3) {
        const rlimit all{RLIM_INFINITY, RLIM_INFINITY};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &all), 0);
    }
    QCOMPARE(boxes.All().size(), std::size_t(0));
    QCOMPARE(Giorni[kBlankDay].Peso, i16(72));
    QVERIFY(!FindUnsaved(desk.Native()));
}

void JournalTest::LinksAreNotFollowed()
{
    const ToolsDesk desk;
    EnterWeight(desk, kBlankDay, 72);
    const fs::path journal = Journals(desk).at(0);
    const std::string target = desk.home.Native("altrove");
    for (const bool hard : {false, true}) {
        WriteWhole(target, "");
        fs::remove(journal);
        hard ? fs::create_hard_link(target, journal) : fs::create_symlink(target, journal);
        EnterWeight(desk, kBlankDay, 72);
        QCOMPARE(ReadWhole(target), Text());
    }
    fs::remove_all(journal.parent_path());
    fs::create_directories(desk.home.Native("cartella"));
    fs::create_directory_symlink(desk.home.Native("cartella"), journal.parent_path());
    EnterWeight(desk, kBlankDay, 72);
    QVERIFY(fs::is_empty(desk.home.Native("cartella")));
}

void JournalTest::IsTheOwnersAlone()
{
    const ToolsDesk desk;
    const mode_t mask = ::umask(0);
    EnterWeight(desk, kBlankDay, 72);
    ::umask(mask);
    const fs::path journal = Journals(desk).at(0);
    QCOMPARE(fs::status(journal).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    QCOMPARE(fs::status(journal.parent_path()).permissions(), fs::perms::owner_all);
    QVERIFY(!fs::exists(desk.Native("zelvia")));
}

/// However often a day changes, the file stays below what is written here.
void JournalTest::IsBounded()
{
    const ToolsDesk desk;
    {
        const Program program(desk);
        Program::Enter(kBlankDay + 1, [](RecordGiorno& day) { day.Peso = 73; });
        for (int i = 1; i <= 600; ++i) {
            Program::Enter(kBlankDay, [i](RecordGiorno& day) { day.Note[3] = Text(2000, 'x') + std::to_string(i); });
            QVERIFY(fs::file_size(Journals(desk).at(0)) < 300'000);
        }
        QCOMPARE(Journals(desk).size(), std::size_t(1));
    }
    QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\tNote, riga 1\t\t") + QByteArray(2000, 'x') + "600\n" +
                               "2026-05-23\tPeso\t\t73\n");
}

void JournalTest::OfferedOnce()
{
    const ToolsDesk desk;
    QVERIFY(!FindUnsaved(desk.Native()));
    {
        const Program program(desk);
        Program::Enter(kBlankDay, [](RecordGiorno& day) {
            day.Percorso = "Parco";
            day.OraInizio = 18;
            day.MinutiInizio = 30;
        });
        EntriesOf(SelectionList::Tipo).push_back("Staffetta");
        Program::Look();
        // Not while the program runs.
        QVERIFY(!FindUnsaved(desk.Native()));
    }
    const auto found = FindUnsaved(desk.Native());
    QVERIFY(found);
    QCOMPARE(Bytes(found->sentence),
             QByteArray("L'ultima volta non è stato salvato tutto ciò che era stato scritto nel diario:\n"
                        "venerdì 22 maggio 2026: Percorso, Ora Inizio\n"
                        "lista Tipo"));
    QCOMPARE(found->pieces.size(), std::size_t(2));
    QCOMPARE(Bytes(found->pieces[0].word), QByteArray("2026-05-22"));
    QCOMPARE(Bytes(found->pieces[1].word), QByteArray("liste"));
    RememberOffered(desk.Native());
    QVERIFY(!FindUnsaved(desk.Native()));
    QVERIFY(Listed(desk).contains("Percorso"));
    EnterWeight(desk, kBlankDay + 1, 73);
    QVERIFY(FindUnsaved(desk.Native()));
}

/// The order of the lines counts, no clock does.
void JournalTest::ClockSetBack()
{
    const ToolsDesk desk;
    EnterWeight(desk, kBlankDay, 72);
    fs::last_write_time(Journals(desk).at(0), fs::file_time_type::clock::now() + std::chrono::hours(24 * 365));
    SetClock([] { return CalendarDate(2001, 1, 1); });
    EnterWeight(desk, kBlankDay, 73);
    SetClock({});
    QCOMPARE(Listed(desk), kHead + QByteArray("2026-05-22\tPeso\t\t73\n"));
}

void JournalTest::InUse()
{
    const ToolsDesk desk;
    EnterWeight(desk, kBlankDay, 72);
    const int file = ::open(Journals(desk).at(0).c_str(), O_RDWR | O_CLOEXEC);
    QCOMPARE(::flock(file, LOCK_EX), 0);
    const Outcome outcome = desk.Run({"giornale"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains("il giornale è aperto"));
    ::close(file);
}

void JournalTest::WrongWords_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::newRow("another verb") << QByteArrayList{"mostra"};
    QTest::newRow("forget a day") << QByteArrayList{"dimentica", "2026-05-22"};
    QTest::newRow("no such day") << QByteArrayList{"riprendi", "2026-02-30"};
    QTest::newRow("no day") << QByteArrayList{"riprendi", "ieri"};
}

void JournalTest::WrongWords()
{
    QFETCH(QByteArrayList, words);
    const ToolsDesk desk;
    std::vector<std::string> all{"giornale"};
    for (const QByteArray& word : words) {
        all.push_back(word.toStdString());
    }
    QCOMPARE(desk.Run(all).status, 2);
}

/// What a commit costs where the user waits; on a busy machine the smallest of many counts.
void JournalTest::CostsLittle()
{
    using Clock = std::chrono::steady_clock;
    const ToolsDesk desk;
    auto commit = Clock::duration::max();
    auto opening = Clock::duration::max();
    {
        const Program program(desk);
        for (int i = 0; i < 20; ++i) {
            const auto start = Clock::now();
            Journal::Instance().Opened();
            opening = std::min(opening, Clock::now() - start);
        }
        for (int slot = 2; slot <= 366; ++slot) {
            GiornoCorrente = slot;
            Program::Look();
            Giorni[slot].Note[3] = "n";
            const auto start = Clock::now();
            Program::Look();
            commit = std::min(commit, Clock::now() - start);
        }
    }
    const auto finding = [&desk] {
        auto least = Clock::duration::max();
        for (int i = 0; i < 20; ++i) {
            const auto start = Clock::now();
            FindUnsaved(desk.Native());
            least = std::min(least, Clock::now() - start);
        }
        return least;
    };
    const auto year = finding();
    QCOMPARE(desk.Run({"giornale", "dimentica", "--si"}).status, 0);
    const auto none = finding();
    EnterWeight(desk, kBlankDay, 72);
    const auto day = finding();
    const auto microseconds = [](auto time) {
        return static_cast<int>(std::chrono::duration_cast<std::chrono::microseconds>(time).count());
    };
    qInfo("an opened diary: %d us, a commit: %d us; finding nothing: %d us, a day: %d us, a year: %d us",
          microseconds(opening), microseconds(commit), microseconds(none), microseconds(day), microseconds(year));
    QVERIFY(commit < std::chrono::milliseconds(1));
}

ZELVIA_TEST(JournalTest)
#include "JournalTest.moc"
