"""Inputs that once went wrong, each with what it did; replayed by every test run."""

FINDINGS = {
    "settings": {},
    "numbers": {},
    "report": {},
    "json": {},
    "csv": {},
    "pictures": {},
}
