# SPDX-License-Identifier: Apache-2.0
"""Whether a picture of a window is sharp, or was drawn for a smaller scale and blown up."""

from collections.abc import Mapping
from pathlib import Path

from commands import answer_of

SHARP = 2
"""The sharpness above which a picture was not blown up; what was comes to some 1.6."""


def sharpness(picture: Path, scale: float, environment: Mapping[str, str]) -> float:
    """How many times more the picture loses when it is blurred as if it had been drawn for scale 1 than
    when it is blurred so again."""
    size = answer_of(["identify", "-format", "%wx%h!", str(picture)], environment).decode()
    blur = ["-resize", f"{100 / scale}%", "-resize", size]
    difference = ["-compose", "difference", "-composite", "-colorspace", "gray"]

    def loss(*prepared: str) -> float:
        blurred = ["(", "+clone", *blur, ")"]
        command = ["convert", str(picture), *prepared, *blurred, *difference]
        return float(answer_of([*command, "-format", "%[fx:mean]", "info:"], environment))

    return loss() / loss(*blur)
