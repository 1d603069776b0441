#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What the sandbox starts: the diary in the one folder that it may enter, unless the command line says more.
[ $# -gt 0 ] || set -- -- "$HOME/Zelvia"
exec zelvia "$@"
