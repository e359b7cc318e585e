"""The help: its viewer on a page of the test's own, and the links of the guide."""

import pathlib
import re

from desk import APP, Road, click, keys, until, xdotool

GUIDE, HELP = pathlib.Path(APP + "quorvantalite.hlp"), "Quor Vanta  - Help"
FILLER = "<p>word</p>" * 200
PAGE = ("<h2>Before</h2><p>Ball</p>" + FILLER + "<h1>\u00C4</h1><h3>Deep</h3>" + FILLER
        + "<h2>A</h2><h4>No</h4><p>a ball</p>" + FILLER)


class Help(Road):
    def test_every_link_of_the_guide_leads_to_a_place_in_it(self):
        guide = GUIDE.read_text(encoding="utf-8")
        links = re.findall(r'<a [^>]*href="([^"]*)"', guide)
        self.assertGreater(len(links), 10)
        self.assertLessEqual(set(links), {"#" + id for id in re.findall(r' id="(.*?)"', guide)})

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
