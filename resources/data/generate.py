#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

"""Draws the screening files of this folder; README.md says what they hold.

    generate.py [FOLDER]

Integers and fractions only: every machine writes the same bytes.
"""

import pathlib
import struct
import sys
from fractions import Fraction
from math import gcd

# The supercell that stands for a size and an angle: (p, q, k) is a vector of p pixels to the
# right and q up that spans k dots. README.md says how close these are, and why no closer.
SCREENS = {
    (2, 26): (16, 8, 9),
    (2, 33): (15, 10, 9),
    (2, 45): (14, 14, 10),
    (2, 56): (10, 15, 9),
    (2, 63): (8, 16, 9),
    (2, 90): (0, 16, 8),
    (2, 108): (-6, 19, 10),
    (2, 116): (-8, 16, 9),
    (2, 153): (-16, 8, 9),
    (3, 18): (28, 9, 10),
    (3, 72): (9, 28, 10),
    (3, 90): (0, 18, 6),
    (3, 108): (-9, 28, 10),
    (3, 162): (-28, 9, 10),
    (4, 18): (19, 6, 5),
    (4, 45): (14, 14, 5),
    (4, 72): (6, 19, 5),
    (4, 90): (0, 16, 4),
    (5, 14): (19, 5, 4),
    (5, 45): (14, 14, 4),
    (5, 75): (5, 19, 4),
    (5, 90): (0, 20, 4),
    (7, 45): (15, 15, 3),
    (8, 15): (23, 6, 3),
    (8, 45): (17, 17, 3),
    (8, 75): (6, 23, 3),
    (8, 90): (0, 16, 2),
    (9, 45): (19, 19, 3),
    (10, 45): (14, 14, 2),
    (11, 45): (23, 23, 3),
    (12, 14): (23, 6, 2),
    (12, 45): (17, 17, 2),
    (14, 45): (20, 20, 2),
}

# What a family draws unless the name says otherwise: the dot, and how drops build it up.
FAMILIES = {
    "H": ("ellipse", "dot by dot"),
    "F": ("ellipse", "full field"),
    "UV": ("line", "dot by dot"),
    "WP1": ("round", "dot by dot"),
    "WP2": ("round", "largest drop"),
    "CG": ("round", "full field"),
    "L": ("round", "one drop"),
}

CELLS = """
    H_C2_26.ht3 H_C2_63.ht3 H_C2_90.ht3 H_C2_116.ht3 H_C2_153.ht3
    H_C3_18.ht3 H_C3_72.ht3 H_C3_90.ht3 H_C3_108.ht3 H_C3_162.ht3
    H_C4_18.ht3 H_C4_45.ht3 H_C4_72.ht3 H_C4_90.ht3
    H_C5_14.ht3 H_C5_45.ht3 H_C5_75.ht3 H_C5_90.ht3
    F_C2_26.ht3 F_C2_45.ht3 F_C2_63.ht3 F_C2_90.ht3
    UV_C2_1_33.ht3 UV_C2_2_56.ht3 UV_C2_3_45.ht3 UV_C2_4_108.ht3
    WP1_C8_15.ht3 WP1_C8_45.ht3 WP1_C8_75.ht3 WP1_C8_90.ht3
    WP2_C8_15.ht3 WP2_C8_45.ht3 WP2_C8_75.ht3 WP2_C8_90.ht3
    WP1_C08_45_DIAMOND.ht3 WP1_C10_45_DIAMOND.ht3 WP1_C12_45_DIAMOND.ht3 WP1_C14_45_DIAMOND.ht3
    CG_C12_14.ht3
    L_C5_45_DIAMOND.ht L_C7_45_DIAMOND.ht L_C9_45_DIAMOND.ht L_C11_45_DIAMOND.ht L_C7_45_ROUND.ht
""".split()

DIFFUSION_CELLS = """
    H_C2_26.ht3 H_C2_63.ht3 H_C2_90.ht3 H_C2_116.ht3 H_C2_153.ht3
    H_C3_18.ht3 H_C3_72.ht3 H_C3_90.ht3 H_C3_108.ht3 H_C3_162.ht3
    H_C4_18.ht3 H_C4_45.ht3 H_C4_72.ht3 H_C4_90.ht3
    F_C2_26.ht3 F_C2_45.ht3 F_C2_63.ht3 F_C2_90.ht3
    L_C5_45_DIAMOND.ht L_C7_45_DIAMOND.ht L_C9_45_DIAMOND.ht L_C7_45_ROUND.ht
""".split()

PATTERNS = [(32, 11, 11), (32, 13, 3), (32, 15, 3), (32, 15, 11), (32, 17, 3), (32, 21, 11)]

MAGIC = {".ht3": b"\xab\x56\xaa\x55", ".ht": b"\xaa\x55\xaa\x55"}
LAYOUT = 1
SHAPES = ["round", "diamond", "ellipse", "line"]
DIFFUSION_LEVELS = 64


def growth(shape, along, across, half):
    """Orders the pixels of a dot by their distances from its centre, each from 0 to `half`.

    Beyond the middle tones the holes between the dots shrink as the dots grew before. The
    corners of a diamond come last, so that diamonds touch late and by their corners.
    """
    if shape == "line":
        return (across, along)
    if shape == "diamond":
        corner = max if along + across <= half else min
        return (along + across, corner(along, across))
    if shape == "round":
        if along + across <= half:
            return (0, along**2 + across**2)
        return (1, -((half - along) ** 2) - (half - across) ** 2)
    weighted = 3 * along + 4 * across
    if weighted < 3 * half:
        return (0, 9 * along**2 + 16 * across**2)
    if weighted <= 4 * half:
        return (1, weighted)
    return (2, -9 * (half - along) ** 2 - 16 * (half - across) ** 2)


def dot_order(k):
    """The places of k x k dots in an order that keeps each far from all those before it."""
    crowd = {(i, j): 0 for i in range(k) for j in range(k)}
    order = {}
    while crowd:
        chosen = min(crowd, key=crowd.get)
        order[chosen] = len(order)
        del crowd[chosen]
        for dot in crowd:
            steps = [min((m - n) % k, (n - m) % k) for m, n in zip(dot, chosen)]
            crowd[dot] += 10**6 // (steps[0] ** 2 + steps[1] ** 2) ** 2
    return order


def brick(p, q):
    """Width, height and shift of the rectangle that paves the plane as the supercell does."""
    area = p * p + q * q
    height = gcd(p, q)
    width = area // height
    for shift in range(width):
        if (p * shift - q * height) % area == 0 and (q * shift + p * height) % area == 0:
            return width, height, shift
    raise ValueError(f"no brick for {p}, {q}")


def ranks(shape, p, q, k):
    """The brick's pixels, row by row, as their places in the order in which tone fills them.

    All dots grow at one pace, and take turns from pixel to pixel.
    """
    area = p * p + q * q
    width, height, _ = brick(p, q)
    dots = {}
    for y in range(height):
        for x in range(width):
            # Where the pixel is, along the screen and across it, in dots times the area.
            along, across = k * (p * x - q * y), -k * (q * x + p * y)
            dot = tuple((2 * place + area) // (2 * area) % k for place in (along, across))
            offset = tuple((2 * place + area) % (2 * area) - area for place in (along, across))
            dots.setdefault(dot, []).append(
                (growth(shape, abs(offset[0]), abs(offset[1]), area), offset, y * width + x)
            )
    turns = dot_order(k)
    filling = []
    for dot, pixels in dots.items():
        for place, (_, _, pixel) in enumerate(sorted(pixels)):
            # A dot of few pixels must take them as fast as one of many.
            turn = place * k * k + turns[dot]
            filling.append((Fraction(turn, len(pixels)), turns[dot], pixel))
    result = [0] * area
    for rank, (_, _, pixel) in enumerate(sorted(filling)):
        result[pixel] = rank
    return result


def drops(order, build_up):
    """The thresholds of each drop size, smallest first, and the number of levels."""
    area = len(order)
    if build_up == "one drop":
        return [order], area
    if build_up == "largest drop":
        return [order] * 3, area
    if build_up == "full field":
        return [[drop * area + rank for rank in order] for drop in range(3)], 3 * area
    return [[3 * rank + drop for rank in order] for drop in range(3)], 3 * area


def parse(name):
    """Family, size, angle and dot: FAMILY_C<size>[_<number in a set>]_<angle>[_<DOT>]."""
    family, size, *rest = pathlib.PurePath(name).stem.split("_")
    shape = FAMILIES[family][0]
    if not rest[-1].isdigit():
        shape = rest.pop().lower()
    return family, int(size[1:]), int(rest[-1]), shape


def cell(name, diffusion):
    family, size, angle, shape = parse(name)
    p, q, k = SCREENS[size, angle]
    order = ranks(shape, p, q, k)
    if diffusion:
        levels, width = DIFFUSION_LEVELS, 1
        planes = [[rank * levels // len(order) for rank in order]]
    else:
        width = 2
        planes, levels = drops(order, FAMILIES[family][1])
    head = struct.pack("<4B2H", LAYOUT, SHAPES.index(shape), len(planes), width, size, angle)
    screen = struct.pack("<2h5H", p, q, k, *brick(p, q), levels)
    thresholds = b"".join(t.to_bytes(width, "little") for plane in planes for t in plane)
    return MAGIC[pathlib.PurePath(name).suffix] + head + screen + thresholds


def pattern(steps, m, p, side=20):
    """Grey values from 0 to 255 in so many steps, each on as many pixels as any other."""
    grey = []
    for y in range(side):
        for x in range(side):
            rank = side * ((m * x + p * y) % side) + 7 * x % side
            grey.append(rank * steps // side**2 * 255 // (steps - 1))
    return bytes(grey)


def tiff(grey, resolution, side=20):
    """A baseline greyscale TIFF: header, one directory, the resolution, one strip."""
    short, long, rational = 3, 4, 5
    count = 12
    after = 8 + 2 + 12 * count + 4
    entries = [
        (256, short, side),  # width
        (257, short, side),  # length
        (258, short, 8),  # bits a sample
        (259, short, 1),  # not compressed
        (262, short, 1),  # 0 is black
        (273, long, after + 8),  # where the strip begins
        (277, short, 1),  # samples a pixel
        (278, short, side),  # rows in the strip
        (279, long, len(grey)),  # bytes in the strip
        (282, rational, after),  # across and
        (283, rational, after),  # down, one value for both,
        (296, short, 2),  # by the inch
    ]
    directory = b"".join(struct.pack("<2H2L", tag, kind, 1, value) for tag, kind, value in entries)
    fraction = struct.pack("<2L", resolution.numerator, resolution.denominator)
    return b"II*\0" + struct.pack("<LH", 8, count) + directory + bytes(4) + fraction + grey


def files():
    for name in CELLS:
        yield name, cell(name, diffusion=False)
    for name in DIFFUSION_CELLS:
        yield f"diffusion/{name}", cell(name, diffusion=True)
    for steps, m, p in PATTERNS:
        image = tiff(pattern(steps, m, p), Fraction("781.5"))
        yield f"patterns/781.5/Aom_S{steps}M{m}P{p}_A.tif", image


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else __file__)
    if len(sys.argv) == 1:
        folder = folder.resolve().parent
    for name, content in files():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


if __name__ == "__main__":
    main()
