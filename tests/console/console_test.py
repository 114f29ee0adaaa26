"""Tests of the console program as its users start it: options, streams, exit status.

Usage: console_test.py PROGRAM SAMPLE [EMULATOR]

The emulator runs a program that was built for Windows.
"""

import csv
import io
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = pathlib.Path(sys.argv[1]).resolve()
SAMPLE = pathlib.Path(sys.argv[2]).resolve()
EMULATOR = sys.argv[3:]
LINE_END = b"\r\n" if EMULATOR else os.linesep.encode()

CLEAN = "\r\n".join([
    '"**PROJ"', '"*PROJ_ID","*PROJ_AGS"', '"<UNITS>",""', '"P1","3.1"', '',
    '"**UNIT"', '"*UNIT_UNIT","*UNIT_DESC"', '"m","metre"', '',
    '"**ABBR"', '"*ABBR_HDNG","*ABBR_CODE","*ABBR_DESC"', '"HOLE_TYPE","CP","Cable percussion"', '',
    '"**HOLE"', '"*HOLE_ID","*HOLE_TYPE","*HOLE_FDEP"', '"<UNITS>","","m"', '"BH1","CP","10.0"',
    '']).encode()


SCHEMAS = {"4.0.3": "ags4 dict.gas", "4.0.4": "ags404 dict.gas", "4.1": "ags41 dict.gas",
           "4.1.1": "ags411 dict.gas", "4.2": "ags42 dict.gas"}

# Groups that all editions know, with headings of which no two editions know the same ones.
EDITION_MARKS = {"LOCA": ["LOCA_ID", "LOCA_NATD", "LOCA_GLDT"], "CONG": ["LOCA_ID", "CONG_DEV"],
                 "GCHM": ["LOCA_ID", "GCHM_RDEV"]}
KNOWN_MARKS = {"4.0.3": set(), "4.0.4": {"LOCA_NATD"},
               "4.1": {"LOCA_NATD", "CONG_DEV", "GCHM_RDEV"}, "4.1.1": {"LOCA_NATD", "CONG_DEV"},
               "4.2": {"LOCA_NATD", "CONG_DEV", "LOCA_GLDT"}}


def ags4_file(version="4.0.3"):
    """An AGS 4 file that states a version (None: it has no TRAN group) and uses EDITION_MARKS."""
    groups = {"PROJ": (["PROJ_ID"], ["P1"])}
    if version is not None:
        groups["TRAN"] = (["TRAN_ISNO", "TRAN_AGS"], ["1", version])
    for group, headings in EDITION_MARKS.items():
        groups[group] = (headings, ["BH1"] + [""] * (len(headings) - 1))
    lines = []
    for group, (headings, values) in groups.items():
        lines.append(["GROUP", group])
        lines.append(["HEADING", *headings])
        lines.append(["UNIT"] + [""] * len(headings))
        lines.append(["TYPE"] + ["X"] * len(headings))
        lines.append(["DATA", *values])
        lines.append([])
    return "\r\n".join(",".join(f'"{field}"' for field in line) for line in lines).encode()


# A group of no use without data rows: an FYI message.
EMPTY_GROUP = b'\r\n"**DREM"\r\n"*HOLE_ID"\r\n"<UNITS>"\r\n'

# More findings than are listed by check only.
TEN_FINDINGS = "\r\n".join(
    ['"**PROJ"', '"*PROJ_ID","*PROJ_AGS"', '"<UNITS>",""', '"P1","3.1"', '"**HOLE"', '"*HOLE_ID"',
     '"<UNITS>"'] + [f"BH{number}" for number in range(12)]).encode()


def without_dates(report):
    """The lines of a report but for those that tell the time."""
    return [line for line in report.splitlines()
            if not line.startswith(b"Date:  ") and not line.endswith(b" files)")]


class ConsoleCase(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvane test \u00fc'"))
        self.addCleanup(shutil.rmtree, self.folder)

    def write(self, name, content=CLEAN):
        path = self.folder / name
        path.write_bytes(content)
        return path

    def run_program(self, *arguments):
        """Runs the program; each line of its standard output ends with a line feed then."""
        run = self.run_for_bytes(*arguments)
        run.stdout = run.stdout.replace(LINE_END, b"\n")
        return run

    def run_for_bytes(self, *arguments):
        return subprocess.run([*EMULATOR, PROGRAM, *arguments], cwd=self.folder, check=False,
                              stdin=subprocess.DEVNULL, capture_output=True)


class ConsoleTest(ConsoleCase):
    def test_clean_file_ends_with_status_0(self):
        self.write("clean.ags")
        run = self.run_program("clean.ags")
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertIn(b"SUMMARY:  No problems found in file.\n", run.stdout)
        self.assertTrue(run.stdout.endswith(b"*" * 39 + b"\n\n\n"))

    def test_output_has_the_platforms_line_ends(self):
        self.write("clean.ags")
        output = self.run_for_bytes("clean.ags").stdout
        self.assertEqual(output.count(LINE_END), output.count(b"\n"))
        self.assertEqual(output.count(b"\r"), LINE_END.count(b"\r") * output.count(b"\n"))

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
        (self.folder / "folder").mkdir()
        self.write("settings.txt", b"FILESTOCHECK=<ARRAY>\r\nempty.ags\r\nmissing.ags\r\nfolder\r\n"
                                   b"clean.ags\r\n</ARRAY>\r\n")
        run = self.run_program("--settings", "settings.txt")
        self.assertEqual(run.returncode, 1)
        errors = run.stderr.decode().splitlines()
        self.assertEqual(errors[0], "empty.ags: File is not an AGS 3 or 4 format file")
        self.assertEqual(errors[1], "missing.ags: File not found")
        self.assertEqual(errors[2], "folder: Is a directory")
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
        self.write("quotes.ags", TEN_FINDINGS)
        output = self.run_program("--list", "lines", "quotes.ags").stdout
        self.assertIn(b"MESSAGES SORTED BY LINE NUMBER:", output)
        self.assertNotIn(b"MESSAGES SORTED BY SEVERITY:", output)
        self.assertNotIn(b"Parsing Structure and Data   ", output)

    def test_fyi_messages_can_be_suppressed(self):
        self.write("clean.ags", CLEAN + EMPTY_GROUP)
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
        for option in (b"--dictionary", b"--edition", b"--which-edition", b"--list", b"--no-fyi",
                       b"--statistics", b"--settings", b"--log", b"--format", b"--output",
                       b"/SETTINGSFILE="):
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


class EditionTest(ConsoleCase):
    """Runs for an edition of AGS 4, and the question which edition a file is of."""

    DIFFERENCES = b"in custom dictionary that did not match"

    def schema(self, edition):
        return str(PROGRAM.parent / SCHEMAS[edition])

    def check(self, *arguments, name="site.ags"):
        """Checks a file; its lines without dates, and what stands on the error stream."""
        run = self.run_program(*arguments, name)
        self.assertIn(run.returncode, (0, 1), run.stderr)
        return without_dates(run.stdout), run.stderr.decode().splitlines()

    def known_marks(self, report):
        """The headings of EDITION_MARKS of which a report says nothing."""
        marks = {heading for headings in EDITION_MARKS.values() for heading in headings[1:]}
        text = b"\n".join(report).decode()
        return {mark for mark in marks if mark not in text}

    def test_each_edition_is_the_one_checked_against(self):
        self.write("site.ags", ags4_file("4.0.3"))
        for edition in SCHEMAS:
            report, errors = self.check("--edition", edition)
            self.assertEqual(self.known_marks(report), KNOWN_MARKS[edition], edition)
            note = ('site.ags: TRAN_AGS is "4.0.3", the file was checked against the schema of '
                    f"edition {edition}")
            self.assertEqual(errors, [] if edition == "4.0.3" else [note])

    def test_an_edition_gives_the_report_of_its_schema_without_lists_of_differences(self):
        self.write("site.ags", ags4_file())
        for edition in SCHEMAS:
            report, _ = self.check("--edition", edition)
            named, _ = self.check("--dictionary", self.schema(edition))
            self.assertNotIn(self.DIFFERENCES, b"\n".join(report))
            self.assertIn(self.DIFFERENCES, b"\n".join(named))
            start = next(number for number, line in enumerate(named) if self.DIFFERENCES in line)
            self.assertEqual(report[:start], named[:start])
            self.assertEqual(report[start], b"*" * 39)

    def test_without_the_option_the_edition_is_the_usual_one(self):
        for version, edition in (("4.0.3", "4.0.3"), ("4.2", "4.0.3"), ("4.0.4", "4.0.4")):
            self.write("site.ags", ags4_file(version))
            self.assertEqual(self.check()[0], self.check("--edition", edition)[0])

    def test_auto_takes_the_edition_that_the_file_states(self):
        versions = [(edition, edition) for edition in SCHEMAS]
        versions += [("AGS 4.1", "4.1"), ("4.1.0", "4.1"), ("4", "4.0.3"), (" 4.2 ", "4.2")]
        for version, edition in versions:
            self.write("site.ags", ags4_file(version))
            report, errors = self.check("--edition", "auto")
            self.assertEqual(report, self.check("--edition", edition)[0], version)
            self.assertEqual(errors, ["site.ags: the file was checked against the schema of edition "
                                      f"{edition}, as TRAN_AGS says"])

    def test_auto_takes_the_usual_edition_where_the_file_states_none(self):
        for version in ("4.9", "rubbish", "", None):
            self.write("site.ags", ags4_file(version))
            report, errors = self.check("--edition", "auto")
            self.assertEqual(report, self.check()[0], version)
            self.assertEqual(errors, [
                "site.ags: TRAN_AGS names no edition that comes with the program, the file was "
                "checked against the schema of edition 4.0.3"])

    def test_auto_decides_for_each_file(self):
        self.write("a.ags", ags4_file("4.1"))
        self.write("b.ags", ags4_file("4.2"))
        self.write("c.ags")
        run = self.run_program("--edition", "auto", "a.ags", "b.ags", "c.ags")
        self.assertEqual(run.stderr.decode().splitlines(), [
            f"{name}: the file was checked against the schema of edition {edition}, as TRAN_AGS says"
            for name, edition in (("a.ags", "4.1"), ("b.ags", "4.2"))])

    def test_ags_3_files_are_checked_as_without_it(self):
        self.write("site.ags", CLEAN + EMPTY_GROUP)
        usual = self.check()
        for edition in (*SCHEMAS, "auto"):
            self.assertEqual(self.check("--edition", edition), usual)

    def test_other_editions_are_refused(self):
        self.write("site.ags", ags4_file())
        for edition in ("4.0", "4.3", "3.1", "AUTO", ""):
            run = self.run_program("--edition", edition, "site.ags")
            self.assertEqual((run.returncode, run.stdout), (2, b""), edition)
            self.assertIn(b"--edition", run.stderr)

    def test_an_edition_and_a_dictionary_contradict_each_other(self):
        self.write("site.ags", ags4_file())
        run = self.run_program("--edition", "4.1", "--dictionary", self.schema("4.1"), "site.ags")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertIn(b"--edition excludes --dictionary", run.stderr)

    def test_the_option_outranks_the_dictionary_of_a_settings_file(self):
        self.write("site.ags", ags4_file("4.1"))
        self.write("settings.txt", b"FILESTOCHECK=site.ags\r\nCUSTOMDICTIONARY=bad.gas\r\n")
        run = self.run_program("--settings", "settings.txt", "--edition", "4.1")
        self.assertEqual(without_dates(run.stdout), self.check("--edition", "4.1")[0])

    def test_which_edition_counts_the_names_that_each_knows(self):
        self.write("site.ags", ags4_file())
        run = self.run_program("--which-edition", "site.ags")
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertEqual(run.stdout.decode().splitlines(), [
            "site.ags",
            "  Edition  Groups          Headings",
            "  4.0.3    5 of 5          6 of 10",
            "  4.0.4    5 of 5          7 of 10",
            "  4.1      5 of 5          9 of 10         most",
            "  4.1.1    5 of 5          8 of 10",
            "  4.2      5 of 5          9 of 10         most"])

    def test_which_edition_goes_through_all_files_of_any_version(self):
        self.write("site.ags", ags4_file())
        self.write("old.ags")
        run = self.run_program("--which-edition", "old.ags", "missing.ags", "site.ags")
        self.assertEqual(run.returncode, 1)
        self.assertEqual(run.stderr.decode().splitlines(), ["missing.ags: File not found"])
        lines = run.stdout.decode().splitlines()
        self.assertEqual(lines[:3], ["old.ags", "  AGS 3: editions do not apply", "site.ags"])
        self.assertEqual(len(lines), 9)

    def test_which_edition_takes_the_files_of_a_settings_file(self):
        self.write("old.ags")
        self.write("settings.txt", b"FILESTOCHECK=old.ags\r\nLOGFILE=log.txt\r\n")
        run = self.run_program("--which-edition", "--settings", "settings.txt")
        self.assertEqual(run.stdout, b"old.ags\n  AGS 3: editions do not apply\n")
        self.assertFalse((self.folder / "log.txt").exists())

    def test_which_edition_makes_no_report(self):
        self.write("site.ags", ags4_file())
        for options in (["--dictionary", self.schema("4.1")], ["--edition", "auto"],
                        ["--list", "lines"], ["--no-fyi"], ["--statistics"], ["--log", "log.txt"],
                        ["--format", "json"], ["--output", "out.txt"]):
            run = self.run_program("--which-edition", *options, "site.ags")
            self.assertEqual((run.returncode, run.stdout), (2, b""), options)
            self.assertIn(f"--which-edition excludes {options[0]}".encode(), run.stderr)


DATA_FORMATS = ("json", "ndjson", "csv", "sarif")


class FormatTest(ConsoleCase):
    """Where findings go as data, and what of the text is left."""

    def setUp(self):
        super().setUp()
        self.write("quotes.ags", TEN_FINDINGS)

    def text_report(self):
        return without_dates(self.run_program("quotes.ags").stdout)

    def test_data_takes_the_place_of_the_text(self):
        for name in DATA_FORMATS:
            run = self.run_for_bytes("--format", name, "quotes.ags")
            self.assertEqual((run.returncode, run.stderr), (1, b""), name)
            self.assertNotIn(b"SUMMARY:", run.stdout)
            self.assertIn(b"field.missing-quotes", run.stdout)
            self.assertEqual(self.run_for_bytes("--format", name, "--output", "-",
                                                "quotes.ags").returncode, 1)
            self.assertFalse((self.folder / "-").exists())

    def test_an_output_file_leaves_the_text_as_it_is(self):
        text = self.text_report()
        for name in DATA_FORMATS:
            run = self.run_program("--format", name, "--output", "findings", "quotes.ags")
            self.assertEqual((run.returncode, run.stderr), (1, b""), name)
            self.assertEqual(without_dates(run.stdout), text)
            self.assertIn(b"field.missing-quotes", (self.folder / "findings").read_bytes())

    def test_an_output_file_has_the_bytes_of_standard_output(self):
        for name in DATA_FORMATS:
            output = self.run_for_bytes("--format", name, "quotes.ags").stdout
            self.run_program("--format", name, "--output", "findings", "quotes.ags")
            written = (self.folder / "findings").read_bytes()
            self.assertEqual([line for line in written.split(b"\n") if b"start" not in line.lower()],
                             [line for line in output.split(b"\n") if b"start" not in line.lower()])
            ends = written.count(b"\r\n"), written.count(b"\n")
            self.assertEqual(ends[0], ends[1] if name == "csv" else 0, name)

    def test_an_output_file_is_replaced(self):
        self.write("findings.json", b"old" * 100000)
        self.run_program("--format", "json", "--output", "findings.json", "quotes.ags")
        json.loads((self.folder / "findings.json").read_bytes())

    def test_the_log_stays_text(self):
        run = self.run_program("--format", "json", "--log", "log.txt", "quotes.ags")
        json.loads(run.stdout)
        log = (self.folder / "log.txt").read_bytes()
        self.assertEqual(without_dates(log), self.text_report())

    def test_output_of_text_is_a_log(self):
        for words in ([], ["--format", "text"]):
            run = self.run_program(*words, "--output", "log.txt", "quotes.ags")
            self.assertEqual((run.returncode, run.stderr), (1, b""))
            log = (self.folder / "log.txt").read_bytes()
            self.assertEqual(log.replace(b"\r\n", b"\n"), run.stdout)
            (self.folder / "log.txt").unlink()

    def test_text_to_standard_output_is_the_report_alone(self):
        for words in (["--format", "text"], ["--output", "-"]):
            run = self.run_program(*words, "quotes.ags")
            self.assertEqual(without_dates(run.stdout), self.text_report())
            self.assertFalse((self.folder / "-").exists())

    def test_two_files_for_the_text_are_refused(self):
        run = self.run_program("--output", "a.txt", "--log", "b.txt", "quotes.ags")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertIn(b"--output: --log names a file for the text already", run.stderr)
        run = self.run_program("--output", "-", "--log", "b.txt", "quotes.ags")
        self.assertEqual(run.returncode, 1)

    def test_formats_that_do_not_exist_are_refused(self):
        for name in ("xml", "JSON", ""):
            run = self.run_program("--format", name, "quotes.ags")
            self.assertEqual((run.returncode, run.stdout), (2, b""), name)
            self.assertIn(b"--format", run.stderr)

    def test_output_that_cannot_be_written(self):
        text = self.text_report()
        for name in (*DATA_FORMATS, "text"):
            run = self.run_program("--format", name, "--output", self.folder / "no" / "out",
                                   "quotes.ags")
            self.assertEqual(run.returncode, 2, name)
            self.assertIn(b"Quorvane: Could not save to file ", run.stderr)
            self.assertEqual(without_dates(run.stdout), text)

    def test_log_that_cannot_be_written_does_not_come_between_data(self):
        run = self.run_program("--format", "json", "--log", self.folder / "no" / "log.txt",
                               "quotes.ags")
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"Quorvane: Could not save to file ", run.stderr)
        self.assertEqual(json.loads(run.stdout)["run"]["status"], "errors")

    def test_nothing_to_check_gives_no_data(self):
        for words in ([], ["--output", "findings"]):
            run = self.run_program("--format", "json", *words)
            self.assertEqual((run.returncode, run.stdout), (2, b""))
            self.assertFalse((self.folder / "findings").exists())

    def test_a_run_that_ends_early_is_written_whole_and_says_so(self):
        self.write("bad.gas", b"no schema\r\n")
        run = self.run_program("--format", "json", "--dictionary", "bad.gas", "quotes.ags",
                               "other.ags")
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"AGS Dictionary Load: Not a Vexo AGS Schema file", run.stderr)
        log = json.loads(run.stdout)
        self.assertEqual(log["run"]["status"], "not-done")
        self.assertEqual(log["run"]["options"]["dictionary"], "bad.gas")
        self.assertEqual([file["path"] for file in log["files"]], ["quotes.ags", "other.ags"])
        for file in log["files"]:
            self.assertFalse(file["checkedToTheEnd"])
            self.assertIn("Not a Vexo AGS Schema file", file["reason"])

    def test_files_that_cannot_be_read_are_there_with_the_reason(self):
        run = self.run_program("--format", "json", "missing.ags", "quotes.ags")
        self.assertEqual(run.returncode, 1)
        self.assertEqual(run.stderr.split(), b"missing.ags: File not found".split())
        missing, found = json.loads(run.stdout)["files"]
        self.assertEqual((missing["reason"], missing["checkedToTheEnd"]), ("File not found", False))
        self.assertEqual(missing["findings"], [])
        self.assertEqual(found["agsVersion"], "3")
        self.assertEqual(found["edition"], "3.1")

    def test_options_are_named(self):
        run = self.run_program("--format", "json", "--list", "lines,severity", "--no-fyi",
                               "--statistics", "quotes.ags")
        self.assertEqual(json.loads(run.stdout)["run"]["options"],
                         {"listings": ["lines", "severity"], "noFyi": True, "statistics": True})

    def test_awkward_content_stays_data(self):
        # Not quoted values are named in the findings about them.
        values = ["=HYPERLINK(1)", "a\x00b", "\xfc\x80", "{0}", "\x1b[2J"]
        content = TEN_FINDINGS + b"\r\n" + "\r\n".join(values).encode("latin-1") + b"\r\n"
        self.write("odd.ags", content)
        log = json.loads(self.run_program("--format", "json", "odd.ags").stdout)
        texts = "\n".join(finding["text"] for finding in log["files"][0]["findings"])
        for value in ("=HYPERLINK(1)", "\u00fc\u20ac", "{0}", "\x1b[2J"):
            self.assertIn(value, texts)
        output = self.run_for_bytes("--format", "csv", "odd.ags").stdout.decode("utf-8-sig")
        rows = list(csv.DictReader(io.StringIO(output, newline=""), strict=True))
        keys = [row["key"] for row in rows]
        self.assertIn("'=HYPERLINK(1)", keys)
        self.assertIn("\\x1B[2J", keys)
        self.assertNotIn("\x1b", output)
        self.assertNotIn("\x00", output)


class SettingsTest(ConsoleCase):
    """Runs with a settings file."""

    def write_settings(self, *lines, name="settings.txt"):
        return self.write(name, "\r\n".join(lines).encode())

    def test_both_ways_to_name_a_settings_file_do_the_same(self):
        self.write("clean.ags")
        self.write_settings("FILESTOCHECK=clean.ags", "SHOWDATASTATS=TRUE")
        outputs = []
        for words in (["--settings", "settings.txt"], ["--settings=settings.txt"],
                      ["/SETTINGSFILE=settings.txt"], ["/settingsfile=settings.txt"]):
            run = self.run_program(*words)
            self.assertEqual((run.returncode, run.stderr), (0, b""), words)
            self.assertIn(b"File:  clean.ags (1 of 1)", run.stdout)
            self.assertIn(b"DATA STATISTICS", run.stdout)
            outputs.append(without_dates(run.stdout))
        self.assertEqual(outputs, outputs[:1] * len(outputs))

    def test_data_file_is_checked_with_the_settings(self):
        self.write("clean.ags", CLEAN + EMPTY_GROUP)
        self.write_settings("SUPPRESSFYIMESGS=TRUE")
        for words in (["clean.ags", "/SETTINGSFILE=settings.txt"],
                      ["clean.ags/SETTINGSFILE=settings.txt"],
                      ["--settings", "settings.txt", "clean.ags"]):
            run = self.run_program(*words)
            self.assertEqual(run.stderr, b"", words)
            self.assertIn(b"File:  clean.ags (1 of 1)", run.stdout)
            self.assertNotIn(b"FYI", run.stdout)

    def test_the_settings_files_list_is_the_one_checked(self):
        self.write("a.ags")
        self.write("b.ags")
        self.write_settings("FILESTOCHECK=<ARRAY>", "b.ags", "</ARRAY>")
        run = self.run_program("a.ags", "missing.ags", "--settings", "settings.txt")
        self.assertEqual(run.returncode, 0)
        self.assertIn(b"File:  b.ags (1 of 1)", run.stdout)
        self.assertNotIn(b"a.ags", run.stdout)
        self.assertEqual(run.stderr.decode().splitlines(), [
            f"{name}: not checked, as the settings file names the files to check"
            for name in ("a.ags", "missing.ags")])

    def test_missing_data_file_beside_a_settings_file_is_named(self):
        self.write_settings("SHOWDATASTATS=TRUE")
        run = self.run_program("missing.ags", "/SETTINGSFILE=settings.txt")
        self.assertEqual(run.returncode, 1)
        self.assertEqual(run.stderr.split(), b"missing.ags: File not found".split())

    def test_log_file_has_the_lines_of_standard_output(self):
        self.write("clean.ags")
        self.write_settings("FILESTOCHECK=clean.ags", 'LOGFILE="my log \u00e4.txt"')
        run = self.run_program("--settings", "settings.txt")
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        log = (self.folder / "my log \u00e4.txt").read_bytes()
        self.assertEqual(log.replace(b"\r\n", b"\n"), run.stdout.replace(b"\r\n", b"\n"))
        self.assertIn(b"SUMMARY:  No problems found in file.\r\n", log)

    def test_log_file_is_replaced(self):
        self.write("clean.ags")
        self.write("log.txt", b"old\r\n" * 1000)
        self.write_settings("FILESTOCHECK=clean.ags", "LOGFILE=log.txt")
        self.run_program("--settings", "settings.txt")
        self.assertNotIn(b"old", (self.folder / "log.txt").read_bytes())

    def test_options_outrank_the_settings_file(self):
        self.write("quotes.ags", TEN_FINDINGS)
        self.write_settings("FILESTOCHECK=quotes.ags", "MESGLIST_SCANGROUPINGS=TRUE",
                            "MESGLIST_SEVERITY=TRUE", "SUPPRESSFYIMESGS=FALSE",
                            "SHOWDATASTATS=FALSE", "LOGFILE=of-the-file.txt")
        run = self.run_program("/SETTINGSFILE=settings.txt", "--list", "lines", "--no-fyi",
                               "--statistics", "--log", "of-the-option.txt")
        self.assertEqual(run.stderr, b"")
        self.assertIn(b"MESSAGES SORTED BY LINE NUMBER:", run.stdout)
        self.assertNotIn(b"MESSAGES SORTED BY SEVERITY:", run.stdout)
        self.assertNotIn(b"Parsing Structure and Data   ", run.stdout)
        self.assertNotIn(b"FYI", run.stdout)
        self.assertIn(b"DATA STATISTICS", run.stdout)
        self.assertTrue((self.folder / "of-the-option.txt").exists())
        self.assertFalse((self.folder / "of-the-file.txt").exists())

    def test_output_of_text_outranks_the_settings_files_log(self):
        self.write("clean.ags")
        self.write_settings("FILESTOCHECK=clean.ags", "LOGFILE=of-the-file.txt")
        self.run_program("--settings", "settings.txt", "--output", "of-the-option.txt")
        self.assertTrue((self.folder / "of-the-option.txt").exists())
        self.assertFalse((self.folder / "of-the-file.txt").exists())

    def test_data_goes_beside_the_settings_files_log(self):
        self.write("clean.ags")
        self.write_settings("FILESTOCHECK=clean.ags", "LOGFILE=log.txt")
        run = self.run_program("--settings", "settings.txt", "--format", "json")
        self.assertEqual(json.loads(run.stdout)["run"]["status"], "clean")
        self.assertIn(b"SUMMARY:", (self.folder / "log.txt").read_bytes())

    def test_listings_are_those_of_the_settings_file(self):
        self.write("quotes.ags", TEN_FINDINGS)
        self.write_settings("FILESTOCHECK=quotes.ags", "MESGLIST_SEVERITY=TRUE")
        output = self.run_program("--settings", "settings.txt").stdout
        self.assertIn(b"MESSAGES SORTED BY SEVERITY:", output)
        self.assertNotIn(b"Parsing Structure and Data   ", output)
        self.write_settings("FILESTOCHECK=quotes.ags", "COLOUR=red")
        output = self.run_program("--settings", "settings.txt").stdout
        self.assertNotIn(b"MESSAGES SORTED BY", output)
        self.assertIn(b"Parsing Structure and Data   ", output)

    def test_custom_dictionary_of_the_settings_file_is_named_and_not_used(self):
        self.write("clean.ags")
        self.write("bad.gas", b"no schema\r\n")
        self.write_settings("FILESTOCHECK=clean.ags", "CUSTOMDICTIONARY=bad.gas")
        run = self.run_program("--settings", "settings.txt")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(run.stderr.decode().splitlines(), [
            "CUSTOMDICTIONARY bad.gas: not used, as Use Custom Dictionary is not ticked"])

    def test_dictionary_option_outranks_the_settings_file(self):
        self.write("clean.ags")
        self.write("bad.gas", b"no schema\r\n")
        self.write_settings("FILESTOCHECK=clean.ags", "CUSTOMDICTIONARY=other.gas")
        run = self.run_program("--settings", "settings.txt", "--dictionary", "bad.gas")
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"AGS Dictionary Load: ", run.stderr)
        self.assertNotIn(b"CUSTOMDICTIONARY", run.stderr)

    def test_missing_settings_file_ends_everything(self):
        self.write("clean.ags")
        for words in (["--settings", "none.txt"], ["/SETTINGSFILE=none.txt"]):
            run = self.run_program("clean.ags", *words)
            self.assertEqual((run.returncode, run.stdout), (2, b""), words)
            self.assertEqual(run.stderr.decode().splitlines(), [
                "Settings File Command Line: Settings file 'none.txt' does not exist."])

    def test_settings_file_that_cannot_be_read_ends_everything(self):
        (self.folder / "folder").mkdir()
        run = self.run_program("--settings", "folder")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertIn(b"Settings File Command Line: Settings file 'folder' cannot be read: ",
                      run.stderr)

    def test_option_word_with_two_equals_signs_is_ignored(self):
        self.write("clean.ags")
        self.write_settings("SHOWDATASTATS=TRUE", name="a=b")
        run = self.run_program("clean.ags", "/SETTINGSFILE=a=b")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(run.stderr.decode().splitlines(), [
            '/SETTINGSFILE=a=b: ignored, as it does not have exactly one "="'])
        self.assertIn(b"No problems found in file.", run.stdout)
        self.assertNotIn(b"DATA STATISTICS", run.stdout)
        self.assertIn(b"DATA STATISTICS", self.run_program("clean.ags", "--settings", "a=b").stdout)

    def test_settings_file_without_files_is_nothing_to_check(self):
        self.write_settings("LOGFILE=log.txt")
        run = self.run_program("--settings", "settings.txt")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertEqual(run.stderr.split(), b"Check Files: Supply files to check".split())
        self.assertFalse((self.folder / "log.txt").exists())

    def test_status_is_the_runs(self):
        self.write("clean.ags")
        self.write_settings("FILESTOCHECK=<ARRAY>", "clean.ags", "missing.ags", "</ARRAY>",
                            "LOGFILE=log.txt")
        run = self.run_program("--settings", "settings.txt")
        self.assertEqual(run.returncode, 1)
        self.assertEqual(run.stderr.split(), b"missing.ags: File not found".split())
        self.assertIn(b"File not found", (self.folder / "log.txt").read_bytes())

    def test_log_file_that_cannot_be_written(self):
        self.write("clean.ags")
        self.write_settings("FILESTOCHECK=clean.ags", "LOGFILE=no/log.txt")
        run = self.run_program("--settings", "settings.txt")
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"Quorvane: Could not save to file no/log.txt", run.stderr)
        self.assertIn(b"No problems found in file.", run.stdout)

    def test_paths_are_relative_to_the_current_folder(self):
        self.write("clean.ags")
        (self.folder / "settings").mkdir()
        self.write_settings("FILESTOCHECK=clean.ags", "LOGFILE=log.txt", name="settings/run.txt")
        self.assertEqual(self.run_program("--settings", "settings/run.txt").returncode, 0)
        self.assertTrue((self.folder / "log.txt").exists())
        self.assertFalse((self.folder / "settings" / "log.txt").exists())

    def test_paths_may_hold_blanks_and_any_letters(self):
        data = self.write("a 'b' \u00e4.ags")
        settings = self.write_settings(f"FILESTOCHECK={data}", "LOGFILE=\u00fc.txt",
                                       name="my \u00e4 settings.txt")
        for words in (["--settings", settings], [f"/SETTINGSFILE={settings}"],
                      f"/SETTINGSFILE={settings}".split(" ")):
            run = self.run_program(*words)
            self.assertEqual((run.returncode, run.stderr), (0, b""), words)
            self.assertIn(os.fsencode(data), run.stdout)

    def test_paths_may_be_written_with_either_separator(self):
        (self.folder / "data").mkdir()
        self.write("data/clean.ags")
        for separator in "/\\":
            self.write_settings(f"FILESTOCHECK=data{separator}clean.ags",
                                f"LOGFILE=data{separator}log.txt", name="data/settings.txt")
            run = self.run_program(f"/SETTINGSFILE=data{separator}settings.txt")
            self.assertEqual((run.returncode, run.stderr), (0, b""))
            log = self.folder / "data" / "log.txt"
            self.assertIn(b"No problems found in file.", log.read_bytes())
            log.unlink()
            self.assertEqual(self.run_program(f"data{separator}clean.ags").returncode, 0)

    def test_empty_paths_are_refused(self):
        self.write("clean.ags")
        for option in ("--settings", "--log", "--dictionary", "--output"):
            run = self.run_program("clean.ags", option, "")
            self.assertEqual((run.returncode, run.stdout), (2, b""), option)
            self.assertIn(f"{option}: the path is empty".encode(), run.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
