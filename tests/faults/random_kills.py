"""Kills at random moments: the program is gone between any two of its instructions."""

import time
from functools import partial

from common import BigImport, BigStart, Download

RUNS = {Download: 60, BigStart: 60, BigImport: 60}


def make_jobs(setting):
    return [
        (job, partial(kill, setting, job, number, longest))
        for job, runs in RUNS.items()
        for longest in [undisturbed(setting, job)]
        for number in range(setting.runs(runs))
    ]


def undisturbed(setting, job):
    """How long the job takes."""
    with job(setting, f"undisturbed {job.__name__}") as run:
        begin = time.monotonic()
        run.begin()
        return run.end() - begin


def kill(setting, job, number, longest):
    with job(setting, f"random kill of {job.__name__} {number}") as run:
        run.begin()
        time.sleep(run.rng.uniform(0, longest))
        return run.judge(run.program.kill())


CAMPAIGNS = {"random kills": make_jobs}
