// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageControls.h"

#include "diary/Fields.h"
#include "toolkit/Fonts.h"
#include "toolkit/QtText.h"
#include "windows/page/PageArt.h"
#include "windows/page/PageLayout.h"

#include <QPainter>

#include <algorithm>

namespace zelvia
{
namespace
{

using namespace PageLayout;

enum class Style { Caption, Value, Date, Counter, FileName, SlipValue, SlipHeading, Note };

struct LabelRow {
    Label* PageControls::*member;
    const char* name;
    TextView caption;
    QRect place;
    Style style;
    TextView spoken = {}; ///< What the label holds, for a screen reader.
    bool visible = true;
};

struct SpinRow {
    UpDown* PageControls::*member;
    const char* name;
    NumberMember field;
    QRect place;
    TextView tip;
    int start = 0;
    NumberRange range = {}; ///< Where it is not the field's.
};

struct PictureRow {
    Picture* PageControls::*member;
    const char* name;
    TextView caption;
    QRect place;
    void (*drawing)(QPainter&, const QRectF&) = nullptr; ///< Null for one that shows its caption.
    bool heading = false;
    bool visible = true;
};

struct ListRow {
    SelectionList lista;
    TextView caption;
    Row row;
};

constexpr QRect SlipCaption(int row, int step)
{
    return {kSlipCaptionLeft, SlipRow(row, step), kSlipCaptionWidth, kRowHeight};
}
constexpr QRect SlipValue(int row, int step)
{
    return {kSlipValueLeft, SlipRow(row, step), kSlipValueWidth, kRowHeight};
}

using P = PageControls;
using R = RecordGiorno;

const LabelRow kHead[] = {
    {&P::lblData, "lblData", "", kDate, Style::Date, "Data"},
};

const LabelRow kNumbers[] = {
    {&P::lblKm, "lblKm", "Km", Caption(Km), Style::Caption},
    {&P::lblImmisMetri, "lblImmisMetri", "0,0", Value(Km), Style::Value, "Distanza, chilometri e metri"},
    {&P::lblOraInizio, "lblOraInizio", "Ora Inizio", Caption(OraInizio), Style::Caption},
    {&P::lblImmisOraInizio, "lblImmisOraInizio", "0:00:00", Value(OraInizio), Style::Value, "Ora di inizio"},
    {&P::lblOraFine, "lblOraFine", "Ora Fine", Caption(OraFine), Style::Caption},
    {&P::lblImmisOraFine, "lblImmisOraFine", "0:00:00", Value(OraFine), Style::Value, "Ora di fine"},
    {&P::lblOutTempoImpiegato, "lblOutTempoImpiegato", "0:00:00", Value(Tempo), Style::Value, "Tempo impiegato"},
    {&P::lblOutMediaKM, "lblOutMediaKM", "0:00", Value(Media), Style::Value, "Media al chilometro"},
    {&P::lblCorridori, "lblCorridori", "Corridori", Caption(Corridori), Style::Caption},
    {&P::lblImmisCorridori, "lblImmisCorridori", "1", Value(Corridori), Style::Value, "Numero di corridori"},
    {&P::lblPeso, "lblPeso", "Peso", Caption(Peso), Style::Caption},
    {&P::lblImmisPeso, "lblImmisPeso", "0", Value(Peso), Style::Value, "Peso in chilogrammi"},
    {&P::lblRipetizioni, "lblRipetizioni", "Ripetizioni", Caption(Ripetizioni), Style::Caption},
    {&P::lblRipetizioniVolte, "lblRipetizioniVolte", "0", kVolte, Style::Value, "Ripetizioni, quante volte"},
    {&P::lblRipetizioniDistanza, "lblRipetizioniDistanza", "00", kDistanza, Style::Value,
     "Ripetizioni, metri di ognuna"},
    {&P::lblRipetizioniQuante, "lblRipetizioniQuante", "0:00", kQuante, Style::Value, "Ripetizioni, tempo di ognuna"},
    {&P::lblTempoKm, "lblTempoKm", "Tempi Km", Caption(Parziali), Style::Caption},
    {&P::lblImmisTempoKM, "lblImmisTempoKM", "0", kTempoKM, Style::Value, "Tempo parziale, chilometro"},
    {&P::lblImmisTempoMinuti, "lblImmisTempoMinuti", "00:00:00", kTempoMinuti, Style::Value, "Tempo parziale"},
};

const LabelRow kFoot[] = {
    {&P::lblNomeFile, "lblNomeFile", "", kFileName, Style::FileName, "Nome del diario"},
    {&P::lblNumGiornoAnno, "lblNumGiornoAnno", "", CounterValue(0), Style::Counter, "Giorno dell'anno"},
    {&P::lblNumGiorniCorseAnno, "lblNumGiorniCorseAnno", "", CounterValue(1), Style::Counter, "Allenamenti dell'anno"},
    {&P::lblNumKMPercorsi, "lblNumKMPercorsi", "", CounterValue(2), Style::Counter, "Chilometri percorsi nell'anno"},
    {&P::lblNumGare, "lblNumGare", "", CounterValue(3), Style::Counter, "Gare dell'anno"},
};

const LabelRow kPlan[] = {
    {&P::lblTabNomeFile, "lblTabNomeFile", "Nessuna tabella attiva", SlipValue(0, kPlanStep), Style::SlipHeading,
     "Tabella attiva"},
    {&P::lblKmTab, "lblKmTab", "0,0", SlipValue(1, kPlanStep), Style::SlipValue, "Tabella, chilometri"},
    {&P::lblTempoTab, "lblTempoTab", "0:0:0", SlipValue(2, kPlanStep), Style::SlipValue, "Tabella, tempo"},
    {&P::lblMediaTab, "lblMediaTab", "0:0", SlipValue(3, kPlanStep), Style::SlipValue, "Tabella, media al chilometro"},
    {&P::lblAndaturaTab, "lblAndaturaTab", "", SlipValue(4, kPlanStep), Style::SlipValue, "Tabella, andatura"},
    {&P::lblFondoTab, "lblFondoTab", "", SlipValue(5, kPlanStep), Style::SlipValue, "Tabella, terreno"},
    {&P::lblRipetizioniTab, "lblRipetizioniTab", "0 x 0  @  0:0", SlipValue(6, kPlanStep), Style::SlipValue,
     "Tabella, ripetizioni"},
    {&P::lblTimerTab, "lblTimerTab", "0", QRect(0, 0, 1, 1), Style::SlipValue, "", false},
};

const LabelRow kRace[] = {
    {&P::lblGara, "lblGara", "", SlipValue(0, kRaceStep), Style::SlipHeading, "Gara", false},
    {&P::lblLocalita, "lblLocalita", "", SlipValue(1, kRaceStep), Style::SlipValue, "Gara, località"_t, false},
    {&P::lblPartecipanti, "lblPartecipanti", "", SlipValue(2, kRaceStep), Style::SlipValue, "Gara, partecipanti",
     false},
    {&P::lblTempoImpiegato, "lblTempoImpiegato", "", SlipValue(3, kRaceStep), Style::SlipValue, "Gara, tempo impiegato",
     false},
    {&P::lblLunghezzaGara, "lblLunghezzaGara", "", SlipValue(4, kRaceStep), Style::SlipValue, "Gara, lunghezza", false},
    {&P::lblRisultato, "lblRisultato", "", SlipValue(5, kRaceStep), Style::SlipValue, "Gara, risultato", false},
    {&P::lblCategoria, "lblCategoria", "", SlipValue(6, kRaceStep), Style::SlipValue, "Gara, categoria", false},
    {&P::lblRisultatoCat, "lblRisultatoCat", "", SlipValue(7, kRaceStep), Style::SlipValue,
     "Gara, risultato di categoria", false},
};

const SpinRow kDateSpins[] = {
    {&P::upGiorno, "upGiorno", {}, QRect(500, 40, 24, 32), "giorno", 0, {0, 31}},
    {&P::upMese, "upMese", {}, QRect(542, 40, 24, 32), "mese", 0, {0, 12}},
};

const SpinRow kSpins[] = {
    {&P::upKM, "upKM", &R::Km, Spin(Km, 0), "chilometri"},
    {&P::upMetri, "upMetri", &R::Metri, Spin(Km, 1), "metri, a decine", 0, {0, 990, 10}},
    {&P::upMetro, "upMetro", {}, Spin(Km, 2), "metri", 0, {0, 9}},
    {&P::upOraInizio, "upOraInizio", &R::OraInizio, Spin(OraInizio, 0), "ore"},
    {&P::upMinutiInizio, "upMinutiInizio", &R::MinutiInizio, Spin(OraInizio, 1), "minuti"},
    {&P::upSecondiInizio, "upSecondiInizio", &R::SecondiInizio, Spin(OraInizio, 2), "secondi"},
    {&P::upOraFine, "upOraFine", &R::OraFine, Spin(OraFine, 0), "ore"},
    {&P::upMinutiFine, "upMinutiFine", &R::MinutiFine, Spin(OraFine, 1), "minuti"},
    {&P::upSecondiFine, "upSecondiFine", &R::SecondiFine, Spin(OraFine, 2), "secondi"},
    {&P::upCorridori, "upCorridori", &R::Corridori, Spin(Corridori, 0), "corridori", 1},
    {&P::upPeso, "upPeso", &R::Peso, Spin(Peso, 0), "chilogrammi", 30},
    {&P::upRipetizioni, "upRipetizioni", &R::Ripetizioni, Spin(Ripetizioni, 0), "volte"},
    {&P::upRipetizioniDistanza, "upRipetizioniDistanza", &R::RipetizioniDistanza, Spin(Ripetizioni, 1), "metri"},
    {&P::upRipetizioniQuante, "upRipetizioniQuante", &R::RipetizioniQuante, Spin(Ripetizioni, 2), "minuti"},
    {&P::upRipetizioniTempi, "upRipetizioniTempi", &R::RipetizioniTempi, Spin(Ripetizioni, 3), "secondi"},
    {&P::upTempoKM, "upTempoKM", {}, Spin(Parziali, 0), "chilometro", 0, {0, 100}},
    {&P::upTempoOre, "upTempoOre", {}, Spin(Parziali, 1), "ore", 0, {0, 24}},
    {&P::upTempoMinuti, "upTempoMinuti", {}, Spin(Parziali, 2), "minuti", 0, {0, 59}},
    {&P::upTempoSecondi, "upTempoSecondi", {}, Spin(Parziali, 3), "secondi", 0, {0, 59}},
};

const PictureRow kPictures[] = {
    {&P::pctGiornoAnno, "pctGiornoAnno", "Giorno dell'anno", CounterPicture(0), DrawCalendarLeaf},
    {&P::pctAllenamenti, "pctAllenamenti", "Allenamenti", CounterPicture(1), DrawShoe},
    {&P::pctKmpercorsi, "pctKmpercorsi", "Km percorsi", CounterPicture(2), DrawMilestone},
    {&P::pctGare, "pctGare", "Gare", CounterPicture(3), DrawCup},
    {&P::pctTabAllenamenti, "pctTabAllenamenti", "ALLENAMENTO :  ", SlipCaption(0, kPlanStep), nullptr, true},
    {&P::pctTabKm, "pctTabKm", "Km", SlipCaption(1, kPlanStep)},
    {&P::pctTabTempo, "pctTabTempo", "Tempo", SlipCaption(2, kPlanStep)},
    {&P::pctTabMedia, "pctTabMedia", "Media Km", SlipCaption(3, kPlanStep)},
    {&P::pctTabAndatura, "pctTabAndatura", "Andatura", SlipCaption(4, kPlanStep)},
    {&P::pctTabTerreno, "pctTabTerreno", "Terreno", SlipCaption(5, kPlanStep)},
    {&P::pctTabRipetizioni, "pctTabRipetizioni", "Ripetizioni", SlipCaption(6, kPlanStep)},
    {&P::pctCalGara, "pctCalGara", "GARA :  ", SlipCaption(0, kRaceStep), nullptr, true, false},
    {&P::pctCalLocalita, "pctCalLocalita", "Località "_t, SlipCaption(1, kRaceStep), nullptr, false, false},
    {&P::pctCalPartecipanti, "pctCalPartecipanti", "Partecipanti", SlipCaption(2, kRaceStep), nullptr, false, false},
    {&P::pctCalTempoImpiegato, "pctCalTempoImpiegato", "Tempo Impiegato", SlipCaption(3, kRaceStep), nullptr, false,
     false},
    {&P::pctCalLunghezza, "pctCalLunghezza", "Lunghezza", SlipCaption(4, kRaceStep), nullptr, false, false},
    {&P::pctCalRisultato, "pctCalRisultato", "Risultato", SlipCaption(5, kRaceStep), nullptr, false, false},
    {&P::pctCalCategoria, "pctCalCategoria", "Categoria", SlipCaption(6, kRaceStep), nullptr, false, false},
    {&P::pctCalRisCategoria, "pctCalRisCategoria", "Risultato", SlipCaption(7, kRaceStep), nullptr, false, false},
};

// The longest text that can be typed into the boxes of the lists and the notes.
constexpr int kListTextLimit = 22;
constexpr int kNoteLimit = 32;

const ListRow kLists[] = {
    {SelectionList::Percorso, "Percorso ", Percorso},
    {SelectionList::Lunghezza, "Lunghezza", Lunghezza},
    {SelectionList::Modo, "Andatura ", Andatura},
    {SelectionList::Fondo, "Terreno", Terreno},
    {SelectionList::Tipo, "Tipo", Tipo},
    {SelectionList::Stagione, "Stagione", Stagione},
    {SelectionList::TempoAtm, "Meteo", Meteo},
    {SelectionList::Temperatura, "Temperatura", Temperatura},
};

void ApplyStyle(Label& label, Style style)
{
    const auto ink = [&label](const QColor& color) {
        QPalette palette = label.palette();
        palette.setColor(QPalette::WindowText, color);
        label.setPalette(palette);
    };
    switch (style) {
    case Style::Caption: break; // As the page itself.
    case Style::Value:
    case Style::Note:
    case Style::SlipValue:
        label.setFont(PenFont(17));
        ink(Ink::Pen);
        break;
    case Style::Date:
    case Style::Counter:
        label.setFont(DateFont());
        ink(Ink::PrintDark);
        break;
    case Style::FileName: label.setFont(PrintFont(16, true)); break;
    case Style::SlipHeading:
        label.setFont(PrintFont(16, true));
        ink(Ink::PrintDark);
        break;
    }
}

QString Numbered(const char* name, int number)
{
    return QLatin1String(name) + QString::number(number);
}

Label* MakeLabel(QWidget* page, const QString& name, TextView caption, const QRect& place, Style style, TextView spoken)
{
    auto* label = new Label(page, name);
    label->setGeometry(place);
    label->SetCaption(caption);
    label->setAccessibleName(ToQString(spoken.empty() ? caption : spoken));
    ApplyStyle(*label, style);
    return label;
}

template <std::size_t N>
void MakeLabels(PageControls& controls, QWidget* page, const LabelRow (&rows)[N])
{
    for (const LabelRow& row : rows) {
        Label* label = MakeLabel(page, QLatin1String(row.name), row.caption, row.place, row.style, row.spoken);
        label->SetVisible(row.visible);
        controls.*row.member = label;
    }
}

NumberRange RangeOf(const SpinRow& row)
{
    const auto ofField = [](auto member) { return zelvia::RangeOf(member); };
    const auto none = [](std::monostate) { return NumberRange(); };
    return row.range.maximum > 0 ? row.range : std::visit(Overloaded{none, ofField}, row.field);
}

template <std::size_t N>
void MakeSpins(PageControls& controls, QWidget* page, const SpinRow (&rows)[N])
{
    for (const SpinRow& row : rows) {
        auto* spin = new UpDown(page, QLatin1String(row.name));
        spin->setGeometry(row.place);
        const NumberRange range = RangeOf(row);
        spin->SetRange(range.minimum, range.maximum, range.step);
        spin->SetValue(row.start);
        spin->setToolTip(ToQString(row.tip));
        spin->setAccessibleName(ToQString(row.tip));
        spin->SetVisible(false);
        controls.*row.member = spin;
        controls.numeri.push_back({row.field, spin});
    }
}

void MakePictures(PageControls& controls, QWidget* page)
{
    for (const PictureRow& row : kPictures) {
        auto* picture = new Picture(page, QLatin1String(row.name),
                                    row.drawing != nullptr ? Picture::Drawing(row.drawing)
                                                           : CaptionDrawing(row.caption, row.heading));
        picture->setGeometry(row.place);
        picture->setAccessibleName(ToQString(row.caption));
        if (row.drawing != nullptr) {
            picture->setToolTip(ToQString(row.caption));
        }
        picture->SetVisible(row.visible);
        controls.*row.member = picture;
    }
}

/// The rules that frame the date and its arrows.
void MakeDateFrame(QWidget* page)
{
    const struct {
        const char* name;
        QRect place;
        QColor ink;
    } bars[] = {
        {"chkBordoSup", {48, 28, 528, 2}, Ink::Accent},   {"chkBordoSup2", {48, 32, 528, 1}, Ink::Accent},
        {"chkBordoInf", {48, 78, 528, 2}, Ink::Accent},   {"chkBarraGiorno1", {48, 33, 1, 45}, Ink::Rule},
        {"chkBarraGiorno2", {491, 33, 1, 45}, Ink::Rule}, {"chkBarraGiorno3", {533, 33, 1, 45}, Ink::Rule},
        {"chkBarraGiorno4", {575, 33, 1, 45}, Ink::Rule},
    };
    for (const auto& bar : bars) {
        auto* rule = new Picture(page, QLatin1String(bar.name), [ink = bar.ink](QPainter& painter, const QRectF& area) {
            painter.fillRect(area, ink);
        });
        rule->setGeometry(bar.place);
    }
}

void DressInput(QWidget& input, const QRect& place)
{
    input.setGeometry(place);
    input.setFont(PenFont(17));
}

void MakeList(PageControls& controls, QWidget* page, const ListRow& row)
{
    ControlliLista& campo = controls.Campo(row.lista);
    const QString name = ToQString(ListName(row.lista));
    campo.lbl = MakeLabel(page, QLatin1String("lbl") + name, row.caption, Caption(row.row), Style::Caption, {});
    campo.lblImmis = MakeLabel(page, QLatin1String("lblImmis") + name, {}, Value(row.row), Style::Value, row.caption);
    campo.txt = new TextBox(page, QLatin1String("txt") + name, kListTextLimit);
    DressInput(*campo.txt, Value(row.row));
    campo.lst = new ListBox(page, QLatin1String("lst") + name);
    DressInput(*campo.lst, List(row.row));
    for (QWidget* input : {static_cast<QWidget*>(campo.txt), static_cast<QWidget*>(campo.lst)}) {
        input->setAccessibleName(ToQString(row.caption));
    }
    campo.txt->SetVisible(false);
    campo.lst->SetVisible(false);
}

void MakeNotes(PageControls& controls, QWidget* page)
{
    for (int line = 3; line <= 10; ++line) {
        ControlliNota& nota = controls.note[line];
        const QString spoken = QStringLiteral("Nota, riga %1").arg(line - 2);
        nota.lbl = MakeLabel(page, Numbered("lblNote", line), {}, Note(line), Style::Note, FromQString(spoken));
        nota.txt = new TextBox(page, Numbered("txtNote", line), kNoteLimit);
        DressInput(*nota.txt, Note(line));
        nota.txt->setAccessibleName(spoken);
        nota.txt->SetEntry(BoxEntry::CaretAtEnd);
        nota.txt->SetVisible(false);
    }
}

void MakeSplits(PageControls& controls, QWidget* page)
{
    controls.lstListaKM = new ListBox(page, QStringLiteral("lstListaKM"));
    DressInput(*controls.lstListaKM, kListaKM);
    controls.lstListaKM->setAccessibleName(QStringLiteral("Tempi parziali"));
    // It hands the focus on to its button at once, so Shift+Tab could not get past it.
    controls.lstListaKM->setFocusPolicy(Qt::ClickFocus);
    controls.lstListaKM->SetVisible(false);
    controls.cmdListaKM = new Button(page, QStringLiteral("cmdListaKM"), "Immetti nella lista");
    controls.cmdListaKM->setGeometry(kImmetti);
    controls.cmdListaKM->setFont(PrintFont(15));
    controls.cmdListaKM->SetVisible(false);
}

void MakeOrderedList(PageControls& controls, QWidget* page)
{
    constexpr std::array<TextView, 4> heads = {"posizione", "tempo", "media", "data"};
    const int width = kOrderedHeads.width() / 4;
    for (int i = 0; i < 4; ++i) {
        const auto index = static_cast<std::size_t>(i);
        auto* head = new Button(page, Numbered("cmdLO", i + 1), heads[index]);
        head->setGeometry(kOrderedHeads.left() + i * width, kOrderedHeads.top(), width, kOrderedHeads.height());
        head->setFont(PrintFont(14));
        head->setFocusPolicy(Qt::NoFocus);
        head->SetVisible(false);
        controls.cmdLO[index] = head;
    }
    controls.lstListaOrdinata = new ListBox(page, QStringLiteral("lstListaOrdinata"));
    controls.lstListaOrdinata->setGeometry(kOrderedList);
    controls.lstListaOrdinata->setFont(PageFont("Courier", 15));
    controls.lstListaOrdinata->setToolTip(QStringLiteral("Lista Tempi"));
    controls.lstListaOrdinata->setAccessibleName(QStringLiteral("Lista Tempi"));
    controls.lstListaOrdinata->SetVisible(false);
}

} // namespace

UpDown& PageControls::SpinOf(NumberMember member) const
{
    return *std::find_if(numeri.begin(), numeri.end(), [&](const NumberSpin& row) {
                return row.member == member;
            })->spin;
}

void BuildPage(PageControls& controls, QWidget* page)
{
    MakeDateFrame(page);
    MakeLabels(controls, page, kHead);
    MakeSpins(controls, page, kDateSpins);
    for (const ListRow& row : kLists) {
        MakeList(controls, page, row);
    }
    MakeLabels(controls, page, kNumbers);
    MakeSplits(controls, page);
    MakeSpins(controls, page, kSpins);
    MakeNotes(controls, page);
    MakeLabels(controls, page, kPlan);
    MakeLabels(controls, page, kRace);
    MakePictures(controls, page);
    MakeLabels(controls, page, kFoot);
    MakeOrderedList(controls, page);
}

} // namespace zelvia
