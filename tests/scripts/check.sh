# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What the script tests share. To be sourced by bash.
set -euo pipefail

source_folder=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/../..")
failures=0

# A folder of the test's own, removed at its end. No folder above it has a dot in its name.
work=$(mktemp -d /tmp/zelvia-XXXXXX)
started=()
tidy() {
  local process
  for process in "${started[@]}"; do
    kill -9 "$process" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap tidy EXIT

# expect WHAT GOT WANTED
expect() {
  [ "$2" = "$3" ] && return
  failures=$((failures + 1))
  printf '%s\n  got:    %s\n  wanted: %s\n' "$1" "$2" "$3" >&2
}

# run COMMAND...: sets `status`, `output` and `errors`.
run() {
  status=0
  output=$("$@" 2>"$work/errors" </dev/null) || status=$?
  errors=$(<"$work/errors")
}

# await COMMAND...: polls for a condition, for at most half a minute.
await() {
  local tries=150
  until "$@"; do
    tries=$((tries - 1))
    if [ "$tries" -eq 0 ]; then
      echo "never came true: $*" >&2
      return 1
    fi
    sleep 0.2
  done
}

verdict() {
  [ "$failures" -eq 0 ] || echo "$failures checks failed" >&2
  exit $((failures > 0))
}
