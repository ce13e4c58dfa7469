"""Kills at random moments: the program is gone between any two of its instructions."""

import time

from common import BigImport, BigStart, Download, run_all

RUNS = {Download: 60, BigStart: 60, BigImport: 60}


def undisturbed(setting, job):
    """How long the job takes."""
    with job(setting, f"undisturbed {job.__name__}") as run:
        begin = time.monotonic()
        run.begin()
        run.end()
        return time.monotonic() - begin


def run(setting):
    def one(job, number, longest):
        with job(setting, f"random kill of {job.__name__} {number}") as run:
            run.begin()
            time.sleep(run.rng.uniform(0, longest))
            return run.judge(run.program.kill())

    jobs = []
    for job, runs in RUNS.items():
        longest = undisturbed(setting, job)
        for number in range(setting.runs(runs)):
            jobs.append((job, lambda job=job, number=number, longest=longest: one(job, number, longest)))
    return run_all(setting, "random kills", jobs)
