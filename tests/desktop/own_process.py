# SPDX-License-Identifier: Apache-2.0
"""A process that this one started and that never outlives it."""

import os
import signal
import subprocess
from collections.abc import Mapping, Sequence
from pathlib import Path

FAREWELL = 5.0
"""Seconds a process gets between being asked to end and being killed."""


class OwnProcess:
    """Runs a command in a process group of its own; what it prints goes to a file."""

    def __init__(
        self,
        command: Sequence[str],
        environment: Mapping[str, str],
        output: Path,
        descriptors: Sequence[int] = (),
    ):
        self.output = output
        with output.open("ab") as sink:
            self._popen = subprocess.Popen(
                ["setpriv", "--pdeathsig", "KILL", *command],
                env=dict(environment),
                stdin=subprocess.DEVNULL,
                stdout=sink,
                stderr=sink,
                pass_fds=descriptors,
                start_new_session=True,
            )

    @property
    def pid(self) -> int:
        return self._popen.pid

    def is_running(self) -> bool:
        return self._popen.poll() is None

    def wait(self, patience: float) -> int:
        """The exit status; raises subprocess.TimeoutExpired after `patience` seconds."""
        return self._popen.wait(patience)

    def kill(self) -> None:
        """Ends the process at once, as a crash or a power cut would."""
        self._popen.kill()
        self._popen.wait()

    def stop(self) -> None:
        """Asks the process and its children to end, and kills those that do not."""
        if self.is_running():
            self._signal_group(signal.SIGTERM)
            try:
                self._popen.wait(FAREWELL)
            except subprocess.TimeoutExpired:
                pass
        self._signal_group(signal.SIGKILL)
        self._popen.wait()

    def _signal_group(self, number: signal.Signals) -> None:
        try:
            os.killpg(self._popen.pid, number)
        except ProcessLookupError:
            pass
