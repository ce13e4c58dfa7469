"""Small file systems that can be filled, and whose power can be cut."""

import os
import subprocess
import tempfile
from pathlib import Path

from campaign import Skipped


class Disk:
    """A small file system of its own, in an image or in memory. Needs root."""

    def __init__(self, folder, kind, image=None):
        self.kind, self.image, self.path = kind, image, folder / "disk"
        self.path.mkdir(parents=True)
        if kind == "tmpfs":
            self._run("mount", "-t", "tmpfs", "-o", "size=4m", "tmpfs", self.path)
            return
        if not image:
            self.image = folder / "image"
            with self.image.open("wb") as file:
                file.truncate({"ext4": 16, "xfs": 300}[kind] << 20)
            quiet = ["-q", "-m", "0", "-b", "1024"] if kind == "ext4" else ["-q"]
            self._run(f"mkfs.{kind}", *quiet, self.image)
        # The copy of a file system has the name of the first one, which xfs would refuse.
        options = "loop,nouuid" if kind == "xfs" else "loop"
        self._run("mount", "-t", kind, "-o", options, self.image, self.path)

    @staticmethod
    def _run(*command):
        subprocess.run(command, check=True, capture_output=True)

    @staticmethod
    def require(setting, kind):
        """Raises Skipped where no such disk can be had."""
        if os.geteuid() != 0:
            raise Skipped("needs root")
        try:
            folder = Path(tempfile.mkdtemp(dir=setting.work))
            Disk(folder, kind).close()
        except (OSError, subprocess.CalledProcessError) as error:
            raise Skipped(f"needs a root that can make and mount {kind} ({error})") from error

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self._run("umount", self.path)
        if self.image:
            self.image.unlink()

    def sync(self):
        self._run("sync", "-f", self.path)

    def fill(self, free):
        """Leaves that many bytes free; returns the file that takes the rest."""
        filler = self.path / "filler"
        with filler.open("wb", buffering=0) as file:
            size = 0
            try:
                while True:
                    size += file.write(bytes(1024))
            except OSError:
                file.truncate(max(0, size - free))
            os.fsync(file.fileno())
        return filler

    def copy_image(self, target):
        """What a power cut would leave on the disk now. Copied until two copies in a row are the
        same, so that none is a mixture of two moments."""
        again = target.with_suffix(".again")
        subprocess.run(["cp", "--sparse=always", self.image, target], check=True)
        for _ in range(50):
            subprocess.run(["cp", "--sparse=always", self.image, again], check=True)
            same = subprocess.run(["cmp", "-s", target, again], check=False).returncode == 0
            again.replace(target)
            if same:
                return
        raise RuntimeError("the disk never was at rest")
