// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is loaded late: from the bytes that a program carries, from a file, or not at all. Once loaded it stays, so each
// case is a process of its own.
#include "core/RunTimeError.h"
#include "toolkit/LateParts.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTest>

#include <filesystem>
#include <iostream>
#include <iterator>

using namespace zelvia;

namespace
{

auto OpenDescriptors()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
}

/// The number of the error that loading raises, 0 for none.
int ErrorOfLoading()
{
    int number = 0;
    TrapWith([] { (void)Late(); }, [&](const ErroreRunTime& error) { number = error.Number(); });
    return number;
}

/// Whether a chart leaves a mark on white paper.
bool Draws()
{
    QImage paper(600, 400, QImage::Format_RGB32);
    paper.fill(Qt::white);
    const QImage blank = paper;
    ChartData chart;
    chart.TitleText = "Lungofiume";
    QPainter painter(&paper);
    Late().DrawChart(painter, QRectF(0, 0, 600, 400), chart);
    painter.end();
    return paper != blank;
}

/// Loads from the image named, or from the module's file for "-", and tells what came of it.
int LoadFrom(const QString& image)
{
    static QByteArray bytes;
    if (image != QLatin1String("-")) {
        QFile file(image);
        bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        SetLateImage(std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size()))));
    }
    const auto before = OpenDescriptors();
    const int error = ErrorOfLoading();
    const auto left = OpenDescriptors() - before;
    std::cout << error << ' ' << left << ' ' << (error == 0 && Draws()) << ' ' << (error == ErrorOfLoading()) << '\n';
    return 0;
}

} // namespace

class LateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItComesFromWhereItIs_data();
    void ItComesFromWhereItIs();
};

void LateTest::ItComesFromWhereItIs_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<QByteArray>("told"); ///< Error, descriptors left open, whether it draws, the same once more.

    QTest::newRow("the file beside the libraries") << QStringLiteral("-") << QByteArray("0 0 1 1\n");
    QTest::newRow("the bytes of the module") << QStringLiteral(ZELVIA_LATE_FILE) << QByteArray("0 0 1 1\n");
    QTest::newRow("bytes that are no module")
        << QStringLiteral(ZELVIA_SOURCE_DIR "/LICENSE") << QByteArray("53 0 0 1\n");
    QTest::newRow("a module without the parts") << QStringLiteral(ZELVIA_EMPTY_MODULE) << QByteArray("53 0 0 1\n");
}

void LateTest::ItComesFromWhereItIs()
{
    QFETCH(QString, image);
    QProcess run;
    run.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--load"), image});
    QVERIFY(run.waitForFinished());
    QTEST(run.readAllStandardOutput(), "told");
    QCOMPARE(run.exitCode(), 0);
}

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    if (argc == 3) {
        return LoadFrom(QString::fromLocal8Bit(argv[2]));
    }
    LateTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LateTest.moc"
