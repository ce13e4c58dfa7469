"""Kills at random moments, between any two instructions of the program.

A job uses the store for only a few of its milliseconds. So every second kill comes shortly after a
change in the application folder.
"""

import os
import time
from functools import partial

from jobs import BigImport, BigStart, Download, LinkedStart
from moves import BigArchive, BigBackup, BigRestore, LinkedRestore

RUNS = {
    Download: 60,
    BigStart: 60,
    LinkedStart: 20,
    BigImport: 60,
    BigBackup: 300,
    BigRestore: 300,
    LinkedRestore: 20,
    BigArchive: 300,
}
SOON = 0.01  # seconds


def make_jobs(setting):
    return [
        (job, partial(kill, setting, job, number, *measured))
        for job, runs in RUNS.items()
        for measured in [undisturbed(setting, job)]
        for number in range(setting.runs(runs))
    ]


def undisturbed(setting, job):
    """When the job makes the last change in its folder, and how many changes it makes."""
    with job(setting, f"undisturbed {job.__name__}") as run:
        run.begin()
        measured = await_changes(run, None, 9)
        run.end()
        return measured


def await_changes(run, wanted, longest):
    """Waits for this many changes in the folder, at most `longest` seconds. Returns the seconds
    until the last one, and how many there were."""
    begin = time.monotonic()
    seen, changes, last = None, -1, 0
    while run.program.runs() and changes != wanted and time.monotonic() - begin < longest:
        time.sleep(0.001)
        try:
            files = os.scandir(run.station.home)
            now = sorted((file.name, file.stat().st_mtime_ns) for file in files)
        except FileNotFoundError:  # a file was removed during the scan
            now = None
        if now != seen:
            seen, changes, last = now, changes + 1, time.monotonic() - begin
    return last, changes


def kill(setting, job, number, longest, changes):
    with job(setting, f"random kill of {job.__name__} {number}") as run:
        run.begin()
        if number % 2:
            await_changes(run, run.rng.randrange(changes + 1), longest)
            time.sleep(run.rng.uniform(0, SOON))
        else:
            time.sleep(run.rng.uniform(0, longest))
        return run.judge(run.program.kill())


CAMPAIGNS = {"random kills": make_jobs}
