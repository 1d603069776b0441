// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/QtText.h"
#include "windows/page/PageArt.h"
#include "windows/page/PageBuild.h"

#include <span>

namespace zelvia::PageBuild
{
namespace
{

using namespace PageLayout;

/// A picture and the value beside it or, on a slip, after it.
struct PairRow {
    Picture* PageControls::*picture;
    const char* pictureName;
    TextView caption;
    Label* PageControls::*label;
    const char* labelName;
    TextView spoken;
    TextView text = {};
    void (*drawing)(QPainter&, const QRectF&) = nullptr; ///< Null for a picture that shows its caption.
};

using P = PageControls;

const PairRow kCounters[] = {
    {&P::pctGiornoAnno, "pctGiornoAnno", "Giorno dell'anno", &P::lblNumGiornoAnno, "lblNumGiornoAnno",
     "Giorno dell'anno", "", DrawCalendarLeaf},
    {&P::pctAllenamenti, "pctAllenamenti", "Allenamenti", &P::lblNumGiorniCorseAnno, "lblNumGiorniCorseAnno",
     "Allenamenti dell'anno", "", DrawShoe},
    {&P::pctKmpercorsi, "pctKmpercorsi", "Km percorsi", &P::lblNumKMPercorsi, "lblNumKMPercorsi",
     "Chilometri percorsi nell'anno", "", DrawMilestone},
    {&P::pctGare, "pctGare", "Gare", &P::lblNumGare, "lblNumGare", "Gare dell'anno", "", DrawCup},
};

// The first line of a slip is its heading.
const PairRow kPlan[] = {
    {&P::pctTabAllenamenti, "pctTabAllenamenti", "ALLENAMENTO :  ", &P::lblTabNomeFile, "lblTabNomeFile",
     "Tabella attiva", "Nessuna tabella attiva"},
    {&P::pctTabKm, "pctTabKm", "Km", &P::lblKmTab, "lblKmTab", "Tabella, chilometri", "0,0"},
    {&P::pctTabTempo, "pctTabTempo", "Tempo", &P::lblTempoTab, "lblTempoTab", "Tabella, tempo", "0:0:0"},
    {&P::pctTabMedia, "pctTabMedia", "Media Km", &P::lblMediaTab, "lblMediaTab", "Tabella, media al chilometro", "0:0"},
    {&P::pctTabAndatura, "pctTabAndatura", "Andatura", &P::lblAndaturaTab, "lblAndaturaTab", "Tabella, andatura"},
    {&P::pctTabTerreno, "pctTabTerreno", "Terreno", &P::lblFondoTab, "lblFondoTab", "Tabella, terreno"},
    {&P::pctTabRipetizioni, "pctTabRipetizioni", "Ripetizioni", &P::lblRipetizioniTab, "lblRipetizioniTab",
     "Tabella, ripetizioni", "0 x 0  @  0:0"},
};

const PairRow kRace[] = {
    {&P::pctCalGara, "pctCalGara", "GARA :  ", &P::lblGara, "lblGara", "Gara"},
    {&P::pctCalLocalita, "pctCalLocalita", "Località "_t, &P::lblLocalita, "lblLocalita", "Gara, località"_t},
    {&P::pctCalPartecipanti, "pctCalPartecipanti", "Partecipanti", &P::lblPartecipanti, "lblPartecipanti",
     "Gara, partecipanti"},
    {&P::pctCalTempoImpiegato, "pctCalTempoImpiegato", "Tempo Impiegato", &P::lblTempoImpiegato, "lblTempoImpiegato",
     "Gara, tempo impiegato"},
    {&P::pctCalLunghezza, "pctCalLunghezza", "Lunghezza", &P::lblLunghezzaGara, "lblLunghezzaGara", "Gara, lunghezza"},
    {&P::pctCalRisultato, "pctCalRisultato", "Risultato", &P::lblRisultato, "lblRisultato", "Gara, risultato"},
    {&P::pctCalCategoria, "pctCalCategoria", "Categoria", &P::lblCategoria, "lblCategoria", "Gara, categoria"},
    {&P::pctCalRisCategoria, "pctCalRisCategoria", "Risultato", &P::lblRisultatoCat, "lblRisultatoCat",
     "Gara, risultato di categoria"},
};

Picture* MakePicture(QWidget* page, const PairRow& row, const QRect& place, bool heading)
{
    auto* picture =
        new Picture(page, QLatin1String(row.pictureName),
                    row.drawing != nullptr ? Picture::Drawing(row.drawing) : CaptionDrawing(row.caption, heading));
    picture->setGeometry(place);
    picture->setAccessibleName(ToQString(row.caption).trimmed());
    return picture;
}

std::vector<PageControls::SlipLine> MakeSlip(PageControls& controls, QWidget* page, std::span<const PairRow> rows,
                                             int step, bool visible)
{
    std::vector<PageControls::SlipLine> lines;
    for (const PairRow& row : rows) {
        const int top = SlipRow(static_cast<int>(lines.size()), step);
        const bool heading = lines.empty();
        const QRect place(kSlipCaptionLeft, top, kSlipCaptionWidth, kRowHeight);
        controls.*row.picture = MakePicture(page, row, place, heading);
        controls.*row.label =
            MakeLabel(page, QLatin1String(row.labelName), row.text, {kSlipValueLeft, top, kSlipValueWidth, kRowHeight},
                      heading ? Style::SlipHeading : Style::SlipValue, row.spoken);
        (controls.*row.label)->FadeBlank(row.text);
        lines.push_back({controls.*row.picture, controls.*row.label});
        MakeReadable(*lines.back().label);
        lines.back().picture->SetVisible(visible);
        lines.back().label->SetVisible(visible);
    }
    return lines;
}

} // namespace

void MakeCounters(PageControls& controls, QWidget* page)
{
    int index = 0;
    for (const PairRow& row : kCounters) {
        controls.*row.picture = MakePicture(page, row, CounterPicture(index), false);
        (controls.*row.picture)->setToolTip(ToQString(row.caption));
        controls.*row.label =
            MakeLabel(page, QLatin1String(row.labelName), {}, CounterValue(index), Style::Counter, row.spoken);
        MakeReadable(*(controls.*row.label));
        ++index;
    }
}

void MakeTableSlip(PageControls& controls, QWidget* page)
{
    controls.tableSlip = MakeSlip(controls, page, kPlan, kPlanStep, true);
}

void MakeRaceSlip(PageControls& controls, QWidget* page)
{
    controls.raceSlip = MakeSlip(controls, page, kRace, kRaceStep, false);
}

} // namespace zelvia::PageBuild
