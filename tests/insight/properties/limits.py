"""Checks of breakeven and qualify: every limit and nearest at its step, one step further or nearer, and at steps between."""
from .samples import PAIRS
from .steps import Steps, down_control, number, terms_from

UP, DOWN = 1, -1


def breakeven(case):
    found = case.answer["breakeven"]
    taxes = case.fields["chkDoTax0"]
    conditions = {
        "price": ("ecGMHHome", UP, lambda r: r.net(taxes) >= 0),
        "priceBeforeTax": ("ecGMHHome", UP, lambda r: r.scenario["NetBeforeTax"] >= 0),
        "savingsPrice": ("ecGMHHome", UP, lambda r: r.gmh["PVSavings"] >= r.scenario["CostDifference"]),
        "bill": ("ecGMHUtil", UP, lambda r: r.net(taxes) >= 0),
        "rate": ("ecGMHRate", UP, lambda r: r.net(taxes) >= 0),
    }
    for key, (control, direction, condition) in conditions.items():
        yield from answer(case, f"breakeven.{key}", found[key], Steps(case.fields, control), direction, condition)
    savings_share(case, found)


def savings_share(case, found):
    base, labelled = number(case.fields["ecStdUtil"]), number(case.fields["ecGMHUtil"])
    wanted = None
    if base > labelled and found["bill"]["state"] == "found":
        wanted = float(max(0, (base - number(found["bill"]["to"])) / (base - labelled)))
    case.near("breakeven.savingsShare", found["savingsShare"], wanted)


def qualify(case):
    fields = case.fields
    prices = {"std": number(fields["ecStdHome"]), "gmh": number(fields["ecGMHHome"])}
    for home, part in (("std", "Std"), ("gmh", "GMH")):
        found = case.answer["qualify"][home]
        inputs = {"income": ("ecIncome", DOWN), "debt": ("ecMonthlyDebt", UP), "down": (down_control(fields), DOWN),
                  "price": (f"ec{part}Home", UP), "bill": ("ecGMHUtil", UP), "rate": (f"ec{part}Rate", UP)}
        if home == "std":
            del inputs["bill"]
        case.same(f"qualify.{home} keys", sorted(found), sorted([*inputs, "qualifies", "margin", "term", "options"]))
        case.same(f"qualify.{home}.qualifies", found["qualifies"], case.now.qualifies[home])
        case.same(f"qualify.{home}.margin", found["margin"], case.now.margin(home))
        for key, (control, direction) in inputs.items():
            steps = Steps(fields, control, prices[home])
            where = f"qualify.{home}.{key}"
            yield from counts(case, where, found[key], steps, home)
            if found[key] is not None:
                yield from answer(case, where, found[key], steps, direction, lambda r, h=home: r.qualifies[h])
        yield from term(case, f"qualify.{home}.term", found["term"], home)
        yield from options(case, home, found["options"])


def options(case, home, found):
    """The other choices of mortgage options, each with its own YES."""
    fields = case.fields
    if home == "std":
        choices = [(base, labelled) for base, labelled in PAIRS if base == labelled and base != fields["cboStdMortOption"]]
    else:
        choices = [pair for pair in PAIRS if pair != (fields["cboStdMortOption"], fields["cboGMHMortOption"])]
    records = yield [fields | {"cboStdMortOption": base, "cboGMHMortOption": labelled} for base, labelled in choices]
    wanted = []
    for (base, labelled), record in zip(choices, records):
        row = {"base": base} if home == "std" else {"base": base, "labelled": labelled}
        wanted.append(row | {"qualifies": record.qualifies[home]})
    case.same(f"qualify.{home}.options", [{key: row.get(key) for key in want} for row, want in zip(found, wanted)], wanted)
    case.same(f"qualify.{home}.options count", len(found), len(wanted))


def term(case, where, found, home):
    """The terms are few, so each of them is tried."""
    text = case.fields["cboMortTerm"]
    holds = case.now.qualifies[home]
    others = terms_from(text, longer=not holds)
    every = terms_from(text, longer=True) + terms_from(text, longer=False)
    records = dict(zip(every, (yield [case.fields | {"cboMortTerm": one} for one in every])))
    changes = any(loans(record, home) != loans(case.now, home) for record in records.values())
    case.true(where, (found is not None) == changes, f"null is wanted exactly where no term changes the loan; it is {found}")
    if found is None:
        return
    to, state = text, "always" if holds else "never"
    for one in others:
        if records[one].qualifies[home] != holds:
            to, state = (to, "found") if holds else (one, "found")
            break
        to = one
    if state == "never":
        to = None
    change = None if to is None else int(to.split()[0]) - int(text.split()[0])
    case.same(where, found, {"input": "cboMortTerm", "from": text, "to": to, "change": change, "state": state})


def loans(record, home):
    return record.home(home)["MaxLoan"], record.home(home)["LoanAmount"]


def counts(case, where, found, steps, home):
    """A null input changes neither loan at any step; one with an answer changes a loan somewhere."""
    tried = sorted({steps.low, steps.high, *places(case, steps), *(case.rng.randint(steps.low, steps.high) for _ in range(20))})
    tried = [step for step in tried if steps.low <= step <= steps.high]
    records = yield [steps.with_step(step) for step in tried]
    moved = [step for step, record in zip(tried, records) if loans(record, home) != loans(case.now, home)]
    if found is None and moved:
        case.fault(where, f"null, but {steps.text_of(moved[0])} changes the loan of the home")
    if found is not None and not moved:
        case.fault(where, f"not null, but none of {len(tried)} steps of the whole range changes the loan of the home")


def places(case, steps):
    """Steps around which a rule of the loans changes."""
    fields, near = case.fields, []
    base, labelled = number(fields["ecStdHome"]), number(fields["ecGMHHome"])
    worth, saving = case.now.gmh["PVSavings"], float(number(fields["ecStdUtil"]) - number(fields["ecGMHUtil"]))
    if steps.control == "ecGMHHome":
        near = [float(base) + worth, float(base)]
    elif steps.control == "ecStdHome":
        fixed = float(number(fields["ecFixedDown"]))
        near = [float(labelled) - worth, float(labelled), *(fixed / band for band in (0.05, 0.1, 0.15, 0.2))]
    elif steps.control == "ecGMHUtil" and saving and worth:
        near = [float(number(fields["ecStdUtil"])) - saving * float(labelled - base) / worth]
    elif steps.control == "ecPctDown":
        near = [5, 10, 15, 20]
    elif steps.control == "ecFixedDown":
        near = [float(base) * band for band in (0.05, 0.1, 0.15, 0.2)]
    elif steps.control == "ecIncome":
        near = case.brackets
    return [round(value * steps.scale) + off for value in near for off in range(-2, 3)]


def answer(case, where, found, steps, direction, condition):
    """A limit where the condition holds now, otherwise a nearest in the opposite direction."""
    holds = condition(case.now)
    direction = direction if holds else -direction
    end = steps.high if direction == UP else steps.low
    case.same(f"{where}.input", found["input"], steps.control)
    case.same(f"{where}.from", found["from"], steps.text)
    state = found["state"]
    if state not in (("found", "always") if holds else ("found", "never")):
        case.fault(where, f"the state is {state}, while the condition {'holds' if holds else 'fails'} now")
        return
    to = end
    if state == "never":
        case.same(f"{where}.to", (found["to"], found["change"]), (None, None))
    else:
        to = steps.step_of(found["to"])
        if to.denominator != 1 or not steps.low <= to <= steps.high or (to - steps.now) * direction < 0:
            case.fault(where, f"{found['to']} is not a step in the direction within the range")
            return
        to = int(to)
        case.true(f"{where}.to", steps.shown(to, found["to"]), f"{found['to']} is not how the field shows the value")
        case.near(f"{where}.change", found["change"], (to - steps.now) / steps.scale)
        if state == "always":
            case.same(f"{where}: always ends", to, end)
    if state == "found" and holds:
        edges = {to: True, to + direction: False}
        if to == end:
            case.fault(where, "found at the end of the range, where no step further exists")
            del edges[to + direction]
    elif state == "found":
        edges = {to: True, to - direction: False}
    else:
        edges = {to: holds}
    tried = dict.fromkeys(between(case, steps, to, direction), holds) | edges
    order = sorted(tried)
    records = yield [steps.with_step(step) for step in order]
    wrong = [step for step, record in zip(order, records) if condition(record) != tried[step]]
    if wrong:
        first = min(wrong, key=lambda step: abs(step - steps.now))
        case.fault(where, f"{found}: at {steps.text_of(first)} the condition "
                          f"{'fails' if tried[first] else 'holds'} ({len(wrong)} of {len(order)} steps tried are wrong)")


def between(case, steps, to, direction):
    """Steps from the value now to the answer, where everything is wanted to be as now."""
    span = abs(to - steps.now)
    offsets = {0, 1, 2, *(span - k for k in (0, 1, 2, 3, 5, 9, 17, 33, 65, 129, 1025, 8193)),
               *(round(span * k / 16) for k in range(16)), *(case.rng.randint(0, span) for _ in range(16))}
    offsets |= {(step - steps.now) * direction for step in places(case, steps)}
    if case.rng.random() < case.dense:
        first = case.rng.choice((0, max(0, span - 6_000), case.rng.randint(0, span)))
        offsets |= set(range(first, min(span, first + 6_000)))
    return [steps.now + direction * k for k in offsets if 0 <= k <= span]
