"""Checks of takeaway: its amounts stand in the answers, its statements agree with them, and its help is within reach."""
import re

from .steps import number
from .years import stay

AMOUNT = re.compile(r"-?\$[\d,]+")
PERCENT = re.compile(r"(\d[\d,.]*) ?%")
POINTS = re.compile(r"([\d.]+) points? (more|less)")
LESS_PRICE = re.compile(r"a price of \$[\d,]+ \(\$([\d,]+) less\)")
MORE_INCOME = re.compile(r"an income of \$[\d,]+ \(\$([\d,]+) more\)")
LESS_DEBT = re.compile(r"a monthly debt of \$[\d,]+ \(\$([\d,]+) less\)")
MORE_DOWN = re.compile(r"a down payment of \$[\d,]+ \(\$([\d,]+) more\)")


def takeaway(case):
    sentences = case.answer["takeaway"]["sentences"]
    text = " ".join(sentences)
    case.true("takeaway: count", 3 <= len(sentences) <= 7, f"{len(sentences)} sentences: {sentences}")
    case.true("takeaway: words", not re.search(r"\b(null|nan|inf|None)\b", text), text)
    known = known_amounts(case)
    for amount in AMOUNT.findall(text):
        if not any(abs(abs(number(amount)) - abs(value)) <= 0.5001 for value in known):
            case.fault("takeaway: amount", f"{amount} stands in none of the answers: {text}")
    statements(case, text)
    shares(case, text)
    reach(case, sentences)
    taxes_said(case, text)
    not_earned_back(case, text)
    yield from ()


def numbers_in(value):
    if isinstance(value, dict):
        for one in value.values():
            yield from numbers_in(one)
    elif isinstance(value, list):
        for one in value:
            yield from numbers_in(one)
    elif isinstance(value, (int, float)) and not isinstance(value, bool):
        yield float(value)
    elif isinstance(value, str) and value.startswith(("$", "-$")) and re.fullmatch(r"-?\$[\d,]+", value):
        yield float(number(value))


def known_amounts(case):
    """Every amount of the answers that a sentence may name."""
    fields, real = case.fields, case.answer["tax"]["real"]
    views = [case.answer[view] for view in ("breakeven", "options", "qualify", "tax")]
    known = set(numbers_in(views)) | set(numbers_in(list(fields.values())))
    known |= {row["cumulative"] for row in case.answer["years"]["years"]} | {case.answer["years"]["npv"]}
    known |= {row[key] for row in case.answer["exit"]["years"] for key in ("difference", "total")}
    known |= {value for value in case.now.scenario.values() if not isinstance(value, bool)}
    known |= {float(number(fields["ecGMHHome"]) - number(fields["ecStdHome"])),
              float(number(fields["ecStdUtil"]) - number(fields["ecGMHUtil"])), case.now.scenario["NetBeforeTax"] + real}
    known |= {12 * case.now.net(fields["chkDoTax0"])}
    return known


def statements(case, text):
    yes, net = case.now.qualifies, case.now.net(case.fields["chkDoTax0"])
    for words, wanted in (("qualifies for both homes", yes["std"] and yes["gmh"]),
                          ("qualifies for neither home", not yes["std"] and not yes["gmh"]),
                          ("qualifies for the base home", yes["std"] and not yes["gmh"]),
                          ("qualifies for the GREENMARK home", yes["gmh"] and not yes["std"]),
                          ("would qualify for the base home", not yes["std"]),
                          ("would qualify for the GREENMARK home", not yes["gmh"]),
                          ("Nothing is left each month", net < 0.005), ("more is left", net >= 0),
                          ("allows no loan", any(not yes[home] and case.now.home(home)["MaxLoan"] < 0.5 for home in yes)),
                          ("It still pays", net >= 0), ("It would pay", net < 0)):
        if words in text and not wanted:
            case.fault("takeaway: statement", f"{words!r} is not so; net {net}, qualifies {yes}: {text}")


def shares(case, text):
    """The price and the part of the savings with which it still pays, and when the extra down payment is earned back."""
    even, ahead = case.answer["breakeven"], case.answer["years"]["ahead"]
    share = even["savingsShare"]
    for price in re.findall(r"(?:still pays each month up to|would pay each month with) a price of (-?\$[\d,]+)", text):
        case.same("takeaway: price", price, even["price"]["to"])
    for percent in re.findall(r"with ([\d.]+)% of the expected savings", text):
        enough = share is not None and share - 1e-9 <= float(percent) / 100 < share + 0.01 + 1e-9
        case.true("takeaway: share", enough, f"{percent} % for {share}: {text}")
    if "none of the expected savings" in text:
        case.true("takeaway: share", share == 0 or even["bill"]["state"] == "always", f"share {share}: {text}")
    for span in re.findall(r"earned back after ([^.;]+)[.;]", text):
        months = sum(int(count) * (12 if unit == "year" else 1) for count, unit in re.findall(r"(\d+) (year|month)", span))
        case.same("takeaway: earned back", months, ahead)


def reach(case, sentences):
    """What a buyer cannot do is not named as help."""
    base, fields = float(number(case.fields["ecStdHome"])), case.fields
    for sentence in sentences:
        if "would" not in sentence or "really be" in sentence:
            continue
        price = float(number(fields["ecStdHome" if "base home" in sentence else "ecGMHHome"]))
        limits = ((LESS_PRICE, 0.10 * price), (MORE_INCOME, 0.20 * float(number(fields["ecIncome"]))),
                  (LESS_DEBT, 0.20 * float(number(fields["ecMonthlyDebt"]))), (MORE_DOWN, 0.10 * max(base, price)))
        for pattern, most in limits:
            for amount in pattern.findall(sentence):
                case.true("takeaway: reach", float(number(amount)) <= most + 1e-6, f"{amount} is beyond {most}: {sentence}")
        for points, way in POINTS.findall(sentence):
            case.true("takeaway: reach", float(points) <= (1 if way == "less" else 10) + 1e-9, sentence)


def shown_dollars(value):
    """Whole dollars as texts show them, for both roundings of a half."""
    return {f"{'-' if whole < 0 else ''}${abs(whole):,}" for whole in (round(value - 1e-6), round(value + 1e-6))}


def taxes_said(case, text):
    tax = case.answer["tax"]
    differs = abs(tax["real"] - case.exact(tax["shown"])) > 0.50
    if not case.fields["chkDoTax0"] or not differs:
        return
    real, net = case.now.scenario["NetBeforeTax"] + tax["real"], case.now.net(True)
    said = any(f"with the tax line as it would really be, {amount}" in text for amount in shown_dollars(real))
    case.true("takeaway: real tax line", said or abs(real) < 0.5, f"{real:.2f} with the real tax line is not said: {text}")
    if real * net < 0:
        pays = re.search(r"still pays|pays for itself", text)
        case.true("takeaway: real tax line", not pays, f"net {net:.2f}, really {real:.2f}: {text}")


def not_earned_back(case, text):
    """The words for a net of 0 or more with an extra down payment that does not come back."""
    net, extra = case.now.net(case.fields["chkDoTax0"]), case.now.scenario["ExtraCashToday"]
    if net < 0 or case.answer["years"]["ahead"] is not None or extra <= 0.50:
        return
    count = stay(case, case.course.rows)
    wanted = (f"more is left each month, but the extra down payment of [^ ]+ is not earned back in {count} "
              f"year{'' if count == 1 else 's'}[.;]")
    case.true("takeaway: not earned back", re.search(wanted, text) is not None,
              f"net {net:.2f}, extra {extra:.2f}, {count} years: {text}")
