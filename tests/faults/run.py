#!/usr/bin/env python3
"""Fault campaigns: ./test --faults [--seed N] [--few] [CAMPAIGN...]

They strike the built programs with faults that a station meets over years of use, and then look for
every touch. Whatever happens:

- No touch is lost: it is in the store or still in the reader.
- No touch is doubled, unless a program reported that it was stored and the reader not erased.
- The store opens, the stock shell finds no damage, and old rows and definitions are still there.
- What a program reports as imported, exported, copied or made is there and complete.
- A restore leaves the old store or the restored one, an archive its touches in the store or in a
  complete file.

| campaign     | the fault                                                                    |
|--------------|------------------------------------------------------------------------------|
| random_kills | SIGKILL at a random moment of a download, a start, an import, a backup, a    |
|              | restore, an archive                                                          |
| calls        | a kill at each write, sync, rename and unlink in these jobs and in making a  |
|              | store; a failure of each of these calls                                      |
| failing_rows | a row that the store refuses                                                 |
| full_disks   | little or no free space in these jobs and in an export (as root)             |
| power_cuts   | a power cut just after the confirmed erase (as root)                         |
| faulty_docks | 500 downloads at failing docks and lines; readers pulled out or exchanged    |

Each campaign prints a line: how many runs there were, and in how many the fault took effect
("hit"); how many touches were stored, and how many were still in the reader, just after the fault;
and how many were lost or doubled in the end, after readers that still held touches were downloaded
again. The runs at fault follow.

The exit status is 1 if a campaign found a fault of the programs, or if its faults took no effect. A
campaign that cannot run here is skipped and does not count as passed. The same seed gives the same
faults, but their moments vary with the machine. --few runs a tenth.
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
