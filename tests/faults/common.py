"""What the campaigns share: readers and docks, a station on a store of its own, the three jobs that
are disturbed (download, start, import), and the judgement of what came of the touches.

A touch is (reader, minute, code): the minute counts from 30 December 1899, as the store's dates do,
and no code stands twice in one reader.
"""

import json
import os
import random
import re
import shutil
import signal
import subprocess
import tempfile
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from contextlib import suppress
from dataclasses import dataclass, field
from datetime import datetime, timedelta
from pathlib import Path

STORE_KEY = "kelp7734"
TAUGHT_READER = "4B5831A7"  # the demonstration store knows it
EPOCH = datetime(1899, 12, 30)
FRAME = 252  # bytes of a memory frame
PATIENCE = 90  # seconds after which a program counts as hanging
SLEEPERS, WORKERS = 36, 3  # a download mostly waits for the dock; the other jobs are at work


class Skipped(Exception):
    """The campaign cannot be run here."""


@dataclass(eq=False)
class Setting:
    """Where the programs are, where the campaigns work, and what makes a run repeatable."""

    programs: Path
    work: Path
    seed: int
    few: bool = False  # a tenth of the runs
    templates: dict = field(default_factory=dict)
    documents: dict = field(default_factory=dict)

    def rng(self, *name):
        return random.Random(f"{self.seed} {name}")

    def runs(self, number):
        return -(-number // 10) if self.few else number


@dataclass
class Template:
    """A store that jobs begin with, and what is in it."""

    path: Path
    rows: Counter
    definitions: dict


@dataclass
class Document:
    """A document to import, and the definitions of the small store after that."""

    path: Path
    imported: dict


@dataclass
class Outcome:
    """What one run came to. `broken` says what else no fault may do."""

    label: str
    hit: bool = False
    stored: int = 0
    kept: int = 0
    lost: int = 0
    doubled: int = 0
    broken: list = field(default_factory=list)

    def at_fault(self):
        return self.lost or self.doubled or self.broken


def run_all(setting, title, jobs):
    """Runs (job class, function) pairs side by side, prints the campaign's line, and returns
    whether it passed."""
    begin = time.monotonic()
    outcomes, hits = [], Counter()
    with ThreadPoolExecutor(SLEEPERS) as sleepers, ThreadPoolExecutor(WORKERS) as workers:
        running = [(sleepers if job.sleeps else workers).submit(run) for job, run in jobs]
        try:
            for (job, _), future in zip(jobs, running):
                result = future.result()
                results = result if isinstance(result, list) else [result]
                outcomes += results
                hits[job.__name__] += sum(outcome.hit for outcome in results)
        except BaseException:  # the campaign itself failed, or was broken off
            for future in running:
                future.cancel()
            raise
    sums = {
        name: sum(getattr(outcome, name) for outcome in outcomes)
        for name in ("stored", "kept", "lost", "doubled")
    }
    broken = sum(bool(outcome.broken) for outcome in outcomes)
    print(
        f"{title}: {len(outcomes)} runs, {hits.total()} hit, touches: {sums['stored']} stored, "
        f"{sums['kept']} kept in the reader, {sums['lost']} lost, {sums['doubled']} doubled; "
        f"{broken} otherwise at fault (seed {setting.seed}, {time.monotonic() - begin:.0f} s)",
        flush=True,
    )
    faulty = [outcome for outcome in outcomes if outcome.at_fault()]
    shown = Counter()
    for outcome in faulty:
        kind = re.sub(r"[\d.]+", "", outcome.label)
        shown[kind] += 1
        if shown[kind] <= 4:
            told = [f"{outcome.lost} lost"] * bool(outcome.lost)
            told += [f"{outcome.doubled} doubled"] * bool(outcome.doubled)
            print(f"    {outcome.label}: {', '.join(told + outcome.broken)}", flush=True)
    if faulty:
        print(f"    {len(faulty)} runs at fault, of each kind at most 4 are shown", flush=True)
    missed = [name for name, number in hits.items() if number == 0]
    if missed:
        print(f"    no fault took effect on {', '.join(missed)}: nothing was shown", flush=True)
    return not missed and not faulty


class Reader:
    """A guard's reader and what it holds."""

    erasable = True  # a memory that cannot be read to its end must not be erased

    def __init__(self, rng, touches, identifier=None):
        self.identifier = identifier or rng.choice(
            [TAUGHT_READER, f"{rng.randrange(1, 1 << 32):08X}"]
        )
        moment = datetime(2026, 1, rng.randrange(1, 28), rng.randrange(24), rng.randrange(60))
        self.touches, self.records = [], []
        for code in rng.sample(range(1 << 16, 1 << 24), touches):
            self.touch(moment, f"{code:06X}")
            moment += timedelta(minutes=rng.randrange(1, 15))

    def touch(self, moment, code):
        minute = round((moment - EPOCH).total_seconds() / 60)
        self.touches.append((self.identifier, minute, code))
        self.records.append(f"touch {moment:%Y-%m-%d %H:%M} {code}")

    def scenario(self, faults=()):
        return "\n".join([f"reader {self.identifier}", *self.records, *faults, ""])


class Dock:
    """docksim with a reader in it."""

    def __init__(self, setting, folder, reader, faults=()):
        folder.mkdir(parents=True, exist_ok=True)
        scenario = folder / "scenario.txt"
        scenario.write_text(reader.scenario(faults))
        self.reader, self.folder = reader, folder
        self.complaints = folder / "docksim.err"
        with self.complaints.open("w") as complaints:
            self.process = subprocess.Popen(
                [setting.programs / "docksim", "--scenario", scenario],
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                stderr=complaints,
                text=True,
            )
        self.device = self.process.stdout.readline().strip()
        if not self.device:
            raise RuntimeError(f"docksim: {self.complaints.read_text()}")

    def tell(self, *lines):
        with suppress(BrokenPipeError):  # the device may have vanished, as it was told to
            self.process.stdin.write("".join(line + "\n" for line in lines))
            self.process.stdin.flush()

    def state(self, *then):
        """The state, and `then` obeyed right after it; None if the device has vanished."""
        self.tell("state", *then)
        line = self.process.stdout.readline()
        return json.loads(line) if line else None

    def keeps(self, *then):
        """Whether the reader still holds its touches: it is erased whole or not at all, and
        never after its device has vanished in the middle of the reading."""
        state = self.state(*then)
        return state is None or state["records"] > 0

    def exchange(self, reader):
        """Puts another reader in; returns whether the one taken out still holds its touches."""
        scenario = self.folder / "other.txt"
        scenario.write_text(reader.scenario())
        self.reader = reader
        return self.keeps("remove", f"load {scenario}")

    def close(self):
        self.tell("quit")
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        with suppress(BrokenPipeError):
            self.process.stdin.close()
        self.process.stdout.close()
        if self.complaints.read_text():  # a fault that was refused would show nothing
            raise RuntimeError(f"docksim: {self.complaints.read_text()}")


class Program:
    """A program at work, in a process group of its own, so that it can be killed with strace."""

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
        """Whether it was killed, by whom ever: strace ends as its program does."""
        return self.status() == -signal.SIGKILL

    def settle(self):
        """Waits until it ends or does nothing any more: it waits for the operator."""
        ticks, since, begin = None, time.monotonic(), time.monotonic()
        while self.runs() and time.monotonic() - begin < PATIENCE:
            now = self._ticks()
            if now != ticks or now is None:
                ticks, since = now, time.monotonic()
            elif time.monotonic() - since > 1:
                return
            time.sleep(0.05)

    def _ticks(self):
        """The processor time of the program; under strace that is its child."""
        pid = self.process.pid
        try:
            children = Path(f"/proc/{pid}/task/{pid}/children").read_text().split()
            fields = Path(f"/proc/{children[0] if children else pid}/stat").read_text()
        except OSError:
            return None
        return fields.rpartition(")")[2].split()[11:13]


class Station:
    """An application folder with a store of its own. Without a template they are there already."""

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
        """How often each touch is stored, and the faults that the stock shell finds."""
        return stored_rows(self.store)


def ask_store(store, statements):
    """What the stock shell answers; raises RuntimeError if it complains."""
    shell = subprocess.run(
        ["sqlcipher", "-bail", "-batch", store],
        input=f"PRAGMA key = '{STORE_KEY}';\n{statements}\n",
        capture_output=True,
        text=True,
        errors="replace",
    )
    if shell.returncode or shell.stderr:
        raise RuntimeError(shell.stderr.strip() or f"the shell ended with {shell.returncode}")
    return shell.stdout.splitlines()


def stored_rows(store):
    try:
        lines = ask_store(
            store,
            "PRAGMA quick_check;\n"
            "SELECT tPipeID, CAST(round(dtDateTime * 1440) AS INTEGER), tButtonCode "
            "FROM tblEvents;",
        )
    except RuntimeError as error:
        return Counter(), [str(error)]
    touches = [line.split("|") for line in lines if line.count("|") == 2]
    rows = Counter((reader, int(minute), code) for reader, minute, code in touches)
    verdict = [line for line in lines if "|" not in line]
    return rows, [] if verdict == ["ok"] else [f"quick_check: {verdict[:1]}"]


def make_templates(setting):
    """The stores that the jobs begin with, and the documents that they import."""
    for name, old_rows in (("new", 0), ("small", 60), ("big", 20000)):
        path = setting.work / f"{name}.mdb"
        subprocess.run([setting.programs / "mkstore", "--demo", path], check=True)
        ask_store(
            path,
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
            f"LIMIT {old_rows}) INSERT INTO tblEvents (dtDLDateTime, tPipeID, dtDateTime, "
            "tButtonCode, tButtonName, tButtonDesc, wGroupType, tGroupName, tGroupDesc) SELECT "
            "45300, '0D0D0D0D', 45000 + i / 1440.0, printf('%06X', i), 'Unknown', '', 0, '', '' "
            "FROM n;",
        )
        rows, faults = stored_rows(path)
        definitions = Station(setting, setting.work / f"{name}-first", path).definitions()
        if faults or sum(rows.values()) != old_rows or not definitions:
            raise RuntimeError(f"the {name} store cannot be made: {faults}")
        setting.templates[name] = Template(path, rows, definitions)
    for name, buttons in (("small", 20), ("big", 1000)):
        path = setting.work / f"import-{name}.json"
        path.write_text(json.dumps(definitions_document(buttons)))
        station = Station(setting, setting.work / f"{name}-second", setting.templates["small"].path)
        if station.control("setup", "import", path).wait().status() != 0:
            raise RuntimeError("the document cannot be imported")
        setting.documents[name] = Document(path, station.definitions())
        rows, _ = station.rows()
        setting.templates[f"{name} imported"] = Template(station.store, rows, station.definitions())


def definitions_document(buttons):
    codes = [f"F{number:05X}" for number in range(buttons)]
    return {
        "groups": [
            {
                "type": "site",
                "name": f"Hall {hall}",
                "buttons": [
                    {"code": code, "name": f"Door {code}", "description": f"Left of gate {code}"}
                    for code in codes[hall::10]
                ],
            }
            for hall in range(10)
        ],
        "readers": [{"id": "0E0E0E0E", "description": "Spare reader"}],
        "tours": [
            {
                "name": f"Round {tour}",
                "start": "22:30",
                "tolerance": 5,
                "points": [{"minutes": 10, "button": code} for code in codes[tour::10]],
            }
            for tour in range(3)
        ],
    }


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


class Job:
    """One disturbed job on a station of its own. `begin` starts it, `end` waits until it is over,
    `judge` says what came of it."""

    sleeps = False
    template = "small"

    def __init__(self, setting, label, home=None):
        self.setting, self.label, self.rng = setting, label, setting.rng(label)
        self.folder = setting.work / label.replace(" ", "-").replace("/", "-")
        self.folder.mkdir()
        self.old = setting.templates[self.template]
        self.station = Station(setting, self.folder, self.old.path, home)
        self.prepare()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def prepare(self):
        """What the job needs besides a station."""

    def close(self):
        """Gives up what `prepare` made."""

    def end(self):
        self.program.wait()

    def failed(self):
        return self.program.status() != 0

    def allowed_definitions(self):
        return [self.old.definitions]

    def check_store(self, outcome, touches=(), station=None):
        """The store must open, with the old rows and definitions and nothing new but `touches`.
        Returns what is new."""
        station = station or self.station
        definitions = station.definitions()
        if definitions is None:
            outcome.broken.append("the program cannot open the store")
        elif definitions not in self.allowed_definitions():
            outcome.broken.append("wrong definitions")
        rows, faults = station.rows()
        outcome.broken += faults
        outcome.lost += sum((self.old.rows - rows).values())
        new = rows - self.old.rows
        invented = set(new) - set(touches)
        if invented:
            outcome.broken.append(f"{len(invented)} invented touches")
        return new

    def judge(self, hit):
        outcome = Outcome(self.label, hit)
        if self.program.hung:
            outcome.broken.append("it hung")
        self.judge_store(outcome)
        return outcome

    def judge_store(self, outcome):
        self.check_store(outcome)


class Start(Job):
    """The start of the station, which compacts the store, up to the login."""

    def begin(self, prefix=()):
        self.file_before = self.station.store.stat().st_ino
        self.program = self.station.start(prefix)

    def end(self):
        self.program.settle()
        self.program.kill()

    def failed(self):
        return self.station.store.stat().st_ino == self.file_before  # not compacted


class Import(Job):
    """An import of definitions: all of them, or none."""

    document = "small"

    def begin(self, prefix=()):
        path = self.setting.documents[self.document].path
        self.program = self.station.control("setup", "import", path, prefix=prefix)

    def allowed_definitions(self):
        imported = self.setting.documents[self.document].imported
        succeeded = self.program.status() == 0
        return [imported] if succeeded else [self.old.definitions, imported]


class Export(Job):
    """An export of definitions over an older file: the new file whole, or the older one."""

    template = "big imported"
    older = "an older export\n" * 100

    def prepare(self):
        self.target = self.station.home / "export.json"
        self.target.write_text(self.older)

    def begin(self, prefix=()):
        self.program = self.station.control("setup", "export", self.target, prefix=prefix)

    def judge_store(self, outcome):
        text = self.target.read_text(errors="replace")
        if self.program.status() == 0 and text != self.whole_text():
            outcome.broken.append(f"success with {len(text)} characters of an export")
        elif self.program.status() != 0 and text != self.older:
            outcome.broken.append("the older export is damaged")
        self.check_store(outcome)

    def whole_text(self):
        whole = self.folder / "whole.json"
        self.station.control("setup", "export", whole).wait()
        return whole.read_text()


class BigStart(Start):
    template = "big"  # so that many moments fall into the compaction


class LinkedStart(BigStart):
    """The store is a symbolic link, and must stay one."""

    def prepare(self):
        target = self.station.home / "elsewhere.mdb"
        self.station.store.rename(target)
        self.station.store.symlink_to(target)

    def judge_store(self, outcome):
        if not self.station.store.is_symlink():
            outcome.broken.append("the link was replaced")
        super().judge_store(outcome)


class BigImport(Import):
    document = "big"


class MakeStore(Job):
    """The making of a store: a whole one, or none."""

    template = "new"

    def prepare(self):
        self.station.store.unlink()

    def begin(self, prefix=()):
        self.program = self.station.make_store(prefix)

    def judge_store(self, outcome):
        if self.station.store.exists():
            self.check_store(outcome)
        elif not self.failed():
            outcome.broken.append("success without a store")


class Download(Job):
    """A download. A reader that still holds its touches after the fault is downloaded again: in the
    end every touch must be stored. It may be there twice only if the program ended with 1 and said
    that it was stored, or was killed when all were stored and had no time to say so."""

    sleeps = True

    def prepare(self):
        self.reader = Reader(self.rng, self.rng.randrange(20, 60))
        self.dock = Dock(self.setting, self.folder / "dock", self.reader)

    def close(self):
        self.dock.close()

    def begin(self, prefix=()):
        self.program = self.station.download(self.dock.device, prefix)

    def readers(self):
        """The readers that were docked, each with whether it still holds its touches."""
        time.sleep(0.2)  # what a killed program sent last may be on its way
        return [(self.reader, self.dock.keeps())]

    def judge_store(self, outcome):
        readers = self.readers()
        touches = [touch for reader, _ in readers for touch in reader.touches]
        new = self.check_store(outcome, touches)
        outcome.stored = sum(new.values())
        allowed, unread = Counter(touches), set()
        for reader, keeps in readers:
            allowed.update(self.announced(self.program, reader, new))
            if self.program.killed() and all(new[touch] for touch in reader.touches):
                allowed.update(reader.touches)
            if keeps:
                outcome.kept += len(reader.touches)
                unread |= set(self.download_again(reader, allowed, outcome))
        if outcome.kept:
            rows, faults = self.station.rows()
            outcome.broken += faults
            new = rows - self.old.rows
        outcome.lost += sum(new[touch] == 0 for touch in touches if touch not in unread)
        outcome.doubled = sum(max(0, new[touch] - allowed[touch]) for touch in allowed)

    @staticmethod
    def announced(program, reader, new):
        """The touches of which a program that failed said that they are stored: those that it
        listed, or those in the store if it complained with their number and that of the reader."""
        if program.status() == 0:
            return []
        stored = [touch for touch in reader.touches if new[touch]]
        numbers = re.findall(r"\d+", program.complaint)
        if stored and (str(len(stored)), str(len(reader.touches))) in zip(numbers, numbers[1:]):
            return stored
        return [touch for touch in reader.touches if touch[2] in program.output]

    def download_again(self, reader, allowed, outcome):
        """Downloads the reader at a sound dock. Returns the touches that it holds after that."""
        dock = Dock(self.setting, self.folder / f"again-{reader.identifier}", reader)
        try:
            for _ in range(3):  # a busy machine may be late
                program = self.station.download(dock.device).wait()
                allowed.update(self.announced(program, reader, Counter()))
                if not dock.keeps():
                    return []
                if not reader.erasable:
                    return reader.touches
            outcome.broken.append(f"cannot be downloaded again: {program.complaint.strip()}")
            return reader.touches
        finally:
            dock.close()
