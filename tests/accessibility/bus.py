# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program as a screen reader finds it on the accessibility bus."""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# For a busy machine.
PATIENCE = 60  # Seconds.
TIMEOUT = 20000  # Of one call, in milliseconds.
EVENTS = ("property-change", "property-change:accessible-value", "state-changed", "text-changed")
LEAVES = {"label", "push button", "spin button", "image", "chart", "list item"}


class NeverTrue(Exception):
    """What was waited for has not come about."""


def states_of(accessible):
    return {state.value_nick for state in accessible.get_state_set().get_states()}


def asked(question, *arguments):
    """The answer, or None from a control without the interface that answers."""
    try:
        return question(*arguments)
    except GLib.GError:
        return None


class Node:
    """An accessible as it was when it was read."""

    def __init__(self, accessible, states):
        self.accessible = accessible
        self.path = accessible.path
        self.states = states
        self.role = accessible.get_role_name()
        self.name = accessible.get_name() or ""
        self.description = accessible.get_description() or ""
        self.text = self.value = self.range = None
        if self.role == "text":
            self.text = asked(Atspi.Text.get_text, accessible, 0, -1)
        elif self.role == "spin button":
            self.value = asked(Atspi.Value.get_current_value, accessible)
            limits = (Atspi.Value.get_minimum_value, Atspi.Value.get_maximum_value)
            self.range = [asked(limit, accessible) for limit in limits]
        self.count = accessible.get_child_count() if self.role == "list" else 0
        self.children = []

    def __str__(self):
        return f"{self.role} {self.name!r}"

    def has(self, *states):
        return self.states.issuperset(states)

    def now(self, state):
        return state in states_of(self.accessible)

    def within(self):
        """Itself and all that was read in it."""
        yield self
        for child in self.children:
            yield from child.within()

    def find(self, role, name):
        """The first one of the role that shows and whose name begins so."""
        for node in self.within():
            if node.role == role and node.name.startswith(name) and node.has("showing"):
                return node
        raise NeverTrue(f"{role} {name!r} in {self}")

    def actions(self):
        count = asked(self.accessible.get_n_actions) or 0
        return [Atspi.Action.get_action_name(self.accessible, i) for i in range(count)]

    def act(self, action="Press"):
        """A call that brings up a dialog is not answered before that has gone, and not waited for."""
        number = self.actions().index(action)
        Atspi.set_timeout(300, 300)
        asked(Atspi.Action.do_action, self.accessible, number)
        Atspi.set_timeout(TIMEOUT, TIMEOUT)

    def set_value(self, value):
        Atspi.Value.set_current_value(self.accessible, value)

    def set_text(self, text):
        Atspi.EditableText.set_text_contents(self.accessible, text)

    def take_focus(self):
        Atspi.Component.grab_focus(self.accessible)


def children_of(accessible):
    return [child for child in map(accessible.get_child_at_index, range(accessible.get_child_count())) if child]


def read(accessible, hidden=False):
    """What the accessible holds; None if it does not show, unless that is wanted, or when it has gone meanwhile."""
    try:
        states = states_of(accessible)
        if not hidden and "showing" not in states:
            return None
        node = Node(accessible, states)
        if node.role not in LEAVES:
            children = [read(child, hidden) for child in children_of(accessible)]
            node.children = [child for child in children if child is not None]
        return node
    except GLib.GError:
        return None


class Bus:
    """The program on the bus, and the events that it has sent."""

    def __init__(self):
        self.events = set()
        Atspi.set_timeout(TIMEOUT, TIMEOUT)
        self.application = self.wait("the program on the bus", self._application)
        self.listener = Atspi.EventListener.new(lambda event: self.events.add((event.source.path, event.type)))

    def listen(self, provoke):
        """Asks the program for its events, and provokes some until they come."""
        for kind in EVENTS:
            self.listener.register(f"object:{kind}")

        def heard():
            provoke()
            return self.events

        self.wait("the first event", heard)

    def ended(self):
        self.wait("the end of the program", lambda: self._application() is None)

    def _application(self):
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for application in children_of(desktop):
            if application.get_name() == "zelvia":
                application.set_cache_mask(Atspi.Cache.NONE)
                return application
        return None

    def wait(self, what, condition, patience=PATIENCE):
        """The first true value of the condition, which is asked again after events and ten times a second."""
        context = GLib.MainContext.default()
        tick = GLib.timeout_add(100, lambda: True)
        end = time.monotonic() + patience
        try:
            while time.monotonic() < end:
                while context.pending():
                    context.iteration(False)
                try:
                    found = condition()
                except (GLib.GError, IndexError, NeverTrue):
                    found = None
                if found:
                    return found
                context.iteration(True)
        finally:
            GLib.source_remove(tick)
        raise NeverTrue(what)

    def _windows(self, name, box):
        def sought(window):
            return (
                window.get_name().startswith(name)
                and (window.get_role_name() == "alert") == box
                and "showing" in states_of(window)
            )

        return [window for window in children_of(self.application) if sought(window)]

    def window(self, name, box=False):
        """The window, or the message box, whose title begins so, as it is once it shows."""
        return self.wait(f"the window {name!r}", lambda: read(self._windows(name, box)[0]))

    def gone(self, name, box=False):
        self.wait(f"the end of the window {name!r}", lambda: not self._windows(name, box))
