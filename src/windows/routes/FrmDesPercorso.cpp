// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/routes/FrmDesPercorso.h"

#include "core/Conversions.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "toolkit/Fonts.h"
#include "toolkit/RuledSheet.h"

#include <QPainter>

#include <array>
#include <numeric>
#include <optional>

namespace zelvia
{

using namespace Module1;

namespace
{

constexpr int kRows = 20;

// Places, in logical pixels.
constexpr QSize kSize{860, 636};
constexpr int kTop = 45;
constexpr int kRowStep = 27;
constexpr int kRowHeight = 25;
constexpr int kLabelLeft = 16;
constexpr int kTextLeft = 100;
constexpr int kTextWidth = 600;
constexpr int kKmLeft = 712;
constexpr int kKmWidth = 56;
constexpr int kMetriLeft = 776;
constexpr int kMetriWidth = 64;

constexpr int RowTop(int row)
{
    return kTop + (row - 1) * kRowStep;
}

constexpr int kTotalTop = RowTop(kRows + 1) + 6;

constexpr int kColumnRules[] = {12, kTextLeft - 6, kKmLeft - 6, kMetriLeft - 4, 847};
constexpr RuledSheet kSheet{.frame = {},
                            .head = {12, 8, 836, 35},
                            .headsTop = 13,
                            .firstRow = kTop - 1,
                            .step = kRowStep,
                            .rows = kRows,
                            .lines = kColumnRules};

constexpr std::array<GridColumn, 3> kColumns = {{
    {"txtTratto", 80, false, {}, CellFormat::Plain, kTextLeft, kTextWidth, "descrizione"},
    {"txtKm", 2, true, {}, CellFormat::Plain, kKmLeft, kKmWidth, "chilometri"},
    {"txtMetri", 3, true, {}, CellFormat::Plain, kMetriLeft, kMetriWidth, "metri"},
}};

constexpr std::array<GridColumn, 2> kTotals = {{
    {"txtDistanzaKm", 0, false, {}, CellFormat::Plain, kKmLeft, kKmWidth, "Totale, chilometri"},
    {"txtDistanzaMetri", 0, false, {}, CellFormat::Plain, kMetriLeft, kMetriWidth, "Totale, metri"},
}};

GridLook Look(int rows, int top)
{
    return {.rows = rows,
            .top = top,
            .step = kRowStep,
            .height = kRowHeight,
            .font = PenFont(20),
            .margins = {0, -1, 0, 0}};
}

i32 NumberIn(const TextBox* box)
{
    return Parsed<i32>(box->Content());
}

i32 SumOf(const BoundedArray<TextBox*, 1, kRows>& boxes)
{
    return std::accumulate(boxes.begin(), boxes.end(), i32(0),
                           [](i32 sum, const TextBox* box) { return sum + NumberIn(box); });
}

/// Reports when there is no place for the route.
std::optional<i16> PlaceOfCurrentRoute()
{
    const auto place = RoutePlace(PercorsoCorrente);
    if (!place) {
        MsgBox(Messages::kTooManyRoutes);
    }
    return place;
}

Text EmptyForZero(i32 number)
{
    return number == 0 ? Text() : PlainText(number);
}

} // namespace

frmDesPercorso::frmDesPercorso(QWidget* owner, RoutePage& page)
    : Form(QStringLiteral("frmDesPercorso"), owner), page_(page), grid_(kColumns)
{
    setWindowTitle(QStringLiteral(" Percorso "));
    setWindowModality(Qt::WindowModal);
    LayOnPaper(kSize);
    BuildLabels();
    BuildGrid();
    BuildTotals();
    VisualizzaListaPercorso();
}

void frmDesPercorso::BuildLabels()
{
    const auto make = [this](const QString& name, TextView caption, int left, int top, int width) {
        return MakeLabel(this, name, caption, {left, top, width, kRowHeight}, PrintFont(15));
    };
    constexpr int headTop = 15;
    make(QStringLiteral("lblDescrizione"), " Descrizione ", kTextLeft, headTop, 200);
    make(QStringLiteral("lblKm"), " Km ", kKmLeft, headTop, kKmWidth)->setAlignment(Qt::AlignCenter);
    make(QStringLiteral("lblMetri"), " Metri ", kMetriLeft, headTop, kMetriWidth)->setAlignment(Qt::AlignCenter);
    for (int row = 1; row <= kRows; ++row) {
        const Text caption = (row < 10 ? " " : "") + PlainText(i32(row)) + Text("°Tratto"_t);
        make(Indexed("lblTratto", row), caption, kLabelLeft, RowTop(row), kTextLeft - kLabelLeft - 12)
            ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        make(Indexed("lblDescr", row), "", kTextLeft, RowTop(row), kTextWidth);
    }
    make(QStringLiteral("lblTotale"), " Totale", kKmLeft - 80, kTotalTop, 76);
}

void frmDesPercorso::BuildGrid()
{
    // Every key counts as a change, one that is thrown away too. What is pasted, cut or undone comes without a key.
    grid_.Edited = [] { FileModificato = 1; };
    grid_.Build(this, Look(kRows, kTop));
    grid_.Speak();
    for (int row = 1; row <= kRows; ++row) {
        txtTratto[row] = grid_.Box(0, row);
        txtKm[row] = grid_.Box(1, row);
        txtMetri[row] = grid_.Box(2, row);
        txtKm[row]->LostFocus = txtMetri[row]->LostFocus = [this] { CalcolaDistanza(); };
    }
}

void frmDesPercorso::BuildTotals()
{
    txtDistanzaKm = MakeBox(this, kTotals[0], Look(1, kTotalTop));
    txtDistanzaMetri = MakeBox(this, kTotals[1], Look(1, kTotalTop));
    for (TextBox* total : {txtDistanzaKm, txtDistanzaMetri}) {
        total->setReadOnly(true);
        total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    grid_.beside = {txtDistanzaKm};
}

void frmDesPercorso::VisualizzaListaPercorso()
{
    Trap("VisualizzaListaPercorso - ERRORE : ", [this] {
        const auto place = PlaceOfCurrentRoute();
        if (!place) {
            return;
        }
        for (int j = 1; j <= kRows; ++j) {
            txtTratto[j]->SetContent(TrattoDescrizione[*place][j]);
            txtKm[j]->SetContent(EmptyForZero(TrattoKm[*place][j]));
            txtMetri[j]->SetContent(EmptyForZero(TrattoMetri[*place][j]));
        }
        CalcolaDistanza();
    });
}

void frmDesPercorso::CalcolaDistanza()
{
    Trap("CalcolaDistanza - ERRORE : ", [this] {
        TotaleKm = TotaleMetri = RestoMetri = 0;
        // The kilometres are shown before the metres are added: their sum may be out of range.
        TotaleKm = SumOf(txtKm);
        txtDistanzaKm->SetContent(PlainText(TotaleKm));
        TotaleMetri = SumOf(txtMetri);
        const RouteLength total = LengthOf(TotaleKm, TotaleMetri);
        TotaleKm = total.km;
        if (TotaleMetri != total.metres) {
            RestoMetri = total.metres;
        }
        txtDistanzaKm->SetContent(PlainText(total.km));
        txtDistanzaMetri->SetContent(PlainText(total.metres));
    });
}

void frmDesPercorso::AssegnaArray()
{
    Trap("AssegnaArray - ERRORE : ", [this] {
        const auto place = PlaceOfCurrentRoute();
        if (!place) {
            return;
        }
        for (int j = 1; j <= kRows; ++j) {
            TrattoDescrizione[*place][j] = txtTratto[j]->Content();
            TrattoKm[*place][j] = NumberIn(txtKm[j]);
            TrattoMetri[*place][j] = NumberIn(txtMetri[j]);
        }
        const i32 km = NumberIn(txtDistanzaKm);
        const i32 metres = NumberIn(txtDistanzaMetri);
        DistanzePercorso[*place] = km * 1000 + metres;
        page_.SetDistance(km, metres);
        AzzeraVideo();
    });
}

void frmDesPercorso::AzzeraVideo()
{
    Trap("AzzeraVideo - ERRORE : ", [this] {
        grid_.Visit([this](int column, int row) { grid_.Box(column, row)->SetContent({}); });
        txtDistanzaKm->SetContent({});
        txtDistanzaMetri->SetContent({});
    });
}

void frmDesPercorso::keyPressEvent(QKeyEvent* event)
{
    if (!grid_.MoveByKey(*event)) {
        Form::keyPressEvent(event);
    }
}

void frmDesPercorso::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawRuledSheet(painter, kSheet);
}

void frmDesPercorso::OnUnload()
{
    CalcolaDistanza();
    AssegnaArray();
}

} // namespace zelvia
