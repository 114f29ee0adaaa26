"""Tests of the console program as its users start it: options, streams, exit status.

Usage: console_test.py PROGRAM SAMPLE
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = pathlib.Path(sys.argv[1]).resolve()
SAMPLE = pathlib.Path(sys.argv[2]).resolve()

CLEAN = "\r\n".join([
    '"**PROJ"', '"*PROJ_ID","*PROJ_AGS"', '"<UNITS>",""', '"P1","3.1"', '',
    '"**UNIT"', '"*UNIT_UNIT","*UNIT_DESC"', '"m","metre"', '',
    '"**ABBR"', '"*ABBR_HDNG","*ABBR_CODE","*ABBR_DESC"', '"HOLE_TYPE","CP","Cable percussion"', '',
    '"**HOLE"', '"*HOLE_ID","*HOLE_TYPE","*HOLE_FDEP"', '"<UNITS>","","m"', '"BH1","CP","10.0"',
    '']).encode()


class ConsoleTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvane test \u00fc'"))
        self.addCleanup(shutil.rmtree, self.folder)

    def write(self, name, content=CLEAN):
        path = self.folder / name
        path.write_bytes(content)
        return path

    def run_program(self, *arguments):
        return subprocess.run([PROGRAM, *arguments], cwd=self.folder, stdin=subprocess.DEVNULL,
                              capture_output=True, check=False)

    def test_clean_file_ends_with_status_0(self):
        self.write("clean.ags")
        run = self.run_program("clean.ags")
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertIn(b"SUMMARY:  No problems found in file.\n", run.stdout)
        self.assertTrue(run.stdout.endswith(b"*" * 39 + b"\n\n\n"))

    def test_output_has_the_platforms_line_ends(self):
        self.write("clean.ags")
        run = self.run_program("clean.ags")
        self.assertEqual(b"\r\n" in run.stdout, os.linesep == "\r\n")

    def test_log_file_has_the_same_lines_with_cr_lf(self):
        self.write("clean.ags")
        run = self.run_program("clean.ags", "--log", "report.txt")
        log = (self.folder / "report.txt").read_bytes()
        self.assertEqual(log.replace(b"\r\n", b"\n"), run.stdout.replace(b"\r\n", b"\n"))
        self.assertEqual(log.count(b"\n"), log.count(b"\r\n"))

    def test_file_with_errors_ends_with_status_1(self):
        run = self.run_program(SAMPLE)
        self.assertEqual(run.returncode, 1)
        self.assertIn(b"  ERROR: ", run.stdout)

    def test_path_may_hold_blanks_quotes_and_any_letters(self):
        path = self.write("a 'b' \u00e4.ags")
        run = self.run_program(path)
        self.assertEqual(run.returncode, 0)
        self.assertIn(os.fsencode(path), run.stdout)

    def test_files_that_cannot_be_checked_are_named_and_the_next_one_is_checked(self):
        self.write("empty.ags", b"")
        self.write("clean.ags")
        run = self.run_program("empty.ags", "missing.ags", self.folder, "clean.ags")
        self.assertEqual(run.returncode, 1)
        errors = run.stderr.decode().splitlines()
        self.assertEqual(errors[0], "empty.ags: File is not an AGS 3 or 4 format file")
        self.assertEqual(errors[1], "missing.ags: File not found")
        self.assertEqual(errors[2], f"{self.folder}: Is a directory")
        self.assertEqual(len(errors), 3)
        self.assertIn(b"No problems found in file.", run.stdout)

    def test_nothing_to_check(self):
        run = self.run_program()
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertEqual(run.stderr.split(), b"Check Files: Supply files to check".split())

    def test_unknown_option(self):
        run = self.run_program("--bogus", "clean.ags")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertIn(b"--bogus", run.stderr)

    def test_settings_are_refused_until_they_are_there(self):
        run = self.run_program("--settings", "settings.txt")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertIn(b"--settings is not available in this version.", run.stderr)

    def test_unusable_dictionary_ends_the_run_and_the_log_is_saved(self):
        self.write("clean.ags")
        self.write("bad.gas", b"no schema\r\n")
        run = self.run_program("--dictionary", "bad.gas", "--log", "report.txt", "clean.ags")
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"AGS Dictionary Load: Not a Vexo AGS Schema file, first line not", run.stderr)
        self.assertIn(b"(1 files)", (self.folder / "report.txt").read_bytes())

    def test_log_that_cannot_be_written(self):
        self.write("clean.ags")
        run = self.run_program("clean.ags", "--log", self.folder / "no" / "report.txt")
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"Quorvane: Could not save to file ", run.stderr)
        self.assertIn(b"No problems found in file.", run.stdout)

    def test_listings_are_one_argument(self):
        run = self.run_program("--list", "lines,severity", SAMPLE)
        self.assertEqual(run.returncode, 1)
        self.assertIn(b"SUMMARY:  ", run.stdout)
        self.assertEqual(self.run_program("--list", "colour", SAMPLE).returncode, 2)

    def test_sorted_listings_of_ten_findings(self):
        lines = ['"**PROJ"', '"*PROJ_ID","*PROJ_AGS"', '"<UNITS>",""', '"P1","3.1"', '"**HOLE"',
                 '"*HOLE_ID"', '"<UNITS>"'] + [f"BH{number}" for number in range(12)]
        self.write("quotes.ags", "\r\n".join(lines).encode())
        output = self.run_program("--list", "lines", "quotes.ags").stdout
        self.assertIn(b"MESSAGES SORTED BY LINE NUMBER:", output)
        self.assertNotIn(b"MESSAGES SORTED BY SEVERITY:", output)
        self.assertNotIn(b"Parsing Structure and Data   ", output)

    def test_fyi_messages_can_be_suppressed(self):
        self.write("clean.ags", CLEAN + b'\r\n"**DREM"\r\n"*HOLE_ID"\r\n"<UNITS>"\r\n')
        self.assertIn(b"  FYI: ", self.run_program("clean.ags").stdout)
        output = self.run_program("--no-fyi", "clean.ags").stdout
        self.assertNotIn(b"FYI", output)

    def test_statistics(self):
        self.write("clean.ags")
        self.assertNotIn(b"DATA STATISTICS", self.run_program("clean.ags").stdout)
        self.assertIn(b"DATA STATISTICS", self.run_program("--statistics", "clean.ags").stdout)

    def test_version_and_help(self):
        self.assertEqual(self.run_program("--version").stdout.split(),
                         [b"quorvane-check", b"10.00.01.07"])
        run = self.run_program("--help")
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        for option in (b"--dictionary", b"--list", b"--no-fyi", b"--statistics", b"--log"):
            self.assertIn(option, run.stdout)

    def test_missing_parent_is_chosen_and_named(self):
        # SOAK has the key of HOLE and may also belong to a second group with as long a key.
        groups = [b'\r\n"**DICT"\r\n"*DICT_TYPE","*DICT_GRP","*DICT_HDNG","*DICT_STAT","*DICT_DESC",'
                  b'"*DICT_UNIT","*DICT_EXMP"']
        for group, heading, status in (("PEAR", "", ""), ("PEAR", "HOLE_ID", "KEY"),
                                       ("SOAK", "", ""), ("SOAK", "HOLE_ID", "KEY"),
                                       ("SOAK", "SOAK_NUM", "KEY")):
            kind = "HEADING" if heading else "GROUP"
            groups.append(f'"{kind}","{group}","{heading}","{status}","d","","e"'.encode())
        self.write("own.ags", CLEAN + b"\r\n".join(groups) + b"\r\n")
        run = self.run_program("own.ags")
        self.assertIn(b"own.ags: group ?SOAK names no parent group; HOLE was taken", run.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
