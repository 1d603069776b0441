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

MsgRequest Filled(const Message& message, std::initializer_list<TextView> parts)
{
    constexpr TextView place = "{}";
    MsgRequest request{Text(message.text), message.icon, message.buttons};
    std::size_t from = 0;
    for (const TextView part : parts) {
        from = request.text.find(place, from);
        request.text.replace(from, place.size(), part);
        from += part.size();
    }
    return request;
}

MsgAnswer ShowBox(const MsgRequest& request)
{
    if (CurrentHandler()) {
        return CurrentHandler()(request);
    }
    std::cerr << ToUtf8(request.text) << '\n';
    return request.buttons == MsgButtons::OK ? MsgAnswer::OK : MsgAnswer::Cancel;
}

MsgBoxHandler SetMsgBoxHandler(MsgBoxHandler handler)
{
    return std::exchange(CurrentHandler(), std::move(handler));
}

} // namespace zelvia
