"""The packages in use: installed in a system that has nothing but what they depend on, started by a user who is not
root, upgraded and removed while the program runs. And the archive, unpacked in a folder with an odd name."""

import os
import shutil
import tempfile
import time
import unittest
from pathlib import Path

from dayvane_program import Dayvane
from packages import output, package
from recent_list import RecentList
from rooted_desktop import RootedDesktop
from scratch_root import ScratchRoot, base, enter_namespaces_with
from waiting import wait_until

SCREEN = ["xvfb", "openbox", "dbus", "x11-utils", "xdotool"]
SOON_SECONDS = 30
ODD_FOLDER = "Ein Stück weit – 日誌 %20"


def dependencies():
    """The packages that ours depends on, with their least versions."""
    wanted = output("dpkg-deb", "--field", package("*.deb"), "Depends")
    return [alternatives.partition("|")[0].strip() for alternatives in wanted.split(",")]


def system():
    return base([*dependencies(), *SCREEN])


class InSystem(unittest.TestCase):
    """A scratch root for all tests of a class; the desktop, its user and their documents are new for each."""

    @classmethod
    def setUpClass(cls):
        cls.root = ScratchRoot(system())
        cls.root.__enter__()
        cls.addClassCleanup(cls.root.__exit__, None, None, None)
        shutil.copy(package("*.deb"), cls.root.path / "tmp/dayvane.deb")
        (cls.root.path / "tmp/.X11-unix").mkdir(mode=0o777)
        (cls.root.path / "tmp/.X11-unix").chmod(0o1777)

    def setUp(self):
        self.desktop = RootedDesktop(self.root)
        self.addCleanup(self.desktop.close)
        self.desktop.__enter__()
        self.list = RecentList(self.desktop.data)
        self.dayvane = self.program("/usr")

    def program(self, prefix):
        program = Dayvane(self.desktop, prefix)
        with self.desktop.as_user():
            program.write_settings()
        return program

    def install(self, path="/tmp/dayvane.deb"):
        self.root.run(["dpkg", "--install", path])
        self.addCleanup(self.root.run, ["dpkg", "--purge", "dayvane"])

    def open_elsewhere(self, *names):
        """Documents are opened in other programs now, and Dayvane files them."""
        now = time.time()
        with self.desktop.as_user():
            for name in names:
                document = self.desktop.home / name
                document.write_text(f"This is {name}.\n", encoding="utf-8")
                self.list.opened(document, now)
            self.list.write()
        folder = self.dayvane.day_folder(now)
        wait_until(
            lambda: all((folder / f"{name}.lnk").exists() for name in names),
            SOON_SECONDS,
            lambda: f"{names} among {self.dayvane.filed()}; {self.dayvane.errors()}; {self.desktop.said()}",
        )

    def texts(self):
        """The user's files by their paths, with what is in them."""
        return {
            str(path.relative_to(self.desktop.home)): path.read_bytes()
            for path in self.desktop.home.rglob("*")
            if path.is_file()
        }


class TheInstalledProgram(InSystem):
    def test_records_what_its_user_opens(self):
        self.install()
        self.dayvane.start()
        self.open_elsewhere("Offer.txt", "Minutes.txt")
        self.dayvane.stop()
        self.assertEqual(self.dayvane.days_accessed(), {"Offer.txt": 1, "Minutes.txt": 1})
        self.assertEqual(self.dayvane.errors(), [])

    def test_goes_on_while_it_is_upgraded_and_the_next_start_is_the_new_one(self):
        self.install()
        self.dayvane.start()
        self.open_elsewhere("Before.txt")
        self.root.run(["dpkg", "--install", self.newer_package()])
        self.open_elsewhere("After.txt")
        self.assertTrue(os.readlink(self.executed()).endswith("(deleted)"))
        self.dayvane.stop()

        self.dayvane.start()
        self.assertEqual(self.executed().read_bytes(), (self.root.path / "usr/bin/dayvane").read_bytes())
        self.open_elsewhere("Then.txt")
        self.dayvane.stop()
        self.assertEqual(sorted(self.dayvane.days_accessed()), ["After.txt", "Before.txt", "Then.txt"])
        self.assertEqual(self.dayvane.errors(), [])

    def test_is_removed_with_all_that_was_installed_and_nothing_of_the_users(self):
        before = self.root.files()
        self.install()
        self.assertIn("usr/bin/dayvane", self.changed_since(before))
        with self.desktop.as_user():
            autostart = self.desktop.config / "autostart"
            autostart.mkdir()
            for entry in (self.root.path / "usr/share/dayvane/autostart").iterdir():
                shutil.copy(entry, autostart)
        self.dayvane.start()
        self.open_elsewhere("Offer.txt")

        self.root.run(["dpkg", "--remove", "dayvane"])

        self.assertEqual(self.changed_since(before), [])
        self.open_elsewhere("Minutes.txt")  # by the program that still runs
        self.dayvane.stop()
        kept = self.texts()
        self.root.run(["dpkg", "--purge", "dayvane"])
        self.assertEqual(self.texts(), kept)
        for name in ("autostart/example.dayvane.Dayvane.desktop", "dayvane/dayvane.ini"):
            self.assertIn(f".config/{name}", kept)
        self.assertEqual(self.dayvane.days_accessed(), {"Offer.txt": 1, "Minutes.txt": 1})

    def test_keeps_its_data_with_the_user_where_a_distribution_has_moved_it(self):
        self.install()
        moved = self.root.path / "usr/libexec/dayvane"
        moved.mkdir(parents=True)
        self.addCleanup(shutil.rmtree, moved)
        shutil.copy(self.root.path / "usr/bin/dayvane", moved)
        self.dayvane.executable = Path("/usr/libexec/dayvane/dayvane")
        self.dayvane.start()
        self.open_elsewhere("Offer.txt")
        self.dayvane.stop()
        self.assertEqual([path.name for path in moved.iterdir()], ["dayvane"])

    def changed_since(self, before):
        """The files of the system that came, went or are others now."""
        now = self.root.files()
        return sorted(path for path in {*before, *now} if before.get(path) != now.get(path))

    def executed(self):
        """What the running process was started from."""
        return Path(f"/proc/{self.dayvane.process.pid}/exe")

    def newer_package(self):
        """A package of a higher version, whose program has a byte more."""
        with tempfile.TemporaryDirectory() as folder:
            tree = Path(folder) / "tree"
            output("dpkg-deb", "--raw-extract", package("*.deb"), tree)
            control = tree / "DEBIAN/control"
            text = control.read_text(encoding="utf-8")
            control.write_text(text.replace("\nVersion: ", "\nVersion: 1:"), encoding="utf-8")
            with open(tree / "usr/bin/dayvane", "ab") as program:
                program.write(b"\n")
            output("dpkg-deb", "-Znone", "--root-owner-group", "--build", tree, self.root.path / "tmp/newer.deb")
        return "/tmp/newer.deb"


class ThePortableProgram(InSystem):
    def test_keeps_its_record_beside_itself_in_a_folder_of_any_name(self):
        stick = self.desktop.folder / ODD_FOLDER
        with self.desktop.as_user():
            stick.mkdir()
        shutil.copy(package("*.tar.gz"), self.root.path / "tmp/dayvane.tar.gz")
        self.desktop.run(["tar", "--extract", "-f", "/tmp/dayvane.tar.gz", "-C", stick])
        self.dayvane.executable = stick / "dayvane/dayvane"
        self.dayvane.folder = stick / "dayvane"
        self.dayvane.daily = stick / "dayvane/Daily"
        self.dayvane.favorites_file = stick / "dayvane/Favorites.dat"
        self.dayvane.start()
        self.open_elsewhere("Offer.txt")
        self.dayvane.stop()
        self.assertEqual(self.dayvane.days_accessed(), {"Offer.txt": 1})
        self.assertFalse((self.desktop.data / "dayvane").exists())
        self.assertEqual(self.dayvane.errors(), [])


if __name__ == "__main__":
    enter_namespaces_with(system())
    unittest.main(verbosity=2)
