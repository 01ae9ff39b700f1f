# SPDX-License-Identifier: GPL-3.0-or-later
"""Faulty files, each with the expected outcome of reading it.

Outcomes: "refused" - the file is not a property-list dictionary: no message, the open tanks are kept ("old");
"read-error" - a tank cannot be built: an alert, the tanks before it are kept; "reads" - read without a message.
"question" marks files for which the program first asks whether to keep a copy of an older file.
"""
import copy
import plistlib
from datetime import datetime

from tankfiles import form

from scripts.good import ODD_TEXTS, item, lean_tank, moment, older, older_root, small_picture

HEAD = (b'<?xml version="1.0" encoding="UTF-8"?>\n'
        b'<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">\n')
MISSING = object()


class Collection:
    """Names, contents and expected outcomes of the broken files."""

    def __init__(self):
        self.files, self.expected = {}, {}

    def add(self, name, content, outcome, tanks, why, **more):
        assert name not in self.expected, name
        self.files[name] = content if isinstance(content, bytes) else plistlib.dumps(content)
        self.expected[name] = {"outcome": outcome, "tanks": tanks, "why": why, **more}

    def refused(self, name, content, why):
        self.add(name, content, "refused", "old", why)

    def read_error(self, name, content, why, tanks=1, **more):
        self.add(name, content, "read-error", tanks, why, **more)

    def reads(self, name, content, why, tanks=2, **more):
        self.add(name, content, "reads", tanks, why, **more)


RECORDS = {
    "Fish": lambda: item("Second", "A fish"),
    "Condition": lambda: form.condition(moment(1), "+0000", **{field: 5 for field in form.CONDITION_KEYS}),
    "Schedule": lambda: form.activity(moment(1, year=2031), "An activity", interval=604800, zone="+0000"),
    "Inventory": lambda: form.inventory("An item", 3),
    "Expense": lambda: form.expense(moment(1), "An expense", 9.5, "Fish", "+0000"),
    "Note": lambda: form.note(moment(1), "A note", "+0000"),
}


def two_tanks(change=None, containers=tuple(RECORDS)):
    """A root with a valid first tank and a second with one record in each of the containers, which `change` may make
    invalid. The other containers have no list attributes, which are optional, so that the files stay small."""
    second = lean_tank("Second")
    for container in containers:
        second["TankLists"]["Tank" + container] = [RECORDS[container]()]
    attributes = second["TankListProperties"]
    second["TankListProperties"] = {"Tank" + container: attributes["Tank" + container] for container in containers}
    root = {"1": {"TankProperties": {"Name": "First", "Size": "60 l"}}, "2": second,
            "FileAttributes": {"SelectedRow": 0, "bundleVersion": form.BUNDLE_VERSION, "metaNotes": "", "metaKeywords": []}}
    if change:
        change(root)
    return root


def changed(*path_and_value, containers=("Note",)):
    """The two tanks with one entry replaced or removed."""
    *path, last, value = path_and_value

    def change(root):
        place = root
        for step in path:
            place = place[step]
        if value is MISSING:
            del place[last]
        else:
            place[last] = value

    return two_tanks(change, containers)


def record_with(container, key, value):
    return changed("2", "TankLists", "Tank" + container, 0, key, value, containers=(container,))


def text_of(dictionary):
    return plistlib.dumps(dictionary)


def not_property_lists(files):
    whole = text_of(two_tanks(containers=("Note",)))
    no_xml = "no XML that is well formed and holds a <plist>"
    files.refused("empty.xml", b"", "no bytes, no property list")
    files.refused("blank.xml", b" \n\t\n", "white space only")
    places = {"declaration": 20, "doctype": 90, "inside-tag": whole.index(b"<key>Name</key>") + 3, "inside-text": whole.index(b"Second</string>") + 3,
              "between-tanks": whole.index(b"<key>2</key>"), "before-plist-end": whole.rindex(b"</plist>"), "inside-last-tag": len(whole) - 4}
    for place, length in places.items():
        files.refused("truncated-%s.xml" % place, whole[:length], no_xml + ": cut off " + place.replace("-", " "))
    files.refused("not-xml.xml", b"Water test of Sunday:\npH 7.2, nitrate 10\n", no_xml)
    files.refused("random-bytes.xml", bytes((i * 197 + i * i * 31) % 251 + 4 for i in range(700)), no_xml)
    files.refused("html.xml", b"<!DOCTYPE html>\n<html><head><title>404</title></head><body><p>Not found<br></p></body></html>\n", no_xml)
    files.refused("html-well-formed.xml", b"<?xml version=\"1.0\"?>\n<html><body><p>Not found</p></body></html>\n", "XML, but the outermost element is no <plist>")
    files.refused("root-array.xml", text_of([two_tanks()["1"]]), "a property list whose root is no dictionary")
    files.refused("root-string.xml", text_of("First"), "a property list whose root is no dictionary")
    files.refused("root-integer.xml", text_of(7), "a property list whose root is no dictionary")
    files.refused("plist-empty.xml", HEAD + b'<plist version="1.0"></plist>\n', "a <plist> without a value")
    files.refused("plist-two-values.xml", HEAD + b'<plist version="1.0"><dict/><dict/></plist>\n', "a <plist> holds one value")
    files.refused("key-without-value.xml", whole.replace(b"<key>Name</key>\n\t\t\t<string>Second</string>", b"<key>Name</key>"),
                  "keys and values of a dictionary do not pair up")
    files.refused("unknown-element.xml", whole.replace(b"<string>Second</string>", b"<text>Second</text>", 1), "<text> is no element of a property list")
    files.refused("crossed-tags.xml", whole.replace(b"</array>", b"</dict>", 1), no_xml)
    files.refused("bare-ampersand.xml", whole.replace(b"Second", b"Fish & chips"), no_xml)
    files.refused("huge-integer-element.xml", whole.replace(b"<integer>0</integer>", b"<integer>99999999999999999999</integer>"),
                  "an <integer> holds 64 bits; a number beyond them is no property-list value")
    files.refused("integer-word.xml", whole.replace(b"<integer>0</integer>", b"<integer>zero</integer>"), "the text of an <integer> is no number")
    files.refused("broken-base64.xml", whole.replace(b"<integer>0</integer>", b"<data>!?*</data>"), "characters that base64 does not know")
    files.refused("broken-utf8.xml", whole.replace(b"Second", b"Sec\xff\xfeond"), "bytes that no UTF-8 text holds: not well formed")
    files.refused("cut-utf8.xml", whole.replace(b"A note", b"A n\xc3"), "a character whose second byte is missing: not well formed")
    files.refused("surrogate-utf8.xml", whole.replace(b"A note", b"A n\xed\xa0\x80te"), "half a surrogate pair coded as UTF-8: not well formed")
    files.refused("zero-byte.xml", whole.replace(b"A note", b"A n\x00te"), "a zero byte: not well formed")
    for code in ("1", "x1F", "xD800", "xFFFF", "x110000"):
        files.refused("reference-%s.xml" % code.lower(), whole.replace(b"A note", b"A &#%s; note" % code.encode()),
                      "a reference to what XML calls no character: not well formed")
    files.refused("entity-bomb.xml", b'<?xml version="1.0"?>\n<!DOCTYPE plist [\n<!ENTITY a "ha">\n'
                  + b"".join(b'<!ENTITY %c "%s">\n' % (98 + k, b"&%c;" % (97 + k) * 10) for k in range(9))
                  + b"]>\n<plist version=\"1.0\"><dict><key>1</key><string>&j;</string></dict></plist>\n",
                  "entities of a document type are not resolved, so &j; is an unknown one")


def encodings(files):
    whole = text_of(two_tanks(containers=("Note",)))
    accented = whole.replace(b"A note", "Süße 🐟".encode())
    files.reads("byte-order-mark.xml", b"\xef\xbb\xbf" + accented, "UTF-8 with its mark")
    files.reads("utf-16.xml", accented.decode().replace('encoding="UTF-8"', 'encoding="UTF-16"').encode("utf-16"), "UTF-16 with its mark")
    files.reads("crlf.xml", accented.replace(b"\n", b"\r\n"), "line ends of another system; XML reads them as one line feed")
    files.reads("one-line.xml", whole.replace(b"\n", b"").replace(b"\t", b""), "no white space between the elements")
    files.reads("comments.xml", whole.replace(b"<key>2</key>", b"<!-- second --><?some thing?><key>2</key>").replace(b"A note", b"A <!-- no -->note"),
                "comments and instructions are no content")
    files.reads("cdata.xml", whole.replace(b"A note", b"<![CDATA[A < note & more]]>"), "a section of plain text is text")
    legal = "".join("&#%d;" % code for code in (9, 10, 13)) + "\x7f" + "".join(chr(c) for c in range(0x80, 0xA0)) + "".join("&#x%X;" % c for c in range(0x7F, 0xA0))
    files.reads("control-characters.xml", whole.replace(b"A note", legal.encode()),
                "the control characters that XML can hold: tab, line feed and carriage return by reference, delete and the second set raw and by reference")


def root_entries(files):
    good = two_tanks(containers=("Note",))
    files.reads("root-empty.xml", {}, "no entries: entry count minus one is below one, so no tank is read", 0, question=True)
    files.reads("only-attributes.xml", {"FileAttributes": good["FileAttributes"]}, "one entry, so no tank is read", 0)
    files.read_error("no-attributes-dictionary-tanks.xml", {"1": good["1"], "2": good["2"]},
                     "two entries, so one tank is read, but a dictionary tank needs the version that the attributes hold", 0, question=True)
    files.read_error("attributes-empty.xml", changed("FileAttributes", {}), "a dictionary tank needs the version that the attributes hold", 0, question=True)
    files.refused("attributes-array.xml", changed("FileAttributes", ["bundleVersion"]),
                  "the attributes are taken before the old tanks go and outside the guard around a tank, so nothing is read and nothing is lost")
    files.reads("selected-row-string.xml", changed("FileAttributes", "SelectedRow", "2"), "the row is read as a whole number, from a text as well")
    files.reads("selected-row-far.xml", changed("FileAttributes", "SelectedRow", 100000), "there is no such row to select")
    files.reads("version-string.xml", changed("FileAttributes", "bundleVersion", "1.0"), "of the version only its presence counts")
    files.reads("metadata-wrong.xml", changed("FileAttributes", "metaKeywords", {"a": 1}), "search metadata is written, never read")
    files.read_error("gap.xml", {"1": good["1"], "3": good["2"], "FileAttributes": good["FileAttributes"]},
                     "three entries, so tanks 1 and 2 are read; there is no 2, and a tank from nothing has no name")
    files.read_error("padded-key.xml", {"01": good["1"], "FileAttributes": good["FileAttributes"]},
                     "the first tank stands under 1, not 01", 0)
    files.read_error("extra-root-key.xml", {"1": good["1"], "FileAttributes": good["FileAttributes"], "Comment": "mine"},
                     "the extra key counts as an entry, so tank 2 is looked for and is not there")
    files.read_error("tank-string.xml", changed("2", "a tank"), "what is no dictionary is taken for the older array form, which a text is not")
    files.read_error("tank-integer.xml", changed("2", 2), "what is no dictionary is taken for the older array form, which a number is not")
    files.read_error("tank-empty-dictionary.xml", changed("2", {}), "a tank needs its properties' name")
    files.read_error("tank-empty-array.xml", changed("2", []), "the older form begins with the attribute array")
    files.read_error("older-too-short.xml", older_root(older("One"), older("Two")[:3]), "an older tank has five record arrays", question=True)
    files.read_error("older-attributes-short.xml", older_root(older("One"), older("Two", 3)), "an older tank's attribute array has six entries", question=True)
    files.read_error("older-properties-string.xml", older_root(older("One"), [["Two"], [], [], [], [], []]), "an older tank's properties are a dictionary", question=True)
    twice = text_of(good).replace(b"<key>2</key>", b"<key>1</key>")
    files.reads("duplicate-tank.xml", twice, "of a key that stands twice the last one holds, so there are two entries and one tank, named Second", 1)
    files.reads("duplicate-field.xml", text_of(good).replace(b"<string>A note</string>", b"<string>A note</string><key>Note</key><string>The last note</string>"),
                "of a key that stands twice the last one holds")


def missing(files):
    for section, keys in (("TankProperties", ("Name", "Size")),):
        for key in keys:
            files.read_error("missing-tank-%s.xml" % key.lower(), changed("2", section, key, MISSING), "cannot be stored as none")
    needed = {"Fish": ("Name", "SciName", "Family", "Size", "SocialLevel", "LifeSpan", "TankLevel", "Diet", "Breeding", "Care", "Temp"),
              "Expense": ("Expense", "Type"), "Inventory": ("Item",), "Note": ("Note",), "Schedule": ("Activity",)}
    for container, keys in needed.items():
        for key in keys:
            files.read_error("missing-%s-%s.xml" % (container.lower(), key.lower()), record_with(container, key, MISSING), "cannot be stored as none")
    lenient = {"Fish": ("Parent", "ph", "KH", "GHardness", "Count", "Salt", "Notes", "ReefSafe"), "Expense": ("Date", "Amount"), "Inventory": ("Count",),
               "Note": ("Date",), "Schedule": ("Date", "Complete", "NextDate", "AutoReschedule"), "Condition": ("Date", *form.CONDITION_KEYS.values())}

    def drop(root):
        for container, keys in lenient.items():
            for key in keys:
                del root["2"]["TankLists"]["Tank" + container][0][key]

    files.reads("missing-everything-optional.xml", two_tanks(drop), "every key that may be missing is missing")
    files.read_error("missing-properties.xml", changed("2", "TankProperties", MISSING), "without properties there is no name, which cannot be stored as none")
    files.reads("missing-lists.xml", changed("2", "TankLists", MISSING), "a missing list is an empty list")
    files.reads("missing-one-list.xml", changed("2", "TankLists", "TankNote", MISSING), "a missing list is an empty list")
    files.reads("missing-list-properties.xml", changed("2", "TankListProperties", MISSING),
                "no attributes: no sort key and the direction of a missing flag; no list has two records to put in order")
    files.reads("missing-one-list-properties.xml", changed("2", "TankListProperties", "TankExpense", MISSING, containers=("Expense",)), "as for all attributes")


WRONG = (("dictionary", {"a": "b"}), ("array", ["a"]), ("date", datetime(2026, 3, 1, 12)), ("data", b"\x01\x02\x03"))
WRONG_AS_TEXT = (*WRONG[:2], WRONG[3], WRONG[3])  # a date can be read where a text or a date belongs
NUMBERS = {"ph", "KH", "GHardness", "Count", "Salt", "ReefSafe", "Amount", "Complete", "NextDate", "AutoReschedule", *form.CONDITION_KEYS.values()}


def wrong_value(container, key, turn):
    number = key in NUMBERS and (container, key) != ("Fish", "Temp")
    return (WRONG if number else WRONG_AS_TEXT)[turn % len(WRONG)]


def wrong_types(files):
    why = "a %s cannot be read as the text or number that belongs here"
    turn = 0
    for container, make in RECORDS.items():
        for key in make():
            if key == "Parent":
                continue
            kind, value = wrong_value(container, key, turn)
            turn += 1
            files.read_error("wrong-%s-%s-%s.xml" % (container.lower(), key.lower(), kind),
                             record_with(container, key, value), why % kind)
    files.reads("wrong-fish-parent.xml", record_with("Fish", "Parent", {"a": "b"}), "the tank's name in a record is written, never read")
    for kind, value in (("string", "picture"), ("dictionary", {}), ("array", [])):
        files.read_error("wrong-fish-fishimage-%s.xml" % kind, record_with("Fish", "FishImage", value), "a picture is data")
    for key in ("Freshwater", "Name", "Size", "TankExpanded", "FishExpanded", "PlantExpanded", "InvertExpanded", "CoralExpanded"):
        kind, value = (WRONG_AS_TEXT if key in ("Name", "Size") else WRONG)[turn % len(WRONG)]
        turn += 1
        files.read_error("wrong-tank-%s-%s.xml" % (key.lower(), kind), changed("2", "TankProperties", key, value), why % kind)
    properties = ("2", "TankProperties")
    files.read_error("wrong-categories-string.xml", changed(*properties, "ExpenseCategories", "Fish"), "the categories are an array")
    files.read_error("wrong-categories-array.xml", changed(*properties, "ExpenseCategories", ["Fish", ["Food"]]), why % "array")
    files.read_error("wrong-target-string.xml", changed(*properties, "tempValue", "25"), "a target is a dictionary")
    files.read_error("wrong-target-array.xml", changed(*properties, "magnesiumValue", [25]), "a target is a dictionary")
    good_target = form.target("Temperature", 25, 1, True)
    for key, (kind, value) in zip(good_target, WRONG + (("array", []),)):
        files.read_error("wrong-target-%s-%s.xml" % (key.lower(), kind), changed(*properties, "pHValue", {**good_target, key: value}), why % kind)
    for key, value, kind in (("TankProperties", "Second", "string"), ("TankProperties", ["Second"], "array"), ("TankLists", "none", "string"),
                             ("TankLists", [[]], "array"), ("TankListProperties", "none", "string"), ("TankListProperties", [], "array")):
        files.read_error("wrong-%s-%s.xml" % (key.lower(), kind), changed("2", key, value), "a dictionary belongs here")
    for container in form.CONTAINERS:
        files.read_error("wrong-list-%s-dictionary.xml" % container.lower(), changed("2", "TankLists", "Tank" + container, {"0": {}}), "a list is an array")
    files.read_error("wrong-list-string.xml", changed("2", "TankLists", "TankNote", "A note"), "a list is an array")
    for container in ("Fish", "Condition", "Note"):
        good = RECORDS[container]()
        files.read_error("wrong-record-%s-string.xml" % container.lower(), changed("2", "TankLists", "Tank" + container, [good, "a record"]), "a record is a dictionary")
    files.read_error("wrong-record-array.xml", changed("2", "TankLists", "TankExpense", [["a record"]]), "a record is a dictionary")
    attributes = ("2", "TankListProperties")
    files.read_error("wrong-attributes-string.xml", changed(*attributes, "TankNote", "date"), "list attributes are a dictionary")
    files.read_error("wrong-sort-identifier.xml", changed(*attributes, "TankNote", "NoteSortIdentifier", ["date"]), why % "array")
    files.read_error("wrong-sort-ascending.xml", changed(*attributes, "TankNote", "NoteSortAscending", {}), why % "dictionary")
    files.reads("wrong-livestock-attributes.xml", changed(*attributes, "TankFish", "FishSortIdentifier", ["name"], containers=("Fish",)), "livestock lists ignore their attributes")
    tests = ("Condition",)
    columns = (*attributes, "TankCondition", "ConditionColumnInformation")
    files.read_error("wrong-columns-string.xml", changed(*columns, "date, ph", containers=tests), "the column list is an array")
    files.read_error("wrong-column-string.xml", changed(*columns, [{"identifier": "date", "width": 90.0}, "ph"], containers=tests), "a column is a dictionary")
    files.read_error("wrong-column-identifier.xml", changed(*columns, [{"identifier": {"a": "b"}, "width": 90.0}], containers=tests), why % "dictionary")
    files.read_error("wrong-column-width.xml", changed(*columns, [{"identifier": "date", "width": ["90"]}], containers=tests), why % "array")


def odd_values(files):
    files.reads("picture-random.xml", record_with("Fish", "FishImage", bytes((i * 73 + 11) % 256 for i in range(400))), "no picture can be made of it; the fish has none")
    files.reads("picture-empty.xml", record_with("Fish", "FishImage", b""), "no bytes, no picture")
    files.reads("picture-cut.xml", record_with("Fish", "FishImage", small_picture()[:40]), "no picture can be made of it; the fish has none")
    for name, text in (("empty", ""), ("words", "last Sunday"), ("other-format", "03/14/2007 6:22 PM"), ("no-zone", "2007-03-14 18:22:05"),
                       ("impossible", "2007-02-30 18:22:05 +0000"), ("more-behind", "2007-03-14 18:22:05 -0500 or so")):
        def spoil(root, text=text):
            for container in ("Condition", "Schedule", "Expense", "Note"):
                root["2"]["TankLists"]["Tank" + container][0]["Date"] = text

        files.reads("date-%s.xml" % name, two_tanks(spoil, ("Condition", "Schedule", "Expense", "Note")), "a text that is no date in the file's format leaves the records without one")

    def numbers(text):
        def change(root):
            lists = root["2"]["TankLists"]
            for key in form.CONDITION_KEYS.values():
                lists["TankCondition"][0][key] = text
            for key in ("ph", "KH", "GHardness", "Count", "Salt"):
                lists["TankFish"][0][key] = text
            lists["TankInventory"][0]["Count"] = text
            lists["TankSchedule"][0]["NextDate"] = text
        return two_tanks(change, ("Condition", "Fish", "Inventory", "Schedule"))

    for name, text, why in (
            ("words", "seven", "no leading number: 0"), ("empty", "", "no leading number: 0"), ("trailing", "7.5 mg/l", "the leading number holds"),
            ("comma", "7,5", "the leading number ends at the comma, whatever the user's language: 7"), ("nan", "NaN", "no leading decimal number: 0"),
            ("infinity", "inf", "no leading decimal number: 0"), ("exponent", "1e999", "beyond every float; no crash, and what is shown or saved later stays readable"),
            ("minus-exponent", "-1e999", "beyond every float"), ("huge", "99999999999999999999", "beyond 32 bits; whole numbers are held at their limit"),
            ("400-digits", "1234567890" * 40, "beyond every number"), ("negative", "-2147483649", "just beyond 32 bits"), ("hexadecimal", "0x1F", "the leading decimal number is 0"),
            ("blanks", "  7", "blanks before a number are no harm")):
        files.reads("number-%s.xml" % name, numbers(text), why)
    long_text = ("Süß 🐟 and nine more words of plain water in a note. " * 1000)[:50000]
    files.reads("long-texts.xml", changed("2", "TankLists", "TankNote", [form.note(moment(1), long_text, "+0000")]), "a note of 50,000 characters")
    files.reads("long-name.xml", changed("2", "TankProperties", "Name", "N" * 50000), "a name of 50,000 characters")

    def flags(root):
        root["2"]["TankProperties"] |= {"Freshwater": "yes", "TankExpanded": "2", "FishExpanded": "", "CoralExpanded": "-1"}

    files.reads("flag-words.xml", two_tanks(flags), "a flag is the whole number of its text: a word is NO, any number but 0 is YES")
    files.reads("reef-safe-unknown.xml", record_with("Fish", "ReefSafe", 42), "a code that nobody knows shows as unknown")
    files.reads("odd-texts.xml", changed("2", "TankLists", "TankNote", [form.note(moment(k), text, "+0000") for k, text in enumerate(ODD_TEXTS, 1)]),
                "texts of many kinds are texts", notes=len(ODD_TEXTS))

    def extra(root):
        tank = root["2"]
        tank["extra"] = tank["TankProperties"]["extra"] = tank["TankLists"]["TankExtra"] = tank["TankListProperties"]["TankExtra"] = ["more"]
        root["FileAttributes"]["extra"] = {"more": 1}
        for records in copy.copy(tank["TankLists"]).values():
            for record in records:
                if isinstance(record, dict):
                    record["extra"] = {"deeper": [1, 2.5, True, b"\0", datetime(2026, 1, 1)]}

    files.reads("extra-keys.xml", two_tanks(extra), "unknown keys below the root are passed over")


def deep_nesting(files):
    """Files too large for the repository: a test builds each from these pieces, with `open` and then `close`
    repeated `levels` times between `before` and `after`."""
    whole = text_of(two_tanks(containers=("Note",))).decode()
    mark = "<key>Name</key>\n\t\t\t<string>Second"
    start = whole.index(mark)
    for name, levels, outcome, tanks, why in (
            ("nested-100000.xml", 100000, "refused", "old", "nested far deeper than any tank file; a reader stops at a limit, so the file is unreadable rather than the end of the program"),
            ("nested-20.xml", 20, "reads", 2, "an unknown key that holds twenty arrays in each other")):
        files.expected[name] = {"outcome": outcome, "tanks": tanks, "why": why, "generate": {
            "before": whole[:start] + "<key>extra</key>", "open": "<array>", "close": "</array>", "levels": levels, "after": whole[start:]}}


def collect():
    files = Collection()
    for part in (not_property_lists, encodings, root_entries, missing, wrong_types, odd_values, deep_nesting):
        part(files)
    return files
