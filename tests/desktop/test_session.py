#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""How the program goes along with the session it runs in: by which way it reaches the network, and
how it ends when it is asked to."""

import os
import signal
import socket
import tempfile
import unittest
from pathlib import Path

from own_process import OwnProcess
from polling import PATIENCE

PROGRAM = Path(os.environ["CORVANITE_PROGRAM"])

ENDING = (signal.SIGTERM, signal.SIGHUP, signal.SIGINT)


class SessionTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.proxy = socket.create_server(("127.0.0.1", 0))
        self.addCleanup(self.proxy.close)
        self.proxy.settimeout(PATIENCE)

    def start(self) -> OwnProcess:
        port = self.proxy.getsockname()[1]
        process = OwnProcess(
            [str(PROGRAM)],
            {
                "PATH": os.environ["PATH"],
                "HOME": str(self.folder),
                "XDG_RUNTIME_DIR": str(self.folder),
                "QT_QPA_PLATFORM": "offscreen",
                "https_proxy": f"http://127.0.0.1:{port}",
            },
            self.folder / "messages",
        )
        self.addCleanup(process.stop)
        return process

    def first_request(self) -> bytes:
        """The first line that reaches the proxy, which the window has then been painted for."""
        connection, _ = self.proxy.accept()
        with connection:
            connection.settimeout(PATIENCE)
            return connection.makefile("rb").readline()

    def test_the_network_is_reached_by_the_proxy_of_the_session(self):
        self.start()

        self.assertEqual(b"CONNECT corvanite.example:443 HTTP/1.1\r\n", self.first_request())

    def test_it_ends_as_by_its_button_when_it_is_asked_to(self):
        for number in ENDING:
            with self.subTest(number.name):
                process = self.start()
                self.first_request()

                os.kill(process.pid, number)

                self.assertEqual(0, process.wait(PATIENCE))
                self.assertEqual("", process.output.read_text())


if __name__ == "__main__":
    unittest.main()
