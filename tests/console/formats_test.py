"""Findings as data, read back by independent readers and held against the text of the same run.

Usage: formats_test.py PROGRAM SOURCE_FOLDER DATA_FOLDER [EMULATOR]

All .ags files below the data folder are checked in one run. The emulator runs a program that was
built for Windows.
"""

import codecs
import csv
import hashlib
import html.parser
import io
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import urllib.parse
from collections import Counter

import jsonschema

PROGRAM = pathlib.Path(sys.argv[1]).resolve()
SOURCE = pathlib.Path(sys.argv[2]).resolve()
DATA = pathlib.Path(sys.argv[3]).resolve()
EMULATOR = sys.argv[4:]

FORMATS = ("json", "ndjson", "csv", "sarif", "html")
LABELS = {"error": "ERROR: ", "warning": "WARNING: ", "fyi": "FYI: ", "remark": ""}
LEVELS = {"error": "error", "warning": "warning", "note": "fyi", "none": "remark"}
FILE_LINE = re.compile(r"File:  (.*) \((\d+) of (\d+)\)")
SECTION_LINE = re.compile(r"(.*)   (\d+) errors? or warnings?")


def take_for_windows_1252(failure):
    """A byte that is no UTF-8 stands for the character that Windows-1252 has for it."""
    byte = failure.object[failure.start:failure.start + 1]
    return byte.decode("cp1252", "replace"), failure.start + 1


codecs.register_error("windows-1252", take_for_windows_1252)


def data_files():
    return sorted(os.path.relpath(path, DATA) for path in DATA.rglob("*")
                  if path.suffix.lower() == ".ags")


def run_program(*arguments):
    return subprocess.run([*EMULATOR, str(PROGRAM), *arguments], cwd=DATA, check=False,
                          stdin=subprocess.DEVNULL, capture_output=True)


class Finding(tuple):
    """The path of the file, the title of the section, and the finding as the report prints it."""

    def __new__(cls, path, section, severity, line, text):
        place = f"Line {line} - " if line else ""
        return super().__new__(cls, (path, section, LABELS[severity] + place + text))


def listed_lines(report):
    """The lines of the listing by check of each file: pairs of the path and the line."""
    path = None
    is_in_listing = False
    for line in report.split("\r\n"):
        if match := FILE_LINE.fullmatch(line):
            path = match.group(1)
            is_in_listing = False
        elif line.startswith("SUMMARY:"):
            is_in_listing = True
        elif line.startswith("*" * 20) or line.startswith("Could not continue"):
            is_in_listing = False
        elif is_in_listing and line:
            yield path, line


def expected_lines(findings):
    """The lines that the listing by check has for findings."""
    counts = Counter(finding[:2] for finding in findings)
    section = None
    for path, title, printed in findings:
        if (path, title) != section:
            section = (path, title)
            yield path, f"{title}   {counts[section]}"
        for line in ("  " + printed).split("\r\n"):
            if line:
                yield path, line


def without_wording(lines):
    """Takes the words behind the count in a section's line away, and blanks behind the title."""
    for path, line in lines:
        match = SECTION_LINE.match(line)
        yield path, f"{match.group(1).rstrip()}   {match.group(2)}" if match else line


def read_json(data):
    log = json.loads(data.decode("utf-8"))
    return [Finding(file["path"], finding["section"], finding["severity"], finding.get("line"),
                    finding["text"])
            for file in log["files"] for finding in file["findings"]]


def read_ndjson(data):
    lines = [json.loads(line) for line in data.decode("utf-8").split("\n")[:-1]]
    return [Finding(line["file"], line["section"], line["severity"], line.get("line"),
                    line["text"])
            for line in lines if line["type"] == "finding"]


def csv_rows(data):
    return list(csv.DictReader(io.StringIO(data.decode("utf-8-sig"), newline=""), strict=True))


def from_cell(cell):
    """The text of a cell without what keeps spreadsheets from taking it for a formula."""
    is_guarded = cell.startswith("'") and cell[1:].lstrip(" ")[:1] in tuple("=+-@\t\n")
    return (cell[1:] if is_guarded else cell).replace("\n", "\r\n")


def read_csv(data):
    return [Finding(from_cell(row["file"]), from_cell(row["section"]), row["severity"],
                    row["line"], from_cell(row["message"]))
            for row in csv_rows(data) if row["record"] == "finding"]


def from_message(text):
    return text.replace("\\](", "](").replace("{{", "{").replace("}}", "}")


def read_sarif(data):
    run, = json.loads(data.decode("utf-8"))["runs"]
    findings = []
    for result in run["results"]:
        place = result["locations"][0]["physicalLocation"]
        artifact = run["artifacts"][place["artifactLocation"]["index"]]
        findings.append(Finding(artifact["properties"]["path"], result["properties"]["section"],
                                LEVELS[result["level"]], place.get("region", {}).get("startLine"),
                                from_message(result["message"]["text"])))
    return findings


class PageReader(html.parser.HTMLParser):
    """Takes the findings out of a page: each stands in a list of its section of its file."""

    def __init__(self):
        super().__init__()
        self.findings = []
        self.words = {}
        self.part = None

    def handle_starttag(self, tag, attributes):
        classes = dict(attributes).get("class", "")
        if tag == "section":
            self.part = None
        elif tag == "h2":
            self.take("path")
        elif tag == "h3":
            self.take("section")
        elif tag == "small":
            self.part = None
        elif tag == "li":
            self.words["severity"] = classes
        elif tag == "span" and self.part != "section":
            self.take("place")
        elif tag == "p" and self.part == "place":
            self.take("text")
        elif tag == "br" and self.part == "text":
            self.words["text"] += "\r\n"

    def handle_endtag(self, tag):
        if tag == "p" and self.part == "text":
            self.add_finding()
            self.part = None
        elif tag in ("h2", "h3"):
            self.part = None

    def handle_data(self, data):
        if self.part:
            self.words[self.part] += from_symbols(data)

    def take(self, part):
        self.part = part
        self.words[part] = ""

    def add_finding(self):
        words = self.words
        line = re.match(r"Line (\d+)", words["place"])
        self.findings.append(Finding(words["path"], words["section"].rstrip(" "),
                                     words["severity"], line and line.group(1), words["text"]))


def from_symbols(text):
    """The control characters for which a page has symbols."""
    return re.sub("[\u2400-\u241f]", lambda match: chr(ord(match.group()) - 0x2400), text)


def read_html(data):
    reader = PageReader()
    reader.feed(data.decode("utf-8"))
    return reader.findings


READERS = {"json": read_json, "ndjson": read_ndjson, "csv": read_csv, "sarif": read_sarif,
           "html": read_html}


class FormatsTest(unittest.TestCase):
    """One run over all files in each format."""

    @classmethod
    def setUpClass(cls):
        cls.files = data_files()
        with tempfile.TemporaryDirectory(prefix="quorvane formats ") as folder:
            log = os.path.join(folder, "log.txt")
            cls.text_run = run_program("--log", log, *cls.files)
            cls.report = pathlib.Path(log).read_bytes().decode("utf-8", "windows-1252")
        cls.runs = {name: run_program("--format", name, *cls.files) for name in FORMATS}
        cls.findings = {name: READERS[name](run.stdout) for name, run in cls.runs.items()}
        cls.log = json.loads(cls.runs["json"].stdout)

    def test_there_is_something_to_compare(self):
        self.assertGreater(len(self.files), 20)
        self.assertGreater(len(self.findings["json"]), 100)
        print(f"{len(self.files)} files, {len(self.findings['json'])} findings", file=sys.stderr)

    def test_every_format_holds_the_findings_of_the_text(self):
        listed = list(without_wording(listed_lines(self.report)))
        for name, findings in self.findings.items():
            with self.subTest(name):
                self.assertEqual(list(expected_lines(findings)), listed)

    def test_streams_and_status_beside_the_report_stay(self):
        for name, run in self.runs.items():
            with self.subTest(name):
                self.assertEqual(run.returncode, self.text_run.returncode)
                self.assertEqual(run.stderr, self.text_run.stderr)

    def test_json_is_as_its_schema_says(self):
        schema = json.loads((SOURCE / "docs" / "findings.schema.json").read_text())
        jsonschema.Draft202012Validator.check_schema(schema)
        jsonschema.validate(self.log, schema, jsonschema.Draft202012Validator)

    def test_every_file_is_named_with_its_facts(self):
        self.assertEqual([file["path"] for file in self.log["files"]], self.files)
        for file in self.log["files"]:
            content = (DATA / file["path"]).read_bytes()
            self.assertEqual(file["size"], len(content))
            self.assertEqual(file["sha256"], hashlib.sha256(content).hexdigest())
            counts = Counter(finding["severity"] for finding in file["findings"])
            self.assertEqual({name: count for name, count in file["counts"].items() if count},
                             counts)
            self.assertEqual("reason" in file, not file["checkedToTheEnd"])

    def test_columns_point_at_cells_of_the_line(self):
        pointers = 0
        for file in self.log["files"]:
            content = (DATA / file["path"]).read_bytes().decode("utf-8", "windows-1252")
            lines = re.split("\r\n|\r|\n", content.removeprefix("\ufeff"))
            for finding in file["findings"]:
                if "column" not in finding:
                    continue
                pointers += 1
                before = lines[finding["line"] - 1][:finding["column"] - 1]
                self.assertTrue(not before or before.endswith(","), finding)
        self.assertGreater(pointers, 20)

    def test_ndjson_has_one_run_one_end_and_a_line_per_file(self):
        lines = [json.loads(line) for line in self.runs["ndjson"].stdout.split(b"\n")[:-1]]
        types = Counter(line["type"] for line in lines)
        self.assertEqual((types["run"], types["end"]), (1, 1))
        self.assertEqual((lines[0]["type"], lines[-1]["type"]), ("run", "end"))
        self.assertEqual([line["path"] for line in lines if line["type"] == "file"], self.files)
        self.assertEqual(lines[-1]["counts"], self.log["summary"]["counts"])

    def test_csv_has_the_facts_of_every_file_and_no_formula(self):
        data = self.runs["csv"].stdout
        self.assertTrue(data.startswith(codecs.BOM_UTF8))
        rows = csv_rows(data)
        for fact, member in (("size", "size"), ("sha256", "sha256"), ("ags-version", "agsVersion")):
            values = {from_cell(row["file"]): row["message"] for row in rows
                      if row["record"] == "file" and row["id"] == fact}
            self.assertEqual(values, {file["path"]: str(file[member])
                                      for file in self.log["files"] if member in file})
        for row in rows:
            for cell in row.values():
                self.assertNotIn(cell.lstrip(" ")[:1], tuple("=+-@\t\n"), row)

    def test_sarif_results_refer_to_rules_and_artifacts_and_differ_in_fingerprints(self):
        run, = json.loads(self.runs["sarif"].stdout)["runs"]
        rules = run["tool"]["driver"]["rules"]
        self.assertEqual(len({rule["id"] for rule in rules}), len(rules))
        self.assertEqual([urllib.parse.unquote(artifact["location"]["uri"])
                          for artifact in run["artifacts"]],
                         [path.replace(os.sep, "/") for path in self.files])
        for result in run["results"]:
            self.assertEqual(rules[result["ruleIndex"]]["id"], result["ruleId"])
            location = result["locations"][0]["physicalLocation"]["artifactLocation"]
            self.assertEqual(run["artifacts"][location["index"]]["location"]["uri"],
                             location["uri"])
        fingerprints = [result["partialFingerprints"]["quorvane/v1"] for result in run["results"]]
        self.assertEqual(len(set(fingerprints)), len(fingerprints))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
