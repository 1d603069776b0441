// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/PlanDesk.h"

#include "core/Messages.h"
#include "diary/TableModel.h"
#include "support/Bytes.h"

#include <array>

namespace zelvia::test
{

QByteArray Kilometres(int km)
{
    return QByteArray::number(km) + ",0|0:0:0|0:0|||0 x 0  @  0:0";
}

PlanDesk::PlanDesk(CalendarDate today) : TableDesk(today), diary(DiaryBytes::Blank(today.Year().value()))
{
    folder.Remove(QStringLiteral("prova/Base 10 km.tab"));
    folder.Remove(QStringLiteral("prova/Mezza maratona.tab"));
    Module1::AzzeraTabella();
    Module1::TabDataInizio = CalendarDate();
}

void PlanDesk::Run(int slot, int km, int metres)
{
    diary.SetLine(slot, DiaryBytes::Km, QByteArray::number(km));
    diary.SetLine(slot, DiaryBytes::Metres, QByteArray::number(metres));
}

void PlanDesk::Begin()
{
    folder.Write(QStringLiteral("ZelviaFile/prova.zlv"), diary.Bytes());
    Start();
}

void PlanDesk::PutSecondDiary(const QByteArray& pointer) const
{
    folder.Write(QStringLiteral("ZelviaFile/seconda.zlv"), diary.Bytes());
    for (const QString& file : FullSet()) {
        folder.Write(QStringLiteral("seconda/") + file, SampleFile(QStringLiteral("prova/") + file));
    }
    folder.Write(QStringLiteral("seconda/nometab"), pointer);
}

void PlanDesk::OpenSecondDiary()
{
    Menu("mnuFile", Qt::Key_A);
    QTRY_COMPARE(Caption("lblNomeFile"), QStringLiteral("seconda"));
}

void PlanDesk::PutTable(const QString& name, const TableBytes& table) const
{
    folder.Write(QStringLiteral("prova/") + name, table.Bytes());
}

void PlanDesk::Activate(const char* table) const
{
    folder.Write(QStringLiteral("prova/nometab"), PointerTo(table));
}

QByteArray PlanDesk::Panel() const
{
    QByteArrayList texts;
    for (const char* label : {"lblTabNomeFile", "lblKmTab", "lblTempoTab", "lblMediaTab", "lblAndaturaTab",
                              "lblFondoTab", "lblRipetizioniTab"}) {
        texts << Caption(label).toLatin1();
    }
    return texts.join('|');
}

int PlanDesk::PanelParts() const
{
    const frmMain& page = Page();
    const std::array<const QWidget*, 14> parts = {
        page.pctTabAllenamenti, page.pctTabKm,          page.pctTabTempo,    page.pctTabMedia,      page.pctTabAndatura,
        page.pctTabTerreno,     page.pctTabRipetizioni, page.lblTabNomeFile, page.lblKmTab,         page.lblTempoTab,
        page.lblMediaTab,       page.lblAndaturaTab,    page.lblFondoTab,    page.lblRipetizioniTab};
    return static_cast<int>(
        std::count_if(parts.begin(), parts.end(), [](const QWidget* part) { return part->isVisible(); }));
}

void PlanDesk::ReadAgain() const
{
    Page().RequestTableReading();
    QTRY_COMPARE(Request(), QByteArray("0"));
}

void PlanDesk::ActivateByHand(const char* table) const
{
    OpenTable(table);
    hand::Click(*Editor()->cmdOK);
    QTRY_VERIFY(Editor()->cmdAttiva->isEnabled());
    hand::Click(*Editor()->cmdAttiva);
    QTRY_VERIFY(Editor()->cmdDisattiva->isEnabled());
}

ExpectedBox EndOfTable(const QString& name)
{
    return BoxOf(Messages::kPlanEnds, QMessageBox::Ok, {FromQString(name)});
}

ExpectedBox DeleteQuestion(const QString& entry, QMessageBox::StandardButton press)
{
    return BoxOf(Messages::kDeleteTable, press, {FromQString(entry)});
}

} // namespace zelvia::test
