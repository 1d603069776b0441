# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Drives the real program on the present X display. To be sourced after check.sh, with the build folder in `build`.

cmake --install "$build" --prefix "$work/diario" >"$work/install.log"
# A test without a home of its own must not find, or change, what the program keeps in the tester's.
[[ $HOME == "$work"* ]] || export XDG_STATE_HOME=$work/state
# What is started: the program, or what leads to it.
command=("$work/diario/zelvia")

# start [COMMAND...]: starts the program, under a command if one is given; sets `program`, the process to wait for.
start() {
  # At once, not when the program comes to it: what another one wrote is not this one's.
  : >"$work/program.log"
  "$@" "${command[@]}" >"$work/program.log" 2>&1 &
  program=$!
  started+=("$program")
}

page_up() {
  page=$(xdotool search --onlyvisible --classname '^zelvia$' 2>/dev/null)
}
page_down() { ! page_up; }
ended() { ! kill -0 "$1" 2>/dev/null; }

# The page must come up, and the program end with 0 once its close box is clicked.
expect_page_and_close() {
  if ! await page_up; then
    expect "$1: the page" "not up" "up"
    cat "$work/program.log" >&2
    return
  fi
  wmctrl -i -c "$page"
  await ended "$program" || expect "$1: the program" "running" "ended"
  status=0
  kill -9 "$program" 2>/dev/null || true
  wait "$program" || status=$?
  expect "$1: exit status" "$status" 0
  [ "$status" -eq 0 ] || cat "$work/program.log" >&2
}
