"""The package as its user meets it: unpacked into an oddly named folder, started there, and then
unpacked once more."""

import os
import pathlib
import tarfile
import zipfile

from desk import PLACE, SYSTEM, Road, keys, output, until

ID = "example.zephyrwick.quorvanta"
ICONS = "16x16", "22x22", "24x24", "32x32", "48x48", "64x64", "128x128", "256x256", "512x512"
FILES = {
    "linux": ["CHANGELOG.md", "LICENSE", "README.txt", "desktop-menu", "quorvanta",
              "quorvantalite.hlp", f"share/applications/{ID}.desktop",
              f"share/metainfo/{ID}.metainfo.xml", f"share/icons/hicolor/scalable/apps/{ID}.svg",
              *(f"share/icons/hicolor/{size}/apps/{ID}.png" for size in ICONS)],
    "windows": ["LICENSE.txt", "README.txt", "quorvanta.exe", "quorvantalite.hlp"]}[SYSTEM]
# The first has what a desktop entry's command can't hold for a program of its own.
ODD = {"linux": "blank \"quotes' $HOME `id` back\\slash ä;#&~",
       "windows": "blank 'quotes' %TEMP% $HOME `id` ä;#&~^!"}[SYSTEM]


def packed():
    """The package, made anew."""
    output("cpack", "--config", os.environ["QUORVANTA_BUILD"] + "/CPackConfig.cmake", "-B",
           PLACE + "/packages")
    package = next(file for file in pathlib.Path(PLACE, "packages").glob("quorvanta-*")
                   if file.suffix in (".gz", ".zip"))
    os.chdir(package.parent)
    output("sha256sum", "--quiet", "-c", package.name + ".sha256")
    return package


def unpack(package, place):
    """Unpacks it, and gives the folder that it makes."""
    with (zipfile.ZipFile(package) if SYSTEM == "windows" else tarfile.open(package)) as archive:
        archive.extractall(place)
    return pathlib.Path(place, "quorvanta")


class Package(Road):
    def test_it_runs_where_it_is_unpacked_and_a_newer_one_keeps_what_the_user_has(self):
        package = packed()
        folder = unpack(package, pathlib.Path(PLACE, ODD))
        self.assertEqual(sorted(file.relative_to(folder).as_posix()
                                for file in folder.rglob("*") if file.is_file()), sorted(FILES))
        for text in folder.glob("*.txt"):
            lines = text.read_bytes().count(b"\n")
            self.assertEqual(text.read_bytes().count(b"\r\n"), SYSTEM == "windows" and lines)

        def kept():
            """Data file and backup without their first lines, which are times."""
            return [(folder / name).read_text(encoding="cp1252").split("\n", 1)[1]
                    for name in ("Quorvanta.txt", "Quorvanta.bak")]

        def run(*names):
            program = self.run_program(folder=f"{folder}/")
            keys("alt+f", "Return")
            page = program.page("6 From 49")
            keys(*names)
            until(lambda: page["radio button", "7 From 49"].has("CHECKED"), "the chosen system")
            program.end_session()

        run("Down")
        data = folder / "Quorvanta.txt"
        lines = data.read_bytes().split(b"\r\n")
        lines[22], lines[29] = b"7.8;13;;;;;", b"Loss:5"  # a favorite row and the bets
        data.write_bytes(b"\r\n".join(lines))
        run()  # its save makes this the backup
        old = kept()
        for text in old:
            self.assertRegex(text, "(?s)7.8;13;.*Loss:5")
        (folder / "README.txt").write_text("older", encoding="ascii")
        unpack(package, pathlib.Path(PLACE, ODD))
        self.assertEqual(kept(), old)
        self.assertGreater((folder / "README.txt").stat().st_size, 5)
        run()
        self.assertEqual(kept(), old)
