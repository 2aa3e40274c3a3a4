#!/usr/bin/env python3
"""Rules for every source file: clang-format's layout, a limited length, and only includes that its layer allows."""
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FLOORS = ("base", "engine", "settings", "ui", "reports", "app")
LONGEST = 400


def sources():
    folders = [ROOT / name for name in (*FLOORS, "tests", "bench")]
    return sorted(path for folder in folders if folder.is_dir() for path in folder.rglob("*")
                  if path.suffix in (".h", ".cpp"))


def format_faults(paths):
    run = subprocess.run(["clang-format", "--dry-run", "-Werror", *paths], capture_output=True, text=True)
    return sorted({line.split(":")[0] + ": clang-format -i would change it" for line in run.stderr.splitlines()
                   if "code should be clang-formatted" in line})


def include_faults(path):
    """A core does not include Qt, and no file includes a higher layer."""
    place = path.relative_to(ROOT).parts
    if place[0] not in FLOORS:
        return
    may_use_toolkit = "windows" in place or place[:2] in (("app", "ledgrove"), ("app", "report"), ("app", "chart"))
    higher = FLOORS[FLOORS.index(place[0]) + 1:]
    for include in re.findall(r'^#include ["<]([^">]+)', path.read_text(), re.M):
        if not may_use_toolkit and re.match(r"Q[A-Z]|Qt", include):
            yield f"{path}: includes {include}; only windows/ may"
        if include.split("/")[0] in higher:
            yield f"{path}: includes {include} from a higher layer"


def main():
    paths = sources()
    faults = format_faults(paths)
    for path in paths:
        faults += include_faults(path)
        length = path.read_text().count("\n")
        if length > LONGEST:
            faults.append(f"{path}: {length} lines; split the file")
    print("\n".join(faults))
    print(f"{len(paths)} files, {len(faults)} faults")
    return 1 if faults or not paths else 0


sys.exit(main())
