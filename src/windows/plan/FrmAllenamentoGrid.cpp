// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's controls: their places, and the events of its boxes.
#include "core/Conversions.h"
#include "toolkit/Fonts.h"
#include "toolkit/Menu.h"
#include "toolkit/QtText.h"
#include "windows/plan/FrmAllenamento.h"
#include "windows/plan/PlanColumns.h"
#include "windows/plan/TableWindows.h"

#include <QMenu>

namespace zelvia
{

using namespace TableGrid;

namespace
{

/// The fixed pitch of the strips keeps the signs of their captions between the boxes.
QFont StripFont()
{
    return PageFont("Courier", 12);
}

QFont HeadFont()
{
    return PageFont("Times New Roman", 14);
}

GridLook Look(int rows, int top, int height)
{
    return {.rows = rows,
            .top = top,
            .step = kStep,
            .height = height,
            .font = PageFont("Times New Roman", 14),
            .margins = {0, -2, -1, -2},
            .digitsRight = rows > 1};
}

} // namespace

void frmAllenamento::BuildHeads()
{
    struct Head {
        const char* name;
        TextView caption;
        QRect place;
    };
    constexpr int upper = 4;
    constexpr int lower = 24;
    const Head heads[] = {
        {"lblGiorno", "Giorno", {4, lower, 48, 18}},
        {"lblTitoloDistanza", " Distanza", {54, upper, 80, 18}},
        {"lblTitoloKm", "  km  metri", {54, lower, 84, 18}},
        {"lblTitoloTempo", " Tempo", {140, upper, 106, 18}},
        {"lblTitoloOre", "  hh  mm  ss", {140, lower, 106, 18}},
        {"lblTitoloMedia", " Media", {252, upper, 128, 18}},
        {"lblTitoloMinuti", "  mm  ss   mls ", {252, lower, 128, 18}},
        {"lblTitoloAndatura", " Andatura", {386, lower, 184, 18}},
        {"lblTitoloTerreno", " Terreno", {576, lower, 184, 18}},
        {"lblTitoloRipetizioni", " Ripetizioni", {766, lower, 264, 18}},
        {"lblTitoloInizio", " Data Inizio", {kPanelLeft, lower, 176, 18}},
    };
    for (const Head& head : heads) {
        const bool units = head.caption.starts_with("  ");
        MakeLabel(this, QLatin1String(head.name), head.caption, head.place, units ? StripFont() : HeadFont());
    }
}

void frmAllenamento::BuildLabels(int row)
{
    const int top = RowTop(row);
    lblGiorni[row] =
        MakeLabel(this, Indexed("lblGiorni", row), " " + PlainText(i32(row)), {4, top, 46, kBoxHeight}, HeadFont());
    SetBackColour(*lblGiorni[row], TableColours::Accepted);
    lblGiorni[row]->MouseUp = [this, row](Qt::MouseButton button, const QPoint& position) {
        if (button == Qt::RightButton) {
            ShowRowMenu(row, position);
        }
    };
    for (std::size_t strip = 0; strip < kStripData.size(); ++strip) {
        const StripData& place = kStripData[strip];
        strips_[strip][row] =
            MakeLabel(this, Indexed(place.name, row), "", {place.left, top, place.width, kBoxHeight}, StripFont());
    }
}

void frmAllenamento::BuildGrid()
{
    grid_.Click = [this] { BeginEditing(); };
    grid_.signs = {RipetVolte, kRepetitionStrip, kBlankRepetitionStrip,
                   [this](int row) { return StripOf(LblRipetizioni, row); }};
    grid_.Build(this, Look(kRows, kTop, kBoxHeight));
    grid_.Speak("Giorno");
    for (int row = 1; row <= kRows; ++row) {
        PaintRow(row, TableColours::Editing);
        WriteRow(row, TableColours::Fore);
        grid_.VisitRow(row, [&](TextBox& box) {
            box.MenuKey = [this, row](const QPoint& position) { ShowRowMenu(row, position); };
        });
    }
}

void frmAllenamento::BuildStartDate()
{
    lblGiorniInizio =
        MakeLabel(this, QStringLiteral("lblGiorniInizio"), kBlankDateStrip, {kPanelLeft, kTop, 176, 28}, StripFont());
    start_.Click = [this] { BeginEditing(); };
    start_.LastEntered = [this] { cmdOK->SetFocus(); };
    start_.signs = {0, kDateStrip, kBlankDateStrip, [this](int) { return lblGiorniInizio; }};
    start_.Build(this, Look(1, kTop + 4, 20));
    for (int i = 0; i < 3; ++i) {
        dateBoxes[static_cast<std::size_t>(i)] = start_.Box(i, 1);
        SetForeColour(*start_.Box(i, 1), TableColours::Fore);
    }
    PaintDate(TableColours::Editing);
}

void frmAllenamento::BuildPanel()
{
    BuildStartDate();
    int top = kTop + 60;
    const auto make = [&](const char* name, TextView caption, void (frmAllenamento::*click)()) {
        constexpr int step = 44;
        Button* button =
            MakeButton(this, name, caption, {kPanelLeft, top, 176, 34}, [this, click] { (this->*click)(); });
        top += step;
        return button;
    };
    cmdOK = make("cmdOK", " OK", &frmAllenamento::cmdOK_Click);
    cmdAttiva = make("cmdAttiva", "Attiva", &frmAllenamento::cmdAttiva_Click);
    cmdDisattiva = make("cmdDisattiva", "Disattiva", &frmAllenamento::cmdDisattiva_Click);
    cmdCalcoloMedie = make("cmdCalcoloMedie", "Calcolo Medie", &frmAllenamento::cmdCalcoloMedie_Click);
    cmdSalva = make("cmdSalva", "Salva", &frmAllenamento::cmdSalva_Click);
    cmdStampa = make("cmdStampa", "Stampa", &frmAllenamento::cmdStampa_Click);
    cmdEsci = make("cmdEsci", "Esci", &frmAllenamento::cmdEsci_Click);
    cmdAttiva->setEnabled(false);
    cmdDisattiva->setEnabled(false);
}

void frmAllenamento::BuildRowMenu()
{
    mnuRigheTabella->setObjectName(QStringLiteral("mnuRigheTabella"));
    mnuRigheTabella->setTitle(QStringLiteral("&Righe Tabella"));
    FillMenu(*mnuRigheTabella,
             {{"mnuInserisciRiga", "&Inserisci Riga", [this] { mnuInserisciRiga_Click(); }},
              {"mnuEliminaRiga", "&Elimina Riga", [this] { mnuEliminaRiga_Click(); }}},
             MenuKind::PopUp);
}

void frmAllenamento::BeginEditing()
{
    for (i16 row = 1; row <= kRows; row += 1) {
        ColoreSfondo(row);
    }
    cmdAttiva->setEnabled(false);
}

/// Chooses a row and offers what can be done with it.
void frmAllenamento::ShowRowMenu(int row, const QPoint& position)
{
    RigaSelezionata = row;
    ColoreRiga(row);
    mnuRigheTabella->exec(position);
}

frmAllenamento::frmAllenamento(TableWindows& windows)
    : Form(QStringLiteral("frmAllenamento")), mnuRigheTabella(new QMenu(this)), windows_(windows)
{
    setWindowTitle(QStringLiteral("Tabella allenamento "));
    LayOnPaper({kWidth, kHeight});
    BuildHeads();
    for (int row = 1; row <= kRows; ++row) {
        BuildLabels(row);
    }
    BuildGrid();
    BuildPanel();
    BuildRowMenu();
    Load();
}

} // namespace zelvia
