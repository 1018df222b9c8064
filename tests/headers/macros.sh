#!/bin/sh
# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# The headers define no macros but their own.
#
#   macros.sh <compiler> <option>...

set -eu

compiler=$1
shift

# macros_behind <text> <option>...
macros_behind() {
    text=$1
    shift
    printf '%s\n' "$text" | "$compiler" -x c -std=c99 "$@" -dM -E - | LC_ALL=C sort
}

before=$(mktemp)
after=$(mktemp)
trap 'rm -f "$before" "$after"' EXIT
macros_behind '' "$@" > "$before"
macros_behind '#include <lxpm.h>' "$@" > "$after"

if ! grep -q '^#define LXPM_H' "$after"; then
    echo "the header was not read" >&2
    exit 1
fi
foreign=$(LC_ALL=C comm -13 "$before" "$after" | grep -v -E '^#define (LXPM|LXP|LXPCORE)_' || true)
if [ -n "$foreign" ]; then
    echo "$foreign" >&2
    exit 1
fi
