#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the fixture file beside this script with Python's own property-list writer, to test our reader independently."""

import datetime
import pathlib
import plistlib

here = pathlib.Path(__file__).parent

everything = {
    "array": [1, "two", 3.5, [], {}],
    "blank": "   ",
    "bytes": bytes(range(256)),
    "date": datetime.datetime(2026, 2, 28, 23, 59, 58),
    "dict": {"inner": {"deeper": b"\x00\xff\x10"}, "zwei & <drei>": "ä"},
    "empty": "",
    "emptyBytes": b"",
    "entities": "a & b < c > d \"e\" 'f' &amp;",
    "false": False,
    "integerMax": 2**63 - 1,
    "integerMin": -(2**63),
    "lines": "first\n\tsecond\n",
    "outside": "fish \U0001F420, math \U0001D54F",
    "real": 0.1,
    "realLarge": 1.7976931348623157e308,
    "realSmall": 5e-324,
    "true": True,
    "umlaut": "Größe 25 °C, 水槽",
}

(here / "everything.plist").write_bytes(plistlib.dumps(everything))
