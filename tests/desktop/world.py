# SPDX-License-Identifier: Apache-2.0
"""A desktop of its own for one test: screen, buses, window manager, home and nothing else."""

import os
import select
import shutil
import stat
import sys
import tempfile
from collections.abc import Sequence
from pathlib import Path

from gi.repository import Gio, GLib

from accessibility import AccessibilityBus
from commands import answer_of, succeeds
from own_process import OwnProcess
from polling import PATIENCE, wait_until
from program import WINDOW_TITLE, Program

HERE = Path(__file__).resolve().parent

BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

BROWSER = """#!/bin/sh
printf '%s\\n' "$1" >>'{opened}'
"""


class World:
    """Use it in a `with`; on leaving it stops what it started and removes its folders.

    `scheme`, "light" or "dark", is what the desktop's appearance portal says; without one there
    is no portal. `screen_reader` is what the desktop says of one. `scale` is how much larger the reader
    has set everything, as desktops on X11 say it.
    """

    OPENBOX = ("openbox", "--sm-disable")

    def __init__(
        self,
        scheme: str | None = None,
        screen: tuple[int, int] = (1920, 1200),
        screen_reader: bool = True,
        window_manager: Sequence[str] = OPENBOX,
        scale: float = 1,
    ):
        self._scheme = scheme
        self._screen_reader = screen_reader
        self._screen = screen
        self._window_manager = window_manager
        self._scale = scale
        self._processes: list[OwnProcess] = []
        self._programs: list[Program] = []

    def __enter__(self) -> "World":
        self.folder = Path(tempfile.mkdtemp(prefix="desktop-"))
        self.home = self.folder / "home"
        self.data_home = self.home / ".local/share"
        self.opened_record = self.folder / "opened"
        """The file in which the browser notes what it is to open."""
        try:
            self._lay_out_folders()
            self._start_screen()
            self._start_session_bus()
            self._start_accessibility()
            self._start_window_manager()
            if self._scale != 1:
                self._set_scale()
            if self._scheme:
                self._start_appearance_portal(self._scheme)
        except BaseException:
            self._end()
            raise
        return self

    def __exit__(self, *_) -> None:
        self._end()

    def start(
        self, program: Path, data_home: Path | None = None, site: str | None = None
    ) -> Program:
        """Starts the program; with `data_home` it keeps its data there, and one that is made for
        it reads the `site`."""
        changed = {"XDG_DATA_HOME": str(data_home)} if data_home else {}
        changed |= {"LOOPBACK_SITE_ORIGIN": site} if site else {}
        process = self._run(program.name, [str(program)], environment=self.environment | changed)
        started = Program(process, self.environment, self.accessibility)
        self._programs.append(started)
        return started

    def start_helper(self, name: str, command: list[str], **variables: str) -> None:
        """Starts what stands beside the program on a desktop, with these variables more."""
        self._run(name, command, environment=self.environment | variables)

    def say_of_screen_reader(self, there: bool) -> None:
        """Has the desktop say whether a screen reader is there."""
        self._ask_accessibility(
            "org.freedesktop.DBus.Properties",
            "Set",
            GLib.Variant(
                "(ssv)", ("org.a11y.Status", "ScreenReaderEnabled", GLib.Variant("b", there))
            ),
        )

    def wait_for_service(self, name: str) -> None:
        """Waits until somebody has that name on the session bus."""

        def has_owner() -> bool:
            reply = self._session_bus.call_sync(
                "org.freedesktop.DBus",
                "/org/freedesktop/DBus",
                "org.freedesktop.DBus",
                "NameHasOwner",
                GLib.Variant("(s)", (name,)),
                None,
                Gio.DBusCallFlags.NONE,
                int(PATIENCE * 1000),
                None,
            )
            return reply.unpack()[0]

        wait_until(has_owner, f"the service {name}")

    def programs(self) -> list[Program]:
        """Every program started here, in order."""
        return list(self._programs)

    def windows(self) -> list[str]:
        """The numbers of the program's windows that are mapped, whosever they are."""
        search = ["xdotool", "search", "--onlyvisible", "--name", f"^{WINDOW_TITLE}$"]
        return answer_of(search, self.environment).decode().split()

    def copy(self, text: str) -> None:
        """Puts the text on the clipboard."""
        source = self.folder / "copied"
        source.write_text(text)
        clipboard = ["xclip", "-selection", "clipboard"]
        self._run("clipboard", [*clipboard, "-quiet", str(source)])
        wait_until(
            lambda: succeeds([*clipboard, "-out"], self.environment)
            and answer_of([*clipboard, "-out"], self.environment).decode() == text,
            "the text is on the clipboard",
        )

    def opened_addresses(self) -> list[str]:
        """What was handed to the browser, in order."""
        return self.opened_record.read_text().splitlines() if self.opened_record.exists() else []

    def _lay_out_folders(self) -> None:
        commands = self.folder / "commands"
        runtime = self.folder / "run"
        for folder in (self.data_home, commands, runtime):
            folder.mkdir(parents=True)
        runtime.chmod(0o700)
        browser = commands / "xdg-open"
        browser.write_text(BROWSER.format(opened=self.opened_record))
        browser.chmod(browser.stat().st_mode | stat.S_IXUSR)
        self.environment = {
            "HOME": str(self.home),
            "LANG": "C.UTF-8",
            "PATH": f"{commands}:/usr/bin:/bin",
            "TMPDIR": str(self.folder),
            "XDG_CACHE_HOME": str(self.home / ".cache"),
            "XDG_CONFIG_HOME": str(self.home / ".config"),
            "XDG_DATA_HOME": str(self.data_home),
            "XDG_RUNTIME_DIR": str(runtime),
            "GSETTINGS_BACKEND": "memory",
            "QT_QPA_PLATFORM": "xcb",
        }

    def _run(self, name: str, command: list[str], environment=None, descriptors=()) -> OwnProcess:
        number = len(self._processes)
        process = OwnProcess(
            command,
            environment or self.environment,
            self.folder / f"{number:02}-{name}.txt",
            descriptors,
        )
        self._processes.append(process)
        return process

    def _run_until_told(self, name: str, command: list[str]) -> str:
        """Starts what writes one line to the descriptor named {descriptor} in the command once it
        can be reached, and returns that line: a socket's file stands before anyone listens."""
        reading, writing = os.pipe()
        with os.fdopen(reading) as told:
            filled = [word.format(descriptor=writing) for word in command]
            self._run(name, filled, descriptors=[writing])
            os.close(writing)
            if not select.select([told], [], [], PATIENCE)[0]:
                raise TimeoutError(f"not within {PATIENCE:g} s: {name}")
            return told.readline().strip()

    def _start_screen(self) -> None:
        width, height = self._screen
        command = ["Xvfb", "-displayfd", "{descriptor}", "-screen", "0", f"{width}x{height}x24"]
        number = self._run_until_told("screen", [*command, "-nolisten", "tcp", "-noreset"])
        self.environment["DISPLAY"] = f":{number}"

    def _set_scale(self) -> None:
        resources = f"Xft.dpi:\t{round(96 * self._scale)}\n"
        setting = ["-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER", resources]
        answer_of(["xprop", "-root", *setting], self.environment)

    def _start_session_bus(self) -> None:
        configuration = self.folder / "bus.conf"
        configuration.write_text(BUS_CONFIGURATION.format(socket=self.folder / "bus"))
        command = ["dbus-daemon", f"--config-file={configuration}", "--nofork"]
        address = self._run_until_told("bus", [*command, "--print-address={descriptor}"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        flags = Gio.DBusConnectionFlags
        self._session_bus = Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None
        )

    def _start_accessibility(self) -> None:
        self._run("accessibility", ["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])
        self.wait_for_service("org.a11y.Bus")
        address = self._ask_accessibility("org.a11y.Bus", "GetAddress", None)
        self.accessibility = AccessibilityBus(address.unpack()[0])
        self.say_of_screen_reader(self._screen_reader)

    def _ask_accessibility(self, interface: str, method: str, arguments) -> GLib.Variant:
        return self._session_bus.call_sync(
            "org.a11y.Bus",
            "/org/a11y/bus",
            interface,
            method,
            arguments,
            None,
            Gio.DBusCallFlags.NONE,
            int(PATIENCE * 1000),
            None,
        )

    def _start_window_manager(self) -> None:
        self._run("window-manager", list(self._window_manager))
        # There is no number of desktops until a window manager has announced itself.
        question = ["xdotool", "get_num_desktops"]
        wait_until(lambda: succeeds(question, self.environment), "the window manager")
        # Nothing is to look hovered by chance.
        answer_of(["xdotool", "mousemove", *map(str, self._screen)], self.environment)

    def _start_appearance_portal(self, scheme: str) -> None:
        self._run("portal", [sys.executable, str(HERE / "appearance_portal.py"), scheme])
        self.wait_for_service("org.freedesktop.portal.Desktop")

    def _end(self) -> None:
        for process in reversed(self._processes):
            process.stop()
        shutil.rmtree(self.folder)
