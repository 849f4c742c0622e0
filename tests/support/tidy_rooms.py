#!/usr/bin/env python3
"""clang-tidy over whole folders. Most of its time goes into the headers that every file reads again, so that the files of a folder which are built the
same way are read as one, each header once. Files whose private names clash with an earlier one's are read together with others of their kind, if need be
alone.

Usage: tidy_rooms.py BUILD_FOLDER [FILES]. Prints the findings, at their own files' lines; answers 1 if there are any.
"""

from __future__ import annotations

import itertools
import json
import os
import re
import shlex
import subprocess
import sys
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
INCLUDE = re.compile(r"\s*#include [<\"][^>\"]+[>\"]")
COUNTS = re.compile(r"\d+ warnings?( and \d+ errors?)? generated\.|Error while processing .*")
# One file's private name is no shadow over another's, nor are two declarations of what is defined elsewhere one too many.
APART = ("-Wno-shadow", "-readability-redundant-declaration")


@dataclass
class Room:
    path: Path
    flags: list[str]
    files: list[Path]
    begins: list[int] = field(default_factory=list)  # the line before each file's first

    def write(self) -> None:
        lines: list[str] = []
        included: set[str] = set()
        for file in self.files:
            self.begins.append(len(lines))
            own = file.read_text().splitlines()
            # What an earlier file includes would count as included twice.
            lines += ["" if INCLUDE.match(line) and line in included else line for line in own]
            included |= {line for line in own if INCLUDE.match(line)}
        self.path.write_text("\n".join(lines) + "\n")

    def at(self, line: int) -> tuple[int, int]:
        """Which file a line of the room belongs to, and its number there."""
        file = max(i for i, begin in enumerate(self.begins) if begin < line)
        return file, line - self.begins[file]

    def clashing(self) -> set[int]:
        """Which files cannot stand behind those before them: never the first."""
        command = ["clang++", *self.flags, "-fsyntax-only", "-w", "-ferror-limit=0", self.path]
        told = subprocess.run(command, capture_output=True, text=True).stderr if len(self.files) > 1 else ""
        return {self.at(int(line))[0] for line in re.findall(rf"^{re.escape(str(self.path))}:(\d+):\d+: error:", told, re.MULTILINE)} - {0}

    def findings(self, build: Path) -> str:
        apart = [f"--extra-arg={APART[0]}", f"--checks={APART[1]}"] if len(self.files) > 1 else []
        told = subprocess.run(["clang-tidy", "--quiet", *apart, f"-p={build}", self.path], capture_output=True, text=True)
        lines = [line for line in (told.stdout + told.stderr).splitlines() if not COUNTS.fullmatch(line)]
        if told.returncode != 0 and not lines:
            return f"clang-tidy ends with {told.returncode} over {self.path}"

        def own(match: re.Match[str]) -> str:
            file, line = self.at(int(match[1]))
            return f"{self.files[file]}:{line}:"

        return "\n".join(re.sub(rf"{re.escape(str(self.path))}:(\d+):", own, line) for line in lines)


def rooms_of(folder: Path, flags: list[str], files: list[Path], numbers: itertools.count[int]) -> list[Room]:
    room = Room(folder / f"room{next(numbers)}.cpp", flags, files)
    room.write()
    clashing = room.clashing()
    if not clashing:
        return [room]
    together = [file for i, file in enumerate(files) if i not in clashing]
    apart = [file for i, file in enumerate(files) if i in clashing]
    return rooms_of(folder, flags, together, numbers) + rooms_of(folder, flags, apart, numbers)


def tracked(*patterns: str) -> list[Path]:
    return [Path(name) for name in subprocess.run(["git", "ls-files", *patterns], cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()]


def built_alike(build: Path, wanted: set[Path]) -> dict[tuple[Path, str], list[Path]]:
    """The wanted files by their folder and what the compiler is given for them."""
    alike: dict[tuple[Path, str], list[Path]] = defaultdict(list)
    for entry in json.loads((build / "compile_commands.json").read_text()):
        file = Path(entry["file"])
        if file in wanted:
            wanted.remove(file)  # once, however many programs it is built into
            flags = entry["command"].split(" -o ")[0].split(" ", 1)[1]
            alike[file.parent, f"{flags} -iquote {file.parent}"].append(file)
    return alike


def main() -> int:
    build = Path(sys.argv[1]).resolve()
    rooms_folder = build / "rooms"
    subprocess.run(["rm", "-rf", rooms_folder], check=True)
    for config in tracked("*/.clang-tidy"):  # a room is judged as what lies in its folder
        (rooms_folder / config).parent.mkdir(parents=True, exist_ok=True)
        (rooms_folder / config).symlink_to(ROOT / config)
    wanted = {Path(name).resolve() for name in sys.argv[2:]} or {ROOT / name for name in tracked("src/*.cpp", "tests/*.cpp", "bench/*.cpp")}
    numbers = itertools.count()

    def made(parent: Path, flags: str, files: list[Path]) -> list[Room]:
        folder = rooms_folder / parent.relative_to(ROOT)
        folder.mkdir(parents=True, exist_ok=True)
        return rooms_of(folder, shlex.split(flags), sorted(files), numbers)

    with ThreadPoolExecutor(os.cpu_count()) as workers:
        several = workers.map(lambda item: made(*item[0], item[1]), built_alike(build, wanted).items())
        rooms = sorted(itertools.chain.from_iterable(several), key=lambda room: -len(room.files))
        commands = [{"directory": str(build), "file": str(room.path), "command": shlex.join(["c++", *room.flags, "-c", str(room.path)])} for room in rooms]
        (rooms_folder / "compile_commands.json").write_text(json.dumps(commands))
        found = [text for text in workers.map(lambda room: room.findings(rooms_folder), rooms) if text]
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
