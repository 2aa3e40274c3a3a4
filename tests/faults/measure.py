#!/usr/bin/env python3
"""The cost of difficult inputs: measure.py PROGRAMS, the folder with ledgrove-cli and ledgrove-report. Prints each with its limit.

The figures need a quiet machine; the tests check the contents of the files."""
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/fuzz"))

from make_corpora import bmp, wmf  # noqa: E402

PROGRAMS = Path(sys.argv[1])
SAMPLE = ROOT / "data/samples/first-home.ledgrove.json"


def cost(command, status=0):
    """Seconds and megabytes of one run."""
    start = time.perf_counter()
    process = subprocess.Popen(list(map(str, command)), stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    said = process.stderr.read()
    _, code, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(code)
    if process.returncode != status:
        sys.exit(f"{command}: {process.returncode}, {said.decode()}")
    return time.perf_counter() - start, usage.ru_maxrss / 1024


def tell(what, figure, limit, reached):
    print(f"{what:<58} {figure:<22} {limit:<22} {'reached' if reached else 'MISSED'}", flush=True)


def settings(folder):
    shipped = (ROOT / "data/Ledgrove.ini").read_bytes()
    houses = b"".join(b"HOMELIST=House %d,200000,2400,206000,1700\r\n" % number for number in range(10_000))
    files = {"a line of 1 MB": b"NOTE=" + b"x" * (1 << 20) + b"\r\n", "10,000 houses": houses,
             "100,000 lines": b"".join(b"NOTE%d=x\r\n" % number for number in range(100_000))}
    for what, more in files.items():
        path = folder / "Ledgrove.ini"
        path.write_bytes(shipped + more)
        change = cost([PROGRAMS / "ledgrove-cli", "settings", "--folder", folder, "set", "BUILDERNAME", "Acme"])
        compare = cost([PROGRAMS / "ledgrove-cli", "compare", "--folder", folder, SAMPLE])
        worst = max(change[0], compare[0])
        tell(f"settings with {what}: save, comparison", f"{change[0]:.2f} s, {compare[0]:.2f} s", "at most 2 s",
             worst <= 2 and path.read_bytes().endswith(more))


def pages(path):
    out = subprocess.run(["pdfinfo", path], capture_output=True, check=True, text=True).stdout
    return int(next(line.split()[1] for line in out.splitlines() if line.startswith("Pages")))


def long_report(folder):
    shipped = (ROOT / "data/Ledgrove.ini").read_bytes().split(b"\r\n")
    lines = [line for line in shipped if not line.startswith(b"FEATURE1")]
    lines.insert(0, b"FEATURE1=" + b"A finished basement with seven rooms " * 53_000)
    (folder / "Ledgrove.ini").write_bytes(b"\r\n".join(lines))
    seconds, memory = cost([PROGRAMS / "ledgrove-cli", "report", "--folder", folder, "--output", folder / "long.pdf", SAMPLE])
    count = pages(folder / "long.pdf")
    tell(f"a report of {count:,} pages", f"{seconds:.1f} s, {memory:.0f} MB", "at most 30 s, 512 MB",
         count >= 1000 and seconds <= 30 and memory <= 512)


def pictures(folder):
    """Each file is below a kilobyte; its cost is the difference to a report without a logo."""
    shutil.copy(ROOT / "data/Ledgrove.ini", folder)
    logo = folder / "logo.bmp"
    report = [PROGRAMS / "ledgrove-cli", "report", "--folder", folder, "--output", folder / "logo.pdf", SAMPLE]
    subprocess.run([PROGRAMS / "ledgrove-cli", "settings", "--folder", folder, "set", "LOGOFILE", logo], check=True)
    plain = [cost([*report, "--logo", "none"]) for _ in range(3)]
    seconds, memory = (min(value) for value in zip(*plain))
    many = b"".join(struct.pack("<IH4h", 7, 0x0418, 30000, 30000, -30000, -30000) for _ in range(60))
    bare = wmf(False)
    bitmap = bmp(2000, 2000, 8, bytes.fromhex("0001"), 1, (0, 0xFF0000))[14:]
    stretch = struct.pack("<IH11h", 14 + len(bitmap) // 2, 0x0F43, 0x20, 0xCC, 0, 2000, 2000, 0, 0, 100, 200, 0, 0) + bitmap

    arc = struct.pack("<IH8h", 11, 0x0817, -1, 2, 0, 0, 0, 0x3EFF, 0, 0)

    def metafile(more, longest):
        records = bare[18:-6] + more + bare[-6:]
        return bare[:6] + struct.pack("<IHI", (18 + len(records)) // 2, 1, longest) + bare[16:18] + records
    costly = {
        "RLE of 2,000 x 2,000": bmp(2000, 2000, 8, bytes.fromhex("0001"), 1, (0, 0xFF0000)),
        "RLE4 of 2,000 x 2,000": bmp(2000, 2000, 4, bytes.fromhex("0001"), 2, (0, 0xFF0000)),
        "RLE of 100,000 x 40": bmp(100000, 40, 8, bytes.fromhex("0001"), 1, (0, 0xFF0000)),
        "RLE of 3,400 x 3,500, refused": bmp(3400, 3500, 8, bytes.fromhex("0001"), 1, (0, 0xFF0000)),
        "WMF": wmf(True),
        "WMF of 60 ellipses": metafile(many, 10),
        "WMF with RLE of 2,000 x 2,000": metafile(stretch, 14 + len(bitmap) // 2),
        "WMF of an arc without an end, stopped": struct.pack("<HHHIHIH", 1, 9, 0x300, 23, 16, 11, 0) + arc + struct.pack("<IH", 3, 0),
    }
    for what, content in costly.items():
        logo.write_bytes(content)
        took, used = cost([*report, "--logo", "user"])
        tell(f"{what} ({len(content)} bytes)", f"{took - seconds:+.2f} s, {used - memory:+.0f} MB", "at most 2 s, 64 MB",
             took - seconds <= 2 and used - memory <= 64)


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        shutil.copytree(ROOT / "data", folder, dirs_exist_ok=True)
        settings(folder)
        long_report(folder)
        pictures(folder)


main()
