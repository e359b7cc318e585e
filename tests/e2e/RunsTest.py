"""How a run begins and ends: the splash, a second instance, a kill, failing reads and saves."""

import os
import subprocess
import time

from desk import APP, DATA, Page, Road, keys, until


class Runs(Road):
    def test_the_splash_stays_and_a_second_instance_changes_nothing(self):
        begin = time.monotonic()
        program = self.run_program(leave_splash=False)
        splash = until(lambda: program.windows()[0], "the splash")
        self.assertEqual(splash.get_role_name(), "dialog")
        self.assertIn("label: Version 3.5, Quor Vanta , ", Page(splash).lines[-1])
        program.frame()
        self.assertGreaterEqual(time.monotonic() - begin, 3.5)
        log = os.stat(APP + "DebugLog.TXT")
        self.assertEqual(subprocess.run([APP + "quorvanta"], timeout=5).returncode, 0)
        self.assertEqual(os.stat(APP + "DebugLog.TXT"), log)
        self.assertFalse(os.path.exists(DATA))
        program.kill()
        begin = time.monotonic()
        program = self.run_program()
        self.assertLess(time.monotonic() - begin, 3.5)  # a key ends the splash
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
        program.process.terminate()
        self.assertEqual(program.box().lines[-1][-20:], "Abort, Retry, Ignore")
        time.sleep(1)
        os.rmdir(DATA)
        keys("r")  # Retry
        self.assertEqual(program.process.wait(10), 0)
        self.assertEqual(self.data()[29:31], ["Win:0", "Loss:5"])
