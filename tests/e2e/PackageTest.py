"""The package as its user meets it: unpacked into oddly named folders, entered into the menu,
started from there, unpacked over itself, moved, and taken out of the menu."""

import os
import pathlib
import re
import signal
import subprocess
import time
import unittest

from desk import FRAME, PLACE, in_front, keys, output, until, xdotool

ID = "example.zephyrwick.quorvanta"
HOME = pathlib.Path(os.environ["XDG_DATA_HOME"])
ENTRY, ICONS = HOME / f"applications/{ID}.desktop", HOME / "icons/hicolor"
SIZES = "16x16", "22x22", "24x24", "32x32", "48x48", "64x64", "128x128", "256x256", "512x512"
FILES = ["CHANGELOG.md", "LICENSE", "README.txt", "desktop-menu", "quorvanta", "quorvantalite.hlp",
         f"share/applications/{ID}.desktop", f"share/metainfo/{ID}.metainfo.xml",
         *(f"share/icons/hicolor/{size}/apps/{ID}.png" for size in SIZES),
         f"share/icons/hicolor/scalable/apps/{ID}.svg"]


def installed():
    return {path: path.is_file() and path.stat().st_size for path in HOME.rglob("*")}


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        output("cpack", "--config", os.environ["QUORVANTA_BUILD"] + "/CPackConfig.cmake", "-B",
               PLACE + "/packages")
        cls.package = next(pathlib.Path(PLACE, "packages").glob("quorvanta-*-linux-*.tar.gz"))
        os.makedirs(ICONS / "16x16/apps")
        output("convert", "-size", "16x16", "xc:red", ICONS / "16x16/apps/another.png")
        output("gtk-update-icon-cache", "-q", "-t", ICONS)  # a cache that the script has to renew

    @staticmethod
    def launch():
        return subprocess.run(["gio", "launch", ENTRY], stdout=subprocess.DEVNULL, check=False,
                              env=dict(os.environ, LC_ALL="en_US.UTF-8")).returncode == 0

    def run_program(self, folder, *names):
        """Starts it from the menu, works it by the keys, and ends it."""
        self.assertTrue(self.launch())
        until(lambda: in_front(FRAME), "the frame")
        window = xdotool("getactivewindow").strip()
        process = int(xdotool("getwindowpid", window))
        self.assertEqual(os.readlink(f"/proc/{process}/exe"), str(folder / "quorvanta"))
        known_as = re.search("(?m)^StartupWMClass=(.*)", ENTRY.read_text(encoding="utf-8"))[1]
        self.assertIn(f'"{known_as}"'.encode(), output("xprop", "-id", window, "WM_CLASS"))
        keys(*names)
        time.sleep(0.15)
        os.kill(process, signal.SIGTERM)
        until(lambda: not os.path.exists(f"/proc/{process}"), "its end")

    @staticmethod
    def kept(folder):
        """Data file and backup without their first lines, which are times, and the settings."""
        lines = [(folder / name).read_text(encoding="cp1252").split("\n", 1)[1]
                 for name in ("Quorvanta.txt", "Quorvanta.bak")]
        settings = next(pathlib.Path(os.environ["XDG_CONFIG_HOME"]).glob("*/quorvanta.ini"))
        return [*lines, settings.read_text(encoding="utf-8")]

    def test_its_files(self):
        os.chdir(self.package.parent)
        output("sha256sum", "--quiet", "-c", self.package.name + ".sha256")
        names = output("tar", "-tzf", self.package).decode().split()
        self.assertEqual(sorted(name for name in names if not name.endswith("/")),
                         sorted("quorvanta/" + name for name in FILES))

    def test_it_enters_the_menu_from_any_folder_and_an_upgrade_keeps_what_the_user_has(self):
        nothing = installed()
        # The second has what an entry's command can't hold for a program of its own.
        for name in ("blank \"quotes' $HOME `id` back\\slash ä;#&~", "a=b 100% %f"):
            with self.subTest(name):
                self.check(pathlib.Path(PLACE, "odd", name))
                self.assertEqual(installed(), nothing)

    def check(self, folder):
        def unpack():
            output("tar", "-xzf", self.package, "-C", folder, "--strip-components=1")

        def menu(action):
            output(folder / "desktop-menu", action)

        folder.mkdir(parents=True)
        unpack()
        menu("add")
        once = installed()
        menu("add")
        self.assertEqual(installed(), once)
        self.assertIn(ID.encode(), (ICONS / "icon-theme.cache").read_bytes())
        output("desktop-file-validate", folder / f"share/applications/{ID}.desktop", ENTRY)
        output("appstreamcli", "validate", "--no-net", HOME / f"metainfo/{ID}.metainfo.xml")
        for icon in ICONS.glob(f"*x*/apps/{ID}.png"):
            self.assertEqual(output("identify", "-format", "%wx%h", icon).decode(),
                             icon.parts[-3])

        # "6 From 49", and the second system of its menu
        self.run_program(folder, "alt+f", "Return", "alt+g", "Down", "Right", "Down", "Return")
        data = folder / "Quorvanta.txt"
        lines = data.read_bytes().split(b"\r\n")
        lines[22], lines[29] = b"7.8;13;;;;;", b"Loss:5"  # a favorite row and the bets
        data.write_bytes(b"\r\n".join(lines))
        self.run_program(folder, "space")  # its save makes this the backup
        old = self.kept(folder)
        for text, kept in zip(("7.8;13;.*Loss:5", "7.8;13;.*Loss:5", "system=1"), old):
            self.assertRegex(kept, "(?s)" + text)
        (folder / "CHANGELOG.md").write_text("older", encoding="ascii")
        unpack()
        self.assertEqual(self.kept(folder), old)
        self.assertGreater((folder / "CHANGELOG.md").stat().st_size, 5)
        self.run_program(folder, "alt+f", "Return")
        self.assertEqual(self.kept(folder), old)
        moved = folder.rename(folder.with_name(folder.name + " moved"))
        self.assertFalse(self.launch())
        output(moved / "desktop-menu", "remove")
