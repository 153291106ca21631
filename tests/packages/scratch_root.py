"""A small system of its own, with nothing in it but what its distribution calls essential, what a package depends on,
and a screen; as root in it, packages are installed and removed, and a user who is not root works there.

    enter_namespaces_with(base(["libc6 (>= 2.34)", "xvfb"]))
    with ScratchRoot(base(["libc6 (>= 2.34)", "xvfb"])) as root:
        root.run(["dpkg", "--install", "/tmp/dayvane.deb"])

It is made from the same package sources as the machine's, kept in build/package-test as long as what it is made of
stays the same, and unpacked anew for each. What runs in it sees no process and no network of the machine.
"""

import hashlib
import os
import pathlib
import shutil
import stat
import sys
import tempfile

from packages import SOURCES, output

FOLDER = SOURCES / "build/package-test"
ENTERED = "DAYVANE_IN_NAMESPACES"
USER = 1000  # the user who works in it, and its group
SEARCHED = "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin"
DEVICES = ("null", "zero", "full", "random", "urandom")
# What package tools write on their own account. Their caches of icons and menus are looked at.
OWN_STATE = ("var/lib/dpkg", "var/log", "var/cache/ldconfig", "var/lib/apt", "proc", "dev", "tmp", "home")


def enter_namespaces_with(archive):
    """Begins this program anew in namespaces of mounts, processes and networks of its own, as root there, which anybody
    may be. The archive of the system has to be there before, because it comes over the network."""
    if ENTERED in os.environ:
        return
    assert archive.exists()
    to_be_root = [] if os.geteuid() == 0 else ["--user", "--map-root-user", "--map-auto"]
    own = ["--mount", "--propagation=private", "--pid", "--fork", "--kill-child", "--ipc", "--net", "--mount-proc"]
    os.environ[ENTERED] = "yes"
    os.execvp("unshare", ["unshare", *to_be_root, *own, "--", sys.executable, "-B", *sys.argv])


def package_sources():
    """The lines of the package sources that belong to the machine's own release."""
    release = output("sh", "-c", '. /etc/os-release; echo "$VERSION_CODENAME"').strip()
    form = "deb $(REPO_URI) $(RELEASE) $(COMPONENT)"
    lines = output("apt-get", "indextargets", "--format", form, "Created-By: Packages").splitlines()
    own = [line for line in lines if line.split()[2].startswith(release)]
    if not own:
        raise AssertionError(f"apt knows of no packages for {release}")
    return sorted(set(own))


def base(dependencies):
    """The archive of a system with what these dependencies ("libc6 (>= 2.34)") name; made where there is none yet, which
    takes a minute or two."""
    lines = package_sources()
    key = hashlib.sha256("\n".join([*lines, *sorted(dependencies)]).encode()).hexdigest()[:16]
    archive = FOLDER / f"base-{key}.tar"
    if archive.exists():
        return archive
    shutil.rmtree(FOLDER, ignore_errors=True)
    FOLDER.mkdir(parents=True)
    unfinished = archive.with_suffix(".unfinished.tar")
    packages = [dependency.partition(" ")[0] for dependency in dependencies]
    command = ["mmdebstrap", "--variant=apt", f"--include={','.join(packages)}", "--quiet"]
    command += ["--aptopt=APT::Install-Recommends false"]
    command += [f'--customize-hook=chroot "$1" useradd --uid {USER} --user-group --create-home ana']
    release = lines[0].split()[2].partition("-")[0]
    output(*command, release, unfinished, "-", input="\n".join(lines) + "\n")
    unfinished.rename(archive)
    return archive


class ScratchRoot:
    def __init__(self, archive):
        self._archive = archive
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="root-", dir=FOLDER))
        self.path.chmod(0o755)

    def __enter__(self):
        output("tar", "--extract", "--numeric-owner", "--exclude=./dev/*", "-f", self._archive, "-C", self.path)
        for device in DEVICES:
            (self.path / "dev" / device).touch()
            output("mount", "--bind", f"/dev/{device}", self.path / "dev" / device)
        output("mount", "-t", "tmpfs", "tmpfs", self.path / "tmp", "-o", "mode=1777")
        output("mount", "--rbind", "/proc", self.path / "proc")
        return self

    def __exit__(self, kind, error, trace):
        output("umount", "--recursive", "--lazy", *(self.path / name for name in ("proc", "tmp")))
        output("umount", *(self.path / "dev" / device for device in DEVICES))
        shutil.rmtree(self.path)

    def run(self, command):
        """Runs a command as root of that system, and returns what it printed."""
        environment = {"PATH": SEARCHED, "LC_ALL": "C.UTF-8", "DEBIAN_FRONTEND": "noninteractive"}
        return output("chroot", self.path, *command, env=environment)

    def share(self, folder):
        """Shows a folder of the machine below the same path there."""
        below = self.path / str(folder).lstrip("/")
        below.mkdir(parents=True)
        output("mount", "--bind", folder, below)

    def files(self):
        """All files by their paths, with what they are: kind and rights, owner, content."""
        own_state = tuple(str(self.path / name) for name in OWN_STATE)
        found = {}
        for folder, folders, names in os.walk(self.path):
            folders[:] = [name for name in folders if not os.path.join(folder, name).startswith(own_state)]
            for name in [*folders, *names]:
                path = os.path.join(folder, name)
                found[os.path.relpath(path, self.path)] = _described(path)
        return found


def _described(path):
    status = os.lstat(path)
    content = ""
    if stat.S_ISLNK(status.st_mode):
        content = os.readlink(path)
    elif stat.S_ISREG(status.st_mode):
        with open(path, "rb") as file:
            content = hashlib.sha256(file.read()).hexdigest()
    return stat.filemode(status.st_mode), status.st_uid, status.st_gid, content
