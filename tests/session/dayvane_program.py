"""Dayvane itself, installed into a folder and run in a private desktop."""

import configparser
import pathlib
import signal
import subprocess

from record import Record
from waiting import wait_until

START_SECONDS = 60
END_SECONDS = 30
SETTINGS_KEY = "Software\\Korvath\\Dayvane\\"
WINDOW_TITLE = "^Dayvane - "


def install(build_folder, stage):
    """Installs the program from a build folder, the only form in which it keeps its data in the user's own folders."""
    subprocess.run(
        ["cmake", "--install", str(build_folder), "--prefix", str(stage)], check=True, stdout=subprocess.DEVNULL
    )


class Dayvane(Record):
    def __init__(self, desktop, stage):
        super().__init__(desktop.data / "dayvane")
        self.desktop = desktop
        self.executable = pathlib.Path(stage) / "bin/dayvane"
        self.recent = self.folder / "Recent"
        self.settings_file = desktop.config / "dayvane/dayvane.ini"
        self.process = None
        self.witness = None  # SystemCalls that write down what the program does

    def write_settings(self, options=(), **subtrees):
        """Stores settings: subtrees by name, values by name. With the options stored, a start is no first run and asks
        nothing. For a program that does not run: at its end it stores its own."""
        subtrees["Options"] = {"Favorites Threshold": 3, "Purge Age": 30, "Timer Interval": 1, **dict(options)}
        self.settings_file.parent.mkdir(mode=0o700, parents=True, exist_ok=True)
        with open(self.settings_file, "w", encoding="utf-8") as text:
            for subtree, values in subtrees.items():
                text.write(f"[{SETTINGS_KEY}{subtree}]\n")
                text.writelines(f"{name}={value}\n" for name, value in values.items())

    def settings(self, subtree):
        """The stored texts of a subtree by name."""
        stored = configparser.ConfigParser(interpolation=None)
        stored.optionxform = str
        stored.read(self.settings_file, encoding="utf-8")
        return dict(stored[SETTINGS_KEY + subtree])

    def launch(self):
        """Starts the program and returns at once."""
        if self.witness is None:
            self.process = self.desktop.start([self.executable])
        else:
            # A build that looks for leaks cannot do so beside another witness.
            options = f"{self.desktop.environment.get('ASAN_OPTIONS', '')}:detect_leaks=0"
            self.process = self.desktop.start(self.witness.recorded([self.executable]), ASAN_OPTIONS=options)

    def start(self):
        """Starts the program and returns when its window is on the screen."""
        self.launch()
        wait_until(self._window_or_end, START_SECONDS, "Dayvane's window")
        if self.process.poll() is not None:
            raise AssertionError(f"Dayvane ended at its start with {self.process.returncode}")

    def stop(self):
        """Asks the program to end, as the end of the user's session does; it saves and ends well."""
        self.process.terminate()
        self.wait_for_end()

    def wait_for_end(self):
        """Returns when the program has ended well."""
        if self.process.wait(END_SECONDS) != 0:
            raise AssertionError(f"Dayvane ended with {self.process.returncode}")
        if self.witness:
            self.witness.wait_for_end(self.process)

    def kill(self):
        self.process.kill()
        if self.process.wait(END_SECONDS) != -signal.SIGKILL:
            raise AssertionError(f"Dayvane had ended before with {self.process.returncode}")

    def _window_or_end(self):
        return self.process.poll() is not None or self.desktop.windows(WINDOW_TITLE)
