#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds with sanitizers and runs every test, the fuzzers for a moment too. What stands on the command line goes to ctest:
# test.sh -R core
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")"
. packaging/packages.sh

packages_install run build package display test
for preset in fuzz debug; do
  cmake --preset $preset
  cmake --build --preset $preset
done
exec ctest --preset debug "$@" </dev/null
