// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Button.h"
#include "toolkit/Form.h"
#include "toolkit/Picture.h"

namespace zelvia
{

/// The window that says what the program is, its version, its licence and where the diaries are: two pictures and a
/// button.
class frmInfo : public Form
{
    Q_OBJECT

public:
    frmInfo();

    Control& FocusSink() override { return *cmdOK; }

    Picture* pctInfo;
    Picture* Picture1;
    Button* cmdOK;
};

} // namespace zelvia
