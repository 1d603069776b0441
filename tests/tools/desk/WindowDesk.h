// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/desk/DeskWindow.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QString>

#include <filesystem>
#include <functional>
#include <memory>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace zelvia
{
class OutcomeTable;
}

namespace zelvia::test
{

/// Waits as long as a busy machine may take.
constexpr int kDeskPatience = 20000;

/// The window of the tools on a home with the sample diary.
class WindowDesk
{
public:
    ToolsDesk tools;
    /// As a desk that is opened has it.
    std::function<void(const std::filesystem::path& folder)> OpenAllYears;

    /// Shows the window at a page and waits for its front.
    void Open(const std::string& page);
    /// Deletes it.
    void Close() { window_.reset(); }

    DeskWindow& Window() { return *window_; }
    bool IsOpen() const { return window_ != nullptr && window_->isVisible(); }
    Desk& Shared() { return *desk_; }

    /// A control of the page that is up, or of the window itself.
    template <typename Widget>
    Widget& Part(const char* name)
    {
        for (Widget* found : window_->findChildren<Widget*>(QLatin1String(name))) {
            if (found->isVisible()) {
                return *found;
            }
        }
        qFatal("no %s on the page", name);
    }
    QString Notes();
    OutcomeTable& Table(const char* name = "table");
    QPushButton& Button(const char* name);
    bool MayRun();

    /// All that is in the program folder, with its own path replaced.
    static QByteArray WithoutItsPath(const ToolsDesk& tools);

private:
    std::unique_ptr<Desk> desk_;
    std::unique_ptr<DeskWindow> window_;
};

} // namespace zelvia::test
