"""Compares the window's result tabs, as a screen reader reads them, with ledgrove-cli's results of the same comparison."""
import json
import subprocess

from desktop import ENDS, wait_for

MONTHLY, YEARLY, BASE, GREEN = "Monthly", "Yearly", "Base Home", "GREENMARK Home"
# The rows of each tab: the caption, or the label that holds it, and the label of each column.
TABS = {
    "Cash Flow": (
        ("lbladditionalmortgagetext", {MONTHLY: "lblAddMortMo", YEARLY: "lblAddMortYr"}),
        ("lblutilitysavingstext", {MONTHLY: "lblUtilSavMo", YEARLY: "lblUtilSavYr"}),
        ("lbltaxsavingstext", {MONTHLY: "lblTaxSavMo", YEARLY: "lblTaxSavYr"}),
        ("lblnetcashflowtext", {MONTHLY: "lblNetCashMo", YEARLY: "lblNetCashYr"})),
    "More Home": (
        ("A Monthly Net Cash Flow of", {"more per month": "lblNetCashMoTx", "more today": "lblExtrasTx"}),
        ("Buy More Home", {"more per month and more today": "Label6"}),
        ("Monthly Housing Cost", {BASE: "lblMonthlyHCStd", GREEN: "lblMonthlyHCGM"}),
        ("House Value", {BASE: "lblHouseValueStd", GREEN: "lblHouseValueGM"}),
        ("Additional features", {"first": "lblfeature1", "second": "lblfeature2"})),
    "Affordability": (
        ("Mortgage Amount", {BASE: "lblStdMort", GREEN: "lblGMHMort"}),
        ("Down Payment", {BASE: "lblstddown2", GREEN: "lblgmhdown2"}),
        ("Mortgage Payment", {BASE: "lblStdMortPayment", GREEN: "lblGMHMortPayment"}),
        ("Maximum Loan Value", {BASE: "lblStdMaxHome", GREEN: "lblGMHMaxHome"}),
        ("Maximum Payment", {BASE: "lblStdInc", GREEN: "lblGMHInc"}),
        ("Buyer Qualifies?", {BASE: "lblStdQual", GREEN: "lblGMHQual"})),
    "Summary": (
        ("Sticker Price", {BASE: "lblStdHome", GREEN: "lblGMHHome"}),
        ("Down Payment", {BASE: "lblStdDown", GREEN: "lblgmhDown"}),
        ("Mortgage Amount", {BASE: "lblStdMortgage", GREEN: "lblgmhMortgage"}),
        ("Mortgage Payment", {BASE: "lblStdPITI", GREEN: "lblGMHPITI"}),
        ("Monthly Utility Bills", {BASE: "lblStdUtilMo", GREEN: "lblGMHUtilMo"}),
        ("lblTaxSavmo2Text", {GREEN: "lbltaxsavmo2"}),
        ("Net Monthly Payment", {BASE: "lblStdPITIU", GREEN: "lblGMHPITIU"}),
        ("Net Monthly Cash Flow", {GREEN: "lblNetCashMo2"}),
        ("lblYrsIn", {GREEN: "lblExpYrPre"}),
        ("lblTerm", {GREEN: "lbl30YrPre"}),
        ("lblPV", {GREEN: "lblPVofSavings"}),
        ("PV of Savings", {"note": "lblPVNote"}))}
# What the two kinds of "Mortgage Payment" include.
PRINCIPAL_AND_INTEREST = "Principal and interest per month"
WHOLE_PAYMENT = "Principal, interest, taxes, insurance and PMI per month"
MEANINGS = {"lblStdMortPayment": PRINCIPAL_AND_INTEREST, "lblGMHMortPayment": PRINCIPAL_AND_INTEREST,
            "lblStdPITI": WHOLE_PAYMENT, "lblGMHPITI": WHOLE_PAYMENT}
# Descriptions of labels that are not results: captions, and the name of the house above the tabs.
NO_RESULTS = {"House Scenarios", PRINCIPAL_AND_INTEREST, WHOLE_PAYMENT}


def compare(program, folder, file="-", given=""):
    """The result of `ledgrove-cli compare` for a file, or for the text `given`, with the settings of `folder`."""
    run = subprocess.run([program.with_name("ledgrove-cli"), "compare", "--folder", folder, "--format", "json", file],
                         input=given, capture_output=True, text=True, timeout=60)
    assert run.returncode in ENDS, run.stderr
    return json.loads(run.stdout)


def expected(tab, labels):
    """The texts of a tab by their accessible descriptions."""
    words = {}
    for caption, columns in TABS[tab]:
        if caption in labels:
            caption = " ".join(labels[caption]["text"].split())
        if caption == "30 Years":  # continues "Expected Savings After:   7 Years"
            caption = labels["lblYrsIn"]["text"].split(":")[0].strip() + ": 30 Years"
        for column, label in columns.items():
            if labels[label]["visible"]:
                meaning = f". {MEANINGS[label]}" if label in MEANINGS else ""
                words[f"{caption}, {column}{meaning}"] = labels[label]["text"]
    return words


def shown(program):
    """The visible labels that have an accessible description."""
    return {node.get_description(): node.get_name() for node in program.all(program.front())
            if node.get_role_name() == "label" and node.get_description() and program.showing(node)
            and node.get_description() not in NO_RESULTS}


def wait_shown(program, tab, labels):
    """Waits until the current tab shows the same texts as ledgrove-cli."""
    words = expected(tab, labels)
    assert len(words) > 6, words
    wait_for(lambda: shown(program) == words, f"{tab} showing {words}, it shows {shown(program)}")


def go_to(program, name):
    """Moves the focus with Tab, as a blind user does; returns the names on the way."""
    met = []
    while not met or name not in met[-1]:
        if len(met) > 60:
            raise AssertionError(f"{name} is not reached by Tab: {met}")
        before = program.focused()
        program.desktop.key("Tab")
        wait_for(lambda: program.focused() is not None and program.focused() != before, f"the focus after {met}")
        node = program.focused()
        met.append((node.get_name(), node.get_description()))
    return met
