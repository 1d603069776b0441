#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A window such as a launcher has: a click starts the command given, with the token that Wayland gives for that click; a
key starts it with one that nobody gave. Prints the token and the exit status of each start."""
import os
import subprocess
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gio, GLib, Gtk  # noqa: E402


def start(token):
    done = subprocess.run(sys.argv[1:], env={**os.environ, "XDG_ACTIVATION_TOKEN": token}, stdout=sys.stderr)
    print(token, done.returncode, sep="|", flush=True)
    return True


def clicked(widget, event):
    context = widget.get_display().get_app_launch_context()
    context.set_timestamp(event.time)
    flags = Gio.AppInfoCreateFlags.SUPPORTS_STARTUP_NOTIFICATION
    return start(context.get_startup_notify_id(Gio.AppInfo.create_from_commandline("zelvia", None, flags), []))


GLib.set_prgname("lanciatore")
window = Gtk.Window(title="Lanciatore", default_width=1300, default_height=700)
window.connect("button-press-event", clicked)
window.connect("key-press-event", lambda *_: start("dato da nessuno"))
window.connect("destroy", Gtk.main_quit)
window.show_all()
Gtk.main()
