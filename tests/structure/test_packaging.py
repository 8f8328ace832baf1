#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""What the package says of the program is what the program is.

Arguments: the folder that the packaging is built in, and both programs.
"""

import json
import re
import subprocess
import sys
import unittest
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]

ID = "example.corvanite.information"
PACKAGING = REPOSITORY / "packaging"

built, *programs = map(Path, sys.argv[1:])
del sys.argv[1:]

QML_PACKAGES = {
    "QtQml": {"qml6-module-qtqml", "qml6-module-qtqml-models", "qml6-module-qtqml-workerscript"},
    "QtQuick": {"qml6-module-qtquick"},
    "QtQuick.Templates": {"qml6-module-qtquick-templates"},
    "QtQuick.Window": {"qml6-module-qtquick-window"},
}


def text_of(path: str) -> str:
    return (REPOSITORY / path).read_text(encoding="utf-8")


def first(pattern: str, text: str) -> str:
    found = re.search(pattern, text, re.MULTILINE)
    return found[1] if found else ""


def field_of_control(name: str) -> set[str]:
    """The packages in a field of debian/control, without versions and variables."""
    field = first(rf"^{name}:((?:\n? .*\n)+)", text_of("debian/control"))
    entries = re.findall(r"^ ([a-z0-9+.-]+)", field, re.MULTILINE)
    return set(entries)


class PackagingTest(unittest.TestCase):
    def test_one_version(self):
        version = first(r"VERSION ([\d.]+)", text_of("CMakeLists.txt").partition("project(")[2])
        metainfo = (built / f"{ID}.metainfo.xml").read_text(encoding="utf-8")
        self.assertEqual(
            [version] * 3,
            [
                first(r"^corvanite-information \(([\d.]+)\)", text_of("debian/changelog")),
                first(r"^## ([\d.]+) ", text_of("CHANGELOG.md")),
                first(r'<release version="([\d.]+)"', metainfo),
            ])
        self.assertEqual(
            first(r"^## [\d.]+ · ([\d-]+)$", text_of("CHANGELOG.md")),
            first(r'<release version="[\d.]+" date="([\d-]+)"', metainfo))

    def test_one_id(self):
        desktop = text_of(f"packaging/{ID}.desktop")
        metainfo = text_of(f"packaging/{ID}.metainfo.xml.in")
        program = text_of("CorvaniteInformation/Program/Program.cpp")
        self.assertEqual(ID, first(r"^Icon=(.*)$", desktop))
        self.assertEqual(ID, first(r"<id>(.*)</id>", metainfo))
        self.assertEqual(f"{ID}.desktop", first(r'"desktop-id">(.*)</launchable>', metainfo))
        self.assertEqual(ID, first(r'setDesktopFileName\(u"(.*)"_qs\)', program))

    def test_the_icon_in_every_size(self):
        for size in (16, 22, 24, 32, 48, 64, 128, 256):
            head = (built / str(size) / f"{ID}.png").read_bytes()[:24]
            self.assertEqual(b"\x89PNG", head[:4])
            self.assertEqual((size, size), (int.from_bytes(head[16:20], "big"),
                                            int.from_bytes(head[20:24], "big")))

    def test_what_is_needed_is_depended_on(self):
        imported = {
            module
            for file in (REPOSITORY / "CorvaniteInformation").rglob("*.qml")
            for module in re.findall(r"^import (Qt[\w.]*)", file.read_text(), re.MULTILINE)}
        modules = set().union(*(QML_PACKAGES[module] for module in imported))
        depends = field_of_control("Depends")
        self.assertEqual(modules, {name for name in depends if name.startswith("qml6-")})
        self.assertEqual(
            {"fonts-noto-cjk", "qt6-wayland", "fcitx5-frontend-qt6"} - field_of_control("Recommends"),
            set())
        build = set(re.search(r"\[build\]\n(.*?)\n\n", text_of("packages.txt"), re.DOTALL)[1].split())
        self.assertEqual(set(), field_of_control("Build-Depends") - build - {"debhelper-compat"})

    def test_the_flatpak_reaches_network_and_display_alone(self):
        manifest = json.loads(text_of(f"packaging/flatpak/{ID}.json"))
        self.assertEqual((ID, "corvanite-information"), (manifest["id"], manifest["command"]))
        self.assertEqual(
            ["--share=network", "--share=ipc", "--socket=wayland", "--socket=fallback-x11"],
            manifest["finish-args"])

    def test_libraries_come_from_the_system_alone(self):
        """An empty path in the list would be the directory that the program is started in."""
        for program in programs:
            dynamic = subprocess.run(["readelf", "--dynamic", "--wide", program],
                                     capture_output=True, text=True, check=True).stdout
            self.assertIn("(NEEDED)", dynamic)
            self.assertNotRegex(dynamic, "R(UN)?PATH")

    def test_manuals_and_completions_know_every_option(self):
        for program in programs:
            usage = subprocess.run([program, "--help"], capture_output=True, text=True, check=True)
            options = set(re.findall(r"--[a-z-]+", usage.stdout))
            self.assertIn("--version", options)
            (manual,) = REPOSITORY.glob(f"Corvanite*/**/{program.name}.1")
            known = manual.read_text(encoding="utf-8").replace("\\-", "-")
            completion = (PACKAGING / "completions" / program.name).read_text()
            for option in options:
                self.assertIn(option, known)
                self.assertIn(option, completion)


if __name__ == "__main__":
    unittest.main()
