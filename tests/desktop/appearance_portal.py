# SPDX-License-Identifier: Apache-2.0
"""Stands in for the desktop's appearance portal: python3 appearance_portal.py dark|light

Answers on the session bus that it is started with, until it is stopped.
"""

import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = """
<node>
  <interface name="org.freedesktop.portal.Settings">
    <method name="Read">
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
    </method>
    <method name="ReadAll">
      <arg type="as" direction="in"/><arg type="a{sa{sv}}" direction="out"/>
    </method>
    <signal name="SettingChanged">
      <arg type="s"/><arg type="s"/><arg type="v"/>
    </signal>
    <property name="version" type="u" access="read"/>
  </interface>
</node>
"""
COLOR_SCHEMES = {"dark": 1, "light": 2}


def settings(scheme: str) -> dict[str, dict[str, GLib.Variant]]:
    return {
        "org.freedesktop.appearance": {
            "color-scheme": GLib.Variant("u", COLOR_SCHEMES[scheme]),
            "contrast": GLib.Variant("u", 0),
        },
        "org.gnome.desktop.interface": {"enable-animations": GLib.Variant("b", False)},
    }


def serve(values: dict[str, dict[str, GLib.Variant]]) -> None:
    def on_call(_connection, _sender, _path, _interface, method, arguments, invocation):
        if method == "ReadAll":
            invocation.return_value(GLib.Variant("(a{sa{sv}})", (values,)))
            return
        namespace, key = arguments.unpack()
        value = values.get(namespace, {}).get(key)
        if value is None:
            invocation.return_dbus_error(
                "org.freedesktop.portal.Error.NotFound", "Requested setting not found"
            )
            return
        invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", value),)))

    def on_bus(connection, _name):
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        version = GLib.Variant("u", 1)
        connection.register_object(PATH, interface, on_call, lambda *_: version, None)

    Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, on_bus, None, None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    serve(settings(sys.argv[1]))
