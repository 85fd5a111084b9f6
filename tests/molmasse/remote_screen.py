"""A program's screen and keyboard over the remote framebuffer protocol (RFC 6143), version 3.3 without a password.

The toolkit's platform "vnc" shows a program's windows there and takes keys as from a real keyboard, so that a test
can sit before the very program that users have.
"""
import socket
import struct
import time

RETURN, ESCAPE, TAB, SHIFT = 0xFF0D, 0xFF1B, 0xFF09, 0xFFE1

SET_PIXEL_FORMAT, SET_ENCODINGS, UPDATE_REQUEST, KEY_EVENT = 0, 2, 3, 4
NO_AUTHENTICATION = 1
RAW = 0
BYTES_PER_PIXEL = 4
TIMEOUT = 20  # seconds that the program may need for anything


class RemoteScreen:
    """The connection to one program."""

    def __init__(self, port):
        self._socket = self._connect(port)
        self._greet()
        self.picture = bytearray(self.width * self.height * BYTES_PER_PIXEL)

    def close(self):
        self._socket.close()

    def press(self, *keys):
        """Presses keys together, such as SHIFT, TAB, and lets go."""
        for down, order in ((1, keys), (0, reversed(keys))):
            for key in order:
                self._socket.sendall(struct.pack(">BBxxI", KEY_EVENT, down, key))

    def type(self, text):
        for sign in text:
            self.press(ord(sign))

    def look(self):
        """The whole picture as it is now: four bytes a pixel, row by row."""
        self._socket.sendall(struct.pack(">BBHHHH", UPDATE_REQUEST, 0, 0, 0, self.width, self.height))
        _, count = struct.unpack(">BxH", self._read(4))
        for _ in range(count):
            self._take_rectangle()
        return bytes(self.picture)

    def settle(self, quiet=0.4):
        """Waits until nothing has moved for so many seconds, and gives the picture."""
        end = time.monotonic() + TIMEOUT
        before = self.look()
        while time.monotonic() < end:
            time.sleep(quiet)
            now = self.look()
            if now == before:
                return now
            before = now
        raise TimeoutError("the screen never comes to rest")

    @staticmethod
    def _connect(port):
        end = time.monotonic() + TIMEOUT
        while True:
            try:
                return socket.create_connection(("127.0.0.1", port), timeout=TIMEOUT)
            except ConnectionRefusedError:
                if time.monotonic() > end:
                    raise
                time.sleep(0.1)

    def _greet(self):
        self._read(12)
        self._socket.sendall(b"RFB 003.003\n")
        security, = struct.unpack(">I", self._read(4))
        if security != NO_AUTHENTICATION:
            raise ConnectionError("the program wants a password")
        self._socket.sendall(b"\1")  # others may look, too
        self.width, self.height = struct.unpack(">HH", self._read(4))
        self._read(16)
        self._read(*struct.unpack(">I", self._read(4)))
        self._socket.sendall(struct.pack(">BxxxBBBBHHHBBBxxx", SET_PIXEL_FORMAT, 32, 24, 0, 1, 255, 255, 255, 16, 8, 0))
        self._socket.sendall(struct.pack(">BxHi", SET_ENCODINGS, 1, RAW))

    def _take_rectangle(self):
        left, top, width, height, encoding = struct.unpack(">HHHHi", self._read(12))
        if encoding != RAW:
            raise ConnectionError(f"unknown encoding {encoding}")
        row = width * BYTES_PER_PIXEL
        content = self._read(row * height)
        for line in range(height):
            start = ((top + line) * self.width + left) * BYTES_PER_PIXEL
            self.picture[start:start + row] = content[line * row:(line + 1) * row]

    def _read(self, count):
        content = bytearray()
        while len(content) < count:
            piece = self._socket.recv(count - len(content))
            if not piece:
                raise ConnectionError("the program has gone")
            content += piece
        return bytes(content)
