"""Checks of years, energy, tax and exit by arithmetic of their own, from the records of compare."""
from dataclasses import dataclass
from math import isclose

DEFAULTS = {"GROWTH_UTILITIES": 0, "GROWTH_HOME": 0, "EXIT_APPRECIATION": 0, "EXIT_PREMIUM_KEPT": 100, "EXIT_SELLING_COST": 6,
            "DEDUCTION_STANDARD": 32200, "DEDUCTION_SALT_CAP": 40400, "DEDUCTION_STATE_TAX": 0, "DEDUCTION_OTHER": 0,
            "DEDUCTION_DEBT_CAP": 750000}
PARTS = ("interest", "principal", "balance", "pmi", "tax", "insurance", "utilities", "taxEffect", "cost")
BY_BALANCE = ("Conventional", "Fannie Mae EEM", "Freddie Mac EEM", "VA", "VA EEM")
ENOUGH = -0.005  # half a cent short counts as nothing lost


def setting(case, key):
    return float(case.settings.get(key, DEFAULTS[key]))


@dataclass
class Loan:
    """A home's loan over its months: the balance after each month, the interest of it, and the first month without PMI."""

    balances: list
    interest: list
    payment: float
    pmi_end: int

    @staticmethod
    def of(case, home):
        record, months = case.now.home(home), 12 * int(case.fields["cboMortTerm"].split()[0])
        balance = loan = max(0.0, record["LoanAmount"])
        i = record["IntRate"] / 12
        payment = loan * i / (1 - (1 + i) ** -months) if i else loan / months
        balances, interest = [loan], [0.0]
        for month in range(1, months + 1):
            interest.append(balance * i)
            balance = 0.0 if month == months else balance - (payment - balance * i)
            balances.append(balance)
        return Loan(balances, interest, payment, pmi_end(case, home, record, balances))

    def balance(self, month):
        return self.balances[month] if month < len(self.balances) else 0.0


def pmi_end(case, home, record, balances):
    months = len(balances) - 1
    price, loan = record["Cost"], balances[0]
    option = case.fields["cboStdMortOption" if home == "std" else "cboGMHMortOption"]
    if record["PMIMonthly"] == 0 or loan == 0:  # without a loan nothing is insured
        return 1
    if option in BY_BALANCE:
        ends = 0.78 * price + 1e-6  # a balance of just 78 % is not above it
        return next((month for month in range(1, months + 1) if balances[month - 1] <= ends), months + 1)
    if option == "FHA EEM" and case.fields["optDownPayment"] == 0 and record["PVSavings"] >= case.now.scenario["CostDifference"]:
        price, loan = case.now.std["Cost"], loan - case.now.scenario["PriceDifference"]
    return min(132, months) + 1 if loan <= 0.90 * price + 0.50 else months + 1


class Course:
    """Both homes month by month, with the growth of the bills as asked."""

    def __init__(self, case, growth):
        self.case, self.growth, self.home_growth = case, growth, setting(case, "GROWTH_HOME") / 100
        self.term = int(case.fields["cboMortTerm"].split()[0])
        self.rows = max(30, self.term)
        self.loans = {home: Loan.of(case, home) for home in ("std", "gmh")}
        self.rate = case.now.scenario["MarginalTaxRate"] if case.fields["chkDoTax0"] else 0.0
        self.savings = [b - a for a, b in zip(self._costs("gmh"), self._costs("std"))]
        self.cumulative = [-case.now.scenario["ExtraCashToday"]]
        for saving in self.savings:
            self.cumulative.append(self.cumulative[-1] + saving)

    def month(self, home, month):
        """The parts of a month's cost, months from 1."""
        record, loan, year = self.case.now.home(home), self.loans[home], (month - 1) // 12
        runs = month <= 12 * self.term
        interest = loan.interest[month] if runs else 0.0
        parts = {"interest": interest, "principal": loan.balance(month - 1) - loan.balance(month) if runs else 0.0,
                 "pmi": record["PMIMonthly"] if month < loan.pmi_end else 0.0,
                 "tax": record["TaxMonthly"] * (1 + self.home_growth) ** year,
                 "insurance": record["InsMonthly"] * (1 + self.home_growth) ** year,
                 "utilities": record["UtilAnnual"] / 12 * (1 + self.growth) ** year, "taxEffect": interest * self.rate}
        parts["cost"] = ((loan.payment if runs else 0.0) + sum(parts[name] for name in ("pmi", "tax", "insurance", "utilities"))
                         - parts["taxEffect"])
        return parts

    def _costs(self, home):
        return [self.month(home, month)["cost"] for month in range(1, 12 * self.rows + 1)]

    def year(self, home, year):
        months = [self.month(home, month) for month in range(12 * year - 11, 12 * year + 1)]
        total = {name: sum(month[name] for month in months) for name in PARTS if name != "balance"}
        return total | {"balance": self.loans[home].balance(12 * year)}


def stay(case, rows):
    return min(max(1, int(case.settings["YEARS_IN_HOME"])), rows)


def years(case):
    found, course = case.answer["years"], case.course
    last = stay(case, course.rows)
    scale = 1e-9 * max(1.0, case.now.std["Cost"], case.now.gmh["Cost"])
    case.near("years.growth", found["growth"]["utilities"], course.growth)
    case.near("years.growth", found["growth"]["home"], course.home_growth)
    case.same("years: rows", [row["year"] for row in found["years"]], list(range(1, course.rows + 1)))
    for row in found["years"]:
        year = row["year"]
        for home in ("std", "gmh"):
            wanted = course.year(home, year)
            for part in PARTS:
                case.close(f"years[{year}].{home}.{part}", row[home][part], wanted[part], 12 * scale)
        case.close(f"years[{year}].saving", row["saving"], sum(course.savings[12 * year - 12:12 * year]), 12 * scale)
        case.close(f"years[{year}].cumulative", row["cumulative"], course.cumulative[12 * year], 100 * scale)
    for home in ("std", "gmh"):
        case.same(f"years.pmiEnd.{home}", found["pmiEnd"][home], course.loans[home].pmi_end)
    returns(case, found, course, last, scale)
    yield from ()


def returns(case, found, course, last, scale):
    months = 12 * last
    behind = [month for month in range(months + 1) if course.cumulative[month] < ENOUGH]
    ahead = 0 if not behind else behind[-1] + 1 if behind[-1] < months else None
    case.same("years.ahead", found["ahead"], ahead)
    extra, savings = case.now.scenario["ExtraCashToday"], course.savings[:months]
    rate = case.now.gmh["IntRate"]
    if case.settings.get("PVSAVINGS_FLAG") == "TRUE":
        rate = case.exact(float(case.settings["PVSAVINGS_RATE"]) / 100)
    case.close("years.npv", found["npv"], worth(extra, savings, rate / 12), 1000 * scale)
    sold = savings[:-1] + [savings[-1] + sale(case, course, last, setting(case, "EXIT_PREMIUM_KEPT") / 100)[2]]
    for key, flow in (("irrOnExtraCash", savings), ("irrWithSale", sold)):
        wanted = extra > 0 and sum(flow) > extra
        if abs(sum(flow) - extra) < 1000 * scale:
            continue
        case.same(f"years.{key}: null", found[key] is None, not wanted)
        if wanted and found[key] is not None:
            least_return(case, f"years.{key}", found[key], extra, flow)


def discounted(flow, i):
    """The amounts at the end of each month as they are worth today, however high the rate."""
    values, factor = [], 1.0
    for amount in flow:
        factor /= 1 + i
        values.append(amount * factor)
    return values


def worth(extra, flow, i):
    return sum(discounted(flow, i)) - extra


def least_return(case, where, found, extra, flow):
    """The yearly rate makes the sum 0, and no lower positive one does."""
    i = found / 12
    if i <= 0:
        case.fault(where, f"{found} is not above 0")
        return
    slack = 1e-6 * (extra + sum(abs(amount) for amount in discounted(flow, i)))
    if abs(worth(extra, flow, i)) > slack:
        case.fault(where, f"{found} leaves {worth(extra, flow, i)}, not 0")
        return
    lower = next((k for k in range(1, 40) if worth(extra, flow, i * k / 40) < -slack), None)
    case.true(where, lower is None, f"{found}, but a lower rate makes the sum 0 already")


def energy(case):
    found = case.answer["energy"]
    case.same("energy.rates", [round(rate, 9) for rate in found["rates"]], [k / 100 for k in range(7)])
    scale = 1e-7 * max(1.0, case.now.std["Cost"], case.now.gmh["Cost"])
    for rate, row in zip(found["rates"], found["cumulative"]):
        course = Course(case, rate)
        wanted = [course.cumulative[12 * year] for year in range(1, course.rows + 1)]
        case.same("energy.cumulative: years", len(row), len(wanted))
        for year, (got, want) in enumerate(zip(row, wanted), 1):
            case.close(f"energy at {rate} year {year}", got, want, scale)
    needed_growth(case, found["needed"])
    yield from ()


def needed_growth(case, found):
    """The bills alone depend on the growth, so the sum of the rest is taken once."""
    course = case.course
    months = 12 * stay(case, course.rows)
    bills = (case.now.std["UtilAnnual"] - case.now.gmh["UtilAnnual"]) / 12

    def grown(growth):
        return sum(bills * (1 + growth) ** ((month - 1) // 12) for month in range(1, months + 1))

    rest = course.cumulative[months] - grown(course.growth)
    slack = 1e-9 * case.now.gmh["Cost"]
    enough = [k for k in range(2001) if rest + grown(k / 10_000) >= ENOUGH - slack]
    sure = [k for k in range(2001) if rest + grown(k / 10_000) >= ENOUGH + slack]
    wanted = {part[0] / 10_000 if part else None for part in (enough, sure)}
    case.true("energy.needed", found in wanted or any(found and want and isclose(found, want) for want in wanted),
              f"{found} instead of {wanted}")


def tax(case):
    found, course = case.answer["tax"], case.course
    rate, benefit = case.now.scenario["MarginalTaxRate"], {}
    scale = 1e-8 * max(1.0, case.now.gmh["Cost"], case.now.std["Cost"])
    for home in ("std", "gmh"):
        record = case.now.home(home)
        interest, loan = course.year(home, 1)["interest"], record["LoanAmount"]
        share = min(1.0, setting(case, "DEDUCTION_DEBT_CAP") / loan) if loan > 0 else 1.0
        local = min(12 * record["TaxMonthly"] + setting(case, "DEDUCTION_STATE_TAX"), setting(case, "DEDUCTION_SALT_CAP"))
        itemized = interest * share + local + setting(case, "DEDUCTION_OTHER")
        above = itemized - setting(case, "DEDUCTION_STANDARD")
        benefit[home] = max(0.0, above) * rate
        case.close(f"tax.{home}.interest", found[home]["interest"], interest, scale)
        case.close(f"tax.{home}.itemized", found[home]["itemized"], itemized, scale)
        case.close(f"tax.{home}.benefit", found[home]["benefit"], benefit[home], scale)
        if abs(above) > scale:
            case.same(f"tax.itemizes.{home}", found["itemizes"][home], above > 0)
    case.near("tax.shown", found["shown"], case.now.scenario["ShownTaxSavings"])
    case.close("tax.real", found["real"], (benefit["gmh"] - benefit["std"]) / 12, scale)
    yield from ()


def sale(case, course, year, kept):
    """The proceeds of both homes at the end of a year, and their difference."""
    base, labelled = case.now.std["Cost"], case.now.gmh["Cost"]
    growth, cost = (1 + setting(case, "EXIT_APPRECIATION") / 100) ** year, setting(case, "EXIT_SELLING_COST") / 100
    proceeds = [value * growth * (1 - cost) - course.loans[home].balance(12 * year)
                for home, value in (("std", base), ("gmh", base + kept * (labelled - base)))]
    return *proceeds, proceeds[1] - proceeds[0]


def exit_sale(case):
    found, course = case.answer["exit"], case.course
    kept, last = setting(case, "EXIT_PREMIUM_KEPT") / 100, stay(case, course.rows)
    scale = 1e-7 * max(1.0, case.now.std["Cost"], case.now.gmh["Cost"])
    case.same("exit: rows", [row["year"] for row in found["years"]], list(range(1, 31)))
    for row in found["years"]:
        std, gmh, difference = sale(case, course, row["year"], kept)
        saved = course.cumulative[12 * row["year"]]
        wanted = {"std": std, "gmh": gmh, "difference": difference, "cumulative": saved, "total": difference + saved}
        for key, value in wanted.items():
            case.close(f"exit[{row['year']}].{key}", row[key], value, scale)
    totals = [sale(case, course, last, k / 100)[2] + course.cumulative[12 * last] for k in range(101)]
    wanted = {next((k / 100 for k, total in enumerate(totals) if total >= ENOUGH + slack), None)
              for slack in (-1e-3 * scale, 1e-3 * scale)}
    case.true("exit.share", found["share"] in wanted, f"{found['share']} instead of {wanted}")
    yield from ()
