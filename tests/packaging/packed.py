"""What the tests of packaging share: the current build, installed into a temporary folder."""
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

BUILD, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
ID = "org.ledgrove.Ledgrove"
TYPE = "application/vnd.ledgrove.comparison+json"
PROGRAMS = {"ledgrove", "ledgrove-cli", "ledgrove-report", "ledgrove-chart", "ledgrove-metafile"}
ICONS = {f"share/icons/hicolor/{size}x{size}/apps/{ID}.png" for size in (16, 24, 32, 48, 64, 128, 256)}
MODULES = {"modules/ledgrove-charts.so", "modules/ledgrove-insight.so", "modules/ledgrove-printers.so"}
PAGES = {page for name in ("ledgrove", "ledgrove-cli") for page in (
    f"share/man/man1/{name}.1", f"share/bash-completion/completions/{name}", f"share/zsh/site-functions/_{name}",
    f"share/fish/vendor_completions.d/{name}.fish")}
CONTENTS = PROGRAMS | MODULES | ICONS | PAGES | {
    "Ledgrove.ini", "LEDGROVE.HLP", "result.schema.json", "GenericHouseLogo.bmp", "LedgroveEmblem.png",
    "samples/first-home.ledgrove.json", "LICENSE", "README.md", "install.sh", "docs/guide.md", "docs/cli.md",
    "docs/defaults.md", "share/files", f"share/icons/hicolor/scalable/apps/{ID}.svg",
    f"share/applications/{ID}.desktop", f"share/mime/packages/{ID}.xml", f"share/metainfo/{ID}.metainfo.xml"}
PATIENCE = 15  # seconds; what has not happened by then is missing
SAMPLE = "samples/first-home.ledgrove.json"
VERSION = re.search(r"project\(Ledgrove VERSION ([\d.]+)", (SOURCE / "CMakeLists.txt").read_text())[1]


def files(folder):
    """The names of everything except folders; links count as files."""
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_symlink() or not path.is_dir()}


def run(*command, status=0, home=None, folder=None, path="/usr/bin:/bin", **variables):
    environment = {"PATH": str(path), "HOME": str(home or "/nonexistent"), "LANG": "C.UTF-8", **variables}
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, timeout=120, env=environment,
                          cwd=folder)
    assert done.returncode == status, (command, done.returncode, done.stdout, done.stderr)
    return done


def wait_for(condition):
    """The first true value of `condition`, which a started program makes true."""
    deadline = time.monotonic() + PATIENCE
    while not (value := condition()):
        assert time.monotonic() < deadline, "the program did not do it"
        time.sleep(0.02)
    return value


class PackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # Users' folder names hold blanks and letters beyond ASCII.
        cls.top = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.top)
        cls.pristine = cls.top / "as built"
        subprocess.run(["cmake", "--install", BUILD, "--strip", "--prefix", cls.pristine], check=True, capture_output=True)

    def setUp(self):
        self.temporary = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.temporary)
        self.folder = self.temporary / "Häuser und Höfe"
        shutil.copytree(self.pristine, self.folder)
