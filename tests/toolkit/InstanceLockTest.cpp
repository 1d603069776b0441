// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One run of the program at a time; each run here is a process of its own.
#include "core/Files.h"
#include "support/WindowTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSocketNotifier>
#include <QSysInfo>
#include <QTemporaryDir>

#include <chrono>
#include <csignal>
#include <iostream>
#include <memory>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace zelvia;

namespace
{

constexpr const char* kRoutine = "run-in";

/// One run of the program: prints whether it may go on, then each request for its window, and stays
/// until it is asked to end.
int RunIn(const char* folder)
{
    SetProgramFolder(SystemPath(folder));
    Application& application = Application::Instance();
    application.ShowAgain = [] {
        std::cout << "asked" << qgetenv("XDG_ACTIVATION_TOKEN").prepend(' ').constData() << std::endl;
    };
    const bool taken = application.TakeInstanceLock();
    std::cout << (taken ? "taken" : "held") << std::endl;
    if (!taken) {
        return 0;
    }
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    return QCoreApplication::exec();
}

const test::TestRoutine runIn(kRoutine, [](int argc, char* argv[]) {
    const Application application(argc, argv);
    return RunIn(argv[1]);
});

class Run : public QProcess
{
public:
    explicit Run(const QString& folder, const QString& token = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), token);
        setProcessEnvironment(environment);
        start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kRoutine), folder});
    }
    ~Run() override { End(); }

    /// The next line that the run said.
    QByteArray Answer(int patience = 30000)
    {
        while (!canReadLine() && waitForReadyRead(patience)) {
        }
        return readLine().trimmed();
    }

    void End()
    {
        closeWriteChannel();
        waitForFinished();
    }

    void Crash()
    {
        kill();
        waitForFinished();
    }
};

} // namespace

class InstanceLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ASecondRunIsRefused();
    void ASecondRunAsksForTheWindow();
    void TheTokenOfASecondRunComesAlong_data();
    void TheTokenOfASecondRunComesAlong();
    void ManyRunsAtOnce();
    void ARunThatDoesNotAnswer();
    void TheSameFolderThroughALink();
    void ALookAtTheLock();
    void WhatStandsInPlaceOfTheLock_data();
    void WhatStandsInPlaceOfTheLock();
    void AnothersLockFile();
    void ItsChildrenDoNotHoldTheLock();
    void RunsInOtherFoldersAreFree();
    void TheLockIsFreeAfterTheRun();
    void ACrashedRunsLockIsRetaken();
    void AnOldLockOfALivingRunHolds();
    void AFolderThatTakesNoFileDoesNotStopTheStart();

private:
    QString Lock() const;

    std::unique_ptr<QTemporaryDir> folder_;
};

void InstanceLockTest::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
}

QString InstanceLockTest::Lock() const
{
    return folder_->filePath(QStringLiteral(".zelvia.lock"));
}

void InstanceLockTest::ASecondRunIsRefused()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    QVERIFY(QFile::exists(Lock()));
    Run second(folder_->path());
    QCOMPARE(second.Answer(), QByteArray("held"));
    QVERIFY(second.waitForFinished());
    QCOMPARE(second.exitCode(), 0);
}

void InstanceLockTest::ASecondRunAsksForTheWindow()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    for (int i = 0; i < 3; ++i) {
        Run second(folder_->path());
        QCOMPARE(second.Answer(), QByteArray("held"));
        QCOMPARE(first.Answer(), QByteArray("asked"));
    }
}

void InstanceLockTest::TheTokenOfASecondRunComesAlong_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("one") << QStringLiteral("gettone-1") << QByteArray("asked gettone-1");
    QTest::newRow("too long") << QString(2000, QLatin1Char('g')) << QByteArray("asked");
}

/// Each counts once: the next run, which has none, does not come with the one before.
void InstanceLockTest::TheTokenOfASecondRunComesAlong()
{
    QFETCH(const QString, token);
    QFETCH(const QByteArray, answer);
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    Run second(folder_->path(), token);
    QCOMPARE(second.Answer(), QByteArray("held"));
    QCOMPARE(first.Answer(), answer);
    Run third(folder_->path());
    QCOMPARE(third.Answer(), QByteArray("held"));
    QCOMPARE(first.Answer(), QByteArray("asked"));
}

/// One of them gets the lock, whoever it is, and all others end.
void InstanceLockTest::ManyRunsAtOnce()
{
    QByteArrayList answers;
    {
        std::vector<std::unique_ptr<Run>> runs;
        for (int i = 0; i < 6; ++i) {
            runs.push_back(std::make_unique<Run>(folder_->path()));
        }
        for (const auto& run : runs) {
            QByteArray answer = run->Answer();
            answers << answer;
        }
    }
    QCOMPARE(answers.count("taken"), 1);
    QCOMPARE(answers.count("held"), 5);
}

/// A stopped run reads nothing; the second is not kept waiting, however often it is started.
void InstanceLockTest::ARunThatDoesNotAnswer()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    SetProgramFolder(SystemPath(folder_->path().toStdString()));
    QCOMPARE(::kill(static_cast<pid_t>(first.processId()), SIGSTOP), 0);
    for (int i = 0; i < 2000; ++i) {
        QVERIFY(!Application::Instance().TakeInstanceLock());
    }
    QCOMPARE(::kill(static_cast<pid_t>(first.processId()), SIGCONT), 0);
    QCOMPARE(first.Answer(), QByteArray("asked"));
    first.End();
    QCOMPARE(first.exitStatus(), QProcess::NormalExit);
    QCOMPARE(first.exitCode(), 0);
}

void InstanceLockTest::TheSameFolderThroughALink()
{
    const QTemporaryDir other;
    const QString link = other.filePath(QStringLiteral("legame"));
    QVERIFY(QFile::link(folder_->path(), link));
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    Run second(link);
    QCOMPARE(second.Answer(), QByteArray("held"));
    QCOMPARE(first.Answer(), QByteArray("asked"));
}

/// A program that checks whether the diary is open holds the lock for a moment, which must not end a start.
void InstanceLockTest::ALookAtTheLock()
{
    QFile lock(Lock());
    QVERIFY(lock.open(QIODevice::WriteOnly));
    QCOMPARE(::flock(lock.handle(), LOCK_SH), 0);
    std::thread end([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        ::flock(lock.handle(), LOCK_UN);
    });
    SetProgramFolder(SystemPath(folder_->path().toStdString()));
    const bool taken = Application::Instance().TakeInstanceLock();
    end.join();
    Application::Instance().ReleaseInstanceLock();
    QVERIFY(taken);
}

void InstanceLockTest::WhatStandsInPlaceOfTheLock_data()
{
    QTest::addColumn<QByteArray>("bytes"); // "|" and a kind mean something other than a file.
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbled") << QByteArray("\0\xff\n\0", 4);
    // What earlier versions wrote: the process, the program and the machine.
    QTest::newRow("a process that is gone") << QByteArray("999999999\nzelvia\nmacchina\n");
    QTest::newRow("another program's process") << QByteArray::number(QCoreApplication::applicationPid()) + "\nzelvia\n";
    QTest::newRow("a process of this name")
        << QByteArray::number(QCoreApplication::applicationPid()) + '\n' +
               QFileInfo(QCoreApplication::applicationFilePath()).fileName().toUtf8() + '\n' +
               QSysInfo::machineHostName().toUtf8() + '\n';
    QTest::newRow("another machine's") << QByteArray("1\nzelvia\naltrove\n\n\n");
    QTest::newRow("a folder") << QByteArray("|folder");
    QTest::newRow("links in a circle") << QByteArray("|circle");
    QTest::newRow("a link that leads nowhere") << QByteArray("|nowhere");
    QTest::newRow("a pipe") << QByteArray("|pipe");
    QTest::newRow("a file without rights") << QByteArray("|rights");
}

namespace
{

void Lay(const QString& path, const QByteArray& bytes)
{
    const std::string name = path.toStdString();
    if (bytes == "|folder") {
        QVERIFY(QDir().mkdir(path));
    } else if (bytes == "|circle") {
        QCOMPARE(::symlink(".zelvia.lock", name.c_str()), 0);
    } else if (bytes == "|nowhere") {
        QCOMPARE(::symlink("manca/manca", name.c_str()), 0);
    } else if (bytes == "|pipe") {
        QCOMPARE(::mkfifo(name.c_str(), 0600), 0);
    } else {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        if (bytes == "|rights") {
            QVERIFY(file.setPermissions({}));
        }
    }
}

} // namespace

/// None keeps the program from starting, and where it can be locked it does its work.
void InstanceLockTest::WhatStandsInPlaceOfTheLock()
{
    QFETCH(QByteArray, bytes);
    Lay(Lock(), bytes);
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    const bool linked = bytes == "|circle" || bytes == "|nowhere";
    if (!linked && bytes != "|rights") {
        Run second(folder_->path());
        QCOMPARE(second.Answer(), QByteArray("held"));
        QCOMPARE(first.Answer(), QByteArray("asked"));
    }
    first.End();
    if (!bytes.startsWith('|')) {
        QFile file(Lock());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), bytes);
    }
    Run third(folder_->path());
    QCOMPARE(third.Answer(), QByteArray("taken"));
}

/// A file that belongs to somebody else and may only be read can be locked.
void InstanceLockTest::AnothersLockFile()
{
    Lay(Lock(), "1\n");
    QVERIFY(QFile::setPermissions(Lock(), QFileDevice::ReadOwner | QFileDevice::ReadOther));
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    Run second(folder_->path());
    QCOMPARE(second.Answer(), QByteArray("held"));
}

/// What the program starts may outlive it.
void InstanceLockTest::ItsChildrenDoNotHoldTheLock()
{
    SetProgramFolder(SystemPath(folder_->path().toStdString()));
    QVERIFY(Application::Instance().TakeInstanceLock());
    QProcess child;
    child.start(QStringLiteral("cat"), {});
    QVERIFY(child.waitForStarted());
    Application::Instance().ReleaseInstanceLock();
    Run next(folder_->path());
    QCOMPARE(next.Answer(), QByteArray("taken"));
    child.closeWriteChannel();
    QVERIFY(child.waitForFinished());
}

void InstanceLockTest::RunsInOtherFoldersAreFree()
{
    const QTemporaryDir other;
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    Run second(other.path());
    QCOMPARE(second.Answer(), QByteArray("taken"));
}

void InstanceLockTest::TheLockIsFreeAfterTheRun()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    first.End();
    QVERIFY(QFile::exists(Lock()));
    Run second(folder_->path());
    QCOMPARE(second.Answer(), QByteArray("taken"));
}

void InstanceLockTest::ACrashedRunsLockIsRetaken()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    first.Crash();
    QVERIFY(QFile::exists(Lock()));
    Run second(folder_->path());
    QCOMPARE(second.Answer(), QByteArray("taken"));
}

void InstanceLockTest::AnOldLockOfALivingRunHolds()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    QFile lock(Lock());
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-30), QFileDevice::FileModificationTime));
    lock.close();
    Run second(folder_->path());
    QCOMPARE(second.Answer(), QByteArray("held"));
}

void InstanceLockTest::AFolderThatTakesNoFileDoesNotStopTheStart()
{
    // Whoever runs this, no file can be made below a folder that is not there.
    Run run(folder_->filePath(QStringLiteral("assente")));
    QCOMPARE(run.Answer(), QByteArray("taken"));
}

ZELVIA_WINDOW_TEST(InstanceLockTest)

#include "InstanceLockTest.moc"
