"""The saves and reads for the fault tests: the folder before, the command, and the states of the folder that are not a loss.

The states follow from the rewrite rules; they are not copied from a program's output."""
from dataclasses import dataclass, field
from pathlib import Path

INI, TEMPORARY = "Ledgrove.ini", "Pennaro2.INI"

# Between the lines of known keys there are lines without a key, with bytes that are not text.
LINES = (b"BUILDERNAME=Acme", b"NOTE=\xe9\x81\x00\xff", b"LOGOFILE=/old.bmp", b"LOGOOPTION=1", b"FEATURE1=Finished basement",
         b"# kept", b"FEATURE2=Larger deck", b"TAXCAT=45200,15", b"TAXCAT=109250,28", b"", b"ASSUMPTION1=1.5",
         b"ASSUMPTION2=0.35", b"PVSAVINGS_RATE=7.5", b"PVSAVINGS_TERM=30", b"PVSAVINGS_FLAG=FALSE", b"YEARS_IN_HOME=7",
         b"PMI_MULT1=0.01", b"PMI_MULT2=0.0078", b"PMI_MULT3=0.0052", b"PMI_MULT4=0.003",
         b"LOANTYPE=1,Conventional,,0.280,0.360,,,,FALSE", b"HOMELIST=Lot 1,100000,1200,110000,800", b"LAST=\xef\xbb\xbf")


def joined(lines):
    return b"".join(line + b"\r\n" for line in lines)


def replaced(lines, **values):
    """Sets the value in every line of the key; appends a key that has no line."""
    out = list(lines)
    for key, value in values.items():
        start = key.encode() + b"="
        if not any(line.startswith(start) for line in out):
            out.append(start + value)
        out = [start + value if line.startswith(start) else line for line in out]
    return out


def without(lines, key):
    return [line for line in lines if not line.startswith(key)]


def turned(lines, old_to_new):
    return [old_to_new.get(line, line) for line in lines]


TAXED = turned(LINES, {b"TAXCAT=45200,15": b"TAXCAT=50000,16.00", b"TAXCAT=109250,28": b"TAXCAT=99000,29.00"})
# The assumptions dialog saves its three tables at once. It keeps what nobody changed: here the multipliers, and the high end
# of the last bracket, which it does not show.
RETAXED = turned(LINES, {b"TAXCAT=45200,15": b"TAXCAT=45200,15.00", b"TAXCAT=109250,28": b"TAXCAT=109250,28.00"})
ASSUMED = replaced(RETAXED, ASSUMPTION1=b"1.75", ASSUMPTION2=b"0.45", PVSAVINGS_RATE=b"5.25", PVSAVINGS_TERM=b"15",
                   PVSAVINGS_FLAG=b"TRUE", YEARS_IN_HOME=b"9")
LOANED = without(ASSUMED, b"LOANTYPE") + [b"LOANTYPE=1,Conventional,,0.300,0.360,,,,FALSE"]
OPTIONED = [*replaced(LINES, FEATURE1=b"Sun room"), b"BUILDERNAME=New Builder", b"LOGOFILE=/new.bmp"]
HEADED = replaced(LINES, FEATURE1=b"Sun room", BUILDERNAME=b"New Builder", LOGOOPTION=b"2", LOGOFILE=b"/new.bmp")
HOUSED = [*without(LINES, b"HOMELIST"), b"HOMESELECTIONDIALOG=CLOSED", b"HOMELIST=Lot 7,200000,2400,206000,1700",
          b"HOMELIST=Lot 8,1,2,3,4"]
OPENED = replaced(LINES, HOMESELECTIONDIALOG=b"OPEN")
NAMED = replaced(LINES, BUILDERNAME=b"New Builder")
OLD = joined(LINES)


@dataclass
class Writer:
    """A save of one file. `states` are the file's contents from the first to the last; None means no file.

    A writer with another scheme names its files; `rescued` names the other files that may hold a complete state after a kill."""
    name: str
    command: list
    states: list
    before: dict = field(default_factory=lambda: {INI: OLD})
    file: str = INI
    rescued: tuple = (TEMPORARY,)
    leftovers: tuple = (TEMPORARY,)  # patterns of other files that a killed save may leave
    restore: list = ()  # the command that restores the settings of an interrupted save
    says: bytes | None = None  # the output of a reader that succeeds

    def prepare(self, folder: Path):
        for name, content in self.before.items():
            (folder / name).write_bytes(content)


COMPARISON, OLD_COMPARISON = "doe.ledgrove.json", b'{"ecIncome": "$1"}\n'
# Longer than Qt's file buffer, so Qt writes it in several steps.
NEW_COMPARISON = b'{"ecIncome": "$72,000"}' + b" " * 20000 + b"\n"


def comparison(save_program, before):
    """The save of a comparison: a new file, unnamed or with a random name, replaces the old one."""
    return Writer("comparison" if before else "new comparison",
                  [save_program, f"FOLDER/{COMPARISON}", NEW_COMPARISON.decode()], [before, NEW_COMPARISON],
                  before={COMPARISON: before} if before else {}, file=COMPARISON, rescued=(), leftovers=(COMPARISON + ".*",))


def large_writers(fault_writer, ledgrove_cli, save_program=None):
    """Saves of six memory pages, for small disks."""
    unknown = b"".join(b"UNKNOWN%04d=x\r\n" % line for line in range(1400))
    yield Writer("setting", [fault_writer, "setting", "FOLDER"], [OLD + unknown, joined(NAMED) + unknown],
                 before={INI: OLD + unknown})
    if save_program:
        yield comparison(save_program, OLD_COMPARISON.ljust(20000))


def all_writers(fault_writer, ledgrove_cli, save_program=None):
    restore = [fault_writer, "restore", "FOLDER"]

    def window(name, *steps):
        return Writer(name, [fault_writer, name, "FOLDER"], [OLD, *map(joined, steps)], restore=restore)
    return [
        window("setting", NAMED),
        Writer("cli set", [ledgrove_cli, "settings", "--folder", "FOLDER", "set", "BUILDERNAME", "New Builder"],
               [OLD, joined(NAMED)], restore=restore),
        window("taxes", TAXED),
        window("assumptions", LOANED),
        window("options", OPTIONED),
        window("header", HEADED),
        window("open-houses", OPENED),
        window("houses", HOUSED),
        Writer("create", [fault_writer, "create", "FOLDER"], [None, b""], before={}),
        Writer("restore", [fault_writer, "restore", "FOLDER"], [None, OLD], before={TEMPORARY: OLD}),
        Writer("cli get", [ledgrove_cli, "settings", "--folder", "FOLDER", "get", "BUILDERNAME"], [OLD], says=b"Acme\n"),
        Writer("cli houses", [ledgrove_cli, "settings", "--folder", "FOLDER", "houses"], [OLD],
               says=b"name,StdCost,StdUtil,GMHCost,GMHUtil\nLot 1,100000,1200,110000,800\n"),
        *(comparison(save_program, before) for before in (OLD_COMPARISON, None) if save_program),
    ]
