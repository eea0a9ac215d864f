#!/usr/bin/env python3
"""Prints the time of each benchmark, and its ratio to the baseline of the same run: of "Tree/100000" and
"Tree_Baseline/100000" the first is given as so many times the second.

usage: bench_ratios.py RESULT.json...
"""
import json
import pathlib
import sys

MARK = "_Baseline"


def main():
    for path in sys.argv[1:]:
        results = json.loads(pathlib.Path(path).read_text())["benchmarks"]
        times = {r["name"]: (r["real_time"], r["time_unit"]) for r in results if "real_time" in r}
        for name, (time, unit) in times.items():
            head, _, rest = name.partition("/")
            if head.endswith(MARK):
                continue
            base = times.get(head + MARK + ("/" + rest if rest else ""))
            ratio = "  %5.2f x its baseline" % (time / base[0]) if base and base[1] == unit and base[0] else ""
            print("  %-50s %12.3f %s%s" % (name, time, unit, ratio))


main()
