#!/usr/bin/env python3
"""Writes the record files beside it, by the words of docs/formats.md and without the library.

The files stay as they are: they show that lists of earlier programs can still be read.
"""
import pathlib
import struct

EMPTY = object()


class Moment(float):
    """Days since 1899-12-30."""


def crc32c(data):
    value = 0xFFFFFFFF
    for byte in data:
        value ^= byte
        for _ in range(8):
            value = (value >> 1) ^ (0x82F63B78 if value & 1 else 0)
    return value ^ 0xFFFFFFFF


def value(content):
    if content is EMPTY:
        return b"\x00"
    if isinstance(content, bool):
        return b"\x02" if content else b"\x01"
    if isinstance(content, int):
        return b"\x03" + struct.pack("<i", content)
    if isinstance(content, float):
        return (b"\x05" if isinstance(content, Moment) else b"\x04") + struct.pack("<d", content)
    if all(ord(sign) < 0x100 for sign in content):
        return b"\x06" + struct.pack("<I", len(content)) + content.encode("latin-1")
    units = content.encode("utf-16-le")
    return b"\x07" + struct.pack("<I", len(units) // 2) + units


def write(name, values):
    body = b"".join(map(value, values))
    head = b"QVR\x1a" + struct.pack("<HHQ", 1, 0, len(body))
    checked = struct.pack("<I", crc32c(head + body))
    pathlib.Path(__file__).with_name(name).write_bytes(head + checked + body)


def old_score(key, rank, name, login, points, day, additional="QV1;0;"):
    return ["2.0", key, rank, name, login, "PC-" + login.upper(), points, 40.0, Moment(day), additional]


def score(key, rank, name, login, exercise, points, day, additional="QV1;0;"):
    return ["2.5", key, rank, name, login, "PC-" + login.upper(), exercise, points, 40.0, Moment(day), additional]


def scores(*items):
    return ["2.0", "Molmasse", 10, False, False, 1, len(items), *sum(items, [])]


write("items_2.0.qv-hsr", scores(
    old_score("a1", 1, "Jürgen Weiß", "juergen", 38.5, 38777.375),
    old_score("a2", 2, "Zoë Çelik", "zoe", 21.0, 38778.5, "QV1;2;T4=ZEIT;I2=95;"),
))
write("items_2.5.qv-hsr", scores(
    score("b1", 1, "Łucja Żak", "lucja", "Salze", 40.0, 45292.75, "QV1;2;T4=ZEIT;I2=61;"),
    score("b2", 2, "Anna", "anna", "Säuren", 12.25, 45293.5),
))
write("items_of_both.qv-hsr", scores(
    score("c1", 1, "Anna", "anna", "Salze", 30.0, 45292.75),
    old_score("c2", 2, "Ben", "ben", 20.0, 38777.375),
    score("c3", 3, "Clara", "clara", "H₂O", 10.0, 45293.5),
))
write("empty.qv-hsr", scores())
write("list_2.1.qv-hsr", ["2.1", "Molmasse", 10, False, False, 1, "of a later program"])
write("event.qv-log", [
    "2.0", "Ereignisse", 2,
    "2.0", "d1", "Anna", "anna", "PC-ANNA", "Start", Moment(45292.75), "QV1;0;",
    "2.0", "d2", "Łucja", "lucja", "PC-LUCJA", "Ende", Moment(45292.875), "QV1;2;T4=CODE;I1=7;",
])
write("element_1.0.qv", ["1.0", "Cl", "Chlor", 35.5, 17])
write("elements.qv", [
    "1.0", EMPTY, 2,
    "1.1", "H", "Wasserstoff", 1.0, 1, 2, "Hydrogen", "Hydrogenium",
    "1.0", "He", "Helium", 4.0, 2,
])
