"""Readers, and simulated docks with a reader."""

import json
import subprocess
from contextlib import suppress
from datetime import datetime, timedelta

TAUGHT_READER = "4B5831A7"  # defined in the demonstration store
EPOCH = datetime(1899, 12, 30)
FRAME = 252  # bytes of a memory frame


class Reader:
    """A guard's reader and its touches."""

    erasable = True  # False if the memory cannot be read to its end: then it must not be erased

    def __init__(self, rng, touches, identifier=None):
        self.identifier = identifier or rng.choice(
            [TAUGHT_READER, f"{rng.randrange(1, 1 << 32):08X}"]
        )
        moment = datetime(2026, 1, rng.randrange(1, 28), rng.randrange(24), rng.randrange(60))
        self.touches, self.records = [], []
        for code in rng.sample(range(1 << 16, 1 << 24), touches):
            self.touch(moment, f"{code:06X}")
            moment += timedelta(minutes=rng.randrange(1, 15))

    def touch(self, moment, code):
        minute = round((moment - EPOCH).total_seconds() / 60)
        self.touches.append((self.identifier, minute, code))
        self.records.append(f"touch {moment:%Y-%m-%d %H:%M} {code}")

    def scenario(self, faults=()):
        return "\n".join([f"reader {self.identifier}", *self.records, *faults, ""])


class Dock:
    """docksim with a reader in it."""

    def __init__(self, setting, folder, reader, faults=()):
        folder.mkdir(parents=True, exist_ok=True)
        scenario = folder / "scenario.txt"
        scenario.write_text(reader.scenario(faults))
        self.reader, self.folder = reader, folder
        self.complaints = folder / "docksim.err"
        with self.complaints.open("w") as complaints:
            self.process = subprocess.Popen(
                [setting.programs / "docksim", "--scenario", scenario],
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                stderr=complaints,
                text=True,
            )
        self.device = self.process.stdout.readline().strip()
        if not self.device:
            raise RuntimeError(f"docksim: {self.complaints.read_text()}")

    def tell(self, *lines):
        with suppress(BrokenPipeError):  # the fault may have been to vanish
            self.process.stdin.write("".join(line + "\n" for line in lines))
            self.process.stdin.flush()

    def state(self, *then):
        """The state, or None if the device has vanished. The lines `then` are sent with it."""
        self.tell("state", *then)
        line = self.process.stdout.readline()
        return json.loads(line) if line else None

    def keeps(self, *then):
        """Whether the reader still holds its touches. It is erased completely or not at all, and
        never after its device vanished during a transfer."""
        state = self.state(*then)
        return state is None or state["records"] > 0

    def exchange(self, reader):
        """Puts in another reader. Returns whether the one taken out still holds its touches."""
        scenario = self.folder / "other.txt"
        scenario.write_text(reader.scenario())
        self.reader = reader
        return self.keeps("remove", f"load {scenario}")

    def close(self):
        self.tell("quit")
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        with suppress(BrokenPipeError):
            self.process.stdin.close()
        self.process.stdout.close()
        if self.complaints.read_text():  # a fault that docksim refused would prove nothing
            raise RuntimeError(f"docksim: {self.complaints.read_text()}")
