// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Printer.h"

#include "core/CMouse.h"
#include "core/RunTimeError.h"
#include "toolkit/Button.h"
#include "toolkit/FocusController.h"
#include "toolkit/Fonts.h"
#include "toolkit/Progress.h"
#include "toolkit/QtText.h"

#include <QClipboard>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QLibrary>
#include <QPainter>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <utility>

namespace zelvia
{
namespace
{

constexpr int kDotsPerInch = 600;
constexpr int kPointsPerInch = 72;
constexpr double kCellWidth = kDotsPerInch / 12.0;
constexpr double kCellHeight = kDotsPerInch / 6.0;
constexpr double kRuleWidth = 0.6 * kDotsPerInch / kPointsPerInch;
constexpr double kInchesPerMetre = 1 / 0.0254;

[[noreturn]] void Refuse()
{
    throw ErroreRunTime(Errore::Stampante);
}

QPointF Corner(int x, int y)
{
    return {x * kCellWidth, y * kCellHeight};
}

/// Draws the operations of a sheet one after the other.
class SheetPlayer
{
public:
    SheetPlayer(QPrinter& printer, QPainter& painter, std::ptrdiff_t pages)
        : printer_(printer), painter_(painter), pages_(pages)
    {
        painter_.setPen(QPen(Qt::black, kRuleWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter_.setBrush(Qt::NoBrush);
    }

    void operator()(const SheetText& text)
    {
        QFont font = PageFont(text.font.name, text.font.size * kDotsPerInch / kPointsPerInch);
        font.setBold(text.font.bold);
        font.setItalic(text.font.italic);
        painter_.setFont(font);
        const double ascent = QFontMetricsF(font, &printer_).ascent();
        painter_.drawText(Corner(text.x, text.y) + QPointF(0, ascent), ToQString(text.text));
    }

    void operator()(const SheetLine& line) { painter_.drawLine(Corner(line.x1, line.y1), Corner(line.x2, line.y2)); }

    void operator()(const SheetBox& box) { painter_.drawRect(QRectF(Corner(box.x1, box.y1), Corner(box.x2, box.y2))); }

    void operator()(const SheetPicture& picture)
    {
        if (picture.copy) {
            picture.copy();
        }
        const QImage image = QGuiApplication::clipboard()->image();
        const auto onPaper = [](int dots, int dotsPerMetre) {
            return dots * kInchesPerMetre * kDotsPerInch / std::max(dotsPerMetre, 1);
        };
        const QSizeF size(onPaper(image.width(), image.dotsPerMeterX()),
                          onPaper(image.height(), image.dotsPerMeterY()));
        painter_.drawImage(QRectF(Corner(picture.x, picture.y), size), image);
    }

    void operator()(const SheetPageBreak& /*pageBreak*/)
    {
        if (!printer_.newPage()) {
            Refuse();
        }
        progress_.Tell(QStringLiteral("Stampa: pagina %1 di %2").arg(++page_).arg(pages_));
    }

private:
    QPrinter& printer_;
    QPainter& painter_;
    Progress progress_;
    std::ptrdiff_t pages_;
    int page_ = 1;
};

/// Whether the spooler accepted the last job. Qt does not say; the spooler's own library, which printing has loaded by
/// now, does. Without that library there is no such spooler.
bool SpoolTookIt()
{
    constexpr int version = 2;
    constexpr int lastGoodStatus =
        7; // IPP_STATUS_OK_EVENTS_COMPLETE, the highest of the "successful" range of RFC 8011
    QLibrary spool(QStringLiteral("cups"), version);
    const auto lastError = reinterpret_cast<int (*)()>(spool.resolve("cupsLastError"));
    return lastError == nullptr || lastError() <= lastGoodStatus;
}

/// Requests the printer's high quality. Qt passes the attributes of a job to the spooler, names and values alternating,
/// but has no public name for the property that takes them.
void DemandHighQuality(QPrinter& printer)
{
    constexpr auto jobAttributes = QPrintEngine::PrintEnginePropertyKey(0xfe00);
    const QString high = QStringLiteral("5"); // RFC 8011
    printer.printEngine()->setProperty(jobAttributes, QStringList{QStringLiteral("print-quality"), high});
}

QPageLayout::Orientation LayoutOf(Orientation orientation)
{
    return orientation == Orientation::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape;
}

std::ptrdiff_t PagesOf(const Sheet& sheet)
{
    const auto& operations = sheet.Operations();
    return 1 + std::count_if(operations.begin(), operations.end(), [](const SheetOperation& operation) {
               return std::holds_alternative<SheetPageBreak>(operation);
           });
}

/// Prints on the system's default printer.
void PlaySheet(const Sheet& sheet)
{
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) {
        // A QPrinter without a printer would quietly write a file.
        Refuse();
    }
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setResolution(kDotsPerInch);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(LayoutOf(sheet.Paper()));
    // As wide as the printer's own margins allow: the grid begins at the printable corner.
    printer.setPageMargins(printer.pageLayout().minimumMargins(), printer.pageLayout().units());
    printer.setDocName(ToQString(sheet.Job()));
    DemandHighQuality(printer);
    QPainter painter;
    if (!painter.begin(&printer)) {
        Refuse();
    }
    try {
        SheetPlayer player(printer, painter, PagesOf(sheet));
        for (const SheetOperation& operation : sheet.Operations()) {
            std::visit(player, operation);
        }
    } catch (...) {
        printer.abort();
        throw;
    }
    // The job is submitted when painting ends.
    if (!painter.end() || !SpoolTookIt()) {
        Refuse();
    }
}

std::function<void(const Sheet&)> replacedPrinter;

} // namespace

void SetPrinterHandler(std::function<void(const Sheet&)> handler)
{
    replacedPrinter = std::move(handler);
}

void PrintSheet(const Sheet& sheet)
{
    CMouse pointer;
    pointer.SetPointer(MousePointer::Hourglass);
    if (replacedPrinter) {
        replacedPrinter(sheet);
        return;
    }
    PlaySheet(sheet);
}

bool PrintByButton(Button& button, const std::function<Sheet()>& make)
{
    bool printed = false;
    FocusController::Instance().Grey(button);
    Trap(kPrintErrors, [&] {
        PrintSheet(make());
        printed = true;
    });
    FocusController::Instance().EndGrey(button, printed);
    return printed;
}

} // namespace zelvia
