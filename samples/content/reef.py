# SPDX-License-Identifier: GPL-3.0-or-later
"""The reef tank of about 350 litres."""
from datetime import datetime

from content import chemistry
from content.living_room import DAY, WEEK, at, livestock
from tankfiles import form

NAME = "Reef"

LIVESTOCK = {
    "Fish": [
        ("Ocellaris Clownfish", "Amphiprion ocellaris", "Pomacentridae", "9 cm", "Peaceful; keep as a pair", "15 years",
         "Middle", "Flakes, mysis, Artemia", "Moderate", "Easy", 2, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.0 to 8.4. Took six weeks to find the anemone.",
         "fish", dict(upper=(238, 112, 24), lower=(250, 150, 56), depth=88, tail="fan", dorsal=0.3,
                      bands=((0.19, 0.21, (20, 20, 24)), (0.205, 0.30, (252, 250, 246)), (0.30, 0.315, (20, 20, 24)), (0.51, 0.525, (20, 20, 24)), (0.525, 0.65, (252, 250, 246)), (0.65, 0.665, (20, 20, 24)), (0.90, 0.96, (252, 250, 246))))),
        ("Royal Gramma", "Gramma loreto", "Grammatidae", "8 cm", "Peaceful, defends its cave", "5 years",
         "Middle", "Mysis, Artemia", "Moderate", "Easy", 1, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Only one to a tank.",
         "fish", dict(upper=(128, 52, 168), lower=(158, 70, 186), depth=66, half=(0.46, (250, 206, 56)), fins=(232, 176, 96), tail="fan")),
        ("Yellow Tang", "Zebrasoma flavescens", "Acanthuridae", "18 cm", "Lively; quarrels with other tangs", "20 years and more",
         "Middle", "Nori, algae, flakes", "Difficult", "Moderate", 1, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Nori on the clip every second day.",
         "fish", dict(upper=(250, 214, 30), lower=(255, 232, 84), depth=118, length=170, dorsal=0.28, fins=(244, 200, 20))),
        ("Banggai Cardinalfish", "Pterapogon kauderni", "Apogonidae", "8 cm", "Peaceful; a pair", "5 years",
         "Middle", "Mysis, Artemia", "Easy", "Easy", 2, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Tank bred. The male carries the eggs in his mouth.",
         "fish", dict(upper=(206, 206, 204), lower=(238, 236, 226), depth=84, length=160, dorsal=0.62, bands=((0.13, 0.17, (26, 26, 30)), (0.38, 0.45, (26, 26, 30)), (0.72, 0.79, (26, 26, 30))),
                      spots=(26, (250, 250, 250), 2.2), fins=(40, 40, 48))),
        ("Blue-green Chromis", "Chromis viridis", "Pomacentridae", "8 cm", "Peaceful shoaling fish", "8 years",
         "Top", "Flakes, small frozen food", "Moderate", "Easy", 6, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Came as seven.",
         "fish", dict(upper=(72, 196, 186), lower=(170, 238, 214), depth=76, dorsal=0.34)),
        ("Mandarin Dragonet", "Synchiropus splendidus", "Callionymidae", "7 cm", "Peaceful; one male", "6 years",
         "Bottom", "Copepods, some take frozen food", "Difficult", "Difficult", 1, "24 - 26 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Needs living copepods; the refugium feeds it.",
         "fish", dict(upper=(24, 120, 176), lower=(60, 168, 160), depth=58, length=178, dorsal=0.9, tail="fan", spots=(46, (244, 132, 40), 5), fins=(226, 118, 50), stripes=((0.2, 0.28, (238, 122, 36)), (0.55, 0.63, (238, 122, 36))))),
        ("Yellow Watchman Goby", "Cryptocentrus cinctus", "Gobiidae", "8 cm", "Peaceful; shares its hole with a pistol shrimp", "6 years",
         "Bottom", "Mysis, sinking food", "Moderate", "Easy", 1, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.",
         "fish", dict(upper=(238, 206, 40), lower=(250, 230, 120), depth=46, length=200, dorsal=0.8, tail="fan", spots=(50, (120, 190, 240), 1.9))),
        ("Flame Angelfish", "Centropyge loriculus", "Pomacanthidae", "10 cm", "Bold; last to be added", "8 years",
         "Middle", "Algae, sponge food, mysis", "Difficult", "Moderate", 1, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Watched closely: it may take to nipping at corals and clams.",
         "fish", dict(upper=(226, 56, 24), lower=(246, 120, 36), depth=90, length=170, tail="fan", bands=((0.32, 0.355, (22, 20, 40)), (0.46, 0.49, (22, 20, 40)), (0.60, 0.63, (22, 20, 40)), (0.74, 0.765, (22, 20, 40))), fins=(214, 70, 36))),
    ],
    "Plant": [
        ("Spaghetti Algae", "Chaetomorpha linum", "Cladophoraceae", "Ball of 20 cm", "Refugium only", "Perennial",
         "All levels", "Nitrate and phosphate", "Easy", "Easy", 1, "22 - 28 °C", 8.2, 0, 8,
         "pH 8.0 to 8.4. A third is taken out every month.", "tuft", dict(colour=(104, 182, 58), count=300)),
        ("Cactus Algae", "Halimeda opuntia", "Halimedaceae", "15 cm", "Grows on rock", "Perennial",
         "Middle", "Calcium, trace elements", "Moderate", "Moderate", 1, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Uses calcium like a coral.", "stems", dict(colour=(98, 160, 82), tip=(160, 206, 120))),
    ],
    "Invert": [
        ("Skunk Cleaner Shrimp", "Lysmata amboinensis", "Lysmatidae", "6 cm", "Peaceful; a pair", "3 years",
         "Bottom", "Parasites, frozen food", "Difficult", "Easy", 2, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Both carry eggs in turn.", "shrimp", dict(colour=(240, 196, 140), back=(214, 34, 34))),
        ("Blue-legged Hermit Crab", "Clibanarius tricolor", "Diogenidae", "2.5 cm", "Peaceful; offer empty shells", "3 years",
         "Bottom", "Algae, leftovers", "Difficult", "Easy", 8, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "crab", dict(shell=(196, 164, 130), limb=(40, 92, 206))),
        ("Mexican Turbo Snail", "Turbo fluctuosa", "Turbinidae", "5 cm", "Peaceful, knocks frags over", "5 years",
         "All levels", "Film and hair algae", "Difficult", "Easy", 5, "21 - 26 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "snail", dict(shell=(148, 118, 96), line=(82, 64, 58))),
        ("Bubble-tip Anemone", "Entacmaea quadricolor", "Actiniidae", "25 cm", "Stings neighbours; wanders", "Decades",
         "Middle", "Light, a piece of shrimp a week", "Moderate", "Difficult", 1, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Added after eight months. Pumps are guarded.", "polyps", dict(colour=(178, 92, 60), tip=(246, 122, 150), length=62, width=9)),
        ("Maxima Clam", "Tridacna maxima", "Cardiidae", "12 cm", "Peaceful", "Decades",
         "Bottom", "Light, phytoplankton", "Difficult", "Difficult", 1, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4, calcium 400 to 450.", "clam", dict(mantle=(36, 110, 214), spot=(18, 22, 60))),
        ("Tuxedo Urchin", "Mespilia globulus", "Temnopleuridae", "5 cm", "Peaceful, wears what is not glued down", "5 years",
         "All levels", "Coralline and hair algae", "Difficult", "Easy", 1, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "urchin", dict(colour=(120, 60, 46), panel=(48, 82, 172))),
        ("Banded Brittle Star", "Ophioderma appressum", "Ophiodermatidae", "15 cm across", "Peaceful, comes out at night", "5 years",
         "Bottom", "Leftovers", "Difficult", "Easy", 1, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "star", dict(colour=(176, 156, 132), band=(94, 76, 66))),
        ("Emerald Crab", "Mithraculus sculptus", "Mithracidae", "4 cm", "Mostly peaceful; feed it well", "3 years",
         "Bottom", "Bubble algae, leftovers", "Difficult", "Easy", 1, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. A hungry one picks at polyps.", "crab", dict(shell=(52, 132, 84), limb=(52, 132, 84))),
    ],
    "Coral": [
        ("Green Star Polyps", "Briareum violaceum", "Briareidae", "Mat", "Overgrows everything: on its own rock", "Decades",
         "Middle", "Light", "Easy", "Easy", 1, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "polyps", dict(colour=(150, 74, 150), tip=(92, 236, 120), count=150, length=26, width=5)),
        ("Toadstool Leather", "Sarcophyton glaucum", "Sarcophytidae", "30 cm", "Gives off chemicals; run carbon", "Decades",
         "Middle", "Light", "Easy", "Easy", 1, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4. Closes for days when it sheds its skin.", "toadstool", dict(colour=(196, 160, 116), tip=(246, 234, 190))),
        ("Torch Coral", "Euphyllia glabrescens", "Euphylliidae", "20 cm", "Long sweepers; a hand's width of room", "Decades",
         "Middle", "Light, mysis", "Moderate", "Moderate", 2, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4, alkalinity 8 to 9 dKH.", "polyps", dict(colour=(86, 118, 66), tip=(214, 250, 150), count=80, length=84, width=8)),
        ("Hammer Coral", "Fimbriaphyllia ancora", "Euphylliidae", "25 cm", "Sweepers at night", "Decades",
         "Middle", "Light, mysis", "Moderate", "Moderate", 1, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "polyps", dict(colour=(96, 88, 140), tip=(130, 226, 232), count=90, length=50, width=10)),
        ("Zoanthids", "Zoanthus sociatus", "Zoanthidae", "Colony", "Poisonous slime: gloves and goggles", "Decades",
         "Bottom", "Light", "Easy", "Easy", 3, "23 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "discs", dict(rings=((66, 180, 104), (240, 132, 44), (246, 214, 84), (90, 40, 130)))),
        ("Finger Montipora", "Montipora digitata", "Acroporidae", "20 cm", "Peaceful", "Decades",
         "Top", "Light", "Moderate", "Moderate", 2, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "branching", dict(colour=(224, 112, 62), tip=(255, 214, 170), width=22, spread=0.5)),
        ("Millepora", "Acropora millepora", "Acroporidae", "20 cm", "Peaceful", "Decades",
         "Top", "Strong light and flow", "Difficult", "Difficult", 1, "24 - 26 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4, steady alkalinity above all. Paled in June 2026.", "branching", dict(colour=(186, 70, 150), tip=(250, 190, 236), width=14)),
        ("Open Brain Coral", "Trachyphyllia geoffroyi", "Merulinidae", "15 cm", "Peaceful, lies on sand", "Decades",
         "Bottom", "Light, mysis", "Difficult", "Moderate", 1, "24 - 27 °C", 8.2, 0, 8,
         "pH 8.1 to 8.4.", "dome", dict(colour=(206, 58, 62), groove=(76, 214, 128))),
    ],
}

# every other species is reef safe
REEF_SAFETY = {"Centropyge loriculus": form.NO, "Mithraculus sculptus": form.UNKNOWN,
                 "Entacmaea quadricolor": form.UNKNOWN}

TARGETS = {
    "tempValue": dict(preferred=25.8, deviation=1.5, warning=True), "pHValue": dict(preferred=8.2, deviation=0.25, warning=True),
    "ammoniaValue": dict(deviation=0.1, warning=True), "nitriteValue": dict(deviation=0.1, warning=True),
    "nitrateValue": dict(preferred=6, deviation=6, warning=True), "saltValue": dict(preferred=1.025, deviation=0.001, warning=True),
    "alkalinityValue": dict(preferred=8.4, deviation=0.8, warning=True), "calciumValue": dict(preferred=425, deviation=25, warning=True),
    "magnesiumValue": dict(preferred=1330, deviation=80, warning=True), "phosphateValue": dict(deviation=0.1, warning=True),
    "iodineValue": dict(preferred=0.06, deviation=0.03), "copperValue": dict(warning=True),
}

COLUMNS = form.columns(("date", 96), ("temp", 64), ("salt", 68), ("ph", 52), ("alkalinity", 76), ("calcium", 70), ("magnesium", 86),
                       ("nitrate", 68), "phosphate", "ammonia", "nitrite", "iodine")

SORT = {"Condition": ("date", True), "Schedule": ("date", True), "Inventory": ("count", True), "Expense": ("date", True),
        "Note": ("date", False)}

SCHEDULE = [
    (at(2026, 11, 7, 14), "Water change, 35 litres", True, WEEK),
    (at(2026, 11, 14, 14), "Water change, 35 litres", False, WEEK),
    (at(2026, 11, 16, 19), "Empty the skimmer cup", False, 3 * DAY),
    (at(2026, 11, 19, 19), "Harvest the spaghetti algae", False, 4 * WEEK),
    (at(2026, 11, 22, 12), "Refill the dosing containers", False, 2 * WEEK),
    (at(2026, 11, 23, 8), "Nori for the tang", False, 2 * DAY),
    (at(2026, 11, 28, 15), "Clean the pumps in citric acid", False, 12 * WEEK),
    (at(2026, 12, 3, 18), "New carbon and phosphate remover", False, 6 * WEEK),
    (at(2026, 12, 5, 10), "Calibrate the refractometer", False, 30 * DAY),
    (at(2027, 3, 1, 18), "Check the lamps with a light meter", False, 52 * WEEK),
]

INVENTORY = [("Auto top-off sensor, spare", 1), ("Dosing containers, 1.5 litres", 3), ("Empty shells for hermit crabs", 15), ("Filter socks", 6),
             ("Frozen mysis, sheet", 5), ("Nori, sheets", 30), ("Phosphate remover, 1 litre", 1), ("Reef salt, 20 kg", 2), ("Refractometer", 1),
             ("Return pump, spare", 1), ("Reverse osmosis membrane", 1), ("Test kit, alkalinity", 2), ("Test kit, calcium", 1), ("Test kit, magnesium", 1)]

EXPENSES = [
    (at(2024, 11, 9, 10), "Tank, stand and sump", 1490.0, "Equipment"), (at(2024, 11, 9, 10), "Skimmer", 289.0, "Equipment"),
    (at(2024, 11, 16, 11), "Lamps, two", 598.0, "Equipment"), (at(2024, 11, 16, 11), "Flow pumps, two", 218.0, "Equipment"),
    (at(2024, 11, 20, 16), "Dry rock, 35 kg", 189.9, "Equipment"), (at(2024, 11, 21, 16), "Reef salt, 20 kg", 64.9, "Water care"),
    (at(2024, 11, 21, 16), "Reverse osmosis unit", 139.0, "Equipment"), (at(2025, 1, 18, 12), "Turbo snails and hermit crabs", 58.0, "Invertebrates"),
    (at(2025, 2, 8, 14), "Pair of clownfish", 49.8, "Fish"), (at(2025, 3, 1, 11), "Chromis, seven", 69.3, "Fish"),
    (at(2025, 3, 15, 11), "Soft corals, first frags", 74.0, "Corals"), (at(2025, 4, 26, 15), "Cleaner shrimp, two", 53.8, "Invertebrates"),
    (at(2025, 5, 10, 12), "Reef salt, 20 kg", 64.9, "Water care"), (at(2025, 5, 24, 10), "Royal gramma", 39.9, "Fish"),
    (at(2025, 6, 14, 16), "Torch and hammer corals", 148.0, "Corals"), (at(2025, 7, 5, 11), "Bubble-tip anemone", 79.0, "Invertebrates"),
    (at(2025, 9, 13, 12), "Dosing pump, three channels", 199.0, "Equipment"), (at(2025, 9, 27, 14), "Yellow tang", 129.0, "Fish"),
    (at(2025, 10, 18, 10), "Finger montipora frags", 50.0, "Corals"), (at(2025, 11, 22, 15), "Banggai cardinalfish, pair", 59.8, "Fish"),
    (at(2025, 12, 13, 11), "Reef salt, 20 kg", 67.9, "Water care"), (at(2026, 1, 24, 13), "Mandarin dragonet", 54.9, "Fish"),
    (at(2026, 3, 7, 15), "Millepora frag", 45.0, "Corals"), (at(2026, 3, 28, 10), "Maxima clam", 89.0, "Invertebrates"),
    (at(2026, 5, 9, 12), "Frozen food and nori", 43.7, "Food"), (at(2026, 6, 15, 17), "New hoses for the dosing pump", 18.9, "Equipment"),
    (at(2026, 7, 11, 12), "Reef salt, 20 kg", 69.9, "Water care"), (at(2026, 9, 19, 14), "Flame angelfish", 98.0, "Fish"),
    (at(2026, 10, 10, 10), "Alkalinity and calcium tests", 38.4, "Water care"), (at(2026, 11, 7, 15), "Frozen food and nori", 41.2, "Food"),
]

NOTES = [
    (at(2024, 11, 23, 15), "Filled with salt water at 1.025. Dry rock only, so this will take a while."),
    (at(2025, 1, 5, 20), "Ammonia and nitrite have been at zero for two weeks. Diatoms everywhere."),
    (at(2025, 2, 8, 18), "The clownfish are in."),
    (at(2025, 7, 6, 20), "Anemone wandered all night and settled behind the left rock."),
    (at(2025, 8, 20, 21), "After the holidays the clowns have moved in with the anemone at last."),
    (at(2025, 9, 14, 19), "Three-channel dosing set to 12 ml a day each. Raise it slowly."),
    (at(2026, 6, 13, 18), "Alkalinity nearly 2 degrees down in a week: the dosing hose had split. Raising it by no more than half a degree a day."),
    (at(2026, 6, 18, 20), "Alkalinity is back where it was. The millepora is pale but alive."),
    (at(2026, 9, 19, 19), "Flame angel added last. Clam and corals under watch."),
    (at(2026, 11, 15, 17), "Montipora reaches the surface. Cut six frags for friends."),
]


def build():
    lists = livestock(NAME, LIVESTOCK, "reef", lambda species: REEF_SAFETY.get(species, form.YES))
    lists["Condition"] = chemistry.reef()
    lists["Schedule"] = [form.activity(*row) for row in SCHEDULE]
    lists["Inventory"] = sorted((form.inventory(*row) for row in INVENTORY), key=lambda record: int(record["Count"]))
    lists["Expense"] = [form.expense(*row) for row in EXPENSES]
    lists["Note"] = [form.note(*row) for row in NOTES[::-1]]
    return form.tank(NAME, "350 l", False, expanded=("Tank", "Coral"), targets=TARGETS, lists=lists, sort=SORT, column_info=COLUMNS,
                     categories=("Fish", "Plants", "Invertebrates", "Corals", "Equipment", "Food", "Water care"))
