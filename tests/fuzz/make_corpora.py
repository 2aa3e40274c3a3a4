#!/usr/bin/env python3
"""Writes the seeds of a fuzz target into a folder: make_corpora.py TARGET FOLDER. The files are the same each time."""
import struct
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def settings():
    shipped = (ROOT / "data/Ledgrove.ini").read_bytes()
    files = [shipped, shipped.replace(b"\r\n", b"\n"), shipped.replace(b"\r\n", b"\r"), b"\xef\xbb\xbf" + shipped,
             shipped[:-2], b"", b"\n", b"\r\n\r\n", b"X=1\rL=2\n\nY=3\n", b"FEATURE12=x\r\nBUILDERNAMEXAcme\r\n",
             b"TAXCAT=45200\r\nTAXCAT=1,\r\nTAXCAT=x,1\r\n", b"LOANTYPE=1,a\r\n", b"LOANTYPE=1,2,3,4,5,6,7,8,TRUE\n",
             b"HOMELIST=Lot\xe9,1,2,3,4\r\nHOMELIST=\r\n", b"NOTE=\x00\xff\x81\r\nLOGOOPTION=1.9\r\nYEARS_IN_HOME=40000\r\n"]
    for rule in range(5):
        for file in files:
            yield bytes([rule]) + file


def numbers():
    texts = ("", "0", "$1,234.50", "-5", "+.5", "5.", "7%", "0.07%", "1e5", "0x1", "1,2,3", "--1", "$-3", "-$3", " 12 ",
             "99999999999999999999", "0.000000000000000000001", "3.5e38", "\u00a3 5", "1.2.3", "12%%", "." * 20)
    pictures = ("$###,##0", "#0.000", "##0.00", "#####0", "$##,###,##0", "0.0", "###,##0", ",", "", "$$0.0#0", "0" * 20)
    values = (0.0, 0.5, 2.5, 0.005, 1e15, 1e-7, -1234.565, 999999.5, 1.7e308, 5e-324)
    for index, text in enumerate(texts):
        for picture in pictures[index % 3::3]:
            value = values[index % len(values)]
            # The target also reads the number's first bytes as a single-precision value.
            number = struct.pack("<d", value) if index % 2 else struct.pack("<ff", min(value, 3e38), 1.5)
            yield number + picture.encode() + b"\0" + text.encode()


def report():
    tables = ("1000|>2160|>1900|>1800|>1700|2000;", "3060|>2000|2500", "", ";", "|||", ">-1|^x|<99999999999", "0|0|0;")
    for number, table in enumerate(tables):
        for body in ("a|b|c;d|e|f;;", "", ";;;;", "one long text " * 40, "|" * 30, "\u00e9\u20ac|x;y"):
            yield b"\0" + f"{table}\n{'  Cash Flow' if number % 2 else ''}\n{body}".encode()
    for sections in (b"\3", b"\5", b"\x09", b"\x11", b"\x21", b"\x3f"):
        yield sections
        yield sections + b"$1,234\n" * 150
        yield sections + b"a|b;c\n" * 150
        yield sections + b"word " * 200
        yield sections + ("\u00e9" * 100 + "\n").encode() * 5


def json():
    sample = (ROOT / "data/samples/first-home.ledgrove.json").read_bytes()
    golden = (ROOT / "tests/golden/compare/cases.jsonl").read_bytes().splitlines()
    texts = [sample, b"\n".join(golden[:3]), *golden[::40], b"", b"{}", b"[]", b"null", b"\xef\xbb\xbf{}", b"{\"ecIncome\": 1e999}",
             b"{\"ecIncome\": \"\\u0000\\ud800\"}", b"[" * 300, b"{\"a\":" * 300, b"{\"ecIncome\": \"\xff\"}", b"{} {}"]
    for choice in range(3):
        for text in texts:
            yield bytes([choice]) + text


def csv():
    head = b"ecIncome,ecStdHome,ecGMHHome,cboMortTerm\r\n"
    yield from (head + b"72000,200000,206000,30 years\r\n", head + b"=1+1,@x,-y,\"+\"\"z\"\r\n", head.replace(b",", b";"), b"",
                head + b"\"open, never closed\n72000", head + b",,,\n,,,,,,,,\n", b"ECINCOME,ecincome\n1,2\n", b"\xef\xbb\xbf" + head,
                b"=cmd,x\n1,2\n", b"ecIncome\n\"1\n2\"\n", b"a\0b\n1\n", head + b"\t=1,\r,'x,\" =2\"\n", b"\n\n\n" + head + b"1\n")


def bmp(width, height, bits, pixels, compression=0, colours=()):
    offset = 54 + 4 * len(colours)
    return (b"BM" + struct.pack("<IIIIiiHHIIQII", offset + len(pixels), 0, offset, 40, width, height, 1, bits, compression,
                                len(pixels), 0, len(colours), 0)
            + b"".join(struct.pack("<I", colour) for colour in colours) + pixels)


def icon(*sizes):
    directory, images = struct.pack("<HHH", 0, 1, len(sizes)), b""
    for size in sizes:
        image = struct.pack("<IiiHH24x", 40, size, 2 * size, 1, 32) + b"\x20\x40\x80\xff" * size * size
        image += bytes((size + 31) // 32 * 4 * size)
        directory += struct.pack("<BBHHHII", size, size, 0, 1, 32, len(image), 6 + 16 * len(sizes) + len(images))
        images += image
    return directory + images


def wmf(placeable):
    def record(function, *words):
        return struct.pack("<IH", 3 + len(words), function) + struct.pack(f"<{len(words)}h", *words)
    records = (record(0x020B, 0, 0) + record(0x020C, 100, 200) + record(0x02FC, 0, 255, 0, 0) + record(0x012D, 0)
               + record(0x041B, 100, 200, 0, 0) + record(0x0418, 90, 90, 10, 10) + record(0x0325, 2, 0, 0, 50, 50)
               + record(0x0324, 3, 0, 0, 50, 50, 0, 50) + record(0x0521, 2, 0x6162, 10, 10) + record(0))
    header = struct.pack("<IH4hHI", 0x9AC6CDD7, 0, 0, 0, 200, 100, 96, 0)
    checksum = 0
    for (word,) in struct.iter_unpack("<H", header):
        checksum ^= word
    start = header + struct.pack("<H", checksum) if placeable else b""
    return start + struct.pack("<HHHIHIH", 1, 9, 0x300, 9 + len(records) // 2, 1, 7, 0) + records


def pictures():
    palette = (0, 0xFF0000, 0xFFFFFF)
    yield bmp(3, 2, 24, bytes(range(24)))
    yield bmp(3, -2, 32, bytes(range(24)))
    yield bmp(4, 2, 8, bytes((0, 0, 0, 0, 1, 1, 2, 2)), 0, palette)
    yield bmp(4, 1, 4, bytes((0x12, 0, 0, 0)), 0, palette)
    yield bmp(1, 1, 1, bytes((128, 0, 0, 0)), 0, palette[:2])
    yield bmp(2, 1, 16, bytes((0x1F, 0x7C, 0, 0)))
    yield bmp(4, 2, 8, bytes.fromhex("04000000020102020001"), 1, palette)
    yield bmp(4, 2, 4, bytes.fromhex("04000000021102220001"), 2, palette)
    yield bmp(4, 2, 8, bytes.fromhex("00030102010000000002010000020001"), 1, palette)
    yield b"BM" + struct.pack("<IIIIHHHH", 30, 0, 26, 12, 1, 1, 1, 24) + b"\1\2\3\0"
    yield icon(16)
    yield icon(16, 32)
    yield wmf(True)
    yield wmf(False)
    yield (ROOT / "data/LedgroveEmblem.png").read_bytes()[:200]


def metafile():
    """Records by function index and words; the target adds the frame."""
    def record(index, *words):
        return bytes([index, len(words)]) + struct.pack(f"<{len(words)}h", *words)
    window = record(23, 0, 0) + record(24, 100, 200)
    dib = struct.unpack("<24h", struct.pack("<IiiHHIIiiIIII", 40, 2, 1, 1, 24, 0, 8, 0, 0, 0, 0, 0x0000FF00, 0xFF00FF00)[:48])
    yield window + record(35, 0, 255, 0, 0) + record(14, 0) + record(43, 90, 90, 10, 10)
    yield window + record(33, 0, 3, 0, 255, 0) + record(14, 0) + record(37, 2, 0, 0, 50, 50) + record(36, 3, 0, 0, 9, 9, 0, 9)
    yield window + record(34, *([12] * 9), *([0x4141] * 8), 0) + record(14, 0) + record(45, 2, 0x6162, 10, 10)
    yield window + record(46, 2, 3, 3, *range(12)) + record(50, *range(8)) + record(47, *range(6))
    yield window + record(53, 0x20, 0xCC, 0, 1, 2, 0, 0, 50, 50, 0, 0, *dib)
    yield window + record(49, 0, 6, 0, 16, 1, 1, 0, 0, 9, 9, 0, 2, 0, 9, 2, 0, 9, 2) + record(13, 0) + record(12, 0)
    yield window + record(0) + record(43, 9, 9, 1, 1) + record(12, -1) + record(18, 0) + record(41, 0, 0, 1, 1, 9, 9)
    yield record(24, 0, 0) + record(43, 9, 9, 1, 1)
    yield record(24, -32768, 32767) + record(23, 32767, -32768) + record(42, 32767, 32767, -32768, -32768)


TARGETS = {"settings": settings, "numbers": numbers, "report": report, "json": json, "csv": csv, "pictures": pictures,
           "metafile": metafile}


def write(target, folder):
    folder.mkdir(parents=True, exist_ok=True)
    for number, seed in enumerate(TARGETS[target]()):
        (folder / f"seed-{number:03}").write_bytes(seed)


if __name__ == "__main__":
    write(sys.argv[1], Path(sys.argv[2]))
