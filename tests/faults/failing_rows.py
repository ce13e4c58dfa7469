"""Rows that cannot be stored although the disk works: a trigger refuses one row of a download."""

from functools import partial

from jobs import Download
from store import ask_store

RUNS = 16


class RefusedRow(Download):
    def begin(self, prefix=()):
        _, _, code = self.rng.choice(self.reader.touches)
        ask_store(
            self.station.store,
            f"CREATE TRIGGER refuse BEFORE INSERT ON tblEvents WHEN NEW.tButtonCode = '{code}' "
            "BEGIN SELECT RAISE(ABORT, 'refused'); END;",
        )
        super().begin(prefix)

    def end(self):
        super().end()
        ask_store(self.station.store, "DROP TRIGGER refuse;")


def make_jobs(setting):
    return [(RefusedRow, partial(refuse, setting, number)) for number in range(setting.runs(RUNS))]


def refuse(setting, number):
    with RefusedRow(setting, f"refused row {number}") as run:
        run.begin()
        run.end()
        return run.judge(run.failed())


CAMPAIGNS = {"failing rows": make_jobs}
