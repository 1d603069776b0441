// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a text in a window: avviso TEXT. For the launcher, when no terminal would show what it has to say.
#include "core/MessageBox.h"
#include "toolkit/Application.h"

int main(int argc, char* argv[])
{
    const zelvia::Application application(argc, argv);
    if (argc != 2) {
        return 2;
    }
    zelvia::ShowBox({zelvia::FromUtf8(argv[1]), zelvia::MsgIcon::Exclamation});
    return 0;
}
