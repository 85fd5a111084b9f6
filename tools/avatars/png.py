"""PNG files of colours with their share of opacity."""

import itertools
import struct
import zlib

_SIGNATURE = b"\x89PNG\r\n\x1a\n"
_EIGHT_BITS = 8
_RED_GREEN_BLUE_ALPHA = 6
_AS_IT_IS = b"\x00"  # shapes of one colour become smallest where rows are no differences from others


def encode(width, height, pixels):
    """The file's bytes; pixels are (red, green, blue, alpha), row by row from the top."""
    samples = bytes(itertools.chain.from_iterable(pixels))
    stride = 4 * width
    rows = b"".join(_AS_IT_IS + samples[top : top + stride] for top in range(0, stride * height, stride))
    head = struct.pack(">IIBBBBB", width, height, _EIGHT_BITS, _RED_GREEN_BLUE_ALPHA, 0, 0, 0)
    return _SIGNATURE + _chunk(b"IHDR", head) + _chunk(b"IDAT", zlib.compress(rows, 9)) + _chunk(b"IEND", b"")


def _chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
