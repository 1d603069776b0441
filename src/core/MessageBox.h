// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <functional>

namespace zelvia
{

enum class MsgButtons { OK, OKCancel, YesNoCancel };
enum class MsgIcon { None, Critical, Exclamation, Information };
enum class MsgAnswer { OK, Cancel, Yes, No };

/// What a message box shows. Boxes have no title of their own, except the two of the help commands.
struct MsgRequest {
    Text text;
    MsgButtons buttons = MsgButtons::OK;
    MsgIcon icon = MsgIcon::None;
    Text title;
};

/// Shows a modal message box and returns the button pressed.
MsgAnswer MsgBox(TextView text, MsgButtons buttons, MsgIcon icon = MsgIcon::None, TextView title = {});

using MsgBoxHandler = std::function<MsgAnswer(const MsgRequest&)>;

/// Makes `handler` answer all message boxes and returns the one it replaces. Before the windows are up no handler
/// is set: the text then goes to the error stream and the answer is Cancel, or OK where that is the only button.
MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler);

} // namespace zelvia
