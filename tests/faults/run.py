#!/usr/bin/env python3
"""Fault campaigns: ./test --faults [--seed N] [--few] [CAMPAIGN...]

They strike the built programs with the faults that a station meets in years of nights, and look at
what came of the touches. What must hold, whatever happens:

- No touch is lost: it is in the store, or still in the reader.
- None is doubled, unless a program said that it was stored and its reader not erased.
- The store opens, the stock shell finds it sound, and old rows and definitions are still there.
- What a program says it has imported, exported or made is there, and whole.

| campaign     | what strikes                                                                 |
|--------------|------------------------------------------------------------------------------|
| random_kills | SIGKILL at a random moment of a download, a start, an import                 |
| calls        | a kill at each write, sync, rename and unlink of these and of the making of  |
|              | a store; each of these calls failing                                         |
| failing_rows | a row that the store refuses                                                 |
| full_disks   | little or no room under a download, a start, an import, an export (as root)  |
| power_cuts   | the power going just after the confirmed erase (as root)                     |
| faulty_docks | 500 downloads at docks and lines that fail, with readers pulled or exchanged |

Each prints a line: the runs, and those in which the fault took effect ("hit"); the touches that
were stored and those still in the reader just after the fault; and what was lost or doubled in the
end, after a reader that still held its touches was downloaded again. The runs at fault follow.

The exit status is 1 if a campaign found a fault of the programs, or if it could not strike. What
cannot be run here is skipped, and does not count as passed. The same seed gives the same faults;
their moments are as exact as the machine. --few runs a tenth.
"""

import argparse
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import calls
import failing_rows
import faulty_docks
import full_disks
import power_cuts
import random_kills
from campaign import Setting, Skipped, run_all
from templates import make_templates

MODULES = {
    module.__name__: module
    for module in (random_kills, calls, failing_rows, full_disks, power_cuts, faulty_docks)
}


def parse_arguments():
    parser = argparse.ArgumentParser(prog="./test --faults")
    parser.add_argument("--programs", type=Path, required=True, help=argparse.SUPPRESS)
    parser.add_argument("--seed", type=int, help="repeats the faults of an earlier run")
    parser.add_argument("--few", action="store_true", help="a tenth of the runs")
    parser.add_argument("campaigns", nargs="*", metavar="CAMPAIGN", help=", ".join(MODULES))
    arguments = parser.parse_args()
    for name in arguments.campaigns:
        if name not in MODULES:
            parser.error(f"there is no campaign {name}")
    return arguments


def clean_up(work):
    mounted = [line.split()[1] for line in Path("/proc/mounts").read_text().splitlines()]
    for path in mounted:
        if path.startswith(f"{work}/"):
            subprocess.run(["umount", path.encode().decode("unicode_escape")], check=False)
    shutil.rmtree(work, ignore_errors=True)


def main():
    arguments = parse_arguments()
    seed = random.randrange(1 << 16) if arguments.seed is None else arguments.seed
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    begin = time.monotonic()
    results = {"passed": 0, "failed": 0, "skipped": 0}
    work = Path(tempfile.mkdtemp(prefix="wardlock-faults-"))
    try:
        setting = Setting(arguments.programs.resolve(), work, seed, arguments.few)
        make_templates(setting)
        for name in arguments.campaigns or MODULES:
            for title, make_jobs in MODULES[name].CAMPAIGNS.items():
                try:
                    passed = run_all(setting, title, make_jobs(setting))
                    results["passed" if passed else "failed"] += 1
                except Skipped as reason:
                    print(f"{title}: skipped: {reason}", flush=True)
                    results["skipped"] += 1
    finally:
        clean_up(work)
    print(
        f"campaigns: {results['passed']} passed, {results['failed']} failed, "
        f"{results['skipped']} skipped (seed {seed}, {time.monotonic() - begin:.0f} s)"
    )
    return 1 if results["failed"] else 0


if __name__ == "__main__":
    sys.exit(main())
