"""A separate print server for tests: a CUPS scheduler that listens only on the loopback interface and prints to files. It
keeps the document of each job."""
import os
import shutil
import signal
import socket
import subprocess
import tempfile
from pathlib import Path

from desktop import wait_for

CUPSD = """Listen 127.0.0.1:{port}
Listen {folder}/sock
LogLevel warn
PageLogFormat %p %j %T %P %C
Browsing Off
WebInterface No
PreserveJobFiles Yes
PreserveJobHistory Yes
DefaultAuthType None
<Location />
  Order allow,deny
  Allow localhost
</Location>
<Location /admin>
  Order allow,deny
  Allow localhost
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
"""

CUPS_FILES = """ServerRoot {folder}
StateDir {folder}
CacheDir {folder}/cache
RequestRoot {folder}/spool
TempDir {folder}/spool/tmp
AccessLog {folder}/access_log
ErrorLog {folder}/error_log
PageLog {folder}/page_log
FileDevice Yes
"""


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class PrintServer:
    """Starts the scheduler and ends it by process id."""

    def __init__(self):
        self.folder = Path(tempfile.mkdtemp())
        # When root runs the scheduler, its filters run as another user.
        self.folder.chmod(0o755)
        for name in ("cache", "spool", "spool/tmp", "out"):
            (self.folder / name).mkdir()
            (self.folder / name).chmod(0o1777)
        self.address = f"127.0.0.1:{free_port()}"
        values = {"folder": self.folder, "port": self.address.split(":")[1]}
        (self.folder / "cupsd.conf").write_text(CUPSD.format(**values))
        (self.folder / "cups-files.conf").write_text(CUPS_FILES.format(**values))
        self.environment = os.environ | {"CUPS_SERVER": self.address, "PATH": os.environ["PATH"] + ":/usr/sbin"}
        self.process = subprocess.Popen(
            ["cupsd", "-f", "-c", self.folder / "cupsd.conf", "-s", self.folder / "cups-files.conf"],
            env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            wait_for(lambda: self.run("lpstat", "-r").strip() == "scheduler is running", "the print server")
        except BaseException:
            self.close()
            raise

    def run(self, *command):
        done = subprocess.run([str(part) for part in command], env=self.environment, capture_output=True, text=True,
                              timeout=60)
        if done.returncode:
            raise AssertionError(f"{command}: {done.stderr}{done.stdout}")
        return done.stdout

    def add_printer(self, name, model, *options):
        self.run("lpadmin", "-p", name, "-E", "-v", f"file:{self.folder}/out/{name}", "-m", model, *options)

    def remove_printer(self, name):
        self.run("lpadmin", "-x", name)

    def pause(self, name, *reason):
        self.run("cupsdisable", *reason, name)

    def resume(self, name):
        self.run("cupsenable", name)

    def refuse(self, name, reason):
        self.run("cupsreject", "-r", reason, name)

    def accept(self, name):
        self.run("cupsaccept", name)

    def completed(self):
        """Printer and number of every printed job, the oldest first."""
        jobs = [line.split()[0].rsplit("-", 1) for line in self.run("lpstat", "-W", "completed", "-o").splitlines()]
        return sorted(((printer, int(number)) for printer, number in jobs), key=lambda job: job[1])

    def wait_job(self, count):
        wait_for(lambda: len(self.completed()) >= count, f"job {count} printed")
        return self.completed()[-1]

    def attribute(self, job, name):
        """An attribute of the job, from the server."""
        test = self.folder / "attributes.test"
        test.write_text('{\nOPERATION Get-Job-Attributes\nGROUP operation-attributes-tag\n'
                        'ATTR charset attributes-charset utf-8\nATTR language attributes-natural-language en\n'
                        f'ATTR uri job-uri ipp://{self.address}/jobs/{job}\n'
                        'ATTR name requesting-user-name tests\nSTATUS successful-ok\nDISPLAY ' + name + '\n}\n')
        shown = self.run("ipptool", "-tv", f"ipp://{self.address}/jobs/{job}", test)
        for line in shown.splitlines():
            if line.strip().startswith(name + " ("):
                return line.split("=", 1)[1].strip()
        raise AssertionError(f"job {job} has no {name}: {shown}")

    def document(self, job):
        return self.folder / "spool" / f"d{job:05d}-001"

    def output(self, printer):
        """The file into which the printer prints: the document of its last job with all copies."""
        return self.folder / "out" / printer

    def printed_pages(self, job):
        """The server's page log lines for the job, which count pages times copies."""
        log = (self.folder / "page_log").read_text()
        return [line for line in log.splitlines() if line.split()[1] == str(job)]

    def stop(self):
        self.process.send_signal(signal.SIGTERM)
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()

    def close(self):
        self.stop()
        shutil.rmtree(self.folder, ignore_errors=True)
