"""Tests of the HTML report as its readers open it: in a browser, by mouse and keyboard, on paper.

Usage: page_test.py PROGRAM

The program is called with --format html --output PAGE FILE... and writes the page. Needs chromium,
chromium-driver and poppler-utils (pdftotext).
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from browser import Browser

PROGRAM = str(pathlib.Path(sys.argv[1]).resolve())

TAB, ENTER, SPACE, RIGHT = "\ue004", "\ue007", " ", "\ue014"
EVIL = "</script><script>document.title='taken'</script><img src=x onerror=document.title='taken'>"


def ags4(*groups):
    """An AGS 4 file: groups of a name, headings, units, types and rows."""
    lines = []
    for name, headings, units, types, *rows in groups:
        lines.append(["GROUP", name])
        lines += [["HEADING", *headings], ["UNIT", *units], ["TYPE", *types]]
        lines += [["DATA", *row] for row in rows] + [[]]
    return "\r\n".join(",".join(f'"{field}"' for field in line) for line in lines)


def delivery(*rows):
    """A file whose mistakes are in the rows of LOCA, and an FYI: a unit that nothing uses."""
    return ags4(
        ("PROJ", ["PROJ_ID", "PROJ_NAME"], ["", ""], ["ID", "X"], ["P1", "Test"]),
        ("TRAN",
         ["TRAN_ISNO", "TRAN_DATE", "TRAN_PROD", "TRAN_STAT", "TRAN_DESC", "TRAN_AGS", "TRAN_RECV",
          "TRAN_DLIM", "TRAN_RCON"],
         ["", "yyyy-mm-dd", "", "", "", "", "", "", ""], ["X", "DT", *["X"] * 7],
         ["1", "2026-01-02", "Maker", "Final", "Test", "4.0.3", "Client", "|", "+"]),
        ("TYPE", ["TYPE_TYPE", "TYPE_DESC"], ["", ""], ["X", "X"],
         ["ID", "Identifier"], ["X", "Text"], ["DT", "Date"], ["2DP", "Number"]),
        ("UNIT", ["UNIT_UNIT", "UNIT_DESC"], ["", ""], ["X", "X"],
         ["yyyy-mm-dd", "Day"], ["m", "metre"], ["kPa", "kilopascal"]),
        ("LOCA", ["LOCA_ID", "LOCA_GL", "LOCA_FDEP"], ["", "m", "m"], ["ID", "2DP", "2DP"], *rows))


FILES = {
    "first.ags": delivery(["BH1", "deep", "deeper"], ["BH2", EVIL, "1.00"], ["BH1", "1.00", "2.0"]),
    "second.ags": delivery(["BH9", "1.00", "none"]),
    "neither.ags": "neither",
}

# The findings in sight, in the order of the page: severity, place and text.
IN_SIGHT = """
    return Array.from(document.querySelectorAll('li'))
        .filter((item) => item.checkVisibility())
        .map((item) => [item.children[0], item.children[1], item.querySelector('p')]
            .map((part) => part.textContent));"""
TITLES_IN_SIGHT = """
    return Array.from(document.querySelectorAll('h3 span'))
        .filter((title) => title.checkVisibility()).map((title) => title.textContent);"""


class PageCase(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="quorvane-page-")
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        for name, content in FILES.items():
            (cls.folder / name).write_bytes(content.encode())
        cls.page = cls.write_page("report.html", *FILES)
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)

    @classmethod
    def write_page(cls, name, *files):
        """The page of some files, which may hold findings: status 1."""
        run = subprocess.run([PROGRAM, "--format", "html", "--output", name, *files],
                             cwd=cls.folder, capture_output=True, check=False)
        assert run.returncode in (0, 1), run.returncode
        return cls.folder / name

    def setUp(self):
        self.browser.resize(1280, 900)
        self.browser.open(self.page.as_uri())

    def in_sight(self):
        return self.browser.run(IN_SIGHT)

    def shown(self):
        return self.browser.run("return document.getElementById('shown').textContent")

    def wait_for_count(self, words):
        self.browser.wait_until(
            "return document.getElementById('shown').textContent.startsWith(arguments[0])", words)


class ScreenTest(PageCase):
    def test_page_runs_under_its_own_policy_without_complaint(self):
        self.assertEqual(self.browser.console(), [])
        self.assertTrue(self.browser.run("return !document.getElementById('controls').hidden"))

    def test_policy_runs_no_other_script(self):
        self.browser.run("""
            const script = document.createElement('script');
            script.textContent = "document.title = 'taken'";
            document.body.append(script);""")
        self.assertIn("violates", " ".join(self.browser.console()))
        self.assertNotEqual(self.browser.run("return document.title"), "taken")

    def test_file_content_is_text_only(self):
        self.assertEqual(self.browser.run("return document.scripts.length"), 1)
        self.assertEqual(self.browser.run("return document.images.length"), 0)
        self.assertEqual(self.browser.run("return document.title"), "AGS data check: 3 files")
        self.assertIn(EVIL, self.browser.run("return document.body.textContent"))

    def test_all_findings_are_in_sight_by_section_at_first(self):
        total = self.browser.run("return document.querySelectorAll('li').length")
        self.assertGreater(total, 5)
        self.assertEqual(len(self.in_sight()), total)
        self.assertEqual(self.shown(), f"{total} of {total} findings shown.")
        self.assertIn("TYPE check", self.browser.run(TITLES_IN_SIGHT))

    def test_order_by_line_and_back(self):
        at_first = self.in_sight()
        self.browser.click("input[value=line]")
        lines = self.browser.run("""
            return Array.from(document.querySelectorAll('.file'), (file) =>
                Array.from(file.querySelectorAll('li > span'), (place) =>
                    Number((/\\d+/.exec(place.textContent) ?? [0])[0])));""")
        self.assertGreater(len(lines[0]), 3)
        self.assertEqual(lines, [sorted(of_file) for of_file in lines])
        self.assertCountEqual(self.in_sight(), at_first)
        self.assertNotEqual(self.in_sight(), at_first)
        self.browser.click("input[value=section]")
        self.assertEqual(self.in_sight(), at_first)

    def test_order_by_severity(self):
        self.browser.click("input[value=severity]")
        titles = [title for title in self.browser.run(TITLES_IN_SIGHT) if title in
                  ("Errors", "Warnings", "FYI")]
        self.assertEqual(titles, ["Errors", "FYI", "Errors", "FYI"])

    def test_severity_boxes(self):
        errors = [finding for finding in self.in_sight() if finding[0] == "ERROR"]
        total = len(self.in_sight())
        self.assertLess(len(errors), total)
        self.browser.click("input[value=fyi]")
        self.assertEqual(self.in_sight(), errors)
        self.assertEqual(self.shown(), f"{len(errors)} of {total} findings shown.")
        self.browser.click("input[value=error]")
        self.assertEqual(self.in_sight(), [])
        self.assertTrue(
            self.browser.run("return document.querySelector('.none').checkVisibility()"))

    def test_filter_searches_text_and_place_in_any_case(self):
        for words, expected in (("DEEPER", 1), ("key bh9", 1), ("loca_fdep", 3), ("no such", 0)):
            self.browser.run("document.getElementById('filter').value = ''")
            self.browser.type("#filter", words)
            self.browser.wait_until(
                "return document.getElementById('shown').textContent.includes(arguments[0])", words)
            self.wait_for_count(f"{expected} of")
            self.assertEqual(len(self.in_sight()), expected, words)

    def test_line_is_unfolded_with_its_cell_marked(self):
        # The second finding of the line takes over what was written with the first.
        for cell, value in (("LOCA_GL", "deep"), ("LOCA_FDEP", "deeper")):
            details = self.browser.run("""
                const item = Array.from(document.querySelectorAll('li')).find((one) =>
                    one.textContent.includes(`(${arguments[0]})`));
                item.querySelector('summary').id = arguments[0];
                return item.querySelector('details').open;""", value)
            self.assertFalse(details)
            self.browser.click(f"#{value}")
            marked = self.browser.wait_until("""
                const details = document.getElementById(arguments[0]).parentElement;
                const rows = details.querySelectorAll('tbody tr');
                return details.open && rows.length === 3 &&
                    Array.from(details.querySelectorAll('[aria-current] > *'), (one) =>
                        one.textContent);""", value)
            self.assertEqual(marked, [cell, "m", "2DP", value])
            self.assertEqual(self.browser.run("""
                return document.getElementById(arguments[0]).parentElement
                    .querySelector('pre').textContent""", value), '"DATA","BH1","deep","deeper"')

    def test_keyboard_alone_does_it_all(self):
        total = len(self.in_sight())
        focused = "return document.activeElement.%s"
        self.browser.run("document.querySelector('.wide').focus()")
        for _ in FILES:
            self.browser.press(TAB)  # over the links of the files
        self.browser.press(TAB)
        self.assertEqual(self.browser.run(focused % "value"), "section")
        self.browser.press(RIGHT)
        self.assertIn("By line", self.browser.run(TITLES_IN_SIGHT))
        self.browser.press(TAB, TAB, SPACE)  # FYI: over the errors
        self.assertEqual(self.browser.run(focused % "checked"), False)
        self.assertLess(len(self.in_sight()), total)
        self.browser.press(TAB, *"deeper")
        self.wait_for_count("1 of")
        self.browser.press(TAB, TAB, ENTER)  # over the link to the kind of finding
        self.assertEqual(self.browser.run(focused % "tagName"), "SUMMARY")
        self.browser.wait_until(focused % "parentElement.open")

    def test_every_control_has_a_label_and_the_count_is_told(self):
        unlabelled = self.browser.run("""
            return Array.from(document.querySelectorAll('input')).filter(
                (input) => !input.labels[0]?.textContent.trim()).length""")
        self.assertEqual(unlabelled, 0)
        self.assertEqual(
            self.browser.run("return document.getElementById('shown').tagName"), "OUTPUT")

    def test_narrow_window_needs_no_sideways_scrolling(self):
        self.browser.resize(500, 900)
        self.assertTrue(self.browser.wait_until(
            "return innerWidth < 600 && document.documentElement.scrollWidth <= innerWidth"))

    def test_many_findings_are_sorted_and_filtered_in_long_lists(self):
        rows = [[f"BH{number}", "deep", "1.00"] for number in range(6000)]
        (self.folder / "many.ags").write_bytes(delivery(*rows).encode())
        self.browser.open(self.write_page("many.html", "many.ags").as_uri())
        total = self.browser.run("return document.querySelectorAll('li').length")
        self.assertGreater(total, 6000)
        self.browser.click("input[value=line]")
        self.assertEqual(self.browser.run("return document.querySelectorAll('li').length"), total)
        self.browser.type("#filter", "key bh5999 ")
        self.wait_for_count("1 of")
        self.assertEqual(len(self.in_sight()), 1)


class PaperTest(PageCase):
    def text_on_paper(self):
        (self.folder / "report.pdf").write_bytes(self.browser.print())
        run = subprocess.run(["pdftotext", "-layout", "report.pdf", "-"], cwd=self.folder,
                             check=True, capture_output=True, text=True)
        return re.sub(r"\s+", " ", run.stdout)

    def test_everything_is_printed_lines_included_and_no_controls(self):
        text = self.text_on_paper()
        for words in ("AGS data check: 3 files", "first.ags", "TYPE check", "Line 34, column 14",
                      '"DATA","BH1","deep","deeper"', "What the findings mean",
                      "was not checked to the end: File is not an AGS 3 or 4 format file"):
            self.assertIn(words, text)
        for words in ("Filter", "by severity", "file://", "findings shown"):
            self.assertNotIn(words, text)

    def test_what_is_filtered_out_is_not_printed_and_that_is_said(self):
        self.browser.type("#filter", "deeper")
        self.wait_for_count("1 of")
        text = self.text_on_paper()
        self.assertRegex(text, r'1 of \d+ findings shown: those with "deeper"')
        self.assertNotIn("kPa", text)


class WithoutScriptTest(PageCase):
    def test_page_shows_everything_by_section(self):
        page = self.page.read_text(encoding="utf-8")
        bare = self.folder / "bare.html"
        bare.write_text(re.sub(r"<script>.*?</script>\n", "", page, flags=re.S), encoding="utf-8")
        with_script = self.in_sight()
        self.browser.open(bare.as_uri())
        self.assertEqual(self.browser.run("return document.scripts.length"), 0)
        self.assertEqual(self.in_sight(), with_script)
        self.assertFalse(self.browser.run(
            "return document.getElementById('controls').checkVisibility()"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
