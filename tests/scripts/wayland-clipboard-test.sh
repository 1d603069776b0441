#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Texts between a note and another program by the clipboard of a Wayland display: wayland-clipboard-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/packaging/sample-year.sh"
. "$source_folder/tests/scripts/program.sh"
. "$source_folder/tests/scripts/wayland-screen.sh"
lay_sample_year "$work/diario"
export LANGUAGE=it LC_ALL=C.UTF-8
diary=$work/diario/ZelviaFile/prova.zlv

on_clipboard() { wl-paste --no-newline 2>/dev/null || true; }
# A key may come before what it is meant for is there; to copy once more changes nothing.
copied() { hand key ctrl+a && hand key ctrl+c && [ "$(on_clipboard)" = "$1" ]; }
lent() { [ "$(on_clipboard)" = "$1" ]; }
lend() {
  wl-copy -- "$1" >/dev/null 2>&1
  await lent "$1" || expect "the other program's text" "$(on_clipboard)" "$1"
}
in_diary() { iconv -f CP1252 -t UTF-8 "$diary" | grep -F "\"$1\"" >/dev/null; }

swaymsg -q 'for_window [app_id="zelvia"] floating enable'
await quiet empty
command=("$work/diario/zelvia" --oggi 2026-03-22)
start
await in_front zelvia || expect "the page" "$(windows)" "in front"
await differs empty page || expect "the page" none shown

# The menu opens the eight notes, all on the right page, and tells by that where they are.
note_menu() {
  hand key alt+o
  await differs "$1" menu || expect "the menu" none shown
  hand key n
}
notes_open() { quiet notes && read -r left top right bottom < <(changed page notes) && [ "$left" -gt 683 ]; }
notes_closed() { quiet closed && cmp -s "$work/page.ppm" "$work/closed.ppm"; }
note_menu page
await notes_open || expect "the notes" closed open
note_menu notes
await notes_closed || expect "the notes" open closed

# A click opens the first one.
hand mousemove "$(((left + right) / 2))" "$((top + (bottom - top) / 16))" click 1
note="Scarpe nuove, ancora un po' dure"
in_diary "$note" || expect "the note of that day" other "$note"
await copied "$note" || expect "out of the diary" "$(on_clipboard)" "$note"

other="Perché è così: già più su, là €"
lend "$other"
hand key ctrl+a
hand key ctrl+v
hand key Escape
hand key ctrl+s
await in_diary "$other" || expect "into the diary" other "$other"

lend "Altro"
hand click 1
await copied "$other" || expect "out of the diary again" "$(on_clipboard)" "$other"
kill "$program"
await ended "$program" || expect "the program" running ended
verdict
