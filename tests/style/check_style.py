#!/usr/bin/env python3
"""Rules for every source file: clang-format's layout, a limited file length, and only includes that its layer allows."""
import re
import subprocess
import sys
from pathlib import Path, PurePath

ROOT = Path(__file__).resolve().parents[2]
LAYERS = ("base", "engine", "settings", "insight", "ui", "reports", "app/batch", "app/files", "app/options", "app/windows")  # lowest first
PROGRAMS = ("app/ledgrove", "app/cli", "app/report", "app/chart", "app/metafile", "app/pages")
TOOLKIT_PROGRAMS = ("app/ledgrove", "app/report", "app/chart")
# Libraries that are loaded at run time, each with the program that may link it directly.
LOADED = {"ui/windows/charts": "app/chart", "reports/windows/cups": None}
BESIDE = ("tests", "bench")
LONGEST = 400


def sources():
    folders = [ROOT / name for name in sorted({PurePath(layer).parts[0] for layer in LAYERS}) + list(BESIDE)]
    return sorted(path for folder in folders if folder.is_dir() for path in folder.rglob("*")
                  if path.suffix in (".h", ".cpp"))


def format_faults(paths):
    run = subprocess.run(["clang-format", "--dry-run", "-Werror", *paths], capture_output=True, text=True)
    return sorted({line.split(":")[0] + ": clang-format -i would change it" for line in run.stderr.splitlines()
                   if "code should be clang-formatted" in line})


def within(folder, name):
    """Whether the file is in the folder or in one of its subfolders."""
    return name.startswith(folder + "/")


def layer_of(name):
    """The number of the file's layer, from 0; None outside the layers. The programs share the top layer."""
    for height, folder in enumerate(LAYERS):
        if within(folder, name):
            return height
    return len(LAYERS) if any(within(program, name) for program in PROGRAMS) else None


def has_toolkit(name):
    return "windows" in PurePath(name).parent.parts or any(within(program, name) for program in TOOLKIT_PROGRAMS)


def include_fault(name, include):
    """The fault of this include in the file, both as paths from the root; "" if it is allowed."""
    if re.match(r"Q[A-Z]|Qt", include):
        return "" if has_toolkit(name) else "only windows/ may"
    height, included = layer_of(name), layer_of(include)
    if included is None:
        return ""
    if included > height:
        return "from a higher layer"
    if height == included == len(LAYERS) and PurePath(name).parent != PurePath(include).parent:
        return "from another program"
    if "windows" in PurePath(include).parts and not has_toolkit(name):
        return "from windows/, into a core"
    for folder, program in LOADED.items():
        if within(folder, include) and not within(folder, name) and not (program and within(program, name)):
            return "from a library that is loaded at run time"
    return ""


def include_faults(name, text):
    """Cores must not include Qt or windows/, and no file may include a higher layer. Tests and benchmarks are exempt."""
    if PurePath(name).parts[0] in BESIDE:
        return
    if layer_of(name) is None:
        yield f"{name}: is in no layer; add its folder to check_style.py"
        return
    for include in re.findall(r'^\s*#\s*include ["<]([^">]+)', text, re.M):
        fault = include_fault(name, include)
        if fault:
            yield f"{name}: includes {include}, {fault}"


def main():
    paths = sources()
    faults = format_faults(paths)
    for path in paths:
        text = path.read_text()
        faults += include_faults(path.relative_to(ROOT).as_posix(), text)
        length = text.count("\n")
        if length > LONGEST:
            faults.append(f"{path}: {length} lines; split the file")
    print("\n".join(faults))
    print(f"{len(paths)} files, {len(faults)} faults")
    return 1 if faults or not paths else 0


if __name__ == "__main__":
    sys.exit(main())
