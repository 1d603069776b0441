// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The race calendar's controls: their places, and the events of its boxes.
#include "toolkit/Colours.h"
#include "toolkit/FocusController.h"
#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "toolkit/RuledSheet.h"
#include "windows/races/FrmCalendario.h"

#include <QKeyEvent>
#include <QPainter>

#include <functional>
#include <utility>

namespace zelvia
{

using namespace CalendarGrid;

namespace
{

// Places above and below the grid.
constexpr QRect kTitle{40, 22, 500, 38};
constexpr QRect kPageName{1000, 22, 150, 38};
constexpr QRect kPageSpin{1184, 25, 26, 32};
constexpr int kFoot = 644;
constexpr int kButtonWidth = 130;
constexpr int kButtonHeight = 32;
constexpr int kRight = 1232;

/// The fixed pitch of the strips keeps their signs between the boxes.
QFont StripFont()
{
    return PageFont("Courier", 12);
}

/// The signs between the boxes of a distance and of a time.
struct Separators {
    const char* name;
    TextView caption;
    int left;
    int width;
};
constexpr Separators kSeparators[] = {{"lblKmt", "     ,", 662, 88}, {"lblTempi", "     :     :", 928, 122}};

/// The headings over several columns.
struct Group {
    const char* name;
    TextView caption;
    int left;
    int width;
};
constexpr Group kGroups[] = {{"lblTitoloData", "Data", 66, 147},
                             {"lblTitoloDistanza", "Distanza", 664, 84},
                             {"lblTitoloTempo", "Tempo", 930, 118},
                             {"lblTitoloRisultato", "Risultato", 1152, 76}};

/// The printed rules between the groups of columns.
constexpr int kColumnRules[] = {57, 218, 481, 659, 753, 839, 925, 1053, 1147};

constexpr RuledSheet kSheet{.frame = {8, 6, kWidth - 16, kHeight - 12},
                            .head = {kNumberLeft, 14, kRight - kNumberLeft, 52},
                            .headsTop = kUpperHeads,
                            .firstRow = kTop - 2,
                            .step = kStep,
                            .rows = kRows,
                            .lines = kColumnRules};

} // namespace

frmCalendario::frmCalendario() : Form(QStringLiteral("frmCalendario"))
{
    LayOnPaper({kWidth, kHeight});
    BuildHeads();
    for (int row = 1; row <= kRows; ++row) {
        BuildLabels(row);
    }
    BuildGrid();
    BuildFoot();
    Load();
}

void frmCalendario::BuildHeads()
{
    Label* title = MakeLabel(this, QStringLiteral("lblTitolo"), "Calendario Gare", kTitle, PrintFont(24, true));
    SetForeColour(*title, Ink::PrintDark);
    lblPaginaGare = MakeLabel(this, QStringLiteral("lblPaginaGare"), {}, kPageName, PrintFont(16));
    lblPaginaGare->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const auto head = [this](const QString& name, TextView caption, const QRect& place) {
        MakeLabel(this, name, caption, place, PrintFont(14))->setAlignment(Qt::AlignCenter);
    };
    head(QStringLiteral("lblTitoloNumero"), "N°"_t, {kNumberLeft, kLowerHeads, kNumberWidth, kHeadHeight});
    for (const Group& group : kGroups) {
        head(QLatin1String(group.name), group.caption, {group.left, kUpperHeads, group.width, kHeadHeight});
    }
    for (std::size_t i = 0; i < kColumns; ++i) {
        const GridColumn& column = kRaceColumns[i];
        head(QLatin1String("lblTitolo_") + QLatin1String(column.name), kHeads[i],
             {column.left - 4, kLowerHeads, column.width + 8, kHeadHeight});
    }
}

void frmCalendario::BuildLabels(int row)
{
    const int top = RowTop(row);
    lblNumeroGara[row] =
        MakeLabel(this, Indexed("lblNumeroGara", row), {}, {kNumberLeft, top, kNumberWidth, kBoxHeight}, PrintFont(14));
    lblNumeroGara[row]->setAlignment(Qt::AlignCenter);
    lblGiornoGara[row] = MakeLabel(this, Indexed("lblGiornoGara", row), kBlankDateStrip,
                                   {kDateStripLeft, top, kDateStripWidth, kBoxHeight}, StripFont());
    for (const Separators& signs : kSeparators) {
        MakeLabel(this, Indexed(signs.name, row), signs.caption, {signs.left, top, signs.width, kBoxHeight},
                  StripFont());
    }
    for (std::size_t i = 0; i < kPrintLabels.size(); ++i) {
        printLabels_[i][row] = new Label(this, Indexed(kPrintLabels[i].name, row));
        printLabels_[i][row]->SetVisible(false);
    }
}

void frmCalendario::BuildGrid()
{
    grid_.signs = {0, kDateStrip, kBlankDateStrip, [this](int row) { return lblGiornoGara[row]; }};
    grid_.Build(this, {.rows = kRows,
                       .top = kTop,
                       .step = kStep,
                       .height = kBoxHeight,
                       .font = PenFont(19),
                       .margins = {0, -2, 0, -2}});
}

void frmCalendario::BuildFoot()
{
    upPaginaGare = new UpDown(this, QStringLiteral("upPaginaGare"));
    upPaginaGare->setGeometry(kPageSpin);
    upPaginaGare->SetRange(0, (kPages - 1) * kRows, kRows);
    upPaginaGare->setFocusPolicy(Qt::TabFocus);
    upPaginaGare->setToolTip(QStringLiteral("pagina (Pag Giù e Pag Su)"));
    upPaginaGare->setAccessibleName(QStringLiteral("Pagina delle gare"));
    upPaginaGare->Change = [this] { upPaginaGare_Change(); };
    const auto make = [this](const char* name, TextView caption, int fromRight, std::function<void()> click) {
        constexpr int step = kButtonWidth + 14;
        const int left = kRight - kButtonWidth - fromRight * step;
        return MakeButton(this, name, caption, {left, kFoot, kButtonWidth, kButtonHeight}, std::move(click));
    };
    cmdSalva = make("cmdSalva", "Salva", 2, [this] { cmdSalva_Click(); });
    cmdStampa = make("cmdStampa", "Stampa", 1, [this] { cmdStampa_Click(); });
    cmdEsci = make("cmdEsci", "Esci", 0, [this] { Unload(); });
    grid_.beside = {cmdSalva, cmdStampa, cmdEsci};
}

/// Turns the page by a key, which unlike the arrow of the pages leaves the box that has the focus.
void frmCalendario::TurnPage(bool forward)
{
    if (!FocusController::Instance().Refuses(nullptr)) {
        forward ? upPaginaGare->StepUp(1) : upPaginaGare->StepDown(1);
    }
}

void frmCalendario::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_PageDown) {
        TurnPage(true);
    } else if (event->key() == Qt::Key_PageUp) {
        TurnPage(false);
    } else if (!grid_.MoveByKey(*event)) {
        Form::keyPressEvent(event);
    }
}

void frmCalendario::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawRuledSheet(painter, kSheet);
    // Before the arrows of the pages.
    DrawRule(painter, QRectF(1162, kSheet.head.top() + 5, 1, kSheet.head.height() - 7), Ink::Rule);
}

} // namespace zelvia
