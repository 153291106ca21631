"""What is told of versions comes from the changelog as people write it. Run by ctest with the script's folder."""

import subprocess
import sys
import unittest

FOLDER = sys.argv.pop()
sys.path.insert(0, FOLDER)
import changelog  # noqa: E402

TEXT = """# Changelog

## [Unreleased]

* Not yet.

## [1.1.0] - 2027-01-05

### Added

* Something new.

## [1.0.0] - 2026-11-22

The first release.
"""


class ChangelogTest(unittest.TestCase):
    def test_tells_the_day_of_a_version(self):
        self.assertEqual(changelog.answer("date", "1.0.0", TEXT), "2026-11-22\n")

    def test_tells_what_is_new_in_one_version_alone(self):
        notes = "# Dayvane 1.1.0, 2027-01-05\n\n### Added\n\n* Something new.\n"
        self.assertEqual(changelog.answer("notes", "1.1.0", TEXT), notes)

    def test_tells_debian_of_the_released_versions_from_the_newest_on(self):
        newest, oldest = changelog.answer("debian", "Ana <ana@example.org>", TEXT).split("\n\ndayvane ")
        self.assertTrue(newest.startswith("dayvane (1.1.0-1) unstable; "))
        self.assertTrue(newest.endswith("\n -- Ana <ana@example.org>  Tue, 05 Jan 2027 00:00:00 +0000"))
        self.assertTrue(oldest.startswith("(1.0.0-1) unstable; "))

    def test_knows_no_version_that_was_not_released(self):
        with self.assertRaisesRegex(LookupError, "2.0.0"):
            changelog.answer("date", "2.0.0", TEXT)

    def test_refuses_a_day_that_no_calendar_has(self):
        with self.assertRaises(ValueError):
            changelog.answer("date", "1.0.0", TEXT.replace("2026-11-22", "2026-11-31"))

    def test_says_what_is_wrong_to_whoever_calls_it(self):
        command = [sys.executable, "-B", f"{FOLDER}/changelog.py", "date", "0.0.1"]
        done = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, "changelog.py: CHANGELOG.md does not tell of version 0.0.1\n")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
