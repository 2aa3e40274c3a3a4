"""Where `ledgrove-cli report` and `chart` write: files, standard output, pipes and devices. Nothing is destroyed."""
import os
import shutil
import stat
import subprocess
import unittest

from cli_desk import PROGRAM, SOURCE, CliTest

SAMPLE = SOURCE / "data/samples/first-home.ledgrove.json"
BEGINNINGS = {"report": b"%PDF-", "chart": b"\x89PNG"}
ENDINGS = {"report": ".pdf", "chart": ".png"}


class Output(CliTest):
    def write(self, verb, output, *more, status=0, **options):
        run = subprocess.run([PROGRAM, verb, "--folder", self.folder, "--output", output, *more, SAMPLE], timeout=60,
                             stderr=subprocess.PIPE, **options)
        self.assertEqual(run.returncode, status, run.stderr.decode())
        return run

    def test_a_dash_and_names_of_standard_output(self):
        for verb, beginning in BEGINNINGS.items():
            for output in ("-", "/dev/stdout", "/dev/fd/1"):
                self.assertTrue(self.write(verb, output, stdout=subprocess.PIPE).stdout.startswith(beginning), (verb, output))

    def test_standard_output_is_written_where_it_stands(self):
        for verb, beginning in BEGINNINGS.items():
            path = self.folder / "log"
            path.write_bytes(b"before\n")
            with open(path, "ab") as log:
                self.write(verb, "/dev/stdout", stdout=log)
            self.assertTrue(path.read_bytes().startswith(b"before\n" + beginning))

    def test_process_substitution(self):
        for verb, beginning in BEGINNINGS.items():
            copy = self.folder / "copy"
            subprocess.run(["bash", "-c", 'exec "$0" "$@" --output >(cat > "$COPY"; touch "$COPY.done")', PROGRAM, verb,
                            "--folder", self.folder, SAMPLE], env=os.environ | {"COPY": str(copy)}, check=True, timeout=60)
            subprocess.run(["bash", "-c", 'until [ -e "$0.done" ]; do sleep 0.01; done', copy], check=True, timeout=60)
            self.assertTrue(copy.read_bytes().startswith(beginning))
            (self.folder / "copy.done").unlink()

    def test_a_pipe_is_written_and_stays_a_pipe(self):
        for verb, beginning in BEGINNINGS.items():
            pipe = self.folder / f"pipe{ENDINGS[verb]}"
            os.mkfifo(pipe)
            with subprocess.Popen(["cat", pipe], stdout=subprocess.PIPE) as reader:
                self.write(verb, pipe)
                self.assertTrue(reader.communicate(timeout=60)[0].startswith(beginning))
            self.assertTrue(stat.S_ISFIFO(pipe.stat().st_mode))

    def test_a_device_stays_a_device(self):
        for verb in BEGINNINGS:
            self.write(verb, "/dev/null")
            run = self.write(verb, "/dev/full", status=2)
            self.assertIn(b'"/dev/full" cannot be written (No space left on device)', run.stderr)
            for device in ("/dev/null", "/dev/full"):
                self.assertTrue(stat.S_ISCHR(os.stat(device).st_mode))

    def test_the_input_is_not_overwritten(self):
        for verb, ending in ENDINGS.items():
            path = self.folder / f"home{ending}"
            shutil.copy(SAMPLE, path)
            link = self.folder / f"link{ending}"
            link.symlink_to(path)
            for output in (path, link):
                run = self.run_cli(verb, "--folder", self.folder, "--output", output, path, status=2)
                self.assertIn("is the input itself", run.stderr.decode())
            with open(path, "rb") as given:
                run = subprocess.run([PROGRAM, verb, "--folder", self.folder, "--output", path], stdin=given, timeout=60,
                                     capture_output=True)
            self.assertEqual(run.returncode, 2)
            self.assertEqual(path.read_bytes(), SAMPLE.read_bytes())

    def test_the_ending_must_fit(self):
        for verb in BEGINNINGS:
            run = self.run_cli(verb, "--folder", self.folder, "--output", self.folder / "out.txt", SAMPLE, status=2)
            self.assertIn(ENDINGS[verb], run.stderr.decode())
            self.assertFalse((self.folder / "out.txt").exists())
        self.assertTrue(self.write("report", self.folder / "OUT.PDF"))

    def test_a_chart_for_standard_output_may_be_svg(self):
        drawn = self.write("chart", "-", "--format", "svg", stdout=subprocess.PIPE).stdout
        self.assertIn(b"<svg", drawn[:400])


if __name__ == "__main__":
    unittest.main()
