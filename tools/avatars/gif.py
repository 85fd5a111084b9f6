"""Writes one picture with see-through places as a GIF file."""

import struct

TRANSPARENT = 0
"""The colour number of see-through pixels."""


def encode(width, height, palette, pixels):
    """The bytes of a GIF file.

    palette: up to 255 colours (red, green, blue), which get the numbers 1, 2, and so on.
    pixels: colour numbers, row by row; TRANSPARENT lets through what lies below.
    """
    bits = max(2, len(palette).bit_length())
    table = [(0, 0, 0), *palette]
    table += [(0, 0, 0)] * ((1 << bits) - len(table))
    return b"".join(
        (
            b"GIF89a",
            struct.pack("<HHBBB", width, height, 0xF0 | (bits - 1), 0, 0),
            bytes(part for colour in table for part in colour),
            b"\x21\xf9\x04" + struct.pack("<BHB", 1, 0, TRANSPARENT) + b"\0",
            b"\x2c" + struct.pack("<HHHHB", 0, 0, width, height, 0),
            bytes([bits]),
            _blocks(_compress(pixels, bits)),
            b"\0\x3b",
        )
    )


def _blocks(data):
    """The data in blocks of at most 255 bytes, each behind its length."""
    return b"".join(bytes([len(part)]) + part for part in (data[i : i + 255] for i in range(0, len(data), 255)))


class _BitWriter:
    """Collects codes of changing length, lowest bit first."""

    def __init__(self):
        self.data = bytearray()
        self._value = 0
        self._count = 0

    def write(self, code, length):
        self._value |= code << self._count
        self._count += length
        while self._count >= 8:
            self.data.append(self._value & 0xFF)
            self._value >>= 8
            self._count -= 8

    def finish(self):
        if self._count:
            self.data.append(self._value & 0xFF)
        return bytes(self.data)


def _compress(pixels, bits):
    """Variable-length LZW codes, as the format asks for them."""
    clear, end = 1 << bits, (1 << bits) + 1
    out = _BitWriter()
    codes, length = {}, bits + 1
    out.write(clear, length)
    known = pixels[0]
    for pixel in pixels[1:]:
        if (known, pixel) in codes:
            known = codes[known, pixel]
            continue
        out.write(known, length)
        code = end + 1 + len(codes)
        if code < 4096:
            codes[known, pixel] = code
            if code == 1 << length and length < 12:
                length += 1
        else:
            out.write(clear, length)
            codes, length = {}, bits + 1
        known = pixel
    out.write(known, length)
    out.write(end, length)
    return out.finish()
