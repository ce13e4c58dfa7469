"""Full disks: a small ext4 or memory disk with some bytes free, from none to more than enough."""

from common import Disk, Download, Export, Import, Start, run_all

# How often, and with how many bytes free at most.
RUNS = {Download: (32, 64 << 10), Start: (24, 96 << 10), Import: (24, 64 << 10), Export: (32, 240 << 10)}
KINDS = ("ext4", "tmpfs")


def run(setting):
    for kind in KINDS:
        Disk.require(setting, kind)

    def one(job, kind, free):
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

    jobs = []
    for job, (runs, most) in RUNS.items():
        runs = setting.runs(runs)
        for number in range(runs):
            free = most * (number // 2) * 2 // runs
            kind = KINDS[number % 2]
            jobs.append((job, lambda job=job, kind=kind, free=free: one(job, kind, free)))
    return run_all(setting, "full disks", jobs)
