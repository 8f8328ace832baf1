#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""What a whole session leaves on the network and on the disk."""

import os
import unittest

from desktop_test import DesktopTest, workspace_when
from loopback_site import Site, new_certificate
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
from tracing import RECORDED, addressed, can_trace, changes, started, traced, whole
from world import World

SURFACES = ["已收下", "周报", "往期", "信源", "今天"]

DATA = "WORLD/home/.local/share/Corvanite/Information"
TEMPORARY = f"{DATA}/.corvanite-*.tmp"

CHANGES = {
    # Of the platform, which makes sure that its folder is there.
    "mkdir WORLD/run",
    # The reader's.
    "mkdir WORLD/home/.local/share/Corvanite",
    f"mkdir {DATA}",
    f"openat {DATA}/.lock",
    f"openat {TEMPORARY}",
    f"renameat {TEMPORARY} {DATA}/information-pack.json",
    f"renameat {TEMPORARY} {DATA}/retired-signals.json",
    f"renameat {TEMPORARY} {DATA}/workspace-v1.json",
    # Of the browser, which notes the address.
    "openat WORLD/opened",
}
"""Every call of a session that changes what is on a disk, and every name that it gives."""

STARTED = {str(LOOPBACK_PROGRAM), "WORLD/commands/xdg-open"}

BOUND = {f'bind AF_UNIX, sun_path=@"corvanite-information-{os.getuid()}-*"'}
"""Where a later start finds this one."""

PLATFORM = {
    'connect AF_UNIX, sun_path=@"/tmp/.X11-unix/X*"',
    'connect AF_UNIX, sun_path="WORLD/bus"',
    'connect AF_UNIX, sun_path="WORLD/run/at-spi/bus_*"',
}
"""The screen, the session's bus and the accessibility bus."""


def of_site(site: Site) -> str:
    port = site.origin.rpartition(":")[2]
    return f'connect AF_INET, sin_port=htons({port}), sin_addr=inet_addr("127.0.0.1")'


class ConnectionsTest(DesktopTest):
    def test_a_session_over_tls_reads_three_documents_of_the_site_and_nothing_else(self):
        documents = {
            VERSION_PATH: version_document(),
            PACK_PATH: newer_pack(),
            RETIRED_PATH: b'{"signals": []}',
        }
        with self.world() as world:
            certificate = new_certificate(world.folder)
            world.environment["LOOPBACK_AUTHORITY"] = str(certificate)
            with Site(documents, certificate) as site:
                self.check_session(site, world)

    def check_session(self, site: Site, world: World) -> None:
        traceable = can_trace(world)
        start, trace = traced(LOOPBACK_PROGRAM, world, RECORDED)
        program = world.start(start if traceable else LOOPBACK_PROGRAM, site=site.origin)
        self.go_through(program, world)
        self.assertEqual(0, program.close())

        requests = [f"GET {path} HTTP/1.1" for path in (VERSION_PATH, PACK_PATH, RETIRED_PATH)]
        self.assertEqual(requests, site.request_lines)
        if not traceable:
            print("skipped, as no process can be traced here: other connections, files, programs")
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
        self.assertEqual(CHANGES, changes(trace, world))
        self.assertEqual(BOUND | PLATFORM | {of_site(site)}, addressed(trace, world))
        self.assertEqual(STARTED, started(trace, world))


if __name__ == "__main__":
    unittest.main()
