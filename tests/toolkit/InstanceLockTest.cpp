// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One run of the program at a time; each run here is a process of its own.
#include "core/Files.h"
#include "support/WindowTest.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <iostream>
#include <string>
#include <string_view>

using namespace zelvia;

namespace
{

constexpr const char* kOption = "--run-in";

/// One run of the program: tells whether it may go on, and stays until it is told to end.
int RunIn(const char* folder)
{
    SetProgramFolder(SystemPath(folder));
    std::cout << (Application::Instance().TakeInstanceLock() ? "taken" : "held") << std::endl;
    std::string line;
    std::getline(std::cin, line);
    return 0;
}

class Run : public QProcess
{
public:
    explicit Run(const QString& folder)
    {
        start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kOption), folder});
    }
    ~Run() override { End(); }

    /// What the run said of the lock.
    QByteArray Answer()
    {
        constexpr int patience = 10000;
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
    void RunsInOtherFoldersAreFree();
    void TheLockIsFreeAfterTheRun();
    void ACrashedRunsLockIsRetaken();
    void AnOldLockOfALivingRunHolds();
    void AFolderThatTakesNoFileDoesNotStopTheStart();

private:
    std::unique_ptr<QTemporaryDir> folder_;
};

void InstanceLockTest::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
}

void InstanceLockTest::ASecondRunIsRefused()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    QVERIFY(QFile::exists(folder_->filePath(QStringLiteral(".zelvia.lock"))));
    Run second(folder_->path());
    QCOMPARE(second.Answer(), QByteArray("held"));
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
    QVERIFY(!QFile::exists(folder_->filePath(QStringLiteral(".zelvia.lock"))));
    Run second(folder_->path());
    QCOMPARE(second.Answer(), QByteArray("taken"));
}

void InstanceLockTest::ACrashedRunsLockIsRetaken()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    first.Crash();
    QVERIFY(QFile::exists(folder_->filePath(QStringLiteral(".zelvia.lock"))));
    Run second(folder_->path());
    QCOMPARE(second.Answer(), QByteArray("taken"));
}

void InstanceLockTest::AnOldLockOfALivingRunHolds()
{
    Run first(folder_->path());
    QCOMPARE(first.Answer(), QByteArray("taken"));
    QFile lock(folder_->filePath(QStringLiteral(".zelvia.lock")));
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

int main(int argc, char* argv[])
{
    Application application(argc, argv);
    if (argc == 3 && std::string_view(argv[1]) == kOption) {
        return RunIn(argv[2]);
    }
    InstanceLockTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InstanceLockTest.moc"
