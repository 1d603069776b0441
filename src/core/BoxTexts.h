// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/MessageBox.h"
#include "core/Text.h"

#include <vector>

namespace zelvia
{

/// Takes the boxes that the diary's routines bring up for as long as it lives.
class BoxTexts
{
public:
    BoxTexts()
        : kept_(SetMsgBoxHandler([this](const MsgRequest& request) {
              texts_.push_back(request.text);
              return MsgAnswer::OK;
          }))
    {
    }
    BoxTexts(const BoxTexts&) = delete;
    BoxTexts& operator=(const BoxTexts&) = delete;
    ~BoxTexts() { SetMsgBoxHandler(kept_); }

    const std::vector<Text>& All() const { return texts_; }

private:
    std::vector<Text> texts_;
    MsgBoxHandler kept_;
};

} // namespace zelvia
