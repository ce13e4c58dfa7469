"""Small file systems, for full disks and power cuts."""

import os
import subprocess
import tempfile
from pathlib import Path

from campaign import Skipped


class Disk:
    """A small file system, in an image file or in memory. Needs root."""

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
        # The copy has the same UUID as the original, and xfs would refuse it.
        options = "loop,nouuid" if kind == "xfs" else "loop"
        self._run("mount", "-t", kind, "-o", options, self.image, self.path)

    @staticmethod
    def _run(*command):
        subprocess.run(command, check=True, capture_output=True)

    @staticmethod
    def require(setting, kind):
        """Raises Skipped if such a disk cannot be made here."""
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
        """Leaves this many bytes free. Returns the file that fills the rest."""
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
        """Copies what a power cut would leave on the disk now. Repeats until two copies in a row
        are the same, so that the copy does not mix two moments."""
        again = target.with_suffix(".again")
        subprocess.run(["cp", "--sparse=always", self.image, target], check=True)
        for _ in range(50):
            subprocess.run(["cp", "--sparse=always", self.image, again], check=True)
            same = subprocess.run(["cmp", "-s", target, again], check=False).returncode == 0
            again.replace(target)
            if same:
                return
        raise RuntimeError("the disk was never at rest")
