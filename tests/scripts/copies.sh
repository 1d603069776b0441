# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A home with a diary in it, and the package's commands below "$work/usr". To be sourced after check.sh, with the build
# folder in `build`.

cmake --install "$build" --component package --prefix "$work/usr" >"$work/install.log"
export HOME=$work/casa
unset XDG_STATE_HOME
diary=$HOME/Zelvia
kept=$HOME/.local/state/zelvia/copie
copies=$work/usr/bin/zelvia-copie
mkdir -p "$diary/ZelviaFile"

# What is preloaded comes before the sanitizer, too.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}verify_asan_link_order=0

# kept_names [FOLDER]: all entries among the copies except the lock.
kept_names() { ls -A "${1:-$kept}" 2>/dev/null | grep -vx .blocco | tr '\n' '|' || true; }

# expect_same WHAT FOLDER WANTED: two folders with the same files, ignoring the copy's own note.
expect_same() {
  diff -r -x .cartella "$2" "$3" >"$work/difference" 2>&1 || expect "$1" "$(<"$work/difference")" ""
}
