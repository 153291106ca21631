"""Windows as Wine has it: an environment that is new for each test, with its user, its registry and its programs.

    with WindowsDesktop() as windows:
        windows.run("C:\\\\setup.exe", "/S")
        windows.native("C:\\\\Dayvane")                 the folder on this machine
"""

import os
import re
import subprocess
import time

from packages import SOURCES
from record import Record
from waiting import wait_until

RUN_SECONDS = 120
END_SECONDS = 30
SOON_SECONDS = 60
SETTINGS = "HKCU\\Software\\Korvath\\Dayvane"
UNINSTALL = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Dayvane"
# What programs bring about that nobody meant: the screen's devices with the first window, and what the next start of the
# system is to delete of the copy of itself that a remover runs as.
SYSTEMS_OWN = ("CurrentControlSet\\Control\\Class\\", "CurrentControlSet\\Control\\Session Manager")
OPEN_RECENT = SOURCES / "build/windows/tests/open_recent.exe"

# Tells the environment of its programs, and has it until it is no longer asked for.
HOLD = """
set -euo pipefail
. scripts/wine.sh
trap close_environment EXIT
open_environment
use_null_screen
env -0
exec >&-
read -r _ || true
"""


class WindowsDesktop:
    def __enter__(self):
        self._holder = subprocess.Popen(
            ["bash", "-c", HOLD], cwd=SOURCES, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )
        lines = self._holder.stdout.read().split("\0")
        self.environment = dict(line.split("=", 1) for line in lines if line)
        os.environ["TZ"] = self.environment["TZ"]  # days are named alike
        time.tzset()
        self.drive = os.path.join(self.environment["WINEPREFIX"], "drive_c")
        return self

    def __exit__(self, kind, error, trace):
        self._holder.communicate()

    def run(self, *command, code=0):
        """Runs a program to its end and returns what it printed."""
        done = subprocess.run(
            ["timeout", "-k", "5", str(RUN_SECONDS), *self._wine(command)],
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            env=self.environment,
            encoding="utf-8",
            errors="replace",
        )
        if done.returncode != code:
            raise AssertionError(f"{command} ended with {done.returncode}: {done.stdout}")
        return done.stdout

    def start(self, *command):
        nothing = subprocess.DEVNULL
        return subprocess.Popen(
            self._wine(command), stdin=nothing, stdout=nothing, stderr=nothing, env=self.environment
        )

    def native(self, path):
        """Where a path of Windows, "C:\\\\Dayvane", is on this machine."""
        return SOURCES.joinpath(self.drive, *path.split("\\")[1:])

    def variable(self, name):
        return self.run("cmd", "/c", "echo", f"%{name}%").strip()

    def settle(self):
        """Returns when no program runs any more, and the registry is on the disk."""
        server = os.path.join(os.path.dirname(self.environment["WINELOADER"]), "wineserver64")
        subprocess.run(["timeout", str(END_SECONDS), server, "-w"], env=self.environment, check=True)

    def registry(self):
        """The values of all keys that have some: {"user\\\\Software\\\\Korvath": '"Timer Interval"="1"'}."""
        self.settle()
        keys = {key: values for hive in ("user", "system") for key, values in self._hive(hive)}
        return {key: values for key, values in keys.items() if values and not any(own in key for own in SYSTEMS_OWN)}

    def _hive(self, name):
        file = os.path.join(self.environment["WINEPREFIX"], f"{name}.reg")
        with open(file, encoding="utf-8", errors="replace") as lines:
            for part in re.split(r"^\[", lines.read(), flags=re.MULTILINE)[1:]:
                heading, _, values = part.partition("\n")
                key = heading.rpartition("]")[0].replace("\\\\", "\\")
                yield f"{name}\\{key}", re.sub(r"^#time=.*\n", "", values, flags=re.MULTILINE).strip()

    def files(self):
        """All files and folders but the temporary ones, with what tells whether they were written."""
        temporary = str(self.native(self.variable("TEMP")))
        found = {}
        for folder, folders, names in os.walk(self.drive):
            folders[:] = [name for name in folders if os.path.join(folder, name) != temporary]
            for name in folders:
                found[os.path.relpath(os.path.join(folder, name), self.drive)] = "folder"
            for name in names:
                path = os.path.join(folder, name)
                status = os.lstat(path)
                found[os.path.relpath(path, self.drive)] = (status.st_size, status.st_mtime_ns)
        return found

    def _wine(self, command):
        return [self.environment["WINELOADER"], *map(str, command)]


class WindowsDayvane(Record):
    """The program in a folder of Windows."""

    def __init__(self, windows, folder):
        super().__init__(windows.native(folder))
        self.windows = windows
        self.path = f"{folder}\\dayvane.exe"
        self.process = None

    def write_settings(self):
        """A start is no first run and asks nothing."""
        for name, value in {"Favorites Threshold": 3, "Purge Age": 30, "Timer Interval": 1}.items():
            self.windows.run("reg", "add", f"{SETTINGS}\\Options", "/v", name, "/t", "REG_SZ", "/d", value, "/f")

    def start(self):
        self.process = self.windows.start(self.path)

    def stop(self):
        """As the task manager does: it saves and ends well."""
        self.windows.run("taskkill", "/IM", "dayvane.exe")
        if self.process.wait(END_SECONDS) != 0:
            raise AssertionError(f"Dayvane ended with {self.process.returncode}")

    def open_elsewhere(self, name, moment):
        """A document is opened in another program, and the running Dayvane files it."""
        document = f"{self.windows.variable('USERPROFILE')}\\{name}"
        self.windows.native(document).write_text(f"This is {name}.\n", encoding="utf-8")
        self.windows.run(OPEN_RECENT, document, int(moment))
        filed = self.day_folder(moment) / f"{name}.lnk"
        wait_until(filed.exists, SOON_SECONDS, lambda: f"{name} among {self.filed()}; {self.errors()}")
