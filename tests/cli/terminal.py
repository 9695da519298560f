#!/usr/bin/env python3
"""terminal.py PROGRAM SOURCE_DIR: what the program does on a terminal that it does not do elsewhere."""

import os
import pty
import random
import re
import select
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import fcntl
import time
import unittest
from pathlib import Path

PROGRAM, SOURCES = sys.argv[1], Path(sys.argv[2])
CLEAR = "\r\x1b[K"


class Terminal:
    """A pseudo-terminal of a width, and what has been written to it."""

    def __init__(self, columns=80):
        self.master, self.slave = pty.openpty()
        fcntl.ioctl(self.slave, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        self.output = b""

    def drain(self, seconds=0.0):
        """Takes what has been written, for so long at least."""
        end = time.monotonic() + seconds
        while select.select([self.master], [], [], max(0.0, end - time.monotonic()))[0]:
            try:
                self.output += os.read(self.master, 65536)
            except OSError:
                break

    def text(self):
        self.drain()
        return self.output.decode().replace("\r\n", "\n")

    def close(self):
        os.close(self.master)
        os.close(self.slave)


def start(terminal, *arguments, stdout=subprocess.PIPE, stderr=None):
    environment = {key: value for key, value in os.environ.items() if key not in ("COLUMNS", "NO_COLOR")}
    return subprocess.Popen(
        [PROGRAM, *map(str, arguments)],
        stdin=subprocess.DEVNULL,
        stdout=stdout,
        stderr=terminal.slave if stderr is None else stderr,
        env=environment | {"TERM": "xterm"},
        start_new_session=True,
    )


def finish(terminal, process):
    """Waits while the terminal is read, as a real one is. Returns what went to the pipe."""
    piped = b""
    while process.poll() is None:
        terminal.drain(0.02)
        if process.stdout and select.select([process.stdout], [], [], 0)[0]:
            piped += os.read(process.stdout.fileno(), 65536)
    if process.stdout:
        piped += process.stdout.read()
        process.stdout.close()
    terminal.drain(0.05)
    return piped.decode()


def screen(text):
    """What is left to see of lines that were rewritten."""
    lines = []
    for line in text.split("\n"):
        shown = ""
        for part in re.split(r"(\r\x1b\[K|\r)", line):
            shown = "" if part in (CLEAR, "\r") else shown + part
        lines.append(shown)
    return "\n".join(lines)


class TerminalTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.large = Path(cls.folder.name, "large.mvdb")
        # Work enough for the line to appear on any machine.
        subprocess.run(
            [sys.executable, SOURCES / "samples/make_large.py", "--variables", "12000", "--labels", "24000",
             "--output", cls.large], check=True, stdout=subprocess.DEVNULL)
        cls.table = Path(cls.folder.name, "large.csv")
        with open(cls.table, "w", encoding="utf-8") as table:
            table.write("ID,AGE,NAME\n")
            table.writelines(f"{row},{row % 90},Person {row}\n" for row in range(1_000_000))

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def setUp(self):
        self.terminal = Terminal()
        self.addCleanup(self.terminal.close)
        self.out = Path(tempfile.mkdtemp(dir=self.folder.name))

    def verbs(self):
        """Each verb with long work, and what its line says."""
        return {
            "check": ("Opening", ["check", self.large]),
            "diff": ("Opening", ["diff", self.large, self.large]),
            "codebook": ("Opening", ["codebook", self.large, "-o", self.out / "book.html"]),
            "convert": ("Converting", ["convert", "--lossy", self.large, self.out / "copy.mvdb"]),
            "show": ("Opening", ["show", self.large]),
            "import": ("Reading", ["import", self.table, "-o", self.out / "made.mvdb"]),
        }

    def test_long_work_is_told_and_the_line_is_cleared(self):
        for verb, (task, arguments) in self.verbs().items():
            with self.subTest(verb):
                terminal = Terminal()
                process = start(terminal, *arguments)
                piped = finish(terminal, process)
                text = terminal.text()
                self.assertIn(process.returncode, (0, 1))
                self.assertIn(CLEAR + task + " ", text)
                self.assertTrue(text.endswith(CLEAR), text[-80:])
                self.assertEqual(screen(text).strip(), "", "the line is cleared")
                self.assertNotIn("\r", piped)
                self.assertNotIn("\x1b", piped)
                terminal.close()

    def test_an_import_tells_how_much_is_done(self):
        _, arguments = self.verbs()["import"]
        finish(self.terminal, start(self.terminal, *arguments))
        self.assertRegex(self.terminal.text(), r"Reading \S+large\.csv: \d+ %")

    def test_nothing_of_it_reaches_a_pipe(self):
        for verb, (_, arguments) in self.verbs().items():
            with self.subTest(verb):
                process = start(self.terminal, *arguments, stderr=subprocess.PIPE)
                _, errors = process.communicate()
                self.assertEqual(errors, b"")

    def test_short_work_shows_nothing(self):
        process = start(self.terminal, "check", SOURCES / "samples/household.mvdb")
        finish(self.terminal, process)
        self.assertEqual(self.terminal.text(), "")

    def test_the_line_fits_the_terminal(self):
        narrow = Terminal(columns=24)
        finish(narrow, start(narrow, "check", self.large))
        told = [line for line in re.split(re.escape(CLEAR), narrow.text()) if line]
        self.assertTrue(told)
        for line in told:
            self.assertLess(len(line), 24, line)
        narrow.close()

    def test_an_error_stands_alone_in_its_line(self):
        broken = self.out / "broken.mvdb"
        broken.write_bytes(self.large.read_bytes()[:-20])
        process = start(self.terminal, "check", broken)
        finish(self.terminal, process)
        self.assertEqual(process.returncode, 2)
        self.assertRegex(screen(self.terminal.text()), rf"^quillon: {broken}: line \d+, column \d+: [^\n]+\n$")

    def test_an_interruption_clears_the_line_and_leaves_nothing_half_written(self):
        dice = random.Random(1)
        ended = 0
        for verb in ("codebook", "convert", "import"):
            for attempt in range(6):
                with self.subTest(verb):
                    self.out = Path(tempfile.mkdtemp(dir=self.folder.name))
                    task, arguments = self.verbs()[verb]
                    terminal = Terminal()
                    process = start(terminal, *arguments)
                    if attempt % 2:  # Just when the file appears, otherwise at any moment.
                        while process.poll() is None and not os.listdir(self.out):
                            pass
                    else:
                        terminal.drain(dice.uniform(0.02, 1.5))
                    process.send_signal(dice.choice([signal.SIGINT, signal.SIGTERM]))
                    finish(terminal, process)
                    left = list(self.out.iterdir())
                    if process.returncode < 0:
                        ended += 1
                        self.assertIn(-process.returncode, (signal.SIGINT, signal.SIGTERM))
                    self.assertEqual(screen(terminal.text()).strip(), "")
                    # Either it came too late or there is no file, and never a temporary one.
                    self.assertIn([path.name for path in left], ([], [arguments[-1].name]))
                    for path in left:
                        self.assertTrue(self.is_whole(path), path)
                    terminal.close()
        self.assertGreater(ended, 3)

    @staticmethod
    def is_whole(path):
        return path.read_bytes().rstrip().endswith(b"</html>" if path.suffix == ".html" else b"}")

    def test_a_table_fits_the_terminal(self):
        sample = SOURCES / "samples/household.mvdb"
        widest = subprocess.run([PROGRAM, "show", sample], capture_output=True, text=True, check=True).stdout
        self.assertGreater(max(map(len, widest.splitlines())), 100)
        for columns in (70, 80, 100):
            with self.subTest(columns=columns):
                terminal = Terminal(columns)
                finish(terminal, start(terminal, "show", sample, stdout=terminal.slave))
                lines = re.sub(r"\x1b\[\d*m", "", terminal.text()).splitlines()
                self.assertGreater(len(lines), 20)
                self.assertLessEqual(max(map(len, lines)), columns)
                self.assertGreater(max(map(len, lines)), columns * 0.8, "the room is used")
                terminal.close()

    def test_colours_are_for_terminals(self):
        sample = SOURCES / "samples/household.mvdb"
        finish(self.terminal, start(self.terminal, "show", sample, stdout=self.terminal.slave))
        self.assertIn("\x1b[1m", self.terminal.text())
        piped = finish(self.terminal, start(self.terminal, "show", sample))
        self.assertNotIn("\x1b", piped)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
