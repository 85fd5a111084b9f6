"""What the classroom master bears: many clients at once, by the protocol of docs/protocol.md, without our library."""

import os
import pathlib
import re
import selectors
import socket
import statistics
import struct
import subprocess
import tempfile
import time
from collections import deque
from dataclasses import dataclass

HEAD = struct.Struct(">3sBBBQQI")
CLIENTS = 1000
# Submissions, of two messages each, a second; and for how long.
PACE = 5000 / 60
SECONDS = 60
# How many clients submit at a time, and for how long, to find the highest pace.
HURRIED = 40
HURRIED_SECONDS = 10


@dataclass
class Load:
    """Seconds and bytes; latencies are of single requests."""
    log_on: float
    memory: float
    submissions: int
    median: float
    percentile99: float
    longest: float
    processor: float
    highest_pace: float


def own_address(number):
    """Pupils sit at computers of their own, of which a loopback network has enough."""
    return f"127.1.{number // 250}.{number % 250 + 1}"


class Client:
    """One connection, with the requests that wait for their answers."""

    def __init__(self, number, port):
        self.number = number
        self.count = 0
        self.waiting = deque()
        self.bytes = b""
        self.socket = socket.create_connection(("127.0.0.1", port), source_address=(own_address(number), 0))
        self.socket.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)

    def send(self, text):
        self.count += 1
        content = text.encode()
        self.waiting.append(time.perf_counter())
        self.socket.sendall(HEAD.pack(b"QVF", 1, 1, 0, self.number, self.count, len(content)) + content)

    def take(self):
        """Reads what has come; gives the time that each answer took, and its text."""
        piece = self.socket.recv(65536)
        if not piece:
            raise ConnectionError("the master has closed the connection")
        self.bytes += piece
        while len(self.bytes) >= HEAD.size:
            end = HEAD.size + HEAD.unpack_from(self.bytes)[-1]
            if len(self.bytes) < end:
                break
            yield time.perf_counter() - self.waiting.popleft(), self.bytes[HEAD.size:end].decode()
            self.bytes = self.bytes[end:]


class Room:
    """All clients of a master, which work while `listen` runs."""

    def __init__(self, port):
        self.selector = selectors.DefaultSelector()
        self.clients = []
        self.port = port

    def enter(self):
        client = Client(len(self.clients) + 1, self.port)
        self.clients.append(client)
        self.selector.register(client.socket, selectors.EVENT_READ, client)
        return client

    def listen(self, seconds):
        """The answers that come within that time, as soon as there are any."""
        for key, _ in self.selector.select(seconds):
            yield from key.data.take()


def measure(master, folder):
    """Starts the master with an empty database below the folder, and loads it."""
    with tempfile.TemporaryDirectory(dir=folder) as data:
        process = subprocess.Popen([master, "--serve", "--port", "0", "--udp", "0", "--data", data],
                                   env=os.environ | {"HOME": data, "LC_ALL": "C.UTF-8"},
                                   stdout=subprocess.PIPE, text=True)
        try:
            port = int(re.search(r"port (\d+)", process.stdout.readline()).group(1))
            return load(Room(port), process.pid)
        finally:
            process.kill()
            process.wait()


def load(room, process):
    empty = resident_bytes(process)
    log_on = log_on_all(room)
    memory = (resident_bytes(process) - empty) / CLIENTS
    processor = processor_seconds(process)
    times = submit_steadily(room)
    processor = (processor_seconds(process) - processor) / SECONDS
    return Load(log_on, memory, len(times) // 2, statistics.median(times), statistics.quantiles(times, n=100)[98],
                max(times), processor, submit_hurriedly(room))


def log_on_all(room):
    began = time.perf_counter()
    for number in range(CLIENTS):
        room.enter().send(f"SERVER::LOGON::pupil {number}")
    answered = 0
    while answered < CLIENTS:
        for _, answer in room.listen(1):
            assert answer == "008:LOGON:OK", answer
            answered += 1
    return time.perf_counter() - began


def submit_steadily(room):
    """Each submission goes out when it is due, whether the master is behind or not."""
    times, sent, expected = [], 0, round(PACE * SECONDS)
    began = time.perf_counter()
    while len(times) < 2 * expected:
        while sent < expected and time.perf_counter() - began >= sent / PACE:
            submit(room.clients[sent % CLIENTS], points=sent * 7919 % 1000)
            sent += 1
        due = began + sent / PACE - time.perf_counter() if sent < expected else 1
        times += [taken for taken, _ in room.listen(max(due, 0))]
    return times


def submit_hurriedly(room):
    """Submissions a second when each of some clients submits again as soon as it has its answers."""
    began = time.perf_counter()
    answers = 0
    for client in room.clients[:HURRIED]:
        submit(client, points=0)
    while time.perf_counter() - began < HURRIED_SECONDS:
        for key, _ in room.selector.select(1):
            client = key.data
            answers += sum(1 for _ in client.take())
            if not client.waiting:
                submit(client, points=answers * 7919 % 1000)
    return answers / 2 / (time.perf_counter() - began)


def submit(client, points):
    name = f"pupil {client.number}"
    package = "QV1;7;" + "".join(f"{kind}{len(text)}={text};" for kind, text in (
        ("D", str(points)), ("D", "1000"), ("T", "Salze"), ("T", "QV1;0;"), ("T", name), ("T", "PC"), ("T", "login")))
    client.send(f"RESULTS::SUBMIT::{package}")
    client.send(f"HIGHSCORE::SUBMIT::{package}")


def resident_bytes(process):
    status = pathlib.Path(f"/proc/{process}/status").read_text()
    return 1024 * int(re.search(r"VmRSS:\s+(\d+) kB", status).group(1))


def processor_seconds(process):
    fields = pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
