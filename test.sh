#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds with sanitizers and runs every test. What stands on the command line goes to ctest: test.sh -R core
set -euo pipefail

cd "$(dirname "$(readlink -f "$0")")"
. packaging/packages.sh

packages_install run build package display test
cmake --preset debug
cmake --build --preset debug
exec ctest --preset debug "$@" </dev/null
