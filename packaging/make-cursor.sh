#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Draws share/mano.cur anew from share/mano.svg. To be run by hand after the drawing has changed: it needs rsvg-convert
# (package librsvg2-bin) and ImageMagick, which the build does not.
set -euo pipefail

share=$(dirname "$(readlink -f "$0")")/../share
side=32
hot_x=10
hot_y=1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Numbers in little-endian order: number BYTES VALUE
number() {
  local bytes=$1 value=$2
  for ((; bytes > 0; bytes--, value >>= 8)); do
    printf "\\x$(printf %02x $((value & 255)))"
  done
}

# The picture as a cursor file holds it: bottom line first, blue, green, red and opacity of each pixel.
rsvg-convert -w $side -h $side "$share/mano.svg" -o "$work/mano.png"
/usr/bin/convert "$work/mano.png" -flip -depth 8 bgra:"$work/pixels"
pixels=$((side * side * 4))
mask=$((side * side / 8))
[ "$(stat -c %s "$work/pixels")" -eq $pixels ]

{
  # Header: a cursor file (type 2) with one picture.
  number 2 0 && number 2 2 && number 2 1
  # The picture's size, no palette, the hot spot, its length in bytes and where it begins.
  number 1 $side && number 1 $side && number 1 0 && number 1 0 && number 2 $hot_x && number 2 $hot_y
  number 4 $((40 + pixels + mask)) && number 4 22
  # Bitmap header: twice the height, since the mask counts as well; 32 bits a pixel, not compressed.
  number 4 40 && number 4 $side && number 4 $((2 * side)) && number 2 1 && number 2 32 && number 4 0
  number 4 $pixels && number 4 0 && number 4 0 && number 4 0 && number 4 0
  cat "$work/pixels"
  # The mask is for screens without opacity; here every pixel says its own.
  for ((i = 0; i < mask; i++)); do number 1 0; done
} >"$work/mano.cur"
cp "$work/mano.cur" "$share/mano.cur"
