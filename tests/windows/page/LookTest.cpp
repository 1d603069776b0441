// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is printed on the page and what the runner wrote: faces, head, marks, faint values, the index of the months.
#include "core/Conversions.h"
#include "diary/CalendarModel.h"
#include "support/EntryPage.h"
#include "support/WholeHand.h"
#include "support/WindowTest.h"
#include "windows/page/DayOnPage.h"
#include "windows/page/PageArt.h"
#include "windows/page/PageLayout.h"
#include "windows/page/PageMarks.h"
#include "windows/page/PaperSheet.h"

#include <QFontInfo>
#include <QRawFont>
#include <QtMath>

namespace zelvia::test
{
namespace
{

QImage Painted(QWidget& widget)
{
    return widget.grab().toImage();
}

/// The colour at a point of a widget, as measured in its design.
QColor ColourAt(QWidget& widget, const QRect& design, const QPoint& place)
{
    const QImage image = Painted(widget);
    return image.pixelColor(place.x() * image.width() / design.width(), place.y() * image.height() / design.height());
}

/// The mark of a label as it is painted with a text.
QImage MarkWith(Label& label, TextView text)
{
    label.SetCaption(text);
    const QImage image = Painted(label);
    const QRectF area = label.MarkArea();
    return image.copy(
        QRectF(area.topLeft() * image.devicePixelRatio(), area.size() * image.devicePixelRatio()).toRect());
}

} // namespace

class LookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void facesHoldEveryCharacter_data();
    void facesHoldEveryCharacter();
    void wordsOfTheWeather_data();
    void wordsOfTheWeather();
    void wordsOfTheTerrain_data();
    void wordsOfTheTerrain();
    void countOfTheSplits_data();
    void countOfTheSplits();
    void knownWordsHaveAMark();
    void splitsAreCountedBesideThem();
    void marksLeaveTheirEntriesWhole();
    void rosetteOnARaceDay_data();
    void rosetteOnARaceDay();
    void rosetteOnADayOfTheCalendar();
    void anEmptyDayIsFaint();
    void aWrittenValueIsNot();
    void oneRunnerIsWrittenOnTheDayOfARun();
    void aLongValueIsElided();
    void openBoxesShowTheWholeHand();
    void theDayIsMarkedInItsWeek();
    void arrowsShowFaintlyAtRest();
    void whatCanBeClickedSaysSo();
    void unitsStandBehindTheArrows();
    void theIndexShowsTheMonth();
    void theIndexOpensTheArrowsAndNothingElse();
};

void LookTest::facesHoldEveryCharacter_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<QString>("family");
    QTest::newRow("print") << PrintFont(15) << QStringLiteral("Caladea");
    QTest::newRow("bold print") << PrintFont(15, true) << QStringLiteral("Caladea");
    QTest::newRow("pen") << PenFont(22) << QStringLiteral("Z003");
}

void LookTest::facesHoldEveryCharacter()
{
    QFETCH(QFont, font);
    QFETCH(QString, family);
    QVERIFY2(QFontInfo(font).family().startsWith(family), qPrintable(QFontInfo(font).family()));
    const QRawFont raw = QRawFont::fromFont(font);
    for (int byte = 32; byte < 256; ++byte) {
        const QString character = ToQString(Text(1, static_cast<char>(byte)));
        // The five bytes without a character, and the one that deletes, are shown for control characters.
        if (character[0].category() != QChar::Other_Control && character[0] != QChar::SoftHyphen) {
            QVERIFY2(raw.supportsCharacter(character[0]), qPrintable(character));
        }
    }
}

void LookTest::wordsOfTheWeather_data()
{
    using namespace Weather;
    QTest::addColumn<QString>("entry");
    QTest::addColumn<unsigned>("signs");
    const auto row = [](const char* entry, unsigned signs) {
        QTest::newRow(entry) << QString::fromLatin1(entry) << signs;
    };
    row("Sole", Sun);
    row("Sole/Vento forte", Sun | Wind);
    row("Sole/Nuvoloso/Vento", Sun | Cloud | Wind);
    row("Nuvoloso/Pioggia", Cloud | Rain);
    row("Neve/Ghiaccio/Vento", Snow | Ice | Wind);
    row("Nebbia/Neve/Ghiaccio", Fog | Snow | Ice);
    row("PIOGGIA", Rain);
    row("Un po' di sole", Sun);
    row("Solegiato", 0);
    row("Grandine", 0);
    row("", 0);
    row("/", 0);
}

void LookTest::wordsOfTheWeather()
{
    QFETCH(QString, entry);
    QFETCH(unsigned, signs);
    QCOMPARE(WeatherIn(entry), signs);
}

void LookTest::wordsOfTheTerrain_data()
{
    using namespace Terrain;
    QTest::addColumn<QString>("entry");
    QTest::addColumn<unsigned>("signs");
    const auto row = [](const char* entry, unsigned signs) {
        QTest::newRow(entry) << QString::fromLatin1(entry) << signs;
    };
    row("Strada", Road);
    row("Strada/Sentiero/Salita", Road | Path | Climb);
    row("Pista Atletica", Track);
    row("Sentiero di montagna", Path | Mountain);
    row("Spiaggia/Sabbia", Beach);
    row("strada", Road);
    row("Stradone", 0);
    row("Palestra", 0);
    row("", 0);
}

void LookTest::wordsOfTheTerrain()
{
    QFETCH(QString, entry);
    QFETCH(unsigned, signs);
    QCOMPARE(TerrainIn(entry), signs);
}

void LookTest::countOfTheSplits_data()
{
    QTest::addColumn<int>("splits");
    QTest::addColumn<QString>("mark");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("one") << 1 << QStringLiteral("1 parziale");
    QTest::newRow("three") << 3 << QStringLiteral("3 parziali");
    QTest::newRow("all") << 101 << QStringLiteral("101 parziali");
}

void LookTest::countOfTheSplits()
{
    QFETCH(int, splits);
    QFETCH(QString, mark);
    QCOMPARE(SplitsMark(splits), mark);
}

void LookTest::knownWordsHaveAMark()
{
    EntryPage page;
    page.Start();
    for (const auto& [list, known] : {std::pair(SelectionList::TempoAtm, TextView("Nuvoloso/Pioggia")),
                                      std::pair(SelectionList::Fondo, TextView("Pista Atletica"))}) {
        Label& label = *page->ListField(list).lblImmis;
        const QImage none = MarkWith(label, {});
        QVERIFY(MarkWith(label, known) != none);
        QVERIFY(MarkWith(label, "Boh") == none);
    }
    VERIFY_SCRIPT(page.script);
}

void LookTest::splitsAreCountedBesideThem()
{
    EntryPage page;
    page.Start();
    Label& label = *page->lblImmisTempoMinuti;
    const Text text = label.Caption();
    const QImage none = MarkWith(label, text);
    page->lstListaKM->AddItem("1      00:05:00");
    const QImage one = MarkWith(label, text);
    page->lstListaKM->AddItem("2      00:10:00");
    QVERIFY(one != none);
    QVERIFY(MarkWith(label, text) != one);
    page->lstListaKM->Clear();
    QVERIFY(MarkWith(label, text) == none);
    VERIFY_SCRIPT(page.script);
}

void LookTest::marksLeaveTheirEntriesWhole()
{
    EntryPage page;
    page.Start();
    const std::pair<SelectionList, std::vector<const char*>> lists[] = {
        {SelectionList::TempoAtm, {"Nuvoloso/Pioggia/Vento", "Nebbia/Neve/Ghiaccio", "Nuvoloso/Vento forte"}},
        {SelectionList::Fondo, {"Strada/Sentiero/Salita", "Sentiero di montagna"}}};
    for (const auto& [list, entries] : lists) {
        Label& label = *page->ListField(list).lblImmis;
        for (const char* entry : entries) {
            label.SetCaption(entry);
            QCOMPARE(label.Shown(), QLatin1String(entry));
        }
    }
    page->lblImmisTempoMinuti->SetCaption("24:59:59");
    QCOMPARE(page->lblImmisTempoMinuti->Shown(), QStringLiteral("24:59:59"));
    VERIFY_SCRIPT(page.script);
}

void LookTest::rosetteOnARaceDay_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("race");
    const auto row = [](const char* type, bool race) { QTest::newRow(type) << QByteArray(type) << race; };
    row("Gara", true);
    row(" gara ", true);
    row("Allenamento", false);
    row("Gara di paese", false);
    row("", false);
}

void LookTest::rosetteOnARaceDay()
{
    QFETCH(QByteArray, type);
    QFETCH(bool, race);
    EntryPage page;
    Module1::Giorni[141].Tipo = type.toStdString();
    page.Start();
    Module1::Giorni[141].Tipo = type.toStdString();
    QVERIFY(!page->pctCoccarda->isVisible());
    page.GoTo(141);
    QCOMPARE(page->pctCoccarda->isVisible(), race);
    // It takes no click of what is below.
    QVERIFY(page->pctCoccarda->testAttribute(Qt::WA_TransparentForMouseEvents));
    page.GoTo(142);
    QVERIFY(!page->pctCoccarda->isVisible());
    VERIFY_SCRIPT(page.script);
}

void LookTest::rosetteOnADayOfTheCalendar()
{
    EntryPage page;
    page.Start();
    page->MostraRiquadriGara();
    QVERIFY(page->pctCoccarda->isVisible());
    page->NascondiRiquadriGara();
    QVERIFY(!page->pctCoccarda->isVisible());
    VERIFY_SCRIPT(page.script);
}

void LookTest::anEmptyDayIsFaint()
{
    EntryPage page;
    page.Start();
    QStringList written;
    for (const char* name : {"lblImmisMetri", "lblImmisOraInizio", "lblImmisOraFine", "lblOutTempoImpiegato",
                             "lblOutMediaKM", "lblImmisCorridori", "lblImmisPeso", "lblRipetizioniVolte",
                             "lblRipetizioniDistanza", "lblRipetizioniQuante", "lblImmisTempoKM", "lblImmisTempoMinuti",
                             "lblTabNomeFile", "lblKmTab", "lblTempoTab", "lblMediaTab", "lblRipetizioniTab"}) {
        const auto* label = page->findChild<Label*>(QLatin1String(name));
        QVERIFY2(!label->text().isEmpty(), name);
        QVERIFY2(label->Faint(), name);
    }
    // The later texts are those of a blank day.
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("0:00:00"));
    QCOMPARE(page.Caption("lblTabNomeFile"), QStringLiteral("Nessuna tabella attiva"));
    QCOMPARE(page.Caption("lblRipetizioniTab"), QStringLiteral("0 x 0  @  0:0"));
    VERIFY_SCRIPT(page.script);
}

void LookTest::aWrittenValueIsNot()
{
    EntryPage page;
    page.Start();
    page->upMetro->SetValue(1);
    page->upOraInizio->SetValue(24);
    page->upCorridori->SetValue(2);
    page->lblTabNomeFile->SetCaption("Base 10 km.tab");
    page->lblRipetizioniTab->SetCaption("6 x 400  @  1:30");
    for (const Label* label : {page->lblImmisMetri, page->lblImmisOraInizio, page->lblImmisCorridori,
                               page->lblTabNomeFile, page->lblRipetizioniTab}) {
        QVERIFY2(!label->Faint(), qPrintable(label->objectName()));
    }
    // What the arrows are at can be read.
    page.Open(*page->lblImmisPeso);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upPeso"));
    QVERIFY(!page->lblImmisPeso->Faint());
    VERIFY_SCRIPT(page.script);
}

void LookTest::oneRunnerIsWrittenOnTheDayOfARun()
{
    EntryPage page;
    page.Start();
    RecordGiorno day;
    DayOnPage(page.Page()).Show(day);
    QVERIFY(page->lblImmisCorridori->Faint());
    day.Tipo = "Allenamento";
    DayOnPage(page.Page()).Show(day);
    QCOMPARE(page.Caption("lblImmisCorridori"), QStringLiteral("1"));
    QVERIFY(!page->lblImmisCorridori->Faint());
    VERIFY_SCRIPT(page.script);
}

void LookTest::aLongValueIsElided()
{
    EntryPage page;
    page.Start();
    Label& route = *page.Field(1).lblImmis;
    route.SetCaption("Giro dei laghi con il ritorno per la vecchia ferrovia");
    QVERIFY(route.Shown().endsWith(QChar(0x2026)));
    QCOMPARE(route.text(), QStringLiteral("Giro dei laghi con il ritorno per la vecchia ferrovia"));
    // A whole line of a note fits.
    page->notes[3].lbl->SetCaption("Bene in salita, discesa prudente");
    QCOMPARE(page->notes[3].lbl->Shown(), QStringLiteral("Bene in salita, discesa prudente"));
    VERIFY_SCRIPT(page.script);
}

void LookTest::openBoxesShowTheWholeHand()
{
    EntryPage page;
    page.Start();
    for (int number = 1; number <= 8; ++number) {
        QVERIFY2(ShowsWholeHand(*page.Field(number).txt), qPrintable(QString::number(number)));
        // Over its own line, between the rules of its row.
        QVERIFY(page.Field(number).txt->geometry().contains(page.Field(number).lblImmis->geometry()));
    }
    for (int line = 3; line <= 10; ++line) {
        QVERIFY2(ShowsWholeHand(*page->notes[line].txt), qPrintable(QString::number(line)));
        QVERIFY(page->notes[line].txt->geometry().contains(page->notes[line].lbl->geometry()));
    }
    VERIFY_SCRIPT(page.script);
}

void LookTest::theDayIsMarkedInItsWeek()
{
    EntryPage page;
    page.Start();
    // 18 May 2026 is a Monday and day 138. Seven boxes, 28 apart; the point is in the corner of one, off its digits.
    for (int today = 0; today < 7; ++today) {
        page.GoTo(138 + today);
        for (int day = 0; day < 7; ++day) {
            const QPoint corner(434 - (7 - day) * 28 + 3, 21 + 3);
            const QColor expected = day == today ? Ink::Accent : Ink::Slip;
            QCOMPARE(ColourAt(*page->lblData, PageLayout::kDate, corner), expected);
        }
    }
    VERIFY_SCRIPT(page.script);
}

void LookTest::arrowsShowFaintlyAtRest()
{
    EntryPage page;
    page.Start();
    for (const QRect& cell : {PageLayout::kDayCell, PageLayout::kMonthCell}) {
        const QRect arrows = page->sheet->Place(PageLayout::DateSpin(cell));
        const QImage image = page->sheet->grab(arrows).toImage();
        for (const int part : {1, 3}) {
            QCOMPARE(image.pixelColor(image.width() / 2, image.height() * part / 4 + 4 - 2 * part), Ink::Pencil);
        }
    }
    VERIFY_SCRIPT(page.script);
}

void LookTest::whatCanBeClickedSaysSo()
{
    EntryPage page;
    page.Start();
    for (const char* name :
         {"lblData", "lblImmisPercorso", "lblImmisTemperatura", "lblImmisMetri", "lblImmisTempoMinuti",
          "lblRipetizioniDistanza", "lblNote3", "lblNote10", "lblIndiceMesi"}) {
        QVERIFY2(page->findChild<Label*>(QLatin1String(name))->cursor().shape() == Qt::PointingHandCursor, name);
    }
    for (const char* name : {"lblPercorso", "lblKm", "lblOutMediaKM", "lblNumGare", "lblNomeFile", "lblKmTab"}) {
        QVERIFY2(page->findChild<Label*>(QLatin1String(name))->cursor().shape() == Qt::ArrowCursor, name);
    }
    QCOMPARE(page->lblData->toolTip(), QStringLiteral("Cambia giorno e mese"));
    VERIFY_SCRIPT(page.script);
}

void LookTest::unitsStandBehindTheArrows()
{
    EntryPage page;
    page.Start();
    QVERIFY(!page->pctUnita->isVisible());
    page.Open(*page->lblImmisMetri);
    QTRY_VERIFY(page->pctUnita->isVisible());
    // "km", "10 m" and "m" have room between one arrow and the next.
    const double factor = page->sheet->Factor();
    const QFontMetrics print(Enlarged(PrintFont(13), factor));
    const auto fits = [&](const char* unit, const QWidget& arrows, int end) {
        return end - arrows.geometry().right() > print.horizontalAdvance(QLatin1String(unit)) + 3;
    };
    QVERIFY(fits("km", *page->upKM, page->upMetri->x()));
    QVERIFY(fits("10 m", *page->upMetri, page->upMetro->x()));
    QVERIFY(fits("m", *page->upMetro, page->pctUnita->geometry().right()));
    const QImage image = page->sheet->grab(page->pctUnita->geometry()).toImage();
    const auto printed = [&image, factor](int left, int right) {
        for (int x = qCeil(left * factor); x < right * factor; ++x) {
            for (int y = 4; y < image.height() - 4; ++y) {
                if (qGray(image.pixel(x, y)) < 140) {
                    return true;
                }
            }
        }
        return false;
    };
    for (const int left : {22, 80, 138}) {
        QVERIFY(printed(left, left + 26));
    }
    // The arrows have to be above the print.
    QCOMPARE(page->sheet->childAt(page->upMetri->geometry().center()), page->upMetri);
    page.Open(*page->lblImmisMetri);
    QTRY_VERIFY(!page->pctUnita->isVisible());
    VERIFY_SCRIPT(page.script);
}

void LookTest::theIndexShowsTheMonth()
{
    EntryPage page;
    page.Start();
    QCOMPARE(page->lblIndiceMesi->text(), QStringLiteral("maggio"));
    hand::Click(*page->lblData);
    QTRY_VERIFY(page->upMese->isVisible());
    page.Up(*page->upMese);
    QTRY_COMPARE(page->lblIndiceMesi->text(), QStringLiteral("giugno"));
    for (int month = 1; month <= 12; ++month) {
        const QPoint corner(10, (month - 1) * 44 + 3);
        const QColor expected = month == 6 ? Ink::Accent : Ink::PaperShade;
        QCOMPARE(ColourAt(*page->lblIndiceMesi, PageLayout::kThumbIndex, corner), expected);
    }
    VERIFY_SCRIPT(page.script);
}

void LookTest::theIndexOpensTheArrowsAndNothingElse()
{
    EntryPage page;
    page.Start();
    const QString date = page->lblData->text();
    Label& index = *page->lblIndiceMesi;
    // December's tab, on a page of May.
    hand::Click(index, {index.width() / 2, index.height() - 10});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upGiorno"));
    QVERIFY(page->upGiorno->isVisible() && page->upMese->isVisible());
    QCOMPARE(page->lblData->text(), date);
    QCOMPARE(Module1::FileModificato.value(), 0);
    QCOMPARE(index.focusPolicy(), Qt::NoFocus);
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::LookTest)
#include "LookTest.moc"
