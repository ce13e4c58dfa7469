"""Power cuts after the confirmed erase.

The store lies on a loop device. When the dock has erased its reader, and at random moments in the
seconds after that, the image of the device is copied: it holds what the system had written until
then, and nothing of what it still kept in memory. The copy is mounted, which replays its journal,
and must hold every touch. A file written just before each copy, and not synced, must be missing
there: else the cut took nothing away and shows nothing.
"""

import time
from functools import partial

from campaign import Outcome
from disk import Disk
from jobs import Download
from station import Station

CUTS = 4  # of each download
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
    """The unsynced file has the number of the copy at the end of its name, as the copy has."""
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
