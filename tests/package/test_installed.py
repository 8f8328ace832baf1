#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The package on a fresh Debian, used by an ordinary user. Arguments: the package, the prepared
root. To be run as root, in mount and network namespaces of its own; see `run`."""

import json
import re
import subprocess
import sys
import tempfile
import unittest
from datetime import datetime, timezone
from pathlib import Path

from package_root import READER, PackageRoot

REPOSITORY = Path(__file__).resolve().parents[2]

PACKAGE = "corvanite-information"
SITE = "/srv/corvanite"
WORK = "/srv/work"
HOST = "corvanite.example"

FEED = """<?xml version="1.0" encoding="utf-8"?>
<feed xmlns="http://www.w3.org/2005/Atom">
  <title>灯塔与罗盘</title>
  <entry>
    <title>罗盘可以离线读地图</title>
    <id>https://lantern.example.org/compass</id>
    <link href="https://lantern.example.org/compass"/>
    <published>2026-08-26T01:15:30Z</published>
    <summary>地图留在设备上。</summary>
  </entry>
  <entry>
    <title>灯塔公开了它的时刻表</title>
    <id>https://lantern.example.org/timetable</id>
    <link href="https://lantern.example.org/timetable"/>
    <published>2026-08-25T01:15:30Z</published>
    <summary>时刻表可以下载。</summary>
  </entry>
</feed>
"""
CHANGE = "罗盘现在也能离线搜索。"

package, prepared = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
del sys.argv[1:3]


def older_package(folder: Path) -> Path:
    """The same package as an older version of it."""
    content = folder / "older"
    subprocess.run(["dpkg-deb", "--raw-extract", package, content], check=True)
    control = content / "DEBIAN/control"
    control.write_text(re.sub("^Version: .*$", "Version: 0.0.1", control.read_text(),
                              flags=re.MULTILINE))
    older = folder / "older.deb"
    subprocess.run(["dpkg-deb", "--root-owner-group", "--build", content, older],
                   check=True, capture_output=True)
    return older


def filled(path: str, value):
    """What a curator writes where `draft` leaves a place free."""
    if isinstance(value, dict):
        return {key: filled(key, member) for key, member in value.items()}
    if isinstance(value, list):
        return [filled(path, member) for member in value]
    if value != "":
        return value
    return {"lane": "workflow", "evidenceClass": "official-statement"}.get(path, "由编辑写上。")


def stamp() -> str:
    return datetime.now(timezone.utc).strftime("%Y-%m-%dT%H:%M:%S.000Z")


def nginx_site() -> str:
    """As docs/publishing.md gives it, with the certificate that certbot would add."""
    text = (REPOSITORY / "docs/publishing.md").read_text(encoding="utf-8")
    block = re.search(r"^    server \{\n.*?^    \}\n", text, re.MULTILINE | re.DOTALL)[0]
    return block.replace("listen 80;", "listen 443 ssl;\n"
                         "ssl_certificate /srv/certificate.pem;\nssl_certificate_key /srv/key.pem;")


class InstalledTest(unittest.TestCase):
    def test_installed_upgraded_removed_and_purged(self):
        with PackageRoot(prepared) as root, tempfile.TemporaryDirectory() as folder:
            root.install(older_package(Path(folder)))
            card = root.read_as_reader("keep")
            data = root.file("/home/reader/.local/share/Corvanite/Information/workspace-v1.json")
            stored = data.read_bytes()
            self.assertEqual(READER, data.stat().st_uid)

            root.install(package)
            self.assertEqual(stored, data.read_bytes())
            root.read_as_reader("find-kept", card)
            files = root.run("dpkg", "--listfiles", PACKAGE).split()

            root.run("dpkg", "--remove", PACKAGE)
            self.assertFalse(root.file("/usr/bin/corvanite-information").exists())
            root.run("dpkg", "--purge", PACKAGE)
            self.assertEqual([], [file for file in files if root.file(file).is_file()])
            self.assertEqual("", root.run("dpkg", "--get-selections", PACKAGE))
            self.assertEqual(stored, data.read_bytes())

    def test_an_edition_from_a_feed_to_its_reader(self):
        with PackageRoot(prepared) as root:
            root.install(package)
            self.serve(root)

            self.publish(root, self.first_pack(root))
            card = root.read_as_reader("sync-and-keep")

            pack = self.changed_pack(root, card)
            told = self.publish(root, pack, after_the_first=True)
            self.assertIn("变化 1 张", told)
            root.read_as_reader("sync-and-follow", card, CHANGE)

            exported = root.run(
                "setpriv", f"--reuid={READER}", f"--regid={READER}", "--clear-groups", "env",
                "HOME=/home/reader", *root.exec_line(), "--export-kept", "-")
            self.assertIn(card, exported)
            self.assertIn(CHANGE, exported)

    def serve(self, root: PackageRoot) -> None:
        """A stock nginx, and a certificate that the root's system trusts."""
        root.run("apt-get", "install", "--yes", "--no-install-recommends", "--no-download",
                 "ca-certificates", "nginx-light")
        subprocess.run(
            ["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2",
             "-subj", f"/CN={HOST}", "-addext", f"subjectAltName=DNS:{HOST}",
             "-keyout", root.file("/srv/key.pem"), "-out", root.file("/srv/certificate.pem")],
            check=True, capture_output=True)
        root.file("/usr/local/share/ca-certificates/test.crt").write_bytes(
            root.file("/srv/certificate.pem").read_bytes())
        root.run("update-ca-certificates")
        with root.file("/etc/hosts").open("a") as hosts:
            hosts.write(f"127.0.0.1 {HOST}\n")
        root.file("/etc/nginx/sites-available/corvanite").write_text(nginx_site())
        root.run("ln", "-s", "../sites-available/corvanite", "/etc/nginx/sites-enabled/")
        root.run("nginx", "-t")
        server = subprocess.Popen(["chroot", root.path, "nginx", "-g", "daemon off;"])
        self.addCleanup(server.wait, 30)
        self.addCleanup(server.terminate)

    def first_pack(self, root: PackageRoot) -> dict:
        root.file(f"{WORK}/feeds").mkdir(parents=True)
        root.file(f"{WORK}/feeds/one.xml").write_text(FEED, encoding="utf-8")
        root.file(f"{WORK}/retired-signals.json").write_text('{"signals": []}')
        pack = filled("", json.loads(root.run("corvanite-edition", "draft", "feeds/one.xml",
                                              cwd=WORK)))
        pack["selectionHistory"][0]["focusSignalIds"] = [card["id"] for card in pack["signals"]]
        return pack

    def changed_pack(self, root: PackageRoot, title: str) -> dict:
        pack = json.loads(root.file(f"{SITE}/information-pack.json").read_text(encoding="utf-8"))
        card = next(card for card in pack["signals"] if card["title"]["zh"] == title)
        now = stamp()
        card |= {"state": "update", "updateSummary": {"zh": CHANGE}, "observedAt": now}
        card["timeline"].insert(0, {"date": {"zh": "今天"}, "datetime": now,
                                    "summary": {"zh": CHANGE}, "source": card["source"]})
        return pack | {"asOf": now}

    def publish(self, root: PackageRoot, pack: dict, after_the_first: bool = False) -> str:
        """What `diff` tells of the edition, where there is one before it."""
        root.file(f"{WORK}/information-pack.json").write_text(
            json.dumps(pack, ensure_ascii=False), encoding="utf-8")
        told = ""
        if after_the_first:
            root.run("corvanite-edition", "next", SITE, ".", cwd=WORK)
        root.run("corvanite-edition", "check", "information-pack.json", "retired-signals.json",
                 cwd=WORK)
        if after_the_first:
            told = root.run("corvanite-edition", "diff", SITE, ".", cwd=WORK)
        root.run("corvanite-edition", "site", SITE, cwd=WORK)
        return told


if __name__ == "__main__":
    unittest.main()
