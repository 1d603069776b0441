#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# One program a folder: instance-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/program.sh"

start
first=$program
await page_up
first_page=$page

# A second start ends by itself, says nothing, and shows nothing.
run timeout 60 "$work/diario/zelvia"
expect "a second start" "$status|$output|$(grep -v XDG_RUNTIME_DIR <<<"$errors" || true)" "0||"
page_up
expect "the windows after it" "$page" "$first_page"
kill -0 "$first" || expect "the first program" ended running

# What a crash leaves behind does not stop the next start.
kill -9 "$first"
wait "$first" 2>/dev/null || true
await page_down
[ -e "$work/diario/.zelvia.lock" ] || expect "the lock of a crashed run" gone there
start
expect_page_and_close "a start after a crash"

# The program gives its lock back, and may be started again.
expect "the lock after the end" "$(find "$work/diario" -name "*.lock")" ""
start
expect_page_and_close "one start more"
verdict
