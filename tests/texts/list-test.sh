#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The list of the texts is complete: what the sources show is in it, what is in it is in the sources, and the tests
# that it names exist.
set -euo pipefail
here=$(readlink -f "$(dirname "$0")")
cd "$here/../.."
exec perl -I "$here" -CSD "$here/list-check.pl" "$here/list.txt"
