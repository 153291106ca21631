"""Documents that real programs open are in the record, whomever the programs tell. What they keep for themselves, and
what nobody saved, is not."""

import contextlib
import pathlib
import shutil
import sqlite3
import unittest

from accessible import Gone
from private_desktop import PrivateDesktop
from session_case import SessionTest
from waiting import stays, wait_until

OPENED_SECONDS = 90  # LibreOffice makes its profile at its first start
NOT_FILED_SECONDS = 5  # ticks enough for whatever would be filed


class ProgramTest(SessionTest):
    """One program on a desktop whose documents do not lie among the temporary files, which KDE passes over."""

    PROGRAM = ""

    @classmethod
    def setUpClass(cls):
        if shutil.which(cls.PROGRAM) is None:
            raise unittest.SkipTest(f"this machine has no {cls.PROGRAM}")
        super().setUpClass()

    @classmethod
    def make_desktop(cls):
        desktop = PrivateDesktop(below="/var/tmp")
        desktop.environment["GSK_RENDERER"] = "cairo"  # the screen is drawn without a graphics card
        return desktop

    @classmethod
    def wait_for_opening(cls, name):
        def filed():
            return cls.shortcut(name).exists()

        wait_until(filed, OPENED_SECONDS, lambda: f"{name} among {cls.dayvane.filed()}, told by {cls.witnesses(name)}")
        print(f"{cls.__name__}: {name} told by {', '.join(cls.witnesses(name))}")

    @classmethod
    def open_in_own_dialog(cls, title, document):
        """Starts the program and opens a document in the dialog that Qt has where no desktop brings one. Its windows are
        found by their class: xdotool does not find the dash in their titles."""
        process = cls.desktop.start([cls.PROGRAM])
        reader = cls.desktop.screen_reader(process)

        def titles():
            try:
                return [window["title"] for window in reader.windows()]
            except Gone:  # while it was looked at
                return []

        def asked():
            if title in titles():
                return True
            for window in cls.desktop.windows(cls.PROGRAM, by="class")[:1]:
                cls.desktop.run(["xdotool", "windowactivate", window, "key", "ctrl+o"], check=False)
            return False

        def typed():
            cls.desktop.run(["xdotool", "key", "ctrl+a", "type", "--delay", "5", str(document)])
            return reader.focus()["text"] == str(document)

        wait_until(asked, OPENED_SECONDS, lambda: f"the dialog {title} among {titles()}")
        wait_until(typed, OPENED_SECONDS, lambda: f"the typed path, but {reader.focus()}")
        cls.desktop.run(["xdotool", "key", "Return"])
        wait_until(lambda: title not in titles(), OPENED_SECONDS, f"the end of the dialog {title}")

    @classmethod
    def witnesses(cls, name):
        """The places that tell of a document of that name."""
        data = cls.desktop.data
        places = {
            "the desktop's list": data / "recently-used.xbel",
            "GNOME's text editor": data / "org.gnome.TextEditor/recently-used.xbel",
            "LibreOffice": cls.desktop.config / "libreoffice/4/user/registrymodifications.xcu",
        }
        found = [place for place, path in places.items() if path.exists() and name in path.read_text(errors="replace")]
        return found + (["KDE"] if cls.is_in_activities(name) else [])

    @classmethod
    def is_in_activities(cls, name):
        database = cls.desktop.data / "kactivitymanagerd/resources/database"
        if not database.exists():
            return False
        with contextlib.closing(sqlite3.connect(f"file:{database}?mode=ro", uri=True)) as connection:
            rows = connection.execute("SELECT targettedResource FROM ResourceEvent").fetchall()
        return any(pathlib.Path(path).name == name for (path,) in rows)


class ADocumentThatGnomesTextEditorIsStartedWith(ProgramTest):
    PROGRAM = "gnome-text-editor"

    def test_is_filed_although_the_desktops_list_has_it_not(self):
        self.desktop.start([self.PROGRAM, self.document("Letter.txt")])
        self.wait_for_opening("Letter.txt")
        self.assertEqual(self.witnesses("Letter.txt"), ["GNOME's text editor"])


class ADocumentThatKWriteIsStartedWith(ProgramTest):
    PROGRAM = "kwrite"

    def test_is_filed_although_the_desktops_list_has_it_not(self):
        self.desktop.start([self.PROGRAM, self.document("Plan.txt")])
        self.wait_for_opening("Plan.txt")
        self.assertEqual(self.witnesses("Plan.txt"), ["KDE"])
        self.wait_for({"Plan.txt": 1}, self.dayvane.days_accessed)


class ADocumentThatIsOpenedInKWritesDialog(ProgramTest):
    PROGRAM = "kwrite"

    def test_is_filed_once(self):
        self.open_in_own_dialog("Open File", self.document("Plan.txt"))
        self.wait_for_opening("Plan.txt")
        self.wait_for({"Plan.txt": 1}, self.dayvane.days_accessed)


class OkularTest(ProgramTest):
    PROGRAM = "okular"

    @classmethod
    def paper(cls):
        drawing = cls.document("Drawing.svg")
        drawing.write_text('<svg xmlns="http://www.w3.org/2000/svg" width="90" height="60"/>', encoding="utf-8")
        paper = drawing.with_name("Paper.pdf")
        cls.desktop.run(["rsvg-convert", "-f", "pdf", "-o", paper, drawing])
        return paper


class ADocumentThatOkularIsStartedWith(OkularTest):
    def test_is_filed_once_although_okular_tells_of_it_twice(self):
        self.desktop.start([self.PROGRAM, self.paper()])
        self.wait_for_opening("Paper.pdf")
        self.wait_for({"Paper.pdf": 1}, self.dayvane.days_accessed)


class ADocumentThatIsOpenedInOkularsDialog(OkularTest):
    def test_is_filed_once(self):
        self.open_in_own_dialog("Open Document", self.paper())
        self.wait_for_opening("Paper.pdf")
        self.wait_for({"Paper.pdf": 1}, self.dayvane.days_accessed)


class ADocumentThatLibreOfficeIsStartedWith(ProgramTest):
    PROGRAM = "soffice"
    TOOLKIT = "gtk3"
    WITNESS = "the desktop's list"

    def test_is_filed(self):
        office = [self.PROGRAM, "--norestore", "--nologo", "--nofirststartwizard", self.document("Report.txt")]
        self.desktop.start(office, SAL_USE_VCLPLUGIN=self.TOOLKIT)
        self.wait_for_opening("Report.txt")
        self.assertIn(self.WITNESS, self.witnesses("Report.txt"))


class ADocumentThatLibreOfficeUnderKdeIsStartedWith(ADocumentThatLibreOfficeIsStartedWith):
    TOOLKIT = "qt5"
    WITNESS = "LibreOffice"


class AMemberOfAnArchive(ProgramTest):
    PROGRAM = "file-roller"

    def test_that_is_read_without_unpacking_is_not_filed_but_the_archive_is(self):
        (self.desktop.config / "mimeapps.list").write_text(
            "[Default Applications]\ntext/plain=org.xfce.mousepad.desktop\n", encoding="utf-8"
        )
        member = self.document("Member.txt")
        archive = member.with_name("Papers.zip")
        self.desktop.run(["zip", "-j", archive, member])
        member.unlink()
        self.desktop.start([self.PROGRAM, archive])
        self.wait_for_opening("Papers.zip")
        self.desktop.type_into("Papers", "Down", "Return")
        self.desktop.window("Member.txt.*Mousepad$")
        wait_until(lambda: self.witnesses("Member.txt"), OPENED_SECONDS, "the member in the desktop's list")
        stays(lambda: not self.shortcut("Member.txt").exists(), NOT_FILED_SECONDS, "the member is filed")


class ADocumentThatWasNeverSaved(ProgramTest):
    PROGRAM = "mousepad"

    def test_is_not_filed_although_its_dialog_has_told_of_it(self):
        editor = self.desktop.start([self.PROGRAM])
        self.desktop.type_into("Mousepad$", text="Dear Ana")
        self.desktop.type_into("Mousepad$", "ctrl+shift+s")
        self.desktop.open_in_dialog(editor, "^Save As$", "/proc/Refused.txt")
        wait_until(lambda: self.witnesses("Refused.txt"), OPENED_SECONDS, "the name in the desktop's list")
        stays(lambda: not self.shortcut("Refused.txt").exists(), NOT_FILED_SECONDS, "what was never saved is filed")


if __name__ == "__main__":
    unittest.main(verbosity=2)
