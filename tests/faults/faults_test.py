#!/usr/bin/env python3
"""What the console program does when the system fails it: a full disk, files that change while they
are read, no memory, closed or broken streams, names of folders, pipes and devices, control
characters on a terminal. Whatever happens ends in a message on the error stream and a status that
is not 0, and leaves nothing half-written.

Usage: faults_test.py PROGRAM
"""

import os
import pathlib
import pty
import resource
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import threading
import time
import unittest

PROGRAM = pathlib.Path(sys.argv[1]).resolve() if len(sys.argv) > 1 else None

CLEAN = b"\r\n".join([
    b'"**PROJ"', b'"*PROJ_ID","*PROJ_AGS"', b'"<UNITS>",""', b'"P1","3.1"', b"",
    b'"**UNIT"', b'"*UNIT_UNIT","*UNIT_DESC"', b'"m","metre"', b"",
    b'"**ABBR"', b'"*ABBR_HDNG","*ABBR_CODE","*ABBR_DESC"',
    b'"HOLE_TYPE","CP","Cable percussion"', b"",
    b'"**HOLE"', b'"*HOLE_ID","*HOLE_TYPE","*HOLE_FDEP"', b'"<UNITS>","","m"',
    b'"BH1","CP","10.0"', b"",
])
NO_PROBLEMS = b"SUMMARY:  No problems found in file."
CHANGED = "File changed while it was read"
OLD_LOG = b"the log of an earlier run\r\n"
IS_ROOT = hasattr(os, "geteuid") and os.geteuid() == 0
NOBODY = 65534


class Faults(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvane faults "))
        self.folder.chmod(0o755)
        (self.folder / "clean.ags").write_bytes(CLEAN)

    def tearDown(self):
        shutil.rmtree(self.folder, ignore_errors=True)

    def run_program(self, *arguments, limits=(), environment=None, user=None, stdout=None):
        """Runs the program in the folder; limits are pairs of a resource and its greatest value."""
        def prepare():
            for which, value in limits:
                resource.setrlimit(which, (value, value))

        return subprocess.run([PROGRAM, *arguments], cwd=self.folder, env=environment, user=user,
                              stdout=stdout or subprocess.PIPE, stderr=subprocess.PIPE,
                              preexec_fn=prepare if limits else None, timeout=120, check=False)

    def names(self):
        return sorted(path.name for path in self.folder.iterdir())

    def assert_refused(self, run, name, words):
        """The file is named with the reason in the log and on the error stream; the status is 1."""
        self.assertEqual(run.returncode, 1, run.stderr)
        self.assertEqual(run.stderr.decode(), f"{name}: {words}\n")
        self.assertIn(f"File:  {name} (1 of 1)\n{words}\n".encode(), run.stdout)
        self.assertNotIn(b"SUMMARY:", run.stdout)

    def assert_not_saved(self, run, words):
        """The report is whole on standard output; the box says why the log is not; status 2."""
        self.assertEqual(run.returncode, 2, run.stderr)
        self.assertIn(b"Quorvane: Could not save to file ", run.stderr)
        self.assertIn(words.encode(), run.stderr)
        self.assertIn(NO_PROBLEMS, run.stdout)
        self.assertTrue(run.stdout.endswith(b"*" * 39 + b"\n\n\n"), run.stdout[-60:])


class LogFile(Faults):
    def test_is_written_whole_and_alone(self):
        run = self.run_program("clean.ags", "--log", "log.txt")
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertEqual(self.names(), ["clean.ags", "log.txt"])
        self.assertEqual((self.folder / "log.txt").read_bytes().replace(b"\r\n", b"\n"), run.stdout)

    def test_gets_the_permissions_that_the_user_gives_new_files(self):
        old = os.umask(0o027)
        try:
            self.run_program("clean.ags", "--log", "log.txt")
        finally:
            os.umask(old)
        self.assertEqual(stat.S_IMODE((self.folder / "log.txt").stat().st_mode), 0o640)

    def test_keeps_its_permissions_when_replaced(self):
        log = self.folder / "log.txt"
        log.write_bytes(OLD_LOG)
        log.chmod(0o604)
        run = self.run_program("clean.ags", "--log", "log.txt")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(stat.S_IMODE(log.stat().st_mode), 0o604)
        self.assertIn(NO_PROBLEMS, log.read_bytes())

    def test_is_replaced_at_once(self):
        # Who has the old log open goes on reading the old log: it is not overwritten in place.
        log = self.folder / "log.txt"
        log.write_bytes(OLD_LOG)
        with open(log, "rb") as reader:
            self.run_program("clean.ags", "--log", "log.txt")
            self.assertEqual(reader.read(), OLD_LOG)
        self.assertIn(NO_PROBLEMS, log.read_bytes())

    def test_is_written_where_a_link_leads(self):
        (self.folder / "logs").mkdir()
        for target in ("logs/real.txt", "logs/new.txt"):
            with self.subTest(target):
                if "real" in target:
                    (self.folder / target).write_bytes(OLD_LOG)
                link = self.folder / f"link-{target.partition('/')[2]}"
                link.symlink_to(target)
                self.assertEqual(self.run_program("clean.ags", "--log", link.name).returncode, 0)
                self.assertTrue(link.is_symlink())
                self.assertIn(NO_PROBLEMS, (self.folder / target).read_bytes())
        self.assertEqual(sorted(os.listdir(self.folder / "logs")), ["new.txt", "real.txt"])

    def test_with_two_names_keeps_both(self):
        log, other = self.folder / "log.txt", self.folder / "other.txt"
        log.write_bytes(OLD_LOG)
        os.link(log, other)
        self.assertEqual(self.run_program("clean.ags", "--log", "log.txt").returncode, 0)
        self.assertTrue(log.samefile(other))
        self.assertIn(NO_PROBLEMS, other.read_bytes())

    def test_may_have_the_longest_name(self):
        name = "l" * 251 + ".txt"
        self.assertEqual(self.run_program("clean.ags", "--log", name).returncode, 0)
        self.assertEqual(self.names(), ["clean.ags", name])

    def test_on_a_full_device(self):
        self.assert_not_saved(self.run_program("clean.ags", "--log", "/dev/full"),
                              "No space left on device")

    def test_that_does_not_fit_leaves_the_old_one(self):
        # The greatest size allowed for a file acts as a disk that fills up half-way.
        log = self.folder / "log.txt"
        log.write_bytes(OLD_LOG)
        run = self.run_program("clean.ags", "--log", "log.txt", limits=[(resource.RLIMIT_FSIZE, 300)])
        self.assert_not_saved(run, "File too large")
        self.assertEqual(log.read_bytes(), OLD_LOG)
        self.assertEqual(self.names(), ["clean.ags", "log.txt"])

    def test_that_does_not_fit_is_not_there(self):
        run = self.run_program("clean.ags", "--log", "log.txt", limits=[(resource.RLIMIT_FSIZE, 300)])
        self.assert_not_saved(run, "File too large")
        self.assertEqual(self.names(), ["clean.ags"])

    @unittest.skipUnless(IS_ROOT, "only the superuser can mount a disk")
    def test_on_a_full_disk(self):
        disk = self.folder / "disk"
        disk.mkdir()
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=16k", "tmpfs", disk],
                                 stderr=subprocess.PIPE, check=False)
        if mounted.returncode != 0:
            self.skipTest("this machine lets nobody mount a disk")
        try:
            log = disk / "log.txt"
            log.write_bytes(OLD_LOG)
            with open(disk / "filler", "wb", buffering=0) as filler:
                try:
                    while filler.write(b"x" * 4096):
                        pass
                except OSError:
                    pass
            self.assert_not_saved(self.run_program("clean.ags", "--log", log), "No space left")
            self.assertEqual(log.read_bytes(), OLD_LOG)
            self.assertEqual(sorted(os.listdir(disk)), ["filler", "log.txt"])
        finally:
            subprocess.run(["umount", disk], check=True)

    def test_that_is_a_folder(self):
        (self.folder / "logs").mkdir()
        for name in ("logs", "logs/", "."):
            self.assert_not_saved(self.run_program("clean.ags", "--log", name), "Is a directory")
        self.assertEqual(os.listdir(self.folder / "logs"), [])

    def test_in_a_folder_that_is_not_there(self):
        for name in ("no/log.txt", "clean.ags/log.txt"):
            run = self.run_program("clean.ags", "--log", name)
            self.assertEqual(run.returncode, 2)
            self.assertIn(b"Could not save to file ", run.stderr)
        self.assertEqual(self.names(), ["clean.ags"])
        self.assertEqual((self.folder / "clean.ags").read_bytes(), CLEAN)

    def test_that_is_a_pipe_is_written_into_it(self):
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        received = []
        reader = threading.Thread(target=lambda: received.append(pipe.read_bytes()))
        reader.start()
        run = self.run_program("clean.ags", "--log", "pipe")
        reader.join(timeout=60)
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertTrue(stat.S_ISFIFO(pipe.stat().st_mode))
        self.assertEqual(received[0].replace(b"\r\n", b"\n"), run.stdout)

    def test_that_is_the_programs_own_output(self):
        run = self.run_program("clean.ags", "--log", "/dev/stdout")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(run.stdout.count(NO_PROBLEMS), 2)


@unittest.skipUnless(IS_ROOT, "needs files of two owners")
class RunsOfAnotherUser(Faults):
    """As superuser every folder can be opened and takes new files: these runs are another user's."""

    def setUp(self):
        super().setUp()
        os.chown(self.folder / "clean.ags", NOBODY, NOBODY)
        probe = self.run_program("--version", user=NOBODY)
        if probe.returncode != 0:
            self.skipTest("the other user cannot start the program")

    def run_program(self, *arguments, **options):
        try:
            return super().run_program(*arguments, **options)
        except PermissionError:
            return self.skipTest("the other user cannot start the program")


class FolderOfAnotherUser(RunsOfAnotherUser):
    def setUp(self):
        super().setUp()
        self.closed = self.folder / "d" / "closed"
        self.closed.mkdir(parents=True)
        shutil.copy(self.folder / "clean.ags", self.folder / "d" / "open.ags")
        self.closed.chmod(0o700)

    def test_is_named_and_the_other_files_are_checked(self):
        run = self.run_program("d", "--summary", user=NOBODY)
        self.assertEqual((run.returncode, run.stderr), (1, b"d/closed: Permission denied\n"))
        self.assertIn(b"File:  d/open.ags (1 of 1)\n", run.stdout)
        self.assertIn(NO_PROBLEMS, run.stdout)

    def test_may_hold_associated_files_that_cannot_be_seen(self):
        group = b"\r\n".join([b'"**FILE"', b'"*FILE_FSET","*FILE_NAME","*FILE_DESC"',
                              b'"<UNITS>","",""', b'"closed","a.jpg","d"', b""])
        self.closed.rename(self.folder / "FILE")
        (self.folder / "clean.ags").write_bytes(CLEAN + b"\r\n" + group)
        run = self.run_program("clean.ags", "--files", user=NOBODY)
        self.assertEqual(run.returncode, 1)
        self.assertIn(b"  Missing: FILE/closed/a.jpg\n", run.stdout)
        self.assertIn(b"  Could not be listed: FILE: Permission denied\n", run.stdout)


class LogFileOfAnotherUser(RunsOfAnotherUser):
    def test_in_a_folder_that_takes_no_new_file(self):
        run = self.run_program("clean.ags", "--log", "log.txt", user=NOBODY)
        self.assert_not_saved(run, "Permission denied")
        self.assertEqual(self.names(), ["clean.ags"])

    def test_that_is_writable_in_a_folder_that_is_not(self):
        log = self.folder / "log.txt"
        log.write_bytes(OLD_LOG * 100)
        os.chown(log, NOBODY, NOBODY)
        run = self.run_program("clean.ags", "--log", "log.txt", user=NOBODY)
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertEqual(log.read_bytes().replace(b"\r\n", b"\n"), run.stdout)
        self.assertEqual(self.names(), ["clean.ags", "log.txt"])

    def test_that_is_protected_in_a_folder_that_is_not(self):
        self.folder.chmod(0o777)
        log = self.folder / "log.txt"
        log.write_bytes(OLD_LOG)
        log.chmod(0o444)
        self.assert_not_saved(self.run_program("clean.ags", "--log", "log.txt", user=NOBODY),
                              "Permission denied")
        self.assertEqual(log.read_bytes(), OLD_LOG)

    def test_keeps_its_owner(self):
        log = self.folder / "log.txt"
        log.write_bytes(OLD_LOG)
        os.chown(log, NOBODY, NOBODY)
        self.assertEqual(self.run_program("clean.ags", "--log", "log.txt").returncode, 0)
        self.assertEqual((log.stat().st_uid, log.stat().st_gid), (NOBODY, NOBODY))
        self.assertIn(NO_PROBLEMS, log.read_bytes())
        self.assertEqual(self.names(), ["clean.ags", "log.txt"])

    def test_input_that_may_not_be_read(self):
        (self.folder / "clean.ags").chmod(0)
        run = self.run_program("clean.ags", user=NOBODY)
        self.assert_refused(run, "clean.ags", "Permission denied")


class Input(Faults):
    def test_that_is_a_pipe_or_a_device_is_refused_without_waiting(self):
        os.mkfifo(self.folder / "pipe.ags")
        for name in ("pipe.ags", "/dev/zero", "/dev/null"):
            self.assert_refused(self.run_program(name), name, "Operation not supported")

    def test_that_is_a_folder(self):
        (self.folder / "settings.txt").write_bytes(b"FILESTOCHECK=.\r\n")
        run = self.run_program("--settings", "settings.txt")
        self.assert_refused(run, ".", "Is a directory")

    def test_whose_links_lead_nowhere(self):
        (self.folder / "gone.ags").symlink_to("nothing.ags")
        (self.folder / "loop.ags").symlink_to("loop.ags")
        self.assert_refused(self.run_program("gone.ags"), "gone.ags", "File not found")
        self.assert_refused(self.run_program("loop.ags"), "loop.ags",
                            os.strerror(40 if sys.platform == "linux" else 62))

    def make_large(self, size):
        path = self.folder / "large.ags"
        path.write_bytes(CLEAN)
        os.truncate(path, size)
        return path

    def run_while(self, change, *arguments):
        """Runs the program while a change is made again and again from before its start."""
        stop = threading.Event()

        def go_on():
            while not stop.is_set():
                change()

        thread = threading.Thread(target=go_on)
        thread.start()
        try:
            return self.run_program(*arguments)
        finally:
            stop.set()
            thread.join()

    def test_that_grows_while_it_is_read(self):
        path = self.make_large(100_000_000)
        with open(path, "ab", buffering=0) as file:
            run = self.run_while(lambda: (file.write(b"x"), time.sleep(0.0001)), "large.ags")
        self.assert_refused(run, "large.ags", CHANGED)

    def test_that_is_cut_short_while_it_is_read(self):
        path = self.make_large(100_000_000)
        sizes = iter(range(100_000_000, 0, -5000))
        run = self.run_while(lambda: (os.truncate(path, next(sizes, 1000)), time.sleep(0.0001)),
                             "large.ags")
        self.assert_refused(run, "large.ags", CHANGED)

    def test_that_is_replaced_while_it_is_read(self):
        self.make_large(100_000_000)
        counter = iter(range(1_000_000))

        def replace():
            path = self.folder / "new.ags"
            path.write_bytes(CLEAN)
            os.truncate(path, 100_000_000 + next(counter))
            os.rename(path, self.folder / "large.ags")

        self.assert_refused(self.run_while(replace, "large.ags"), "large.ags", CHANGED)

    def test_that_is_longer_than_the_system_says(self):
        if not os.path.exists("/proc/version"):
            self.skipTest("no file here has such a size")
        self.assert_refused(self.run_program("/proc/version"), "/proc/version", CHANGED)

    def need_limit(self, limit):
        probe = self.run_program("--version", limits=[limit])
        if probe.returncode != 0:
            self.skipTest("this build needs more address space to begin with")

    def test_of_almost_two_gigabytes_without_memory_for_it(self):
        limit = (resource.RLIMIT_AS, 1_000_000_000)
        self.need_limit(limit)
        self.make_large(1_900_000_000)
        run = self.run_program("large.ags", limits=[limit])
        self.assert_refused(run, "large.ags", "Cannot allocate memory")

    def test_without_memory_for_its_lines(self):
        # The bytes have room, what is made of them has not.
        limit = (resource.RLIMIT_AS, 350_000_000)
        self.need_limit(limit)
        path = self.folder / "lines.ags"
        path.write_bytes(CLEAN + b",\r\n" * 40_000_000)
        run = self.run_program("lines.ags", "clean.ags", limits=[limit])
        self.assertEqual(run.returncode, 1, run.stderr)
        self.assertIn(b"Quorvane Error: Error in ", run.stderr)
        self.assertIn(b": Not enough memory\n", run.stderr)
        self.assertIn(NO_PROBLEMS, run.stdout, "the files behind it are checked")

    def test_too_large(self):
        self.make_large(2_147_483_647)
        run = self.run_program("large.ags")
        self.assertEqual(run.returncode, 1)
        self.assertEqual(run.stderr, b"large.ags: File is too large for free Quorvane ( > 2GB ).\n")


class Surroundings(Faults):
    def test_without_any_environment(self):
        run = self.run_program("clean.ags", "--log", "log.txt", environment={})
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertIn(b"running in environment ? on ", run.stdout)

    def test_with_a_locale_that_the_system_does_not_know(self):
        run = self.run_program("clean.ags", environment={"LC_ALL": "xx", "HOME": "/nonexistent"})
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        self.assertIn(NO_PROBLEMS, run.stdout)

    def test_with_a_time_zone_that_the_system_does_not_know(self):
        run = self.run_program("clean.ags", environment={"TZ": "Nowhere/Land"})
        self.assertEqual((run.returncode, run.stderr), (0, b""))


class StandardOutput(Faults):
    def run_shell(self, words):
        return subprocess.run(["bash", "-c", words, "bash", PROGRAM], cwd=self.folder,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=60,
                              check=False)

    def assert_lost(self, run, words):
        self.assertEqual(run.returncode, 2, run.stderr)
        self.assertIn(b"Quorvane: Could not write the report to standard output\nError:  ",
                      run.stderr)
        self.assertIn(words.encode(), run.stderr)

    def test_that_is_closed(self):
        run = self.run_shell('"$1" clean.ags --log log.txt >&-')
        self.assert_lost(run, "Bad file descriptor")
        self.assertIn(NO_PROBLEMS, (self.folder / "log.txt").read_bytes())
        self.assertEqual((self.folder / "clean.ags").read_bytes(), CLEAN)

    def test_all_streams_closed(self):
        run = self.run_shell('"$1" clean.ags --log log.txt <&- >&- 2>&-; echo "status $?"')
        self.assertEqual(run.stdout, b"status 2\n")
        log = (self.folder / "log.txt").read_bytes()
        self.assertTrue(log.startswith(b"Quorvane for AGS"), log[:40])
        self.assertEqual((self.folder / "clean.ags").read_bytes(), CLEAN)

    def test_on_a_full_disk(self):
        with open("/dev/full", "wb") as full:
            self.assert_lost(self.run_program("clean.ags", stdout=full), "No space left on device")

    def test_on_a_full_disk_with_a_note_in_between(self):
        with open("/dev/full", "wb") as full:
            run = self.run_program("missing.ags", "clean.ags", stdout=full)
        self.assert_lost(run, "No space left on device")
        self.assertIn(b"missing.ags: File not found\n", run.stderr)

    def test_whose_reader_is_gone(self):
        reading, writing = os.pipe()
        os.close(reading)
        try:
            self.assert_lost(self.run_program("clean.ags", stdout=writing), "Broken pipe")
        finally:
            os.close(writing)

    def test_closed_error_stream_keeps_the_status(self):
        run = self.run_shell('"$1" missing.ags clean.ags 2>&-')
        self.assertEqual(run.returncode, 1)
        self.assertIn(NO_PROBLEMS, run.stdout)


class Data(Faults):
    """Findings as data where they cannot be written, or not as a whole."""

    def test_on_a_full_device(self):
        for name in ("json", "ndjson", "csv", "sarif"):
            with self.subTest(name):
                self.assert_not_saved(self.run_program("clean.ags", "--format", name, "--output",
                                                       "/dev/full"), "No space left on device")

    def test_that_does_not_fit_leaves_the_old_file(self):
        old = self.folder / "findings.json"
        old.write_bytes(OLD_LOG)
        run = self.run_program("clean.ags", "--format", "json", "--output", "findings.json",
                               limits=[(resource.RLIMIT_FSIZE, 300)])
        self.assert_not_saved(run, "File too large")
        self.assertEqual(old.read_bytes(), OLD_LOG)
        self.assertEqual(self.names(), ["clean.ags", "findings.json"])

    def test_lost_on_standard_output(self):
        for name in ("json", "ndjson", "csv", "sarif"):
            with self.subTest(name), open("/dev/full", "wb") as full:
                run = self.run_program("clean.ags", "--format", name, stdout=full)
                self.assertEqual(run.returncode, 2)
                self.assertIn(b"Could not write the report to standard output", run.stderr)
                self.assertIn(b"No space left on device", run.stderr)


class Terminal(Faults):
    """Control characters of a file, on a terminal and elsewhere."""

    FORGED = (b'"**PROJ"\r\n"*PROJ_ID","*PROJ_NAME","*PROJ_AGS"\r\n"<UNITS>","",""\r\n'
              b'P\x1b[2J\rSUMMARY:  No problems found in file.\n\x07,"Test","3.1"\r\n')

    def setUp(self):
        super().setUp()
        (self.folder / "forged.ags").write_bytes(self.FORGED)

    def run_on_terminal(self, *arguments):
        """What the program writes to a terminal, with the terminal's own line ends taken away."""
        leader, follower = pty.openpty()
        process = subprocess.Popen([PROGRAM, *arguments], cwd=self.folder, stdout=follower,
                                   stderr=follower, stdin=follower)
        os.close(follower)
        output = b""
        while True:
            try:
                piece = os.read(leader, 65536)
            except OSError:  # the program has closed its end
                break
            if not piece:
                break
            output += piece
        os.close(leader)
        return process.wait(), output.replace(b"\r\n", b"\n")

    def test_shows_them_as_text(self):
        status, output = self.run_on_terminal("forged.ags")
        self.assertEqual(status, 1)
        self.assertIn(b"'P\\x1B[2J\\x0DSUMMARY:  No problems found in file.\\x0A\\x07'", output)
        for control in (b"\x1b", b"\r", b"\x07"):
            self.assertNotIn(control, output)
        summaries = [line for line in output.split(b"\n") if line.startswith(b"SUMMARY:")]
        self.assertEqual(len(summaries), 1)
        self.assertNotIn(NO_PROBLEMS, summaries[0])

    def test_shows_those_of_names_as_text(self):
        status, output = self.run_on_terminal("no\x1b[2J\afile.ags")
        self.assertEqual(status, 1)
        self.assertEqual(output.count(b"no\\x1B[2J\\x07file.ags"), 2, "in the log and as an error")
        self.assertNotIn(b"\x1b", output)

    def test_shows_those_in_data_as_text(self):
        # The name holds a control character of two bytes, which JSON need not escape.
        (self.folder / "a\u009b2J.ags").write_bytes(self.FORGED)
        for name in ("json", "ndjson", "csv", "sarif"):
            with self.subTest(name):
                status, output = self.run_on_terminal("--format", name, "a\u009b2J.ags")
                self.assertEqual(status, 1)
                self.assertIn(b"field.missing-quotes", output)
                for control in (b"\x1b", b"\r", b"\x07", b"\xc2\x9b"):
                    self.assertNotIn(control, output)

    def test_passes_them_on_elsewhere(self):
        run = self.run_program("forged.ags", "--log", "log.txt")
        value = b"'P\x1b[2J\rSUMMARY:  No problems found in file.\n\x07'"
        self.assertIn(value, run.stdout)
        self.assertIn(value, (self.folder / "log.txt").read_bytes())


if __name__ == "__main__":
    signal.signal(signal.SIGPIPE, signal.SIG_DFL)
    unittest.main(argv=sys.argv[:1], verbosity=2)
