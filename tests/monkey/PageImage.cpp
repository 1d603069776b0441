// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/PageImage.h"

#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/Grouped.h"
#include "windows/page/FrmMain.h"

#include <QDate>
#include <QLocale>

#include <array>
#include <utility>

namespace zelvia::monkey
{
namespace
{

constexpr int kFirstNote = 3;
constexpr int kLastNote = 10;
constexpr std::size_t kNoteLength = 32;

constexpr std::array<Text RecordGiorno::*, 8> kTexts = {
    &RecordGiorno::Percorso, &RecordGiorno::Lunghezza, &RecordGiorno::Modo,     &RecordGiorno::Fondo,
    &RecordGiorno::Tipo,     &RecordGiorno::Stagione,  &RecordGiorno::TempoAtm, &RecordGiorno::Temperatura};

using Spin = UpDown* PageControls::*;

constexpr std::pair<Spin, i16 RecordGiorno::*> kSpins[] = {
    {&PageControls::upKM, &RecordGiorno::Km},
    {&PageControls::upOraInizio, &RecordGiorno::OraInizio},
    {&PageControls::upMinutiInizio, &RecordGiorno::MinutiInizio},
    {&PageControls::upSecondiInizio, &RecordGiorno::SecondiInizio},
    {&PageControls::upOraFine, &RecordGiorno::OraFine},
    {&PageControls::upMinutiFine, &RecordGiorno::MinutiFine},
    {&PageControls::upSecondiFine, &RecordGiorno::SecondiFine},
    {&PageControls::upPeso, &RecordGiorno::Peso},
    {&PageControls::upRipetizioni, &RecordGiorno::Ripetizioni},
    {&PageControls::upRipetizioniDistanza, &RecordGiorno::RipetizioniDistanza},
    {&PageControls::upRipetizioniQuante, &RecordGiorno::RipetizioniQuante},
    {&PageControls::upRipetizioniTempi, &RecordGiorno::RipetizioniTempi}};

QString Shown(const Text& text)
{
    return QLatin1Char('"') + QString::fromUtf8(ToUtf8(text).c_str()) + QLatin1Char('"');
}

QString Differs(const QString& what, const QString& is, const QString& shouldBe)
{
    return what + QLatin1String(" is ") + is + QLatin1String(" instead of ") + shouldBe;
}

QString Digits(int number, int least = 1)
{
    return QString::number(number).rightJustified(least, QLatin1Char('0'));
}

int ValueOf(const UpDown& spin)
{
    return spin.Value().value();
}

/// The first number as it is, the others with two digits.
QString Clock(std::initializer_list<const UpDown*> spins)
{
    QStringList parts;
    for (const UpDown* spin : spins) {
        parts << Digits(ValueOf(*spin), parts.isEmpty() ? 1 : 2);
    }
    return parts.join(QLatin1Char(':'));
}

QDate QtDate(CalendarDate date)
{
    return {date.Year().value(), date.Month().value(), date.Day().value()};
}

/// Thousands separated by a dot, nothing for 0.
QString Thousands(int number)
{
    return number == 0 ? QString() : test::Grouped(number);
}

/// The captions that the page is built with and that the first change of a value replaces.
bool IsFirstCaption(const Label& label, const frmMain& page)
{
    return (&label == page.lblImmisMetri && label.text() == QLatin1String("0,0")) ||
           (&label == page.lblRipetizioniDistanza && label.text() == QLatin1String("00"));
}

bool SameWord(const Text& text, const char* word)
{
    return QString::fromLatin1(test::Bytes(text)).compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

Text WithoutOuterBlanks(const Text& text)
{
    const auto first = text.find_first_not_of(' ');
    return first == Text::npos ? Text() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

RecordGiorno CommittedFrom(const frmMain& page, const RecordGiorno& before)
{
    RecordGiorno day = before;
    day.NumGiorno = Module1::GiornoCorrente;
    day.Data = Module1::DataCorrente;
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
        day.*kTexts[i] = page.listFields[static_cast<int>(i) + 1].lblImmis->Caption();
    }
    for (const auto& [spin, field] : kSpins) {
        day.*field = ValueOf(*(page.*spin));
    }
    day.Metri = ValueOf(*page.upMetri) + ValueOf(*page.upMetro);
    day.Corridori = page.upCorridori->Value();
    day.TempoImpiegato = page.lblOutTempoImpiegato->Caption();
    day.MediaKm = page.lblOutMediaKM->Caption();
    day.ListaKm = {};
    for (int i = 0; i < page.lstListaKM->ListCount() && i <= decltype(day.ListaKm)::kLast; ++i) {
        day.ListaKm[i] = page.lstListaKM->List(i);
    }
    for (int line = kFirstNote; line <= kLastNote; ++line) {
        day.Note[line] = page.notes[line].txt->Content();
    }
    return day;
}

RecordGiorno Visited(const RecordGiorno& day, CalendarDate date)
{
    RecordGiorno visited = day;
    visited.NumGiorno = date.DayOfYear();
    visited.Data = date;
    if (visited.TempoImpiegato.empty()) {
        visited.TempoImpiegato = "0:00:00";
    }
    if (visited.MediaKm.empty()) {
        visited.MediaKm = "0:00";
    }
    int used = 0;
    visited.ListaKm = {};
    for (const Text& split : day.ListaKm) {
        if (!split.empty()) {
            visited.ListaKm[used++] = split;
        }
    }
    for (int line = kFirstNote; line <= kLastNote; ++line) {
        visited.Note[line] = day.Note[line].substr(0, kNoteLength);
    }
    return visited;
}

QString DayDifference(const RecordGiorno& is, const RecordGiorno& shouldBe)
{
    if (is == shouldBe) {
        return {};
    }
    QStringList differences;
    const auto compare = [&](const QString& what, const QString& one, const QString& other) {
        if (one != other) {
            differences << Differs(what, one, other);
        }
    };
    const auto value = [&](const QString& what, const auto& one, const auto& other) {
        compare(what, QString::number(one.value()), QString::number(other.value()));
    };
    value(QStringLiteral("number"), is.NumGiorno, shouldBe.NumGiorno);
    compare(QStringLiteral("date"), QtDate(is.Data).toString(), QtDate(shouldBe.Data).toString());
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
        compare(QStringLiteral("text %1").arg(i + 1), Shown(is.*kTexts[i]), Shown(shouldBe.*kTexts[i]));
    }
    for (std::size_t i = 0; i < std::size(kSpins); ++i) {
        value(QStringLiteral("number %1").arg(i), is.*kSpins[i].second, shouldBe.*kSpins[i].second);
    }
    value(QStringLiteral("metres"), is.Metri, shouldBe.Metri);
    value(QStringLiteral("runners"), is.Corridori, shouldBe.Corridori);
    compare(QStringLiteral("time"), Shown(is.TempoImpiegato), Shown(shouldBe.TempoImpiegato));
    compare(QStringLiteral("pace"), Shown(is.MediaKm), Shown(shouldBe.MediaKm));
    for (int i = 0; i <= decltype(is.ListaKm)::kLast; ++i) {
        compare(QStringLiteral("split %1").arg(i), Shown(is.ListaKm[i]), Shown(shouldBe.ListaKm[i]));
    }
    for (int line = 0; line <= kLastNote; ++line) {
        compare(QStringLiteral("note %1").arg(line), Shown(is.Note[line]), Shown(shouldBe.Note[line]));
    }
    return differences.join(QLatin1String("; "));
}

QString PageFault(const frmMain& page)
{
    const QDate date = QtDate(Module1::DataCorrente);
    const std::pair<const Label*, QString> texts[] = {
        {page.lblData,
         QLocale(QLocale::Italian, QLocale::Italy).toString(date, QStringLiteral("   dddd  d  MMMM  yyyy"))},
        {page.lblNumGiornoAnno, QString::number(date.dayOfYear())},
        {page.lblImmisOraInizio, Clock({page.upOraInizio, page.upMinutiInizio, page.upSecondiInizio})},
        {page.lblImmisOraFine, Clock({page.upOraFine, page.upMinutiFine, page.upSecondiFine})},
        {page.lblImmisCorridori, Digits(ValueOf(*page.upCorridori))},
        {page.lblImmisPeso, Digits(ValueOf(*page.upPeso))},
        {page.lblRipetizioniVolte, Digits(ValueOf(*page.upRipetizioni))},
        {page.lblRipetizioniDistanza, Digits(ValueOf(*page.upRipetizioniDistanza))},
        {page.lblRipetizioniQuante, Clock({page.upRipetizioniQuante, page.upRipetizioniTempi})}};
    for (const auto& [label, text] : texts) {
        if (label->text() != text && !IsFirstCaption(*label, page)) {
            return Differs(label->objectName(), label->text(), text);
        }
    }
    // A change of the kilometres shows the distance without the single metres, which stay.
    const QString km = Digits(ValueOf(*page.upKM)) + QLatin1Char(',');
    const QString tens = km + Digits(ValueOf(*page.upMetri), 3);
    const QString whole = km + Digits(ValueOf(*page.upMetri) + ValueOf(*page.upMetro), 3);
    const QString distance = page.lblImmisMetri->text();
    if (distance != tens && distance != whole && !IsFirstCaption(*page.lblImmisMetri, page)) {
        return Differs(QStringLiteral("the distance"), distance, whole);
    }
    const QDate parts(page.AnnoCorrente.value(), page.MeseCorrente.value(), page.GiornoMese.value());
    if (parts != date || Module1::GiornoCorrente.value() != date.dayOfYear()) {
        return Differs(QStringLiteral("the date in parts"), parts.toString(), date.toString());
    }
    if (Module1::DataCorrente < page.DataMinima || Module1::DataCorrente > page.DataMassima) {
        return QStringLiteral("the date is out of range: ") + date.toString();
    }
    for (int line = kFirstNote; line <= kLastNote; ++line) {
        const NoteControls& note = page.notes[line];
        if (!note.txt->isVisible() && note.lbl->text() != note.txt->text()) {
            return Differs(note.lbl->objectName(), note.lbl->text(), note.txt->text());
        }
        if (note.txt->Content().size() > kNoteLength) {
            return QStringLiteral("a note is too long: ") + note.txt->text();
        }
    }
    return {};
}

QString CounterFault(const frmMain& page)
{
    int km = 0;
    int metres = 0;
    int runs = 0;
    int races = 0;
    for (int slot = 1; slot <= Module1::GiornoCorrente.value(); ++slot) {
        const RecordGiorno& day = Module1::Giorni[slot];
        km += qMax<int>(day.Km.value(), 0);
        metres += qMax<int>(day.Metri.value(), 0);
        const Text kind = WithoutOuterBlanks(day.Tipo);
        (SameWord(kind, "Gara") ? races : runs) += kind.empty() ? 0 : 1;
    }
    const std::pair<const Label*, QString> counters[] = {{page.lblNumKMPercorsi, Thousands(km + metres / 1000)},
                                                         {page.lblNumGiorniCorseAnno, Digits(runs)},
                                                         {page.lblNumGare, Digits(races)}};
    for (const auto& [label, text] : counters) {
        if (label->text() != text) {
            return Differs(label->objectName(), label->text(), text);
        }
    }
    bool race = false;
    for (int row = 1; row <= decltype(Module1::GiornoGara)::kLast; ++row) {
        race = race || (Module1::GiornoGara[row] == page.GiornoMese && Module1::MeseGara[row] == page.MeseCorrente &&
                        Module1::AnnoGara[row] == page.AnnoCorrente);
    }
    if (race != page.lblGara->Visible() || race == page.lblKmTab->Visible()) {
        return QStringLiteral("the right page does not show what the day has: a race or a plan");
    }
    return {};
}

} // namespace zelvia::monkey
