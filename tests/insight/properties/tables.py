"""Checks of options, sensitivity and map: every figure is the comparison with these texts."""
from fractions import Fraction
from math import isclose

from .program import CASE_FIGURES
from .samples import PAIRS, TERMS
from .steps import Steps, down_control, nearest, number

SIDE_FIGURES = ("ShownNet", "PVSavings", "SavingsAfterYearsInHome", "GMHMargin")
ROWS = ["debt", "down", "income", "insurance", "pmi", "propertyTax", "rates", "savings", "term", "upgrade", "yearsInHome"]
PLAIN = {"Conventional": 0, "FHA": 3, "VA": 5}


def with_pair(fields, pair):
    return fields | {"cboStdMortOption": pair[0], "cboGMHMortOption": pair[1]}


def options(case):
    fields, rows = case.fields, case.answer["options"]["rows"]
    case.same("options: pairs", [(row["base"], row["labelled"]) for row in rows], list(PAIRS))
    pair = fields["cboStdMortOption"], fields["cboGMHMortOption"]
    case.same("options.current", case.answer["options"]["current"], PAIRS.index(pair))
    records = yield [with_pair(fields, pair) for pair in PAIRS]
    for index, (row, record) in enumerate(zip(rows, records)):
        where = f"options[{index}]"
        faulty = any(record.faulty(home, number(fields[name])) for home, name in (("std", "ecStdHome"), ("gmh", "ecGMHHome")))
        case.same(f"{where}: missing", "missing" in row, faulty)
        if not faulty and "missing" not in row:
            option_row(case, where, row, record, records[PLAIN[row["base"]]])
            for home in ("std", "gmh"):
                yield from income_to_qualify(case, f"{where}.{home}", row, home)
    best(case, [row for row in rows if "missing" not in row])


def option_row(case, where, row, record, plain):
    for home in ("std", "gmh"):
        for name in CASE_FIGURES:
            case.near(f"{where}.{home}.{name}", row[home][name], record.home(home)[name])
        case.same(f"{where}.{home}.Qualifies", row[home]["Qualifies"], record.qualifies[home])
        case.same(f"{where}.{home}.Margin", row[home]["Margin"], record.margin(home))
    case.near(f"{where}.ShownNet", row["ShownNet"], record.net(case.fields["chkDoTax0"]))
    case.near(f"{where}.ExtraCashToday", row["ExtraCashToday"], record.scenario["ExtraCashToday"])
    case.near(f"{where}.PVSavings", row["PVSavings"], record.gmh["PVSavings"])
    case.same(f"{where}.LoanGain", row["LoanGain"], record.gmh["MaxLoan"] - plain.gmh["MaxLoan"])


def income_to_qualify(case, where, row, home):
    """The home qualifies at this income and at no lower one that is tried."""
    fields = with_pair(case.fields, (row["base"], row["labelled"]))
    steps = Steps(fields, "ecIncome")
    least = row[home]["IncomeToQualify"]
    top = steps.high + 1 if least is None else int(least)
    lower = {steps.low, steps.high, top - 1, top - 2, top - 30, *case.brackets,
             *(case.rng.randint(steps.low, max(steps.low, top)) for _ in range(8))}
    tried = sorted(step for step in lower if steps.low <= step < top) + ([top] if least is not None else [])
    for step, record in zip(tried, (yield [steps.with_step(step) for step in tried])):
        if record.qualifies[home] != (step == least):
            case.fault(f"{where}.IncomeToQualify", f"{least}, but at {step} the home "
                                                   f"{'qualifies' if record.qualifies[home] else 'does not qualify'}")
            return


def best(case, rows):
    """Where a row is best of all; five rows or more that tie have no best."""
    columns = {"payment": [-row["gmh"]["PITIU"] for row in rows], "cash": [-row["gmh"]["DownPayment"] for row in rows],
               "room": [row["gmh"]["Margin"] for row in rows], "net": [row["ShownNet"] for row in rows],
               "income": [None if row["gmh"]["IncomeToQualify"] is None else -row["gmh"]["IncomeToQualify"] for row in rows]}
    for column, values in columns.items():
        known = [value for value in values if value is not None]
        winners = [bool(known) and value == max(known) for value in values]
        wanted = winners if sum(winners) < 5 else [False] * len(rows)
        case.same(f"options: best {column}", [column in row["Best"] for row in rows], wanted)


def sensitivity(case):
    found = case.answer["sensitivity"]
    case.near("sensitivity.by", found["by"], float(case.by))
    case.same("sensitivity: rows", sorted(row["input"] for row in found["rows"]), ROWS)
    part = Fraction(case.by) / 100
    for row in found["rows"]:
        name = row["input"]
        if name in ("yearsInHome", "propertyTax", "insurance", "pmi"):
            yield from assumed(case, name, row, part)
            continue
        sides = typed(case.fields, name, part)
        for side in ("low", "high"):
            yield from typed_side(case, f"sensitivity.{name}.{side}", row[side], sides[side])
    order(case, found["rows"])


def typed(fields, name, part):
    """For each side the inputs put in and their steps; None where there is no such side."""
    base, labelled = number(fields["ecStdHome"]), number(fields["ecGMHHome"])
    if name == "term":
        place = TERMS.index(fields["cboMortTerm"])
        return {"low": TERMS[place - 1] if place else None, "high": TERMS[place + 1] if place + 1 < len(TERMS) else None}
    if name == "rates":
        pair = [Steps(fields, control) for control in ("ecStdRate", "ecGMHRate")]
        return {side: [(one, one.put(number(one.text) + off)) for one in pair] for side, off in (("low", -1), ("high", 1))}
    if name == "upgrade":
        step = Fraction(base, 100)
        return around(Steps(fields, "ecGMHHome"), labelled - base, part, step, lambda value: base + value)
    if name == "savings":
        bill = number(fields["ecStdUtil"])
        return around(Steps(fields, "ecGMHUtil"), bill - number(fields["ecGMHUtil"]), part, 0, lambda value: bill - value)
    control, step = {"income": ("ecIncome", 0), "debt": ("ecMonthlyDebt", 100), "down": (down_control(fields), 1)}[name]
    if control == "ecFixedDown":
        step = Fraction(base, 100)
    return around(Steps(fields, control, base), number(fields[control]), part, step, lambda value: value)


def around(steps, value, part, step, to_input):
    off = abs(value) * part if value else step
    low, high = (value * (1 - part), value * (1 + part)) if value else (-off, off)
    return {"low": [(steps, steps.put(to_input(low)))], "high": [(steps, steps.put(to_input(high)))]}


def typed_side(case, where, found, wanted):
    if wanted is None or found is None:
        case.same(where, found, wanted)
        return
    if isinstance(wanted, str):
        case.same(f"{where}.value", found["value"], wanted)
        record, = yield [case.fields | {"cboMortTerm": wanted}]
    else:
        texts = found["value"] if isinstance(found["value"], list) else [found["value"]]
        fields = dict(case.fields)
        for text, (steps, step) in zip(texts, wanted):
            case.true(f"{where}.value", steps.shown(step, text), f"{text} instead of {steps.text_of(step)}")
            fields[steps.control] = steps.with_step(step)[steps.control]
        case.same(f"{where}.value count", len(texts), len(wanted))
        record, = yield [fields]
    for name, figure in side_figures(case, record).items():
        case.near(f"{where}.{name}", found[name], figure)


def side_figures(case, record):
    return {"ShownNet": record.net(case.fields["chkDoTax0"]), "PVSavings": record.gmh["PVSavings"],
            "SavingsAfterYearsInHome": record.scenario["SavingsAfterYearsInHome"], "GMHMargin": record.margin("gmh")}


def assumed(case, name, row, part):
    """A side with other assumptions, which stand in a changed settings file."""
    keys = {"yearsInHome": ["YEARS_IN_HOME"], "propertyTax": ["ASSUMPTION1"], "insurance": ["ASSUMPTION2"],
            "pmi": [f"PMI_MULT{band}" for band in range(1, 5)]}[name]
    for side, factor, years in (("low", 1 - part, -2), ("high", 1 + part, 2)):
        where = f"sensitivity.{name}.{side}"
        if name == "yearsInHome":
            values = [max(0, int(case.settings[keys[0]]) + years)]
        else:
            values = [float(Fraction(case.settings[key]) * factor) for key in keys]
        got = row[side]["value"] if isinstance(row[side]["value"], list) else [row[side]["value"]]
        if len(got) != len(values) or any(not isclose(a, b, rel_tol=1e-6, abs_tol=1e-12) for a, b in zip(got, values)):
            case.fault(f"{where}.value", f"{got} instead of {values}")
        record, = yield [case.fields], {key: f"{value:.12f}" if name != "yearsInHome" else str(value)
                                        for key, value in zip(keys, values)}
        for figure, value in side_figures(case, record).items():
            case.close(f"{where}.{figure}", row[side][figure], value, 1e-6 * max(abs(value), case.now.gmh["Cost"], 1)
                       if figure == "GMHMargin" else 1e-5 * max(1, abs(value)))


def order(case, rows):
    now = side_figures(case, case.now)

    def key(row):
        moves = {}
        for name in ("ShownNet", "PVSavings"):
            low, high = (now[name] if row[side] is None else case.exact(row[side][name]) for side in ("low", "high"))
            moves[name] = abs(high - low)
        return -moves["ShownNet"], -moves["PVSavings"], row["input"]

    case.same("sensitivity: order", [row["input"] for row in rows], [row["input"] for row in sorted(rows, key=key)])


def net_map(case):
    fields, found, taxes = case.fields, case.answer["map"], case.fields["chkDoTax0"]
    base, bill = number(fields["ecStdHome"]), number(fields["ecStdUtil"])
    here = {"price": number(fields["ecGMHHome"]) - base, "savings": bill - number(fields["ecGMHUtil"])}
    case.same("map.here", found["here"]["price"], here["price"])
    case.same("map.here", found["here"]["savings"], here["savings"])
    case.near("map.here.net", found["here"]["net"], case.now.net(taxes))
    even = case.answer["breakeven"]
    tops = {"price": here["price"], "savings": here["savings"]}
    if even["price"]["state"] == "found":
        tops["price"] = max(tops["price"], number(even["price"]["to"]) - base)
    if even["bill"]["state"] == "found":
        tops["savings"] = max(tops["savings"], bill - number(even["bill"]["to"]))
    for axis, otherwise in (("price", 20_000), ("savings", 2_000)):
        top = 2 * tops[axis] if tops[axis] > 0 else otherwise
        case.same(f"map.{axis}", found[axis], [nearest(Fraction(j * top, 40)) for j in range(41)])
    case.same("map: size", [len(found["net"]), *{len(row) for row in found["net"]}], [41, 41])
    cells = [(0, 0), (0, 40), (40, 0), (40, 40)] + [(case.rng.randrange(41), case.rng.randrange(41)) for _ in range(30)]
    valid = [(row, col) for row, col in cells if bill - found["savings"][row] >= 0]
    for row, col in set(cells) - set(valid):
        case.same(f"map.net[{row}][{col}]", found["net"][row][col], None)
    inputs = [fields | {"ecGMHHome": str(base + found["price"][col]), "ecGMHUtil": str(bill - found["savings"][row])}
              for row, col in valid]
    for (row, col), record in zip(valid, (yield inputs)):
        if record.error:
            case.fault(f"map.net[{row}][{col}]", f"{found['net'][row][col]}, but compare refuses: {record.error}")
        else:
            case.near(f"map.net[{row}][{col}]", found["net"][row][col], record.net(taxes))
