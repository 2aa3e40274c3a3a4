"""Manual pages, completion and the result schema: they name what the program has, and the tools that read them agree."""
import json
import os
import pty
import re
import select
import subprocess
import sys
import time
import unittest
from pathlib import Path

import jsonschema

PAGES = Path(sys.argv.pop(1)).resolve()
from cli_desk import PROGRAM, SOURCE, CliTest  # noqa: E402

PROGRAM = PROGRAM.resolve()
COMMANDS = ["compare", "insight", "range", "diff", "report", "chart", "settings get", "settings set", "settings check", "settings houses"]


def shown_help(command):
    return subprocess.run([PROGRAM, *command.split(), "--help"], capture_output=True, text=True, check=True).stdout


def options_of(command):
    return set(re.findall(r"^  (?:-h,)?(--[a-z-]+)", shown_help(command), re.M))


def choices_of(command):
    return re.findall(r"^  (--[a-z]+) ([a-z]\w*(?:\|\w+)+)", shown_help(command), re.M)


class ManPages(unittest.TestCase):
    def test_the_formatters_accept_them(self):
        for program in ("ledgrove", "ledgrove-cli"):
            page = PAGES / f"man/man1/{program}.1"
            lint = subprocess.run(["mandoc", "-Tlint", "-W", "warning", page], capture_output=True, text=True)
            self.assertEqual((lint.stdout, lint.returncode), ("", 0))
            index = subprocess.run(["lexgrog", page], capture_output=True, text=True, check=True).stdout
            self.assertIn(f'"{program} - ', index)

    def test_they_name_every_command_and_option(self):
        page = (PAGES / "man/man1/ledgrove-cli.1").read_text().replace("\\-", "-")
        for command in COMMANDS:
            section = re.search(rf"^\.SS {command}\n(.*?)^\.S", page, re.M | re.S)[1]
            for option in options_of(command) - {"--folder", "--version", "--help"}:
                self.assertIn(f"\\fB{option}\\fR", section, command)
        for option in ("--folder", "--version", "--help"):
            self.assertIn(f"\n.TP\n\\fB{option}\\fR", page)
            self.assertIn(f"\n.TP\n\\fB{option}\\fR", (PAGES / "man/man1/ledgrove.1").read_text().replace("\\-", "-"))

    def test_the_page_can_be_copied_from(self):
        shown = subprocess.run(["man", "-l", PAGES / "man/man1/ledgrove-cli.1"], capture_output=True, text=True, check=True,
                               env={"PATH": "/usr/bin:/bin", "LANG": "C.UTF-8", "MANWIDTH": "100"}).stdout
        self.assertIn('ledgrove-cli report --output comparison.pdf --buyer "Pat Doe" home.ledgrove.json', shown)
        self.assertIn("2      the command line, the settings or a file cannot be used", shown)


class Completion(CliTest):
    """What each shell offers for a command line that ends where the cursor is."""

    def environment(self):
        return {"PATH": f"{PROGRAM.parent}:/usr/bin:/bin", "HOME": str(self.folder), "LANG": "C.UTF-8", "TERM": "dumb"}

    def bash(self, line):
        words = line.split(" ")
        source = f"source '{PAGES}/bash-completion/completions/{words[0]}'\n"
        script = (f"{source}compopt() {{ :; }}\n"
                  f"COMP_WORDS=({' '.join(repr(word) for word in words)})\nCOMP_CWORD={len(words) - 1}\n"
                  f"_{words[0].replace('-', '_')}\nprintf '%s\\n' \"${{COMPREPLY[@]}}\"\n")
        return set(self.run_shell("bash", "-c", script).split("\n")) - {""}

    def fish(self, line):
        script = f"source '{PAGES}/fish/vendor_completions.d/{line.split()[0]}.fish'; complete -C {line!r}"
        return {found.split("\t")[0] for found in self.run_shell("fish", "--no-config", "-c", script).splitlines()}

    def run_shell(self, *words):
        run = subprocess.run(words, capture_output=True, text=True, timeout=60, env=self.environment(), cwd=self.folder)
        self.assertEqual(run.stderr, "")
        return run.stdout

    def test_commands_and_options(self):
        for offered in (self.bash, self.fish):
            self.assertEqual(offered("ledgrove-cli re"), {"report"})
            self.assertEqual(offered("ledgrove-cli settings "), {"get", "set", "check", "houses"})
            for command in COMMANDS:
                self.assertEqual(offered(f"ledgrove-cli {command} --"), options_of(command), (offered, command))
            self.assertEqual(offered(f"ledgrove-cli --folder {self.folder} settings h"), {"houses"})
            self.assertEqual(offered("ledgrove --"), {"--folder", "--version", "--help"})

    def test_values(self):
        compared = 0
        for offered in (self.bash, self.fish):
            for command in COMMANDS:
                for option, values in choices_of(command):
                    self.assertEqual(offered(f"ledgrove-cli {command} {option} "), set(values.split("|")))
                    compared += 1
            self.assertEqual(offered("ledgrove-cli settings get ASSUMPTION"),
                             {"ASSUMPTION1", "ASSUMPTION2"})
            self.assertIn("lblStdQual", offered("ledgrove-cli compare --only lblStdQ"))
            self.assertEqual(offered("ledgrove-cli compare --only messages,StdCase.PITIU"), {"messages,StdCase.PITIU"})
        self.assertGreaterEqual(compared, 10)

    def test_files_folders_and_houses(self):
        (self.folder / "my homes").mkdir()
        (self.folder / "my list.csv").write_text("")
        for offered in (self.bash, self.fish):
            plain = {name.replace("\\", "").rstrip("/") for name in offered("ledgrove-cli compare my")}
            self.assertEqual(plain, {"my homes", "my list.csv"})
            plain = {name.replace("\\", "").rstrip("/") for name in offered("ledgrove-cli compare --folder my")}
            self.assertEqual(plain, {"my homes"})
            plain = {name.replace("\\", "") for name in offered("ledgrove-cli compare --house The")}
            self.assertEqual(plain, {"The Alder", "The Birch", "The Cedar"})

    def zsh(self, typed):
        """The line after Tab in a real zsh on a terminal of its own."""
        process, terminal = pty.fork()
        if process == 0:
            os.chdir(self.folder)
            os.execve("/usr/bin/zsh", ["zsh", "-f", "-i"], self.environment())
        shown = b""

        def read_until(end):
            nonlocal shown
            limit = time.monotonic() + 30
            while end not in shown:
                ready, _, _ = select.select([terminal], [], [], max(0, limit - time.monotonic()))
                self.assertTrue(ready, shown)
                shown += os.read(terminal, 4096)

        setup = (f"fpath=({PAGES}/zsh/site-functions $fpath); autoload -U compinit; compinit -u -D; "
                 "setopt no_auto_menu; PROMPT='>'; echo re''ady\n")
        os.write(terminal, setup.encode())
        read_until(b"ready")
        # One key completes and writes down the line: keys that wait would end the completion.
        os.write(terminal, b"show() { zle complete-word; print -r -- \"[[$BUFFER]]\" > line; }; zle -N show; bindkey '^X' show; "
                           b"echo bou''nd\n")
        read_until(b"bound")
        os.write(terminal, typed.encode() + b"\x18")
        line = self.folder / "line"
        limit = time.monotonic() + 30
        while not (line.exists() and line.read_text().endswith("]]\n")) and time.monotonic() < limit:
            time.sleep(0.02)
        os.close(terminal)
        os.waitpid(process, 0)
        result = line.read_text()
        line.unlink()
        return re.search(r"\[\[(.*)\]\]", result)[1].rstrip(" ,")

    def test_zsh(self):
        for typed, completed in (("ledgrove-cli rep", "ledgrove-cli report"),
                                 ("ledgrove-cli report --pap", "ledgrove-cli report --paper"),
                                 ("ledgrove-cli chart --tab aff", "ledgrove-cli chart --tab affordability"),
                                 ("ledgrove-cli settings hou", "ledgrove-cli settings houses"),
                                 ("ledgrove-cli settings get YEARS", "ledgrove-cli settings get YEARS_IN_HOME"),
                                 ("ledgrove-cli compare --house The\\ B", "ledgrove-cli compare --house The\\ Birch"),
                                 ("ledgrove-cli compare --only messages,lblStdQ", "ledgrove-cli compare --only messages,lblStdQual"),
                                 ("ledgrove --fol", "ledgrove --folder")):
            self.assertEqual(self.zsh(typed), completed)


class Schema(CliTest):
    schema = json.loads((SOURCE / "data/result.schema.json").read_text())

    def validator(self, definition=None):
        schema = {**self.schema, "oneOf": [{"$ref": f"#/$defs/{definition}"}]} if definition else self.schema
        return jsonschema.Draft202012Validator(schema)

    def test_it_is_a_schema_made_from_the_tables(self):
        jsonschema.Draft202012Validator.check_schema(self.schema)
        self.assertEqual(self.schema["$schema"], "https://json-schema.org/draft/2020-12/schema")
        self.assertEqual((SOURCE / "data/result.schema.json").read_text(), (PAGES / "documents/result.schema.json").read_text(),
                         "Copy the file of the build folder.")

    def test_results_and_refusals_are_valid(self):
        cases = (SOURCE / "tests/golden/compare/cases.jsonl").read_text().splitlines(True)[:200]
        given = "".join(cases) + '{"ecIncome": "abc"}\n{"unknown": 1}\nno json\n{}\n'
        lines = self.compare("jsonl", given, status=1).splitlines()
        self.assertEqual(len(lines), len(cases) + 4)
        kinds = set()
        for line in lines:
            result = json.loads(line)
            self.validator().validate(result)
            kinds.add("error" in result)
        self.assertEqual(kinds, {True, False})
        bad = self.folder / "bad.json"
        bad.write_text("{")
        run = self.run_cli("compare", "--folder", self.folder, "--format", "json", bad, status=1)
        self.assertEqual(json.loads(run.stdout)["error"]["file"], str(bad))
        self.validator("refusal").validate(json.loads(run.stdout))

    def test_chosen_results_are_valid_parts(self):
        names = "ecIncome,optDownPayment,lblStdQual,StdCase.PITI,Scenario.EEM notice flag,messages"
        out = self.run_cli("compare", "--folder", self.folder, "--format", "json", "--only", names, given="{}").stdout
        self.validator("part").validate(json.loads(out))
        self.assertFalse(self.validator("result").is_valid(json.loads(out)))

    def test_it_knows_every_member_and_refuses_wrong_ones(self):
        whole = self.compare_json({"ecStdHome": "200000"})
        for member, value in whole.items():
            if isinstance(value, dict):
                self.assertEqual(list(self.schema["$defs"][member]["properties"]), list(value))
        self.assertEqual(list(self.schema["$defs"]["part"]["properties"]), list(whole))
        for break_it in (lambda one: one.pop("messages"), lambda one: one["StdCase"].pop("PITI"),
                         lambda one: one["labels"]["lblStdQual"].update(color="red"),
                         lambda one: one["Scenario"].update(YearsInHome=7.5), lambda one: one["fields"].update(ecIncome=5)):
            broken = json.loads(json.dumps(whole))
            break_it(broken)
            self.assertFalse(self.validator().is_valid(broken))


class Documents(unittest.TestCase):
    def test_the_table_of_results_is_that_of_the_program(self):
        text = (SOURCE / "docs/cli.md").read_text()
        rows = (PAGES / "documents/results.md").read_text().splitlines()
        table = text.split("| name | unit | meaning | in a price list |\n| --- | --- | --- | --- |\n")[1].split("\n\n")[0]
        self.assertEqual(table.splitlines(), rows, "Copy the rows of the build folder's documents/results.md.")
        self.assertTrue(all(meaning.strip() for meaning in re.findall(r"^\|[^|]*\|[^|]*\|([^|]*)\|", table, re.M)))


if __name__ == "__main__":
    unittest.main()
