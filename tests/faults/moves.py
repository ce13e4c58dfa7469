"""The jobs that copy, replace and empty the store: a backup, a restore, an archive. After each of
them one complete store is left, and every old touch is in it or in a complete archive."""

import csv
from collections import Counter
from datetime import datetime, timedelta

from jobs import Job, LinkedStore
from store import stored_rows

DAY_ZERO = datetime(1899, 12, 30)


class Backup(Job):
    """A backup beside the store: a complete copy under its name, or none."""

    random_names = True

    def prepare(self):
        self.target = self.station.home / "copy.mdb"

    def begin(self, prefix=()):
        self.program = self.station.control("backup", self.target, prefix=prefix)

    def judge_store(self, outcome):
        self.check_store(outcome)
        outcome.ending = "no copy"
        if self.target.exists():
            outcome.ending = "a complete copy"
            rows, faults = stored_rows(self.target)
            if faults or rows != self.old.rows:
                outcome.broken.append(f"an incomplete copy has the name: {faults}")
        elif not self.failed():
            outcome.broken.append("success without a copy")


class BigBackup(Backup):
    template = "big"


class Restore(Job):
    """A restore: the complete old store or the complete restored one."""

    source = "small imported"
    template = "new"

    def prepare(self):
        self.new = self.setting.templates[self.source]
        self.backup = self.folder / "backup.mdb"
        self.backup.write_bytes(self.new.path.read_bytes())

    def begin(self, prefix=()):
        self.program = self.station.control("restore", self.backup, "--yes", prefix=prefix)

    def judge_store(self, outcome):
        rows, _ = self.station.rows()
        restored = rows == self.new.rows
        outcome.ending = "the restored store" if restored else "the old store"
        if not self.failed() and not restored:
            outcome.broken.append("success without the restored store")
        if restored:
            self.old = self.new
        self.check_store(outcome)
        left = [path.name for path in self.station.home.glob("main.mdb?*")]
        if left:
            outcome.broken.append(f"left after the next start: {left}")
        if self.backup.read_bytes() != self.new.path.read_bytes():
            outcome.broken.append("the backup was changed")


class BigRestore(Restore):
    source = "big imported"
    template = "big"


class LinkedRestore(LinkedStore, Restore):
    pass


class Archive(Job):
    """An archive of some days. Their touches are all in the store, or all in a complete archive and
    not in the store. They can be in both only after a kill or a reported failure."""

    random_names = True
    days = ("2023-03-15", "2023-03-15")

    def prepare(self):
        self.target = self.station.home / "archive.csv"
        first = datetime.fromisoformat(f"{self.days[0]} 00:00:01")
        last = datetime.fromisoformat(f"{self.days[1]} 23:59:59")
        self.range = Counter(
            {
                touch: number
                for touch, number in self.old.rows.items()
                if first <= moment_of(touch[1]) <= last
            }
        )
        if not self.range:
            raise RuntimeError("there is nothing to archive")

    def begin(self, prefix=()):
        first, last = self.days
        options = ("--from", first, "--to", last, "--output", self.target, "--yes")
        self.program = self.station.control("archive", *options, prefix=prefix)

    def judge_store(self, outcome):
        rows, _ = self.station.rows()
        deleted = rows == self.old.rows - self.range
        written = self.archived()
        complete = written == self.range
        if self.target.exists() and not complete:
            outcome.broken.append(f"an archive of {written.total()} touches has the name")
        if deleted:
            outcome.lost += (self.range - written).total()
            outcome.stored = self.range.total()
        elif not self.failed():
            outcome.broken.append("success, but the touches are still in the store")
        outcome.ending = ("deleted" if deleted else "kept") + (
            " and archived" if complete else ""
        )
        self.check_store(outcome, deleted=self.range if deleted else Counter())

    def archived(self):
        if not self.target.exists():
            return Counter()
        with self.target.open(encoding="utf-8-sig", newline="") as file:
            lines = list(csv.reader(file))
        return Counter(
            (line[6], minute_of(f"{line[0]} {line[1]}"), line[2]) for line in lines[1:]
        )


class BigArchive(Archive):
    template = "big"
    days = ("2023-03-17", "2023-03-25")


def moment_of(minute):
    return DAY_ZERO + timedelta(minutes=minute)


def minute_of(text):
    return round((datetime.fromisoformat(text) - DAY_ZERO).total_seconds() / 60)
