"""Kills Dayvane at random moments while a made-up user opens documents, and counts what that cost.

    kill_run.py BUILD_FOLDER KILLS [SEED]

The program runs on a screen of its own, in a home of its own, with its timer at its fastest. Some kills come while it
starts, some while it works, some while it ends. Then it is left in peace until every opening is filed, and one line
tells what was found: every opening must lie in the folder of its day, nothing twice, and the data file must count for
each document the days that hold it. What does not fit is told below that line, with the kill that came next after it.
"""

import collections
import os
import pathlib
import random
import signal
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests/session"))

from dayvane_program import Dayvane, install  # noqa: E402
from private_desktop import PrivateDesktop  # noqa: E402
from recent_list import RecentList  # noqa: E402
from waiting import TimedOut, wait_until  # noqa: E402

DAY_SECONDS = 24 * 60 * 60
DAYS = 28  # the user's past, within the age at which days are purged
NAME = "Page"
DOCUMENTS = 900  # within the thousand that the desktop's list keeps
LARGEST_BURST = 20
BURST_SHARE = 0.2
BETWEEN_OPENINGS_SECONDS = 0.1
SETTLED_SECONDS = 60
SAME_MOMENT_SECONDS = 0.001  # the list has microseconds

# How long after its start the program is killed, or asked to end, at the latest; and how long after being asked.
START_SECONDS = 1.0
WORK_SECONDS = 4.0
END_SECONDS = 0.3


class MadeUpUser:
    """Opens documents, each later on than before, some again on the same day. The list tells only when a document was
    opened last, so that one is opened on another day only once its last opening is filed: else nobody could know."""

    def __init__(self, chance, home, recent_list, dayvane):
        self._chance = chance
        self._folder = home / "Documents"
        self._list = recent_list
        self._dayvane = dayvane
        self._today = time.localtime()
        self.openings = 0
        self.opened = {}  # moment of the last opening, by shortcut: "2026/November/20/Page 1.txt.lnk"
        self._last = {}  # moment of the last opening, by document

    def open_some(self):
        burst = self._chance.random() < BURST_SHARE
        for _ in range(self._chance.randrange(1, LARGEST_BURST) if burst else 1):
            self._open(f"{NAME} {self._chance.randrange(DOCUMENTS):03}.txt")
        self._list.write()

    def shortcut(self, name, moment):
        return str((self._dayvane.day_folder(moment) / f"{name}.lnk").relative_to(self._dayvane.daily))

    def missing(self):
        """Openings that are not filed, or not as they were made last."""
        return [shortcut for shortcut, moment in self.opened.items() if not self._is_filed(shortcut, moment)]

    def _open(self, name):
        moment = self._next_moment(name)
        self.openings += 1
        self._last[name] = moment
        self.opened[self.shortcut(name, moment)] = moment
        self._list.opened(self._folder / name, moment)

    def _next_moment(self, name):
        """A moment on the day after the last, or else a little later on the same day."""
        last = self._last.get(name)
        if last is None:
            return self._noon(self._chance.randrange(DAYS - 4, DAYS))
        days_ago = int((self._noon(0) - last + DAY_SECONDS / 2) // DAY_SECONDS)
        if days_ago > 1 and self._is_filed(self.shortcut(name, last), last):
            return self._noon(days_ago - 1)
        return last + self._chance.random()

    def _noon(self, days_ago):
        """Shortly after noon."""
        day = self._today
        return (
            time.mktime((day.tm_year, day.tm_mon, day.tm_mday - days_ago, 12, 0, 0, 0, 0, -1)) + self._chance.random()
        )

    def _is_filed(self, shortcut, moment):
        try:
            written = (self._dayvane.daily / shortcut).stat().st_mtime
        except FileNotFoundError:
            return False
        return abs(written - moment) < SAME_MOMENT_SECONDS


class KillRun:
    def __init__(self, desktop, stage, seed):
        self._chance = random.Random(seed)
        self.dayvane = Dayvane(desktop, stage)
        self.user = MadeUpUser(self._chance, desktop.home, RecentList(desktop.data), self.dayvane)
        self.kills = []  # when each came, and in the middle of what
        self.dayvane.write_settings()

    def kill(self, times):
        while len(self.kills) < times:
            self._live()

    def settle(self):
        """Leaves the program in peace until everything is filed, then asks it to end. What is missing then is lost."""
        self.dayvane.start()
        try:
            wait_until(lambda: not self.user.missing(), SETTLED_SECONDS, "every opening filed")
        except TimedOut:
            pass
        self.dayvane.stop()

    def _live(self):
        moment = self._chance.choice(["starting", "working", "working", "ending"])
        self.dayvane.launch()
        self._open_for(self._chance.random() * (START_SECONDS if moment == "starting" else WORK_SECONDS))
        if moment == "ending":
            self.dayvane.process.terminate()
            time.sleep(self._chance.random() * END_SECONDS)
        killed = time.time()
        self.dayvane.process.kill()
        result = self.dayvane.process.wait()
        if moment == "ending" and result in (0, -signal.SIGTERM):
            return  # It was faster, or had not begun to listen.
        if result != -signal.SIGKILL:
            raise AssertionError(f"Dayvane ended by itself with {result} while {moment}")
        self.kills.append((killed, moment))

    def _open_for(self, seconds):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            self.user.open_some()
            time.sleep(max(0, min(BETWEEN_OPENINGS_SECONDS, end - time.monotonic())))


class Findings:
    """What the disk holds at the end, beside what the user did."""

    def __init__(self, run):
        self._run = run
        dayvane = run.dayvane
        # Beside the documents lie shortcuts to the programs that open them, which a rebuild counts too.
        filed = [path for path in dayvane.filed() if os.path.basename(path).startswith(NAME)]
        records = [record for record in dayvane.favorites() if record[3].startswith(NAME)]
        self.filed = len(filed)
        self.lost = run.user.missing()
        self.expected = collections.Counter(os.path.basename(path).removesuffix(".lnk") for path in filed)
        self.found = collections.Counter()
        for record in records:
            self.found[record[3]] += int(record[0])
        self.doubled = [path for path in filed if path not in run.user.opened]
        self.doubled += [
            name for name, times in collections.Counter(record[3] for record in records).items() if times > 1
        ]
        self.wrong = sorted(name for name in self.expected | self.found if self.expected[name] != self.found[name])
        self.errors = dayvane.errors()

    def is_well(self):
        return not (self.lost or self.doubled or self.wrong or self.errors)

    def line(self):
        run = self._run
        moments = collections.Counter(moment for _, moment in run.kills)
        told = ", ".join(f"{moments[name]} {name}" for name in ("starting", "working", "ending"))
        return (
            f"{len(run.kills)} kills ({told}), {run.user.openings} openings, {self.filed} shortcuts filed, "
            f"counts expected {self.expected.total()}, counts found {self.found.total()}, lost {len(self.lost)}, "
            f"doubled {len(self.doubled)}"
        )

    def details(self):
        for shortcut in self.lost:
            yield f"lost: {shortcut}"
        for what in self.doubled:
            yield f"doubled: {what}"
        for name in self.wrong:
            yield f"{name}: {self.found[name]} days counted of {self.expected[name]}; {self._nearest_kill(name)}"
        yield from (f"error: {line}" for line in self.errors)

    def _nearest_kill(self, name):
        """The kill that came soonest after one of a document's shortcuts was put in place."""
        put = [path.stat().st_ctime for path in self._run.dayvane.daily.glob(f"*/*/*/{name}.lnk")]
        gaps = [
            (killed - moment, number, what)
            for number, (killed, what) in enumerate(self._run.kills, 1)
            for moment in put
            if killed >= moment
        ]
        return "kill {1} ({2}) came {0:.3f} s after a filing".format(*min(gaps)) if gaps else "no kill came after it"


def main():
    build_folder, kills = sys.argv[1], int(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(1_000_000)
    with PrivateDesktop() as desktop:
        stage = desktop.folder / "stage"
        install(build_folder, stage)
        run = KillRun(desktop, stage, seed)
        run.kill(kills)
        run.settle()
        findings = Findings(run)
        print(findings.line(), flush=True)
        if not findings.is_well():
            print("\n".join([f"seed {seed}", *findings.details(), desktop.said()]), file=sys.stderr)
    return 0 if findings.is_well() else 1


if __name__ == "__main__":
    sys.exit(main())
