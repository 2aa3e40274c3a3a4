"""The start of a program on a separate display: the time to its first picture, and the libraries it has loaded by then."""
import contextlib
import subprocess
import sys
import time
from pathlib import Path

from timing import ROOT, NotMeasured, median

sys.path.insert(0, str(ROOT / "tests/e2e"))

LATER = ("modules/", "libQt6Charts", "libQt6PrintSupport", "libcups", "libwmf", "LEDGROVE.HLP")  # may be loaded only on first use
PATIENCE = 120  # seconds


@contextlib.contextmanager
def display():
    """The screen and window manager of the end-to-end tests, without a screen reader."""
    from desktop import Desktop, Gone
    try:
        desktop = Desktop()
    except Gone as missing:
        raise NotMeasured(f"{missing} did not start") from missing
    try:
        desktop.environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
        yield desktop
    finally:
        desktop.close()


def painting(place, desktop):
    """The environment in which a program reports its first picture and ends."""
    return desktop.environment | {"LD_PRELOAD": str(place.programs.parent / "bench/first-paint.so"), "START_NS": str(time.monotonic_ns())}


def first_paint(place, desktop, command):
    """Milliseconds and peak KiB."""
    try:
        run = subprocess.run(command, env=painting(place, desktop), capture_output=True, text=True, timeout=PATIENCE)
        milliseconds, peak = run.stdout.split()
    except (subprocess.TimeoutExpired, ValueError) as fault:
        raise NotMeasured(f"{Path(command[0]).name} painted nothing") from fault
    return float(milliseconds), int(peak)


def starts(place, folder, rounds):
    """Medians of (milliseconds, KiB) of the program and of the empty window, started in turn."""
    commands = ([place.program("ledgrove"), "--folder", str(folder)], [place.program("empty_window")])
    with display() as desktop:
        taken = [[] for _ in commands]
        for turn in range(2 + rounds):
            for command, figures in zip(commands, taken):
                figure = first_paint(place, desktop, command)
                if turn >= 2:
                    figures.append(figure)
    return [tuple(map(median, zip(*figures))) for figures in taken]


def loaded_at_start(place, folder):
    """The files of LATER that the program has mapped once its window has appeared, before any input."""
    with display() as desktop:
        process = desktop.start(place.program("ledgrove"), "--folder", folder)
        deadline = time.monotonic() + PATIENCE
        search = ["xdotool", "search", "--onlyvisible", "--pid", str(process.pid)]
        while subprocess.run(search, env=desktop.environment, capture_output=True).returncode:
            if time.monotonic() > deadline or process.poll() is not None:
                raise NotMeasured("the main window did not appear")
            time.sleep(0.1)
        time.sleep(2)  # lets the program finish its work after the first paint
        maps = Path(f"/proc/{process.pid}/maps").read_text().replace(str(place.programs), "")
    files = {line.split(maxsplit=5)[5] for line in maps.splitlines() if len(line.split(maxsplit=5)) == 6}
    return sorted({Path(file).name for file in files for name in LATER if Path(file).name.startswith(name) or file.startswith("/" + name)})
