// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/CalendarDesk.h"

#include "core/Messages.h"
#include "diary/CalendarModel.h"
#include "support/Bytes.h"

namespace zelvia::test
{
namespace
{

void ClickHalf(UpDown& spin, bool upper)
{
    hand::Click(spin, {spin.width() / 2, upper ? spin.height() / 4 : spin.height() - spin.height() / 4});
}

} // namespace

CalendarDesk::CalendarDesk(const CalendarBytes& file)
{
    WriteFile(file.Bytes());
}

frmCalendario* CalendarDesk::Window() const
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<frmCalendario*>(widget);
        if (window != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

void CalendarDesk::OpenCalendar() const
{
    Menu("mnuTabelle", Qt::Key_G);
    QTRY_VERIFY(Window() != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(Window()));
    AwaitFront(*Window());
}

void CalendarDesk::StartOpen()
{
    Start();
    OpenCalendar();
}

void CalendarDesk::Write(RaceColumn box, int row, const QString& text) const
{
    TextBox& written = Box(box, row);
    hand::Click(written);
    QTRY_VERIFY2(written.hasFocus(), qPrintable(written.objectName()));
    written.selectAll();
    hand::Key(Qt::Key_Backspace);
    if (!text.isEmpty()) {
        hand::Type(text);
    }
}

void CalendarDesk::WriteDate(int row, const QByteArray& day, const QByteArray& month, const QByteArray& year) const
{
    Write(RaceColumn::Giorno, row, QString::fromLatin1(day));
    Write(RaceColumn::Mese, row, QString::fromLatin1(month));
    Write(RaceColumn::Anno, row, QString::fromLatin1(year));
}

void CalendarDesk::WriteRow(int row, const char* values) const
{
    hand::Click(Box(RaceColumn::Giorno, row));
    for (const QByteArray& value : QByteArray(values).split('|')) {
        if (!value.isEmpty()) {
            hand::Type(QString::fromLatin1(value));
        }
        hand::Key(Qt::Key_Return);
    }
}

QByteArray CalendarDesk::Row(int row) const
{
    QByteArrayList parts;
    for (std::size_t column = 0; column < CalendarGrid::kColumns; ++column) {
        parts << Box(static_cast<RaceColumn>(column), row).text().toLatin1();
    }
    return parts.join('|');
}

void CalendarDesk::NextPage() const
{
    ClickHalf(*Window()->upPaginaGare, true);
}

void CalendarDesk::PreviousPage() const
{
    ClickHalf(*Window()->upPaginaGare, false);
}

void CalendarDesk::Save(QMessageBox::StandardButton press)
{
    script.Expect(Messages::kSaveRaces, press);
    hand::Click(*Window()->cmdSalva);
    TRY_SCRIPT(script);
}

void CalendarDesk::Leave() const
{
    const QPointer<frmCalendario> window = Window();
    hand::Click(*window->cmdEsci);
    QTRY_VERIFY2(window.isNull(), qPrintable(script.Problems()));
    TakeFront();
}

void CalendarDesk::TryToLeave() const
{
    hand::Click(*Window()->cmdEsci);
    TRY_SCRIPT(script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(Window() != nullptr);
}

void CalendarDesk::LeaveAnswering(QMessageBox::StandardButton press)
{
    script.Expect(Messages::kRacesNotSaved, press);
    Leave();
    TRY_SCRIPT(script);
}

ExpectedBox Stop(const QString& text)
{
    return {text, QMessageBox::Critical};
}

QByteArray RaceInMemory(int row)
{
    using namespace Module1;
    const auto digits = [](auto number) { return QByteArray::number(static_cast<int>(number.value())); };
    return QByteArrayList{
        digits(GiornoGara[row]),        digits(MeseGara[row]),    digits(AnnoGara[row]),   Bytes(Gara[row]),
        Bytes(Localita[row]),           digits(KmGara[row]),      digits(MetriGara[row]),  digits(Partecipanti[row]),
        digits(Risultato[row]),         digits(OreGara[row]),     digits(MinutiGara[row]), digits(SecondiGara[row]),
        Bytes(Module1::Categoria[row]), digits(RisultatoCat[row])}
        .join('|');
}

} // namespace zelvia::test
