// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintedPdf.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace zelvia::test
{
namespace
{

// The queue's own margin and the cells of the printer, in points.
constexpr double kMargin = 12;
constexpr double kCellWidth = 6;
constexpr double kCellHeight = 12;
constexpr double kPointsPerInch = 72;

QString JobsFolder()
{
    return qEnvironmentVariable("ZELVIA_PRINTED");
}

QByteArray Output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("%s: %s", qPrintable(program), process.readAllStandardError().constData());
    }
    return process.readAllStandardOutput();
}

QString Decoded(const Text& text)
{
    return QString::fromLatin1(QByteArray::fromStdString(text));
}

/// Dark dots along the straight way between two cells, as a share of all.
double Darkness(const QImage& page, double dotsPerInch, QPointF from, QPointF to)
{
    const auto dots = [&](QPointF cell) {
        return QPointF(kMargin + cell.x() * kCellWidth, kMargin + cell.y() * kCellHeight) * dotsPerInch /
               kPointsPerInch;
    };
    const QPointF begin = dots(from);
    const QPointF way = dots(to) - begin;
    constexpr int samples = 200;
    constexpr int halfDark = 160;
    int dark = 0;
    for (int i = 1; i < samples; ++i) {
        const QPoint dot = (begin + way * i / samples).toPoint();
        int lightest = 255;
        for (const QPoint beside : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(-1, 0), QPoint(0, -1)}) {
            lightest = std::min(lightest, qGray(page.pixel(dot + beside)));
        }
        dark += lightest < halfDark ? 1 : 0;
    }
    return static_cast<double>(dark) / (samples - 1);
}

} // namespace

int PrintedPdf::Jobs()
{
    return static_cast<int>(QDir(JobsFolder()).entryList({QStringLiteral("*.pdf")}).size());
}

PrintedPdf PrintedPdf::Next()
{
    static int last = 0;
    int next = 0;
    const auto came = [&] {
        const QStringList files = QDir(JobsFolder()).entryList({QStringLiteral("*.pdf")});
        for (const QString& file : files) {
            const int number = file.chopped(4).toInt();
            if (number > last && (next == 0 || number < next)) {
                next = number;
            }
        }
        return next != 0;
    };
    constexpr int patience = 20000;
    if (!QTest::qWaitFor(came, patience)) {
        qFatal("nothing was printed");
    }
    last = next;
    return PrintedPdf(JobsFolder() + QStringLiteral("/%1.pdf").arg(next));
}

PrintedPdf::PrintedPdf(QString path) : path_(std::move(path))
{
    QXmlStreamReader xml(Output(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path_, QStringLiteral("-")}));
    xml.setEntityExpansionLimit(0);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        const QXmlStreamAttributes attributes = xml.attributes();
        const auto number = [&](const char* name) { return attributes.value(QLatin1String(name)).toDouble(); };
        if (xml.name() == QLatin1String("page")) {
            pages_.append({QSizeF(number("width"), number("height")), {}});
        } else if (xml.name() == QLatin1String("word")) {
            const double left = number("xMin");
            const double right = number("xMax");
            const double top = number("yMin");
            pages_.last().words.append({left, right, top, xml.readElementText()});
        }
    }
    QFile job(path_.chopped(4) + QStringLiteral(".job"));
    if (!job.open(QIODevice::ReadOnly)) {
        qFatal("the job has no name");
    }
    const QStringList lines = QString::fromUtf8(job.readAll()).split(u'\n');
    job_ = lines.value(0);
    attributes_ = lines.value(1).split(u' ', Qt::SkipEmptyParts);
}

QByteArrayList PrintedPdf::Fonts() const
{
    QByteArrayList fonts;
    const QByteArrayList lines = Output(QStringLiteral("pdffonts"), {path_}).split('\n').mid(2);
    for (const QByteArray& line : lines) {
        const QByteArray name = line.left(line.indexOf(' '));
        if (!name.isEmpty()) {
            fonts << name.mid(name.indexOf('+') + 1);
        }
    }
    fonts.removeAll(QByteArray());
    std::sort(fonts.begin(), fonts.end());
    fonts.erase(std::unique(fonts.begin(), fonts.end()), fonts.end());
    return fonts;
}

QImage PrintedPdf::Picture(int page, int dotsPerInch) const
{
    const QTemporaryDir folder;
    const QString root = folder.filePath(QStringLiteral("page"));
    const QString number = QString::number(page + 1);
    Output(QStringLiteral("pdftoppm"),
           {QStringLiteral("-r"), QString::number(dotsPerInch), QStringLiteral("-f"), number, QStringLiteral("-l"),
            number, QStringLiteral("-gray"), QStringLiteral("-png"), QStringLiteral("-singlefile"), path_, root});
    return QImage(root + QStringLiteral(".png"));
}

QString PrintedPdf::TextFault(int page, const SheetText& text) const
{
    const QString shown = Decoded(text.text);
    const QString word = shown.simplified().section(QLatin1Char(' '), 0, 0);
    if (word.isEmpty()) {
        return {};
    }
    // Blanks in front take room; how much is the face's own matter.
    const auto blanks = static_cast<double>(shown.indexOf(word.at(0)));
    const double widest = 0.62 * text.font.size * blanks;
    const double narrowest = 0.2 * text.font.size * blanks;
    const double left = kMargin + text.x * kCellWidth;
    const double top = kMargin + text.y * kCellHeight;
    for (const PrintedWord& printed : pages_[page].words) {
        const double least = left + narrowest - kCellWidth / 4;
        const double most = left + widest + kCellWidth / 4;
        const bool begins = printed.text.startsWith(word) && printed.left > least && printed.left < most;
        // Texts that touch are read as one word.
        const bool within = printed.text.indexOf(word, 1) > 0 && printed.left < most && printed.right > least;
        if ((begins || within) && std::abs(printed.top - top) < kCellHeight / 4) {
            return {};
        }
    }
    return QStringLiteral("page %1: \"%2\" is not at %3,%4").arg(page + 1).arg(shown).arg(text.x).arg(text.y);
}

QString PrintedPdf::Faults(const Sheet& sheet) const
{
    constexpr int dotsPerInch = 144;
    constexpr double nearlyAll = 0.97;
    QStringList faults;
    int page = 0;
    QImage picture = Picture(page, dotsPerInch);
    const auto rule = [&](int x1, int y1, int x2, int y2) {
        if (Darkness(picture, dotsPerInch, QPointF(x1, y1), QPointF(x2, y2)) < nearlyAll) {
            faults << QStringLiteral("page %1: no rule %2,%3 %4,%5").arg(page + 1).arg(x1).arg(y1).arg(x2).arg(y2);
        }
    };
    for (const SheetOperation& operation : sheet.Operations()) {
        if (const auto* text = std::get_if<SheetText>(&operation)) {
            faults << TextFault(page, *text);
        } else if (const auto* line = std::get_if<SheetLine>(&operation)) {
            if (line->y1 < 0) {
                // Above the printable corner: not to be seen.
                continue;
            }
            rule(line->x1, line->y1, line->x2, line->y2);
        } else if (const auto* box = std::get_if<SheetBox>(&operation)) {
            rule(box->x1, box->y1, box->x2, box->y1);
            rule(box->x2, box->y1, box->x2, box->y2);
            rule(box->x1, box->y2, box->x2, box->y2);
            rule(box->x1, box->y1, box->x1, box->y2);
        } else if (std::holds_alternative<SheetPageBreak>(operation)) {
            ++page;
            picture = Picture(page, dotsPerInch);
        }
    }
    if (page + 1 != pages_.size()) {
        faults << QStringLiteral("%1 pages, %2 expected").arg(pages_.size()).arg(page + 1);
    }
    faults.removeAll(QString());
    return faults.join(QLatin1Char('\n'));
}

} // namespace zelvia::test
