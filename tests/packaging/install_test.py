"""What install.sh changes in a home."""
import re
import shutil
import subprocess
import unittest
from pathlib import Path

from packed import CONTENTS, ICONS, ID, PAGES, SAMPLE, TYPE, VERSION, PackageTest, files, run, wait_for


class Installing(PackageTest):
    def setUp(self):
        super().setUp()
        self.home = self.temporary / 'Ann\'s 100% $HOME "ö"'
        self.home.mkdir()
        self.data = self.home / ".local/share"
        self.program = self.data / "ledgrove"
        self.settings = self.program / "Ledgrove.ini"
        self.link = self.home / ".local/bin/ledgrove-cli"

    def install(self, *arguments, status=0, folder=None, path="/usr/bin:/bin"):
        return run((folder or self.folder) / "install.sh", *arguments, status=status, home=self.home, path=path)

    def tools_without(self, *missing):
        """A PATH with all of the system's commands but these."""
        tools = self.temporary / "tools"
        tools.mkdir()
        for tool in Path("/usr/bin").iterdir():
            if tool.name not in missing:
                (tools / tool.name).symlink_to(tool)
        return tools

    def opened(self, *command):
        """What the desktop's command gives the program, which a script replaces, and the script's own path."""
        shown = self.temporary / "shown"
        shown.unlink(missing_ok=True)
        (self.program / "ledgrove").write_text(f"#!/bin/sh\nprintf '%s\\n' \"$0\" \"$@\" >'{shown}.new'\n"
                                               f"mv '{shown}.new' '{shown}'\n")
        run(*command, home=self.home)
        wait_for(shown.exists)
        return shown.read_text().splitlines()

    def comparison(self):
        file = self.home / "Our 50% home & garden.ledgrove.json"
        shutil.copy(self.pristine / SAMPLE, file)
        return file

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
        last = re.findall(r'"((?:\\.|[^"\\])*)"', text)[-1]
        self.assertEqual(re.sub(r"\\(.)", r"\1", last).replace("%%", "%"), str(self.program / "ledgrove"))
        for name in ICONS | PAGES | {f"share/icons/hicolor/scalable/apps/{ID}.svg", f"share/mime/packages/{ID}.xml"}:
            self.assertEqual((self.data / name.removeprefix("share/")).read_bytes(), (self.pristine / name).read_bytes())

    def test_the_desktops_launcher_starts_it_from_any_path(self):
        file = self.comparison()
        # With a percent sign, for which the entry needs a shell, and without one.
        for home in (self.home, self.temporary / 'Ann\'s $HOME `x` "ö" \\ = home'):
            self.home, self.program = home, home / ".local/share/ledgrove"
            home.mkdir(exist_ok=True)
            self.install()
            entry = home / f".local/share/applications/{ID}.desktop"
            run("desktop-file-validate", entry)
            self.assertEqual(self.opened("gio", "launch", entry, file), [str(self.program / "ledgrove"), str(file)])

    def test_the_shells_and_man_know_it(self):
        told = self.install().stdout
        self.assertIn(f'The folder "{self.link.parent}" is not on your PATH.', told)
        self.assertIn(f'fpath=("{self.data}/zsh/site-functions" $fpath)', told)
        path = f"{self.link.parent}:/usr/bin:/bin"
        self.assertIn("describes the commands", self.install(path=path).stdout)
        shown = run("man", "-w", "ledgrove-cli", home=self.home, path=path).stdout
        self.assertEqual(Path(shown.strip()).read_bytes(), (self.pristine / "share/man/man1/ledgrove-cli.1").read_bytes())
        offered = run("fish", "-c", "complete -C 'ledgrove-cli re'", home=self.home, path=path).stdout
        self.assertIn("report", offered)

    def test_a_double_click_opens_a_comparison(self):
        for missing in ((), ("update-desktop-database",)):
            path = self.tools_without(*missing) if missing else "/usr/bin:/bin"
            with self.subTest(missing=missing):
                self.assertEqual(self.install(path=path).stderr, "")
                file = self.comparison()
                self.assertIn(TYPE, run("gio", "info", "-a", "standard::content-type", file, home=self.home).stdout)
                self.assertIn(f"{ID}.desktop", run("gio", "mime", TYPE, home=self.home).stdout.splitlines()[0])
                self.assertEqual(self.opened("gio", "open", file), [str(self.program / "ledgrove"), str(file)])
                self.install("--remove", path=path)
                self.assertNotIn(ID, run("gio", "mime", TYPE, home=self.home).stdout)
                file.unlink()
                self.assertEqual(self.left(), {".local/share/ledgrove/Ledgrove.ini"})

    def test_other_programs_keep_their_file_types(self):
        path = self.tools_without("update-desktop-database")
        cache = self.data / "applications/mimeinfo.cache"
        cache.parent.mkdir(parents=True)
        cache.with_name("other.desktop").write_text("[Desktop Entry]\nType=Application\nName=Other\nExec=true\n")
        cache.write_text("[MIME Cache]\ntext/x-other=other.desktop;\n")
        self.install(path=path)
        self.install(path=path)
        self.assertEqual(cache.read_text(), f"[MIME Cache]\ntext/x-other=other.desktop;\n{TYPE}={ID}.desktop;\n")
        self.install("--remove", path=path)
        self.assertEqual(cache.read_text(), "[MIME Cache]\ntext/x-other=other.desktop;\n")

    def test_a_missing_tool_for_file_types_is_named_with_its_package(self):
        path = self.tools_without("update-mime-database")
        self.assertRegex(self.install(path=path).stderr, "update-mime-database is missing.*package shared-mime-info")

    def test_a_removal_names_what_it_leaves(self):
        self.install()
        for name in ("GenericHouseLogo.bmp", "samples/mine.ledgrove.json", "our logo.png"):
            (self.program / name).write_bytes(b"the user's own")
        (self.program / "LedgroveEmblem.png").unlink()
        (self.program / "LedgroveEmblem.png").symlink_to("/usr/share/ledgrove/LedgroveEmblem.png")
        told = self.install("--remove").stdout
        self.assertEqual([line for line in told.splitlines() if line.startswith("    ")],
                         ["    GenericHouseLogo.bmp", "    Ledgrove.ini", "    our logo.png", "    samples/mine.ledgrove.json"])

    def test_an_install_replaces_the_links_to_a_debian_package(self):
        packages = self.temporary / "usr/share/ledgrove"
        packages.mkdir(parents=True)
        (packages / "LedgroveEmblem.png").write_bytes(b"of an older version")
        self.program.mkdir(parents=True)
        (self.program / "LedgroveEmblem.png").symlink_to(packages / "LedgroveEmblem.png")
        self.assertEqual(self.install().stderr, "")
        self.assertFalse((self.program / "LedgroveEmblem.png").is_symlink())
        self.assertEqual((packages / "LedgroveEmblem.png").read_bytes(), b"of an older version")

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
