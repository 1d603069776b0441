#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# One program a folder: instance-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/program.sh"

# A second start ends by itself within five seconds, says nothing, and opens no window.
expect_second_start() {
  run timeout 5 "${@:2}"
  expect "$1" "$status|$output|$(grep -v XDG_RUNTIME_DIR <<<"$errors" || true)" "0||"
  kill -0 "$first" || expect "$1: the first program" ended running
}
active() { [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ]; }
minimised() { ! xdotool search --onlyvisible --classname '^zelvia$' 2>/dev/null | grep -qx "$1"; }
expect_in_front() {
  await active "$2" || expect "$1: the active window" "$(xdotool getactivewindow 2>/dev/null)" "$2"
  ! minimised "$2" || expect "$1" minimised shown
}

start
first=$program
await page_up
first_page=$page
expect_second_start "a second start" "$work/diario/zelvia"
page_up
expect "the windows after it" "$page" "$first_page"

# It brings the first one's window back: from behind another one, and from the bottom of the screen.
cp -r "$work/diario" "$work/altro"
"$work/altro/zelvia" >"$work/other.log" 2>&1 &
other=$!
started+=("$other")
other_page_up() { page_up && other_page=$(grep -v "^$first_page$" <<<"$page"); }
await other_page_up || expect "a program in another folder" "not up" up
xdotool windowactivate --sync "$other_page"
expect_second_start "a second start behind another window" "$work/diario/zelvia"
expect_in_front "a window behind another" "$first_page"
xdotool windowminimize "$first_page"
await minimised "$first_page"
expect_second_start "a second start on a minimised window" "$work/diario/zelvia"
expect_in_front "a minimised window" "$first_page"

# The same folder by another path.
ln -s "$work/diario" "$work/legame"
xdotool windowminimize "$first_page"
await minimised "$first_page"
expect_second_start "a second start through a link" "$work/legame/zelvia"
expect_in_front "a start through a link" "$first_page"

# A box over the page stays in front of it.
xdotool windowactivate --sync "$first_page" key alt+o
xdotool key z
box_up() { [ "$(xdotool search --onlyvisible --classname '^zelvia$' 2>/dev/null | wc -l)" -gt 2 ]; }
await box_up || expect "a box" none one
box=$(xdotool getactivewindow)
xdotool windowactivate --sync "$other_page"
expect_second_start "a second start while a box is up" "$work/diario/zelvia"
expect_in_front "a box" "$box"
kill "$other"

# What a crash leaves behind does not stop the next start.
kill -9 "$first"
wait "$first" 2>/dev/null || true
await page_down
[ -e "$work/diario/.zelvia.lock" ] || expect "the lock of a crashed run" gone there
start
expect_page_and_close "a start after a crash"

# Nor what is in the place of the lock.
for kind in empty garbled folder circle; do
  rm -rf "$work/diario/.zelvia.lock"
  case $kind in
    empty) touch "$work/diario/.zelvia.lock" ;;
    garbled) printf '%s\nzelvia\n%s\n' "$$" "$(hostname)" >"$work/diario/.zelvia.lock" ;;
    folder) mkdir "$work/diario/.zelvia.lock" ;;
    circle) ln -s .zelvia.lock "$work/diario/.zelvia.lock" ;;
  esac
  start
  expect_page_and_close "a start on a lock file: $kind"
done
verdict
