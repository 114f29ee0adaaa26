"""Tests of the desktop program as its users start it, on a virtual screen and without one.

Usage: window_test.py PROGRAM CONSOLE_PROGRAM SAMPLE
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = pathlib.Path(sys.argv[1]).resolve()
CONSOLE_PROGRAM = pathlib.Path(sys.argv[2]).resolve()
SAMPLE = pathlib.Path(sys.argv[3]).resolve()

CLEAN = "\r\n".join([
    '"**PROJ"', '"*PROJ_ID","*PROJ_AGS"', '"<UNITS>",""', '"P1","3.1"', '',
    '"**UNIT"', '"*UNIT_UNIT","*UNIT_DESC"', '"m","metre"', '',
    '"**ABBR"', '"*ABBR_HDNG","*ABBR_CODE","*ABBR_DESC"', '"HOLE_TYPE","CP","Cable percussion"', '',
    '"**HOLE"', '"*HOLE_ID","*HOLE_TYPE","*HOLE_FDEP"', '"<UNITS>","","m"', '"BH1","CP","10.0"',
    '']).encode()

# A group of the file's own that several groups may be the parent of: a window would ask which.
SEVERAL_PARENTS = CLEAN + "\r\n".join([
    '', '"**DICT"', '"*DICT_TYPE","*DICT_GRP","*DICT_HDNG","*DICT_STAT","*DICT_DESC"',
    '"GROUP","SOAK","","","Soakaway test"',
    '"HEADING","SOAK","HOLE_ID","KEY","Hole"', '"HEADING","SOAK","SAMP_TOP","KEY","Depth"',
    '"HEADING","SOAK","SOAK_NO","KEY","Number"', '']).encode()


class WindowTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # The screen chooses a number that is free and says which.
        cls.screen = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1024x768x24"],
                                      stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        cls.display = ":" + cls.screen.stdout.readline().decode().strip()

    @classmethod
    def tearDownClass(cls):
        cls.screen.terminate()
        cls.screen.communicate()

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvane test \u00fc'"))
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SAMPLE, self.folder / "sample.ags")
        (self.folder / "clean.ags").write_bytes(CLEAN)

    def settings(self, name, *lines):
        (self.folder / name).write_text("\r\n".join(lines), encoding="utf-8", newline="")
        return name

    def run_command(self, *command, environment=None):
        return subprocess.run(command, cwd=self.folder, stdin=subprocess.DEVNULL,
                              capture_output=True, check=False, timeout=60, env=environment)

    def run_program(self, *arguments, display):
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        if display is not None:
            environment["DISPLAY"] = display
        return self.run_command(PROGRAM, *arguments, environment=environment)

    def run_on_screen(self, *arguments):
        return self.run_program(*arguments, display=self.display)

    def run_without_screen(self, *arguments, display=None):
        return self.run_program(*arguments, display=display)

    def log(self, name):
        """The lines of a log, without the moment of the run."""
        text = (self.folder / name).read_bytes()
        return re.sub(rb"^\S+ \S+( [AP]M)? (\(\d+ files\))", rb"\2", text, flags=re.MULTILINE)

    def check_against_console(self, start):
        lines = ["FILESTOCHECK=<ARRAY>", "sample.ags", "clean.ags", "</ARRAY>",
                 "MESGLIST_SCANGROUPINGS=1", "MESGLIST_SEVERITY=1", "SHOWDATASTATS=1"]
        self.settings("window.txt", *lines, 'LOGFILE="window log \u00e4.txt"')
        self.settings("console.txt", *lines, "LOGFILE=console.txt.log")
        run = start("/SETTINGSFILE=window.txt")
        console = self.run_command(CONSOLE_PROGRAM, "--settings", "console.txt")
        self.assertEqual((run.returncode, run.stdout), (1, b""))
        self.assertEqual(console.returncode, 1)
        log = self.log("window log \u00e4.txt")
        self.assertEqual(log.splitlines(), self.log("console.txt.log").splitlines())
        for part in (b"\r\n(2 files)\r\n", b"\r\nParsing Structure and Data ",
                     b"\r\nDATA STATISTICS\r\n"):
            self.assertTrue(part in log, part)

    def test_unattended_log_equals_that_of_the_console(self):
        self.check_against_console(self.run_on_screen)

    def test_without_a_display_the_log_equals_that_of_the_console(self):
        self.check_against_console(self.run_without_screen)

    def test_with_a_display_that_nobody_serves_it_does_too(self):
        self.check_against_console(
            lambda *arguments: self.run_without_screen(*arguments, display=":4711"))

    def test_status_of_an_unattended_run(self):
        for name, status in (("clean.ags", 0), ("sample.ags", 1), ("missing.ags", 1)):
            for start in (self.run_on_screen, self.run_without_screen):
                with self.subTest(name=name, start=start.__name__):
                    self.settings("settings.txt", f"FILESTOCHECK={name}", "LOGFILE=log.txt")
                    self.assertEqual(start("/SETTINGSFILE=settings.txt").returncode, status)
                    self.assertIn(f"File:  {name} (1 of 1)".encode(), self.log("log.txt"))

    def test_nothing_to_check_ends_with_status_2(self):
        self.settings("settings.txt", "LOGFILE=log.txt")
        for start in (self.run_on_screen, self.run_without_screen):
            with self.subTest(start=start.__name__):
                run = start("/SETTINGSFILE=settings.txt")
                self.assertEqual(run.returncode, 2)
                self.assertIn(b"Check Files: Supply files to check\n", run.stderr)
                self.assertFalse((self.folder / "log.txt").exists())

    def test_log_that_cannot_be_written_goes_to_standard_output(self):
        self.settings("settings.txt", "FILESTOCHECK=sample.ags", "LOGFILE=no folder/log.txt")
        for start in (self.run_on_screen, self.run_without_screen):
            with self.subTest(start=start.__name__):
                run = start("/SETTINGSFILE=settings.txt")
                self.assertEqual(run.returncode, 2)
                self.assertIn(b"Quorvane: Could not save to file no folder/log.txt\n", run.stderr)
                self.assertIn(b"SUMMARY:  ", run.stdout)

    def test_nobody_is_asked_in_an_unattended_run(self):
        (self.folder / "several.ags").write_bytes(SEVERAL_PARENTS)
        self.settings("settings.txt", "FILESTOCHECK=several.ags", "LOGFILE=log.txt")
        run = self.run_on_screen("/SETTINGSFILE=settings.txt")
        self.assertIn(b"several.ags: group ?SOAK names no parent group; HOLE was taken\n", run.stderr)

    def test_without_a_display_and_a_log_file_the_log_is_printed(self):
        for display in (None, ":4711"):
            with self.subTest(display=display):
                run = self.run_without_screen("sample.ags", display=display)
                self.assertEqual(run.returncode, 1)
                self.assertIn(b"File:  sample.ags (1 of 1)\n", run.stdout)
                self.assertTrue(run.stdout.endswith(b"*" * 39 + b"\n\n\n"))

    def test_without_a_display_a_missing_settings_file_ends_with_status_2(self):
        run = self.run_without_screen("clean.ags", "/SETTINGSFILE=missing.txt")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertEqual(run.stderr, b"Settings File Command Line: "
                                     b"Settings file 'missing.txt' does not exist.\n")

    def test_without_a_display_and_a_command_line_it_says_why_it_ends(self):
        for display in (None, ":4711"):
            with self.subTest(display=display):
                run = self.run_without_screen(display=display)
                self.assertEqual((run.returncode, run.stdout), (2, b""))
                self.assertIn(b"Quorvane: There is no display to show the window on.\n", run.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
