#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""What a whole session leaves on the network and on the disk."""

import re
import unittest
from pathlib import Path

from desktop_test import DesktopTest, workspace_when
from loopback_site import Site
from polling import wait_until
from program import Program
from test_sync import (
    LOOPBACK_PROGRAM,
    PACK_PATH,
    RETIRED_PATH,
    SYNC,
    SYNCED,
    VERSION_PATH,
    newer_pack,
    version_document,
)
from tracing import can_trace, traced, whole
from world import World

SURFACES = ["已收下", "周报", "往期", "信源", "今天"]

PEER = re.compile(
    r"\b(?:connect|sendto|sendmsg|sendmmsg)\(.*?\{sa_family=(?!AF_UNIX|AF_NETLINK)([^}]*)\}"
)
WRITTEN = re.compile(r'\bopenat\((?:AT_FDCWD|\d+)(?:<(.*?)>)?, "([^"]*)", [A-Z_|]*O_(?:WRONLY|RDWR)')


def peers(trace: str) -> set[str]:
    """The addresses outside this machine's own sockets to which something was sent."""
    return {match[1] for match in PEER.finditer(trace)}


def written(trace: str) -> set[Path]:
    """The files opened for writing."""
    return {Path(match[1] or "", match[2]) for match in WRITTEN.finditer(trace)}


class ConnectionsTest(DesktopTest):
    def test_a_session_reads_three_documents_of_the_site_and_nothing_else(self):
        documents = {
            VERSION_PATH: version_document(),
            PACK_PATH: newer_pack(),
            RETIRED_PATH: b'{"signals": []}',
        }
        with Site(documents) as site, self.world() as world:
            traceable = can_trace(world)
            start, trace = traced(LOOPBACK_PROGRAM, world, "network,openat")
            program = world.start(start if traceable else LOOPBACK_PROGRAM, site=site.origin)
            self.go_through(program, world)
            self.assertEqual(0, program.close())

            requests = [f"GET {path} HTTP/1.1" for path in (VERSION_PATH, PACK_PATH, RETIRED_PATH)]
            self.assertEqual(requests, site.request_lines)
            if not traceable:
                print("skipped, as no process can be traced here: other connections, files written")
                return
            self.check(whole(trace, program), site, world)

    def go_through(self, program: Program, world: World) -> None:
        program.wait_for("新版本 1.3.0 已发布")
        program.wait_for(SYNC, "push button").press()
        program.wait_for(SYNCED)
        for surface in SURFACES:
            program.wait_for(surface, "page tab").press()
            wait_until(
                lambda: "selected" in program.wait_for(surface, "page tab").states,
                f"the surface {surface} shows",
            )
        program.wait_for_beginning("收下并持续更新：").press()
        workspace_when(world.data_home, lambda w: w["saved"], "the card is stored")
        program.wait_for_beginning("看原文：").press()
        wait_until(world.opened_addresses, "the browser is asked")

    def check(self, trace: str, site: Site, world: World) -> None:
        port = site.origin.rpartition(":")[2]
        address = f'AF_INET, sin_port=htons({port}), sin_addr=inet_addr("127.0.0.1")'
        self.assertEqual({address}, peers(trace))

        data = world.data_home / "Corvanite/Information"
        files = written(trace)
        self.assertIn(data / ".lock", files)
        platform = (world.home / ".cache", Path("/dev"))
        for file in files - {world.opened_record}:
            own = file.parent == data
            self.assertTrue(own or any(file.is_relative_to(folder) for folder in platform), file)


if __name__ == "__main__":
    unittest.main()
