// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/ActiveWindow.h"
#include "support/BoxScript.h"
#include "support/DiaryBytes.h"
#include "support/FixedClock.h"
#include "support/Hand.h"
#include "support/TempFolder.h"
#include "tools/yearswindow/YearsWindow.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <memory>

namespace zelvia::test
{

/// The window on three small years, on 20 May 2026:
///   2024  10 km on 1 January, 8 km on 29 February, a race over 10 km on 31 December
///   2025  12 km on 1 January, a race over 10 km on 1 June
///   2026  20 km on 5 January, 10 km on 10 May
/// and a diary that can't be read.
class YearsDesk
{
public:
    YearsDesk();
    ~YearsDesk();

    /// Opens the window and waits until it shows what it has read.
    void Open();
    void Close() { window_.reset(); }

    YearsWindow& Window() { return *window_; }
    template <typename Part>
    Part& Get(const char* name)
    {
        return *window_->findChild<Part*>(QLatin1String(name));
    }
    FigureView& View() { return Get<FigureView>("figure"); }
    QString Text(const char* name) { return Get<QLabel>(name).text(); }
    void Press(const char* button) { hand::Click(Get<QPushButton>(button)); }
    /// Chooses a kind with the mouse.
    void Show(FigureKind kind);
    QStringList Row(int row);
    QString Title() { return View().Shown().title; }

    static DiaryBytes Year(int year);
    /// Enters a run.
    static void Run(DiaryBytes& diary, int slot, int kilometres, const char* time, const char* route,
                    const char* kind = "Allenamento");
    void Write(const std::string& diary, const DiaryBytes& bytes) const;

    TempFolder folder;
    BoxScript script;

private:
    FixedClock clock_{CalendarDate(2026, 5, 20)};
    std::unique_ptr<YearsWindow> window_;
};

} // namespace zelvia::test
