#!/usr/bin/env python3
"""What Dayvane costs and how it grows: measures everything beside the least that it could cost and writes the table of
docs/performance.md.

    performance.py build/release            all sizes, which takes minutes, into docs/performance.md
    performance.py build/release --quick    the smallest size of each, into build/release/performance.md

Every measurement is a process of its own, so that the memory is that of this measurement. The files lie below TMPDIR; on
a tmpfs no disk disturbs what is compared. Ends with 1 when something could not be measured.
"""

import argparse
import json
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/session"))

from private_desktop import PrivateDesktop  # noqa: E402

PAGE = ROOT / "docs/performance.md"
BEGIN, END = "<!-- measured -->\n", "<!-- until here -->\n"

# What the user waits for, its measurement, the least beside it, and what that is.
LINES = [
    ("Start to a window that answers", "Start_Program", "Start_Yardstick_EmptyWindow", "an empty window"),
    (
        "The same, with documents opened meanwhile",
        "Start_WithBacklog",
        "Start_Yardstick_EmptyWindow",
        "an empty window",
    ),
    ("A look at the places that tell of openings", "Sources_Unchanged", "Sources_Yardstick_Status", "their status"),
    ("A poll with nothing new", "Poll_UnchangedShortcuts", "Poll_Yardstick_ReadLoop", "reading the files"),
    ("The first filing", "FirstFiling_WithFavorites", "FirstFiling_Yardstick_CopyArchive", "`cp -a`"),
    ("What KDE has recorded", "Activities_ReadSinceLastLook", "Activities_Yardstick_Rows", "its rows"),
    ("The favorites counted anew", "Rebuild_Repository", "Rebuild_Yardstick_ReadLoop", "reading the files"),
    ("The tree of days", "Tree_RefreshDaily", "Tree_Yardstick_FindFolders", "`find`"),
    ("Another day is chosen", "Day_Switch", "Day_Yardstick_BareTable", "reading the files into a bare table"),
    ("Another list style", "Style_Switch", "Style_Yardstick_BareViews", "bare views"),
    ("A column is clicked", "Sort_InTheWindow", "Sort_Yardstick_StableSort", "sorting bare texts"),
    ("The same, without the window", "Sort_ColumnClick", "Sort_Yardstick_StableSort", "sorting bare texts"),
]

HEAD = """| | how much | Dayvane | the least | | memory | of the least |
|---|---|---:|---:|---|---:|---:|
"""
MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}
HOW = re.compile(r"/(iterations:\d+|min_time:[\d.]+|real_time|manual_time)")  # in names; the rest says what


class Benches:
    """The benchmarks of a build folder, on a desktop of their own."""

    def __init__(self, build_folder, desktop, quick):
        self._desktop = desktop
        self._options = ["--benchmark_format=json"] + (
            ["--benchmark_min_time=0.01"] if quick else ["--benchmark_repetitions=3"]
        )
        self._program = {}  # by full name
        for program in ("dayvane_bench", "dayvane_linux_bench"):
            path = build_folder / "bench" / program
            for name in self._run([path, "--benchmark_list_tests"]).split():
                self._program[name] = path
        self._results = {}

    def sizes(self, benchmark):
        """Of a benchmark, as "shortcuts:1000/years:10", smallest first; an empty one where it has none."""
        names = (HOW.sub("", name) for name in self._program)
        return [size for name, _, size in (name.partition("/") for name in names) if name == benchmark]

    def measure(self, benchmark, size):
        """Milliseconds and MB of a benchmark at a size, or, where it has no sizes, as it is."""
        wanted = benchmark + ("/" + size if size in self.sizes(benchmark) and size else "")
        if wanted not in self._results:
            full = next(name for name in self._program if HOW.sub("", name) == wanted)
            self._results[wanted] = self._measure(full)
        return self._results[wanted]

    def _measure(self, name):
        command = [self._program[name], *self._options, f"--benchmark_filter=^{re.escape(name)}$"]
        runs = [run for run in json.loads(self._run(command))["benchmarks"] if run["run_type"] == "iteration"]
        for run in runs:
            if run.get("error_occurred"):
                raise RuntimeError(f"{name}: {run['error_message']}")
        told = min(runs, key=lambda run: run["real_time"])  # whatever else the machine does only adds
        return told["real_time"] * MILLISECONDS[told["time_unit"]], told["resident_kB"] / 1024

    def _run(self, command):
        return self._desktop.run(command, timeout=600)


def readable(milliseconds):
    if milliseconds < 0.1:
        return f"{1000 * milliseconds:.2g} µs"
    if milliseconds < 10:
        return f"{milliseconds:.2g} ms"
    return f"{milliseconds:.0f} ms" if milliseconds < 10_000 else f"{milliseconds / 1000:.0f} s"


def size_text(size):
    """ "10,000 shortcuts, 10 years" of "shortcuts:10000/years:10"."""
    parts = (part.split(":") for part in size.split("/") if part)
    return ", ".join(f"{int(number):,} {what if number != '1' else what.rstrip('s')}" for what, number in parts)


def rows(benches, quick):
    for what, benchmark, yardstick, least in LINES:
        for size in benches.sizes(benchmark)[: 1 if quick else None]:
            mine, memory = benches.measure(benchmark, size)
            floor, floor_memory = benches.measure(yardstick, size)
            row = (what, size_text(size), readable(mine), readable(floor), least)
            row += (f"{memory:.0f} MB", f"{floor_memory:.0f} MB")
            print(*row, sep="  ", flush=True)
            yield f"| {' | '.join(row)} |\n"
            what = ""


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("build_folder", type=pathlib.Path)
    arguments.add_argument("--quick", action="store_true")
    told = arguments.parse_args()
    with PrivateDesktop(below=os.environ.get("TMPDIR")) as desktop:
        desktop.environment["TMPDIR"] = os.environ.get("TMPDIR", "/tmp")
        table = HEAD + "".join(rows(Benches(told.build_folder.resolve(), desktop, told.quick), told.quick))
    before, _, rest = PAGE.read_text(encoding="utf-8").partition(BEGIN)
    page = told.build_folder / "performance.md" if told.quick else PAGE
    page.write_text(before + BEGIN + table + END + rest.partition(END)[2], encoding="utf-8")


if __name__ == "__main__":
    main()
