# SPDX-License-Identifier: Apache-2.0
"""The program corvanite-edition, called as a curator calls it. Its path is the first argument."""

import json
import subprocess
import sys
from pathlib import Path

SEED = Path(__file__).resolve().parents[2] / "CorvaniteInformationCore/seed"
PACK = "information-pack.json"
RETIRED = "retired-signals.json"
APP_VERSION = "information-app-version.json"
REGISTRY = "registry-sources.json"

PROGRAM = Path(sys.argv[1]).resolve()
sys.argv[1:] = sys.argv[2:]


def call(*arguments, cwd=None) -> subprocess.CompletedProcess:
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True,
                          cwd=cwd, timeout=60)


def seed(name: str) -> dict:
    return json.loads((SEED / name).read_text())


def write(folder, name: str, document) -> Path:
    path = Path(folder) / name
    path.write_text(json.dumps(document, ensure_ascii=False))
    return path


def put(document, path: list, value) -> None:
    """Replaces what stands at the path; None takes it away."""
    for step in path[:-1]:
        document = document[step]
    if value is None:
        del document[path[-1]]
    else:
        document[path[-1]] = value
