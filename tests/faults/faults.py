"""Shared by the tests of faults: a catalogue before and after an edit, and the scripted program."""

import getpass
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

FILES = ["db_zavod.csv", "db_nastavnici.csv", "db_studij.csv", "db_smjer.csv", "db_kolegij.csv",
         "db_kolegij_smjer.csv", "db_kolegij_nastavnik.csv"]  # in the order in which they are saved

HEADERS = ["ID;Naziv;Kratica", "ID;PrezimeIme;Titula;ZavodID", "ID;Naziv;Kratica;Razina",
           "ID;Naziv;Kratica;StudijID;Razina", "ID;Naziv;P;S;V;ECTS;Tip;Semestar;StudijID",
           "KolegijID;SmjerID", "KolegijID;NastavnikID;Uloga;Redoslijed"]

NAMES = ["Žarko", "Đurđica", "Šime", "Čedo", "Ćiro", "Ana", "Marija", "Ivan"]


ROOT = Path(__file__).resolve().parents[2]
NATIVE_PROGRAM = ROOT / "build" / "native" / "scripted_program"


def on_a_display():
    """Restarts this script on a virtual display if there is no display."""
    os.environ.pop("WAYLAND_DISPLAY", None)
    if not os.environ.get("DISPLAY"):
        command = '. tools/common.sh; on_virtual_display "$@"'
        arguments = [sys.executable, str(Path(sys.argv[0]).resolve()), *sys.argv[1:]]
        os.chdir(ROOT)
        os.execvp("bash", ["bash", "-c", command, "bash", *arguments])


def rows(courses, seed, first=1):
    """The rows of a valid catalogue of that many courses, a list of lines per file; all names invented. The
    courses are numbered from `first` on."""
    rng = random.Random(seed)
    departments = max(2, courses // 100)
    lecturers = max(3, courses // 5)
    studies = max(2, courses // 160)
    directions = 4 * studies
    levels = ["Preddiplomski" if study % 2 else "Diplomski" for study in range(1, studies + 1)]
    numbers = range(first, first + courses)
    return [
        [f"{i};Zavod za {rng.choice(NAMES)} {i};Z{i}" for i in range(1, departments + 1)],
        [f"{i};Prezime{i} {rng.choice(NAMES)};dr. sc.;{rng.randint(1, departments)}"
         for i in range(1, lecturers + 1)],
        [f"{i};Studij {i};S{i};{levels[i - 1]}" for i in range(1, studies + 1)],
        [f"{i};Smjer {i};M{i};{(i - 1) // 4 + 1};{levels[(i - 1) // 4]}" for i in range(1, directions + 1)],
        [f"{i};Kolegij o žitu {i};{rng.randint(0, 4)};{rng.randint(0, 2)};{rng.randint(0, 2)};"
         f"{rng.randint(1, 10)};{rng.choice(['obvezni', 'izborni'])};{rng.randint(1, 4)};"
         f"{rng.randint(1, studies)}" for i in numbers],
        [f"{rng.choice(numbers)};{rng.randint(1, directions)}" for _ in range(2 * courses)],
        [f"{rng.choice(numbers)};{rng.randint(1, lecturers)};Nositelj;{rng.randint(1, 3)}"
         for _ in range(3 * courses)],
    ]


def as_files(lines):
    return {name: "\r\n".join([header, *lines_of_file, ""]).encode("cp1250")
            for name, header, lines_of_file in zip(FILES, HEADERS, lines)}


class Catalogue:
    """The seven files before (old) and after (new) an edit that gives every course another number: in a mixture
    of the two, the links lead nowhere."""

    def __init__(self, courses, seed, edit=1):
        self.old = as_files(rows(courses, seed))
        self.new = as_files(rows(courses, seed, 1 + edit * courses))

    def write(self, folder, marked=False):
        """Makes a folder hold the old files and nothing else; marked: in UTF-8 with the mark."""
        files = self.old
        if marked:
            files = {name: b"\xEF\xBB\xBF" + data.decode("cp1250").encode() for name, data in files.items()}
        replace_folder(folder, files)

    def write_new(self, folder):
        replace_folder(folder, self.new)

    def state(self, folder):
        """"old", "new", or "mixed" for anything else."""
        files = {name: data for name, data in content(folder).items() if name in FILES}
        return "new" if files == self.new else "old" if files == self.old else "mixed"

    def is_kept(self, program, which):
        """True if a folder of "kopije" holds this whole catalogue ("old" or "new")."""
        copies = program.data / "kopije"
        return copies.is_dir() and any(self.state(copy) == which for copy in copies.iterdir()
                                       if not copy.name.endswith(".dio"))


def replace_folder(folder, files):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    for name, data in files.items():
        (folder / name).write_bytes(data)


class Program:
    """The scripted program with its own data folder; under Wine if `windows` is true."""

    def __init__(self, executable, windows=False, base=None):
        self.executable = Path(executable).resolve()
        self.windows = windows
        self.own_base = None
        if windows:  # Wine gives every program the folder of its user
            users = Path(os.environ["WINEPREFIX"]) / "drive_c" / "users" / getpass.getuser()
            base = users / "AppData" / "Local"
        elif base is None:
            base = self.own_base = Path(tempfile.mkdtemp(prefix="varlo-faults-"))
        self.base = Path(base)
        self.data = self.base / "Varlostudiji"
        self.mark = self.data / "spremanje" / "gotovo"

    def shown(self, path):
        """A path below the program's base as the program writes it in a message."""
        if not self.windows:
            return str(path)
        return "\\".join([f"C:\\users\\{getpass.getuser()}\\AppData\\Local",
                          *Path(path).relative_to(self.base).parts])

    def path_shown(self, text):
        """The path of a folder as the program shows it."""
        if not self.windows:
            return Path(text)
        return Path(os.environ["WINEPREFIX"]) / "drive_c" / text.strip().removeprefix("C:\\").replace("\\", "/")

    def close(self):
        if self.own_base:
            shutil.rmtree(self.own_base, ignore_errors=True)

    def start(self, leave_by="exit", **more):
        """Starts the program; it ends at once by its button or its close box."""
        env = dict(os.environ, LOCALAPPDATA=str(self.base), VARLO_LEAVE_BY=leave_by, NO_AT_BRIDGE="1",
                   LC_ALL="C.UTF-8", **more)
        command = ["wine", self.executable] if self.windows else [self.executable]
        return subprocess.Popen(command, env=env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                stdin=subprocess.DEVNULL, cwd=self.executable.parent)

    def run(self, leave_by="exit", limit=120, **more):
        """Waits for the program's end; returns its exit code and its message boxes."""
        process = self.start(leave_by, **more)
        try:
            output, _ = process.communicate(timeout=limit)
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            raise
        return process.returncode, output.decode("utf-8", "replace").replace("\r", "").strip()


def content(folder):
    """The files of a folder by their names."""
    return {path.name: path.read_bytes() for path in Path(folder).iterdir() if path.is_file()}


def temporary_names(folder):
    return [name for name in os.listdir(folder) if name.endswith(".tmp")]


def seconds_since(start):
    return time.monotonic() - start
