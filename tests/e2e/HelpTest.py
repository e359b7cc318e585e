"""The help: a viewer on Linux, on a page of the test's own, and the browser on Windows."""

import pathlib
import re
import unittest
from urllib.parse import unquote

from desk import APP, OPENED, SYSTEM, Road, click, keys, put_opener, until, xdotool

GUIDE, HELP = pathlib.Path(APP + "quorvantalite.hlp"), "Quor Vanta  - Help"
FILLER = "<p>word</p>" * 200
PAGE = ("<h2>Before</h2><p>Ball</p>" + FILLER + "<h1>\u00C4</h1><h3>Deep</h3>" + FILLER
        + "<h2>A</h2><h4>No</h4><p>a ball</p>" + FILLER)


class Help(Road):
    @unittest.skipIf(SYSTEM == "linux", "the help has a window of its own there")
    def test_the_browser_shows_the_guide_with_its_contents_and_what_fails_is_told(self):
        self.addCleanup(GUIDE.write_bytes, GUIDE.read_bytes())
        program = self.run_program(**put_opener(None))
        keys("alt+h", "Return")
        self.assertRegex(program.answer("OK"), r"(?s)The help can't be shown\..*can't be opened:"
                         r".*\\Quorvanta-help\.html.*Reason: \S")
        put_opener("exit 0")
        page = program.open("Bankroll")
        program.tool("Help")
        address = until(OPENED.read_text, "the browser").strip()
        shown = pathlib.Path(unquote(address.removeprefix("file://"))).read_text(encoding="utf-8")
        self.assertIn(GUIDE.read_text(encoding="utf-8").partition("<body>")[2], shown)
        self.assertEqual(re.findall("<a .*>(.*)</a>", shown.partition("</nav>")[0]),
                         re.findall("<h[1-3].*?>(.*)</h", shown))
        GUIDE.unlink()
        program.tool("Help")
        self.assertRegex(program.answer("OK"), r"(?s)be read:.*\\quorvantalite\.hlp.*not found")
        self.assertEqual(program.page("Bankroll").window, page.window)

    @unittest.skipIf(SYSTEM == "windows", "the browser has no window of the program's there")
    def test_a_missing_file_is_reported_until_it_is_there_and_headings_and_words_are_found(self):
        self.addCleanup(GUIDE.write_bytes, GUIDE.read_bytes())
        GUIDE.unlink()
        program = self.run_program()

        def choose_help():
            xdotool("search", "--name", "^Zephyrwick - ", "windowactivate", "--sync")
            keys("alt+h", "Return")

        def view():
            return program.dialog(HELP)["label", "Help page"]

        def text_at(share=0):
            left, top, _width, height = view().box
            return view().text_from(left + 20, top + 15 + int(share * height))

        def at_top(line):
            until(lambda: text_at().startswith(line), line)

        def heading(title):
            until(lambda: program.dialog(HELP)["table cell", title].has("SELECTED"), title)

        def found():
            start, end = view().marked()
            return view().text[start - 2:end]

        choose_help()
        until(lambda: str(GUIDE) in view().text, "the report")
        self.assertNotIn(("tree", "Contents"), program.dialog(HELP).nodes)
        GUIDE.write_text(PAGE, encoding="utf-8")
        choose_help()
        until(lambda: view().text.startswith("Before"), "the page")
        self.assertIn("    table cell: Before, \u00C4, Deep, A", program.dialog(HELP).lines)
        keys("Down", "Down")
        at_top("Deep")
        click(program.dialog(HELP)["table cell", "\u00C4"])
        at_top("\u00C4")
        choose_help()  # a second call keeps the reader's place
        at_top("\u00C4")
        keys("ctrl+plus", "ctrl+plus")  # and so do larger letters
        at_top("\u00C4")
        keys("ctrl+f", *"ball", "Return")
        until(lambda: found() == "a ball", "the word")
        heading("A")
        until(lambda: text_at(0.7).startswith("word") and "ball" not in text_at(0.7), "words below")
        keys("F3")
        until(lambda: found() == "e\nBall", "the word before")
        at_top("Before")
        heading("Before")
        keys(*"room", "Return")
        until(lambda: ("label", "Not found") in program.dialog(HELP).nodes, "no word")
        keys("Escape")
        until(lambda: view().has("FOCUSED"), "the focus on the page")
        keys("Escape")
        program.frame()
