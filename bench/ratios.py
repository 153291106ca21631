#!/usr/bin/env python3
"""What Dayvane costs, as ratios: each measurement beside its yardstick, taken in one run on one machine.

    ratios.py build/release/bench/dayvane_bench

Ends with 1 when one of them costs more than it may in each of three runs: whatever else the machine does only adds.
The files lie below TMPDIR; on a tmpfs no disk disturbs what is compared.
"""

import json
import subprocess
import sys

# What is measured, its yardstick, how many times the yardstick it may take.
RATIOS = [
    ("Poll_UnchangedShortcuts", "Poll_Yardstick_ReadLoop", 1.5),
    ("FirstFiling_WithFavorites", "FirstFiling_Yardstick_CopyArchive", 3),
    ("Rebuild_Repository", "Rebuild_Yardstick_ReadLoop", 3),
    ("Tree_RefreshDaily", "Tree_Yardstick_FindFolders", 3),
    ("Sort_ColumnClick", "Sort_Yardstick_StableSort", 4),
]


RUNS = 3


def measure(names):
    """Milliseconds of each benchmark that is to be run; None of one that failed."""
    pattern = "|".join(f"^{name}(/|$)" for name in names)
    command = [sys.argv[1], "--benchmark_format=json", "--benchmark_filter=" + pattern]
    run = subprocess.run(command, check=True, capture_output=True, text=True)
    found = json.loads(run.stdout)["benchmarks"]
    return {b["name"].split("/")[0]: None if b.get("error_occurred") else b["real_time"] for b in found}


def too_costly(ratios):
    """Measures the ratios and prints them; returns those that are too high or could not be measured."""
    times = measure([name for ratio in ratios for name in ratio[:2]])
    costly = []
    for name, yardstick, most in ratios:
        mine, least = times.get(name), times.get(yardstick)
        if not mine or not least:
            print(f"{name:28} could not be measured")
            costly.append((name, yardstick, most))
            continue
        print(f"{name:28} {mine:9.1f} ms / {least:9.1f} ms = {mine / least:5.2f}  (at most {most})")
        if mine / least > most:
            costly.append((name, yardstick, most))
    return costly


def main():
    costly = RATIOS
    for _ in range(RUNS):
        costly = too_costly(costly)
        if not costly:
            print("all within their ratios")
            return 0
    print("too slow or failed: " + ", ".join(name for name, *_ in costly))
    return 1


sys.exit(main())
