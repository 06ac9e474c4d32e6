#!/usr/bin/env python3
"""Draws the toolkit's icons as 32x32 PNG files in resources/icons.

Each icon is a few shapes (lines, circles, polygons) rasterised with 4x4
supersampling, so they stay crisp when scaled down. Run it after changing a
shape; the PNG files are kept in the repository.
"""
import math
import os
import struct
import zlib

SIZE = 32
SS = 4
INK = (205, 208, 214)


def png(path, pixels):
    raw = b"".join(b"\x00" + bytes(v for px in row for v in px) for row in pixels)
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF)
    data = b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", SIZE, SIZE, 8, 6, 0, 0, 0))
    data += chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b"")
    tmp = path + ".tmp"
    with open(tmp, "wb") as f:
        f.write(data)
    os.replace(tmp, path)


def seg_dist(px, py, ax, ay, bx, by):
    dx, dy = bx - ax, by - ay
    t = 0.0 if dx == dy == 0 else max(0.0, min(1.0, ((px - ax) * dx + (py - ay) * dy) / (dx * dx + dy * dy)))
    return math.hypot(px - (ax + t * dx), py - (ay + t * dy))


def inside_poly(px, py, pts):
    c = False
    for i in range(len(pts)):
        (ax, ay), (bx, by) = pts[i], pts[i - 1]
        if (ay > py) != (by > py) and px < (bx - ax) * (py - ay) / (by - ay) + ax:
            c = not c
    return c


def line(a, b, w):
    return lambda x, y: seg_dist(x, y, *a, *b) <= w / 2


def ring(c, r, w, start=0, end=360):
    def f(x, y):
        d = math.hypot(x - c[0], y - c[1])
        ang = math.degrees(math.atan2(-(y - c[1]), x - c[0])) % 360
        return abs(d - r) <= w / 2 and (start <= ang <= end if start < end else (ang >= start or ang <= end))
    return f


def disc(c, r):
    return lambda x, y: math.hypot(x - c[0], y - c[1]) <= r


def poly(*pts):
    return lambda x, y: inside_poly(x, y, pts)


def draw(shapes, erase=()):
    rows = []
    for j in range(SIZE):
        row = []
        for i in range(SIZE):
            hits = 0
            for sj in range(SS):
                for si in range(SS):
                    x, y = i + (si + 0.5) / SS, j + (sj + 0.5) / SS
                    if any(s(x, y) for s in shapes) and not any(e(x, y) for e in erase):
                        hits += 1
            row.append((*INK, round(255 * hits / (SS * SS))))
        rows.append(row)
    return rows


def eye(open_):
    lids = [ring((16, 30), 18, 2.2, 50, 130), ring((16, 2), 18, 2.2, 230, 310)]
    if open_:
        return draw(lids + [disc((16, 16), 5)])
    return draw([ring((16, 2), 18, 2.2, 230, 310), line((6, 21), (4, 25), 2), line((16, 24), (16, 28), 2), line((26, 21), (28, 25), 2)])


ICONS = {
    "eye-open": lambda: eye(True),
    "eye-closed": lambda: eye(False),
    "eyedropper": lambda: draw([line((7, 25), (19, 13), 3.5), poly((18, 8), (24, 14), (27, 11), (21, 5)), line((5, 27), (8, 24), 2)]),
    "magnify": lambda: draw([ring((13, 13), 8, 3), line((19, 19), (27, 27), 4)]),
    "poot": lambda: draw([line((9, 9), (23, 23), 3), line((9, 23), (23, 9), 3)]),
    "scroll-left": lambda: draw([poly((20, 7), (20, 25), (9, 16))]),
    "tree-collapsed": lambda: draw([poly((12, 7), (12, 25), (23, 16))]),
    "tree-expanded": lambda: draw([poly((7, 12), (25, 12), (16, 23))]),
    "AT-Output": lambda: draw([poly((5, 10), (19, 10), (19, 22), (5, 22)), poly((19, 13), (27, 8), (27, 24), (19, 19))],
                              [poly((8, 13), (16, 13), (16, 19), (8, 19))]),
}

if __name__ == "__main__":
    out = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "resources", "icons")
    for name, make in ICONS.items():
        png(os.path.join(out, name + ".png"), make())
        print("wrote", name + ".png")
