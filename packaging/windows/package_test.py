"""Tries the programs of the Windows package under Wine, on the display that DISPLAY names.

Usage: package_test.py UNPACKED_PACKAGE LINUX_PROGRAMS PICTURE

The desktop program's logs must be those of the Linux console program but for the title, the dates
and the paths. Last it opens its window, of which a picture is kept to be looked at.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

PACKAGE = pathlib.Path(sys.argv[1]).resolve()
LINUX_CHECK = pathlib.Path(sys.argv[2]).resolve() / "quorvane-check"
PICTURE = pathlib.Path(sys.argv[3]).resolve()
PROGRAM = PACKAGE / "bin" / "quorvane.exe"
SOURCE = pathlib.Path(__file__).resolve().parents[2]
DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "dosdevices" / "q:"
FOLDER_IN_DRIVE = "Stra\u00dfe \u0416"

SCHEMAS = ["ags4 dict.gas", "ags404 dict.gas", "ags41 dict.gas", "ags411 dict.gas",
           "ags42 dict.gas"]
LISTINGS = ["MESGLIST_SCANGROUPINGS=TRUE", "MESGLIST_LINENUMBERINFILE=TRUE",
            "MESGLIST_SEVERITY=TRUE", "SHOWDATASTATS=TRUE"]


def comparable(log, folder):
    """The lines of a log but for title and dates, with its paths as seen from their folder."""
    text = log.decode("utf-8", "surrogateescape").replace(folder, "")
    lines = text.split("\r\n")
    return [line for line in lines[1:]
            if not line.startswith("Date:  ") and not line.endswith(" files)")]


class PackageTest(unittest.TestCase):
    def setUp(self):
        self.drive = pathlib.Path(tempfile.mkdtemp(prefix="quorvane package "))
        self.addCleanup(shutil.rmtree, self.drive)
        DRIVE.unlink(missing_ok=True)
        DRIVE.symlink_to(self.drive)
        self.addCleanup(DRIVE.unlink)
        self.folder = self.drive / FOLDER_IN_DRIVE
        self.folder.mkdir()

    def put_data(self):
        """Copies data files of every kind to the drive; returns their names."""
        names = []
        shutil.copy(SOURCE / "samples" / "riverside-delivery.ags", self.folder)
        names.append("riverside-delivery.ags")
        for case in sorted((SOURCE / "tests" / "golden").iterdir()):
            for data in sorted(case.glob("*.ags")):
                names.append(f"{case.name} {data.name}")
                shutil.copy(data, self.folder / names[-1])
        self.assertGreater(len(names), 40)
        return names

    def write_settings(self, folder, names, log, *more):
        lines = ["FILESTOCHECK=<ARRAY>", *(folder + name for name in names), "</ARRAY>",
                 "LOGFILE=" + folder + log, *more]
        path = self.folder / "my settings.txt"
        path.write_bytes("\r\n".join(lines).encode())
        return path

    def run_desktop(self, *arguments):
        return subprocess.run(["wine", PROGRAM, *arguments], cwd=self.drive, check=False,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=300)

    def test_package_is_complete(self):
        bin_files = {path.name for path in (PACKAGE / "bin").iterdir()}
        self.assertEqual(bin_files, {"quorvane.exe", "quorvane-check.exe", *SCHEMAS})
        manual = PACKAGE / "docs" / "vexo_quorvane.pdf"
        self.assertTrue(manual.read_bytes().startswith(b"%PDF-"))
        self.assertIn("LICENSE", os.listdir(PACKAGE))
        licences = PACKAGE / "licences"
        self.assertIn("relink.zip", (licences / "README.txt").read_text())
        for text in ("qt/LGPL-3.0-only.txt", "qt/GPL-3.0-only.txt", "qt/copyright.txt",
                     "libcli11-dev.txt", "nlohmann-json3-dev.txt", "gcc-mingw-w64-base.txt",
                     "mingw-w64-x86-64-dev.txt"):
            self.assertGreater((licences / text).stat().st_size, 1000, text)

    def test_programs_need_no_library_of_their_compiler(self):
        for program in (PACKAGE / "bin").glob("*.exe"):
            table = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", program], check=True,
                                   capture_output=True, text=True).stdout
            libraries = [line.split()[2] for line in table.splitlines() if "DLL Name:" in line]
            self.assertIn("KERNEL32.dll", libraries)
            self.assertEqual([name for name in libraries if name.startswith(("lib", "Qt"))], [])

    def test_logs_are_those_of_linux(self):
        names = self.put_data() + ["missing.ags"]
        windows_folder = f"q:\\{FOLDER_IN_DRIVE}\\"
        self.write_settings(windows_folder, names, "windows log.txt", *LISTINGS)
        desktop = self.run_desktop(f"/SETTINGSFILE={windows_folder}my settings.txt")
        windows_log = (self.folder / "windows log.txt").read_bytes()

        linux_folder = str(self.folder) + "/"
        settings = self.write_settings(linux_folder, names, "linux log.txt", *LISTINGS)
        linux = subprocess.run([LINUX_CHECK, "--settings", settings], check=False,
                               capture_output=True)
        linux_log = (self.folder / "linux log.txt").read_bytes()

        self.assertEqual(desktop.returncode, linux.returncode)
        self.assertIn(b"DATA STATISTICS", linux_log)
        self.assertGreater(linux_log.count(b"  ERROR: "), 100)
        self.maxDiff = 4000
        self.assertEqual(comparable(windows_log, windows_folder),
                         comparable(linux_log, linux_folder))

    def test_exit_statuses_of_unattended_runs(self):
        case = SOURCE / "tests" / "golden" / "ags4-clean-delivery"
        shutil.copy(next(case.glob("*.ags")), self.folder / "clean.ags")
        for name, log, status in (("clean.ags", "log.txt", 0), ("none.ags", "log.txt", 1),
                                  ("clean.ags", "none\\log.txt", 2)):
            self.write_settings(f"q:\\{FOLDER_IN_DRIVE}\\", [name], log)
            run = self.run_desktop(f"/SETTINGSFILE=q:\\{FOLDER_IN_DRIVE}\\my settings.txt")
            self.assertEqual(run.returncode, status, (name, log, run.stderr))

    def test_window_shows(self):
        shutil.copy(SOURCE / "samples" / "riverside-delivery.ags", self.folder)
        sample = f"q:\\{FOLDER_IN_DRIVE}\\riverside-delivery.ags"
        program = subprocess.Popen(["wine", PROGRAM, sample], cwd=self.drive,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        try:
            self.take_picture(program)
        finally:
            program.terminate()
            program.wait(timeout=60)

    def take_picture(self, program):
        """Keeps the picture of the screen as soon as something stands on it and stands still."""
        before = b""
        end = time.monotonic() + 120
        while time.monotonic() < end:
            self.assertIsNone(program.poll(), "the program has ended by itself")
            time.sleep(2)
            subprocess.run(["import", "-window", "root", PICTURE], check=True)
            colours = subprocess.run(["identify", "-format", "%k", PICTURE], check=True,
                                     capture_output=True).stdout
            signature = subprocess.run(["identify", "-format", "%#", PICTURE], check=True,
                                       capture_output=True).stdout
            if int(colours) > 16 and signature == before:
                return
            before = signature
        self.fail("no window has come to rest on the screen")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
