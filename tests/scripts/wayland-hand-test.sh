#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Keys of a real keyboard on a Wayland display, and where its pop-ups are: wayland-hand-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/packaging/sample-year.sh"
. "$source_folder/tests/scripts/program.sh"
. "$source_folder/tests/scripts/wayland-screen.sh"
lay_sample_year "$work/diario"
export LANGUAGE=it

said() { grep -qE "$1" "$work/program.log"; }

await quiet empty
command=("$work/diario/zelvia" --oggi 2026-03-22)
start env WAYLAND_DEBUG=1
await differs empty page || expect "the page" none shown
read -r left top _ _ < <(changed empty page)

hand key alt+f
await said 'xdg_popup[@#][0-9]+\.configure' || expect "a menu by its key" none one
# What the display was asked for, and what it did, in the coordinates of the page's window.
read -r x y width height < <(sed -nE 's/.*xdg_popup[@#][0-9]+\.configure\((-?[0-9]+), (-?[0-9]+), ([0-9]+), ([0-9]+)\).*/\1 \2 \3 \4/p' \
  "$work/program.log" | tail -1)
await differs page menu || expect "the menu" none shown
# The menu's title, above it, changes too.
read -r _ _ right bottom < <(changed page menu)
expect "the right lower corner of the menu" "$right $bottom" "$((left + x + width)) $((top + y + height))"

hand key Escape
hand key Escape
gone() { quiet after && cmp -s "$work/page.ppm" "$work/after.ppm"; }
await gone || expect "the menu after Escape" shown gone
kill "$program"
await ended "$program" || expect "the program" running ended
verdict
