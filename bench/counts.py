"""Instruction counts from callgrind, which do not depend on the machine's load."""
import json
import re
import subprocess
from pathlib import Path

from desktop_start import display, painting
from timing import ROOT, NotMeasured

RECORDED = ROOT / "bench/instructions.json"
WORK = {
    "recalculate": "1,000 recalculations",
    "jsonl": "1,000 JSON lines compared",
    "csv": "1,000 CSV rows compared",
    "report": "the full report composed",
    "start": "start to the first picture",
}


def counted(command, environment, place, *options):
    log = place.folder / "callgrind.log"
    callgrind = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", f"--log-file={log}", *options]
    try:
        subprocess.run([*callgrind, *map(str, command)], env=environment | {"QT_HASH_SEED": "0"}, capture_output=True, timeout=900)
    except FileNotFoundError as missing:
        raise NotMeasured("valgrind is not installed (scripts/packages bench)") from missing
    except subprocess.TimeoutExpired as late:
        raise NotMeasured("the program did not end within 15 minutes under callgrind") from late
    found = re.search(r"Collected : (\d+)", log.read_text())
    if not found or int(found[1]) == 0:
        raise NotMeasured(f"callgrind counted nothing of {Path(command[0]).name}")
    return int(found[1])


def instructions(name, place, folder):
    if name == "start":
        with display() as desktop:
            return counted([place.program("ledgrove"), "--folder", folder], painting(place, desktop), place)
    return counted([place.program("counted_work"), name], place.environment, place, "--toggle-collect=CountedWork")


def recorded():
    return json.loads(RECORDED.read_text()) if RECORDED.exists() else {}


def record(counts):
    RECORDED.write_text(json.dumps(recorded() | counts, indent=2, sort_keys=True) + "\n")
