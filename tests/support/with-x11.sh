#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a test program on an X display of its own, under a window manager: with-x11.sh PROGRAM [ARGUMENTS]
# ZELVIA_SCREEN is the size of the screen, WIDTHxHEIGHT; 1600x1000 unless given.
set -u

folder=$(mktemp -d) || exit 1
server=
manager=
tidy() {
  [ -n "$manager" ] && kill "$manager" 2>/dev/null && wait "$manager" 2>/dev/null
  [ -n "$server" ] && kill "$server" 2>/dev/null && wait "$server" 2>/dev/null
  rm -rf "$folder"
}
trap tidy EXIT
trap 'exit 143' TERM INT HUP

# Polls for a condition, for at most 20 seconds.
await() {
  tries=1000
  until "$@" >/dev/null 2>&1; do
    tries=$((tries - 1))
    [ "$tries" -gt 0 ] || { echo "with-x11.sh: not ready: $*" >&2; exit 1; }
    sleep 0.02
  done
}

# The server takes a free display and writes its number once it is ready.
Xvfb -displayfd 3 -screen 0 "${ZELVIA_SCREEN:-1600x1000}x24" -nolisten tcp 3>"$folder/display" 2>"$folder/server.log" &
server=$!
await test -s "$folder/display"
DISPLAY=:$(cat "$folder/display")
export DISPLAY

# A manager without the user's own settings, which runs this once it manages the display.
HOME=$folder XDG_CONFIG_HOME=$folder openbox --sm-disable --startup "touch $folder/managed" >"$folder/manager.log" 2>&1 &
manager=$!
await test -e "$folder/managed"

QT_QPA_PLATFORM=xcb "$@"
