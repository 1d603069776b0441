#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# fuzz/run goes on from what was learnt, and keeps no more of it than it needs: with a fuzzer of the test's own, in the place
# of those of the program.
. "$(dirname "$0")/check.sh"
sources=$work/sorgenti
build=$sources/build/fuzz/fuzz
export HOME=$work/casa
unset XDG_CACHE_HOME ZELVIA_FUZZ_CORPUS
mkdir -p "$sources/fuzz" "$build/seeds/Piccolo" "$work/bin" "$HOME"
cp "$source_folder/fuzz/run" "$sources/fuzz"
printf 'x' >"$build/seeds/Piccolo/seed"
printf -- '-max_len=8\n-print_final_stats=1\n-seed=1\n' >"$build/Piccolo.options"
printf '#!/bin/sh\n' >"$work/bin/cmake"
chmod +x "$work/bin/cmake"
export PATH=$work/bin:$PATH

# Each character of a text that an input begins with is a place reached; a "!" after them ends the process there.
cat >"$work/piccolo.cpp" <<'CPP'
#include <cstddef>
#include <cstdint>
#include <cstdlib>
static volatile int reached;
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const char* wanted = WANTED;
    if (size > 0 && data[0] == wanted[0]) {
        reached = 1;
        if (size > 1 && data[1] == wanted[1]) {
            reached = 2;
            if (size > 2 && data[2] == wanted[2]) {
                reached = 3;
                if (wanted[3] == '!') {
                    std::abort();
                }
            }
        }
    }
    return 0;
}
CPP
# fuzzer TEXT
fuzzer() { clang++ -g0 -O1 -fsanitize=fuzzer "-DWANTED=\"$1\"" "$work/piccolo.cpp" -o "$build/fuzz_Piccolo"; }
kept=$HOME/.cache/zelvia-fuzz/Piccolo

fuzzer 'zel'
run "$sources/fuzz/run" --runs 200000
expect "a run" "$status|$errors" "0|"
expect "its table" "$(sed -nE '2s/^(Piccolo) +[0-9]+ .* (-)$/\1 \2/p' <<<"$output")" "Piccolo -"
expect "what was reached is kept" "$(($(find "$kept" -type f -exec cat {} + | grep -c zel) > 0))" 1
few=$(ls "$kept" | wc -l)

# Inputs that reach nothing more go, however many they are; what is there is enough to go on.
for i in $(seq 100); do
  printf 'q%03d' "$i" >"$kept/altro-$i"
done
run "$sources/fuzz/run" --runs 0 Piccolo
expect "a run that only reads" "$status|$errors" "0|"
expect "few are kept" "$(($(ls "$kept" | wc -l) <= few + 1))" 1
expect "what was reached is still kept" "$(($(find "$kept" -type f -exec cat {} + | grep -c zel) > 0))" 1
expect "nothing else lies there" "$(ls "$HOME/.cache/zelvia-fuzz")" Piccolo

# A fuzzer that fails on what is kept finds it at once, and nothing that was learnt is lost.
fuzzer 'zel!'
run "$sources/fuzz/run" --runs 0 Piccolo
expect "a finding" "$status" 1
expect "where it is" "$(grep -c 'build/fuzz/findings/Piccolo-crash-' <<<"$output")" 1
expect "what reaches less is kept" "$(($(ls "$kept" | wc -l) > 0))" 1

# Other folders.
fuzzer 'zel'
XDG_CACHE_HOME=$work/cache "$sources/fuzz/run" --runs 10 Piccolo >/dev/null
expect "the user's cache elsewhere" "$(ls "$work/cache/zelvia-fuzz")" Piccolo
ZELVIA_FUZZ_CORPUS=$work/corpus "$sources/fuzz/run" --runs 10 Piccolo >/dev/null
expect "a folder named" "$(ls "$work/corpus")" Piccolo
verdict
