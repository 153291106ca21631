"""What a program does to files, as the system saw it: strace writes down every call that names one."""

import os
import pathlib
import re
import typing

from waiting import wait_until

END_SECONDS = 30
LONGEST_TEXT = 16384  # bytes; strace cuts longer ones

# Beside the opening of files: what makes, changes, renames or removes something, by a name or by an open file.
CHANGES = {
    "creat",
    "rename",
    "renameat",
    "renameat2",
    "unlink",
    "unlinkat",
    "rmdir",
    "mkdir",
    "mkdirat",
    "mknod",
    "mknodat",
    "link",
    "linkat",
    "symlink",
    "symlinkat",
    "truncate",
    "ftruncate",
    "chmod",
    "fchmod",
    "fchmodat",
    "chown",
    "fchown",
    "lchown",
    "fchownat",
    "utime",
    "utimes",
    "futimesat",
    "utimensat",
    "setxattr",
    "lsetxattr",
    "fsetxattr",
    "removexattr",
    "lremovexattr",
    "fremovexattr",
    "fallocate",
}
OPENINGS = {"open", "openat", "openat2"}
RUNS = {"execve", "execveat"}
FORKS = {"clone", "clone3", "fork", "vfork"}
FOR_WRITING = re.compile(r"O_(WRONLY|RDWR|CREAT|TRUNC|APPEND)")

CALL = re.compile(r"(\w+)\((.*)\) += (-?\d+)(?:<([^>]*)>)?")
# A folder or file that is open, then a name in it; either may be missing.
PLACE = re.compile(r'(?:AT_FDCWD|\d+)<([^>]*)>(?:, "([^"]*)")?|"([^"]*)"')


class Call(typing.NamedTuple):
    """A call with the full paths that it names, as far as they are known, and the arguments of a program that it
    runs."""

    name: str
    paths: tuple
    arguments: tuple = ()


def plain(hexadecimal):
    """The text behind "\\x2f\\x74…", with strange bytes as Python has them in names."""
    return bytes.fromhex(hexadecimal.replace("\\x", "")).decode("utf-8", "surrogateescape")


class SystemCalls:
    """The record of a program with its threads and children; of a child up to where it becomes another program."""

    def __init__(self, folder, working_folder):
        self._folder = pathlib.Path(folder)
        self._folder.mkdir()
        self._working_folder = str(working_folder)

    def recorded(self, command):
        """A command that runs another as the same process and writes down its calls."""
        calls = ",?".join(sorted(CHANGES | OPENINGS | RUNS | FORKS))
        return [
            "strace",
            "-D",
            "-ff",
            "--seccomp-bpf",
            "-q",
            "-y",
            "-xx",
            "-s",
            LONGEST_TEXT,
            "-e",
            "signal=none",
            "-e",
            f"trace=?{calls}",
            "-o",
            self._folder / "calls",
            *command,
        ]

    def wait_for_end(self, process):
        """Returns when the record of a process that has ended is whole."""
        self._main = self._folder / f"calls.{process.pid}"
        wait_until(lambda: "+++ exited" in self._main.read_text(), END_SECONDS, "the end of the record")

    def changes(self):
        """The calls that were to make, change or remove something, whether or not they could."""
        return [
            call
            for call, line in self._calls()
            if call.name in CHANGES or (call.name in OPENINGS and FOR_WRITING.search(line))
        ]

    def opened(self):
        """The paths that were opened, for whatever purpose."""
        return {path for call, _ in self._calls() if call.name in OPENINGS for path in call.paths}

    def started(self):
        """The other programs that were run: the arguments of each, the first of which is the program."""
        return [call.arguments for call, _ in self._calls() if call.name in RUNS]

    def _calls(self):
        waiting = [self._main]
        while waiting:
            record = waiting.pop(0)
            # What the process was before it became the program is not there: the record begins with that.
            lines = record.read_text().splitlines()[1 if record == self._main else 0 :]
            for name, inside, result, opened, line in self._found(lines):
                if name in FORKS and int(result) > 0:
                    waiting.append(self._folder / f"calls.{result}")
                elif name in RUNS and result == "0":
                    yield self._call(name, inside, opened), line
                    break
                elif name not in FORKS | RUNS:
                    yield self._call(name, inside, opened), line

    @staticmethod
    def _found(lines):
        return [(*found.groups(), line) for line in lines if (found := CALL.match(line))]

    def _call(self, name, inside, opened):
        if name in RUNS:
            program, _, arguments = inside.partition(", [")
            return Call(name, (plain(program.strip('"')),), tuple(map(plain, re.findall(r'"([^"]*)"', arguments))))
        if opened is not None:
            return Call(name, (plain(opened),))
        return Call(name, tuple(self._path(*place.groups()) for place in PLACE.finditer(inside)))

    def _path(self, folder, name, lone_name):
        start = plain(folder) if folder else self._working_folder
        return os.path.normpath(os.path.join(start, plain(name or lone_name or "")))
