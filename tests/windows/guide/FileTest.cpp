// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Which files are taken for the guide, and what the guide leaves on the disk.
#include "core/RunTimeError.h"
#include "support/TempFolder.h"
#include "support/WindowTest.h"
#include "toolkit/QtText.h"
#include "windows/guide/HelpFile.h"
#include "windows/guide/HelpViewer.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace zelvia::test
{
namespace
{

/// What opening a file as the guide raises, as "number description"; empty when it opens.
QString Refusal(const QString& path)
{
    QString refusal;
    TrapWith([&] { const HelpFile file(path); },
             [&](const ErroreRunTime& error) {
                 refusal = QString::number(error.Number()) + QLatin1Char(' ') + ToQString(error.Description());
             });
    return refusal;
}

const QString kDamaged = QStringLiteral("51 Il file della Guida è danneggiato");

void Execute(const QString& path, const QString& statement)
{
    const QString connection = QStringLiteral("FileTest");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        QVERIFY(database.open());
        QSqlQuery query(database);
        QVERIFY2(query.exec(statement), qPrintable(statement));
        QVERIFY(query.numRowsAffected() != 0 || statement.startsWith(QLatin1String("DROP")));
    }
    QSqlDatabase::removeDatabase(connection);
}

} // namespace

class FileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void guide();
    void damagedBytes_data();
    void damagedBytes();
    void damagedTables_data();
    void damagedTables();
    void damageAnywhere();
    void temporaryFolder();
    void noTemporaryFolder();
    void openedAgainWhenItChanges();

private:
    QString Copy() const;

    std::unique_ptr<TempFolder> folder_; ///< Holds what the guide writes, and nothing else.
    std::unique_ptr<TempFolder> files_;
};

void FileTest::init()
{
    qputenv("TMPDIR", "/tmp");
    folder_ = std::make_unique<TempFolder>();
    files_ = std::make_unique<TempFolder>();
    qputenv("TMPDIR", folder_->Native().c_str());
}

QString FileTest::Copy() const
{
    const QString path = QString::fromStdString(files_->Native("Guida.hlp"));
    QFile::remove(path);
    if (!QFile::copy(QStringLiteral(ZELVIA_GUIDE), path)) {
        qFatal("cannot copy %s", ZELVIA_GUIDE);
    }
    return path;
}

void FileTest::guide()
{
    const HelpFile file(Copy());
    QVERIFY(file.Data(HelpFile::FirstPage()).contains("<title>Guida di Zelvia</title>"));
    QVERIFY(file.Data(HelpFile::FirstPage().resolved(QUrl(QStringLiteral("pagina.png")))).startsWith("\x89PNG"));
    QVERIFY(file.Data(HelpFile::FirstPage().resolved(QUrl(QStringLiteral("manca.html")))).isEmpty());
    QCOMPARE(file.Topic(QStringLiteral("mnuFileSaveAs")).toString(),
             QStringLiteral("qthelp://zelvia.guida/guida/file.html#salvaconnome"));
    QCOMPARE(file.Topic(QStringLiteral("frmNessuna")), HelpFile::FirstPage());
}

void FileTest::damagedBytes_data()
{
    QTest::addColumn<int>("kept"); // Thousandths of the file.
    QTest::addColumn<QByteArray>("tail");
    QTest::newRow("empty") << 0 << QByteArray();
    QTest::newRow("text") << 0 << QByteArray("Non sono una guida");
    QTest::newRow("the mark alone") << 0 << QByteArray("SQLite format 3\0", 16);
    QTest::newRow("the mark and zeros") << 0 << QByteArray("SQLite format 3\0", 16) + QByteArray(8192, '\0');
    QTest::newRow("cut early") << 100 << QByteArray();
    QTest::newRow("cut in the middle") << 500 << QByteArray();
    QTest::newRow("cut near the end") << 950 << QByteArray();
}

void FileTest::damagedBytes()
{
    QFETCH(int, kept);
    QFETCH(QByteArray, tail);
    const QString path = Copy();
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.read(file.size() * kept / 1000) + tail;
    file.close();
    files_->Write("Guida.hlp", std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    QCOMPARE(Refusal(path), kDamaged);
}

void FileTest::damagedTables_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("another guide") << "UPDATE NamespaceTable SET Name = 'altra.guida'";
    QTest::newRow("no name") << "DELETE FROM NamespaceTable";
    QTest::newRow("no first page") << "DELETE FROM FileNameTable WHERE Name = 'index.html'";
    QTest::newRow("a page cut") << "UPDATE FileDataTable SET Data = substr(Data, 1, length(Data) / 2) WHERE Id = 3";
    QTest::newRow("a page emptied") << "UPDATE FileDataTable SET Data = '' WHERE Id = 4";
    QTest::newRow("no pages") << "DELETE FROM FileDataTable";
    QTest::newRow("another database") << "DROP TABLE FileDataTable";
}

void FileTest::damagedTables()
{
    QFETCH(QString, statement);
    const QString path = Copy();
    Execute(path, statement);
    if (QTest::currentTestFailed()) {
        return;
    }
    QCOMPARE(Refusal(path), kDamaged);
}

// Zeros over any stretch are noticed, or are in the titles of the contents or where nothing is read.
void FileTest::damageAnywhere()
{
    constexpr int places = 24;
    constexpr int stretch = 2000;
    const QByteArray zeros(stretch, '\0');
    int noticed = 0;
    for (int i = 0; i < places; ++i) {
        const QString path = Copy();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek((file.size() - stretch) * i / (places - 1)));
        QCOMPARE(file.write(zeros), stretch);
        file.close();
        const QString refusal = Refusal(path);
        QVERIFY2(refusal.isEmpty() || refusal == kDamaged, qPrintable(refusal));
        noticed += refusal.isEmpty() ? 0 : 1;
    }
    QVERIFY2(noticed >= places * 3 / 4, qPrintable(QString::number(noticed)));
}

void FileTest::temporaryFolder()
{
    const QDir folder(QString::fromStdString(folder_->Native()));
    {
        const HelpFile file(Copy());
        const QFileInfoList made = folder.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
        QCOMPARE(made.size(), 1);
        QVERIFY(made.first().fileName().startsWith(QLatin1String("zelvia-guida-")));
        constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                              QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(!(made.first().permissions() & others));
    }
    QVERIFY(folder.isEmpty());
    QCOMPARE(QDir(QString::fromStdString(files_->Native())).entryList(QDir::Files),
             QStringList{QStringLiteral("Guida.hlp")});

    // A refused file leaves nothing behind either.
    files_->Write("Guida.hlp", "guasta");
    QCOMPARE(Refusal(QString::fromStdString(files_->Native("Guida.hlp"))), kDamaged);
    QVERIFY(folder.isEmpty());
}

void FileTest::noTemporaryFolder()
{
    const QString path = Copy();
    // No folder can be made below a file.
    qputenv("TMPDIR", (files_->Native("Guida.hlp") + "/manca").c_str());
    QCOMPARE(Refusal(path), QStringLiteral("75 Errore di accesso al file o alla cartella"));
}

void FileTest::openedAgainWhenItChanges()
{
    Copy();
    HelpViewer viewer;
    viewer.WinHelp(files_->Path("Guida.hlp"), HelpCommand::Contents);
    files_->Write("Guida.hlp", "guasta");
    int number = 0;
    TrapWith([&] { viewer.WinHelp(files_->Path("Guida.hlp"), HelpCommand::Contents); },
             [&](const ErroreRunTime& error) { number = error.Number(); });
    QCOMPARE(number, Errore::Interno);
    QVERIFY(QFile::remove(QString::fromStdString(files_->Native("Guida.hlp"))));
    TrapWith([&] { viewer.WinHelp(files_->Path("Guida.hlp"), HelpCommand::Contents); },
             [&](const ErroreRunTime& error) { number = error.Number(); });
    QCOMPARE(number, Errore::FileNonTrovato);
    Copy();
    viewer.WinHelp(files_->Path("Guida.hlp"), HelpCommand::Search);
    viewer.Close();
    QVERIFY(QDir(QString::fromStdString(folder_->Native())).isEmpty());
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::FileTest)
#include "FileTest.moc"
