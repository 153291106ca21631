"""What the packages for Windows hold and say of themselves, without installing them."""

import hashlib
import re
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
import zipfile
from pathlib import Path

from packages import SOURCES, output, package, package_environment, version

SETTINGS_2005 = "{http://schemas.microsoft.com/SMI/2005/WindowsSettings}"
SETTINGS_2016 = "{http://schemas.microsoft.com/SMI/2016/WindowsSettings}"
SETTINGS_2019 = "{http://schemas.microsoft.com/SMI/2019/WindowsSettings}"
SECURITY = "{urn:schemas-microsoft-com:asm.v3}"
LARGEST_PROGRAM = 3 * 1024 * 1024
# What every Windows has; the older runtime library of C is one of its files.
SYSTEM_LIBRARIES = (
    "advapi32 comctl32 gdi32 kernel32 msvcrt ole32 oleacc oleaut32 shell32 shlwapi user32 uxtheme version windowscodecs"
).split()
VERSION_RESOURCE, MANIFEST_RESOURCE = 16, 24


def resource(file, kind):
    """A resource of a program for Windows, by the number of its kind; there is one of it."""
    with tempfile.TemporaryDirectory() as folder:
        output("wrestool", "--extract", "--raw", f"--type={kind}", f"--output={folder}", file)
        (path,) = Path(folder).iterdir()
        return path.read_bytes()


def version_texts(file):
    """The texts of its version by their names. In the resource each is a length, a name, its end, the text."""
    text = resource(file, VERSION_RESOURCE).decode("utf-16-le")
    return dict(re.findall(r"([A-Z][A-Za-z]+)\0+([^\0]+)\0", text))


def version_numbers(file):
    """Those of the file and of the product, which the system compares: after the resource's signature and version."""
    resource_data = resource(file, VERSION_RESOURCE)
    fixed = resource_data.index(bytes.fromhex("bd04effe")) + 8
    words = [int.from_bytes(resource_data[at : at + 2], "little") for at in range(fixed, fixed + 16, 2)]
    return [".".join(map(str, (words[at + 1], words[at], words[at + 3], words[at + 2]))) for at in (0, 4)]


class ThePortableArchive(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        temporary = tempfile.TemporaryDirectory()
        cls.addClassCleanup(temporary.cleanup)
        cls.folder = Path(temporary.name) / "Dayvane"
        with zipfile.ZipFile(package("*-windows.zip")) as archive:
            cls.names = set(archive.namelist())
            archive.extractall(temporary.name)
        cls.program = cls.folder / "dayvane.exe"

    def test_is_one_folder_with_all_that_it_takes(self):
        files = ("dayvane.exe", "Dayvane.hlp", "ReadMe.txt", "License.txt")
        self.assertEqual(self.names, {f"Dayvane/{name}" for name in files})

    def test_has_texts_with_the_line_ends_of_windows(self):
        for name in ("ReadMe.txt", "License.txt"):
            lines = (self.folder / name).read_bytes().split(b"\n")
            self.assertEqual({line[-1:] for line in lines[:-1]}, {b"\r"})

    def test_holds_a_program_of_its_version(self):
        texts = version_texts(self.program)
        self.assertEqual((texts["FileVersion"], texts["ProductVersion"]), (version(), version()))
        self.assertEqual(version_numbers(self.program), [f"{version()}.0"] * 2)

    def test_holds_a_small_program_that_takes_nothing_but_the_system(self):
        self.assertLess(self.program.stat().st_size, LARGEST_PROGRAM)
        libraries = re.findall(r"DLL Name: (\S+)\.dll", self.objdump(), flags=re.IGNORECASE)
        self.assertLessEqual({library.lower() for library in libraries}, set(SYSTEM_LIBRARIES))

    def test_holds_a_program_that_lies_at_another_address_each_time_and_runs_no_data(self):
        for protection in ("HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT"):
            self.assertIn(protection, self.objdump())

    def test_names_no_folder_of_the_machine_that_built_it(self):
        code = self.program.read_bytes()
        for encoding in ("utf-8", "utf-16-le"):
            self.assertNotIn(str(SOURCES).encode(encoding), code)

    def test_says_in_its_manifest_how_it_wants_to_be_run(self):
        manifest = ElementTree.fromstring(resource(self.program, MANIFEST_RESOURCE))
        said = {element.tag: element for element in manifest.iter()}
        self.assertEqual(said[f"{SECURITY}requestedExecutionLevel"].get("level"), "asInvoker")
        self.assertEqual(said[f"{SETTINGS_2019}activeCodePage"].text, "UTF-8")
        self.assertEqual(said[f"{SETTINGS_2016}longPathAware"].text, "true")
        self.assertEqual(said[f"{SETTINGS_2016}dpiAwareness"].text.split(",")[0], "PerMonitorV2")

    def objdump(self):
        return output("x86_64-w64-mingw32-objdump", "--private-headers", self.program)


class TheInstaller(unittest.TestCase):
    def test_is_of_the_programs_version(self):
        setup = package("*-setup.exe")
        self.assertEqual(version_texts(setup)["ProductVersion"], version())
        self.assertEqual(version_numbers(setup), [f"{version()}.0"] * 2)

    def test_asks_for_no_rights_of_an_administrator_and_knows_sharp_screens(self):
        manifest = ElementTree.fromstring(resource(package("*-setup.exe"), MANIFEST_RESOURCE))
        said = {element.tag: element for element in manifest.iter()}
        self.assertEqual(said[f"{SECURITY}requestedExecutionLevel"].get("level"), "asInvoker")
        self.assertEqual(said[f"{SETTINGS_2005}dpiAware"].text, "true")


class PackedAgain(unittest.TestCase):
    def test_the_same_program_gives_the_same_bytes(self):
        habits = {**package_environment(), "TZ": "Pacific/Apia", "LC_ALL": "C"}
        with tempfile.TemporaryDirectory(prefix="dayvane again ") as folder:
            script = SOURCES / "scripts/package_windows.sh"
            output(script, SOURCES / "build/windows", folder, version(), env=habits, umask=0o077)
            again = {path.name: hashlib.sha256(path.read_bytes()).hexdigest() for path in Path(folder).iterdir()}
        before = {name: hashlib.sha256(package(name).read_bytes()).hexdigest() for name in again}
        self.assertEqual(again, before)
        self.assertEqual(len(again), 2)


if __name__ == "__main__":
    unittest.main(verbosity=2)
