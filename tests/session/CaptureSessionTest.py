"""The installed program beside other programs: what is opened there is in the repository, the window and the counts."""

import threading
import time
import unittest

from private_desktop import need
from session_case import SessionTest
from user import DAYS, DOCUMENTS, SOON_SECONDS
from waiting import wait_until

TICK_SECONDS = 1
SLOW_MACHINE_SECONDS = 3  # what two ticks may take longer where the processors are busy with other tests


class ADocumentOpenedInAnEditor(SessionTest):
    @classmethod
    def setUpClass(cls):
        need("mousepad", "xdotool")
        super().setUpClass()
        cls.choose_editor()
        cls.letter = cls.document("Letter to Ana.txt")
        cls.open_in_editor()
        cls.filed = wait_until(cls.find_filed, SOON_SECONDS, "the letter's shortcut in today's folder")
        cls.filed_at = time.time()
        cls.choose_last_day()

    @classmethod
    def choose_editor(cls):
        """Makes the editor the user's program for texts, whatever else is installed."""
        (cls.desktop.config / "mimeapps.list").write_text(
            "[Default Applications]\ntext/plain=org.xfce.mousepad.desktop\n", encoding="utf-8"
        )

    @classmethod
    def open_in_editor(cls):
        cls.editor = cls.desktop.start(["mousepad"])
        cls.desktop.type_into("Mousepad$", "ctrl+o")
        cls.desktop.open_in_dialog(cls.editor, "^Open File$", cls.letter)
        cls.desktop.window(f"{cls.letter.name}.*Mousepad$")

    @classmethod
    def find_filed(cls):
        path = cls.dayvane.day_folder(time.time()) / f"{cls.letter.name}.lnk"
        return path if path.exists() else None

    def recent(self):
        return self.dayvane.recent / self.filed.name

    def test_is_filed_within_two_ticks(self):
        self.assertLess(self.filed_at - self.list.path.stat().st_mtime, 2 * TICK_SECONDS + SLOW_MACHINE_SECONDS)

    def test_has_the_recent_folders_shortcut_byte_for_byte_with_its_time(self):
        self.assertEqual(self.filed.read_bytes(), self.recent().read_bytes())
        self.assertEqual(self.filed.stat().st_mtime_ns, self.recent().stat().st_mtime_ns)

    def test_has_the_editors_shortcut_beside_it(self):
        self.assertTrue((self.filed.parent / "Mousepad.lnk").exists())

    def test_is_counted_for_one_day(self):
        self.assertEqual(self.dayvane.days_accessed(), {self.letter.name: 1})

    def test_shows_its_day_in_the_tree(self):
        year, month, day = self.filed.parent.relative_to(self.dayvane.daily).parts
        self.wait_for(["Daily", year, month, day], lambda: self.user.names(DAYS))

    def test_shows_in_the_list_of_the_day(self):
        wait_until(
            lambda: self.letter.name in self.user.names(DOCUMENTS),
            SOON_SECONDS,
            lambda: f"the letter in {self.user.names(DOCUMENTS)}",
        )


class ADocumentOpenedAgainTheSameDay(ADocumentOpenedInAnEditor):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.first = cls.filed.stat()
        cls.desktop.type_into(f"{cls.letter.name}.*Mousepad$", "ctrl+q")
        cls.editor.wait(SOON_SECONDS)
        cls.open_in_editor()
        wait_until(lambda: cls.filed.stat().st_mtime_ns > cls.first.st_mtime_ns, SOON_SECONDS, "a newer shortcut")
        cls.filed_at = time.time()


class AKillDuringAStreamOfOpenings(SessionTest):
    DOCUMENTS = 60
    BETWEEN_OPENINGS_SECONDS = 0.05

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.names = [f"Note {number:03}.txt" for number in range(cls.DOCUMENTS)]
        stream = threading.Thread(target=cls.open_all)
        stream.start()
        wait_until(lambda: len(cls.filed_documents()) > cls.DOCUMENTS // 4, SOON_SECONDS, "some filed documents")
        cls.dayvane.kill()
        cls.unsaved = cls.filed_documents() - cls.dayvane.days_accessed().keys()
        stream.join()
        cls.dayvane.start()
        wait_until(lambda: len(cls.filed_documents()) == cls.DOCUMENTS, SOON_SECONDS, cls.missing)
        cls.dayvane.stop()

    @classmethod
    def open_all(cls):
        pause = threading.Event()
        for name in cls.names:
            cls.list.opened(cls.document(name), time.time())
            cls.list.write()
            pause.wait(cls.BETWEEN_OPENINGS_SECONDS)

    @classmethod
    def filed_documents(cls):
        """Names of the documents in the repository, without the programs that open them."""
        shortcuts = (path.rsplit("/", 1)[1] for path in cls.dayvane.filed())
        return {name.removesuffix(".lnk") for name in shortcuts if name.startswith("Note ")}

    @classmethod
    def missing(cls):
        return f"{sorted(set(cls.names) - cls.filed_documents())} filed"

    def test_leaves_every_document_in_the_repository_once(self):
        shortcuts = [path.rsplit("/", 1)[1] for path in self.dayvane.filed() if "/Note " in path]
        self.assertEqual(sorted(shortcuts), [f"{name}.lnk" for name in self.names])

    def test_leaves_no_half_written_file(self):
        self.assertEqual([str(path) for path in self.dayvane.folder.rglob(".*")], [])

    def test_counts_no_document_twice(self):
        records = self.dayvane.favorites()
        self.assertEqual({record[0] for record in records}, {"1"})
        self.assertEqual(len(records), len(self.dayvane.days_accessed()))

    def test_loses_no_counts_but_those_of_the_killed_poll(self):
        uncounted = set(self.names) - self.dayvane.days_accessed().keys()
        self.assertLessEqual(uncounted, self.unsaved)


if __name__ == "__main__":
    unittest.main(verbosity=2)
