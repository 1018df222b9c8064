#!/usr/bin/env python3
# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

"""Prints the results of the benchmarks as Markdown tables.

usage: report.py RESULTS.json

Benchmarks are named <group>/<function>/<size>/<contestant>. Of each, the median over its repetitions counts. The
contestants are `lxpm`, the peers, `triad`, the machine's bandwidth on the same bytes, and `multiplyAdds`, its rate of
unfused multiplications and additions.
"""

import json
import math
import sys

LIBRARY, BANDWIDTH, RATE = "lxpm", "triad", "multiplyAdds"
CONTEXT = ("processor", "compiler", "cache", "memory", "date", "load_avg")


def read_medians(results):
    """{group: {(function, size): {contestant: ns per object}}}, and the largest variation of a contestant."""
    groups = {}
    variations = []
    # Randomly interleaved results stand in the order in which they happened to be finished.
    for run in sorted(results["benchmarks"], key=lambda run: run["family_index"]):
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        name = run["run_name"].removesuffix("/real_time")
        time = run["cpu_time" if name == run["run_name"] else "real_time"]
        if run.get("aggregate_name") == "cv":
            variations.append(time)
        if run.get("aggregate_name") != "median":
            continue
        if run["time_unit"] != "ns":
            sys.exit(f"{name}: times in {run['time_unit']}, not in ns")
        group, function, size, contestant = name.split("/")
        case = groups.setdefault(group, {}).setdefault((function, size), {})
        case[contestant] = time / run["objects"]
    return groups, variations


class Row:
    def __init__(self, times):
        self.lxpm = times[LIBRARY]
        self.of_bandwidth = times[BANDWIDTH] / self.lxpm if BANDWIDTH in times else None
        self.of_rate = times[RATE] / self.lxpm if RATE in times else None
        peers = {name: time for name, time in times.items() if name not in (LIBRARY, BANDWIDTH, RATE)}
        self.best = min(peers, key=peers.get, default=None)
        self.peer = peers.get(self.best)
        self.ratio = self.peer / self.lxpm if peers else None


def geometric_mean(values):
    return math.exp(sum(map(math.log, values)) / len(values)) if values else None


def show(value, form):
    return "" if value is None else format(value, form)


def summary(name, rows):
    def known(values):
        return [value for value in values if value is not None]

    ratios = known(row.ratio for row in rows)
    return (name, str(len(rows)), show(geometric_mean(ratios), ".2f"), show(min(ratios, default=None), ".2f"),
            show(geometric_mean(known(row.of_bandwidth for row in rows)), ".0%"),
            show(geometric_mean(known(row.of_rate for row in rows)), ".0%"))


def print_table(header, rows):
    print("| " + " | ".join(header) + " |")
    print("|" + "|".join(" --- " if column in ("group", "function", "size", "which") else " ---: "
                         for column in header) + "|")
    for row in rows:
        print("| " + " | ".join(row) + " |")
    print()


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__.split("\n\n")[1])
    with open(sys.argv[1], encoding="utf-8") as file:
        results = json.load(file)
    groups, variations = read_medians(results)
    if not groups:
        sys.exit("The results have no medians: at least two repetitions are needed.")
    tables = {group: {case: Row(times) for case, times in cases.items()} for group, cases in groups.items()}

    for key in CONTEXT:
        if key in results["context"]:
            print(f"- {key}: {results['context'][key]}")
    variations.sort()
    print(f"- spread of the repetitions (standard deviation by mean): {variations[len(variations) // 2]:.1%} for half "
          f"of the benchmarks, at most {variations[-1]:.1%}\n")

    every = [row for rows in tables.values() for row in rows.values()]
    print("### Geometric means\n")
    print_table(("group", "cases", "peer / lxpm", "least", "of triad", "of multiply-adds"),
                [summary(group, rows.values()) for group, rows in tables.items()] + [summary("all", every)])

    for group, rows in tables.items():
        print(f"### {group}\n")
        print_table(("function", "size", "lxpm, ns/object", "best peer, ns/object", "which", "peer / lxpm", "of triad",
                     "of multiply-adds"),
                    [(function, size, show(row.lxpm, ".2f"), show(row.peer, ".2f"), row.best or "",
                      show(row.ratio, ".2f"), show(row.of_bandwidth, ".0%"), show(row.of_rate, ".0%"))
                     for (function, size), row in rows.items()])


main()
