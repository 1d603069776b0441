// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The search window's controls: their places, looks and handlers.
#include "core/Conversions.h"
#include "diary/Limits.h"
#include "toolkit/Colours.h"
#include "toolkit/Fonts.h"
#include "toolkit/Keys.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"
#include "toolkit/RuledSheet.h"
#include "windows/statistics/FrmRicercheStatistiche.h"

#include <QPainter>

namespace zelvia
{
namespace
{

// Places, in logical pixels: the conditions, the values to choose from and the result are side by side, the period
// and the commands below.
constexpr QSize kSize{1104, 632};
constexpr int kFrame = 12; ///< From the border to the printed frame.
constexpr int kMargin = 28;
constexpr int kHeadTop = 28;
constexpr int kHeadHeight = 24;
constexpr int kTop = 58;
constexpr int kRowStep = 35;
constexpr int kRowHeight = 30;
constexpr int kButtonWidth = 116;
constexpr int kValueLeft = kMargin + kButtonWidth + 8;
constexpr int kValueWidth = 226;
constexpr int kListLeft = kValueLeft + kValueWidth + 18;
constexpr int kListWidth = 244;
constexpr int kListHeight = 11 * kRowStep + kRowHeight;
constexpr int kResultLeft = kListLeft + kListWidth + 22;
constexpr int kResultWidth = 414;
constexpr int kResultHeight = kListHeight - 16;
constexpr int kTotalsTop = kTop + kResultHeight + 12;
constexpr int kPeriodTop = kTop + kListHeight + 20;
constexpr int kCommandTop = 568;
constexpr int kCommandHeight = 36;

constexpr int kFrameHeight = 32;
constexpr int kFrameWidth = 152;
constexpr int kStartLeft = kValueLeft + 36;
constexpr int kEndLeft = kStartLeft + kFrameWidth + 44;

// The strokes between them are those of the frame's caption.
constexpr std::array<GridColumn, PeriodBox::kBoxes> kPeriodColumns = {{
    {"txtGiornoInizio", 2, true, Limits::kDay, CellFormat::Plain, kStartLeft + 2, 34, "Inizio del periodo, giorno"},
    {"txtMeseInizio", 2, true, Limits::kMonth, CellFormat::Plain, kStartLeft + 46, 34, "Inizio del periodo, mese"},
    {"txtAnnoInizio", 4, true, Limits::kYear, CellFormat::Plain, kStartLeft + 90, 58, "Inizio del periodo, anno"},
    {"txtGiornoFine", 2, true, Limits::kDay, CellFormat::Plain, kEndLeft + 2, 34, "Fine del periodo, giorno"},
    {"txtMeseFine", 2, true, Limits::kMonth, CellFormat::Plain, kEndLeft + 46, 34, "Fine del periodo, mese"},
    {"txtAnnoFine", 4, true, Limits::kYear, CellFormat::Plain, kEndLeft + 90, 58, "Fine del periodo, anno"},
}};

/// The columns of the totals: name and caption of the head, name of the value, width.
struct TotalPlace {
    const char* head;
    TextView caption;
    const char* value;
    int width;
};

constexpr TotalPlace kTotals[] = {
    {"lblTotale", "TOTALI", "lblBucoTot", 82},  {"lblTotNum", " Corse", "lblTcorse", 70},
    {"lblTotKm", " Km", "lblTkm", 92},          {"lblTotTempi", " Tempi", "lblTtempi", 96},
    {"lblTotMedia", " Media", "lblTmedia", 74},
};

const QString kHint = QStringLiteral("Scegli una categoria, poi un valore con un doppio clic");

/// A field of a printed form that is still empty: a frame with rules.
void DrawEmptyForm(QPainter& painter, const QRectF& area)
{
    painter.setPen(QPen(Ink::Rule, 1));
    painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
    constexpr int rule = 28;
    for (int y = rule; y < area.height() - 4; y += rule) {
        painter.drawLine(QPointF(8, y + 0.5), QPointF(area.width() - 8, y + 0.5));
    }
}

/// The empty form of the result, which says how to come to one.
void DrawFormWithHint(QPainter& painter, const QRectF& area)
{
    DrawEmptyForm(painter, area);
    constexpr int pixels = 18;
    constexpr int margin = 60;
    const QRectF place = area.adjusted(margin, 0, -margin, -area.height() / 3);
    painter.setFont(PrintFont(pixels));
    painter.setPen(Ink::Faded);
    constexpr int how = Qt::AlignCenter | Qt::TextWordWrap;
    constexpr int around = 8;
    // A line for each half.
    const QString lines = QString(kHint).replace(QLatin1String(", "), QLatin1String(",\n"));
    const QRectF words = painter.boundingRect(place, how, lines);
    painter.fillRect(words.adjusted(-around, -around, around, around), Ink::Paper);
    painter.drawText(place, how, lines);
}

} // namespace

frmRicercheStatistiche::frmRicercheStatistiche(PaceChartOpener openChart)
    : Form(QStringLiteral("frmRicercheStatistiche")), openChart_(std::move(openChart)), period_(kPeriodColumns)
{
    setWindowTitle(QStringLiteral("Ricerche Statistiche"));
    LayOnPaper(kSize);
    BuildConditions();
    BuildPeriod();
    BuildResult();
    BuildTotals();
    InizializzaVarMedie();
    CategoriaLista.clear();
}

void frmRicercheStatistiche::paintEvent(QPaintEvent* /*event*/)
{
    // The printed frame, a rule over the commands, and one between choice and result.
    QPainter painter(this);
    painter.setPen(Ink::Rule);
    painter.drawRect(rect().adjusted(kFrame, kFrame, -kFrame - 1, -kFrame - 1));
    const int between = kResultLeft - 12;
    painter.drawLine(between, kHeadTop, between, kCommandTop - 18);
    constexpr int ruleTop = kCommandTop - 16;
    painter.fillRect(kMargin, ruleTop, width() - 2 * kMargin, 2, Ink::Accent);
}

Label* frmRicercheStatistiche::MakeLabel(const char* name, TextView caption, const QRect& place, int pixels)
{
    return zelvia::MakeLabel(this, QLatin1String(name), caption, place, PrintFont(pixels));
}

/// A label on a slip of its own, for what the runner chose or ran.
Label* frmRicercheStatistiche::MakeSlip(const char* name, const QRect& place)
{
    Label* label = MakeLabel(name, {}, place, 16);
    label->setFont(PenFont(20));
    label->setFrameShape(QFrame::StyledPanel);
    SetBackColour(*label, Ink::Slip);
    SetForeColour(*label, Ink::Pen);
    return label;
}

ListBox* frmRicercheStatistiche::MakeList(const char* name, const QRect& place, const QString& spoken)
{
    auto* list = new ListBox(this, QLatin1String(name));
    list->setGeometry(place);
    list->setAccessibleName(spoken);
    list->setAlternatingRowColors(true);
    return list;
}

void frmRicercheStatistiche::BuildConditions()
{
    int top = kTop;
    for (const Categoria category : kAllCategories) {
        const TextView word = StatisticOf(category).title;
        const QByteArray name = ToQString(StatisticOf(category).name).toLatin1();
        CriterionControls& controls = controls_[static_cast<std::size_t>(category)];
        controls.cmd = MakeButton(this, ("cmd" + name).constData(), word, {kMargin, top, kButtonWidth, kRowHeight},
                                  [this, category] { cmdCategoria_Click(category); });
        controls.cmd->setToolTip(QStringLiteral("Accende e spegne la condizione"));
        controls.cmd->installEventFilter(this);
        controls.cmd->SetSwitched(false);
        controls.lbl = MakeSlip(("lbl" + name).constData(), {kValueLeft, top, kValueWidth, kRowHeight});
        controls.lbl->setIndent(6);
        controls.lbl->setAccessibleName(QStringLiteral("Condizione: ") + ToQString(word));
        controls.lbl->SetVisible(false);
        top += kRowStep;
    }
    lblTitoliSta = MakeLabel("lblTitoliSta", {}, {kListLeft, kHeadTop, kListWidth, kHeadHeight}, 18);
    SetForeColour(*lblTitoliSta, Ink::Accent);
    lblTitoliSta->setAccessibleName(QStringLiteral("Valori di"));
    lblTitoliSta->SetVisible(false);
    lstStatistiche = MakeList("lstStatistiche", {kListLeft, kTop, kListWidth, kListHeight},
                              QStringLiteral("Valori tra cui scegliere"));
    lstStatistiche->setFont(PenFont(20));
    lstStatistiche->setToolTip(QStringLiteral("Un doppio clic, o Invio, sceglie il valore"));
    lstStatistiche->DblClick = [this] { lstStatistiche_DblClick(); };
    lstStatistiche->KeyPress = [this](int keyAscii) {
        if (keyAscii == kEnter && lstStatistiche->ListIndex() >= 0) {
            lstStatistiche_DblClick();
        }
    };
}

void frmRicercheStatistiche::BuildPeriod()
{
    cmdPeriodo = MakeButton(this, "cmdPeriodo", "Periodo", {kMargin, kPeriodTop, kButtonWidth, kFrameHeight},
                            [this] { cmdPeriodo_Click(); });
    cmdPeriodo->SetSwitched(false);
    constexpr int captionPixels = 24; // Its blanks separate the strokes by the width of a box.
    constexpr int wordPixels = 16;
    lblDalTit = MakeLabel("lblDalTit", "Dal", {kValueLeft, kPeriodTop, 32, kFrameHeight}, wordPixels);
    lblDataInizio = MakeLabel("lblDataInizio", "      -      -", {kStartLeft, kPeriodTop, kFrameWidth, kFrameHeight},
                              captionPixels);
    lblAlTit = MakeLabel("lblAlTit", "Al", {kEndLeft - 28, kPeriodTop, 24, kFrameHeight}, wordPixels);
    lblDataFine =
        MakeLabel("lblDataFine", "      -      -", {kEndLeft, kPeriodTop, kFrameWidth, kFrameHeight}, captionPixels);
    for (Label* label : {lblDalTit, lblDataInizio, lblAlTit, lblDataFine}) {
        label->SetVisible(false);
    }
    period_.LastEntered = [this] { ControlsFor(Categoria::Percorso).cmd->SetFocus(); };
    period_.Build(this, {.rows = 1,
                         .top = kPeriodTop + 2,
                         .step = 0,
                         .height = kFrameHeight - 4,
                         .font = PenFont(20),
                         .digitsRight = false});
    for (std::size_t i = 0; i < periodBoxes.size(); ++i) {
        periodBoxes[i] = period_.Box(static_cast<int>(i), 1);
        periodBoxes[i]->SetVisible(false);
    }
    cmdAvvia =
        MakeButton(this, "cmdAvvia", "Avvia", {kMargin, kCommandTop, kButtonWidth + 8 + kValueWidth, kCommandHeight},
                   [this] { cmdAvvia_Click(); });
}

void frmRicercheStatistiche::BuildResult()
{
    // The font's blanks put the words over the columns of the list, with a little more after each word.
    constexpr int headPixels = 16;
    constexpr int dateLeft = 288;
    constexpr int headIndent = 9;
    constexpr qreal afterWord = 5.5;
    lblTitoliMedie = MakeLabel("lblTitoliMedie", "      Km             Tempi          Media Km    ",
                               {kResultLeft + headIndent, kHeadTop, dateLeft - headIndent, kHeadHeight}, headPixels);
    QFont spaced = lblTitoliMedie->font();
    spaced.setWordSpacing(afterWord);
    lblTitoliMedie->setFont(spaced);
    lblTitoliMedie2 = MakeLabel("lblTitoliMedie2", "  gg  mm  aaaa",
                                {kResultLeft + dateLeft, kHeadTop, kResultWidth - dateLeft, kHeadHeight}, headPixels);
    lstMedie = MakeList("lstMedie", {kResultLeft, kTop, kResultWidth, kResultHeight}, QStringLiteral("Corse trovate"));
    lstMedie->setFont(PageFont("Courier", 15));
    lstMedie->SetSpokenColumns(
        {QStringLiteral("Km"), QStringLiteral("tempo"), QStringLiteral("media per Km"), QStringLiteral("data")});
    ShowHeads(false);

    constexpr int width = 126;
    constexpr int step = (kResultWidth - width) / 2;
    const auto command = [this](const char* name, TextView caption, int place, std::function<void()> click) {
        const int left = kResultLeft + place * step;
        return MakeButton(this, name, caption, {left, kCommandTop, width, kCommandHeight}, std::move(click));
    };
    cmGrafico = command("cmGrafico", "Grafico", 0, [this] { openChart_(totals.Medie); });
    cmdStampa = command("cmdStampa", "Stampa", 1, [this] { cmdStampa_Click(); });
    cmdEsci = command("cmdEsci", "Esci", 2, [this] { Unload(); });
}

void frmRicercheStatistiche::BuildTotals()
{
    constexpr int height = 28;
    int left = kResultLeft;
    std::array<Label*, std::size(kTotals)> values{};
    for (std::size_t i = 0; i < std::size(kTotals); ++i) {
        const TotalPlace& place = kTotals[i];
        totals_.push_back(MakeLabel(place.head, place.caption, {left, kTotalsTop, place.width, height}, 15));
        values[i] = MakeSlip(place.value, {left, kTotalsTop + height, place.width, height});
        if (i > 0) {
            values[i]->setAccessibleName(QStringLiteral("Totali, ") + ToQString(place.caption).trimmed());
        }
        totals_.push_back(values[i]);
        left += place.width;
    }
    lblTcorse = values[1];
    lblTkm = values[2];
    lblTtempi = values[3];
    lblTmedia = values[4];
    const QRect shapes[] = {
        {kResultLeft, kTop, kResultWidth, kResultHeight},
        {kResultLeft, kTotalsTop + height, kTotals[0].width, height},
        {kResultLeft + kTotals[0].width, kTotalsTop + height, kResultWidth - kTotals[0].width, height}};
    for (std::size_t i = 0; i < shapes_.size(); ++i) {
        shapes_[i] = new Picture(this, QStringLiteral("shp%1").arg(i + 6), i == 0 ? DrawFormWithHint : DrawEmptyForm);
        shapes_[i]->setGeometry(shapes[i]);
    }
    shapes_[0]->setAccessibleName(kHint);
    NascondiLblTotali();
}

} // namespace zelvia
