# SPDX-License-Identifier: Apache-2.0
"""What a screen reader sees of a program, by plain calls on the accessibility bus (AT-SPI)."""

from collections.abc import Iterator
from dataclasses import dataclass

from gi.repository import Gio, GLib

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
EDITABLE_TEXT = "org.a11y.atspi.EditableText"
PROPERTIES = "org.freedesktop.DBus.Properties"
TEXT = "org.a11y.atspi.Text"

CALL_TIMEOUT_MS = 20000

# The bit of each state that is looked at here, from the AT-SPI protocol.
STATES = {
    "checked": 4,
    "editable": 7,
    "enabled": 8,
    "expanded": 10,
    "focused": 12,
    "selected": 23,
    "sensitive": 24,
    "showing": 25,
    "visible": 30,
}


@dataclass(frozen=True)
class Rectangle:
    """On the screen, in pixels."""

    x: int
    y: int
    width: int
    height: int

    @property
    def center(self) -> tuple[int, int]:
        return self.x + self.width // 2, self.y + self.height // 2


@dataclass(frozen=True)
class Element:
    """One accessible object as it was when the tree was read; its actions act on it now."""

    bus: "AccessibilityBus"
    owner: str
    path: str
    depth: int
    role: str
    name: str
    description: str
    states: frozenset[str]

    @property
    def is_showing(self) -> bool:
        return "showing" in self.states

    def press(self) -> None:
        """Does what a screen reader's user does to activate the element."""
        actions = [action[0] for action in self._call(ACTION, "GetActions")]
        if not self._call(ACTION, "DoAction", GLib.Variant("(i)", (actions.index("Press"),))):
            raise RuntimeError(f"refused to be pressed: {self}")

    def take_focus(self) -> None:
        self._call(COMPONENT, "GrabFocus")

    def text(self) -> str:
        # Qt's text editors tell the end of a paragraph as U+2029.
        return self._call(TEXT, "GetText", GLib.Variant("(ii)", (0, -1))).replace("\u2029", "\n")

    def set_text(self, text: str) -> None:
        self._call(EDITABLE_TEXT, "SetTextContents", GLib.Variant("(s)", (text,)))

    def extents(self) -> Rectangle:
        screen = 0
        return Rectangle(*self._call(COMPONENT, "GetExtents", GLib.Variant("(u)", (screen,))))

    def _call(self, interface: str, method: str, arguments=None):
        return self.bus.call(self.owner, self.path, interface, method, arguments)[0]

    def __str__(self) -> str:
        parts = [self.role, repr(self.name)]
        if self.description:
            parts.append(f"({self.description!r})")
        parts.append(" ".join(sorted(self.states)))
        return "  " * self.depth + " ".join(parts)


class AccessibilityBus:
    """A connection to the bus on which programs publish their trees."""

    def __init__(self, address: str):
        flags = Gio.DBusConnectionFlags
        self._connection = Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None
        )

    def close(self) -> None:
        self._connection.close_sync(None)

    def call(self, owner: str, path: str, interface: str, method: str, arguments=None) -> tuple:
        reply = self._connection.call_sync(
            owner,
            path,
            interface,
            method,
            arguments,
            None,
            Gio.DBusCallFlags.NONE,
            CALL_TIMEOUT_MS,
            None,
        )
        return reply.unpack()

    def elements_of(self, pid: int) -> list[Element]:
        """The tree of the process, parents before children; empty when it publishes none."""
        root = "/org/a11y/atspi/accessible/root"
        try:
            (programs,) = self.call("org.a11y.atspi.Registry", root, ACCESSIBLE, "GetChildren")
            for owner, path in programs:
                if self._pid_of(owner) == pid:
                    return list(self._walk(owner, path, 0))
        except GLib.Error:
            # The tree changed while it was read; whoever waits for something reads it again.
            pass
        return []

    def _pid_of(self, owner: str) -> int:
        (pid,) = self.call(
            "org.freedesktop.DBus",
            "/org/freedesktop/DBus",
            "org.freedesktop.DBus",
            "GetConnectionUnixProcessID",
            GLib.Variant("(s)", (owner,)),
        )
        return pid

    def _walk(self, owner: str, path: str, depth: int) -> Iterator[Element]:
        (role,) = self.call(owner, path, ACCESSIBLE, "GetRoleName")
        (low_and_high,) = self.call(owner, path, ACCESSIBLE, "GetState")
        bits = low_and_high[0] | low_and_high[1] << 32
        yield Element(
            bus=self,
            owner=owner,
            path=path,
            depth=depth,
            role=role,
            name=self._property(owner, path, "Name"),
            description=self._property(owner, path, "Description"),
            states=frozenset(name for name, bit in STATES.items() if bits >> bit & 1),
        )
        (children,) = self.call(owner, path, ACCESSIBLE, "GetChildren")
        for child_owner, child_path in children:
            yield from self._walk(child_owner, child_path, depth + 1)

    def _property(self, owner: str, path: str, name: str) -> str:
        arguments = GLib.Variant("(ss)", (ACCESSIBLE, name))
        return self.call(owner, path, PROPERTIES, "Get", arguments)[0]
