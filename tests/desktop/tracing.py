# SPDX-License-Identifier: Apache-2.0
"""A program under a trace of its system calls, and what the trace tells."""

import re
from pathlib import Path

from commands import succeeds
from polling import wait_until
from program import Program
from world import World

# Process numbers, the screen's number, and the names of temporary files.
CHANGING = re.compile(r"(/proc/|X11-unix/X|WORLD/run/\.|/\.corvanite-|/at-spi/bus_|@.corvanite-information-\d+-)\w+")

# The tracer is a child of the program, which so keeps its process number.
START = """#!/bin/sh
exec strace -D -f -q -y --seccomp-bpf -e trace={calls} -o '{trace}' '{program}'
"""


OPENS = ["open", "openat", "openat2"]
CHANGES = [
    *["creat", "mkdir", "mkdirat", "mknod", "mknodat", "symlink", "symlinkat", "link", "linkat"],
    *["rename", "renameat", "renameat2", "unlink", "unlinkat", "rmdir", "truncate"],
    *["chmod", "fchmodat", "chown", "lchown", "fchownat"],
    *["utime", "utimes", "futimesat", "utimensat"],
    *["setxattr", "lsetxattr", "removexattr", "lremovexattr"],
]
RECORDED = ",".join(["network", "execve", *OPENS, *CHANGES])
"""What `changes`, `addressed` and `started` go by."""

CALL = re.compile(r"^\d+ +(\w+)\((.*)$", re.MULTILINE)
NAME = re.compile(r'(?:(?:AT_FDCWD|\d+)<([^>]*)>, )?"((?:[^"\\]|\\.)*)"')
WRITES = re.compile(r"\bO_(?:WRONLY|RDWR|CREAT|TRUNC|TMPFILE)\b")
ADDRESSED = re.compile(r"\b(bind|connect|sendto|sendmsg|sendmmsg)\(.*?\{sa_family=([^}]*)\}")
STARTED = re.compile(r'\bexecve\("([^"]*)"')


def can_trace(world: World) -> bool:
    return succeeds(["strace", "-qq", "-o", "/dev/null", "true"], world.environment)


def traced(program: Path, world: World, calls: str) -> tuple[Path, Path]:
    """A start of the program under a trace of the calls that strace names so, and the file of the
    trace."""
    trace = world.folder / "trace"
    start = world.folder / "traced-start"
    start.write_text(START.format(calls=calls, trace=trace, program=program))
    start.chmod(0o700)
    return start, trace


def whole(trace: Path, program: Program) -> str:
    """The trace of a program that has ended."""
    # A short process number is filled up with spaces.
    ended = re.compile(rf"^{program.process.pid} +\+\+\+ exited with 0 ", re.MULTILINE)
    wait_until(lambda: ended.search(trace.read_text(errors="replace")), "the trace is complete")
    return trace.read_text(errors="replace")


def normalised(text: str, world: World) -> str:
    """Without what differs from one start to the next."""
    text = text.replace(str(world.folder), "WORLD")
    return CHANGING.sub(r"\1*", text)


def changes(trace: str, world: World) -> set[str]:
    """Every call that was to change what is on a disk, whether it did or not, with the names that
    it gave."""
    return {
        normalised(" ".join([call, *(str(Path(*name)) for name in NAME.findall(arguments))]), world)
        for call, arguments in CALL.findall(trace)
        if call in CHANGES or (call in OPENS and WRITES.search(arguments))
    }


def addressed(trace: str, world: World) -> set[str]:
    """Every call that gave an address to be reached at, to connect to or to send to."""
    return {normalised(" ".join(match), world) for match in ADDRESSED.findall(trace)}


def started(trace: str, world: World) -> set[str]:
    return {normalised(file, world) for file in STARTED.findall(trace)}
