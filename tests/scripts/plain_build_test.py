"""Dayvane configured without its presets, as a distributor does it."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SOURCES, COMPILER = sys.argv[1:3]
TESTS_PACKAGES = ("GTest", "Qt6Test")


class PlainBuildTest(unittest.TestCase):
    def configure(self, *definitions):
        """Configures as if the tests' packages were not there, and returns what would be run to build."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        missing = [f"-DCMAKE_DISABLE_FIND_PACKAGE_{package}=ON" for package in TESTS_PACKAGES]
        command = ["cmake", "-G", "Ninja", "-S", SOURCES, "-B", folder.name, f"-DCMAKE_CXX_COMPILER={COMPILER}"]
        result = subprocess.run([*command, *missing, *definitions], capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertNotIn("FIU_", (pathlib.Path(folder.name) / "CMakeCache.txt").read_text(encoding="utf-8"))
        return (pathlib.Path(folder.name) / "CMakeFiles/rules.ninja").read_text(encoding="utf-8")

    def test_needs_no_package_of_the_tests_and_no_launcher(self):
        self.assertNotIn("ccache", self.configure("-DCMAKE_CXX_COMPILER_LAUNCHER="))

    def test_compiles_with_the_launcher_that_the_user_names(self):
        rules = self.configure("-DCMAKE_CXX_COMPILER_LAUNCHER=/usr/bin/env")
        self.assertIn("/usr/bin/env", rules)
        self.assertNotIn("ccache", rules)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
