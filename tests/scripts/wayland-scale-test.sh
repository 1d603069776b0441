#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The page, a menu, a list and its pop-up on a Wayland display at scale 1.5, as against 1: wayland-scale-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")

if [ -z "${ZELVIA_SCALE:-}" ]; then
  for scale in 1 1.5; do
    mkdir "$work/$scale"
    ZELVIA_COMPOSITOR=sway ZELVIA_SCALE=$scale ZELVIA_PICTURES=$work/$scale \
      "$source_folder/tests/support/with-wayland.sh" "$0" "$build" || expect "at scale $scale" bad good
  done
  # Seen from afar, where the edges of letters don't count, both are the same. Off by three pixels differs by 0.046.
  for name in page menu list; do
    for scale in 1 1.5; do
      convert "$work/$scale/$name.ppm" -filter box -resize '342x192!' "$work/$scale-$name.ppm"
    done
    difference=$(compare -metric RMSE "$work/1-$name.ppm" "$work/1.5-$name.ppm" null: 2>&1) || true
    expect "the $name differs by $difference" "$(awk -F '[()]' '{ print ($2 < 0.03) }' <<<"$difference")" 1
  done
  verdict
fi

. "$source_folder/packaging/sample-year.sh"
. "$source_folder/tests/scripts/program.sh"
. "$source_folder/tests/scripts/wayland-screen.sh"
lay_sample_year "$work/diario"
export LANGUAGE=it

# near WHAT GOT WANTED: numbers that differ by two at most.
near() {
  local -a got wanted
  read -ra got <<<"$2"
  read -ra wanted <<<"$3"
  local i
  for i in "${!wanted[@]}"; do
    case $((${got[i]:-9999} - wanted[i])) in
      -2 | -1 | 0 | 1 | 2) ;;
      *) expect "$1" "$2" "$3" ;;
    esac
  done
}
# pixels NUMBER...: points of the display in pixels of the screen.
pixels() { awk -v scale="$ZELVIA_SCALE" 'BEGIN { for (i = 1; i < ARGC; ++i) printf "%d ", scale * ARGV[i] + 0.5 }' "$@"; }
# popup NUMBER: sets where the display has put that one in the page's window.
popup() {
  read -r x y width height < <(awk -v wanted="$1" '/get_popup\(/ { ++number }
    number == wanted && sub(/.*xdg_popup[@#][0-9]+\.configure\(/, "") { gsub(/[,)]/, ""); place = $0 }
    END { print place }' "$work/program.log") && [ -n "$height" ]
}
numbers() { sed -nE "s/.*$1\(([^)]*)\).*/\1/p" "$work/program.log" | tail -1 | tr -d ,; }

swaymsg -q 'for_window [app_id=".*"] floating enable'
await quiet empty
command=("$work/diario/zelvia" --oggi 2026-03-22)
start env WAYLAND_DEBUG=1
await in_front zelvia || expect "the page" "$(windows)" "in front"
await differs empty page || expect "the page" none shown

# The whole page is on the screen, its frame too.
read -r left top right bottom inner_left inner_top < <(windows | cut -d ' ' -f 5-10)
expect "the page with its frame: $left $top $right $bottom" "$((left >= 0 && top >= 0 && right <= 1366 && bottom <= 768))" 1
near "the page on the screen" "$(changed empty page)" "$(pixels "$left" "$top" "$right" "$bottom")"

# Where the toolkit knows such scales its pixels are the screen's; else it draws at the next whole one, made smaller.
ratio=$(awk -v scale="$ZELVIA_SCALE" 'BEGIN { print int(scale + 0.99) }')
! grep -q 'bind([0-9]*, "wp_fractional_scale_manager_v1"' "$work/program.log" || ratio=$ZELVIA_SCALE
read -r _ _ page_width page_height < <(numbers 'set_window_geometry')
read -r _ _ _ _ buffer_width buffer_height _ < <(numbers 'create_buffer')
near "the page's own pixels" "$buffer_width $buffer_height" "$(ZELVIA_SCALE=$ratio pixels "$page_width" "$page_height")"

hand key alt+f
await popup 1 || expect "a menu" none one
await differs page menu || expect "the menu" none shown
read -r _ _ right bottom < <(changed page menu)
near "the right lower corner of the menu" "$right $bottom" "$(pixels "$((inner_left + x + width))" "$((inner_top + y + height))")"
hand key Escape
hand key Escape
gone() { quiet after && cmp -s "$work/page.ppm" "$work/after.ppm"; }
await gone || expect "the menu after Escape" shown gone

# The date is the first stop, the route the second one; it opens its list.
hand key Tab
hand key Tab
hand key Return
list_open() { quiet list && read -r left top right bottom < <(changed page list) && [ $((bottom - top)) -gt 200 ]; }
await list_open || expect "the list" none shown

# Its pop-up comes up at the pointer.
hand mousemove "$(((left + right) / 2))" "$(((top + bottom) / 2))" click 3
await popup 2 || expect "a pop-up" none one
await differs list popup || expect "the pop-up" none shown
near "the pop-up" "$(pixels "$((inner_left + x))" "$((inner_top + y))")" "$(((left + right) / 2)) $(((top + bottom) / 2))"

kill "$program"
await ended "$program" || expect "the program" running ended
cp "$work"/{page,menu,list}.ppm "$ZELVIA_PICTURES/"
verdict
