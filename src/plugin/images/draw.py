#!/usr/bin/env python3
"""Draws the module's check boxes, checkbox_full and checkbox_empty, plain and at twice the size.

Run it in this folder after a change of the drawing; the images are checked in. Shapes are given in
units of a 24 pixel box and sampled 8 x 8 times a pixel.
"""
import struct
import zlib

SIZE = 24
SAMPLES = 8
FRAME, FILL, MARK = (90, 105, 125), (255, 255, 255), (25, 110, 175)
TICK = ((6.2, 12.4), (10.4, 16.6), (18.2, 7.6))


def in_rounded_square(x, y, inset, radius):
    low, high = inset + radius, SIZE - inset - radius
    dx = max(low - x, 0, x - high)
    dy = max(low - y, 0, y - high)
    return dx * dx + dy * dy <= radius * radius


def near_segment(x, y, start, end, distance):
    (ax, ay), (bx, by) = start, end
    dx, dy = bx - ax, by - ay
    t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
    return (x - ax - t * dx) ** 2 + (y - ay - t * dy) ** 2 <= distance * distance


def color_at(x, y, checked):
    if not in_rounded_square(x, y, 1.5, 4):
        return None
    if checked and any(near_segment(x, y, a, b, 1.7) for a, b in zip(TICK, TICK[1:])):
        return FILL
    if not in_rounded_square(x, y, 3.5, 2.5):
        return MARK if checked else FRAME
    return MARK if checked else FILL


def pixel(column, row, scale, checked):
    total, covered = [0, 0, 0], 0
    for i in range(SAMPLES):
        for j in range(SAMPLES):
            x = (column + (i + 0.5) / SAMPLES) / scale
            y = (row + (j + 0.5) / SAMPLES) / scale
            color = color_at(x, y, checked)
            if color:
                covered += 1
                total = [a + b for a, b in zip(total, color)]
    if not covered:
        return bytes(4)
    return bytes([c // covered for c in total] + [255 * covered // SAMPLES ** 2])


def chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))


def write(name, scale, checked):
    side = SIZE * scale
    rows = b"".join(
        b"\0" + b"".join(pixel(column, row, scale, checked) for column in range(side))
        for row in range(side))
    with open(name, "wb") as image:
        image.write(b"\x89PNG\r\n\x1a\n")
        image.write(chunk(b"IHDR", struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0)))
        image.write(chunk(b"IDAT", zlib.compress(rows, 9)))
        image.write(chunk(b"IEND", b""))


for kind, is_checked in (("full", True), ("empty", False)):
    write("checkbox_%s.png" % kind, 1, is_checked)
    write("checkbox_%s@2x.png" % kind, 2, is_checked)
