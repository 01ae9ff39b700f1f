# SPDX-License-Identifier: GPL-3.0-or-later
"""The current form of a tank file, as plain dictionaries that plistlib can write.

Numbers and flags of records are stored as strings, those of targets as numbers; every function here returns the
dictionary exactly as in the file.
"""
import plistlib
import struct
from datetime import datetime, timedelta

BUNDLE_VERSION = 0x01000000

YES, NO, UNKNOWN = (int.from_bytes(code, "big") for code in (b"yes ", b"no  ", b"un  "))

CONTAINERS = ("Fish", "Plant", "Invert", "Coral", "Condition", "Schedule", "Inventory", "Expense", "Note")

# target key, display name
TARGETS = (
    ("tempValue", "Temperature"), ("pHValue", "pH"), ("ammoniaValue", "Ammonia"), ("nitrateValue", "Nitrate"),
    ("nitriteValue", "Nitrite"), ("gHValue", "GH"), ("kHValue", "KH"), ("saltValue", "Salinity"),
    ("alkalinityValue", "Alkalinity"), ("phosphateValue", "Phosphate"), ("calciumValue", "Calcium"),
    ("iodineValue", "Iodine"), ("oxygenValue", "Oxygen"), ("copperValue", "Copper"), ("ironValue", "Iron"),
    ("dioxideValue", "CO₂"), ("magnesiumValue", "Magnesium"),
)

# field of a water test -> its key in the file; the fields in WHOLE are whole numbers
CONDITION_KEYS = {
    "ph": "ph", "ammonia": "Ammonia", "nitrate": "Nitrate", "nitrite": "Nitrite", "gH": "GH", "kH": "KH",
    "salt": "Salt", "temp": "Temp", "alkalinity": "alkalinity", "phosphate": "phosphate", "calcium": "calcium",
    "iodine": "iodine", "oxygen": "oxygen", "copper": "copper", "iron": "iron", "dioxide": "dioxide",
    "magnesium": "magnesium",
}
WHOLE = {"calcium", "dioxide", "magnesium"}

DEFAULT_COLUMNS = ("date", "temp", "ph", "ammonia", "nitrate", "nitrite", "magnesium", "gH", "kH", "salt",
                   "alkalinity", "calcium", "dioxide", "copper", "iodine", "iron", "oxygen", "phosphate")

DEFAULT_SORT = {"Condition": "date", "Schedule": "date", "Inventory": "count", "Expense": "date", "Note": "date"}


def flag(value):
    return "1" if value else "0"


def float_text(value):
    """Seven significant digits of the single-precision value: 7.0 is "7", 7.2 stays "7.2". Whole values, such as the
    seconds of a year, are written out rather than with an exponent."""
    single = struct.unpack("<f", struct.pack("<f", value))[0]
    return "%d" % single if single.is_integer() and abs(single) < 2**31 else "%.7g" % single


def zone_of(moment):
    """Offset of Central European time: summer time from the last Sunday of March to that of October, 01:00 UTC."""
    def last_sunday(month):
        day = datetime(moment.year, month, 31)
        return day - timedelta(days=(day.weekday() + 1) % 7)

    summer = last_sunday(3) + timedelta(hours=2) <= moment < last_sunday(10) + timedelta(hours=3)
    return "+0200" if summer else "+0100"


def date_text(moment, zone=None):
    return moment.strftime("%Y-%m-%d %H:%M:%S ") + (zone or zone_of(moment))


def item(parent, name, sci_name, family, size, social, life, level, diet, breeding, care, count, temp, ph, gh, kh,
         salt=0.0, reef=UNKNOWN, notes="", picture=None):
    record = {
        "Parent": parent, "Name": name, "ph": float_text(ph), "KH": float_text(kh), "GHardness": str(int(gh)),
        "SciName": sci_name, "Family": family, "Size": size, "SocialLevel": social, "LifeSpan": life,
        "TankLevel": level, "Diet": diet, "Breeding": breeding, "Care": care, "Count": str(count), "Temp": temp,
        "Salt": float_text(salt), "Notes": notes, "ReefSafe": reef,
    }
    if picture is not None:
        record["FishImage"] = picture
    return record


def condition(moment, zone=None, **values):
    """A water test; parameters that are not given count as not tested."""
    record = {"Date": date_text(moment, zone)}
    for field, key in CONDITION_KEYS.items():
        value = values.pop(field, -1)
        record[key] = str(int(value)) if field in WHOLE else float_text(value)
    if values:
        raise KeyError("no such parameter: %s" % ", ".join(values))
    return record


def expense(moment, text, amount, category, zone=None):
    return {"Date": date_text(moment, zone), "Expense": text, "Amount": amount, "Type": category}


def inventory(text, count):
    return {"Count": str(count), "Item": text}


def note(moment, text, zone=None):
    return {"Date": date_text(moment, zone), "Note": text}


def activity(moment, text, complete=False, interval=0, zone=None):
    """An interval (seconds) other than 0 turns rescheduling on."""
    return {"Date": date_text(moment, zone), "Activity": text, "Complete": flag(complete),
            "NextDate": float_text(interval), "AutoReschedule": flag(interval)}


def target(name, preferred=0.0, deviation=None, warning=False):
    """Without a deviation the tolerance band is off."""
    return {"name": name, "preferred": float(preferred), "warningOn": warning,
            "deviation": float(deviation or 0), "deviationOn": deviation is not None}


def columns(*entries):
    """The entries are column names or (name, width) pairs; without a width the column has its default width."""
    pairs = (entry if isinstance(entry, tuple) else (entry, 0.0) for entry in entries)
    return [{"identifier": name, "width": float(width)} for name, width in pairs]


def list_properties(sort=None, column_info=None):
    """`sort` maps a container ("Note") to (identifier, ascending); the others have the sort order of a new tank."""
    properties = {}
    for container in CONTAINERS:
        identifier, ascending = (sort or {}).get(container, (DEFAULT_SORT.get(container, ""), True))
        properties["Tank" + container] = {container + "SortAscending": flag(ascending),
                                          container + "SortIdentifier": identifier}
    properties["TankCondition"]["ConditionColumnInformation"] = column_info or columns(*DEFAULT_COLUMNS)
    return properties


def tank(name, size="", freshwater=True, expanded=(), categories=None, targets=None, lists=None, sort=None,
         column_info=None):
    """`expanded` names rows ("Tank", "Fish"); `targets` maps a target key to arguments of target(); `lists` maps a
    container ("Fish") to its records in list order."""
    properties = {"Freshwater": flag(freshwater), "Name": name, "Size": size}
    for row in ("Tank", "Fish", "Plant", "Invert", "Coral"):
        properties[row + "Expanded"] = flag(row in expanded)
    properties["ExpenseCategories"] = list(
        categories or ("Fish", "Plants", "Invertebrates", "Corals", "Equipment"))
    for key, target_name in TARGETS:
        properties[key] = target(target_name, **(targets or {}).get(key, {}))
    return {
        "TankProperties": properties,
        "TankListProperties": list_properties(sort, column_info),
        "TankLists": {"Tank" + container: list((lists or {}).get(container, ())) for container in CONTAINERS},
    }


# display names of the livestock containers, as in the keywords
CONTAINER_NAMES = {"Fish": "Fish", "Coral": "Corals", "Invert": "Invertebrates", "Plant": "Plants"}


def keywords(one_tank):
    words = [one_tank["TankProperties"]["Name"], one_tank["TankProperties"]["Size"]]
    for container in ("Fish", "Coral", "Invert", "Plant"):
        records = one_tank["TankLists"]["Tank" + container]
        for record in records:
            words += [record["Name"], record["SciName"]]
        if records:
            words.append(CONTAINER_NAMES[container])
    return words


def notes_text(one_tank):
    text = ""
    for container, key in (("Schedule", "Activity"), ("Note", "Note"), ("Inventory", "Item"), ("Expense", "Expense")):
        text += "".join(record[key] + ", " for record in one_tank["TankLists"]["Tank" + container][:5])
    return text + "aquarium, "


def attributes(tanks, selected_row=0):
    return {"SelectedRow": selected_row, "bundleVersion": BUNDLE_VERSION,
            "metaNotes": "".join(notes_text(one) for one in tanks),
            "metaKeywords": [word for one in tanks for word in keywords(one)]}


def root(tanks, selected_row=0):
    entries = {str(position): one for position, one in enumerate(tanks, 1)}
    entries["FileAttributes"] = attributes(tanks, selected_row)
    return entries


def write(path, dictionary):
    with open(path, "wb") as file:
        plistlib.dump(dictionary, file)
