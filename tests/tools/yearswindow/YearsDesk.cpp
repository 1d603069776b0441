// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/yearswindow/YearsDesk.h"

#include "toolkit/CommonDialog.h"

#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <algorithm>

namespace zelvia::test
{

YearsDesk::YearsDesk()
{
    qputenv("XDG_STATE_HOME", folder.Native("stato").c_str());
    qputenv("HOME", folder.Native().c_str());
    folder.MakeFolder("ZelviaFile");
    DiaryBytes first = Year(2024);
    Run(first, 1, 10, "0:50:00", "Lungomare");
    first.SetLine(1, DiaryBytes::Weight, "72");
    Run(first, 60, 8, "0:44:00", "Bosco");
    first.SetLine(60, DiaryBytes::Weight, "71");
    Run(first, 366, 10, "0:48:20", "Lungomare", "Gara");
    Write("2024", first);
    DiaryBytes second = Year(2025);
    Run(second, 1, 12, "1:00:00", "Lungomare");
    Run(second, 152, 10, "0:47:30", "Lungomare", "Gara");
    second.SetLine(152, DiaryBytes::Weight, "70");
    Write("2025", second);
    DiaryBytes third = Year(2026);
    Run(third, 5, 20, "1:40:00", "Bosco");
    Run(third, 130, 10, "0:50:00", "Lungomare");
    third.SetLine(130, DiaryBytes::Weight, "69");
    Write("2026", third);
    folder.Write("ZelviaFile/rovinato.zlv", "x");
}

YearsDesk::~YearsDesk()
{
    SetFileDialogHandler({});
    window_.reset();
    qunsetenv("XDG_STATE_HOME");
}

DiaryBytes YearsDesk::Year(int year)
{
    return DiaryBytes::Blank(year);
}

void YearsDesk::Run(DiaryBytes& diary, int slot, int kilometres, const char* time, const char* route, const char* kind)
{
    const auto quoted = [](const char* text) { return '"' + QByteArray(text) + '"'; };
    diary.SetLine(slot, DiaryBytes::Route, quoted(route));
    diary.SetLine(slot, DiaryBytes::Km, QByteArray::number(kilometres));
    diary.SetLine(slot, DiaryBytes::Kind, quoted(kind));
    diary.SetLine(slot, DiaryBytes::Time, quoted(time));
}

void YearsDesk::Write(const std::string& diary, const DiaryBytes& bytes) const
{
    folder.Write("ZelviaFile/" + diary + ".zlv", bytes.Bytes().toStdString());
}

void YearsDesk::Open()
{
    window_ = std::make_unique<YearsWindow>(folder.Native());
    QSignalSpy ready(window_.get(), &YearsWindow::Ready);
    window_->show();
    if (!QTest::qWaitForWindowExposed(window_.get()) || !QTest::qWaitFor([&] { return !ready.isEmpty(); })) {
        qFatal("the window does not come up");
    }
    window_->activateWindow();
    hand::AwaitFront(*window_);
}

void YearsDesk::Show(FigureKind kind)
{
    auto& kinds = Get<QListWidget>("kinds");
    const auto& rows = FigureKinds();
    const auto place = std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.kind == kind; });
    const QListWidgetItem* item = kinds.item(static_cast<int>(place - rows.begin()));
    hand::Click(*kinds.viewport(), kinds.visualItemRect(item).center());
}

QStringList YearsDesk::Row(int row)
{
    const QAbstractItemModel& model = *Get<QTableView>("table").model();
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        cells << model.index(row, column).data().toString();
    }
    return cells;
}

} // namespace zelvia::test
