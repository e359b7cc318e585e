"""The program for Windows, under Wine: its windows as tests/windows/Reader.cpp describes them."""

import json
import os
import shutil
import subprocess
import types

WINE = os.path.dirname(__file__) + "/../../scripts/with-wine"
CLASSES = {"static": "label", "edit": "text", "toolbarwindow32": "tool bar",
           "msctls_statusbar32": "status bar", "mdiclient": "layered pane", "#32770": "alert"}
BUTTONS = {4: "radio button", 7: "panel", 9: "radio button"}
ROLES = {24: "table", 25: "table column header", 26: "table row header", 29: "table cell",
         40: "image", 41: "label", 43: "push button"}
ROW_HEADER, ETCHED = 26, 16
SPOKEN_STATES = {"SELECTED": 2, "FOCUSED": 4}
PRINTERS = "HKLM\\System\\CurrentControlSet\\Control\\Print\\Printers\\"
NO_WINDOWS = "tooltips_class32", "#32768"  # tool tips and opened menus
CALCULATOR = "calc.exe"  # Wine has none


class Gone(Exception):
    """The window has gone."""


GONE = (Gone,)
reader = subprocess.Popen([WINE, os.environ["QUORVANTA_READER"]], text=True, encoding="utf-8",
                          stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                          cwd=os.path.dirname(os.environ["QUORVANTA_READER"]))


def ask(question):
    reader.stdin.write(question + "\n")
    reader.stdin.flush()
    answer = json.loads(reader.stdout.readline())
    if answer is None:
        raise Gone
    return answer


def plain(text):
    """Without the mark of its letter, and without a shortcut behind it."""
    return text.partition("\t")[0].replace("&", "")


class Node:
    """A window, or a part of one that is no window. It is asked anew at each question."""

    def __init__(self, window, number=None):
        self.window, self.number = window, number

    def __eq__(self, other):
        return (self.window, self.number) == (other.window, other.number)

    @property
    def facts(self):
        facts = ask(f"describe {self.window}")
        return facts if self.number is None else facts["parts"][self.number]

    @property
    def role(self):
        facts = self.facts
        spoken = facts if self.number is not None else facts.get("spoken", {})
        if spoken.get("role") in ROLES:
            return ROLES[spoken["role"]]
        if self.number is not None:
            return spoken["role"]
        kind = facts["class"].lower()
        if kind == "button":
            return BUTTONS.get(facts["style"] & 15, "push button")
        if kind == "static" and not self.name:  # a rule, or what readers pass by
            return "separator" if facts["style"] & 31 == ETCHED else "filler"
        return CLASSES.get(kind, "frame" if "menus" in facts else "dialog")

    @property
    def name(self):
        facts = self.facts
        spoken = facts.get("spoken", facts)
        return plain(spoken.get("name", spoken.get("text", "")))

    text = property(lambda self: self.facts["text"])
    box = property(lambda self: self.facts["box"])

    def has(self, state):
        facts = self.facts
        states = facts.get("spoken", facts).get("state", 0)
        if states & SPOKEN_STATES.get(state, 0):
            return True
        return facts.get("visible" if state == "SHOWING" else state.lower(), state == "SHOWING")

    def children(self, every=False):
        """Those on the screen, or every one."""
        if self.number is not None:
            return []
        facts = self.facts
        parts = [Node(self.window, number) for number in range(len(facts.get("parts", [])))]
        return [node for node in parts + list(map(Node, facts["children"]))
                if every or node.has("SHOWING")]

    def act(self):
        """What a click does, without a mouse."""
        ask(f"press {self.window}")

    def width(self):
        """Of a row of a grid, with its header."""
        return next(number for number, part in enumerate(self.facts["parts"])
                    if part["role"] == ROW_HEADER)

    def size(self):
        """The data rows and columns of a grid."""
        return len(self.facts["parts"]) // self.width() - 1, self.width() - 1

    def cell(self, row, column):
        """Of a grid; row 0 and column 0 are its headers."""
        return Node(self.window, row * self.width() + column)


class Announced:
    """What screen readers are given to say, from here on."""

    def __init__(self):
        self.before = len(ask("heard 0"))

    def so_far(self):
        return ask(f"heard {self.before}")


def start(folder, environment):
    return subprocess.Popen([WINE, folder + "quorvanta.exe"], env=environment)


def every_window(process):
    return map(Node, ask("windows Z:" + process.args[1].replace("/", "\\")))


def windows(process):
    return [node for node in every_window(process) if node.facts["class"] not in NO_WINDOWS]


def tips(process):
    return [node.text for node in every_window(process) if node.facts["class"] == NO_WINDOWS[0]]


def registry(what, *arguments, check=True):
    subprocess.run([WINE, "reg", what, *arguments, "/f"], check=check, capture_output=True)


def opener(folder, there):
    """Wine hands over to the Linux program of that name what Windows has a program for."""
    for key, program in ((r"HKCR\.html", "htmlfile"),
                         (r"HKCR\https\shell\open\command", 'winebrowser.exe "%1"')):
        registry(*(("add", key, "/ve", "/d", program) if there else ("delete", key)), check=there)
    return {"PATH": folder + ":" + os.environ["PATH"]}


def at_scale(scale):
    """Has the programs that start from here on find such a screen."""
    registry("add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD",
             "/d", str(int(96 * scale)))


def end_session(process):
    ask(f"end {windows(process)[0].window}")


def hold_printer(name, held):
    """Wine doesn't tell of a paused printer, but of one that its user has put off line."""
    registry("add", PRINTERS + name, "/v", "Attributes", "/t", "REG_DWORD",
             "/d", "0x400" if held else "0")


def menus(frame):
    """The menus of the bar, with what each holds: name, states and entries."""
    def entry(facts):
        if facts["separator"]:
            return "-"
        return (plain(facts["text"]) + (" (checked)" if facts["checked"] else "")
                + ("" if facts["enabled"] else " (grey)")
                + (": " + ", ".join(map(entry, facts["entries"])) if facts["entries"] else ""))
    return [(types.SimpleNamespace(**facts), entry(facts)) for facts in frame.facts["menus"]]


shutil.copy(os.environ["WINEPREFIX"] + "/drive_c/windows/system32/winemine.exe",
            os.environ["WINEPREFIX"] + "/drive_c/windows/Calc.exe")
ask("windows none")  # it has come up before anything is timed
