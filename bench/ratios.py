#!/usr/bin/env python3
"""What Dayvane costs, as ratios: each measurement beside its yardstick, taken in one run on one machine.

    ratios.py build/release/bench/dayvane_bench

Ends with 1 when one of them costs more than it may.
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


def main():
    run = subprocess.run([sys.argv[1], "--benchmark_format=json"], check=True, capture_output=True, text=True)
    benchmarks = json.loads(run.stdout)["benchmarks"]
    failed = [b["name"] for b in benchmarks if b.get("error_occurred")]
    times = {b["name"].split("/")[0]: b["real_time"] for b in benchmarks if not b.get("error_occurred")}
    too_slow = list(failed)
    for name, yardstick, most in RATIOS:
        if name not in times or yardstick not in times:
            continue
        ratio = times[name] / times[yardstick]
        print(f"{name:28} {times[name]:9.1f} ms / {times[yardstick]:9.1f} ms = {ratio:5.2f}  (at most {most})")
        if ratio > most:
            too_slow.append(name)
    print("too slow or failed: " + ", ".join(too_slow) if too_slow else "all within their ratios")
    return 1 if too_slow else 0


sys.exit(main())
