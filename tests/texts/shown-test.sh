#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Each message has been brought up by a test, with its icon and its buttons, each report and dialog of the list by the test
# that the list names, and none has come up beside them. The arguments are the folder in which the tests recorded them and
# the program that prints the messages.
set -euo pipefail
here=$(readlink -f "$(dirname "$0")")
exec perl -I "$here" -CSD "$here/shown-check.pl" "$here/list.txt" "$@"
