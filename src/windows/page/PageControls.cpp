// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageControls.h"

#include "diary/Fields.h"
#include "diary/Module1.h"
#include "toolkit/Fonts.h"
#include "toolkit/QtText.h"
#include "windows/page/PageArt.h"
#include "windows/page/PageBuild.h"
#include "windows/page/PageFields.h"
#include "windows/page/PageHead.h"
#include "windows/page/PageMarks.h"
#include "windows/page/PaperSheet.h"

#include <algorithm>

namespace zelvia
{
namespace
{

using namespace PageBuild;
using namespace PageLayout;

// The longest text that can be typed into the boxes of the lists and the notes.
constexpr int kListTextLimit = 22;
constexpr int kNoteLimit = 32;

/// The paper itself shows them, so that they are as sharp as its own rules.
void MakeDateFrame(QWidget* page)
{
    for (const DateRule& rule : kDateRules) {
        (new Picture(page, QLatin1String(rule.name)))->setGeometry(rule.place);
    }
}

/// Artwork of a label in the measures of the design, from its corner on.
template <typename Draw>
Label::Drawing AsDesigned(const QRect& design, Draw draw)
{
    return [design, draw](QPainter& painter, const QRectF& area) {
        painter.scale(area.width() / design.width(), area.height() / design.height());
        draw(painter);
    };
}

/// The index of the months along the edge of the page, and the rosette at its corner.
void MakeEdge(PageControls& controls, QWidget* page)
{
    controls.lblIndiceMesi =
        MakeLabel(page, QStringLiteral("lblIndiceMesi"), {}, kThumbIndex, Style::Caption, "Indice dei mesi");
    controls.lblIndiceMesi->SetArtwork(AsDesigned(
        kThumbIndex, [](QPainter& painter) { DrawThumbIndex(painter, Module1::DataCorrente.Month().value()); }));
    controls.lblIndiceMesi->setCursor(Qt::PointingHandCursor);
    controls.lblIndiceMesi->setToolTip(controls.lblData->toolTip());
    controls.pctCoccarda = new Picture(page, QStringLiteral("pctCoccarda"), DrawRosette);
    controls.pctCoccarda->setGeometry(kRosette);
    controls.pctCoccarda->setAttribute(Qt::WA_TransparentForMouseEvents);
    controls.pctCoccarda->SetVisible(false);
}

void DressInput(QWidget& input, const QRect& place)
{
    input.setGeometry(place);
    input.setFont(PenFont(22));
    if (auto* box = qobject_cast<QLineEdit*>(&input)) {
        // Its caret, as high as a line, would cover the border.
        box->setTextMargins(3, 1, 0, 1);
    }
}

void MakeList(PageControls& controls, QWidget* page, const ListRow& row)
{
    ListControls& field = controls.ListField(row.list);
    const QString name = ToQString(ListName(row.list));
    field.lbl = MakeLabel(page, QLatin1String("lbl") + name, row.caption, Caption(row.row), Style::Caption, {});
    field.lblImmis = MakeLabel(page, QLatin1String("lblImmis") + name, {}, Value(row.row), Style::Value, row.caption);
    field.txt = new TextBox(page, QLatin1String("txt") + name, kListTextLimit);
    DressInput(*field.txt, Box(Value(row.row)));
    field.lst = new ListBox(page, QLatin1String("lst") + name);
    DressInput(*field.lst, List(row.row, 0));
    for (QWidget* input : {static_cast<QWidget*>(field.txt), static_cast<QWidget*>(field.lst)}) {
        input->setAccessibleName(ToQString(row.caption).trimmed());
    }
    // Tab passes it over: it is reached from the box with Down.
    field.lst->setFocusPolicy(Qt::ClickFocus);
    field.txt->SetVisible(false);
    field.lst->SetVisible(false);
    controls.captions.push_back(field.lbl);
}

void MakeValues(PageControls& controls, QWidget* page, const NumberRow& row, const GroupRow& group)
{
    for (const ValueRow& value : group.values) {
        controls.*value.label = MakeLabel(page, QLatin1String("lbl") + ToQString(value.name), value.text,
                                          value.place.isNull() ? Value(row.row) : value.place, Style::Value,
                                          value.spoken.empty() ? row.caption : value.spoken);
        (controls.*value.label)->FadeBlank(value.text);
        if (group.spins.empty()) {
            MakeReadable(*(controls.*value.label));
        }
    }
}

/// The field, then what of it the spin enters.
QString SpokenSpin(TextView caption, TextView tip)
{
    const QString field = ToQString(caption);
    const QString part = ToQString(tip);
    return field.compare(part, Qt::CaseInsensitive) == 0 ? field : field + QStringLiteral(", ") + part;
}

/// `index` counts the spins of the row.
void MakeSpins(PageControls& controls, QWidget* page, const NumberRow& row, const GroupRow& group, int& index)
{
    const auto rangeOf =
        Overloaded{[](std::monostate) { return NumberRange(); }, [](auto member) { return RangeOf(member); }};
    for (const SpinRow& spin : group.spins) {
        controls.*spin.member =
            MakeSpin(page, spin.name, Spin(row.row, index++), spin.tip, SpokenSpin(row.caption, spin.tip),
                     spin.range.maximum > 0 ? spin.range : std::visit(rangeOf, spin.number), spin.start);
        controls.numbers.push_back({spin.number, controls.*spin.member, controls.*group.values.front().label});
    }
}

void MakeNote(PageControls& controls, QWidget* page, int line)
{
    NoteControls& note = controls.notes[line];
    const QString spoken = QStringLiteral("Nota, riga %1").arg(line - 2);
    note.lbl = MakeLabel(page, Numbered("lblNote", line), {}, Note(line), Style::Note, FromQString(spoken));
    note.txt = new TextBox(page, Numbered("txtNote", line), kNoteLimit);
    DressInput(*note.txt, Box(Note(line)));
    note.txt->setAccessibleName(spoken);
    note.txt->SetEntry(BoxEntry::CaretAtEnd);
    note.txt->SetVisible(false);
}

void MakeSplits(PageControls& controls, QWidget* page)
{
    controls.lstListaKM = new ListBox(page, QStringLiteral("lstListaKM"));
    DressInput(*controls.lstListaKM, kListaKM);
    controls.lstListaKM->setAccessibleName(QStringLiteral("Tempi parziali"));
    controls.lstListaKM->SetSpokenColumns({QStringLiteral("chilometro"), QStringLiteral("tempo")});
    // It passes the focus on to its button at once, so Shift+Tab could not get past it.
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
    constexpr int pixels = 22;
    // The characters of a line between which a column ends and the next begins: half of the blanks are on each side.
    constexpr std::array<qreal, 3> ends = {6.5, 16, 23.5};
    // A character of Courier and its kin is 0.6 of its size wide. To measure it would open the face at the start, which
    // takes 5 of 147 million instructions.
    constexpr qreal character = 0.6 * pixels;
    int left = kOrderedHeads.left();
    for (int i = 0; i < 4; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const int right = index < ends.size() ? kOrderedList.left() + kOrderedText + qRound(ends[index] * character)
                                              : kOrderedHeads.right() + 1;
        auto* head = new Button(page, Numbered("cmdLO", i + 1), heads[index]);
        head->setGeometry(left, kOrderedHeads.top(), right - left, kOrderedHeads.height());
        left = right;
        head->setFont(PrintFont(15));
        // What is below would show around the rounded corners.
        head->setAutoFillBackground(true);
        head->setFocusPolicy(Qt::NoFocus);
        head->SetVisible(false);
        controls.cmdLO[index] = head;
    }
    controls.lstListaOrdinata = new ListBox(page, QStringLiteral("lstListaOrdinata"));
    controls.lstListaOrdinata->setGeometry(kOrderedList);
    controls.lstListaOrdinata->setFont(PageFont("Courier", pixels));
    controls.lstListaOrdinata->setToolTip(QStringLiteral("Lista Tempi"));
    controls.lstListaOrdinata->setAccessibleName(QStringLiteral("Lista Tempi"));
    QStringList columns;
    std::transform(heads.begin(), heads.end(), std::back_inserter(columns), ToQString);
    controls.lstListaOrdinata->SetSpokenColumns(columns);
    controls.lstListaOrdinata->SetVisible(false);
}

/// Builds a field; whatever `build` creates on the page belongs to it.
template <typename Build>
void MakeField(PageControls& controls, QWidget* page, Build build)
{
    const qsizetype before = page->children().size();
    build();
    std::vector<QWidget*>& field = controls.fields.emplace_back();
    for (QObject* child : page->children().sliced(before)) {
        field.push_back(static_cast<QWidget*>(child));
    }
}

void MakeNumber(PageControls& controls, QWidget* page, const NumberRow& row)
{
    if (row.label != nullptr) {
        controls.*row.label = MakeLabel(page, QLatin1String("lbl") + ToQString(row.name), row.caption, Caption(row.row),
                                        Style::Caption, {});
        controls.captions.push_back(controls.*row.label);
    }
    int spins = 0;
    for (const GroupRow& group : row.groups) {
        MakeField(controls, page, [&] {
            MakeValues(controls, page, row, group);
            if (group.then == Then::Splits) {
                MakeSplits(controls, page);
            }
            if (group.then == Then::Distance) {
                controls.pctUnita = new Picture(page, QStringLiteral("pctUnita"), DrawUnits);
                controls.pctUnita->setGeometry(kUnits);
                controls.pctUnita->SetVisible(false);
            }
            MakeSpins(controls, page, row, group, spins);
        });
    }
}

/// The rows of the left page from the top down.
void MakeRows(PageControls& controls, QWidget* page)
{
    for (int place = 0; place < kRows; ++place) {
        for (const ListRow& row : ListRows()) {
            if (row.row == place) {
                MakeField(controls, page, [&] { MakeList(controls, page, row); });
            }
        }
        for (const NumberRow& row : NumberRows()) {
            if (row.row == place) {
                MakeNumber(controls, page, row);
            }
        }
    }
    for (const ListControls& field : controls.listFields) {
        field.lst->raise();
    }
}

} // namespace

const PageControls::NumberControls& PageControls::ControlsOf(NumberMember member) const
{
    return *std::find_if(numbers.begin(), numbers.end(),
                         [&](const NumberControls& number) { return number.member == member; });
}

void BuildPage(PageControls& controls, PaperSheet* page)
{
    controls.sheet = page;
    MakeDateFrame(page);
    MakeField(controls, page, [&] {
        controls.lblData = MakeLabel(page, QStringLiteral("lblData"), {}, kDate, Style::Date, "Data");
        controls.lblData->setToolTip(QStringLiteral("Cambia giorno e mese"));
        controls.lblData->SetArtwork(AsDesigned(kDate, [&label = *controls.lblData](QPainter& painter) {
            DrawDateHead(painter, label.text(), Module1::DataCorrente);
        }));
        controls.upGiorno =
            MakeSpin(page, "Giorno", DateSpin(kDayCell), "giorno", QStringLiteral("Giorno"), {0, 31}, 0);
        controls.upMese = MakeSpin(page, "Mese", DateSpin(kMonthCell), "mese", QStringLiteral("Mese"), {0, 12}, 0);
    });
    MakeRows(controls, page);
    MakeTableSlip(controls, page);
    MakeRaceSlip(controls, page);
    controls.lblTimerTab = MakeLabel(page, QStringLiteral("lblTimerTab"), "0", {0, 0, 1, 1}, Style::SlipValue, {});
    controls.lblTimerTab->SetVisible(false);
    MakeOrderedList(controls, page);
    for (int line = kFirstNote; line <= kLastNote; ++line) {
        MakeField(controls, page, [&] { MakeNote(controls, page, line); });
    }
    MakeCounters(controls, page);
    controls.lblNomeFile =
        MakeLabel(page, QStringLiteral("lblNomeFile"), {}, kFileName, Style::FileName, "Nome del diario");
    MakeEdge(controls, page);
    AddMarks(controls);
}

} // namespace zelvia
