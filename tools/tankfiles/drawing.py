# SPDX-License-Identifier: GPL-3.0-or-later
"""A canvas with anti-aliased polygons, and its PNG form. Pure Python, so pictures need no imaging library."""
import math
import struct
import zlib

SUBLINES = 4  # scan lines per pixel; coverage along a line is exact


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def shade(colour, factor):
    return tuple(min(255.0, channel * factor) for channel in colour)


class Canvas:
    """RGB pixels, row by row; colours are triples from 0 to 255."""

    def __init__(self, width, height, top, bottom):
        self.width, self.height = width, height
        self.rows = []
        for y in range(height):
            colour = mix(top, bottom, y / (height - 1))
            self.rows.append([channel for _ in range(width) for channel in colour])

    def coverage(self, polygon):
        """How much of each pixel the polygon covers (even-odd): {y: (first x, [0..1, ...])}."""
        points = [(float(x), float(y)) for x, y in polygon]
        edges = [(a, b) if a[1] < b[1] else (b, a) for a, b in zip(points, points[1:] + points[:1]) if a[1] != b[1]]
        if not edges:
            return {}
        top = max(0, math.floor(min(a[1] for a, _ in edges)))
        bottom = min(self.height - 1, math.floor(max(b[1] for _, b in edges)))
        left = max(0, math.floor(min(x for x, _ in points)))
        right = min(self.width - 1, math.floor(max(x for x, _ in points)))
        result = {}
        if right < left:
            return result
        for y in range(top, bottom + 1):
            line = [0.0] * (right - left + 1)
            for sub in range(SUBLINES):
                at = y + (sub + 0.5) / SUBLINES
                crossings = sorted(a[0] + (at - a[1]) * (b[0] - a[0]) / (b[1] - a[1])
                                   for a, b in edges if a[1] <= at < b[1])
                for start, end in zip(crossings[::2], crossings[1::2]):
                    start, end = max(start, left), min(end, right + 1)
                    if start >= end:
                        continue
                    first, last = int(start), min(int(end), right)
                    if first == last:
                        line[first - left] += end - start
                        continue
                    line[first - left] += first + 1 - start
                    line[last - left] += end - last
                    for x in range(first + 1, last):
                        line[x - left] += 1.0
            result[y] = (left, [value / SUBLINES for value in line])
        return result

    def fill(self, polygon, colour, alpha=1.0, clip=None):
        """`colour` is a triple or a function of (x, y); `clip` is another polygon's coverage. Returns the coverage."""
        area = self.coverage(polygon)
        constant = None if callable(colour) else colour
        for y, (left, line) in area.items():
            row = self.rows[y]
            clip_left, clip_line = (clip or {}).get(y, (0, ()))
            for x, share in enumerate(line, left):
                if clip is not None:
                    inside = x - clip_left
                    share *= clip_line[inside] if 0 <= inside < len(clip_line) else 0.0
                share *= alpha
                if share <= 0.0:
                    continue
                new = constant or colour(x, y)
                for channel in range(3):
                    index = 3 * x + channel
                    row[index] += (new[channel] - row[index]) * share
        return area

    def png(self):
        # even values only: the difference is invisible and the file is a third smaller
        lines = [bytes(min(254, 2 * int(channel / 2 + 0.5)) for channel in row) for row in self.rows]
        return png_file(self.width, self.height, zlib.compress(filtered(lines), 9))


def filtered(lines):
    """The lines, each with the PNG filter (none, sub, up, average) that gives the smallest sum of magnitudes."""
    data, above = bytearray(), bytes(len(lines[0]))
    for line in lines:
        before = bytes(3) + line[:-3]
        candidates = (
            line,
            bytes((a - b) & 255 for a, b in zip(line, before)),
            bytes((a - b) & 255 for a, b in zip(line, above)),
            bytes((a - (b + c) // 2) & 255 for a, b, c in zip(line, before, above)),
        )
        kind = min(range(4), key=lambda i: sum(min(v, 256 - v) for v in candidates[i]))
        data.append(kind)
        data += candidates[kind]
        above = line
    return bytes(data)


def png_chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))


def png_file(width, height, compressed):
    """An RGB picture of eight bits a channel; `compressed` is its zlib stream of filtered lines."""
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + png_chunk(b"IHDR", header) + png_chunk(b"IDAT", compressed)
            + png_chunk(b"IEND", b""))


def ellipse(cx, cy, rx, ry, angle=0.0, steps=36):
    cos, sin = math.cos(angle), math.sin(angle)
    points = []
    for i in range(steps):
        x, y = rx * math.cos(2 * math.pi * i / steps), ry * math.sin(2 * math.pi * i / steps)
        points.append((cx + x * cos - y * sin, cy + x * sin + y * cos))
    return points


def stroke(points, widths):
    """A ribbon along the points, `widths` wide at its start and end."""
    left, right, last = [], [], len(points) - 1
    for i, (x, y) in enumerate(points):
        (ax, ay), (bx, by) = points[max(0, i - 1)], points[min(last, i + 1)]
        length = math.hypot(bx - ax, by - ay) or 1.0
        half = (widths[0] + (widths[1] - widths[0]) * i / last) / 2
        dx, dy = -(by - ay) / length * half, (bx - ax) / length * half
        left.append((x + dx, y + dy))
        right.append((x - dx, y - dy))
    return left + right[::-1]


def curve(*control, steps=16):
    """A Bezier curve through any number of control points."""
    points = []
    for i in range(steps + 1):
        t, level = i / steps, list(control)
        while len(level) > 1:
            level = [mix(a, b, t) for a, b in zip(level, level[1:])]
        points.append(level[0])
    return points
