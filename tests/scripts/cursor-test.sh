#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The hand pointer is a Windows cursor whose hot spot is the tip of the finger.
. "$(dirname "$0")/check.sh"
cursor=$source_folder/share/mano.cur

# field OFFSET BYTES: an unsigned number of the file.
field() { od -An -v -j "$1" -N "$2" -t "u$2" "$cursor" | tr -d ' '; }
# opacity X Y: of a pixel, 0..255. The picture begins with its bottom line.
opacity() { field $((22 + 40 + ((31 - $2) * 32 + $1) * 4 + 3)) 1; }

# What, offset, bytes, value.
rows=(
  "reserved" 0 2 0
  "type: a cursor" 2 2 2
  "pictures" 4 2 1
  "width" 6 1 32
  "height" 7 1 32
  "hot spot, x" 10 2 10
  "hot spot, y" 12 2 1
  "length of the picture" 14 4 4264
  "its place" 18 4 22
  "bitmap header" 22 4 40
  "bitmap width" 26 4 32
  "bitmap height with the mask" 30 4 64
  "bits a pixel" 36 2 32
)
for ((i = 0; i < ${#rows[@]}; i += 4)); do
  expect "${rows[i]}" "$(field "${rows[i + 1]}" "${rows[i + 2]}")" "${rows[i + 3]}"
done
expect "length of the file" "$(stat -c %s "$cursor")" $((22 + 4264))
expect "the finger's tip is drawn" "$(($(opacity 10 1) > 200))" 1
expect "nothing above it" "$(opacity 10 0)" 0
expect "the corner is clear" "$(opacity 31 0)" 0
verdict
