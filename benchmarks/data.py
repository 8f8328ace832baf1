# SPDX-License-Identifier: Apache-2.0
"""What the data costs: runs data_benchmark and sets each subject beside its limit."""

import json
import subprocess
import tempfile
from pathlib import Path

from desk import TOOLS
from full_pack import write_full_data
from table import Row, compared

SECONDS_EACH = 0.05
"""How long each subject is repeated in one run."""

FACTORS = {"ms": 1e-6, "µs": 1e-3}

TARGETS = {"decode the pack": "ratio at most 5"}
PROJECTIONS = ("today", "today's focus", "the rest of today", "kept", "following")


def measure_data(runs: int) -> list[Row]:
    with tempfile.TemporaryDirectory(prefix="data-") as folder:
        write_full_data(Path(folder))
        command = [str(TOOLS / "data_benchmark"), folder, f"--benchmark_min_time={SECONDS_EACH}"]
        options = ["format=json", f"repetitions={runs}", "enable_random_interleaving=true"]
        command += [f"--benchmark_{option}" for option in options]
        done = subprocess.run(command, stdout=subprocess.PIPE, check=True)
    benchmarks = json.loads(done.stdout)["benchmarks"]
    medians = {
        entry["run_name"].removesuffix("/real_time"): entry
        for entry in sorted(benchmarks, key=lambda entry: entry["family_index"])
        if entry.get("aggregate_name") == "median"
    }
    return [
        row_of(subject, entry["real_time"], medians[f"{subject} limit"])
        for subject, entry in medians.items()
        if not subject.endswith(" limit")
    ]


def row_of(subject: str, nanoseconds: float, limit: dict) -> Row:
    unit = "ms" if nanoseconds > 1e6 else "µs"
    factor = FACTORS[unit]
    return compared(
        subject, nanoseconds * factor, limit["real_time"] * factor, unit, limit["label"],
        target_of(subject),
    )


def target_of(subject: str) -> str:
    name, _, count = subject.partition(", ")
    if name in PROJECTIONS:
        return "under 2 ms" if count == "700 signals" else "linear"
    return TARGETS.get(subject, "")
