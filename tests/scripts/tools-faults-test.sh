#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A kill between any two steps of the tools and a disk that is full at any step leave a program folder as it was or as
# it is to be: tools-faults-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/packaging/sample-year.sh"
tools=$build/src/zelvia-strumenti
export HOME=$work/casa XDG_STATE_HOME=$work/stato
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}verify_asan_link_order=0:detect_leaks=0
diary=$HOME/Zelvia

# faulty KIND STEP COMMAND...
faulty() {
  env LD_PRELOAD="$build/tests/tools/copies/libzelvia_fault.so" ZELVIA_FAULT="$1" ZELVIA_FAULT_STEP="$2" "${@:3}"
}

# What a program sees of the folder: hidden entries are nobody's, empty folders hold nothing.
visible() {
  (cd "$1" && find . -path './.*' -prune -o -type f -print0 | sort -z | xargs -0 sha256sum)
}
lay() {
  rm -rf "$diary" "$XDG_STATE_HOME"
  cp -a "$work/before" "$diary"
  [ ! -d "$work/giornale" ] || { mkdir -p "$XDG_STATE_HOME/zelvia" && cp -a "$work/giornale" "$XDG_STATE_HOME/zelvia"; }
}

# every_step NAME ACTION...: kills the action at each of its steps, then fills the disk at each.
every_step() {
  local name=$1 step state steps=600
  shift
  lay
  run "$tools" "$@"
  expect "$name" "$status|$errors" "0|"
  local done before
  done=$(visible "$diary")
  before=$(visible "$work/before")
  for ((step = 1; step < steps; step++)); do
    lay
    run faulty kill $step "$tools" "$@"
    [ "$status" -ne 0 ] || break
    expect "$name killed at step $step: exit status" "$status" 137
    # Each file is as it was or as it is to be.
    expect "$name killed at step $step: files" \
      "$(visible "$diary" | sort | comm -23 - <(printf '%s\n' "$before" "$done" | sort))" ""
    # The pointer is the last to change: until then the program opens the old diary, and nothing there has changed.
    if [ "$1" = anno ] && ! grep -q 2027 "$diary/nomeload"; then
      expect "$name killed at step $step: the old diary" \
        "$(visible "$diary" | grep -v ' \./\(ZelviaFile/2027\.zlv\|2027/.*\)$')" "$before"
    fi
    run "$tools" "$@"
    case "$status|$errors" in
      "0|" | "1|zelvia-strumenti: il diario 2027 c'è già"*) ;;
      *) expect "$name after a kill at step $step" "$status|$errors" "0|" ;;
    esac
    state=$(visible "$diary")
    [ "$state" = "$done" ] || expect "$name after a kill at step $step" "$state" "$done"
    run "$tools" anni
    expect "$name after a kill at step $step: leftovers" "$(find "$diary" -name '.zelvia-strumenti*')" ""
  done
  expect "$name: steps to be killed at" "$((step > 20 && step < steps))" 1

  for ((step = 1; step < steps; step++)); do
    lay
    run faulty full $step "$tools" "$@"
    [ "$status" -ne 0 ] || break
    case $status$errors in
      1*"Disco pieno"*) ;;
      *) expect "$name on a disk full at step $step" "$status|$errors" "1|Disco pieno" ;;
    esac
    case $errors in
      *"Niente è stato cambiato.") expect "$name on a disk full at step $step" "$(visible "$diary")" "$before" ;;
      *"il prossimo zelvia-strumenti la completa.") ;;
      *) expect "$name on a disk full at step $step: message" "$errors" "what it means for the files" ;;
    esac
    run "$tools" "$@"
    state=$(visible "$diary")
    [ "$state" = "$done" ] || expect "$name after a disk full at step $step" "$status|$errors|$state" "$done"
  done
  expect "$name: steps that take space" "$((step > 20 && step < steps))" 1
}

mkdir -p "$work/before/ZelviaFile" "$HOME"
lay_sample_year "$work/before"
printf '""\r\n' >"$work/before/nomeload"
every_step "a new year" anno 2027 --si
printf '%s\r\n' date,km,time 2027-03-01,10,0:50:00 2027-03-03,8.5,0:42:10 >"$work/giorni.csv"
every_step "an import" importa --si "$work/giorni.csv"
conflict=$work/before/ZelviaFile/prova.sync-conflict-20261101-101010-ABCDEFG.zlv
list=$work/before/prova/Tipo-PC.lsx
sed '122s/^[0-9]*/71/' "$work/before/ZelviaFile/prova.zlv" >"$conflict"
{ cat "$work/before/prova/Tipo.lsx" && printf '"Passeggiata"\r\n'; } >"$list"
every_step "a merge" unisci --si --sovrascrivi
rm "$conflict" "$list"
# A journal that the program would have left, of a day of the sample year and a list.
lay
python3 "$source_folder/tests/scripts/journal.py" "$work/giornale" "$diary" 142
every_step "what was not saved" giornale riprendi --si
rm -rf "$work/giornale"
sed -i 's/\r$//' "$work/before/ZelviaFile/prova.zlv"
sed -i 's/Gara/"Gara"/' "$work/before/prova/Tipo.lsx"
every_step "what is mended" ripara --si

sed '122s/^[0-9]*/71/' "$work/before/ZelviaFile/prova.zlv" >"$conflict"

# A real disk that has too little room and then can't be written at all, where this machine allows one.
disk=$work/disco
umount_disk() { mountpoint -q "$disk" && umount "$disk" || true; }
trap 'umount_disk; tidy' EXIT
mkdir "$disk"
if mount -t tmpfs -o size=1m none "$disk" 2>/dev/null; then
  rm -rf "$XDG_STATE_HOME"
  cp -a "$work/before" "$disk/Zelvia"
  head -c $((($(df --output=avail "$disk" | tail -n 1) - 100) * 1024)) /dev/zero >"$disk/pieno"
  for fault in "Disco pieno" "Errore di accesso al file o alla cartella"; do
    for action in "anno 2027" "ripara" "unisci --sovrascrivi"; do
      # shellcheck disable=SC2086
      run "$tools" --cartella "$disk/Zelvia" $action --si
      expect "$action, $fault: exit status" "$status" 1
      expect "$action, $fault: message" "$(grep -c "$fault" <<<"$errors") ${errors##*$'\n'}" "1 Niente è stato cambiato."
      expect "$action, $fault: files" "$(visible "$disk/Zelvia")" "$(visible "$work/before")"
    done
    mount -o remount,ro "$disk"
  done
  run "$tools" --cartella "$disk/Zelvia" anni --tsv
  expect "reading on such a disk" "$status|$(wc -l <<<"$output")|$errors" "0|2|"
fi
verdict
