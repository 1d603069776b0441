#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the tests, first on the flags that are installed, then with sanitizers: test.sh [--all] [CTEST-ARGUMENT...]
#
# --all adds what takes long: the monkey, the fuzzers, the package, windows under Wayland. What else stands on the command
# line goes to ctest, both times: test.sh -R core. Who picks labels picks among all tests. The status is 0 if both runs
# passed.
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")"
. packaging/packages.sh

arguments=()
all=
for argument in "$@"; do
  case $argument in
    --all) all=yes ;;
    *) arguments+=("$argument") ;;
  esac
  case $argument in
    -L | -LE | --label-regex | --label-exclude) all=yes ;;
  esac
done
passes=(release-tests debug)
presets=("${passes[@]}")
if [ -n "$all" ]; then
  # The sanitized pass runs the fuzzers, too.
  presets=(fuzz "${presets[@]}")
else
  arguments+=(-LE '^long$')
fi

# How many tests of a pass the arguments pick.
picked() {
  { ctest --preset "$1" -N "${arguments[@]}" </dev/null 2>/dev/null || true; } | sed -n 's/^Total Tests: //p'
}

packages_install run build package display test
for preset in "${presets[@]}"; do
  cmake --preset "$preset"
done

chosen=()
for pass in "${passes[@]}"; do
  [ "$(picked "$pass")" = 0 ] || chosen+=("$pass")
done
# With nothing to run ctest has its say.
[ ${#chosen[@]} -gt 0 ] || exec ctest --preset debug "${arguments[@]}" </dev/null

log=$(mktemp)
trap 'rm -f "$log"' EXIT
status=0
failures=
for pass in "${chosen[@]}"; do
  [ "$pass$all" != debugyes ] || cmake --build --preset fuzz
  cmake --build --preset "$pass"
  if ctest --preset "$pass" "${arguments[@]}" </dev/null 2>&1 | tee "$log"; then
    # A second pass that went well must not hide what failed in the first one.
    [ -z "$failures" ] || printf '%s\n' "$failures"
  else
    status=1
    failures=$(sed -n '/% tests passed/,$p' "$log")
  fi
done
exit $status
