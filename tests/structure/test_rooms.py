#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A folder knows what it links, and nothing else: the table of rooms, held against what each links,
includes and imports.

Arguments: a file with a line "FOLDER: LIBRARY LIBRARY …" for each room, and the folder that Qt's
headers lie in.
"""

import re
import sys
import unittest
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]

CORE = "CorvaniteInformationCore"
CORE_TESTS = REPOSITORY / "tests/core"

SCREENS = ("Archive", "HandIn", "Kept", "Keys", "Sources", "Thread", "Today", "Weekly")

# What each room links. Qt Qml comes with every room that has QML types.
ROOMS = {
    CORE: {"Qt6::Core", "ICU::uc", "simdjson::simdjson"},
    "CorvaniteInformation/Machine": {CORE, "Qt6::Network"},
    "CorvaniteInformation/State": {CORE, "QCoro6::Core", "Qt6::Qml"},
    "CorvaniteInformation/Pages": {"CorvaniteInformationState", "Qt6::Gui", "Qt6::Qml"},
    "CorvaniteInformation/Controls": {CORE, "Qt6::Quick", "Qt6::Qml"},
    "CorvaniteInformation/Site": {"CorvaniteInformationState", "Qt6::Network", "QCoro6::Network"},
    "CorvaniteInformation/Desktop": {
        "Qt6::DBus", "Qt6::Gui", "Qt6::GuiPrivate",
        "Fontconfig::Fontconfig", "Freetype::Freetype", "harfbuzz::harfbuzz"},
    "CorvaniteInformation/Screens/Workbench":
        {f"CorvaniteInformation{screen}" for screen in SCREENS} | {"Qt6::Qml"},
    "CorvaniteInformation/Program": {
        "CorvaniteInformationDesktop", "CorvaniteInformationMachine", "CorvaniteInformationSite",
        "CorvaniteInformationWorkbench"},
} | {
    f"CorvaniteInformation/Screens/{screen}":
        {"CorvaniteInformationPages", "CorvaniteInformationControls", "Qt6::Qml"}
    for screen in SCREENS
}

# A library that a room keeps to itself.
PRIVATE = {
    "Fontconfig::Fontconfig", "Freetype::Freetype", "ICU::uc", "QCoro6::Network",
    "Qt6::GuiPrivate", "harfbuzz::harfbuzz", "simdjson::simdjson"}

# What a library brings along that may be used too. Qt Qml would bring Qt Network.
BRINGS = {
    "Qt6::DBus": {"Qt6::Core"},
    "Qt6::Gui": {"Qt6::Core"},
    "Qt6::Network": {"Qt6::Core"},
    "Qt6::Qml": {"Qt6::Core"},
    "Qt6::Quick": {"Qt6::Core", "Qt6::Gui", "Qt6::Qml"},
}

OTHER_HEADERS = {
    "QCoroNetworkReply": "QCoro6::Network",
    "QCoroTask": "QCoro6::Core",
    "fontconfig/fontconfig.h": "Fontconfig::Fontconfig",
    "freetype/ftadvanc.h": "Freetype::Freetype",
    "freetype/ftmodapi.h": "Freetype::Freetype",
    "hb.h": "harfbuzz::harfbuzz",
    "private/qfont_p.h": "Qt6::GuiPrivate",
    "private/qfontengine_ft_p.h": "Qt6::GuiPrivate",
    "simdjson.h": "simdjson::simdjson",
    "unicode/uchar.h": "ICU::uc",
}
# The operating system's own headers, and who may use them.
SYSTEM_HEADERS = {
    CORE: re.compile(r"arpa/inet\.h"),
    "CorvaniteInformation/Machine": re.compile(r"[a-z/]+\.h"),
}

INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)
IMPORT = re.compile(r"^\s*import\s+([\w.]+)", re.MULTILINE)
QML_PATH = re.compile(r'"(\.\.?/[^"]*\.qml)"')

links_file, qt_headers = Path(sys.argv[1]), Path(sys.argv[2])
del sys.argv[1:]


def target(folder: str) -> str:
    return folder if folder == CORE else "CorvaniteInformation" + Path(folder).name


FOLDERS = {target(folder): folder for folder in ROOMS}


def reach(folder: str) -> set[str]:
    """The room itself, and all rooms and libraries that it may use."""
    reached = {target(folder)}
    for library in ROOMS[folder]:
        reached |= {library} | BRINGS.get(library, set())
        if library in FOLDERS:
            reached |= reach(FOLDERS[library]) - PRIVATE
    return reached


def files_of(folder: str, *endings: str) -> list[Path]:
    """The files of the room, without those of rooms below it."""
    return sorted(f for f in (REPOSITORY / folder).iterdir() if f.suffix in endings)


def may_include(folder: str, mark: str, header: str) -> bool:
    reached = reach(folder)
    if mark == '"':
        return any((REPOSITORY / FOLDERS[room] / header).is_file()
                   for room in reached if room in FOLDERS)
    if header in OTHER_HEADERS:
        return OTHER_HEADERS[header] in reached
    if header.startswith("Q"):
        modules = {library.replace("6::", "") for library in reached if library.startswith("Qt6::")}
        if "/" in header:
            return Path(header).parts[0] in modules
        return any((qt_headers / module / header).is_file() for module in modules)
    if header.endswith(".h"):
        return folder in SYSTEM_HEADERS and bool(SYSTEM_HEADERS[folder].fullmatch(header))
    return True


def may_import(folder: str, module: str) -> bool:
    reached = reach(folder)
    if module.startswith("CorvaniteInformation"):
        return module.replace(".", "/") in {FOLDERS[room] for room in reached if room in FOLDERS}
    return ("Qt6::Quick" if module.startswith("QtQuick") else "Qt6::Qml") in reached


def may_name(folder: str, file: Path) -> bool:
    return file.is_file() and may_import(
        folder, str(file.parent.relative_to(REPOSITORY)).replace("/", "."))


class RoomsTest(unittest.TestCase):
    def test_every_room_is_in_the_table(self):
        with_sources = {
            str(file.parent.relative_to(REPOSITORY))
            for tree in (CORE, "CorvaniteInformation")
            for file in (REPOSITORY / tree).rglob("*")
            if file.suffix in (".cpp", ".h", ".qml")}
        self.assertEqual(sorted(ROOMS), sorted(with_sources))

    def test_links(self):
        linked = {}
        for line in links_file.read_text().splitlines():
            folder, libraries = line.split(":", 1)
            linked[folder] = set(libraries.split()) - {"project_warnings"}
        self.assertEqual([], [
            f"{folder}: {library}"
            for folder, allowed in ROOMS.items()
            for library in sorted(allowed ^ linked.get(folder, set()))])

    def test_includes(self):
        self.assertEqual([], [
            f"{file.relative_to(REPOSITORY)} includes {header}"
            for folder in ROOMS
            for file in files_of(folder, ".cpp", ".h")
            for mark, header in INCLUDE.findall(file.read_text())
            if not may_include(folder, mark, header)])

    def test_imports(self):
        self.assertEqual([], [
            f"{file.relative_to(REPOSITORY)} imports {module}"
            for folder in ROOMS
            for file in files_of(folder, ".qml")
            for module in IMPORT.findall(file.read_text())
            if not may_import(folder, module)])

    def test_files_named_by_their_path(self):
        self.assertEqual([], [
            f"{file.relative_to(REPOSITORY)} names {path}"
            for folder in ROOMS
            for file in files_of(folder, ".qml")
            for path in QML_PATH.findall(file.read_text())
            if not may_name(folder, (file.parent / path).resolve())])

    def test_every_source_of_the_core_has_a_test_of_its_name(self):
        tested = {file.stem for file in CORE_TESTS.glob("*.cpp")}
        self.assertEqual([], [source.stem for source in files_of(CORE, ".cpp")
                              if f"{source.stem}Test" not in tested])


if __name__ == "__main__":
    unittest.main()
