#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the Debian package, as a user gets it, for the tests that look at it: package-build.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")

rm -rf "$build/package"
"$source_folder/packaging/deb.sh" "$build/package"
[ "$(ls "$build/package"/zelvia_*.deb | wc -l)" -eq 1 ]
