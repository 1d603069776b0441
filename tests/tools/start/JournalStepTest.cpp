// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/start/StartDesk.h"

#include <QProcess>
#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class JournalStepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { desk_.reset(); }

    void NothingIsAskedWithoutAJournal();
    void AllIsBroughtBack();
    void DayByDay();
    void IsForgotten();
    void Later_data();
    void Later();

private:
    /// The weight of 22 May as the diary has it.
    QByteArray Weight() const
    {
        return DiaryBytes(Bytes(desk_->Read("ZelviaFile/prova.zlv"))).Line(142, DiaryBytes::Weight);
    }
    QByteArray Types() const { return Bytes(desk_->Read("prova/Tipo.lsx")); }
    QByteArray Listed() const { return desk_->Run({"giornale", "--tsv"}).out; }

    std::unique_ptr<StartDesk> desk_;
    QByteArray weight_;
    QByteArray types_;
};

namespace
{

const QString kButtons = QStringLiteral("|Riprendi tutto|Giorno per giorno…|Dimentica|Più tardi");

} // namespace

/// A journal in which the weight of day 142 has become 99, and the list of the types has lost its last entry.
void JournalStepTest::init()
{
    desk_ = std::make_unique<StartDesk>();
    weight_ = Weight();
    types_ = Types();
    QVERIFY(weight_ != "99");
    QCOMPARE(QProcess::execute(QStringLiteral("python3"),
                               {QStringLiteral(ZELVIA_SOURCE_DIR "/tests/scripts/journal.py"),
                                QString::fromStdString(desk_->home.Native("stato/zelvia/giornale")),
                                QString::fromStdString(desk_->Native()), QStringLiteral("142")}),
             0);
}

void JournalStepTest::NothingIsAskedWithoutAJournal()
{
    std::filesystem::remove_all(desk_->home.Native("stato"));
    desk_->Open();
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList());
}

void JournalStepTest::AllIsBroughtBack()
{
    desk_->Open({QStringLiteral("Riprendi tutto")});
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said.size(), 1);
    QVERIFY2(desk_->said[0].endsWith(kButtons), qPrintable(desk_->said[0]));
    QVERIFY2(desk_->said[0].contains(QStringLiteral("22 maggio 2026")), qPrintable(desk_->said[0]));
    QCOMPARE(Weight(), QByteArray("99"));
    QVERIFY(types_.startsWith(Types()) && Types().size() < types_.size());
    desk_->Open();
    QCOMPARE(desk_->said, QStringList());
}

void JournalStepTest::DayByDay()
{
    desk_->Open({QStringLiteral("Giorno per giorno…"), QStringLiteral("Riprendi"), QStringLiteral("Lascia")});
    QCOMPARE(desk_->said.size(), 3);
    QVERIFY2(desk_->said[1].endsWith(QStringLiteral("|Riprendi|Lascia")), qPrintable(desk_->said[1]));
    QVERIFY(desk_->said[1].contains(QStringLiteral("22 maggio 2026")));
    QCOMPARE(Weight(), QByteArray("99"));
    QCOMPARE(Types(), types_);
    QVERIFY(Listed().count('\n') > 1);
}

void JournalStepTest::IsForgotten()
{
    desk_->Open({QStringLiteral("Dimentica")});
    QCOMPARE(desk_->said.size(), 1);
    QCOMPARE(Weight(), weight_);
    QCOMPARE(Types(), types_);
    QCOMPARE(Listed().count('\n'), 1);
}

void JournalStepTest::Later_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addRow("pressed") << "Più tardi";
    QTest::addRow("closed") << "";
}

void JournalStepTest::Later()
{
    QFETCH(QString, answer);
    desk_->Open({answer});
    QCOMPARE(desk_->said.size(), 1);
    QCOMPARE(Weight(), weight_);
    QVERIFY(Listed().count('\n') > 1);
    desk_->Open();
    QVERIFY(desk_->opens);
    QCOMPARE(desk_->said, QStringList());
}

ZELVIA_TEST(JournalStepTest)

#include "JournalStepTest.moc"
