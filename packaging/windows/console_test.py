"""Tests of what the console program does on Windows only: drives, backslashes, code pages, devices,
line ends, and what the program file itself holds.

Usage: console_test.py PROGRAM SAMPLE EMULATOR

The emulator is Wine; WINEPREFIX names its folder, in which the test makes a drive of its own.
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
EMULATOR = sys.argv[3]
DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "dosdevices" / "q:"

SAMPLE_SUMMARY = b"SUMMARY:  8 total errors or warnings or informational messages\r\n"
SYSTEM_LIBRARIES = {"kernel32.dll", "msvcrt.dll", "shell32.dll", "user32.dll", "advapi32.dll"}


def data_file(line_end="\r\n"):
    return line_end.join([
        '"**PROJ"', '"*PROJ_ID","*PROJ_AGS"', '"<UNITS>",""', '"P1","3.1"', '',
        '"**UNIT"', '"*UNIT_UNIT","*UNIT_DESC"', '"m","metre"', '',
        '"**ABBR"', '"*ABBR_HDNG","*ABBR_CODE","*ABBR_DESC"', '"HOLE_TYPE","CP","Cable"', '',
        '"**HOLE"', '"*HOLE_ID","*HOLE_TYPE","*HOLE_FDEP"', '"<UNITS>","","m"', '"BH1","CP","10"',
        '']).encode()


class WindowsConsoleTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvane drive "))
        self.addCleanup(shutil.rmtree, self.folder)
        DRIVE.unlink(missing_ok=True)
        DRIVE.symlink_to(self.folder)
        self.addCleanup(DRIVE.unlink)

    def write(self, name, content=None):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data_file() if content is None else content)
        return path

    def run_program(self, *arguments):
        return subprocess.run([EMULATOR, PROGRAM, *arguments], cwd=self.folder, check=False,
                              stdin=subprocess.DEVNULL, capture_output=True)

    def expect_clean(self, *arguments, shown):
        run = self.run_program(*arguments)
        self.assertEqual((run.returncode, run.stderr), (0, b""), run.stdout)
        self.assertIn(b"File:  " + shown + b" (1 of 1)\r\n", run.stdout)
        return run

    def test_paths_with_drives_and_either_slash(self):
        self.write("two words/Deep/clean.ags")
        for path in (r"q:\two words\Deep\clean.ags", "Q:/two words/Deep/clean.ags",
                     r"q:\two words\..\two words/Deep\clean.ags",
                     r"Q:\TWO WORDS\deep\CLEAN.AGS", r"two words\Deep\clean.ags",
                     r"\\?\Q:\two words\Deep\clean.ags"):
            with self.subTest(path=path):
                self.expect_clean(path, shown=path.encode())

    def test_path_that_begins_with_a_slash_is_no_option(self):
        path = self.write("clean.ags")
        self.expect_clean(path, shown=os.fsencode(path))

    def test_names_with_letters_of_any_script(self):
        for name in ("Stra\u00dfe \u00e4.ags", "\u0416\u03a9 \u5730\u8d28.ags", "\U0001f30d.ags"):
            with self.subTest(name=name):
                self.write(name)
                path = "q:\\" + name
                self.expect_clean(path, shown=path.encode())

    def test_long_paths(self):
        name = "/".join(["a folder with a rather long name " * 3] * 4) + "/clean.ags"
        self.write(name)
        path = "\\\\?\\q:\\" + name.replace("/", "\\")
        self.expect_clean(path, shown=path.encode())

    def test_output_and_log_are_the_same_bytes(self):
        self.write("clean.ags")
        log = "q:\\log of \u00dcberlingen, \u0416.txt"
        run = self.expect_clean("clean.ags", "--log", log, shown=b"clean.ags")
        self.assertEqual((self.folder / log[3:]).read_bytes(), run.stdout)
        self.assertEqual(run.stdout.count(b"\n"), run.stdout.count(b"\r\n"))
        self.assertNotIn(b"\r\r", run.stdout)

    def test_exit_statuses(self):
        self.write("clean.ags")
        sample = self.run_program(SAMPLE)
        self.assertEqual((sample.returncode, sample.stderr), (1, b""))
        self.assertIn(SAMPLE_SUMMARY, sample.stdout)
        self.assertEqual(self.run_program("clean.ags").returncode, 0)
        self.assertEqual(self.run_program(r"q:\none.ags").returncode, 1)
        self.assertEqual(self.run_program("--bogus").returncode, 2)
        run = self.run_program("clean.ags", "--log", r"q:\none\log.txt")
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"Quorvane: Could not save to file q:\\none\\log.txt\r\n", run.stderr)

    def test_devices_are_refused(self):
        for name in ("NUL", "CON"):
            with self.subTest(name=name):
                run = self.run_program(name)
                self.assertEqual(run.returncode, 1)
                self.assertTrue(run.stderr.startswith(name.encode() + b": "), run.stderr)
                self.assertNotIn(b"not an AGS", run.stderr)

    def test_folders_are_opened(self):
        self.write("folder.ags/x")
        for name in (r"q:\folder.ags", "q:\\folder.ags\\"):
            with self.subTest(name=name):
                run = self.run_program(name)
                self.assertEqual(run.returncode, 2)
                self.assertIn(b": No .ags files in this folder\r\n", run.stderr)
        self.write("folder.ags/deeper/one.AGS")
        run = self.run_program("q:\\")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertIn(b"one.AGS (1 of 1)\r\n", run.stdout)

    def test_schemas_stand_beside_the_program(self):
        run = self.run_program("--list", "lines", SAMPLE)
        self.assertIn(b"File AGS Version: 4.0.4\r\n", run.stdout)
        moved = self.folder / "Programme \u00e4 \u0416"
        moved.mkdir()
        shutil.copy(PROGRAM, moved)
        command = [EMULATOR, moved / PROGRAM.name, SAMPLE]
        run = subprocess.run(command, check=False, capture_output=True, stdin=subprocess.DEVNULL)
        self.assertEqual(run.returncode, 2)
        self.assertTrue(run.stderr.startswith(b"AGS Dictionary Load: "), run.stderr)
        for schema in PROGRAM.parent.glob("*.gas"):
            shutil.copy(schema, moved)
        run = subprocess.run(command, check=False, capture_output=True, stdin=subprocess.DEVNULL)
        self.assertEqual(run.returncode, 1)
        self.assertIn(SAMPLE_SUMMARY, run.stdout)

    def test_settings_file_in_utf_8_and_in_the_code_page(self):
        self.write("Stra\u00dfe \u00e4/b\u00e4r.ags")
        text = "\r\n".join(["FILESTOCHECK=<ARRAY>", "q:\\Stra\u00dfe \u00e4\\b\u00e4r.ags",
                            "</ARRAY>", "LOGFILE=q:\\Stra\u00dfe \u00e4\\the log \u00fc.txt", ""])
        log = self.folder / "Stra\u00dfe \u00e4" / "the log \u00fc.txt"
        for encoding in ("utf-8", "utf-8-sig", "cp1252"):
            self.write("set tings.txt", text.encode(encoding))
            shown = "q:\\Stra\u00dfe \u00e4\\b\u00e4r.ags".encode(encoding.removesuffix("-sig"))
            for arguments in (["--settings", r"q:\set tings.txt"],
                              [r"/SETTINGSFILE=q:\set tings.txt"],
                              ["/settingsfile=set", "tings.txt"]):
                with self.subTest(encoding=encoding, arguments=arguments):
                    run = self.expect_clean(*arguments, shown=shown)
                    self.assertEqual(log.read_bytes(), run.stdout)
                    log.unlink()

    def test_program_file_needs_only_the_system_and_describes_itself(self):
        table = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", PROGRAM], check=True,
                               capture_output=True, text=True).stdout
        libraries = {line.split()[2].lower() for line in table.splitlines() if "DLL Name:" in line}
        self.assertIn("kernel32.dll", libraries)
        self.assertLessEqual(libraries, SYSTEM_LIBRARIES)
        content = PROGRAM.read_bytes()
        self.assertIn("10.00.01.07".encode("utf-16-le"), content)
        for entry in (b">UTF-8</activeCodePage>", b">true</longPathAware>", b">PerMonitorV2<"):
            self.assertIn(entry, content)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
