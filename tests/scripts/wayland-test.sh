#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The program and the window of the tools where there is Wayland and no X, at two scales: wayland-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
if [ -z "${ZELVIA_SCALE:-}" ]; then
  for scale in 1 2; do
    ZELVIA_SCALE=$scale "$source_folder/tests/support/with-wayland.sh" "$0" "$build" || expect "at scale $scale" bad good
  done
  verdict
fi
. "$source_folder/packaging/sample-year.sh"
. "$source_folder/tests/scripts/program.sh"
lay_sample_year "$work/diario"
export LANGUAGE=it

# picture NAME: of the screen.
picture() {
  (cd "$work" && rm -f wayland-screenshot-*.png && weston-screenshooter && mv wayland-screenshot-*.png "$1.png")
}
# on_screen: something large is there that was not.
on_screen() {
  picture now
  local all changed
  all=$(identify -format '%[fx:w*h]' "$work/now.png")
  changed=$(compare -metric AE "$work/empty.png" "$work/now.png" null: 2>&1) || true
  [ "$(awk -v all="$all" -v changed="$changed" 'BEGIN { print (changed > all / 4) }')" = 1 ]
}
titled() { grep -qE "set_title\(\"$1\"\)" "$work/program.log"; }

# The shell of the display draws its own things first.
settled() { picture empty && picture now && cmp -s "$work/empty.png" "$work/now.png"; }
await settled

# ends WHAT SIGNAL STATUS: the program does at that signal, even where its display is never let go of.
ends() {
  kill "-$2" "$program"
  await ended "$program" || expect "$1: the program" running ended
  status=0
  wait "$program" 2>/dev/null || status=$?
  expect "$1: exit status after $2" "$status" "$3"
  expect "$1: what it complains of" "$(grep -v '^\[' "$work/program.log" || true)" ""
}
environment=(env WAYLAND_DEBUG=1 "LD_PRELOAD=$build/tests/scripts/libzelvia_stuck_display.so")

# A title, how it is ended, the status, the words.
rows=(
  "Zelvia – prova – 22 marzo 2026" TERM 0 "$work/diario/zelvia --oggi 2026-03-22"
  "Zelvia – prova – 22 marzo 2026" HUP 0 "$work/diario/zelvia --oggi 2026-03-22"
  "Strumenti di Zelvia" TERM 0 "$build/src/zelvia-finestra --cartella $work/diario"
)
for ((i = 0; i < ${#rows[@]}; i += 4)); do
  # shellcheck disable=SC2206
  command=(${rows[i + 3]})
  what="${command[0]##*/} at $ZELVIA_SCALE"
  start "${environment[@]}"
  await titled "${rows[i]}" || expect "$what: its title" none "${rows[i]}"
  await on_screen || expect "$what: on the screen" no yes
  expect "$what: its name for the desktop" "$(grep -cE 'set_app_id\("zelvia"\)' "$work/program.log")" 1
  expect "$what: as sharp as the screen" "$(($(grep -cE "set_buffer_scale\($ZELVIA_SCALE\)" "$work/program.log") > 0))" 1
  expect "$what: libraries of X" "$(grep -c 'libqxcb' "/proc/$program/maps" || true)" 0
  ends "$what" "${rows[i + 1]}" "${rows[i + 2]}"
  await settled
done

# The boxes of the launcher: one with its own buttons, and one with "OK".
for buttons in "Sì No" ""; do
  # shellcheck disable=SC2206
  command=("$build/src/zelvia-avviso" "Una domanda" $buttons)
  start "${environment[@]}"
  await titled Zelvia || expect "a box with «$buttons»: its title" none Zelvia
  ends "a box with «$buttons»" TERM "$([ -z "$buttons" ] && echo 0 || echo 11)"
done
verdict
