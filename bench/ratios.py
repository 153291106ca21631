#!/usr/bin/env python3
"""What Dayvane costs, as ratios: each measurement beside its yardstick, taken in one run on one machine.

    ratios.py build/release/bench/dayvane_bench build/release/bench/dayvane_linux_bench

Ends with 1 when one of them costs more than it may in each of three runs: whatever else the machine does only adds.
The files lie below TMPDIR; on a tmpfs no disk disturbs what is compared.
"""

import json
import subprocess
import sys

# What is measured, its yardstick, at what size, how many times the yardstick it may take.
RATIOS = [
    # 1.5 on a disk, where reading costs more
    ("Poll_UnchangedShortcuts", "Poll_Yardstick_ReadLoop", "/shortcuts:10000", 2),
    ("FirstFiling_WithFavorites", "FirstFiling_Yardstick_CopyArchive", "/shortcuts:10000", 3),
    ("Rebuild_Repository", "Rebuild_Yardstick_ReadLoop", "/shortcuts:100000/years:1", 3),
    ("Tree_RefreshDaily", "Tree_Yardstick_FindFolders", "/years:10", 3),
    ("Day_Switch", "Day_Yardstick_BareTable", "/documents:10000/years:1", 8),
    ("Sort_ColumnClick", "Sort_Yardstick_StableSort", "/rows:100000", 4),
    ("Sources_Unchanged", "Sources_Yardstick_Status", "", 3),
    ("Activities_ReadSinceLastLook", "Activities_Yardstick_Rows", "/openings:100000", 8),
    ("Search_Key", "Search_Yardstick_BareNames", "", 4),
    ("Search_FirstKey", "Search_Yardstick_Listing", "", 6),
]


RUNS = 3
MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def measure(sized_names):
    """Milliseconds of each benchmark that is to be run and did not fail, by its name without the size."""
    pattern = "|".join(f"^{name}(/|$)" for name in sized_names)
    times = {}
    for program in sys.argv[1:]:
        command = [program, "--benchmark_format=json", "--benchmark_filter=" + pattern]
        run = subprocess.run(command, check=True, capture_output=True, text=True)
        for found in json.loads(run.stdout or '{"benchmarks": []}')["benchmarks"]:
            if not found.get("error_occurred"):
                times[found["name"].split("/")[0]] = found["real_time"] * MILLISECONDS[found["time_unit"]]
    return times


def too_costly(ratios):
    """Measures the ratios and prints them; returns those that are too high or could not be measured."""
    times = measure([name + size for *names, size, _ in ratios for name in names])
    costly = []
    for name, yardstick, size, most in ratios:
        mine, least = times.get(name), times.get(yardstick)
        if not mine or not least:
            print(f"{name:28} could not be measured")
            costly.append((name, yardstick, size, most))
            continue
        print(f"{name:28} {mine:9.3g} ms / {least:9.3g} ms = {mine / least:5.2f}  (at most {most})")
        if mine / least > most:
            costly.append((name, yardstick, size, most))
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
