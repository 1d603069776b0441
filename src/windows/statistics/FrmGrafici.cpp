// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/statistics/FrmGrafici.h"

#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/StatisticSheets.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Printer.h"
#include "toolkit/WindowPlaces.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>

namespace zelvia
{

using namespace Module1;

namespace
{

// Places, in logical pixels. The chart in its first size fits the frame of a printed sheet.
constexpr QSize kSize{968, 692};
constexpr QSize kSmallest{640, 460};
constexpr int kFrame = 12; ///< From the border to the printed frame.
constexpr int kMargin = 26;
constexpr int kGap = 13;
constexpr QSize kButton{120, 36};

/// The top of the buttons in a window of a size.
constexpr int ButtonTop(const QSize& window)
{
    return window.height() - kMargin - kButton.height();
}

/// The top of the rule over the buttons.
constexpr int RuleTop(const QSize& window)
{
    return ButtonTop(window) - kGap - 2;
}

constexpr QRect ChartPlace(const QSize& window)
{
    constexpr int border = 6; // over the margin
    return {kMargin - border, kFrame + 4, window.width() - 2 * (kMargin - border), RuleTop(window) - kFrame - kGap};
}

template <typename Make>
void ShowChart(FormSlot<frmGrafici>& slot, TextView title, Make&& make)
{
    frmGrafici& window = slot.Load();
    Trap(title, [&] { window.MSChart1->Show(make()); });
    window.ShowInFront();
}

} // namespace

frmGrafici::frmGrafici()
    : Form(QStringLiteral("frmGrafici")), MSChart1(new Chart(this, QStringLiteral("MSChart1"))),
      cmdStampa(MakeButton(this, "cmdStampa", "Stampa", {}, [this] { cmdStampa_Click(); })),
      cmdEsci(MakeButton(this, "cmdEsci", "Esci", {}, [this] { Unload(); }))
{
    setWindowTitle(QStringLiteral("Grafici"));
    setPalette(PagePalette());
    setAutoFillBackground(true);
    constexpr std::array<const char*, 7> names = {"shp1", "shp2", "shp3", "shp4", "shp5", "shpStampa", "shpEsci"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QColor ink = TextView(names[i]) == "shp5" ? Ink::Accent : Ink::Rule;
        shapes_[i] = new Picture(this, QLatin1String(names[i]),
                                 [ink](QPainter& painter, const QRectF& area) { painter.fillRect(area, ink); });
    }
    setMinimumSize(kSmallest);
    resize(kSize.boundedTo(WindowPlaces::Instance().RoomFor(*this)));
}

void frmGrafici::resizeEvent(QResizeEvent* event)
{
    Form::resizeEvent(event);
    const int buttonTop = ButtonTop(size());
    const int right = width() - kMargin;
    cmdEsci->setGeometry({QPoint(right - kButton.width(), buttonTop), kButton});
    cmdStampa->setGeometry({QPoint(cmdEsci->x() - kGap - kButton.width(), buttonTop), kButton});
    MSChart1->setGeometry(ChartPlace(size()));

    // The frame, the rule over the buttons, and a stroke in front of each of these.
    const int inner = width() - 2 * kFrame;
    const int foot = height() - 2 * kFrame;
    const auto before = [](const Button& button) {
        return QRect(button.x() - (kGap + 1) / 2, button.y() + 4, 1, button.height() - 8);
    };
    const QRect places[] = {{kFrame, kFrame, inner, 1},
                            {kFrame, kFrame + foot - 1, inner, 1},
                            {kFrame, kFrame, 1, foot},
                            {kFrame + inner - 1, kFrame, 1, foot},
                            {kMargin, RuleTop(size()), right - kMargin, 2},
                            before(*cmdStampa),
                            before(*cmdEsci)};
    for (std::size_t i = 0; i < shapes_.size(); ++i) {
        shapes_[i]->setGeometry(places[i]);
    }
}

void frmGrafici::cmdStampa_Click()
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    const bool printed = PrintByButton(*cmdStampa, [&] {
        return ChartSheet(DataCorrente, [&] {
            clipboard.clear();
            MSChart1->EditCopy(ChartPlace(kSize).size());
        });
    });
    // After a fault the picture stays.
    if (printed) {
        clipboard.clear();
    }
}

void MostraGrafico(FormSlot<frmGrafici>& slot, TextView title)
{
    ShowChart(slot, "MostraGrafico - ERRORE : ", [&] {
        return CategoryChart(title, NomeCategoria, ContaCategoria, ValoreCategoria);
    });
}

void MostraGraficoMedia(FormSlot<frmGrafici>& slot, const PaceTable& values)
{
    ShowChart(slot, "MostraGraficoMedia - ERRORE : ", [&] { return PaceChart(values); });
}

} // namespace zelvia
