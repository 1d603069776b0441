// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Control.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

namespace zelvia
{

/// A window of the program. It is created hidden; closing it asks QueryUnload, which may refuse, and then runs Unload
/// once and releases the window.
class Form : public QWidget
{
    Q_OBJECT

public:
    /// A window with an owner stays above it and closes with it.
    explicit Form(const QString& name, QWidget* owner = nullptr);
    ~Form() override;

    /// The control that takes the focus when none should have it.
    virtual Control& FocusSink();

    /// Shows the window over the main one, or brings the one that is open to the front.
    void ShowInFront();

    /// Ends the window as its close box does. False when it refused.
    bool Unload() { return close(); }

    /// True once it has unloaded; it is deleted a moment later.
    bool Unloaded() const { return unloaded_; }

    /// Runs `action` at once or, while another window blocks this one, as soon as that has closed.
    void RunUnblocked(std::function<void()> action);

    /// The window that contains `widget`, or null when that is not a window of the program.
    static Form* Of(QWidget* widget);

protected:
    /// Gives the window the look of paper, and a size that stays. On a screen without room for it the contents scroll.
    void LayOnPaper(const QSize& size);

    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /// True refuses to close.
    virtual bool QueryUnload() { return false; }
    virtual void OnUnload() {}

private:
    void NoteBlocking(QEvent::Type type);
    bool TakeKey(const QKeyEvent& key);

    Control* sink_;
    bool unloaded_ = false;
    bool blocked_ = false;
    std::vector<std::function<void()>> waiting_; ///< For the end of the blocking.
};

/// The place of a window that is created when first opened and released when it closes.
template <typename Window>
class FormSlot
{
public:
    template <typename... Arguments>
    Window& Load(Arguments&&... arguments)
    {
        if (!Loaded()) {
            form_ = new Window(std::forward<Arguments>(arguments)...);
        }
        return *form_;
    }

    bool Loaded() const { return !form_.isNull() && !form_->Unloaded(); }

    void Unload()
    {
        if (Loaded()) {
            form_->Unload();
        }
    }

private:
    QPointer<Window> form_;
};

} // namespace zelvia
