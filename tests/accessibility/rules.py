# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a reader must be told of each control, and of each change of one."""

WINDOWS = {"frame", "window", "dialog", "alert"}
# What only holds or frames others.
GROUPS = {"filler", "panel", "layered pane", "scroll bar", "scroll pane", "separator", "split pane"}
# Rows come and go with what their list tells of itself.
ROWS = {"list item", "table cell", "table column header", "tree item"}
NO_ROLE = {"", "invalid", "unknown"}

# The event that tells a change of what was read.
EVENTS = {
    "name": ("object:property-change:accessible-name",),
    "description": ("object:property-change:accessible-description",),
    "value": ("object:property-change:accessible-value",),
    "text": ("object:text-changed:",),
    "showing": ("object:state-changed:showing",),
    "pressed": ("object:state-changed:pressed", "object:state-changed:checked"),
    "sensitive": ("object:state-changed:sensitive", "object:state-changed:enabled"),
    "focused": ("object:state-changed:focused",),
}
STATES = ("showing", "pressed", "sensitive", "focused")


def count_of(entries):
    return {0: "Nessuna voce", 1: "Una voce"}.get(entries, f"{entries} voci")


def value_fault(node):
    """What is wrong with the value of a control that has one by its role."""
    if node.role == "spin button":
        if node.value is None:
            return "no value"
        low, high = node.range
        return None if low <= node.value <= high else f"value {node.value} outside {node.range}"
    if node.role == "text" and node.text is None:
        return "no text"
    if node.role in ("chart", "alert") and not node.description:
        return "no description"
    return None


def control_faults(node, own=True):
    """What is wrong with one control; `own` for a window that is not one of the toolkit's dialogs."""
    if node.role in NO_ROLE:
        yield "no role"
    if node.role == "filler" and node.has("focused"):
        yield "the focus is on no control"
    empty = not own and node.role in ROWS
    if not node.name and node.role not in GROUPS and not empty:
        yield "no name"
    if own and (node.name != node.name.strip() or "&" in node.name):
        yield "a name that is not a plain text"
    if node.role == "push button" and node.has("sensitive") and "Press" not in node.actions():
        yield "nothing that presses it"
    if own and node.role == "list" and not node.description.startswith(count_of(node.count)):
        yield f"{node.count} entries, but it tells {node.description!r}"
    fault = value_fault(node)
    if fault:
        yield fault


def faults(window, own=True):
    """All that is wrong with a window and what shows in it."""
    if window.role not in WINDOWS:
        yield f"{window}: the role of no window"
    for node in window.within():
        if node.has("showing"):
            for fault in control_faults(node, own):
                yield f"{node}: {fault}"


def shown(window):
    """By path: each control that shows and whether it does so by itself, not with what holds it."""
    found = {}

    def visit(node, held):
        if node.has("showing"):
            found[node.path] = (node, held)
            for child in node.children:
                visit(child, node.path)

    visit(window, None)
    return found


def reading(node, what):
    return what in node.states if what in STATES else getattr(node, what)


def changes(before, after):
    """Pairs of a control and what has changed of it, from one reading of a window to the next."""
    old, new = shown(before), shown(after)
    for path, (node, held) in new.items():
        if path in old:
            for what in EVENTS:
                # The control that gets the focus reports it, not the one that loses it.
                lost = what == "focused" and not node.has(what)
                if not lost and reading(old[path][0], what) != reading(node, what):
                    yield node, what
        elif held in old and node.role not in ROWS:
            yield node, "showing"
    for path, (node, held) in old.items():
        if path not in new and held in new and node.role not in ROWS:
            yield node, "showing"


def untold(before, after, events):
    """The changes that none of the events, pairs of path and type, has told."""

    def told(node, what):
        return any(path == node.path and kind.startswith(EVENTS[what]) for path, kind in events)

    missed = [(node, what) for node, what in changes(before, after) if not told(node, what)]
    return [f"{node}: its {what} changed without an event" for node, what in missed]
