"""The steps and the range of an input, and the texts of its field."""
from fractions import Fraction
from math import floor

from .samples import TERMS

PRICES, BILLS, RATES = ("ecStdHome", "ecGMHHome"), ("ecStdUtil", "ecGMHUtil"), ("ecStdRate", "ecGMHRate")
LARGEST_PRICE = 16_777_216


def number(text):
    """What a field's text stands for, exactly; an empty field is 0."""
    return Fraction(text.replace("$", "").replace(",", "").replace("%", "") or 0)


def dollars(amount):
    return f"{'-' if amount < 0 else ''}${abs(int(amount)):,}"


def nearest(value):
    """The nearest whole number, halves up."""
    return floor(value + Fraction(1, 2))


class Steps:
    """An input of a comparison in steps of its field: step k is the value k * unit."""

    def __init__(self, fields, control, top=None):
        self.control, self.fields, self.text = control, fields, fields[control]
        self.decimals = 2 if control == "ecPctDown" else 3 if control in RATES else 0
        self.scale = 10**self.decimals
        now = number(self.text) * self.scale
        self.now = int(now)
        low, high = self._range(top)
        self.low, self.high = min(low, self.now), max(high, self.now)

    def _range(self, top):
        if self.control == "ecIncome":
            return 0, 10_000_000
        if self.control == "ecMonthlyDebt":
            return 0, 1_000_000
        if self.control == "ecPctDown":
            return 0, 10_000
        if self.control == "ecFixedDown":
            return 0, int(top)
        if self.control in PRICES:
            return 1, min(10 * self.now, LARGEST_PRICE)
        if self.control in BILLS:
            return 0, max(10 * self.now, 10_000)
        return 1, 25_000

    def text_of(self, step):
        if self.decimals == 0:
            return dollars(step)
        return f"{'-' if step < 0 else ''}{abs(step) // self.scale}.{abs(step) % self.scale:0{self.decimals}d}%"

    def step_of(self, text):
        return number(text) * self.scale

    def put(self, value):
        """The step nearest to a value in the field's unit, kept in the range."""
        return min(max(nearest(value * self.scale), self.low), self.high)

    def with_step(self, step):
        """The comparison with another step in this field."""
        return self.fields | {self.control: self.text if step == self.now else self.text_of(step)}

    def shown(self, step, text):
        """Whether a text is that of the step; the value now may keep its own text."""
        return text == self.text_of(step) or (step == self.now and text == self.text)


def down_control(fields):
    return "ecPctDown" if fields["optDownPayment"] == 0 else "ecFixedDown"


def terms_from(text, longer):
    """The terms of the list after the one now, in a direction."""
    place = TERMS.index(text)
    return TERMS[place + 1:] if longer else TERMS[:place][::-1]
