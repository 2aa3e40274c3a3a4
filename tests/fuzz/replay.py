#!/usr/bin/env python3
"""Runs a fuzz target on its seeds and on all findings: replay.py PROGRAM TARGET."""
import subprocess
import sys
import tempfile
from pathlib import Path

from findings import FINDINGS
from make_corpora import write

program, target = sys.argv[1:]
with tempfile.TemporaryDirectory() as name:
    write(target, Path(name))
    for finding, content in FINDINGS[target].items():
        (Path(name) / finding).write_bytes(content)
    sys.exit(subprocess.run([program, name], check=False).returncode)
