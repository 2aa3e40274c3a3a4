#!/usr/bin/env python3
"""Runs ledgrove-cli over the golden comparisons and compares its results with values calculated independently.

Texts, colours, visibility, messages and data check must be equal. Figures must agree to a relative 2e-6, or to the last
bits of a single-precision value before a subtraction; a money text may then differ by a dollar, but only at a half-dollar
boundary. The last line is "N passed, N failed".
"""
import json
import math
import subprocess
import sys

SINGLE_BITS = 4 * 2.0**-23  # the last few bits of a single-precision value


def magnitude(result):
    """The largest amount that a difference may come from; its last bits give the absolute tolerance of differences."""
    amounts = [0.0]
    for record in ("StdCase", "GMHCase", "Scenario"):
        amounts += [abs(v) for v in result[record].values() if not isinstance(v, bool)]
    return max(amounts)


def same_number(got, wanted, scale):
    return math.isclose(got, wanted, rel_tol=2e-6, abs_tol=scale * SINGLE_BITS)


def money(text):
    return float(text.replace("$", "").replace(",", ""))


def same_text(got, wanted):
    """Equal, or amounts a dollar apart because a figure is on a half dollar."""
    if got == wanted:
        return True
    try:
        return abs(money(got) - money(wanted)) <= max(1.0, 2e-6 * abs(money(wanted)))
    except ValueError:
        return False


def differences(got, wanted):
    if "error" in wanted:
        if "error" not in got:
            return ["should have been refused"]
        keys = [k for k in ("line", "control", "value") if k in wanted["error"]]
        found = [k for k in keys if got["error"].get(k) != wanted["error"][k]]
        if wanted["error"]["message"].startswith("You must") and got["error"]["message"] != wanted["error"]["message"]:
            found.append("message")
        return found
    if "error" in got:
        return [f"refused: {got['error']}"]
    found = [k for k in ("messages", "dataCheck") if got[k] != wanted[k]]
    for name, text in wanted["fields"].items():
        if got["fields"].get(name) != text:
            found.append(f"{name}: {got['fields'].get(name)} instead of {text}")
    scale = magnitude(wanted)
    half_dollars = 0
    for name, label in wanted["labels"].items():
        shown = got["labels"].get(name)
        if shown is None or shown["visible"] != label["visible"]:
            found.append(f"{name}: {shown}")
            continue
        if shown["text"] != label["text"]:
            half_dollars += 1
            if not same_text(shown["text"], label["text"]):
                found.append(f"{name}: {shown['text']} instead of {label['text']}")
        if shown["color"] != label["color"]:
            found.append(f"{name}: {shown['color']} instead of {label['color']}")
    for record in ("Scenario", "StdCase", "GMHCase"):
        for name, value in wanted[record].items():
            mine = got[record].get(name)
            same = mine == value if isinstance(value, bool) or mine is None else same_number(mine, value, scale)
            if not same:
                found.append(f"{record}.{name}: {mine} instead of {value}")
    if half_dollars > 4:
        found.append(f"{half_dollars} texts differ")
    return found


def main():
    program, folder = sys.argv[1:3]
    with open(f"{folder}/cases.jsonl", "rb") as cases:
        run = subprocess.run([program, "compare", "--folder", folder, "--format", "jsonl"], stdin=cases,
                             capture_output=True, timeout=120)
    results = run.stdout.decode("utf-8").splitlines()
    with open(f"{folder}/expected.jsonl", encoding="utf-8") as file:
        expected = file.read().splitlines()
    failed = abs(len(expected) - len(results))
    for number, (got, wanted) in enumerate(zip(results, expected), 1):
        found = differences(json.loads(got), json.loads(wanted))
        if found:
            failed += 1
            print(f"row {number}: " + "; ".join(found))
    if run.returncode != 1:
        failed += 1
        print(f"exit status {run.returncode} instead of 1: some rows are refused")
    print(f"{len(expected) - min(failed, len(expected))} passed, {failed} failed")
    return 1 if failed else 0


sys.exit(main())
