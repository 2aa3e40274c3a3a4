"""Inputs that once caused a fault, each with a comment on the fault. Every test run replays them."""

FINDINGS = {
    "settings": {},
    "numbers": {},
    # columns of negative width
    "report": {"narrow-columns": b"\0>-1|^x|<99999999999\n  Cash Flow\n"},
    # an incomplete character, which was returned as bytes that are not UTF-8
    "json": {"half-character": b'\0{"ecStdHome": "\\uDFF5"}\n', "half-in-a-name": b'\1{"\\uDFF5": "1"}'},
    # a formula after a blank, and blanks that were lost without quotes
    "csv": {"hidden-formula": b"ecIncome,ecStdHome,ecGMHHome,cboMortTerm\r\n\t=1,\r,'x,\" =2\"\n"},
    "pictures": {
        # a metafile whose header claims a record of 2 GB, for which the library allocated memory
        "huge-record": bytes.fromhex("010009000003480000000100070000424d5200000000000000"),
        # icons of a few bytes that claim thousands of images; the reader searched for each one
        "many-images": bytes.fromhex("0000010001e2"),
        "more-images": bytes.fromhex("0000010008") + b"\xf5" * 60,
    },
    "metafile": {
        # a bitmap in a record that claims 1.9 GB, for which the library allocated memory
        "huge-bitmap": b"3" * 33 + b"Z\x15\x01\x97",
        # an arc over the whole coordinate range, which the library took seconds to draw
        "endless-arc": bytes.fromhex("3266ffff0200000000000000ff3e"),
    },
}
