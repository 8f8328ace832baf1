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

from desk import TOOLS, Desk, memory_bytes, processor_seconds, started_by, wake_ups
from full_pack import write_full_data
from table import Row, shown

from commands import answer_of
from own_process import OwnProcess
from polling import wait_until

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
            processes = started.processes()
            self.figures.append(
                Figures(
                    content_ms=content * 1e3,
                    content_processor_ms=processor * 1e3,
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
        return Instructions(
            self._instructions(lambda started: None), self._instructions(wait_for_rest)
        )

    def _instructions(self, wait: "Callable[[Started], None]") -> float:
        """Counted from the start until the content stands, and the wait is over."""
        counts = self._desk.folder / "callgrind"
        callgrind = ["valgrind", "--tool=callgrind", f"--callgrind-out-file={counts}"]
        with Started(self._probe([*callgrind, *self.subject.command])) as started:
            started.wait_for_content(UNDER_CALLGRIND)
            wait(started)
            os.kill(started.pid, END)
            started.wait_for_end()
        totals = [line for line in counts.read_text().splitlines() if line.startswith("totals:")]
        return int(totals[0].split()[1]) / 1e6

    def _probe(self, command: Sequence[str]) -> OwnProcess:
        probe = [str(TOOLS / "start_probe"), str(self._picture)]
        return self._desk.run("start", [*probe, *command], self.subject.variables)

    def _picture_at_rest(self) -> Path:
        picture = self._desk.folder / f"{self.subject.name}.bgra"
        process = self._desk.run("first", self.subject.command, self.subject.variables)
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

    def processes(self) -> list[int]:
        return started_by(self._probe.pid)

    def wait_for_end(self) -> None:
        self._probe.wait(UNDER_CALLGRIND)

    def _line(self, number: int, patience: float) -> list[str]:
        """A line that the probe prints, among what the program itself does."""

        def printed() -> list[str]:
            lines = self._probe.output.read_text(errors="replace").splitlines(keepends=True)
            mine = [line for line in lines if line.startswith("probe: ") and line.endswith("\n")]
            return mine[number].split()[1:] if len(mine) > number else []

        return wait_until(printed, "the program starts and shows its content", patience)


def wait_for_rest(started: Started) -> None:
    end = time.monotonic() + UNDER_CALLGRIND
    used = 0.0
    while (now := processor_seconds([started.pid])) - used > STILL_WORK:
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


QUANTITIES: list[tuple[str, Callable[[Figures], float], str]] = [
    ("start to content", lambda figures: figures.content_ms, "ms"),
    ("processor until content", lambda figures: figures.content_processor_ms, "ms"),
    ("processor until rest", lambda figures: figures.rest_processor_ms, "ms"),
    ("memory", lambda figures: figures.memory_mb, "MB"),
]

TARGETS = {
    ("start to content", "edition", "empty window"): "at most 1.8",
    ("start to content", "full pack", "edition"): "at most 1.1",
}
AGAINST_TARGETS = {"start to content": "at most 0.25", "memory": "at most 0.6"}


def paired_rows(
    empty: Measured, edition: Measured, full: Measured, others: Sequence[Measured]
) -> list[Row]:
    rows = []
    pairs = [(edition, empty), (full, edition), *[(edition, other) for other in others]]
    for quantity, value, unit in QUANTITIES:
        for subject, limit in pairs:
            values = [value(figures) for figures in subject.figures]
            limits = [value(figures) for figures in limit.figures]
            names = (quantity, subject.subject.name, limit.subject.name)
            target = AGAINST_TARGETS.get(quantity, "") if limit in others else TARGETS.get(names, "")
            rows.append(
                Row(
                    f"{quantity}: {subject.subject.name}",
                    shown(median(values), unit),
                    limit.subject.name,
                    shown(median(limits), unit),
                    f"{median(a / b for a, b in zip(values, limits)):.2f}",
                    target,
                )
            )
    return rows


def instruction_rows(empty: Measured, edition: Measured, full: Measured) -> list[Row]:
    counts = {measured.subject.name: measured.instructions() for measured in (empty, edition, full)}
    rows = []
    for subject, limit, target in [
        ("edition", "empty window", "at most 4.5"),
        ("full pack", "edition", ""),
    ]:
        of_subject, of_limit = counts[subject], counts[limit]
        for until, figure, least, aim in [
            ("content", of_subject.until_content, of_limit.until_content, ""),
            ("rest", of_subject.until_rest, of_limit.until_rest, target),
        ]:
            rows.append(
                Row(
                    f"instructions until {until}: {subject}",
                    shown(figure, "million"),
                    limit,
                    shown(least, "million"),
                    f"{figure / least:.2f}",
                    aim,
                )
            )
    return rows


def idle_row(measured: Measured) -> Row:
    idle = measured.idleness()
    return Row(
        f"{IDLE:g} idle seconds: {measured.subject.name}",
        f"{idle.processor_ms:.1f} ms, {idle.wake_ups} wake-ups",
        target="0 wake-ups",
    )
