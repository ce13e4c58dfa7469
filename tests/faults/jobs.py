"""The jobs that the faults strike (a download, a start, an import, an export, making a store), and
how each run is judged."""

import re
import shutil
import time
from collections import Counter

from campaign import Outcome
from dock import Dock, Reader
from station import Station


class Job:
    """One job that a fault strikes, on its own station. `begin` starts it, `end` waits until it is
    over, `judge` returns its outcome."""

    sleeps = False  # whether it mostly waits
    random_names = False  # whether it makes files with random names
    template = "small"

    def __init__(self, setting, label, home=None):
        self.setting, self.label, self.rng = setting, label, setting.rng(label)
        self.folder = setting.work / label.replace(" ", "-").replace("/", "-")
        self.folder.mkdir()
        self.old = setting.templates[self.template]
        self.station = Station(setting, self.folder, self.old.path, home)
        self.prepare()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def prepare(self):
        """Makes what the job needs besides a station."""

    def close(self):
        """Releases what `prepare` made."""

    def end(self):
        self.program.wait()

    def failed(self):
        return self.program.status() != 0

    def allowed_definitions(self):
        return [self.old.definitions]

    def check_store(self, outcome, touches=(), station=None, deleted=Counter()):
        """Checks that the store opens and holds the old rows except `deleted`, allowed definitions,
        and nothing new except `touches`. Returns the new rows."""
        station = station or self.station
        definitions = station.definitions()
        if definitions is None:
            outcome.broken.append("the program cannot open the store")
        elif definitions not in self.allowed_definitions():
            outcome.broken.append("wrong definitions")
        rows, faults = station.rows()
        outcome.broken += faults
        outcome.lost += (self.old.rows - deleted - rows).total()
        new = rows - self.old.rows
        invented = set(new) - set(touches)
        if invented:
            outcome.broken.append(f"{len(invented)} invented touches")
        return new

    def judge(self, hit):
        outcome = Outcome(self.label, hit)
        if self.program.hung:
            outcome.broken.append("it hung")
        self.judge_store(outcome)
        return outcome

    def judge_store(self, outcome):
        self.check_store(outcome)


class Start(Job):
    """A start of the station up to the login. It compacts the store."""

    def begin(self, prefix=()):
        self.file_before = self.station.store.stat().st_ino
        self.program = self.station.start(prefix)

    def end(self):
        self.program.settle()
        self.program.kill()

    def failed(self):
        return self.station.store.stat().st_ino == self.file_before  # not compacted


class Import(Job):
    """An import of definitions: all or none."""

    document = "small"

    def begin(self, prefix=()):
        path = self.setting.documents[self.document].path
        self.program = self.station.control("setup", "import", path, prefix=prefix)

    def allowed_definitions(self):
        imported = self.setting.documents[self.document].imported
        succeeded = self.program.status() == 0
        return [imported] if succeeded else [self.old.definitions, imported]


class Export(Job):
    """An export of definitions over an older file. The complete new file or the older one must be
    left."""

    template = "big imported"
    older = "an older export\n" * 100

    def prepare(self):
        self.target = self.station.home / "export.json"
        self.target.write_text(self.older)

    def begin(self, prefix=()):
        self.program = self.station.control("setup", "export", self.target, prefix=prefix)

    def judge_store(self, outcome):
        text = self.target.read_text(errors="replace")
        if self.program.status() == 0 and text != self.whole_text():
            outcome.broken.append(f"success with an incomplete export of {len(text)} characters")
        elif self.program.status() != 0 and text != self.older:
            outcome.broken.append("the older export is damaged")
        self.check_store(outcome)

    def whole_text(self):
        whole = self.folder / "whole.json"
        self.station.control("setup", "export", whole).wait()
        return whole.read_text()


class BigStart(Start):
    template = "big"  # so that the compaction takes long


class LinkedStore:
    """Makes a job's store a symbolic link, which must stay one."""

    def prepare(self):
        super().prepare()
        target = self.station.home / "elsewhere.mdb"
        self.station.store.rename(target)
        self.station.store.symlink_to(target)

    def judge_store(self, outcome):
        if not self.station.store.is_symlink():
            outcome.broken.append("the link was replaced")
        super().judge_store(outcome)


class LinkedStart(LinkedStore, BigStart):
    pass


class BigImport(Import):
    document = "big"


class MakeStore(Job):
    """Making a store: a complete one or none."""

    template = "new"

    def prepare(self):
        self.station.store.unlink()

    def begin(self, prefix=()):
        self.program = self.station.make_store(prefix)

    def judge_store(self, outcome):
        if self.station.store.exists():
            self.check_store(outcome)
        elif not self.failed():
            outcome.broken.append("success without a store")


class Download(Job):
    """A download. If the reader still holds its touches after the fault, it is downloaded again. In
    the end every touch must be stored. A touch may be stored twice only if the program failed and
    reported it as stored, or if it was killed after all touches were stored and could not report
    them."""

    sleeps = True

    def prepare(self):
        self.reader = Reader(self.rng, self.rng.randrange(20, 60))
        self.dock = Dock(self.setting, self.folder / "dock", self.reader)

    def close(self):
        self.dock.close()

    def begin(self, prefix=()):
        self.program = self.station.download(self.dock.device, prefix)

    def readers(self):
        """Pairs: a reader that was docked, and whether it still holds its touches."""
        time.sleep(0.2)  # the last bytes of a killed program may still be on their way
        return [(self.reader, self.dock.keeps())]

    def judge_store(self, outcome):
        readers = self.readers()
        touches = [touch for reader, _ in readers for touch in reader.touches]
        new = self.check_store(outcome, touches)
        outcome.stored = sum(new.values())
        allowed, unread = Counter(touches), set()
        for reader, keeps in readers:
            allowed.update(self.announced(self.program, reader, new))
            if self.program.killed() and all(new[touch] for touch in reader.touches):
                allowed.update(reader.touches)
            if keeps:
                outcome.kept += len(reader.touches)
                unread |= set(self.download_again(reader, allowed, outcome))
        if outcome.kept:
            rows, faults = self.station.rows()
            outcome.broken += faults
            new = rows - self.old.rows
        outcome.lost += sum(new[touch] == 0 for touch in touches if touch not in unread)
        outcome.doubled = sum(max(0, new[touch] - allowed[touch]) for touch in allowed)

    @staticmethod
    def announced(program, reader, new):
        """The touches that a failed program reported as stored: those that it listed, or all in the
        store if its complaint gives their number and the number of touches in the reader."""
        if program.status() == 0:
            return []
        stored = [touch for touch in reader.touches if new[touch]]
        numbers = re.findall(r"\d+", program.complaint)
        if stored and (str(len(stored)), str(len(reader.touches))) in zip(numbers, numbers[1:]):
            return stored
        return [touch for touch in reader.touches if touch[2] in program.output]

    def download_again(self, reader, allowed, outcome):
        """Downloads the reader at a dock without faults. Returns the touches left in it."""
        dock = Dock(self.setting, self.folder / f"again-{reader.identifier}", reader)
        try:
            for _ in range(3):  # a download may time out on a busy machine
                program = self.station.download(dock.device).wait()
                allowed.update(self.announced(program, reader, Counter()))
                if not dock.keeps():
                    return []
                if not reader.erasable:
                    return reader.touches
            outcome.broken.append(f"cannot be downloaded again: {program.complaint.strip()}")
            return reader.touches
        finally:
            dock.close()
