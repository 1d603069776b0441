# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes a journal without the program's own code: journal.py FOLDER PROGRAM-FOLDER DAY. The weight of that day of the
diary there, 1 to 366, has become 99, and the list of the types has lost its last entry."""
import pathlib
import sys

LINES = 136
WEIGHT = 121


def checksum(payload):
    value = 0xCBF29CE484222325
    for byte in payload:
        value = (value ^ byte) * 0x100000001B3 % 2**64
    return b"%016x" % value


def line(*parts):
    payload = b"\t".join(part.replace(b"\\", b"\\\\") for part in parts)
    return checksum(payload) + b"\t" + payload + b"\n"


def values(path):
    """The values of a file: blank and 0 are empty, dates lose their marks."""
    lines = path.read_bytes().split(b"\r\n")[:-1]
    return [b"" if text == b"0" else text.strip(b'"#') for text in lines]


def counted(record):
    while record and not record[-1]:
        record = record[:-1]
    return [b"%d" % len(record), *record]


folder, program, day = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), int(sys.argv[3])
system = str(program).replace("/", "\\").encode("cp1252")
before = values(program / "ZelviaFile" / "prova.zlv")[(day - 1) * LINES : day * LINES]
after = before[:WEIGHT] + [b"99"] + before[WEIGHT + 1 :]
types = values(program / "prova" / "Tipo.lsx")
folder.mkdir(parents=True)
(folder / checksum(system).decode()).write_bytes(
    line(b"S", b"1", system, system + b"\\ZelviaFile\\prova.zlv", system + b"\\prova", b"0")
    + line(b"G", b"%d" % day, *counted(before), *counted(after))
    + line(b"L", b"5", *counted(types), *counted(types[:-1]))
)
