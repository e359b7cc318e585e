"""Takes the pictures of the tour and writes its text, on Windows one picture alone. Argument: the
directory docs."""

import os
import subprocess
import sys
import textwrap
import time

from desk import SYSTEM, Program, Road, click, keys, until, xdotool

DOCS = sys.argv[1]
TEXT = ["""# A tour of Quorvanta

`scripts/tour` makes these pictures and this page anew.
"""]
DARK = """[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
[Colors:View]
BackgroundNormal=27,30,32
ForegroundNormal=252,252,252
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
"""


def stop(name, title, text, window):
    """A stop of the tour: what is on the screen where the window is, and a paragraph on it."""
    TEXT.append(f"\n## {title}\n\n{textwrap.fill(text, 100)}\n\n![{title}](tour/{name}.png)\n")
    xdotool("mousemove", 0, 0)
    time.sleep(0.7)  # the last paint, and the end of a tooltip
    left, top, width, height = window.box
    subprocess.run(["import", "-window", "root", "-crop",
                    f"{width}x{height}+{left}+{top}", "+repage", "-strip", "-dither",
                    "None", "-colors", "128", "-define", "png:compression-level=9",
                    f"PNG8:{DOCS}/tour/{name}.png"], check=True)


def row(n, *numbers):
    return f"{n}." + "".join(f"{number};" for number in numbers)


Road.write_data(
    "", "[StammNumbers]", row(1, 3, 7, 12, 25, 33, 41, 48), row(2, 8, 11, 19, 23, 29, 34, 40, 46),
    "[Favorites]", row(1, 5, 9, 14, 22, 36, 44), row(2, 1, 13), row(3, 7, 17, 27, 37),
    "[Win/Loss]", "Win:1250.5", "Loss:980", "Bal:270.5", "Large:500", "Date:7/25/2005")

if SYSTEM == "windows":
    program = Program()
    program.tool("Customize Six")
    page = program.page("Customize 6")
    click(page.cell(2))
    page.press("Jackpot Generator")
    until(lambda: len(page.drawn()) == 6, "a draw")
    stop("windows", "On Windows", "", program.frame())
    program.end_session()
    sys.exit()

program = Program(leave_splash=False)
stop("splash", "The start", "The splash stands for three and a half seconds; a key leaves it at "
     "once.", program.splash())
keys("space")
frame = program.frame()

program.tool("6 from 49")
page = program.page("6 From 49")
click(page["radio button", "13 From 49"])
page.press("Generate Jackpot")
until(lambda: len(page.drawn()) == 13, "a play")
stop("numbers", "A system play", "The page \"6 From 49\" draws six numbers, or a system of up to "
     "26, on a board of 49. *Generate Jackpot* or F5 draws anew; the system chosen is there "
     "again at the next start.", frame)
keys("Escape")

program.tool("Customize Six")
page = program.page("Customize 6")
click(page.cell(2))
page.press("Jackpot Generator", 4, 15, 16)
stop("customize", "Rows of one's own", "On the page \"Customize 6\" numbers are picked on the "
     "keypad, seven or more, and filed to the grid. A click on a row shows its numbers on the "
     "board, and *Jackpot Generator* draws six of them.", frame)
click(page.cell(1), times=2)
program.box()
stop("delete", "Deleting a row", "A double click on a row asks before it deletes the row, and the "
     "rows below move up.", frame)
program.answer("No")
keys("Escape")

program.tool("Favorites")
page = program.page("Favorites")
click(page.cell(1))
keys("ctrl")
click(page.cell(2))
stop("favorites", "Favorite rows", "The page \"Favorites\" keeps rows of two to six numbers and "
     "prints them. Ctrl turns shift mode on: the two rows that are clicked next change places.",
     frame)
TEXT.append("\n![The rows of a favorites page, printed](pictures/print-out.png)\n")
keys("Escape")

program.tool("Bankroll")
page = program.page("Bankroll")
stop("bankroll", "The account", "The page \"Bankroll\" keeps the totals of bets and winnings, the "
     "largest win and the balance, which is red where more was lost than won.", frame)
keys("Escape", "alt+h", "a")
until(lambda: len(program.windows()) == 2, "the About box")
stop("about", "About", "The About box shows the version; a double click on its moving picture "
     "opens the maker's site.", frame)
keys("alt+o")
until(lambda: len(program.windows()) == 1, "its end")
keys("alt+h", "c")
guide = until(lambda: next(w for w in program.windows() if w != frame), "the guide")
stop("guide", "The user's guide", "*Contents* in the Help menu opens the guide.", guide)
program.end_session()
program.process.wait(20)

with open(os.environ["XDG_CONFIG_HOME"] + "/kdeglobals", "w", encoding="ascii") as file:
    file.write(DARK)
program = Program(XDG_CURRENT_DESKTOP="KDE", KDE_FULL_SESSION="true", KDE_SESSION_VERSION="5")
program.tool("Customize Six")
page = program.page("Customize 6")
click(page.cell(1))
page.press("Jackpot Generator")
stop("dark", "In a dark theme", "Pages follow the colours of the desktop. Boards, balance, splash "
     "and About box stay light.", program.frame())
program.end_session()

TEXT.append("""
## On Windows

The same program in the controls of Windows, here under Wine.

![On Windows](tour/windows.png)
""")
with open(DOCS + "/tour.md", "w", encoding="utf-8") as file:
    file.write("".join(TEXT))
