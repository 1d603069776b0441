// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/SelectionLists.h"

#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <vector>

using namespace zelvia;
using namespace zelvia::test;

class SelectionListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EntriesAtStart_data();
    void EntriesAtStart();
    void FilesAndOrder();
    void WrittenForms_data();
    void WrittenForms();
    void WritingReplacesTheFile();
    void ReadingTakesWhatIsThere_data();
    void ReadingTakesWhatIsThere();
    void AMissingFileLeavesTheListAlone_data();
    void AMissingFileLeavesTheListAlone();
    void AnUnclosedQuoteKeepsTheEntriesBefore();
    void WritingFails();
};

namespace
{

/// The entries of a list that is read from a file.
struct ListRead {
    std::vector<Text> entries = {"prima"};

    int Read(TextView path)
    {
        return RaisedBy([&] { ReadEntries(path, entries); });
    }
};

QByteArrayList AsList(const std::vector<Text>& entries)
{
    QByteArrayList list;
    for (const Text& entry : entries) {
        list.append(Bytes(entry));
    }
    return list;
}

} // namespace

void SelectionListsTest::EntriesAtStart_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("entries"); // Parted by semicolons.
    QTest::newRow("route") << 1 << QByteArray("Percorso") << QByteArray();
    QTest::newRow("length") << 2 << QByteArray("Lunghezza")
                            << QByteArray("Cortissimo;Corto;Medio/Corto;Medio;Medio/Lungo;Lungo;Lunghissimo;"
                                          "Mezza Maratona;Maratona");
    QTest::newRow("pace") << 3 << QByteArray("Modo")
                          << QByteArray("Lentissima;Lenta;Media/Lenta;Media;Media/Veloce;Veloce;Fartlek");
    QTest::newRow("terrain") << 4 << QByteArray("Fondo")
                             << QByteArray("Strada;Strada/Salita;Strada/Sentiero;Strada/Sentiero/Salita;"
                                           "Pista Atletica;Sentiero;Sentiero/Salita;Sentiero di montagna;"
                                           "Spiaggia/Sabbia");
    QTest::newRow("type") << 5 << QByteArray("Tipo") << QByteArray("Allenamento;Gara");
    QTest::newRow("season") << 6 << QByteArray("Stagione") << QByteArray("Primavera;Estate;Autunno;Inverno");
    QTest::newRow("weather") << 7 << QByteArray("TempoAtm")
                             << QByteArray("Sole;Sole/Vento;Sole/Vento forte;Sole/Nuvoloso;Sole/Nuvoloso/Vento;"
                                           "Nuvoloso;Nuvoloso/Vento;Nuvoloso/Vento forte;Nuvoloso/Pioggia;"
                                           "Nuvoloso/Pioggia/Vento;Neve;Neve/Ghiaccio;Neve/Ghiaccio/Vento;Nebbia;"
                                           "Nebbia/Pioggia;Nebbia/Neve;Nebbia/Neve/Ghiaccio");
    QTest::newRow("temperature") << 8 << QByteArray("Temperatura")
                                 << QByteArray("Caldo;Molto Caldo;Afa;Mite;Freddo;Molto Freddo");
}

void SelectionListsTest::EntriesAtStart()
{
    QFETCH(int, number);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, entries);
    const auto list = static_cast<SelectionList>(number);
    QCOMPARE(Bytes(ListName(list)), name);
    QByteArrayList found;
    for (const TextView entry : FirstEntries(list)) {
        found.append(Bytes(entry));
    }
    QCOMPARE(found, entries.isEmpty() ? QByteArrayList() : entries.split(';'));
}

void SelectionListsTest::FilesAndOrder()
{
    Module1::CartellaDiario = R"(C:\X\prova)";
    QByteArrayList files;
    for (const SelectionList list : kFiledLists) {
        files.append(Bytes(ListPath(list)));
    }
    QCOMPARE(files, (QByteArrayList{R"(C:\X\prova\Percorso.lsx)", R"(C:\X\prova\Lunghezza.lsx)",
                                    R"(C:\X\prova\Modo.lsx)", R"(C:\X\prova\Fondo.lsx)", R"(C:\X\prova\Tipo.lsx)",
                                    R"(C:\X\prova\TempoAtm.lsx)", R"(C:\X\prova\Temperatura.lsx)"}));
    QCOMPARE(kAllLists.size(), std::size_t{8});
    for (std::size_t i = 0; i < kAllLists.size(); ++i) {
        QCOMPARE(static_cast<std::size_t>(kAllLists[i]), i + 1);
    }
    Module1::AzzeraStato();
}

void SelectionListsTest::WrittenForms_data()
{
    QTest::addColumn<QByteArrayList>("entries");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no entries, an empty file") << QByteArrayList() << QByteArray();
    QTest::newRow("two") << QByteArrayList{"Allenamento", "Gara"} << QByteArray("\"Allenamento\"\r\n\"Gara\"\r\n");
    QTest::newRow("comma and accents") << QByteArrayList{"Lago, giro lungo", "Citt\xE0 alta"}
                                       << QByteArray("\"Lago, giro lungo\"\r\n\"Citt\xE0 alta\"\r\n");
    QTest::newRow("doubles and an empty one")
        << QByteArrayList{"a", "a", ""} << QByteArray("\"a\"\r\n\"a\"\r\n\"\"\r\n");
}

void SelectionListsTest::WrittenForms()
{
    QFETCH(QByteArrayList, entries);
    QFETCH(QByteArray, bytes);
    const TempFolder folder;
    std::vector<Text> voci;
    for (const QByteArray& entry : entries) {
        voci.push_back(TextOf(entry));
    }
    WriteEntries(folder.Path("Tipo.lsx"), voci);
    QCOMPARE(Bytes(folder.Read("Tipo.lsx")), bytes);
    ListRead box;
    QCOMPARE(box.Read(folder.Path("Tipo.lsx")), 0);
    QCOMPARE(AsList(box.entries), entries);
}

void SelectionListsTest::WritingReplacesTheFile()
{
    const TempFolder folder;
    WriteEntries(folder.Path("Tipo.lsx"), {"Allenamento", "Gara", "Camminata"});
    WriteEntries(folder.Path("Tipo.lsx"), {"Gara"});
    QCOMPARE(Bytes(folder.Read("Tipo.lsx")), QByteArray("\"Gara\"\r\n"));
}

void SelectionListsTest::ReadingTakesWhatIsThere_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArrayList>("entries");
    QTest::newRow("LF ends") << QByteArray("\"a\"\n\"b\"\n") << QByteArrayList{"a", "b"};
    QTest::newRow("no last line end") << QByteArray("\"a\"\r\n\"b\"") << QByteArrayList{"a", "b"};
    QTest::newRow("doubles stay") << QByteArray("\"a\"\r\n\"A\"\r\n\"a\"\r\n") << QByteArrayList{"a", "A", "a"};
    QTest::newRow("blanks stay") << QByteArray("\" a \"\r\n") << QByteArrayList{" a "};
    QTest::newRow("without quotes") << QByteArray("a\r\nb\r\n") << QByteArrayList{"a", "b"};
    QTest::newRow("numbers are entries too")
        << QByteArray("7\r\n#2007-01-01#\r\n") << QByteArrayList{"7", "#2007-01-01#"};
    QTest::newRow("a quote inside parts the entry")
        << QByteArray("\"a\"b\"\r\n\"c\"\r\n") << QByteArrayList{"a", "b\"", "c"};
}

void SelectionListsTest::ReadingTakesWhatIsThere()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArrayList, entries);
    const TempFolder folder;
    folder.Write("Tipo.lsx", TextOf(bytes));
    ListRead box;
    QCOMPARE(box.Read(folder.Path("Tipo.lsx")), 0);
    QCOMPARE(AsList(box.entries), entries);
}

void SelectionListsTest::AMissingFileLeavesTheListAlone_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("missing file") << QByteArray("Tipo.lsx") << 53;
    QTest::newRow("missing folder") << QByteArray("manca/Tipo.lsx") << 76;
    QTest::newRow("a folder in its place") << QByteArray("cartella") << 75;
}

void SelectionListsTest::AMissingFileLeavesTheListAlone()
{
    QFETCH(QByteArray, name);
    QFETCH(int, error);
    const TempFolder folder;
    folder.MakeFolder("cartella");
    ListRead box;
    QCOMPARE(box.Read(folder.Path(name.toStdString())), error);
    QCOMPARE(AsList(box.entries), QByteArrayList{"prima"});
}

void SelectionListsTest::AnUnclosedQuoteKeepsTheEntriesBefore()
{
    const TempFolder folder;
    folder.Write("Tipo.lsx", "\"a\"\r\n\"b\r\n");
    ListRead box;
    QCOMPARE(box.Read(folder.Path("Tipo.lsx")), 62);
    QCOMPARE(AsList(box.entries), QByteArrayList{"a"});
}

void SelectionListsTest::WritingFails()
{
    const TempFolder folder;
    folder.MakeFolder("cartella");
    QCOMPARE(RaisedBy([&] { WriteEntries(folder.FullDisk(), {"a"}); }), 61);
    QCOMPARE(RaisedBy([&] { WriteEntries(folder.Path("cartella"), {"a"}); }), 75);
    QCOMPARE(RaisedBy([&] { WriteEntries(folder.Path("manca/x"), {"a"}); }), 76);
    QCOMPARE(RaisedBy([&] { WriteEntries("\\Tipo.lsx", {"a"}); }), 76);
}

ZELVIA_TEST(SelectionListsTest)
#include "SelectionListsTest.moc"
