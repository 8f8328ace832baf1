# SPDX-License-Identifier: Apache-2.0
"""Waiting for a condition, always with an end."""

import time
from collections.abc import Callable
from typing import TypeVar

Result = TypeVar("Result")

PATIENCE = 20.0
"""Seconds after which a condition counts as never coming true."""

INTERVAL = 0.02
"""Seconds between two looks at a condition."""


def wait_until(condition: Callable[[], Result], what: str, patience: float = PATIENCE) -> Result:
    """The first true result of the condition.

    Raises TimeoutError naming `what` when none comes within `patience` seconds.
    """
    end = time.monotonic() + patience
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise TimeoutError(f"not within {patience:g} s: {what}")
        time.sleep(INTERVAL)
