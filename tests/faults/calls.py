"""Faults of single calls: a kill at each write, sync, rename and unlink, or a failure of each.

Two runs under strace find out how often the job makes these calls on its files, its folder and its
serial line. Then each call is struck in a run of its own: strace kills the program as it enters
the call, or makes the call fail. A bad sector (EIO) fails one call. A full disk (ENOSPC) fails that
call and all later ones.
"""

import re
from collections import Counter
from functools import cache, partial

from jobs import Download, Import, MakeStore, Start
from moves import Archive, Backup, Restore

CALLS = (
    "write,writev,pwrite64,pwritev,fsync,fdatasync,sync_file_range,"
    "rename,renameat,renameat2,unlink,unlinkat"
)


def make_jobs(faults, setting):
    jobs = [
        (job, partial(strike, setting, job, names, call, fault.format(number)))
        for job in (Download, Start, Import, MakeStore, Backup, Restore, Archive)
        for names, counts in [calls_of(setting, job)]
        for call, count in sorted(counts.items())
        for number in range(1, count + 1)
        for fault in faults
    ]
    return setting.rng(faults).sample(jobs, setting.runs(len(jobs)))


def strace(log, *options):
    return ["strace", "-f", "-y", "-qq", "-o", str(log), "-e", f"trace={CALLS}", *options]


def narrowed(run, names):
    """The strace options for only these files of the job, its folder and its line. Random names of
    temporary files differ in each run, so such a job is not narrowed."""
    if run.random_names:
        return []
    paths = [run.station.home, *(run.station.home / name for name in sorted(names))]
    if isinstance(run, Download):
        paths.append(run.dock.device)
    return [option for path in paths for option in ("-P", str(path))]


@cache
def calls_of(setting, job):
    """The names of the files in its folder that the job uses, and how often it makes each call on
    them."""
    with job(setting, f"traced {job.__name__}") as run:
        log = run.folder / "trace"
        run.begin(strace(log))
        run.end()
        names = set(re.findall(re.escape(f"{run.station.home}/") + r'([^/<>" ]+)', log.read_text()))
    with job(setting, f"counted {job.__name__}") as run:
        log = run.folder / "trace"
        run.begin(strace(log, *narrowed(run, names)))
        run.end()
        # strace counts the calls of each thread separately.
        made = Counter(re.findall(r"^(\d+) +(\w+)\(", log.read_text(), re.MULTILINE))
    counts = Counter()
    for (_, call), number in made.items():
        counts[call] = max(counts[call], number)
    return names, counts


def strike(setting, job, names, call, fault):
    with job(setting, f"{job.__name__} {call} {fault}") as run:
        log = run.folder / "trace"
        run.begin(strace(log, *narrowed(run, names), "-e", f"inject={call}:{fault}"))
        run.end()
        killed = run.program.killed() and not run.program.struck
        return run.judge(killed or "(INJECTED)" in log.read_text())


CAMPAIGNS = {
    "a kill at each call": partial(make_jobs, ("signal=SIGKILL:when={}",)),
    "each call failing": partial(make_jobs, ("error=EIO:when={}", "error=ENOSPC:when={}+")),
}
