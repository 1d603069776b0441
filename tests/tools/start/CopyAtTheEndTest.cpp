// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestProgram.h"
#include "tools/copies/CopiesCommand.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/SecondPlace.h"
#include "tools/start/StartDesk.h"

#include <QTest>

#include <filesystem>
#include <sstream>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class CopyAtTheEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        desk_ = std::make_unique<StartDesk>();
        desk_->home.MakeFolder("chiavetta");
    }
    void cleanup() { desk_.reset(); }

    void KeepsWhatHasChanged();
    void BringsTheNewestToTheSecondPlace();
    void AMissingPlaceIsSaidOnce();
    void AnotherReasonIsSaidToo();
    void AnOpenDiaryIsNotCopied();
    void TheFormIsThatOfTheFirst();
    void PlacesThatWillNotDo_data();
    void PlacesThatWillNotDo();
    void APlaceIsForgotten();
    void CopiesComeBackFromThere();

private:
    void Name() const { NameSecondPlace(desk_->home.Native("chiavetta")); }
    /// The copies in the second place, by their folders' names.
    QStringList There() const;
    void Change(const char* text) const { desk_->Write("prova/Tipo.lsx", "\"" + Text(text) + "\"\r\n"); }
    std::string Say(const std::vector<std::string>& words) const;

    std::unique_ptr<StartDesk> desk_;
};

namespace
{

const QString kFailed = QStringLiteral("La copia nel secondo posto non è riuscita: %1.\nLe copie di sempre ci sono "
                                       "tutte. Quella si farà da sé alla fine di "
                                       "Zelvia, quando sarà possibile; fino ad allora non verrà più detto.");

} // namespace

QStringList CopyAtTheEndTest::There() const
{
    QStringList names;
    for (const auto& entry : fs::directory_iterator(desk_->home.Native("chiavetta/Zelvia-copie"))) {
        if (entry.is_directory()) {
            names.push_back(QString::fromStdString(entry.path().filename().string()));
        }
    }
    names.sort();
    return names;
}

std::string CopyAtTheEndTest::Say(const std::vector<std::string>& words) const
{
    std::ostringstream out;
    CopiesRequest request;
    request.command = "zelvia-copie";
    request.folder = desk_->Native();
    request.words = words;
    RunCopies(request, out);
    return out.str();
}

void CopyAtTheEndTest::KeepsWhatHasChanged()
{
    desk_->End();
    desk_->End();
    QCOMPARE(desk_->Copies(), 1);
    Change("Lungo");
    desk_->End();
    QCOMPARE(desk_->Copies(), 2);
    QCOMPARE(desk_->said, QStringList());
    QVERIFY(!desk_->home.Has("chiavetta/Zelvia-copie"));
}

void CopyAtTheEndTest::BringsTheNewestToTheSecondPlace()
{
    desk_->End();
    Change("Lungo");
    desk_->End();
    Name();
    desk_->End();
    QCOMPARE(There().size(), 1);
    QVERIFY(There()[0].startsWith(QStringLiteral("000001_")));
    QCOMPARE(desk_->home.Read("chiavetta/Zelvia-copie/" + There()[0].toStdString() + "/prova/Tipo.lsx"),
             Text("\"Lungo\"\r\n"));
    desk_->End();
    QCOMPARE(There().size(), 1);
    Change("Corto");
    desk_->End();
    QCOMPARE(There().size(), 2);
    QCOMPARE(desk_->said, QStringList());
}

void CopyAtTheEndTest::AMissingPlaceIsSaidOnce()
{
    Name();
    const QString missing = QString::fromStdString("«" + desk_->home.Native("chiavetta/Zelvia-copie") +
                                                   "» non c'è: la chiavetta o la cartella è staccata");
    // The folder that another disk is to be mounted on stays as it is without that disk.
    fs::remove_all(desk_->home.Native("chiavetta/Zelvia-copie"));
    desk_->End();
    QCOMPARE(desk_->said, QStringList(kFailed.arg(missing)));
    desk_->End();
    QCOMPARE(desk_->said, QStringList());
    QVERIFY(fs::is_empty(desk_->home.Native("chiavetta")));
    QCOMPARE(desk_->Copies(), 1);
    // Plugged in again it gets its copy, and when it is missed once more that is said.
    fs::create_directory(desk_->home.Native("chiavetta/Zelvia-copie"));
    desk_->End();
    QCOMPARE(There().size(), 1);
    fs::remove_all(desk_->home.Native("chiavetta"));
    desk_->End();
    QCOMPARE(desk_->said, QStringList(kFailed.arg(missing)));
}

void CopyAtTheEndTest::AnotherReasonIsSaidToo()
{
    Name();
    fs::remove_all(desk_->home.Native("chiavetta/Zelvia-copie"));
    desk_->End();
    QCOMPARE(desk_->said.size(), 1);
    fs::create_symlink(desk_->home.Native(), desk_->home.Native("chiavetta/Zelvia-copie"));
    desk_->End();
    QCOMPARE(desk_->said,
             QStringList(kFailed.arg(QString::fromStdString("«" + desk_->home.Native("chiavetta/Zelvia-copie") +
                                                            "» è un collegamento, e non viene seguito"))));
}

void CopyAtTheEndTest::AnOpenDiaryIsNotCopied()
{
    const auto lock = desk_->Lock();
    desk_->End();
    QCOMPARE(desk_->said, QStringList());
    QCOMPARE(desk_->Copies(), 0);
}

void CopyAtTheEndTest::TheFormIsThatOfTheFirst()
{
    Name();
    desk_->End();
    const std::string name = There()[0].toStdString();
    const fs::path first = desk_->home.Native("stato/zelvia/copie/" + name);
    const fs::path second = desk_->home.Native("chiavetta/Zelvia-copie/" + name);
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(first)) {
        const fs::path there = second / entry.path().lexically_relative(first);
        QVERIFY(fs::exists(there));
        if (entry.is_regular_file()) {
            QCOMPARE(ReadWhole(there.string()), ReadWhole(entry.path().string()));
            ++files;
        }
    }
    QVERIFY(files > 10);
}

void CopyAtTheEndTest::PlacesThatWillNotDo_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("reason");
    QTest::addRow("no folder") << "manca"
                               << "la cartella «%1» non c'è: il secondo posto dev'esserci già";
    QTest::addRow("a file") << "Zelvia/nomeload"
                            << "la cartella «%1» non c'è: il secondo posto dev'esserci già";
    QTest::addRow("among the diaries") << "Zelvia/ZelviaFile"
                                       << "«%1» sta fra i diari: ogni copia conterrebbe quelle di prima; il secondo "
                                          "posto dev'essere un altro";
    QTest::addRow("the first place") << "stato/zelvia/copie"
                                     << "in «%1» stanno già le prime copie: il secondo posto dev'essere un altro";
}

void CopyAtTheEndTest::PlacesThatWillNotDo()
{
    QFETCH(QString, place);
    QFETCH(QString, reason);
    desk_->End();
    const std::string path = desk_->home.Native(place.toStdString());
    QString said;
    try {
        NameSecondPlace(path);
    } catch (const FileFailure& failure) {
        said = QString::fromUtf8(failure.what());
    }
    QCOMPARE(said, reason.arg(QString::fromStdString(path)));
    QVERIFY(SecondPlace().empty());
}

void CopyAtTheEndTest::APlaceIsForgotten()
{
    QCOMPARE(Say({"secondo-posto"}), std::string("Non c'è un secondo posto per le copie.\n"));
    const std::string place = desk_->home.Native("chiavetta");
    QCOMPARE(Say({"secondo-posto", place}), "Alla fine di Zelvia l'ultima copia va anche in «" + place + "».\n");
    QCOMPARE(Say({"secondo-posto"}), "Le copie vanno anche in «" + place + "».\n");
    desk_->End();
    QCOMPARE(Say({"secondo-posto", "--nessuno"}),
             std::string("Le copie non vanno più in un secondo posto; quelle che ci sono restano.\n"));
    Change("Lungo");
    desk_->End();
    QCOMPARE(There().size(), 1);
}

void CopyAtTheEndTest::CopiesComeBackFromThere()
{
    Name();
    desk_->End();
    fs::remove_all(desk_->home.Native("stato/zelvia/copie"));
    const std::string place = desk_->home.Native("chiavetta");
    QCOMPARE(Say({"elenco"}), std::string("Non ci sono copie.\n"));
    const std::string list = Say({"--da", place, "elenco"});
    QVERIFY(list.starts_with("    1  ") && list.ends_with(desk_->Native() + " (1 diario)\n"));
    QVERIFY(Say({"--da", place, "confronta", "1"}).ends_with("nessuna differenza.\n"));
    CopyStore store(CopiesIn(place));
    QCOMPARE(store.PutBack(store.Find(1).value(), desk_->home.Native("rimessa")), std::vector<std::string>());
    QCOMPARE(desk_->home.Read("rimessa/ZelviaFile/prova.zlv"), desk_->Read("ZelviaFile/prova.zlv"));
}

ZELVIA_TEST(CopyAtTheEndTest)

#include "CopyAtTheEndTest.moc"
