#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The list of packages and its reader. Nothing is installed: apt-get, sudo and id are replaced.
. "$(dirname "$0")/check.sh"
. "$source_folder/packaging/packages.sh"

# The list itself: each package once, under a section, with its reason.
expect "sections" "$(grep -o '^\[[a-z]*\]' "$PACKAGE_LIST" | tr -d '\n')" "[run][build][package][display][test][coverage]"
expect "lines without a reason" \
  "$(grep -vE '^(#.*|\[[a-z]+\].*|[a-z0-9][a-z0-9+.-]+ +# .+|)$' "$PACKAGE_LIST" || true)" ""
expect "packages named twice" "$(packages_in run build package display test coverage | sort | uniq -d)" ""
expect "packages not installed when the tests run" "$(packages_missing run build package display test)" ""

# The package is built with, and needs, what the list says. The compiler belongs to every build.
control_list() { sed -n "/^$1:/,/^[A-Z]/p" "$source_folder/debian/control" | sed -n 's/^ \([a-z0-9.+-]*\).*/\1/p' | grep . | sort; }
expect "what builds the package" "$(control_list Build-Depends | grep -vx debhelper-compat)" \
  "$(packages_in build | grep -vx g++ | sort)"
expect "what the package needs" "$(control_list Depends)" "$(packages_in run | sort)"

# The reader.
PACKAGE_LIST=$work/packages
cat >"$PACKAGE_LIST" <<'LIST'
# heading
[one] # a section
bash       # the shell
  coreutils

# package-in-a-comment
[two]
zelvia-no-such-package   # [one] is not meant here
[empty]
LIST
expect "one section" "$(packages_in one | tr '\n' ' ')" "bash coreutils "
expect "two sections" "$(packages_in two one | tr '\n' ' ')" "zelvia-no-such-package bash coreutils "
expect "an empty section" "$(packages_in empty)" ""
run packages_in three
expect "an unknown section" "$status $errors" "1 packages.sh: no section [three] in $PACKAGE_LIST"
run packages_install three
expect "installing an unknown section" "$status" 1
expect "what is missing" "$(packages_missing one two)" "zelvia-no-such-package"

# The installer.
mkdir "$work/bin"
for command in apt-get sudo; do
  printf '#!/bin/sh\necho "%s${DEBIAN_FRONTEND:+ $DEBIAN_FRONTEND}: $*" >>"%s/calls"\n' "$command" "$work" >"$work/bin/$command"
done
printf 'shift 0\nexec "$@"\n' >>"$work/bin/sudo"
printf '#!/bin/sh\necho "$ZELVIA_TEST_ID"\n' >"$work/bin/id"
chmod +x "$work"/bin/*
PATH=$work/bin:$PATH
install="-q -y --no-install-recommends zelvia-no-such-package"
# The user's number, the sections, the calls made.
rows=(
  0 one ""
  1000 one ""
  0 "one two" "apt-get: update -q|apt-get noninteractive: install $install|"
  1000 two "sudo: apt-get update -q|apt-get: update -q|sudo: env DEBIAN_FRONTEND=noninteractive apt-get install $install|apt-get noninteractive: install $install|"
)
unset DEBIAN_FRONTEND
for ((i = 0; i < ${#rows[@]}; i += 3)); do
  : >"$work/calls"
  export ZELVIA_TEST_ID=${rows[i]}
  # shellcheck disable=SC2086
  run packages_install ${rows[i + 1]}
  expect "user ${rows[i]} installs ${rows[i + 1]}: exit status" "$status" 0
  expect "user ${rows[i]} installs ${rows[i + 1]}" "$(tr '\n' '|' <"$work/calls")" "${rows[i + 2]}"
done

# A failed apt-get is not ignored.
printf '#!/bin/sh\nexit 100\n' >"$work/bin/apt-get"
ZELVIA_TEST_ID=0 run bash -euc ". '$source_folder/packaging/packages.sh'; PACKAGE_LIST='$PACKAGE_LIST'; packages_install two; echo went on"
expect "a failed apt-get" "$status $(grep -c 'went on' <<<"$output" || true)" "100 0"
verdict
