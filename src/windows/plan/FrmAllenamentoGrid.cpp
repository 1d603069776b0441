// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The table editor's controls: their places, and the events of its boxes.
#include "core/Conversions.h"
#include "toolkit/Fonts.h"
#include "toolkit/Menu.h"
#include "toolkit/QtText.h"
#include "toolkit/RuledSheet.h"
#include "windows/plan/FrmAllenamento.h"
#include "windows/plan/PlanColumns.h"
#include "windows/plan/TableWindows.h"

#include <QFontMetricsF>
#include <QMenu>
#include <QPainter>

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
    return PrintFont(14);
}

/// The uprights between the strips.
constexpr int kColumnRules[] = {2, 51, 136, 248, 382, 572, 762, 1035};
constexpr RuledSheet kSheet{.frame = {},
                            .head = {2, 4, 1034, 47},
                            .headsTop = 9,
                            .firstRow = kTop - 1,
                            .step = kStep,
                            .rows = kRows,
                            .lines = kColumnRules};

/// Puts the words of a head, which begins with a blank, over the boxes of its columns by the spacing of its words.
void SpreadOver(Label& head, int firstColumn, int lastColumn)
{
    const auto middle = [](int column) {
        const GridColumn& boxes = kPlanColumns[static_cast<std::size_t>(column)];
        return boxes.left + boxes.width / 2.0;
    };
    const QString caption = head.text();
    const QStringList words = caption.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const auto ledBy = caption.indexOf(words.first());
    const auto blanks = caption.indexOf(words.last()) - ledBy - words.join(QString()).size() + words.last().size();
    QFont font = HeadFont();
    const QFontMetricsF metrics(font);
    const qreal first = metrics.horizontalAdvance(words.first());
    const qreal last = metrics.horizontalAdvance(words.last());
    const qreal written = metrics.horizontalAdvance(words.join(QString()));
    const qreal span = middle(lastColumn) - middle(firstColumn) + (first + last) / 2;
    const qreal blank = metrics.horizontalAdvance(QLatin1Char(' '));
    // The spacing of words is added once between two words, however many blanks there are.
    const qreal more = (span - written - blank * static_cast<qreal>(blanks)) / static_cast<qreal>(words.size() - 1);
    font.setWordSpacing(more);
    head.setFont(font);
    const int left = qRound(middle(firstColumn) - first / 2 - blank * static_cast<qreal>(ledBy) - more);
    head.setGeometry(left, head.y(), qCeil(QFontMetricsF(font).horizontalAdvance(caption)), head.height());
}

GridLook Look(int rows, int top, int height)
{
    return {.rows = rows, .top = top, .step = kStep, .height = height, .font = PenFont(18), .margins = {0, -4, -1, -2}};
}

} // namespace

void frmAllenamento::BuildHeads()
{
    struct Head {
        const char* name;
        TextView caption;
        QRect place;
        int first = 0; ///< Of the columns whose units it names.
        int last = 0;
    };
    constexpr int upper = 10;
    constexpr int lower = 30;
    const Head heads[] = {
        {"lblGiorno", "Giorno", {4, lower, 48, 18}},
        {"lblTitoloDistanza", " Distanza", {54, upper, 80, 18}},
        {"lblTitoloKm", "  km  metri", {54, lower, 84, 18}, Km, Metri},
        {"lblTitoloTempo", " Tempo", {140, upper, 106, 18}},
        {"lblTitoloOre", "  hh  mm  ss", {140, lower, 106, 18}, Ore, Secondi},
        {"lblTitoloMedia", " Media", {252, upper, 128, 18}},
        {"lblTitoloMinuti", "  mm  ss   mls ", {252, lower, 128, 18}, MediaMinuti, MediaMillesimi},
        {"lblTitoloAndatura", " Andatura", {386, lower, 184, 18}},
        {"lblTitoloTerreno", " Terreno", {576, lower, 184, 18}},
        {"lblTitoloRipetizioni", " Ripetizioni", {766, lower, 264, 18}},
        {"lblTitoloInizio", " Data Inizio", {kPanelLeft, lower, 176, 18}},
    };
    for (const Head& head : heads) {
        Label* label = MakeLabel(this, QLatin1String(head.name), head.caption, head.place, HeadFont());
        if (head.last > 0) {
            SpreadOver(*label, head.first, head.last);
        } else {
            label->setAlignment(Qt::AlignCenter);
        }
    }
}

void frmAllenamento::BuildLabels(int row)
{
    const int top = RowTop(row);
    lblGiorni[row] =
        MakeLabel(this, Indexed("lblGiorni", row), " " + PlainText(i32(row)), {4, top, 46, kBoxHeight}, HeadFont());
    lblGiorni[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblGiorni[row]->setIndent(12);
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
    grid_.Speak();
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
    grid_.beside = {cmdOK, cmdAttiva, cmdDisattiva, cmdCalcoloMedie, cmdSalva, cmdStampa, cmdEsci};
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

void frmAllenamento::keyPressEvent(QKeyEvent* event)
{
    if (!grid_.MoveByKey(*event)) {
        Form::keyPressEvent(event);
    }
}

void frmAllenamento::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawRuledSheet(painter, kSheet);
    DrawSheetHead(painter, {kPanelLeft, kSheet.head.top(), 176, kSheet.head.height()});
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
