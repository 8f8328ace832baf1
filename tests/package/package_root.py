# SPDX-License-Identifier: Apache-2.0
"""A throw-away root over a prepared one: what happens in it leaves no trace."""

import configparser
import os
import shlex
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
READER = 1000
"""Of the ordinary user in the root."""

ENTRY = "usr/share/applications/example.corvanite.information.desktop"

PATIENCE = 300


class PackageRoot:
    """Use it in a `with`, as root, in a mount namespace of its own."""

    def __init__(self, prepared: Path):
        self._prepared = prepared
        self._mounts: list[Path] = []

    def __enter__(self) -> "PackageRoot":
        self._folder = Path(tempfile.mkdtemp(prefix="package-"))
        # Ordinary users have to get through.
        self._folder.chmod(0o755)
        self.path, upper, work, self.shared = (
            self._folder / name for name in ("root", "upper", "work", "shared"))
        for folder in (self.path, upper, work, self.shared):
            folder.mkdir()
        os.chown(self.shared, READER, READER)
        layers = f"lowerdir={self._prepared},upperdir={upper},workdir={work}"
        self._mount(self.path, "-t", "overlay", "-o", layers, "overlay")
        # What a program and the desktop outside of the root talk through has one path in both.
        inside = self.path / self.shared.relative_to("/")
        inside.mkdir(parents=True)
        self._mount(inside, "--bind", self.shared)
        self._mount(self.path / "proc", "-t", "proc", "proc")
        self._mount(self.path / "dev", "--rbind", "/dev")
        return self

    def __exit__(self, *_) -> None:
        for mounted in reversed(self._mounts):
            subprocess.run(["umount", "--lazy", mounted], check=True)
        shutil.rmtree(self._folder)

    def _mount(self, place: Path, *arguments) -> None:
        subprocess.run(["mount", *arguments, place], check=True)
        self._mounts.append(place)

    def run(self, *command, cwd: str = "/", stdin: str | None = None) -> str:
        """What the command prints that root runs in there; it has to succeed."""
        done = subprocess.run(
            ["chroot", self.path, "env", "-C", cwd, "DEBIAN_FRONTEND=noninteractive",
             "LC_ALL=C.UTF-8", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", *command],
            input=stdin, capture_output=True, text=True, timeout=PATIENCE)
        if done.returncode != 0:
            raise AssertionError(f"{command}: {done.stdout}{done.stderr}")
        return done.stdout

    def install(self, package: Path) -> None:
        copy = self.path / "package.deb"
        shutil.copy(package, copy)
        self.run("dpkg", "--install", "/package.deb")
        copy.unlink()

    def file(self, path: str) -> Path:
        """From outside, what is at the path in there."""
        return self.path / path.lstrip("/")

    def exec_line(self) -> list[str]:
        """What the menu starts."""
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(self.path / ENTRY, encoding="utf-8")
        return shlex.split(entry["Desktop Entry"]["Exec"])

    def read_as_reader(self, step: str, *arguments: str) -> str:
        """Lets the reader start the program from its menu entry and take the step of reader.py;
        what that prints."""
        environment = {"PATH": os.environ["PATH"], "TMPDIR": str(self.shared)}
        start = self.shared / "start"
        start.write_text(
            "#!/bin/sh\nexec unshare --map-current-user "
            f"--root={self.path} --wd=/home/reader {shlex.join(self.exec_line())}\n")
        start.chmod(0o755)
        done = subprocess.run(
            ["setpriv", f"--reuid={READER}", f"--regid={READER}", "--clear-groups",
             sys.executable, HERE / "reader.py", start, step, *arguments],
            env=environment, capture_output=True, text=True, timeout=PATIENCE)
        if done.returncode != 0:
            raise AssertionError(f"{step}: {done.stdout}{done.stderr}")
        return done.stdout.strip()
