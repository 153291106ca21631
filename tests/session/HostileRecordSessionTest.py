"""A record and a Recent folder in which somebody else has put what he liked: links to the user's documents, pipes,
names that no shortcut has. Whatever the user does with such a record, nothing outside of it is changed or run."""

import os
import pathlib
import stat
import time
import unittest

from private_desktop import need
from session_case import DAY_SECONDS, SessionTest
from shell_link import program_form, shell_link
from system_calls import SystemCalls
from user import DAYS, DOCUMENTS, RIGHT_BUTTON
from waiting import wait_until

DOUBLE = 2  # clicks
OLD_DAYS, LIVING_DAYS = (41, 40), (2, 1)  # counted back from today; those to be purged at the start, those that stay
SHELL_WORDS = "$(touch pwned) `touch pwned`; touch 'pwned' \"touch pwned\" \\ & | > pwned"
LONGEST_NAME = 255  # bytes
DUE = ["Due 1.txt", "Due 2.txt", "Due 3.txt", "Due 4.txt"]  # opened while something else lies in their place

# Written by the desktop's libraries, for what they share with other programs.
SHARED_FILES = {"/dev/null"}


def status_of(path):
    """What must stay as it is: which file it is, what kind, when it was written, and what it holds."""
    status = path.lstat()
    content = path.read_bytes() if stat.S_ISREG(status.st_mode) else None
    names = sorted(os.listdir(path)) if stat.S_ISDIR(status.st_mode) else None
    return status.st_ino, status.st_mode, status.st_mtime_ns, content, names


class AHostileRecord(SessionTest):
    """Everything that a user does happens before the tests, which look at what came of it."""

    @classmethod
    def setUpClass(cls):
        need("strace")
        cls.arrange()
        cls.dayvane.witness = SystemCalls(cls.desktop.folder / "witness", cls.desktop.home)
        cls.install_editor()
        cls.make_documents()
        cls.days = {days_ago: cls.plant_in_day(days_ago) for days_ago in (*OLD_DAYS, *LIVING_DAYS, 0)}
        cls.plant_in(cls.dayvane.recent)
        cls.plant_where_documents_are_due()
        cls.plant_links_to_folders()
        cls.before = cls.documents()
        cls.dayvane.write_settings({"Favorites Threshold": 1})
        cls.live()

    # What there is.

    @classmethod
    def install_editor(cls):
        """The user's editor, which notes its document, and whose own name a shell would take for commands."""
        cls.started = cls.desktop.home / "started.txt"
        cls.editor = cls.desktop.home / "editor; touch pwned; $(touch pwned)"
        cls.editor.write_text(f'#!/bin/sh\nprintf "%s\\n" "$1" >>"{cls.started}"\n', encoding="utf-8")
        cls.editor.chmod(0o755)
        applications = cls.desktop.data / "applications"
        applications.mkdir(parents=True)
        command = str(cls.editor).replace("$", "\\\\$")
        (applications / "editor.desktop").write_text(
            f'[Desktop Entry]\nType=Application\nName=Editor\nExec="{command}" %f\nMimeType=text/plain;\n',
            encoding="utf-8",
        )
        (cls.desktop.config / "mimeapps.list").write_text(
            "[Default Applications]\ntext/plain=editor.desktop\n", encoding="utf-8"
        )

    @classmethod
    def make_documents(cls):
        """Documents that the record has no business with, and a script among them."""
        cls.letter, cls.ledger = cls.document("Letter.txt"), cls.document("Ledger.txt")
        cls.hostile = cls.document(f"{SHELL_WORDS}.txt")
        cls.script = cls.document("script.txt")
        cls.script.write_text("#!/bin/sh\ntouch pwned\n", encoding="utf-8")
        cls.script.chmod(0o755)
        cls.archive = cls.desktop.home / "Archive"
        for month in ("January/05", "January/06"):
            (cls.archive / month).mkdir(parents=True)
            (cls.archive / month / "Kept.txt.lnk").write_bytes(shell_link(program_form(cls.letter)))
        cls.due = [cls.document(name) for name in DUE]
        for path in (cls.letter, cls.ledger, cls.hostile, cls.script, *cls.due):
            os.utime(path, (time.time() - 3 * DAY_SECONDS,) * 2)

    @classmethod
    def documents(cls):
        """The state of everything that is the user's."""
        roots = (cls.desktop.home / "Documents", cls.archive)
        return {path: status_of(path) for root in roots for path in (root, *root.rglob("*"))}

    @classmethod
    def plant_in_day(cls, days_ago):
        folder = cls.shortcut("", days_ago).parent
        cls.plant_in(folder)
        return folder

    @classmethod
    def plant_in(cls, folder):
        """Everything that is not what it seems, in one folder."""
        folder.mkdir(parents=True)
        link = shell_link(program_form(cls.letter))
        (folder / "Letter.txt.lnk").write_bytes(link)
        (folder / "Symbolic.txt.lnk").symlink_to(cls.letter)
        (folder / "Dangling.txt.lnk").symlink_to("/nowhere/at all")
        (folder / "Hard.txt.lnk").hardlink_to(cls.ledger)
        (folder / ".dayvane-unfinished").hardlink_to(cls.ledger)
        os.mkfifo(folder / "Pipe.txt.lnk")
        os.mknod(folder / "Socket.txt.lnk", stat.S_IFSOCK | 0o600)
        cls.plant_device(folder / "Device.txt.lnk")
        for name in (".", "..\\..\\..\\Letter.txt", "\x01\x1b[2J\n\t.txt", "x" * (LONGEST_NAME - len(".lnk"))):
            (folder / f"{name}.lnk").write_bytes(link)
        (folder / "Up.txt.lnk").write_bytes(shell_link(program_form(cls.archive / "../Documents/Letter.txt")))
        (folder / "Words.txt.lnk").write_bytes(shell_link(program_form(cls.hostile)))
        (folder / "Script.txt.lnk").write_bytes(shell_link(program_form(cls.script), program_form(cls.script)))
        (folder / "Lost.txt.lnk").write_bytes(shell_link(program_form(cls.letter.with_name("Lost.txt"))))

    @staticmethod
    def plant_device(path):
        try:
            os.mknod(path, stat.S_IFCHR | 0o666, os.makedev(1, 3))
        except PermissionError:  # not everybody may make one
            path.symlink_to("/dev/null")

    @classmethod
    def plant_where_documents_are_due(cls):
        symbolic, hard, pipe, device = (cls.shortcut(name) for name in DUE)
        symbolic.symlink_to(cls.letter)
        hard.hardlink_to(cls.ledger)
        os.mkfifo(pipe)
        cls.plant_device(device)

    @classmethod
    def plant_links_to_folders(cls):
        """A day, a month and a year that lie elsewhere, and folders that are called like shortcuts."""
        month = cls.days[0].parent
        cls.links = {
            cls.dayvane.daily / "1999": cls.archive,
            month.parent / "Elsewhere": cls.archive / "January",
            month / "00": cls.archive / "January/05",
        }
        for link, folder in cls.links.items():
            link.symlink_to(folder)
        (cls.days[0] / "Folder.txt.lnk").mkdir()
        cls.kept = cls.dayvane.recent / "Folder.txt.lnk/Kept.txt"
        cls.kept.parent.mkdir()
        cls.kept.write_text("kept", encoding="utf-8")
        for folder in (cls.days[0], cls.dayvane.recent):
            # No program writes such a name, and none can spell it.
            (folder / os.fsdecode(b"\xff\xfe.txt.lnk")).write_bytes(b"")

    # What the user does.

    @classmethod
    def live(cls):
        cls.dayvane.launch()
        cls.wait_for_box()
        cls.user.press("Yes")
        cls.desktop.window("^Dayvane - ")
        for path in (cls.hostile, *cls.due):
            cls.list.opened(path, time.time())
        cls.list.write()
        cls.wait_for_filed(cls.hostile.name)
        cls.wait_for([], lambda: [name for name in DUE if not cls.is_plain(cls.shortcut(name))])
        cls.user.click_row(DAYS, cls.days[0].name)
        cls.wait_for(set(), lambda: {cls.hostile.name, *DUE} - set(cls.user.names(DOCUMENTS)))
        cls.names = cls.user.names(DOCUMENTS)
        cls.open_documents()
        cls.remove_links()
        cls.user.choose("Tools", "Rebuild Favorites")
        cls.purge_a_day()
        cls.dayvane.stop()

    @classmethod
    def open_documents(cls):
        for name, document in ((cls.hostile.name, cls.hostile), ("Up.txt", cls.letter), ("Script.txt", cls.script)):
            cls.user.click_row(DOCUMENTS, name, times=DOUBLE)
            cls.wait_for([document], lambda: cls.opened_documents()[-1:])

    @classmethod
    def opened_documents(cls):
        lines = cls.started.read_text(encoding="utf-8").splitlines() if cls.started.exists() else []
        return [pathlib.Path(os.path.normpath(line)) for line in lines]

    @classmethod
    def remove_links(cls):
        for name in ("Hard.txt", "Lost.txt"):
            cls.user.click_row(DOCUMENTS, name, times=DOUBLE)
            cls.wait_for_box()
            cls.user.press("Yes")
            cls.wait_for(False, lambda name=name: name in cls.user.names(DOCUMENTS))

    @classmethod
    def purge_a_day(cls):
        folder = cls.days[LIVING_DAYS[0]]
        cls.user.click_row(DAYS, folder.name, RIGHT_BUTTON)
        cls.user.choose_in_popup("Purge")
        wait_until(lambda: not folder.exists(), 30, f"{folder} purged")

    # What came of it.

    @staticmethod
    def is_plain(path):
        """Whether a file is one by itself, and nobody else's."""
        status = path.lstat()
        return stat.S_ISREG(status.st_mode) and status.st_nlink == 1

    def is_own(self, path):
        """Whether a path, or what it leads to through a link to a folder, is the program's own."""
        for link, folder in self.links.items():
            if pathlib.Path(path).is_relative_to(link) and path != str(link):
                path = folder / pathlib.Path(path).relative_to(link)
        own = (
            self.dayvane.folder,
            self.dayvane.settings_file.parent,
            self.desktop.folder / "runtime",
            self.desktop.home / ".cache",
        )
        return str(path) in SHARED_FILES or any(pathlib.Path(path).is_relative_to(folder) for folder in own)

    def test_changes_nothing_outside_of_the_programs_own_folders(self):
        calls = self.dayvane.witness.changes()
        self.assertIn("unlink", {call.name for call in calls})
        self.assertEqual([call for call in calls if not all(map(self.is_own, call.paths))], [])

    def test_leaves_every_document_as_it_was(self):
        self.assertEqual(self.documents(), self.before)

    def test_has_no_document_read(self):
        self.assertEqual(self.dayvane.witness.opened() & {str(path) for path in self.before if path.is_file()}, set())

    def test_starts_the_editor_alone(self):
        started = [arguments[-2:] for arguments in self.dayvane.witness.started()]
        self.assertEqual(started, [(str(self.editor), str(path)) for path in self.opened_documents()])

    def test_gives_no_words_to_a_shell(self):
        self.assertEqual([path for path in self.desktop.folder.rglob("pwned*")], [])

    def test_lists_files_and_nothing_else(self):
        self.assertIn(self.hostile.name, self.names)
        listed = {name.partition(".")[0] for name in self.names}
        self.assertEqual(listed & {"Symbolic", "Dangling", "Pipe", "Socket", "Device", "Folder", "Kept"}, set())

    def test_goes_when_its_day_is_purged(self):
        self.assertEqual(
            [self.days[days_ago].exists() for days_ago in (*OLD_DAYS, *LIVING_DAYS, 0)],
            [False, False, False, True, True],
        )

    def test_keeps_what_lies_in_a_folder_that_is_called_like_a_shortcut(self):
        self.assertEqual(self.kept.read_text(encoding="utf-8"), "kept")


if __name__ == "__main__":
    unittest.main(verbosity=2)
