"""The scripts that a newcomer starts, with stand-ins for the commands that would change the machine; and the documents that
name packages, versions and dates."""
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
PURPOSES = ("build", "run", "deb", "test", "bench", "lint", "fuzz")
FUZZING_COMPILER = {"clang-14", "libclang-rt-14-dev"}


def packages(purpose):
    return subprocess.run([SOURCE / "scripts/packages", purpose], check=True, capture_output=True, text=True).stdout.split()


class ScriptTest(unittest.TestCase):
    def setUp(self):
        self.temporary = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.temporary)
        self.commands = self.temporary / "commands"
        self.commands.mkdir()
        self.log = self.temporary / "log"

    def stand_in(self, name, body):
        """Puts a command in front of the system's; with ECHO in `body` it records its arguments."""
        script = self.commands / name
        script.write_text("#!/bin/sh\n" + body.replace("ECHO", f'echo {name} "$@" >>"{self.log}"') + "\n")
        script.chmod(0o755)

    def run_script(self, script, *arguments, folder=None, status=0, path=None, **environment):
        done = subprocess.run([script, *map(str, arguments)], capture_output=True, text=True, timeout=120, cwd=folder, env={
            "PATH": path or f"{self.commands}:/usr/bin:/bin", "HOME": str(self.temporary), "LANG": "C.UTF-8", **environment})
        self.assertEqual(done.returncode, status, (done.stdout, done.stderr))
        return done

    def logged(self):
        return self.log.read_text().splitlines() if self.log.exists() else []


class InstallMissing(ScriptTest):
    """scripts/install-missing, where "aa" is installed and "bb" and "cc" are not."""

    def setUp(self):
        super().setUp()
        self.stand_in("dpkg-query", 'for last in "$@"; do :; done; [ "$last" != aa ] || printf installed')
        self.stand_in("apt-get", "ECHO")
        self.stand_in("id", "echo 1000")

    def install(self, *names, **options):
        return self.run_script(SOURCE / "scripts/install-missing", *names, **options)

    def without_sudo(self):
        """A PATH without sudo, whether or not the machine has it."""
        tools = self.temporary / "tools"
        tools.mkdir()
        for name in ("sh", "cat"):
            (tools / name).symlink_to(shutil.which(name, path="/usr/bin:/bin"))
        return f"{self.commands}:{tools}"

    def test_without_root_it_prints_the_command_to_run(self):
        shown = self.install("aa", "bb", "cc", path=self.without_sudo(), status=1)
        line = next(line.strip() for line in shown.stderr.splitlines() if line.startswith("    "))
        self.assertEqual(line, "su - -c 'apt-get update && apt-get install --no-install-recommends bb cc'")
        self.assertEqual(self.logged(), [])

    def test_the_printed_command_runs_as_it_stands(self):
        shown = self.install("aa", "bb", "cc", path=self.without_sudo(), status=1)
        line = next(line for line in shown.stderr.splitlines() if line.startswith("    "))
        self.stand_in("su", '[ "$1 $2" = "- -c" ] && sh -c "$3"')
        self.run_script("sh", "-c", line)
        self.assertEqual(self.logged(), ["apt-get update", "apt-get install --no-install-recommends bb cc"])

    def test_sudo_that_refuses_gives_the_same_advice(self):
        self.stand_in("sudo", "exit 1")
        self.assertIn("su - -c 'apt-get update", self.install("bb", status=1).stderr)
        self.assertEqual(self.logged(), [])

    def test_root_and_sudo_install_what_is_missing(self):
        self.stand_in("sudo", '[ "$1" = -v ] || "$@"')
        self.install("aa", "bb")
        self.assertRegex(self.logged()[-1], "^apt-get .*install --no-install-recommends .* bb$")
        self.log.unlink()
        self.stand_in("id", "echo 0")
        self.install("aa", "cc", path=self.without_sudo())
        self.assertRegex(self.logged()[-1], "^apt-get .*install --no-install-recommends .* cc$")

    def test_nothing_missing_needs_nothing(self):
        self.install("aa", path=self.without_sudo())
        self.assertEqual(self.logged(), [])

    def test_another_system_is_named(self):
        path = self.without_sudo()
        (self.commands / "dpkg-query").unlink()
        self.assertIn("Debian 12", self.install("aa", path=path, status=1).stderr)


class Run(ScriptTest):
    """./run with the programs of this build, in a copy of the sources that does not build them."""

    def setUp(self):
        super().setUp()
        self.sources = self.temporary / "the sources"
        (self.sources / "build/release").mkdir(parents=True)
        (self.sources / "build/release/build.ninja").touch()
        self.programs = self.sources / "build/release/bin"
        shutil.copytree(SOURCE / "data", self.programs)
        for name in ("ledgrove", "ledgrove-cli"):
            (self.programs / name).symlink_to(BUILD / "bin" / name)
        shutil.copy(SOURCE / "run", self.sources)
        for name in ("scripts", "data"):
            (self.sources / name).symlink_to(SOURCE / name)
        self.stand_in("dpkg-query", "printf installed")
        self.stand_in("cmake", "ECHO")
        self.theirs = self.temporary / "theirs"
        self.theirs.mkdir()
        sample = (SOURCE / "data/samples/first-home.ledgrove.json").read_text()
        self.file = self.theirs / "my home.ledgrove.json"
        # Nothing down and no debts: 100,000 at 6.5 % over 30 years is 632.07 a month.
        self.file.write_text(re.sub(r'("ecStdHome": *)"[^"]*"', r'\1"100000"', re.sub(
            r'("ecPctDown": *)"[^"]*"', r'\1"0"', sample)))

    def start(self, *arguments, **options):
        return self.run_script(self.sources / "run", *arguments, folder=self.theirs, **options)

    def test_without_a_display_it_shows_a_sample(self):
        shown = self.start().stdout
        self.assertIn("There is no display. This is the sample comparison", shown)
        self.assertRegex(shown, r"Mortgage Payment \(P\+I\) +\$1,138 ")  # 180,000 at 6.5 % over 30 years
        report = self.sources / "build/sample-report.pdf"
        self.assertIn(f"Its report is in \"{report}\".", shown)
        self.assertTrue(report.read_bytes().startswith(b"%PDF-"))

    def test_without_a_display_it_compares_the_named_file(self):
        shown = self.start(self.file.name).stdout
        self.assertIn(f"This is the comparison in \"{self.file.name}\" as text:", shown)
        self.assertRegex(shown, r"Mortgage Payment \(P\+I\) +\$632 ")
        self.assertTrue((self.sources / "build/my home-report.pdf").read_bytes().startswith(b"%PDF-"))
        self.assertFalse((self.sources / "build/sample-report.pdf").exists())

    def test_without_a_display_it_uses_the_named_folder(self):
        for arguments in (("--folder", "nowhere"), ("--folder=nowhere",)):
            self.assertIn("nowhere/Ledgrove.ini", self.start(*arguments, status=2).stderr)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.theirs)
        self.assertIn("$632", self.start("--folder", ".", self.file.name).stdout)

    def test_without_a_display_the_program_answers_for_itself(self):
        version = subprocess.run([BUILD / "bin/ledgrove", "--version"], capture_output=True, text=True).stdout
        self.assertTrue(version.startswith("ledgrove "))
        self.assertEqual(self.start("--version").stdout, version)
        self.assertIn("--folder", self.start("--help").stdout)

    def test_without_a_display_other_arguments_are_refused(self):
        for arguments, part in ((("--fullscreen",), "\"--fullscreen\""), (("--folder",), "--folder needs"),
                                ((self.file.name, "other.json"), "\"other.json\", not both")):
            refused = self.start(*arguments, status=2)
            self.assertIn(part, refused.stderr)
            self.assertEqual(refused.stdout, "")
        self.assertIn("missing.json", self.start("missing.json", status=2).stderr)

    def test_with_a_display_the_program_gets_all_arguments(self):
        program = self.programs / "ledgrove"
        program.unlink()
        program.write_text(f'#!/bin/sh\nprintf "%s\\n" "$PWD" "$@" >"{self.log}.program"\n')
        program.chmod(0o755)
        self.start("--folder", "a b", "home.json", DISPLAY=":99")
        self.assertEqual(Path(f"{self.log}.program").read_text().splitlines(),
                         [str(self.theirs), "--folder", "a b", "home.json"])


class Package(ScriptTest):
    """scripts/package, which builds once whatever it packs, and always packs the source too."""

    def setUp(self):
        super().setUp()
        self.stand_in("dpkg-query", "printf installed")
        self.stand_in("cmake", "ECHO")
        self.stand_in("cpack", "ECHO\necho 'CPack: Create package'\necho \"CPack: - package: /made/$2 generated.\"")

    def pack(self, *arguments, **options):
        return self.run_script(SOURCE / "scripts/package", *arguments, **options)

    def test_it_packs_one_build_and_the_source(self):
        for arguments, generator in (((), "TGZ"), (("--deb",), "DEB")):
            self.assertEqual(self.pack(*arguments, "/the build").stdout, f"/made/{generator}\n/made/TGZ\n")
            self.assertEqual(self.logged(), [
                "cmake --preset release -B /the build -U LEDGROVE_MAINTAINER", "cmake --build /the build",
                f"cpack -G {generator} --config /the build/CPackConfig.cmake",
                "cpack -G TGZ --config /the build/CPackSourceConfig.cmake"])
            self.log.unlink()

    def test_the_default_is_the_build_that_run_starts(self):
        self.pack("--deb")
        self.assertIn("cmake --build build/release", self.logged())

    def test_the_maker_of_the_package_is_named(self):
        self.pack("--deb", DEBFULLNAME="Ann Lee", DEBEMAIL="ann@example.org")
        self.assertTrue(self.logged()[0].endswith("-D LEDGROVE_MAINTAINER=Ann Lee <ann@example.org>"))

    def test_a_fault_ends_it(self):
        self.stand_in("cpack", "ECHO\nexit 1")
        self.assertEqual(self.pack(status=1).stdout, "")
        self.assertEqual(len([line for line in self.logged() if line.startswith("cpack")]), 1)
        self.assertIn("usage:", self.pack("--rpm", status=2).stderr)


class Documents(unittest.TestCase):
    def test_every_package_has_its_reason(self):
        named = set(re.findall(r"`([^` ]+)`", (SOURCE / "docs/dependencies.md").read_text()))
        for purpose in PURPOSES:
            self.assertTrue(packages(purpose))
            self.assertEqual(set(packages(purpose)) - named, set(), purpose)

    def test_the_tests_need_no_fuzzing_compiler(self):
        self.assertEqual(FUZZING_COMPILER & {name for purpose in PURPOSES if purpose != "fuzz" for name in packages(purpose)},
                         set())
        self.assertTrue(FUZZING_COMPILER <= set(packages("fuzz")))
        purposes = re.findall(r"scripts/packages (\w+)", (SOURCE / "test").read_text())
        self.assertEqual(purposes, ["build", "run", "deb", "test"])

    def test_lint_installs_its_own(self):
        self.assertIn("clang-tidy", packages("lint"))
        self.assertIn("scripts/packages lint", (SOURCE / "scripts/lint").read_text())

    def test_an_unknown_purpose_is_refused(self):
        done = subprocess.run([SOURCE / "scripts/packages", "tea"], capture_output=True, text=True)
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertEqual(set(re.search(r"packages (\S+)", done.stderr)[1].split("|")), set(PURPOSES))

    def test_one_version_and_one_date(self):
        text = (SOURCE / "CMakeLists.txt").read_text()
        release = (re.search(r"project\(Ledgrove VERSION ([\d.]+)", text)[1],
                   re.search(r"set\(LEDGROVE_RELEASED (\d{4}-\d\d-\d\d)\)", text)[1])
        changes = re.findall(r"^## \[([\d.]+)\] - (\d{4}-\d\d-\d\d)$", (SOURCE / "CHANGELOG.md").read_text(), re.M)
        self.assertEqual(changes[0], release)
        metainfo = ElementTree.parse(BUILD / "packaging/org.ledgrove.Ledgrove.metainfo.xml").getroot()
        self.assertEqual([(node.get("version"), node.get("date")) for node in metainfo.iter("release")], [release])

    def test_links_at_the_root_lead_somewhere(self):
        for name in ("README.md", "CONTRIBUTING.md", "CHANGELOG.md", "docs/contributing.md"):
            for link in re.findall(r"\]\((?!https:)([^)#]+)\)", (SOURCE / name).read_text()):
                self.assertTrue((SOURCE / name).parent.joinpath(link).exists(), f"{name}: {link}")
        self.assertIn("(docs/contributing.md)", (SOURCE / "CONTRIBUTING.md").read_text())
        self.assertIn("(CONTRIBUTING.md)", (SOURCE / "README.md").read_text())

    def test_the_readme_says_what_the_first_build_takes(self):
        text = (SOURCE / "README.md").read_text()
        self.assertRegex(text, r"\d+ minutes on 2 cores")
        self.assertRegex(text, r"\d+ MB")
        self.assertIn("tried on Debian 12 only", text)


if __name__ == "__main__":
    unittest.main()
