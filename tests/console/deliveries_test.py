"""Tests of the console program on whole deliveries: folders, the table of files, associated files,
an earlier run to compare with, and accepted findings.

Usage: deliveries_test.py PROGRAM SAMPLE [EMULATOR]
"""

import json
import os
import pathlib
import subprocess
import sys
import unittest

import jsonschema

from console_test import CLEAN, EMULATOR, PROGRAM, SAMPLE, ConsoleCase

if os.name == "posix":
    import pty

REPEATED = CLEAN + b'"BH1","CP","11.0"\r\n'  # an error: the key occurs twice
CLOSING_LINE = b"*" * 39
SCHEMA = pathlib.Path(__file__).parents[2] / "docs" / "findings.schema.json"
SEPARATOR = "\\" if EMULATOR or os.name == "nt" else "/"


def file_group(*rows):
    """A FILE group of rows of file set and name."""
    lines = ['"**FILE"', '"*FILE_FSET","*FILE_NAME","*FILE_DESC"',
             '"<UNITS>","",""']
    lines += [f'"{file_set}","{name}","What it shows"' for file_set, name in rows]
    return ("\r\n" + "\r\n".join(lines) + "\r\n").encode()


def earlier_run(path, *findings):
    """The JSON of a run over one file."""
    files = [{"path": path, "findings": list(findings)}]
    return json.dumps({"format": "quorvane-findings", "formatVersion": 1, "files": files}).encode()


REPEATED_KEY = {"id": "keys.repeated", "rule": "6b", "severity": "error", "line": 7, "column": None,
                "group": "HOLE", "key": "BH1", "text": "as it was"}


class DeliveryCase(ConsoleCase):
    def put(self, name, content=CLEAN):
        (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
        return self.write(name, content)

    def closing_text(self, *arguments):
        """The run, and the lines of its text behind those of the last file."""
        run = self.run_program(*arguments)
        return run, run.stdout.rpartition(CLOSING_LINE)[2].decode().strip("\n").split("\n")


class FolderTest(DeliveryCase):
    def checked_files(self, run):
        return [line[len("File:  "):] for line in run.stdout.decode().replace("\\", "/").split("\n")
                if line.startswith("File:  ")]

    def test_a_folder_means_all_data_files_below_it(self):
        for name in ("a delivery/two.ags", "a delivery/one.AGS", "a delivery/s\u00fcd 1/x.Ags"):
            self.put(name)
        self.put("a delivery/readme.txt", b"not to be checked")
        self.put("other/y.ags")
        run = self.run_program("a delivery")
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertEqual(self.checked_files(run), [
            "a delivery/one.AGS (1 of 3)", "a delivery/s\u00fcd 1/x.Ags (2 of 3)",
            "a delivery/two.ags (3 of 3)"])

    def test_folders_and_files_keep_their_order(self):
        self.put("d/a.ags")
        self.put("b.ags")
        run = self.run_program("b.ags", "d/", "missing.ags")
        self.assertEqual(self.checked_files(run), [
            "b.ags (1 of 3)", "d/a.ags (2 of 3)", "missing.ags (3 of 3)"])
        self.assertEqual(run.returncode, 1)

    @unittest.skipIf(EMULATOR or os.name != "posix", "links are those of a Unix system")
    def test_links_to_folders_are_not_followed(self):
        self.put("d/a.ags")
        (self.folder / "d" / "loop").symlink_to(".")
        (self.folder / "d" / "link.ags").symlink_to("a.ags")
        self.assertEqual(self.checked_files(self.run_program("d")),
                         ["d/a.ags (1 of 2)", "d/link.ags (2 of 2)"])

    def test_a_folder_without_data_files_is_nothing_to_check(self):
        (self.folder / "empty").mkdir()
        run = self.run_program("empty")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertEqual(run.stderr.decode().splitlines(), [
            "empty: No .ags files in this folder", "Check Files: Supply files to check"])
        self.put("clean.ags")
        run = self.run_program("empty", "clean.ags")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(run.stderr.decode().splitlines(), ["empty: No .ags files in this folder"])

    def test_folders_in_a_settings_file_stay_what_they_are(self):
        self.put("d/a.ags")
        self.write("settings.txt", b"FILESTOCHECK=d\r\n")
        run = self.run_program("--settings", "settings.txt")
        self.assertEqual(run.returncode, 1)
        self.assertIn(b"d: Is a directory", run.stderr)

    def test_thousands_of_files(self):
        for number in range(3000):
            self.put(f"d/{number % 50}/{number}.ags", b"")
        run = self.run_program("d", "--summary")
        self.assertEqual(run.returncode, 1)
        self.assertIn(b"Total: 3,000 files", run.stdout)

    @unittest.skipIf(EMULATOR or os.name != "posix", "needs a terminal of a Unix system")
    def test_progress_is_shown_on_a_terminal_and_wiped_out(self):
        self.put("d/one.ags")
        self.put("d/two.ags", b"")
        self.put("d/three \u00e4.ags")
        shown = self.shown_on_terminal(subprocess.DEVNULL)
        self.assertIn("\rChecking 1 of 3: one.ags\rChecking 2 of 3: three \u00e4.ags\r", shown)
        before, line, behind = shown.partition("Checking 3 of 3: two.ags")
        self.assertTrue(before.endswith("\r"))
        wiped = "\r" + " " * len(line) + "\r"
        self.assertTrue(behind.startswith(wiped + "d/two.ags: File is not an AGS"), repr(behind))

    @unittest.skipIf(EMULATOR or os.name != "posix", "needs a terminal of a Unix system")
    def test_no_progress_is_shown_where_the_report_is(self):
        self.put("d/one.ags")
        self.assertNotIn("Checking 1", self.shown_on_terminal(None))

    def shown_on_terminal(self, output):
        """What a terminal shows of the error stream; output None: of standard output too."""
        ours, its = pty.openpty()
        self.addCleanup(os.close, ours)
        process = subprocess.Popen([PROGRAM, "d"], cwd=self.folder, stderr=its,
                                   stdin=subprocess.DEVNULL, stdout=its if output is None else output)
        os.close(its)
        shown = b""
        while True:
            try:
                part = os.read(ours, 65536)
            except OSError:  # its side is closed
                break
            if not part:
                break
            shown += part
        process.wait()
        return shown.decode().replace("\r\n", "\n")


class SummaryTest(DeliveryCase):
    def test_table_is_the_last_of_the_text_and_of_the_log(self):
        self.put("d/m\u00fchle.ags")
        self.put("d/repeated.ags", REPEATED)
        self.put("d/x.ags", b"")
        run, lines = self.closing_text("d", "--summary", "--log", "log.txt")
        self.assertEqual(run.returncode, 1)
        self.assertEqual(lines[-7:], [
            "Summary of all files:",
            "",
            "File            Version  Errors  Warnings  FYI  Checked",
            f"d{SEPARATOR}m\u00fchle.ags     3.1           0         0    0  yes",
            f"d{SEPARATOR}repeated.ags  3.1           1         0    0  yes",
            f"d{SEPARATOR}x.ags         -             -         -    -  File is not an AGS 3 or 4 format file",
            "Total: 3 files                1         0    0  2 of 3"])
        log = (self.folder / "log.txt").read_bytes().replace(b"\r\n", b"\n")
        self.assertEqual(log, run.stdout)

    def test_text_before_it_is_the_same(self):
        plain = self.run_program(SAMPLE)
        run = self.run_program(SAMPLE, "--summary", "--files")
        strip = lambda text: [line for line in text.split(b"\n") if b" files)" not in line]
        self.assertEqual(strip(run.stdout)[:len(strip(plain.stdout)) - 2], strip(plain.stdout)[:-2])
        self.assertEqual(run.returncode, plain.returncode)

    def test_without_fyi_messages_they_have_no_column(self):
        self.put("a.ags")
        _, lines = self.closing_text("a.ags", "--summary", "--no-fyi")
        self.assertEqual(lines[-3].split(), ["File", "Version", "Errors", "Warnings", "Checked"])


class AssociatedFilesTest(DeliveryCase):
    def test_missing_and_unnamed_files_are_reported(self):
        self.put("a d\u00e4ta/site.ags", CLEAN + file_group(("FS1", "a 1.jpg"), ("FS1", "gone.jpg"),
                                                         ("FS2", "../../site.ags")))
        self.put("a d\u00e4ta/FILE/FS1/a 1.jpg", b"x")
        self.put("a d\u00e4ta/FILE/FS1/\u00fcber.jpg", b"x")
        run, lines = self.closing_text("a d\u00e4ta/site.ags", "--files")
        self.assertEqual(lines, [
            "Associated files of a d\u00e4ta/site.ags:  3 named, 2 missing",
            "  Looked for beside the file and in FILE/<file set>.",
            "  Missing: FILE/FS1/gone.jpg",
            '  Cannot be the name of a file: file set "FS2", name "../../site.ags"',
            "",
            "Files below a d\u00e4ta/FILE that no data file beside it names:  1",
            "  Not named: FILE/FS1/\u00fcber.jpg"])
        self.assertEqual(run.returncode, 1)

    def test_a_delivery_with_all_its_files_is_clean(self):
        self.put("site.ags", CLEAN + file_group(("FS1", "a.jpg")))
        self.put("FILE/FS1/a.jpg", b"x")
        run, lines = self.closing_text("site.ags", "--files")
        self.assertEqual(run.returncode, 0)
        self.assertIn("  All of them are there.", lines)

    @unittest.skipIf(EMULATOR or os.name != "posix", "tells letter cases apart")
    def test_another_letter_case_is_named(self):
        self.put("site.ags", CLEAN + file_group(("FS1", "a.jpg")))
        self.put("FILE/fs1/A.JPG", b"x")
        run, lines = self.closing_text("site.ags", "--files")
        self.assertEqual(run.returncode, 0)
        self.assertIn("  In other letters: FILE/FS1/a.jpg is there as FILE/fs1/A.JPG", lines)


class BaselineTest(DeliveryCase):
    def test_known_errors_do_not_count(self):
        self.put("site.ags", REPEATED)
        self.put("old.json", earlier_run("/elsewhere/site.ags", REPEATED_KEY))
        run, lines = self.closing_text("site.ags", "--baseline", "old.json")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(lines, ["Compared with old.json:  0 new, 1 known, 0 gone"])

    def test_new_and_gone_errors_are_listed(self):
        self.put("site.ags", REPEATED)
        self.put("old run.json", earlier_run("site.ags", REPEATED_KEY | {"key": "BH2"}))
        run, lines = self.closing_text("site.ags", "--baseline", "old run.json")
        self.assertEqual(run.returncode, 1)
        self.assertEqual(lines[0], "Compared with old run.json:  1 new, 0 known, 1 gone")
        self.assertEqual(lines[2:4], ["Findings that are new:", "site.ags"])
        self.assertRegex(lines[4], "^  ERROR: Line 17 - ")
        self.assertEqual(lines[-3:], ["Findings that are gone:", "site.ags",
                                      "  ERROR: Line 7 - as it was"])

    def test_what_is_no_such_json_is_refused_before_anything_is_checked(self):
        self.put("site.ags")
        self.put("old.json", b"{}")
        for name, reason in (("old.json", "is not a file that --format json has written"),
                             ("none.json", "does not exist."), ("site.ags", "is no JSON")):
            run = self.run_program("site.ags", "--baseline", name)
            self.assertEqual((run.returncode, run.stdout), (2, b""), name)
            self.assertIn(f"Quorvane: Baseline file '{name}' {reason}", run.stderr.decode())


class WaiversTest(DeliveryCase):
    def test_waived_errors_are_shown_with_their_reasons_and_do_not_count(self):
        self.put("site.ags", REPEATED)
        self.put("our waivers.txt", "# agreed on 2 May\r\n"
                 "keys.repeated | site.ags | HOLE | BH1 | * | drilled twice, see M\u00fcller\r\n"
                 "keys.repeated | old.ags | * | * | * | of an old file\r\n".encode())
        run, lines = self.closing_text("site.ags", "--waivers", "our waivers.txt")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(lines[:2], ["Findings waived by our waivers.txt:  1", "site.ags"])
        self.assertRegex(lines[2], "^  ERROR: Line 17 - ")
        self.assertEqual(lines[3:], [
            "    Reason (line 2): drilled twice, see M\u00fcller", "",
            "Waivers that match nothing:  1",
            "  Line 3: keys.repeated | old.ags | * | * | * | of an old file"])
        self.assertIn(b"SUMMARY:  1 total error or warning", run.stdout)

    def test_mistakes_are_named_with_their_lines_before_anything_is_checked(self):
        self.put("site.ags")
        self.put("waivers.txt", b"\r\nno.such | * | * | * | * | why\r\n")
        run = self.run_program("site.ags", "--waivers", "waivers.txt")
        self.assertEqual((run.returncode, run.stdout), (2, b""))
        self.assertEqual(run.stderr.decode().splitlines(), [
            "Quorvane: Waivers file 'waivers.txt' cannot be used:",
            'line 2: there is no message with the id "no.such"'])

    def test_empty_paths_are_refused(self):
        for option in ("--waivers", "--baseline"):
            run = self.run_program("site.ags", option, "")
            self.assertEqual(run.returncode, 2)
            self.assertIn(f"{option}: the path is empty".encode(), run.stderr)


class DataTest(DeliveryCase):
    """What is said of a whole delivery is in the data too."""

    def setUp(self):
        super().setUp()
        self.put("site.ags", REPEATED + file_group(("F1", "missing.pdf")))
        self.put("FILE/F1/stray.pdf", b"")
        self.put("old.json", earlier_run("site.ags", REPEATED_KEY | {"key": "BH2"}))
        self.put("waivers.txt", b"keys.repeated | * | * | BH1 | * | agreed\r\n")

    def data(self, name, *options):
        run = self.run_program("site.ags", "--format", name, *options)
        return run.stdout.decode("utf-8-sig")

    def json_data(self, *options):
        log = json.loads(self.data("json", *options))
        jsonschema.validate(log, json.loads(SCHEMA.read_text()), jsonschema.Draft202012Validator)
        return log

    def test_json_has_states_and_what_is_gone(self):
        log = self.json_data("--baseline", "old.json")
        self.assertEqual({finding["state"] for finding in log["files"][0]["findings"]}, {"new"})
        gone, = log["comparison"]["gone"]
        self.assertEqual((gone["path"], gone["findings"][0]["key"]), ("site.ags", "BH2"))
        self.assertEqual(log["comparison"]["baseline"], "old.json")

    def test_json_has_waivers_with_their_reasons(self):
        log = self.json_data("--waivers", "waivers.txt")
        waived = [finding for finding in log["files"][0]["findings"]
                  if finding.get("state") == "waived"]
        self.assertEqual([finding["waiverReason"] for finding in waived], ["agreed"])
        waiver, = log["waivers"]["list"]
        self.assertEqual((waiver["key"], waiver["matches"]), ("BH1", 1))
        self.assertNotIn("file", waiver)

    def test_json_has_associated_files(self):
        log = self.json_data("--files")
        self.assertEqual(log["files"][0]["associatedFiles"],
                         [{"set": "F1", "name": "missing.pdf", "state": "missing"}])
        self.assertEqual(log["unnamedFiles"][0]["names"], ["FILE/F1/stray.pdf"])

    def test_without_the_options_there_is_none_of_it(self):
        log = self.json_data()
        for member in ("comparison", "waivers", "unnamedFiles"):
            self.assertNotIn(member, log)
        self.assertNotIn("associatedFiles", log["files"][0])

    def test_the_data_of_a_compared_run_is_a_baseline_itself(self):
        self.put("new.json", self.data("json", "--baseline", "old.json").encode())
        run, lines = self.closing_text("site.ags", "--baseline", "new.json")
        self.assertEqual(run.returncode, 0)
        self.assertRegex(lines[0], "  0 new, [0-9]+ known, 0 gone")

    def test_ndjson_has_it_in_its_last_line(self):
        end = json.loads(self.data("ndjson", "--baseline", "old.json").splitlines()[-1])
        self.assertEqual(len(end["comparison"]["gone"]), 1)

    def test_sarif_has_states_and_suppressions(self):
        compared = json.loads(self.data("sarif", "--baseline", "old.json"))["runs"][0]["results"]
        self.assertEqual({result["baselineState"] for result in compared}, {"new"})
        results = json.loads(self.data("sarif", "--waivers", "waivers.txt"))["runs"][0]["results"]
        suppressions = [result["suppressions"] for result in results if "suppressions" in result]
        self.assertEqual(suppressions, [[{"kind": "external", "status": "accepted",
                                          "justification": "agreed"}]])

    def test_the_page_says_why_a_finding_was_accepted(self):
        self.assertIn("Waived: <bdi>agreed</bdi>", self.data("html", "--waivers", "waivers.txt"))
        self.assertNotIn("Waived: ", self.data("html"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
