#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Each box, report and dialog of the list has been brought up by the test that the list names, with its icon and its
# buttons, and none has come up that is not in the list. The argument is the folder in which the tests recorded them.
set -euo pipefail
here=$(readlink -f "$(dirname "$0")")
exec perl -I "$here" -CSD "$here/shown-check.pl" "$here/list.txt" "$1"
