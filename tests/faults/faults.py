"""What the tests of faults share: a catalogue that a save changes in every file, and the scripted program."""

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
    """Begins anew on a display of its own where there is none."""
    os.environ.pop("WAYLAND_DISPLAY", None)
    if not os.environ.get("DISPLAY"):
        command = '. tools/common.sh; on_virtual_display "$@"'
        arguments = [sys.executable, str(Path(sys.argv[0]).resolve()), *sys.argv[1:]]
        os.chdir(ROOT)
        os.execvp("bash", ["bash", "-c", command, "bash", *arguments])


def rows(courses, seed):
    """The rows of a valid catalogue of that many courses, a list of lines per file; all names invented."""
    rng = random.Random(seed)
    departments = max(2, courses // 100)
    lecturers = max(3, courses // 5)
    studies = max(2, courses // 160)
    directions = 4 * studies
    levels = ["Preddiplomski" if study % 2 else "Diplomski" for study in range(1, studies + 1)]
    return [
        [f"{i};Zavod za {rng.choice(NAMES)} {i};Z{i}" for i in range(1, departments + 1)],
        [f"{i};Prezime{i} {rng.choice(NAMES)};dr. sc.;{rng.randint(1, departments)}"
         for i in range(1, lecturers + 1)],
        [f"{i};Studij {i};S{i};{levels[i - 1]}" for i in range(1, studies + 1)],
        [f"{i};Smjer {i};M{i};{(i - 1) // 4 + 1};{levels[(i - 1) // 4]}" for i in range(1, directions + 1)],
        [f"{i};Kolegij o žitu {i};{rng.randint(0, 4)};{rng.randint(0, 2)};{rng.randint(0, 2)};"
         f"{rng.randint(1, 10)};{rng.choice(['obvezni', 'izborni'])};{rng.randint(1, 4)};"
         f"{rng.randint(1, studies)}" for i in range(1, courses + 1)],
        [f"{rng.randint(1, courses)};{rng.randint(1, directions)}" for _ in range(2 * courses)],
        [f"{rng.randint(1, courses)};{rng.randint(1, lecturers)};Nositelj;{rng.randint(1, 3)}"
         for _ in range(3 * courses)],
    ]


class Catalogue:
    """The seven files as they are found (old) and as the program saves them (new)."""

    def __init__(self, courses, seed):
        self.old = {}
        self.new = {}
        for name, header, lines in zip(FILES, HEADERS, rows(courses, seed)):
            text = "\r\n".join(lines) + "\r\n"
            self.new[name] = f"{header}\r\n{text}".encode("cp1250")
            # A header of its own and a blank line, which the program reads and does not write.
            self.old[name] = f"zaglavlje {seed}\r\n\r\n{text}".encode("cp1250")

    def write(self, folder, marked=False):
        """Puts the old files, and nothing else, into a folder; marked: as UTF-8 with its mark."""
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        for name, content in self.old.items():
            if marked:
                content = b"\xEF\xBB\xBF" + content.decode("cp1250").encode()
            (folder / name).write_bytes(content)


class Program:
    """The scripted program with a data folder of its own; under Wine where `windows` is true."""

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

    def told(self, path):
        """A path below the program's base as the program writes it in a message."""
        if not self.windows:
            return str(path)
        return "\\".join([f"C:\\users\\{getpass.getuser()}\\AppData\\Local",
                          *Path(path).relative_to(self.base).parts])

    def close(self):
        if self.own_base:
            shutil.rmtree(self.own_base, ignore_errors=True)

    def start(self, leave_by="exit", **more):
        """Starts the program; it leaves by its button or its close box at once."""
        env = dict(os.environ, LOCALAPPDATA=str(self.base), VARLO_LEAVE_BY=leave_by, NO_AT_BRIDGE="1",
                   LC_ALL="C.UTF-8", **more)
        command = ["wine", self.executable] if self.windows else [self.executable]
        return subprocess.Popen(command, env=env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                stdin=subprocess.DEVNULL, cwd=self.executable.parent)

    def run(self, leave_by="exit", limit=120, **more):
        """Lets the program run to its end; its exit code and what its message boxes said."""
        process = self.start(leave_by, **more)
        try:
            output, _ = process.communicate(timeout=limit)
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            raise
        return process.returncode, output.decode("utf-8", "replace").replace("\r\n", "\n").strip()


def content(folder):
    """The files of a folder by their names."""
    return {path.name: path.read_bytes() for path in Path(folder).iterdir() if path.is_file()}


def temporary_names(folder):
    return [name for name in os.listdir(folder) if name.endswith(".tmp")]


def seconds_since(start):
    return time.monotonic() - start
