"""The words of the roads: a program, its pages, what is on them, and the mouse and the keys of
xdotool to work them. What a window holds is read by the module of the system."""

import importlib
import os
import pathlib
import subprocess
import time
import unittest

SYSTEM = os.environ.get("QUORVANTA_SYSTEM", "linux")
system = importlib.import_module(SYSTEM)

PLACE = os.environ["QUORVANTA_PLACE"]
APP = PLACE + "/app/"
DATA = APP + "Quorvanta.txt"
OPENED = pathlib.Path(APP + "opened")
RED, BLUE = (255, 0, 0), (0, 0, 255)
FRAME = "Zephyrwick - Quor Vanta "
NUMBERS = ", ".join(map(str, range(1, 50)))


def until(holds, what="", seconds=15):
    """The first true result of `holds`. A widget that goes while it is read is read anew."""
    end = time.monotonic() + seconds
    while True:
        try:
            found = holds()
        except (*system.GONE, IndexError, StopIteration):
            found = None
        if found:
            return found
        assert time.monotonic() < end, f"in vain: {what}"
        time.sleep(0.03)


def output(*command, check=True):
    """What a command prints."""
    return subprocess.run([*map(str, command)], stdout=subprocess.PIPE, check=check).stdout


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True,
                          check=False).stdout


def keys(*names):
    """Types keys, with the time between them that the opening of a menu takes."""
    xdotool("key", "--delay", 60, *names)


def in_front(title):
    return xdotool("getactivewindow", "getwindowname").rstrip("\n") == title


def click(node, times=1, button=1):
    x, y, width, height = node.box
    xdotool("mousemove", x + width // 2, y + height // 2,
            "click", "--repeat", times, "--delay", 60, button)


def picture(node):
    """Its pixels on the screen, three bytes each."""
    x, y, width, height = node.box
    return output("import", "-window", "root", "-depth", 8, "-crop", f"{width}x{height}+{x}+{y}",
                  "rgb:-")


def shows(colour, nodes):
    """Whether the colour, or one near it as thin strokes have it, is in each of the widgets."""
    screen = output("import", "-window", "root", "-depth", 8, "rgb:-")
    across = int(xdotool("getdisplaygeometry").split()[0])

    def inside(x, y, width, height):
        starts = (3 * (line * across + x) for line in range(y, y + height))
        return any(max(abs(screen[at + i] - colour[i]) for i in range(3)) < 96
                   for start in starts for at in range(start, start + 3 * width, 3))
    return [inside(*node.box) for node in nodes]


def put_opener(then):
    """What opens addresses and guides from here on: it notes them, prints, and goes on as told; or
    none. Gives what a run needs of its environment to find it."""
    os.makedirs(APP + "bin", exist_ok=True)
    OPENED.write_text("", encoding="ascii")
    with open(APP + "bin/xdg-open", "w", encoding="ascii") as file:
        file.write(f'#!/bin/sh\necho "$@" >>{OPENED}\necho noise\n{then}\n')
    os.chmod(APP + "bin/xdg-open", 0o755 if then else 0o644)
    return system.opener(APP + "bin", bool(then))


def opened(*addresses):
    until(lambda: OPENED.read_text(encoding="ascii").split() == list(addresses), "the opener")


def part(window, role):
    return next(node for node in window.children() if node.role == role)


class Page:
    """The widgets of a window as they were when it was read, by role and name."""

    def __init__(self, window):
        self.window, self.nodes, self.lines = window, {}, []
        self._read(window, "")

    def _read(self, node, indent):
        for child in node.children():
            role, name = child.role, child.name
            if role == "filler":
                self._read(child, indent)
                continue
            self.nodes.setdefault((role, name), child)
            states = "".join(f" ({mark})" for mark, shown in (
                ("checked", child.has("CHECKED")), ("grey", not child.has("ENABLED"))) if shown)
            head = indent + role + ":"
            if self.lines and self.lines[-1].startswith(head):
                self.lines[-1] += "," if name else ""
            else:
                self.lines.append(head)
            self.lines[-1] += f" {name}{states}" if name else ""
            if role == "table":
                self.grid = child
            elif role == "status bar":
                self.status = child
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
        """The drawn numbers, which are those spoken so and painted red. They are read one by one,
        and may change meanwhile."""
        def read():
            spoken = self.numbers("label", lambda node, n: node.name == f"{n}, drawn")
            red = shows(RED, [self["label", str(n)] for n in range(1, 50)])
            return [spoken] if spoken == [n for n in range(1, 50) if red[n - 1]] else None
        return until(read, "drawn numbers that are red")[0]

    def picked(self):
        return self.numbers("push button", lambda node, n: node.name == f"{n}, picked")

    def pool(self):
        return self.numbers("label", lambda node, n: node.has("ENABLED"))

    def cell(self, row, column=1):
        return self.grid.cell(row, column)

    def row(self, row, columns=7):
        return [self.cell(row, c).name for c in range(1, columns + 1)]

    def chosen(self):
        """The chosen row of the grid, 0 for none."""
        return next((r for r in range(1, 11) if self.cell(r).has("SELECTED")), 0)

    def shift_mode(self):
        return self.status.children()[0].name == "Shift mode"


class Program:
    """One run. The splash is left by a key, unless it is to be waited for."""

    def __init__(self, locale="en_US.UTF-8", leave_splash=True, folder=APP, **environment):
        self.process = system.start(folder, dict(os.environ, LC_ALL=locale, **environment))
        if leave_splash:
            until(lambda: in_front("Quor Vanta "), "the splash")
            keys("space")
            self.frame()

    def windows(self):
        return system.windows(self.process)

    def splash(self):
        return until(lambda: self.windows()[0], "the splash")

    def frame(self):
        return until(lambda: in_front(FRAME) and next(w for w in self.windows()
                                                      if w.name == FRAME), "the frame")

    def tool(self, tooltip):
        click(next(button for button in part(self.frame(), "tool bar").children()
                   if button.name == tooltip))

    def pages(self):
        return part(self.frame(), "layered pane").children()

    def dialog(self, title):
        """The window in front, once it has the title."""
        return Page(until(lambda: next(w for w in self.windows()
                                       if w.name == title and w.has("ACTIVE")), title))

    def page(self, title):
        """The page in front, once it has the title."""
        title = "Quor Vanta  - " + title
        return Page(until(lambda: next(page for page in self.pages() if page.name == title
                                       and page.has("FOCUSED")), title))

    def open(self, title):
        """The page, brought to the front by its tool."""
        self.tool({"6 From 49": "6 from 49", "Customize 6": "Customize Six"}.get(title, title))
        return self.page(title)

    def menus(self):
        """The menu bar: each menu with its entries, a separator as a dash."""
        return [entries for _, entries in system.menus(self.frame())]

    def open_menu(self, name):
        click(next(menu for menu, entries in system.menus(self.frame())
                   if entries.startswith(name + ":")))

    def box(self):
        """The message box in front, as a page."""
        return Page(until(lambda: next(w for w in self.windows() if w.role == "alert"
                                       and w.has("ACTIVE")), "a message box"))

    def asked(self):
        """The text of the message box in front."""
        return next(name for role, name in self.box().nodes if role == "label" and name)

    def answer(self, button):
        """Answers the message box by a click, and gives its text."""
        text, box = self.asked(), self.box()
        box.press(button)
        until(lambda: box.window not in self.windows()
              or self.process.poll() is not None, "the end of the box")
        return text

    def end(self):
        """Ends the run from the toolbar, through the question."""
        self.tool("Exit")
        self.answer("Yes")
        assert self.process.wait(10) == 0

    def end_session(self):
        """Ends the run as the system does, without a question."""
        system.end_session(self.process)
        assert self.process.wait(10) == 0

    def kill(self):
        self.process.kill()
        return self.process.wait(20)

    def used(self):
        """The time of the processor so far, in seconds."""
        with open(f"/proc/{self.process.pid}/stat", encoding="utf-8") as stat:
            return sum(map(int, stat.read().split()[13:15])) / os.sysconf("SC_CLK_TCK")


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

    def open(self, title, **how):
        """A run with the page in front."""
        program = self.run_program(**how)
        return program, program.open(title)

    def check_order(self, page, *order):
        """Tab goes through the widgets in the order given, and back to the first."""
        for role, names in [*order, (order[0][0], order[0][1][:1])]:
            for name in names:
                until(lambda: page[role, str(name)].has("FOCUSED"), f"the focus on {name}")
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
