"""Tests of the page on hooks and pipelines: what it shows is run as it stands there.

Usage: pipelines_test.py PAGE CONSOLE_PROGRAM
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

PAGE = pathlib.Path(sys.argv[1]).resolve()
PROGRAM = pathlib.Path(sys.argv[2]).resolve()

GOOD = '"GROUP","PROJ"\r\n"HEADING","PROJ_ID"\r\n"UNIT",""\r\n"TYPE","ID"\r\n"DATA","1"\r\n'


def listings(language):
    text = PAGE.read_text(encoding="utf-8")
    return re.findall(rf"^```{language}\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)


class PageTest(unittest.TestCase):
    """A folder with a program of the name that the page uses on its path."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvane pipelines"))
        self.addCleanup(shutil.rmtree, self.folder)
        programs = self.folder / "programs"
        programs.mkdir()
        (programs / "quorvane-check").symlink_to(PROGRAM)
        self.work = self.folder / "work"
        self.work.mkdir()
        self.environment = dict(os.environ, HOME=str(self.folder), GIT_CONFIG_NOSYSTEM="1",
                                PATH=f"{programs}{os.pathsep}{os.environ['PATH']}")
        for name in ("GIT_DIR", "GIT_WORK_TREE", "GIT_INDEX_FILE"):
            self.environment.pop(name, None)

    def run_in_work(self, *command):
        return subprocess.run(command, cwd=self.work, env=self.environment, capture_output=True,
                              stdin=subprocess.DEVNULL, check=False)

    def run_shell(self, commands):
        return self.run_in_work("sh", "-eu", "-c", commands)

    def write(self, name, text):
        path = self.work / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text.encode())


class HookTest(PageTest):
    """The hook in a repository."""

    def setUp(self):
        super().setUp()
        self.assertEqual(self.git("init", "-q").returncode, 0)
        self.git("config", "user.name", "Tester")
        self.git("config", "user.email", "tester@example.com")
        hook, = [text for text in listings("sh") if text.startswith("#!")]
        path = self.work / ".git" / "hooks" / "pre-commit"
        path.parent.mkdir(exist_ok=True)
        path.write_text(hook)
        path.chmod(0o755)

    def git(self, *arguments):
        return self.run_in_work("git", *arguments)

    def commit(self, name, text, *options):
        self.write(name, text)
        self.git("add", "-A")
        return self.git("commit", "-q", "-m", "data", *options)

    def test_a_file_with_errors_is_refused(self):
        run = self.commit("site a/bad file.AGS", GOOD)
        self.assertEqual(run.returncode, 1, run.stderr)
        self.assertIn(b"ERROR: ", run.stderr)
        self.assertIn(b"bad file.AGS", run.stderr)

    def test_what_is_staged_is_judged(self):
        self.write("bad.ags", GOOD)
        self.git("add", "-A")
        self.write("bad.ags", "mended meanwhile, but not added")
        self.assertEqual(self.git("commit", "-q", "-m", "data").returncode, 1)

    def test_other_files_are_not_its_business(self):
        self.assertEqual(self.commit("notes.txt", "text").returncode, 0)

    def test_a_file_that_is_removed_is_no_file_to_check(self):
        self.assertEqual(self.commit("bad.ags", GOOD, "--no-verify").returncode, 0)
        self.git("rm", "-q", "bad.ags")
        self.assertEqual(self.git("commit", "-q", "-m", "away").returncode, 0)

    def test_a_commit_can_be_made_nevertheless(self):
        self.assertEqual(self.commit("bad.ags", GOOD, "--no-verify").returncode, 0)


class PipelineTest(PageTest):
    """The commands of the pipelines."""

    def setUp(self):
        super().setUp()
        self.write("deliveries/site/bad.ags", GOOD)

    def command_with(self, words):
        command, = [text for text in listings("sh") if words in text]
        return command

    def test_one_run_gives_both_reports(self):
        run = self.run_shell(self.command_with("--output findings.json"))
        self.assertEqual(run.returncode, 1, run.stderr)
        self.assertIn(b"SUMMARY:", run.stdout)
        findings = json.loads((self.work / "findings.json").read_text(encoding="utf-8"))
        self.assertEqual(len(findings["files"]), 1)

    def test_errors_that_are_known_do_not_fail_the_run(self):
        make = self.run_shell(self.command_with("--output baseline.json"))
        self.assertEqual(make.returncode, 0, make.stderr)
        compare = self.command_with("--baseline")
        run = self.run_shell(compare)
        self.assertEqual(run.returncode, 0, run.stderr)
        self.write("deliveries/site/worse.ags", GOOD)
        self.assertEqual(self.run_shell(compare).returncode, 1)

    def test_the_workflow_writes_what_it_hands_on(self):
        workflow, = [text for text in listings("yaml") if "sarif_file" in text]
        command = re.search(r"run: (quorvane-check .*)", workflow).group(1)
        self.assertEqual(self.run_shell(command).returncode, 1)
        handed_on = re.search(r"sarif_file: (\S+)", workflow).group(1)
        sarif = json.loads((self.work / handed_on).read_text(encoding="utf-8"))
        self.assertEqual(sarif["version"], "2.1.0")

    def test_every_option_that_the_page_names_exists(self):
        known = self.run_in_work("quorvane-check", "--help").stdout.decode()
        named = set()
        for language in ("sh", "yaml", "powershell"):
            for text in listings(language):
                for line in text.splitlines():
                    if "quorvane-check" in line:
                        named.update(re.findall(r" (--[a-z-]+)", line))
        self.assertGreater(len(named), 4)
        for option in named:
            self.assertIn(option, known)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
