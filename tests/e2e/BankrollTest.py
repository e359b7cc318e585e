"""The page "Bankroll", kept by a German user, and once by an American too."""

from desk import BLUE, RED, SYSTEM, Road, click, keys, shows, system, until, xdotool

BOXES = ["Date Started", "Total Amount of Bets", "Winnings", "Largest Win"]


class Bankroll(Road):
    def test_the_balance_follows_the_bets_and_is_there_again_at_the_next_start(self):
        for locale, date, typed, shown in (
                ("en_US", "7/25/2005", ("1250.5", "-749.5"),
                 ["1,250.50", "2,000.00", "500.00", "270.50", "250.50", "-749.50"]),
                ("de_DE", "25.07.2005", ("1250,5", "-749,5"),
                 ["1.250,50", "2.000,00", "500,00", "270,50", "250,50", "-749,50"])):
            won, bets, largest, *balances = shown
            self.write_data("[Win/Loss]", "Win:" + typed[0], "Loss:980", "Large:500",
                            "Date:" + date)
            program, page = self.open("Bankroll", locale=locale + ".UTF-8")
            self.assertEqual(page.lines, [
                "panel: Bankroll", f"  label: {balances[0]}, Date Started", "  text: Date Started",
                "  label: Total Amount of Bets", "  text: Total Amount of Bets",
                "  label: Winnings  ", "  text: Winnings", "  label: Largest Win",
                "  text: Largest Win", "  label: Balance", "push button: Close, Calculator"])
            self.check_order(page, ("text", BOXES), ("push button", ["Close", "Calculator"]))
            label = page["label", balances[0]]
            until(lambda: shows(BLUE, [label])[0], "a blue balance")
            for amount, balance in (("1000", balances[1]), ("2000", balances[2])):
                keys(*amount, "Tab")
                until(lambda: label.name == balance, balance)
                keys("shift+Tab")
            click(page["text", BOXES[3]])
            keys(*"77")  # not left, so not kept
            program.end()
            self.assertEqual(self.data()[29:34], ["Win:" + typed[0], "Loss:2000", "Bal:" + typed[1],
                                                  "Large:500", "Date:" + date])
            program, page = self.open("Bankroll", locale=locale + ".UTF-8")
            self.assertEqual([page["text", name].text for name in BOXES],
                             [date, bets, won, largest])
            self.assertTrue(shows(RED, [page["label", balances[2]]])[0])
            program.end()

    def test_a_wrong_amount_is_refused_once_whatever_takes_the_focus_and_esc_gives_it_up(self):
        program, page = self.open("Bankroll", locale="de_DE.UTF-8")
        rows = program.open("Customize 6")
        wins = program.open("Bankroll")["text", "Winnings"]
        for way in (lambda: keys("Tab"), lambda: click(page["text", "Largest Win"]),
                    lambda: page.press("Calculator"), lambda: program.tool("6 from 49"),
                    lambda: rows.press("Jackpot Generator"), lambda: click(rows.cell(3)),
                    lambda: page.press("Close")):
            click(wins)
            keys(*"abc")
            way()
            program.answer("OK")
            until(lambda: wins.has("FOCUSED") and not wins.text, "the box")
            program.page("Bankroll")  # it has stayed in front
        if SYSTEM == "windows":  # there a screen reader's press brings the focus, too
            rows["push button", "All Numbers"].act()
            program.page("Customize 6")
            program.tool("Bankroll")
            program.page("Bankroll")
        keys(*"abc", "Escape")
        program.page("Customize 6")
        self.assertEqual((rows.chosen(), rows.drawn()), (1, []))
        program.open("Bankroll").press("Calculator")
        calculator = "search", "--onlyvisible", "--class", system.CALCULATOR
        until(lambda: xdotool(*calculator), "the calculator")
        xdotool(*calculator, "windowkill")
