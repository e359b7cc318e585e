"""Drives the installed program from outside: reads its windows over the accessibility bus, as a
screen reader does, and works them with the mouse and the keys of xdotool."""

import os
import signal
import subprocess
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

APP = os.environ["QUORVANTA_PLACE"] + "/app/"
DATA = APP + "Quorvanta.txt"
RED, BLUE = (255, 0, 0), (0, 0, 255)
FRAME = "Zephyrwick - Quor Vanta "
NUMBERS = ", ".join(map(str, range(1, 50)))
Atspi.init()
Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)  # nothing here runs the loop that renews it


def until(holds, what="", seconds=15):
    """The first true result of `holds`. A widget that goes while it is read is read anew."""
    end = time.monotonic() + seconds
    while True:
        try:
            found = holds()
        except (GLib.Error, IndexError, StopIteration):
            found = None
        if found:
            return found
        assert time.monotonic() < end, f"in vain: {what}"
        time.sleep(0.03)


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True).stdout


def keys(*names):
    """Types keys, with the time between them that the opening of a menu takes."""
    xdotool("key", "--delay", 60, *names)


def in_front(title):
    return xdotool("getactivewindow", "getwindowname").rstrip("\n") == title


def click(node, times=1, button=1):
    box = node.get_extents(Atspi.CoordType.SCREEN)
    xdotool("mousemove", box.x + box.width // 2, box.y + box.height // 2,
            "click", "--repeat", times, "--delay", 60, button)


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def children(node, every=False):
    """Those on the screen, or every one."""
    nodes = (node.get_child_at_index(i) for i in range(node.get_child_count()))
    return [child for child in nodes if child and (every or has(child, "SHOWING"))]


def shows(colour, nodes):
    """Whether the colour, or one near it as thin strokes have it, is in each of the widgets."""
    screen = subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"],
                            capture_output=True, check=True).stdout
    width = int(xdotool("getdisplaygeometry").split()[0])

    def inside(box):
        starts = (3 * (y * width + box.x) for y in range(box.y, box.y + box.height))
        return any(max(abs(screen[at + i] - colour[i]) for i in range(3)) < 96
                   for start in starts for at in range(start, start + 3 * box.width, 3))
    return [inside(node.get_extents(Atspi.CoordType.SCREEN)) for node in nodes]


class Page:
    """The widgets of a window as they were when it was read, by role and name."""

    def __init__(self, window):
        self.window, self.nodes, self.lines = window, {}, []
        self._read(window, "")

    def _read(self, node, indent):
        for child in children(node):
            role, name = child.get_role_name(), child.get_name()
            if role == "filler":
                self._read(child, indent)
                continue
            self.nodes.setdefault((role, name), child)
            states = "".join(f" ({mark})" for mark, shown in (
                ("checked", has(child, "CHECKED")), ("grey", not has(child, "ENABLED"))) if shown)
            head = indent + role + ":"
            if self.lines and self.lines[-1].startswith(head):
                self.lines[-1] += "," if name else ""
            else:
                self.lines.append(head)
            self.lines[-1] += f" {name}{states}" if name else ""
            if role == "table":
                self.grid = child
            else:
                self._read(child, indent + "  ")

    def __getitem__(self, role_and_name):
        return self.nodes[role_and_name]

    def press(self, *names):
        for name in names:
            click(self["push button", str(name)])

    def numbers(self, role, holds):
        return [n for n in range(1, 50) if holds(self[role, str(n)], n)]

    def drawn(self):
        """The drawn numbers, which are those spoken so and painted red."""
        numbers = self.numbers("label", lambda node, n: node.get_name() == f"{n}, drawn")
        red = shows(RED, [self["label", str(n)] for n in range(1, 50)])
        assert numbers == [n for n in range(1, 50) if red[n - 1]], f"drawn are {numbers}"
        return numbers

    def picked(self):
        return self.numbers("push button", lambda node, n: node.get_name() == f"{n}, picked")

    def pool(self):
        return self.numbers("label", lambda node, n: has(node, "ENABLED"))

    def cell(self, row, column=1):
        return self.grid.get_accessible_at(row - 1, column - 1)

    def row(self, row, columns=7):
        return [self.cell(row, c).get_name() for c in range(1, columns + 1)]

    def chosen(self):
        """The chosen row of the grid, 0 for none."""
        return next((r for r in range(1, 11) if has(self.cell(r), "SELECTED")), 0)

    def status(self):
        bar = next(node for (role, _), node in self.nodes.items() if role == "status bar")
        return children(bar)[0].get_name()


class Program:
    """One run. The splash is left by a key, unless it is to be waited for."""

    def __init__(self, locale="en_US.UTF-8", leave_splash=True, **environment):
        self.process = subprocess.Popen(
            [APP + "quorvanta"], env=dict(os.environ, LC_ALL=locale, **environment))
        if leave_splash:
            until(lambda: in_front("quorvanta"), "the splash")
            keys("space")
            self.frame()

    def windows(self):
        """Of this run; those of an earlier one can linger on the bus."""
        return [window for application in children(Atspi.get_desktop(0), every=True)
                if application.get_process_id() == self.process.pid
                for window in children(application)]

    def frame(self):
        return until(lambda: in_front(FRAME) and next(w for w in self.windows()
                                                      if w.get_name() == FRAME), "the frame")

    def part(self, role):
        return next(node for node in children(self.frame()) if node.get_role_name() == role)

    def tool(self, tooltip):
        click(next(b for b in children(self.part("tool bar")) if b.get_name() == tooltip))

    def pages(self):
        return children(self.part("layered pane"))

    def dialog(self, title):
        """The window in front, once it has the title."""
        return Page(until(lambda: next(w for w in self.windows()
                                       if w.get_name() == title and has(w, "ACTIVE")), title))

    def page(self, title):
        """The page in front, once it has the title."""
        title = "Quor Vanta  - " + title
        return Page(until(lambda: next(page for page in self.pages() if page.get_name() == title
                                       and has(page, "FOCUSED")), title))

    def menus(self):
        """The menu bar: each menu with its entries, a separator as a dash."""
        def entry(node):
            role = node.get_role_name()
            if role == "separator":
                return "-"
            inner = [entry(e) for popup in children(node, True) for e in children(popup, True)]
            return (node.get_name() + (" (checked)" if has(node, "CHECKED") else "")
                    + ("" if has(node, "ENABLED") else " (grey)")
                    + (": " + ", ".join(inner) if inner else ""))
        return [entry(menu) for menu in children(self.part("menu bar"))]

    def box(self):
        """The message box in front, as a page."""
        return Page(until(lambda: next(w for w in self.windows() if w.get_role_name() == "alert"
                                       and has(w, "ACTIVE")), "a message box"))

    def answer(self, button):
        """Answers the message box by a click, and gives its text."""
        box = self.box()
        box.press(button)
        until(lambda: not any(w.get_role_name() == "alert" for w in self.windows())
              or self.process.poll() is not None, "the end of the box")
        return next(name for role, name in box.nodes if role == "label")

    def end(self):
        """Ends the run from the toolbar, through the question."""
        self.tool("Exit")
        self.answer("Yes")
        assert self.process.wait(10) == 0

    def kill(self, how=signal.SIGKILL):
        self.process.send_signal(how)
        return self.process.wait(20)


class Road(unittest.TestCase):
    """A test that starts where nothing has been stored yet."""

    maxDiff = None

    def setUp(self):
        if os.path.exists(DATA):
            os.remove(DATA)

    def run_program(self, **how):
        program = Program(**how)
        self.addCleanup(program.kill)
        return program

    def check_order(self, page, *order):
        """Tab goes through the widgets in the order given, and back to the first."""
        for role, names in [*order, (order[0][0], order[0][1][:1])]:
            for name in names:
                until(lambda: has(page[role, str(name)], "FOCUSED"), f"the focus on {name}")
                keys("Tab")

    @staticmethod
    def write_data(*lines, code_page="cp1252"):
        with open(DATA, "wb") as file:
            file.write("".join(line + "\r\n" for line in lines).encode(code_page))

    @staticmethod
    def data(code_page="cp1252"):
        """The lines of the data file, from 1 on."""
        with open(DATA, "rb") as file:
            return [None, *file.read().decode(code_page).split("\r\n")]
