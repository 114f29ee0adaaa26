"""Tests of the manual: that it is whole, and that what it says is so.

Usage: manual_test.py MANUAL SOURCE_FOLDER CONSOLE_PROGRAM
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

MANUAL = pathlib.Path(sys.argv[1]).resolve()
SOURCE = pathlib.Path(sys.argv[2]).resolve()
PROGRAM = pathlib.Path(sys.argv[3]).resolve()

CHAPTERS = sorted((SOURCE / "docs" / "manual").glob("*.md"))


def without_blanks(text):
    return re.sub(r"\s+", "", text)


def source_text():
    return "\n".join(path.read_text(encoding="utf-8") for path in CHAPTERS)


def listings():
    """The listings of the manual's text, each as its lines."""
    return re.findall(r"^```\n(.*?)^```$", source_text(), re.MULTILINE | re.DOTALL)


def listing_with(words):
    found, = [listing for listing in listings() if words in listing]
    return found


def pdf_text():
    return subprocess.run(["pdftotext", "-layout", str(MANUAL), "-"], capture_output=True,
                          check=True).stdout.decode()


class TextTest(unittest.TestCase):
    """What the text says, held against the programs and their sources."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvane manual"))
        self.addCleanup(shutil.rmtree, self.folder)

    def write(self, name, text):
        (self.folder / name).write_bytes(text.replace("\n", "\r\n").encode())

    def run_program(self, *arguments):
        return subprocess.run([str(PROGRAM), *arguments], cwd=self.folder, capture_output=True,
                              stdin=subprocess.DEVNULL, check=False)

    def test_every_section_of_the_report_is_named(self):
        titles = set()
        for path in (SOURCE / "src").rglob("*.cpp"):
            for call in re.findall(r"CloseCheckSection\((.*?)\);", path.read_text(), re.DOTALL):
                titles.update(re.findall(r'"([^"]+)"', call))
        self.assertGreater(len(titles), 20)
        text = source_text()
        for title in titles:
            self.assertIn(title.strip(), text)

    def test_every_section_of_the_statistics_is_named(self):
        code = (SOURCE / "src" / "statistics" / "data_statistics.cpp").read_text()
        titles = re.findall(r'Start(?:Location)?Section\("([^"]{10,})"\)', code)
        self.assertGreater(len(titles), 4)
        text = source_text()
        for title in titles:
            self.assertIn(title, text)

    def test_every_option_of_the_console_program_is_explained(self):
        help_text = self.run_program("--help").stdout.decode()
        options = re.findall(r"--[a-z-]+", help_text)
        self.assertGreater(len(options), 6)
        text = source_text()
        for option in options:
            self.assertIn(f"`{option}", text)

    def test_every_key_of_a_settings_file_is_explained(self):
        code = (SOURCE / "src" / "ui" / "settings_file.cpp").read_text()
        keys = re.findall(r'SettingsKey\{\s*"([A-Z_]+)"', code)
        self.assertEqual(len(keys), 8)
        text = source_text()
        for key in keys:
            self.assertIn(f"| `{key}` |", text)

    def test_every_schema_file_is_named(self):
        code = (SOURCE / "src" / "dictionary" / "schema_edition.h").read_text()
        editions = re.findall(r'\{"([0-9.]+)",\s*"([^"]+\.gas)"\}', code)
        self.assertEqual(len(editions), 5)
        text = source_text()
        for edition, name in editions:
            self.assertIn(f"| AGS {edition} | `{name}` |", text)

    def test_report_that_the_first_check_shows_is_the_samples(self):
        sample = SOURCE / "samples" / "riverside-delivery.ags"
        report = self.run_program(str(sample)).stdout.decode().splitlines()
        shown = [line for listing in listings() if "SUMMARY:  8" in listing or "ISPT key" in listing
                 for line in listing.splitlines()]
        judged = [line for line in shown if re.match(r"File AGS|SUMMARY|Dupl|  ERROR|Number", line)]
        self.assertGreater(len(judged), 4)
        for line in judged:
            self.assertIn(line.rstrip(), [written.rstrip() for written in report])

    def test_counts_of_editions_that_it_shows_are_those_of_a_file(self):
        golden, = (SOURCE / "tests" / "golden" / "ags4-edition-404").glob("*.ags")
        shutil.copy(golden, self.folder / "site-a.ags")
        run = self.run_program("--which-edition", "site-a.ags")
        self.assertEqual(run.stdout.decode().replace("\r\n", "\n"),
                         listing_with("  Edition  Groups"))

    def test_schema_example_can_be_used(self):
        self.write("example.gas", listing_with("'Vexo Schema for AGS"))
        sample = SOURCE / "samples" / "riverside-delivery.ags"
        run = self.run_program("--dictionary", "example.gas", str(sample))
        self.assertEqual(run.returncode, 1, run.stderr)
        self.assertNotIn(b"AGS Dictionary Load", run.stderr)
        # The sample's monitoring point has its parent by this schema too.
        self.assertNotIn(b"Group MONG key", run.stdout)
        # What the schema does not know is asked for in the DICT group.
        self.assertIn(b"GEOL", run.stdout)

    def test_example_of_own_groups_defines_them(self):
        sample = (SOURCE / "samples" / "riverside-delivery.ags").read_text()
        own = '\n"GROUP","SMOK"\n"HEADING","LOCA_ID","SMOK_DIST","SMOK_REM"\n' \
              '"UNIT","","m",""\n"TYPE","ID","2DP","X"\n"DATA","BH1","12.50",""\n'
        self.write("without.ags", sample + own)
        self.write("with.ags", sample + own + "\n" + listing_with('"GROUP","DICT"'))
        missing = b"there is no DICT group that defines them"
        self.assertIn(missing, self.run_program("without.ags").stdout)
        report = self.run_program("with.ags").stdout
        self.assertNotIn(missing, report)
        self.assertNotIn(b"SMOK", report)

    def test_waivers_example_fits_the_sample(self):
        self.write("waivers.txt", listing_with("id | file | group"))
        sample = SOURCE / "samples" / "riverside-delivery.ags"
        run = self.run_program("--waivers", "waivers.txt", str(sample))
        self.assertEqual((run.returncode, run.stderr), (1, b""))
        self.assertIn(b"Findings waived by waivers.txt:  3\n", run.stdout)
        self.assertNotIn(b"match nothing", run.stdout)

    def test_summary_example_is_what_a_run_prints(self):
        (self.folder / "may").mkdir()
        shutil.copy(SOURCE / "samples" / "riverside-delivery.ags", self.folder / "may/site-a.ags")
        self.write("may/site-b.ags", "")
        run = self.run_program("--summary", "may")
        self.assertTrue(run.stdout.decode().rstrip("\n").endswith(
            listing_with("Summary of all files:").rstrip("\n")))

    def test_settings_example_can_be_used(self):
        self.write("nightly.txt", listing_with("FILESTOCHECK="))
        (self.folder / "data").mkdir()
        (self.folder / "reports").mkdir()
        for name in ("site-a.ags", "site-b.ags"):
            shutil.copy(SOURCE / "samples" / "riverside-delivery.ags", self.folder / "data" / name)
        run = self.run_program("--settings", "nightly.txt")
        self.assertEqual((run.returncode, run.stderr), (1, b""))
        log = (self.folder / "reports" / "ags check.txt").read_bytes()
        self.assertIn(b"(2 files)", log)
        self.assertNotIn(b"FYI", log)


class PdfTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.text = pdf_text()
        cls.pages = cls.text.split("\f")[:-1]

    def test_it_has_all_chapters_and_their_pages(self):
        prose = re.sub(r"^```\n.*?^```$", "", source_text(), flags=re.MULTILINE | re.DOTALL)
        titles = re.findall(r"^# (.+)$", prose, re.MULTILINE)
        self.assertGreaterEqual(len(titles), 10)
        contents = self.pages[1] + self.pages[2]
        for number, title in enumerate(titles, 1):
            entry = re.search(rf"^ *{number}\s+{re.escape(title)}\s+(\d+)\s*$", contents,
                              re.MULTILINE)
            self.assertIsNotNone(entry, title)
            page = int(entry.group(1))
            self.assertRegex(self.pages[page - 1], rf"(?m)^ *{number}\s+{re.escape(title)}\s*$")
            self.assertRegex(self.pages[page - 1], rf"(?m)^ *{page}\s*$")

    def test_it_explains_every_message(self):
        text = without_blanks(self.text)
        texts = 0
        for path in (SOURCE / "src").rglob("*_messages.cpp"):
            code = re.sub(r'"\s*\n\s*"', "", path.read_text())
            code = re.sub(r"^\s*//.*$", "", code, flags=re.MULTILINE)
            for literal in re.findall(r'\.(?:meaning|remedy) =\s*"((?:[^"\\]|\\.)*)"', code):
                texts += 1
                # A page may end between the lines of a longer text.
                words = without_blanks(literal.replace('\\"', '"'))[:40]
                self.assertIn(words, text)
        self.assertGreater(texts, 170)

    def test_it_names_the_id_of_every_message(self):
        text = without_blanks(self.text)
        ids = set()
        for path in (SOURCE / "src").rglob("*_messages.cpp"):
            ids.update(re.findall(r'\.id = "([^"]+)"', path.read_text()))
        self.assertGreater(len(ids), 80)
        for message in ids:
            self.assertIn(f"\u00b7{message}", text)

    def test_it_has_an_outline_and_names_its_maker(self):
        facts = subprocess.run(["pdfinfo", str(MANUAL)], capture_output=True, check=True)
        self.assertRegex(facts.stdout.decode(), r"Title: +Quorvane manual")
        self.assertRegex(facts.stdout.decode(), r"Author: +Vexo")
        self.assertEqual(facts.stderr, b"")
        self.assertIn(b"/Type /Outlines", MANUAL.read_bytes())

    def test_it_leaves_no_marks_of_its_making(self):
        self.assertNotIn("{{", self.text)
        self.assertNotIn("**Note", self.text)
        self.assertIsNone(re.search(r"\{\d\}", self.text))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
