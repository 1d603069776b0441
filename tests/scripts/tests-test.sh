#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What test.sh builds and runs, and how a failure ends. CMake and CTest are replaced by scripts.
. "$(dirname "$0")/check.sh"

mkdir "$work/bin"
cat >"$work/bin/cmake" <<'END'
#!/bin/bash
echo "cmake $*" >>"$CALLS"
[ "$*" != "$FAILING_BUILD" ]
END
# FAILING and EMPTY name passes: those with a test that fails, and those with no test to run.
cat >"$work/bin/ctest" <<'END'
#!/bin/bash
pass=$2
if [ "$3" = -N ]; then
  if [[ $EMPTY = *$pass* ]]; then echo 'Total Tests: 0'; else echo 'Total Tests: 3'; fi
  exit 0
fi
echo "ctest $*" >>"$CALLS"
echo "Test project $pass"
if [[ $EMPTY = *$pass* ]]; then
  echo 'No tests were found!!!'
  exit 8
elif [[ $FAILING = *$pass* ]]; then
  printf '67%% tests passed, 1 tests failed out of 3 (%s)\n' "$pass"
  echo 'Errors while running CTest' >&2
  exit 8
fi
printf '100%% tests passed, 0 tests failed out of 3 (%s)\n' "$pass"
END
chmod +x "$work"/bin/*
PATH=$work/bin:$PATH
export CALLS=$work/calls FAILING= EMPTY= FAILING_BUILD=

# expect_run WHAT STATUS LAST-LINES CALLS ARGUMENT...
expect_run() {
  : >"$CALLS"
  run "$source_folder/test.sh" "${@:5}"
  expect "$1: status" "$status" "$2"
  expect "$1: the end" "$(awk '/tests passed/ { end = "" } { end = end $0 "\n" } END { printf "%s", end }' <<<"$output")" "$3"
  expect "$1: calls" "$(sed 's/--preset //' "$CALLS" | tr '\n' '|')" "$4"
}

good_release='100% tests passed, 0 tests failed out of 3 (release-tests)'
good_debug='100% tests passed, 0 tests failed out of 3 (debug)'
configured="cmake release-tests|cmake debug|"
release_run="cmake --build release-tests|ctest release-tests"
debug_run="cmake --build debug|ctest debug"
quick="-LE ^long\$|"

expect_run "no argument" 0 "$good_debug" "$configured$release_run $quick$debug_run $quick"
expect_run "--all" 0 "$good_debug" \
  "cmake fuzz|$configured$release_run|cmake --build fuzz|$debug_run|" --all
expect_run "a filter" 0 "$good_debug" "$configured$release_run -R core $quick$debug_run -R core $quick" -R core
expect_run "a filter and --all" 0 "$good_debug" \
  "cmake fuzz|$configured$release_run -R core|cmake --build fuzz|$debug_run -R core|" -R core --all
expect_run "a label" 0 "$good_debug" \
  "cmake fuzz|$configured$release_run -L long|cmake --build fuzz|$debug_run -L long|" -L long

EMPTY=debug expect_run "tests of the first pass only" 0 "$good_release" "$configured$release_run -R x $quick" -R x
EMPTY=release-tests expect_run "tests of the second pass only" 0 "$good_debug" "$configured$debug_run -R x $quick" -R x
EMPTY="release-tests debug" expect_run "no tests" 8 $'Test project debug\nNo tests were found!!!' "${configured}ctest debug -R x $quick" -R x

both_runs="$configured$release_run $quick$debug_run $quick"
FAILING=debug expect_run "a failure in the second pass" 1 \
  $'67% tests passed, 1 tests failed out of 3 (debug)\nErrors while running CTest' "$both_runs"
FAILING=release-tests expect_run "a failure in the first pass" 1 \
  $'67% tests passed, 1 tests failed out of 3 (release-tests)\nErrors while running CTest' "$both_runs"
FAILING="release-tests debug" expect_run "failures in both" 1 \
  $'67% tests passed, 1 tests failed out of 3 (debug)\nErrors while running CTest' "$both_runs"
FAILING_BUILD="--build --preset debug" expect_run "a build that fails" 1 "$good_release" \
  "$configured$release_run ${quick}cmake --build debug|"
verdict
