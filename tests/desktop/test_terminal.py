#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""What the program says on the terminal, and how a second start meets the first."""

import fcntl
import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

from own_process import OwnProcess
from polling import wait_until

PROGRAM = Path(os.environ["CORVANITE_PROGRAM"])

PATIENCE = 60.0

WITHOUT_DISPLAY = {"PATH": os.environ["PATH"]}


def answer(*arguments: str, environment: dict[str, str] = WITHOUT_DISPLAY) -> tuple[int, str, str]:
    """Exit status, output, error output."""
    done = subprocess.run(
        [PROGRAM, *arguments],
        env=environment,
        stdin=subprocess.DEVNULL,
        capture_output=True,
        encoding="utf-8",
        timeout=PATIENCE,
    )
    return done.returncode, done.stdout, done.stderr


class OptionsTest(unittest.TestCase):
    def test_says_how_it_is_used(self):
        for option in ("--help", "-h"):
            status, output, error = answer(option)
            self.assertEqual((0, ""), (status, error))
            self.assertTrue(output.startswith("用法：corvanite-information [选项]\n"))

    def test_says_its_version(self):
        for option in ("--version", "-v"):
            status, output, error = answer(option)
            self.assertEqual((0, ""), (status, error))
            self.assertRegex(output, r"^Corvanite Information \d+\.\d+\.\d+\n$")

    def test_refuses_what_it_does_not_know(self):
        for argument in ("--unknown", "-x", "pack.json", ""):
            status, output, error = answer(argument)
            self.assertEqual((2, ""), (status, output))
            self.assertIn(f"“{argument}”", error)
            self.assertIn("--help", error)


class ExportTest(unittest.TestCase):
    def test_writes_what_is_kept_without_a_display(self):
        with tempfile.TemporaryDirectory() as folder:
            environment = {**WITHOUT_DISPLAY, "XDG_DATA_HOME": folder}
            self.assertEqual(
                (0, "# 已收下\n", ""), answer("--export-kept", "-", environment=environment))
            file = Path(folder) / "kept.json"
            self.assertEqual(0, answer("--export-kept", str(file), environment=environment)[0])
            self.assertEqual([], json.loads(file.read_text())["threads"])
            self.assertEqual([file], list(Path(folder).iterdir()))

    def test_says_when_nobody_takes_the_output(self):
        with open("/dev/full", "w") as full:
            done = subprocess.run([PROGRAM, "--export-kept", "-"], env=WITHOUT_DISPLAY | {
                "HOME": "/nonexistent"}, stdout=full, stderr=subprocess.PIPE, timeout=PATIENCE)
        self.assertEqual(1, done.returncode)


class SecondStartTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        # Too long for the path of a socket.
        self.home = self.folder / "/".join(["a-folder-of-a-deep-home"] * 8)
        self.home.mkdir(parents=True)
        self.environment = {
            **WITHOUT_DISPLAY,
            "HOME": str(self.home),
            "QT_QPA_PLATFORM": "offscreen",
        }
        self.directory = self.home / ".local/share/Corvanite/Information"

    def test_meets_the_first_whatever_its_environment_names(self):
        runtime = self.folder / "runtime"
        runtime.mkdir(0o700)
        first = OwnProcess(
            [str(PROGRAM)],
            {**self.environment, "XDG_RUNTIME_DIR": str(runtime)},
            self.folder / "first",
        )
        self.addCleanup(first.stop)
        wait_until((self.directory / ".lock").exists, "the lock is made")

        for others in (
            {"XDG_RUNTIME_DIR": str(runtime)},
            {"XDG_RUNTIME_DIR": str(self.folder)},
            {"XDG_RUNTIME_DIR": "/proc/nowhere"},
            {},
        ):
            with self.subTest(others):
                status, _, error = answer(environment={**self.environment, **others})
                self.assertEqual(0, status, error)
        self.assertTrue(first.is_running())

    def test_says_that_the_first_does_not_answer(self):
        self.directory.mkdir(parents=True)
        with (self.directory / ".lock").open("w") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)

            status, output, error = answer(environment=self.environment)

        self.assertEqual((1, ""), (status, output))
        self.assertIn("信息工作台已经在运行，但没有回应；这次没有打开窗口。", error)


if __name__ == "__main__":
    unittest.main()
