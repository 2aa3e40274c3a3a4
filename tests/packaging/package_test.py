"""The folder that users get: its contents, and that it runs from anywhere."""
import json
import os
import re
import subprocess
import unittest
from pathlib import Path
from xml.etree import ElementTree

from packed import BUILD, CONTENTS, ICONS, ID, MODULES, PROGRAMS, SAMPLE, SOURCE, TYPE, VERSION, PackageTest, files, run


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


class Source(PackageTest):
    """The source, which the licence demands with the program."""

    def test_its_archive_holds_the_sources_and_nothing_else(self):
        subprocess.run(["cpack", "-G", "TGZ", "--config", BUILD / "CPackSourceConfig.cmake", "-B", self.temporary / "made"],
                       check=True, capture_output=True)
        name = f"ledgrove-{VERSION}-source"
        subprocess.run(["tar", "-xf", self.temporary / f"made/{name}.tar.gz", "-C", self.temporary], check=True)
        packed = files(self.temporary / name)
        self.assertTrue({"CMakeLists.txt", "LICENSE", "run", "test", "docs/images/summary.png", ".clang-format"} <= packed)
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=SOURCE,
                                capture_output=True, text=True)
        if listed.returncode == 0:  # it fails in sources that came as an archive
            tracked = {file for file in listed.stdout.split("\0") if file and (SOURCE / file).exists()}
            self.assertEqual({file for file in packed if "__pycache__" not in file},
                             {file for file in tracked if "__pycache__" not in file})
        for script in ("run", "test", "scripts/package"):
            self.assertTrue(os.access(self.temporary / name / script, os.X_OK))

    def test_the_readme_names_it_and_who_must_give_it(self):
        text = (self.pristine / "README.md").read_text()
        self.assertIn(f"`ledgrove-{VERSION}-source.tar.gz`", text)
        self.assertIn("Whoever gives you Ledgrove\nmust also give you that file", text)


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

    def test_screenshots_on_the_web_are_in_the_metadata(self):
        address = "https://example.org/pictures"
        build = self.temporary / "build"
        subprocess.run(["cmake", "-S", SOURCE, "-B", build, "-G", "Ninja", "-D", "LEDGROVE_TESTS=OFF", "-D",
                        f"LEDGROVE_PICTURES_URL={address}"], check=True, capture_output=True)
        metadata = build / f"packaging/{ID}.metainfo.xml"
        run("appstreamcli", "validate", "--no-net", metadata)
        pictures = [node.text for node in ElementTree.parse(metadata).getroot().iter("image")]
        self.assertEqual([Path(picture).parent.name for picture in pictures], ["pictures"] * 3)
        for picture in pictures:
            self.assertTrue(picture.startswith(address))
            self.assertTrue((SOURCE / "docs/images" / Path(picture).name).exists())

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


if __name__ == "__main__":
    unittest.main()
