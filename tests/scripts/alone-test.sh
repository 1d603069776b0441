#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A program folder works wherever it is copied: alone-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/program.sh"

mkdir -p "$work/altrove/ZelviaFile"
cp "$work/diario/zelvia" "$work/diario/nomeload" "$work/diario/Guida.hlp" "$work/altrove"
command=("$work/altrove/zelvia")

guide_up() { xdotool search --onlyvisible --name '^Guida di Zelvia$' >"$work/guide"; }

start
await page_up || expect "the page" "not up" "up"
xdotool windowactivate --sync "$page" key F1
await guide_up || expect "the guide on F1" "not up" "up"
expect_page_and_close "the program elsewhere"
verdict
