"""Full disks: a small ext4 or tmpfs disk with anything from no free bytes to more than enough."""

from functools import partial

from disk import Disk
from jobs import Download, Export, Import, Start
from moves import Archive, Backup, Restore

# How many runs, and at most how many bytes free.
RUNS = {
    Download: (32, 64 << 10),
    Start: (24, 96 << 10),
    Import: (24, 64 << 10),
    Export: (32, 240 << 10),
    Backup: (32, 160 << 10),
    Restore: (32, 160 << 10),
    Archive: (32, 96 << 10),
}
KINDS = ("ext4", "tmpfs")


def make_jobs(setting):
    for kind in KINDS:
        Disk.require(setting, kind)
    return [
        (job, partial(strike, setting, job, KINDS[number % 2], most * number // runs & ~1023))
        for job, (all_runs, most) in RUNS.items()
        for runs in [setting.runs(all_runs)]
        for number in range(runs)
    ]


def strike(setting, job, kind, free):
    label = f"{job.__name__} with {free} bytes free on {kind}"
    with (
        Disk(setting.work / f"disk of {label}", kind) as disk,
        job(setting, label, disk.path / "home") as run,
    ):
        filler = disk.fill(free)
        run.begin()
        run.end()
        failed = run.failed()
        filler.unlink()
        return run.judge(failed)


CAMPAIGNS = {"full disks": make_jobs}
