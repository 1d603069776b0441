// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QKeyEvent;
class QWidget;

namespace zelvia
{

class frmMain;
class ListBox;

/// The keys of the page as a whole: where Tab goes, the keys that turn the day, and those that go from the box of a
/// field into its list, along the notes and through the splits.
class PageKeys : public QObject
{
    Q_OBJECT

public:
    explicit PageKeys(frmMain& page);

    /// A key that no control of the page had a use for. False when the page has none either.
    bool Handle(const QKeyEvent& key);

    /// Tab, or Shift+Tab: has `step` move the focus until it has left the field that it was in, and passes over a value
    /// that its own box or the ranking covers. Tab leaves a list as Enter does or, if none is selected, as Escape does;
    /// Shift+Tab goes back to its box.
    bool MoveFocus(bool next, const std::function<bool()>& step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const std::vector<QWidget*>* FieldOf(const QWidget* widget) const;
    ListBox* FocusedList() const;
    void EnterMenuBar();
    bool EnterList(int step);
    bool HandleSplitKey(const QKeyEvent& key);

    frmMain& page_;
};

} // namespace zelvia
