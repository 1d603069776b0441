#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A second start brings the page of the first one to the front of a Wayland display, with the token of whoever was
# clicked: wayland-activation-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/tests/scripts/wayland-screen.sh"
cp -r "$source_folder/share/demo/." "$diary"
export LANGUAGE=it
zelvia=("$work/usr/bin/zelvia" --oggi 2026-03-22)

WAYLAND_DEBUG=1 "${zelvia[@]}" >"$work/program.log" 2>&1 &
program=$!
started+=("$program")
await in_front zelvia || expect "the page" "$(windows)" "in front"

# second_starts NUMBER: so many have ended; `token` and `status` are those of the last one.
second_starts() {
  [ "$(wc -l <"$work/starts")" -ge "$1" ] && IFS='|' read -r token status < <(tail -1 "$work/starts")
}
ended() { ! kill -0 "$1" 2>/dev/null; }
said() { grep -qE "$1" "$work/program.log"; }
asked() { grep -qF "activate(\"$token\"," "$work/program.log"; }
expect_second_start() {
  await second_starts "$2" || expect "$1" none ended
  expect "$1: exit status" "$status" 0
  await asked || expect "$1: the token" "not used" "$token"
}

GDK_BACKEND=wayland "$source_folder/tests/scripts/launcher-window.py" "${zelvia[@]}" >"$work/starts" 2>"$work/errors" &
started+=("$!")
await in_front lanciatore || expect "the launcher" "$(windows)" "in front"

# A token that the display did not give: it stays as it is, nor is the page marked.
hand key a
expect_second_start "a start by a key" 1
expect "in front after it" "$(windows | cut -d ' ' -f 1-4)" "zelvia False False False
lanciatore True True False"

hand mousemove 683 600 click 1
expect_second_start "a start by a click" 2
await in_front zelvia || expect "in front after a click" "$(windows)" zelvia

# A box over the page has the keyboard then, and closes by its key.
boxes() { [ "$(windows | grep -c '^zelvia')" = "$1" ]; }
hand key alt+o
await said 'xdg_popup[@#][0-9]+\.configure' || expect "a menu" none one
hand key z
await boxes 2 || expect "a box" none one
await quiet box
swaymsg -q '[app_id=lanciatore] focus'
await differs box launcher || expect "the launcher" "not shown again" shown
hand click 1
expect_second_start "a start while a box is up" 3
box_in_front() { windows | grep '^zelvia True True .* Zelvia$' >/dev/null; }
await box_in_front || expect "in front after a click while a box is up" "$(windows)" "the box"
hand key Escape
await boxes 1 || expect "the box after a key" shown gone

for process in "${started[@]}"; do
  kill "$process"
  await ended "$process" || expect "process $process" running ended
done
verdict
