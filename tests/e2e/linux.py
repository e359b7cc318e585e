"""The program on Linux: its windows over the accessibility bus, as a screen reader meets them."""

import signal
import subprocess

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402 pylint: disable=wrong-import-position

GONE = (GLib.Error,)
CALCULATOR = "galculator"  # the class of its window
Atspi.init()
Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)  # nothing here runs the loop that renews it


class Node:
    """A widget or a window. It is asked anew at each question."""

    def __init__(self, widget):
        self.widget = widget

    def __eq__(self, other):
        return self.widget == other.widget

    @property
    def role(self):
        name = self.widget.get_role_name()
        return "push button" if name == "button" else name  # so in newer systems

    name = property(lambda self: self.widget.get_name())
    text = property(lambda self: Atspi.Text.get_text(self.widget, 0, -1))

    @property
    def box(self):
        """Left, top, width, height in pixels of the screen."""
        box = self.widget.get_extents(Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    def has(self, state):
        return self.widget.get_state_set().contains(getattr(Atspi.StateType, state))

    def children(self, every=False):
        """Those on the screen, or every one."""
        widgets = map(self.widget.get_child_at_index, range(self.widget.get_child_count()))
        return [node for node in map(Node, filter(None, widgets)) if every or node.has("SHOWING")]

    def act(self):
        """What a click does, without a mouse."""
        Atspi.Action.do_action(self.widget, 0)

    def size(self):
        """The data rows and columns of a grid."""
        return self.widget.get_n_rows(), self.widget.get_n_columns()

    def cell(self, row, column):
        """Of a grid; row 0 and column 0 are its headers."""
        if row and column:
            return Node(self.widget.get_accessible_at(row - 1, column - 1))
        return Node(self.widget.get_row_header(row - 1) if row
                    else self.widget.get_column_header(column - 1))

    def text_from(self, x, y):
        """The text from the place on the screen on."""
        return self.text[Atspi.Text.get_offset_at_point(self.widget, x, y,
                                                        Atspi.CoordType.SCREEN):]

    def marked(self):
        """The first and the last offset of the selection."""
        marked = Atspi.Text.get_selection(self.widget, 0)
        return marked.start_offset, marked.end_offset


class Announced:
    """What screen readers are given to say, from here on."""

    def __init__(self):
        self.texts = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:state-changed:showing")

    def hear(self, event):
        if event.detail1 and event.source.get_role_name() == "notification":
            self.texts.append(event.source.get_name())

    def so_far(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return self.texts


def start(folder, environment):
    return subprocess.Popen([folder + "quorvanta"], env=environment)


def opener(folder, _there):
    return {"PATH": folder}  # none but this one


def end_session(process):
    process.send_signal(signal.SIGTERM)


def hold_printer(name, held):
    subprocess.run(["cupsdisable" if held else "cupsenable", name], check=True)


def windows(process):
    """Of this run; those of an earlier one can linger on the bus."""
    return [window for application in Node(Atspi.get_desktop(0)).children(every=True)
            if application.widget.get_process_id() == process.pid
            for window in application.children()]


def tips(process):
    return [window.name for window in windows(process) if window.role == "tool tip"]


def menus(frame):
    """The menus of the bar, with what each holds: name, node, states and entries."""
    def entry(node):
        if node.role == "separator":
            return "-"
        inner = [entry(e) for popup in node.children(True) for e in popup.children(True)]
        return (node.name + (" (checked)" if node.has("CHECKED") else "")
                + ("" if node.has("ENABLED") else " (grey)")
                + (": " + ", ".join(inner) if inner else ""))
    menu_bar = next(node for node in frame.children() if node.role == "menu bar")
    return [(menu, entry(menu)) for menu in menu_bar.children()]
