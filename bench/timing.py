"""Runs processes and measures their time, memory and output."""
import os
import signal
import subprocess
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PATIENCE = 600  # seconds, the limit for a single process


class NotMeasured(Exception):
    """Explains why there is no figure."""


def median(values):
    return sorted(values)[len(values) // 2]


class Place:
    """The programs' folder, and a temporary folder for this run."""

    def __init__(self, build):
        self.programs = Path(build).resolve() / "bin"
        self._folder = tempfile.TemporaryDirectory(prefix="ledgrove-bench-")
        self.folder = Path(self._folder.name)
        (self.folder / "home").mkdir(mode=0o700)
        kept = {key: value for key, value in os.environ.items() if not key.startswith(("XDG_", "QT_", "LD_", "DBUS_", "DISPLAY"))}
        self.environment = kept | {"HOME": str(self.folder / "home"), "QT_QPA_PLATFORM": "offscreen", "LANG": "C.UTF-8",
                                   "XDG_RUNTIME_DIR": str(self.folder / "home")}

    def program(self, name):
        return str(self.programs / name)

    def close(self):
        self._folder.cleanup()

    def say(self, *command, patience=PATIENCE):
        """The standard output of a program."""
        try:
            run = subprocess.run(list(map(str, command)), env=self.environment, capture_output=True, text=True, timeout=patience)
        except subprocess.TimeoutExpired as late:
            raise NotMeasured(f"{Path(command[0]).name} did not end in {patience} seconds") from late
        if run.returncode:
            raise NotMeasured(f"{Path(command[0]).name} ended with status {run.returncode}: {run.stderr.strip()[-200:]}")
        return run.stdout

    def figures(self, name, *arguments, **options):
        """The numbers that a benchmark program prints, line by line."""
        return [tuple(map(float, line.split())) for line in self.say(self.program(name), *arguments, **options).splitlines()]

    def seconds(self, command):
        """From the start of the process to its end; its output is discarded."""
        command = list(map(str, command))
        nowhere = [(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0)]
        start = time.perf_counter()
        pid = os.posix_spawn(command[0], command, self.environment, file_actions=nowhere)
        try:
            _, status = os.waitpid(pid, 0)
        except BaseException:
            os.kill(pid, signal.SIGKILL)
            os.waitpid(pid, 0)
            raise
        elapsed = time.perf_counter() - start
        if status:
            raise NotMeasured(f"{Path(command[0]).name} ended with status {os.waitstatus_to_exitcode(status)}")
        return elapsed

    def by_turns(self, commands, rounds, warm_ups=2):
        """The seconds of each command in each round. Every round runs all commands in turn, so that other load on the machine
        slows all of them."""
        taken = [[] for _ in commands]
        for turn in range(warm_ups + rounds):
            for command, times in zip(commands, taken):
                elapsed = self.seconds(command)
                if turn >= warm_ups:
                    times.append(elapsed)
        return taken


def peak_memory(pid):
    """Peak KiB so far. The system's usage record of a finished process cannot replace this: it includes the peak of the parent
    process."""
    for line in Path(f"/proc/{pid}/status").read_text().splitlines():
        if line.startswith("VmHWM:"):
            return int(line.split()[1])
    return 0
