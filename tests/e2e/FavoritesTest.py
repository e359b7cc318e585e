"""The page "Favorites", worked by the keyboard alone, by a user of another code page."""

from desk import NUMBERS, Road, keys, system, until, xdotool


class Favorites(Road):
    def test_rows_are_filed_swapped_and_deleted_without_a_mouse(self):
        self.write_data("", "[Favorites]", "1.5;9;;;;;", "2.ж;", code_page="cp1251")
        program = self.run_program(locale="bg_BG.UTF-8")
        keys("alt+f", "Down", "Down", "Down", "Return")
        page = program.page("Favorites")
        self.assertEqual(page.lines, [
            "panel: Keypad", "  push button: " + NUMBERS, "table: Favorites",
            "push button: Reset, File to Grid, Close", "status bar:"])
        self.check_order(page, ("table", ["Favorites"]),
                         ("push button", [*range(1, 50), "File to Grid", "Reset", "Close"]))
        self.assertEqual([page.row(1, 6), page.cell(2).name], [["5", "9", *[""] * 4], "ж"])
        x, y, *_ = page.cell(10, 6).box  # the whole grid is in view
        xdotool("mousemove", x + 5, y + 5)
        until(lambda: "Double click to delete a row" in system.tips(program.process), "the tip")
        keys("space", "Tab", "Tab", "space", "Tab", "space")
        until(lambda: page.picked() == [1, 3, 4], "the picks")
        keys("shift+Tab", "space", "alt+f")  # 3 is taken back
        until(lambda: page.row(3, 3) == ["1", "4", ""], "the row")
        keys("alt+r", "shift+Tab", "shift+Tab")  # Reset, then back over File to Grid to the keys
        until(lambda: page["push button", "49"].has("FOCUSED"), "the focus on 49")
        keys(*["shift+Tab"] * 49)
        until(lambda: page.grid.has("FOCUSED"), "the focus on the grid")
        keys("ctrl", "Down", "Return", "Down", "Down")
        until(lambda: (page.chosen(), page.shift_mode()) == (3, True), "shift mode")
        keys("Return")
        until(lambda: (page.row(1, 2), page.row(3, 2)) == (["1", "4"], ["5", "9"]), "the swap")
        keys("Up", "Up", "alt", "Right", "Down", "Return")  # Delete Grid Row
        self.assertIn("delete this row", program.asked())
        keys("y")
        until(lambda: page.row(2, 2) == ["5", "9"], "the deletion")
        keys("Escape")
        until(lambda: not program.pages(), "the page's end")
        keys("alt+f", "Up", "Return")  # Exit
        program.box()
        keys("y")
        self.assertEqual(program.process.wait(10), 0)
        lines = self.data("cp1251")
        self.assertRegex(lines[1], r"^\d+\.\d+\.\d{4}\sг\.")
        self.assertEqual(lines[16:20], ["[Favorites]", "1.ж;;;;;;", "2.5;9;;;;;", "3.;;;;;;"])
