"""The Debian package: its contents and metadata, the launchers that give every user a folder, and the desktop that opens a
comparison with it. The package is unpacked into a temporary root and never installed on this machine."""
import gzip
import hashlib
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

from packed import BUILD, ICONS, ID, MODULES, PAGES, PATIENCE, PROGRAMS, SAMPLE, SOURCE, TYPE, VERSION, files, run, wait_for

sys.path.insert(0, str(SOURCE / "tests/e2e"))
from desktop import Desktop  # noqa: E402

SHARED = {"LEDGROVE.HLP", "result.schema.json", "GenericHouseLogo.bmp", "LedgroveEmblem.png", SAMPLE}
CONTENTS = ({f"bin/{name}" for name in ("ledgrove", "ledgrove-cli")} | {f"lib/ledgrove/{name}" for name in PROGRAMS | MODULES}
            | {"lib/ledgrove/user-folder"} | {f"share/ledgrove/{name}" for name in SHARED | {"Ledgrove.ini"}} | ICONS
            | {f"share/ledgrove/screenshots/{name}.png" for name in ("summary", "cash-flow", "affordability")}
            | {f"share/doc/ledgrove/{name}" for name in ("copyright", "changelog.gz", "CHANGELOG.md", "guide.md", "cli.md",
                                                        "defaults.md")}
            | {page.replace("zsh/site-functions", "zsh/vendor-completions") + (".gz" if "/man/" in page else "") for page in PAGES}
            | {f"share/icons/hicolor/scalable/apps/{ID}.svg", f"share/applications/{ID}.desktop",
               f"share/mime/packages/{ID}.xml", f"share/metainfo/{ID}.metainfo.xml", f"share/swcatalog/xml/{ID}.xml"})


class DebTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.top = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.top)
        cls.top.chmod(0o755)
        subprocess.run(["cpack", "-G", "DEB", "--config", BUILD / "CPackConfig.cmake", "-B", cls.top / "made"], check=True,
                       capture_output=True)
        cls.deb, = (cls.top / "made").glob("*.deb")
        cls.root = cls.top / "the root"
        run("dpkg-deb", "-x", cls.deb, cls.root)
        cls.usr = cls.root / "usr"


class Package(DebTest):
    def field(self, name):
        return run("dpkg-deb", "-f", self.deb, name).stdout.strip()

    def test_its_files(self):
        self.assertEqual(files(self.root), {f"usr/{name}" for name in CONTENTS})
        listed = run("dpkg-deb", "-c", self.deb).stdout.splitlines()
        self.assertEqual({line.split()[1] for line in listed}, {"root/root"})
        self.assertEqual({line.split()[0] for line in listed}, {"drwxr-xr-x", "-rwxr-xr-x", "-rw-r--r--"})

    def test_its_control_fields(self):
        architecture = run("dpkg", "--print-architecture").stdout.strip()
        self.assertEqual(self.deb.name, f"ledgrove_{VERSION}_{architecture}.deb")
        self.assertEqual([self.field(name) for name in ("Package", "Version", "Architecture", "Section")],
                         ["ledgrove", VERSION, architecture, "misc"])
        self.assertRegex(self.field("Maintainer"), "^The Ledgrove authors <.+@.+>$")
        self.assertGreater(len(self.field("Description").splitlines()), 2)

    def test_it_depends_on_its_libraries_and_fonts(self):
        depends = {re.sub(r" .*", "", one) for one in self.field("Depends").split(", ")}
        named = run(SOURCE / "scripts/packages", "run").stdout.split()
        self.assertTrue({name for name in named if name.startswith("fonts-")} <= depends)
        for name in PROGRAMS | MODULES:
            program = self.usr / "lib/ledgrove" / name
            needed = re.findall(r"\(NEEDED\).*\[(.+)\]", run("readelf", "-d", program).stdout)
            self.assertTrue(needed)
            for library in needed:
                owners = {line.split(":")[0] for line in run("dpkg", "-S", f"*/{library}").stdout.splitlines()}
                self.assertTrue(owners & depends, f"{name}: {library} of {owners}")

    def test_its_checksums(self):
        shown = subprocess.run(["dpkg-deb", "--ctrl-tarfile", self.deb], check=True, capture_output=True).stdout
        sums = subprocess.run(["tar", "-xO", "./md5sums"], input=shown, check=True, capture_output=True).stdout.decode()
        self.assertEqual(dict(reversed(line.split(None, 1)) for line in sums.splitlines()),
                         {name: hashlib.md5((self.root / name).read_bytes()).hexdigest() for name in files(self.root)})
        # Without scripts, dpkg removes exactly what it installed.
        members = subprocess.run(["tar", "-t"], input=shown, check=True, capture_output=True).stdout.decode().split()
        self.assertEqual({name.removeprefix("./") for name in members} - {""}, {"control", "md5sums"})

    def test_debians_checker_finds_no_fault(self):
        shown = run("lintian", "--allow-root", self.deb, home=self.top, status=0).stdout
        self.assertEqual(set(re.findall(r"^[EW]: ledgrove: (\S+)", shown, re.M)), set())

    def test_its_changelog_is_of_this_release(self):
        text = gzip.decompress((self.usr / "share/doc/ledgrove/changelog.gz").read_bytes()).decode()
        self.assertTrue(text.startswith(f"ledgrove ({VERSION}) "))
        released = re.search(r"LEDGROVE_RELEASED (\S+)\)", (SOURCE / "CMakeLists.txt").read_text())[1]
        written = re.search(r"^ -- .+>  (.+)$", text, re.M)[1]
        self.assertEqual(run("date", "--utc", "--iso-8601", "--date", written).stdout.strip(), released)

    def test_its_copyright_says_where_the_source_is(self):
        text = (self.usr / "share/doc/ledgrove/copyright").read_text()
        self.assertIn(f"ledgrove-{VERSION}-source.tar.gz", text)
        self.assertIn("/usr/share/common-licenses/GPL-3", text)

    def test_software_centres_find_its_pictures_on_the_disk(self):
        metainfo = ElementTree.parse(self.usr / f"share/metainfo/{ID}.metainfo.xml").getroot()
        component, = ElementTree.parse(self.usr / f"share/swcatalog/xml/{ID}.xml").getroot()
        self.assertEqual([node.text for node in component.iter("pkgname")], ["ledgrove"])
        for name in ("id", "name", "summary", "launchable"):
            self.assertEqual(component.find(name).text, metainfo.find(name).text)
        pictures = [node.text for node in component.iter("image")]
        self.assertEqual(len(pictures), 3)
        for picture in pictures:
            self.assertTrue(picture.startswith("file:///usr/share/"))
            self.assertTrue((self.root / picture.removeprefix("file:///")).read_bytes().startswith(b"\x89PNG"))

    def test_dpkg_installs_and_removes_it(self):
        root = self.top / "machine"
        for folder in ("var/lib/dpkg/info", "var/lib/dpkg/updates", "var/log"):
            (root / folder).mkdir(parents=True)
        (root / "var/lib/dpkg/status").touch()
        theirs = root / "usr/share/applications/other.desktop"
        theirs.parent.mkdir(parents=True)
        theirs.touch()
        become_root = () if os.geteuid() == 0 else ("unshare", "--map-root-user")
        dpkg = (*become_root, "dpkg", f"--root={root}", "--force-depends", "--force-not-root", "--log=/dev/null")

        def usr():
            return files(root / "usr") - {"share/applications/other.desktop"}
        run(*dpkg, "-i", self.deb, path="/usr/sbin:/usr/bin:/sbin:/bin")
        self.assertEqual(usr(), CONTENTS)
        run(*dpkg, "-r", "ledgrove", path="/usr/sbin:/usr/bin:/sbin:/bin")
        self.assertEqual(usr(), set())
        self.assertEqual({path.name for path in (root / "usr").iterdir()}, {"share"})
        run(*dpkg, "-P", "ledgrove", path="/usr/sbin:/usr/bin:/sbin:/bin")
        self.assertNotIn("ledgrove", (root / "var/lib/dpkg/status").read_text())


class Launchers(DebTest):
    def setUp(self):
        self.temporary = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.temporary)
        self.home = self.temporary / "Ann's home 50%"
        self.home.mkdir()
        self.folder = self.home / ".local/share/ledgrove"
        self.settings = self.folder / "Ledgrove.ini"
        self.sample = self.usr / "share/ledgrove" / SAMPLE

    def cli(self, *arguments, status=0, **options):
        return run(self.usr / "bin/ledgrove-cli", *arguments, status=status, home=self.home, **options)

    def test_the_first_start_makes_the_users_folder(self):
        before = {name: (self.root / name).read_bytes() for name in files(self.root)}
        # 180,000 at 6.5 % over 30 years is 1,137.72 a month
        self.assertRegex(self.cli("compare", self.sample).stdout, r"\(P\+I\) +\$1,138 ")
        self.assertEqual(files(self.folder), SHARED | {"Ledgrove.ini"})
        self.assertEqual(self.settings.read_bytes(), (SOURCE / "data/Ledgrove.ini").read_bytes())
        self.cli("settings", "set", "BUILDERNAME", "Acme Homes")
        self.assertIn(b"BUILDERNAME=Acme Homes\r\n", self.settings.read_bytes())
        self.assertEqual(self.cli("settings", "get", "BUILDERNAME").stdout, "Acme Homes\n")
        self.assertEqual({name: (self.root / name).read_bytes() for name in files(self.root)}, before)
        self.assertEqual(files(self.home), {f".local/share/ledgrove/{name}" for name in SHARED | {"Ledgrove.ini"}})

    def test_it_reports_and_draws(self):
        told = self.cli("report", "--output", "a.pdf", "--logo", "generic", self.sample, folder=self.home)
        self.assertEqual(told.stderr, "")  # it would name a logo that it did not find
        self.assertTrue((self.home / "a.pdf").read_bytes().startswith(b"%PDF-"))
        self.cli("chart", "--output", "a.svg", self.sample, folder=self.home)
        self.assertIn(b"<svg", (self.home / "a.svg").read_bytes())

    def test_a_folder_of_the_users_choice(self):
        own = self.temporary / "own folder"
        own.mkdir()
        (own / "Ledgrove.ini").write_bytes((SOURCE / "data/Ledgrove.ini").read_bytes())
        self.cli("settings", "--folder", own, "set", "BUILDERNAME", "Acme")
        self.cli("settings", f"--folder={own}", "set", "BUILDERNAME", "Acme Homes")
        self.assertIn(b"BUILDERNAME=Acme Homes\r\n", (own / "Ledgrove.ini").read_bytes())
        self.assertRegex(self.cli("--folder", own, "compare", self.sample).stdout, "1,138")
        self.assertEqual(files(self.home), set())
        refused = self.cli("compare", "--folder", self.temporary, self.sample, status=2)
        self.assertIn(f"{self.temporary}/Ledgrove.ini", refused.stderr)

    def test_another_data_folder(self):
        other = self.temporary / "other data"
        self.cli("settings", "set", "BUILDERNAME", "Acme", XDG_DATA_HOME=str(other))
        self.assertIn(b"BUILDERNAME=Acme\r\n", (other / "ledgrove/Ledgrove.ini").read_bytes())
        self.assertEqual(files(self.home), set())

    def test_words_with_dashes_reach_the_program(self):
        self.cli("settings", "set", "BUILDERNAME", "-5 & Sons")
        self.assertEqual(self.cli("settings", "get", "BUILDERNAME").stdout, "-5 & Sons\n")
        self.cli("settings", "set", "--", "BUILDERNAME", "--folder")
        self.assertEqual(self.cli("settings", "get", "BUILDERNAME").stdout, "--folder\n")

    def test_questions_make_no_folder(self):
        for name in ("ledgrove", "ledgrove-cli"):
            self.assertEqual(run(self.usr / "bin" / name, "--version", home=self.home).stdout, f"{name} {VERSION}\n")
            self.assertIn("--folder", run(self.usr / "bin" / name, "--help", home=self.home).stdout)
        self.assertIn("--output", self.cli("help", "report").stdout)
        self.assertIn("Give a command", self.cli(status=2).stderr)
        self.assertEqual(files(self.home), set())

    def test_settings_are_never_replaced(self):
        self.cli("settings", "houses")
        self.settings.rename(self.folder / "Pennaro2.INI")  # as an interrupted save leaves them
        self.cli("settings", "houses", status=2)
        self.assertFalse(self.settings.exists())
        (self.folder / "Pennaro2.INI").unlink()
        kept = self.temporary / "kept.ini"
        self.settings.symlink_to(kept)  # to a disk that is not there now
        self.cli("settings", "houses", status=2)
        self.assertTrue(self.settings.is_symlink())
        self.assertFalse(kept.exists())
        kept.write_bytes(b"[x]\r\nBUILDERNAME=Mine\r\n")
        self.cli("settings", "houses")
        self.assertEqual(kept.read_bytes(), b"[x]\r\nBUILDERNAME=Mine\r\n")

    def test_the_users_own_pictures_are_kept(self):
        self.cli("settings", "houses")
        logo = self.folder / "GenericHouseLogo.bmp"
        logo.unlink()
        logo.write_bytes(b"mine")
        (self.folder / "LEDGROVE.HLP").unlink()
        (self.folder / "LEDGROVE.HLP").symlink_to("/nowhere/share/ledgrove/LEDGROVE.HLP")
        self.cli("settings", "houses")
        self.assertEqual(logo.read_bytes(), b"mine")
        self.assertEqual((self.folder / "LEDGROVE.HLP").read_bytes(), (SOURCE / "data/LEDGROVE.HLP").read_bytes())

    def test_faults_are_named(self):
        program = self.usr / "bin/ledgrove-cli"
        told = subprocess.run([program, "settings", "houses"], env={"PATH": "/usr/bin:/bin"}, capture_output=True, text=True)
        self.assertEqual((told.returncode, told.stderr),
                         (2, "ledgrove-cli: HOME is not set. Set it to your home folder, or give --folder DIR.\n"))
        (self.home / ".local").write_text("a file")
        self.assertIn(f"\"{self.settings}\"", self.cli("settings", "houses", status=2).stderr)

    def test_it_shares_the_settings_with_install_sh(self):
        folder = self.temporary / "unpacked"
        subprocess.run(["cmake", "--install", BUILD, "--strip", "--prefix", folder], check=True, capture_output=True)
        run(folder / "install.sh", home=self.home)
        run(self.home / ".local/bin/ledgrove-cli", "settings", "set", "BUILDERNAME", "Acme Homes", home=self.home)
        self.assertEqual(self.cli("settings", "get", "BUILDERNAME").stdout, "Acme Homes\n")
        run(folder / "install.sh", "--remove", home=self.home)
        self.assertEqual(self.cli("settings", "get", "BUILDERNAME").stdout, "Acme Homes\n")
        self.assertEqual(files(self.folder), SHARED | {"Ledgrove.ini"})

    def test_it_runs_through_a_link(self):
        link = self.temporary / "compare-homes"
        link.symlink_to(self.usr / "bin/ledgrove-cli")
        self.assertEqual(run(link, "--version", home=self.home).stdout, f"ledgrove-cli {VERSION}\n")


class OnTheDesktop(DebTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.usr = cls.root.rename(cls.top / "root") / "usr"  # xdg-mime cannot read folders with a blank
        # What dpkg's triggers of shared-mime-info and desktop-file-utils do after the installation.
        run("update-mime-database", cls.usr / "share/mime")
        run("update-desktop-database", cls.usr / "share/applications")

    def test_a_double_click_shows_the_comparison(self):
        desktop = Desktop()
        self.addCleanup(desktop.close)
        # On an unnamed desktop, xdg-open asks "file" for the type, which does not read the desktop's list of types.
        desktop.environment |= {"PATH": f"{self.usr}/bin:/usr/bin:/bin", "XDG_DATA_DIRS": f"{self.usr}/share:/usr/share",
                                "XDG_CURRENT_DESKTOP": "GNOME"}
        file = desktop.home / "Our 50% home.ledgrove.json"
        shutil.copy(SOURCE / "data" / SAMPLE, file)

        def answer(*command):
            return subprocess.run([str(part) for part in command], env=desktop.environment, check=True, capture_output=True,
                                  text=True).stdout.strip()
        self.assertEqual(answer("xdg-mime", "query", "filetype", file), TYPE)
        self.assertEqual(answer("xdg-mime", "query", "default", TYPE), f"{ID}.desktop")
        for command in (("gio", "open"), ("xdg-open",)):
            with self.subTest(command=command):
                desktop.start(*command, file).wait(PATIENCE)
                window = wait_for(lambda: subprocess.run(
                    ["xdotool", "search", "--onlyvisible", "--name", "Our 50% home"], env=desktop.environment,
                    capture_output=True, text=True).stdout.split())[0]
                process = int(desktop.xdotool("getwindowpid", window))
                self.assertEqual(Path(f"/proc/{process}/exe").resolve(), (self.usr / "lib/ledgrove/ledgrove").resolve())
                os.kill(process, signal.SIGTERM)
                wait_for(lambda: not Path(f"/proc/{process}/exe").exists())
        self.assertTrue((desktop.home / ".local/share/ledgrove/Ledgrove.ini").exists())


if __name__ == "__main__":
    unittest.main()
