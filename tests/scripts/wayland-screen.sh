# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The keys of a Wayland display of with-wayland.sh, its pictures and, under sway, its windows. To be sourced after check.sh.

hand() { DISPLAY=$ZELVIA_HAND_DISPLAY xdotool "$@"; }
# Without what changes by itself: weston's bar has a clock.
picture() {
  local area=(-crop 1580x940+0+40 +repage)
  [ -z "${SWAYSOCK:-}" ] || area=()
  DISPLAY=$ZELVIA_HAND_DISPLAY import -window root "${area[@]}" "$work/$1.ppm"
}
# quiet NAME: nothing moves; NAME is the picture then.
quiet() { picture "$1" && sleep 0.3 && picture now && cmp -s "$work/$1.ppm" "$work/now.ppm"; }
# Where two pictures differ: LEFT TOP RIGHT BOTTOM.
changed() {
  convert "$work/$1.ppm" "$work/$2.ppm" -compose difference -composite -threshold 0 -format '%@' info: |
    tr 'x+' '  ' | awk '{ print $3, $4, $3 + $1, $4 + $2 }'
}
differs() { quiet "$2" && ! cmp -s "$work/$1.ppm" "$work/$2.ppm"; }

# The windows that sway has, a line each: name for the desktop, visible, focused, urgent; left, top, right and bottom with
# the frame; left and top without it; title.
windows() {
  swaymsg -r -t get_tree | /usr/bin/python3 -c '
import json, sys
def walk(node):
    if node.get("app_id"):
        x, y, width, height = (node["rect"][name] for name in ("x", "y", "width", "height"))
        inner = node["window_rect"]
        print(node["app_id"], node["visible"], node["focused"], node["urgent"], x, y - node["deco_rect"]["height"],
              x + width, y + height, x + inner["x"], y + inner["y"], node["name"])
    for child in node["nodes"] + node["floating_nodes"]:
        walk(child)
walk(json.load(sys.stdin))'
}
# in_front NAME: the window of that name, seen and with the keyboard.
in_front() { windows | grep "^$1 True True " >/dev/null; }
