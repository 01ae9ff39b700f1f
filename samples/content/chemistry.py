# SPDX-License-Identifier: GPL-3.0-or-later
"""Two years of water tests, simulated day by day with a fixed seed."""
import math
import random
from datetime import datetime, timedelta

from tankfiles.form import condition

LAST_DAY = datetime(2026, 11, 15)


def season(day, coldest, warmest):
    """Water temperature under the influence of the room: coldest late in January, warmest late in July."""
    share = 0.5 - 0.5 * math.cos(2 * math.pi * (day.timetuple().tm_yday - 25) / 365.25)
    return coldest + (warmest - coldest) * share ** 1.5


def hump(day, centre, width, height):
    return height * math.exp(-((day - centre) / width) ** 2)


def step(value, size, digits=2):
    """The reading of a test kit: whole steps of its scale, never below zero."""
    return round(max(0.0, round(value / size) * size), digits)


def evening(day, rng):
    return day.replace(hour=rng.choice((17, 18, 19, 20)), minute=rng.randrange(60), second=rng.randrange(60))


def days_from(start):
    return [start + timedelta(days=i) for i in range((LAST_DAY - start).days + 1)]


def away(day, spans):
    return any(first <= day <= last for first, last in spans)


def freshwater():
    """Tests on Sundays before the water change and often on Mondays after it; the filter fails in February 2026."""
    rng = random.Random("living room water")
    start = datetime(2024, 11, 17)
    holidays = ((datetime(2024, 12, 23), datetime(2025, 1, 1)), (datetime(2025, 8, 1), datetime(2025, 8, 19)),
                (datetime(2025, 12, 23), datetime(2025, 12, 31)), (datetime(2026, 7, 22), datetime(2026, 8, 10)))
    failure = datetime(2026, 2, 9)
    tests, nitrate, hardness = [], 4.0, 0.0
    for number, day in enumerate(days_from(start)):
        stocked = min(1.0, max(0.15, (number - 45) / 120))
        nitrate += hump(number, 26, 9, 1.5) + 0.85 * stocked * rng.uniform(0.7, 1.3)
        since = (day - failure).days
        ammonia = hump(number, 11, 6, 2.4) + (1.6 * 0.55 ** since if 0 <= since < 9 else 0.0)
        nitrite = hump(number, 25, 7, 3.1) + (hump(since, 3, 2, 0.55) if -1 < since < 11 else 0.0)
        present = not away(day, holidays)
        emergency = 0 <= since < 8
        cycling = number < 42 and number % 3 == 0
        sunday, after_change = day.weekday() == 6, day.weekday() == 0 and rng.random() < 0.4
        if present and (sunday or after_change or emergency or cycling):
            values = {"temp": round(season(day, 24.3, 26.9) + hump((day - datetime(2025, 7, 2)).days, 0, 6, 1.7) + rng.gauss(0, 0.2), 1),
                      "ph": step(7.35 - min(number, 200) / 700 + 0.08 * math.sin(number / 40) + rng.gauss(0, 0.05), 0.05),
                      "ammonia": step(ammonia + max(0, rng.gauss(-0.03, 0.02)), 0.05), "nitrite": step(nitrite, 0.05),
                      "nitrate": step(nitrate, 2.5 if nitrate > 10 else 1)}
            if sunday or number == 0:
                values |= {"gH": step(10 - hardness + rng.gauss(0, 0.4), 1), "kH": step(6.2 - hardness * 0.6 + rng.gauss(0, 0.3), 0.5)}
            if sunday and number > 90 and rng.random() < 0.7:
                values["dioxide"] = int(max(6, rng.gauss(18, 3)))
            if sunday and number > 60 and number // 7 % 4 == 0:
                values |= {"iron": step(rng.gauss(0.12, 0.05), 0.1, 1), "phosphate": step(rng.gauss(0.6, 0.2), 0.1, 1)}
            if number in (0, 364, 728):
                values |= {"copper": 0.0, "oxygen": 7.8}
            tests.append(condition(evening(day, rng), **values))
        if sunday and present and number > 7:
            nitrate = nitrate * 0.66 + 0.34 * 3
            hardness += (2.2 - hardness) * 0.04  # softened water since spring
        if emergency:
            nitrate = nitrate * 0.6 + 0.4 * 3
    return tests


def reef():
    """Tests on Saturdays. Growing corals consume alkalinity, calcium and magnesium, and a dosing pump replaces them; the pump
    stops for a week in June 2026."""
    rng = random.Random("reef water")
    start = datetime(2024, 11, 23)
    holidays = ((datetime(2024, 12, 23), datetime(2025, 1, 1)), (datetime(2025, 8, 1), datetime(2025, 8, 19)),
                (datetime(2025, 12, 23), datetime(2025, 12, 31)), (datetime(2026, 7, 22), datetime(2026, 8, 10)))
    standstill = (datetime(2026, 6, 6), datetime(2026, 6, 13))
    tests, nitrate, phosphate, alkalinity, calcium, magnesium = [], 2.0, 0.05, 8.9, 430.0, 1360.0
    for number, day in enumerate(days_from(start)):
        growth = min(1.0, number / 420)
        dosing = 0.0 if away(day, (standstill,)) else growth * 1.02
        alkalinity += 0.28 * (dosing - growth) + 0.04 * (8.4 - alkalinity) * (dosing > 0) + rng.gauss(0, 0.02)
        calcium += 2.0 * (dosing - growth) + 0.03 * (425 - calcium) + rng.gauss(0, 0.6)
        magnesium += 0.9 * (dosing - growth) - 0.35 + rng.gauss(0, 1.2)
        nitrate += hump(number, 24, 9, 0.9) + 0.24 * (0.4 + growth) * rng.uniform(0.6, 1.2) - 0.02 * nitrate
        phosphate += 0.004 * (0.4 + growth) - 0.03 * phosphate
        if magnesium < 1270:
            magnesium += 90
        since = (day - standstill[1]).days
        if 0 < since < 6:
            alkalinity += 0.36
        present = not away(day, holidays)
        saturday, recovering, cycling = day.weekday() == 5, 0 <= since < 6, number < 40 and number % 4 == 0
        if present and (saturday or recovering or cycling):
            values = {"temp": round(season(day, 25.0, 27.1) + rng.gauss(0, 0.15), 1), "salt": round(1.0252 + 0.0006 * math.sin(number / 30) + rng.gauss(0, 0.0004), 3),
                      "ph": step(8.12 + 0.06 * math.sin(number / 58) + rng.gauss(0, 0.04), 0.01), "alkalinity": step(alkalinity, 0.1, 1)}
            if number < 75 or number % 28 == 0:
                values |= {"ammonia": step(hump(number, 10, 6, 1.3), 0.05), "nitrite": step(hump(number, 22, 7, 0.9), 0.05)}
            if saturday:
                values |= {"nitrate": step(nitrate, 0.5), "calcium": int(calcium / 5 + 0.5) * 5}
            if saturday and number // 7 % 2 == 0:
                values |= {"magnesium": int(magnesium / 10 + 0.5) * 10, "phosphate": step(phosphate + rng.gauss(0, 0.03), 0.1, 1)}
            if saturday and number // 7 % 5 == 2:
                values["iodine"] = step(rng.gauss(0.06, 0.01), 0.01)
            if number in (0, 364):
                values |= {"copper": 0.0, "oxygen": 6.9}
            tests.append(condition(evening(day, rng), **values))
        if saturday and present:
            nitrate, phosphate = nitrate * 0.86, phosphate * 0.88
    return tests
