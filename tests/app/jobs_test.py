"""`ledgrove-cli compare --jobs`: several threads give the same results in the same order, with bounded memory."""
import json
import os
import random
import resource
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
SANITIZED = "ASAN_OPTIONS" in os.environ or "TSAN_OPTIONS" in os.environ


class Jobs(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)

    def command(self, jobs):
        return [PROGRAM, "compare", "--folder", self.folder, "--format", "jsonl", "--jobs", str(jobs)]

    def compare(self, given, jobs):
        run = subprocess.run(self.command(jobs), input=given, capture_output=True, timeout=120)
        return run.returncode, run.stdout, run.stderr

    def price_list(self, lines):
        """Homes of all prices; every 50th line is unusual."""
        chance = random.Random(7)
        odd = ["", "nonsense", '{"ecIncome": "abc"}', '{"ecHouse": 1}', "   ", '{"x":"' + "y" * (1 << 20) + '"}', "{}"]
        for number in range(lines):
            if number % 50 == 49:
                # the very long line is rare, to save time
                yield odd[chance.randrange(len(odd))] if number % 1000 == 999 else odd[chance.randrange(5)]
            else:
                yield json.dumps({"ecIncome": chance.randrange(200000), "ecStdHome": number, "ecGMHHome": number + 5,
                                  "ecPctDown": chance.randrange(40), "cboStdMortOption": "VA"})

    def test_the_results_are_the_same_for_any_number_of_threads(self):
        given = "\n".join(self.price_list(5000)).encode()
        expected = self.compare(given, 1)
        self.assertEqual(expected[0], 1)
        results = [json.loads(line) for line in expected[1].splitlines()]
        refused = [result["error"]["line"] for result in results if "error" in result]
        self.assertEqual(expected[2].decode(), f"ledgrove-cli: {len(refused)} of {len(results)} comparisons were refused; "
                                               f"the first is line {refused[0]}.\n")
        for jobs in (2, 3, 8):
            self.assertEqual(self.compare(given, jobs), expected, jobs)

    def test_results_keep_the_order_of_their_lines(self):
        given = "".join(json.dumps({"ecStdHome": number}) + "\n" for number in range(1, 4001)).encode()
        status, output, _ = self.compare(given, 4)
        self.assertEqual(status, 0)
        shown = [json.loads(line)["fields"]["ecStdHome"] for line in output.splitlines()]
        self.assertEqual(shown, [f"${number:,}" for number in range(1, 4001)])

    def test_empty_and_short_inputs(self):
        for given in (b"", b"\n\n", b'{"ecIncome": 1}', b'{"ecIncome": 1}\n'):
            self.assertEqual(self.compare(given, 2), self.compare(given, 1), given)

    def test_a_waiting_reader_gets_each_result_before_the_next_line_is_sent(self):
        with subprocess.Popen(self.command(3), stdin=subprocess.PIPE, stdout=subprocess.PIPE) as running:
            for income in ("$1", "$2", "$3", "$4", "$5", "$6", "$7", "$8"):
                running.stdin.write(json.dumps({"ecIncome": income}).encode() + b"\n")
                running.stdin.flush()
                self.assertEqual(json.loads(running.stdout.readline())["fields"]["ecIncome"], income)
            running.stdin.close()
            self.assertEqual(running.wait(10), 0)

    @unittest.skipIf(SANITIZED, "the sanitizers keep freed memory")
    def test_memory_does_not_grow_with_the_input(self):
        line = json.dumps({"ecIncome": "72000", "ecStdHome": "200000"}).encode() + b"\n"

        def peak(count):
            with tempfile.TemporaryFile() as given:
                given.write(line * count)
                given.seek(0)
                running = subprocess.Popen(self.command(2), stdin=given, stdout=subprocess.DEVNULL)
                _, status, usage = os.wait4(running.pid, 0)
                running.returncode = os.waitstatus_to_exitcode(status)
                self.assertEqual(running.returncode, 0)
                return usage.ru_maxrss

        # The results of a piece take about 4 MB, and the number of waiting pieces varies from run to run. All results of the
        # longer list together take 300 MB.
        self.assertLessEqual(peak(50000) - peak(8000), 16 * 1024)  # KiB

    @unittest.skipIf(SANITIZED, "the sanitizers need terabytes of addresses")
    def test_with_too_little_memory_for_all_threads_it_goes_on_with_fewer(self):
        given = "\n".join(self.price_list(20000)).encode()
        expected = self.compare(given, 1)
        for kilobytes in (100_000, 200_000, 400_000):
            run = subprocess.run(self.command(256), input=given, capture_output=True, timeout=120,
                                 preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (kilobytes * 1024,) * 2))
            self.assertEqual((run.returncode, run.stdout, run.stderr), expected, kilobytes)

    @staticmethod
    def refuse_threads():
        """A new thread's stack is as large as this limit, and no machine has so many addresses."""
        resource.setrlimit(resource.RLIMIT_STACK, (1 << 50, resource.getrlimit(resource.RLIMIT_STACK)[1]))

    @unittest.skipIf(SANITIZED, "the sanitizers start a thread of their own")
    def test_without_any_thread_the_calling_one_does_the_work(self):
        given = "\n".join(self.price_list(5000)).encode()
        run = subprocess.run(self.command(4), input=given, capture_output=True, timeout=120, preexec_fn=self.refuse_threads)
        self.assertEqual((run.returncode, run.stdout, run.stderr), self.compare(given, 1))

    @unittest.skipIf(SANITIZED, "the sanitizers start a thread of their own")
    def test_without_any_thread_a_waiting_reader_gets_each_result(self):
        with subprocess.Popen(self.command(3), stdin=subprocess.PIPE, stdout=subprocess.PIPE, preexec_fn=self.refuse_threads) as running:
            for income in ("$1", "$2", "$3"):
                running.stdin.write(json.dumps({"ecIncome": income}).encode() + b"\n")
                running.stdin.flush()
                self.assertEqual(json.loads(running.stdout.readline())["fields"]["ecIncome"], income)
            running.stdin.close()
            self.assertEqual(running.wait(10), 0)

    @unittest.skipIf(SANITIZED, "the sanitizers start a thread of their own")
    def test_without_any_thread_output_that_cannot_be_written_is_reported(self):
        with open("/dev/full", "wb") as full:
            run = subprocess.run(self.command(2), input=b'{"ecIncome": 1}\n' * 5000, stdout=full, stderr=subprocess.PIPE, timeout=60,
                                 preexec_fn=self.refuse_threads)
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"could not be written", run.stderr)

    def test_output_that_cannot_be_written_is_reported(self):
        given = b'{"ecIncome": 1}\n' * 5000
        with open("/dev/full", "wb") as full:
            run = subprocess.run(self.command(2), input=given, stdout=full, stderr=subprocess.PIPE, timeout=60)
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"could not be written", run.stderr)

    def test_a_reader_that_goes_away_ends_the_run(self):
        with tempfile.TemporaryFile() as given:
            given.write(b'{"ecIncome": 1}\n' * 20000)
            given.seek(0)
            running = subprocess.Popen(self.command(2), stdin=given, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
            running.stdout.readline()
            running.stdout.close()
            self.assertNotEqual(running.wait(20), 0)

    def test_invalid_numbers_of_threads(self):
        for jobs in ("0", "-1", "many", "1000"):
            run = subprocess.run(self.command(jobs), input=b"{}", capture_output=True, timeout=20)
            self.assertEqual(run.returncode, 2, jobs)
            self.assertIn(b"--jobs", run.stderr)


if __name__ == "__main__":
    unittest.main()
