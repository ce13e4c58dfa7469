"""A campaign: its setting, its parallel runs, and the line that it prints.

A touch is (reader, minute, code). The minute counts from 30 December 1899, like the store's dates.
No code occurs twice in one reader.
"""

import random
import re
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from pathlib import Path

SLEEPERS, WORKERS = 36, 3  # downloads mostly wait for the dock; other jobs need the processor


class Skipped(Exception):
    """The campaign cannot be run here."""


@dataclass(eq=False)
class Setting:
    """The programs, the working folder, the seed of the faults, and the prepared stores."""

    programs: Path
    work: Path
    seed: int
    few: bool = False  # only a tenth of the runs
    templates: dict = field(default_factory=dict)
    documents: dict = field(default_factory=dict)

    def rng(self, *name):
        return random.Random(f"{self.seed} {name}")

    def runs(self, number):
        return -(-number // 10) if self.few else number


@dataclass
class Outcome:
    """The result of one run. `kept` touches are still in the reader. `broken` lists what is wrong
    besides lost and doubled touches. `ending` says which of the allowed endings it was, if there
    are several."""

    label: str
    hit: bool = False
    stored: int = 0
    kept: int = 0
    lost: int = 0
    doubled: int = 0
    broken: list = field(default_factory=list)
    ending: str = ""

    def at_fault(self):
        return self.lost or self.doubled or self.broken


def run_all(setting, title, jobs):
    """Runs (job class, function) pairs in parallel, prints the campaign's line, and returns whether
    it passed."""
    begin = time.monotonic()
    outcomes, hits, endings = [], Counter(), {}
    with ThreadPoolExecutor(SLEEPERS) as sleepers, ThreadPoolExecutor(WORKERS) as workers:
        running = [(sleepers if job.sleeps else workers).submit(run) for job, run in jobs]
        try:
            for (job, _), future in zip(jobs, running):
                result = future.result()
                results = result if isinstance(result, list) else [result]
                outcomes += results
                hits[job.__name__] += sum(outcome.hit for outcome in results)
                endings.setdefault(job.__name__, Counter()).update(
                    outcome.ending for outcome in results if outcome.ending
                )
        except BaseException:  # the campaign itself failed or was interrupted
            for future in running:
                future.cancel()
            raise
    sums = {
        name: sum(getattr(outcome, name) for outcome in outcomes)
        for name in ("stored", "kept", "lost", "doubled")
    }
    broken = sum(bool(outcome.broken) for outcome in outcomes)
    print(
        f"{title}: {len(outcomes)} runs, {hits.total()} hit, touches: {sums['stored']} stored, "
        f"{sums['kept']} kept in the reader, {sums['lost']} lost, {sums['doubled']} doubled; "
        f"{broken} otherwise at fault (seed {setting.seed}, {time.monotonic() - begin:.0f} s)",
        flush=True,
    )
    for name, counts in endings.items():
        if counts:
            tally = ", ".join(f"{ending} {count}" for ending, count in sorted(counts.items()))
            print(f"    {name}: {counts.total()} runs: {tally}", flush=True)
    faulty = [outcome for outcome in outcomes if outcome.at_fault()]
    shown = Counter()
    for outcome in faulty:
        kind = re.sub(r"[\d.]+", "", outcome.label)
        shown[kind] += 1
        if shown[kind] <= 4:
            causes = [f"{outcome.lost} lost"] * bool(outcome.lost)
            causes += [f"{outcome.doubled} doubled"] * bool(outcome.doubled)
            print(f"    {outcome.label}: {', '.join(causes + outcome.broken)}", flush=True)
    if faulty:
        print(f"    {len(faulty)} runs at fault; at most 4 of each kind are shown", flush=True)
    missed = [name for name, number in hits.items() if number == 0]
    if missed:
        print(f"    no fault took effect on {', '.join(missed)}: this proves nothing", flush=True)
    return not missed and not faulty
