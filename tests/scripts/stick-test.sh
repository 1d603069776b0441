#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A program folder on a stick: opened there, written to, and opened again where another computer mounts it:
# stick-test.sh BUILD-FOLDER. Where nothing can be mounted, the folder is moved.
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/packaging/sample-year.sh"
. "$source_folder/tests/scripts/program.sh"
. "$source_folder/tests/scripts/disks.sh"
first=$disk
active() { [ "$(xdotool getactivewindow 2>/dev/null)" = "$page" ]; }
newer() { [ "$1" -nt "$2" ]; }

# saved_on_the_stick WHAT: the program there comes up, saves the diary that is there, and ends.
saved_on_the_stick() {
  command=("$disk/Zelvia/zelvia" --oggi "$demo_day")
  start
  await page_up || expect "$1: the page" "not up" up
  await active
  expect "$1: the program" "$(readlink "/proc/$program/exe")" "$disk/Zelvia/zelvia"
  expect "$1: its title" "$(xdotool getwindowname "$page" | grep -c '^Zelvia – prova – ')" 1
  touch -d '1 minute ago' "$disk/Zelvia/ZelviaFile/prova.zlv"
  touch -r "$disk/Zelvia/ZelviaFile/prova.zlv" "$work/before"
  xdotool key alt+f && xdotool key s
  await newer "$disk/Zelvia/ZelviaFile/prova.zlv" "$work/before"
  expect_page_and_close "$1"
  expect "$1: the diary" "$(cmp "$source_folder/share/demo/ZelviaFile/prova.zlv" "$disk/Zelvia/ZelviaFile/prova.zlv" 2>&1)" ""
  expect "$1: nomeload" "$(od -An -c "$disk/Zelvia/nomeload" | tr -d ' \n')" '""\r\n'
}

mounted=
if format exfat 64M && plug exfat; then
  mounted=yes
fi
cmake --install "$build" --prefix "$disk/Zelvia" >/dev/null
lay_sample_year "$disk/Zelvia"
saved_on_the_stick "here"
disk=$work/altrove
if [ "$mounted" ]; then
  disk=$first unplug
  mkdir "$disk"
  plug exfat || expect "mounted elsewhere" no yes
else
  mv "$first" "$disk"
fi
saved_on_the_stick "elsewhere"
expect "nothing of it is left at the first place" "$(ls -A "$first" 2>/dev/null)" ""
verdict
