# SPDX-License-Identifier: Apache-2.0
"""A program under a trace of its system calls."""

import re
from pathlib import Path

from commands import succeeds
from polling import wait_until
from program import Program
from world import World

# The tracer is a child of the program, which so keeps its process number.
START = """#!/bin/sh
exec strace -D -f -q -y --seccomp-bpf -e trace={calls} -o '{trace}' '{program}'
"""


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
