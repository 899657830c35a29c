#!/usr/bin/env python3
"""pull_down.py FILM: marks MPEG-2 video of 24 pictures a second, coded in the order in which it is shown, to be shown as 30."""
import sys

with open(sys.argv[1], "rb") as file:
    video = bytearray(file.read())
picture, at = 0, video.find(b"\0\0\1")
while at >= 0:
    code, kind = video[at + 3], video[at + 4] >> 4
    if code == 0xB3:
        video[at + 7] = video[at + 7] & 0xF0 | 4  # 30000/1001
    elif code == 0xB5 and kind == 1:
        video[at + 5] &= ~0x08  # not a progressive sequence: pictures have fields
    elif code == 0xB5 and kind == 8:
        first, repeats = ((1, 1), (0, 0), (0, 1), (1, 0))[picture % 4]
        video[at + 7] = video[at + 7] & ~0x82 | first << 7 | repeats << 1
        picture += 1
    at = video.find(b"\0\0\1", at + 3)
with open(sys.argv[1], "wb") as file:
    file.write(video)
