// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Prints each message: its name, its text in quotes, its icon and its buttons, separated by tabs.
#include "core/Messages.h"

#include <iostream>

int main()
{
    using namespace zelvia;
    constexpr const char* icons[] = {"-", "critical", "exclamation", "information"};
    constexpr const char* buttons[] = {"OK", "OK Cancel", "Yes No Cancel"};
    for (const Message* message : Messages::kAll) {
        std::cout << message->name << "\t\"" << ToUtf8(message->text) << "\"\t"
                  << icons[static_cast<int>(message->icon)] << '\t' << buttons[static_cast<int>(message->buttons)]
                  << '\n';
    }
}
