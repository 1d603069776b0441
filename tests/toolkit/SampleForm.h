// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Button.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/ListBox.h"
#include "toolkit/Picture.h"
#include "toolkit/TextBox.h"
#include "toolkit/UpDown.h"

#include <QByteArray>
#include <QMenu>

#include <functional>

class QMenuBar;

/// A window with one of each control, none over another. It notes what is reported to its controls: "+txtUno" for a
/// GotFocus, "-txtUno" for a LostFocus, "cmdVai" for a click.
class SampleForm : public zelvia::Form
{
    Q_OBJECT

public:
    SampleForm();

    zelvia::Control& FocusSink() override { return *pctFondo; }

    /// Shows the window, waits until it has the keyboard, and forgets the reports so far.
    void Open();

    /// Gives the focus to a control, waits until both controls have had their report, and forgets those.
    void Start(zelvia::Control& control);

    /// The control that has the focus for the user, by name.
    QByteArray Focused() const;

    /// Writes a word down.
    void Tell(const QByteArray& word);

    /// Sees each key that no control has handled; true when it is done with.
    std::function<bool(const QKeyEvent& key)> UnhandledKey;

    /// The reports, separated by blanks.
    QByteArray told;

    zelvia::Picture* pctFondo;
    zelvia::TextBox* txtUno;
    zelvia::TextBox* txtDue;
    zelvia::TextBox* txtTre;
    zelvia::ListBox* lstUno;
    zelvia::Label* lblFermo;
    zelvia::Label* lblVai;
    zelvia::Picture* pctFigura;
    zelvia::UpDown* upUno;
    zelvia::UpDown* upDue;
    zelvia::Button* cmdVai;
    QMenuBar* bar;
    QMenu* mnuFile;
    QMenu popUp;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Place();
    void WriteDown();
};

/// The middle of an entry of the list, in the coordinates of its view.
QPoint RowCentre(const zelvia::ListBox& list, int row);
