"""ledgrove-metafile, which converts a metafile to a PNG and limits its own time and memory."""
import resource
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
sys.path.insert(0, str(SOURCE / "tests/fuzz"))

from make_corpora import wmf  # noqa: E402


def play(content, *arguments):
    return subprocess.run([PROGRAM, *arguments], input=content, capture_output=True, timeout=30, check=False)


class Metafile(unittest.TestCase):
    def test_the_longer_side_has_the_requested_length(self):
        for side in (64, 300):
            done = play(wmf(False), str(side))
            self.assertEqual((done.returncode, done.stderr), (0, b""))
            self.assertEqual(done.stdout[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(max(struct.unpack(">2I", done.stdout[16:24])), side)

    def test_a_damaged_metafile_gives_no_output(self):
        for content in (b"", b"no metafile", wmf(False)[:30], struct.pack("<HHHIHIH", 1, 9, 0x300, 1 << 30, 1, 1 << 30, 0)):
            done = play(content, "64")
            self.assertNotEqual(done.returncode, 0)
            self.assertEqual(done.stdout, b"")

    def traced(self, *options):
        """The program under strace: how it ended, and its calls that ask for or set a limit, one a line."""
        with tempfile.NamedTemporaryFile() as log:
            done = subprocess.run(["strace", "-f", "-o", log.name, "-e", "trace=prlimit64", *options, PROGRAM, "64"],
                                  input=wmf(False), capture_output=True, timeout=30, check=False)
            return done, [line for line in Path(log.name).read_text().splitlines() if "prlimit64(" in line]

    def test_where_a_limit_cannot_be_set_it_plays_nothing(self):
        done, calls = self.traced()
        self.assertEqual(done.returncode, 0)
        for limit in ("RLIMIT_CPU", "RLIMIT_DATA", "RLIMIT_CORE"):
            places = [place for place, call in enumerate(calls, 1) if limit in call]
            self.assertTrue(places, limit)
            for place in places:
                done, injected = self.traced("-e", f"inject=prlimit64:error=EPERM:when={place}")
                self.assertIn("INJECTED", injected[place - 1])
                self.assertEqual((done.returncode, done.stdout), (1, b""), injected[place - 1])

    def test_a_lower_limit_stays(self):
        """The larger side takes 64 MB for itself, the smaller one less than half of the lower limit."""
        lower = 16 << 20
        for side, plays in ((64, True), (4000, False)):
            done = subprocess.run([PROGRAM, str(side)], input=wmf(False), capture_output=True, timeout=30, check=False,
                                  preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_DATA, (lower, lower)))
            self.assertEqual((done.returncode == 0, done.stdout != b""), (plays, plays), side)

    def test_wrong_arguments_print_the_usage(self):
        for arguments in ((), ("wide",), ("0",), ("4001",), ("64", "64")):
            done = play(b"", *arguments)
            self.assertEqual(done.returncode, 1)
            self.assertEqual(
                done.stderr, b"Usage: ledgrove-metafile LONGEST-SIDE < METAFILE > PNG (LONGEST-SIDE: 1 to 4000 pixels)\n")


unittest.main()
