"""The About box, and the website's dialog, which comes up where no browser does."""

import os
import pathlib
import pwd

from desk import APP, Atspi, Page, Road, click, has, keys, until

BIN, OPENED = APP + "bin", pathlib.Path(APP + "opened")


class Dialogs(Road):
    def start(self, opener):
        """With an opener of addresses that only notes them, or with none."""
        os.makedirs(BIN, exist_ok=True)
        with open(BIN + "/xdg-open", "w", encoding="ascii") as file:
            file.write(f'#!/bin/sh\necho "$@" >>{OPENED}\n')
        os.chmod(BIN + "/xdg-open", 0o755 if opener else 0o644)
        return self.run_program(PATH=BIN)

    @staticmethod
    def dialog(program, title):
        return Page(until(lambda: next(w for w in program.windows()
                                       if w.get_name() == title and has(w, "ACTIVE")), title))

    def test_the_about_box_tells_who_made_the_program_and_opens_the_makers_site(self):
        program = self.start(opener=True)
        for close in ("alt+o", "Return"):
            keys("alt+h", "a")
            about = self.dialog(program, "About Zephyrwick's Quor Vanta ")
            self.assertEqual(about.lines[1:], [
                f"label: {pwd.getpwuid(os.getuid()).pw_name}", "image: www.zephyrwick.example, Zephyrwick", "push button: Ok",
                "label: Quor Vanta , Quor Vanta , Zephyrwick, Zephyrwick, "
                "Exampleton, United Kingdom, Tel. 01632 960 049, Fax 01632 960 050, "
                "www.zephyrwick.example, Version 3.5, Copyright \u00A9 2005 - 2026 Zephyrwick"])
            self.check_order(about, ("image", ["www.zephyrwick.example"]), ("push button", ["Ok"]))
            if close == "alt+o":
                click(about["image", "www.zephyrwick.example"], times=2)
            keys(close)
            program.frame()
        keys("alt+q", "Return")
        until(lambda: OPENED.exists() and OPENED.read_text(encoding="ascii").split() == [
            "https://www.zephyrwick.example/", "https://www.zephyrwick.example/prod02.htm"],
            "the addresses")
        self.assertEqual(len(program.windows()), 1)

    def test_the_websites_links_are_shown_where_no_browser_opens_and_no_key_changes_them(self):
        program = self.start(opener=False)
        keys("alt+q", "Return")
        website = self.dialog(program, "Quor Vanta  - Website")
        self.assertEqual(website.lines[0], "push button: OK")
        self.assertIn("unable to establish an Internet connection.", website.lines[1])
        self.assertEqual(website.lines[2:4], ["text: Quor Vanta  Website, Zephyrwick website",
                                              "label: Quor Vanta  Website:, Zephyrwick website:"])
        links = [("text", ["Quor Vanta  Website", "Zephyrwick website"])]
        self.check_order(website, ("push button", ["OK"]), *links)
        for box, link in zip(links[0][1], ("/prod02.htm", "/")):
            keys("x", "Delete", "ctrl+x", "Escape")
            self.assertEqual(Atspi.Text.get_text(website["text", box], 0, -1),
                             "https://www.zephyrwick.example" + link)
            keys("Tab")
        keys("Return")
        program.frame()
        self.assertEqual(len(program.windows()), 1)
