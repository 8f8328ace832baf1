# SPDX-License-Identifier: Apache-2.0
"""From the start of a program to its content, and what it uses until then and at rest.

All subjects start one after the other in every round, so that what disturbs the machine disturbs
all of them; a ratio is the median of the rounds' ratios.
"""

import os
import signal
import time
from collections.abc import Callable, Mapping, Sequence
from dataclasses import dataclass, field
from pathlib import Path
from statistics import median

from commands import answer_of
from desk import TOOLS, Desk, memory_bytes, processor_seconds, started_by, wake_ups
from full_pack import write_full_data
from own_process import OwnProcess
from polling import wait_until
from table import Row, compared, shown

SCREEN = (1280, 800)
SETTLING = 5.0
"""Seconds after which a program counts as at rest."""
IDLE = 10.0
"""Seconds for which it is watched then."""

UNDER_CALLGRIND = 300.0
"""Seconds that a start under callgrind may take."""
STILL = 2.0
"""Seconds without work after which a program is at rest under callgrind."""
STILL_WORK = 0.05
"""Processor seconds in that time that count as none."""
END = signal.SIGVTALRM
"""No program minds it, and callgrind writes down what it has counted when it comes."""


@dataclass(frozen=True)
class Subject:
    name: str
    command: Sequence[str]
    variables: Mapping[str, str] = field(default_factory=dict)


@dataclass(frozen=True)
class Figures:
    """Of one start."""

    content_ms: float
    content_processor_ms: float
    whole_ms: float | None
    """None where what stands there at rest is not the same after every start."""
    rest_processor_ms: float
    memory_mb: float


@dataclass(frozen=True)
class Instructions:
    """Of one start, in millions."""

    until_content: float
    until_rest: float


@dataclass(frozen=True)
class Idleness:
    processor_ms: float
    wake_ups: int


class Measured:
    def __init__(self, desk: Desk, subject: Subject):
        self._desk = desk
        self.subject = subject
        self.figures: list[Figures] = []
        self._picture = self._picture_at_rest()

    def start(self) -> None:
        """One more start."""
        with Started(self._probe(self.subject.command)) as started:
            content, processor = started.wait_for_content(SETTLING * 4)
            time.sleep(SETTLING)
            whole = started.whole()
            processes = started.processes()
            self.figures.append(
                Figures(
                    content_ms=content * 1e3,
                    content_processor_ms=processor * 1e3,
                    whole_ms=whole and whole * 1e3,
                    rest_processor_ms=processor_seconds(processes) * 1e3,
                    memory_mb=memory_bytes(processes) / 1e6,
                )
            )

    def idleness(self) -> Idleness:
        with Started(self._probe(self.subject.command)) as started:
            started.wait_for_content(SETTLING * 4)
            time.sleep(SETTLING)
            return idleness_of(started.processes())

    def instructions(self) -> Instructions:
        return Instructions(self._instructions(to_rest=False), self._instructions(to_rest=True))

    def _instructions(self, to_rest: bool) -> float:
        counts = self._desk.folder / "callgrind"
        callgrind = ["valgrind", "--tool=callgrind", f"--callgrind-out-file={counts}"]
        with Started(self._probe([*callgrind, *self.subject.command])) as started:
            started.wait_for_content(UNDER_CALLGRIND)
            if to_rest:
                wait_for_rest(started.pid)
            os.kill(started.pid, END)
            started.wait_for_end()
        totals = [line for line in counts.read_text().splitlines() if line.startswith("totals:")]
        return int(totals[0].split()[1]) / 1e6

    def _probe(self, command: Sequence[str]) -> OwnProcess:
        probe = [str(TOOLS / "start_probe"), str(self._picture)]
        return self._desk.run("start", [*probe, *command], self.subject.variables)

    def _picture_at_rest(self) -> Path:
        process = self._desk.run("first", self.subject.command, self.subject.variables)
        picture = self._desk.folder / f"at-rest-{process.pid}.bgra"
        time.sleep(SETTLING)
        take = ["import", "-window", "root", "-depth", "8", f"bgra:{picture}"]
        answer_of(take, self._desk.environment)
        process.stop()
        return picture


class Started:
    """A start under the probe, which ends with the `with`."""

    def __init__(self, probe: OwnProcess):
        self._probe = probe
        self.pid = int(self._line(0, 5)[0])

    def __enter__(self) -> "Started":
        return self

    def __exit__(self, *_) -> None:
        self._probe.stop()

    def wait_for_content(self, patience: float) -> tuple[float, float]:
        """Seconds since the start, and processor seconds until then."""
        seconds, processor = self._line(1, patience)
        return float(seconds), float(processor)

    def whole(self) -> float | None:
        """Seconds from the start until nearly all of the content stood there, if it has."""
        lines = self._lines()
        return float(lines[2][0]) if len(lines) > 2 else None

    def processes(self) -> list[int]:
        return started_by(self._probe.pid)

    def wait_for_end(self) -> None:
        self._probe.wait(UNDER_CALLGRIND)

    def _line(self, number: int, patience: float) -> list[str]:
        """A line that the probe prints, among what the program itself does."""

        def printed() -> list[str]:
            lines = self._lines()
            return lines[number] if len(lines) > number else []

        return wait_until(printed, "the program starts and shows its content", patience)

    def _lines(self) -> list[list[str]]:
        lines = self._probe.output.read_text(errors="replace").splitlines(keepends=True)
        mine = [line for line in lines if line.startswith("probe: ") and line.endswith("\n")]
        return [line.split()[1:] for line in mine]


def wait_for_rest(process: int) -> None:
    end = time.monotonic() + UNDER_CALLGRIND
    used = 0.0
    while (now := processor_seconds([process])) - used > STILL_WORK:
        if time.monotonic() > end:
            raise TimeoutError("the program does not come to rest")
        used = now
        time.sleep(STILL)


def idleness_of(processes: Sequence[int]) -> Idleness:
    processor = processor_seconds(processes)
    woken = wake_ups(processes)
    time.sleep(IDLE)
    return Idleness(
        (processor_seconds(processes) - processor) * 1e3, wake_ups(processes) - woken
    )


def measure_start(program: Path, against: Sequence[Sequence[str]], runs: int) -> list[Row]:
    with Desk(screen=SCREEN) as desk:
        full_home = desk.folder / "full"
        write_full_data(full_home)
        empty = Measured(desk, Subject("empty window", [str(TOOLS / "empty_window")]))
        edition = Measured(desk, Subject("edition", [str(program)]))
        full = Measured(
            desk, Subject("full pack", [str(program)], {"XDG_DATA_HOME": str(full_home)})
        )
        others = [
            Measured(desk, Subject(Path(command[0]).name, command)) for command in against
        ]
        subjects = [empty, edition, full, *others]
        for _ in range(runs):
            for subject in subjects:
                subject.start()
        return [
            *paired_rows(empty, edition, full, others),
            *instruction_rows(empty, edition, full),
            *[idle_row(subject) for subject in subjects],
        ]


@dataclass(frozen=True)
class Quantity:
    name: str
    of: Callable[[Figures], float | None]
    unit: str
    targets: Mapping[str, str] = field(default_factory=dict)
    """By what the subject is compared with; "" for every other program."""


QUANTITIES = [
    Quantity(
        "start to content",
        lambda figures: figures.content_ms,
        "ms",
        {"empty window": "at most 1.8", "edition": "at most 1.1", "": "at most 0.25"},
    ),
    Quantity("start to all of it", lambda figures: figures.whole_ms, "ms"),
    Quantity("processor until content", lambda figures: figures.content_processor_ms, "ms"),
    Quantity("processor until rest", lambda figures: figures.rest_processor_ms, "ms"),
    Quantity("memory", lambda figures: figures.memory_mb, "MB", {"": "at most 0.6"}),
]


def paired_rows(
    empty: Measured, edition: Measured, full: Measured, others: Sequence[Measured]
) -> list[Row]:
    pairs = [(edition, empty, empty.subject.name), (full, edition, edition.subject.name)]
    pairs += [(edition, other, "") for other in others]
    return [
        paired_row(quantity, subject, limit, quantity.targets.get(kind, ""))
        for quantity in QUANTITIES
        for subject, limit, kind in pairs
        if None not in map(quantity.of, subject.figures + limit.figures)
    ]


def paired_row(quantity: Quantity, subject: Measured, limit: Measured, target: str) -> Row:
    values = [quantity.of(figures) for figures in subject.figures]
    limits = [quantity.of(figures) for figures in limit.figures]
    return Row(
        f"{quantity.name}: {subject.subject.name}",
        shown(median(values), quantity.unit),
        limit.subject.name,
        shown(median(limits), quantity.unit),
        f"{median(a / b for a, b in zip(values, limits)):.2f}",
        target,
    )


def instruction_rows(empty: Measured, edition: Measured, full: Measured) -> list[Row]:
    of_empty, of_edition, of_full = (
        measured.instructions() for measured in (empty, edition, full)
    )
    rows = []
    for name, counts, limit_name, limits, target in [
        ("edition", of_edition, "empty window", of_empty, "at most 4.5"),
        ("full pack", of_full, "edition", of_edition, ""),
    ]:
        rows += [
            compared(
                f"instructions until content: {name}", counts.until_content,
                limits.until_content, "million", limit_name,
            ),
            compared(
                f"instructions until rest: {name}", counts.until_rest, limits.until_rest,
                "million", limit_name, target,
            ),
        ]
    return rows


def idle_row(measured: Measured) -> Row:
    idle = measured.idleness()
    return Row(
        f"{IDLE:g} idle seconds: {measured.subject.name}",
        f"{idle.processor_ms:.1f} ms, {idle.wake_ups} wake-ups",
        target="0 wake-ups",
    )
