#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The figures of each release: history.sh record VERSION | compare, with a table of bench/run on standard input.
#
# history.tsv has a head with the names of the figures and a line for each release: the ratio of each to its baseline, and
# the millions of instructions. compare prints what got worse than in the last release by more than a tenth; its status is
# 1 if something did.
set -euo pipefail
history=${ZELVIA_HISTORY:-$(dirname "$(readlink -f "$0")")/history.tsv}

# The table as lines of name, tab, figure.
figures() {
  local number='([0-9.]+)'
  sed -nE "s/^(.*[^ ]) +$number M +$number M +$number   .*/\1\t\4\n\1, millions\t\2/p; t
    s/^(.*[^ ]) +$number [a-zA-Z]+ +$number [a-zA-Z]+ +$number   .*/\1\t\4/p"
}

case ${1:-} in
  record)
    figures | awk -F '\t' -v version="$2" -v history="$history" '
      { now[$1] = $2; order[++count] = $1 }
      END {
        lines = 0
        while ((getline line < history) > 0) old[++lines] = line
        close(history)
        columns = split(lines ? old[1] : "version", head, "\t")
        for (i = 1; i <= columns; ++i) known[head[i]] = 1
        for (i = 1; i <= count; ++i) if (!(order[i] in known)) head[++columns] = order[i]
        printf "%s", head[1] > history
        for (i = 2; i <= columns; ++i) printf "\t%s", head[i] > history
        printf "\n" > history
        for (i = 2; i <= lines; ++i) {
          for (j = split(old[i], cells, "\t"); j < columns; ++j) old[i] = old[i] "\t"
          print old[i] > history
        }
        printf "%s", version > history
        for (i = 2; i <= columns; ++i) printf "\t%s", now[head[i]] > history
        printf "\n" > history
      }'
    ;;
  compare)
    figures | awk -F '\t' -v history="$history" '
      { now[$1] = $2; order[++count] = $1 }
      END {
        while ((getline line < history) > 0) { if (!lines++) head = line; last = line }
        columns = split(head, names, "\t"); split(last, figure, "\t")
        for (i = 2; i <= columns; ++i) before[names[i]] = figure[i]
        for (i = 1; i <= count; ++i) {
          name = order[i]
          if (before[name] != "" && now[name] + 0 > before[name] * 1.1) {
            printf "worse than in %s: %s, %s instead of %s\n", figure[1], name, now[name], before[name]
            worse = 1
          }
        }
        if (!worse) printf "nothing is worse than in %s by more than a tenth\n", figure[1]
        exit worse
      }'
    ;;
  *)
    echo "history.sh record VERSION | compare" >&2
    exit 2
    ;;
esac
