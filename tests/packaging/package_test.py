"""The folder that users get: its contents, that it runs from anywhere, and what install.sh changes in a home."""
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

BUILD, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
ID = "org.ledgrove.Ledgrove"
TYPE = "application/vnd.ledgrove.comparison+json"
PROGRAMS = {"ledgrove", "ledgrove-cli", "ledgrove-report", "ledgrove-chart", "ledgrove-metafile"}
ICONS = {f"share/icons/hicolor/{size}x{size}/apps/{ID}.png" for size in (16, 24, 32, 48, 64, 128, 256)}
MODULES = {"modules/ledgrove-charts.so", "modules/ledgrove-printers.so"}
CONTENTS = PROGRAMS | MODULES | ICONS | {
    "Ledgrove.ini", "LEDGROVE.HLP", "GenericHouseLogo.bmp", "LedgroveEmblem.png",
    "samples/first-home.ledgrove.json", "LICENSE", "README.md", "install.sh", "docs/guide.md", "docs/cli.md",
    "docs/defaults.md", "share/files", f"share/icons/hicolor/scalable/apps/{ID}.svg",
    f"share/applications/{ID}.desktop", f"share/mime/packages/{ID}.xml", f"share/metainfo/{ID}.metainfo.xml"}
SAMPLE = "samples/first-home.ledgrove.json"
VERSION = re.search(r"project\(Ledgrove VERSION ([\d.]+)", (SOURCE / "CMakeLists.txt").read_text())[1]


def files(folder):
    """The names of everything except folders; links count as files."""
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_symlink() or not path.is_dir()}


def run(*command, status=0, home=None, folder=None):
    environment = {"PATH": "/usr/bin:/bin", "HOME": str(home or "/nonexistent"), "LANG": "C.UTF-8"}
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, timeout=120, env=environment,
                          cwd=folder)
    assert done.returncode == status, (command, done.returncode, done.stdout, done.stderr)
    return done


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


class Contents(PackageTest):
    def test_the_program_and_nothing_else(self):
        self.assertEqual(files(self.pristine), CONTENTS)
        self.assertEqual(set((self.pristine / "share/files").read_text().split()), CONTENTS)

    def test_only_programs_are_executable(self):
        for name in CONTENTS - MODULES:
            self.assertEqual(os.access(self.pristine / name, os.X_OK) and bool((self.pristine / name).stat().st_mode & 1),
                             name in PROGRAMS | {"install.sh"}, name)

    def test_data_is_what_the_sources_hold(self):
        for name in files(SOURCE / "data"):
            self.assertEqual((self.pristine / name).read_bytes(), (SOURCE / "data" / name).read_bytes(), name)

    def test_nothing_names_the_machine_it_was_built_on(self):
        for name in CONTENTS:
            content = (self.pristine / name).read_bytes()
            for path in {str(BUILD), str(SOURCE), str(BUILD.resolve()), str(SOURCE.resolve())}:
                self.assertNotIn(path.encode() + b"/", content, name)

    def test_programs_use_the_systems_library_paths(self):
        for name in PROGRAMS | MODULES:
            dynamic = run("readelf", "-d", self.pristine / name).stdout
            self.assertIn("NEEDED", dynamic)
            self.assertNotRegex(dynamic, "R(UN)?PATH")
            self.assertNotIn(" .symtab", run("readelf", "-S", self.pristine / name).stdout, f"{name} is not stripped")

    def test_installing_over_a_folder_in_use_keeps_its_settings(self):
        run(self.folder / "ledgrove-cli", "settings", "set", "BUILDERNAME", "Acme Homes")
        subprocess.run(["cmake", "--install", BUILD, "--strip", "--prefix", self.folder], check=True, capture_output=True)
        self.assertIn(b"BUILDERNAME=Acme Homes\r\n", (self.folder / "Ledgrove.ini").read_bytes())
        (self.folder / "Ledgrove.ini").rename(self.folder / "Pennaro2.INI")
        subprocess.run(["cmake", "--install", BUILD, "--strip", "--prefix", self.folder], check=True, capture_output=True)
        self.assertFalse((self.folder / "Ledgrove.ini").exists())

    def test_links_in_the_documents_lead_somewhere(self):
        for name in ("README.md", "docs/guide.md", "docs/cli.md", "docs/defaults.md"):
            for link in re.findall(r"\]\(([^)#]+)\)", (self.pristine / name).read_text()):
                self.assertTrue((self.pristine / name).parent.joinpath(link).exists(), f"{name}: {link}")


class Packages(PackageTest):
    """The Debian packages that it needs."""

    def named(self):
        return re.search(r"apt-get install --no-install-recommends (.+)", (self.pristine / "README.md").read_text())[1].split()

    def test_the_readme_names_those_of_the_build(self):
        self.assertEqual(self.named(), run(SOURCE / "scripts/packages", "run").stdout.split())

    def test_every_library_comes_with_the_packages_named(self):
        closure, waiting = set(), self.named()
        while waiting:
            package = waiting.pop()
            if package in closure:
                continue
            closure.add(package)
            shown = subprocess.run(["dpkg-query", "-W", "-f", "${Depends}, ${Pre-Depends}", package], capture_output=True,
                                   text=True).stdout
            waiting += [re.sub(r"[ (:].*", "", choice.strip()) for choice in re.split("[,|]", shown) if choice.strip()]
        libraries = set()
        for name in PROGRAMS | MODULES:
            shown = run("ldd", self.pristine / name).stdout
            self.assertNotIn("not found", shown, name)
            libraries.update(re.findall(r"^\s+(\S+) => /", shown, re.M))
        self.assertTrue({"libQt6Charts.so.6", "libcups.so.2"} <= libraries)
        shown = run("dpkg", "-S", *(f"*/{library}" for library in libraries)).stdout
        owners = dict.fromkeys(libraries, ())
        for package, path in re.findall(r"^([^:\n]+)[^ ]*: (.+)$", shown, re.M):
            owners[Path(path).name] += (package,)
        self.assertEqual({name: having for name, having in owners.items() if not closure & set(having)}, {})


class InPlace(PackageTest):
    def test_every_program_prints_its_version(self):
        for name in PROGRAMS:
            self.assertEqual(run(self.folder / name, "--version").stdout.strip(), f"{name} {VERSION}")
        self.assertIn(f"# Ledgrove {VERSION}\n", (self.folder / "README.md").read_text())

    def test_compares_reports_and_draws(self):
        result = json.loads(run(self.folder / "ledgrove-cli", "compare", "--format", "json", self.folder / SAMPLE).stdout)
        # 180,000 at 6.5 % over 30 years is 1,137.72 a month
        self.assertEqual(result["labels"]["lblStdMortPayment"]["text"], "$1,138")
        run(self.folder / "ledgrove-cli", "report", "--output", "a.pdf", "--logo", "generic", SAMPLE, folder=self.folder)
        self.assertTrue((self.folder / "a.pdf").read_bytes().startswith(b"%PDF-"))
        run(self.folder / "ledgrove-cli", "chart", "--output", "a.svg", SAMPLE, folder=self.folder)
        self.assertEqual(ElementTree.parse(self.folder / "a.svg").getroot().tag, "{http://www.w3.org/2000/svg}svg")

    def test_settings_are_kept_in_the_programs_folder(self):
        before = files(self.temporary)
        run(self.folder / "ledgrove-cli", "settings", "set", "BUILDERNAME", "Häuser GmbH", folder="/")
        self.assertEqual(files(self.temporary), before)
        self.assertIn("BUILDERNAME=Häuser GmbH\r\n".encode("cp1252"), (self.folder / "Ledgrove.ini").read_bytes())
        self.assertEqual(run(self.folder / "ledgrove-cli", "settings", "get", "BUILDERNAME").stdout, "Häuser GmbH\n")


class Desktop(PackageTest):
    def test_the_desktop_entry(self):
        entry = self.pristine / f"share/applications/{ID}.desktop"
        self.assertEqual(run("desktop-file-validate", entry).stdout, "")
        self.assertIn(f"\nMimeType={TYPE};\n", entry.read_text())

    def test_the_metadata(self):
        metadata = self.pristine / f"share/metainfo/{ID}.metainfo.xml"
        run("appstreamcli", "validate", "--no-net", metadata)
        root = ElementTree.parse(metadata).getroot()
        self.assertEqual([release.get("version") for release in root.iter("release")], [VERSION])
        self.assertEqual([node.text for node in root.iter("launchable")], [f"{ID}.desktop"])
        self.assertEqual([node.text for node in root.iter("mediatype")], [TYPE])

    def test_the_file_type(self):
        root = ElementTree.parse(self.pristine / f"share/mime/packages/{ID}.xml").getroot()
        name = "{http://www.freedesktop.org/standards/shared-mime-info}"
        self.assertEqual([(kind.get("type"), kind.find(name + "glob").get("pattern")) for kind in root],
                         [(TYPE, "*.ledgrove.json")])
        self.assertEqual(root[0].find(name + "icon").get("name"), ID)

    def test_icons_are_as_large_as_their_folders_say(self):
        for name in ICONS:
            head = (self.pristine / name).read_bytes()[:24]
            self.assertEqual(head[:8], b"\x89PNG\r\n\x1a\n", name)
            size = int(re.search(r"(\d+)x\1", name)[1])
            self.assertEqual((int.from_bytes(head[16:20], "big"), int.from_bytes(head[20:24], "big")), (size, size), name)


class Installing(PackageTest):
    def setUp(self):
        super().setUp()
        self.home = self.temporary / 'Ann\'s 100% $HOME "ö"'
        self.home.mkdir()
        self.data = self.home / ".local/share"
        self.program = self.data / "ledgrove"
        self.settings = self.program / "Ledgrove.ini"
        self.link = self.home / ".local/bin/ledgrove-cli"

    def install(self, *arguments, status=0, folder=None):
        return run((folder or self.folder) / "install.sh", *arguments, status=status, home=self.home)

    def left(self):
        return files(self.home)

    def test_installs_all_and_runs_through_the_link(self):
        told = self.install().stdout
        self.assertIn(f"Ledgrove {VERSION} is installed in \"{self.program}\".", told)
        self.assertEqual(files(self.program), CONTENTS | {".installed"})
        for name in CONTENTS:
            self.assertEqual((self.program / name).read_bytes(), (self.folder / name).read_bytes(), name)
        shutil.rmtree(self.folder)  # nothing may need the source folder after this
        run(self.link, "settings", "set", "BUILDERNAME", "Acme Homes", home=self.home)
        self.assertIn(b"BUILDERNAME=Acme Homes\r\n", self.settings.read_bytes())
        run(self.link, "report", "--output", self.home / "a.pdf", self.program / SAMPLE, home=self.home)
        self.assertEqual(run(self.link.with_name("ledgrove"), "--version").stdout, f"ledgrove {VERSION}\n")

    def test_the_window_finds_its_settings_through_the_link(self):
        self.install()
        shown = run(self.link.with_name("ledgrove"), "--help", home=self.home).stdout
        self.assertIn("--folder", shown)
        self.settings.unlink()
        refused = run(self.link, "compare", self.program / SAMPLE, home=self.home, status=2)
        self.assertIn(str(self.settings), refused.stderr)

    def test_the_desktop_knows_it(self):
        self.install()
        entry = self.data / f"applications/{ID}.desktop"
        run("desktop-file-validate", entry)
        command = re.search(r"^Exec=(.+) %f$", entry.read_text(), re.M)[1]
        # Decoded as the desktop does it: first the entry's escapes, then the quotes, then the field codes.
        text = command.replace("\\\\", "\\")
        self.assertEqual((text[0], text[-1]), ('"', '"'))
        self.assertEqual(re.sub(r"\\(.)", r"\1", text[1:-1]).replace("%%", "%"), str(self.program / "ledgrove"))
        for name in ICONS | {f"share/icons/hicolor/scalable/apps/{ID}.svg", f"share/mime/packages/{ID}.xml"}:
            self.assertEqual((self.data / name.removeprefix("share/")).read_bytes(), (self.pristine / name).read_bytes())

    def test_an_update_keeps_the_users_files(self):
        self.install()
        run(self.link, "settings", "set", "BUILDERNAME", "Acme Homes", home=self.home)
        (self.program / "Pennaro2.INI").write_bytes(b"half a save")
        (self.program / "GenericHouseLogo.bmp").write_bytes(b"a picture of his own")
        (self.program / "samples/mine.ledgrove.json").write_text("{}")
        (self.program / "logo.wmf").write_bytes(b"his too")
        settings = self.settings.read_bytes()
        for name in ("LEDGROVE.HLP", "docs/guide.md", "ledgrove"):
            (self.program / name).write_bytes(b"of an older version")
        # An update replaces an unchanged picture and removes a file that the new version lacks.
        (self.folder / "LedgroveEmblem.png").write_bytes(b"a newer emblem")
        (self.folder / "docs/cli.md").unlink()
        listed = self.folder / "share/files"
        listed.write_text(listed.read_text().replace("docs/cli.md\n", ""))
        self.assertIn("GenericHouseLogo.bmp", self.install().stderr)
        self.assertEqual(self.settings.read_bytes(), settings)
        self.assertEqual((self.program / "Pennaro2.INI").read_bytes(), b"half a save")
        self.assertEqual((self.program / "GenericHouseLogo.bmp").read_bytes(), b"a picture of his own")
        self.assertEqual((self.program / "LedgroveEmblem.png").read_bytes(), b"a newer emblem")
        for name in ("LEDGROVE.HLP", "docs/guide.md", "ledgrove"):
            self.assertEqual((self.program / name).read_bytes(), (self.pristine / name).read_bytes(), name)
        self.assertEqual(files(self.program), (CONTENTS - {"docs/cli.md"}) | {
            ".installed", "Pennaro2.INI", "samples/mine.ledgrove.json", "logo.wmf"})

        self.assertIn(str(self.program), self.install("--remove").stdout)
        self.assertEqual(files(self.program), {"Ledgrove.ini", "Pennaro2.INI", "GenericHouseLogo.bmp",
                                               "samples/mine.ledgrove.json", "logo.wmf"})
        self.assertEqual(self.settings.read_bytes(), settings)

    def test_an_install_does_not_hide_an_interrupted_save(self):
        self.install()
        self.settings.rename(self.program / "Pennaro2.INI")
        self.install()
        self.assertFalse(self.settings.exists())

    def test_a_removal_leaves_only_the_settings(self):
        theirs = self.data / "applications/other.desktop"
        theirs.parent.mkdir(parents=True)
        theirs.write_text("[Desktop Entry]\nType=Application\nName=Other\nExec=other\n")
        self.install()
        # The installed copy does it, because the source folder may be gone.
        told = self.install("--remove", folder=self.program).stdout
        self.assertIn(f"still in \"{self.program}\"", told)
        self.assertEqual(self.left() - {".local/share/applications/mimeinfo.cache"},
                         {".local/share/ledgrove/Ledgrove.ini", ".local/share/applications/other.desktop"})
        self.assertIn("is not installed", self.install("--remove").stdout)
        theirs.unlink()
        self.install()
        self.install("--remove")
        self.assertEqual(self.left(), {".local/share/ledgrove/Ledgrove.ini"})

    def test_a_second_install_changes_nothing(self):
        self.install()
        once = {name: (self.home / name).read_bytes() for name in self.left()}
        self.install()
        self.install(folder=self.program)
        self.assertEqual({name: (self.home / name).read_bytes() for name in self.left()}, once)

    def test_another_data_folder(self):
        other = self.temporary / "other data"
        done = subprocess.run([self.folder / "install.sh"], capture_output=True, text=True, check=True, env={
            "PATH": "/usr/bin:/bin", "HOME": str(self.home), "XDG_DATA_HOME": str(other)})
        self.assertIn(f"\"{other}/ledgrove\"", done.stdout)
        self.assertTrue((other / f"applications/{ID}.desktop").exists())
        self.assertEqual(self.left(), {".local/bin/ledgrove", ".local/bin/ledgrove-cli"})

    def test_a_foreign_file_in_place_of_the_link_stops_the_install(self):
        self.link.parent.mkdir(parents=True)
        self.link.write_text("someone's script")
        told = self.install(status=1).stderr
        self.assertIn(f"\"{self.link}\" is not a link to this Ledgrove. Move it away", told)
        self.assertEqual(self.left(), {".local/bin/ledgrove-cli"})
        self.assertEqual(self.link.read_text(), "someone's script")

    def test_a_missing_file_in_the_source_folder_stops_the_install(self):
        (self.folder / "ledgrove-report").unlink()
        self.assertIn(f"\"{self.folder}/ledgrove-report\" is missing. Unpack", self.install(status=1).stderr)
        self.assertEqual(self.left(), set())

    def test_a_file_in_place_of_the_program_folder_is_reported(self):
        self.data.mkdir(parents=True)
        self.program.write_text("a file")
        self.assertIn(f"The folder \"{self.program}\" cannot be made.", self.install(status=1).stderr)

    def test_unknown_arguments_and_help(self):
        self.assertIn("usage:", self.install("--what", status=2).stderr)
        self.assertIn("--remove", self.install("--help").stdout)
        self.assertEqual(self.left(), set())


if __name__ == "__main__":
    unittest.main()
