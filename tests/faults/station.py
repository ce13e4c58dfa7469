"""The programs, each run on an application folder of its own."""

import json
import os
import shutil
import signal
import subprocess
import time
from pathlib import Path

from store import stored_rows

PATIENCE = 90  # seconds after which a program counts as hanging


class Program:
    """A running program, in its own process group so that strace can be killed with it."""

    def __init__(self, command, environment):
        self.process = subprocess.Popen(
            command,
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            text=True,
            errors="replace",
            start_new_session=True,
        )
        self.output = self.complaint = ""
        self.hung = False
        self.struck = False  # killed by `kill`

    def runs(self):
        return self.process.poll() is None

    def kill(self):
        """Kills it and returns whether it was still running."""
        self.struck = self.runs()
        if self.struck:
            os.killpg(self.process.pid, signal.SIGKILL)
        self.wait()
        return self.struck

    def wait(self):
        try:
            self.output, self.complaint = self.process.communicate(timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.output, self.complaint = self.process.communicate()
            self.hung = True
        return self

    def status(self):
        return self.process.returncode

    def killed(self):
        """Whether anything killed it. strace ends in the same way as its program."""
        return self.status() == -signal.SIGKILL

    def settle(self):
        """Waits until it ends, or until it is idle because it waits for the operator."""
        ticks, since, begin = None, time.monotonic(), time.monotonic()
        while self.runs() and time.monotonic() - begin < PATIENCE:
            now = self._ticks()
            if now != ticks or now is None:
                ticks, since = now, time.monotonic()
            elif time.monotonic() - since > 1:
                return
            time.sleep(0.05)

    def _ticks(self):
        """The processor time of the program, which is the child under strace."""
        pid = self.process.pid
        try:
            children = Path(f"/proc/{pid}/task/{pid}/children").read_text().split()
            fields = Path(f"/proc/{children[0] if children else pid}/stat").read_text()
        except OSError:
            return None
        return fields.rpartition(")")[2].split()[11:13]


class Station:
    """An application folder with its own store. Without a template, both exist already."""

    def __init__(self, setting, folder, template=None, home=None):
        self.programs, self.folder, self.home = setting.programs, folder, home or folder / "home"
        self.store = self.home / "main.mdb"
        self.environment = {
            **os.environ,
            "WARDLOCK_HOME": str(self.home),
            "WARDLOCK_PASSWORD": "KEEPER",
            "QT_QPA_PLATFORM": "offscreen",
        }
        for name, where in (
            ("XDG_CONFIG_HOME", "config"),
            ("XDG_RUNTIME_DIR", "run"),
            ("TMPDIR", "tmp"),
        ):
            (folder / where).mkdir(mode=0o700, parents=True, exist_ok=True)
            self.environment[name] = str(folder / where)
        if template:
            self.home.mkdir(exist_ok=True)
            shutil.copyfile(template, self.store)
            for name in ("WK3.MLD", "WK3_ENG.HLP", "login.bmp", "contact.bmp"):
                (self.home / name).symlink_to(setting.programs / name)

    def start(self, prefix=()):
        return Program([*prefix, self.programs / "wardlock"], self.environment)

    def control(self, *arguments, prefix=()):
        return Program([*prefix, self.programs / "wardlockctl", *arguments], self.environment)

    def make_store(self, prefix=()):
        command = [*prefix, self.programs / "mkstore", "--demo", self.store]
        return Program(command, self.environment)

    def download(self, device, prefix=()):
        return self.control("download", "--device", device, prefix=prefix)

    def definitions(self):
        """All definitions, or None if the program cannot open the store."""
        target = self.folder / "definitions.json"
        target.unlink(missing_ok=True)
        if self.control("setup", "export", target).wait().status() != 0:
            return None
        return json.loads(target.read_text())

    def rows(self):
        """How often each touch is stored, and the damage that the stock shell finds."""
        return stored_rows(self.store)
