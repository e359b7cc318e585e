"""The favorite rows on paper, printed by a German user onto a print server of the test's own.

The server is a copy of the machine's, with configuration, socket, spool and printer of its own, so
that neither the machine's printers nor its confinement of the server play a part. Its backend runs
as root only."""

import itertools
import os
import pathlib
import re
import subprocess
import time
import unicodedata

from desk import APP, PLACE, SYSTEM, Road, keys, output, system, until

CUPS, PRINTED = PLACE + "/cups", pathlib.Path(PLACE + "/printed")
AS_ROOT = () if os.geteuid() == 0 else ("sudo", "-n")
BACKEND = PLACE.rpartition(".")[2]
BACKEND_CONFIGURATION = f"/etc/cups/cups-pdf-{BACKEND}.conf"  # it looks for it nowhere else
ANYONE = "Order allow,deny"
CONFIGURATION = {
    "cups-files.conf": "\n".join(f"{what} {CUPS}/{place}" for what, place in (
        ("ServerRoot", ""), ("ServerBin", "lib"), ("RequestRoot", "spool"), ("CacheDir", "cache"),
        ("StateDir", "state"), ("TempDir", "tmp"), ("AccessLog", "access_log"),
        ("ErrorLog", "error_log"), ("PageLog", "page_log"))),
    "cupsd.conf": f"""Listen {CUPS}/socket
        Browsing No
        DefaultAuthType None
        WebInterface No
        <Location />
        {ANYONE}
        Allow all
        </Location>
        <Policy default>
        <Limit All>
        {ANYONE}
        </Limit>
        </Policy>""",
    "pdf.conf": f"""Out {PRINTED}
        Spool {CUPS}/tmp/pdf
        Log {CUPS}"""}
# The size of the paper, and each line's left and top, size, colour, style and text, at 216 dots to
# the inch from the corner of the paper, whose edge takes 12 and 66. A line begins three of its
# font's average characters in; its text reaches from the baseline, 0.905 of the size below its top,
# 0.71 of the size up. The long line ends where the area does.
PAGE = ["2376 1836", "112 151 54 #0000ff bi Quor Vanta ® Version 3.5",
        "56 270 24 #000000 bi " + time.strftime("%d.%m.%Y"),
        "65 634 30 #000000 i 1. 5;9;14;22;36;44;", "65 667 30 #000000 i 2. 4;9;;;;;",
        "65 701 30 #000000 i 3. as it was: ä",
        *(f"65 {top} 30 #000000 i {n}."
          for n, top in enumerate((734, 768, 802, 835, 869), 4)),
        "65 902 30 #000000 i 9. 0.. to 1770", "65 936 30 #000000 i 10. ;;;;;;"]


def start_server():
    """A server without a printer."""
    for folder in ("spool", "cache", "state", "tmp"):
        os.makedirs(f"{CUPS}/{folder}")
    PRINTED.mkdir()
    os.chmod(PLACE, 0o755)
    os.chmod(CUPS + "/tmp", 0o1777)
    output("cp", "/usr/sbin/cupsd", CUPS)
    output(*AS_ROOT, "cp", "-a", "/usr/lib/cups", CUPS + "/lib")
    for name, text in CONFIGURATION.items():
        with open(f"{CUPS}/{name}", "w", encoding="ascii") as file:
            file.write(re.sub(r"\n +", "\n", text) + "\n")
    output(*AS_ROOT, "cp", CUPS + "/pdf.conf", BACKEND_CONFIGURATION)
    server = subprocess.Popen(
        [*AS_ROOT, "setpriv", "--pdeathsig", "TERM", CUPS + "/cupsd", "-f", "-c",
         CUPS + "/cupsd.conf", "-s", CUPS + "/cups-files.conf"])
    until(lambda: b"is running" in output("lpstat", "-r", check=False), "the server")
    return server


def add_printer():
    """For Letter paper with an edge of 4 points to the left, 22 above and to the right, 30 below.
    Its driver keeps the texts of a page as texts."""
    with open("/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd", encoding="latin-1") as file:
        driver = re.sub(r"(?m)^(.ImageableArea Letter/.*?: ).*", r'\1"4 30 590 770"', file.read())
    with open(CUPS + "/printer.ppd", "w", encoding="latin-1") as file:
        file.write(driver)
    output("lpadmin", "-p", "PDF", "-E", "-v", "cups-pdf:/" + BACKEND, "-P", CUPS + "/printer.ppd",
           "-o", "PageSize=Letter", "-o", "pdftops-renderer-default=pdftocairo")
    output("lpadmin", "-d", "PDF")


def lines():
    """Of the page that has come out of the printer."""
    until(lambda: list(PRINTED.glob("*.pdf")) and not output("lpstat", check=False), "a page")
    page = output("pdftohtml", "-xml", "-i", "-zoom", 3, "-stdout", *PRINTED.glob("*.pdf")).decode()
    page = unicodedata.normalize("NFKC", page)  # a font draws several blanks and semicolons alike
    fonts = {font: f"{size} {colour}" for font, size, colour in re.findall(
        r'<fontspec id="(\d+)" size="(\d+)".*? color="(\S+)"', page)}
    found = [" ".join(re.search(r'<page .*?height="(\d+)" width="(\d+)"', page).groups())]
    line = None
    for top, left, width, font, text in re.findall(
            r'<text top="(\d+)" left="(\d+)" width="(\d+)".*? font="(\d+)">(.*)</text>', page):
        styles = "".join(style for style in "bi" if f"<{style}>" in text)
        text, end = re.sub("<[^>]*>", "", text), int(left) + int(width)
        if line is None or int(top) > line + 8:  # a line can come in pieces, of two subsets
            found.append("")
            line = int(top)
        if not found[-1].strip() and text.strip():
            found[-1] = f"{left} {top} {fonts[font]} {styles} " + found[-1]
        found[-1] += re.sub("00000+", f"0.. to {end // 10}0", text)
    return [line.rstrip() for line in found if line.strip()]


def near(line, wanted):
    """Whether a line has the words wanted, and numbers within 2 % of those wanted."""
    pairs = list(itertools.zip_longest(line.split(" "), wanted.split(" "), fillvalue=""))
    return all(one == other or one.isdigit() and other.isdigit()
               and abs(int(one) / int(other) - 1) < 0.02 for one, other in pairs)


class PrintOut(Road):
    def test_a_failing_printer_is_asked_about_line_by_line_and_a_running_one_prints_the_page(self):
        self.addCleanup(output, *AS_ROOT, "rm", "-rf", CUPS, PRINTED, BACKEND_CONFIGURATION)
        with open(PLACE + "/fonts.conf", "w", encoding="ascii") as file:
            file.write("<fontconfig><dir>/usr/share/fonts/truetype/liberation</dir>"
                       f"<cachedir>{PLACE}/fonts</cachedir></fontconfig>")
        os.environ.update(CUPS_SERVERROOT=CUPS, CUPS_SERVER=CUPS + "/socket")
        self.write_data("[Favorites]", "1.5;9;14;22;36;44;", "2.4;9;;;;;", "3.as it was: ä",
                        "9." + "0" * 10000, "10.;;;;;;")
        program, failures = None, 0

        def start():
            nonlocal program, failures
            program, failures = self.run_program(locale="de_DE.UTF-8",
                                                 FONTCONFIG_FILE=PLACE + "/fonts.conf"), 0

        def choose_print():  # the last entry of the page's own menu, which is the second of the bar
            program.open("Favorites")
            keys("alt", "Right", "Down", "Up", "Return")

        def answer(button):
            nonlocal failures
            failures += 1
            with open(APP + "DebugLog.TXT", encoding="cp1252") as log:
                until(lambda: log.seek(0) == 0 and log.read().count(
                    '"frmFavorites.PrintFavoriteNumbers"\n"Number: 482"\n'
                    '"Description: Printer error"\n#') == failures, "the failure in the log")
            program.answer(button)

        start()
        choose_print()  # with no server at all: at each of the 16 lines and at the end
        for _ in range(17):
            answer("Ignore")
        server = start_server()
        self.addCleanup(server.wait)
        self.addCleanup(output, *AS_ROOT, "kill", server.pid)
        add_printer()
        if SYSTEM == "windows":  # Wine looks for printers at a run's first print
            program.end_session()
            start()
        output("cupsreject", "PDF")
        choose_print()
        program.box()
        system.hold_printer("PDF", True)
        output("cupsaccept", "PDF")
        answer("Retry")
        program.box()
        system.hold_printer("PDF", False)
        answer("Retry")
        self.assertEqual([wanted if near(line, wanted) else line for line, wanted
                          in itertools.zip_longest(lines(), PAGE, fillvalue="")], PAGE)
        self.assertEqual(output("lpstat", "-W", "all").count(b"\n"), 1)
        program.end_session()
