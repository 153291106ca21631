"""Dayvane at work: a made-up user opens documents over a week, and what the program makes of that is shown.

    tour.py STAGE PICTURES    the folder that the program is installed in, and the folder for the pictures

Everything happens on a screen of its own and in a home of its own, and is gone at the end but for the pictures.
"""

import pathlib
import sys

SESSION = pathlib.Path(__file__).resolve().parent.parent / "tests/session"
sys.path.insert(0, str(SESSION))

from dayvane_program import Dayvane  # noqa: E402
from private_desktop import PrivateDesktop, need  # noqa: E402
from recent_list import RecentList  # noqa: E402
from tour_week import PROGRAMS, SETTINGS, VIEWS, WEEK, moments, show_favorites, show_repository  # noqa: E402
from waiting import wait_until  # noqa: E402

SCREEN_SIZE = "1060x600"
CAPTURE_SECONDS = 30
PAINT_SECONDS = 10
SCHEMES = {"light": "", "dark": "-dark"}  # what the names of their pictures end with


def install_programs(desktop):
    """Gives the user programs of their own, the same on every machine: each day's folder has a shortcut to those that
    open its documents. They do nothing, because nobody starts them."""
    applications = desktop.data / "applications"
    programs = desktop.home / ".local/bin"
    for folder in (applications, programs):
        folder.mkdir(parents=True, exist_ok=True)
    defaults = ["[Default Applications]"]
    for name, types in PROGRAMS.items():
        executable = programs / name
        executable.write_text("#!/bin/sh\n", encoding="utf-8")
        executable.chmod(0o755)
        (applications / f"{name}.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName={name.capitalize()}\nExec={executable} %f\n"
            f"MimeType={';'.join(types)};\n",
            encoding="utf-8",
        )
        defaults += [f"{type}={name}.desktop" for type in types]
    (desktop.config / "mimeapps.list").write_text("\n".join(defaults) + "\n", encoding="utf-8")


def live_a_day(desktop, dayvane, recent, days_ago):
    """One day's openings go into the desktop's list; ends when all are in the repository. A day at a time, because the
    list tells only when a document was opened last."""
    wanted = []
    for moment, (_, (name, program)) in zip(moments(days_ago, WEEK[days_ago]), WEEK[days_ago]):
        document = desktop.home / name
        document.parent.mkdir(parents=True, exist_ok=True)
        document.touch()
        recent.opened(document, moment, PROGRAMS[program][0], program)
        wanted.append(dayvane.day_folder(moment) / f"{document.name}.lnk")
    recent.write()

    def missing():
        return [str(path) for path in wanted if not path.exists()]

    wait_until(lambda: not missing(), CAPTURE_SECONDS, lambda: f"{missing()} filed")


def take_picture(desktop, view, file):
    """A picture of the window with its frame, once two in a row are the same and so nothing is being painted."""
    window = desktop.window(f"^Dayvane - {view.capitalize()}$")
    last = []

    def still():
        desktop.run(["import", "-frame", "-window", window, file])
        last.append(desktop.run(["identify", "-format", "%#", file]))
        return len(last) > 1 and last[-1] == last[-2]

    wait_until(still, PAINT_SECONDS, "a window at rest")


def tour(stage, pictures):
    with PrivateDesktop(SCREEN_SIZE) as desktop:
        recent = RecentList(desktop.data)
        dayvane = Dayvane(desktop, stage)
        install_programs(desktop)
        dayvane.write_settings(**SETTINGS)
        print("A week of work begins; Dayvane runs beside it.")
        dayvane.start()
        for days_ago in WEEK:
            live_a_day(desktop, dayvane, recent, days_ago)
        dayvane.stop()
        show_repository(dayvane)
        show_favorites(dayvane)
        print("\nPictures of the main window:")
        for scheme, ending in SCHEMES.items():
            portal = desktop.start(["/usr/bin/python3", "-B", SESSION / "settings_portal.py", scheme])
            for number, view in enumerate(VIEWS):
                dayvane.write_settings(View={"Data": number, "ListViews": 3}, **SETTINGS)
                dayvane.start()
                picture = pictures / f"{view}{ending}.png"
                take_picture(desktop, view, picture)
                dayvane.stop()
                print(f"    {picture}")
            portal.terminate()
            portal.wait()


def main():
    stage, pictures = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    need("xdotool", "import", "identify")
    pictures.mkdir(parents=True, exist_ok=True)
    tour(stage, pictures)


main()
