"""The same sources make the same packages to the byte, whoever builds them, where and when."""

import os
import shutil
import tempfile
import unittest
from pathlib import Path

from packages import PACKAGES, SOURCES, date_in_packages, output


class PackagesBuiltAgain(unittest.TestCase):
    def test_in_another_folder_of_another_user_are_the_same_bytes(self):
        with tempfile.TemporaryDirectory(prefix="dayvane again ") as folder:
            sources = Path(folder) / "dayvane"
            shutil.copytree(SOURCES, sources, ignore=shutil.ignore_patterns("build", ".git"), copy_function=shutil.copy)
            # Compiled again and not taken from what the first build has left.
            habits = {"CCACHE_DISABLE": "1", "TZ": "Pacific/Apia", "LC_ALL": "C", "HOME": folder}
            habits["SOURCE_DATE_EPOCH"] = str(date_in_packages())
            output(sources / "package", env={**os.environ, **habits}, umask=0o077)
            again = (sources / "build/packages/SHA256SUMS").read_text(encoding="utf-8")
        self.assertEqual(again, (PACKAGES / "SHA256SUMS").read_text(encoding="utf-8"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
