"""Asks ledgrove-cli: answers of insight, and comparisons, many at a time."""
import json
import struct
import subprocess

VIEWS = "takeaway,breakeven,options,qualify,sensitivity,map,years,energy,tax,exit,explain"
CASE_FIGURES = ("DownPayment", "LoanAmount", "MortPayment", "PMIMonthly", "PITI", "PITIU", "IncomeNeeded", "MaxLoan")
SCENARIO_FIGURES = ("NetMonthlyCashFlow", "NetBeforeTax", "CostDifference", "ExtraCashToday", "SavingsAfterYearsInHome")
ONLY = ",".join(["lblStdQual", "lblGMHQual", "GMHCase.PVSavings"]
                + [f"{home}.{name}" for home in ("StdCase", "GMHCase") for name in CASE_FIGURES]
                + [f"Scenario.{name}" for name in SCENARIO_FIGURES])


def single(number):
    """The single-precision value that a record holds, from its decimal text."""
    return struct.unpack("f", struct.pack("f", number))[0]


class Record:
    """One evaluated comparison: its figures as doubles, and who qualifies."""

    def __init__(self, result):
        self.error = result.get("error")
        if self.error:
            return
        self.std, self.gmh, self.scenario = ({key: value if isinstance(value, bool) else single(value)
                                              for key, value in result[part].items()}
                                             for part in ("StdCase", "GMHCase", "Scenario"))
        self.qualifies = {"std": result["labels"]["lblStdQual"]["text"] == "YES",
                          "gmh": result["labels"]["lblGMHQual"]["text"] == "YES"}

    def home(self, home):
        return self.std if home == "std" else self.gmh

    def net(self, taxes):
        """The monthly net as shown, in dollars."""
        return self.scenario["NetMonthlyCashFlow" if taxes else "NetBeforeTax"]

    def margin(self, home):
        return self.home(home)["MaxLoan"] - self.home(home)["LoanAmount"]

    def faulty(self, home, price):
        """Whether the home's figures could not be computed: down payment and loan are 0, though together they are the price."""
        case = self.home(home)
        return price > 0 and case["DownPayment"] == 0 and case["LoanAmount"] == 0


class Program:
    """The command-line program."""

    def __init__(self, path):
        self.path = path

    def lines(self, command, folder, inputs, *options):
        if not inputs:
            return []
        text = "".join(json.dumps(one) + "\n" for one in inputs)
        run = subprocess.run([self.path, command, "--folder", str(folder), "--format", "jsonl", *options], input=text,
                             capture_output=True, text=True, check=False)
        results = [json.loads(line) for line in run.stdout.splitlines()]
        if len(results) != len(inputs):
            raise RuntimeError(f"{command} answered {len(results)} of {len(inputs)} comparisons: {run.stderr}")
        return results

    def compare(self, folder, inputs):
        """Full results."""
        return self.lines("compare", folder, inputs, "--jobs", "1")

    def records(self, folder, inputs):
        return [Record(one) for one in self.lines("compare", folder, inputs, "--jobs", "1", "--quiet", "--only", ONLY)]

    def insight(self, folder, inputs, by):
        return self.lines("insight", folder, inputs, "--view", VIEWS, "--by", by)
