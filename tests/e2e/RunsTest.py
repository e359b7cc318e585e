"""How a run begins and ends: the splash, a second instance, a kill, failing reads and saves."""

import os
import time

from desk import APP, DATA, PLACE, Page, Road, in_front, keys, system, until


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
        program.open("6 From 49")
        program.open("Favorites")
        program.end()  # one question for all pages

    def test_the_box_of_a_bad_line_outlasts_the_splash_and_a_failing_save_asks_at_every_end(self):
        before = {*os.listdir(APP), *os.listdir(PLACE + "/tmp")}
        self.write_data("[Win/Loss]", "Win:", "Loss:5")
        program = self.run_program(leave_splash=False)
        program.box()
        keys("Escape")  # is no answer
        time.sleep(4)
        program.answer("Ignore")
        program.frame()
        os.remove(DATA)
        os.mkdir(DATA)
        system.end_session(program.process)
        self.assertIn("push button: Abort, Retry, Ignore", "\n".join(program.box().lines))
        time.sleep(1)
        os.rmdir(DATA)
        keys("r")  # Retry
        self.assertEqual(program.process.wait(10), 0)
        self.assertEqual(self.data()[29:31], ["Win:0", "Loss:5"])
        self.assertLessEqual({*os.listdir(APP), *os.listdir(PLACE + "/tmp")} - before, {
            "DebugLog.TXT", "Quorvanta.bak", "Quorvanta.txt", "Quorvanta.txt.spare"})
