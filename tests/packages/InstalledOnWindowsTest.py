"""The packages for Windows in use, under Wine: installed without a question, upgraded and removed while the program
runs. And the archive, unpacked in a folder with an odd name."""

import shutil
import tempfile
import time
import unittest
import zipfile
from pathlib import Path

from packages import SOURCES, output, package, package_environment, version
from waiting import wait_until
from windows_desktop import SETTINGS, SOON_SECONDS, UNINSTALL, WindowsDayvane, WindowsDesktop

INSTALLED = {"dayvane.exe", "Dayvane.hlp", "License.txt", "Uninstall.exe"}
RECORD = {"Daily", "Favorites.dat"}
ODD_FOLDER = "C:\\Ein Stück weit – 日誌 %20"
NEWER = "98.7.6"


def changed(before, now):
    return sorted(name for name in {*before, *now} if before.get(name) != now.get(name))


class OnWindows(unittest.TestCase):
    def setUp(self):
        self.windows = WindowsDesktop()
        self.windows.__enter__()
        self.addCleanup(self.windows.__exit__, None, None, None)
        self.setup = "C:\\setup.exe"
        shutil.copy(package("*-setup.exe"), self.windows.native(self.setup))
        self.folder = f"{self.windows.variable('LOCALAPPDATA')}\\Programs\\Dayvane"

    def program(self, folder):
        dayvane = WindowsDayvane(self.windows, folder)
        dayvane.write_settings()
        return dayvane

    def install(self, setup=None, folder=None):
        # The folder comes last and is never quoted, so that its blanks are between arguments here.
        into = f"/D={folder}".split(" ") if folder else []
        self.windows.run(setup or self.setup, "/S", *into)

    def remove(self, folder):
        """Without a question; the remover goes on in a process of its own."""
        self.windows.run(f"{folder}\\Uninstall.exe", "/S")
        remover = self.windows.native(f"{folder}\\Uninstall.exe")
        wait_until(lambda: not remover.exists(), SOON_SECONDS, "the remover removed")

    def files_in(self, folder):
        return {path.name for path in self.windows.native(folder).iterdir()}

    def uninstall_value(self, name):
        return self.windows.run("reg", "query", UNINSTALL, "/v", name).split("REG_SZ")[1].strip()


class TheInstaller(OnWindows):
    def test_puts_the_program_where_a_users_own_programs_are(self):
        self.install()
        self.assertEqual(self.files_in(self.folder), INSTALLED)
        link = f"{self.windows.variable('APPDATA')}\\Microsoft\\Windows\\Start Menu\\Programs\\Dayvane.lnk"
        self.assertTrue(self.windows.native(link).exists())
        self.assertEqual(self.uninstall_value("InstallLocation"), self.folder)
        self.assertEqual(self.uninstall_value("DisplayVersion"), version())

    def test_puts_an_upgrade_where_the_program_is(self):
        self.install(folder=ODD_FOLDER)
        self.windows.native(f"{ODD_FOLDER}\\Dayvane.hlp").unlink()
        self.install()
        self.assertEqual(self.files_in(ODD_FOLDER), INSTALLED)
        self.assertFalse(self.windows.native(self.folder).exists())

    def test_fails_when_it_cannot_write_a_file(self):
        self.windows.native(f"{self.folder}\\Dayvane.hlp").mkdir(parents=True)
        self.windows.run(self.setup, "/S", code=2)
        self.windows.run("reg", "query", UNINSTALL, code=1)


class TheInstalledProgram(OnWindows):
    def test_records_what_its_user_opens_beside_itself(self):
        self.install(folder=ODD_FOLDER)
        dayvane = self.program(ODD_FOLDER)
        dayvane.start()
        dayvane.open_elsewhere("Offer.txt", time.time())
        dayvane.stop()
        self.assertEqual(dayvane.days_accessed(), {"Offer.txt": 1})
        self.assertEqual(dayvane.errors(), [])

    def test_goes_on_while_it_is_upgraded_and_the_next_start_is_the_new_one(self):
        self.install()
        dayvane = self.program(self.folder)
        dayvane.start()
        dayvane.open_elsewhere("Before.txt", time.time())
        self.install(self.newer_setup())
        dayvane.open_elsewhere("After.txt", time.time())
        dayvane.stop()
        self.assertEqual(self.files_in(self.folder) - INSTALLED, RECORD)
        self.assertEqual(dayvane.folder.joinpath("dayvane.exe").read_bytes(), self.newer_program)
        self.assertEqual(self.uninstall_value("DisplayVersion"), NEWER)

        dayvane.start()
        dayvane.open_elsewhere("Then.txt", time.time())
        dayvane.stop()
        self.assertEqual(sorted(dayvane.days_accessed()), ["After.txt", "Before.txt", "Then.txt"])
        self.assertEqual(dayvane.errors(), [])

    def test_that_ran_on_when_it_was_replaced_leaves_no_file_at_the_next_occasion(self):
        self.install()
        dayvane = self.program(self.folder)
        dayvane.start()
        dayvane.open_elsewhere("Before.txt", time.time())
        self.install()
        self.assertEqual(len(self.replaced()), 1)
        dayvane.stop()
        self.remove(self.folder)
        self.assertEqual(self.replaced(), [])

    def test_is_removed_with_all_that_was_installed(self):
        self.windows.native(self.folder).parent.mkdir()  # of all such programs
        files, registry = self.windows.files(), self.windows.registry()
        self.install()
        self.assertEqual(len(changed(registry, self.windows.registry())), 1)
        self.remove(self.folder)
        self.assertEqual(changed(registry, self.windows.registry()), [])
        self.assertEqual(changed(files, self.windows.files()), [])

    def test_leaves_the_record_and_the_settings_when_it_is_removed(self):
        self.install()
        dayvane = self.program(self.folder)
        dayvane.start()
        dayvane.open_elsewhere("Offer.txt", time.time())
        dayvane.stop()
        record, settings = self.record_in(dayvane.folder), self.windows.run("reg", "query", SETTINGS, "/s")
        self.remove(self.folder)
        self.assertEqual(self.files_in(self.folder), RECORD)
        self.assertEqual(self.record_in(dayvane.folder), record)
        self.assertEqual(self.windows.run("reg", "query", SETTINGS, "/s"), settings)

    def test_can_be_removed_while_it_runs_and_saves_at_its_end(self):
        self.install()
        dayvane = self.program(self.folder)
        dayvane.start()
        dayvane.open_elsewhere("Before.txt", time.time())
        self.remove(self.folder)
        dayvane.open_elsewhere("After.txt", time.time())
        dayvane.stop()
        self.assertEqual(self.files_in(self.folder) & INSTALLED, set())
        self.assertEqual(dayvane.days_accessed(), {"Before.txt": 1, "After.txt": 1})

    def record_in(self, folder):
        files = (path for path in folder.rglob("*") if path.is_file() and path.name not in INSTALLED)
        return {path: path.read_bytes() for path in files}

    def replaced(self):
        return list(self.windows.native(self.windows.variable("TEMP")).glob("*.dayvane-replaced"))

    def newer_setup(self):
        """An installer of a higher version, whose program has a byte more."""
        with tempfile.TemporaryDirectory() as scratch:
            build = Path(scratch) / "build"
            shutil.copytree(
                SOURCES / "build/windows/src/windows/resources/icons", build / "src/windows/resources/icons"
            )
            with zipfile.ZipFile(package("*-windows.zip")) as archive:
                self.newer_program = archive.read("Dayvane/dayvane.exe") + b"\n"
                (build / "src/windows/Dayvane.hlp").write_bytes(archive.read("Dayvane/Dayvane.hlp"))
            (build / "src/windows/dayvane.exe").write_bytes(self.newer_program)
            output(SOURCES / "scripts/package_windows.sh", build, scratch, NEWER, env=package_environment())
            shutil.copy(package("*-setup.exe", Path(scratch)), self.windows.native("C:\\newer.exe"))
        return "C:\\newer.exe"


class ThePortableProgram(OnWindows):
    def test_keeps_its_record_beside_itself_in_a_folder_of_any_name(self):
        with zipfile.ZipFile(package("*-windows.zip")) as archive:
            archive.extractall(self.windows.native(ODD_FOLDER))
        registry = self.windows.registry()
        dayvane = self.program(f"{ODD_FOLDER}\\Dayvane")
        dayvane.start()
        dayvane.open_elsewhere("Offer.txt", time.time())
        dayvane.stop()
        self.assertEqual(dayvane.days_accessed(), {"Offer.txt": 1})
        self.assertEqual(dayvane.errors(), [])
        self.assertFalse(self.windows.native(self.folder).exists())
        others = [key for key in changed(registry, self.windows.registry()) if "\\Korvath\\Dayvane" not in key]
        self.assertEqual(others, [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
