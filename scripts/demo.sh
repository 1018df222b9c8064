#!/usr/bin/env bash
# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# lxpm at work: builds the library and computes with it on the Stanford bunny, as Debian 12 packages it.
#
# usage: scripts/demo.sh [OPTION OF THE MESH EXAMPLE]...

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/lib/packages.sh

say() { echo "== $*" >&2; }

require_packages g++ cmake ninja-build glmark2-data

say "Building the library and the example (build/release)"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake --preset release -DLXPM_BUILD_TESTS=OFF >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
cmake --build --preset release --target mesh >&2

bunny=$(dpkg -L glmark2-data | grep '/bunny\.obj$')
say "Computing on $bunny"
build/release/examples/mesh/mesh --input "$bunny" "$@"
