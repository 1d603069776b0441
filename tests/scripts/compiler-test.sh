#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A compiler gets -fno-tree-dse if it drops a store before an assignment that throws, and no other does.
. "$(dirname "$0")/check.sh"

mkdir "$work/project"
cat >"$work/project/CMakeLists.txt" <<END
cmake_minimum_required(VERSION 3.25)
project(flags LANGUAGES CXX)
include($source_folder/cmake/ThrowingStore.cmake)
get_property(options DIRECTORY PROPERTY COMPILE_OPTIONS)
file(WRITE \${CMAKE_BINARY_DIR}/options "\${options}")
END

# options_for COMPILER [ARGUMENT...]: what is added for it.
options_for() {
  rm -rf "$work/build"
  if ! cmake -G Ninja -S "$work/project" -B "$work/build" -DCMAKE_CXX_COMPILER="$1" "${@:2}" >"$work/configure.log" 2>&1; then
    cat "$work/configure.log"
    return
  fi
  cat "$work/build/options"
}

# wrapper NAME BODY: a compiler that is g++ with a difference.
wrapper() {
  printf '#!/bin/bash\n%s\n' "$2" >"$work/$1"
  chmod +x "$work/$1"
}
# The program that tests the compiler, as this one builds it, without CMake.
drops() {
  local level
  for level in -O1 -O2 -O3; do
    "$1" -std=c++20 "$level" "$source_folder/cmake/ThrowingStore.cpp" -o "$work/ask"
    "$work/ask" || return 0
  done
  return 1
}

wrapper mended 'exec g++ "$@" -fno-tree-dse'
echo 'int main() { return 1; }' >"$work/dropped.cpp"
wrapper broken "exec g++ \"\${@/%*ThrowingStore.cpp/$work/dropped.cpp}\""
wanted=
! drops g++ || wanted=-fno-tree-dse
for type in Debug Release; do
  expect "g++, $type" "$(options_for g++ -DCMAKE_BUILD_TYPE=$type)" "$wanted"
  expect "a mended g++, $type" "$(options_for "$work/mended" -DCMAKE_BUILD_TYPE=$type)" ""
  expect "a g++ with the fault, $type" "$(options_for "$work/broken" -DCMAKE_BUILD_TYPE=$type)" -fno-tree-dse
done
expect "a mended g++ for another machine" "$(options_for "$work/mended" -DCMAKE_SYSTEM_NAME=Linux)" -fno-tree-dse
expect "the same with an emulator" \
  "$(options_for "$work/mended" -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_CROSSCOMPILING_EMULATOR=/usr/bin/env)" ""
expect "clang++" "$(options_for clang++)" ""
verdict
