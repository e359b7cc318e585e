"""The About box, and the website's dialog, which comes up where no browser does."""

import os
import pwd
import time

from desk import (BLUE, RED, SYSTEM, Road, click, keys, opened, picture, put_opener, shows,
                  until)

ABOUT, HOME = "About Zephyrwick's Quor Vanta ", "https://www.zephyrwick.example/"
PRODUCT = HOME + "prod02.htm"


class Dialogs(Road):
    def test_the_about_box_runs_its_frames_until_a_double_click_opens_the_makers_site(self):
        program = self.run_program(**put_opener("exit 3"))

        keys("alt+h", "a")
        about = program.dialog(ABOUT)
        self.assertEqual(about.lines[1:], [
            f"label: {pwd.getpwuid(os.getuid()).pw_name}",
            "image: www.zephyrwick.example, Zephyrwick", "push button: Ok",
            "label: Quor Vanta , Zephyrwick, "
            "Exampleton, United Kingdom, Tel. 01632 960 049, Fax 01632 960 050, "
            "www.zephyrwick.example, Version 3.5, Copyright \u00A9 2005 - 2026 Zephyrwick"])
        diamond = about["image", "www.zephyrwick.example"]
        self.check_order(about, ("image", ["www.zephyrwick.example"]), ("push button", ["Ok"]))
        frame = picture(diamond)
        until(lambda: picture(diamond) != frame, "another frame")
        self.assertEqual(shows(RED, [diamond]) + shows(BLUE, [diamond]), [True, False])
        before = program.used()
        time.sleep(4)
        self.assertLessEqual(program.used() - before, 0.02 * 4)
        keys("shift+Tab", "space")
        opened(HOME)
        frame = picture(diamond)
        time.sleep(0.3)
        self.assertEqual(picture(diamond), frame)
        keys("alt+o")
        program.frame()
        keys("alt+h", "a")
        click(program.dialog(ABOUT)["image", "www.zephyrwick.example"], times=2)
        opened(HOME, HOME)
        keys("alt+o")
        program.frame()

    def test_the_website_opens_whether_the_opener_goes_on_or_ends(self):
        for then in ("exec /bin/sleep 30", "exit 0"):
            program = self.run_program(**put_opener(then))  # the run before has left no lock
            keys("alt+q", "Return", "alt+q", "Return")
            opened(PRODUCT, PRODUCT)
            program.frame()
            self.assertEqual(len(program.windows()), 1)
            program.kill()

    def test_the_websites_links_are_copied_where_no_browser_opens_and_no_key_changes_them(self):
        program = self.run_program(**put_opener(None))
        links = {"Quor Vanta  Website": PRODUCT, "Zephyrwick website": HOME}
        for link, way in zip(links, ("key", "menu")):
            if way == "menu" and SYSTEM == "linux":  # Windows isn't told how an opener ends
                put_opener("exit 3")
            keys("alt+q", "Return")
            website = program.dialog("Quor Vanta  - Website")
            self.assertIn("unable to establish an Internet connection.", website.lines[1])
            self.assertEqual(website.lines[2:4], ["text: " + ", ".join(links), "label: "
                                                  "Quor Vanta  Website:, Zephyrwick website:"])
            if way == "key":
                self.check_order(website, ("push button", ["OK"]), ("text", links))
            else:
                keys("Tab")  # and the other link has never had the focus
            keys("x", "BackSpace", "Delete", "ctrl+x", "dead_acute", "e", "End", "space", "ctrl+v")
            if way == "key":
                keys("ctrl+c")
            else:
                click(website["text", link], button=3)
                time.sleep(2)  # no bus tells of the menu
                keys("c")
            keys("Escape")  # the dialog stays
            self.assertEqual({name: website["text", name].text for name in links}, links)
            keys("Return")
            page = program.open("Bankroll")
            keys("Tab", "ctrl+v")
            bets = page["text", "Total Amount of Bets"]
            until(lambda: bets.text == links[link], "the link")
            keys("Escape")
