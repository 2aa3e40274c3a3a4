#!/usr/bin/env python3
"""Holds the answers of ledgrove-cli insight against its comparisons: property_test.py PROGRAM SETTINGS [--random N].

Random comparisons are asked for every view, and each answer is checked by typing it in: by `compare`, or by arithmetic of
this test's own. Each fault names the comparison that shows it. The last line is "N comparisons, N answered, N faults"."""
import argparse
import json
import random
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True
from properties import chains, limits, samples, tables, words, years  # noqa: E402
from properties.program import Program, Record, single  # noqa: E402

CHECKS = (limits.breakeven, limits.qualify, tables.options, tables.sensitivity, tables.net_map, years.years, years.energy,
          years.tax, years.exit_sale, chains.explain, words.takeaway)
CHUNK = 10


class Case:
    """One comparison with its answers, the settings in force, and the faults found."""

    def __init__(self, fields, full, answer, place, by, rng, dense):
        self.typed, self.fields, self.full, self.answer, self.by, self.rng = fields, full["fields"], full, answer, by, rng
        self.now = Record(full)
        self.folder, self.lines = place
        self.settings = dict(line.split("=", 1) for line in self.lines if "=" in line)
        self.brackets = [int(line[7:].split(",")[0]) + off for line in self.lines if line.startswith("TAXCAT=")
                         and not line.startswith("TAXCAT=-") for off in (-1, 0, 1)]
        self.dense = dense
        self.faults = []

    exact = staticmethod(single)

    def fault(self, where, text):
        self.faults.append((where, text))

    def true(self, where, holds, text):
        if not holds:
            self.fault(where, text)

    def same(self, where, got, wanted):
        if got != wanted:
            self.fault(where, f"{got} instead of {wanted}")

    def near(self, where, got, wanted):
        """The same number, or the same single."""
        if got is None or wanted is None:
            self.same(where, got, wanted)
        elif abs(got - wanted) > 1e-9 * max(1.0, abs(wanted)) and single(got) != wanted:
            self.fault(where, f"{got} instead of {wanted}")

    def close(self, where, got, wanted, slack):
        if got is None or not abs(got - wanted) <= slack:
            self.fault(where, f"{got} instead of {wanted}")


class Run:
    """All comparisons, some at a time, with as few runs of the program as there are rounds of questions."""

    def __init__(self, program, places, rng, dense):
        self.program, self.places, self.rng, self.dense = program, places, rng, dense
        self.answered = self.faults = self.count = self.files = 0

    def chunk(self, inputs):
        place, by = self.rng.choice(self.places), self.rng.choice(samples.BY)
        full = self.program.compare(place[0], inputs)
        answers = self.program.insight(place[0], inputs, by)
        self.count += len(inputs)
        cases = []
        for fields, result, answer in zip(inputs, full, answers):
            if self.unanswered(fields, result, answer):
                continue
            case = Case(fields, result, answer, place, by, random.Random(self.rng.random()), self.dense)
            case.course = years.Course(case, years.setting(case, "GROWTH_UTILITIES") / 100)
            cases.append(case)
        self.answered += len(cases)
        self.rounds([(case, check(case)) for case in cases for check in CHECKS])
        for case in cases:
            for where, text in case.faults:
                self.report(where, text, case.typed, f"settings {place[0].name}, by {by}")

    def unanswered(self, fields, result, answer):
        """Whether the comparison has no answers; a refusal and a comparison without insight say so."""
        if "error" in result or "error" in answer:
            if ("error" in result) != ("error" in answer):
                self.report("error", f"insight {answer}, compare {result}", fields, "")
            return True
        record, texts = Record(result), result["fields"]
        prices = {home: float(texts[name].replace("$", "").replace(",", "") or 0)
                  for home, name in (("std", "ecStdHome"), ("gmh", "ecGMHHome"))}
        without = any(price <= 0 or record.faulty(home, price) for home, price in prices.items())
        if without != ("missing" in answer):
            self.report("missing", f"{str(answer)[:200]}, prices {prices}", fields, "")
        return without or "missing" in answer

    def rounds(self, running):
        """Asks what all checks want to know next, until none asks."""
        replies = [None] * len(running)
        while running:
            asked, left = {}, []
            for (case, check), reply in zip(running, replies):
                try:
                    question = check.send(reply)
                except StopIteration:
                    continue
                inputs, changes = question if isinstance(question, tuple) else (question, None)
                folder = self.changed(case, changes) if changes else case.folder
                entry = asked.setdefault(folder, [])
                left.append((case, check, folder, len(entry), len(inputs)))
                entry.extend(inputs)
            results = {folder: self.program.records(folder, inputs) for folder, inputs in asked.items()}
            running = [(case, check) for case, check, *_ in left]
            replies = [results[folder][first:first + count] for _, _, folder, first, count in left]

    def changed(self, case, changes):
        """The folder of the case's settings with other values."""
        name = "_".join(f"{key}={value}" for key, value in changes.items())
        folder = case.folder.parent / f"{case.folder.name}_{name}"
        if not folder.exists():
            samples.write_folder(folder, samples.rewritten(case.lines, changes))
        return folder

    def report(self, where, text, fields, settings):
        self.faults += 1
        print(f"{where}: {text}\n    {settings}: {json.dumps(fields)}", flush=True)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("settings", type=Path, help="the folder of the settings file")
    parser.add_argument("--random", type=int, default=30)
    parser.add_argument("--nasty", type=int, default=30)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--dense", type=float, default=0.0, help="the part of the answers of which thousands of steps are tried")
    asked = parser.parse_args()
    rng = random.Random(asked.seed)
    with tempfile.TemporaryDirectory() as folder:
        places = samples.write_settings(asked.settings, Path(folder))
        run = Run(Program(asked.program), places, rng, asked.dense)
        for make, count in ((samples.ordinary, asked.random), (samples.nasty, asked.nasty)):
            for first in range(0, count, CHUNK):
                run.chunk([make(rng) for _ in range(min(CHUNK, count - first))])
    print(f"{run.count} comparisons, {run.answered} answered, {run.faults} faults")
    sys.exit(run.faults != 0)


if __name__ == "__main__":
    main()
