"""Power cuts after the confirmed erase.

The store is on a loop device. When the dock has erased the reader, and at random moments in the
next seconds, the image of the device is copied. The copy holds what the system had written by then,
and nothing that it still kept in memory. The copy is mounted, which replays its journal, and must
hold every touch. A file is written just before each copy and not synced. It must be missing from
the copy; otherwise the cut lost nothing and proves nothing.
"""

import time
from functools import partial

from campaign import Outcome
from disk import Disk
from jobs import Download
from station import Station

CUTS = 4  # in each download
LONGEST = 4  # seconds after the erase


def make_jobs(kind, downloads, setting):
    Disk.require(setting, kind)
    return [
        (Download, partial(cut, setting, kind, number))
        for number in range(setting.runs(downloads))
    ]


def cut(setting, kind, number):
    label = f"power cut {number} on {kind}"
    folder = setting.work / f"disk of {label}"
    with Disk(folder, kind) as disk, Download(setting, label, disk.path / "home") as run:
        disk.sync()
        run.begin()
        while run.program.runs() and run.dock.keeps():
            time.sleep(0.005)
        if run.dock.keeps():
            return Outcome(label, broken=["the reader was not erased"])
        erased = time.monotonic()
        moments = [0, *sorted(run.rng.uniform(0, LONGEST) for _ in range(CUTS - 1))]
        for i, moment in enumerate(moments):
            time.sleep(max(0, erased + moment - time.monotonic()))
            (disk.path / f"unsynced-{i}").write_text("not synced")
            disk.copy_image(folder / f"copy-{i}")
        run.end()
        return [
            judge(run, kind, folder / f"copy-{i}", f"{label}, {moment:.1f} s after the erase")
            for i, moment in enumerate(moments)
        ]


def judge(run, kind, copy, label):
    """Judges one copy. The names of the copy and of its unsynced file end with the same number."""
    outcome = Outcome(label)
    folder = copy.with_name(f"mounted {copy.name}")
    with Disk(folder, kind, copy) as disk:
        unsynced = disk.path / copy.name.replace("copy", "unsynced")
        outcome.hit = not unsynced.exists() or unsynced.stat().st_size == 0
        station = Station(run.setting, folder / "station", home=disk.path / "home")
        new = run.check_store(outcome, run.reader.touches, station)
    outcome.stored = sum(new.values())
    outcome.lost += sum(new[touch] == 0 for touch in run.reader.touches)
    outcome.doubled = sum(new[touch] > 1 for touch in run.reader.touches)
    return outcome


CAMPAIGNS = {
    "power cuts on ext4": partial(make_jobs, "ext4", 10),
    "power cuts on xfs": partial(make_jobs, "xfs", 6),
}
