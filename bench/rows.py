"""The rows of the table: what each one measures, its floor and its limit."""
import json
import os
import shutil
import subprocess
import time
from dataclasses import dataclass
from functools import cached_property

import counts
import desktop_start
from prices import PriceLists
from timing import ROOT, NotMeasured, median, peak_memory

SAMPLE = ROOT / "data/samples/first-home.ledgrove.json"
MIB = 1024  # in KiB


@dataclass
class Finding:
    figure: str
    floor: str
    ratio: str
    limit: str
    reached: bool

    @property
    def verdict(self):
        return "reached" if self.reached else f"MISSED: {self.ratio if self.ratio != '-' else self.figure}"


def at_most(figure, floor, limit, unit):
    """A figure as a multiple of its floor."""
    ratio = figure / floor
    return Finding(f"{figure:,.1f} {unit}", f"{floor:,.1f} {unit}", f"{ratio:.2f} x", f"<= {limit} x", ratio <= limit)


def rate_at_least(figure, floor, limit, floor_name=""):
    """Comparisons per second as a multiple of the floor's."""
    ratio = figure / floor
    return Finding(f"{figure:,.0f}/s", f"{floor_name}{floor:,.0f}/s", f"{ratio:.2f} x", f">= {limit} x", ratio >= limit)


VIEWS = "takeaway,breakeven,options,qualify,sensitivity,map,years,energy,tax,exit,explain"


class Measurements:
    """One run. It measures once what several rows share."""

    def __init__(self, place, lines, hour):
        self.place = place
        self.hour = hour
        self.prices = PriceLists(place, lines)
        self.counted = {}

    @cached_property
    def data(self):
        """A separate program folder for this run."""
        return shutil.copytree(ROOT / "data", self.place.folder / "data")

    # The window

    @cached_property
    def starts(self):
        return desktop_start.starts(self.place, self.data, 25)

    def start(self):
        (program, _), (floor, _) = self.starts
        return at_most(program, floor, 1.7, "ms")

    def start_memory(self):
        (_, program), (_, floor) = self.starts
        return at_most(program / MIB, floor / MIB, 1.4, "MiB")

    def start_libraries(self):
        loaded = desktop_start.loaded_at_start(self.place, self.data)
        return Finding(", ".join(loaded) or "none", "-", "-", "none", not loaded)

    def window(self):
        tabs = self.place.figures("window_bench")
        half, most, worst = (max(tab[column] for tab in tabs) for column in (1, 2, 3))
        return Finding(f"median {half:.2f}, 99th {most:.2f}, worst {worst:.2f} ms", "-", "-", "<= 4 ms, worst <= 16 ms",
                       half <= 4 and worst <= 16)

    def loop(self):
        arguments = ("seconds", 3600) if self.hour else ("edits", 36_000)
        (edits, warm, _, end, resident), = self.place.figures("loop_bench", *arguments, patience=7200)
        grown = (end - warm) / 1024
        return Finding(f"{grown:+.1f} KiB after {edits:,.0f} edits, RSS {resident / MIB:.0f} MiB",
                       f"{warm / 1024:,.0f} KiB warm", "-", "<= +64 KiB", grown <= 64)

    # The engine

    @cached_property
    def engine(self):
        """Median nanoseconds by the benchmark's name."""
        output = self.place.say(self.place.program("recalculate_bench"), "--benchmark_format=json", "--benchmark_repetitions=5",
                                "--benchmark_report_aggregates_only=true")
        return {part["run_name"]: part["real_time"] for part in json.loads(output)["benchmarks"] if part["aggregate_name"] == "median"}

    def evaluate(self):
        return at_most(self.engine["Evaluation"], self.engine["PlainLoop"], 3, "ns")

    def recalculate(self):
        # tests/engine/AllocationTest.cpp asserts that it allocates no memory after the warm-up.
        return at_most(self.engine["Recalculation"], self.engine["PlainLoop"], 15, "ns")

    # Price lists

    def rates(self, *commands):
        """The best of three rounds, in comparisons per second."""
        return [self.prices.lines / min(times) for times in self.place.by_turns(commands, 3, warm_ups=0)]

    def one_core(self):
        return self.prices.command("jsonl", "--jobs", "1", self.prices.json())

    def jsonl(self):
        plain = [self.place.program("plain_json"), self.prices.json()]
        own, floor = self.rates(self.one_core(), plain)
        return rate_at_least(own, floor, 0.8)

    def chosen(self):
        names = ",".join(f"{home}Case.{figure}" for home in ("Std", "GMH") for figure in ("PITI", "LoanAmount", "MaxLoan", "MaxPayment"))
        own, floor = self.rates([*self.one_core(), "--only", names + ",Scenario.NetMonthlyCashFlow,lblStdQual"], self.one_core())
        return rate_at_least(own, floor, 2.5, "whole ")

    def jsonl_size(self):
        """The floor is valid only if it writes as much."""
        few = self.prices.json(20_000)
        own = len(self.place.say(*self.prices.command("jsonl", "--jobs", "1", few)))
        plain = len(self.place.say(self.place.program("plain_json"), few))
        ratio = own / plain
        return Finding(f"{own / 20_000:,.0f} bytes per line", f"{plain / 20_000:,.0f} bytes per line", f"{ratio:.2f} x", "0.95 to 1.05 x",
                       0.95 <= ratio <= 1.05)

    @cached_property
    def checked(self):
        return self.prices.check(self.one_core())

    def jsonl_memory(self):
        _, peak = self.checked
        return Finding(f"{peak / MIB:.1f} MiB", "-", "-", "<= 32 MiB", peak <= 32 * MIB)

    def _order(self, first_wrong):
        count = f"{self.prices.lines:,} lines"
        return Finding(f"wrong from line {first_wrong:,}" if first_wrong else f"kept over {count}", "-", "-", "kept", not first_wrong)

    def jsonl_order(self):
        return self._order(self.checked[0])

    def jobs(self):
        two = self.prices.command("jsonl", "--jobs", "2", self.prices.json())
        own, floor = self.rates(two, self.one_core())
        return rate_at_least(own, floor, 1.8, "one core ")

    def jobs_order(self):
        return self._order(self.prices.check(self.prices.command("jsonl", "--jobs", "2", self.prices.json()))[0])

    def csv(self):
        own, floor = self.rates(self.prices.command("csv", "--jobs", "1", self.prices.csv()), self.one_core())
        return rate_at_least(own, floor, 1.5, "JSON ")

    # Whole processes

    def milliseconds(self, rounds, *commands):
        return [median(times) * 1000 for times in self.place.by_turns(commands, rounds)]

    def one(self):
        own, floor = self.milliseconds(100, [self.place.program("ledgrove-cli"), "compare", "--folder", ROOT / "data", SAMPLE],
                                       [self.place.program("one_line")])
        limit = 1.5 * floor + 2
        return Finding(f"{own:.2f} ms", f"{floor:.2f} ms", f"{own / floor:.2f} x", f"<= 1.5 x + 2 ms = {limit:.2f} ms", own <= limit)

    def pdf(self):
        report = [self.place.program("ledgrove-cli"), "report", "--folder", ROOT / "data", "--output", self.place.folder / "report.pdf"]
        own, floor = self.milliseconds(20, [*report, SAMPLE], [self.place.program("plain_pdf"), self.place.folder / "plain.pdf"])
        return at_most(own, floor, 1.5, "ms")

    def brief(self):
        brief = [self.place.program("ledgrove-cli"), "brief", "--folder", ROOT / "data", "--output", self.place.folder / "brief.pdf"]
        own, floor = self.milliseconds(20, [*brief, SAMPLE], [self.place.program("plain_pdf"), self.place.folder / "plain.pdf"])
        return at_most(own, floor, 2, "ms")

    # Reports and dialogs

    def _milliseconds_at_most(self, program, limit):
        (figure,), = self.place.figures(program)
        return Finding(f"{figure:.2f} ms", "-", "-", f"<= {limit} ms", figure <= limit)

    def composing(self):
        return self._milliseconds_at_most("report_bench", 1)

    def preview(self):
        return self._milliseconds_at_most("preview_bench", 100)

    def _houses(self, number):
        """Medians of three dialogs: opening, saving."""
        return tuple(map(median, zip(*(self.place.figures("houses_bench", number)[0] for _ in range(3)))))

    @cached_property
    def houses(self):
        return self._houses(10_000)

    def _house(self, figure):
        return Finding(f"{figure:.1f} ms", "-", "-", "<= 100 ms", figure <= 100)

    def houses_open(self):
        return self._house(self.houses[0])

    def houses_save(self):
        return self._house(self.houses[1])

    def houses_linear(self):
        ratios = [many / few for many, few in zip(self._houses(100_000), self.houses)]
        return Finding(f"opened {ratios[0]:.1f} x, saved {ratios[1]:.1f} x", "10,000 houses", f"{max(ratios):.1f} x", "<= 12 x",
                       max(ratios) <= 12)

    # Insight

    @cached_property
    def answers(self):
        """Medians in milliseconds: the usual views, the map, the years, the energy prices."""
        return self.place.figures("insight_bench")[0]

    def _answered(self, figure, limit):
        return Finding(f"{figure:.2f} ms", "-", "-", f"<= {limit} ms", figure <= limit)

    def insight_views(self):
        return self._answered(self.answers[0], 3)

    def insight_map(self):
        return self._answered(self.answers[1], 2)

    def insight_years(self):
        return self._answered(self.answers[2], 0.2)

    def insight_energy(self):
        return self._answered(self.answers[3], 2)

    def insight_window(self):
        questions = self.place.figures("insight_window_bench")
        half, most, worst = (max(question[column] for question in questions) for column in (1, 2, 3))
        return Finding(f"median {half:.2f}, 99th {most:.2f}, worst {worst:.2f} ms", "-", "-", "worst <= 16 ms", worst <= 16)

    @cached_property
    def ranges(self):
        """Milliseconds: the range with limits, without them, the diff."""
        return self.place.figures("range_bench")[0]

    def range_limits(self):
        return self._answered(self.ranges[0], 4000)

    def range_figures(self):
        return self._answered(self.ranges[1], 300)

    def diff(self):
        return self._answered(self.ranges[2], 10)

    def insight_jsonl(self):
        """Five times as many lines must not need more memory."""
        few, many = 4000, 20_000
        (_, small), (seconds, large) = (self.answer_lines(lines) for lines in (few, many))
        rate, grown = many / seconds, (large - small) / MIB
        return Finding(f"{rate:,.0f}/s, {large / MIB:.1f} MiB, {grown:+.1f} MiB over {few:,} lines", "-", "-", ">= 400/s, <= +1 MiB",
                       rate >= 400 and grown <= 1)

    def insight_all(self):
        lines = 4000
        seconds, _ = self.answer_lines(lines, "--view", VIEWS)
        return Finding(f"{lines / seconds:,.0f}/s", "-", "-", ">= 250/s", lines / seconds >= 250)

    def answer_lines(self, lines, *options):
        """Seconds and peak KiB of the answers to a list of this length on one core."""
        command = ["taskset", "-c", str(min(os.sched_getaffinity(0))), self.place.program("ledgrove-cli"), "insight", "--folder",
                   ROOT / "data", "--format", "jsonl", *options, self.prices.json(lines)]
        peak = 0
        start = time.perf_counter()
        with subprocess.Popen(list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, bufsize=1 << 16) as process:
            count = 0
            for count, _ in enumerate(process.stdout, 1):
                if count % 50 == 0:
                    peak = max(peak, peak_memory(process.pid))
            elapsed = time.perf_counter() - start
        if count != lines:
            raise NotMeasured(f"insight answered {count:,} of {lines:,} lines")
        return elapsed, peak

    # Instructions

    def count(self, name):
        count = self.counted[name] = counts.instructions(name, self.place, self.data)
        before = counts.recorded().get(name)
        if before is None:
            raise NotMeasured("there is no recorded count; bench/run --record writes it")
        ratio = count / before
        return Finding(f"{count / 1e6:,.1f} million", f"{before / 1e6:,.1f} million", f"{ratio:.3f} x", "<= 1.05 x", ratio <= 1.05)


# The row's name for --only, its description, and the method that measures it.
ROWS = [
    ("start", "start to painted window / an empty window", Measurements.start),
    ("start-memory", "peak memory at start / an empty window", Measurements.start_memory),
    ("start-libraries", "libraries of charts, help, printing loaded at start", Measurements.start_libraries),
    ("window", "Enter to labels and chart repainted, 1,000 times", Measurements.window),
    ("evaluate", "one evaluation / a plain loop in double", Measurements.evaluate),
    ("recalculate", "one recalculation / a plain loop in double", Measurements.recalculate),
    ("jsonl", "compare --format jsonl, one core / a plain program", Measurements.jsonl),
    ("chosen", "jsonl with ten names / whole results, one core", Measurements.chosen),
    ("jsonl-size", "jsonl: size of the output / of the plain program's", Measurements.jsonl_size),
    ("jsonl-memory", "jsonl: peak memory", Measurements.jsonl_memory),
    ("jsonl-order", "jsonl: output in the order of the input", Measurements.jsonl_order),
    ("jobs", "jsonl with --jobs 2 / one core", Measurements.jobs),
    ("jobs-order", "jobs: output in the order of the input", Measurements.jobs_order),
    ("csv", "compare --format csv / --format jsonl, one core", Measurements.csv),
    ("one", "one comparison, whole process / one line printed", Measurements.one),
    ("pdf", "report as PDF, whole process / three plain pages", Measurements.pdf),
    ("brief", "buyer's brief as PDF, whole process / three plain pages", Measurements.brief),
    ("composing", "composing the report", Measurements.composing),
    ("preview", "preview of page 1", Measurements.preview),
    ("houses-open", "10,000 saved houses, dialog opened and painted", Measurements.houses_open),
    ("houses-save", "10,000 saved houses, saved", Measurements.houses_save),
    ("houses-linear", "100,000 saved houses / 10,000", Measurements.houses_linear),
    ("insight-views", "insight: all views but map and explain", Measurements.insight_views),
    ("insight-map", "insight: map", Measurements.insight_map),
    ("insight-years", "insight: years", Measurements.insight_years),
    ("insight-energy", "insight: energy", Measurements.insight_energy),
    ("insight-window", "insight: Enter to the answer repainted, 300 times each", Measurements.insight_window),
    ("insight-jsonl", "insight --format jsonl, one core", Measurements.insight_jsonl),
    ("insight-all", "insight --format jsonl with every view, one core", Measurements.insight_all),
    ("range-limits", "10,000 saved houses with 7 loans and their limits", Measurements.range_limits),
    ("range", "the same without limits", Measurements.range_figures),
    ("diff", "diff of comparisons that differ in every input", Measurements.diff),
    ("loop", "ten hours of edits: heap in use", Measurements.loop),
]
ROWS += [(f"count-{name}", f"instructions: {what} / recorded", lambda run, name=name: run.count(name))
         for name, what in counts.WORK.items()]
