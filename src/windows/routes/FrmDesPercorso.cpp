// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/routes/FrmDesPercorso.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/RouteTotals.h"
#include "toolkit/Fonts.h"
#include "toolkit/GridBox.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"
#include "windows/routes/RoutePage.h"

#include <array>

namespace zelvia
{

using namespace Module1;

namespace
{

constexpr int kRows = 20;

// Places, in logical pixels.
constexpr QSize kSize{860, 636};
constexpr int kTop = 40;
constexpr int kRowStep = 27;
constexpr int kRowHeight = 25;
constexpr int kLabelLeft = 16;
constexpr int kTextLeft = 100;
constexpr int kTextWidth = 600;
constexpr int kKmLeft = 712;
constexpr int kKmWidth = 56;
constexpr int kMetriLeft = 776;
constexpr int kMetriWidth = 64;

constexpr int RowTop(int riga)
{
    return kTop + (riga - 1) * kRowStep;
}

i32 Parsed(const TextBox& box)
{
    return RoundTo<i32>(Val(box.Content()));
}

std::array<i32, kRows> Parsed(const BoundedArray<TextBox*, 1, kRows>& boxes)
{
    std::array<i32, kRows> numbers;
    for (int j = 1; j <= kRows; ++j) {
        numbers[static_cast<std::size_t>(j - 1)] = Parsed(*boxes[j]);
    }
    return numbers;
}

Text EmptyForZero(i32 number)
{
    return number == 0 ? Text() : PlainText(number);
}

} // namespace

frmDesPercorso::frmDesPercorso(QWidget* owner, RoutePage& page)
    : Form(QStringLiteral("frmDesPercorso"), owner), page_(page)
{
    setWindowTitle(QStringLiteral(" Percorso "));
    setWindowModality(Qt::WindowModal);
    setPalette(PagePalette());
    setAutoFillBackground(true);
    setFixedSize(kSize);
    BuildGrid();
    VisualizzaListaPercorso();
}

TextBox* frmDesPercorso::MakeBox(const QString& name, int limit, const QRect& place, const QString& spoken)
{
    auto* box = new TextBox(this, name, limit);
    box->setGeometry(place);
    box->setFont(PageFont("Times New Roman", 16));
    box->setAccessibleName(spoken);
    return box;
}

void frmDesPercorso::MakeLabel(const QString& name, TextView caption, const QRect& place)
{
    auto* label = new Label(this, name);
    label->SetCaption(caption);
    label->setFont(PageFont("Times New Roman", 15));
    label->setGeometry(place);
}

void frmDesPercorso::BuildGrid()
{
    constexpr int headTop = 10;
    MakeLabel(QStringLiteral("lblDescrizione"), " Descrizione ", {kTextLeft, headTop, 200, kRowHeight});
    MakeLabel(QStringLiteral("lblKm"), " Km ", {kKmLeft, headTop, kKmWidth, kRowHeight});
    MakeLabel(QStringLiteral("lblMetri"), " Metri ", {kMetriLeft, headTop, kMetriWidth, kRowHeight});
    for (int riga = 1; riga <= kRows; ++riga) {
        const int top = RowTop(riga);
        const Text caption = (riga < 10 ? " " : "") + PlainText(i32(riga)) + Text("°Tratto"_t);
        MakeLabel(Indexed("lblTratto", riga), caption, {kLabelLeft, top, kTextLeft - kLabelLeft - 8, kRowHeight});
        MakeLabel(Indexed("lblDescr", riga), "", {kTextLeft, top, kTextWidth, kRowHeight});
        const QString spoken = QStringLiteral("Tratto %1, ").arg(riga);
        txtTratto[riga] = MakeBox(Indexed("txtTratto", riga), 80, {kTextLeft, top, kTextWidth, kRowHeight},
                                  spoken + QStringLiteral("descrizione"));
        txtKm[riga] = MakeBox(Indexed("txtKm", riga), 2, {kKmLeft, top, kKmWidth, kRowHeight},
                              spoken + QStringLiteral("chilometri"));
        txtMetri[riga] = MakeBox(Indexed("txtMetri", riga), 3, {kMetriLeft, top, kMetriWidth, kRowHeight},
                                 spoken + QStringLiteral("metri"));
    }
    const int totalTop = RowTop(kRows + 1) + 10;
    MakeLabel(QStringLiteral("lblTotale"), " Totale", {kKmLeft - 80, totalTop, 76, kRowHeight});
    txtDistanzaKm = MakeBox(QStringLiteral("txtDistanzaKm"), 0, {kKmLeft, totalTop, kKmWidth, kRowHeight},
                            QStringLiteral("Totale, chilometri"));
    txtDistanzaMetri = MakeBox(QStringLiteral("txtDistanzaMetri"), 0, {kMetriLeft, totalTop, kMetriWidth, kRowHeight},
                               QStringLiteral("Totale, metri"));
    txtDistanzaKm->setReadOnly(true);
    txtDistanzaMetri->setReadOnly(true);
    for (int riga = 1; riga <= kRows; ++riga) {
        ConnectRow(riga);
    }
}

void frmDesPercorso::ConnectRow(int riga)
{
    // Every key counts as a change, one that is thrown away too.
    txtTratto[riga]->KeyPress = [this, riga](int& keyAscii) {
        FileModificato = 1;
        if (keyAscii == kEnter) {
            txtKm[riga]->SetFocus();
        }
    };
    txtKm[riga]->KeyPress = [this, riga](int& keyAscii) {
        FileModificato = 1;
        ThrowAwayNonDigit(keyAscii);
        if (keyAscii == kEnter) {
            txtMetri[riga]->SetFocus();
        }
    };
    txtMetri[riga]->KeyPress = [this, riga](int& keyAscii) {
        FileModificato = 1;
        ThrowAwayNonDigit(keyAscii);
        if (keyAscii == kEnter && riga < kRows) {
            txtTratto[riga + 1]->SetFocus();
        }
    };
    // What is pasted, cut or undone is a change as well, and comes with no character.
    for (TextBox* box : {txtTratto[riga], txtKm[riga], txtMetri[riga]}) {
        box->Change = [] { FileModificato = 1; };
    }
    txtKm[riga]->LostFocus = [this] { CalcolaDistanza(); };
    txtMetri[riga]->LostFocus = [this] { CalcolaDistanza(); };
}

void frmDesPercorso::VisualizzaListaPercorso()
{
    Trap("VisualizzaListaPercorso - ERRORE : ", [this] {
        const auto posto = PostoPercorso(PercorsoCorrente);
        if (!posto) {
            MsgBox(kTooManyRoutes, MsgButtons::OK, MsgIcon::Critical);
            return;
        }
        for (int j = 1; j <= kRows; ++j) {
            txtTratto[j]->SetContent(TrattoDescrizione[*posto][j]);
            txtKm[j]->SetContent(EmptyForZero(TrattoKm[*posto][j]));
            txtMetri[j]->SetContent(EmptyForZero(TrattoMetri[*posto][j]));
        }
        CalcolaDistanza();
    });
}

void frmDesPercorso::CalcolaDistanza()
{
    Trap("CalcolaDistanza - ERRORE : ", [this] {
        TotaleKm = TotaleMetri = RestoMetri = 0;
        // The kilometres are on show before the metres are added: these may be too many.
        TotaleKm = SommaTratti(Parsed(txtKm));
        txtDistanzaKm->SetContent(PlainText(TotaleKm));
        TotaleMetri = SommaTratti(Parsed(txtMetri));
        const LunghezzaPercorso totale = Lunghezza(TotaleKm, TotaleMetri);
        TotaleKm = totale.km;
        if (TotaleMetri != totale.metri) {
            RestoMetri = totale.metri;
        }
        txtDistanzaKm->SetContent(PlainText(totale.km));
        txtDistanzaMetri->SetContent(PlainText(totale.metri));
    });
}

void frmDesPercorso::AssegnaArray()
{
    Trap("AssegnaArray - ERRORE : ", [this] {
        const auto posto = PostoPercorso(PercorsoCorrente);
        if (!posto) {
            MsgBox(kTooManyRoutes, MsgButtons::OK, MsgIcon::Critical);
            return;
        }
        for (int j = 1; j <= kRows; ++j) {
            TrattoDescrizione[*posto][j] = txtTratto[j]->Content();
            TrattoKm[*posto][j] = Parsed(*txtKm[j]);
            TrattoMetri[*posto][j] = Parsed(*txtMetri[j]);
        }
        const i32 km = Parsed(*txtDistanzaKm);
        const i32 metri = Parsed(*txtDistanzaMetri);
        DistanzePercorso[*posto] = km * 1000 + metri;
        page_.SetDistance(km, metri);
        AzzeraVideo();
    });
}

void frmDesPercorso::AzzeraVideo()
{
    Trap("AzzeraVideo - ERRORE : ", [this] {
        for (int j = 1; j <= kRows; ++j) {
            for (TextBox* box : {txtTratto[j], txtKm[j], txtMetri[j]}) {
                box->SetContent({});
            }
        }
        txtDistanzaKm->SetContent({});
        txtDistanzaMetri->SetContent({});
    });
}

void frmDesPercorso::OnUnload()
{
    CalcolaDistanza();
    AssegnaArray();
}

} // namespace zelvia
