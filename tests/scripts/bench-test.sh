#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The figures that are kept of each release: bench-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
export ZELVIA_HISTORY=$work/history.tsv
history=$source_folder/bench/history.sh

# table READING WRITING MILLIONS: as bench/run prints it.
table() {
  echo 'Name                                               Measured     Baseline   Ratio   Figure to hold'
  echo "Reading, note 10                               $1 ms     1.000 ms    $1   ratio <= 1.0"
  echo "A name that is longer than its column, note 1000000     $2 ms     1.000 ms    $2   ratio <= 2.0"
  echo "Instructions to the first page, offscreen          $3 M       80.0 M       1.78   ratio <= 1.4"
}
record() { table "${@:2}" | "$history" record "$1"; }
compare() { table "$@" | "$history" compare; }

record 1.0.0 0.30 1.20 140.0
expect "the first line" "$(<"$ZELVIA_HISTORY")" \
  "version	Reading, note 10	A name that is longer than its column, note 1000000	Instructions to the first page, offscreen	Instructions to the first page, offscreen, millions
1.0.0	0.30	1.20	1.78	140.0"

# A tenth is still as good.
run compare 0.33 1.32 154.0
expect "a tenth more" "$status|$output$errors" "0|nothing is worse than in 1.0.0 by more than a tenth"
run compare 0.34 1.10 155.0
expect "more than a tenth" "$status|$output$errors" "1|worse than in 1.0.0: Reading, note 10, 0.34 instead of 0.30
worse than in 1.0.0: Instructions to the first page, offscreen, millions, 155.0 instead of 140.0"

# A figure that is new has its own column, empty for what came before; what is gone is left empty.
table 0.31 1.20 140.0 | sed 's/^Reading/Writing/' | "$history" record 1.1.0
expect "the columns" "$(cut -f 2,6 "$ZELVIA_HISTORY")" "Reading, note 10	Writing, note 10
0.30	
	0.31"
run compare 9.99 1.20 140.0
expect "nothing to compare with" "$status|$output$errors" "0|nothing is worse than in 1.1.0 by more than a tenth"

run "$history" forget
expect "another word" "$status|$errors" "2|history.sh record VERSION | compare"
verdict
