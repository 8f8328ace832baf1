# SPDX-License-Identifier: Apache-2.0
"""Short helper commands, always with an end."""

import subprocess
from collections.abc import Mapping, Sequence

PATIENCE = 20.0


class CommandFailed(Exception):
    pass


def answer_of(command: Sequence[str], environment: Mapping[str, str]) -> bytes:
    """What the command prints; raises CommandFailed when it fails."""
    done = subprocess.run(
        command,
        env=dict(environment),
        stdin=subprocess.DEVNULL,
        capture_output=True,
        timeout=PATIENCE,
    )
    if done.returncode != 0:
        raise CommandFailed(f"{' '.join(command)}: {done.stderr.decode(errors='replace')}")
    return done.stdout


def succeeds(command: Sequence[str], environment: Mapping[str, str]) -> bool:
    try:
        answer_of(command, environment)
    except CommandFailed:
        return False
    return True
