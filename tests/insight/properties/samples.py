"""Random comparisons, ordinary and nasty, and the settings under which they are asked."""
PAIRS = (("Conventional", "Conventional"), ("Conventional", "Fannie Mae EEM"), ("Conventional", "Freddie Mac EEM"),
         ("FHA", "FHA"), ("FHA", "FHA EEM"), ("VA", "VA"), ("VA", "VA EEM"))
TERMS = [f"{years} years" for years in range(10, 45, 5)]
BY = ("10", "10", "10", "5", "0.5", "33.3", "100")
# What differs from the golden settings file in each folder of settings; a key that it lacks is added.
SETTINGS = (
    {},
    {"GROWTH_UTILITIES": "3", "GROWTH_HOME": "1.5", "EXIT_APPRECIATION": "2", "EXIT_PREMIUM_KEPT": "60",
     "YEARS_IN_HOME": "12"},
    {"PVSAVINGS_FLAG": "TRUE", "PVSAVINGS_RATE": "6.24", "PVSAVINGS_TERM": "20", "YEARS_IN_HOME": "1",
     "DEDUCTION_STANDARD": "0", "DEDUCTION_STATE_TAX": "5000", "DEDUCTION_OTHER": "2500"},
    {"YEARS_IN_HOME": "35", "GROWTH_UTILITIES": "-5", "EXIT_SELLING_COST": "8", "DEDUCTION_DEBT_CAP": "100000"},
    {"YEARS_IN_HOME": "0", "ASSUMPTION1": "0.90", "ASSUMPTION2": "0.65", "DEDUCTION_SALT_CAP": "10000"},
)


def write_settings(golden, folder):
    """Writes a folder for each entry of SETTINGS; gives the folders with all their settings."""
    lines = (golden / "Ledgrove.ini").read_text(encoding="cp1252").splitlines()
    folders = []
    for number, changes in enumerate(SETTINGS):
        folders.append((folder / str(number), rewritten(lines, changes)))
    for place, changed in folders:
        write_folder(place, changed)
    return folders


def rewritten(lines, changes):
    kept = [line for line in lines if line.split("=")[0] not in changes]
    return kept + [f"{key}={value}" for key, value in changes.items()]


def write_folder(place, lines):
    place.mkdir(parents=True, exist_ok=True)
    (place / "Ledgrove.ini").write_text("\n".join(lines) + "\n", encoding="cp1252")


def ordinary(rng):
    """A comparison as a buyer might type it."""
    price = rng.randrange(50_000, 900_000)
    dearer = rng.choice((-0.05, 0.02, 0.05, 0.05, 0.15)) * rng.random()
    bill = rng.randrange(600, 9_000)
    base, labelled = rng.choice(PAIRS)
    rate = rng.choice((0, rng.uniform(2, 9), rng.uniform(2, 9), rng.uniform(2, 9), rng.uniform(0, 20)))
    other = rate if rng.random() < 0.7 else min(20, max(0, rate + rng.uniform(-1, 1)))
    fields = {
        "ecIncome": f"{price * rng.uniform(0.08, 0.7):.0f}",
        "ecMonthlyDebt": str(rng.choice((0, rng.randrange(0, 3_000)))),
        "optDownPayment": rng.choice((0, 0, 1)),
        "ecPctDown": f"{rng.choice((0, 3, 3.5, 5, 10, 15, 20, rng.uniform(0, 50))):.2f}",
        "ecFixedDown": f"{price * rng.choice((0, 0.05, 0.1, 0.2, rng.uniform(0, 0.5))):.0f}",
        "ecStdHome": str(price), "ecGMHHome": f"{price * (1 + dearer):.0f}",
        "ecStdUtil": str(bill), "ecGMHUtil": f"{bill * rng.uniform(0.2, 1.1):.0f}",
        "ecStdRate": f"{rate:.3f}", "ecGMHRate": f"{other:.3f}", "ecStdStr": "2", "ecGMHStr": "2",
        "cboMortTerm": rng.choice(TERMS), "cboStdMortOption": base, "cboGMHMortOption": labelled,
        "chkDoTax0": rng.random() < 0.6,
    }
    for name in ("ecIncome", "ecMonthlyDebt", "ecPctDown", "ecFixedDown", "ecStdUtil", "ecGMHUtil", "ecStdStr"):
        if rng.random() < 0.03:
            fields[name] = ""
    return fields


def nasty(rng):
    """A comparison at an edge of what the fields take or of a rule of the loans."""
    fields = ordinary(rng)
    for change in rng.sample(EDGES, rng.choice((1, 1, 2))):
        change(fields, rng)
    return fields


def put(**texts):
    return lambda fields, rng: fields.update(texts)


def small_price(fields, rng):
    fields.update(ecStdHome=str(rng.choice((1, 2, 100))), ecGMHHome=str(rng.choice((1, 3, 200))), ecFixedDown="0")


def no_difference(fields, rng):
    fields.update(ecGMHHome=fields["ecStdHome"], ecGMHUtil=fields["ecStdUtil"])


def at_present_value(fields, rng):
    """An FHA EEM or VA EEM whose savings are worth about the price difference, where the down payment changes its base."""
    months, i = 12 * int(fields["cboMortTerm"].split()[0]), float(fields["ecGMHRate"]) / 1200
    saving = rng.randrange(100, 2_500)
    worth = saving / 12 * ((1 - (1 + i) ** -months) / i if i else months)
    base, labelled = rng.choice((("FHA", "FHA EEM"), ("VA", "VA EEM"), ("Conventional", "Fannie Mae EEM")))
    fields.update(optDownPayment=0, cboStdMortOption=base, cboGMHMortOption=labelled, ecStdUtil="3000",
                  ecGMHUtil=str(3_000 - saving), ecGMHHome=f"{float(fields['ecStdHome']) + worth + rng.choice((-1, 0, 1)):.0f}")


def at_band(fields, rng):
    """A down payment within a step of where the mortgage insurance changes."""
    band = rng.choice((5, 10, 15, 20))
    fields.update(ecPctDown=f"{band + rng.choice((-0.01, 0, 0.01)):.2f}",
                  ecFixedDown=f"{float(fields['ecStdHome']) * band / 100 + rng.choice((-1, 0, 1)):.0f}")


def at_qualification(fields, rng):
    """An income close to what the payment asks for."""
    price, i = float(fields["ecStdHome"]), float(fields["ecStdRate"] or 0) / 1200
    months = 12 * int(fields["cboMortTerm"].split()[0])
    payment = price * ((i / (1 - (1 + i) ** -months) if i else 1 / months) + 0.0016)
    fields.update(ecMonthlyDebt="0", ecIncome=f"{payment * 12 / rng.choice((0.28, 0.29, 0.41)) * rng.uniform(0.97, 1.03):.0f}")


EDGES = (
    put(ecStdHome="16777216", ecGMHHome="16777216"), put(ecStdHome="9999999", ecGMHHome="10500000"), small_price,
    put(cboMortTerm="40 years"), put(cboMortTerm="10 years"), put(ecIncome="0"), put(ecIncome=""), put(ecIncome="10000000"),
    put(ecStdRate="0.001", ecGMHRate="0.001"), put(ecStdRate="25", ecGMHRate="25"), put(ecStdRate="0", ecGMHRate="0"),
    put(ecStdUtil="1000", ecGMHUtil="3000"), put(ecGMHUtil="0"), put(ecStdUtil="", ecGMHUtil=""), no_difference,
    put(optDownPayment=0, ecPctDown="0"), put(optDownPayment=0, ecPctDown="100"), put(optDownPayment=1, ecFixedDown="1000000"),
    put(optDownPayment=0, ecPctDown="99.99"), put(ecMonthlyDebt="1000000"), put(ecStdHome="0"), put(ecGMHHome=""),
    put(ecIncome="45200"), put(ecIncome="45201"), put(ecStdHome="300000", ecGMHHome="200000"),
    at_present_value, at_present_value, at_present_value, at_band, at_band, at_qualification, at_qualification,
)
