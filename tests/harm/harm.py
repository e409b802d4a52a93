#!/usr/bin/env python3
"""Starts the program on settings that were harmed in many ways, and counts what was lost.

    tests/harm/harm.py PROGRAM [share] [seed] [part ...]

The share, from 0 to 1, is that of the damages and cuts that are tried. What needs root is left out without it, and told.
Settings count as lost if they are neither in the file nor in the copy that was kept of it.
"""

import contextlib
import os
import random
import resource
import shutil
import signal
import socket
import stat
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor

PROGRAM = os.path.abspath(sys.argv[1])
SHARE = float(sys.argv[2]) if len(sys.argv) > 2 else 1
SEED = int(sys.argv[3]) if len(sys.argv) > 3 else 5784
LONGEST = 10  # seconds; what takes longer hangs
IS_ROOT = os.geteuid() == 0

# What no default is, so that a loss shows.
PROGRAM_SETTINGS = """
Color/ABC=1 Color/AFC=2 Color/CFC=8 Color/GBC=3 Color/GFC=4 Color/JBC=7 Color/LBC=5 Color/PBC=9
Events/Chk=False Events/Top=90 Gregorian/Chk=False Gregorian/Left=60 Gregorian/Top=45 Hebrew/Chk=False
HorvantaMDI/Height=9000 HorvantaMDI/Left=300 HorvantaMDI/State=0 HorvantaMDI/Top=150 HorvantaMDI/Width=12000
Item/AD=&Down Item/AdjDST=2 Item/Candles=40 Item/CCM=2 Item/CEN=3 Item/EH=4000 Item/Elev=0 Item/Even=True
Item/EW=9000 Item/FixEpoch=1 Item/FixNam=rata Item/FixOpt=2 Item/GE=1 Item/JCY1=-2636 Item/LOC=Tehran Item/LP=True
Item/Map=4 Item/MC=3 Item/Mix=True Item/MTF=5 Item/OSY=-775 Item/QuaStart=2 Item/RD=739000.125 Item/Rectify=1
Item/SD=700000.5 Item/ShowDD=0 Item/Step=5 Item/THC=2 Item/UseAUC=1 Item/WCC=True Item/Year=False Item/YRF=-752
Item/dT=0 Julian/Chk=True Later/Key=kept Monthly/Chk=False Monthly/Top=75 Persian/Chk=True Prog/Launch=OK
Quartane/Left=345 TimeAstro/Chk=False TimeAstro/Left=30 TimeAstro/Top=15 User/Chk=True"""
PLACE_SETTINGS = """
User%d/Chk=False User%d/Elev=12 User%d/Lat=31.5 User%d/Long=34.75 User%d/Name=Home User%d/NoDST=True
User%d/UseLMT=False User%d/Zone=2"""
NAMES = ("Horvanta", "Horvanta-UDLs")
# A shade follows from the colour of its window.
SHADES = {"Color/GBC": "Color/IBC", "Color/GFC": "Color/IFC", "Color/JBC": "Color/RBC", "Color/JFC": "Color/RFC",
          "Color/ChinFC": "Color/CFC"}
problems = []


def problem(where, what):
    problems.append(f"{where}: {what}")


def parse(data):
    """The keys of a file, read apart from the program."""
    values = {}
    for line in data.decode("utf-8", "replace").split("\n")[:-1]:
        name, equals, value = line.partition("=")
        if equals and "/" in name:
            values[name] = value
    return values


def read(path):
    """The bytes of a file; none of what is no file or too large."""
    try:
        facts = os.stat(path)
        if not stat.S_ISREG(facts.st_mode) or facts.st_size > 1 << 20:
            return b""
        with open(path, "rb") as file:
            return file.read()
    except OSError:
        return b""


class Home:
    """A settings folder of its own."""

    def __init__(self, at=None):
        self.root = tempfile.mkdtemp(prefix="harm-", dir=at)
        self.folder = os.path.join(self.root, "Horvanta")

    def path(self, name="Horvanta", end=".ini"):
        return os.path.join(self.folder, name + end)

    def put(self, files=None):
        shutil.rmtree(self.folder, ignore_errors=True)
        os.mkdir(self.folder, 0o700)
        for name, data in (files or base).items():
            with open(self.path(name), "wb") as file:
                file.write(data)

    def environment(self, end="save", **further):
        clean = {key: value for key, value in os.environ.items() if not key.startswith(("HORVANTA_", "XDG_"))}
        runtime = os.path.join(self.root, "run")
        os.makedirs(runtime, 0o700, exist_ok=True)
        return clean | {"XDG_CONFIG_HOME": self.root, "XDG_RUNTIME_DIR": runtime, "QT_QPA_PLATFORM": "offscreen",
                        "QT_LOGGING_RULES": "*=false", "HORVANTA_END_AFTER": end, "LC_ALL": "C.UTF-8"} | further

    def start(self, end="save", before=None, command=(), **further):
        """Starts the program, which ends by itself; returns its status, None for a hang, and what it said."""
        try:
            done = subprocess.run([*command, PROGRAM], env=self.environment(end, **further), stdin=subprocess.DEVNULL,
                                  capture_output=True, timeout=LONGEST, preexec_fn=before, check=False)
            return done.returncode, done.stderr.decode("utf-8", "replace")
        except subprocess.TimeoutExpired:
            return None, ""

    def open(self, end="none", command=(), **further):
        return subprocess.Popen([*command, PROGRAM], env=self.environment(end, **further), stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def lost(self, expected, names=NAMES):
        """The keys that are neither in the files nor in their copies."""
        missing = set()
        for name in names:
            now, kept = parse(read(self.path(name))), parse(read(self.path(name, ".ini.bad")))
            for key, value in parse(expected.get(name, b"")).items():
                if now.get(key) != value and kept.get(key) != value:
                    missing.add(key)
        return missing

    def close(self):
        shutil.rmtree(self.root, ignore_errors=True)


@contextlib.contextmanager
def home(at=None):
    there = Home(at)
    try:
        yield there
    finally:
        there.close()


def in_parallel(cases, act):
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        return list(pool.map(act, cases))


def make_base():
    """Files as the program itself writes them, which it writes again just so."""
    with home() as at:
        lines = PROGRAM_SETTINGS.split()
        places = [line.replace("User", "User ", 1) for n in (1, 7) for line in (PLACE_SETTINGS.replace("%d", str(n))).split()]
        texts = {"Horvanta": lines, "Horvanta-UDLs": places}
        at.put({name: ("\n".join(text) + "\n").encode() for name, text in texts.items()})
        for _ in range(2):
            assert at.start()[0] == 0
        return {name: read(at.path(name)) for name in NAMES}


def sample(cases):
    cases = list(cases)
    return random.Random(SEED).sample(cases, max(1, round(len(cases) * SHARE))) if SHARE < 1 else cases


# Damages.

def quote_behind(line):
    return line.replace(b"=", b'="', 1)


DAMAGES = {
    "gone": lambda line: None,
    "cut": lambda line: line[:line.find(b"=") + 1 + (len(line) - line.find(b"=") - 1) // 2],
    "empty value": lambda line: line[:line.find(b"=") + 1],
    "a quote": quote_behind,
    "a backslash at the end": lambda line: line + b"\\",
    "a heading": lambda line: b"[" + line,
    "a word": lambda line: line[:line.find(b"=") + 1] + b"beige",
    "a number": lambda line: line[:line.find(b"=") + 1] + b"-1e300",
    "bytes": lambda line: b"\x00\xff\xfe" + line + b"\x01\xff",
}


def follows(key, other):
    """Whether one key may change with another. A window that nobody had placed may give way once it opens or has lost a
    side of its place; in a smaller frame every window may."""
    form, _, name = key.partition("/")
    is_place = other.endswith(("/Left", "/Top"))
    is_chosen = other + "=" in PROGRAM_SETTINGS
    loosens = name in ("Chk", "Left", "Top") and other.startswith(form + "/")
    moves = form == "HorvantaMDI" or (loosens and not is_chosen)
    return other in (key, SHADES.get(key)) or (is_place and moves)


def damage_table():
    cases = [(name, number, way) for name in NAMES for number in range(base[name].count(b"\n")) for way in DAMAGES]
    cases = sample(cases)

    def act(case):
        name, number, way = case
        lines = base[name].split(b"\n")
        key = lines[number].partition(b"=")[0].decode()
        damaged = DAMAGES[way](lines[number])
        lines[number:number + 1] = [] if damaged is None else [damaged]
        with home() as at:
            at.put(base | {name: b"\n".join(lines)})
            status, said = at.start()
            if status != 0:
                return problem(f"{way} in {key}", f"status {status}: {said}") or 1
            lost = {other for other in at.lost(base) if not follows(key, other)}
            if lost:
                problem(f"{way} in {key}", f"lost {sorted(lost)}")
            return len(lost)

    lost = in_parallel(cases, act)
    print(f"damaged lines: {len(cases)} starts, {sum(lost)} other keys lost")


def cuts():
    cases = sample((name, end) for name in NAMES for end in range(len(base[name]) + 1))

    def act(case):
        name, end = case
        cut = base | {name: base[name][:end]}
        with home() as at:
            at.put(cut)
            status, said = at.start()
            if status != 0:
                return problem(f"{name} cut at {end}", f"status {status}: {said}") or 1
            lost = at.lost(cut)
            if lost:
                problem(f"{name} cut at {end}", f"lost {sorted(lost)}")
            return len(lost)

    lost = in_parallel(cases, act)
    print(f"cuts of both files: {len(cases)} starts, {sum(lost)} keys lost")


# Odd files and folders.

def make_socket(path):
    with socket.socket(socket.AF_UNIX) as listener:
        listener.bind(path)


def write(data, rights=0o600):
    def make(path):
        with open(path, "wb") as file:
            file.write(data)
        os.chmod(path, rights)
    return make


def make_folder(path):
    os.mkdir(path)


def make_full_folder(path):
    os.mkdir(path)
    write(b"mine")(os.path.join(path, "mine"))


def make_sparse(path):
    write(b"")(path)
    os.truncate(path, 1 << 40)


ODD = {
    "an empty file": write(b""), "a folder": make_folder, "a folder with a file": make_full_folder,
    "a pipe": os.mkfifo, "a socket": make_socket, "a link to /dev/null": lambda path: os.symlink("/dev/null", path),
    "a link to /dev/zero": lambda path: os.symlink("/dev/zero", path),
    "a link to nothing": lambda path: os.symlink("nothing", path), "a link to itself": lambda path: os.symlink(path, path),
    "a link to a folder": lambda path: os.symlink("/", path), "a tebibyte": make_sparse,
    "no rights": write(b"[Item]\nRD=1\n", 0), "rights to read": write(b"[Item]\nRD=1\n", 0o400),
    "random bytes": write(random.Random(1).randbytes(5000)), "zeros": write(bytes(5000)),
    "a long line": write(b"=" * 900_000), "UTF-16": write("[Item]\nRD=1\n".encode("utf-16")),
    "a program": write(read("/bin/true")[:50_000]),
}
PLACES = ("Horvanta.ini", "Horvanta-UDLs.ini", "Horvanta.ini.bad", "Horvanta.ini.new", "Horvanta.ini.starting",
          "Horvanta.lock", "Horvanta.socket", ".")


def identity(path):
    try:
        facts = os.lstat(path)
        return facts.st_ino, stat.S_IFMT(facts.st_mode)
    except OSError:
        return None


def odd_files():
    cases = [(place, kind) for place in PLACES for kind in ODD]

    def act(case):
        place, kind = case
        with home() as at:
            at.put()
            path = os.path.normpath(os.path.join(at.folder, place))
            shutil.rmtree(path, ignore_errors=True) if os.path.isdir(path) else path != at.folder and \
                os.path.lexists(path) and os.remove(path)
            ODD[kind](path)
            before = identity(path)
            begin = time.monotonic()
            status, said = at.start()
            took = time.monotonic() - begin
            where = f"{kind} in place of {place}"
            if status != 0 or took > 5:
                return problem(where, f"status {status} after {took:.1f} s: {said}") or 1
            is_settings = place in PLACES[:2]
            is_same = identity(path) == before
            is_file = before[1] == stat.S_IFREG
            if is_settings and not is_same and not is_file:
                problem(where, "was replaced")
            if is_settings and is_same and not is_file and "could not be saved" not in said:
                problem(where, "was not told")
            if place not in (".", *PLACES[:2]) and place != "Horvanta.ini.starting" and at.lost(base):
                problem(where, f"lost {sorted(at.lost(base))}")
            return 0

    failed = in_parallel(cases, act)
    print(f"odd files and folders: {len(cases)} starts, {sum(failed)} that did not start or hung")


# Disks.

def told_or_saved(at, where, status, said):
    """Everything is as it was, or saved; and whatever is not saved was told."""
    if status != 0:
        problem(where, f"status {status}: {said}")
    lost = at.lost({name: unsaved[name] for name in NAMES}) - {"Item/RD", "Item/SD"}
    if lost:
        problem(where, f"lost {sorted(lost)}")
    saved = b"TimeAstro/Chk=True" in read(at.path()) and b"Item/RD=739000.125" not in read(at.path())
    if not saved and "could not be saved" not in said:
        problem(where, "was not told")
    return saved


def size_limits():
    cases = [0, 1, 100, 600, 1200, len(base["Horvanta"]) - 1, len(base["Horvanta"]) + 200]

    def act(limit):
        with home() as at:
            at.put(unsaved)
            status, said = at.start(before=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
            return told_or_saved(at, f"file size limit {limit}", status, said)

    saved = in_parallel(cases, act)
    print(f"file size limits: {len(cases)} starts, {sum(saved)} saved, the others told")


def fill(folder, spare):
    """Takes all the room of a disk but for that many blocks: the most in one file, the rest block by block."""
    most = os.path.join(folder, "filler")
    facts = os.statvfs(folder)
    write(bytes(max(0, facts.f_bavail * facts.f_bsize - (spare + 16) * 4096)))(most)
    rest = []
    with contextlib.suppress(OSError):
        while True:
            rest.append(f"{most} {len(rest)}")
            write(b"x")(rest[-1])
    for path in rest[-1 - spare:]:
        with contextlib.suppress(FileNotFoundError):  # the last may not have found room for its name
            os.remove(path)
    return [most, *rest[:-1 - spare]]


@contextlib.contextmanager
def disk(kind):
    image, point = tempfile.mkdtemp(prefix="harm-disk-"), tempfile.mkdtemp(prefix="harm-mount-")
    try:
        if kind == "tmpfs":
            command = ["mount", "-t", "tmpfs", "-o", "size=256k", "tmpfs", point]
        else:
            path = os.path.join(image, "disk")
            write(b"")(path)
            os.truncate(path, 4 << 20)
            subprocess.run(["mkfs.ext4", "-q", "-O", "^has_journal", "-m", "0", path], check=True)
            command = ["mount", "-o", "loop", path, point]
        mounted = subprocess.run(command, capture_output=True, check=False).returncode == 0
        try:
            yield point if mounted else None
        finally:
            if mounted:
                subprocess.run(["umount", point], check=True)
    finally:
        shutil.rmtree(image)
        os.rmdir(point)


def full_disks():
    for kind in ("tmpfs", "ext4"):
        if not IS_ROOT or (kind == "ext4" and not shutil.which("mkfs.ext4")):
            print(f"full disks of {kind}: left out without root and the means to make one")
            continue
        with disk(kind) as point:
            if not point:
                print(f"full disks of {kind}: left out, none can be mounted here")
                continue
            saved = starts = 0
            for spare in (0, 1, 2, 3, 8):
                for files, what in ((unsaved, "settings"), ({}, "nothing"), (unfinished, "an unfinished start")):
                    with home(point) as at:
                        at.put(files or {"Horvanta": b""})
                        if files is unfinished:
                            write(b"")(at.path(end=".ini.starting"))
                        at.environment()
                        fillers = fill(point, spare)
                        status, said = at.start()
                        where = f"{what} on {kind} with {spare} free blocks"
                        if files is unsaved:
                            saved += told_or_saved(at, where, status, said)
                        elif status != 0:
                            problem(where, f"status {status}: {said}")
                        elif files is unfinished and at.lost(unfinished):
                            problem(where, f"lost {sorted(at.lost(unfinished))}")
                        starts += 1
                    for filler in fillers:
                        os.remove(filler)
            print(f"full disks of {kind}: {starts} starts, {saved} of 5 saved, the others told")


# Ends.

def kills():
    count = max(8, round(400 * SHARE))
    rng = random.Random(SEED)
    plans = [(rng.uniform(0, 0.15), rng.choice(("save", "none"))) for _ in range(count)]

    def act(plan):
        delay, end = plan
        with home() as at:
            at.put(unsaved)
            running = at.open(end)
            time.sleep(delay)
            running.kill()
            running.communicate()
            marked = os.path.exists(at.path(end=".ini.starting"))
            changing = {"Item/RD", "Item/SD"}
            if at.lost(unsaved) - changing:
                problem(f"a kill after {delay * 1000:.0f} ms", f"lost {sorted(at.lost(unsaved) - changing)}")
            status, said = at.start()
            if status != 0:
                problem(f"a start behind a kill after {delay * 1000:.0f} ms", f"status {status}: {said}")
            if at.lost(unsaved) - changing:
                problem(f"a start behind a kill after {delay * 1000:.0f} ms", f"lost {sorted(at.lost(unsaved) - changing)}")
            return marked

    marked = in_parallel(plans, act)
    print(f"kills in the first 150 ms: {count}, {sum(marked)} of them within the mark of the start")


def await_start(running, at):
    """Until the program has its socket and its settings have been read."""
    begin = time.monotonic()
    while time.monotonic() - begin < LONGEST and running.poll() is None:
        if os.path.exists(at.path("Horvanta", ".socket")):
            time.sleep(0.3)
            return True
        time.sleep(0.01)
    return False


def signals():
    rng = random.Random(SEED)
    kinds = (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)
    plans = [(kind, rng.uniform(0, 0.2)) for kind in kinds for _ in range(max(3, round(30 * SHARE)))]
    plans += [(kind, None) for kind in kinds]

    def act(plan):
        kind, delay = plan
        with home() as at:
            at.put(unsaved)
            running = at.open()
            if delay is None:
                await_start(running, at)
            else:
                time.sleep(delay)
            running.send_signal(kind)
            try:
                running.communicate(timeout=LONGEST)
            except subprocess.TimeoutExpired:
                running.kill()
                running.communicate()
                problem(f"{kind.name} after {delay}", "did not end the program")
            if os.path.exists(at.path(end=".ini.starting")):
                problem(f"{kind.name} after {delay}", "left the mark")
            if at.lost(unsaved) - {"Item/RD", "Item/SD"}:
                problem(f"{kind.name} after {delay}", f"lost {sorted(at.lost(unsaved))}")
            saved = b"Item/RD=739000.125" not in read(at.path())
            if delay is None and (not saved or running.returncode != 0):
                problem(f"{kind.name}", "did not save")
            return saved

    saved = in_parallel(plans, act)
    print(f"signals at any time: {len(plans)}, {sum(saved)} of them saved")


def lost_display():
    if not shutil.which("Xvfb"):
        return print("a display that goes away: left out without Xvfb")
    reading, writing = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-nolisten", "tcp"], pass_fds=[writing],
                              stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as told:
        number = told.readline().strip()
    with home() as at:
        at.put(unsaved)
        running = at.open(QT_QPA_PLATFORM="xcb", DISPLAY=f":{number}")
        is_started = await_start(running, at)
        time.sleep(1)
        server.kill()
        server.wait()
        said = b""
        try:
            said = running.communicate(timeout=LONGEST)[1]
        except subprocess.TimeoutExpired:
            running.kill()
            problem("a display that goes away", "hung")
        if not is_started or b"Item/RD=739000.125" in read(at.path()):
            problem("a display that goes away", f"did not save, status {running.returncode}: {said}")
    print("a display that goes away: 1 session")


# Instances.

def pairs():
    count = max(3, round(25 * SHARE))

    def act(number):
        with home() as at:
            at.put(unsaved)
            both = []
            for name in ("a", "b"):
                runtime = os.path.join(at.root, name)
                os.mkdir(runtime, 0o700)
                both.append(at.open("save", XDG_RUNTIME_DIR=runtime))
            for running in both:
                said = running.communicate(timeout=2 * LONGEST)[1].decode()
                if running.returncode != 0:
                    problem(f"pair {number}", f"status {running.returncode}: {said}")
            if at.lost(unsaved) - {"Item/RD", "Item/SD"}:
                problem(f"pair {number}", f"lost {sorted(at.lost(unsaved))}")

    in_parallel(range(count), act)
    print(f"pairs with two runtime folders on one settings folder: {count}")


def instances():
    waits = []
    with home() as at:
        at.put()
        first = at.open()
        await_start(first, at)
        for runtime in ("run", "other"):
            os.makedirs(os.path.join(at.root, runtime), exist_ok=True)
            status, said = at.start("none", XDG_RUNTIME_DIR=os.path.join(at.root, runtime))
            if status != 0 or first.poll() is not None:
                problem("a second start", f"status {status}: {said}")
        first.send_signal(signal.SIGSTOP)
        begin = time.monotonic()
        status, said = at.start("none")
        waits.append(time.monotonic() - begin)
        if status != 1 or "does not answer" not in said or waits[0] > 3:
            problem("a start behind a stopped one", f"status {status} after {waits[0]:.1f} s: {said}")
        first.send_signal(signal.SIGCONT)
        first.kill()
        first.communicate()
        begin = time.monotonic()
        status, said = at.start()
        waits.append(time.monotonic() - begin)
        if status != 0 or waits[1] > 2:
            problem("a start behind a killed one", f"status {status} after {waits[1]:.1f} s: {said}")
    print(f"a start behind a stopped one gave up after {waits[0]:.2f} s, behind a killed one ended after {waits[1]:.2f} s")


def containers():
    own = ["unshare", "--pid", "--fork", "--kill-child", *([] if IS_ROOT else ["--map-root-user"])]
    if subprocess.run([*own, "true"], capture_output=True, check=False).returncode != 0:
        return print("starts with process number 1: left out, no process numbers of one's own can be had here")
    with home() as at:
        at.put()
        for _ in range(3):
            crashed = at.open(command=own)
            await_start(crashed, at)
            crashed.kill()
            crashed.communicate()
            time.sleep(0.2)
            status, said = at.start(command=own)
            if status != 0 or at.lost(base):
                problem("a start with process number 1 behind a crash of one", f"status {status}: {said}")
    print("starts with process number 1, each behind a crash of one: 3")


base = make_base()
unsaved = base | {"Horvanta": base["Horvanta"].replace(b"TimeAstro/Chk=False", b"TimeAstro/Chk=True")}
unfinished = base
for part in (damage_table, cuts, odd_files, size_limits, full_disks, kills, signals, lost_display, pairs, instances,
             containers):
    if sys.argv[4:] and part.__name__ not in sys.argv[4:]:
        continue
    begun = time.monotonic()
    part()
    print(f"    {time.monotonic() - begun:.1f} s", flush=True)
print(f"{len(problems)} problems" + "".join("\n  " + line for line in problems[:50]))
sys.exit(bool(problems))
