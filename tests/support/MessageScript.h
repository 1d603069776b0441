// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"
#include "core/RunTimeError.h"
#include "support/Bytes.h"
#include "support/ShownTexts.h"

#include <QTest>

#include <deque>
#include <string>
#include <utility>

namespace zelvia::test
{

/// Answers the message boxes of its lifetime from a script. A box that is not the next of the script, in any letter of
/// its text, its buttons, its icon or its title, fails the test; so does a box that was expected and never came.
class MessageScript
{
public:
    MessageScript() : previous_(SetMsgBoxHandler([this](const MsgRequest& request) { return Answer(request); })) {}
    MessageScript(const MessageScript&) = delete;
    MessageScript& operator=(const MessageScript&) = delete;
    ~MessageScript()
    {
        SetMsgBoxHandler(std::move(previous_));
        if (!expected_.empty()) {
            Fail("this box never came: " + expected_.front().request.text);
        }
    }

    void Expect(TextView text, MsgButtons buttons = MsgButtons::OK, MsgIcon icon = MsgIcon::None,
                MsgAnswer answer = MsgAnswer::OK, TextView title = {})
    {
        expected_.push_back({{Text(text), buttons, icon, Text(title)}, answer});
    }

    /// The plain box of a trap: title, number, blank, description.
    void ExpectError(TextView title, int number)
    {
        Expect(Text(title) + std::to_string(number) + " " + DescriptionOf(number));
    }

    bool AllShown() const { return expected_.empty(); }
    int Shown() const { return shown_; }

private:
    struct Scripted {
        MsgRequest request;
        MsgAnswer answer = MsgAnswer::OK;
    };

    static void Fail(const Text& message) { QTest::qFail(ToUtf8(message).c_str(), __FILE__, __LINE__); }

    MsgAnswer Answer(const MsgRequest& request)
    {
        ++shown_;
        ShownTexts::NoteBox(request);
        const MsgAnswer giveUp = request.buttons == MsgButtons::OK ? MsgAnswer::OK : MsgAnswer::Cancel;
        if (expected_.empty()) {
            Fail("unexpected box: " + request.text);
            return giveUp;
        }
        const Scripted next = std::move(expected_.front());
        expected_.pop_front();
        const MsgRequest& wanted = next.request;
        if (request.text != wanted.text || request.title != wanted.title) {
            Fail("box \"" + request.title + "|" + request.text + "\" instead of \"" + wanted.title + "|" + wanted.text +
                 "\"");
            return giveUp;
        }
        if (request.buttons != wanted.buttons || request.icon != wanted.icon) {
            Fail("wrong buttons or icon of the box: " + request.text);
            return giveUp;
        }
        return next.answer;
    }

    MsgBoxHandler previous_;
    std::deque<Scripted> expected_;
    int shown_ = 0;
};

} // namespace zelvia::test
