// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A monkey at the program: any window, any key, any time.
//   monkey [--seed N|today] [--actions N] [--seconds S] [--log FILE]
// The seed decides all that is done; the seconds only when it ends. A failing run prints its seed.
#include "monkey/Actions.h"
#include "monkey/Boxes.h"
#include "monkey/Desk.h"
#include "monkey/Invariants.h"
#include "toolkit/Application.h"

#include <QCommandLineParser>
#include <QDate>
#include <QElapsedTimer>
#include <QTest>

#include <cstdio>
#include <limits>

namespace zelvia::monkey
{
namespace
{

/// What Qt itself grumbled about first, other than what the display of the run can't do.
QString firstWarning;

void OnMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    const bool known = text.startsWith(QLatin1String("This plugin does not support")) ||
                       text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"));
    if (type == QtDebugMsg || type == QtInfoMsg || known) {
        return;
    }
    if (firstWarning.isEmpty()) {
        firstWarning = QStringLiteral("Qt warns: ") + text;
    }
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

constexpr int kPatience = 60; ///< Seconds that an action may last.

struct Settings {
    quint64 seed = 1;
    long actions = std::numeric_limits<long>::max();
    qint64 milliseconds = std::numeric_limits<qint64>::max();
    QString log;
};

void PrintTable(const char* head, const std::map<QByteArray, long>& counts)
{
    std::printf("%s\n", head);
    for (const auto& [name, count] : counts) {
        std::printf("  %7ld  %s\n", count, name.constData());
    }
}

} // namespace

class MonkeyTest : public QObject
{
    Q_OBJECT

public:
    explicit MonkeyTest(Settings settings) : settings_(std::move(settings)) {}

private Q_SLOTS:
    void plays();

private:
    void Report(const Actions& actions, const Desk& desk, const Boxes& boxes, const Invariants& invariants, long done,
                qint64 milliseconds) const;

    Settings settings_;
};

void MonkeyTest::plays()
{
    const QtMessageHandler previous = qInstallMessageHandler(OnMessage);
    Dice dice(settings_.seed);
    Trail trail(settings_.seed, kPatience, settings_.log);
    Desk desk;
    Boxes boxes(desk, dice, trail);
    Actions actions(desk, dice, trail, boxes);
    Invariants invariants(desk, boxes);
    trail.OnNote = [&invariants] { invariants.NoteDay(); };
    QElapsedTimer time;
    time.start();
    long number = 0;
    QString wrong;
    while (wrong.isEmpty() && number < settings_.actions && time.elapsed() < settings_.milliseconds) {
        trail.Begin(++number);
        desk.Forget();
        boxes.Forget();
        if (desk.Ended()) {
            trail.Note(QStringLiteral("start"));
            desk.Start();
        } else {
            actions.Run();
            desk.Settle();
        }
        wrong = boxes.Problem().isEmpty() ? firstWarning : boxes.Problem();
        if (wrong.isEmpty()) {
            wrong = invariants.Check(number);
        }
        if (!settings_.log.isEmpty()) {
            trail.Log(invariants.Digest() + ' ' + QByteArray::number(time.elapsed()));
        }
    }
    qInstallMessageHandler(previous);
    Report(actions, desk, boxes, invariants, number, time.elapsed());
    if (!wrong.isEmpty()) {
        // Qt Test would cut it short.
        std::printf("\nThe monkey fell: %s\n%s\n", qUtf8Printable(wrong), trail.Told().constData());
        std::fflush(stdout);
    }
    QVERIFY2(wrong.isEmpty(), qUtf8Printable(wrong));
}

void MonkeyTest::Report(const Actions& actions, const Desk& desk, const Boxes& boxes, const Invariants& invariants,
                        long done, qint64 milliseconds) const
{
    std::map<QByteArray, long> kinds;
    for (const Actions::Count& count : actions.Counts()) {
        kinds[count.name] = count.done;
    }
    PrintTable("Actions", kinds);
    PrintTable("Windows opened", desk.windowCounts);
    PrintTable("Commands carried out", desk.commandCounts);
    PrintTable("Boxes, dialogs and menus answered", boxes.counts);
    std::printf("seed %llu: %ld actions in %lld s, %.1f a second; %d starts, %ld sheets, %ld files compared\n",
                static_cast<unsigned long long>(settings_.seed), done, static_cast<long long>(milliseconds / 1000),
                1000.0 * static_cast<double>(done) / static_cast<double>(qMax<qint64>(milliseconds, 1)), desk.runs,
                desk.printed, invariants.Files().checked);
    std::fflush(stdout);
}

Settings SettingsOf(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption seed(QStringLiteral("seed"),
                                  QStringLiteral("What decides all actions: a number, or the date."),
                                  QStringLiteral("N|today"), QStringLiteral("1"));
    const QCommandLineOption count(QStringLiteral("actions"), QStringLiteral("How many at most."), QStringLiteral("N"));
    const QCommandLineOption seconds(QStringLiteral("seconds"), QStringLiteral("How long at most."),
                                     QStringLiteral("S"));
    const QCommandLineOption log(QStringLiteral("log"), QStringLiteral("Where each action and its outcome are noted."),
                                 QStringLiteral("FILE"));
    parser.addOptions({seed, count, seconds, log});
    parser.process(arguments);
    Settings settings;
    settings.seed = parser.value(seed) == QLatin1String("today")
                        ? QDate::currentDate().toString(QStringLiteral("yyyyMMdd")).toULongLong()
                        : parser.value(seed).toULongLong();
    settings.log = parser.value(log);
    if (parser.isSet(count)) {
        settings.actions = parser.value(count).toLong();
    }
    if (parser.isSet(seconds)) {
        settings.milliseconds = parser.value(seconds).toLongLong() * 1000;
    }
    return settings;
}

} // namespace zelvia::monkey

int main(int argc, char* argv[])
{
    // The order of Qt's own sets, and the time that a test may take.
    qputenv("QT_HASH_SEED", "0");
    qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000");
    zelvia::Application application(argc, argv);
    zelvia::Application::setQuitOnLastWindowClosed(false);
    // Nothing may hang on how fast the machine is.
    zelvia::Application::setKeyboardInputInterval(-1);
    zelvia::Application::setDoubleClickInterval(50);
    const zelvia::monkey::Settings settings = zelvia::monkey::SettingsOf(QCoreApplication::arguments());
    std::printf("monkey --seed %llu\n", static_cast<unsigned long long>(settings.seed));
    std::fflush(stdout);
    zelvia::monkey::MonkeyTest test(settings);
    return QTest::qExec(&test, {QCoreApplication::applicationFilePath()});
}

#include "Monkey.moc"
