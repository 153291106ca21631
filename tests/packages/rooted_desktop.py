"""A private desktop whose screen, bus and programs run in a scratch root, as its user who is not root."""

import contextlib
import os
import subprocess

from private_desktop import START_SECONDS, PrivateDesktop
from scratch_root import SEARCHED, USER


class RootedDesktop(PrivateDesktop):
    def __init__(self, root):
        super().__init__()
        self._root = root
        root.share(self.folder)
        os.chown(self.folder, USER, USER)
        self.environment["PATH"] = SEARCHED

    def run(self, command, timeout=START_SECONDS, check=True):
        with open(self.log, "ab") as log:
            return subprocess.run(
                self._inside(command),
                stdin=subprocess.DEVNULL,
                stdout=subprocess.PIPE,
                stderr=log,
                env=self.environment,
                timeout=timeout,
                check=check,
                text=True,
            ).stdout

    @contextlib.contextmanager
    def as_user(self):
        """What is written meanwhile belongs to the user, whom programs of the desktop are run by."""
        os.setegid(USER)
        os.seteuid(USER)
        try:
            yield
        finally:
            os.seteuid(0)
            os.setegid(0)

    def _make_folders(self):
        with self.as_user():
            super()._make_folders()

    def _spawn(self, command, **options):
        return super()._spawn(self._inside(command), **options)

    def _inside(self, command):
        programs = [str(part) for part in command]
        return ["chroot", f"--userspec={USER}:{USER}", self._root.path, "env", f"--chdir={self.home}", *programs]
