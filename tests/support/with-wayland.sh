#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a test program on a Wayland display of its own, without X: with-wayland.sh PROGRAM [ARGUMENTS]
# ZELVIA_SCALE is the scale of the screen; 1 unless given. The display is a window of an X server, from which it has its
# keyboard and its pointer; only who moves those is to know that server, by ZELVIA_HAND_DISPLAY.
# ZELVIA_COMPOSITOR is weston unless given. sway brings windows to the front, gives the clipboard to programs without
# a window, has scales between whole numbers, and swaymsg tells of its windows. Its screen is 1366x768 points.
set -u

folder=$(mktemp -d) || exit 1
own=
scale=${ZELVIA_SCALE:-1}
screen=
server=
tidy() {
  [ -n "$server" ] && kill "$server" 2>/dev/null && wait "$server" 2>/dev/null
  [ -n "$screen" ] && kill "$screen" 2>/dev/null && wait "$screen" 2>/dev/null
  rm -rf "$folder" ${own:+"$own"}
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

# start_screen WIDTH HEIGHT: an X server of that many points.
start_screen() {
  width=$(awk "BEGIN { print int($1 * $scale + 0.5) }")
  height=$(awk "BEGIN { print int($2 * $scale + 0.5) }")
  Xvfb -displayfd 3 -screen 0 "${width}x${height}x24" -ac -nolisten tcp 3>"$folder/display" 2>"$folder/screen.log" &
  screen=$!
  await test -s "$folder/display"
  ZELVIA_HAND_DISPLAY=:$(cat "$folder/display")
  export ZELVIA_HAND_DISPLAY
}

# Without the user's own settings, and ready once it has its socket. It lets programs take pictures of the screen.
start_weston() {
  start_screen 1600 1000
  DISPLAY=$ZELVIA_HAND_DISPLAY weston --no-config --backend=x11-backend.so --use-pixman --width=1600 --height=1000 \
    --scale="$scale" --idle-time=0 --debug --socket=zelvia --log="$folder/server.log" >/dev/null 2>&1 &
  server=$!
  WAYLAND_DISPLAY=zelvia
  await test -S "$folder/zelvia"
  # No manager gives its window the keyboard.
  await hand search --onlyvisible --class weston windowfocus
}

# Windows stand one behind the other, each as large as the screen. It refuses to run as root, which has it run as nobody
# in a folder of nobody's.
start_sway() {
  start_screen 1366 768
  own=$(mktemp -d) || exit 1
  printf '%s\n' 'xwayland disable' 'workspace_layout tabbed' 'focus_on_window_activation focus' \
    "output * mode ${width}x$height scale $scale" >"$own/config"
  set -- sway --config "$own/config"
  if [ "$(id -u)" = 0 ]; then
    chown -R nobody:nogroup "$own"
    set -- setpriv --reuid=nobody --regid=nogroup --clear-groups "$@"
  fi
  export SWAYSOCK="$own/ipc"
  DISPLAY=$ZELVIA_HAND_DISPLAY HOME=$own XDG_RUNTIME_DIR=$own WLR_BACKENDS=x11 WLR_RENDERER=pixman \
    "$@" >"$folder/server.log" 2>&1 &
  server=$!
  WAYLAND_DISPLAY=$own/wayland-1
  await swaymsg -t get_outputs
  await test -S "$WAYLAND_DISPLAY"
}

hand() { DISPLAY=$ZELVIA_HAND_DISPLAY xdotool "$@"; }

chmod 700 "$folder"
export XDG_RUNTIME_DIR="$folder"
unset DISPLAY WAYLAND_DISPLAY SWAYSOCK
"start_${ZELVIA_COMPOSITOR:-weston}"
# The pointer is out of the way.
await hand mousemove "$((width - 1))" "$((height - 1))"

WAYLAND_DISPLAY=$WAYLAND_DISPLAY QT_QPA_PLATFORM=wayland "$@"
