"""Pictures of a screen, as an X server keeps its frame buffer in a file (xwd)."""

import pathlib
import struct
import zlib
from typing import NamedTuple


class Box(NamedTuple):
    """A rectangle; right and bottom are the first column and row that are no longer in it."""

    left: int
    top: int
    right: int
    bottom: int

    @property
    def size(self):
        return self.right - self.left, self.bottom - self.top

    @property
    def middle(self):
        return (self.left + self.right) // 2, (self.top + self.bottom) // 2

    def moved(self, across, down):
        return Box(self.left + across, self.top + down, self.right + across, self.bottom + down)

    def inside(self, other):
        """What of it lies in the other; absent when nothing does."""
        starts = map(max, self[:2], other[:2])
        common = Box(*starts, *map(min, self[2:], other[2:]))
        return common if common.left < common.right and common.top < common.bottom else None

    def __str__(self):
        return f"{self.right - self.left}x{self.bottom - self.top}+{self.left}+{self.top}"


class Picture:
    def __init__(self, width, height, pixels):
        self.width, self.height = width, height
        self.pixels = pixels  # Four bytes each: blue, green, red, nothing.
        self.words = memoryview(pixels).cast("I")

    @staticmethod
    def of_frame_buffer(data):
        header = struct.unpack(">25I", data[:100])
        width, height, bits, line = header[4], header[5], header[11], header[12]
        if bits != 32 or line != 4 * width:
            raise ValueError("not a picture of four bytes a pixel")
        start = header[0] + 12 * header[19]
        pixels = bytearray(data[start : start + line * height])
        pixels[3::4] = bytes(width * height)
        return Picture(width, height, bytes(pixels))

    @staticmethod
    def of_pnm(data):
        head, colours = data.split(b"\n", 1)
        width, height = (int(word) for word in head.split()[1:3])
        pixels = bytearray(4 * width * height)
        for channel in range(3):
            pixels[2 - channel :: 4] = colours[channel::3]
        return Picture(width, height, bytes(pixels))

    @property
    def whole(self):
        return Box(0, 0, self.width, self.height)

    def row(self, y, left=0, right=None):
        return self.words[y * self.width + left : y * self.width + (self.width if right is None else right)]

    def crop(self, box):
        rows = [bytes(self.row(y, box.left, box.right)) for y in range(box.top, box.bottom)]
        return Picture(*box.size, b"".join(rows))

    def likeness(self, other, box):
        """The share of the box's pixels that both have alike, looked at in every second row."""
        same = 0
        for y in range(box.top, box.bottom, 2):
            one, two = self.row(y, box.left, box.right), other.row(y, box.left, box.right)
            same += len(one) if one == two else sum(map(int.__eq__, one, two))
        return same / (len(range(box.top, box.bottom, 2)) * (box.right - box.left))

    def share_of(self, colour, box):
        """The share of the box's pixels of that colour, 0xRRGGBB."""
        count = sum(self.row(y, box.left, box.right).tolist().count(colour) for y in range(box.top, box.bottom, 2))
        return count / (len(range(box.top, box.bottom, 2)) * (box.right - box.left))

    def extent(self, colour):
        """The smallest box that holds every pixel of that colour."""
        left, top, right, bottom = self.width, self.height, 0, 0
        for y in range(self.height):
            row = self.row(y).tolist()
            if colour in row:
                top, bottom = min(top, y), y + 1
                left = min(left, row.index(colour))
                right = max(right, self.width - row[::-1].index(colour))
        return Box(left, top, right, bottom) if right else None

    def changes(self, before, gap=4):
        """The boxes in which this one differs from the other; what is nearer to each other than the gap is one."""
        done, grown = [], []
        for y in range(self.height):
            done += [box for box in grown if y - box[3] > gap]
            grown = [box for box in grown if y - box[3] <= gap]
            for left, right in runs(before.row(y), self.row(y), gap):
                grown = merged(grown, [left, y, right, y + 1], gap)
        return [Box(*box) for box in done + grown]

    def write(self, path):
        """As PNG."""

        def chunk(name, content):
            return struct.pack(">I", len(content)) + name + content + struct.pack(">I", zlib.crc32(name + content))

        colours = bytearray(3 * self.width * self.height)
        for channel in range(3):
            colours[channel::3] = self.pixels[2 - channel :: 4]
        line = 3 * self.width
        rows = b"".join(b"\0" + colours[y * line : (y + 1) * line] for y in range(self.height))
        header = struct.pack(">2I5B", self.width, self.height, 8, 2, 0, 0, 0)
        content = b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 6)) + chunk(b"IEND", b"")
        pathlib.Path(path).write_bytes(content)


def runs(one, two, gap):
    """The spans of columns in which two rows differ."""
    if one == two:
        return []
    spans = []
    for x in (x for x, (a, b) in enumerate(zip(one, two)) if a != b):
        if spans and x - spans[-1][1] <= gap:
            spans[-1][1] = x + 1
        else:
            spans.append([x, x + 1])
    return spans


def merged(boxes, box, gap):
    """With one box more, and those that it touches made one with it."""
    apart = []
    for other in boxes:
        if other[0] <= box[2] + gap and box[0] <= other[2] + gap:
            box = [min(other[0], box[0]), min(other[1], box[1]), max(other[2], box[2]), max(other[3], box[3])]
        else:
            apart.append(other)
    return apart + [box]
