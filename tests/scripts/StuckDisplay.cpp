// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

/// Stands before libwayland's own, preloaded: a display whose threads wait for each other when it is taken down.
extern "C" void wl_display_disconnect(void* /*display*/)
{
    for (;;) {
        ::pause();
    }
}
