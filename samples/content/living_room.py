# SPDX-License-Identifier: GPL-3.0-or-later
"""The planted freshwater tank of about 180 litres."""
from datetime import datetime

from content import chemistry, portraits
from tankfiles import form

NAME = "Living room"
DAY, WEEK = 86400, 604800

# common name, scientific name, family, size, social level, life span, tank level, diet, breeding, care, count,
# temperature, pH, general hardness, carbonate hardness, notes, drawing and its arguments
LIVESTOCK = {
    "Fish": [
        ("Cardinal Tetra", "Paracheirodon axelrodi", "Characidae", "5 cm", "Peaceful shoaling fish; keep ten or more", "4 to 6 years",
         "Middle", "Small flakes, Artemia, Daphnia", "Difficult", "Moderate", 14, "23 - 28 °C", 6.2, 4, 2,
         "pH 5.0 to 7.0, 1 to 8 dGH. Quarantined for two weeks before they moved in.",
         "fish", dict(upper=(64, 92, 96), lower=(226, 60, 52), depth=56, stripes=((0.34, 0.52, (44, 214, 238)),), dorsal=0.34, fins=(196, 206, 206), eye=8)),
        ("Harlequin Rasbora", "Trigonostigma heteromorpha", "Danionidae", "4.5 cm", "Peaceful shoaling fish", "5 to 6 years",
         "Middle", "Flakes, small frozen food", "Moderate", "Easy", 10, "22 - 27 °C", 6.5, 6, 3,
         "pH 5.5 to 7.5, 2 to 15 dGH.",
         "fish", dict(upper=(206, 132, 92), lower=(240, 196, 160), depth=80, half=(0.52, (36, 34, 52)), dorsal=0.36, fins=(226, 96, 60))),
        ("Honey Gourami", "Trichogaster chuna", "Osphronemidae", "5 cm", "Shy and peaceful; a pair or a group", "5 to 8 years",
         "Top", "Flakes, mosquito larvae, Artemia", "Moderate", "Easy", 3, "22 - 28 °C", 6.8, 8, 4,
         "pH 6.0 to 7.5, 4 to 15 dGH. The male builds his nest under the red root floater.",
         "fish", dict(upper=(226, 140, 34), lower=(250, 206, 84), depth=86, length=176, dorsal=0.3, tail="fan", half=(0.94, (228, 150, 60)))),
        ("Sterba's Corydoras", "Corydoras sterbai", "Callichthyidae", "6.5 cm", "Peaceful; groups of six or more on sand", "10 years",
         "Bottom", "Sinking tablets, frozen food", "Moderate", "Easy", 8, "24 - 28 °C", 6.8, 7, 4,
         "pH 6.0 to 7.6, 2 to 15 dGH. Spawned in May 2026 after a cool water change.",
         "fish", dict(upper=(58, 52, 48), lower=(220, 204, 172), depth=76, length=172, spots=(90, (236, 226, 198), 2.8), fins=(226, 146, 52), whiskers=True)),
        ("Otocinclus", "Otocinclus macrospilus", "Loricariidae", "4 cm", "Peaceful group fish", "3 to 5 years",
         "Bottom", "Algae, blanched courgette", "Difficult", "Moderate", 5, "22 - 27 °C", 6.6, 6, 3,
         "pH 6.0 to 7.5, 2 to 15 dGH. Added only after a year, when algae had settled.",
         "fish", dict(upper=(112, 106, 84), lower=(238, 230, 208), depth=46, length=186, stripes=((0.42, 0.58, (46, 42, 38)),), fins=(190, 184, 156), dorsal=0.5)),
        ("Bristlenose Catfish", "Ancistrus cirrhosus", "Loricariidae", "12 cm", "Peaceful; one male to a cave", "10 years",
         "Bottom", "Algae, wood, vegetables, tablets", "Easy", "Easy", 1, "22 - 27 °C", 6.8, 8, 5,
         "pH 6.0 to 7.5, 2 to 20 dGH. Needs drift wood to rasp on.",
         "fish", dict(upper=(62, 54, 44), lower=(120, 104, 78), depth=58, length=200, spots=(110, (206, 190, 140), 2.2), dorsal=0.6, tail="fan", whiskers=True)),
    ],
    "Plant": [
        ("Amazon Sword", "Echinodorus grisebachii", "Alismataceae", "40 cm", "Solitary plant for the middle", "Perennial",
         "Background", "Root tabs, liquid fertiliser", "Easy", "Easy", 2, "20 - 28 °C", 6.8, 8, 4,
         "pH 6.0 to 7.8. Makes runners with young plants.", "rosette", dict(colour=(84, 168, 70))),
        ("Straight Vallisneria", "Vallisneria spiralis", "Hydrocharitaceae", "60 cm", "Spreads by runners", "Perennial",
         "Background", "Liquid fertiliser", "Easy", "Easy", 30, "18 - 28 °C", 7.2, 10, 6,
         "pH 6.5 to 8.0. Thinned out every second month.", "ribbons", dict(colour=(96, 178, 84))),
        ("Java Fern", "Leptochilus pteropus", "Polypodiaceae", "25 cm", "Tied to wood", "Perennial",
         "On rock or wood", "Liquid fertiliser", "Easy", "Easy", 4, "20 - 28 °C", 6.8, 8, 4,
         "pH 5.5 to 7.5. Never bury the rhizome.", "wood_plant", dict(colour=(72, 140, 62), length=100, width=15)),
        ("Dwarf Anubias", "Anubias barteri var. nana", "Araceae", "10 cm", "Tied to wood or stone", "Perennial",
         "On rock or wood", "Liquid fertiliser", "Easy", "Easy", 6, "20 - 30 °C", 7.0, 8, 5,
         "pH 5.5 to 8.0. Shade keeps its leaves free of algae.", "wood_plant", dict(colour=(38, 112, 58), length=52, width=27, count=20)),
        ("Wendt's Water Trumpet", "Cryptocoryne wendtii", "Araceae", "20 cm", "Groups in the foreground", "Perennial",
         "Foreground", "Root tabs", "Easy", "Easy", 8, "20 - 28 °C", 6.8, 8, 4,
         "pH 5.5 to 7.5. Melts after moving and comes back.", "rosette", dict(colour=(136, 104, 58), count=15, length=104, width=19)),
        ("Round-leaved Rotala", "Rotala rotundifolia", "Lythraceae", "40 cm", "Dense groups", "Perennial",
         "Background", "Carbon dioxide, iron", "Easy", "Moderate", 25, "20 - 28 °C", 6.6, 6, 3,
         "pH 5.5 to 7.2. Turns red in strong light.", "stems", dict(colour=(110, 178, 76), tip=(236, 104, 92))),
        ("Java Moss", "Taxiphyllum barbieri", "Hypnaceae", "8 cm", "Cover for shrimp", "Perennial",
         "Bottom", "None needed", "Easy", "Easy", 2, "15 - 28 °C", 6.8, 8, 4,
         "pH 5.0 to 8.0.", "tuft", dict(colour=(76, 150, 64))),
        ("Red Root Floater", "Phyllanthus fluitans", "Phyllanthaceae", "4 cm", "Floats; keep half of the surface free", "Perennial",
         "Floating", "Liquid fertiliser", "Easy", "Easy", 40, "20 - 28 °C", 6.8, 8, 4,
         "pH 6.0 to 7.5.", "floaters", dict(colour=(150, 176, 86), root=(176, 62, 60))),
    ],
    "Invert": [
        ("Amano Shrimp", "Caridina multidentata", "Atyidae", "5 cm", "Peaceful group animal", "3 years",
         "Bottom", "Algae, tablets", "Difficult", "Easy", 8, "18 - 27 °C", 7.0, 8, 5,
         "pH 6.5 to 7.6. The larvae need brackish water.", "shrimp", dict(colour=(190, 184, 160), spots=(70, (120, 70, 56)))),
        ("Cherry Shrimp", "Neocaridina davidi", "Atyidae", "2.5 cm", "Peaceful", "1 to 2 years",
         "Bottom", "Algae, leaves, tablets", "Easy", "Easy", 60, "18 - 27 °C", 7.0, 9, 5,
         "pH 6.5 to 8.0. Numbers estimated by torch light.", "shrimp", dict(colour=(222, 44, 40))),
        ("Zebra Nerite Snail", "Vittina natalensis", "Neritidae", "3 cm", "Peaceful", "2 to 4 years",
         "All levels", "Algae", "Difficult", "Easy", 4, "22 - 28 °C", 7.4, 10, 6,
         "pH 7.0 to 8.5. Soft water eats the shell.", "snail", dict(shell=(226, 180, 62), line=(42, 34, 28))),
        ("Assassin Snail", "Anentome helena", "Nassariidae", "2.5 cm", "Hunts other snails", "5 years",
         "Bottom", "Snails, frozen food", "Moderate", "Easy", 3, "22 - 28 °C", 7.2, 10, 6,
         "pH 6.5 to 8.0. Borrowed against ramshorns.", "snail", dict(shell=(236, 202, 96), line=(76, 46, 26), cone=True)),
    ],
}

TARGETS = {
    "tempValue": dict(preferred=25.5, deviation=2, warning=True), "pHValue": dict(preferred=7, deviation=0.4, warning=True),
    "ammoniaValue": dict(deviation=0.1, warning=True), "nitriteValue": dict(deviation=0.1, warning=True),
    "nitrateValue": dict(preferred=15, deviation=15, warning=True), "gHValue": dict(preferred=8, deviation=3),
    "kHValue": dict(preferred=5, deviation=2), "dioxideValue": dict(preferred=18, deviation=8),
    "ironValue": dict(preferred=0.1, deviation=0.1), "phosphateValue": dict(preferred=0.6, deviation=0.5),
}

COLUMNS = form.columns(("date", 96), ("temp", 64), ("ph", 52), ("ammonia", 78), ("nitrite", 64), ("nitrate", 68),
                       ("gH", 44), ("kH", 44), "dioxide", "iron", "phosphate")

SORT = {"Condition": ("date", False), "Schedule": ("date", True), "Inventory": ("item", True), "Expense": ("date", True),
        "Note": ("date", False)}


def at(year, month, day, hour=18, minute=0):
    return datetime(year, month, day, hour, minute)


SCHEDULE = [
    (at(2026, 10, 26), "Replace the carbon dioxide bottle", True, 0),
    (at(2026, 11, 8, 11), "Water change, 60 litres", True, WEEK),
    (at(2026, 11, 10), "Liquid fertiliser, 9 ml", True, WEEK),
    (at(2026, 11, 15, 11), "Water change, 60 litres", False, WEEK),
    (at(2026, 11, 17), "Liquid fertiliser, 9 ml", False, WEEK),
    (at(2026, 11, 18), "Rinse the filter sponge in tank water", False, 4 * WEEK),
    (at(2026, 11, 20, 9), "Courgette for the catfish", False, 2 * DAY),
    (at(2026, 11, 29, 15), "Trim the rotala and thin the vallisneria", False, 3 * WEEK),
    (at(2026, 12, 1), "New root tabs under the swords", False, 90 * DAY),
    (at(2026, 12, 12, 10), "Change the airstone and check all hoses", False, 0),
    (at(2027, 1, 11, 17), "New light tube", False, 52 * WEEK),
]

INVENTORY = [("Bucket, 12 litres", 2), ("Carbon dioxide bottle, 2 kg", 1), ("Filter sponge", 3), ("Flake food, 250 ml", 1),
             ("Frozen Artemia, sheet", 4), ("Liquid fertiliser, 500 ml", 1), ("Net", 2), ("Root tabs", 18), ("Siphon hose", 1),
             ("Spare heater, 150 W", 1), ("Test kit, ammonia", 1), ("Test kit, nitrate", 1), ("Test kit, nitrite", 1), ("Water conditioner", 2)]

EXPENSES = [
    (at(2024, 11, 2, 11), "Tank and cabinet, 180 litres", 429.0, "Equipment"), (at(2024, 11, 2, 11), "Canister filter", 118.9, "Equipment"),
    (at(2024, 11, 9, 14), "Substrate and sand", 46.5, "Equipment"), (at(2024, 11, 9, 14), "Drift wood, three pieces", 58.0, "Equipment"),
    (at(2024, 11, 16, 10), "First planting, eight species", 87.4, "Plants"), (at(2024, 11, 16, 10), "Test kit case", 54.95, "Water care"),
    (at(2025, 1, 4, 15), "Nerite snails", 13.6, "Invertebrates"), (at(2025, 1, 11, 15), "Harlequin rasboras, ten", 27.5, "Fish"),
    (at(2025, 1, 11, 15), "Flake and frozen food", 21.3, "Food"), (at(2025, 2, 15, 11), "Corydoras, eight", 55.6, "Fish"),
    (at(2025, 3, 8, 12), "Cardinal tetras, fifteen", 44.85, "Fish"), (at(2025, 3, 22, 10), "Carbon dioxide set", 169.0, "Equipment"),
    (at(2025, 4, 12, 16), "Cherry and Amano shrimp", 49.0, "Invertebrates"), (at(2025, 5, 17, 11), "Honey gouramis, three", 23.7, "Fish"),
    (at(2025, 6, 28, 17), "Clip-on fans for the summer", 34.99, "Equipment"), (at(2025, 9, 6, 12), "Liquid fertiliser", 15.8, "Water care"),
    (at(2025, 10, 11, 10), "Bristlenose catfish", 12.9, "Fish"), (at(2025, 11, 15, 14), "Otocinclus, five", 22.5, "Fish"),
    (at(2025, 12, 6, 12), "Food for the winter", 26.4, "Food"), (at(2026, 1, 10, 17), "Light tube", 29.95, "Equipment"),
    (at(2026, 2, 10, 9), "Impeller for the filter", 24.5, "Equipment"), (at(2026, 2, 10, 9), "Ammonia binder", 11.2, "Water care"),
    (at(2026, 4, 18, 11), "Rotala and red root floater", 18.0, "Plants"), (at(2026, 6, 13, 10), "Carbon dioxide refill", 22, "Water care"),
    (at(2026, 8, 22, 15), "Assassin snails", 11.7, "Invertebrates"), (at(2026, 10, 24, 10), "Carbon dioxide refill", 22, "Water care"),
    (at(2026, 11, 7, 13), "Frozen food, mixed", 17.25, "Food"), (at(2026, 11, 14, 16), "Decorated stone from the fair", 9.5, "None"),
]

NOTES = [
    (at(2024, 11, 17, 16), "Planted and filled. No fish before nitrite is back to zero."),
    (at(2024, 12, 12, 20), "Nitrite above 3 today. Patience."),
    (at(2025, 1, 11, 19), "First fish: ten harlequin rasboras."),
    (at(2025, 4, 13, 19), "Mixing in softened water from now on, one part in three."),
    (at(2025, 7, 2, 21), "Heat wave. Fans on, lid open, lamps two hours shorter."),
    (at(2025, 8, 20, 20), "Back from the sea. All well; the feeder had jammed for two days and nobody minded."),
    (at(2026, 2, 9, 18), "Filter stood still, probably all night. Ammonia 1.6. Changed half of the water and cleaned the impeller."),
    (at(2026, 2, 12, 19), "Ammonia falling, nitrite up a little. Daily changes go on."),
    (at(2026, 2, 18, 19), "Water is back to normal. Lost one cardinal tetra."),
    (at(2026, 5, 10, 8), "Corydoras eggs on the glass this morning.\nMoved thirty of them to the breeding box."),
    (at(2026, 8, 22, 18), "Three assassin snails against the ramshorns."),
    (at(2026, 11, 14, 20), "Male gourami guards a nest again."),
]


def livestock(tank_name, kinds, water, reef_code=None):
    """Item records with their pictures; `reef_code` looks up a record's reef-safe code by its scientific name."""
    lists = {}
    for kind, rows in kinds.items():
        lists[kind] = [
            form.item(tank_name, *facts, salt=0.0 if water == "fresh" else 1.025,
                      reef=reef_code(facts[1]) if reef_code else form.UNKNOWN, notes=notes,
                      picture=portraits.portrait(facts[1], water, drawer, **arguments))
            for *facts, notes, drawer, arguments in rows]
    return lists


def build():
    lists = livestock(NAME, LIVESTOCK, "fresh")
    lists["Condition"] = chemistry.freshwater()[::-1]
    lists["Schedule"] = [form.activity(*row) for row in SCHEDULE]
    lists["Inventory"] = [form.inventory(*row) for row in INVENTORY]
    lists["Expense"] = [form.expense(*row) for row in EXPENSES]
    lists["Note"] = [form.note(*row) for row in NOTES[::-1]]
    return form.tank(NAME, "180 l", True, expanded=("Tank", "Fish"), targets=TARGETS, lists=lists, sort=SORT, column_info=COLUMNS,
                     categories=("Fish", "Plants", "Invertebrates", "Corals", "Equipment", "Food", "Water care"))
