"""Tests of what is installed and packaged: that it works from where it is put.

Usage: installation_test.py BUILD_FOLDER CMAKE CPACK
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest

BUILD = pathlib.Path(sys.argv[1]).resolve()
CMAKE = sys.argv[2]
CPACK = sys.argv[3]

PROGRAMS = ["quorvane", "quorvane-check"]
SCHEMAS = [f"{name} dict.gas" for name in ("ags4", "ags404", "ags41", "ags411", "ags42")]
FILES = sorted([f"bin/{name}" for name in PROGRAMS + SCHEMAS] +
               ["LICENSE", "docs/findings.schema.json", "docs/vexo_quorvane.pdf",
                "samples/riverside-delivery.ags"])
SAMPLE_SUMMARY = b"SUMMARY:  8 total errors or warnings or informational messages"


def run(*command, **options):
    return subprocess.run([str(part) for part in command], stdin=subprocess.DEVNULL,
                          capture_output=True, check=False, **options)


def must_run(*command, **options):
    result = run(*command, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command}: {result.stdout.decode()}{result.stderr.decode()}")
    return result


def files_below(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file())


class Workplace(unittest.TestCase):
    """A folder for all tests of a class, and an empty one to work in."""

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvane installation \u00fc"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.elsewhere = cls.folder / "elsewhere"
        cls.elsewhere.mkdir()

    def check_sample(self, program, sample):
        result = run(program, sample, cwd=self.elsewhere)
        self.assertEqual((result.returncode, result.stderr), (1, b""))
        self.assertIn(b"File AGS Version: 4.0.4", result.stdout)
        self.assertIn(SAMPLE_SUMMARY, result.stdout)

    def check_sample_unattended(self, program, sample):
        """Checks by a settings file, as the program with the window does without one."""
        log = self.elsewhere / "log.txt"
        log.unlink(missing_ok=True)
        settings = self.elsewhere / "settings.txt"
        settings.write_bytes(os.fsencode(f"FILESTOCHECK={sample}\r\nLOGFILE={log.name}\r\n"))
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        result = run(program, f"/SETTINGSFILE={settings.name}", cwd=self.elsewhere,
                     env=environment)
        self.assertEqual((result.returncode, result.stderr), (1, b""))
        self.assertIn(SAMPLE_SUMMARY, log.read_bytes())


class InstallationTest(Workplace):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        first = cls.folder / "first place"
        must_run(CMAKE, "--install", BUILD, "--prefix", first)
        cls.place = cls.folder / "second" / "place"
        cls.place.parent.mkdir()
        first.rename(cls.place)
        cls.sample = cls.place / "samples" / "riverside-delivery.ags"

    def test_all_files_are_there(self):
        self.assertEqual(files_below(self.place), FILES)

    def test_console_program_runs_after_the_move(self):
        self.check_sample(self.place / "bin" / "quorvane-check", self.sample)

    def test_console_program_runs_through_a_link(self):
        link = self.elsewhere / "check"
        link.symlink_to(self.place / "bin" / "quorvane-check")
        self.check_sample(link, self.sample)

    def test_desktop_program_runs_after_the_move(self):
        self.check_sample_unattended(self.place / "bin" / "quorvane", self.sample)

    def test_desktop_program_runs_through_a_link(self):
        link = self.elsewhere / "desktop"
        link.symlink_to(self.place / "bin" / "quorvane")
        self.check_sample_unattended(link, self.sample)

    def test_schema_files_are_those_of_the_build(self):
        for name in SCHEMAS:
            self.assertEqual((self.place / "bin" / name).read_bytes(),
                             (BUILD / "bin" / name).read_bytes())

    def test_every_schema_can_be_named_as_the_dictionary(self):
        for name in SCHEMAS:
            result = run(self.place / "bin" / "quorvane-check", "--dictionary",
                         self.place / "bin" / name, self.sample)
            self.assertEqual(result.returncode, 1, result.stderr)
            self.assertIn(b"SUMMARY:  ", result.stdout)


class ArchiveTest(Workplace):
    def test_archive_unpacks_into_one_folder_that_works(self):
        must_run(CPACK, "-G", "TGZ", "-B", self.folder / "made", cwd=BUILD)
        archive, = (self.folder / "made").glob("*.tar.gz")
        with tarfile.open(archive) as contents:
            contents.extractall(self.folder / "unpacked")
        top, = (self.folder / "unpacked").iterdir()
        self.assertEqual(top.name + ".tar.gz", archive.name)
        self.assertEqual(files_below(top), FILES)
        self.check_sample(top / "bin" / "quorvane-check",
                          top / "samples" / "riverside-delivery.ags")


class DebianPackageTest(Workplace):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        must_run(CPACK, "-G", "DEB", "-B", cls.folder / "made", cwd=BUILD)
        cls.package, = (cls.folder / "made").glob("*.deb")
        cls.root = cls.folder / "root"
        must_run("dpkg-deb", "-x", cls.package, cls.root)
        cls.place = cls.root / "opt" / "quorvane"

    def field(self, name):
        return must_run("dpkg-deb", "-f", self.package, name).stdout.decode().strip()

    def test_facts(self):
        self.assertEqual(self.field("Package"), "quorvane")
        self.assertEqual(self.field("Version"), "10.0.1.7")
        self.assertEqual(self.field("Maintainer"), "Vexo <support@vexo.example>")

    def test_libraries_that_the_programs_need_are_asked_for(self):
        packages = [entry.split()[0] for entry in self.field("Depends").split(",")]
        self.assertIn("libc6", packages)
        self.assertTrue(any(name.startswith("libqt6widgets6") for name in packages), packages)

    def test_all_files_are_in_its_folder(self):
        self.assertEqual(files_below(self.place), FILES)

    def test_outside_its_folder_is_what_joins_the_system_only(self):
        outside = [path for path in files_below(self.root) if not path.startswith("opt/")]
        links = [f"usr/bin/{name}" for name in PROGRAMS]
        self.assertEqual([path for path in outside if path not in links], [
            "usr/share/applications/quorvane.desktop", "usr/share/doc/quorvane/copyright",
            "usr/share/icons/hicolor/scalable/apps/quorvane.svg",
            "usr/share/man/man1/quorvane-check.1.gz", "usr/share/man/man1/quorvane.1.gz"])

    def test_links_lead_to_the_programs(self):
        for name in PROGRAMS:
            self.assertEqual(os.readlink(self.root / "usr" / "bin" / name),
                             f"/opt/quorvane/bin/{name}")

    def test_everybody_may_read_and_nobody_else_may_write(self):
        listing = must_run("dpkg-deb", "-c", self.package).stdout.decode()
        for line in listing.splitlines():
            mode, owner = line.split()[:2]
            self.assertEqual(owner, "root/root", line)
            if mode[0] != "l":
                self.assertRegex(mode, "^(-rw-r--r--|[-d]rwxr-xr-x)$", line)

    def test_programs_run_from_its_folder(self):
        sample = self.place / "samples" / "riverside-delivery.ags"
        self.check_sample(self.place / "bin" / "quorvane-check", sample)
        self.check_sample_unattended(self.place / "bin" / "quorvane", sample)

    def test_man_pages_name_the_options(self):
        page = must_run("gzip", "-dc", self.root / "usr/share/man/man1/quorvane-check.1.gz")
        text = page.stdout.decode().replace("\\-", "-")
        help_text = must_run(self.place / "bin" / "quorvane-check", "--help").stdout.decode()
        options = [word for word in help_text.replace(",", " ").split() if word.startswith("--")]
        self.assertGreater(len(options), 6)
        for option in options:
            self.assertIn(option, text)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
