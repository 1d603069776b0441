// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// How what has the focus looks: measured on the pixels of real windows.
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/Fonts.h"
#include "toolkit/ListView.h"
#include "toolkit/PagePalette.h"
#include "toolkit/SampleForm.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTextEdit>

#include <cmath>

using namespace zelvia;

namespace
{

double Luminance(QRgb pixel)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) + 0.0722 * linear(qBlue(pixel));
}

bool StandsOut(QRgb pixel, QRgb other)
{
    const double one = Luminance(pixel) + 0.05;
    const double two = Luminance(other) + 0.05;
    return std::max(one, two) / std::min(one, two) >= 3.0;
}

/// A dark desktop, and a light one.
QPalette Dark()
{
    QPalette palette(QColor(49, 54, 59), QColor(42, 46, 50));
    palette.setColor(QPalette::Base, QColor(27, 30, 32));
    palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
    return palette;
}

QPalette Light()
{
    QPalette palette(QColor(239, 239, 239), QColor(239, 239, 239));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    return palette;
}

/// The paper with the boxes, and what is behind them, in a colour of the training tables.
QPalette Tinted(const QColor& back)
{
    QPalette palette = PagePalette();
    palette.setColor(QPalette::Base, back);
    palette.setColor(QPalette::Window, back);
    return palette;
}

/// What a window showed before and shows now.
struct Look {
    QImage before;
    QImage now;

    /// A pixel of the ring: it stands out from what was there.
    bool OfRing(QPoint at) const { return StandsOut(now.pixel(at), before.pixel(at)); }
};

/// True when the ring crosses the line that runs from a place outside a control to its middle, and stands out from what
/// is on both its sides.
bool Crosses(const Look& look, QPoint outside, QPoint step)
{
    constexpr int deepest = 12;
    for (int i = 0; i < deepest; ++i) {
        const QPoint at = outside + i * step;
        if (!look.OfRing(at)) {
            continue;
        }
        const QRgb ring = look.now.pixel(at);
        const auto beside = [&](QPoint way) {
            QPoint next = at;
            while (look.now.pixel(next) == ring) {
                next += way;
            }
            return look.now.pixel(next);
        };
        return StandsOut(ring, beside(step)) && StandsOut(ring, beside(-step));
    }
    return false;
}

/// The part of each side that the ring runs along, the smallest of the four: text reaches up to it here and there.
double Ringed(const Look& look, const QRect& place)
{
    constexpr int corner = 8;
    struct Side {
        QPoint start, along, inward;
        int length;
    };
    const Side sides[] = {{place.topLeft() + QPoint(corner, -1), {1, 0}, {0, 1}, place.width() - 2 * corner},
                          {place.bottomLeft() + QPoint(corner, 1), {1, 0}, {0, -1}, place.width() - 2 * corner},
                          {place.topLeft() + QPoint(-1, corner), {0, 1}, {1, 0}, place.height() - 2 * corner},
                          {place.topRight() + QPoint(1, corner), {0, 1}, {-1, 0}, place.height() - 2 * corner}};
    double least = 1;
    for (const Side& side : sides) {
        int ringed = 0;
        for (int i = 0; i < side.length; ++i) {
            ringed += Crosses(look, side.start + i * side.along, side.inward) ? 1 : 0;
        }
        least = std::min(least, static_cast<double>(ringed) / side.length);
    }
    return least;
}

/// A window whose first control is a button.
class FreshForm : public Form
{
public:
    FreshForm() : Form(QStringLiteral("frmNuova")), cmdPrimo(new Button(this, QStringLiteral("cmdPrimo"), "Primo"))
    {
        LayOnPaper({240, 120});
        cmdPrimo->setGeometry(40, 40, 120, 34);
    }
    Control& FocusSink() override { return *cmdPrimo; }

    Button* cmdPrimo;
};

QWidget* Made(const QByteArray& kind, QWidget* parent)
{
    if (kind == "combo box") {
        auto* box = new QComboBox(parent);
        box->addItem(QStringLiteral("Diari"));
        return box;
    }
    if (kind == "tabs") {
        auto* bar = new QTabBar(parent);
        bar->addTab(QStringLiteral("Cerca"));
        return bar;
    }
    if (kind == "text") {
        return new QTextEdit(parent);
    }
    if (kind == "list view") {
        return new ListView(parent, QStringLiteral("lvUno"), {{"tempo", 90}});
    }
    if (kind == "label") {
        auto* label = new Label(parent, QStringLiteral("lblUno"));
        label->SetCaption("Peso");
        label->OnClick([] {});
        return label;
    }
    if (kind == "list") {
        return new ListBox(parent, QStringLiteral("lstUno"));
    }
    if (kind == "spin") {
        return new UpDown(parent, QStringLiteral("upUno"));
    }
    if (kind == "box") {
        return new TextBox(parent, QStringLiteral("txtUno"));
    }
    return new Button(parent, QStringLiteral("cmdUno"), "Salva");
}

} // namespace

Q_DECLARE_METATYPE(QPalette)

class FocusLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheRingStandsOut_data();
    void TheRingStandsOut();
    void AFreshWindowShowsItAtOnce();
    void ALabelStaysWhereItIs();
    void NothingLooksChosenThatIsNot_data();
    void NothingLooksChosenThatIsNot();
};

void FocusLookTest::TheRingStandsOut_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QPalette>("palette");
    const std::pair<const char*, QPalette> palettes[] = {{"paper", PagePalette()},
                                                         {"dark", Dark()},
                                                         {"light", Light()},
                                                         {"not accepted", Tinted({0xC0, 0xC0, 0xC0})},
                                                         {"chosen", Tinted({0x80, 0x80, 0xFF})},
                                                         {"active", Tinted({0xFF, 0xFF, 0x00})}};
    for (const char* kind : {"button", "box", "label", "list", "list view", "text", "combo box", "tabs"}) {
        for (const auto& [name, palette] : palettes) {
            QTest::addRow("%s, %s", kind, name) << QByteArray(kind) << palette;
        }
    }
    // These are on paper only.
    QTest::newRow("spin, paper") << QByteArray("spin") << PagePalette();
}

void FocusLookTest::TheRingStandsOut()
{
    QFETCH(QByteArray, kind);
    QFETCH(QPalette, palette);
    SampleForm form;
    form.setPalette(palette);
    QWidget& widget = *Made(kind, &form);
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.setGeometry(20, 250, 160, 60);
    form.Open();
    form.Start(*form.txtUno);
    Look look;
    look.before = form.grab().toImage();
    widget.setFocus(Qt::OtherFocusReason);
    QTRY_VERIFY(widget.hasFocus());
    look.now = form.grab().toImage();
    QRect place = widget.geometry();
    if (auto* bar = qobject_cast<QTabBar*>(&widget)) {
        place = bar->tabRect(0).translated(place.topLeft());
    }
    QVERIFY2(Ringed(look, place) > 0.75, qPrintable(QString::number(Ringed(look, place))));
}

void FocusLookTest::AFreshWindowShowsItAtOnce()
{
    FreshForm form;
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QTRY_VERIFY(form.cmdPrimo->hasFocus());
    Look look;
    look.now = form.grab().toImage();
    form.cmdPrimo->clearFocus();
    look.before = form.grab().toImage();
    QVERIFY(Ringed(look, form.cmdPrimo->geometry()) > 0.75);
}

void FocusLookTest::ALabelStaysWhereItIs()
{
    SampleForm form;
    // In the place of the date on the page.
    form.lblVai->setFont(PageFont("Times New Roman", 27));
    form.lblVai->setGeometry(200, 200, 160, 41);
    form.Open();
    form.Start(*form.lstUno);
    const auto inside = [&] {
        constexpr int ring = 2;
        return form.lblVai->grab(form.lblVai->rect().adjusted(ring, ring, -ring, -ring)).toImage();
    };
    const QImage before = inside();
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(form.lblVai->hasFocus());
    QCOMPARE(inside(), before);
    // Nor when it takes another text meanwhile, or is left.
    form.lblVai->SetCaption("Fermo");
    form.lblVai->SetCaption("Vai");
    QCOMPARE(inside(), before);
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(!form.lblVai->hasFocus());
    QCOMPARE(inside(), before);
}

void FocusLookTest::NothingLooksChosenThatIsNot_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<bool>("view");
    for (const bool view : {false, true}) {
        const char* kind = view ? "list view" : "list";
        QTest::addRow("%s, paper", kind) << PagePalette() << view;
        QTest::addRow("%s, dark", kind) << Dark() << view;
        QTest::addRow("%s, light", kind) << Light() << view;
    }
}

void FocusLookTest::NothingLooksChosenThatIsNot()
{
    QFETCH(QPalette, palette);
    QFETCH(bool, view);
    SampleForm form;
    form.setPalette(palette);
    auto* rows = new ListView(&form, QStringLiteral("lvUno"), {{"tempo", 90}});
    rows->setGeometry(200, 230, 150, 130);
    QAbstractItemView& list = view ? static_cast<QAbstractItemView&>(*rows) : *form.lstUno;
    form.Open();
    list.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(list.hasFocus());
    // Filled while it has the focus.
    rows->AddRow({"1"});
    rows->AddRow({"2"});
    form.lstUno->Clear();
    form.lstUno->AddItem("1");
    form.lstUno->AddItem("2");
    const QColor base = list.palette().color(QPalette::Base);
    const QColor chosen = list.palette().color(QPalette::Highlight);
    const QRect row = list.visualRect(list.model()->index(0, 0));
    // Beside the text.
    const auto middle = [&] {
        return list.viewport()->grab().toImage().pixelColor(row.right() - 20, row.center().y());
    };
    // How many pixels along the upper edge of the row stand out from the ground.
    const auto dots = [&] {
        const QImage shown = list.viewport()->grab().toImage();
        int count = 0;
        for (int x = row.left() + 4; x < row.left() + 84; ++x) {
            count += StandsOut(shown.pixel(x, row.top()), middle().rgb()) ? 1 : 0;
        }
        return count;
    };
    QCOMPARE(middle(), base);
    QVERIFY2(dots() > 30 && dots() < 50, qPrintable(QString::number(dots())));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(middle(), chosen);
    QVERIFY2(dots() > 30 && dots() < 50, qPrintable(QString::number(dots())));
    // Left, it has no frame.
    list.clearSelection();
    form.txtUno->SetFocus();
    QTRY_COMPARE(middle(), base);
    QCOMPARE(dots(), 0);
}

ZELVIA_WINDOW_TEST(FocusLookTest)

#include "FocusLookTest.moc"
