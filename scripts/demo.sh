#!/usr/bin/env bash
# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# lxpm at work: builds the library, computes with it on the Stanford bunny, and draws what it has computed.
#
# usage: scripts/demo.sh [OPTION OF THE MESH EXAMPLE]...       (--help tells which)
#
# Files are named from the top of the clone.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/lib/packages.sh

say() { echo "== $*" >&2; }

require_packages g++ cmake libpng-dev ninja-build

say "Building the library and the example (build/release)"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake --preset release -DLXPM_BUILD_TESTS=OFF -DLXPM_BUILD_EXAMPLES=ON >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
cmake --build --preset release --target mesh >&2

# A mesh of this size is done before a second thread has woken up; give a larger one more of them.
export OMP_NUM_THREADS="${OMP_NUM_THREADS:-1}"

say "Computing on examples/data/bunny.obj"
build/release/examples/mesh/mesh --input examples/data/bunny.obj --output build/release/bunny.png "$@"
