#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package, as a user gets it, in a folder of its own for the tests that look at it:
# package-build.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")

cmake -S "$source_folder" -B "$build/package" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZELVIA_TESTS=OFF
cmake --build "$build/package"
rm -f "$build/package"/*.deb
(cd "$build/package" && cpack)
[ "$(ls "$build/package"/*.deb | wc -l)" -eq 1 ]
