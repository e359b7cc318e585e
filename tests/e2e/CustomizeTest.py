"""The page "Customize 6": rows from the keypad to the data file and back, and draws from them."""

from desk import NUMBERS, Road, click, keys, until, xdotool

ALL = list(range(1, 50))
PICKS = [3, 7, 12, 25, 33, 41, 48]


def row(n, *numbers):
    return f"{n}." + "".join(f"{number};" for number in numbers) + ";" * (49 - len(numbers))


class Customize(Road):
    def test_a_row_goes_from_the_keypad_to_the_data_file_and_is_drawn_from(self):
        program, page = self.open("Customize 6")
        self.assertEqual(page.lines, [
            "panel: Keypad", "  push button: " + NUMBERS, "table: Customized",
            "push button: Reset, File to Grid, Close", "status bar:",
            "push button: All Numbers, Jackpot Generator", "panel: Board", "  label: " + NUMBERS])
        self.check_order(page, ("push button", [*ALL, "Reset", "All Numbers", "File to Grid"]),
                         ("table", ["Customized"]), ("push button", ["Close", "Jackpot Generator"]))
        grid = page.grid
        self.assertEqual((grid.size(), grid.cell(0, 49).name, grid.cell(10, 0).name),
                         ((10, 49), "# 49", "10."))

        page.press(41, 3, 48, 7, 33, 12, 25, 8, 8)
        until(lambda: page.picked() == PICKS, "the picks")
        page["push button", "File to Grid"].act()  # as a screen reader does it
        until(lambda: page.row(1) == list(map(str, PICKS)), "the row")
        page.press("All Numbers", "File to Grid")
        until(lambda: page.row(2, 49) == list(map(str, ALL)), "the second row")
        click(page.cell(1))
        until(lambda: page.pool() == PICKS, "the pool")
        page.press("Jackpot Generator")
        until(lambda: len(page.drawn()) == 6, "a draw from the row")
        self.assertLess(set(page.drawn()), set(page.pool()))
        x, y, width, height = page.cell(0, 1).box
        # The edge of a column's header, the corner and a row's header: clicks, but no other row.
        for left, top in ((x + width - 1, y + 5), (x - 5, y + 5), (x - 5, y + 3 * height)):
            xdotool("mousemove", left, top, "click", "--repeat", 2, "--delay", 60, 1)
            until(lambda: page.drawn() == [], "a board without marks")
            self.assertEqual(page.chosen(), 1)
            keys("F5")
            until(lambda: len(page.drawn()) == 6, "another draw")
        program.end()
        self.assertEqual(self.data()[4:8], ["[StammNumbers]", row(1, *PICKS), row(2, *ALL), row(3)])

        program, page = self.open("Customize 6")
        keys("F5")  # the page opens with row 1
        until(lambda: len(page.drawn()) == 6, "a draw from row 1")
        self.assertEqual(page.pool(), PICKS)
        xdotool("key", "--delay", 0, *["F5"] * 9, "Escape")  # a draw that yields meets the last
        until(lambda: not program.pages(), "the page's end under its draws")
        self.assertEqual(program.open("Customize 6").row(1), list(map(str, PICKS)))

    def test_rows_are_deleted_after_yes_alone_and_shift_mode_ends_on_the_page_only(self):
        rows = [row(r, r, 11, 12, 13, 14, 15, 16) for r in range(1, 4)]
        self.write_data("", "", "", "[StammNumbers]", *rows)
        program, page = self.open("Customize 6")

        def first():
            return "".join(page.cell(r).name for r in range(1, 11))

        for answer, left in (("No", "123"), ("Yes", "23")):
            click(page.cell(1), times=2)
            self.assertEqual(program.answer(answer),
                             "Do you want to delete this row from the grid?")
            until(lambda: (first(), page.chosen()) == (left, 0), answer)
        click(page.cell(2))
        top = page.cell(2).box[1]
        for notch, turned in ((5, lambda: page.cell(2).box[1] < top),
                              (4, lambda: page.cell(2).box[1] == top)):
            click(page.grid, button=notch)
            until(turned, "the rows where the wheel has brought them")
        keys("ctrl")
        until(page.shift_mode, "shift mode")
        click(page.cell(5))
        self.assertIn("invalid", program.answer("OK"))
        program.open_menu("File")
        keys("Escape")
        self.assertTrue(page.shift_mode())  # neither the box nor the menu has ended it
        page.press("Reset")
        until(lambda: not page.shift_mode(), "the end of shift mode")
