#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A kill between any two steps and a disk that is full at any step leave only complete copies:
# copies-faults-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/packaging/sample-year.sh"
export ASAN_OPTIONS=$ASAN_OPTIONS:detect_leaks=0

# faulty KIND STEP COMMAND...
faulty() {
  env LD_PRELOAD="$build/tests/tools/copies/libzelvia_fault.so" ZELVIA_FAULT="$1" ZELVIA_FAULT_STEP="$2" "${@:3}"
}

# A small diary as it was and as it is, and thirty copies of what it was: the next one makes the first of them go.
mkdir -p "$diary/prova" "$work/start"
printf '""\r\n' >"$diary/nomeload"
echo prima >"$diary/ZelviaFile/prova.zlv"
echo lista >"$diary/prova/Tipo.lsx"
cp -a "$diary" "$work/before"
for ((i = 1; i <= 30; i++)); do
  copy=$work/start/$(printf '%06d_2026-11-%02d_12-00-00' "$i" "$i")
  cp -a "$work/before" "$copy"
  printf '%s' "$diary" >"$copy/.cartella"
done
echo dopo >"$diary/ZelviaFile/prova.zlv"

renew() {
  rm -rf "$kept" "$work/nuova"
  mkdir -p "$kept"
  cp -a "$work/start/." "$kept"
}
numbers() { kept_names | tr '|' '\n' | sed 's/_.*//; s/^0*//' | tr '\n' ' '; }
# Every copy is one of the diary before or, the 31st, after the change.
expect_whole() {
  local copy wanted
  for copy in "$kept"/0*; do
    wanted=$work/before
    [[ ${copy##*/} != 000031_* ]] || wanted=$diary
    expect_same "$1: ${copy##*/}" "$copy" "$wanted"
    expect "$1: the origin of ${copy##*/}" "$(cat "$copy/.cartella" 2>/dev/null)" "$diary"
  done
}
first_29=$(seq 2 30 | tr '\n' ' ')
steps=200

# Killed at every step of a copy: the visible copies are complete and none of the last thirty is missing; the next start
# does what is left to do.
for ((step = 1; step < steps; step++)); do
  renew
  run faulty kill $step "$copies" crea
  [ "$status" -ne 0 ] || break
  expect "killed at step $step: exit status" "$status" 137
  expect_whole "killed at step $step"
  case " $(ls "$kept" | sed 's/_.*//; s/^0*//' | tr '\n' ' ')" in
    " 1 $first_29" | " 1 ${first_29}31 " | " ${first_29}31 ") ;;
    *) expect "killed at step $step: copies" "$(kept_names)" "30 whole ones" ;;
  esac
  run "$copies" crea
  expect "after a kill at step $step" "$status|$errors" "0|"
  # An old one that is due may go only with the next copy.
  case $(numbers) in
    "${first_29}31 " | "1 ${first_29}31 ") ;;
    *) expect "after a kill at step $step: copies" "$(kept_names)" "2..31" ;;
  esac
  expect_whole "after a kill at step $step"
done
expect "steps of a copy" "$((step > 20 && step < steps))" 1
expect "the last copy of all" "$(numbers)" "${first_29}31 "

# A disk full at every step: an error that says so, and unchanged copies.
for ((step = 1; step < steps; step++)); do
  renew
  run faulty full $step "$copies" crea
  [ "$status" -ne 0 ] || break
  case $status$errors in
    "1zelvia-copie: «$kept"*"»: Disco pieno") ;;
    *) expect "full at step $step" "$status|$errors" "1|Disco pieno" ;;
  esac
  expect_whole "full at step $step"
  # What was already renamed into place is complete, though perhaps not yet on the disk.
  case $(numbers) in
    "1 $first_29" | "1 ${first_29}31 ") ;;
    *) expect "full at step $step: copies" "$(kept_names)" "1..30" ;;
  esac
  run "$copies" crea
  expect "after the full disk at step $step" "$status|$errors" "0|"
  expect_whole "after the full disk at step $step"
done
expect "steps that take space" "$((step > 10 && step < steps))" 1

# The same for putting a copy back: the new folder is complete or absent.
for kind in kill full; do
  for ((step = 1; step < steps; step++)); do
    renew
    run faulty $kind $step "$copies" rimetti 30 "$work/nuova"
    [ "$status" -ne 0 ] || break
    [ ! -e "$work/nuova" ] || expect_same "put back, $kind at step $step" "$work/nuova" "$work/before"
    expect "put back, $kind at step $step: copies" "$(numbers)" "1 $first_29"
    [ -e "$work/nuova" ] || run "$copies" rimetti 30 "$work/nuova"
    expect_same "after $kind at step $step" "$work/nuova" "$work/before"
    expect "after $kind at step $step: leftovers" "$(find "$work" -maxdepth 1 -name '.nuova*')" ""
  done
  expect "steps of putting back, $kind" "$((step > 10 && step < steps))" 1
done

# The second place, of which there are thirty copies too: whatever happens there, the first place keeps its own.
second=$work/secondo/Zelvia-copie
name_second() {
  renew
  rm -rf "$work/secondo"
  mkdir -p "$second"
  cp -a "$work/start/." "$second"
  printf '%s\n' "$work/secondo" >"$HOME/.local/state/zelvia/secondo-posto"
  "$copies" crea >/dev/null
  rm -rf "$second"/000031_*
  [ -e "$second"/000001_2026-11-01_12-00-00 ] || cp -a "$work/start/000001_2026-11-01_12-00-00" "$second"
}
for kind in kill full; do
  for ((step = 1; step < steps; step++)); do
    name_second
    run faulty $kind $step "$copies" crea
    [ "$status" -ne 0 ] || break
    expect "second place, $kind at step $step: the first place" "$(numbers)" "${first_29}31 "
    kept=$second expect_whole "second place, $kind at step $step"
    run "$copies" crea
    expect "second place, after $kind at step $step" "$status|$errors" "0|"
    kept=$second expect_whole "second place, after $kind at step $step"
    expect "second place, after $kind at step $step: the newest" "$(ls -d "$second"/000031_* | wc -l)" 1
  done
  expect "steps of the second place, $kind" "$((step > 10 && step < steps))" 1
done
rm -rf "$HOME/.local/state/zelvia/secondo-posto"

# What comes before the start, killed at every step: nothing in the diary's folder changes, and the next start does all.
for ((step = 1; step < steps; step++)); do
  renew
  rm -f "$HOME/.local/state/zelvia/avvio"
  run env -u DISPLAY -u WAYLAND_DISPLAY LD_PRELOAD="$build/tests/tools/copies/libzelvia_fault.so" ZELVIA_FAULT=kill \
    ZELVIA_FAULT_STEP=$step "$build/src/zelvia-avvio" -- "$diary"
  [ "$status" -ne 0 ] || break
  expect "start killed at step $step: exit status" "$status" 137
  rm -f "$diary/.zelvia.lock"
  expect "start killed at step $step: the diary" "$(cat "$diary/ZelviaFile/prova.zlv")" dopo
  run env -u DISPLAY -u WAYLAND_DISPLAY "$build/src/zelvia-avvio" -- "$diary"
  rm -f "$diary/.zelvia.lock"
  expect "after a start killed at step $step" "$status|$(grep -c 'qualcosa che non va' <<<"$errors")" "0|1"
  expect_whole "after a start killed at step $step"
done
expect "steps of a start" "$((step > 20 && step < steps))" 1

# A real disk that is full: files that may not grow and, where this machine allows it, a file system that is too small.
rm -rf "$kept" "$diary"
mkdir -p "$diary/ZelviaFile"
lay_sample_year "$diary"
small() { "$copies" crea; }
limited() (
  ulimit -f 100
  exec "$copies" crea
)
umount_small() { mountpoint -q "$work/piccolo" && umount "$work/piccolo" || true; }
trap 'umount_small; tidy' EXIT
mkdir "$work/piccolo"
tries=(limited)
# Room for one copy of the sample year, not for two.
mount -t tmpfs -o size=512k none "$work/piccolo" 2>/dev/null && tries+=(small)
for try in "${tries[@]}"; do
  export XDG_STATE_HOME=$work/stato
  [ "$try" != small ] || XDG_STATE_HOME=$work/piccolo
  kept=$XDG_STATE_HOME/zelvia/copie
  run "$copies" crea
  expect "$try: the first copy" "$status|$output|$errors" "0|Copia fatta.|"
  first=$(kept_names)
  cp -a "$diary" "$work/good"
  echo x >>"$diary/prova/Modo.lsx"
  run "$try"
  expect "$try: exit status" "$status" 1
  expect "$try: message" "${errors##*: }" "Disco pieno"
  expect "$try: copies" "$(kept_names)" "$first"
  expect_same "$try: the first copy" "$kept/${first%|}" "$work/good"
  rm -rf "$work/good"
done
verdict
