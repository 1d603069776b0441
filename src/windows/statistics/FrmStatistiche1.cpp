// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/statistics/FrmStatistiche1.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/CategoryTexts.h"
#include "diary/Module1.h"
#include "diary/StatisticSheets.h"
#include "toolkit/Fonts.h"
#include "toolkit/Keys.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Picture.h"
#include "toolkit/Printer.h"

#include <QHeaderView>
#include <QPainter>

#include <utility>
#include <vector>

namespace zelvia
{

using namespace Module1;

namespace
{

// Places, in logical pixels. The times cover the list and its heads.
constexpr QSize kSize{568, 644};
constexpr QRect kTitle{34, 34, 500, 40};
constexpr QRect kTimes{26, 92, 516, 466};
constexpr int kHeadHeight = 28;
constexpr int kNameWidth = 364;
constexpr QRect kNameHead{kTimes.left(), kTimes.top(), kNameWidth, kHeadHeight};
constexpr QRect kCountHead{kTimes.left() + kNameWidth, kTimes.top(), kTimes.width() - kNameWidth, kHeadHeight};
constexpr QRect kList = kTimes.adjusted(0, kHeadHeight, 0, 0);
constexpr int kButtonTop = 582;
constexpr QSize kButton{120, 36};
constexpr int kButtonStep = 132;

constexpr QRect ButtonPlace(int place)
{
    return {{kTimes.left() + place * kButtonStep, kButtonTop}, kButton};
}

/// The printed lines of the sheet.
struct Shape {
    const char* name;
    QRect place;
    QColor ink;
};

/// The line in the gap in front of a button.
constexpr QRect Before(const QRect& button)
{
    constexpr int half = (kButtonStep - kButton.width()) / 2;
    return {button.left() - half, button.top() + 4, 1, button.height() - 8};
}

const Shape kShapes[] = {
    {"shp1", {12, 12, 544, 1}, Ink::Rule},
    {"shp2", {12, 631, 544, 1}, Ink::Rule},
    {"shp3", {12, 12, 1, 620}, Ink::Rule},
    {"shp4", {555, 12, 1, 620}, Ink::Rule},
    {"shp5", {26, 26, 516, 2}, Ink::Accent},
    {"shp6", {26, 30, 516, 1}, Ink::Accent},
    {"shp7", {26, 78, 516, 2}, Ink::Accent},
    {"shp8", {26, 31, 1, 47}, Ink::Rule},
    {"shp9", {541, 31, 1, 47}, Ink::Rule},
    {"shpGrafico", Before(ButtonPlace(1)), Ink::Rule},
    {"shpStampa", Before(ButtonPlace(2)), Ink::Rule},
    {"shpEsci", Before(ButtonPlace(3)), Ink::Rule},
};

/// What the sheet shows of the slots 1..60.
std::vector<StatisticSheetSlot> SlotsOnPaper()
{
    const bool numbers = SameText(TitoloStatistica, "Corridori") || SameText(TitoloStatistica, "Peso");
    std::vector<StatisticSheetSlot> slots;
    for (int i = 1; i <= kMaxCategories; ++i) {
        Text value = NomeCategoria[i];
        if (numbers) {
            value = ValoreCategoria[i] != 0 ? StatisticSheetNumber(ValoreCategoria[i]) : Text();
        }
        slots.push_back({std::move(value), ContaCategoria[i]});
    }
    return slots;
}

} // namespace

frmStatistiche1::frmStatistiche1(ChartOpener openChart)
    : Form(QStringLiteral("frmStatistiche1")), lblTitolo(new Label(this, QStringLiteral("lblTitolo"))),
      cmdStatitolo(MakeButton(this, "cmdStatitolo", "descrizione", kNameHead)),
      cmdStatfre(MakeButton(this, "cmdStatfre", "frequenza", kCountHead)),
      lstStatistica(new ListBox(this, QStringLiteral("lstStatistica"))),
      cmdTempiLO(MakeButton(this, "cmdTempiLO", "Tempi", ButtonPlace(0), [this] { cmdTempiLO_Click(); })),
      cmGrafico(MakeButton(this, "cmGrafico", "Grafico", ButtonPlace(1), [this] { cmGrafico_Click(); })),
      cmdStampa(MakeButton(this, "cmdStampa", "Stampa", ButtonPlace(2), [this] { cmdStampa_Click(); })),
      cmdEsci(MakeButton(this, "cmdEsci", "Esci", ButtonPlace(3), [this] { Unload(); })),
      // 1587, 2117, 1587 and 2117 twips, of which 15 are a pixel.
      lvListaOrdinata(new ListView(this, QStringLiteral("lvListaOrdinata"),
                                   {{"classifica", 106}, {"tempo", 141}, {"media", 106}, {"data", 141}})),
      openChart_(std::move(openChart))
{
    setWindowTitle(QStringLiteral("Statistiche"));
    LayOnPaper(kSize);
    Build();
    lstStatistica->KeyPress = [this](int keyAscii) {
        if (keyAscii == kEnter && lstStatistica->ListIndex() >= 0) {
            cmdTempiLO_Click();
        }
    };
    lvListaOrdinata->LostFocus = [this] { lvListaOrdinata_LostFocus(); };
    lvListaOrdinata->KeyPress = [this](int keyAscii) {
        if (keyAscii == kEscape) {
            lvListaOrdinata_LostFocus();
        }
    };
}

void frmStatistiche1::Build()
{
    for (const Shape& shape : kShapes) {
        auto* line =
            new Picture(this, QLatin1String(shape.name),
                        [ink = shape.ink](QPainter& painter, const QRectF& area) { painter.fillRect(area, ink); });
        line->setGeometry(shape.place);
        line->setAttribute(Qt::WA_TransparentForMouseEvents);
        line->lower();
    }
    lblTitolo->SetCaption("Statistica");
    lblTitolo->setGeometry(kTitle);
    lblTitolo->setAlignment(Qt::AlignCenter);
    lblTitolo->setFont(PrintFont(24, true));
    lblTitolo->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (Button* head : {cmdStatitolo, cmdStatfre}) {
        head->setFocusPolicy(Qt::NoFocus);
    }
    lstStatistica->setGeometry(kList);
    lstStatistica->setFont(PageFont("Courier", 20));
    lstStatistica->setAlternatingRowColors(true);
    lstStatistica->setAccessibleName(QStringLiteral("Valori e frequenze"));
    lstStatistica->SetSpokenColumns({QStringLiteral("descrizione"), QStringLiteral("frequenza")});
    lvListaOrdinata->setGeometry(kTimes);
    lvListaOrdinata->setFont(PenFont(20));
    lvListaOrdinata->header()->setFont(PrintFont(16));
    lvListaOrdinata->setAlternatingRowColors(true);
    lvListaOrdinata->setAccessibleName(QStringLiteral("Tempi del valore scelto"));
    // Its frame would show the heads below it.
    lvListaOrdinata->setAutoFillBackground(true);
    lvListaOrdinata->SetVisible(false);
    cmdTempiLO->setToolTip(QStringLiteral("I tempi del valore scelto (Invio)"));
}

void frmStatistiche1::mousePressEvent(QMouseEvent* event)
{
    if (lvListaOrdinata->Visible()) {
        FocusSink().SetFocus();
    }
    Form::mousePressEvent(event);
}

void frmStatistiche1::cmdTempiLO_Click()
{
    lvListaOrdinata->Clear();
    const int i = lstStatistica->ListIndex() + 1;
    if (TitoloStatistica != "Corridori" && TitoloStatistica != "Peso") {
        ListaWOrdinata(NomeCategoria[i]);
    } else {
        ListavOrdinata(ValoreCategoria[i]);
    }
}

void frmStatistiche1::cmdStampa_Click()
{
    PrintByButton(*cmdStampa, [] { return StatisticSheet(DataCorrente, TitoloStatistica, SlotsOnPaper()); });
}

void frmStatistiche1::cmGrafico_Click()
{
    if (openChart_) {
        openChart_(lblTitolo->Caption());
    }
}

void frmStatistiche1::lvListaOrdinata_LostFocus()
{
    lvListaOrdinata->Clear();
    ListaTempi.reset();
    lvListaOrdinata->SetVisible(false);
}

void frmStatistiche1::ListaWOrdinata(const Text& value)
{
    Trap("ListaWOrdinata - ERRORE : ", [&] {
        BeginTimes();
        FillTimes(DaysOf(value));
    });
}

void frmStatistiche1::ListavOrdinata(i16 value)
{
    Trap("ListavOrdinata - ERRORE : ", [&] {
        BeginTimes();
        const Statistic* statistic = StatisticOf(TitoloStatistica);
        FillTimes([&](const RecordGiorno& day) { return statistic->number(day) == value; });
    });
}

void frmStatistiche1::BeginTimes()
{
    ListaTempi.emplace();
    lvListaOrdinata->SetVisible(true);
    lvListaOrdinata->SetFocus();
    ListaTempi->CreaLista();
}

/// The texts of days are compared to the letter, unlike at their counting.
frmStatistiche1::DayTest frmStatistiche1::DaysOf(const Text& value)
{
    if (TitoloStatistica == "Km") {
        const i16 km = ScomponiKm(value);
        const i16 metres = ScomponiMetri(value);
        return [=](const RecordGiorno& day) { return day.Km == km && day.Metri == metres; };
    }
    if (TitoloStatistica == "Ripetizioni") {
        const i16 times = ScomponiVolte(value);
        const i16 distance = ScomponiDistanza(value);
        const i16 minutes = ScomponiQuante(value);
        const i16 seconds = ScomponiTempi(value);
        return [=](const RecordGiorno& day) {
            return day.Ripetizioni == times && day.RipetizioniDistanza == distance &&
                   day.RipetizioniQuante == minutes && day.RipetizioniTempi == seconds;
        };
    }
    return [value, statistic = StatisticOf(TitoloStatistica)](const RecordGiorno& day) {
        return statistic != nullptr && statistic->text(day) == value;
    };
}

void frmStatistiche1::FillTimes(const DayTest& chosen)
{
    for (i16 d = 1; d <= GiornoCorrente; d += 1) {
        const RecordGiorno& day = Giorni[d];
        if (chosen(day)) {
            AddRunTo(*ListaTempi, day.NumGiorno, day.TempoImpiegato, day.MediaKm, day.Data);
        }
    }
    ListaTempi->Ordina();
    ListaTempi->NuovaLista([this](TextView place, TextView time, TextView average, TextView date) {
        lvListaOrdinata->AddRow({place, time, average, date});
    });
    ListaTempi->RiempiLista();
}

i16 frmStatistiche1::Scomponi(TextView title, i16 (*piece)(TextView), TextView text)
{
    return TrapValue(title, i16(0), [&] { return piece(text); });
}

} // namespace zelvia
