#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The program starts and ends on any system date: dates-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/program.sh"

# faketime is loaded ahead of the sanitizer; timers go by the clock that it leaves alone.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}verify_asan_link_order=0
export FAKETIME_DONT_FAKE_MONOTONIC=1 DONT_FAKE_MONOTONIC=1
for date in 1995-06-15 2105-01-01 2028-02-29 2026-12-31; do
  expect "the clock of $date" "$(faketime -f "@$date 12:00:00" date +%F)" "$date"
  start faketime -f "@$date 12:00:00"
  expect_page_and_close "$date"
done
verdict
