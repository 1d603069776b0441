#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What is tested is compiled and linked by the commands that make what is installed: flags-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")

# commands BUILD-FOLDER: what makes the programs there, without the folder's name, the compiler's launcher and the
# option that makes warnings errors.
commands() {
  ninja -C "$1" -t commands zelvia zelvia-copie zelvia-strumenti zelvia-avvio zelvia-avviso zelvia-finestra zelvia-libro | grep -F " -o " |
    sed -E "s#$1(/|\\b)#BUILD\\1#g; s#(^|&& )[^ ]*ccache #\\1#g; s# -Werror( |\$)#\\1#g" | sort
}

# As "cmake --preset release" does, elsewhere.
(cd "$source_folder" && cmake --preset release -B "$work/release") >"$work/configure.log" 2>&1 || cat "$work/configure.log" >&2
commands "$build" >"$work/tested"
commands "$work/release" >"$work/installed"
expect "sources compiled with optimisation" "$(($(grep -c -- ' -O3 -DNDEBUG .* -c ' "$work/installed") >= 50))" 1
expect "programs linked" "$(grep -cE -- ' -o src/zelvia(-copie|-strumenti|-avvio|-avviso|-finestra|-libro)? ' "$work/installed")" 7
diff "$work/installed" "$work/tested" >&2 || expect "the commands" different same
verdict
