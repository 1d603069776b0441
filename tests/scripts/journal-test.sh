#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What is entered and not saved is reported afterwards, however the program ends: journal-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/program.sh"
. "$source_folder/packaging/sample-year.sh"
tools=$build/src/zelvia-strumenti
diary=$work/Zelvia
mkdir -p "$diary/ZelviaFile"
lay_sample_year "$diary"
printf '""\r\n' >"$diary/nomeload"
# A day without an entry.
command=("$work/diario/zelvia" --oggi 2026-05-22 "$diary")

unsaved() { "$tools" --cartella "$diary" giornale --tsv | tail -n +2; }
journals() { find "$XDG_STATE_HOME/zelvia/giornale" -type f 2>/dev/null | wc -l; }
# Starts the program and enters a weight, by a click on its value and the arrow.
weight_noted() {
  [ "$(journals)" -eq 0 ] || return 0
  xdotool mousemove --window "$page" 173 537 click 1
  xdotool key Up
  xdotool key Escape
  false
}
enter() {
  start
  await page_up || expect "$1: the page" "not up" up
  xdotool windowactivate --sync "$page"
  await weight_noted || expect "$1: the journal" "$(journals)" 1
}
expect_weight() {
  expect "$1" "$(unsaved | cut -f 1,2)" "$(printf '2026-05-22\tPeso')"
  "$tools" --cartella "$diary" giornale dimentica --si >"$work/log" 2>&1 || expect "$1: forgotten" no yes
  expect "$1: nothing is left" "$(journals)" 0
}
expect_end() {
  await ended "$program" || expect "$1: the program" running ended
  status=0
  wait "$program" || status=$?
  expect "$1: exit status" "$status" "$2"
}

enter "kill -9"
kill -9 "$program"
expect_end "kill -9" 137
expect_weight "kill -9"

enter "Exit"
xdotool key ctrl+q
expect_end "Exit" 0
expect_weight "Exit"

for signal in TERM HUP; do
  enter "SIG$signal"
  kill "-$signal" "$program"
  expect_end "SIG$signal" 0
  expect_weight "SIG$signal"
done

# A question that is up.
enter "a question"
xdotool key alt+o
xdotool key z
box_up() { [ "$(xdotool search --onlyvisible --classname '^zelvia$' 2>/dev/null | wc -l)" -gt 1 ]; }
await box_up || expect "a question" none one
kill -TERM "$program"
expect_end "a question" 0
expect_weight "a question"

# What was saved is gone at once, and what is brought back is in the diary.
enter "saved"
xdotool key ctrl+s
saved() { [ "$(journals)" -eq 0 ]; }
await saved || expect "saved" "$(journals)" 0
kill -9 "$program"
expect_end "saved" 137
expect "saved" "$(unsaved)" ""
expect "saved: the diary" "$(sed -n "$((141 * 136 + 122)){s/\r//;s/[1-9][0-9]*/some/p}" "$diary/ZelviaFile/prova.zlv")" some

# A state folder that can't be written changes nothing.
rm -rf "$XDG_STATE_HOME"
: >"$XDG_STATE_HOME"
start
expect_page_and_close "without a place for the journal"
verdict
