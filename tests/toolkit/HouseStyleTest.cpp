// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The one style of all windows: contrasts, the icons of the boxes, and that no desktop changes anything.
#include "core/MessageBox.h"
#include "support/BoxScript.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/DrawnIcon.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Progress.h"
#include "toolkit/RuledSheet.h"
#include "toolkit/SampleForm.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTemporaryDir>
#include <QToolTip>
#include <QTreeView>
#include <QTreeWidget>

#include <cmath>
#include <map>

using namespace zelvia;
using namespace zelvia::test;

namespace
{

double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

constexpr double kText = 4.5;
constexpr double kBorder = 3.0;

/// A sheet with one of each of what no window of the program draws itself: a box, a menu, a tooltip, a list.
QImage Samples()
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Zelvia"), QStringLiteral("PROVA"),
                    QMessageBox::Yes | QMessageBox::No);
    QMenu menu;
    menu.addAction(QStringLiteral("Cancella"));
    menu.addAction(QStringLiteral("Spento"))->setEnabled(false);
    QComboBox combo;
    combo.addItem(QStringLiteral("File Zelvia"));
    QLabel tip(QStringLiteral("giorno"), nullptr, Qt::ToolTip);
    tip.setPalette(QToolTip::palette());
    tip.setFont(QToolTip::font());
    tip.setAutoFillBackground(true);
    QImage sheet(600, 600, QImage::Format_RGB32);
    sheet.fill(Qt::black);
    QPainter painter(&sheet);
    int top = 0;
    for (QWidget* widget : std::initializer_list<QWidget*>{&box, &menu, &combo, &tip}) {
        widget->ensurePolished();
        widget->adjustSize();
        painter.drawPixmap(0, top, widget->grab());
        top += 150;
    }
    return sheet;
}

/// The samples in a process of their own, drawn under the program's application or under Qt's.
const TestRoutine samples("HouseSamples", [](int argc, char* argv[]) {
    const bool house = argc > 2 && qstrcmp(argv[2], "house") == 0;
    const std::unique_ptr<QApplication> application(house ? new Application(argc, argv) : new QApplication(argc, argv));
    return Samples().save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
});

/// A desktop with dark colours, another font and other icons, as its own files tell Qt.
void MakeDarkDesktop(const QString& folder)
{
    QFile file(folder + QStringLiteral("/kdeglobals"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QByteArray text = "[General]\nfont=DejaVu Sans Mono,16,-1,5,50,0,0,0,0,0\n";
    for (const char* group : {"Window", "View", "Button", "Selection", "Tooltip"}) {
        text += "[Colors:" + QByteArray(group) + "]\nBackgroundNormal=49,54,59\nBackgroundAlternate=60,64,69\n" +
                "ForegroundNormal=239,240,241\nForegroundInactive=120,120,120\n";
    }
    file.write(text);
}

QImage DrawnOn(const QString& desktop, const QString& style, const QTemporaryDir& folder)
{
    const QString picture = folder.filePath(desktop + style + QStringLiteral(".png"));
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), qApp->platformName());
    if (desktop == QLatin1String("dark")) {
        environment.insert(QStringLiteral("QT_QPA_PLATFORMTHEME"), QStringLiteral("kde"));
        environment.insert(QStringLiteral("KDE_SESSION_VERSION"), QStringLiteral("5"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
        environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), folder.path());
    }
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("HouseSamples"), picture, style});
    return child.waitForFinished() && child.exitCode() == 0 ? QImage(picture) : QImage();
}

} // namespace

class HouseStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TextStandsOut_data();
    void TextStandsOut();
    void BordersStandOut_data();
    void BordersStandOut();
    void PrintedLinesAreSharpAndOfOneWidth_data();
    void PrintedLinesAreSharpAndOfOneWidth();
    void NoDesktopChangesAnything();
    void EachBoxHasItsOwnIcon_data();
    void EachBoxHasItsOwnIcon();
    void TheTextOfABoxCanBeSelectedAndWraps();
    void TheTextOfABoxStandsAtTheMiddleOfItsIcon();
    void ButtonsHaveRoomAroundTheirText();
    void TheSliderStandsOutFromItsGroove();
    void NothingIsDrawnBetweenTwoScrollBars();
    void TheArrowOfAChosenRowStandsOut();
    void ABoxForNumbersHasOneBorder();
    void AFileDialogShowsItsColumns();
    void EveryWindowHasTheIcon();
    void TheSlipOfProgressWaits();
};

void HouseStyleTest::TextStandsOut_data()
{
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::addColumn<QPalette::ColorRole>("ink");
    QTest::addColumn<QPalette::ColorRole>("under");
    using P = QPalette;
    const std::pair<P::ColorRole, P::ColorRole> pairs[] = {
        {P::WindowText, P::Window},
        {P::WindowText, P::Base},
        {P::Text, P::Base},
        {P::Text, P::AlternateBase},
        {P::Text, P::Window},
        {P::ButtonText, P::Button},
        {P::PlaceholderText, P::Base},
        {P::Link, P::Base},
        {P::Link, P::Window},
        {P::LinkVisited, P::Base},
        {P::ToolTipText, P::ToolTipBase},
        {P::HighlightedText, P::Highlight},
        {P::ButtonText, P::Window},
    };
    const std::pair<const char*, P::ColorGroup> groups[] = {
        {"active", P::Active}, {"inactive", P::Inactive}, {"disabled", P::Disabled}};
    for (const auto& [name, group] : groups) {
        for (const auto& [ink, under] : pairs) {
            QTest::addRow("%s, %d on %d", name, ink, under) << group << ink << under;
        }
    }
}

void HouseStyleTest::TextStandsOut()
{
    QFETCH(QPalette::ColorGroup, group);
    QFETCH(QPalette::ColorRole, ink);
    QFETCH(QPalette::ColorRole, under);
    for (const QPalette& palette :
         {PagePalette(), QApplication::palette(), QApplication::palette("QMenu"), QToolTip::palette()}) {
        const double contrast = Contrast(palette.color(group, ink), palette.color(group, under));
        QVERIFY2(contrast >= kText, qPrintable(QString::number(contrast)));
    }
}

void HouseStyleTest::BordersStandOut_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QColor>("back");
    QTest::addColumn<bool>("enabled");
    for (const char* kind : {"button", "box", "list", "combo box", "spin"}) {
        QTest::addRow("%s", kind) << QByteArray(kind) << QColor() << true;
        QTest::addRow("%s, off", kind) << QByteArray(kind) << QColor() << false;
    }
    // The colours of the training tables.
    for (const QColor back :
         {QColor(0xC0, 0xC0, 0xC0), QColor(0xFF, 0xFF, 0xFF), QColor(0x80, 0x80, 0xFF), QColor(0xFF, 0xFF, 0x00)}) {
        QTest::addRow("box, %s", qPrintable(back.name())) << QByteArray("box") << back << true;
    }
}

void HouseStyleTest::BordersStandOut()
{
    QFETCH(QByteArray, kind);
    QFETCH(QColor, back);
    QFETCH(bool, enabled);
    SampleForm form;
    if (back.isValid()) {
        QPalette palette = PagePalette();
        palette.setColor(QPalette::Base, back);
        palette.setColor(QPalette::Window, back);
        form.setPalette(palette);
    }
    auto* combo = new QComboBox(&form);
    combo->setGeometry(200, 300, 150, 30);
    const std::map<QByteArray, QWidget*> widgets{{"button", form.cmdVai},
                                                 {"box", form.txtDue},
                                                 {"list", form.lstUno},
                                                 {"combo box", combo},
                                                 {"spin", form.upUno}};
    QWidget* widget = widgets.at(kind);
    widget->setEnabled(enabled);
    form.Open();
    form.Start(*form.txtTre);
    const QImage shown = form.grab().toImage();
    const QRect place = widget->geometry();
    // From outside to the inside across the middle of each side.
    const std::pair<QPoint, QPoint> ways[] = {
        {{place.center().x(), place.top()}, {0, 1}},
        {{place.center().x(), place.bottom()}, {0, -1}},
        {{place.left(), place.center().y()}, {1, 0}},
        {{place.right(), place.center().y()}, {-1, 0}},
    };
    for (const auto& [edge, inward] : ways) {
        const QColor border = shown.pixelColor(edge);
        constexpr int inside = 3;
        QList<QPoint> sides{edge - inward};
        // The arrows have the focus when their border is the pen's: it can't stand out from that and from them too.
        if (kind != "spin") {
            sides << edge + inside * inward;
        }
        for (const QPoint beside : sides) {
            const double contrast = Contrast(border, shown.pixelColor(beside));
            QVERIFY2(contrast >= kBorder, qPrintable(QString::number(contrast)));
        }
    }
}

void HouseStyleTest::PrintedLinesAreSharpAndOfOneWidth_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("pixels");
    QTest::newRow("1") << 1.0 << 1;
    QTest::newRow("1.25") << 1.25 << 1;
    QTest::newRow("1.5") << 1.5 << 2;
    QTest::newRow("2") << 2.0 << 2;
}

void HouseStyleTest::PrintedLinesAreSharpAndOfOneWidth()
{
    QFETCH(double, scale);
    QFETCH(int, pixels);
    constexpr int lines[] = {2, 51, 136, 249};
    QImage shown(QSize(300, 200) * scale, QImage::Format_RGB32);
    shown.setDevicePixelRatio(scale);
    shown.fill(Ink::Paper);
    {
        QPainter painter(&shown);
        DrawRuledSheet(painter, {.frame = {},
                                 .head = {2, 4, 290, 40},
                                 .headsTop = 9,
                                 .firstRow = 45,
                                 .step = 21,
                                 .rows = 7,
                                 .lines = lines});
    }
    // The lengths of the runs of print along a way, which has nothing beside it but paper.
    const auto runs = [&](QPoint from, QPoint step) {
        QList<int> found;
        bool printed = false;
        for (QPoint at = from; shown.rect().contains(at); at += step) {
            const QColor colour = shown.pixelColor(at);
            const bool print = colour == QColor(Ink::Rule);
            if (!print && colour != QColor(Ink::Paper)) {
                return QList<int>{-1};
            }
            if (print && !printed) {
                found << 0;
            }
            if (print) {
                ++found.last();
            }
            printed = print;
        }
        return found;
    };
    QCOMPARE(runs({0, qRound(55 * scale)}, {1, 0}), QList<int>(4, pixels));
    QCOMPARE(runs({qRound(90 * scale), qRound(44.8 * scale)}, {0, 1}), QList<int>(8, pixels));
}

void HouseStyleTest::NoDesktopChangesAnything()
{
    const QTemporaryDir folder;
    MakeDarkDesktop(folder.path());
    const QString house = QStringLiteral("house");
    const QString bare = QStringLiteral("bare");
    const QImage light = DrawnOn(QStringLiteral("light"), house, folder);
    QVERIFY(!light.isNull());
    QCOMPARE(DrawnOn(QStringLiteral("dark"), house, folder), light);
    // The dark desktop does change what doesn't have the style, where there is a desktop.
    if (hand::OnX11()) {
        QVERIFY(DrawnOn(QStringLiteral("dark"), bare, folder) != DrawnOn(QStringLiteral("light"), bare, folder));
    }
}

void HouseStyleTest::EachBoxHasItsOwnIcon_data()
{
    QTest::addColumn<QStyle::StandardPixmap>("icon");
    QTest::addColumn<QColor>("ink");
    QTest::newRow("information") << QStyle::SP_MessageBoxInformation << QColor(Ink::Pen);
    QTest::newRow("question") << QStyle::SP_MessageBoxQuestion << QColor(Ink::Print);
    QTest::newRow("warning") << QStyle::SP_MessageBoxWarning << QColor(176, 106, 12);
    QTest::newRow("critical") << QStyle::SP_MessageBoxCritical << QColor(Ink::Accent);
}

void HouseStyleTest::EachBoxHasItsOwnIcon()
{
    QFETCH(QStyle::StandardPixmap, icon);
    QFETCH(QColor, ink);
    QVERIFY2(Contrast(ink, Ink::Paper) >= kBorder, "the icon itself");
    for (const int size : {24, 32, 48, 96}) {
        const QImage shown = QApplication::style()->standardIcon(icon).pixmap(size, size).toImage();
        QCOMPARE(shown.size(), QSize(size, size));
        // Left of the middle all of them are filled; their corners are empty.
        QCOMPARE(shown.pixelColor(size * 9 / 32, size * 18 / 32), ink);
        QCOMPARE(shown.pixelColor(0, 0).alpha(), 0);
    }
}

void HouseStyleTest::TheTextOfABoxCanBeSelectedAndWraps()
{
    BoxScript script;
    ExpectedBox expected = Report(QStringLiteral("Un testo molto lungo. ").repeated(60));
    script.Expect(expected);
    script.Meanwhile([] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box != nullptr);
        const auto* text = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        QVERIFY(text->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        QVERIFY(text->wordWrap());
        QVERIFY2(box->width() < 1000, qPrintable(QString::number(box->width())));
        QVERIFY(text->height() >= 3 * text->fontMetrics().height());
    });
    ShowBox({FromQString(expected.text), MsgIcon::None});
    VERIFY_SCRIPT(script);
}

void HouseStyleTest::TheTextOfABoxStandsAtTheMiddleOfItsIcon()
{
    BoxScript script;
    const ExpectedBox expected{QStringLiteral("Salvato"), QMessageBox::Information};
    script.Expect(expected);
    script.Meanwhile([] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box != nullptr);
        const auto middle = [box](const char* name) {
            const auto* label = box->findChild<QLabel*>(QLatin1String(name));
            return label == nullptr ? -1 : label->geometry().center().y();
        };
        const int icon = middle("qt_msgboxex_icon_label");
        QVERIFY(icon > 0);
        QVERIFY2(qAbs(middle("qt_msgbox_label") - icon) <= 1, qPrintable(QString::number(icon)));
    });
    ShowBox({FromQString(expected.text), MsgIcon::Information});
    VERIFY_SCRIPT(script);
}

void HouseStyleTest::ButtonsHaveRoomAroundTheirText()
{
    for (const char* text : {"OK", "Fai una copia adesso"}) {
        QPushButton button(QString::fromLatin1(text));
        button.ensurePolished();
        const int written = button.fontMetrics().horizontalAdvance(button.text());
        QVERIFY2(button.sizeHint().width() - written >= 28, text);
    }
}

void HouseStyleTest::TheSliderStandsOutFromItsGroove()
{
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 20);
    bar.setPageStep(10);
    bar.setValue(10);
    bar.resize(bar.sizeHint().width(), 300);
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.sliderPosition = option.sliderValue = bar.value();
    option.subControls = QStyle::SC_All;
    const QRect slider = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
    const QImage shown = bar.grab().toImage();
    const int middle = slider.center().x();
    for (const auto& [edge, outward] : {std::pair(slider.top(), -1), std::pair(slider.bottom(), 1)}) {
        for (const int beside : {edge + 3 * outward, edge - 3 * outward}) {
            const double contrast = Contrast(shown.pixelColor(middle, edge), shown.pixelColor(middle, beside));
            QVERIFY2(contrast >= kBorder, qPrintable(QString::number(contrast)));
        }
    }
}

void HouseStyleTest::NothingIsDrawnBetweenTwoScrollBars()
{
    QScrollArea area;
    area.setWidget(new QLabel(QStringLiteral("PROVA")));
    area.widget()->resize(600, 600);
    area.resize(200, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    const QRect upright = area.verticalScrollBar()->geometry();
    const QImage drawn = area.grab().toImage();
    const QRect frame = area.rect().adjusted(2, 2, -2, -2);
    const QPoint corner(area.verticalScrollBar()->mapTo(&area, QPoint(0, upright.height())));
    for (int y = corner.y(); y <= frame.bottom(); ++y) {
        for (int x = corner.x(); x <= frame.right(); ++x) {
            QCOMPARE(drawn.pixelColor(QPoint(x, y) * drawn.devicePixelRatio()), Ink::Paper);
        }
    }
}

void HouseStyleTest::TheArrowOfAChosenRowStandsOut()
{
    QTreeWidget tree;
    auto* parent = new QTreeWidgetItem(&tree, {QStringLiteral("Guida")});
    new QTreeWidgetItem(parent, {QStringLiteral("Il primo giorno")});
    tree.setCurrentItem(parent);
    tree.resize(300, 200);
    for (const bool open : {false, true}) {
        parent->setExpanded(open);
        const QRect row = tree.visualItemRect(parent);
        const QImage drawn = tree.viewport()->grab({0, row.top(), row.left(), row.height()}).toImage();
        double most = 0;
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) {
                most = std::max(most, Contrast(drawn.pixelColor(x, y), Ink::Pen));
            }
        }
        QVERIFY2(most >= kText, qPrintable(QString::number(most)));
    }
}

/// A second one, of another colour, was drawn inside it.
void HouseStyleTest::ABoxForNumbersHasOneBorder()
{
    QSpinBox box;
    box.resize(90, 32);
    const QImage drawn = box.grab().toImage();
    const double ratio = drawn.devicePixelRatio();
    const auto at = [&](int x, int y) { return drawn.pixelColor(QPointF(x * ratio, y * ratio).toPoint()); };
    QVERIFY(at(0, 16) != Ink::Slip);
    for (int inside = 1; inside < 4; ++inside) {
        QCOMPARE(at(inside, 16), Ink::Slip);
        QCOMPARE(at(30, inside), Ink::Slip);
        QCOMPARE(at(30, 31 - inside), Ink::Slip);
    }
}

void HouseStyleTest::AFileDialogShowsItsColumns()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Un diario dal nome piuttosto lungo 2026.zlv")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(220000, 'x'));
    file.close();
    CommonDialog settings;
    settings.InitDir = FromQString(folder.path().replace(QLatin1Char('/'), QLatin1Char('\\')));
    settings.Filter = "File Zelvia (*.zlv)|*.zlv|";
    BoxScript script;
    script.Expect([](QFileDialog& dialog) {
        auto* view = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
        QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 1);
        const QHeaderView& head = *view->header();
        QCOMPARE(head.count(), 4);
        // The name of the file is read as it is shown, with the others beside it.
        for (int column = 0; column < head.count(); ++column) {
            const QModelIndex cell = view->model()->index(0, column, view->rootIndex());
            const int text = view->fontMetrics().horizontalAdvance(cell.data().toString());
            QTRY_VERIFY2(head.sectionSize(column) >= std::max(text, head.sectionSizeHint(column)),
                         qPrintable(QString::number(column)));
        }
        QVERIFY(head.length() <= view->viewport()->width());
        QVERIFY(Contrast(dialog.palette().color(QPalette::WindowText), dialog.palette().color(QPalette::Window)) >=
                kText);
    });
    settings.ShowOpen();
    VERIFY_SCRIPT(script);
}

void HouseStyleTest::EveryWindowHasTheIcon()
{
    SampleForm form;
    QMessageBox box;
    for (const QWidget* window : std::initializer_list<QWidget*>{&form, &box}) {
        QVERIFY(!window->windowIcon().isNull());
        for (const int size : {32, 64, 128}) {
            const QImage shown = window->windowIcon().pixmap(size, size).toImage();
            // The cover, and the shoe.
            QCOMPARE(shown.pixelColor(size * 18 / 128, size / 2), QColor(Ink::Desk));
            QCOMPARE(shown.pixelColor(size * 46 / 128, size * 84 / 128), QColor(201, 64, 47));
        }
    }
}

void HouseStyleTest::TheSlipOfProgressWaits()
{
    const auto slip = [] {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("progress") && window->isVisible()) {
                return qobject_cast<QLabel*>(window);
            }
        }
        return static_cast<QLabel*>(nullptr);
    };
    Progress patient{std::chrono::hours(1)};
    patient.Tell(QStringLiteral("Stampa: pagina 2 di 3"));
    QVERIFY(slip() == nullptr);
    {
        Progress late{std::chrono::milliseconds(0)};
        late.Tell(QStringLiteral("Stampa: pagina 2 di 3"));
        QVERIFY(slip() != nullptr);
        QCOMPARE(slip()->text(), QStringLiteral("Stampa: pagina 2 di 3"));
        late.Tell(QStringLiteral("Stampa: pagina 3 di 3"));
        QCOMPARE(slip()->text(), QStringLiteral("Stampa: pagina 3 di 3"));
    }
    QVERIFY(slip() == nullptr);
}

ZELVIA_WINDOW_TEST(HouseStyleTest)

#include "HouseStyleTest.moc"
