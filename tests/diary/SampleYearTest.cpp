// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/SelectionLists.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <filesystem>
#include <memory>

using namespace zelvia;
using namespace zelvia::test;

/// The sample year, read and rewritten: each file must be the same to the last byte.
class SampleYearTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void EveryFileHasItsTest();
    void Diary();
    void Lists_data();
    void Lists();
    void Routes();
    void Calendar();
    void Tables_data();
    void Tables();
    void TablePointer();

private:
    static std::string Sample(const std::string& name) { return ZELVIA_SOURCE_DIR "/share/demo/" + name; }
    void CheckSame(const std::string& name) const
    {
        QCOMPARE(Difference(folder_.Read(name), ReadWhole(Sample("prova/" + name))), QByteArray());
    }

    TempFolder folder_;
    std::unique_ptr<MessageScript> boxes_;
};

void SampleYearTest::init()
{
    boxes_ = std::make_unique<MessageScript>();
    ForgetDays();
    Module1::AzzeraPercorsi();
    Module1::AzzeraCalendario();
    Module1::AzzeraTabella();
    Module1::CartellaDiario = SystemPath(Sample("prova"));
}

void SampleYearTest::cleanup()
{
    QCOMPARE(boxes_->Shown(), 0);
    boxes_.reset();
}

/// So that a file added to the sample can't be forgotten here.
void SampleYearTest::EveryFileHasItsTest()
{
    QStringList names;
    for (const auto& entry : std::filesystem::directory_iterator(Sample("prova"))) {
        names.append(QString::fromStdString(entry.path().filename().string()));
    }
    names.sort();
    QCOMPARE(names.join(QLatin1Char(';')),
             QStringLiteral("Base 10 km.tab;CalendarioGare;Fondo.lsx;ListePercorso;Lunghezza.lsx;Mezza maratona.tab;"
                            "Modo.lsx;Percorso.lsx;Temperatura.lsx;TempoAtm.lsx;Tipo.lsx;nometab"));
}

void SampleYearTest::Diary()
{
    Module1::CaricaDiario(SystemPath(Sample("ZelviaFile/prova.zlv")));
    QVERIFY(Module1::Giorni[1].NumGiorno == 1);
    QVERIFY(Module1::Giorni[366].NumGiorno == 366);
    Module1::SalvaDiario(folder_.Path("prova.zlv"));
    QCOMPARE(Difference(folder_.Read("prova.zlv"), ReadWhole(Sample("ZelviaFile/prova.zlv"))), QByteArray());
}

void SampleYearTest::Lists_data()
{
    QTest::addColumn<int>("number");
    for (const SelectionList list : kFiledLists) {
        QTest::newRow(Bytes(ListName(list)).constData()) << static_cast<int>(list);
    }
}

void SampleYearTest::Lists()
{
    QFETCH(int, number);
    const auto list = static_cast<SelectionList>(number);
    std::vector<Text> entries;
    ReadEntries(ListPath(list), entries);
    QVERIFY(!entries.empty());
    Module1::CartellaDiario = folder_.Path();
    WriteEntries(ListPath(list), entries);
    CheckSame(std::string(ListName(list)) + ".lsx");
}

void SampleYearTest::Routes()
{
    Module1::CaricaPercorsi();
    QVERIFY(!Module1::NomiPercorso[1].empty());
    Module1::CartellaDiario = folder_.Path();
    Module1::SalvaPercorsi();
    CheckSame("ListePercorso");
}

void SampleYearTest::Calendar()
{
    Module1::LeggiCalendario();
    QVERIFY(Module1::GiornoGara[1] > 0);
    Module1::CartellaDiario = folder_.Path();
    Module1::ScriviCalendario();
    CheckSame("CalendarioGare");
}

void SampleYearTest::Tables_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("ten kilometres") << QByteArray("Base 10 km.tab");
    QTest::newRow("half marathon") << QByteArray("Mezza maratona.tab");
}

void SampleYearTest::Tables()
{
    QFETCH(QByteArray, name);
    Module1::LeggiTabella(Module1::CartellaDiario + "\\" + TextOf(name));
    QVERIFY(Module1::TabDataInizio != CalendarDate(2007, 1, 1));
    Module1::ScriviTabella(folder_.Path(name.toStdString()));
    CheckSame(name.toStdString());
}

void SampleYearTest::TablePointer()
{
    Module1::NomeTabellaAttiva = "prima";
    Module1::CaricaNomeTabella();
    QVERIFY(Module1::NomeTabellaAttiva.empty());
    Module1::CartellaDiario = folder_.Path();
    Module1::SalvaNomeTabella();
    CheckSame("nometab");
}

ZELVIA_TEST(SampleYearTest)
#include "SampleYearTest.moc"
