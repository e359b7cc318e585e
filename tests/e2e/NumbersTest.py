"""The page "6 From 49", from the first start to the next one."""

import math

from desk import NUMBERS, SYSTEM, Road, click, keys, part, system, until

SYSTEMS = [6, 7, 8, 9, 10, 11, 12, 13, 22, 26]
LEFTS = [75, 690, 1320, 1950, 2580, 3210, 3840]  # of the columns of the board, in twips
FRAME_MENUS = ["File: 6 from 49, Bankroll, Customize 6, Favorites, -, Exit",
               "Quor Vanta : Quor Vanta Website", "Help: Contents, -, About"]


class Numbers(Road):
    def test_a_play_is_drawn_by_the_system_chosen_and_the_choice_outlives_the_run(self):
        program = self.run_program()
        self.assertEqual(program.menus(), FRAME_MENUS)
        tools = part(program.frame(), "tool bar").children()
        self.assertEqual([tuple(tool.box[2:]) for tool in tools if tool.name], [(39, 38)] * 6)
        page = program.open("6 From 49")
        self.assertEqual(page.lines, [
            "panel: System -- 49",
            "  radio button: 6 From 49 (checked), "
            + ", ".join(f"{n} From 49" for n in SYSTEMS[1:]),
            "push button: Close, Generate Jackpot", "status bar:",
            "panel: Board", "  label: " + NUMBERS])
        self.assertEqual(program.menus(), [
            "File: 6 From 49 (grey), Bankroll, Customize 6, Favorites, -, Close",
            "Generator: Generate Jackpot, System 49: 6 From 49 (checked), "
            + ", ".join(f"{n} From 49" for n in SYSTEMS[1:]),
            *FRAME_MENUS[1:]])
        self.check_order(page, ("radio button", ["6 From 49"]),
                         ("push button", ["Close", "Generate Jackpot"]))
        self.check_board(page)
        heard = system.Announced()
        page.press("Generate Jackpot")
        until(lambda: len(page.drawn()) == 6, "six numbers")
        said = ["Drawn: " + ", ".join(map(str, page.drawn()))]
        until(lambda: heard.so_far() == said, f"{heard.so_far()} said as {said}")
        click(page["radio button", "13 From 49"])
        keys("F5")
        until(lambda: len(page.drawn()) == 13, "13 numbers")
        keys("Down", "F5")  # the option below
        until(lambda: len(page.drawn()) == 22, "22 numbers")
        keys("alt+g", "Down", "Right", "Up", "Return", "alt+g", "Return")
        until(lambda: len(page.drawn()) == 26, "26 numbers")
        play = page.drawn()
        self.assertEqual(len(heard.so_far()), 4)
        keys("alt+F4")
        self.assertEqual(program.answer("No"), "Exiting Quor Vanta ")
        self.assertEqual(program.open("6 From 49").window, page.window)
        keys("alt", "Right", "Escape")  # leaves the menu bar
        self.assertEqual(page.drawn(), play)
        keys("Escape")
        until(lambda: program.menus() == FRAME_MENUS, "the page's end")
        program.end()

        for scale in (1.5, 2) if SYSTEM == "windows" else (1,):
            if scale > 1:
                system.at_scale(scale)
            program = self.run_program()
            keys("alt+f", "Return")
            page = program.page("6 From 49")
            self.assertTrue(page["radio button", "26 From 49"].has("CHECKED"))
            self.check_board(page, scale)
            program.end_session()

    def check_board(self, page, scale=1):
        """The numbers stand at the very pixels that their twips ask for."""
        def pixels(twips):
            return math.floor(twips * scale / 15 + 0.5)
        left, top, *_ = page["panel", "Board"].box
        for n in range(1, 50):
            x, y = LEFTS[(n - 1) % 7], 150 + (n - 1) // 7 * 630
            self.assertEqual([*page["label", str(n)].box], [
                left + pixels(x), top + pixels(y),
                pixels(x + 615) - pixels(x), pixels(y + 615) - pixels(y)], n)
