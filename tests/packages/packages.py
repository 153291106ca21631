"""The packages in build/packages, as ./package leaves them."""

import os
import pathlib
import subprocess
import tarfile

SOURCES = pathlib.Path(os.environ["DAYVANE_SOURCE_FOLDER"])
PACKAGES = SOURCES / "build/packages"


def package(pattern, folder=PACKAGES):
    """The one package whose name is like this: "*.deb"."""
    found = list(folder.glob(pattern))
    if len(found) != 1:
        raise AssertionError(f"{pattern}: not one package but {[path.name for path in found]}")
    return found[0]


def output(*command, **options):
    """What a command prints; an error with what it said when it fails."""
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command[0]} ended with {done.returncode}:\n{done.stdout}{done.stderr}")
    return done.stdout


def version():
    """The version of the build, without what belongs to a package."""
    cache = (SOURCES / "build/package/CMakeCache.txt").read_text(encoding="utf-8")
    return next(line.partition("=")[2] for line in cache.splitlines() if line.startswith("CMAKE_PROJECT_VERSION:"))


def package_environment():
    """What the commands that make packages are told, so that the dates are those of the packages here."""
    return {**os.environ, "SOURCE_DATE_EPOCH": str(date_in_packages())}


def date_in_packages():
    """The date of every file in the packages, in seconds since 1970."""
    with tarfile.open(package("*.tar.gz")) as archive:
        return int(archive.next().mtime)
