#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The picture of the page that is left where there is no screen: page-picture-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/program.sh"
picture=$work/zelvia-pagina.png

run timeout 200 "$source_folder/packaging/page-picture.sh" "$work/diario" "$picture"
expect "a picture" "$status $output" "0 Pagina del diario: $picture"
[ "$status" -eq 0 ] || echo "$errors" >&2
expect "its kind" "$(identify -format '%m' "$picture")" PNG
expect "it fits the screen and is no scrap" "$(identify -format '%[fx:w>600 && w<=1366 && h>400 && h<=768]' "$picture")" 1
expect "it is drawn" "$(($(identify -format '%k' "$picture") > 50))" 1
if page_up; then
  expect "the program" running ended
fi

# With the diary open already, on another screen, there is nothing to show.
rm "$picture"
start env QT_QPA_PLATFORM=offscreen
open_already() { ! flock -n "$work/diario/.zelvia.lock" true; }
await open_already
run timeout 200 "$source_folder/packaging/page-picture.sh" "$work/diario" "$picture"
expect "an open diary: exit status" "$status" 1
expect "an open diary: message" "$(grep -c "Zelvia si è chiuso subito: il diario di «$work/diario» è forse già aperto." <<<"$errors")" 1
expect "an open diary: picture" "$(ls "$picture" 2>/dev/null)" ""
kill -0 "$program" || expect "the open diary" ended running
verdict
