// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/FrmGrafici.h"

#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "statistics/StatisticSheets.h"
#include "toolkit/Application.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Printer.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zelvia
{

using namespace Module1;

namespace
{

// Places, in logical pixels. The chart as it first comes up fits the frame of a printed sheet.
constexpr QSize kSize{960, 660};
constexpr QSize kSmallest{640, 440};
constexpr int kMargin = 16;
constexpr QSize kButton{110, 34};

Button* MakeButton(QWidget* parent, const char* name, TextView caption)
{
    auto* button = new Button(parent, QLatin1String(name), caption);
    button->setFont(PageFont("Times New Roman", 15));
    return button;
}

template <typename Make>
void ShowChart(FormSlot<frmGrafici>& finestra, TextView title, Make&& make)
{
    frmGrafici& window = finestra.Load();
    Trap(title, [&] { window.MSChart1->Show(make()); });
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

frmGrafici::frmGrafici()
    : Form(QStringLiteral("frmGrafici")), MSChart1(new Chart(this, QStringLiteral("MSChart1"))),
      cmdStampa(MakeButton(this, "cmdStampa", "Stampa")), cmdEsci(MakeButton(this, "cmdEsci", "Esci"))
{
    setWindowTitle(QStringLiteral("Grafici"));
    setPalette(PagePalette());
    setAutoFillBackground(true);
    setMinimumSize(kSmallest);
    resize(kSize);
    cmdStampa->Click = [this] { cmdStampa_Click(); };
    cmdEsci->Click = [this] { Unload(); };
}

void frmGrafici::resizeEvent(QResizeEvent* event)
{
    Form::resizeEvent(event);
    const int buttonTop = height() - kMargin - kButton.height();
    cmdEsci->setGeometry({QPoint(width() - kMargin - kButton.width(), buttonTop), kButton});
    cmdStampa->setGeometry({QPoint(cmdEsci->x() - kMargin - kButton.width(), buttonTop), kButton});
    MSChart1->setGeometry(kMargin, kMargin / 2, width() - 2 * kMargin, buttonTop - kMargin);
}

void frmGrafici::cmdStampa_Click()
{
    // After a fault the button stays off, and the picture on the clipboard.
    Trap("STAMPA - ERRORE : ", [this] {
        cmdStampa->setEnabled(false);
        QClipboard& clipboard = *QGuiApplication::clipboard();
        clipboard.clear();
        MSChart1->EditCopy();
        PrintSheet(ChartSheet(DataCorrente));
        cmdStampa->setEnabled(true);
        clipboard.clear();
    });
}

void MostraGrafico(FormSlot<frmGrafici>& finestra, TextView titolo)
{
    ShowChart(finestra, "MostraGrafico - ERRORE : ", [&] {
        return GraficoCategorie(titolo, NomeCategoria, ContaCategoria, ValoreCategoria);
    });
}

void MostraGraficoMedia(FormSlot<frmGrafici>& finestra, const PaceTable& valori)
{
    ShowChart(finestra, "MostraGraficoMedia - ERRORE : ", [&] { return GraficoMedie(valori); });
}

} // namespace zelvia
