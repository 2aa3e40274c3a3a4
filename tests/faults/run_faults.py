#!/usr/bin/env python3
"""Stops and fails every system call of every save, lets several copies of the program save at once, and fills a small disk.

usage: run_faults.py FAULT_WRITER LEDGROVE_CLI [SAVE_PROGRAM] [--full] [--rounds N]

Prints its figures; the exit status is 1 if data was lost, a fault was not reported or a program crashed. --full tries every
error at every call instead of one in turn."""
import argparse
import itertools
import os
import re
import shutil
import subprocess
import sys
import tempfile
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from fnmatch import fnmatch
from pathlib import Path

from writers import INI, OLD, TEMPORARY, all_writers, large_writers

ERRORS = ("EIO", "ENOSPC", "EACCES", "EROFS", "EDQUOT")
# These calls concern memory and processes, not files; a failed allocation ends any program.
LEFT_ALONE = {"brk", "mmap", "munmap", "mprotect", "exit_group", "futex", "getrandom", "clock_nanosleep"}
# A sanitizer uses its own pipes to ask the system which memory is readable.
SANITIZERS_OWN = re.compile(r"\d+ +(pipe2|(read|write|close)\(([3-9]|\d{2,})<pipe:)")
STATUSES = (0, 1, 2)  # of the programs; a sanitizer report ends them with another status
PATIENCE = 60
WORKERS = 2


def run(command, **options):
    return subprocess.run([str(word) for word in command], capture_output=True, timeout=PATIENCE, **options)


class Trial:
    """One run of a writer in a separate folder."""

    def __init__(self, writer):
        self.writer = writer
        self.folder = Path(tempfile.mkdtemp(prefix="ledgrove-faults-"))
        writer.prepare(self.folder)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder)

    def run(self, *tracer):
        return self.run_command(self.writer.command, *tracer)

    def run_command(self, command, *tracer):
        return run([*tracer, *(str(word).replace("FOLDER", str(self.folder)) for word in command)])

    def content(self, name):
        path = self.folder / name
        return path.read_bytes() if path.exists() else None

    def faults(self, kind, ended):
        """The faults of the run: lost, silent, crashed, untidy."""
        writer, names = self.writer, {path.name for path in self.folder.iterdir()}
        content = self.content(writer.file)
        first, last = writer.states[0], writer.states[-1]
        rescued = [name for name in writer.rescued if self.content(name) in writer.states and name in names]
        if content is None and first is not None and not rescued:
            yield "lost"
        if content is not None and content not in writer.states:
            yield "lost"
        # A file that is made from another file may be missing only if the other one is unchanged.
        if content is None and first is None and any(self.content(name) != old for name, old in writer.before.items()):
            yield "lost"
        killed = ended.returncode in (-9, 137)
        if killed and kind != "kill" or not killed and ended.returncode not in STATUSES:
            yield "crashed"
        if not killed:
            said = ended.stderr.decode(errors="replace").strip()
            if ended.returncode == 0 and (content != last or writer.says not in (None, ended.stdout)):
                yield "silent"
            if ended.returncode != 0 and not said.endswith("."):
                yield "silent"
            # If only the temporary file holds the settings, the message must name it.
            if ended.returncode != 0 and first is not None and content is None and TEMPORARY not in said:
                yield "silent"
        known = (writer.file, *writer.before, *writer.leftovers)
        if not all(any(fnmatch(name, pattern) for pattern in known) for name in names):
            yield "untidy"
        if not killed and content is not None and kind != "unlink" and names - {writer.file}:
            yield "untidy"


def calls_of(writer):
    """The writer's system calls from the first one that concerns its folder: name, and its count among calls of that name."""
    with Trial(writer) as trial, tempfile.NamedTemporaryFile("r") as log:
        ended = trial.run("strace", "-f", "-y", "-qq", "-o", log.name)
        if ended.returncode != 0 or trial.content(writer.file) != writer.states[-1]:
            sys.exit(f"{writer.name} does not save as expected: {ended.stderr.decode()}\n{trial.content(writer.file)}")
        seen, calls, started = Counter(), [], False
        for line in log:
            match = re.match(r"\d+ +(\w+)\(", line)
            if not match:
                continue
            name = match.group(1)
            seen[name] += 1
            started = started or str(trial.folder) in line and name != "execve"
            if started and not SANITIZERS_OWN.match(line):
                calls.append((name, seen[name]))
        return calls


def plans_of(writer, full):
    """(kind, call, injection) for each run. A call that reads or writes also returns 1 or 0 bytes
    without an error."""
    turn = itertools.cycle(ERRORS)
    for name, number in calls_of(writer):
        if name == "exit_group":
            continue
        yield "kill", name, f"inject={name}:signal=KILL:when={number}"
        if name in LEFT_ALONE:
            continue
        for error in ERRORS if full else (next(turn),):
            yield name, name, f"inject={name}:error={error}:when={number}"
            # A full disk stays full, so every later call of this name fails. Only writes stay possible, for the message.
            if name != "write":
                yield name, name, f"inject={name}:error={error}:when={number}+"
        # A program cannot check the bytes that it wrote to a pipe, and only settings are checked after the write.
        if name == "read" or name == "write" and writer.says is None and writer.file == INI:
            for told in (0, 1):
                yield name, name, f"inject={name}:retval={told}:when={number}"


def one_run(writer, plan):
    kind, call, injection = plan
    with Trial(writer) as trial, tempfile.NamedTemporaryFile("r") as log:
        # Without --seccomp-bpf, which loses the signal.
        ended = trial.run("strace", "-f", "-qq", "-o", log.name, "-e", f"trace={call}", "-e", injection)
        happened = ended.returncode in (-9, 137) if kind == "kill" else "(INJECTED)" in log.read()
        if not happened:
            return [("missed", f"{writer.name}: {injection} did not happen")]
        found = [(fault, f"{writer.name}: {injection}: status {ended.returncode}, "
                         f"{sorted(p.name for p in trial.folder.iterdir())}, {ended.stderr.decode(errors='replace').strip()}")
                 for fault in set(trial.faults(kind, ended))]
        if writer.restore and trial.content(writer.file) is None and not found:
            trial.run_command(writer.restore)
            restored = trial.content(writer.file) in writer.states
            found.append(("restored" if restored else "lost", f"{writer.name}: {injection}, then restoring"))
        return found


def inject_everywhere(writers, full):
    plans = [(writer, plan) for writer in writers for plan in plans_of(writer, full)]
    with ThreadPoolExecutor(WORKERS) as pool:
        results = [fault for faults in pool.map(lambda job: one_run(*job), plans) for fault in faults]
    kills = sum(plan[0] == "kill" for _, plan in plans)
    interrupted = sum(fault == "restored" for fault, _ in results)
    print(f"system calls stopped: {kills}, failed: {len(plans) - kills}, of {len(writers)} writers; "
          f"{interrupted} left the settings only in the temporary file, all restored")
    return [(fault, text) for fault, text in results if fault != "restored"]


def without_locks(writers):
    """On a file system without locks, all saves and reads work."""
    for writer in writers:
        for error in ("ENOLCK", "EOPNOTSUPP", "EBADF"):
            with Trial(writer) as trial:
                ended = trial.run("strace", "-f", "-qq", "-o", "/dev/null", "-e", f"inject=flock:error={error}")
                if ended.returncode != 0 or trial.content(writer.file) != writer.states[-1]:
                    yield "unusable", f"{writer.name} without locks ({error}): {ended.stderr.decode()}"


def at_once(program, rounds):
    """Two copies save while a third reads."""
    with tempfile.TemporaryDirectory(prefix="ledgrove-faults-") as name:
        folder = Path(name)
        (folder / INI).write_bytes(OLD + b"COUNTA=0\r\nCOUNTB=0\r\n")
        def start(*words):
            return subprocess.Popen([program, *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        writers = [start("count", name, key, str(rounds)) for key in ("COUNTA", "COUNTB")]
        running = [*writers, start("watch", name, str(rounds))]
        try:
            outputs = [process.communicate(timeout=PATIENCE * 4) for process in writers]
            if any(process.returncode for process in writers):
                running[2].terminate()  # it would wait forever for both writers
            outputs.append(running[2].communicate(timeout=PATIENCE))
        finally:
            for process in running:
                process.kill()
        for process, (_, said) in zip(running, outputs):
            if process.returncode != 0:
                yield "lost", f"at once: {said.decode(errors='replace')}"
        end = (folder / INI).read_bytes() if (folder / INI).exists() else None
        if end != OLD + b"COUNTA=%d\r\nCOUNTB=%d\r\n" % (rounds, rounds):
            yield "lost", f"at once: the file ends as {end!r}"
        if [path.name for path in folder.iterdir()] != [INI]:
            yield "untidy", "at once: another file is left"
        print(f"two writers and a reader at once: {rounds} saves each, {outputs[2][0].decode().strip() or '?'} reads")


def on_a_full_disk(programs):
    """Runs this script again in a mount namespace, where it may mount a small disk."""
    inside = [sys.executable, __file__, *programs, "--inside"]
    as_root = [] if os.geteuid() == 0 else ["--map-root-user"]
    ended = run(["unshare", "--mount", *as_root, *inside])
    out = ended.stdout.decode()
    if "disk:" not in out:
        print(f"full disk: skipped, no disk can be mounted here ({ended.stderr.decode().strip().splitlines()[-1:]})")
        return []
    print(out.strip().splitlines()[0])
    return [tuple(line.split(" ", 1)) for line in out.strip().splitlines()[1:]]


def inside(programs):
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=64k", "ledgrove-faults", name], check=True)
        faults, tried, refused = [], 0, 0
        try:
            # With less and less free space: from enough for a second file to none.
            for writer, pages in itertools.product(large_writers(*programs), range(17)):
                for path in folder.iterdir():
                    path.unlink()
                trial = Trial.__new__(Trial)
                trial.writer, trial.folder = writer, folder
                writer.prepare(folder)
                ballast = folder / "ballast"
                try:
                    with ballast.open("wb", 0) as file:
                        for _ in range(pages):
                            file.write(bytes(4096))
                except OSError:
                    pass
                ended = trial.run()
                ballast.unlink()
                tried += 1
                refused += ended.returncode != 0
                faults += [(fault, f"{writer.name}, {pages} pages of ballast: {ended.stderr.decode()}")
                           for fault in set(trial.faults("full", ended))]
            (folder / INI).write_bytes(OLD)
            subprocess.run(["mount", "-o", "remount,ro", name], check=True)
            reading = run([programs[0], "read", name])
            saving = run([programs[0], "setting", name])
            if reading.returncode != 0:
                faults.append(("unusable", f"a read-only folder cannot be read: {reading.stderr.decode()}"))
            if saving.returncode == 0 or b"Read-only file system" not in saving.stderr:
                faults.append(("silent", f"a read-only folder takes a save: {saving.stderr.decode()}"))
        finally:
            subprocess.run(["umount", name], check=True)
        print(f"full disk: {tried} saves on 64 KB, {refused} refused; read-only disk: read, save refused")
        for fault, text in faults:
            print(fault, text.replace("\n", " "))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("fault_writer")
    parser.add_argument("ledgrove_cli")
    parser.add_argument("save_program", nargs="?", help="where the windows are built")
    parser.add_argument("--full", action="store_true")
    parser.add_argument("--rounds", type=int, default=200)
    parser.add_argument("--inside", action="store_true", help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    programs = [program for program in (arguments.fault_writer, arguments.ledgrove_cli, arguments.save_program) if program]
    if arguments.inside:
        inside(programs)
        return 0
    # The leak check cannot run in a traced program.
    os.environ["ASAN_OPTIONS"] = os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
    writers = all_writers(*programs)
    found = inject_everywhere(writers, arguments.full)
    found += without_locks(writers)
    found += at_once(arguments.fault_writer, arguments.rounds)
    found += on_a_full_disk(programs)
    for fault, text in found:
        print(f"{fault}: {text}")
    counts = Counter(fault for fault, _ in found)
    print(", ".join(f"{kind}: {counts[kind]}" for kind in ("lost", "silent", "crashed", "untidy", "unusable", "missed")))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
