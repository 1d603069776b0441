#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the pictures of the guide and of the documentation anew, of the real windows on the sample year:
# pictures.sh BUILD-FOLDER [GUIDE DOCS]
# They go into share/guida and docs unless other folders are given. Takes a display of its own.
set -euo pipefail

source_folder=$(dirname "$(readlink -f "$0")")/..
if [ -z "${PICTURES_DISPLAY:-}" ]; then
  PICTURES_DISPLAY=yes ZELVIA_SCREEN=2560x1600 exec "$source_folder/tests/support/with-x11.sh" "$(readlink -f "$0")" "$@"
fi
. "$source_folder/packaging/sample-year.sh"
build=$(readlink -f "$1")
guide=${2:-$source_folder/share/guida}
docs=${3:-$source_folder/docs}

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
      echo "pictures.sh: never came true: $*" >&2
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
# store COLOURS FILE [CROP]: the picture just taken, in so few colours.
store() {
  convert "$work/now.png" ${3:+-crop "$3" +repage} -strip +dither -colors "$1" \
    -define png:compression-level=9 -define png:compression-filter=0 "PNG8:$2.png"
}
# take NAME [CROP]: a picture of `window` once it no longer changes: whole for the documentation, cropped for the guide.
take() {
  await alike
  store 256 "$docs/$1"
  store 96 "$guide/$1" "${2:-}"
}
# take_docs NAME: for the documentation only.
take_docs() {
  await alike
  store 256 "$docs/$1"
}
# click X Y [BUTTON]: in `window`.
click() { xdotool mousemove --window "$window" "$1" "$2" sleep 0.3 click "${3:-1}" sleep 0.5; }
# The pointer out of the way, where it lights up nothing.
aside() { xdotool mousemove --window "$window" 600 680 sleep 0.3; }

# start DAY [SCALE]: opens the sample year on a day; `page` waits for it.
start() {
  QT_SCALE_FACTOR=${2:-1} "$work/Zelvia/zelvia" --oggi "$1" 2>"$work/log" &
  program=$!
  page
}
stop() {
  kill "$program"
  wait "$program" 2>/dev/null || true
  program=
}
page() { await up '^Zelvia( |$)'; }

cmake --install "$build" --prefix "$work/Zelvia" >/dev/null
lay_sample_year "$work/Zelvia"

# The windows in the size that they are designed in.
export XDG_STATE_HOME=$work/state

# A race on the page of its day, then a day without an entry.
start 2026-09-06
aside
take_docs gara
stop
start 2026-12-24
aside
take_docs vuota
stop

start 2026-03-22
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
page
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
page
xdotool key alt+t sleep 0.3 key g
await up '^Calendario Gare'
take gare
xdotool key alt+F4

page
xdotool key alt+s sleep 0.3 key o
await up '^Statistiche$'
take statistica
xdotool key Tab Tab space
await up '^Grafici$'
take grafico
xdotool key alt+F4
await up '^Statistiche$'
xdotool key alt+F4

# A search without conditions, another for a route, and its paces.
page
xdotool key alt+s sleep 0.3 key Return
await up '^Ricerche Statistiche$'
click 203 586
take ricerca
click 86 73
xdotool mousemove --window "$window" 450 120 sleep 0.3 click --repeat 2 --delay 60 1 sleep 0.5
click 203 586
click 725 586
await up '^Grafici$'
take_docs grafico-linea
stop

# The window of the tools.
LANGUAGE=it "$build/src/zelvia-finestra" --cartella "$work/Zelvia" --pagina anno 2>"$work/log" &
program=$!
await up '^Strumenti di Zelvia$'
take strumenti
stop

# The page of the documentation is twice as sharp.
start 2026-03-22 2
xdotool mousemove --window "$window" 1200 1360 sleep 0.3
take_docs pagina
stop

# Pages of the book: the year at a glance, days, the routes' times; for the guide two of days.
"$build/src/zelvia-strumenti" --cartella "$work/Zelvia" libro --formato a5 -o "$work/libro.pdf"
# pages RESOLUTION PAGE...: side by side.
pages() {
  local resolution=$1 page
  shift
  rm -f "$work"/page-*.png
  for page in "$@"; do
    pdftoppm -png -r "$resolution" -f "$page" -l "$page" "$work/libro.pdf" "$work/page-$page"
  done
  convert "$work"/page-*.png -bordercolor '#d6c8a8' -border 1 +append "$work/now.png"
}
pages 96 05 10 87
store 256 "$docs/libro"
pages 62 10 11
store 32 "$guide/libro"
