#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The same sources make the same package, wherever and by whomever it is built: package-again-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")

umask 077
TZ=Pacific/Kiritimati LC_ALL=C "$source_folder/packaging/deb.sh" "$work/somewhere/else" >"$work/log" 2>&1 ||
  tail -n 30 "$work/log" >&2
digest() { (cd "$1" && sha256sum zelvia_*.deb zelvia_*.spdx.json); }
expect "the package and its bill of materials" "$(digest "$work/somewhere/else")" "$(digest "$build/package")"
verdict
