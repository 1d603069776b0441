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
#include <vector>

namespace zelvia::test
{

/// Answers the message boxes of its lifetime with OK and keeps their texts.
class MessageLog
{
public:
    MessageLog()
        : previous_(SetMsgBoxHandler([this](const MsgRequest& request) {
              texts.push_back(request.text);
              return MsgAnswer::OK;
          }))
    {
    }
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;
    ~MessageLog() { SetMsgBoxHandler(std::move(previous_)); }

    std::vector<Text> texts;

private:
    MsgBoxHandler previous_;
};

/// Answers the message boxes of its lifetime from a script. A box that is not the next of the script, in any letter of
/// its text, its icon or its buttons, fails the test; so does a box that was expected and never came.
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

    void Expect(MsgRequest request, MsgAnswer answer = MsgAnswer::OK)
    {
        expected_.push_back({std::move(request), answer});
    }
    /// A plain box, as errors are reported.
    void Expect(TextView text) { Expect(MsgRequest{Text(text)}); }
    void Expect(const Message& message, MsgAnswer answer = MsgAnswer::OK) { Expect(Filled(message, {}), answer); }

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
        if (request == next.request) {
            return next.answer;
        }
        Fail(request.text != next.request.text ? "box \"" + request.text + "\" instead of \"" + next.request.text + "\""
                                               : "wrong buttons or icon of the box: " + request.text);
        return giveUp;
    }

    MsgBoxHandler previous_;
    std::deque<Scripted> expected_;
    int shown_ = 0;
};

} // namespace zelvia::test
