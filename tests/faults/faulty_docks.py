"""Downloads at faulty docks: lost, damaged and late frames, noise, docks that do not answer or that
vanish, readers that are pulled out or exchanged, and memories that must not be trusted."""

import math
import time
from datetime import datetime, timedelta
from functools import partial

from dock import FRAME, Dock, Reader
from jobs import Download

DOWNLOADS = 500
LONGEST = 8  # seconds that a download takes

# The faults of a scenario, made from random numbers and the number of frames.
SCENARIOS = {
    "a lost frame": lambda rng, frames: [f"drop-bytes {FRAME * rng.randrange(frames)} {FRAME}"],
    "lost bytes": lambda rng, frames: [
        f"drop-bytes {rng.randrange(FRAME * frames)} {rng.randrange(1, 300)}"
    ],
    "an end too soon": lambda rng, frames: [f"stop-after {rng.randrange(frames)}"],
    "a damaged byte": lambda rng, frames: [
        f"damage-byte {rng.randrange(FRAME * frames)} {rng.randrange(1, 256):02X}"
    ],
    "a wrong checksum": lambda rng, frames: [f"checksum {rng.randrange(1, frames + 1)}"],
    "a damaged reply": lambda rng, frames: [f"checksum {rng.choice(['erase', 'clock'])}"],
    "late frames": lambda rng, frames: [f"gap {rng.randrange(500, 6500)}"],
    "cut frames": lambda rng, frames: [f"cut {rng.randrange(100, 2000)}"],
    "a slow line": lambda rng, frames: ["pace 9600"],
    "single bytes": lambda rng, frames: [f"single-byte {rng.randrange(500)}"],
    "no reader": lambda rng, frames: [f"no-reader {rng.randrange(frames)}"],
    "a transfer fault": lambda rng, frames: [f"transfer-fault {rng.randrange(frames)}"],
    "a dock that vanishes": lambda rng, frames: [
        f"vanish-after-bytes {rng.randrange(FRAME * frames)}"
    ],
    "noise before a frame": lambda rng, frames: [
        f"noise {rng.randrange(1, 400)} {rng.randrange(1, frames + 1)}"
    ],
    "noise before a reply": lambda rng, frames: [
        f"noise {rng.randrange(1, 400)} {rng.choice(['erase', 'clock', 'detect'])}"
    ],
    "a wrong reply": lambda rng, frames: [
        f"wrong-code {rng.randrange(256):02X} {rng.choice(['read', 'erase', 'clock'])}"
    ],
    "silence": lambda rng, frames: [f"silent {rng.choice(['detect', 'read', 'erase', 'clock'])} 1"],
    "a refused erase": lambda rng, frames: ["refuse erase 1"],
}


class FaultyDownload(Download):
    def prepare(self):
        self.reader = self.make_reader()
        self.dock = Dock(self.setting, self.folder / "dock", self.reader, self.scenario())
        self.taken_out = []  # pairs: a reader, and whether it still holds its touches

    def make_reader(self):
        return Reader(self.rng, self.rng.randrange(10, 150))

    def scenario(self):
        return []

    def disturb(self):
        """What happens at the dock while the download runs."""

    def readers(self):
        return [*self.taken_out, *super().readers()]


class FaultyScenario(FaultyDownload):
    def __init__(self, fault, *arguments):
        self.fault = fault
        super().__init__(*arguments)

    def scenario(self):
        faults = self.fault(self.rng, 1 + len(self.reader.touches) // 60)
        if self.rng.random() < 0.3:
            faults += self.rng.choice(list(SCENARIOS.values()))(self.rng, 2)
        return [f"seed {self.rng.randrange(1 << 16)}", *faults]


class Noise(FaultyDownload):
    def disturb(self):
        for _ in range(self.rng.randrange(1, 5)):
            time.sleep(self.rng.uniform(0, LONGEST / 3))
            self.dock.tell(f"noise {self.rng.randrange(1, 400)}")


class Pulled(FaultyDownload):
    def disturb(self):
        time.sleep(self.rng.uniform(0, LONGEST))
        self.dock.tell("remove")
        if self.rng.random() < 0.7:
            time.sleep(self.rng.uniform(0, 3))
            self.dock.tell("insert")


class Exchanged(FaultyDownload):
    """Another reader is put in. After the last frame the dock reports that a reader was taken out.
    Without this report the exchange could not be noticed, because an erase names no reader."""

    def disturb(self):
        records = self.dock.state()["records"]
        self.dock.tell(f"fault no-reader {1 + max(0, math.ceil((records - 58) / 60))}")
        time.sleep(self.rng.uniform(0, LONGEST))
        keeps = self.dock.exchange(Reader(self.rng, self.rng.randrange(10, 150)))
        self.taken_out.append((self.reader, keeps))
        self.reader = self.dock.reader


class LikeAFirstFrame(FaultyDownload):
    """The first frame is lost, and the second looks like a first frame: it has a count, an
    identifier and a marker in the same places."""

    def make_reader(self):
        reader = Reader(self.rng, 0, f"{self.rng.randrange(1, 1 << 32):08X}")
        hour = datetime(2026, 2, 1, self.rng.randrange(20))
        rest = self.rng.randrange(10, 40)
        count = self.rng.choice([n for n in range(1, 59) if n != rest + 1])
        codes = [f"{code:06X}" for code in self.rng.sample(range(1 << 16, 1 << 23), 58 + rest)]
        codes.insert(57, f"{self.rng.randrange(128, 256):02X}00{count:02X}")
        # First frame: a marker, 57 touches. Second frame: 2 touches, a marker, the rest.
        for i, code in enumerate(codes):
            reader.touch(hour + timedelta(minutes=i + (i > 58)), code)
        return reader

    def scenario(self):
        return [f"drop-bytes 0 {FRAME}"]


class EndInMidMemory(FaultyDownload):
    """An end mark, and touches after it."""

    def make_reader(self):
        reader = Reader(self.rng, self.rng.randrange(10, 150))
        reader.records.insert(self.rng.randrange(1, len(reader.records)), "record 00 00 00 00")
        reader.erasable = False
        return reader


DISTURBANCES = {
    "noise": Noise,
    "a reader pulled out": Pulled,
    "a reader exchanged": Exchanged,
    "a frame like a first one": LikeAFirstFrame,
    "an end mark in mid-memory": EndInMidMemory,
}


def make_jobs(setting):
    faults = [*SCENARIOS, *DISTURBANCES]
    return [
        (Download, partial(strike, setting, faults[number % len(faults)], number))
        for number in range(setting.runs(DOWNLOADS))
    ]


def strike(setting, fault, number):
    job = DISTURBANCES.get(fault) or partial(FaultyScenario, SCENARIOS[fault])
    with job(setting, f"{fault} {number}") as run:
        run.begin()
        run.disturb()
        run.end()
        return run.judge(run.failed())


CAMPAIGNS = {"faulty docks": make_jobs}
