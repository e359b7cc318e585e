"""How a run begins and ends that its user doesn't end: by its display, or begun twice."""

import contextlib
import os
import shutil
import subprocess
import time

from desk import APP, FRAME, PLACE, Page, Program, Road, in_front, part, system, until

ROW = "1.7;8;;;;;"


def start_display(kind):
    """A display that can be ended, and what a program needs to find it. No mouse and no keys come
    there from outside."""
    if kind == "X11":
        server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-nolisten", "tcp"],
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        name = ":" + server.stdout.readline().decode().strip()
        return server, {"DISPLAY": name, "QT_QPA_PLATFORM": "xcb"}
    server = subprocess.Popen(["weston", "--backend=headless-backend.so", "--socket=ends",
                               "--no-config"], stderr=subprocess.DEVNULL)
    until(lambda: os.path.exists(PLACE + "/run/ends"), "the compositor")
    return server, {"WAYLAND_DISPLAY": "ends", "QT_QPA_PLATFORM": "wayland"}


def window(program, title):
    return until(lambda: next(w for w in program.windows() if w.name == title), title)


def file_row(program):
    """Files a favorite row, which is in no file yet."""
    frame = window(program, FRAME)
    Page(frame)["push button", "Favorites"].act()
    page = Page(until(lambda: part(frame, "layered pane").children()[0], "the page"))
    for key in ("7", "8", "File to Grid"):
        page["push button", key].act()
    until(lambda: page.row(1, 2) == ["7", "8"], "the row")


class Ends(Road):
    def test_the_rows_outlast_the_display(self):
        for kind in ("X11", "Wayland"):
            for moment in ("splash", "page", "box"):
                with self.subTest(display=kind, moment=moment):
                    self.write_data("[Favorites]", "2.5;6;;;;;")
                    display, environment = start_display(kind)
                    program = self.run_program(leave_splash=False, **environment)
                    if moment == "splash":
                        program.splash()
                        until(lambda: os.stat(APP + "DebugLog.TXT").st_mtime > 0, "the read")
                        time.sleep(1)
                    else:
                        file_row(program)
                    if moment == "box":
                        with contextlib.suppress(*system.GONE):  # it answers behind the box
                            Page(window(program, FRAME))["push button", "Exit"].act()
                        until(lambda: any(w.role == "alert" for w in program.windows()), "the box")
                    display.kill()
                    display.communicate()
                    self.assertEqual(program.process.wait(5), 0)
                    self.assertEqual(len(self.data()), 35)  # written anew, and whole
                    self.assertEqual(self.data()[17:19],
                                     ["1." if moment == "splash" else ROW, "2.5;6;;;;;"])

    def test_one_run_in_a_folder_whoever_starts_it_and_no_argument_tells_it_anything(self):
        newer, link = APP + "newer", PLACE + "/link"
        shutil.copy(APP + "quorvanta", newer)
        os.symlink(APP, link)
        program = Program.__new__(Program)
        program.process = subprocess.Popen([APP + "quorvanta", "-qwindowtitle", "HELLO", "-style",
                                            "windows", "-geometry", "300x200"])
        self.addCleanup(program.kill)
        until(lambda: in_front(FRAME), "the frame")
        self.assertGreater(window(program, FRAME).box[2], 700)
        os.replace(newer, APP + "quorvanta")  # as a package unpacked over it does

        before = os.stat(APP + "DebugLog.TXT")
        for start in (APP, link + "/"):
            again = subprocess.run([start + "quorvanta"], env={}, timeout=5, check=False)
            self.assertEqual((again.returncode, os.stat(APP + "DebugLog.TXT")), (0, before))
        file_row(program)
        program.end_session()
        self.assertEqual(self.data()[17], ROW)
