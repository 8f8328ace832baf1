# SPDX-License-Identifier: Apache-2.0
"""A desktop of its own to measure on, as a reader has it who uses no screen reader."""

import os
import time
from collections.abc import Mapping, Sequence
from pathlib import Path

from own_process import OwnProcess
from world import World

TOOLS = Path(__file__).resolve().parents[1] / "build/release/bin"


class Desk(World):
    def __init__(self, **settings):
        super().__init__(screen_reader=False, **settings)

    def run(
        self, name: str, command: Sequence[str], variables: Mapping[str, str] | None = None
    ) -> OwnProcess:
        environment = self.environment | dict(variables or {})
        return self._run(name, list(command), environment)


def processor_seconds(processes: Sequence[int]) -> float:
    """What the processes have used since they were started."""
    # The number of a process's clock: see clock_getcpuclockid.
    return sum(time.clock_gettime(~process << 3 | 2) for process in processes)


def memory_bytes(processes: Sequence[int]) -> int:
    """Their proportional set size: what several processes share counts in parts."""
    return sum(sum_of(f"/proc/{process}/smaps_rollup", "Pss:") * 1024 for process in processes)


def wake_ups(processes: Sequence[int]) -> int:
    """How often a thread of theirs went on after it had waited."""
    tasks = [task for process in processes for task in Path(f"/proc/{process}/task").iterdir()]
    return sum(sum_of(f"{task}/status", "voluntary_ctxt_switches:") for task in tasks)


def sum_of(file: str, key: str) -> int:
    lines = Path(file).read_text().splitlines()
    return sum(int(line.split()[1]) for line in lines if line.startswith(key))


def started_by(process: int) -> list[int]:
    """The processes in the session that the process leads, but for itself."""
    numbers = [int(entry.name) for entry in Path("/proc").iterdir() if entry.name.isdigit()]
    return [number for number in numbers if number != process and session_of(number) == process]


def session_of(process: int) -> int | None:
    try:
        return os.getsid(process)
    except ProcessLookupError:
        return None
