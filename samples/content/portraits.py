# SPDX-License-Identifier: GPL-3.0-or-later
"""A small drawn picture for each species."""
import math
import random

from tankfiles.drawing import Canvas, curve, ellipse, mix, shade, stroke

WIDTH, HEIGHT = 320, 220
# colours of the water at the top and the bottom, and of the sand
WATERS = {"fresh": ((150, 205, 196), (34, 84, 82), (196, 170, 120)),
          "reef": ((96, 190, 236), (10, 52, 110), (226, 214, 190))}


def scene(water, rng):
    """Water with light from above and a floor."""
    top, bottom, sand = WATERS[water]
    canvas = Canvas(WIDTH, HEIGHT, top, bottom)
    for _ in range(4):
        x, lean, width = rng.uniform(0, WIDTH), rng.uniform(-60, 20), rng.uniform(14, 40)
        canvas.fill([(x, 0), (x + width, 0), (x + width * 1.8 + lean, HEIGHT), (x + lean, HEIGHT)],
                    (255, 255, 240), 0.09)
    phase = rng.uniform(0, 6)
    floor = [(x, 190 + 6 * math.sin(x / 47 + phase) + 3 * math.sin(x / 19)) for x in range(0, WIDTH + 8, 8)]
    canvas.fill(floor + [(WIDTH, HEIGHT), (0, HEIGHT)], lambda x, y: mix(sand, shade(sand, 0.62), (y - 180) / 40))
    for _ in range(26):
        x, y = rng.uniform(0, WIDTH), rng.uniform(200, 219)
        canvas.fill(ellipse(x, y, rng.uniform(1, 3.4), rng.uniform(0.8, 2), 0, 10), shade(sand, rng.uniform(0.6, 1.2)), 0.8)
    for _ in range(7):
        x, y, r = rng.uniform(10, 310), rng.uniform(8, 150), rng.uniform(1.5, 4)
        canvas.fill(ellipse(x, y, r, r, 0, 16), (235, 250, 255), 0.35)
    return canvas


def backdrop(canvas, water, rng):
    """A blurred background: leaves or rock."""
    if water == "fresh":
        for _ in range(9):
            x, lean, tall = rng.uniform(0, WIDTH), rng.uniform(-40, 40), rng.uniform(60, 150)
            canvas.fill(stroke(curve((x, 198), (x - lean, 198 - tall / 2), (x + lean, 198 - tall)), (9, 1)), (38, 98, 60), 0.5)
    else:
        for x, r in ((rng.uniform(10, 90), 46), (rng.uniform(110, 190), 34), (rng.uniform(230, 310), 54)):
            points = [(x + r * 1.3 * math.cos(a) * (1 + 0.14 * math.sin(5 * a + r)), 204 - abs(r * math.sin(a)) * (1 + 0.2 * math.sin(7 * a)))
                      for a in (math.pi * i / 30 for i in range(31))]
            canvas.fill(points, lambda px, py: mix((92, 84, 120), (48, 46, 84), (py - 140) / 70), 0.75)


def fish(canvas, rng, upper, lower, length=190, depth=74, bands=(), stripes=(), spots=None, fins=None, tail="fork",
         dorsal=0.5, half=None, eye=7.0, whiskers=False):
    """A fish looking left. `bands` are (from, to, colour) along the body, `stripes` across its depth, both as shares
    of the whole; `half` is (share, colour) for a rear part of another colour."""
    cx, cy = WIDTH / 2 - 8, 104
    x0, fin = cx - length / 2, fins or shade(upper, 0.9)

    def body_half(t):
        return depth / 2 * math.sin(math.pi * t ** 0.72) ** 0.78 * (1 - 0.12 * t) + depth * 0.09 * t

    steps = [i / 40 for i in range(41)]
    body = [(x0 + t * length, cy - body_half(t)) for t in steps] + [(x0 + t * length, cy + body_half(t) * 0.96) for t in reversed(steps)]
    end, root = x0 + length, depth * 0.11
    tails = {
        "fork": [(end - 8, cy - root), *curve((end, cy - root), (end + 18, cy - depth * 0.25), (end + 44, cy - depth * 0.56)),
                 *curve((end + 44, cy - depth * 0.56), (end + 12, cy), (end + 44, cy + depth * 0.56)), (end - 8, cy + root)],
        "fan": [(end - 8, cy - root), (end + 16, cy - depth * 0.38), *curve((end + 30, cy - depth * 0.36), (end + 52, cy), (end + 30, cy + depth * 0.36)),
                (end + 16, cy + depth * 0.38), (end - 8, cy + root)],
    }
    ray = lambda x, y: mix(fin, shade(fin, 1.35), 0.5 + 0.5 * math.sin((x * 0.9 + y * 0.5)))
    canvas.fill(tails[tail], ray, 0.92)
    height = depth * dorsal
    canvas.fill(curve((x0 + length * 0.32, cy - depth * 0.42), (x0 + length * 0.40, cy - depth * 0.5 - height),
                      (x0 + length * 0.78, cy - depth * 0.34 - height), (x0 + length * 0.86, cy - depth * 0.22)), ray, 0.9)
    canvas.fill(curve((x0 + length * 0.52, cy + depth * 0.40), (x0 + length * 0.66, cy + depth * 0.5 + height * 0.8),
                      (x0 + length * 0.84, cy + depth * 0.3 + height * 0.5), (x0 + length * 0.88, cy + depth * 0.16)), ray, 0.9)
    canvas.fill(curve((x0 + length * 0.32, cy + depth * 0.42), (x0 + length * 0.36, cy + depth * 0.9), (x0 + length * 0.5, cy + depth * 0.8),
                      (x0 + length * 0.44, cy + depth * 0.42)), ray, 0.85)

    def skin(x, y):
        t = (y - cy) / depth + 0.5
        colour = mix(upper, lower, max(0.0, min(1.0, t * 1.5 - 0.3)))
        return shade(colour, 1.0 + 0.06 * math.sin(x * 0.55 + (int(y / 4) % 2) * 1.7))

    mask = canvas.fill(body, skin)
    if half:
        at = x0 + length * half[0]
        canvas.fill([*curve((at + 12, cy - depth), (at - 14, cy), (at + 12, cy + depth)), (end + 9, cy + depth), (end + 9, cy - depth)], half[1], 1, mask)
    for first, last, colour in bands:
        a, b = x0 + length * first, x0 + length * last
        canvas.fill([*curve((a, cy - depth), (a - 12, cy), (a, cy + depth)), *curve((b, cy + depth), (b - 8, cy), (b, cy - depth))], colour, 0.95, mask)
    for first, last, colour in stripes:
        a, b = cy - depth / 2 + depth * first, cy - depth / 2 + depth * last
        canvas.fill([*curve((x0 + 14, a), (cx, a - 6), (end + 6, a + 3)), *curve((end + 6, b), (cx, b - 2), (x0 + 14, b))], colour, 0.92, mask)
    for _ in range(spots[0] if spots else 0):
        x, y, r = x0 + length * rng.uniform(0.06, 0.98), cy + depth * rng.uniform(-0.46, 0.42), rng.uniform(1.4, spots[2])
        canvas.fill(ellipse(x, y, r, r, 0, 14), spots[1], 0.9, mask)
    canvas.fill(ellipse(cx - length * 0.05, cy - depth * 0.3, length * 0.36, depth * 0.11, -0.03), (255, 255, 255), 0.22, mask)
    canvas.fill(curve((x0 + length * 0.30, cy + depth * 0.04), (x0 + length * 0.44, cy - depth * 0.06), (x0 + length * 0.52, cy + depth * 0.30),
                      (x0 + length * 0.31, cy + depth * 0.16)), ray, 0.8)
    canvas.fill(stroke(curve((x0 + length * 0.25, cy - depth * 0.30), (x0 + length * 0.30, cy), (x0 + length * 0.25, cy + depth * 0.32)), (1.6, 1.6)), shade(upper, 0.6), 0.5, mask)
    ex, ey = x0 + length * 0.13, cy - depth * 0.08
    canvas.fill(ellipse(ex, ey, eye, eye), (246, 236, 200))
    canvas.fill(ellipse(ex, ey, eye * 0.62, eye * 0.62), (16, 18, 24))
    canvas.fill(ellipse(ex - eye * 0.22, ey - eye * 0.26, eye * 0.2, eye * 0.2, 0, 14), (255, 255, 255))
    canvas.fill(stroke(curve((x0 + 1, cy + depth * 0.05), (x0 + 8, cy + depth * 0.12), (x0 + 15, cy + depth * 0.1)), (1.6, 0.8)), shade(upper, 0.4), 0.8)
    for dy in (10, 20) if whiskers else ():
        canvas.fill(stroke(curve((x0 + 6, cy + 5), (x0 - 6, cy + 8), (x0 - 12, cy + 6 + dy)), (2.4, 0.6)), shade(upper, 0.7))


def leaf(canvas, base, angle, length, width, colour, bend=0.25):
    bx, by = base
    tip = (bx + length * math.cos(angle), by - length * math.sin(angle))
    side = (math.sin(angle) * length * bend, math.cos(angle) * length * bend)
    middle = ((bx + tip[0]) / 2 + side[0], (by + tip[1]) / 2 + side[1])
    spine = curve(base, middle, tip)
    left, right, last = [], [], len(spine) - 1
    for i, (x, y) in enumerate(spine):
        half = width / 2 * math.sin(math.pi * (0.06 + 0.94 * i / last)) ** 0.8
        left.append((x + half * math.sin(angle), y + half * math.cos(angle)))
        right.append((x - half * math.sin(angle), y - half * math.cos(angle)))
    canvas.fill(left + spine[::-1], colour)
    canvas.fill(right + spine[::-1], shade(colour, 0.82))
    canvas.fill(stroke(spine, (1.8, 0.6)), shade(colour, 1.3), 0.8)


def rosette(canvas, rng, colour, count=13, length=140, width=26):
    for i in sorted(range(count), key=lambda k: -abs(k - count / 2)):
        angle = math.radians(18 + 144 * i / (count - 1))
        leaf(canvas, (160 + rng.uniform(-8, 8), 200), angle, length * rng.uniform(0.78, 1.06) * (0.72 + 0.28 * math.sin(angle)), width,
             shade(colour, rng.uniform(0.75, 1.2)), 0.22 if i < count / 2 else -0.22)


def ribbons(canvas, rng, colour, count=26):
    for _ in range(count):
        x, lean, tall = rng.uniform(70, 250), rng.uniform(-60, 60), rng.uniform(110, 190)
        canvas.fill(stroke(curve((x, 204), (x - lean * 0.5, 204 - tall * 0.6), (x + lean * 0.2, 204 - tall), (x + lean * 1.3, 210 - tall)), (7, 2)),
                    shade(colour, rng.uniform(0.6, 1.25)))


def stems(canvas, rng, colour, tip, count=8):
    for k in range(count):
        x, tall = 66 + k * 190 / (count - 1) + rng.uniform(-8, 8), rng.uniform(100, 172)
        lean, levels = rng.uniform(-12, 12), int(tall / 11)
        canvas.fill(stroke(curve((x, 204), (x + lean, 204 - tall)), (2.5, 1.5)), shade(colour, 0.7))
        for level in range(levels):
            share = level / levels
            base = (x + lean * share, 204 - tall * share)
            for angle in (0.35, math.pi - 0.35):
                leaf(canvas, base, angle + rng.uniform(-0.2, 0.2), 19 - 7 * share, 8, mix(colour, tip, share ** 1.6), 0.1)


def wood_plant(canvas, rng, colour, length=80, width=18, count=15):
    canvas.fill(stroke(curve((30, 204), (110, 150), (190, 190), (292, 150)), (26, 12)), lambda x, y: mix((112, 76, 48), (70, 46, 30), 0.5 + 0.5 * math.sin(x * 0.16 + y * 0.6)))
    for i in range(count):
        x = 80 + 170 * i / count + rng.uniform(-6, 6)
        leaf(canvas, (x, 176 + rng.uniform(-4, 4)), rng.uniform(0.6, 2.5), length * rng.uniform(0.6, 1.1), width, shade(colour, rng.uniform(0.72, 1.22)), 0.15)


def tuft(canvas, rng, colour, count=240):
    for _ in range(count):
        angle, r = rng.uniform(0.05, math.pi - 0.05), rng.uniform(30, 110)
        bx, by = 160 + rng.uniform(-70, 70), 196 + rng.uniform(-8, 4)
        tip = (bx + r * math.cos(angle), by - r * math.sin(angle) * 0.9)
        canvas.fill(stroke(curve((bx, by), (bx + rng.uniform(-30, 30), by - r * 0.5), tip, steps=8), (2.6, 1.0)), shade(colour, rng.uniform(0.55, 1.35)), 0.9)


def floaters(canvas, rng, colour, root):
    for _ in range(26):
        x, y, r = rng.uniform(6, 314), rng.uniform(30, 52), rng.uniform(9, 15)
        for _ in range(5):
            canvas.fill(stroke(curve((x, y), (x + rng.uniform(-14, 14), y + 30), (x + rng.uniform(-10, 10), y + rng.uniform(46, 92))), (1.6, 0.5)), root, 0.8)
        for side in (-0.6, 0.6):
            canvas.fill(ellipse(x + side * r, y, r, r * 0.42, side * 0.3), shade(colour, rng.uniform(0.75, 1.25)))


def branching(canvas, rng, colour, tip, width=15, spread=0.62):
    def grow(x, y, angle, length, w, depth):
        ex, ey = x + length * math.cos(angle), y - length * math.sin(angle)
        canvas.fill(stroke(curve((x, y), ((x + ex) / 2 + rng.uniform(-4, 4), (y + ey) / 2), (ex, ey), steps=8), (w, w * 0.72)), mix(colour, tip, max(0.0, 0.45 - depth * 0.12)))
        canvas.fill(ellipse(ex, ey, w * 0.37, w * 0.37, 0, 18), tip if depth == 0 else mix(colour, tip, 0.3))
        for side in (-spread, spread * 0.1, spread) if depth else ():
            grow(ex, ey, angle + side + rng.uniform(-0.16, 0.16), length * rng.uniform(0.62, 0.8), w * 0.72, depth - 1)

    for x, angle in ((118, 1.95), (160, 1.55), (202, 1.2)):
        grow(x, 202, angle, 58, width, 3)


def polyps(canvas, rng, colour, tip, count=95, length=44, width=7.5):
    """Tentacles with bulb tips, back row first."""
    canvas.fill(ellipse(160, 196, 96, 26), shade(colour, 0.45))
    for i in range(count):
        depth = i / count
        x = 160 + rng.uniform(-92, 92) * (1 - 0.1 * depth)
        y = 150 + 38 * depth + abs(x - 160) * 0.12
        ex, ey = x + (x - 160) * 0.25 + rng.uniform(-12, 12), y - length * rng.uniform(0.7, 1.2) * (1 - 0.25 * depth)
        canvas.fill(stroke(curve((x, y), (x, (y + ey) / 2), (ex, ey), steps=8), (width, width * 0.7)), shade(colour, 0.6 + 0.5 * depth))
        canvas.fill(ellipse(ex, ey, width * 0.62, width * 0.55, 0, 18), shade(tip, 0.75 + 0.35 * depth))
        canvas.fill(ellipse(ex - 1, ey - 1.4, width * 0.2, width * 0.2, 0, 10), (255, 255, 255), 0.6)


def discs(canvas, rng, rings, count=42, radius=17):
    canvas.fill(ellipse(160, 198, 124, 50), (70, 62, 84))
    for i in range(count):
        depth = i / count
        angle, far = rng.uniform(0, 2 * math.pi), math.sqrt(rng.uniform(0, 1))
        x, y, r = 160 + 112 * far * math.cos(angle), 140 + 52 * depth, radius * rng.uniform(0.75, 1.1)
        for k in range(18):
            a = 2 * math.pi * k / 18
            canvas.fill(stroke([(x, y), (x + r * 1.3 * math.cos(a), y + r * 0.82 * math.sin(a))], (2.6, 1.2)), rings[0])
        for share, ring in zip((1.0, 0.72, 0.46, 0.2), rings):
            canvas.fill(ellipse(x, y, r * share, r * share * 0.62, 0, 24), shade(ring, 0.7 + 0.35 * depth))


def dome(canvas, rng, colour, groove):
    outline = [(160 + 104 * math.cos(a) * (1 + 0.04 * math.sin(6 * a)), 200 - 98 * math.sin(a)) for a in (math.pi * i / 48 for i in range(49))]
    mask = canvas.fill(outline, lambda x, y: mix(shade(colour, 1.15), shade(colour, 0.5), math.hypot(x - 140, y - 140) / 140))
    for k in range(24):
        y, phase = 100 + k * 4.6, rng.uniform(0, 6)
        points = [(x, y + 5.5 * math.sin(x / 9.5 + phase) + 3 * math.sin(x / 23 + k)) for x in range(50, 272, 4)]
        canvas.fill(stroke(points, (2.6, 2.6)), groove, 0.75, mask)


def toadstool(canvas, rng, colour, tip):
    canvas.fill([*curve((132, 204), (146, 160), (128, 120)), *curve((192, 120), (174, 160), (188, 204))], lambda x, y: mix(shade(colour, 0.95), shade(colour, 0.55), (x - 120) / 80))
    cap = [(160 + 112 * math.cos(a) * (1 + 0.05 * math.sin(9 * a)), 112 + 36 * math.sin(a) + 7 * math.sin(5 * a)) for a in (2 * math.pi * i / 60 for i in range(60))]
    canvas.fill(cap, lambda x, y: mix(shade(colour, 1.12), shade(colour, 0.66), (y - 76) / 74))
    for _ in range(150):
        a, far = rng.uniform(0, 2 * math.pi), math.sqrt(rng.uniform(0, 1))
        x, y = 160 + 104 * far * math.cos(a), 106 + 30 * far * math.sin(a)
        canvas.fill(stroke([(x, y), (x + rng.uniform(-3, 3), y - 12)], (1.8, 1.2)), shade(colour, 1.2))
        canvas.fill(ellipse(x, y - 13, 2.6, 2.0, 0, 12), tip)


def shrimp(canvas, rng, colour, back=None, spots=None):
    body = [*curve((74, 118), (120, 70), (196, 84), (250, 150)), *curve((238, 166), (190, 132), (130, 150), (78, 130))]
    for k in range(5):
        x = 112 + k * 15
        canvas.fill(stroke(curve((x, 130), (x - 16, 158), (x - 24 + 4 * k, 196)), (4, 1.2)), shade(colour, 0.75))
    for k in range(5):
        x = 184 + k * 11
        canvas.fill(ellipse(x, 134 + k * 7, 5, 13, 0.5), shade(colour, 0.85), 0.9)
    canvas.fill(curve((240, 150), (300, 146), (296, 186), (236, 164)), shade(colour, 0.95))
    mask = canvas.fill(body, lambda x, y: mix(shade(colour, 1.2), shade(colour, 0.7), (y - 84) / 70), 0.95)
    if back:
        canvas.fill(stroke(curve((70, 120), (120, 86), (194, 98), (252, 158)), (24, 14)), back, 0.95, mask)
        canvas.fill(stroke(curve((70, 118), (120, 84), (194, 97), (252, 157)), (7, 5)), (250, 250, 246), 0.95, mask)
    for k in range(6):
        x = 150 + k * 15
        canvas.fill(stroke(curve((x, 66), (x + 9, 110), (x - 4, 150 + 4 * k)), (1.6, 1.6)), shade(colour, 0.5), 0.5, mask)
    for _ in range(spots[0] if spots else 0):
        canvas.fill(ellipse(rng.uniform(90, 246), rng.uniform(80, 160), 1.9, 1.9, 0, 12), spots[1], 0.9, mask)
    for dy in (-40, -16, 10):
        canvas.fill(stroke(curve((80, 116), (46, 96 + dy), (12, 112 + dy * 1.4)), (1.8, 0.7)), (250, 240, 236) if back else shade(colour, 0.6), 0.9)
    canvas.fill(ellipse(92, 112, 5, 5), (16, 16, 20))
    canvas.fill(ellipse(90.5, 110.5, 1.5, 1.5, 0, 12), (255, 255, 255))


def snail(canvas, rng, shell, line, cone=False):
    canvas.fill([*curve((58, 196), (66, 160), (110, 172), (254, 178)), (268, 197)], lambda x, y: mix((190, 168, 128), (118, 98, 76), (y - 164) / 36))
    for x in (72, 86):
        canvas.fill(stroke(curve((x, 170), (x - 12, 150), (x - 22, 140)), (4, 1.4)), (160, 138, 104))
    if cone:
        outline = [*curve((120, 184), (104, 130), (150, 122)), *curve((150, 122), (240, 110), (288, 92)), *curve((288, 92), (246, 168), (190, 190))]
    else:
        outline = ellipse(172, 128, 74, 62, -0.12, 60)
    mask = canvas.fill(outline, lambda x, y: mix(shade(shell, 1.25), shade(shell, 0.55), math.hypot(x - 150, y - 96) / 130))
    for k in range(9):
        if cone:
            x = 128 + k * 19
            canvas.fill(stroke(curve((x - 12, 70), (x + 14, 140), (x - 6, 210)), (8, 8)), line, 0.85, mask)
        else:
            points = [(176 + (13 + k * 8 + 5 * a) * math.cos(a), 126 + (11 + k * 7 + 4 * a) * math.sin(a)) for a in (i / 5 for i in range(-2, 16))]
            canvas.fill(stroke(points, (5, 3)), line, 0.8, mask)
    canvas.fill(ellipse(150, 96, 26, 8, -0.4), (255, 255, 255), 0.3, mask)


def star(canvas, rng, colour, band):
    for k in range(5):
        a = math.pi / 2 + 2 * math.pi * k / 5
        points = [(160 + r * math.cos(a + 0.4 * math.sin(r / 26 + k)), 118 + 0.78 * -r * math.sin(a + 0.4 * math.sin(r / 26 + k))) for r in range(6, 132, 5)]
        mask = canvas.fill(stroke(points, (15, 3)), shade(colour, 0.9))
        for r in points[1::2]:
            canvas.fill(ellipse(r[0], r[1], 3, 12, 1.57 - a, 16), band, 0.8, mask)
    canvas.fill(ellipse(160, 118, 24, 21), lambda x, y: mix(shade(colour, 1.25), shade(colour, 0.7), math.hypot(x - 152, y - 110) / 32))


def urchin(canvas, rng, colour, panel):
    for _ in range(190):
        a, r = rng.uniform(0, 2 * math.pi), rng.uniform(76, 96)
        canvas.fill(stroke([(160, 124), (160 + r * math.cos(a), 124 + r * 0.86 * math.sin(a))], (3, 0.8)), shade((190, 66, 48), rng.uniform(0.6, 1.2)))
    mask = canvas.fill(ellipse(160, 124, 68, 60, 0, 60), lambda x, y: mix(shade(colour, 1.3), shade(colour, 0.5), math.hypot(x - 140, y - 100) / 100))
    for k in range(5):
        x = 108 + k * 26
        canvas.fill([*curve((160, 60), (x - 13, 124), (160, 188)), *curve((160, 188), (x + 7, 124), (160, 60))], panel, 0.85, mask)


def clam(canvas, rng, mantle, spot):
    wave = lambda x, phase: 9 * math.sin((x - 50) / 15 + phase)
    canvas.fill([*curve((44, 134), (80, 216), (240, 216), (276, 134))], lambda x, y: mix((236, 226, 206), (140, 126, 108), (y - 134) / 70))
    for k in range(7):
        canvas.fill(stroke(curve((70 + k * 30, 136), (90 + k * 23, 170), (110 + k * 17, 192)), (2.4, 1.6)), (128, 114, 98), 0.6)
    for phase, lift, share in ((0.0, 26, 0.8), (1.2, 6, 1.1)):
        top = [(x, 128 - lift + wave(x, phase)) for x in range(40, 282, 4)]
        mask = canvas.fill(top + [(x, 150 + wave(x, phase)) for x in range(280, 38, -4)], lambda x, y: mix(shade(mantle, share * 1.2), shade(mantle, share * 0.6), (y - 96) / 60))
        for _ in range(70):
            canvas.fill(ellipse(rng.uniform(44, 276), rng.uniform(94, 156), rng.uniform(2, 5), rng.uniform(1.4, 3), rng.uniform(0, 3), 14), spot, 0.85, mask)


def crab(canvas, rng, shell, limb):
    for side in (-1, 1):
        for k in range(3):
            canvas.fill(stroke(curve((160 + side * 30, 150), (160 + side * (78 + k * 12), 122 + k * 22), (160 + side * (84 + k * 14), 196)), (9, 2)), shade(limb, 0.9 - k * 0.08))
        canvas.fill(stroke(curve((160 + side * 26, 158), (160 + side * 66, 176), (160 + side * 34, 194)), (13, 13)), limb)
        canvas.fill(ellipse(160 + side * 28, 192, 17, 9, side * -0.3), shade(limb, 1.15))
        canvas.fill(stroke([(160 + side * 9, 146), (160 + side * 13, 126)], (3, 2)), limb)
        canvas.fill(ellipse(160 + side * 13, 124, 4, 4, 0, 16), (16, 16, 22))
    mask = canvas.fill(ellipse(160, 128, 62, 46, 0, 50) if shell != limb else ellipse(160, 152, 50, 32, 0, 50),
                       lambda x, y: mix(shade(shell, 1.3), shade(shell, 0.55), math.hypot(x - 142, y - 108) / 90))
    for k in range(6) if shell != limb else ():
        points = [(170 + (6 + k * 9) * math.cos(a), 122 + (5 + k * 7) * math.sin(a)) for a in (i / 4 for i in range(0, 20))]
        canvas.fill(stroke(points, (2, 2)), shade(shell, 0.5), 0.5, mask)
    for x in (150, 170):
        canvas.fill(ellipse(x, 152, 3.6, 4.6, 0, 16), (16, 16, 22))


DRAWERS = {drawer.__name__: drawer for drawer in (
    fish, rosette, ribbons, stems, wood_plant, tuft, floaters, branching, polyps, discs, dome, toadstool, shrimp, snail,
    star, urchin, clam, crab)}


def portrait(seed, water, drawer, **arguments):
    """PNG bytes; the seed (the scientific name) makes every scene different."""
    rng = random.Random(seed)
    canvas = scene(water, rng)
    backdrop(canvas, water, rng)
    DRAWERS[drawer](canvas, rng, **arguments)
    return canvas.png()
