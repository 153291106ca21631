"""Dayvane for Windows at work under Wine: the tour's week, with documents put into the Recent folder as the shell does.

    windows_tour.py BUILD PICTURES    the folder of the build, and the folder for the pictures

Needs an environment of Wine (WINEPREFIX) and a screen (DISPLAY), which windows_tour.sh makes.
"""

import os
import pathlib
import shutil
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests/session"))

from record import Record  # noqa: E402
from tour_week import SETTINGS, VIEWS, WEEK, moments, show_favorites, show_repository  # noqa: E402
from waiting import wait_until  # noqa: E402

START_SECONDS = 60
END_SECONDS = 30
CAPTURE_SECONDS = 60
PAINT_SECONDS = 20
DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c"
USER = "users/ana"  # below the drive
SETTINGS_KEY = "HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane\\"
CLASSES_KEY = "HKEY_LOCAL_MACHINE\\Software\\Classes\\"  # Wine shows those of one user to no program

# The user's programs: the types of documents that each opens, by their extensions.
CLASSES = {
    "writer": {".odt": "OpenDocument Text"},
    "calc": {".ods": "OpenDocument Spreadsheet"},
    "reader": {".pdf": "PDF document"},
    "photos": {".png": "PNG image"},
    "editor": {".txt": "Text Document"},
}


def wine(*arguments):
    return ["timeout", "-k", "5", "60", os.environ["WINELOADER"], *map(str, arguments)]


def run(*command):
    return subprocess.run(
        command, check=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True
    ).stdout


def write_registry(keys):
    """Stores texts: by the full path of their key, then by their name; "" is a key's default."""
    lines = ["REGEDIT4"]
    for key, values in keys.items():
        lines += ["", f"[{key}]"]
        for name, value in values.items():
            text = str(value).replace("\\", "\\\\").replace('"', '\\"')
            lines.append(f'"{name}"="{text}"' if name else f'@="{text}"')
    file = DRIVE / "tour.reg"
    file.write_text("\r\n".join(lines) + "\r\n", encoding="utf-8")
    run(*wine("regedit", "/S", "C:\\tour.reg"))


def install_programs():
    """Gives the user programs of their own, whose shortcuts lie in each day's folder. They do nothing, because nobody
    starts them."""
    keys = {}
    (DRIVE / "Programs").mkdir()
    for program, types in CLASSES.items():
        (DRIVE / f"Programs/{program}.exe").touch()
        for extension, description in types.items():
            name = f"{program}{extension}"
            keys[CLASSES_KEY + extension] = {"": name}
            keys[CLASSES_KEY + name] = {"": description}
            keys[CLASSES_KEY + name + "\\shell\\open\\command"] = {"": f'"C:\\Programs\\{program}.exe" "%1"'}
    write_registry(keys)


class WindowsDayvane(Record):
    def __init__(self, build):
        super().__init__(DRIVE / "Dayvane")
        self.folder.mkdir()
        self.build = build
        self.process = None
        for name in ("dayvane.exe", "Dayvane.hlp"):
            shutil.copy(build / "src/windows" / name, self.folder)

    def write_settings(self, options=(), **subtrees):
        subtrees["Options"] = {"Favorites Threshold": 3, "Purge Age": 30, "Timer Interval": 1, **dict(options)}
        write_registry({SETTINGS_KEY + subtree: values for subtree, values in subtrees.items()})

    def start(self):
        self.process = subprocess.Popen(
            [os.environ["WINELOADER"], "C:\\Dayvane\\dayvane.exe"],
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        wait_until(lambda: self.window("Dayvane - "), START_SECONDS, "Dayvane's window")

    def stop(self):
        """As the task manager does: it saves and ends well."""
        run(*wine("taskkill", "/IM", "dayvane.exe"))
        if self.process.wait(END_SECONDS) != 0:
            raise AssertionError(f"Dayvane ended with {self.process.returncode}")

    @staticmethod
    def window(title):
        found = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--name", f"^{title}"],
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,  # of windows that go meanwhile
            text=True,
            check=False,
        ).stdout.split()
        return found[0] if found else None


def live_a_day(dayvane, build, days_ago):
    wanted = []
    for moment, (_, (name, _)) in zip(moments(days_ago, WEEK[days_ago]), WEEK[days_ago]):
        document = DRIVE / USER / name
        document.parent.mkdir(parents=True, exist_ok=True)
        document.touch()
        path = "C:\\" + f"{USER}/{name}".replace("/", "\\")
        run(*wine(build / "tests/open_recent.exe", path, int(moment)))
        wanted.append(dayvane.day_folder(moment) / f"{document.name}.lnk")

    def missing():
        return [str(path) for path in wanted if not path.exists()]

    wait_until(lambda: not missing(), CAPTURE_SECONDS, lambda: f"{missing()} filed")


def take_picture(window, file):
    """A picture of the window with its frame, once two in a row are the same and so nothing is being painted."""
    last = []

    def still():
        run("import", "-frame", "-window", window, str(file))
        last.append(run("identify", "-format", "%#", str(file)))
        return len(last) > 1 and last[-1] == last[-2]

    wait_until(still, PAINT_SECONDS, "a window at rest")


def tour(build, pictures):
    dayvane = WindowsDayvane(build)
    install_programs()
    dayvane.write_settings(**SETTINGS)
    print("A week of work begins; Dayvane runs beside it.")
    dayvane.start()
    for days_ago in WEEK:
        live_a_day(dayvane, build, days_ago)
    dayvane.stop()
    show_repository(dayvane)
    show_favorites(dayvane)
    print("\nPictures of the main window:")
    for number, view in enumerate(VIEWS):
        dayvane.write_settings(View={"Data": number, "ListViews": 3}, **SETTINGS)
        dayvane.start()
        picture = pictures / f"{view}-windows.png"
        take_picture(dayvane.window(f"Dayvane - {view.capitalize()}"), picture)
        dayvane.stop()
        print(f"    {picture}")


def main():
    build, pictures = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    pictures.mkdir(parents=True, exist_ok=True)
    tour(build, pictures)


main()
