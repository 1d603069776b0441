#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the pictures of the guide anew, of the real windows on the sample year: guide-pictures.sh BUILD-FOLDER [TARGET]
# The pictures go into share/guida unless a TARGET is given. Takes a display of its own.
set -euo pipefail

source_folder=$(dirname "$(readlink -f "$0")")/..
if [ -z "${GUIDE_PICTURES_DISPLAY:-}" ]; then
  GUIDE_PICTURES_DISPLAY=yes exec "$source_folder/tests/support/with-x11.sh" "$(readlink -f "$0")" "$@"
fi
. "$source_folder/packaging/sample-year.sh"
build=$(readlink -f "$1")
target=${2:-$source_folder/share/guida}

work=$(mktemp -d /tmp/zelvia-XXXXXX)
program=
tidy() {
  [ -z "$program" ] || kill "$program" 2>/dev/null || true
  rm -rf "$work"
}
trap tidy EXIT

# await COMMAND...: polls for a condition, for at most 20 seconds.
await() {
  local tries=100
  until "$@"; do
    tries=$((tries - 1))
    if [ "$tries" -eq 0 ]; then
      echo "guide-pictures.sh: never came true: $*" >&2
      exit 1
    fi
    sleep 0.2
  done
}

# up PATTERN: sets `window` to the visible window whose title matches, and it is the active one.
up() {
  window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1)
  [ -n "$window" ] && [ "$(xdotool getactivewindow 2>/dev/null)" = "$window" ]
}
alike() {
  import -silent -window "$window" "$work/now.png"
  import -silent -window "$window" "$work/again.png"
  [ "$(identify -format '%#' "$work/now.png")" = "$(identify -format '%#' "$work/again.png")" ]
}
# take NAME [CROP]: a picture of `window` once it no longer changes, in few colours.
take() {
  await alike
  convert "$work/now.png" ${2:+-crop "$2" +repage} -strip +dither -colors 96 \
    -define png:compression-level=9 -define png:compression-filter=0 "PNG8:$target/$1.png"
}
# click X Y [BUTTON]: in `window`.
click() { xdotool mousemove --window "$window" "$1" "$2" sleep 0.3 click "${3:-1}" sleep 0.5; }
# The pointer out of the way, where it lights up nothing.
aside() { xdotool mousemove --window "$window" 600 680 sleep 0.3; }

cmake --install "$build" --prefix "$work/Zelvia" >/dev/null
lay_sample_year "$work/Zelvia"
export QT_SCALE_FACTOR=1
"$work/Zelvia/zelvia" --oggi 2026-03-22 2>"$work/log" &
program=$!

await up '^Zelvia$'
aside
take pagina

# The route's value, then an entry of its list.
click 230 127
xdotool mousemove --window "$window" 230 187 sleep 0.3
click 230 187
aside
take lista 600x420+0+20

click 230 187 3
xdotool key d
await up '^Percorso'
take percorso
xdotool key alt+F4

# The training tables, the first of the list.
await up '^Zelvia$'
xdotool key alt+t sleep 0.3 key a
await up '^Lista Tabelle'
click 100 32
click 416 38
await up '^Tabella allenamento'
take tabella
xdotool key alt+F4
await up '^Lista Tabelle'
xdotool key alt+F4

# The calendar, a statistic and its chart.
await up '^Zelvia$'
xdotool key alt+t sleep 0.3 key g
await up '^Calendario Gare'
take gare
xdotool key alt+F4

await up '^Zelvia$'
xdotool key alt+s sleep 0.3 key o
await up '^Statistiche$'
take statistica
xdotool key Tab Tab space
await up '^Grafici$'
take grafico
xdotool key alt+F4
await up '^Statistiche$'
xdotool key alt+F4

# A search without conditions.
await up '^Zelvia$'
xdotool key alt+s sleep 0.3 key Return
await up '^Ricerche Statistiche$'
click 203 586
take ricerca
