"""A desktop of its own: an X server, a window manager and a session bus that nobody else sees, and a scratch user
whose home starts empty. Used by the tests that drive real programs, and by the tour.

    with PrivateDesktop() as desktop:
        desktop.start(["mousepad"])

When it ends, every process that was started in it is gone, also those that others started there on demand.
"""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

from waiting import wait_until

START_SECONDS = 30
END_SECONDS = 10
MARK = "DAYVANE_PRIVATE_DESKTOP"  # carried by every process of the desktop; its value names the desktop
HANDED_ON = ("PATH", "TZ", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")


def need(*programs):
    """Fails with the names of the programs that are not installed."""
    missing = [name for name in programs if shutil.which(name) is None]
    if missing:
        raise FileNotFoundError(f"not installed: {', '.join(missing)}")


class PrivateDesktop:
    def __init__(self, size="1280x1024", below=None):
        """`below` is where the scratch user's home is made, if not among the temporary files."""
        self.size = size
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="dayvane-", dir=below))
        self.home = self.folder / "ana"
        self.data = self.home / ".local/share"
        self.config = self.home / ".config"
        self.log = self.folder / "log.txt"
        self.environment = self._environment()
        self._children = []
        self._accessibility = None

    def __enter__(self):
        need("Xvfb", "openbox", "dbus-daemon", "xprop", "setpriv")
        try:
            self._make_folders()
            self._start_screen()
            self._start_bus()
            self._start_window_manager()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, kind, error, trace):
        self.close()

    def start(self, command, **extra):
        """Starts a program in the desktop; `extra` are further environment variables."""
        return self._spawn([str(part) for part in command], env={**self.environment, **extra})

    def run(self, command, timeout=START_SECONDS, check=True):
        """Runs a program to its end and returns what it printed."""
        with open(self.log, "ab") as log:
            return subprocess.run(
                [str(part) for part in command],
                stdin=subprocess.DEVNULL,
                stdout=subprocess.PIPE,
                stderr=log,
                env=self.environment,
                cwd=self.home,
                timeout=timeout,
                check=check,
                text=True,
            ).stdout

    def windows(self, pattern, by="name"):
        """Ids of the visible windows whose titles, or whose classes, match the regular expression."""
        return self.run(["xdotool", "search", "--onlyvisible", f"--{by}", pattern], check=False).split()

    def window(self, title, seconds=START_SECONDS):
        """The id of the first of them, once there is one."""
        return wait_until(lambda: self.windows(title), seconds, f"a window named {title}")[0]

    def place_window(self, title, place):
        """Moves and sizes a window as the user does by its frame."""
        x, y, width, height = place
        window = self.window(title)
        self.run(["xdotool", "windowsize", "--sync", window, width, height])
        self.run(["xdotool", "windowmove", "--sync", window, x, y])

    def placed(self, window):
        """Where the inside of a window is: x, y, width and height."""
        lines = self.run(["xdotool", "getwindowgeometry", "--shell", window]).split()
        told = dict(line.split("=") for line in lines)
        return tuple(int(told[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def type_into(self, title, *keys, text=None):
        """Gives a window the keyboard, presses keys there ("ctrl+o"), then types a text."""
        window = self.window(title)
        self.run(["xdotool", "windowactivate", "--sync", window])
        for key in keys:
            self.run(["xdotool", "key", "--clearmodifiers", key])
        if text is not None:
            self.run(["xdotool", "type", "--delay", "5", text])

    def end_bus(self):
        """Ends the session bus as a crash would."""
        self._bus.kill()
        self._bus.wait(END_SECONDS)

    def said(self):
        """What the programs of the desktop have printed so far."""
        return self.log.read_text(errors="replace") if self.log.exists() else ""

    def listen(self):
        """Switches accessibility on. Programs ask at their start whether anybody listens, so it comes before them."""
        # Not everybody who needs a desktop has the bindings for its bus.
        from accessible import AccessibilityBus

        self._accessibility = AccessibilityBus(self.environment["DBUS_SESSION_BUS_ADDRESS"])

    def spoken(self):
        """The names of what has got the keyboard so far, which a screen reader says."""
        return self._accessibility.spoken

    def screen_reader(self, process):
        """A screen reader for the windows of a program that was started here."""
        from screen_reader import ScreenReader

        return ScreenReader(self._accessibility, process.pid)

    def open_in_dialog(self, process, title, path):
        """Answers a program's file dialog with a path, as a user who types it and looks at each step: the dialog makes
        its entry at the first key, loses keys until the entry is there, and shows completions over it."""
        reader = self.screen_reader(process)

        def entry():
            self.type_into(title, "slash")
            return reader.focus()["role"] == "text"

        wait_until(entry, START_SECONDS, f"an entry in the dialog {title}")

        def typed():
            self.type_into(title, "ctrl+a", text=str(path))
            return reader.focus()["text"] == str(path)

        wait_until(typed, START_SECONDS, f"the typed path in the dialog {title}")

        # Once: a second key would be typed into the document.
        self.run(["xdotool", "key", "Return"])
        wait_until(lambda: not self.windows(title), START_SECONDS, f"the end of the dialog {title}")

    def close(self):
        """Ends everything that runs in the desktop, then removes the scratch user."""
        self._end(signal.SIGTERM)
        self._end(signal.SIGKILL)
        for child in self._children:
            child.wait(END_SECONDS)
        shutil.rmtree(self.folder, ignore_errors=True)

    def processes(self):
        """Ids of the live processes that were started in this desktop, by whomever."""
        mark = f"{MARK}={self.folder}".encode()
        found = []
        for entry in pathlib.Path("/proc").iterdir():
            try:
                if entry.name.isdigit() and mark in (entry / "environ").read_bytes().split(b"\0"):
                    found.append(int(entry.name))
            except OSError:  # it ended meanwhile, or is another user's
                continue
        return found

    def _environment(self):
        runtime = self.folder / "runtime"
        return {
            **{name: os.environ[name] for name in HANDED_ON if name in os.environ},
            "LANG": "C.UTF-8",
            "HOME": str(self.home),
            "XDG_DATA_HOME": str(self.data),
            "XDG_CONFIG_HOME": str(self.config),
            "XDG_CACHE_HOME": str(self.home / ".cache"),
            "XDG_STATE_HOME": str(self.home / ".local/state"),
            "XDG_RUNTIME_DIR": str(runtime),
            "XDG_DATA_DIRS": "/usr/local/share:/usr/share",
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={runtime}/bus",
            "GSETTINGS_BACKEND": "memory",
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            MARK: str(self.folder),
        }

    def _make_folders(self):
        for name, path in self.environment.items():
            if name == "HOME" or (name.startswith("XDG_") and name != "XDG_DATA_DIRS"):
                pathlib.Path(path).mkdir(mode=0o700, parents=True, exist_ok=True)

    def _serve(self, command, **options):
        """Starts a part of the desktop, which ends with this process however that ends."""
        return self._spawn(["setpriv", "--pdeathsig", "TERM", *command], env=self.environment, **options)

    def _spawn(self, command, **options):
        with open(self.log, "ab") as log:
            child = subprocess.Popen(
                command, stdin=subprocess.DEVNULL, stdout=log, stderr=log, cwd=self.home, **options
            )
        self._children.append(child)
        return child

    def _start_screen(self):
        told, tell = os.pipe()
        try:
            self._serve(
                ["Xvfb", "-displayfd", str(tell), "-screen", "0", f"{self.size}x24", "-nolisten", "tcp", "-noreset"],
                pass_fds=[tell],
            )
        finally:
            os.close(tell)
        with open(told, encoding="ascii") as number:
            display = number.readline().strip()
        if not display:
            raise RuntimeError(f"Xvfb did not start:\n{self.said()}")
        self.environment["DISPLAY"] = f":{display}"

    def _start_bus(self):
        self._bus = self._serve(
            [
                "dbus-daemon",
                "--session",
                "--nofork",
                "--nopidfile",
                f"--address={self.environment['DBUS_SESSION_BUS_ADDRESS']}",
            ]
        )
        wait_until((self.folder / "runtime/bus").exists, START_SECONDS, "the session bus")

    def _start_window_manager(self):
        self._serve(["openbox", "--sm-disable"])

        def ready():
            return "window id" in self.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], check=False)

        wait_until(ready, START_SECONDS, "the window manager")

    def _end(self, sign):
        for process in self.processes():
            try:
                os.kill(process, sign)
            except ProcessLookupError:
                continue
        deadline = time.monotonic() + END_SECONDS
        while self.processes() and time.monotonic() < deadline:
            time.sleep(0.02)
