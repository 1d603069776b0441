#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Walks the windows of the installed program and those of the tools as a screen reader does, over buses of their own and
# on the present X display: walk-test.sh BUILD-FOLDER [STOP...]
. "$(dirname "$0")/../scripts/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/program.sh"
cp -r "$source_folder/share/demo/." "$work/diario"

# walk "COMMAND" [STOP...]: walks the windows of a program that the command starts. The bus of the readers is found in
# the folder of the session, and started by the first one that asks for it. The interpreter is the one that Debian's
# packages are made for.
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
walk() {
  XDG_RUNTIME_DIR=$(mktemp -d "$work/run-XXXXXX")
  export XDG_RUNTIME_DIR
  local status=0
  dbus-run-session -- bash -c '
    $1 &
    trap "kill $! 2>/dev/null" EXIT
    /usr/bin/python3 "${@:2}"' walk "$1" "$source_folder/tests/accessibility/walk.py" "${@:2}" \
    2>"$work/errors" || status=$?
  expect "the walk" "$status" 0
  [ "$status" -eq 0 ] || cat "$work/errors" >&2
}

tools="$build/src/zelvia-finestra --cartella $work/diario --pagina anno"
case ${2-} in
'')
  walk "$work/diario/zelvia --oggi 2026-04-19"
  walk "$tools" tools years
  ;;
tools | years) walk "$tools" "${@:2}" ;;
*) walk "$work/diario/zelvia --oggi 2026-04-19" "${@:2}" ;;
esac
verdict
