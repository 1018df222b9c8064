#!/usr/bin/env bash
# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# Builds the library and runs its tests: optimised by g++ and by clang, under the address and undefined-behaviour
# sanitizers, and what uses threads under a race detector that understands OpenMP. Installs what is missing.
#
# usage: scripts/test.sh [PRESET]...       the presets: release clang asan tsan (default: all of them)

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/lib/packages.sh

presets=("$@")
[ "${#presets[@]}" -gt 0 ] || presets=(release clang asan tsan)

say() { echo "== $*" >&2; }

require_packages binutils clang clang-format cmake g++ gcc libcglm-dev libclang-rt-dev libglm-dev libgtest-dev liblapacke-dev \
    libomp-dev libpng-dev ninja-build pkg-config

say "Format"
git ls-files '*.c' '*.h' '*.cpp' | xargs clang-format --dry-run --Werror

for preset in "${presets[@]}"; do
    say "Preset $preset: build (build/$preset)"
    cmake --preset "$preset" -DLXPM_BUILD_TESTS=ON -DLXPM_BUILD_EXAMPLES=ON >/dev/null
    cmake --build --preset "$preset"

    say "Preset $preset: tests"
    only=()
    [ "$preset" != tsan ] || only=(-L threads) # the detector slows the rest down without having anything to detect
    ctest --preset "$preset" -j "$(nproc)" "${only[@]}"
done
say "All tests passed: ${presets[*]}"
