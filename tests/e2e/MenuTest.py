"""The package in a desktop's menu: entered from oddly named folders, started from there, moved, and
taken out again."""

import os
import pathlib
import re
import signal
import subprocess
import unittest

from desk import FRAME, PLACE, in_front, output, until, xdotool
from PackageTest import ID, ODD, packed, unpack

HOME = pathlib.Path(os.environ["XDG_DATA_HOME"])
ENTRY, ICONS = HOME / f"applications/{ID}.desktop", HOME / "icons/hicolor"


def installed():
    return {path: path.is_file() and path.stat().st_size for path in HOME.rglob("*")}


def launch():
    return subprocess.run(["gio", "launch", ENTRY], stdout=subprocess.DEVNULL, check=False,
                          env=dict(os.environ, LC_ALL="en_US.UTF-8")).returncode == 0


class Menu(unittest.TestCase):
    def test_its_entry_starts_the_program_in_any_folder_and_goes_without_a_trace(self):
        os.makedirs(ICONS / "16x16/apps")
        output("convert", "-size", "16x16", "xc:red", ICONS / "16x16/apps/another.png")
        output("gtk-update-icon-cache", "-q", "-t", ICONS)  # a cache that the script has to renew
        package, nothing = packed(), installed()
        for name in (ODD, "a=b 100% %f"):
            with self.subTest(name):
                self.check(unpack(package, pathlib.Path(PLACE, name)))
                self.assertEqual(installed(), nothing)

    def check(self, folder):
        output(folder / "desktop-menu", "add")
        once = installed()
        output(folder / "desktop-menu", "add")
        self.assertEqual(installed(), once)
        self.assertIn(ID.encode(), (ICONS / "icon-theme.cache").read_bytes())
        output("desktop-file-validate", folder / f"share/applications/{ID}.desktop", ENTRY)
        output("appstreamcli", "validate", "--no-net", HOME / f"metainfo/{ID}.metainfo.xml")
        for icon in ICONS.glob(f"*x*/apps/{ID}.png"):
            self.assertEqual(output("identify", "-format", "%wx%h", icon).decode(),
                             icon.parts[-3])

        self.assertTrue(launch())
        until(lambda: in_front(FRAME), "the frame")
        window = xdotool("getactivewindow").strip()
        process = int(xdotool("getwindowpid", window))
        self.assertEqual(os.readlink(f"/proc/{process}/exe"), str(folder / "quorvanta"))
        known_as = re.search("(?m)^StartupWMClass=(.*)", ENTRY.read_text(encoding="utf-8"))[1]
        self.assertIn(f'"{known_as}"'.encode(), output("xprop", "-id", window, "WM_CLASS"))
        os.kill(process, signal.SIGTERM)
        until(lambda: not os.path.exists(f"/proc/{process}"), "its end")

        moved = folder.rename(folder.with_name(folder.name + " moved"))
        self.assertFalse(launch())
        output(moved / "desktop-menu", "remove")
