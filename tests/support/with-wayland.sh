#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a test program on a Wayland display of its own, without X: with-wayland.sh PROGRAM [ARGUMENTS]
# ZELVIA_SCALE is the scale of the screen; 1 unless given. The display is a window of an X server, from which it has its
# keyboard and its pointer; only who moves those is to know that server, by ZELVIA_HAND_DISPLAY.
set -u

folder=$(mktemp -d) || exit 1
screen=
server=
tidy() {
  [ -n "$server" ] && kill "$server" 2>/dev/null && wait "$server" 2>/dev/null
  [ -n "$screen" ] && kill "$screen" 2>/dev/null && wait "$screen" 2>/dev/null
  rm -rf "$folder"
}
trap tidy EXIT
trap 'exit 143' TERM INT HUP

# Polls for a condition, for at most 20 seconds.
await() {
  tries=1000
  until "$@" >/dev/null 2>&1; do
    tries=$((tries - 1))
    [ "$tries" -gt 0 ] || { echo "with-wayland.sh: not ready: $*" >&2; cat "$folder/server.log" >&2; exit 1; }
    sleep 0.02
  done
}

chmod 700 "$folder"
export XDG_RUNTIME_DIR="$folder"
unset DISPLAY WAYLAND_DISPLAY
scale=${ZELVIA_SCALE:-1}
Xvfb -displayfd 3 -screen 0 "$((1600 * scale))x$((1000 * scale))x24" -nolisten tcp 3>"$folder/display" \
  2>"$folder/screen.log" &
screen=$!
await test -s "$folder/display"
ZELVIA_HAND_DISPLAY=:$(cat "$folder/display")
export ZELVIA_HAND_DISPLAY

# Without the user's own settings, and ready once it has its socket. It lets programs take pictures of the screen.
DISPLAY=$ZELVIA_HAND_DISPLAY weston --no-config --backend=x11-backend.so --use-pixman --width=1600 --height=1000 \
  --scale="$scale" --idle-time=0 --debug --socket=zelvia --log="$folder/server.log" >/dev/null 2>&1 &
server=$!
await test -S "$folder/zelvia"

# No manager gives its window the keyboard. The pointer is out of the way.
has_keyboard() {
  DISPLAY=$ZELVIA_HAND_DISPLAY xdotool search --onlyvisible --class weston windowfocus mousemove 1599 999
}
await has_keyboard

WAYLAND_DISPLAY=zelvia QT_QPA_PLATFORM=wayland "$@"
