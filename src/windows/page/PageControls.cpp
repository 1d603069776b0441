// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageControls.h"

#include "diary/Fields.h"
#include "toolkit/Fonts.h"
#include "toolkit/QtText.h"
#include "windows/page/PageArt.h"
#include "windows/page/PageFields.h"

#include <QPainter>

#include <algorithm>
#include <span>

namespace zelvia
{
namespace
{

using namespace PageLayout;

enum class Style { Caption, Value, Date, Counter, FileName, SlipValue, SlipHeading, Note };

/// A picture and the value beside it or, on a slip, behind it.
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

// The longest text that can be typed into the boxes of the lists and the notes.
constexpr int kListTextLimit = 22;
constexpr int kNoteLimit = 32;

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

/// Shown before it can have the focus, a label keeps painting its text itself; otherwise Qt lays it out in a document.
void PaintItself(Label& label)
{
    label.SetVisible(true);
}

UpDown* MakeSpin(QWidget* page, TextView name, const QRect& place, TextView tip, const NumberRange& range, int start)
{
    auto* spin = new UpDown(page, QLatin1String("up") + ToQString(name));
    spin->setGeometry(place);
    spin->SetRange(range.minimum, range.maximum, range.step);
    spin->SetValue(start);
    spin->setToolTip(ToQString(tip));
    spin->setAccessibleName(ToQString(tip));
    spin->SetVisible(false);
    return spin;
}

Picture* MakePicture(QWidget* page, const PairRow& row, const QRect& place, bool heading)
{
    auto* picture =
        new Picture(page, QLatin1String(row.pictureName),
                    row.drawing != nullptr ? Picture::Drawing(row.drawing) : CaptionDrawing(row.caption, heading));
    picture->setGeometry(place);
    picture->setAccessibleName(ToQString(row.caption));
    return picture;
}

void MakeCounters(PageControls& controls, QWidget* page)
{
    int index = 0;
    for (const PairRow& row : kCounters) {
        controls.*row.picture = MakePicture(page, row, CounterPicture(index), false);
        (controls.*row.picture)->setToolTip(ToQString(row.caption));
        controls.*row.label =
            MakeLabel(page, QLatin1String(row.labelName), {}, CounterValue(index), Style::Counter, row.spoken);
        ++index;
    }
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
        lines.push_back({controls.*row.picture, controls.*row.label});
        lines.back().picture->SetVisible(visible);
        lines.back().label->SetVisible(visible);
    }
    return lines;
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
    ListControls& field = controls.ListField(row.list);
    const QString name = ToQString(ListName(row.list));
    field.lbl = MakeLabel(page, QLatin1String("lbl") + name, row.caption, Caption(row.row), Style::Caption, {});
    field.lblImmis = MakeLabel(page, QLatin1String("lblImmis") + name, {}, Value(row.row), Style::Value, row.caption);
    field.txt = new TextBox(page, QLatin1String("txt") + name, kListTextLimit);
    DressInput(*field.txt, Value(row.row));
    field.lst = new ListBox(page, QLatin1String("lst") + name);
    DressInput(*field.lst, List(row.row));
    for (QWidget* input : {static_cast<QWidget*>(field.txt), static_cast<QWidget*>(field.lst)}) {
        input->setAccessibleName(ToQString(row.caption));
    }
    field.txt->SetVisible(false);
    field.lst->SetVisible(false);
    controls.captions.push_back(field.lbl);
}

void MakeNumberLabels(PageControls& controls, QWidget* page, const NumberRow& row)
{
    if (row.label != nullptr) {
        controls.*row.label = MakeLabel(page, QLatin1String("lbl") + ToQString(row.name), row.caption, Caption(row.row),
                                        Style::Caption, {});
        controls.captions.push_back(controls.*row.label);
    }
    for (const GroupRow& group : row.groups) {
        for (const ValueRow& value : group.values) {
            controls.*value.label =
                MakeLabel(page, QLatin1String("lbl") + ToQString(value.name), value.text,
                          value.place.isNull() ? Value(row.row) : value.place, Style::Value, value.spoken);
            PaintItself(*(controls.*value.label));
        }
    }
}

void MakeNumberSpins(PageControls& controls, QWidget* page, const NumberRow& row)
{
    const auto rangeOf =
        Overloaded{[](std::monostate) { return NumberRange(); }, [](auto member) { return RangeOf(member); }};
    int index = 0;
    for (const GroupRow& group : row.groups) {
        for (const SpinRow& spin : group.spins) {
            controls.*spin.member =
                MakeSpin(page, spin.name, Spin(row.row, index++), spin.tip,
                         spin.range.maximum > 0 ? spin.range : std::visit(rangeOf, spin.number), spin.start);
            controls.numbers.push_back({spin.number, controls.*spin.member, controls.*group.values.front().label});
        }
    }
}

void MakeNotes(PageControls& controls, QWidget* page)
{
    for (int line = 3; line <= 10; ++line) {
        NoteControls& note = controls.notes[line];
        const QString spoken = QStringLiteral("Nota, riga %1").arg(line - 2);
        note.lbl = MakeLabel(page, Numbered("lblNote", line), {}, Note(line), Style::Note, FromQString(spoken));
        note.txt = new TextBox(page, Numbered("txtNote", line), kNoteLimit);
        DressInput(*note.txt, Note(line));
        note.txt->setAccessibleName(spoken);
        note.txt->SetEntry(BoxEntry::CaretAtEnd);
        note.txt->SetVisible(false);
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

const PageControls::NumberControls& PageControls::ControlsOf(NumberMember member) const
{
    return *std::find_if(numbers.begin(), numbers.end(),
                         [&](const NumberControls& number) { return number.member == member; });
}

void BuildPage(PageControls& controls, QWidget* page)
{
    MakeDateFrame(page);
    controls.lblData = MakeLabel(page, QStringLiteral("lblData"), {}, kDate, Style::Date, "Data");
    PaintItself(*controls.lblData);
    controls.upGiorno = MakeSpin(page, "Giorno", {500, 40, 24, 32}, "giorno", {0, 31}, 0);
    controls.upMese = MakeSpin(page, "Mese", {542, 40, 24, 32}, "mese", {0, 12}, 0);
    for (const ListRow& row : ListRows()) {
        MakeList(controls, page, row);
    }
    for (const NumberRow& row : NumberRows()) {
        MakeNumberLabels(controls, page, row);
    }
    MakeSplits(controls, page);
    for (const NumberRow& row : NumberRows()) {
        MakeNumberSpins(controls, page, row);
    }
    MakeNotes(controls, page);
    controls.tableSlip = MakeSlip(controls, page, kPlan, kPlanStep, true);
    controls.raceSlip = MakeSlip(controls, page, kRace, kRaceStep, false);
    controls.lblTimerTab = MakeLabel(page, QStringLiteral("lblTimerTab"), "0", {0, 0, 1, 1}, Style::SlipValue, {});
    controls.lblTimerTab->SetVisible(false);
    MakeCounters(controls, page);
    controls.lblNomeFile =
        MakeLabel(page, QStringLiteral("lblNomeFile"), {}, kFileName, Style::FileName, "Nome del diario");
    MakeOrderedList(controls, page);
}

} // namespace zelvia
