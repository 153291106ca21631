"""What the packages hold and ask for, without installing them."""

import hashlib
import re
import sys
import tarfile
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from packages import PACKAGES, SOURCES, output, package, version

sys.path.insert(0, str(SOURCES / "scripts"))
import changelog  # noqa: E402

SHARED = "/usr/share"
DATA = f"{SHARED}/dayvane"
ID = "example.dayvane.Dayvane"
SIZES = [*(f"{size}x{size}" for size in (16, 22, 24, 32, 48, 64, 128, 256)), "scalable"]
INSTALLED = {
    "/usr/bin/dayvane",
    f"{DATA}/Dayvane.hlp",
    f"{DATA}/autostart/{ID}.desktop",
    f"{SHARED}/applications/{ID}.desktop",
    f"{SHARED}/dbus-1/services/{ID}.service",
    f"{SHARED}/gnome-shell/search-providers/{ID}.search-provider.ini",
    f"{SHARED}/krunner/dbusplugins/{ID}.desktop",
    f"{SHARED}/metainfo/{ID}.metainfo.xml",
    f"{SHARED}/man/man1/dayvane.1.gz",
    *(f"{SHARED}/icons/hicolor/{size}/apps/dayvane.{'svg' if size == 'scalable' else 'png'}" for size in SIZES),
}
DEBIAN_DOCUMENTS = {
    *(f"{SHARED}/doc/dayvane/{name}" for name in ("changelog.gz", "changelog.Debian.gz", "copyright")),
    f"{SHARED}/lintian/overrides/dayvane",
}
OTHER_DOCUMENTS = {f"{SHARED}/doc/dayvane/{name}" for name in ("CHANGELOG.md", "LICENSE")}
LIBRARIES = ("Qt6Core", "Qt6Gui", "Qt6Widgets", "Qt6Svg", "gio-2.0", "pugixml", "sqlite3", "xcb")


class UnpackedTest(unittest.TestCase):
    """The .deb unpacked."""

    @classmethod
    def setUpClass(cls):
        temporary = tempfile.TemporaryDirectory()
        cls.addClassCleanup(temporary.cleanup)
        cls.root = Path(temporary.name)
        output("dpkg-deb", "-x", package("*.deb"), cls.root)

    def below(self, path):
        return self.root / path.lstrip("/")


class TheDebianPackage(UnpackedTest):
    def field(self, name):
        return output("dpkg-deb", "-f", package("*.deb"), name).strip()

    def test_holds_what_is_installed_and_nothing_else(self):
        files = {f"/{path.relative_to(self.root)}" for path in self.root.rglob("*") if not path.is_dir()}
        self.assertEqual(files, INSTALLED | DEBIAN_DOCUMENTS)

    def test_bears_the_version_of_the_program(self):
        self.assertEqual(self.field("Version"), f"{version()}-1")

    def test_asks_for_every_library_that_the_program_is_linked_with(self):
        depends = self.field("Depends")
        for library in ("libqt6core6", "libqt6svg6", "libqt6widgets6", "libglib2.0-0", "libpugixml", "libsqlite3-0"):
            self.assertRegex(depends, rf"(^|, ){library}")

    def test_recommends_what_a_desktop_has(self):
        for name in ("qt6-wayland", "shared-mime-info", "adwaita-icon-theme", "libglib2.0-bin"):
            self.assertIn(name, self.field("Recommends"))

    def test_runs_nothing_at_its_installation_and_has_no_settings_of_its_own(self):
        control = output("dpkg-deb", "--ctrl-tarfile", package("*.deb"), encoding="latin-1")
        self.assertFalse([name for name in ("postinst", "prerm", "postrm", "conffiles") if f"./{name}\0" in control])

    def test_is_what_the_distribution_wants(self):
        said = output("lintian", "--allow-root", "--fail-on=none", "--tag-display-limit=0", package("*.deb"))
        self.assertEqual(said, "")


class TheProgram(UnpackedTest):
    """How it is linked: what an attacker would have to get around."""

    def elf(self, what):
        return output("readelf", "--wide", what, self.below("/usr/bin/dayvane"))

    def test_lies_at_another_address_each_time(self):
        self.assertRegex(self.elf("--file-header"), r"Type: +DYN")

    def test_resolves_its_symbols_at_its_start_and_protects_their_table(self):
        self.assertRegex(self.elf("--dynamic"), r"BIND_NOW|\bNOW\b")
        self.assertIn("GNU_RELRO", self.elf("--program-headers"))

    def test_watches_over_its_stack_and_its_buffers(self):
        symbols = self.elf("--dyn-syms")
        self.assertIn("__stack_chk_fail", symbols)
        self.assertRegex(symbols, r"__\w+_chk\b(?<!__stack_chk)")

    def test_has_no_stack_that_can_be_executed(self):
        self.assertRegex(self.elf("--program-headers"), r"GNU_STACK .* RW +0x")

    def test_names_no_folder_of_the_machine_that_built_it(self):
        self.assertNotIn(str(SOURCES).encode(), self.below("/usr/bin/dayvane").read_bytes())


class WhatDesktopsRead(UnpackedTest):
    def test_menu_entries_are_valid(self):
        for entry in ("applications", "dayvane/autostart", "krunner/dbusplugins"):
            self.assertEqual(output("desktop-file-validate", self.below(f"{SHARED}/{entry}/{ID}.desktop")), "")

    def test_the_description_is_valid_to_the_last_hint(self):
        output("appstreamcli", "validate", "--pedantic", "--no-net", self.below(f"{SHARED}/metainfo/{ID}.metainfo.xml"))

    def test_the_manual_page_is_well_formed_and_names_the_installed_folder(self):
        page = self.below(f"{SHARED}/man/man1/dayvane.1.gz")
        self.assertEqual(output("mandoc", "-T", "lint", "-W", "style", page), "")
        shown = re.sub(".\b", "", output("mandoc", "-T", "ascii", "-O", "width=200", page))
        self.assertIn(f" {DATA}/Dayvane.hlp\n", shown)

    def test_the_bus_starts_the_installed_program(self):
        service = self.below(f"{SHARED}/dbus-1/services/{ID}.service").read_text(encoding="utf-8")
        self.assertIn("Exec=/usr/bin/dayvane\n", service)


class TheVersion(UnpackedTest):
    """It stands in CMakeLists.txt; whatever else tells of versions agrees with it."""

    def releases(self):
        found = changelog.releases((SOURCES / "CHANGELOG.md").read_text(encoding="utf-8"))
        return [(version, str(day)) for version, day, _ in found]

    def test_is_the_newest_in_the_changelog(self):
        self.assertEqual(self.releases()[0][0], version())

    def test_is_told_with_its_day_and_those_before_it_where_desktops_describe_the_program(self):
        description = ElementTree.parse(self.below(f"{SHARED}/metainfo/{ID}.metainfo.xml"))
        told = [(release.get("version"), release.get("date")) for release in description.iter("release")]
        self.assertEqual(told, self.releases())

    def test_is_told_with_its_day_by_the_manual_page(self):
        heading = output("gzip", "-dc", self.below(f"{SHARED}/man/man1/dayvane.1.gz")).splitlines()[0]
        self.assertIn(f'"{self.releases()[0][1]}" "Dayvane {version()}"', heading)

    def test_has_a_changelog_beside_the_packages(self):
        notes = (PACKAGES / f"CHANGELOG-{version()}.md").read_text(encoding="utf-8")
        self.assertEqual(notes.splitlines()[0], "# Dayvane {}, {}".format(*self.releases()[0]))
        self.assertNotIn("\n## ", notes)


class TheRpmPackage(unittest.TestCase):
    def ask(self, *what):
        # A system of another kind has no database of such packages.
        with tempfile.TemporaryDirectory() as database:
            return output("rpm", "--dbpath", database, *what, package("*.rpm")).splitlines()

    def test_holds_what_is_installed_and_only_folders_of_its_own(self):
        own = {DATA, f"{DATA}/autostart", f"{SHARED}/doc/dayvane"}
        self.assertEqual(set(self.ask("-qpl")), INSTALLED | OTHER_DOCUMENTS | own)

    def test_asks_for_every_library_that_the_program_is_linked_with(self):
        required = "\n".join(self.ask("-qpR"))
        for library in LIBRARIES:
            self.assertRegex(required, rf"(?m)^lib{re.escape(library)}\.so\.\d+\(")

    def test_recommends_what_a_desktop_has(self):
        recommended = self.ask("-qp", "--recommends")
        for name in ("qt6-qtwayland", "shared-mime-info"):
            self.assertIn(name, recommended)

    def test_bears_the_version_and_the_licence(self):
        self.assertEqual(self.ask("-qp", "--queryformat", "%{VERSION} %{LICENSE}"), [f"{version()} MIT"])

    def test_is_installed_nowhere_but_where_the_bus_looks_for_it(self):
        self.assertEqual(self.ask("-qp", "--queryformat", "%{PREFIXES}"), ["(none)"])

    def test_runs_nothing_at_its_installation(self):
        self.assertEqual(self.ask("-qp", "--scripts"), [])


class ThePortableArchive(unittest.TestCase):
    def test_is_one_folder_with_all_that_it_takes(self):
        with tarfile.open(package("*.tar.gz")) as archive:
            names = {member.name for member in archive if member.isfile()}
        files = ("dayvane", "Dayvane.hlp", "LICENSE", "README.txt", "CHANGELOG.md")
        self.assertEqual(names, {f"dayvane/{name}" for name in files})


class TheChecksums(unittest.TestCase):
    def test_are_those_of_all_files(self):
        lines = (PACKAGES / "SHA256SUMS").read_text(encoding="utf-8").splitlines()
        files = [path for path in sorted(PACKAGES.iterdir()) if path.name != "SHA256SUMS"]
        self.assertEqual(lines, [f"{hashlib.sha256(path.read_bytes()).hexdigest()}  {path.name}" for path in files])


if __name__ == "__main__":
    unittest.main(verbosity=2)
