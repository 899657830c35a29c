#!/usr/bin/env python3
"""change_disc.py FOLDER: makes of the authored discs in FOLDER those that the author program cannot make: angles (in cells of their own
and interleaved), film over 1 GB of zeros, scrambled sectors."""

import os
import shutil
import struct
import subprocess
import sys

SECTOR = 2048
GIGABYTE_SECTORS = 524272  # what one film file holds at most


class TitleSet:
    """The tables and the film of the first title set of a folder."""

    def __init__(self, folder):
        self.base = os.path.join(folder, "VIDEO_TS", "VTS_01_")
        with open(self.base + "0.IFO", "rb") as file:
            self.tables = bytearray(file.read())
        with open(self.base + "1.VOB", "rb") as file:
            self.film = bytearray(file.read())

    def save(self):
        for ending in ("0.IFO", "0.BUP"):
            with open(self.base + ending, "wb") as file:
                file.write(self.tables)
        with open(self.base + "1.VOB", "wb") as file:
            file.write(self.film)

    def chain(self, number):
        """Where a chain stands in the tables."""
        start = struct.unpack_from(">I", self.tables, 0xCC)[0] * SECTOR
        return start + struct.unpack_from(">I", self.tables, start + 8 + 8 * number + 4)[0]

    def cells(self, chain):
        """Where the entries of a chain's cells stand in the tables."""
        program_chain = self.chain(chain)
        first = program_chain + struct.unpack_from(">H", self.tables, program_chain + 0xE8)[0]
        return [first + 24 * i for i in range(self.tables[program_chain + 3])]

    def sectors(self, cell):
        return (struct.unpack_from(">I", self.tables, cell + 8)[0], struct.unpack_from(">I", self.tables, cell + 20)[0])

    def set_sectors(self, cell, first, last):
        struct.pack_into(">I", self.tables, cell + 8, first)
        struct.pack_into(">I", self.tables, cell + 20, last)

    def units(self, first, last):
        """The units of a stretch of film, each with its navigation pack at the front."""
        found = []
        for sector in range(first, last + 1):
            data = self.film[sector * SECTOR:(sector + 1) * SECTOR]
            if data[0x26:0x2A] == b"\0\0\1\xbf":
                found.append(bytearray())
            found[-1] += data
        return found


def copied(folder, source, name):
    target = os.path.join(folder, name)
    shutil.rmtree(target, ignore_errors=True)
    shutil.copytree(os.path.join(folder, source), target)
    return TitleSet(target)


def image(folder, name):
    subprocess.run(["genisoimage", "-quiet", "-dvd-video", "-V", name.upper(), "-o", os.path.join(folder, name + ".iso"),
                    os.path.join(folder, name)], check=True)


def make_angles(folder):
    """The second and the third cell of four become two angles of one."""
    titles = TitleSet(os.path.join(folder, "angles"))
    cells = titles.cells(0)
    titles.tables[cells[1]] = titles.tables[cells[1]] & 0x0F | 0x50
    titles.tables[cells[2]] = titles.tables[cells[2]] & 0x0F | 0xD0
    titles.save()
    image(folder, "angles")


def interleave_angles(folder):
    """The same, the units of both angles in turn."""
    titles = copied(folder, "angles", "interleaved")
    cells = titles.cells(0)[1:3]
    angles = [titles.units(*titles.sectors(cell)) for cell in cells]
    place = start = titles.sectors(cells[0])[0]
    order, places = [], [[], []]
    for i in range(max(map(len, angles))):
        for angle in (0, 1):
            if i < len(angles[angle]):
                order.append(angles[angle][i])
                places[angle].append(place)
                place += len(order[-1]) // SECTOR
    for angle, cell in enumerate(cells):
        for i, unit in enumerate(angles[angle]):
            following = places[angle][i + 1] - places[angle][i] if i + 1 < len(angles[angle]) else 0x3FFFFFFF
            struct.pack_into(">I", unit, 0x541, following)
        titles.tables[cell] |= 0x04
        titles.set_sectors(cell, places[angle][0], places[angle][-1] + len(angles[angle][-1]) // SECTOR - 1)
    film = b"".join(order)
    titles.film[start * SECTOR:start * SECTOR + len(film)] = film
    titles.save()
    image(folder, "interleaved")


def make_big(folder):
    """The last cell goes into a second film file, behind zeros that take no room."""
    titles = copied(folder, "plain", "big")
    cells = titles.cells(1)
    first, last = titles.sectors(cells[-1])
    tail = titles.film[first * SECTOR:(last + 1) * SECTOR]
    titles.set_sectors(cells[-2], titles.sectors(cells[-2])[0], GIGABYTE_SECTORS - 1)
    titles.set_sectors(cells[-1], GIGABYTE_SECTORS, GIGABYTE_SECTORS + last - first)
    del titles.film[first * SECTOR:]
    titles.save()
    os.truncate(titles.base + "1.VOB", GIGABYTE_SECTORS * SECTOR)
    with open(titles.base + "2.VOB", "wb") as file:
        file.write(tail)


def shorten_samples(folder):
    """The uncompressed sound of 24 bits gets 20: blocks of four samples have their upper 16 bits first, then all the rest."""
    titles = copied(folder, "sound", "twenty")
    waiting = b""
    for sector in range(0, len(titles.film), SECTOR):
        at = sector + 14
        if titles.film[at:at + 4] != b"\0\0\1\xbd":
            continue
        end = at + 6 + struct.unpack_from(">H", titles.film, at + 4)[0]
        sound = at + 9 + titles.film[at + 8]
        if titles.film[sound] != 0xA1:
            continue
        titles.film[sound + 5] = titles.film[sound + 5] & 0x3F | 0x40
        waiting += bytes(titles.film[sound + 7:end])
        data = b""
        while len(waiting) >= 12:
            rest = waiting[8:12]
            data += waiting[:8] + bytes((rest[0] & 0xF0 | rest[1] >> 4, rest[2] & 0xF0 | rest[3] >> 4))
            waiting = waiting[12:]
        padding = end - (sound + 7) - len(data) - 6
        struct.pack_into(">H", titles.film, at + 4, sound + 7 + len(data) - at - 6)
        titles.film[sound + 7:end] = data + struct.pack(">IH", 0x1BE, padding) + b"\xff" * padding
    titles.save()
    image(folder, "twenty")


def scramble(folder):
    titles = copied(folder, "plain", "scrambled")
    for at in range(0, len(titles.film), SECTOR):
        if titles.film[at + 14:at + 17] == b"\0\0\1" and titles.film[at + 17] in (0xBD, 0xC0, 0xE0):
            titles.film[at + 20] |= 0x10
    titles.save()
    image(folder, "scrambled")


def swap_sound(folder):
    titles = TitleSet(os.path.join(folder, "wide"))
    struct.pack_into(">HH", titles.tables, titles.chain(0) + 0x0C, 0x8100, 0x8000)
    titles.save()
    image(folder, "wide")


if __name__ == "__main__":
    for change in (swap_sound, make_angles, interleave_angles, make_big, shorten_samples, scramble):
        change(sys.argv[1])
