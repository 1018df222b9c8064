#!/usr/bin/env bash
# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# Measures the library beside its peers and prints the results as Markdown tables; progress goes to the error stream.
#
# usage: scripts/benchmark.sh [FILTER [OPTION OF THE BENCHMARK PROGRAM]...]
#
# FILTER is a regular expression on <group>/<function>/<size>/<contestant>: 'cache-mam', 'Add_vava_32f/', '/4x4/'.
# A quick look, not to be quoted: scripts/benchmark.sh cache-mam --benchmark_repetitions=3 --benchmark_min_time=0.002

set -euo pipefail
script=$(realpath "${BASH_SOURCE[0]}")
cd "$(dirname "$script")/.."
source scripts/lib/packages.sh

say() { echo "== $*" >&2; }

case ${1:-} in
-h | --help)
    sed -n '5,/^$/s/^# \{0,1\}//p' "$script"
    exit
    ;;
esac
filter=${1:-.}
[ $# -eq 0 ] || shift

require_packages g++ cmake ninja-build python3 libeigen3-dev libbenchmark-dev libcglm-dev libglm-dev liblapacke-dev \
    libopenblas-dev libxsmm-dev pkg-config

say "Building (build/benchmarks)"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake --preset benchmarks -DLXPM_BUILD_TESTS=OFF -DLXPM_BUILD_EXAMPLES=OFF >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
cmake --build --preset benchmarks >&2

say "Measuring; the machine should have nothing else to do"
results=build/benchmarks/results.json
# Repetitions of all contestants in random order: what slows the machine for a while then slows everybody.
build/benchmarks/benchmarks/benchmarks \
    --benchmark_filter="$filter" \
    --benchmark_repetitions=9 \
    --benchmark_min_time=0.02 \
    --benchmark_enable_random_interleaving=true \
    --benchmark_report_aggregates_only=true \
    --benchmark_out="$results" --benchmark_out_format=json "$@" >/dev/null

say "Results are in $results"
python3 benchmarks/report.py "$results"
