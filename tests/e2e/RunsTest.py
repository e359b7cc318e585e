"""How a run begins and ends: the splash, a second instance, a kill, failing reads and saves."""

import os
import pathlib
import subprocess
import time

from desk import APP, DATA, PLACE, SYSTEM, Page, Road, in_front, keys, until


class Runs(Road):
    def test_the_splash_stays_and_a_second_instance_changes_nothing(self):
        begin = time.monotonic()
        program = self.run_program(leave_splash=False)
        splash = program.splash()
        self.assertEqual(splash.role, "dialog")
        self.assertLess({("label", "Version 3.5"), ("label", "Quor Vanta ")},
                        Page(splash).nodes.keys())
        program.frame()
        self.assertGreaterEqual(time.monotonic() - begin, 3.5)
        log = os.stat(APP + "DebugLog.TXT")
        self.assertEqual(self.run_program(leave_splash=False).process.wait(5), 0)
        self.assertEqual(os.stat(APP + "DebugLog.TXT"), log)
        self.assertFalse(os.path.exists(DATA))
        program.kill()
        program = self.run_program(leave_splash=False)
        until(lambda: in_front("Quor Vanta "), "the splash in front")
        begin = time.monotonic()
        keys("space")
        program.frame()
        self.assertLess(time.monotonic() - begin, 2)  # a key ends the splash
        for tool, title in (("6 from 49", "6 From 49"), ("Favorites", "Favorites")):
            program.tool(tool)
            program.page(title)
        program.end()  # one question for all pages

    def test_the_box_of_a_bad_line_outlasts_the_splash_and_a_failing_save_asks_at_every_end(self):
        self.write_data("[Win/Loss]", "Win:", "Loss:5")
        program = self.run_program(leave_splash=False)
        program.box()
        keys("Escape")  # is no answer
        time.sleep(4)
        program.answer("Ignore")
        program.frame()
        os.remove(DATA)
        os.mkdir(DATA)
        program.end_session()
        self.assertIn("push button: Abort, Retry, Ignore", "\n".join(program.box().lines))
        time.sleep(1)
        os.rmdir(DATA)
        keys("r")  # Retry
        self.assertEqual(program.process.wait(10), 0)
        self.assertEqual(self.data()[29:31], ["Win:0", "Loss:5"])

    def test_each_run_saves_what_the_one_before_saved_and_leaves_no_lock_and_no_file(self):
        self.write_data("[Favorites]", "10.5;9;14;22;36;44;", "[Win/Loss]", "Win:1250.5")
        place, saved = APP.rstrip("/"), None

        def locks():
            """Whether a lock on its directory is all that it has open there."""
            opened = map(os.readlink, pathlib.Path(f"/proc/{program.process.pid}/fd").iterdir())
            lock = subprocess.run(["flock", "-n", place, "true"], check=False).returncode == 1
            return lock and [file for file in opened if file.startswith(PLACE)] == [place]

        before = {*os.listdir(APP), *os.listdir(PLACE + "/tmp")}
        for _ in range(4):
            program = self.run_program(locale="C")
            self.assertTrue(SYSTEM == "windows" or locks())
            program.end_session()
            self.assertEqual(program.process.wait(10), 0)
            saved = saved or self.data()[2:]
            self.assertEqual(self.data()[2:], saved)
        self.assertLess({"10.5;9;14;22;36;44;", "Win:1250.5"}, set(saved))
        self.assertLessEqual({*os.listdir(APP), *os.listdir(PLACE + "/tmp")} - before, {
            "DebugLog.TXT", "Quorvanta.bak", "Quorvanta.txt", "Quorvanta.txt.spare"})
