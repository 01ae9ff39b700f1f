# SPDX-License-Identifier: GPL-3.0-or-later
"""Files that can be read. A value that matters to a test differs from every other value in its file."""
from datetime import datetime

from tankfiles import form
from tankfiles.drawing import Canvas

ODD_TEXTS = (
    "Grüße aus der Südsee: äöüÄÖÜß éèñ ł ő",
    "Fish 🐠 and shell 🐚, family 👨‍👩‍👧, flag 🇳🇴",
    "סוכת דגים with English inside שלום",
    "<&>\"' &amp; &lt; ]]> <!-- no comment -->",
    "first line\nsecond line\n\n\tfourth, after a tab\n",
    "  two blanks before and three after   ",
    "\ttab before and after\t",
    "e\u0301 (combining) and \u00e9 (composed), no-break\u00a0space, zero\u200bwidth",
    "水族館 アクアリウム",
    "",
)


def small_picture(seed=0):
    return Canvas(8, 6, (200, 240 - seed, 250), (10, 40 + seed, 90)).png()


def moment(day, hour=12, minute=0, second=0, month=3, year=2026):
    return datetime(year, month, day, hour, minute, second)


def item(parent, name, **changes):
    record = form.item(parent, name, "Species of " + name, "Family", "5 cm", "Peaceful", "5 years", "Middle", "Flakes", "Easy",
                       "Moderate", 1, "24 - 26 °C", 7, 8, 4)
    record.update(changes)
    return record


def simple_tank(name, size="100 l", **arguments):
    return form.tank(name, size, **arguments)


def lean_tank(name, **arguments):
    """A small tank without the optional targets and column list, for files that test something else."""
    tank = simple_tank(name, **arguments)
    for key, _ in form.TARGETS:
        del tank["TankProperties"][key]
    del tank["TankListProperties"]["TankCondition"]["ConditionColumnInformation"]
    return tank


def lean_test(when, zone="+0000", **values):
    """A water test with only the given keys."""
    full = form.condition(when, zone, **values)
    return {key: full[key] for key in ("Date", *(form.CONDITION_KEYS[field] for field in values))}


def three_tanks():
    tanks = []
    for number, name in enumerate(("Alpha", "Beta", "Gamma"), 1):
        tanks.append(simple_tank(name, "%d l" % (number * 100), freshwater=number != 2, expanded=("Tank", "Fish") if number == 2 else (), lists={
            "Fish": [item(name, "%s fish %d" % (name, k)) for k in range(1, number + 1)],
            "Condition": [form.condition(moment(number), temp=24 + number, ph=6.5 + number / 10)],
            "Schedule": [form.activity(moment(number, year=2031), name + " water change", interval=604800)],
            "Expense": [form.expense(moment(number), name + " gravel", 10.5 * number, "Equipment")],
            "Inventory": [form.inventory(name + " net", number)],
            "Note": [form.note(moment(number), name + " note")],
        }))
    return form.root(tanks, 2)


def three_tanks_no_attributes():
    root = three_tanks()
    del root["FileAttributes"]
    # the older form, because a dictionary tank needs the version in the attributes
    for position in ("1", "2", "3"):
        root[position] = older(root[position]["TankProperties"]["Name"])
    return root


def minimal():
    """A file with only the required entries."""
    return {"1": {"TankProperties": {"Name": "Minimal", "Size": ""}}, "FileAttributes": {"bundleVersion": 1}}


def every_field():
    """Two tanks; no two fields of a record or target hold the same value."""
    name = ODD_TEXTS[0]
    lists = {}
    for number, kind in enumerate(("Fish", "Plant", "Invert", "Coral"), 1):
        texts = [kind + ": " + text for text in ODD_TEXTS]
        lists[kind] = [
            form.item(name, texts[0], texts[1], texts[2], texts[3], texts[4], texts[5], texts[6], texts[7], texts[8],
                      kind + " care words", 100 + number, kind + " 22.5 - 28 °C", 6.125 + number, 10 + number, 3.75 + number,
                      salt=1.0 + number / 1024, reef=(form.YES, form.NO, form.UNKNOWN, form.YES)[number - 1],
                      notes="".join(text + "\n" for text in texts), picture=small_picture(10 * number)),
            form.item(name, kind + " two", *(kind + " field %d" % k for k in range(8)), kind + " care two", -number,
                      "  ", -0.5 - number, -7, 0, reef=form.NO if number == 1 else form.UNKNOWN),
        ]
    first = {field: 2.25 + number * 1.5 for number, field in enumerate(form.CONDITION_KEYS)}
    first.update(calcium=411, dioxide=17, magnesium=1303, salt=1.025)
    untested = [dict([(field, 40 + number)]) for number, field in enumerate(form.CONDITION_KEYS)]
    lists["Condition"] = [form.condition(moment(1, 7, 8, 9), "+0100", **first)]
    lists["Condition"] += [form.condition(moment(2 + number, 20, number), "+0100", **values) for number, values in enumerate(untested)]
    lists["Schedule"] = [form.activity(moment(1, 6, 30, 15, year=2031), ODD_TEXTS[4], True, 0, "+0100"),
                         form.activity(moment(2, 6, 31, 16, year=2031), ODD_TEXTS[3], False, 1814400, "+0100"),
                         form.activity(moment(3, 6, 32, 17, year=2031), ODD_TEXTS[1], True, 43200.5, "+0100")]
    lists["Inventory"] = [form.inventory(ODD_TEXTS[5], -3), form.inventory(ODD_TEXTS[2], 12), form.inventory(ODD_TEXTS[8], 2147483647)]
    lists["Expense"] = [form.expense(moment(4, 1, 2, 3), ODD_TEXTS[3], 1234.56, ODD_TEXTS[2], "+0100"),
                        form.expense(moment(5, 1, 2, 4), ODD_TEXTS[6], 77, "Category that is gone", "+0100"),
                        form.expense(moment(6, 1, 2, 5), ODD_TEXTS[7], -0.1, "None", "+0100")]
    lists["Note"] = [form.note(moment(7 + k, 3, 4, 5), text, "+0100") for k, text in enumerate(ODD_TEXTS)]
    targets = {key: dict(preferred=10.5 + number, deviation=0.25 + number / 8 if number % 3 else None, warning=number % 2 == 0)
               for number, (key, _) in enumerate(form.TARGETS)}
    tank = form.tank(name, ODD_TEXTS[3], False, ("Tank", "Plant", "Coral"), ODD_TEXTS[:4], targets, lists, column_info=form.columns(
        *((column, 41.5 + number) for number, column in enumerate(form.DEFAULT_COLUMNS[::-1]))))
    for number, (key, _) in enumerate(form.TARGETS):
        tank["TankProperties"][key]["name"] = "%s %d" % (ODD_TEXTS[number % 4], number)
    other = form.tank(ODD_TEXTS[5], ODD_TEXTS[4], True, ("Fish", "Invert"), ["only one"])
    return form.root([tank, other], 7)


def without_keys(*keys):
    """One tank with one water test that has all keys but the given ones; without magnesium its target is missing too."""
    values = {field: 5 for field in form.CONDITION_KEYS}
    tank = simple_tank("Older keys", lists={"Condition": [form.condition(moment(1), "+0000", **values)]})
    for key in keys:
        del tank["TankLists"]["TankCondition"][0][key]
        tank["TankProperties"].pop({"magnesium": "magnesiumValue"}.get(key), None)
    return form.root([tank])


def hardness_fraction():
    hard = {"Up": "7.9", "Half": "0.5", "Below": "-3.9", "Whole": "12"}
    return form.root([lean_tank("Hardness", lists={"Fish": [item("Hardness", name, GHardness=text) for name, text in hard.items()]})])


def schedule_auto_off():
    record = form.activity(moment(1, year=2031), "Rinse the filter", zone="+0000")
    record["NextDate"] = "604800"
    return form.root([lean_tank("Auto off", lists={"Schedule": [record]})])


def interval_exponent():
    """An interval of 52 weeks, written with the seven digits to which some writers are limited."""
    record = form.activity(moment(1, year=2031), "New light tube", interval=31449600, zone="+0000")
    record["NextDate"] = "3.14496e+07"
    return form.root([lean_tank("Interval", lists={"Schedule": [record]})])


def sorted_lists():
    """Lists with unsorted records; all sort keys of a list differ, so that only one order is correct."""
    lists = {
        "Condition": [lean_test(moment(day), ph=ph, magnesium=magnesium)
                      for day, ph, magnesium in ((3, 7.2, 1300), (1, -1, 1250), (4, 6.4, 900), (2, 8.1, -1), (5, 0, 1100))],
        "Schedule": [form.activity(moment(day, year=2031), text, done, zone="+0000")
                     for day, text, done in ((2, "beta", False), (1, "Gamma", True), (3, "ALPHA", False))],
        "Inventory": [form.inventory(text, count) for text, count in (("heater", 2), ("Bucket", 10), ("air stone", -1), ("Net", 0))],
        "Expense": [form.expense(moment(day), text, amount, category, "+0000") for day, text, amount, category in (
            (4, "pump", 19.9, "equipment"), (1, "Anubias", 100, "Plants"), (3, "zebra snail", 5.5, "Invertebrates"), (2, "Food", -3, "Fish"))],
        "Note": [form.note(moment(day), text, "+0000") for day, text in ((2, "melon"), (3, "Apple"), (1, "zucchini"), (4, "Banana"))],
    }
    keys = (
        {"Condition": "ph", "Schedule": "activity", "Inventory": "item", "Expense": "amount", "Note": "note"},
        {"Condition": "magnesium", "Schedule": "complete", "Inventory": "count", "Expense": "type", "Note": "date"},
        {"Condition": "date", "Schedule": "next", "Inventory": "count", "Expense": "expense", "Note": "date"},
    )
    tanks = []
    for number, identifiers in enumerate(keys, 1):
        for ascending in (True, False):
            tanks.append(lean_tank("Keys %d %s" % (number, "up" if ascending else "down"), lists=lists,
                                     sort={container: (key, ascending) for container, key in identifiers.items()}))
    # livestock lists store their sort order, but reading does not apply it
    fish = [item("Fish stay", name) for name in ("Mu", "Alpha", "Zeta")]
    tanks.append(lean_tank("Fish stay", lists={"Fish": fish}, sort={"Fish": ("name", False)}))
    return form.root(tanks)


def columns():
    layouts = {
        "Two": form.columns(("date", 120), ("ph", 60.5)),
        "Order": form.columns(("ph", 50), ("magnesium", 0), ("date", 90), ("temp", 1000)),
        "Twice": form.columns(("date", 90), ("ph", 50), ("temp", 60), ("ph", 70)),
        "Unknown": form.columns(("date", 90), ("banana", 50), ("", 10), ("PH", 40), ("kH", 40)),
        "None": [],
        "Whole numbers": [{"identifier": "date", "width": 90}, {"identifier": "ph", "width": 55}],
        "Missing": None,
    }
    tanks = []
    for name, layout in layouts.items():
        tank = lean_tank(name, lists={"Condition": [lean_test(moment(1), ph=7, temp=25)]})
        if layout is not None:
            tank["TankListProperties"]["TankCondition"]["ConditionColumnInformation"] = layout
        tanks.append(tank)
    return form.root(tanks)


def foreign_zone():
    zones = ("-0500", "+0000", "+0545", "+1400", "-1200")
    lists = {"Condition": [lean_test(moment(14, 18, 22, 5, year=2007), zone, ph=6 + k / 2) for k, zone in enumerate(zones)],
             "Note": [form.note(moment(31, 23, 59, 59, month=12, year=2025), zone, zone) for zone in zones],
             "Schedule": [form.activity(moment(1, 0, 0, 0, month=1, year=2031), zone, interval=86400, zone=zone) for zone in zones],
             "Expense": [form.expense(moment(28, 2, 30, month=3), zone, 1.0, "Fish", zone) for zone in zones]}
    return form.root([lean_tank("Zones", lists=lists)])


# keys whose string contains a flag, a whole number or a float
FLAG_KEYS = {"Freshwater", "TankExpanded", "FishExpanded", "PlantExpanded", "InvertExpanded", "CoralExpanded", "Complete", "AutoReschedule"}
WHOLE_KEYS = {"GHardness", "Count", "calcium", "dioxide", "magnesium"}
FLOAT_KEYS = {"ph", "KH", "Salt", "Ammonia", "Nitrate", "Nitrite", "GH", "Temp", "NextDate", "alkalinity", "phosphate", "iodine", "oxygen", "copper", "iron"}


def as_numbers(value, key=""):
    """The same tree with numbers and booleans instead of strings."""
    if isinstance(value, dict):
        return {inner: as_numbers(content, inner) for inner, content in value.items()}
    if isinstance(value, list):
        return [as_numbers(content) for content in value]
    if not isinstance(value, str):
        return value
    if key in FLAG_KEYS or key.endswith("SortAscending"):
        return value == "1"
    if key in WHOLE_KEYS:
        return int(value)
    if key in FLOAT_KEYS and not value.endswith("C"):  # "Temp" of livestock is free text
        return float(value)
    return value


def integers_as_numbers():
    return as_numbers(three_tanks())


def older(name, attributes=6, properties=None):
    """A tank of the older form: an array of the attribute array and five record arrays."""
    def sort(kind, key):
        return {kind + "SortAscending": "1", kind + "SortIdentifier": key}

    fish = item(name, name + " fish")
    for key in ("Salt", "Notes", "ReefSafe"):
        del fish[key]
    test = form.condition(moment(1), "+0000", temp=25, ph=7.2, ammonia=0, nitrate=10, nitrite=0, gH=8, kH=5, salt=0)
    for key in ("alkalinity", "phosphate", "calcium", "iodine", "oxygen", "copper", "iron", "dioxide", "magnesium"):
        del test[key]
    own = {"Freshwater": "1", "Name": name, "Size": "54 l", "TankExpanded": "1", "FishExpanded": "1", "PlantExpanded": "0",
           "InvertExpanded": "0", "CoralExpanded": "0"}
    own.update(properties or {})
    lists = [own, sort("Fish", ""), sort("Condition", "date"), sort("Schedule", "date"), sort("Inventory", "item"), sort("Note", "date"),
             {"more": "than six"}]
    return [lists[:attributes], [fish], [test], [form.activity(moment(1, year=2031), name + " change", interval=604800, zone="+0000")],
            [form.inventory(name + " net", 2)], [form.note(moment(1), name + " note", "+0000")]]


def older_targets(*keys):
    names = dict(form.TARGETS)
    return {key: form.target(names[key], 3.5 + number, 0.5, True) for number, key in enumerate(keys)}


EIGHT = ("tempValue", "pHValue", "ammoniaValue", "nitrateValue", "nitriteValue", "gHValue", "kHValue", "saltValue")
FIFTEEN = EIGHT + ("alkalinityValue", "phosphateValue", "calciumValue", "iodineValue", "oxygenValue", "copperValue", "ironValue")


def older_root(*tanks):
    root = {str(position): tank for position, tank in enumerate(tanks, 1)}
    root["FileAttributes"] = {"SelectedRow": 0}
    return root


FILES = {
    "three-tanks.xml": three_tanks,
    "three-tanks-no-attributes.xml": three_tanks_no_attributes,
    "minimal.xml": minimal,
    "every-field.xml": every_field,
    "no-alkalinity.xml": lambda: without_keys("alkalinity", "dioxide", "magnesium"),
    "no-magnesium.xml": lambda: without_keys("magnesium"),
    "hardness-fraction.xml": hardness_fraction,
    "schedule-auto-off.xml": schedule_auto_off,
    "interval-exponent.xml": interval_exponent,
    "sorted-lists.xml": sorted_lists,
    "columns.xml": columns,
    "foreign-zone.xml": foreign_zone,
    "integers-as-numbers.xml": integers_as_numbers,
    "older-six.xml": lambda: older_root(older("Six", properties=older_targets(*FIFTEEN)), older("Six, with categories", properties={
        "ExpenseCategories": ["Old one", "Old two"], **older_targets(*EIGHT)})),
    "older-seven.xml": lambda: older_root(older("Seven", 7, older_targets(*FIFTEEN))),
    "older-no-targets.xml": lambda: older_root(older("No targets")),
    "older-eight-targets.xml": lambda: older_root(older("Eight targets", properties=older_targets(*EIGHT))),
    "older-mixed-dict.xml": lambda: older_root(older("Array first"), simple_tank("Dictionary second")),
}
