// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <functional>
#include <initializer_list>

namespace zelvia
{

enum class MsgButtons { OK, OKCancel, YesNoCancel };
enum class MsgIcon { None, Critical, Exclamation, Information };
enum class MsgAnswer { OK, Cancel, Yes, No };

/// What a message box shows.
struct MsgRequest {
    Text text;
    MsgIcon icon = MsgIcon::None;
    MsgButtons buttons = MsgButtons::OK;

    friend bool operator==(const MsgRequest&, const MsgRequest&) = default;
};

/// A message of the program, a row of Messages.h. Each `{}` in its text is a part that changes.
struct Message {
    TextView name;
    TextView text;
    MsgIcon icon;
    MsgButtons buttons = MsgButtons::OK;
};

/// The message with its parts in their places, in order.
MsgRequest Filled(const Message& message, std::initializer_list<TextView> parts);

/// Shows a modal message box and returns the button pressed.
MsgAnswer ShowBox(const MsgRequest& request);

template <typename... Parts>
MsgAnswer MsgBox(const Message& message, const Parts&... parts)
{
    return ShowBox(Filled(message, {TextView(parts)...}));
}

using MsgBoxHandler = std::function<MsgAnswer(const MsgRequest&)>;

/// Makes `handler` answer all message boxes and returns the one it replaces. Before the windows are up no handler
/// is set: the text then goes to the error stream and the answer is Cancel, or OK where that is the only button.
MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler);

} // namespace zelvia
