"""Saving a comparison is stopped and failed at every system call: the file is the old one or the new one, whole, and a
save that did not happen is told."""
import re
import resource
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = Path(sys.argv.pop(1))
OLD, NEW = b'{"ecIncome": "$1"}\n', b'{\n  "ecIncome": "$72,000"\n}\n'
CALLS = ("openat", "write", "pwrite64", "fsync", "fdatasync", "rename", "renameat", "renameat2", "link", "linkat", "fchmod",
         "ftruncate", "close")
NAME = "doe.ledgrove.json"


class Saving(unittest.TestCase):
    def save(self, *tracer, existing=OLD, **options):
        """The ended process, the file's content and the names beside it."""
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / NAME
            if existing is not None:
                path.write_bytes(existing)
            run = subprocess.run([*tracer, PROGRAM, path], input=NEW, capture_output=True, timeout=60, **options)
            names = {entry.name for entry in Path(folder).iterdir()} - {NAME}
            return run, path.read_bytes() if path.exists() else None, names

    def counted_calls(self):
        """How often an undisturbed save makes each call."""
        with tempfile.NamedTemporaryFile() as log:
            run, content, names = self.save("strace", "-f", "-o", log.name, "-e", "trace=" + ",".join(CALLS))
            self.assertEqual((run.returncode, content, names), (0, NEW, set()))
            made = re.findall(r"^\d+ +(\w+)\(", Path(log.name).read_text(), re.M)
        return {call: made.count(call) for call in CALLS if call in made}

    def test_every_call_failed_and_killed_in_turn(self):
        rounds = failed = 0
        for call, count in self.counted_calls().items():
            for number in range(1, count + 1):
                for fault in ("error=ENOSPC", "error=EIO", "signal=KILL"):
                    run, content, names = self.save("strace", "-f", "-o", "/dev/null", "-e",
                                                    f"inject={call}:{fault}:when={number}")
                    where = f"{call} {number} {fault}: {run.returncode} {run.stderr}"
                    rounds += 1
                    self.assertIn(content, (OLD, NEW), where)
                    if run.returncode == 0:
                        self.assertEqual(content, NEW, where)
                    elif fault != "signal=KILL":
                        failed += 1
                        self.assertEqual(names, set(), where)
                        self.assertTrue(run.stderr.strip(), where)
        print(f"{rounds} saves disturbed, {failed} of them failed and said so, 0 lost")
        self.assertGreater(failed, 10)

    def test_a_full_disk(self):
        run, content, names = self.save(preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (4, 4)))
        self.assertNotEqual(run.returncode, 0)
        self.assertEqual((content, names), (OLD, set()))

    def test_a_new_file(self):
        run, content, names = self.save(existing=None)
        self.assertEqual((run.returncode, content, names), (0, NEW, set()))

    def test_a_folder_that_is_not_there_is_named(self):
        run = subprocess.run([PROGRAM, "/nowhere/doe.ledgrove.json"], input=NEW, capture_output=True, timeout=20)
        self.assertEqual(run.returncode, 1)
        self.assertIn(b"/nowhere/doe.ledgrove.json", run.stderr)


if __name__ == "__main__":
    unittest.main()
