"""ledgrove-metafile, which converts a metafile to a PNG and limits its own time and memory."""
import struct
import subprocess
import sys
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

    def test_wrong_arguments_print_the_usage(self):
        for arguments in ((), ("wide",), ("0",), ("4001",), ("64", "64")):
            done = play(b"", *arguments)
            self.assertEqual(done.returncode, 1)
            self.assertEqual(done.stderr, b"ledgrove-metafile LONGEST-SIDE turns the metafile on standard input into a PNG.\n")


unittest.main()
