#!/usr/bin/env python3
"""Runs ledgrove-cli insight over comparisons whose answers were worked out independently: vectors_test.py PROGRAM GOLDEN.

Texts, states and flags must be equal, numbers agree to 1e-6. The last line is "N passed, N failed"."""
import json
import math
import subprocess
import sys
from pathlib import Path

PROGRAM, GOLDEN = sys.argv[1], Path(sys.argv[2])
VIEWS = ("breakeven", "options", "qualify", "sensitivity", "years", "energy", "tax", "exit")
OWN = {"sentence"}  # words of the program's own, which the vectors do not have


def faults(got, wanted, where):
    """The places where an answer is not as wanted."""
    if isinstance(wanted, dict) and isinstance(got, dict):
        if got.keys() - OWN != wanted.keys():
            yield f"{where}: the keys are {sorted(got)} instead of {sorted(wanted)}"
            return
        for key, value in wanted.items():
            yield from faults(got[key], value, f"{where}.{key}")
    elif isinstance(wanted, list) and isinstance(got, list) and len(got) == len(wanted):
        for number, (one, other) in enumerate(zip(got, wanted)):
            yield from faults(one, other, f"{where}[{number}]")
    elif isinstance(wanted, (int, float)) and not isinstance(wanted, bool) and type(got) in (int, float):
        if not math.isclose(got, wanted, rel_tol=1e-6, abs_tol=1e-6):
            yield f"{where}: {got} instead of {wanted}"
    elif got != wanted:
        yield f"{where}: {got} instead of {wanted}"


def named(view, got, wanted):
    """The part of the answer that the vectors hold: of the energy view a member, of the years and the sale single years."""
    if view == "energy":
        return {key: got[key] for key in wanted}
    if "years" in wanted:
        numbers = {row["year"] for row in wanted["years"]}
        return got | {"years": [row for row in got["years"] if row["year"] in numbers]}
    return got


def main():
    vectors = [json.loads(line) for line in (GOLDEN / "insight/vectors.jsonl").read_text().splitlines()]
    lines = "".join(json.dumps(vector["input"]) + "\n" for vector in vectors)
    run = subprocess.run([PROGRAM, "insight", "--folder", GOLDEN / "compare", "--format", "jsonl", "--view", ",".join(VIEWS)],
                         input=lines, capture_output=True, text=True, check=True)
    answers = [json.loads(line) for line in run.stdout.splitlines()]
    assert len(answers) == len(vectors)
    passed = failed = 0
    for number, (got, vector) in enumerate(zip(answers, vectors), 1):
        for view in VIEWS:
            if view not in vector["answer"]:
                continue
            wanted = vector["answer"][view]
            found = list(faults(named(view, got[view], wanted), wanted, f"line {number}: {view}"))
            passed, failed = passed + (not found), failed + bool(found)
            print("".join(fault + "\n" for fault in found), end="")
    print(f"{passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
