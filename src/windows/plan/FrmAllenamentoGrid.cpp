// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's controls: what stands where, and the events of its boxes.
#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/TextRoutines.h"
#include "toolkit/Fonts.h"
#include "toolkit/GridBox.h"
#include "toolkit/Menu.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"
#include "windows/plan/FrmAllenamento.h"
#include "windows/plan/TableColours.h"
#include "windows/plan/TableWindows.h"

#include <QMenu>

namespace zelvia
{

using namespace Module1;
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

TextBox* MakeBox(QWidget* parent, const QString& name, int maxLength, const QRect& place, TextView spoken)
{
    auto* box = new TextBox(parent, name, maxLength);
    box->setGeometry(place);
    box->setFont(PageFont("Times New Roman", 14));
    box->setAccessibleName(ToQString(spoken));
    box->setTextMargins(0, -2, -1, -2);
    SetBackColour(*box, TableColours::Editing);
    SetForeColour(*box, TableColours::Fore);
    return box;
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

void frmAllenamento::BuildRow(int riga)
{
    const int top = RowTop(riga);
    lblGiorni[riga] =
        MakeLabel(this, Indexed("lblGiorni", riga), " " + PlainText(i32(riga)), {4, top, 46, kBoxHeight}, HeadFont());
    SetBackColour(*lblGiorni[riga], TableColours::Accepted);
    SetForeColour(*lblGiorni[riga], TableColours::Fore);
    for (std::size_t strip = 0; strip < kStripData.size(); ++strip) {
        const StripData& row = kStripData[strip];
        Label* label =
            MakeLabel(this, Indexed(row.name, riga), "", {row.left, top, row.width, kBoxHeight}, StripFont());
        SetBackColour(*label, TableColours::Editing);
        SetForeColour(*label, TableColours::Fore);
        strips_[strip][riga] = label;
    }
    const Text spokenRow = "Giorno " + PlainText(i32(riga)) + ", ";
    for (std::size_t column = 0; column < kData.size(); ++column) {
        const ColumnData& row = kData[column];
        boxes_[column][riga] = MakeBox(this, Indexed(row.name, riga), row.maxLength,
                                       {row.left, top, row.width, kBoxHeight}, spokenRow + Text(row.spoken));
        if (row.digitsOnly) {
            boxes_[column][riga]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}

Button* frmAllenamento::MakeButton(const char* name, TextView caption, int top, void (frmAllenamento::*click)())
{
    auto* button = new Button(this, QLatin1String(name), caption);
    button->setGeometry(kPanelLeft, top, 176, 34);
    button->setFont(PageFont("Times New Roman", 15));
    button->Click = [this, click] { (this->*click)(); };
    return button;
}

void frmAllenamento::BuildPanel()
{
    lblGiorniInizio =
        MakeLabel(this, QStringLiteral("lblGiorniInizio"), kBlankDateStrip, {kPanelLeft, kTop, 176, 28}, StripFont());
    SetBackColour(*lblGiorniInizio, TableColours::Editing);
    for (std::size_t i = 0; i < kDateBoxes.size(); ++i) {
        const DateBoxData& row = kDateBoxes[i];
        dateBoxes[i] =
            MakeBox(this, QLatin1String(row.name), row.maxLength, {row.left, kTop + 4, row.width, 20}, row.spoken);
    }
    constexpr int first = kTop + 60;
    constexpr int step = 44;
    cmdOK = MakeButton("cmdOK", " OK", first, &frmAllenamento::cmdOK_Click);
    cmdAttiva = MakeButton("cmdAttiva", "Attiva", first + step, &frmAllenamento::cmdAttiva_Click);
    cmdDisattiva = MakeButton("cmdDisattiva", "Disattiva", first + 2 * step, &frmAllenamento::cmdDisattiva_Click);
    cmdCalcoloMedie =
        MakeButton("cmdCalcoloMedie", "Calcolo Medie", first + 3 * step, &frmAllenamento::cmdCalcoloMedie_Click);
    cmdSalva = MakeButton("cmdSalva", "Salva", first + 4 * step, &frmAllenamento::cmdSalva_Click);
    cmdStampa = MakeButton("cmdStampa", "Stampa", first + 5 * step, &frmAllenamento::cmdStampa_Click);
    cmdEsci = MakeButton("cmdEsci", "Esci", first + 6 * step, &frmAllenamento::cmdEsci_Click);
    cmdAttiva->setEnabled(false);
    cmdDisattiva->setEnabled(false);
}

void frmAllenamento::BeginEditing()
{
    for (i16 riga = 1; riga <= kRows; riga += 1) {
        ColoreSfondo(riga);
    }
    cmdAttiva->setEnabled(false);
}

/// Chooses a row and offers what can be done with it.
void frmAllenamento::ShowRowMenu(int riga, const QPoint& position)
{
    RigaSelezionata = riga;
    ColoreRiga(riga);
    mnuRigheTabella->exec(position);
}

void frmAllenamento::ConnectBox(Column column, int riga)
{
    TextBox& box = *Box(column, riga);
    box.Click = [this] { BeginEditing(); };
    box.KeyPress = [this, column, riga](int& keyAscii) {
        if (kData[static_cast<std::size_t>(column)].digitsOnly) {
            ThrowAwayNonDigit(keyAscii);
        }
        if (keyAscii == kEnter && ColumnLimitHolds(column, riga)) {
            MoveOn(column, riga);
        }
    };
    box.Validate = [this, column, riga] {
        const bool holds = ColumnLimitHolds(column, riga);
        FormatBox(column, riga, holds);
        return !holds;
    };
    box.MenuKey = [this, riga](const QPoint& position) { ShowRowMenu(riga, position); };
    if (column == RipetVolte) {
        box.GotFocus = [this, riga] { StripOf(LblRipetizioni, riga)->SetCaption(kRepetitionStrip); };
    }
}

void frmAllenamento::ConnectDateBox(std::size_t index)
{
    TextBox& box = *dateBoxes[index];
    box.Click = [this] { BeginEditing(); };
    box.KeyPress = [this, index](int& keyAscii) {
        ThrowAwayNonDigit(keyAscii);
        if (keyAscii == kEnter && DateLimitHolds(index)) {
            if (index + 1 < dateBoxes.size()) {
                dateBoxes[index + 1]->SetFocus();
            } else {
                cmdOK->SetFocus();
            }
        }
    };
    box.Validate = [this, index] {
        const bool holds = DateLimitHolds(index);
        if (index == 0 && DateNumber(0) == 0) {
            lblGiorniInizio->SetCaption(kBlankDateStrip);
        }
        return !holds;
    };
    if (index == 0) {
        box.GotFocus = [this] { lblGiorniInizio->SetCaption(kDateStrip); };
    }
}

bool frmAllenamento::ColumnLimitHolds(Column column, int riga)
{
    const ColumnData& row = kData[static_cast<std::size_t>(column)];
    return row.limit == 0 || LimitHolds(Val(SenzaPuntoMigliaia(Content(column, riga))), row.limit, row.message);
}

bool frmAllenamento::DateLimitHolds(std::size_t index)
{
    return LimitHolds(Val(dateBoxes[index]->Content()), kDateBoxes[index].limit, kDateBoxes[index].message);
}

void frmAllenamento::FormatBox(Column column, int riga, bool limitHeld)
{
    TextBox& box = *Box(column, riga);
    const Text testo = box.Content();
    const Formato formato = kData[static_cast<std::size_t>(column)].formato;
    const Text formattato = formato == Formato::Migliaia && !limitHeld ? testo : Formattato(testo, formato);
    if (formattato != testo) {
        box.SetContent(formattato);
    }
    if (column == RipetVolte && Val(testo) == 0) {
        StripOf(LblRipetizioni, riga)->SetCaption(kBlankRepetitionStrip);
    }
}

void frmAllenamento::MoveOn(Column column, int riga)
{
    if (column != RipetTempi) {
        Box(static_cast<Column>(column + 1), riga)->SetFocus();
    } else if (riga < kRows) {
        Box(Km, riga + 1)->SetFocus();
    }
}

frmAllenamento::frmAllenamento(TableWindows& windows)
    : Form(QStringLiteral("frmAllenamento")), mnuRigheTabella(new QMenu(this)), windows_(windows)
{
    setWindowTitle(QStringLiteral("Tabella allenamento "));
    setPalette(PagePalette());
    setAutoFillBackground(true);
    setFixedSize(kWidth, kHeight);
    BuildHeads();
    for (int riga = 1; riga <= kRows; ++riga) {
        BuildRow(riga);
    }
    BuildPanel();
    for (int riga = 1; riga <= kRows; ++riga) {
        for (std::size_t column = 0; column < kData.size(); ++column) {
            ConnectBox(static_cast<Column>(column), riga);
        }
        lblGiorni[riga]->MouseUp = [this, riga](Qt::MouseButton button, const QPoint& position) {
            if (button == Qt::RightButton) {
                ShowRowMenu(riga, position);
            }
        };
    }
    for (std::size_t i = 0; i < dateBoxes.size(); ++i) {
        ConnectDateBox(i);
    }
    mnuRigheTabella->setObjectName(QStringLiteral("mnuRigheTabella"));
    mnuRigheTabella->setTitle(QStringLiteral("&Righe Tabella"));
    FillMenu(*mnuRigheTabella,
             {{"mnuInserisciRiga", "&Inserisci Riga", [this] { mnuInserisciRiga_Click(); }},
              {"mnuEliminaRiga", "&Elimina Riga", [this] { mnuEliminaRiga_Click(); }}},
             MenuKind::PopUp);
    Load();
}

} // namespace zelvia
