#!/bin/sh
# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# Builds and runs a C program with what pkg-config says about the installed library.
#
#   pkg_config.sh <compiler> <prefix> <library directory> <source> <program>

set -eu

compiler=$1
libdir=$2/$3
source=$4
program=$5

export PKG_CONFIG_PATH="$libdir/pkgconfig"
# Word splitting is what these flags are for.
# shellcheck disable=SC2046
"$compiler" -std=c99 -Wall -Wextra -Wpedantic -Werror $(pkg-config --cflags lxpm) "$source" -o "$program" \
    $(pkg-config --libs lxpm)
LD_LIBRARY_PATH="$libdir" "$program"
