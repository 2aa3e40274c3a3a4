"""Checks of explain: every expression gives its value, every name is a figure, and every shown amount has one."""
import re
from itertools import accumulate

TOKEN = re.compile(r"\s*(?:(\d+(?:\.\d+)?(?:[eE][-+]?\d+)?)|([A-Za-z_][\w.]*)|([-+*/(),]))")
WITHIN = 6e-7


def growth(rate, periods):
    return (1 + rate) ** periods


def payment(rate, periods, amount):
    return -amount * rate / (1 - growth(rate, -periods)) if rate else -amount / periods


def interest(rate, period, periods, amount):
    """The interest of a period is paid on the balance after the one before."""
    paid = growth(rate, period - 1)
    balance = amount * paid + (payment(rate, periods, amount) * (paid - 1) / rate if rate else 0)
    return -balance * rate


FUNCTIONS = {
    "min": min, "max": max, "PMT": payment, "IPMT": interest,
    "PV": lambda rate, periods, paid: -paid * ((1 - growth(rate, -periods)) / rate if rate else periods),
    "FV": lambda rate, periods, paid: -paid * ((growth(rate, periods) - 1) / rate if rate else periods),
}


class Reader:
    """Evaluates an expression over named values; ValueError for what is not one."""

    def __init__(self, text, values):
        self.values, self.tokens, place = values, [], 0
        while place < len(text.rstrip()):
            found = TOKEN.match(text, place)
            if not found:
                raise ValueError(f"cannot read {text[place:]!r}")
            self.tokens.append(found.group(0).strip())
            place = found.end()

    def next(self):
        return self.tokens[0] if self.tokens else None

    def take(self, wanted=None):
        if not self.tokens or (wanted and self.tokens[0] != wanted):
            raise ValueError(f"{wanted or 'more'} expected at {self.next()!r}")
        return self.tokens.pop(0)

    def whole(self):
        value = self.sum()
        if self.tokens:
            raise ValueError(f"{self.next()!r} is left over")
        return value

    def sum(self):
        value = self.product()
        while self.next() in ("+", "-"):
            value = value + self.product() if self.take() == "+" else value - self.product()
        return value

    def product(self):
        value = self.factor()
        while self.next() in ("*", "/"):
            value = value * self.factor() if self.take() == "*" else value / self.factor()
        return value

    def factor(self):
        token = self.take()
        if token == "-":
            return -self.factor()
        if token == "(":
            value = self.sum()
            self.take(")")
            return value
        if token[0].isdigit():
            return float(token)
        if self.next() == "(" and token in FUNCTIONS:
            self.take("(")
            arguments = [self.sum()]
            while self.next() == ",":
                self.take()
                arguments.append(self.sum())
            self.take(")")
            return FUNCTIONS[token](*arguments)
        if token not in self.values:
            raise ValueError(f"{token} is not in the values")
        return self.values[token]


def explain(case):
    figures = case.answer["explain"]["figures"]
    names = [figure["figure"] for figure in figures]
    case.same("explain: names once", len(set(names)), len(names))
    known = {}
    for figure in figures:
        chain(case, figure, known)
        known[figure["figure"]] = figure["value"]
        record, _, name = figure["figure"].partition(".")
        stored = {"StdCase": case.now.std, "GMHCase": case.now.gmh, "Scenario": case.now.scenario}.get(record, {}).get(name)
        if stored is not None:
            case.near(f"explain {figure['figure']}", case.exact(figure["value"]), float(stored))
    shown_labels(case, figures)
    yield from ()


def chain(case, figure, known):
    """A figure after everything that it is computed from, so that no chain runs in a circle."""
    where = f"explain {figure['figure']}"
    if ("expression" in figure) == ("from" in figure):
        case.fault(where, "needs either an expression or from")
        return
    if "from" in figure:
        case.true(where, figure["from"] != "", "from is empty")
        return
    for name, value in figure["values"].items():
        case.true(where, name in known, f"{name} is not a figure above it")
        case.same(f"{where}: {name}", value, known.get(name))
    try:
        value = Reader(figure["expression"], figure["values"]).whole()
    except (ValueError, ZeroDivisionError, OverflowError) as fault:
        case.fault(where, f"{figure['expression']}: {fault}")
        return
    largest = max(abs(one) for one in (figure["value"], *figure["values"].values()))
    case.close(f"{where}: {figure['expression']}", value, figure["value"], WITHIN * largest)
    if figure["expression"] == "0":
        case.true(where, figure["because"] != "", "0 without a reason")
    deciding_ratio(case, figure, where)


def deciding_ratio(case, figure, where):
    """The reason names the ratio whose amount is the figure. Incomes that agree in whole dollars are the same."""
    claim = re.search(r"(The front-end ratio|The back-end ratio|Both ratios) (allows? less|allow the same|require)", figure["because"])
    if not claim:
        return
    depths = list(accumulate((char == "(") - (char == ")") for char in figure["expression"]))
    comma = next(at for at, char in enumerate(figure["expression"]) if char == "," and depths[at] == 1)
    front, back = (Reader(part, figure["values"]).whole()
                   for part in (figure["expression"][4:comma], figure["expression"][comma + 1:-1]))
    more, error = (front - back) * (1 if figure["expression"].startswith("max") else -1), WITHIN * max(abs(front), abs(back))
    same = error + (1.01 if claim[2] == "require" else 0)
    said = {"The front-end ratio": more > -error, "The back-end ratio": more < error, "Both ratios": abs(more) <= same}
    case.true(where, said[claim[1]], f"{figure['because']}: {front}, {back}")


def shown_labels(case, figures):
    """Every visible label with an amount, and who qualifies, has a figure with the same text."""
    texts = {label: figure["text"] for figure in figures for label in figure["labels"]}
    for name, label in case.full["labels"].items():
        amount = re.fullmatch(r"-?\$-?[\d,.]+", label["text"]) or name in ("lblStdQual", "lblGMHQual")
        if amount and label["visible"] and name != "Label6":
            case.same(f"explain: label {name}", texts.get(name), label["text"])
