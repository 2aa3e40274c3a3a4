"""The help is correct: its links have targets, it explains every control, and each figure of its worked examples is the
program's result for the example's inputs.

The help marks what is checked: data-inputs (a comparison in JSON) around an example, data-field, data-label, data-record
and data-insight (the place in the answers) on the figures in it, data-changes on an example for the inputs that another
comparison has, data-diff (label and member or input) on the figures of their difference, class="sum" on a sum that must be
right as printed, data-default on a value of the settings file, and data-control and data-explains for the control or label that a passage explains."""
import json
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
DATA = SOURCE / "data"
TAB_ANCHORS = {"ctx501", "ctx504", "ctx505", "ctx506", "ctx507"}
HALF_A_UNIT = 0.5 + 1e-6


def words(element):
    return " ".join("".join(element.itertext()).split())


def number_of(text):
    """The number that a text shows, and the value of its last digit."""
    shown = text.replace("−", "-").replace("$", "").replace(",", "").strip()
    percent = shown.endswith("%")
    shown = shown.rstrip("% ")
    unit = 10.0 ** -len(shown.partition(".")[2])
    return (float(shown) / 100, unit / 100) if percent else (float(shown), unit)


def expression(element):
    """A sum as a Python expression; superscripts are exponents."""
    text = element.text or ""
    for child in element:
        inner = expression(child)
        text += (f"**({inner})" if child.tag == "sup" else inner) + (child.tail or "")
    text = text.replace("\u2060", "").replace("−", "-").replace("×", "*").replace("÷", "/").replace("$", "").replace(",", "")
    return re.sub(r"([\d.]+)%", r"(\1/100)", text)


class HelpTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        settings = (DATA / "Ledgrove.ini").read_bytes().decode("cp1252")
        cls.lines = [line.partition("=")[::2] for line in settings.splitlines() if "=" in line]
        cls.file = DATA / dict(cls.lines)["HELPFILE"]
        cls.root = ElementTree.parse(cls.file).getroot()  # raises an error if the help is not well formed
        cls.results = {}

    def compare(self, inputs):
        """The program's result for the inputs; each comparison runs only once."""
        if inputs not in self.results:
            run = subprocess.run([PROGRAM, "compare", "--folder", DATA, "--format", "json"], input=inputs.encode(),
                                 capture_output=True, timeout=60)
            self.assertEqual(run.returncode, 0, run.stdout.decode() + run.stderr.decode())
            self.results[inputs] = json.loads(run.stdout)
        return self.results[inputs]

    def marked(self, attribute, start=None):
        return [element for element in (self.root if start is None else start).iter() if attribute in element.attrib]

    def all_marks(self, attribute):
        return {name for element in self.marked(attribute) for name in element.get(attribute).split()}


class Links(HelpTest):
    def anchors(self):
        return [element.get("name") for element in self.root.iter("a") if element.get("name")]

    def test_every_anchor_is_unique(self):
        names = self.anchors()
        self.assertEqual(sorted(names), sorted(set(names)))

    def test_every_topic_that_the_windows_open_exists(self):
        asked = set(TAB_ANCHORS)
        for folder in ("ui", "reports", "app"):
            for path in (SOURCE / folder).rglob("*.cpp"):
                asked |= set(re.findall(r'"(ctx[A-Z]\w*)"', path.read_text()))
        self.assertGreaterEqual(len(asked), 11)
        self.assertEqual(asked - set(self.anchors()), set())

    def test_every_link_leads_to_a_topic(self):
        links = [element.get("href") for element in self.root.iter("a") if element.get("href")]
        self.assertGreater(len(links), 30)
        for link in links:
            self.assertTrue(link.startswith("#") and link[1:] in self.anchors(), link)

    def test_the_contents_lead_to_every_topic(self):
        listed = {element.get("href")[1:] for element in self.root.find("body").findall("table")[0].iter("a")}
        topics = {anchor.get("name") for heading in self.root.iter("h2") for anchor in heading.iter("a")}
        self.assertEqual(topics - listed, set())

    def test_it_needs_no_other_file(self):
        for element in self.root.iter():
            self.assertNotIn(element.tag, ("img", "link", "script", "iframe", "object"))

    def test_it_names_its_encoding_and_sets_no_colour(self):
        text = self.file.read_text(encoding="utf-8")
        self.assertIn("charset=utf-8", text)
        self.assertIsNone(re.search(r"color|background", text))  # a fixed colour would be unreadable on a dark or a light palette


class Explanations(HelpTest):
    def test_every_input_of_the_main_window_is_explained(self):
        fields = set(self.compare("{}")["fields"])
        self.assertGreater(len(fields), 15)
        self.assertEqual(fields - self.all_marks("data-control"), set())

    def test_every_figure_of_every_tab_is_explained(self):
        labels = set(self.compare("{}")["labels"])
        self.assertGreater(len(labels), 50)
        self.assertEqual(labels - self.all_marks("data-explains") - self.all_marks("data-control"), set())
        self.assertEqual(self.all_marks("data-explains") - labels, set())

    def test_every_field_of_the_dialogs_is_explained(self):
        names = set()
        for path in [SOURCE / "ui/windows/AssumptionGroups.cpp", SOURCE / "ui/windows/frmOptions.cpp",
                     SOURCE / "ui/windows/frmHomeSelection.cpp", SOURCE / "reports/windows/FrmPrintOptions.cpp"]:
            names |= set(re.findall(r'"((?:ec|txt|opt|cbo)[A-Z]\w*|FER|BER|PMI_Multiplier)"', path.read_text()))
        self.assertGreater(len(names), 15)
        self.assertEqual(names - self.all_marks("data-control"), set())

    def test_every_remark_of_the_data_check_is_listed(self):
        text = words(self.root)
        remarks = set()
        base = {"ecIncome": "1", "ecStdHome": "100000", "ecGMHHome": "100000", "ecStdUtil": "10", "ecGMHUtil": "10"}
        for inputs in ({"ecStdRate": "0"}, base | {"ecGMHHome": "99000", "ecGMHUtil": "11", "ecGMHRate": "21"},
                       base | {"ecGMHHome": "120000", "ecStdRate": "9", "ecStdStr": "3%"}, base | {"ecGMHStr": "6%"}):
            lines = re.split(r"[\r\n]+", self.compare(json.dumps(inputs))["dataCheck"])
            remarks |= {" ".join(line.split()) for line in lines if line} - {"Attention!"}
        self.assertEqual(len(remarks), 16)  # all but the one about a rate below 0, which cannot be entered
        for remark in remarks:
            self.assertIn(remark, text)

    def test_the_notices_are_listed(self):
        inputs = {"ecStdHome": "200000", "ecGMHHome": "219000", "ecStdUtil": "2400", "ecGMHUtil": "2300",
                  "cboGMHMortOption": "Freddie Mac EEM"}
        messages = [" ".join(message["text"].split()) for message in self.compare(json.dumps(inputs))["messages"]]
        self.assertEqual(len(messages), 1)
        self.assertIn(messages[0], words(self.root))


class Examples(HelpTest):
    def figures(self, attribute):
        """The name and text of each marked figure, with the result of its example."""
        for example in self.marked("data-inputs"):
            result = self.compare(example.get("data-inputs"))
            for element in self.marked(attribute, example):
                yield element.get(attribute), words(element), result

    def test_fields(self):
        shown = list(self.figures("data-field"))
        self.assertGreater(len(shown), 12)
        for name, text, result in shown:
            with self.subTest(name):
                # the base home's rate keeps its typed form until the field loses the focus
                self.assertEqual(text, result["fields"][name])

    def test_labels(self):
        shown = list(self.figures("data-label"))
        for name, text, result in shown:
            with self.subTest(name):
                self.assertEqual(text, " ".join(result["labels"][name]["text"].split()))
        self.assertGreater(len({name for name, _, _ in shown}), 40)

    def test_records(self):
        shown = list(self.figures("data-record"))
        self.assertGreater(len(shown), 30)
        for name, text, result in shown:
            record, _, member = name.partition(".")
            value, unit = number_of(text)
            with self.subTest(name):
                self.assertLessEqual(abs(value - result[record][member]), HALF_A_UNIT * unit,
                                     f"{text} for {result[record][member]}")

    def insight(self, inputs):
        """All answers of insight; the figures of explain by their names."""
        views = "breakeven,options,qualify,sensitivity,map,years,energy,tax,exit,explain"
        run = subprocess.run([PROGRAM, "insight", "--folder", DATA, "--format", "json", "--view", views],
                             input=inputs.encode(), capture_output=True, check=True, timeout=60)
        answers = json.loads(run.stdout)
        answers["explain"] = {figure["figure"]: figure for figure in answers["explain"]["figures"]}
        return answers

    @staticmethod
    def at(answers, place):
        """The value at "qualify.gmh.income.to"; names of figures have a point of their own."""
        if place.startswith("explain."):
            figure, _, member = place.removeprefix("explain.").rpartition(".")
            return answers["explain"][figure][member]
        for step in place.split("."):
            answers = answers[int(step) if isinstance(answers, list) else step]
        return answers

    def test_answers_of_insight(self):
        shown = 0
        for example in self.marked("data-inputs"):
            marked = self.marked("data-insight", example)
            answers = self.insight(example.get("data-inputs")) if marked else None
            for element in marked:
                value, text = self.at(answers, element.get("data-insight")), words(element)
                shown += 1
                with self.subTest(element.get("data-insight")):
                    if isinstance(value, str):
                        self.assertEqual(text, value)
                    else:
                        number, unit = number_of(text)
                        self.assertLessEqual(abs(number - value), HALF_A_UNIT * unit, f"{text} for {value}")
        self.assertGreater(shown, 26)

    def diff(self, inputs, changes):
        """What differs between two comparisons, by the labels of the figures."""
        with tempfile.TemporaryDirectory() as folder:
            other = Path(folder) / "other.json"
            other.write_text(json.dumps(json.loads(inputs) | json.loads(changes)))
            run = subprocess.run([PROGRAM, "diff", "--folder", DATA, "--format", "json", "-", other],
                                 input=inputs.encode(), capture_output=True, check=True, timeout=60)
        return {figure["label"]: figure | {part["input"]: part["amount"] for part in figure["parts"]}
                for figure in json.loads(run.stdout)["figures"]}

    def test_differences(self):
        shown = 0
        for example in self.marked("data-changes"):
            figures = self.diff(example.get("data-inputs"), example.get("data-changes"))
            for element in self.marked("data-diff", example):
                label, _, member = element.get("data-diff").partition(".")
                number, unit = number_of(words(element))
                shown += 1
                with self.subTest(element.get("data-diff")):
                    self.assertLessEqual(abs(number - figures[label][member]), HALF_A_UNIT * unit, words(element))
        self.assertEqual(shown, len(self.marked("data-diff")))
        self.assertGreater(shown, 6)

    def test_every_figure_is_inside_an_example(self):
        inside = [element for example in self.marked("data-inputs") for element in example.iter()]
        for attribute in ("data-field", "data-label", "data-record", "data-insight", "data-diff"):
            for element in self.marked(attribute):
                self.assertIn(element, inside, words(element))

    def test_sums_are_right_as_printed(self):
        sums = [element for element in self.root.iter("span") if element.get("class") == "sum"]
        self.assertGreater(len(sums), 40)
        for element in sums:
            left, _, right = expression(element).partition("=")
            shown, unit = number_of(words(element).partition("=")[2])
            with self.subTest(words(element)):
                self.assertRegex(left, r"^[\d.\s+\-*/()]+$")
                self.assertLessEqual(abs(eval(left) - shown), HALF_A_UNIT * unit, eval(left))


class Defaults(HelpTest):
    def values(self):
        """The settings by the names that the help uses; list keys include the number of the line and of the field."""
        found = {}
        counts = {}
        for key, value in self.lines:
            if key in ("TAXCAT", "LOANTYPE"):
                counts[key] = counts.get(key, 0) + 1
                for number, field in enumerate(value.split(","), 1):
                    found[f"{key}.{counts[key]}.{number}"] = field
            else:
                found[key] = value
        return found

    def test_quoted_values_are_those_of_the_settings_file(self):
        values = self.values()
        quoted = self.marked("data-default")
        self.assertGreater(len(quoted), 30)
        for element in quoted:
            key, text = element.get("data-default"), words(element)
            with self.subTest(key):
                if re.fullmatch(r"[\d.]+", values[key]):
                    # the file holds percents as percents and ratios as fractions
                    shown = number_of(text if key.startswith("LOANTYPE") else text.replace("%", ""))[0]
                    self.assertAlmostEqual(shown, float(values[key]), places=9)
                else:
                    self.assertEqual(text, values[key])

    def test_every_value_is_quoted(self):
        quoted = self.all_marks("data-default")
        for key in self.values():
            if key.startswith(("TAXCAT.", "PMI_", "ASSUMPTION", "PVSAVINGS", "YEARS", "FEATURE")) or \
                    re.fullmatch(r"LOANTYPE\.\d\.[45]", key):
                if key != "TAXCAT.6.1":  # no limit
                    self.assertIn(key, quoted)


if __name__ == "__main__":
    unittest.main()
