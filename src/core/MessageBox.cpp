// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/MessageBox.h"

#include <iostream>
#include <utility>

namespace zelvia
{
namespace
{

MsgBoxHandler& CurrentHandler()
{
    static MsgBoxHandler handler;
    return handler;
}

} // namespace

MsgAnswer MsgBox(TextView text, MsgButtons buttons, MsgIcon icon, TextView title)
{
    if (CurrentHandler()) {
        return CurrentHandler()({Text(text), buttons, icon, Text(title)});
    }
    std::cerr << ToUtf8(text) << '\n';
    return buttons == MsgButtons::OK ? MsgAnswer::OK : MsgAnswer::Cancel;
}

MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler)
{
    return std::exchange(CurrentHandler(), std::move(handler));
}

} // namespace zelvia
